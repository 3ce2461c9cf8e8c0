<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>talvesk::CertaintyDialog</name>
    <message numerus="yes">
        <source>%n member(s) of this seed are done; Continue goes on with more.</source>
        <translation>
            <numerusform>%n member of this seed is done; Continue goes on with more.</numerusform>
            <numerusform>%n members of this seed are done; Continue goes on with more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped with %n member(s); Continue goes on from there.</source>
        <translation>
            <numerusform>Stopped with %n member; Continue goes on from there.</numerusform>
            <numerusform>Stopped with %n members; Continue goes on from there.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::DialogSetGeometry</name>
    <message numerus="yes">
        <source>%1: %n geophone(s)</source>
        <translation>
            <numerusform>%1: %n geophone</numerusform>
            <numerusform>%1: %n geophones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1 is used by shot(s) %2. Remove it?</source>
        <translation>
            <numerusform>String %1 is used by shot %2. Remove it?</numerusform>
            <numerusform>String %1 is used by shots %2. Remove it?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) interpolated.</source>
        <translation>
            <numerusform>%n elevation interpolated.</numerusform>
            <numerusform>%n elevations interpolated.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the picks of shot(s) %1</source>
        <translation>
            <numerusform>the picks of shot %1</numerusform>
            <numerusform>the picks of shots %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n S-wave shot(s) added.</source>
        <translation>
            <numerusform>%n S-wave shot added.</numerusform>
            <numerusform>%n S-wave shots added.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) taken from the table.</source>
        <translation>
            <numerusform>%n elevation taken from the table.</numerusform>
            <numerusform>%n elevations taken from the table.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) lie beyond its ends, %1 to %2, and got the elevation there.</source>
        <translation>
            <numerusform>%n position lies beyond its ends, %1 to %2, and got the elevation there.</numerusform>
            <numerusform>%n positions lie beyond its ends, %1 to %2, and got the elevation there.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTexts</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 without a position.</source>
        <translation>
            <numerusform>String %1: geophone %2 has no position.</numerusform>
            <numerusform>String %1: geophones %2 have no position.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 against the direction of the string.</source>
        <translation>
            <numerusform>String %1: geophone %2 steps back against the direction of the string.</numerusform>
            <numerusform>String %1: geophones %2 step back against the direction of the string.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 not at the elevation that string %3 has there.</source>
        <translation>
            <numerusform>String %1: geophone %2 is not at the elevation that string %3 has there.</numerusform>
            <numerusform>String %1: geophones %2 are not at the elevations that string %3 has there.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a position.</source>
        <translation>
            <numerusform>Shot %1 has no position.</numerusform>
            <numerusform>Shots %1 have no position.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string.</source>
        <translation>
            <numerusform>Shot %1 has no geophone string.</numerusform>
            <numerusform>Shots %1 have no geophone string.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not an S-wave pair, as others are: a survey holds one kind of wave.</source>
        <translation>
            <numerusform>Shot %1 is not an S-wave pair, as others are: a survey holds one kind of wave.</numerusform>
            <numerusform>Shots %1 are not S-wave pairs, as others are: a survey holds one kind of wave.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 farther off the line than the line is long.</source>
        <translation>
            <numerusform>Shot %1 is farther off the line than the line is long.</numerusform>
            <numerusform>Shots %1 are farther off the line than the line is long.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 far above or below the line.</source>
        <translation>
            <numerusform>Shot %1 is far above or below the line.</numerusform>
            <numerusform>Shots %1 are far above or below the line.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1 has %2 geophones, shot(s) %3 %4 traces: the first %5 of both are used.</source>
        <translation>
            <numerusform>String %1 has %2 geophones, shot %3 has %4 traces: the first %5 of both are used.</numerusform>
            <numerusform>String %1 has %2 geophones, shots %3 have %4 traces: the first %5 of both are used.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not at the elevation of the line: type it, or interpolate elevations.</source>
        <translation>
            <numerusform>Shot %1 is not at the elevation of the line: type it, or interpolate elevations.</numerusform>
            <numerusform>Shots %1 are not at the elevation of the line: type it, or interpolate elevations.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::LeftOutText</name>
    <message numerus="yes">
        <source>%n shot(s) beyond the last column</source>
        <translation>
            <numerusform>%n shot beyond the last column</numerusform>
            <numerusform>%n shots beyond the last column</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n geophone(s) beyond the last column</source>
        <translation>
            <numerusform>%n geophone beyond the last column</numerusform>
            <numerusform>%n geophones beyond the last column</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) without a geophone string</source>
        <translation>
            <numerusform>%n shot without a geophone string</numerusform>
            <numerusform>%n shots without a geophone string</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 beyond the last column</source>
        <translation>
            <numerusform>Shot %1 beyond the last column</numerusform>
            <numerusform>Shots %1 beyond the last column</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Geophone(s) %1 of string %2 beyond the last column</source>
        <translation>
            <numerusform>Geophone %1 of string %2 beyond the last column</numerusform>
            <numerusform>Geophones %1 of string %2 beyond the last column</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string</source>
        <translation>
            <numerusform>Shot %1 without a geophone string</numerusform>
            <numerusform>Shots %1 without a geophone string</numerusform>
        </translation>
    </message>
