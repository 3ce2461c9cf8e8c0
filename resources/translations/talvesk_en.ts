<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>talvesk::Messages</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and one more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::SectionSheet</name>
    <message numerus="yes">
        <source>%n ray(s)</source>
        <translation>
            <numerusform>%n ray</numerusform>
            <numerusform>%n rays</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::Talvesk_MainWindows</name>
    <message numerus="yes">
        <source>%n shot file(s) loaded.</source>
        <translation>
            <numerusform>%n shot file loaded.</numerusform>
            <numerusform>%n shot files loaded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Travel times of %n shot(s) imported.</source>
        <translation>
            <numerusform>Travel times of %n shot imported.</numerusform>
            <numerusform>Travel times of %n shots imported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with warnings, see Traces &gt; Recording details.</source>
        <translation>
            <numerusform>%n with warnings, see Traces &gt; Recording details.</numerusform>
            <numerusform>%n with warnings, see Traces &gt; Recording details.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) end before the shot and stay as recorded.</source>
        <translation>
            <numerusform>%n trace ends before the shot and stays as recorded.</numerusform>
            <numerusform>%n traces end before the shot and stay as recorded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n trace stays as it was.</numerusform>
            <numerusform>%n traces stay as they were.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::contourlines_dialog</name>
    <message numerus="yes">
        <source>%n value(s) of the list are no numbers from %1 to %2.</source>
        <translation>
            <numerusform>%n value of the list is no number from %1 to %2.</numerusform>
            <numerusform>%n values of the list are no numbers from %1 to %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::doFilteringDialog</name>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n trace stays as it was.</numerusform>
            <numerusform>%n traces stay as they were.</numerusform>
        </translation>
    </message>
</context>
</TS>
