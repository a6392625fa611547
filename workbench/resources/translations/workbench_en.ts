<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CountFields</name>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n object</numerusform>
            <numerusform>%n objects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilePageCommands</name>
    <message numerus="yes">
        <source>“%1” and %n more</source>
        <translation>
            <numerusform>“%1” and %n more</numerusform>
            <numerusform>“%1” and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Merge %n Pictures</source>
        <translation>
            <numerusform>Merge %n Picture</numerusform>
            <numerusform>Merge %n Pictures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedGuard</name>
    <message numerus="yes">
        <source>%n pictures have changes that are not saved.</source>
        <translation>
            <numerusform>%n picture has changes that are not saved.</numerusform>
            <numerusform>%n pictures have changes that are not saved.</numerusform>
        </translation>
    </message>
</context>
</TS>