</context>
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
    <name>talvesk::MisfitTable</name>
    <message numerus="yes">
        <source>%n pick(s); picks later than computed by %1 ms in the mean; chi2 %2</source>
        <translation>
            <numerusform>%n pick; it is later than computed by %1 ms; chi2 %2</numerusform>
            <numerusform>%n picks; picks later than computed by %1 ms in the mean; chi2 %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::PrintDialog</name>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n sheet</numerusform>
            <numerusform>%n sheets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProcessingDialog</name>
    <message numerus="yes">
        <source>take %n pick(s) out</source>
        <translation>
            <numerusform>take %n pick out</numerusform>
            <numerusform>take %n picks out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>mark %n pick(s)</source>
        <translation>
            <numerusform>mark %n pick</numerusform>
            <numerusform>mark %n picks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No layers are proposed. Mark %n layers all the same?</source>
        <translation>
            <numerusform>No layers are proposed. Mark %n layer all the same?</numerusform>
            <numerusform>No layers are proposed. Mark %n layers all the same?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::ReportDialog</name>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::ResolutionDialog</name>
    <message numerus="yes">
        <source>Stopped: %n test(s) completed.</source>
        <translation>
            <numerusform>Stopped: %n test completed.</numerusform>
            <numerusform>Stopped: %n tests completed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::SurveyedPositionsDialog</name>
    <message numerus="yes">
        <source>%n row(s) of the table have no position and are not used.</source>
        <translation>
            <numerusform>%n row of the table has no position and is not used.</numerusform>
            <numerusform>%n rows of the table have no position and are not used.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On OK the line lies on the map along %n point(s), and KML follows it. Reports and the dialog of geographic coordinates give its two ends.</source>
        <translation>
            <numerusform>On OK the line lies on the map along %n point, and KML follows it. Reports and the dialog of geographic coordinates give its two ends.</numerusform>
            <numerusform>On OK the line lies on the map along %n points, and KML follows it. Reports and the dialog of geographic coordinates give its two ends.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::TableTexts</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and one more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) of %1 that are no number were taken as 0.</source>
        <translation>
            <numerusform>%n field of %1 that is no number was taken as 0.</numerusform>
            <numerusform>%n fields of %1 that are no numbers were taken as 0.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::Talvesk_MainWindows</name>
    <message numerus="yes">
        <source>%n inversion run(s) deleted.</source>
        <translation>
            <numerusform>%n inversion run deleted.</numerusform>
            <numerusform>%n inversion runs deleted.</numerusform>
        </translation>
    </message>
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
    <message numerus="yes">
        <source>%n external iteration(s) completed.</source>
        <translation>
            <numerusform>%n external iteration completed.</numerusform>
            <numerusform>%n external iterations completed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) exist already.</source>
        <translation>
            <numerusform>%n file exists already.</numerusform>
            <numerusform>%n files exist already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) saved.</source>
        <translation>
            <numerusform>%n picture saved.</numerusform>
            <numerusform>%n pictures saved.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The times of %n trace(s) count from the shot now.</source>
        <translation>
            <numerusform>The times of %n trace count from the shot now.</numerusform>
            <numerusform>The times of %n traces count from the shot now.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pick(s) lay before it and are removed.</source>
        <translation>
            <numerusform>%n pick lay before it and is removed.</numerusform>
            <numerusform>%n picks lay before it and are removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The sheets have not all been saved; %n file(s) are complete.</source>
        <translation>
            <numerusform>The sheets have not all been saved; %n file is complete.</numerusform>
            <numerusform>The sheets have not all been saved; %n files are complete.</numerusform>
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
<context>
    <name>talvesk::gridDialog</name>
    <message numerus="yes">
        <source>%n position(s) at the end of the line lie beyond the last column and take no part in an inversion. Another cell size may reach them.</source>
        <translation>
            <numerusform>%n position at the end of the line lies beyond the last column and takes no part in an inversion. Another cell size may reach it.</numerusform>
            <numerusform>%n positions at the end of the line lie beyond the last column and take no part in an inversion. Another cell size may reach them.</numerusform>
        </translation>
    </message>
</context>
</TS>
