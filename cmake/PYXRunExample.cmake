# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Runs an example in a home of its own, which goes afterwards:
#   cmake -D "EMULATOR=..." -D "PROGRAM=program;arguments..." -D EXPECT=regex -P PYXRunExample.cmake
# Fails unless the program succeeds and its standard output matches EXPECT. Under an emulator the home is that of
# the emulated system.

# Short, since the path of a local socket may only have some hundred bytes.
set(temporary "$ENV{TMPDIR}")
if(NOT temporary)
    set(temporary "/tmp")
endif()
string(RANDOM LENGTH 16 suffix)
set(home "${temporary}/pyx-${suffix}")
file(MAKE_DIRECTORY "${home}/run" "${home}/tmp")
if(NOT EMULATOR)
    file(CHMOD "${home}/run" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    set(ENV{HOME} "${home}")
    set(ENV{XDG_CONFIG_HOME} "${home}/config")
    set(ENV{XDG_CONFIG_DIRS} "${home}/etc")
    set(ENV{XDG_DATA_HOME} "${home}/data")
    set(ENV{XDG_CACHE_HOME} "${home}/cache")
    set(ENV{XDG_RUNTIME_DIR} "${home}/run")
    set(ENV{TMPDIR} "${home}/tmp")
    # Nor is the user's secret store asked.
    unset(ENV{DBUS_SESSION_BUS_ADDRESS})
    unset(ENV{DISPLAY})
endif()
# Not through a pipe, which what an emulator leaves running would keep open.
execute_process(COMMAND ${EMULATOR} ${PROGRAM} TIMEOUT 100 RESULT_VARIABLE result OUTPUT_FILE "${home}/output")
file(READ "${home}/output" output)
file(REMOVE_RECURSE "${home}")
message("${output}")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The example has failed: ${result}")
endif()
if(NOT output MATCHES "${EXPECT}")
    message(FATAL_ERROR "The example has not said \"${EXPECT}\".")
endif()
