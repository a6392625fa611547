<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FileCommands</name>
    <message numerus="yes">
        <source>Move %n file(s) to Trash</source>
        <translation>
            <numerusform>Move %n File to Trash</numerusform>
            <numerusform>Move %n Files to Trash</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) moved to the trash. Undo brings them back.</source>
        <translation>
            <numerusform>%n file moved to the trash. Undo brings it back.</numerusform>
            <numerusform>%n files moved to the trash. Undo brings them back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>And %n more.</numerusform>
            <numerusform>And %n more.</numerusform>
        </translation>
    </message>
</context>
</TS>
