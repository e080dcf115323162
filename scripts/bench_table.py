# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""The races of benchmarks/: what each measures, its peers with their goals, and its floor."""
import enum
import typing


class Kind(enum.Enum):
    RACE = "what is measured; no contestant"
    RATIO = "ours over the peer's, at most the goal"
    DIFFERENCE = "ours less the peer's in ms, at most the goal"
    TIME = "ours in ms, at most the goal, whatever the peer takes"
    FLOOR = "what the work costs at least: a contestant, or, without one, why there is none"


class Record(typing.NamedTuple):
    race: str  # "<area>/<race>"
    kind: Kind
    contestant: str
    description: str
    goal: typing.Optional[float]  # a peer without one is there for the record


def race(name, description, *others):
    return [Record(name, *fields) for fields in ((Kind.RACE, "", description, None), *others)]


def ratio(contestant, description, goal=None):
    return Kind.RATIO, contestant, description, goal


def difference(contestant, description, goal):
    return Kind.DIFFERENCE, contestant, description, goal


def time(contestant, description, goal):
    return Kind.TIME, contestant, description, goal


def floor(description, contestant="floor"):
    return Kind.FLOOR, contestant, description, None


PEER_IS_FLOOR = floor("the peer is the floor", "")
FRAME_MS = 16.0  # a screen shows 60 pictures per second
QFILE = "QFile, begun anew by hand, nothing counted"
SPDLOG_ROTATING = "spdlog's rotating sink, files of the same size"
PMR = "std::pmr::synchronized_pool_resource, std::shared_ptr with a deleter"

