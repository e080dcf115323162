<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ReceiverWindow</name>
    <message>
        <source>Gain: %1 dB</source>
        <translation>Verstärkung: %1 dB</translation>
    </message>
</context>
</TS>
