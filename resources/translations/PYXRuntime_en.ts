<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>PYXRuntime::PYXCountingFileSet</name>
    <message numerus="yes">
        <source>%n byte(s) could not be written.</source>
        <translation>
            <numerusform>%n byte could not be written.</numerusform>
            <numerusform>%n bytes could not be written.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PYXRuntime::SHW_Network_Entries</name>
    <message numerus="yes">
        <source>%n entries were added.</source>
        <translation>
            <numerusform>%n entry was added.</numerusform>
            <numerusform>%n entries were added.</numerusform>
        </translation>
    </message>
</context>
</TS>