TABLE = [
    *race("startup/process", "Start a program with the library and end it",
          difference("bare QApplication", "the same program without the library", 10.0),
          PEER_IS_FLOOR),

    *race("diagnostics/disabled message", "A debug message whose scope is off",
          ratio("qCDebug", "a logging category of Qt that is off", 1.5),
          floor("a loop with nothing in it")),
    *race("diagnostics/trace line to a file", "A trace line to one tracer that writes to a buffered file",
          ratio("spdlog", "the same line to the same kind of file, as locked, no clock asked", 1.0),
          floor("the tracer called directly")),

    *race("broker/topObject", "Look an interface up and cast it",
          ratio("by hand", "mutex, two hash look-ups, QPointer and cast", 1.3),
          floor("the cast alone")),

    *race("settings/read", "Read 10 000 text keys in groups of 20 from a file",
          ratio("Ini", "QSettings with its own text format", 0.8),
          ratio("KConfig", "KConfig, one file"),
          floor("QSettings with a format that hands over a map made before the race")),
    *race("settings/sync", "Change one key of 1 000 and save",
          ratio("Ini", "QSettings with its own text format", 1.0),
          ratio("KConfig", "KConfig, one file", 1.0),
          floor("the same file's bytes through QSaveFile")),

    *race("statushash/binary save", "Save a status hash of 100 values in binary form",
          ratio("QDataStream", "the same values as a bare QVariantHash", 1.3),
          PEER_IS_FLOOR),
    *race("statushash/binary restore", "Restore it",
          ratio("QDataStream", "the same values as a bare QVariantHash, nothing checked", 1.3),
          PEER_IS_FLOOR),
    *race("statushash/xml save", "Save the same status hash as XML",
          ratio("QJsonDocument", "the same values as JSON, which keeps fewer types"),
          floor("QXmlStreamWriter with the same elements, texts made before the race")),
    *race("statushash/xml restore", "Restore it",
          ratio("QJsonDocument", "the same values from JSON, which keeps fewer types"),
          floor("QXmlStreamReader through the same document, nothing kept")),

    *race("store/open, read one key", "Open a store whose file is unchanged, read a key, close it",
          ratio("QSettings", "plain QSettings on the same file in the same format", 1.1),
          ratio("Ini", "plain QSettings on an INI file with the same keys"),
          floor("plain QSettings, which a store stands on", "QSettings")),

    *race("security/encrypt 16 bytes", "Encrypt a password with the Simple provider",
          ratio("by hand", "digest, XOR, QDataStream, Base64; nothing checked or wiped", 1.3),
          floor("the digest alone")),
    *race("security/encrypt 1 MB", "Encrypt a megabyte",
          ratio("by hand", "the same", 1.3),
          floor("the digest alone")),
    *race("security/decrypt 16 bytes", "Decrypt a password",
          ratio("by hand", "Base64, QDataStream, XOR; nothing checked or wiped", 1.3),
          floor("Base64 alone")),
    *race("security/decrypt 1 MB", "Decrypt a megabyte",
          ratio("by hand", "the same", 1.3),
          floor("Base64 alone")),

    *race("network/receive 128 datagrams", "Receive 128 waiting datagrams of 200 bytes",
          ratio("QUdpSocket", "QUdpSocket, read as Qt documents it", 1.05),  # 0.95 of its datagrams per second
          floor("recv(2) in a loop, no event loop")),
    *race("network/256 cached subnet answers", "256 kept answers: does an address belong to a local subnet",
          ratio("QHash", "bare look-ups, no lock"),
          PEER_IS_FLOOR),

    *race("files/writes of 64 KiB", "Write 64 KiB to a set of files",
          ratio("QFile", QFILE, 1.05),  # 0.95 of its speed
          ratio("spdlog", SPDLOG_ROTATING, 1.0),
          floor("write(2) to the same files")),
    *race("files/lines of 100 bytes", "Write a line of 100 bytes to a set of files",
          ratio("QFile", QFILE, 1.11),  # 0.9 of its speed
          ratio("spdlog", SPDLOG_ROTATING, 1.0),
          floor("the bytes gathered in 64 KiB for write(2)")),
    *race("files/trace line", "A line of the file tracer, with its time, passwords masked",
          ratio("spdlog", SPDLOG_ROTATING + ", the same line, nothing masked"),
          floor("as many bytes gathered in 64 KiB for write(2)")),

    *race("memory/acquire and release 64 KiB", "Acquire and release a block of 64 KiB from a pool",
          ratio("pmr", PMR, 1.0),
          ratio("pmr allocate_shared", "the same resource, std::allocate_shared", 1.0),
          ratio("malloc", "malloc, std::shared_ptr"),
          ratio("mimalloc", "mimalloc, std::shared_ptr"),
          ratio("GStreamer", "GStreamer's buffer pool"),
          floor("std::shared_ptr of an area that is there")),
    *race("memory/frame pipeline", "400 frames of 300 to 1 024 KiB through two threads, every page touched",
          ratio("pmr", PMR, 1.2),
          ratio("malloc", "malloc, std::shared_ptr; a process of its own", 0.2),
          ratio("mimalloc", "mimalloc, std::shared_ptr"),
          ratio("GStreamer", "GStreamer's buffer pool"),
          floor("frames made before the race, in turn")),

    *race("language/switch with 1000 labels", "Change the language of 1 000 labels with twelve files",
          difference("labels alone", "what the labels do then, the files stay", FRAME_MS),
          ratio("QTranslator", "the same files removed, loaded and installed by hand, nothing checked"),
          floor("what the labels do then, the files stay", "labels alone")),

    *race("dialog/open with 30 pages", "Open the settings dialog of 30 pages with 360 fields, to its first picture",
          difference("tree and stack", "a plain dialog with the same pages and values", FRAME_MS),
          PEER_IS_FLOOR),
    *race("dialog/click to page", "From a click in its tree to the picture of the page",
          difference("tree and stack", "a plain dialog with the same pages", FRAME_MS / 4),
          PEER_IS_FLOOR),

    *race("icons/200 SVG icons at four sizes, cold", "Load 200 SVG icons and draw each at four sizes, nothing kept",
          ratio("parsed once, rendered", "the same files parsed once, rendered four times by hand", 1.15),
          ratio("QIcon::fromTheme", "the same files as a theme", 1.0),
          ratio("KIconLoader", "the same theme, its cache on disk empty", 1.0),
          floor("parsed and rendered by hand", "parsed once, rendered")),
    *race("icons/200 cached look-ups", "Look up 200 kept icons: by path (loader), by id (standard icons)",
          ratio("QHash", "bare look-ups by path"),
          PEER_IS_FLOOR),
    *race("icons/longest hold while all are cached",
          "The longest time the event loop is held while all standard icons are loaded in batches",
          time("all at once", "the same icons loaded in one go", FRAME_MS),
          floor("no icon loaded: the loop's timer comes every ms")),
]
