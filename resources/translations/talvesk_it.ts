<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>talvesk</name>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>talvesk::Axes</name>
    <message>
        <source>x (m)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>talvesk::Messages</name>
    <message>
        <source>The document has been modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::RecordingDetailsDialog</name>
    <message>
        <source>Recording details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shot:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples dropped before the shot:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Geophone x (m)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Geophone z (m)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shot x (m)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shot z (m)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interval (ms)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delay (ms)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Warnings of the reader:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>talvesk::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fills the positive half of every wiggle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fills the two halves of every wiggle in two colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends every wiggle where the next trace begins. Otherwise strong wiggles run over their neighbours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the filtered copy of the traces where there is one. AutoPick then picks on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal colour bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the colour bar of saved PNG pictures below the section, not beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens shots at the part of the record that holds the first breaks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens shots with all traces in view, however narrow. AutoPick, AGC and Hushel then work on all shots.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>talvesk::Talvesk_MainWindows</name>
    <message>
        <source>Traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h2&gt;No survey yet&lt;/h2&gt;&lt;p&gt;Open shot files with Ctrl+O, or drop them here.&lt;/p&gt;&lt;p&gt;Picks without traces come in with File &amp;gt; Import TravelTimes.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traces and picks of the current shot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traces and picks, second view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel times of the current shot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the picks of the other shots faintly over the traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All Picks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Filtered Traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the picks and the travel-time preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Only Traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the times that the last inversion computed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show computed Travel Times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel time curves of all shots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tomographic profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;KML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Velocity Gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Geophones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picks of the selected traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mouse tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap picks to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wiggles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rocessing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start a new survey: empties this one, then asks for shot files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import TravelTimes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load traveltimes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smooth the velocities of the section once more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert the picks into a velocity section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the section cell by cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smooth view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the section with velocities blended between cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export tomographic data ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the velocities, rays and times of the last inversion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the next seismic file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prev</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the previous file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the layers and velocities that the inversion starts from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a project with its shots, picks and section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the project in a file of another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save pictures of the section, the curves and the traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick the first breaks of the current shot, or of all shots when all traces are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version, libraries and licence of Talvesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Geometry ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the positions of geophones and shots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay the grid of the tomography under the line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a report of the survey as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette Options...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the colours of the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ODT...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a report of the survey as a text document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Talvesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On line help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the help pages on the web, or the user guide without a network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Rays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay the seismic rays to profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill the positive half of every wiggle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language, trace view and image options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Contour Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw lines of equal velocity over the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set geographic coordinates ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say where the first and the last geophone lie on the map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring the whole section back into view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show how fast the velocity grows with depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Laplacian Gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show where the velocity changes most abruptly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Tomographic Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the velocity section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the guide that comes with Talvesk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the traces of the current shot by frequency, with spectrum and preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Hushel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply Hushel - The Noise Reduction tool for seismic refraction data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AGC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even out the amplitudes of the traces (automatic gain control)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interpret the picks layer by layer with the reciprocal method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw small geophones on the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw geophones of normal size on the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw large geophones on the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show refraction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay the refractors of the layered interpretation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show scalarbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the colour scale beside the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take a Screenshot of the tomographic profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export TravelTimes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write picks and positions to a travel-time file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Information Density Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Veil the parts of the section that few rays cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Grid Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw distance and depth lines over the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set title ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set prject title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show title ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the project title over the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tomography to text file ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export tomography as a XYZVelocity gridded text file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tomographic profile ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the section to KML, standing on the globe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seismic line ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export seismic line to KML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open shot files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add shot files (SEG-2, SEG-Y, SU) to the survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take back the last edit of the picks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do again the edit that was taken back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open shots at the part of the record that holds the first breaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End every wiggle where the next trace begins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill the two halves of every wiggle in two colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one; AutoPick then picks on it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open shots with all traces in view; AutoPick, AGC and Hushel then work on all shots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At true distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place the traces at their distance along the line, not one beside the other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True amplitudes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the amplitudes of a shot in proportion; otherwise every trace is as wide as the others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Air wave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the line of the sound that travels through the air</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enlarge what is around the cursor (key M)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger wiggles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raise the gain (key ])</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller wiggles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower the gain (key [)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click sets a pick, dragging moves it or draws a run of picks, right click removes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag a line to read its apparent velocity (key R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag over traces to confirm or remove their picks together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picks stay where they are set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Onset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw picks to where the noise ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zero crossing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw picks to the nearest change of sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw picks to the strongest peak or trough nearby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the automatic picks of the selected traces your own (key C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the picks of the selected traces (key Delete)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove unconfirmed picks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the automatic picks of the selected traces that were not confirmed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all traces and all times (key F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back to the view before the last zoom (key Backspace)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go forward again after going back (keys Shift+Backspace)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording details...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the shot files hold: samples, interval, delay, positions, warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shot in view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shot in view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Seismic Trace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SEG2 format (*.sg2 *.dat *.seg2);;SEGY format (*.sgy *.segy);;SU format (*.su);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading shot files ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported file format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while loading one or more traces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n shot file(s) loaded.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with warnings, see Traces &gt; Recording details.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Recording delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The records start before the shot, by up to %1 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to count times from the shot? What was recorded before it is then dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) end before the shot and stay as recorded.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Import TravelTimes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel times (*.otte *.txt *.xyz *.XYZ *.csv *.CSV);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error while loading %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was loaded with warnings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save TravelTimeExchange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Travel Time Exchange format (*.otte);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The travel times have not been saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Travel times saved in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projects cannot be saved yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To keep the picks, use File &gt; Export &gt; Export TravelTimes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user guide is not where it was installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install Talvesk again to get it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program to show the user guide was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You find it in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Seismic refraction surveys: from field records to velocity sections.&lt;/p&gt;&lt;p&gt;Talvesk is free software under the MIT licence, without any warranty.&lt;/p&gt;&lt;p&gt;It is built with Qt %1 (LGPL), Qwt (LGPL with exceptions), liquid-dsp (MIT), Eigen (MPL 2) and cereal (BSD).&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picking first breaks ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not every shot could be picked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Applying AGC ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying Hushel ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <comment>shot number, file, place</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset %1 m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick %1 ms (automatic)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amplitude %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Talvesk 2022.0</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
