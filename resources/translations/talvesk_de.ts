<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandWords</name>
    <message>
        <source>start over, empty, close survey, clear</source>
        <translation>neu anfangen, von vorn, leeren, Messung schließen, neues Projekt, zurücksetzen</translation>
    </message>
    <message>
        <source>load recordings, seismograms, records, raw data, gathers, seg2, segy</source>
        <translation>Aufzeichnungen laden, einlesen, Seismogramme, Records, Rohdaten, Messdaten, Felddaten, Gather, Schüsse importieren, seg2, segy, dat, sgy</translation>
    </message>
    <message>
        <source>file headers, metadata, sampling rate, sample interval</source>
        <translation>Dateiheader, Dateikopf, Dateiköpfe, Metadaten, Abtastrate, Abtastintervall, Samplerate, Samples, Messprotokoll, Eigenschaften</translation>
    </message>
    <message>
        <source>metadata, channels, trace table</source>
        <translation>Metadaten, Kanäle, Spurtabelle, Traceheader, Spurkopf, Kopfdaten</translation>
    </message>
    <message>
        <source>trigger, pretrigger, time zero, t0, recording delay</source>
        <translation>Trigger, Pretrigger, Vorlauf, Vorlaufzeit, Nullzeit, Zeitnullpunkt, t0, Schusszeit, Aufzeichnungsverzögerung, Delay</translation>
    </message>
    <message>
        <source>trigger shift, time correction, static, reverse channels</source>
        <translation>Triggerfehler, Triggerversatz, Zeitkorrektur, Zeitversatz, statische Korrektur, Statik, Kanäle umkehren, Kanäle vertauscht, reparieren</translation>
    </message>
    <message>
        <source>delete shot, discard recording</source>
        <translation>Schuss löschen, Aufzeichnung verwerfen, Record löschen</translation>
    </message>
    <message>
        <source>convert, seg2, segy</source>
        <translation>umwandeln, konvertieren, Konverter, seg2, segy, sgy</translation>
    </message>
    <message>
        <source>geophone positions, receivers, source positions, shot points, spacing, spread, layout, elevations, topography, coordinates</source>
        <translation>Geophonpositionen, Geophonabstand, Empfänger, Aufnehmer, Quellpositionen, Schusspunkte, Schusspositionen, Schlagpunkte, Auslage, Aufstellung, Messanordnung, Geländehöhen, Topographie, Topografie, Koordinaten</translation>
    </message>
    <message>
        <source>gps, gnss, total station, easting northing, longitude latitude, utm, topography, elevations, geophone positions</source>
        <translation>GPS, GNSS, Tachymeter, Einmessung, Vermessung, Ostwert Nordwert, Rechtswert Hochwert, Länge Breite, UTM, Gauß-Krüger, Topographie, Topografie, Geländehöhen, Geophonpositionen</translation>
    </message>
    <message>
        <source>map position, easting northing, utm, epsg, georeference, reference system</source>
        <translation>Ostwert Nordwert, Rechtswert Hochwert, UTM, Gauß-Krüger, EPSG, Georeferenz, georeferenzieren, Bezugssystem, Koordinatensystem, Lageplan</translation>
    </message>
    <message>
        <source>band pass, bandpass, low pass, high pass, lowpass, highpass, frequencies</source>
        <translation>Bandpass, Tiefpass, Hochpass, Butterworth, Frequenzfilter, Frequenzband, Grenzfrequenz, Eckfrequenz</translation>
    </message>
    <message>
        <source>mains, power line noise, hertz</source>
        <translation>Netzfrequenz, Stromleitung, Hochspannungsleitung, Bahnstrom, Notchfilter, Bandsperre, Hertz</translation>
    </message>
    <message>
        <source>f-k, fk, fan filter, dip filter, ground roll, surface waves</source>
        <translation>f-k, fk, f-k-Filter, Fächerfilter, Dip-Filter, Neigungsfilter, Oberflächenwellen, Bodenrollen, Ground Roll, Luftschall</translation>
    </message>
    <message>
        <source>balance, normalise, normalize, level</source>
        <translation>angleichen, normieren, normalisieren, Amplitudenausgleich, Amplitudenregelung, Pegel, Gain</translation>
    </message>
    <message>
        <source>denoise, suppress noise</source>
        <translation>entrauschen, Rauschen unterdrücken, Störungen, Rauschfilter, Signal-Rausch-Verhältnis</translation>
    </message>
    <message>
        <source>reduction velocity, reduced travel times, linear moveout, flatten</source>
        <translation>Reduktionsgeschwindigkeit, Reduziergeschwindigkeit, reduzierte Laufzeit, reduzierte Laufzeiten, linearer Moveout, LMO, einebnen, waagrecht</translation>
    </message>
    <message>
        <source>reduction velocity, reducing velocity, linear moveout, flatten</source>
        <translation>Reduktionsgeschwindigkeit, Reduziergeschwindigkeit, reduzierte Laufzeit, linearer Moveout, LMO, einebnen</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, amplify</source>
        <translation>tn, t^n, Amplitudenausgleich, Amplitudenrückgewinnung, Divergenzkorrektur, sphärische Divergenz, Abklingen, Gain, Tiefenverstärkung</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, power</source>
        <translation>tn, t^n, Amplitudenausgleich, Amplitudenrückgewinnung, Divergenzkorrektur, sphärische Divergenz, Gain</translation>
    </message>
    <message>
        <source>sort traces, common shot, distance</source>
        <translation>Spuren sortieren, Sortierung, Reihenfolge, Schussgather, Entfernung, Schussabstand</translation>
    </message>
    <message>
        <source>sort traces, distance</source>
        <translation>sortieren, Sortierung, Reihenfolge, Schussabstand, Betrag</translation>
    </message>
    <message>
        <source>dead, bad, noisy traces, disable, delete, zero</source>
        <translation>tote, schlechte, verrauschte Spuren, deaktivieren, löschen, nullen, ausblenden, Kill, unbrauchbar</translation>
    </message>
    <message>
        <source>flip, invert, sign, phase</source>
        <translation>umpolen, verpolt, invertieren, spiegeln, Phase, negativ</translation>
    </message>
    <message>
        <source>silence, blank, cut noise</source>
        <translation>muten, Mute, ausblenden, abschneiden, Rauschen entfernen, nullen, Luftschall</translation>
    </message>
    <message>
        <source>gain, scale, louder</source>
        <translation>Gain, Verstärkung, skalieren, lauter, Amplitude</translation>
    </message>
    <message>
        <source>gain, scale, quieter</source>
        <translation>Gain, Dämpfung, dämpfen, skalieren, leiser, Amplitude</translation>
    </message>
    <message>
        <source>shear waves, SH, opposite blows, hammer, subtract, stack</source>
        <translation>Scherwellen, S-Wellen, SH, gegensinnige Schläge, Gegenschlag, Hammerschlag, links rechts, subtrahieren, addieren, stapeln, vergleichen</translation>
    </message>
    <message>
        <source>gathers, record section, plot</source>
        <translation>Seismogramme, Seismogrammmontage, Montage, Gather, Schussgather, plotten, Übersicht</translation>
    </message>
    <message>
        <source>measure, slope</source>
        <translation>messen, Steigung, Messwerkzeug, Laufzeitgerade</translation>
    </message>
    <message>
        <source>loupe, lens</source>
        <translation>Vergrößerungsglas, Linse, zoomen</translation>
    </message>
    <message>
        <source>zoom all, fit, whole shot</source>
        <translation>Zoom zurücksetzen, einpassen, ganzer Schuss, Gesamtansicht, Vollansicht</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, onsets, automatic picking, picker</source>
        <translation>Ersteinsätze, erste Einsätze, Erstankünfte, First Breaks, automatisch picken, automatische Picks, Picker, Autopicker, Laufzeiten bestimmen</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, by hand, manual picking</source>
        <translation>Ersteinsätze, erste Einsätze, Erstankünfte, First Breaks, von Hand, manuell, Laufzeiten ablesen</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, load picks, time picks</source>
        <translation>Ersteinsätze, erste Einsätze, Erstankünfte, First Breaks, Picks laden, Picks einlesen, Zeiten, sgt, otte</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, save picks, time picks</source>
        <translation>Ersteinsätze, erste Einsätze, Erstankünfte, First Breaks, speichern, Zeiten, sgt, otte, pyGIMLi</translation>
    </message>
    <message>
        <source>review, check picks, outliers, bad picks, quality</source>
        <translation>durchsehen, Picks prüfen, kontrollieren, Ausreißer, schlechte Picks, Fehlpicks, unsicher, Qualität</translation>
    </message>
    <message>
        <source>quality control, qc, doctor, bad traces, dead traces, wrong headers</source>
        <translation>Qualitätskontrolle, Datenkontrolle, QC, Messfehler, schlechte Spuren, tote Spuren, falsche Header, Geometriefehler</translation>
    </message>
    <message>
        <source>reciprocal times, reverse shots, trigger errors, quality control, qc</source>
        <translation>reziproke Zeiten, Reziprokzeiten, Totalzeiten, Gegenschuss, Gegenschüsse, Triggerfehler, Qualitätskontrolle, QC</translation>
    </message>
    <message>
        <source>mesh, cell size, discretisation, depth</source>
        <translation>Netz, Mesh, Zellen, Zellgröße, Diskretisierung, Raster, Modelltiefe, Parametrisierung</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model, gradient</source>
        <translation>Startmodell, Anfangsmodell, Ausgangsmodell, Geschwindigkeitsmodell, Gradientenmodell</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model</source>
        <translation>Startmodell, Anfangsmodell, Ausgangsmodell, Geschwindigkeitsmodell, Schichtmodell</translation>
    </message>
    <message>
        <source>wells, drilling, constraints, a priori, soundings</source>
        <translation>Bohrloch, Bohrprofil, Zwangsbedingungen, Randbedingungen, a priori, Vorwissen, Vorinformation, Sondierungen, Rammsondierung, Aufschlüsse, Schurf</translation>
    </message>
    <message>
        <source>invert, calculate, iterations, velocity model, sirt, start inversion</source>
        <translation>invertieren, Inversion rechnen, berechnen, Iterationen, Geschwindigkeitsmodell, Tomografie, Laufzeittomographie, Refraktionstomographie, SIRT</translation>
    </message>
    <message>
        <source>history, earlier results, compare models</source>
        <translation>Verlauf, Historie, frühere Ergebnisse, Modelle vergleichen, Modellvergleich</translation>
    </message>
    <message>
        <source>chi-square, chi2, misfit, quality of the inversion</source>
        <translation>Chi-Quadrat, chi2, Misfit, Abweichung, Güte der Inversion, Qualitätskontrolle, Ausreißer</translation>
    </message>
    <message>
        <source>misfit, rms, errors of the fit, measured and computed times</source>
        <translation>Abweichung, Misfit, RMS, Restfehler, Anpassungsfehler, Datenanpassung, gemessene und berechnete Zeiten</translation>
    </message>
    <message>
        <source>uncertainty, ensemble, standard deviation, confidence</source>
        <translation>Unsicherheit, Ungenauigkeit, Ensemble, Standardabweichung, Vertrauensbereich, Konfidenz, Fehlerabschätzung</translation>
    </message>
    <message>
        <source>checkerboard, chequerboard, spike test, sensitivity</source>
        <translation>Schachbrett, Schachbretttest, Checkerboard, Spike-Test, Auflösungsvermögen, Empfindlichkeit, Sensitivität</translation>
    </message>
    <message>
        <source>smoother model, average</source>
        <translation>glatteres Modell, weicher, mitteln, Mittelwert, Glättungsfilter</translation>
    </message>
    <message>
        <source>refractors, layered model, plus minus, delay times, intercept times, grm, time depth</source>
        <translation>Refraktoren, Refraktorhorizont, Schichtmodell, Schichtenmodell, Plus-Minus, Hagedoorn, Verzögerungszeiten, Interceptzeiten, Knickpunkt, GRM, Palmer, Tiefenzeiten</translation>
    </message>
    <message>
        <source>shear modulus, Young, elastic, stiffness</source>
        <translation>Schubmodul, Schermodul, Elastizitätsmodul, E-Modul, Kompressionsmodul, Young, Querdehnzahl, elastisch, Steifigkeit, Dichte, Gardner</translation>
    </message>
    <message>
        <source>ray paths, ray tracing</source>
        <translation>Strahlenwege, Strahlwege, Strahlverlauf, Laufwege, Raytracing</translation>
    </message>
    <message>
        <source>ray coverage, hit count</source>
        <translation>Abdeckung, Überdeckung, Strahlenüberdeckung, Strahldichte, Strahlendichte, Trefferzahl</translation>
    </message>
    <message>
        <source>isolines, isovalues</source>
        <translation>Konturen, Konturlinien, Höhenlinien, Isotachen, Isowerte</translation>
    </message>
    <message>
        <source>contour, groundwater, bedrock</source>
        <translation>Kontur, Isotache, Grundwasser, Fels, Felsoberkante, Festgestein</translation>
    </message>
    <message>
        <source>labels, lithology, geology, polygons, legend</source>
        <translation>Beschriftung, Kommentare, Lithologie, Geologie, Deutung, Interpretation, Polygone, Legende, zeichnen</translation>
    </message>
    <message>
        <source>velocity depth function, 1-D, 1d, log</source>
        <translation>Geschwindigkeits-Tiefen-Funktion, Tiefenfunktion, Vertikalprofil, 1-D, 1d, Log, virtuelle Bohrung</translation>
    </message>
    <message>
        <source>3-D, 3d, fence diagram, crossing lines</source>
        <translation>3-D, 3d, Fence-Diagramm, Kulissendiagramm, räumlich, kreuzende Profile, Profilkreuzung, Lageplan</translation>
    </message>
    <message>
        <source>colour scale, colors, colormap, range, legend</source>
        <translation>Farbskala, Farbtabelle, Farbverlauf, Farbpalette, Colormap, Wertebereich, Legende</translation>
    </message>
    <message>
        <source>colour bar, color bar, legend</source>
        <translation>Farbbalken, Farbleiste, Colorbar, Legende</translation>
    </message>
    <message>
        <source>template, look, appearance</source>
        <translation>Vorlage, Formatvorlage, Aussehen, Darstellung, Layout</translation>
    </message>
    <message>
        <source>plot, printer, page, a3, a4</source>
        <translation>ausdrucken, Drucker, Plotter, plotten, Seite, Blatt, maßstäblich, A3, A4</translation>
    </message>
    <message>
        <source>figures, png, svg, save picture</source>
        <translation>Abbildungen, Grafiken, PNG, SVG, Bild exportieren</translation>
    </message>
    <message>
        <source>document</source>
        <translation>Dokument, Messbericht, Gutachten</translation>
    </message>
    <message>
        <source>word processor, editable report</source>
        <translation>Textverarbeitung, bearbeitbarer Bericht, Word, Writer, LibreOffice, Messbericht, Gutachten</translation>
    </message>
    <message>
        <source>html, interactive report</source>
        <translation>HTML, interaktiver Bericht, Internetseite, Website</translation>
    </message>
    <message>
        <source>html, several lines, report</source>
        <translation>HTML, mehrere Messlinien, mehrere Profile, Übersicht, Bericht, Internetseite</translation>
    </message>
    <message>
        <source>cad, contours</source>
        <translation>AutoCAD, Konturen, Konturlinien, dwg, Profilzeichnung</translation>
    </message>
    <message>
        <source>gis, shape file, gpkg</source>
        <translation>GIS, QGIS, ArcGIS, Shapefile, Shape-Datei, gpkg, Geodaten</translation>
    </message>
    <message>
        <source>gis, 3-D, 3d, georeferenced</source>
        <translation>GIS, QGIS, ParaView, 3-D, 3d, georeferenziert, Koordinaten</translation>
    </message>
    <message>
        <source>xyz, ascii, velocities</source>
        <translation>xyz, ASCII, Geschwindigkeiten, txt, Tabelle</translation>
    </message>
    <message>
        <source>ascii, velocities, section</source>
        <translation>ASCII, Geschwindigkeiten, Schnitt, txt, Tabelle, Surfer</translation>
    </message>
    <message>
        <source>preferences, feet, metres, units, memory, undo</source>
        <translation>Optionen, Voreinstellungen, Konfiguration, Fuß, Feet, Meter, Einheiten, Arbeitsspeicher, rückgängig</translation>
    </message>
    <message>
        <source>manual, handbook, documentation, help</source>
        <translation>Handbuch, Anleitung, Bedienungsanleitung, Gebrauchsanweisung, Dokumentation, Hilfe, Manual</translation>
    </message>
    <message>
        <source>manual, handbook, documentation</source>
        <translation>Onlinehandbuch, Anleitung, Bedienungsanleitung, Dokumentation, Manual</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>talvesk::AnnotationsDialog</name>
    <message>
        <source>Annotations</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground that are drawn on the section. They can be drawn with the mouse as well: Draw, above the section.</source>
        <translation>Texte, Linien und Flächen des Untergrunds, die auf den Schnitt gezeichnet werden. Sie lassen sich auch mit der Maus zeichnen: „Zeichnen“ über dem Schnitt.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Add a text in the middle of the section</source>
        <translation>Fügt einen Text in der Mitte des Schnitts hinzu</translation>
    </message>
    <message>
        <source>Add &amp;text</source>
        <translation>Te&amp;xt hinzufügen</translation>
    </message>
    <message>
        <source>Add a line in the middle of the section</source>
        <translation>Fügt eine Linie in der Mitte des Schnitts hinzu</translation>
    </message>
    <message>
        <source>Add &amp;line</source>
        <translation>&amp;Linie hinzufügen</translation>
    </message>
    <message>
        <source>Add an area in the middle of the section</source>
        <translation>Fügt eine Fläche in der Mitte des Schnitts hinzu</translation>
    </message>
    <message>
        <source>Add &amp;polygon</source>
        <translation>&amp;Polygon hinzufügen</translation>
    </message>
    <message>
        <source>Remove the annotation that is selected</source>
        <translation>Entfernt die ausgewählte Anmerkung</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Let those after it be drawn over it</source>
        <translation>Die folgenden Anmerkungen werden über diese gezeichnet</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Points of the annotation that is selected</source>
        <translation>Punkte der ausgewählten Anmerkung</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Entfernung [m]</translation>
    </message>
    <message>
        <source>Elevation [m]</source>
        <translation>Höhe [m]</translation>
    </message>
    <message>
        <source>Add a point behind the one that is selected</source>
        <translation>Fügt hinter dem ausgewählten Punkt einen weiteren hinzu</translation>
    </message>
    <message>
        <source>Add p&amp;oint</source>
        <translation>P&amp;unkt hinzufügen</translation>
    </message>
    <message>
        <source>Remove the point that is selected</source>
        <translation>Entfernt den ausgewählten Punkt</translation>
    </message>
    <message>
        <source>Remove po&amp;int</source>
        <translation>Punkt ent&amp;fernen</translation>
    </message>
    <message>
        <source>Annotations: %1.</source>
        <translation>Anmerkungen: %1.</translation>
    </message>
    <message>
        <source>Discard what was changed?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
</context>
<context>
    <name>talvesk::BlowPairDialog</name>
    <message>
        <source>Two shots</source>
        <translation>Zwei Schüsse</translation>
    </message>
    <message>
        <source>&amp;First:</source>
        <translation>&amp;Erster:</translation>
    </message>
    <message>
        <source>The recording that time and places are counted by</source>
        <translation>Die Aufzeichnung, nach der Zeiten und Stellen gezählt werden</translation>
    </message>
    <message>
        <source>S&amp;econd:</source>
        <translation>&amp;Zweiter:</translation>
    </message>
    <message>
        <source>The recording that is laid over it; the nearest is proposed</source>
        <translation>Die Aufzeichnung, die darübergelegt wird; vorgeschlagen wird die nächstgelegene</translation>
    </message>
    <message>
        <source>The traces of both over each other</source>
        <translation>Die Spuren beider übereinander</translation>
    </message>
    <message>
        <source>&amp;Overlaid</source>
        <translation>Über&amp;lagert</translation>
    </message>
    <message>
        <source>First less second: of blows of opposite sense it enhances S waves</source>
        <translation>Erster minus zweiter: Bei Schlägen entgegengesetzter Richtung verstärkt das S-Wellen</translation>
    </message>
    <message>
        <source>&amp;Difference</source>
        <translation>&amp;Differenz</translation>
    </message>
    <message>
        <source>Of blows of opposite sense it enhances P waves</source>
        <translation>Bei Schlägen entgegengesetzter Richtung verstärkt das P-Wellen</translation>
    </message>
    <message>
        <source>S&amp;um</source>
        <translation>&amp;Summe</translation>
    </message>
    <message>
        <source>The second is made as strong as the first</source>
        <translation>Der zweite wird so stark gemacht wie der erste</translation>
    </message>
    <message>
        <source>E&amp;qual strength</source>
        <translation>&amp;Gleiche Stärke</translation>
    </message>
    <message>
        <source>All traces by one measure; else each pair of traces by the larger of both</source>
        <translation>Alle Spuren nach einem Maß; sonst jedes Spurenpaar nach der größeren von beiden</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>Wahre &amp;Amplituden</translation>
    </message>
    <message>
        <source>The filtered copies of traces that have one</source>
        <translation>Die gefilterten Kopien der Spuren, die eine haben</translation>
    </message>
    <message>
        <source>Filtered co&amp;pies</source>
        <translation>Gefilterte &amp;Kopien</translation>
    </message>
    <message>
        <source>Mark the first breaks of both, each in its colour</source>
        <translation>Die Ersteinsätze beider markieren, jeweils in ihrer Farbe</translation>
    </message>
    <message>
        <source>Pic&amp;ks</source>
        <translation>&amp;Picks</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Verstärkung:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Ausschlag des größten Werts, in Spurabständen</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>Zeiten &amp;bis:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Wo die Zeitachse endet; automatisch: beim Anderthalbfachen der Zeit des letzten Picks</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>What is added or saved</source>
        <translation>Was hinzugefügt oder gespeichert wird</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>As a shot of the survey, without picks, at the place of the first; Undo takes it away</source>
        <translation>Als Schuss der Messung, ohne Picks, an der Stelle des ersten; „Rückgängig“ nimmt ihn weg</translation>
    </message>
    <message>
        <source>Add to su&amp;rvey</source>
        <translation>Zur &amp;Messung hinzufügen</translation>
    </message>
    <message>
        <source>As SEG-2 or SEG-Y</source>
        <translation>Als SEG-2 oder SEG-Y</translation>
    </message>
    <message>
        <source>Save s&amp;hot file ...</source>
        <translation>S&amp;chussdatei speichern ...</translation>
    </message>
    <message>
        <source>What is shown, as PNG, SVG or PDF</source>
        <translation>Was gezeigt wird, als PNG, SVG oder PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>B&amp;ild speichern ...</translation>
    </message>
    <message>
        <source>Traces of both shots, their difference and their sum</source>
        <translation>Spuren beider Schüsse, ihre Differenz und ihre Summe</translation>
    </message>
    <message>
        <source>one sense</source>
        <comment>of a pair of blows</comment>
        <translation>eine Schlagrichtung</translation>
    </message>
    <message>
        <source>other sense</source>
        <comment>of a pair of blows</comment>
        <translation>andere Schlagrichtung</translation>
    </message>
    <message>
        <source>at %1 %2</source>
        <comment>place, unit</comment>
        <translation>bei %1 %2</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <translation>Schuss %1: %2</translation>
    </message>
    <message>
        <source>There are no two recordings to be compared.</source>
        <translation>Es gibt keine zwei Aufzeichnungen, die verglichen werden könnten.</translation>
    </message>
    <message>
        <source>Not to be added, only saved as a shot file: %1</source>
        <translation>Lässt sich nicht hinzufügen, nur als Schussdatei speichern: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignDialog</name>
    <message>
        <source>Campaign page</source>
        <translation>Kampagnenseite</translation>
    </message>
    <message>
        <source>A web page of every project, and one on all of them: a table, the sections in small by one scale of colours, and a map. The projects stay as they are.</source>
        <translation>Eine Webseite für jedes Projekt und eine über alle: eine Tabelle, die Schnitte im Kleinen mit einer gemeinsamen Farbskala und eine Karte. Die Projekte bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Projects:</source>
        <translation>&amp;Projekte:</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>Projekte &amp;hinzufügen ...</translation>
    </message>
    <message>
        <source>Take the projects that are selected off the list; their files stay</source>
        <translation>Nimmt die ausgewählten Projekte aus der Liste; ihre Dateien bleiben</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Auftraggeber:</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>A&amp;uthor:</source>
        <translation>&amp;Bearbeiter:</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignPage</name>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>RMS-Abweichung [ms]</translation>
    </message>
    <message>
        <source>RMS misfit [%]</source>
        <translation>RMS-Abweichung [%]</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi-Quadrat</translation>
    </message>
    <message>
        <source>Length covered [%1]</source>
        <translation>Erfasste Länge [%1]</translation>
    </message>
    <message>
        <source>Depth reached [%1]</source>
        <translation>Erreichte Tiefe [%1]</translation>
    </message>
    <message>
        <source>Cells with rays [%]</source>
        <translation>Zellen mit Strahlen [%]</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geophone</translation>
    </message>
    <message>
        <source>Not inverted yet</source>
        <translation>Noch nicht invertiert</translation>
    </message>
    <message>
        <source>The misfit of the section is not known</source>
        <translation>Die Abweichung des Schnitts ist nicht bekannt</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion</source>
        <translation>Picks seit der Inversion geändert</translation>
    </message>
    <message>
        <source>Smoothed after the inversion</source>
        <translation>Nach der Inversion geglättet</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Auftraggeber</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Bearbeiter</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Lines: %1; with a section: %2; failed: %3</source>
        <translation>Messlinien: %1; mit Schnitt: %2; fehlgeschlagen: %3</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Messlinien</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Geschwindigkeit [%1]</translation>
    </message>
    <message>
        <source>Small sections are stretched to fill their place; their colours are the same for all lines. Misfits are those of the sections shown, along fresh rays.</source>
        <translation>Kleine Schnitte sind auf ihren Platz gestreckt; die Farben gelten für alle Messlinien gleich. Abweichungen sind die der gezeigten Schnitte, entlang neuer Strahlen.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Messlinie</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Verwendete Picks</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Invertiert</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Failed:</source>
        <translation>Fehlgeschlagen:</translation>
    </message>
    <message>
        <source>Velocity section of %1</source>
        <translation>Geschwindigkeitsschnitt von %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Map of the lines</source>
        <translation>Karte der Messlinien</translation>
    </message>
    <message>
        <source>Numbers are those of the table; each stands at the first geophone of its line.</source>
        <translation>Die Nummern sind die der Tabelle; jede steht am ersten Geophon ihrer Messlinie.</translation>
    </message>
    <message>
        <source>Lines whose position is not known: %1</source>
        <translation>Messlinien, deren Lage nicht bekannt ist: %1</translation>
    </message>
    <message>
        <source>Campaign</source>
        <translation>Messkampagne</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Zum Inhalt springen</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
</context>
<context>
    <name>talvesk::CertaintyDialog</name>
    <message>
        <source>Certainty</source>
        <translation>Zuverlässigkeit</translation>
    </message>
    <message>
        <source>Many sections explain the picks as well as the one that is shown. Each member is fitted to picks that are moved by their errors, from another model that explains them. Where the members agree the section is sure.</source>
        <translation>Viele Schnitte erklären die Picks ebenso gut wie der gezeigte. Jedes Mitglied wird an Picks angepasst, die um ihre Fehler verschoben sind, ausgehend von einem anderen Modell, das sie erklärt. Wo die Mitglieder übereinstimmen, ist der Schnitt zuverlässig.</translation>
    </message>
    <message>
        <source>&amp;Members:</source>
        <translation>&amp;Mitglieder:</translation>
    </message>
    <message>
        <source>How many sections are compared. More of them tell the spread more exactly and take longer.</source>
        <translation>Wie viele Schnitte verglichen werden. Mehr davon geben die Streuung genauer an und dauern länger.</translation>
    </message>
    <message>
        <source>S&amp;eed:</source>
        <translation>Start&amp;wert:</translation>
    </message>
    <message>
        <source>The number that the errors of all members come from. The same survey and seed give the same members.</source>
        <translation>Die Zahl, aus der die Fehler aller Mitglieder erzeugt werden. Dieselbe Messung mit demselben Startwert ergibt dieselben Mitglieder.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Models are being tried.</source>
        <translation>Modelle werden probiert.</translation>
    </message>
    <message>
        <source>Models are being tried: %1 of %2.</source>
        <translation>Modelle werden probiert: %1 von %2.</translation>
    </message>
    <message>
        <source>%1 of %2 members are done; %3 left out.</source>
        <translation>%1 von %2 Mitgliedern sind fertig; %3 weggelassen.</translation>
    </message>
    <message>
        <source>How sure the section is stays unknown.</source>
        <translation>Wie zuverlässig der Schnitt ist, bleibt unbekannt.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Fortsetzen</translation>
    </message>
    <message numerus="yes">
        <source>%n member(s) of this seed are done; Continue goes on with more.</source>
        <translation>
            <numerusform>%n Mitglied mit diesem Startwert ist fertig; „Fortsetzen“ rechnet weitere.</numerusform>
            <numerusform>%n Mitglieder mit diesem Startwert sind fertig; „Fortsetzen“ rechnet weitere.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped with %n member(s); Continue goes on from there.</source>
        <translation>
            <numerusform>Mit %n Mitglied angehalten; „Fortsetzen“ macht dort weiter.</numerusform>
            <numerusform>Mit %n Mitgliedern angehalten; „Fortsetzen“ macht dort weiter.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped before the first member was done; Continue goes on.</source>
        <translation>Angehalten, bevor das erste Mitglied fertig war; „Fortsetzen“ macht weiter.</translation>
    </message>
</context>
<context>
    <name>talvesk::CheckDialog</name>
    <message>
        <source>Check recordings</source>
        <translation>Aufzeichnungen prüfen</translation>
    </message>
    <message>
        <source>The recordings are being looked at...</source>
        <translation>Die Aufzeichnungen werden durchgesehen...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>What is doubtful</source>
        <translation>Was zweifelhaft ist</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Zweifelhaft</translation>
    </message>
    <message>
        <source>Sure</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Vorschlag</translation>
    </message>
    <message>
        <source>What is doubtful, and why</source>
        <translation>Was zweifelhaft ist, und warum</translation>
    </message>
    <message>
        <source>The figure of the proposal, to be altered</source>
        <translation>Der Wert des Vorschlags, hier änderbar</translation>
    </message>
    <message>
        <source>The shot comes into view in the window; a double click on its line does the same</source>
        <translation>Bringt den Schuss im Fenster ins Bild; ein Doppelklick auf seine Zeile tut dasselbe</translation>
    </message>
    <message>
        <source>&amp;Show traces</source>
        <translation>Spuren an&amp;zeigen</translation>
    </message>
    <message>
        <source>The record was &amp;late by:</source>
        <translation>Aufzeichnung &amp;verspätet um:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Muted before:</source>
        <translation>Stumm &amp;vor:</translation>
    </message>
    <message>
        <source>The shot is &amp;at:</source>
        <translation>Der Schuss liegt &amp;bei:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>share</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Carry &amp;out</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Entfernung (m)</translation>
    </message>
    <message>
        <source>Time, ms</source>
        <translation>Zeit, ms</translation>
    </message>
    <message>
        <source>There are no times to draw.</source>
        <translation>Es gibt keine Zeiten zu zeichnen.</translation>
    </message>
    <message>
        <source>Nothing is doubtful.</source>
        <translation>Nichts ist zweifelhaft.</translation>
    </message>
    <message>
        <source>Nothing was found so far.</source>
        <translation>Bisher wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>Carried out when it is ticked; the space bar does it, too</source>
        <translation>Wird ausgeführt, wenn angekreuzt; die Leertaste kreuzt ebenfalls an</translation>
    </message>
    <message>
        <source>all</source>
        <comment>shots</comment>
        <translation>alle</translation>
    </message>
    <message>
        <source>all</source>
        <comment>traces</comment>
        <translation>alle</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>The check was stopped: not all shots were looked at.</source>
        <translation>Die Prüfung wurde angehalten: Nicht alle Schüsse wurden durchgesehen.</translation>
    </message>
    <message>
        <source>Findings: %1, with a proposal: %2, ticked to be carried out: %3. What was recorded is kept, and Undo takes everything back.</source>
        <translation>Befunde: %1, mit Vorschlag: %2, zum Ausführen angekreuzt: %3. Das Aufgezeichnete bleibt erhalten, und Rückgängig nimmt alles zurück.</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorField</name>
    <message>
        <source>Choose another colour</source>
        <translation>Andere Farbe wählen</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorPaletteWidget</name>
    <message>
        <source>Handles of the gradient</source>
        <translation>Regler des Farbverlaufs</translation>
    </message>
    <message>
        <source>Drag a handle; double-click it for its colour.
Keys: Left and Right move the selected handle (with Ctrl by one), Up and Down select another, Space asks for its colour, Insert adds and Delete removes one.</source>
        <translation>Einen Regler ziehen; Doppelklick wählt seine Farbe.
Tasten: Links und Rechts verschieben den ausgewählten Regler (mit Strg um eins), Auf und Ab wählen einen anderen aus, die Leertaste fragt nach seiner Farbe, Einfg fügt einen hinzu und Entf entfernt einen.</translation>
    </message>
    <message>
        <source>Number of the handle that the value, the colour and Delete are for</source>
        <translation>Nummer des Reglers, für den Wert, Farbe und Löschen gelten</translation>
    </message>
    <message>
        <source>Where on the scale the selected handle stands</source>
        <translation>Stelle des ausgewählten Reglers auf der Skala</translation>
    </message>
    <message>
        <source>Value shown in the first colour, and below it</source>
        <translation>Wert, der wie alle kleineren in der ersten Farbe erscheint</translation>
    </message>
    <message>
        <source>Value shown in the last colour, and above it</source>
        <translation>Wert, der wie alle größeren in der letzten Farbe erscheint</translation>
    </message>
    <message>
        <source>Add Slider</source>
        <translation>Regler hinzufügen</translation>
    </message>
    <message>
        <source>Add a handle between the selected one and the next, in the colour of that place</source>
        <translation>Fügt zwischen dem ausgewählten und dem nächsten Regler einen weiteren in der Farbe dieser Stelle ein</translation>
    </message>
    <message>
        <source>Set Selected Slider Color</source>
        <translation>Farbe des ausgewählten Reglers</translation>
    </message>
    <message>
        <source>Choose the handle&apos;s colour</source>
        <translation>Wählt die Farbe des Reglers</translation>
    </message>
    <message>
        <source>Delete Selected Slider</source>
        <translation>Ausgewählten Regler löschen</translation>
    </message>
    <message>
        <source>Remove the selected handle; the first and the last stay</source>
        <translation>Entfernt den ausgewählten Regler; der erste und der letzte bleiben</translation>
    </message>
    <message>
        <source>Selected Handle</source>
        <translation>Ausgewählter Regler</translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Wert: </translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>The colours of a built-in palette stay as they are; Edit Palette makes a copy.</source>
        <translation>Die Farben einer mitgelieferten Palette sind fest; „Palette bearbeiten“ legt eine Kopie an.</translation>
    </message>
    <message>
        <source>Cannot move handle at mimimum value.</source>
        <translation>Der Regler am kleinsten Wert lässt sich nicht verschieben.</translation>
    </message>
    <message>
        <source>Cannot move handle at maximum value.</source>
        <translation>Der Regler am größten Wert lässt sich nicht verschieben.</translation>
    </message>
    <message>
        <source>There is no room for another handle here.</source>
        <translation>Hier ist kein Platz für einen weiteren Regler.</translation>
    </message>
    <message>
        <source>The first and the last handle stay.</source>
        <translation>Der erste und der letzte Regler bleiben.</translation>
    </message>
    <message>
        <source>Colour of the selected handle</source>
        <translation>Farbe des ausgewählten Reglers</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> von %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandReasons</name>
    <message>
        <source>There are no shots yet.</source>
        <translation>Es gibt noch keine Schüsse.</translation>
    </message>
    <message>
        <source>There are no recordings yet.</source>
        <translation>Es gibt noch keine Aufzeichnungen.</translation>
    </message>
    <message>
        <source>No shot is in view.</source>
        <translation>Es wird kein Schuss gezeigt.</translation>
    </message>
    <message>
        <source>No shot with traces is in view.</source>
        <translation>Es wird kein Schuss mit Spuren gezeigt.</translation>
    </message>
    <message>
        <source>Nothing is mended.</source>
        <translation>Nichts ist korrigiert.</translation>
    </message>
    <message>
        <source>The shot in view has no filtered copy.</source>
        <translation>Der gezeigte Schuss hat keine gefilterte Kopie.</translation>
    </message>
    <message>
        <source>No recording begins before its shot.</source>
        <translation>Keine Aufzeichnung beginnt vor ihrem Schuss.</translation>
    </message>
    <message>
        <source>The selected traces have no picks.</source>
        <translation>Die ausgewählten Spuren haben keine Picks.</translation>
    </message>
    <message>
        <source>No pick of the selected traces waits for confirmation.</source>
        <translation>Kein Pick der ausgewählten Spuren wartet auf Bestätigung.</translation>
    </message>
    <message>
        <source>There are no shots yet, or no picks are shown.</source>
        <translation>Es gibt noch keine Schüsse, oder es werden keine Picks gezeigt.</translation>
    </message>
    <message>
        <source>There is no earlier view.</source>
        <translation>Es gibt keine frühere Ansicht.</translation>
    </message>
    <message>
        <source>There is no later view.</source>
        <translation>Es gibt keine spätere Ansicht.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>There is nothing to do again.</source>
        <translation>Es gibt nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>There are no geophones and no shots yet.</source>
        <translation>Es gibt noch keine Geophone und keine Schüsse.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Es gibt nichts zu speichern.</translation>
    </message>
    <message>
        <source>There is no grid yet.</source>
        <translation>Es gibt noch kein Gitter.</translation>
    </message>
    <message>
        <source>There is no inversion yet.</source>
        <translation>Es gibt noch keine Inversion.</translation>
    </message>
    <message>
        <source>There is no layered profile yet.</source>
        <translation>Es gibt noch kein Schichtprofil.</translation>
    </message>
    <message>
        <source>Nothing is known of the ground under the grid.</source>
        <translation>Über den Untergrund unter dem Gitter ist nichts bekannt.</translation>
    </message>
    <message>
        <source>Nothing is drawn on the section yet.</source>
        <translation>Auf dem Schnitt ist noch nichts eingezeichnet.</translation>
    </message>
    <message>
        <source>There is no section yet.</source>
        <translation>Es gibt noch keinen Schnitt.</translation>
    </message>
    <message>
        <source>There is no line of geophones yet.</source>
        <translation>Es gibt noch keine Geophonlinie.</translation>
    </message>
    <message>
        <source>There is no grid under a line of geophones yet.</source>
        <translation>Es gibt noch kein Gitter unter einer Geophonlinie.</translation>
    </message>
    <message>
        <source>There is nothing to make pictures of yet.</source>
        <translation>Es gibt noch nichts, wovon Bilder erstellt werden könnten.</translation>
    </message>
    <message>
        <source>How certain the section is has not been computed.</source>
        <translation>Die Zuverlässigkeit des Schnitts wurde nicht berechnet.</translation>
    </message>
    <message>
        <source>It cannot work yet.</source>
        <translation>Das geht noch nicht.</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandSearchDialog</name>
    <message>
        <source>Find Command</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>Wörter des Befehls</translation>
    </message>
    <message>
        <source>Type words of a command</source>
        <translation>Wörter eines Befehls eingeben</translation>
    </message>
    <message>
        <source>Commands found</source>
        <translation>Gefundene Befehle</translation>
    </message>
    <message>
        <source>No command has these words.</source>
        <translation>Kein Befehl enthält diese Wörter.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>why a command cannot work, its menu</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>nicht jetzt: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareLayersDialog</name>
    <message>
        <source>Compare layers with the section</source>
        <translation>Schichten mit dem Schnitt vergleichen</translation>
    </message>
    <message>
        <source>&amp;Refractor:</source>
        <translation>&amp;Refraktor:</translation>
    </message>
    <message>
        <source>The layer that begins at the refractor</source>
        <translation>Die Schicht, die am Refraktor beginnt</translation>
    </message>
    <message>
        <source>In the &amp;section:</source>
        <translation>Im &amp;Schnitt:</translation>
    </message>
    <message>
        <source>What stands for the refractor in the section: the shallowest place where a velocity is reached, or where the logarithm of velocity grows most with depth. Of two refractors the steepest gradient is looked for on their own sides of the middle between both.</source>
        <translation>Was im Schnitt für den Refraktor steht: die flachste Stelle, an der eine Geschwindigkeit erreicht wird, oder die, an der der Logarithmus der Geschwindigkeit mit der Tiefe am stärksten wächst. Bei zwei Refraktoren wird der steilste Gradient jeweils auf der eigenen Seite der Mitte zwischen beiden gesucht.</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Steepest gradient</source>
        <translation>Steilster Gradient</translation>
    </message>
    <message>
        <source>Velocity that stands for the refractor</source>
        <translation>Geschwindigkeit, die für den Refraktor steht</translation>
    </message>
    <message>
        <source>Begins with the middle between the velocities of the layers above and below</source>
        <translation>Beginnt mit der Mitte zwischen den Geschwindigkeiten der Schichten darüber und darunter</translation>
    </message>
    <message>
        <source> m/s</source>
        <translation> m/s</translation>
    </message>
    <message>
        <source>Depths of the refractor at the geophones</source>
        <translation>Tiefen des Refraktors an den Geophonen</translation>
    </message>
    <message>
        <source>Depths below the surface; a difference is section less layers</source>
        <translation>Tiefen unter der Oberfläche; eine Differenz ist Schnitt minus Schichten</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Entfernung (m)</translation>
    </message>
    <message>
        <source>Layers (m)</source>
        <translation>Schichten (m)</translation>
    </message>
    <message>
        <source>Section (m)</source>
        <translation>Schnitt (m)</translation>
    </message>
    <message>
        <source>Difference (m)</source>
        <translation>Differenz (m)</translation>
    </message>
    <message>
        <source>Save section and lines as PNG, SVG or PDF</source>
        <translation>Schnitt und Linien als PNG, SVG oder PDF speichern</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>&amp;Bild speichern ...</translation>
    </message>
    <message>
        <source>Save the depths at the geophones as CSV, in metres</source>
        <translation>Die Tiefen an den Geophonen als CSV speichern, in Metern</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>&amp;Tabelle speichern ...</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Schicht %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>No geophone has both depths. Another velocity may be reached below the line.</source>
        <translation>Kein Geophon hat beide Tiefen. Vielleicht wird unter der Messlinie eine andere Geschwindigkeit erreicht.</translation>
    </message>
    <message>
        <source>Section less layers: %1 on average, RMS %2, at %3 of %4 geophones.</source>
        <translation>Schnitt minus Schichten: im Mittel %1, RMS %2, an %3 von %4 Geophonen.</translation>
    </message>
    <message>
        <source>The others lack a depth.</source>
        <translation>Den anderen fehlt eine Tiefe.</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareRunsDialog</name>
    <message>
        <source>Compare inversion runs</source>
        <translation>Inversionsläufe vergleichen</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Rechts:</translation>
    </message>
    <message>
        <source>Save both sections and their difference as PNG, SVG or PDF</source>
        <translation>Beide Schnitte und ihre Differenz als PNG, SVG oder PDF speichern</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Bild &amp;speichern ...</translation>
    </message>
    <message>
        <source>%1 against %2</source>
        <comment>right run, left run</comment>
        <translation>%1 gegen %2</translation>
    </message>
    <message>
        <source>Chi-square %1</source>
        <translation>Chi-Quadrat %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms</source>
        <translation>RMS-Abweichung %1 ms</translation>
    </message>
    <message>
        <source>their computed times differ by %1 ms RMS</source>
        <translation>ihre berechneten Zeiten unterscheiden sich um %1 ms RMS</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>run, remarks</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>by errors of %1</source>
        <translation>mit Fehlern von %1</translation>
    </message>
    <message>
        <source>by other errors, so these do not compare: %1</source>
        <translation>mit verschiedenen Fehlern, daher nicht vergleichbar: %1</translation>
    </message>
    <message>
        <source>of all picks as they are %1 ms</source>
        <translation>mit allen Picks unverändert %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::DepthProfileDialog</name>
    <message>
        <source>Depth profile</source>
        <translation>Tiefenprofil</translation>
    </message>
    <message>
        <source>&amp;Distance:</source>
        <translation>&amp;Entfernung:</translation>
    </message>
    <message>
        <source>Where along the line the profile stands</source>
        <translation>Stelle des Profils entlang der Messlinie</translation>
    </message>
    <message>
        <source>Show the ground below the mouse as it moves over the section</source>
        <translation>Zeigt den Untergrund unter der Maus, während sie sich über den Schnitt bewegt</translation>
    </message>
    <message>
        <source>&amp;Follow the pointer</source>
        <translation>Der &amp;Maus folgen</translation>
    </message>
    <message>
        <source>Save the profile as PNG, SVG or PDF</source>
        <translation>Speichert das Profil als PNG, SVG oder PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Bild &amp;speichern ...</translation>
    </message>
    <message>
        <source>Velocity, gradient and certainty against depth</source>
        <translation>Geschwindigkeit, Gradient und Zuverlässigkeit über der Tiefe</translation>
    </message>
</context>
<context>
    <name>talvesk::DialogSetGeometry</name>
    <message>
        <source>Set survey geometry - Dialog</source>
        <translation>Geometrie der Messung</translation>
    </message>
    <message>
        <source>This survey has no shots yet. Open shot files (Ctrl+O) or import travel times first, or add S-wave pairs on the page Shots.</source>
        <translation>Diese Messung hat noch keine Schüsse. Öffnen Sie zuerst Schussdateien (Strg+O), importieren Sie Laufzeiten oder fügen Sie auf der Seite „Schüsse“ S-Wellen-Paare hinzu.</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geophone</translation>
    </message>
    <message>
        <source>&amp;String:</source>
        <translation>&amp;Auslage:</translation>
    </message>
    <message>
        <source>The geophone string in the table; its geophones are in the order of the channels</source>
        <translation>Die Geophonauslage in der Tabelle; ihre Geophone stehen in der Reihenfolge der Kanäle</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Add a string without geophones</source>
        <translation>Fügt eine Auslage ohne Geophone hinzu</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove the string in the table</source>
        <translation>Entfernt die Auslage in der Tabelle</translation>
    </message>
    <message>
        <source>&amp;Copy from</source>
        <translation>&amp;Kopieren von</translation>
    </message>
    <message>
        <source>Replace the geophones of this string by those of another one</source>
        <translation>Ersetzt die Geophone dieser Auslage durch die einer anderen</translation>
    </message>
    <message>
        <source>&amp;First (m):</source>
        <translation>E&amp;rstes (m):</translation>
    </message>
    <message>
        <source>Distance of the first geophone along the line</source>
        <translation>Entfernung des ersten Geophons entlang der Messlinie</translation>
    </message>
    <message>
        <source>S&amp;pacing (m):</source>
        <translation>A&amp;bstand (m):</translation>
    </message>
    <message>
        <source>Distance from one geophone to the next; negative where the channels run backwards</source>
        <translation>Abstand von einem Geophon zum nächsten; negativ, wenn die Kanäle rückwärts laufen</translation>
    </message>
    <message>
        <source>C&amp;ount:</source>
        <translation>An&amp;zahl:</translation>
    </message>
    <message>
        <source>How many geophones the string gets, as a rule the channels of a shot</source>
        <translation>Wie viele Geophone die Auslage erhält, in der Regel so viele, wie ein Schuss Kanäle hat</translation>
    </message>
    <message>
        <source>A&amp;utofill</source>
        <translation>Aus&amp;füllen</translation>
    </message>
    <message>
        <source>Give the string so many geophones, evenly spaced; elevations that are there stay</source>
        <translation>Gibt der Auslage so viele Geophone in gleichem Abstand; vorhandene Höhen bleiben</translation>
    </message>
    <message>
        <source>Geophones of the string</source>
        <translation>Geophone der Auslage</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down, Insert adds a row. Elevations in italics were not typed and can be interpolated.</source>
        <translation>Tippen Sie oder fügen Sie aus einer Tabellenkalkulation ein. Eingabe geht nach unten, Entf leert Zellen, Strg+D füllt nach unten aus, Einfg fügt eine Zeile ein. Kursive Höhen wurden nicht eingegeben und lassen sich interpolieren.</translation>
    </message>
    <message>
        <source>&amp;Interpolate elevations</source>
        <translation>Höhen &amp;interpolieren</translation>
    </message>
    <message>
        <source>Elevations that were not typed follow a line from typed one to typed one; empty those that shall be interpolated</source>
        <translation>Nicht eingegebene Höhen folgen einer Geraden von einer eingegebenen zur nächsten; leeren Sie die Höhen, die interpoliert werden sollen</translation>
    </message>
    <message>
        <source>&amp;Load Geometry</source>
        <translation>Geometrie &amp;laden</translation>
    </message>
    <message>
        <source>Read x and elevation of the geophones of this string from a text file, in metres</source>
        <translation>Liest x und Höhe der Geophone dieser Auslage aus einer Textdatei, in Metern</translation>
    </message>
    <message>
        <source>Sa&amp;ve Geometry</source>
        <translation>Geometrie &amp;speichern</translation>
    </message>
    <message>
        <source>Write x and elevation of the geophones of this string to a text file, in metres</source>
        <translation>Schreibt x und Höhe der Geophone dieser Auslage in eine Textdatei, in Metern</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down.</source>
        <translation>Tippen Sie oder fügen Sie aus einer Tabellenkalkulation ein. Eingabe geht nach unten, Entf leert Zellen, Strg+D füllt nach unten aus.</translation>
    </message>
    <message>
        <source>Shot in the table</source>
        <translation>Schuss in der Tabelle</translation>
    </message>
    <message>
        <source>Elevations of shots that were not typed are those of the line between the geophones</source>
        <translation>Nicht eingegebene Schusshöhen sind die der Linie zwischen den Geophonen</translation>
    </message>
    <message>
        <source>S-&amp;wave files ...</source>
        <translation>S-&amp;Wellen-Dateien ...</translation>
    </message>
    <message>
        <source>Choose the DX and the SX file that the selected shot is made of</source>
        <translation>Wählt die DX- und die SX-Datei, aus denen der ausgewählte Schuss gebildet wird</translation>
    </message>
    <message>
        <source>Add S-wave &amp;pairs ...</source>
        <translation>S-Wellen-Paare hinzu&amp;fügen ...</translation>
    </message>
    <message>
        <source>Choose DX files and as many SX files; each pair becomes a shot whose traces are DX minus SX</source>
        <translation>Wählt DX-Dateien und ebenso viele SX-Dateien; jedes Paar wird ein Schuss mit den Spuren DX minus SX</translation>
    </message>
    <message>
        <source>&amp;Load Shots Geometry</source>
        <translation>Schussgeometrie &amp;laden</translation>
    </message>
    <message>
        <source>Read x and elevation of all shots from a text file, in metres</source>
        <translation>Liest x und Höhe aller Schüsse aus einer Textdatei, in Metern</translation>
    </message>
    <message>
        <source>Sa&amp;ve Shots Geometry</source>
        <translation>Schussgeometrie &amp;speichern</translation>
    </message>
    <message>
        <source>Write x and elevation of all shots to a text file, in metres</source>
        <translation>Schreibt x und Höhe aller Schüsse in eine Textdatei, in Metern</translation>
    </message>
    <message>
        <source>&amp;To be looked at:</source>
        <translation>Zu &amp;prüfen:</translation>
    </message>
    <message>
        <source>A click shows the geophones or shots that are meant</source>
        <translation>Ein Klick zeigt die betroffenen Geophone oder Schüsse</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Take the last step back (Ctrl+Z)</source>
        <translation>Macht den letzten Schritt rückgängig (Strg+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Do the step again (Ctrl+Shift+Z)</source>
        <translation>Führt den Schritt erneut aus (Strg+Umschalt+Z)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n geophone(s)</source>
        <translation>
            <numerusform>%1: %n Geophon</numerusform>
            <numerusform>%1: %n Geophone</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length in %2.</source>
        <translation>„%1“ ist keine Länge in %2.</translation>
    </message>
    <message>
        <source>They have no geophones then, until another string is added.</source>
        <translation>Sie haben dann keine Geophone, bis eine andere Auslage hinzugefügt wird.</translation>
    </message>
    <message>
        <source>They will use string %1, as it is numbered then.</source>
        <translation>Sie verwenden dann Auslage %1 nach der neuen Nummerierung.</translation>
    </message>
    <message numerus="yes">
        <source>String %1 is used by shot(s) %2. Remove it?</source>
        <translation>
            <numerusform>Auslage %1 wird von Schuss %2 verwendet. Entfernen?</numerusform>
            <numerusform>Auslage %1 wird von den Schüssen %2 verwendet. Entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>All elevations were typed. Empty those that shall be interpolated.</source>
        <translation>Alle Höhen wurden eingegeben. Leeren Sie die Höhen, die interpoliert werden sollen.</translation>
    </message>
    <message>
        <source>Type the elevation of one geophone at least.</source>
        <translation>Geben Sie die Höhe mindestens eines Geophons ein.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) interpolated.</source>
        <translation>
            <numerusform>%n Höhe interpoliert.</numerusform>
            <numerusform>%n Höhen interpoliert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the picks of shot(s) %1</source>
        <translation>
            <numerusform>die Picks von Schuss %1</numerusform>
            <numerusform>die Picks der Schüsse %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The geometry is not complete.</source>
        <translation>Die Geometrie ist nicht vollständig.</translation>
    </message>
    <message>
        <source>The geometry has been edited.</source>
        <translation>Die Geometrie wurde geändert.</translation>
    </message>
    <message>
        <source>Do you want to leave it as it was before?</source>
        <translation>Möchten Sie sie lassen, wie sie vorher war?</translation>
    </message>
    <message>
        <source>Open Geometry</source>
        <translation>Geometrie öffnen</translation>
    </message>
    <message>
        <source>Save Geometry</source>
        <translation>Geometrie speichern</translation>
    </message>
    <message>
        <source>%1 exists.</source>
        <translation>%1 ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>Geophones Geometry (*csv)</source>
        <translation>Geophongeometrie (*csv)</translation>
    </message>
    <message>
        <source>Error Message</source>
        <translation>Fehlermeldung</translation>
    </message>
    <message>
        <source>Invalid geometry file.</source>
        <translation>Ungültige Geometriedatei.</translation>
    </message>
    <message>
        <source>Geophones saved in %1</source>
        <translation>Geophone in %1 gespeichert</translation>
    </message>
    <message>
        <source>CSV format (*.csv)</source>
        <translation>CSV-Format (*.csv)</translation>
    </message>
    <message>
        <source>Invalid geometry file. </source>
        <translation>Ungültige Geometriedatei. </translation>
    </message>
    <message>
        <source>Geophones loaded from %1</source>
        <translation>Geophone aus %1 geladen</translation>
    </message>
    <message>
        <source>Invalid shot file. </source>
        <translation>Ungültige Schussdatei. </translation>
    </message>
    <message>
        <source>Shots saved in %1</source>
        <translation>Schüsse in %1 gespeichert</translation>
    </message>
    <message>
        <source>Shots loaded from %1</source>
        <translation>Schüsse aus %1 geladen</translation>
    </message>
    <message>
        <source>Open DX File of Shot %1</source>
        <translation>DX-Datei von Schuss %1 öffnen</translation>
    </message>
    <message>
        <source>Open SX File of Shot %1</source>
        <translation>SX-Datei von Schuss %1 öffnen</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The files are not taken as an S-wave pair.</source>
        <translation>Die Dateien werden nicht als S-Wellen-Paar angenommen.</translation>
    </message>
    <message>
        <source>Open DX Files</source>
        <translation>DX-Dateien öffnen</translation>
    </message>
    <message>
        <source>Open SX Files</source>
        <translation>SX-Dateien öffnen</translation>
    </message>
    <message>
        <source>There must be as many SX files as DX files.</source>
        <translation>Es müssen ebenso viele SX-Dateien wie DX-Dateien sein.</translation>
    </message>
    <message>
        <source>%1 DX files and %2 SX files were chosen.</source>
        <translation>%1 DX-Dateien und %2 SX-Dateien wurden gewählt.</translation>
    </message>
    <message>
        <source>No shot was added: the files are not taken as S-wave pairs.</source>
        <translation>Es wurde kein Schuss hinzugefügt: Die Dateien werden nicht als S-Wellen-Paare angenommen.</translation>
    </message>
    <message numerus="yes">
        <source>%n S-wave shot(s) added.</source>
        <translation>
            <numerusform>%n S-Wellen-Schuss hinzugefügt.</numerusform>
            <numerusform>%n S-Wellen-Schüsse hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Read with this separator the file has %1 lines of numbers; %2 are needed.</source>
        <translation>Mit diesem Trennzeichen gelesen hat die Datei %1 Zeilen mit Zahlen; %2 werden gebraucht.</translation>
    </message>
    <message>
        <source>Its numbers were cut at their decimal commas: they need points.</source>
        <translation>Die Zahlen wurden am Dezimalkomma abgeschnitten: sie brauchen Punkte.</translation>
    </message>
    <message>
        <source>Elevations from table</source>
        <translation>Höhen aus Tabelle</translation>
    </message>
    <message>
        <source>Give all geophones and shots the elevations of a table of distances and elevations, in metres</source>
        <translation>Gibt allen Geophonen und Schüssen die Höhen einer Tabelle mit Entfernungen und Höhen, in Metern</translation>
    </message>
    <message>
        <source>&amp;Straight from point to point ...</source>
        <translation>&amp;Geradlinig von Punkt zu Punkt ...</translation>
    </message>
    <message>
        <source>Along a s&amp;mooth curve ...</source>
        <translation>Entlang einer glatten &amp;Kurve ...</translation>
    </message>
    <message>
        <source>It was read by the names of its columns.</source>
        <translation>Die Datei wurde nach den Namen ihrer Spalten gelesen.</translation>
    </message>
    <message>
        <source>Open Elevations</source>
        <translation>Höhen öffnen</translation>
    </message>
    <message>
        <source>Tables of distances and elevations (*.csv *.txt *.dat *.xyz *.tsv);;All Files (*)</source>
        <translation>Tabellen mit Entfernungen und Höhen (*.csv *.txt *.dat *.xyz *.tsv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The elevations have not been taken.</source>
        <translation>Die Höhen wurden nicht übernommen.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) taken from the table.</source>
        <translation>
            <numerusform>%n Höhe aus der Tabelle übernommen.</numerusform>
            <numerusform>%n Höhen aus der Tabelle übernommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) lie beyond its ends, %1 to %2, and got the elevation there.</source>
        <translation>
            <numerusform>%n Position liegt jenseits ihrer Enden, %1 bis %2, und hat die dortige Höhe erhalten.</numerusform>
            <numerusform>%n Positionen liegen jenseits ihrer Enden, %1 bis %2, und haben die dortige Höhe erhalten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::DrawingDialog</name>
    <message>
        <source>Lines to be exported</source>
        <translation>Zu exportierende Linien</translation>
    </message>
    <message>
        <source>&amp;Isolines of velocity:</source>
        <translation>&amp;Isolinien der Geschwindigkeit:</translation>
    </message>
    <message>
        <source>Velocities with blanks between them; each becomes lines through the section</source>
        <translation>Geschwindigkeiten, durch Leerzeichen getrennt; jede wird zu Linien durch den Schnitt</translation>
    </message>
    <message>
        <source>&amp;Distance along the line and elevation</source>
        <translation>&amp;Entfernung entlang der Messlinie und Höhe</translation>
    </message>
    <message>
        <source>A flat drawing: x is the distance along the line, y the elevation, in metres</source>
        <translation>Eine ebene Zeichnung: x ist die Entfernung entlang der Messlinie, y die Höhe, in Metern</translation>
    </message>
    <message>
        <source>&amp;Easting, northing and elevation on the map</source>
        <translation>&amp;Ostwert, Nordwert und Höhe auf der Karte</translation>
    </message>
    <message>
        <source>Lines in space by the geographic coordinates of the line, in metres</source>
        <translation>Linien im Raum nach den geographischen Koordinaten der Messlinie, in Metern</translation>
    </message>
    <message>
        <source>There is no section yet, and so there are no isolines.</source>
        <translation>Es gibt noch keinen Schnitt und daher keine Isolinien.</translation>
    </message>
    <message>
        <source>The line has no place on the map. Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>Die Messlinie hat keine Lage auf der Karte. Geben Sie sie hier an: Projekt &gt; Geographische Koordinaten ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a velocity.</source>
        <translation>„%1“ ist keine Geschwindigkeit.</translation>
    </message>
    <message>
        <source>A section has %1 isovalues at most.</source>
        <translation>Ein Schnitt hat höchstens %1 Isowerte.</translation>
    </message>
</context>
<context>
    <name>talvesk::ElasticDialog</name>
    <message>
        <source>P and S together</source>
        <translation>P und S gemeinsam</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Wellen:</translation>
    </message>
    <message>
        <source>Which of the two projects is of P waves and which of S waves. The program guesses it from the recordings, else from the velocities.</source>
        <translation>Welches der beiden Projekte P-Wellen enthält und welches S-Wellen. Das Programm schließt es aus den Aufzeichnungen, sonst aus den Geschwindigkeiten.</translation>
    </message>
    <message>
        <source>Take another project for the other wave</source>
        <translation>Nimmt ein anderes Projekt für die andere Welle</translation>
    </message>
    <message>
        <source>&amp;Other project ...</source>
        <translation>&amp;Anderes Projekt ...</translation>
    </message>
    <message>
        <source>Shi&amp;ft S by:</source>
        <translation>S &amp;verschieben um:</translation>
    </message>
    <message>
        <source>Length added to distances of S</source>
        <translation>Länge, die zu Entfernungen von S addiert wird</translation>
    </message>
    <message>
        <source>What is added to the distances of S, whose line begins elsewhere, to have those of P</source>
        <translation>Was zu den Entfernungen von S, deren Messlinie anderswo beginnt, addiert wird, um die von P zu erhalten</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>&amp;Depths may differ by:</source>
        <translation>Tiefenunte&amp;rschied bis:</translation>
    </message>
    <message>
        <source>Percent that depths may differ by</source>
        <translation>Prozent, um die sich Tiefen unterscheiden dürfen</translation>
    </message>
    <message>
        <source>Difference between the depths of a layer by P and by S, as a share of their mean, beyond which both may be different ground: that is marked and said, and nothing is left out</source>
        <translation>Unterschied der Tiefen einer Schicht aus P und aus S, als Anteil ihres Mittels, über den hinaus beide verschiedener Untergrund sein können: Das wird markiert und gesagt, und nichts wird weggelassen</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>D&amp;ensity:</source>
        <translation>&amp;Dichte:</translation>
    </message>
    <message>
        <source>A number for each layer, or 310 Vp^0.25 in kg/m3, which Gardner and others (1974) found for rocks faster than 1500 m/s</source>
        <translation>Eine Zahl für jede Schicht, oder 310 Vp^0,25 in kg/m³, was Gardner und andere (1974) für Gesteine fanden, die schneller als 1500 m/s sind</translation>
    </message>
    <message>
        <source>Of each layer</source>
        <translation>Für jede Schicht</translation>
    </message>
    <message>
        <source>From Vp, by Gardner&apos;s rule</source>
        <translation>Aus Vp, nach Gardner</translation>
    </message>
    <message>
        <source>1:</source>
        <translation>1:</translation>
    </message>
    <message>
        <source>Density of layer 1</source>
        <translation>Dichte von Schicht 1</translation>
    </message>
    <message>
        <source> kg/m3</source>
        <translation> kg/m³</translation>
    </message>
    <message>
        <source>2:</source>
        <translation>2:</translation>
    </message>
    <message>
        <source>Density of layer 2</source>
        <translation>Dichte von Schicht 2</translation>
    </message>
    <message>
        <source>3:</source>
        <translation>3:</translation>
    </message>
    <message>
        <source>Density of layer 3</source>
        <translation>Dichte von Schicht 3</translation>
    </message>
    <message>
        <source>Standard deviations of all that follows from the velocities, by 100 interpretations of picks that are moved by their errors</source>
        <translation>Standardabweichungen von allem, was aus den Geschwindigkeiten folgt, aus 100 Auswertungen von Picks, die um ihre Fehler verschoben sind</translation>
    </message>
    <message>
        <source>Errors from the pic&amp;ks</source>
        <translation>&amp;Fehler aus den Picks</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>&amp;Schicht:</translation>
    </message>
    <message>
        <source>Which layers picture and table show</source>
        <translation>Welche Schichten Bild und Tabelle zeigen</translation>
    </message>
    <message>
        <source>P and S along the line</source>
        <translation>P und S entlang der Messlinie</translation>
    </message>
    <message>
        <source>Depths below the surface; moduli of small strains: shear G0, Young&apos;s E0, bulk K, constrained M</source>
        <translation>Tiefen unter der Oberfläche; Moduln bei kleinen Dehnungen: Schubmodul G0, Elastizitätsmodul E0, Kompressionsmodul K, Steifemodul M</translation>
    </message>
    <message>
        <source>Copy the table as it stands here, for a spreadsheet</source>
        <translation>Kopiert die Tabelle, wie sie hier steht, für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>Tabelle &amp;kopieren</translation>
    </message>
    <message>
        <source>Save the table as CSV, in metres, m/s, kg/m3 and MPa</source>
        <translation>Speichert die Tabelle als CSV, in Metern, m/s, kg/m³ und MPa</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>&amp;Tabelle speichern ...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Speichert die Kurven als PNG, SVG oder PDF</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>&amp;Bild speichern ...</translation>
    </message>
    <message>
        <source>Interpreting moved picks ...</source>
        <translation>Verschobene Picks werden ausgewertet ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>P: %1, S: %2</source>
        <translation>P: %1, S: %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Schicht %1</translation>
    </message>
    <message>
        <source>Picks of %1 have changed since its layers were built.</source>
        <translation>Picks von %1 haben sich geändert, seit die Schichten erstellt wurden.</translation>
    </message>
    <message>
        <source>It has no errors.</source>
        <translation>Dafür gibt es keine Fehler.</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Entfernung [m]</translation>
    </message>
    <message>
        <source>Depth by P [m]</source>
        <translation>Tiefe aus P [m]</translation>
    </message>
    <message>
        <source>Depth by S [m]</source>
        <translation>Tiefe aus S [m]</translation>
    </message>
    <message>
        <source>Depths by P and S differ: it may be different ground.</source>
        <translation>Die Tiefen aus P und S unterscheiden sich: Es kann verschiedener Untergrund sein.</translation>
    </message>
    <message>
        <source>Preview and print the curves at a chosen scale</source>
        <translation>Vorschau und Druck der Kurven in einem gewählten Maßstab</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Drucken ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ErrorBands</name>
    <message>
        <source>&amp;Error bands</source>
        <translation>&amp;Fehlerbänder</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>How far depths and velocities scatter as picks are moved by their errors, over %1 interpretations</source>
        <translation>Wie weit Tiefen und Geschwindigkeiten streuen, wenn Picks um ihre Fehler verschoben werden, aus %1 Auswertungen</translation>
    </message>
    <message>
        <source>No errors could be found: the profile is not that of the picks and marks. Build it again.</source>
        <translation>Es ließen sich keine Fehler bestimmen: Das Profil ist nicht das der Picks und Zuordnungen. Erstellen Sie es neu.</translation>
    </message>
    <message>
        <source>Bands: 68 of %1 interpretations of picks that were moved by their errors</source>
        <translation>Bänder: 68 von %1 Auswertungen von Picks, die um ihre Fehler verschoben wurden</translation>
    </message>
</context>
<context>
    <name>talvesk::ExportTomoVelData</name>
    <message>
        <source>Set optional shift parameter before export</source>
        <translation>Optionale Verschiebung vor dem Export</translation>
    </message>
    <message>
        <source>Y coord of the line</source>
        <translation>Y-Koordinate der Messlinie</translation>
    </message>
    <message>
        <source>Y coordinate of the line in metres</source>
        <translation>Y-Koordinate der Messlinie in Metern</translation>
    </message>
    <message>
        <source>Written as Y of every cell</source>
        <translation>Wird als Y jeder Zelle geschrieben</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Z offset of the line</source>
        <translation>Z-Verschiebung der Messlinie</translation>
    </message>
    <message>
        <source>Z offset of the line in metres</source>
        <translation>Z-Verschiebung der Messlinie in Metern</translation>
    </message>
    <message>
        <source>Added to the elevation of every cell</source>
        <translation>Wird zur Höhe jeder Zelle addiert</translation>
    </message>
    <message>
        <source>X is the distance along the line</source>
        <translation>X ist die Entfernung entlang der Messlinie</translation>
    </message>
    <message>
        <source>Takes the grid&apos;s offset off; X is the grid&apos;s own abscissa else</source>
        <translation>Zieht den Versatz des Gitters ab; sonst ist X die Abszisse des Gitters selbst</translation>
    </message>
    <message>
        <source>The Y coordinate is not a number.</source>
        <translation>Die Y-Koordinate ist keine Zahl.</translation>
    </message>
    <message>
        <source>The Z offset is not a number.</source>
        <translation>Die Z-Verschiebung ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>talvesk::FenceDialog</name>
    <message>
        <source>Fence of several lines</source>
        <translation>Zaundiagramm mehrerer Messlinien</translation>
    </message>
    <message>
        <source>&amp;Lines:</source>
        <translation>&amp;Messlinien:</translation>
    </message>
    <message>
        <source>Stand the sections of other projects beside this one; the projects stay as they are</source>
        <translation>Stellt die Schnitte anderer Projekte neben diesen; die Projekte bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>Projekte &amp;hinzufügen ...</translation>
    </message>
    <message>
        <source>Take the line that is selected out of the fence</source>
        <translation>Nimmt die ausgewählte Messlinie aus dem Zaundiagramm</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>&amp;Überhöhung:</translation>
    </message>
    <message>
        <source>Save the view as a PNG picture</source>
        <translation>Speichert die Ansicht als PNG-Bild</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Bild &amp;speichern ...</translation>
    </message>
    <message>
        <source>S&amp;how all</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>Lines that stand in the fence: %1.</source>
        <translation>Messlinien im Zaundiagramm: %1.</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Weggelassen: %1.</translation>
    </message>
    <message>
        <source>it has no position on the map</source>
        <translation>keine Lage auf der Karte</translation>
    </message>
    <message>
        <source>its position is in EPSG:%1, that of the others in EPSG:%2</source>
        <translation>die Lage ist in EPSG:%1 angegeben, die der anderen in EPSG:%2</translation>
    </message>
    <message>
        <source>it has no geophones</source>
        <translation>keine Geophone</translation>
    </message>
    <message>
        <source>its first and last geophone are at one place of the map</source>
        <translation>das erste und das letzte Geophon liegen an derselben Stelle der Karte</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Lines of the fence</source>
        <translation>Messlinien des Zaundiagramms</translation>
    </message>
    <message>
        <source>Converted: %1.</source>
        <comment>lines</comment>
        <translation>Umgerechnet: %1.</translation>
    </message>
    <message>
        <source>%1 from EPSG:%2 to EPSG:%3</source>
        <comment>line, systems</comment>
        <translation>%1 von EPSG:%2 nach EPSG:%3</translation>
    </message>
    <message>
        <source>No line stands in the fence yet.

A line needs a section and a place on the map. Give this survey its place, or add projects that have theirs.</source>
        <translation>Noch keine Messlinie im Zaundiagramm.

Eine Messlinie braucht einen Schnitt und eine Lage auf der Karte. Geben Sie dieser Messung ihre Lage, oder fügen Sie Projekte hinzu, die ihre haben.</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>line, velocities</comment>
        <translation>%1 %2 bis %3</translation>
    </message>
    <message>
        <source>Beyond the colours: %1.</source>
        <comment>lines</comment>
        <translation>Außerhalb der Farbskala: %1.</translation>
    </message>
    <message>
        <source>it stands in the fence already</source>
        <translation>ist schon im Zaundiagramm</translation>
    </message>
</context>
<context>
    <name>talvesk::FenceView</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Geschwindigkeit [%1]</translation>
    </message>
    <message>
        <source>Sections at their places on the map</source>
        <translation>Schnitte an ihrer Stelle auf der Karte</translation>
    </message>
    <message>
        <source>Easting [m]</source>
        <translation>Ostwert [m]</translation>
    </message>
    <message>
        <source>Northing [m]</source>
        <translation>Nordwert [m]</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Höhe [%1]</translation>
    </message>
</context>
<context>
    <name>talvesk::FigureSheetWidget</name>
    <message>
        <source>Figure</source>
        <translation>Abbildung</translation>
    </message>
</context>
<context>
    <name>talvesk::FigureWords</name>
    <message>
        <source>Contours</source>
        <translation>Isolinien</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Vertikaler Geschwindigkeitsgradient</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplace der Geschwindigkeit</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Informationsdichte</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>1 trace</source>
        <translation>1 Spur</translation>
    </message>
    <message>
        <source>%1 traces</source>
        <translation>%1 Spuren</translation>
    </message>
    <message>
        <source>1 pick</source>
        <translation>1 Pick</translation>
    </message>
    <message>
        <source>%1 picks</source>
        <translation>%1 Picks</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 Schuss</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 Schüsse</translation>
    </message>
    <message>
        <source>1 computed time</source>
        <translation>1 berechnete Zeit</translation>
    </message>
    <message>
        <source>%1 computed times</source>
        <translation>%1 berechnete Zeiten</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>quantity, least and greatest value with its unit</comment>
        <translation>%1 %2 bis %3</translation>
    </message>
    <message>
        <source>Contours every %1</source>
        <translation>Isolinien alle %1</translation>
    </message>
    <message>
        <source>1 ray</source>
        <translation>1 Strahl</translation>
    </message>
    <message>
        <source>%1 rays</source>
        <translation>%1 Strahlen</translation>
    </message>
    <message>
        <source>Vertical exaggeration %1</source>
        <translation>Überhöhung %1</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Entfernung [%1]</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Höhe [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Zeit [ms]</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geophone</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>First breaks</source>
        <translation>Ersteinsätze</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Schuss %1 von %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>shot, place</comment>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>%1, filtered</source>
        <comment>traces</comment>
        <translation>%1, gefiltert</translation>
    </message>
    <message>
        <source>%1, some filtered</source>
        <comment>traces</comment>
        <translation>%1, teilweise gefiltert</translation>
    </message>
    <message>
        <source>One of every %1 is drawn</source>
        <translation>Nur jede %1. ist gezeichnet</translation>
    </message>
    <message>
        <source>%1 without samples or sample interval</source>
        <translation>%1 ohne Abtastwerte oder Abtastintervall</translation>
    </message>
    <message>
        <source>Each trace to its own maximum, gain %1</source>
        <translation>Jede Spur auf ihr eigenes Maximum, Verstärkung %1</translation>
    </message>
    <message>
        <source>All traces to one maximum, gain %1</source>
        <translation>Alle Spuren auf ein Maximum, Verstärkung %1</translation>
    </message>
    <message>
        <source>no picks</source>
        <translation>keine Picks</translation>
    </message>
    <message>
        <source>%1 outside the times shown</source>
        <comment>picks</comment>
        <translation>%1 außerhalb der gezeigten Zeiten</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Strahlen</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Grenze der Abdeckung</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Laufzeiten</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Berechnet</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Refraktionsprofil</translation>
    </message>
    <message>
        <source>X (%1)</source>
        <translation>X (%1)</translation>
    </message>
    <message>
        <source>Z (%1)</source>
        <translation>Z (%1)</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Schicht %1</translation>
    </message>
    <message>
        <source>Velocities of refractors: median</source>
        <translation>Geschwindigkeiten der Refraktoren: Median</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Äußere Iteration</translation>
    </message>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>RMS-Abweichung [ms]</translation>
    </message>
    <message>
        <source>Offset [%1]</source>
        <translation>Offset [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Berechnet minus gemessen [ms]</translation>
    </message>
    <message>
        <source>Refractor %1</source>
        <translation>Refraktor %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms, %2 %</source>
        <translation>RMS-Abweichung %1 ms, %2 %</translation>
    </message>
    <message>
        <source>last solver pass %1 %</source>
        <translation>letzter Durchgang des Lösers %1 %</translation>
    </message>
    <message>
        <source>picks have changed since the inversion</source>
        <translation>Picks seit der Inversion geändert</translation>
    </message>
    <message>
        <source>Refractor %1 (picks have changed since)</source>
        <translation>Refraktor %1 (Picks seither geändert)</translation>
    </message>
    <message>
        <source>Picks have changed since this was built</source>
        <translation>Picks seit der Erstellung geändert</translation>
    </message>
    <message>
        <source>smoothed since the inversion</source>
        <translation>seit der Inversion geglättet</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>Schuss deaktiviert</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>um %1 ms verschoben</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>Reihenfolge umgekehrt</translation>
    </message>
    <message>
        <source>stacked with %1</source>
        <comment>shots</comment>
        <translation>%1 dazugestapelt</translation>
    </message>
    <message>
        <source>%1 killed</source>
        <comment>traces</comment>
        <translation>%1 ausgeschaltet</translation>
    </message>
    <message>
        <source>%1 of reversed polarity</source>
        <comment>traces</comment>
        <translation>%1 mit umgekehrter Polarität</translation>
    </message>
    <message>
        <source>%1 muted</source>
        <comment>traces</comment>
        <translation>%1 stummgeschaltet</translation>
    </message>
    <message>
        <source>bars of one standard deviation, dashed above %1 ms</source>
        <translation>Balken von einer Standardabweichung, über %1 ms gestrichelt</translation>
    </message>
    <message>
        <source>%1 good</source>
        <comment>picks</comment>
        <translation>%1 gut</translation>
    </message>
    <message>
        <source>%1 doubtful</source>
        <comment>picks</comment>
        <translation>%1 zweifelhaft</translation>
    </message>
    <message>
        <source>%1 of unknown error</source>
        <comment>picks</comment>
        <translation>%1 mit unbekanntem Fehler</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Unsicherheit der Geschwindigkeit</translation>
    </message>
    <message>
        <source>chi-square %1 with the time shifts of shots</source>
        <translation>Chi-Quadrat %1 mit den Zeitverschiebungen der Schüsse</translation>
    </message>
    <message>
        <source>chi-square %1</source>
        <translation>Chi-Quadrat %1</translation>
    </message>
    <message>
        <source>Correlation by depth</source>
        <translation>Korrelation nach Tiefe</translation>
    </message>
    <message>
        <source>Correlation of true and recovered</source>
        <translation>Korrelation zwischen wahr und rekonstruiert</translation>
    </message>
    <message>
        <source>-%1 % to +%1 % of the section&apos;s velocity; grey: no ray</source>
        <translation>-%1 % bis +%1 % der Geschwindigkeit des Schnitts; grau: kein Strahl</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>Recovered</source>
        <translation>Rekonstruiert</translation>
    </message>
    <message>
        <source>[%1]</source>
        <translation>[%1]</translation>
    </message>
    <message>
        <source>Depth of %1, 16 to 84 %</source>
        <translation>Tiefe von %1, 16 bis 84 %</translation>
    </message>
    <message>
        <source>Pale: uncertain, ± %1 to %2 % and no ray</source>
        <translation>Blass: unsicher, ± %1 bis %2 % und kein Strahl</translation>
    </message>
    <message>
        <source>picks have changed since the certainty was found out</source>
        <translation>Picks seit Ermittlung der Zuverlässigkeit geändert</translation>
    </message>
    <message>
        <source>certainty of other sections than this one: %1 % of its cells with rays lie beyond two deviations</source>
        <translation>Zuverlässigkeit anderer Schnitte als dieses: %1 % seiner Zellen mit Strahlen liegen außerhalb von zwei Abweichungen</translation>
    </message>
    <message>
        <source>±: half of the range from 16 to 84 % of %1 members</source>
        <translation>±: halber Bereich von 16 bis 84 % von %1 Mitgliedern</translation>
    </message>
    <message>
        <source>certainty of %1 members</source>
        <translation>Zuverlässigkeit aus %1 Mitgliedern</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 weggelassen</translation>
    </message>
    <message>
        <source>Geophone at [%1]</source>
        <translation>Geophon bei [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [pick errors]</source>
        <translation>Berechnet minus gemessen [Pickfehler]</translation>
    </message>
    <message>
        <source>Shot %1, geophone %2 at %3, offset %4: measured %5 ms, computed %6 ms, residual %7 ms, error %8 ms (%9 errors)</source>
        <translation>Schuss %1, Geophon %2 bei %3, Offset %4: gemessen %5 ms, berechnet %6 ms, Residuum %7 ms, Fehler %8 ms (%9 Fehler)</translation>
    </message>
    <message>
        <source>; suspect</source>
        <translation>; verdächtig</translation>
    </message>
    <message>
        <source>Geophone at [%1]; hatched: no pick, with a dot: suspect</source>
        <translation>Geophon bei [%1]; schraffiert: kein Pick, mit Punkt: verdächtig</translation>
    </message>
    <message>
        <source>Shot, along the line</source>
        <translation>Schuss, entlang der Messlinie</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>Suspect</source>
        <translation>Verdächtig</translation>
    </message>
    <message>
        <source>Running median</source>
        <translation>Gleitender Median</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Eine Standardabweichung</translation>
    </message>
    <message>
        <source>Stands out</source>
        <translation>Auffällig</translation>
    </message>
    <message>
        <source>Median and one standard deviation</source>
        <translation>Median und eine Standardabweichung</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2 beside the line)</source>
        <translation>%1 (%2 neben der Messlinie)</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Bohrungen</translation>
    </message>
    <message>
        <source>Known depths</source>
        <translation>Bekannte Tiefen</translation>
    </message>
    <message>
        <source>Fixed bodies</source>
        <translation>Feste Körper</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Geschwindigkeit [%1]</translation>
    </message>
    <message>
        <source>Vp/Vs</source>
        <translation>Vp/Vs</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>Poissonzahl</translation>
    </message>
    <message>
        <source>G0, E0 [MPa]</source>
        <translation>G0, E0 [MPa]</translation>
    </message>
    <message>
        <source>K, M [MPa]</source>
        <translation>K, M [MPa]</translation>
    </message>
    <message>
        <source>Depths by P and S differ</source>
        <translation>Tiefen aus P und S unterscheiden sich</translation>
    </message>
    <message>
        <source>No ground: Vp/Vs below 1.41</source>
        <translation>Kein Untergrund: Vp/Vs unter 1,41</translation>
    </message>
    <message>
        <source>Bars: one standard deviation, of the picks</source>
        <translation>Balken: eine Standardabweichung, aus den Picks</translation>
    </message>
    <message>
        <source>Vp</source>
        <translation>Vp</translation>
    </message>
    <message>
        <source>Vs</source>
        <translation>Vs</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>G0</source>
        <translation>G0</translation>
    </message>
    <message>
        <source>E0</source>
        <translation>E0</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>kg/m3</source>
        <translation>kg/m³</translation>
    </message>
    <message>
        <source>MPa</source>
        <translation>MPa</translation>
    </message>
    <message>
        <source>Density from Vp by Gardner&apos;s rule</source>
        <translation>Dichte aus Vp nach Gardner</translation>
    </message>
    <message>
        <source>Density %1 kg/m3</source>
        <translation>Dichte %1 kg/m³</translation>
    </message>
    <message>
        <source>Layer %1, %2</source>
        <translation>Schicht %1, %2</translation>
    </message>
    <message>
        <source>Layer %1, %2 ± %3</source>
        <translation>Schicht %1, %2 ± %3</translation>
    </message>
    <message>
        <source>Dashed: not carried by picks there</source>
        <translation>Gestrichelt: dort nicht durch Picks belegt</translation>
    </message>
    <message>
        <source>Error of the picks (68 of 100)</source>
        <translation>Fehler aus den Picks (68 von 100)</translation>
    </message>
    <message>
        <source>Depth [%1]</source>
        <translation>Tiefe [%1]</translation>
    </message>
    <message>
        <source>Depths are below the surface</source>
        <translation>Tiefen unter der Oberfläche</translation>
    </message>
    <message>
        <source>dashed: not carried by picks there</source>
        <translation>gestrichelt: dort nicht durch Picks belegt</translation>
    </message>
    <message>
        <source>hollow marks: layer 3</source>
        <translation>hohle Symbole: Schicht 3</translation>
    </message>
    <message>
        <source>shaded: 68 of 100 results of moved picks</source>
        <translation>schattiert: 68 von 100 Ergebnissen verschobener Picks</translation>
    </message>
    <message>
        <source>dashed: times through the layers</source>
        <translation>gestrichelt: Zeiten durch die Schichten</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean, growing with depth</source>
        <translation>Schicht 1, im Mittel %1, mit der Tiefe zunehmend</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean</source>
        <translation>Schicht 1, im Mittel %1</translation>
    </message>
    <message>
        <source>Vertical gradient [1/s]</source>
        <translation>Vertikaler Gradient [1/s]</translation>
    </message>
    <message>
        <source>Uncertainty [%]</source>
        <translation>Unsicherheit [%]</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Entfernung %1</translation>
    </message>
    <message>
        <source>no section here</source>
        <translation>kein Schnitt an dieser Stelle</translation>
    </message>
    <message>
        <source>surface at %1</source>
        <translation>Oberfläche bei %1</translation>
    </message>
    <message>
        <source>shaded: 16 to 84 %</source>
        <translation>schattiert: 16 bis 84 %</translation>
    </message>
    <message>
        <source>%1 with a gain of their own</source>
        <comment>traces</comment>
        <translation>%1 mit eigener Verstärkung</translation>
    </message>
    <message>
        <source>annotations outside the section: %1</source>
        <translation>Anmerkungen außerhalb des Schnitts: %1</translation>
    </message>
    <message>
        <source>%1 (not reached)</source>
        <translation>%1 (nicht erreicht)</translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation>Maßstab %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Höhe %1</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Each pair of traces to one maximum, gain %1</source>
        <translation>Jedes Spurenpaar auf ein Maximum, Verstärkung %1</translation>
    </message>
    <message>
        <source>Absolute offset [%1]</source>
        <translation>Absoluter Offset [%1]</translation>
    </message>
    <message>
        <source>Reduced time [ms], t - |x|/%1 %2</source>
        <translation>Reduzierte Zeit [ms], t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>gain with time t^%1</source>
        <comment>exponent</comment>
        <translation>Verstärkung mit der Zeit t^%1</translation>
    </message>
    <message>
        <source>offsets not known: not drawn by offset or reduced as asked</source>
        <translation>Offsets nicht bekannt: nicht wie verlangt nach Offset oder reduziert gezeichnet</translation>
    </message>
    <message>
        <source>All traces of a shot to one maximum, gain %1</source>
        <translation>Alle Spuren eines Schusses auf ein Maximum, Verstärkung %1</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <comment>what is left out of it, or mended</comment>
        <translation>Schuss %1: %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Blatt %1 von %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Misfit in each iteration</source>
        <translation>Abweichung in jeder Iteration</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Residuen entlang der Strahlen</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Tiefenprofil</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P und S</translation>
    </message>
    <message>
        <source>1 cm is %1 ms</source>
        <translation>1 cm sind %1 ms</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Letzter Durchgang des Lösers</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Residuen nach Schuss und Geophon</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residuen über dem Offset</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Residuen der Schüsse und der Geophone</translation>
    </message>
    <message>
        <source>Match line: sheet %1</source>
        <translation>Anschlusslinie: Blatt %1</translation>
    </message>
</context>
<context>
    <name>talvesk::FitPanel</name>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Fehler von Picks ohne Fehlerangabe</translation>
    </message>
    <message>
        <source>Least error [ms]</source>
        <translation>Kleinster Fehler [ms]</translation>
    </message>
    <message>
        <source>How far off a pick is at least, one standard deviation. A small error makes the section follow every pick, and its noise; a large one lets it pass by.</source>
        <translation>Wie ungenau ein Pick mindestens ist, als Standardabweichung. Mit einem kleinen Fehler folgt der Schnitt jedem Pick samt seinem Rauschen, mit einem großen darf er von ihm abweichen.</translation>
    </message>
    <message>
        <source>Share of the time [%]</source>
        <translation>Anteil an der Zeit [%]</translation>
    </message>
    <message>
        <source>The error of a late pick is this share of its time, where that is more than the least error.</source>
        <translation>Der Fehler eines späten Picks ist dieser Anteil seiner Zeit, wo das mehr ist als der kleinste Fehler.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Minimale Geschwindigkeit [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this.</source>
        <translation>Keine Zelle wird langsamer.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Maximale Geschwindigkeit [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this.</source>
        <translation>Keine Zelle wird schneller.</translation>
    </message>
    <message>
        <source>Iterations at most</source>
        <translation>Iterationen höchstens</translation>
    </message>
    <message>
        <source>The fit ends by itself, as a rule after 5 to 15 iterations.</source>
        <translation>Die Anpassung endet von selbst, in der Regel nach 5 bis 15 Iterationen.</translation>
    </message>
    <message>
        <source>Picks that are far off count by how far they are off, and no more by its square: some gross errors then hardly change the section.</source>
        <translation>Weit abliegende Picks zählen mit ihrer Abweichung statt mit deren Quadrat: Einzelne grobe Fehler ändern den Schnitt dann kaum.</translation>
    </message>
    <message>
        <source>Robust against gross errors of picks</source>
        <translation>Robust gegen grobe Fehler der Picks</translation>
    </message>
    <message>
        <source>Looks for few sharp steps of the velocity rather than for gentle slopes.</source>
        <translation>Sucht wenige scharfe Sprünge der Geschwindigkeit statt sanfter Übergänge.</translation>
    </message>
    <message>
        <source>Blocky: sharp steps rather than slopes</source>
        <translation>Blockig: scharfe Sprünge statt Übergänge</translation>
    </message>
    <message>
        <source>Also finds by how much the record of every shot begins too early or too late, zero on the whole. The shifts are listed after the run and change nothing by themselves.</source>
        <translation>Bestimmt auch, um wie viel die Aufzeichnung jedes Schusses zu früh oder zu spät beginnt, insgesamt null. Die Verschiebungen werden nach der Rechnung aufgelistet und ändern von sich aus nichts.</translation>
    </message>
    <message>
        <source>Find time shifts of shots</source>
        <translation>Zeitverschiebungen der Schüsse bestimmen</translation>
    </message>
    <message>
        <source>Trigger error [ms]</source>
        <translation>Triggerfehler [ms]</translation>
    </message>
    <message>
        <source>How far the shots are thought to be off. Shifts that are large beside it are less welcome.</source>
        <translation>Wie ungenau die Schusszeiten vermutlich sind. Verschiebungen, die im Vergleich dazu groß sind, werden gedämpft.</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>Verwendet nur einen Prozessor. Das Ergebnis ist bis zur letzten Stelle dasselbe; es dauert nur länger.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Mit nur einem Thread rechnen</translation>
    </message>
    <message>
        <source>The section starts from this model, and departs from it no more than the picks ask for:</source>
        <translation>Der Schnitt beginnt mit diesem Modell und weicht nur so weit davon ab, wie die Picks es verlangen:</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi-Quadrat</translation>
    </message>
    <message>
        <source>Of the times through the model as it is, suspect picks included: 1 is a fit as good as the picks are.</source>
        <translation>Der Zeiten durch das unveränderte Modell, verdächtige Picks eingeschlossen: 1 heißt, es passt so gut, wie die Picks sind.</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Distance from the shot (m)</source>
        <translation>Entfernung vom Schuss (m)</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Zeit (ms)</translation>
    </message>
    <message>
        <source>%1 of %2 picks state an error of their own.</source>
        <translation>%1 von %2 Picks geben einen eigenen Fehler an.</translation>
    </message>
    <message>
        <source>By these errors the present section has chi-square %1, with %2 suspect picks left out.</source>
        <translation>Mit diesen Fehlern hat der jetzige Schnitt Chi-Quadrat %1, ohne %2 verdächtige Picks.</translation>
    </message>
    <message>
        <source>The models are being made and traced...</source>
        <translation>Die Modelle werden erstellt und durchstrahlt...</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Nicht gestützt</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>The section is drawn to the velocities and depths of &quot;Known ground&quot; by their errors, and fixed bodies stay as they are. How the section goes with them is told after the run; chi-square is of the picks alone.</source>
        <translation>Der Schnitt wird entsprechend ihren Fehlern zu den Geschwindigkeiten und Tiefen aus „Bekannter Untergrund“ gezogen, und feste Körper bleiben, wie sie sind. Wie der Schnitt dazu passt, wird nach der Rechnung gesagt; Chi-Quadrat gilt nur für die Picks.</translation>
    </message>
    <message>
        <source>Hold to known ground</source>
        <translation>An bekannten Untergrund halten</translation>
    </message>
</context>
<context>
    <name>talvesk::FkView</name>
    <message>
        <source>Spectrum over wavenumber and frequency</source>
        <translation>Spektrum über Wellenzahl und Frequenz</translation>
    </message>
    <message>
        <source>No spectrum</source>
        <translation>Kein Spektrum</translation>
    </message>
    <message>
        <source>Wavenumber along the line (1/%1)</source>
        <translation>Wellenzahl entlang der Messlinie (1/%1)</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Frequenz (Hz)</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
</context>
<context>
    <name>talvesk::GatherSheetDialog</name>
    <message>
        <source>Sheet of shots</source>
        <translation>Blatt mit Schüssen</translation>
    </message>
    <message>
        <source>&amp;Rows:</source>
        <translation>&amp;Zeilen:</translation>
    </message>
    <message>
        <source>Shots one above the other</source>
        <translation>Schüsse übereinander</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Spalten:</translation>
    </message>
    <message>
        <source>Shots side by side</source>
        <translation>Schüsse nebeneinander</translation>
    </message>
    <message>
        <source>&amp;First shot:</source>
        <translation>&amp;Erster Schuss:</translation>
    </message>
    <message>
        <source>The shots from this one on</source>
        <translation>Die Schüsse ab diesem</translation>
    </message>
    <message>
        <source>&amp;Last shot:</source>
        <translation>&amp;Letzter Schuss:</translation>
    </message>
    <message>
        <source>The shots up to this one</source>
        <translation>Die Schüsse bis zu diesem</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>Zeiten &amp;bis:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Wo die Zeitachse endet; automatisch: beim Anderthalbfachen der Zeit des letzten Picks</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Verstärkung:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Ausschlag des größten Werts, in Spurabständen</translation>
    </message>
    <message>
        <source>Mark the first breaks</source>
        <translation>Die Ersteinsätze markieren</translation>
    </message>
    <message>
        <source>P&amp;icks</source>
        <translation>P&amp;icks</translation>
    </message>
    <message>
        <source>All traces of a shot to one measure</source>
        <translation>Alle Spuren eines Schusses nach einem Maß</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>Wahre &amp;Amplituden</translation>
    </message>
    <message>
        <source>The filtered copies of the traces that have one</source>
        <translation>Die gefilterten Kopien der Spuren, die eine haben</translation>
    </message>
    <message>
        <source>Filtered c&amp;opies</source>
        <translation>Gefilterte &amp;Kopien</translation>
    </message>
    <message>
        <source>Channel numbers in place of distances</source>
        <translation>Kanalnummern statt Entfernungen</translation>
    </message>
    <message>
        <source>C&amp;hannels below</source>
        <translation>Kanäle &amp;unten</translation>
    </message>
    <message>
        <source>Sh&amp;eet:</source>
        <translation>Bla&amp;tt:</translation>
    </message>
    <message>
        <source>The sheet that is shown; all are saved</source>
        <translation>Das Blatt, das gezeigt wird; gespeichert werden alle</translation>
    </message>
    <message>
        <source>A4 landscape</source>
        <translation>A4 quer</translation>
    </message>
    <message>
        <source>A4 portrait</source>
        <translation>A4 hoch</translation>
    </message>
    <message>
        <source>A3 landscape</source>
        <translation>A3 quer</translation>
    </message>
    <message>
        <source>A3 portrait</source>
        <translation>A3 hoch</translation>
    </message>
    <message>
        <source>A2 landscape</source>
        <translation>A2 quer</translation>
    </message>
    <message>
        <source>A2 portrait</source>
        <translation>A2 hoch</translation>
    </message>
    <message>
        <source>&amp;Save sheets ...</source>
        <translation>Blätter spei&amp;chern ...</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>sheets</comment>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Vorschau der Blätter</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTable</name>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1.</source>
        <translation>Nichts eingefügt: %1.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows do not fit from row %2 on, of %3.</source>
        <translation>Nichts eingefügt: %1 Zeilen passen ab Zeile %2 von %3 nicht hinein.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 columns do not fit from column &quot;%2&quot; on.</source>
        <translation>Nichts eingefügt: %1 Spalten passen ab Spalte „%2“ nicht hinein.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1</source>
        <translation>Nichts eingefügt: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTexts</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und noch %n</numerusform>
            <numerusform>%1 und noch %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 without a position.</source>
        <translation>
            <numerusform>Auslage %1: Geophon %2 ohne Position.</numerusform>
            <numerusform>Auslage %1: Geophone %2 ohne Position.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1: geophones %2 stand at one place.</source>
        <translation>Auslage %1: Geophone %2 stehen an derselben Stelle.</translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 against the direction of the string.</source>
        <translation>
            <numerusform>Auslage %1: Geophon %2 gegen die Richtung der Auslage.</numerusform>
            <numerusform>Auslage %1: Geophone %2 gegen die Richtung der Auslage.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 not at the elevation that string %3 has there.</source>
        <translation>
            <numerusform>Auslage %1: Geophon %2 nicht auf der Höhe, die Auslage %3 dort hat.</numerusform>
            <numerusform>Auslage %1: Geophone %2 nicht auf der Höhe, die Auslage %3 dort hat.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a position.</source>
        <translation>
            <numerusform>Schuss %1 ohne Position.</numerusform>
            <numerusform>Schüsse %1 ohne Position.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string.</source>
        <translation>
            <numerusform>Schuss %1 ohne Geophonauslage.</numerusform>
            <numerusform>Schüsse %1 ohne Geophonauslage.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not an S-wave pair, as others are: a survey holds one kind of wave.</source>
        <translation>
            <numerusform>Schuss %1 ist anders als andere kein S-Wellen-Paar: Eine Messung enthält nur eine Wellenart.</numerusform>
            <numerusform>Schüsse %1 sind anders als andere keine S-Wellen-Paare: Eine Messung enthält nur eine Wellenart.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 farther off the line than the line is long.</source>
        <translation>
            <numerusform>Schuss %1 weiter von der Messlinie entfernt, als diese lang ist.</numerusform>
            <numerusform>Schüsse %1 weiter von der Messlinie entfernt, als diese lang ist.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 far above or below the line.</source>
        <translation>
            <numerusform>Schuss %1 weit über oder unter der Messlinie.</numerusform>
            <numerusform>Schüsse %1 weit über oder unter der Messlinie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1 has %2 geophones, shot(s) %3 %4 traces: the first %5 of both are used.</source>
        <translation>
            <numerusform>Auslage %1 hat %2 Geophone, Schuss %3 hat %4 Spuren: Jeweils die ersten %5 werden verwendet.</numerusform>
            <numerusform>Auslage %1 hat %2 Geophone, die Schüsse %3 haben %4 Spuren: Jeweils die ersten %5 werden verwendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1 has no geophones.</source>
        <translation>Auslage %1 hat keine Geophone.</translation>
    </message>
    <message>
        <source>No shot uses string %1; its positions shape the surface all the same.</source>
        <translation>Kein Schuss verwendet Auslage %1; ihre Positionen formen trotzdem die Oberfläche.</translation>
    </message>
    <message>
        <source>Shot ID &lt;b&gt;</source>
        <translation>Schuss-ID &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt;&lt;br&gt;Geophone geometry ID: &lt;b&gt;</source>
        <translation>&lt;/b&gt;&lt;br&gt;ID der Geophongeometrie: &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt; Shot position: &lt;b&gt;</source>
        <translation>&lt;/b&gt; Schussposition: &lt;b&gt;</translation>
    </message>
    <message>
        <source> m&lt;/b&gt;</source>
        <translation> m&lt;/b&gt;</translation>
    </message>
    <message>
        <source>File name &lt;b&gt;</source>
        <translation>Dateiname &lt;b&gt;</translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not at the elevation of the line: type it, or interpolate elevations.</source>
        <translation>
            <numerusform>Schuss %1 nicht auf der Höhe der Messlinie: eintippen oder Höhen interpolieren.</numerusform>
            <numerusform>Schüsse %1 nicht auf der Höhe der Messlinie: eintippen oder Höhen interpolieren.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::GeophoneTable</name>
    <message>
        <source>x (m)</source>
        <translation>x (m)</translation>
    </message>
    <message>
        <source>Elevation (m)</source>
        <translation>Höhe (m)</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 ist zu weit entfernt.</translation>
    </message>
</context>
<context>
    <name>talvesk::GuidanceStrip</name>
    <message>
        <source>Guidance</source>
        <translation>Arbeitsschritte</translation>
    </message>
    <message>
        <source>Show the steps from recordings to a section, and how they stand</source>
        <translation>Zeigt die Schritte von den Aufzeichnungen zum Schnitt und ihren Stand</translation>
    </message>
    <message>
        <source>A click: %1</source>
        <translation>Klick: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>step, how it stands</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1. A click: %2</source>
        <translation>%1. Klick: %2</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Als Nächstes: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GuideWindow</name>
    <message>
        <source>User guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Gefundene Seiten</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Vorige Fundstelle</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Nächste Fundstelle</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>title of a page, number of places</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>No program to show the user guide was found.</source>
        <translation>Es wurde kein Programm gefunden, das das Benutzerhandbuch anzeigt.</translation>
    </message>
    <message>
        <source>You find it in %1</source>
        <translation>Sie finden es in %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>talvesk::HandleTrack</name>
    <message>
        <source>Handle %1</source>
        <translation>Regler %1</translation>
    </message>
</context>
<context>
    <name>talvesk::ImagesDialog</name>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pictures of</source>
        <translation>Bilder von</translation>
    </message>
    <message>
        <source>Traces of the current shot</source>
        <translation>Spuren des aktuellen Schusses</translation>
    </message>
    <message>
        <source>Traces of all shots</source>
        <translation>Spuren aller Schüsse</translation>
    </message>
    <message>
        <source>A picture for every shot</source>
        <translation>Ein Bild für jeden Schuss</translation>
    </message>
    <message>
        <source>Filtered traces</source>
        <translation>Gefilterte Spuren</translation>
    </message>
    <message>
        <source>The filtered copy of the traces, where there is one</source>
        <translation>Die gefilterte Kopie der Spuren, wo es eine gibt</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Laufzeitkurven</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Geschwindigkeitsschnitt</translation>
    </message>
    <message>
        <source>Palette, contours, rays and geophones as the section view shows them</source>
        <translation>Palette, Isolinien, Strahlen und Geophone, wie die Schnittansicht sie zeigt</translation>
    </message>
    <message>
        <source>Vertical gradient</source>
        <translation>Vertikaler Gradient</translation>
    </message>
    <message>
        <source>Laplacian</source>
        <translation>Laplace-Gradient</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Informationsdichte</translation>
    </message>
    <message>
        <source>Sections as cells</source>
        <translation>Schnitte als Zellen</translation>
    </message>
    <message>
        <source>In bands where contours are filled</source>
        <translation>Als Bänder, wenn die Isoflächen gefüllt sind</translation>
    </message>
    <message>
        <source>Sections smooth</source>
        <translation>Schnitte fließend</translation>
    </message>
    <message>
        <source>Blended from cell to cell, in pictures of their own</source>
        <translation>Mit fließenden Übergängen zwischen den Zellen, in eigenen Bildern</translation>
    </message>
    <message>
        <source>Refraction profile</source>
        <translation>Refraktionsprofil</translation>
    </message>
    <message>
        <source>Format and size</source>
        <translation>Format und Größe</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>PNG (pixels)</source>
        <translation>PNG (Pixel)</translation>
    </message>
    <message>
        <source>SVG (shapes)</source>
        <translation>SVG (Vektoren)</translation>
    </message>
    <message>
        <source>PDF (shapes)</source>
        <translation>PDF (Vektoren)</translation>
    </message>
    <message>
        <source>&amp;Unit of the size:</source>
        <translation>&amp;Einheit der Größe:</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>Height as each picture asks for</source>
        <translation>Höhe, wie jedes Bild sie verlangt</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Auflösung:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Pixels per inch; also how large letters and lines are in a picture of so many pixels</source>
        <translation>Pixel pro Zoll; bestimmt auch, wie groß Schrift und Linien in einem Bild mit so vielen Pixeln sind</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>O&amp;rdner:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;Names begin with:</source>
        <translation>&amp;Namen beginnen mit:</translation>
    </message>
    <message>
        <source>Files to be wri&amp;tten:</source>
        <translation>&amp;Zu schreibende Dateien:</translation>
    </message>
    <message>
        <source>Folder of the pictures</source>
        <translation>Ordner der Bilder</translation>
    </message>
    <message>
        <source>Nothing to write is chosen.</source>
        <translation>Es ist nichts zum Schreiben gewählt.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>The folder is not writable.</source>
        <translation>In den Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>A name cannot hold a slash.</source>
        <translation>Ein Name darf keinen Schrägstrich enthalten.</translation>
    </message>
    <message>
        <source>%1 (exists)</source>
        <translation>%1 (vorhanden)</translation>
    </message>
    <message>
        <source>Residuals of the picks</source>
        <translation>Residuen der Picks</translation>
    </message>
    <message>
        <source>Shot by geophone, and in the section along the rays</source>
        <translation>Schüsse gegen Geophone, und im Schnitt entlang der Strahlen</translation>
    </message>
    <message>
        <source>Files to be written</source>
        <translation>Zu schreibende Dateien</translation>
    </message>
    <message>
        <source>Traces as in the view</source>
        <translation>Spuren wie in der Ansicht</translation>
    </message>
    <message>
        <source>By offset, in reduced time and with a gain in time, as the view of the traces is now</source>
        <translation>Nach Offset, in reduzierter Zeit und mit Verstärkung in der Zeit, wie die Ansicht der Spuren jetzt ist</translation>
    </message>
</context>
<context>
    <name>talvesk::InversionTexts</name>
    <message>
        <source>Section, along fresh rays
</source>
        <translation>Schnitt, entlang neuer Strahlen
</translation>
    </message>
    <message>
        <source>RMS: [ms] %1; [%] %2
</source>
        <translation>RMS: [ms] %1; [%] %2
</translation>
    </message>
    <message>
        <source>Mean: [ms] %1
</source>
        <translation>Mittel: [ms] %1
</translation>
    </message>
    <message>
        <source>Largest difference: [ms] %1; shot %2, receiver %3
</source>
        <translation>Größte Differenz: [ms] %1; Schuss %2, Empfänger %3
</translation>
    </message>
    <message>
        <source>Computing time: [s] %1
</source>
        <translation>Rechenzeit: [s] %1
</translation>
    </message>
    <message>
        <source>Last solver pass
</source>
        <translation>Letzter Durchgang des Lösers
</translation>
    </message>
    <message>
        <source>Elapsed time: [s] %1
</source>
        <translation>Verstrichene Zeit: [s] %1
</translation>
    </message>
    <message>
        <source>RMSE: [ms] %1; [%] %2
</source>
        <translation>RMSE: [ms] %1; [%] %2
</translation>
    </message>
    <message>
        <source>MaxError: [ms] %1; [%] %2
</source>
        <translation>Größter Fehler: [ms] %1; [%] %2
</translation>
    </message>
    <message>
        <source>Chi-square: %1; of all picks %2; suspect picks %3
</source>
        <translation>Chi-Quadrat: %1; mit allen Picks %2; verdächtige Picks %3
</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3 with the time shifts of shots.</source>
        <translation>Abweichung des Schnitts: RMS %1 ms (%2 %), Chi-Quadrat %3 mit den Zeitverschiebungen der Schüsse.</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3.</source>
        <translation>Abweichung des Schnitts: RMS %1 ms (%2 %), Chi-Quadrat %3.</translation>
    </message>
    <message>
        <source>From coarse to fine: iteration %1 of %2 is kept, smoothing parameter %3
</source>
        <translation>Von grob nach fein: Iteration %1 von %2 wurde behalten, Glättungsparameter %3
</translation>
    </message>
    <message>
        <source>Iterations: %1
</source>
        <translation>Iterationen: %1
</translation>
    </message>
    <message>
        <source>Weight of the roughness: %1
</source>
        <translation>Gewicht der Rauigkeit: %1
</translation>
    </message>
    <message>
        <source>Started from and held to: %1
</source>
        <translation>Ausgangs- und Referenzmodell: %1
</translation>
    </message>
    <message>
        <source>Time shifts of shots: [ms] %1
</source>
        <translation>Zeitverschiebungen der Schüsse: [ms] %1
</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>Schuss %1: %2</translation>
    </message>
    <message>
        <source>Best of the picks&apos; models</source>
        <translation>Bestes der Modelle aus den Picks</translation>
    </message>
    <message>
        <source>With the time shifts of shots</source>
        <translation>Mit den Zeitverschiebungen der Schüsse</translation>
    </message>
    <message>
        <source>Without suspects, with the time shifts of shots</source>
        <translation>Ohne verdächtige, mit den Zeitverschiebungen der Schüsse</translation>
    </message>
    <message>
        <source>Without suspects</source>
        <translation>Ohne verdächtige</translation>
    </message>
    <message>
        <source>All picks as they are, </source>
        <translation>Alle Picks unverändert, </translation>
    </message>
    <message>
        <source>Known ground: %1 conditions, RMS %2 of their errors; fixed cells %3
</source>
        <translation>Bekannter Untergrund: %1 Bedingungen, RMS %2 ihrer Fehler; feste Zellen %3
</translation>
    </message>
    <message>
        <source>The section does not go with %1: off by %2 of its errors
</source>
        <translation>Der Schnitt passt nicht zu %1: weicht um %2 seiner Fehler ab
</translation>
    </message>
    <message>
        <source>RMS of what chi-square counts: %1 ms.</source>
        <translation>RMS dessen, was in Chi-Quadrat zählt: %1 ms.</translation>
    </message>
</context>
<context>
    <name>talvesk::KnownGroundDialog</name>
    <message>
        <source>Known ground</source>
        <translation>Bekannter Untergrund</translation>
    </message>
    <message>
        <source>&amp;Boreholes</source>
        <translation>&amp;Bohrungen</translation>
    </message>
    <message>
        <source>A row is a layer; layers of one name are of one borehole, from the top down. Depths are counted from the surface. Without an error a velocity counts as known to 5 %.</source>
        <translation>Eine Zeile ist eine Schicht; Schichten mit demselben Namen gehören zu einer Bohrung, von oben nach unten. Tiefen zählen ab der Oberfläche. Ohne Fehler gilt eine Geschwindigkeit als auf 5 % genau bekannt.</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Bohrungen</translation>
    </message>
    <message>
        <source>&amp;Depths</source>
        <translation>&amp;Tiefen</translation>
    </message>
    <message>
        <source>A row is a place where a refractor is known to lie: the velocity that is reached there, or those above and below. Without an error a depth counts as known to a tenth. Points of one refractor number belong together.</source>
        <translation>Eine Zeile ist eine Stelle, an der die Lage eines Refraktors bekannt ist: die Geschwindigkeit, die dort erreicht wird, oder die darüber und die darunter. Ohne Fehler gilt eine Tiefe als auf ein Zehntel genau bekannt. Punkte mit derselben Refraktornummer gehören zusammen.</translation>
    </message>
    <message>
        <source>Depths</source>
        <translation>Tiefen</translation>
    </message>
    <message>
        <source>B&amp;odies</source>
        <translation>&amp;Körper</translation>
    </message>
    <message>
        <source>A row is a corner; corners of one name go around a body of known velocity, which a fit leaves as it is.</source>
        <translation>Eine Zeile ist eine Ecke; Ecken mit demselben Namen umschließen einen Körper bekannter Geschwindigkeit, den eine Anpassung unverändert lässt.</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>Insert a row above the current one. The last line of a table is always empty: type there to go on</source>
        <translation>Fügt eine Zeile über der aktuellen ein. Die letzte Zeile einer Tabelle ist immer leer: Tippen Sie dort, um fortzufahren</translation>
    </message>
    <message>
        <source>&amp;Add row</source>
        <translation>Zeile &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Remove the rows with selected cells</source>
        <translation>Entfernt die Zeilen mit ausgewählten Zellen</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>Zeilen ent&amp;fernen</translation>
    </message>
    <message>
        <source>Take the last step in these tables back</source>
        <translation>Nimmt den letzten Schritt in diesen Tabellen zurück</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Do it again</source>
        <translation>Führt ihn wieder aus</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Read a table in place of all that stands here, in metres</source>
        <translation>Liest eine Tabelle an die Stelle von allem, was hier steht, in Metern</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importieren ...</translation>
    </message>
    <message>
        <source>Write all of it as one table, in metres</source>
        <translation>Schreibt alles in eine Tabelle, in Metern</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exportieren ...</translation>
    </message>
    <message>
        <source>Boreholes: %1, known depths: %2, bodies: %3.</source>
        <translation>Bohrungen: %1, bekannte Tiefen: %2, Körper: %3.</translation>
    </message>
    <message>
        <source>%1, row %2: %3.</source>
        <translation>%1, Zeile %2: %3.</translation>
    </message>
    <message>
        <source>Discard what was changed in these tables?</source>
        <translation>Änderungen in diesen Tabellen verwerfen?</translation>
    </message>
</context>
<context>
    <name>talvesk::KnownTable</name>
    <message>
        <source>Position [m]</source>
        <translation>Position [m]</translation>
    </message>
    <message>
        <source>Offset [m]</source>
        <translation>Offset [m]</translation>
    </message>
    <message>
        <source>Top [m]</source>
        <translation>Oberkante [m]</translation>
    </message>
    <message>
        <source>Depth [m]</source>
        <translation>Tiefe [m]</translation>
    </message>
    <message>
        <source>Bottom [m]</source>
        <translation>Unterkante [m]</translation>
    </message>
    <message>
        <source>Isovalue [m/s]</source>
        <translation>Isowert [m/s]</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Geschwindigkeit [m/s]</translation>
    </message>
    <message>
        <source>Error [m]</source>
        <translation>Fehler [m]</translation>
    </message>
    <message>
        <source>Error [m/s]</source>
        <translation>Fehler [m/s]</translation>
    </message>
    <message>
        <source>Refractor</source>
        <translation>Refraktor</translation>
    </message>
    <message>
        <source>Above [m/s]</source>
        <translation>Darüber [m/s]</translation>
    </message>
    <message>
        <source>Below [m/s]</source>
        <translation>Darunter [m/s]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows of %2 columns do not fit from here on.</source>
        <translation>Nichts eingefügt: %1 Zeilen mit %2 Spalten passen ab hier nicht hinein.</translation>
    </message>
    <message>
        <source>Nothing was pasted. Row %1: %2</source>
        <translation>Nichts eingefügt. Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerCurvesPlot</name>
    <message>
        <source>Shot %1, trace %2: %3, %4 ms, %5</source>
        <translation>Schuss %1, Spur %2: %3, %4 ms, %5</translation>
    </message>
    <message>
        <source>no layer</source>
        <translation>keine Schicht</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>Schicht %1</translation>
    </message>
    <message>
        <source>computed: %1 ms</source>
        <translation>berechnet: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerMethodsDialog</name>
    <message>
        <source>Compare methods</source>
        <translation>Methoden vergleichen</translation>
    </message>
    <message>
        <source>I&amp;nterpretations for error bands:</source>
        <translation>Auswertungen für &amp;Fehlerbänder:</translation>
    </message>
    <message>
        <source>The layers are interpreted as often again, by picks that are moved by their errors. How far the results scatter is the error of depth and velocity, and tells whether methods disagree by more than that.</source>
        <translation>So oft werden die Schichten noch einmal ausgewertet, mit Picks, die um ihre Fehler verschoben sind. Wie weit die Ergebnisse streuen, ist der Fehler von Tiefe und Geschwindigkeit und sagt, ob Methoden um mehr als das voneinander abweichen.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>&amp;Zusammenfassung</translation>
    </message>
    <message>
        <source>Medians by method</source>
        <translation>Mediane nach Methode</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Median velocity
[m/s]</source>
        <translation>Median der
Geschwindigkeit [m/s]</translation>
    </message>
    <message>
        <source>Median depth
[m]</source>
        <translation>Median der
Tiefe [m]</translation>
    </message>
    <message>
        <source>Geophones
with a depth</source>
        <translation>Geophone
mit Tiefe</translation>
    </message>
    <message>
        <source>Of these not
carried by picks</source>
        <translation>Davon nicht
durch Picks belegt</translation>
    </message>
    <message>
        <source>How far methods agree, and their remarks</source>
        <translation>Wie weit die Methoden übereinstimmen, und ihre Anmerkungen</translation>
    </message>
    <message>
        <source>Layer &amp;2</source>
        <translation>Schicht &amp;2</translation>
    </message>
    <message>
        <source>Layer 2 by method</source>
        <translation>Schicht 2 nach Methode</translation>
    </message>
    <message>
        <source>Layer &amp;3</source>
        <translation>Schicht &amp;3</translation>
    </message>
    <message>
        <source>Layer 3 by method</source>
        <translation>Schicht 3 nach Methode</translation>
    </message>
    <message>
        <source>Save the picture as PNG, SVG or PDF</source>
        <translation>Speichert das Bild als PNG, SVG oder PDF</translation>
    </message>
    <message>
        <source>Save p&amp;icture ...</source>
        <translation>B&amp;ild speichern ...</translation>
    </message>
    <message>
        <source>Save depths and velocities of all layers and methods at the geophones as CSV, in metres</source>
        <translation>Speichert Tiefen und Geschwindigkeiten aller Schichten und Methoden an den Geophonen als CSV, in Metern</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>&amp;Tabelle speichern ...</translation>
    </message>
    <message>
        <source>Copy the same table for a spreadsheet</source>
        <translation>Kopiert dieselbe Tabelle für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>Tabelle &amp;kopieren</translation>
    </message>
    <message>
        <source>Layers are being interpreted...</source>
        <translation>Schichten werden ausgewertet...</translation>
    </message>
    <message>
        <source>Stopped: no error bands.</source>
        <translation>Angehalten: keine Fehlerbänder.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>no pick is assigned to a refractor.</source>
        <translation>kein Pick ist einem Refraktor zugeordnet.</translation>
    </message>
</context>
<context>
    <name>talvesk::LeftOutText</name>
    <message>
        <source>%1 of %2 picks</source>
        <translation>%1 von %2 Picks</translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) beyond the last column</source>
        <translation>
            <numerusform>%n Schuss jenseits der letzten Spalte</numerusform>
            <numerusform>%n Schüsse jenseits der letzten Spalte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n geophone(s) beyond the last column</source>
        <translation>
            <numerusform>%n Geophon jenseits der letzten Spalte</numerusform>
            <numerusform>%n Geophone jenseits der letzten Spalte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) without a geophone string</source>
        <translation>
            <numerusform>%n Schuss ohne Geophonauslage</numerusform>
            <numerusform>%n Schüsse ohne Geophonauslage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 beyond the last column</source>
        <translation>
            <numerusform>Schuss %1 jenseits der letzten Spalte</numerusform>
            <numerusform>Schüsse %1 jenseits der letzten Spalte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Geophone(s) %1 of string %2 beyond the last column</source>
        <translation>
            <numerusform>Geophon %1 der Auslage %2 jenseits der letzten Spalte</numerusform>
            <numerusform>Geophone %1 der Auslage %2 jenseits der letzten Spalte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string</source>
        <translation>
            <numerusform>Schuss %1 ohne Geophonauslage</numerusform>
            <numerusform>Schüsse %1 ohne Geophonauslage</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::LinePlan</name>
    <message>
        <source>Geophones of string %1</source>
        <translation>Geophone der Auslage %1</translation>
    </message>
    <message>
        <source>Other strings</source>
        <translation>Andere Auslagen</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>Zu prüfen</translation>
    </message>
    <message>
        <source>x %1, z %2</source>
        <translation>x %1, z %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>String %1, geophone %2</source>
        <translation>Auslage %1, Geophon %2</translation>
    </message>
    <message>
        <source>Plan of the line</source>
        <translation>Plan der Messlinie</translation>
    </message>
    <message>
        <source>Distance (%1)</source>
        <translation>Entfernung (%1)</translation>
    </message>
    <message>
        <source>Elevation (%1)</source>
        <translation>Höhe (%1)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Messlinie</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geophone</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Geophon %1</translation>
    </message>
    <message>
        <source>x %1, %2 across</source>
        <translation>x %1, quer %2</translation>
    </message>
    <message>
        <source>%1 east, %2 north</source>
        <translation>%1 Ost, %2 Nord</translation>
    </message>
    <message>
        <source>Across the line (%1)</source>
        <translation>Quer zur Messlinie (%1)</translation>
    </message>
    <message>
        <source>East of the first geophone (%1)</source>
        <translation>Östlich des ersten Geophons (%1)</translation>
    </message>
    <message>
        <source>North of it (%1)</source>
        <translation>Nördlich davon (%1)</translation>
    </message>
</context>
<context>
    <name>talvesk::LossQuestion</name>
    <message>
        <source>the grid and the results of the inversion</source>
        <translation>das Gitter und die Ergebnisse der Inversion</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>das Gitter</translation>
    </message>
    <message>
        <source>the results of the inversion; the grid stays</source>
        <translation>die Ergebnisse der Inversion; das Gitter bleibt</translation>
    </message>
    <message>
        <source>the layers of the starting model</source>
        <translation>die Schichten des Startmodells</translation>
    </message>
    <message>
        <source>the refraction interpretation</source>
        <translation>die Refraktionsauswertung</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Do you want to continue?</source>
        <translation>Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>The survey changes. This will be removed (Undo brings it back):</source>
        <translation>Die Messung ändert sich. Entfernt werden („Rückgängig“ bringt es zurück):</translation>
    </message>
</context>
<context>
    <name>talvesk::MarkedIsolinesDialog</name>
    <message>
        <source>Marked isolines</source>
        <translation>Markierte Isolinien</translation>
    </message>
    <message>
        <source>Velocities that mean something, such as 1500 m/s for the water table. Their lines stand out from the section and carry their names.</source>
        <translation>Geschwindigkeiten mit einer Bedeutung, etwa 1500 m/s für den Grundwasserspiegel. Ihre Linien heben sich vom Schnitt ab und tragen ihre Namen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Geschwindigkeit [m/s]</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Mark another velocity</source>
        <translation>Markiert eine weitere Geschwindigkeit</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Remove the line that is selected</source>
        <translation>Entfernt die ausgewählte Linie</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>water table</source>
        <translation>Grundwasserspiegel</translation>
    </message>
</context>
<context>
    <name>talvesk::MendDialog</name>
    <message>
        <source>Mend recording</source>
        <translation>Aufzeichnung korrigieren</translation>
    </message>
    <message>
        <source>What was recorded is kept: everything here can be taken back at any time. Picks move with the recording.</source>
        <translation>Das Aufgezeichnete bleibt erhalten: Alles hier lässt sich jederzeit zurücknehmen. Picks wandern mit der Aufzeichnung.</translation>
    </message>
    <message>
        <source>&amp;The record was late by:</source>
        <translation>Aufzeichnung &amp;verspätet um:</translation>
    </message>
    <message>
        <source>Positive: the front of the record goes, and picks become earlier. Negative: the record was early. Whole samples are taken.</source>
        <translation>Positiv: Der Anfang der Aufzeichnung entfällt, und Picks werden früher. Negativ: Die Aufzeichnung kam zu früh. Genommen werden ganze Abtastwerte.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Its picks are set aside and come back with it</source>
        <translation>Seine Picks werden beiseitegelegt und kommen mit ihm zurück</translation>
    </message>
    <message>
        <source>&amp;Disabled: the shot has no picks and takes no part</source>
        <translation>&amp;Deaktiviert: Der Schuss hat keine Picks und nimmt nicht teil</translation>
    </message>
    <message>
        <source>The last channel goes to the first geophone, with its pick</source>
        <translation>Der letzte Kanal geht an das erste Geophon, mit seinem Pick</translation>
    </message>
    <message>
        <source>&amp;Order reversed: the channels run against the geophones</source>
        <translation>&amp;Reihenfolge umgekehrt: Die Kanäle laufen gegen die Geophone</translation>
    </message>
    <message>
        <source>&amp;Stack with:</source>
        <translation>&amp;Stapeln mit:</translation>
    </message>
    <message>
        <source>Shots of the same place and geophones; the mean of their samples is shown and picked</source>
        <translation>Schüsse an derselben Stelle mit denselben Geophonen; gezeigt und gepickt wird der Mittelwert ihrer Abtastwerte</translation>
    </message>
    <message>
        <source>Dis&amp;able the shots that it is stacked with</source>
        <translation>Die &amp;mitgestapelten Schüsse deaktivieren</translation>
    </message>
    <message>
        <source>No other shot has the same place, geophones and sample interval.</source>
        <translation>Kein anderer Schuss hat dieselbe Stelle, dieselben Geophone und dasselbe Abtastintervall.</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Spuren des Schusses</translation>
    </message>
    <message>
        <source>Killed</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>Polarity reversed</source>
        <translation>Polarität umgekehrt</translation>
    </message>
    <message>
        <source>Muted before</source>
        <translation>Stumm vor</translation>
    </message>
    <message>
        <source>Mend recording of shot %1</source>
        <translation>Aufzeichnung von Schuss %1 korrigieren</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
</context>
<context>
    <name>talvesk::Message</name>
    <message>
        <source>The inversion failed: %1</source>
        <translation>Die Inversion ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The picture cannot be made: %1</source>
        <translation>Das Bild kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>The view cannot be drawn for a picture.</source>
        <translation>Die Ansicht kann nicht für ein Bild gezeichnet werden.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8 text</source>
        <translation>der Name ist kein gültiger UTF-8-Text</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>its text could not be put together</source>
        <translation>der Text konnte nicht zusammengestellt werden</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>its %1 bytes are more than the limit of %2</source>
        <translation>ihre %1 Bytes sind mehr als die Grenze von %2</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Speicher reicht nicht aus</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is %2; choose another place.</source>
        <translation>Die Datei %1 kann nicht ersetzt werden: sie ist %2; wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>protected against writing</source>
        <translation>schreibgeschützt</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Die Datei %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be given its permissions: %2.</source>
        <translation>Die Zugriffsrechte der Datei %1 können nicht gesetzt werden: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: %2.</source>
        <translation>Die Datei %1 kann nicht ersetzt werden: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>niemand liest daraus</translation>
    </message>
    <message>
        <source>there are more than %1 rows</source>
        <translation>es sind mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; is no number</source>
        <translation>Zeile %1: „%2“ ist keine Zahl</translation>
    </message>
    <message>
        <source>the survey has no grid; create the grid or run the inversion first</source>
        <translation>die Messung hat kein Gitter; erstellen Sie zuerst das Gitter oder starten Sie die Inversion</translation>
    </message>
    <message>
        <source>no cell of the section is drawn</source>
        <translation>keine Zelle des Schnitts wird gezeichnet</translation>
    </message>
    <message>
        <source>eastward</source>
        <translation>nach Osten</translation>
    </message>
    <message>
        <source>northward</source>
        <translation>nach Norden</translation>
    </message>
    <message>
        <source>westward</source>
        <translation>nach Westen</translation>
    </message>
    <message>
        <source>southward</source>
        <translation>nach Süden</translation>
    </message>
    <message>
        <source>%1 is no reference system that is known here</source>
        <translation>%1 ist kein hier bekanntes Referenzsystem</translation>
    </message>
    <message>
        <source>%1 is not a projected system; easting and northing need one</source>
        <translation>%1 ist kein projiziertes System; Ost- und Nordwert brauchen eines</translation>
    </message>
    <message>
        <source>%1 has no axes that are known here</source>
        <translation>%1 hat keine hier bekannten Achsen</translation>
    </message>
    <message>
        <source>%1 counts in another unit than the metre: %2; choose a system in metres</source>
        <translation>%1 zählt in einer anderen Einheit als dem Meter: %2; wählen Sie ein System in Metern</translation>
    </message>
    <message>
        <source>%1 counts %2 and %3; choose a system with easting and northing</source>
        <translation>%1 zählt %2 und %3; wählen Sie ein System mit Ost- und Nordwert</translation>
    </message>
    <message>
        <source>%1 (%2) cannot be turned into longitude and latitude</source>
        <translation>%1 (%2) lässt sich nicht in geographische Länge und Breite umrechnen</translation>
    </message>
    <message>
        <source>the Y coordinate and the Z offset of the line must be finite numbers</source>
        <translation>die Y-Koordinate und die Z-Verschiebung der Messlinie müssen endliche Zahlen sein</translation>
    </message>
    <message>
        <source>Cannot write %1: its text could not be put together</source>
        <translation>%1 kann nicht geschrieben werden: der Text konnte nicht zusammengestellt werden</translation>
    </message>
    <message>
        <source>the coordinates of the geophones are not numbers</source>
        <translation>die Koordinaten der Geophone sind keine Zahlen</translation>
    </message>
    <message>
        <source>the first and the last geophone have the same coordinates</source>
        <translation>das erste und das letzte Geophon haben dieselben Koordinaten</translation>
    </message>
    <message>
        <source>the coordinates of the geophones lie outside of EPSG:%1 (%2)</source>
        <translation>die Koordinaten der Geophone liegen außerhalb von EPSG:%1 (%2)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Die geographischen Koordinaten fehlen; die Daten können nicht als KML exportiert werden</translation>
    </message>
    <message>
        <source>the section has too many cells for this format, %1</source>
        <translation>der Schnitt hat zu viele Zellen für dieses Format, %1</translation>
    </message>
    <message>
        <source>the palette has no colours</source>
        <translation>die Palette hat keine Farben</translation>
    </message>
    <message>
        <source>the value range of the section is empty; its maximum must be greater than its minimum</source>
        <translation>der Wertebereich des Schnitts ist leer; sein Maximum muss größer sein als sein Minimum</translation>
    </message>
    <message>
        <source>the survey has no geophones</source>
        <translation>die Messung hat keine Geophone</translation>
    </message>
    <message>
        <source>the raster would have %1 nodes; choose larger cells</source>
        <translation>das Raster hätte %1 Knoten; wählen Sie größere Zellen</translation>
    </message>
    <message>
        <source>Not enough memory for a picture of this size: choose a smaller size or resolution.</source>
        <translation>Der Speicher reicht für ein Bild dieser Größe nicht aus: Wählen Sie eine kleinere Größe oder Auflösung.</translation>
    </message>
    <message>
        <source>The PNG picture cannot be made.</source>
        <translation>Das PNG-Bild kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The SVG picture cannot be made.</source>
        <translation>Das SVG-Bild kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The PDF page cannot be made.</source>
        <translation>Die PDF-Seite kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn before the application object exists.</source>
        <translation>Eine Abbildung kann nicht gezeichnet werden, bevor das Anwendungsobjekt besteht.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn without fonts: install a font package, for instance fonts-dejavu-core.</source>
        <translation>Eine Abbildung kann nicht ohne Schriften gezeichnet werden: Installieren Sie ein Schriftpaket, zum Beispiel fonts-dejavu-core.</translation>
    </message>
    <message>
        <source>No picture format is known for %1: let the file name end with .png, .svg or .pdf.</source>
        <translation>Für %1 ist kein Bildformat bekannt: Der Dateiname muss auf .png, .svg oder .pdf enden.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm wide: choose %2 to %3 mm.</source>
        <translation>Eine Abbildung kann nicht %1 mm breit sein: Wählen Sie %2 bis %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm high: choose %2 to %3 mm.</source>
        <translation>Eine Abbildung kann nicht %1 mm hoch sein: Wählen Sie %2 bis %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 pixels per inch: choose %2 to %3 pixels per inch.</source>
        <translation>Eine Abbildung kann nicht %1 Pixel pro Zoll haben: Wählen Sie %2 bis %3 Pixel pro Zoll.</translation>
    </message>
    <message>
        <source>A picture of %1 million pixels is too large: the limit is %2 million. Choose a smaller size or resolution.</source>
        <translation>Ein Bild mit %1 Millionen Pixeln ist zu groß: Die Grenze liegt bei %2 Millionen. Wählen Sie eine kleinere Größe oder Auflösung.</translation>
    </message>
    <message>
        <source>A PDF file needs a page at least.</source>
        <translation>Eine PDF-Datei braucht mindestens eine Seite.</translation>
    </message>
    <message>
        <source>%1 cannot be drawn before the application object exists.</source>
        <translation>%1 kann nicht gezeichnet werden, bevor das Anwendungsobjekt besteht.</translation>
    </message>
    <message>
        <source>The picture is too small for what it shows with its axes and texts: choose a larger size.</source>
        <translation>Das Bild ist zu klein für das, was es mit seinen Achsen und Texten zeigt: Wählen Sie eine größere Größe.</translation>
    </message>
    <message>
        <source>The document has no traces to draw.</source>
        <translation>Das Dokument hat keine Spuren, die gezeichnet werden könnten.</translation>
    </message>
    <message>
        <source>The times from %1 to %2 ms cannot be drawn: choose a begin of 0 or more and an end after it.</source>
        <translation>Die Zeiten von %1 bis %2 ms können nicht gezeichnet werden: Wählen Sie einen Anfang von 0 oder mehr und ein Ende danach.</translation>
    </message>
    <message>
        <source>The gain of a gather must lie above 0 and not above %1.</source>
        <translation>Die Verstärkung der Spuren eines Schusses muss über 0 liegen und darf nicht über %1 liegen.</translation>
    </message>
    <message>
        <source>Wiggles can be cut at more than 0 and up to 100 trace distances.</source>
        <translation>Schwingungen können bei mehr als 0 und bis zu 100 Spurabständen abgeschnitten werden.</translation>
    </message>
    <message>
        <source>There is no shot %1 to draw: the document has %2 with traces.</source>
        <translation>Es gibt keinen Schuss %1 zum Zeichnen: Das Dokument hat %2 mit Spuren.</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 Schuss</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 Schüsse</translation>
    </message>
    <message>
        <source>The inversion has no misfit to draw.</source>
        <translation>Die Inversion hat keine Abweichung, die gezeichnet werden könnte.</translation>
    </message>
    <message>
        <source>There are no residuals to draw.</source>
        <translation>Es gibt keine Residuen zu zeichnen.</translation>
    </message>
    <message>
        <source>There is no refractor with a depth to draw.</source>
        <translation>Es gibt keinen Refraktor mit einer Tiefe zu zeichnen.</translation>
    </message>
    <message>
        <source>There is no survey to report on: load shot files or travel times first.</source>
        <translation>Es gibt keine Messung, über die berichtet werden könnte: Laden Sie zuerst Schussdateien oder Laufzeiten.</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>Der Bericht wurde angehalten.</translation>
    </message>
    <message>
        <source>The vertical exaggeration must lie between 0.01 and 100, or be 0 to let the picture choose.</source>
        <translation>Die Überhöhung muss zwischen 0,01 und 100 liegen, oder 0 sein, damit das Bild sie wählt.</translation>
    </message>
    <message>
        <source>The palette &quot;%1&quot; has no colours.</source>
        <translation>Die Palette „%1“ hat keine Farben.</translation>
    </message>
    <message>
        <source>The section has no extent to draw.</source>
        <translation>Der Schnitt hat keine Ausdehnung, die gezeichnet werden könnte.</translation>
    </message>
    <message>
        <source>The picture is too small for the section with its axes and texts: choose a larger size.</source>
        <translation>Das Bild ist zu klein für den Schnitt mit seinen Achsen und Texten: Wählen Sie eine größere Größe.</translation>
    </message>
    <message>
        <source>There are no travel times to draw: pick first breaks, or load travel times, first.</source>
        <translation>Es gibt keine Laufzeiten zu zeichnen: Picken Sie zuerst Ersteinsätze oder laden Sie Laufzeiten.</translation>
    </message>
    <message>
        <source>The document cannot be packed: %1</source>
        <translation>Das Dokument kann nicht gepackt werden: %1</translation>
    </message>
    <message>
        <source>its bytes cannot be read back</source>
        <translation>seine Bytes können nicht zurückgelesen werden</translation>
    </message>
    <message>
        <source>cell %1 has no valid velocity (slowness %2 s/m)</source>
        <translation>Zelle %1 hat keine gültige Geschwindigkeit (Langsamkeit %2 s/m)</translation>
    </message>
    <message>
        <source>A grid of %1 rows and %2 columns with %3 nodes per side %4</source>
        <translation>Ein Gitter mit %1 Zeilen und %2 Spalten und %3 Knoten pro Zellenseite %4</translation>
    </message>
    <message>
        <source>has no cells; choose cells smaller than the array is long.</source>
        <translation>hat keine Zellen; wählen Sie Zellen, die kleiner sind als die Länge der Auslage.</translation>
    </message>
    <message>
        <source>has %1 nodes; at most %2 can be numbered. Choose larger cells or a smaller depth.</source>
        <translation>hat %1 Knoten; höchstens %2 können nummeriert werden. Wählen Sie größere Zellen oder eine kleinere Tiefe.</translation>
    </message>
    <message>
        <source>needs about %1 MiB, but only %2 MiB are free. Choose larger cells or a smaller depth.</source>
        <translation>braucht etwa %1 MiB, aber nur %2 MiB sind frei. Wählen Sie größere Zellen oder eine kleinere Tiefe.</translation>
    </message>
    <message>
        <source>No layer is left: a layer&apos;s final depth must be greater than its initial depth, and that not negative.</source>
        <translation>Es bleibt keine Schicht übrig: Die Endtiefe einer Schicht muss größer sein als ihre Anfangstiefe, und diese darf nicht negativ sein.</translation>
    </message>
    <message>
        <source>The grid of the layered model could not be built.</source>
        <translation>Das Gitter des Schichtmodells konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>the line holds %1 characters, more than the limit of %2; split the table into one file per spread</source>
        <translation>die Zeile enthält %1 Zeichen, mehr als die Grenze von %2; teilen Sie die Tabelle in eine Datei pro Auslage</translation>
    </message>
    <message>
        <source>the first line names no receiver</source>
        <translation>die erste Zeile nennt keinen Empfänger</translation>
    </message>
    <message>
        <source>there are %1 for %2</source>
        <translation>es gibt %1 für %2</translation>
    </message>
    <message>
        <source>%1 without an elevation were taken to lie at 0</source>
        <translation>für %1 ohne Höhe wurde die Höhe 0 angenommen</translation>
    </message>
    <message>
        <source>the shot has no elevation</source>
        <translation>der Schuss hat keine Höhe</translation>
    </message>
    <message>
        <source>line %1: only %2 for %3</source>
        <translation>Zeile %1: nur %2 für %3</translation>
    </message>
    <message>
        <source>the %1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>invalid stod argument</source>
        <translation>ungültiges Argument für stod</translation>
    </message>
    <message>
        <source>stod argument out of range</source>
        <translation>Argument für stod außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>Cannot write %1: there are %2 labels for %3 records</source>
        <translation>%1 kann nicht geschrieben werden: es gibt %2 Bezeichnungen für %3 Datensätze</translation>
    </message>
    <message>
        <source>the line holds more than %1 characters</source>
        <translation>die Zeile enthält mehr als %1 Zeichen</translation>
    </message>
    <message>
        <source>line %1 has no x and z; check the separator</source>
        <translation>Zeile %1 hat kein x und z; prüfen Sie das Trennzeichen</translation>
    </message>
    <message>
        <source>%1, line %2 does not begin with a number; check the separator</source>
        <translation>%1, Zeile %2 beginnt nicht mit einer Zahl; prüfen Sie das Trennzeichen</translation>
    </message>
    <message>
        <source>%1 holds more than %2 values</source>
        <translation>%1 enthält mehr als %2 Werte</translation>
    </message>
    <message>
        <source>there are only %1 shots</source>
        <translation>es gibt nur %1 Schüsse</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a layer number: 0 for none, 1, 2 or 3</source>
        <translation>„%1“ ist keine Schichtnummer: 0 für keine, 1, 2 oder 3</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, which is not how many layer numbers there are</source>
        <translation>Schuss %1 hat %2 Spuren; so viele Schichtnummern sind es nicht</translation>
    </message>
    <message>
        <source>%1: it holds layers of %2 shots, and there are %3</source>
        <translation>%1: die Datei enthält Schichten von %2 Schüssen, und es gibt %3</translation>
    </message>
    <message>
        <source>the first line is %1 where &quot;otte&quot; must stand</source>
        <translation>die erste Zeile ist %1, wo „otte“ stehen muss</translation>
    </message>
    <message>
        <source>the format version is missing</source>
        <translation>die Formatversion fehlt</translation>
    </message>
    <message>
        <source>the format version %1 was read as &quot;1.0&quot;</source>
        <translation>die Formatversion %1 wurde als „1.0“ gelesen</translation>
    </message>
    <message>
        <source>line 3 holds %1, not 2</source>
        <translation>Zeile 3 enthält %1, nicht 2</translation>
    </message>
    <message>
        <source>the %1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>the line of each %1 is missing</source>
        <translation>die Zeile mit diesen Werten fehlt: %1</translation>
    </message>
    <message>
        <source>there are %1 but %2</source>
        <translation>es gibt %1, aber %2</translation>
    </message>
    <message>
        <source>the file names %1 strings for %2 and %3</source>
        <translation>die Datei nennt für %2 und %3 als Anzahl der Geophonauslagen %1</translation>
    </message>
    <message>
        <source>there are more records than the %1</source>
        <translation>es gibt nur %1, aber mehr Datensätze</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2</source>
        <translation>die Datei endet zu früh: %1 von %2</translation>
    </message>
    <message>
        <source>the record names string %1 of %2</source>
        <translation>der Datensatz nennt Auslage %1 von %2</translation>
    </message>
    <message>
        <source>record %1 names trace set %2; it was taken for that of its own place</source>
        <translation>Datensatz %1 nennt Spurensatz %2; angenommen wurde der an seiner eigenen Stelle</translation>
    </message>
    <message>
        <source>the last line does not end in &quot;;&quot;: the file may be cut short</source>
        <translation>die letzte Zeile endet nicht mit „;“: die Datei ist womöglich abgeschnitten</translation>
    </message>
    <message>
        <source>the records need %1 in %2, the file holds %3</source>
        <translation>die Datensätze brauchen %1 (%2), die Datei enthält %3</translation>
    </message>
    <message>
        <source>no string claims the last %1: a record of each string must hold one time per geophone</source>
        <translation>keine Auslage beansprucht %1 am Ende: ein Datensatz jeder Auslage muss eine Zeit je Geophon enthalten</translation>
    </message>
    <message>
        <source>the strings without a record do not share %1 equally; the first ones took one more</source>
        <translation>die Auslagen ohne Datensatz teilen %1 nicht gleichmäßig auf; die ersten haben eines mehr erhalten</translation>
    </message>
    <message>
        <source>record %1 holds %2 for %3</source>
        <translation>Datensatz %1 enthält %2 für %3</translation>
    </message>
    <message>
        <source>%1 is too large for a palette</source>
        <translation>%1 ist zu groß für eine Palette</translation>
    </message>
    <message>
        <source>%1 is no palette file: %2</source>
        <translation>%1 ist keine Palettendatei: %2</translation>
    </message>
    <message>
        <source>the byte order mark before the first line was ignored</source>
        <translation>die Bytereihenfolgemarke vor der ersten Zeile wurde ignoriert</translation>
    </message>
    <message>
        <source>the %1 %2 is not a number</source>
        <translation>%1 %2 ist keine Zahl</translation>
    </message>
    <message>
        <source>the %1 %2 is out of range</source>
        <translation>%1 %2 liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>the %1 %2 is not finite</source>
        <translation>%1 %2 ist nicht endlich</translation>
    </message>
    <message>
        <source>the %1 %2 is not a whole number</source>
        <translation>%1 %2 ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>and more of this kind</source>
        <translation>und weitere dieser Art</translation>
    </message>
    <message>
        <source>line %1 and what follows it was ignored</source>
        <translation>Zeile %1 und alles danach wurden ignoriert</translation>
    </message>
    <message>
        <source>the file holds no shot</source>
        <translation>die Datei enthält keinen Schuss</translation>
    </message>
    <message>
        <source>Invalid phone list : %1</source>
        <translation>Ungültige Geophonliste : %1</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 für %2</translation>
    </message>
    <message>
        <source>Invalid header : %1</source>
        <translation>Ungültige Kopfzeile : %1</translation>
    </message>
    <message>
        <source>%1 must stand here</source>
        <translation>hier muss %1 stehen</translation>
    </message>
    <message>
        <source>Invalid match : %1</source>
        <translation>Ungültige Zuordnung : %1</translation>
    </message>
    <message>
        <source>line %1: %2 is not a number and was taken as 0</source>
        <translation>Zeile %1: %2 ist keine Zahl und wurde als 0 genommen</translation>
    </message>
    <message>
        <source>line %1: number %2 is named twice; its last value was taken</source>
        <translation>Zeile %1: Nummer %2 wird zweimal genannt; ihr letzter Wert wurde genommen</translation>
    </message>
    <message>
        <source>number %1 is not known</source>
        <translation>Nummer %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>%1 %2 has no %3</source>
        <translation>%1 %2 hat keine %3</translation>
    </message>
    <message>
        <source>Invalid times : %1</source>
        <translation>Ungültige Zeiten : %1</translation>
    </message>
    <message>
        <source>%1 of shot %2 for %3</source>
        <translation>%1 von Schuss %2 für %3</translation>
    </message>
    <message>
        <source>geophone distance</source>
        <translation>Geophonentfernung</translation>
    </message>
    <message>
        <source>geophone elevation</source>
        <translation>Geophonhöhe</translation>
    </message>
    <message>
        <source>shot distance</source>
        <translation>Schussentfernung</translation>
    </message>
    <message>
        <source>shot elevation</source>
        <translation>Schusshöhe</translation>
    </message>
    <message>
        <source>receiver number</source>
        <translation>Empfängernummer</translation>
    </message>
    <message>
        <source>receiver distance</source>
        <translation>Empfängerentfernung</translation>
    </message>
    <message>
        <source>receiver elevation</source>
        <translation>Empfängerhöhe</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>Entfernung</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>first-break time</source>
        <translation>Ersteinsatzzeit</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>format constant 2</source>
        <translation>Formatkonstante 2</translation>
    </message>
    <message>
        <source>number of geophone strings</source>
        <translation>Anzahl der Geophonauslagen</translation>
    </message>
    <message>
        <source>string of the record</source>
        <translation>Auslage des Datensatzes</translation>
    </message>
    <message>
        <source>trace set of the record</source>
        <translation>Spurensatz des Datensatzes</translation>
    </message>
    <message>
        <source>%1 geophone</source>
        <translation>%1 Geophon</translation>
    </message>
    <message>
        <source>%1 geophones</source>
        <translation>%1 Geophone</translation>
    </message>
    <message>
        <source>%1 receiver</source>
        <translation>%1 Empfänger</translation>
    </message>
    <message>
        <source>%1 receivers</source>
        <translation>%1 Empfänger</translation>
    </message>
    <message>
        <source>%1 shot</source>
        <translation>%1 Schuss</translation>
    </message>
    <message>
        <source>%1 shot position</source>
        <translation>%1 Schussposition</translation>
    </message>
    <message>
        <source>%1 shot positions</source>
        <translation>%1 Schusspositionen</translation>
    </message>
    <message>
        <source>%1 geophone distance</source>
        <translation>%1 Geophonentfernung</translation>
    </message>
    <message>
        <source>%1 geophone distances</source>
        <translation>%1 Geophonentfernungen</translation>
    </message>
    <message>
        <source>%1 shot distance</source>
        <translation>%1 Schussentfernung</translation>
    </message>
    <message>
        <source>%1 shot distances</source>
        <translation>%1 Schussentfernungen</translation>
    </message>
    <message>
        <source>%1 elevation</source>
        <translation>%1 Höhe</translation>
    </message>
    <message>
        <source>%1 elevations</source>
        <translation>%1 Höhen</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 Zeit</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1 Zeiten</translation>
    </message>
    <message>
        <source>%1 record</source>
        <translation>%1 Datensatz</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 Datensätze</translation>
    </message>
    <message>
        <source>%1 string</source>
        <translation>%1 Auslage</translation>
    </message>
    <message>
        <source>%1 strings</source>
        <translation>%1 Auslagen</translation>
    </message>
    <message>
        <source>%1 number</source>
        <translation>%1 Nummer</translation>
    </message>
    <message>
        <source>%1 numbers</source>
        <translation>%1 Nummern</translation>
    </message>
    <message>
        <source>%1 value</source>
        <translation>%1 Wert</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities and %4 draw flags</source>
        <translation>%1 Zeilen mit %2 Spalten passen nicht zu %3 Geschwindigkeiten und %4 Sichtbarkeitsangaben</translation>
    </message>
    <message>
        <source>cells with %1 nodes per side, %2 long, cannot be</source>
        <translation>Zellen mit %1 Knoten pro Seite und %2 Seitenlänge sind nicht möglich</translation>
    </message>
    <message>
        <source>a velocity is not a positive number</source>
        <translation>eine Geschwindigkeit ist keine positive Zahl</translation>
    </message>
    <message>
        <source>there is a grid, but no two geophones</source>
        <translation>es gibt ein Gitter, aber keine zwei Geophone</translation>
    </message>
    <message>
        <source>the grid cannot be built</source>
        <translation>das Gitter kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>the limit of its rays lies off the line; it is left out</source>
        <translation>die Grenze der Strahlen liegt nicht auf der Messlinie; sie wird weggelassen</translation>
    </message>
    <message>
        <source>its information density does not fit the grid; it is left out</source>
        <translation>die Informationsdichte passt nicht zum Gitter; sie wird weggelassen</translation>
    </message>
    <message>
        <source>what it tells of its last inversion cannot be; it is left out</source>
        <translation>die Angaben zur letzten Inversion sind nicht möglich; sie werden weggelassen</translation>
    </message>
    <message>
        <source>a geophone has no place</source>
        <translation>ein Geophon hat keine Position</translation>
    </message>
    <message>
        <source>a shot was recorded by geophone string %1 of %2</source>
        <translation>ein Schuss wurde von Geophonauslage %1 von %2 aufgezeichnet</translation>
    </message>
    <message>
        <source>a shot has no place</source>
        <translation>ein Schuss hat keine Position</translation>
    </message>
    <message>
        <source>the grid cannot be built: %1</source>
        <translation>das Gitter kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>layers belong to shot %1, but %2 shots exist</source>
        <translation>Schichten gehören zu Schuss %1, aber es gibt %2 Schüsse</translation>
    </message>
    <message>
        <source>an arrival belongs to a layer that does not exist</source>
        <translation>ein Einsatz gehört zu einer Schicht, die es nicht gibt</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>sie fehlt</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>You may not read it.</source>
        <translation>Sie dürfen sie nicht lesen.</translation>
    </message>
    <message>
        <source>It cannot be extracted: %1.</source>
        <translation>Das Projekt kann nicht entpackt werden: %1.</translation>
    </message>
    <message>
        <source>No temporary folder can be created in %1.</source>
        <translation>In %1 kann kein temporärer Ordner angelegt werden.</translation>
    </message>
    <message>
        <source>It cannot be extracted.</source>
        <translation>Das Projekt kann nicht entpackt werden.</translation>
    </message>
    <message>
        <source>It cannot be loaded: %1</source>
        <translation>Das Projekt kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>its title has control characters or is too long; it reads %1 now</source>
        <translation>der Titel enthält Steuerzeichen oder ist zu lang; er lautet jetzt %1</translation>
    </message>
    <message>
        <source>its RMS misfit is no number; it is left out</source>
        <translation>die RMS-Abweichung ist keine Zahl; sie wird weggelassen</translation>
    </message>
    <message>
        <source>its limits of velocity cannot be; they are as in a new survey</source>
        <translation>die Geschwindigkeitsgrenzen sind nicht möglich; sie sind wie in einer neuen Messung</translation>
    </message>
    <message>
        <source>a layer of its starting model cannot be; the model is left out</source>
        <translation>eine Schicht des Startmodells ist nicht möglich; das Modell wird weggelassen</translation>
    </message>
    <message>
        <source>a cell size that it proposes cannot be; it proposes new ones</source>
        <translation>eine vorgeschlagene Zellengröße ist nicht möglich; es werden neue vorgeschlagen</translation>
    </message>
    <message>
        <source>its geographic coordinates are no numbers; they are left out</source>
        <translation>die geographischen Koordinaten sind keine Zahlen; sie werden weggelassen</translation>
    </message>
    <message>
        <source>no section can be drawn with a vertical exaggeration of %1; it is %2 now</source>
        <translation>mit einer Überhöhung von %1 kann kein Schnitt gezeichnet werden; sie ist jetzt %2</translation>
    </message>
    <message>
        <source>its contours cannot be drawn so; they are put right</source>
        <translation>die Isolinien können so nicht gezeichnet werden; sie werden berichtigt</translation>
    </message>
    <message>
        <source>its section shows a quantity that does not exist; it is the velocity now</source>
        <translation>der Schnitt zeigt eine Größe, die es nicht gibt; jetzt ist es die Geschwindigkeit</translation>
    </message>
    <message>
        <source>its geophone markers have a size that does not exist; it is normal now</source>
        <translation>die Geophonsymbole haben eine Größe, die es nicht gibt; sie ist jetzt normal</translation>
    </message>
    <message>
        <source>a time shift of its arrivals cannot be; it is 0 now</source>
        <translation>eine Zeitverschiebung der Einsätze ist nicht möglich; sie ist jetzt 0</translation>
    </message>
    <message>
        <source>its layered profile cannot be; it is left out and can be built again</source>
        <translation>das Schichtprofil ist nicht möglich; es wird weggelassen und kann neu erstellt werden</translation>
    </message>
    <message>
        <source>its coverage and figures do not go with the grid and the inversion of the project</source>
        <translation>Abdeckung und Zahlen passen nicht zu Gitter und Inversion des Projekts</translation>
    </message>
    <message>
        <source>%1 is no name of a file</source>
        <translation>%1 ist kein Name einer Datei</translation>
    </message>
    <message>
        <source>trace set %1 has %2 traces, but %3 filtered copies</source>
        <translation>Spurensatz %1 hat %2 Spuren, aber %3 gefilterte Kopien</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten and its traces are empty</source>
        <translation>Schuss %1: die Schussdatei heißt %2, was kein einfacher Dateiname ist; der Name wird verworfen, und die Spuren sind leer</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten</source>
        <translation>Schuss %1: die Schussdatei heißt %2, was kein einfacher Dateiname ist; der Name wird verworfen</translation>
    </message>
    <message>
        <source>%1 has %2 traces instead of %3</source>
        <translation>%1 hat %2 statt %3 Spuren</translation>
    </message>
    <message>
        <source>there are %1 trace sets, but %2 travel-time records</source>
        <translation>es gibt %1 Spurensätze, aber %2 Laufzeitdatensätze</translation>
    </message>
    <message>
        <source>no travel-time record belongs to trace set %1</source>
        <translation>zu Spurensatz %1 gehört kein Laufzeitdatensatz</translation>
    </message>
    <message>
        <source>%1 and %2 have different numbers of traces</source>
        <translation>%1 und %2 haben verschieden viele Spuren</translation>
    </message>
    <message>
        <source>wave type %1 does not exist</source>
        <translation>den Wellentyp %1 gibt es nicht</translation>
    </message>
    <message>
        <source>there are more files or filtered copies than trace sets</source>
        <translation>es gibt mehr Dateien oder gefilterte Kopien als Spurensätze</translation>
    </message>
    <message>
        <source>trace set %1 has a position or delay that cannot be</source>
        <translation>Spurensatz %1 hat eine unmögliche Position oder Verzögerung</translation>
    </message>
    <message>
        <source>trace set %1 has a sample that is no finite number</source>
        <translation>Spurensatz %1 hat einen Abtastwert, der keine endliche Zahl ist</translation>
    </message>
    <message>
        <source>Its parts cannot be written in %1; is the disk full?</source>
        <translation>Die Teile des Projekts können nicht in %1 geschrieben werden; ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written.</source>
        <translation>Das Archiv %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>It cannot be put together: %1</source>
        <translation>Das Projekt kann nicht zusammengestellt werden: %1</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>it unpacks to more than %1, which no project of %2 does</source>
        <translation>der Inhalt ist entpackt größer als %1, was bei keinem Projekt von %2 vorkommt</translation>
    </message>
    <message>
        <source>it unpacks to %1 or more, and the disk has room for %2</source>
        <translation>der Inhalt ist entpackt mindestens %1 groß, und auf dem Datenträger sind %2 frei</translation>
    </message>
    <message>
        <source>%1 cannot be extracted: %2</source>
        <translation>%1 kann nicht entpackt werden: %2</translation>
    </message>
    <message>
        <source>%1 in it cannot be read: %2</source>
        <translation>%1 darin kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 in it is damaged: %2</source>
        <translation>%1 darin ist beschädigt: %2</translation>
    </message>
    <message>
        <source>%1 in it is not as long as it says</source>
        <translation>%1 darin ist nicht so lang wie angegeben</translation>
    </message>
    <message>
        <source>The file %1 cannot be added to the archive.</source>
        <translation>Die Datei %1 kann nicht in das Archiv aufgenommen werden.</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written: %2.</source>
        <translation>Das Archiv %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>it holds %1 files, more than %2</source>
        <translation>das Archiv enthält %1 Dateien, mehr als %2</translation>
    </message>
    <message>
        <source>%1 in it is no name of a file without a folder</source>
        <translation>%1 darin ist kein Name einer Datei ohne Ordner</translation>
    </message>
    <message>
        <source>two files in it are called %1</source>
        <translation>zwei Dateien darin heißen %1</translation>
    </message>
    <message>
        <source>The files of the project are %1, more than the %2 that can be opened again.</source>
        <translation>Das Projekt hat %1 Dateien, mehr als die %2, die sich wieder öffnen lassen.</translation>
    </message>
    <message>
        <source>it is no archive of a project, or damaged: %1</source>
        <translation>es ist kein Archiv eines Projekts oder beschädigt: %1</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>es ist nichts darin</translation>
    </message>
    <message>
        <source>it is no archive of a project: there is no %1 in it</source>
        <translation>es ist kein Archiv eines Projekts: %1 fehlt darin</translation>
    </message>
    <message>
        <source>its list of files is damaged</source>
        <translation>die Dateiliste ist beschädigt</translation>
    </message>
    <message>
        <source>it cannot be closed: %1</source>
        <translation>das Archiv kann nicht geschlossen werden: %1</translation>
    </message>
    <message>
        <source>its headers promise %1 traces of more data than can come from %2 bytes; the file is damaged or no shot file</source>
        <translation>die Header versprechen %1 Spuren mit mehr Daten, als aus %2 Bytes kommen können; die Datei ist beschädigt oder keine Schussdatei</translation>
    </message>
    <message>
        <source>trace %1</source>
        <translation>Spur %1</translation>
    </message>
    <message>
        <source>%1 traces, the first of them trace %2,</source>
        <translation>%1 Spuren, die erste davon Spur %2,</translation>
    </message>
    <message>
        <source>the %1 in the header of %2 is no finite number; what cannot be used of it was taken as 0</source>
        <translation>%1 im Header von %2 ist keine endliche Zahl; was davon nicht brauchbar ist, wurde als 0 genommen</translation>
    </message>
    <message>
        <source>it is no SEG-2 file of little-endian numbers</source>
        <translation>es ist keine SEG-2-Datei mit Little-Endian-Zahlen</translation>
    </message>
    <message>
        <source>its last trace has no usable sample interval</source>
        <translation>die letzte Spur hat kein brauchbares Abtastintervall</translation>
    </message>
    <message>
        <source>source position</source>
        <translation>Quellposition</translation>
    </message>
    <message>
        <source>receiver position</source>
        <translation>Empfängerposition</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>data format code %1: one 16-bit sample is taken of every four bytes</source>
        <translation>Datenformatcode %1: von je vier Bytes wird ein 16-Bit-Abtastwert genommen</translation>
    </message>
    <message>
        <source>data format code %1 is not read; its samples are 0</source>
        <translation>Datenformatcode %1 wird nicht gelesen; die Abtastwerte sind 0</translation>
    </message>
    <message>
        <source>its traces are taken to lie as close as the 16-bit data of the SEG-Y file before it</source>
        <translation>es wird angenommen, dass die Spuren so dicht liegen wie die 16-Bit-Daten der SEG-Y-Datei davor</translation>
    </message>
    <message>
        <source>it says that its numbers are little-endian, but is read big-endian as a file before it; load the little-endian files first</source>
        <translation>die Datei gibt ihre Zahlen als Little-Endian an, wird aber wie eine Datei davor als Big-Endian gelesen; laden Sie die Little-Endian-Dateien zuerst</translation>
    </message>
    <message>
        <source>its numbers seem to be in the other byte order; load a SEG-Y file of that order first</source>
        <translation>die Zahlen scheinen die andere Bytereihenfolge zu haben; laden Sie zuerst eine SEG-Y-Datei dieser Reihenfolge</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 bytes after the traces that its headers name were not read</source>
        <translation>%1 Bytes nach den in den Headern genannten Spuren wurden nicht gelesen</translation>
    </message>
    <message>
        <source>data format code %1 (IBM floats) is not read; its samples are 0</source>
        <translation>Datenformatcode %1 (IBM-Gleitkommazahlen) wird nicht gelesen; die Abtastwerte sind 0</translation>
    </message>
    <message>
        <source>Error while loading %1</source>
        <translation>Fehler beim Laden von %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>the survey holds S-wave pairs; add more of them in the survey geometry, or start a new survey to load shot files</source>
        <translation>die Messung enthält S-Wellen-Paare; fügen Sie weitere in der Geometrie der Messung hinzu oder beginnen Sie eine neue Messung, um Schussdateien zu laden</translation>
    </message>
    <message>
        <source>the survey holds picks without traces; start a new survey to load shot files</source>
        <translation>die Messung enthält Picks ohne Spuren; beginnen Sie eine neue Messung, um Schussdateien zu laden</translation>
    </message>
    <message>
        <source>the file holds no trace</source>
        <translation>die Datei enthält keine Spur</translation>
    </message>
    <message>
        <source>the file is cut short: %1 bytes that its headers promise are missing and were taken as zeros</source>
        <translation>die Datei ist abgeschnitten: %1 Bytes, die ihre Header versprechen, fehlen und wurden als Nullen genommen</translation>
    </message>
    <message>
        <source>%1 samples that are no finite numbers were set to 0</source>
        <translation>%1 Abtastwerte, die keine endlichen Zahlen sind, wurden auf 0 gesetzt</translation>
    </message>
    <message>
        <source>its traces have different numbers of samples</source>
        <translation>die Spuren haben verschieden viele Abtastwerte</translation>
    </message>
    <message>
        <source>its traces have different sample intervals</source>
        <translation>die Spuren haben verschiedene Abtastintervalle</translation>
    </message>
    <message>
        <source>a sample interval is not positive, so that times mean nothing</source>
        <translation>ein Abtastintervall ist nicht positiv, sodass Zeiten nichts bedeuten</translation>
    </message>
    <message>
        <source>The shot file %1 could not be copied; its traces are saved without it.</source>
        <translation>Die Schussdatei %1 konnte nicht kopiert werden; ihre Spuren sind ohne sie gespeichert.</translation>
    </message>
    <message>
        <source>Of the shot files %1 and %2 only the second is in the project; the traces of both are.</source>
        <translation>Von den Schussdateien %1 und %2 ist nur die zweite im Projekt; die Spuren beider sind darin.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>a file holds no traces</source>
        <translation>eine Datei enthält keine Spuren</translation>
    </message>
    <message>
        <source>the DX file has %1 traces, the SX file %2</source>
        <translation>die DX-Datei hat %1 Spuren, die SX-Datei %2</translation>
    </message>
    <message>
        <source>trace %1 has a sample interval of %2 in the DX file and of %3 in the SX file</source>
        <translation>Spur %1 hat in der DX-Datei ein Abtastintervall von %2 und in der SX-Datei von %3</translation>
    </message>
    <message>
        <source>trace %1 has a delay of %2 in the DX file and of %3 in the SX file</source>
        <translation>Spur %1 hat in der DX-Datei eine Verzögerung von %2 und in der SX-Datei von %3</translation>
    </message>
    <message>
        <source>DX and SX differ in receiver positions; those of DX count</source>
        <translation>DX und SX unterscheiden sich in den Empfängerpositionen; die von DX gelten</translation>
    </message>
    <message>
        <source>DX and SX differ in source position; that of DX counts</source>
        <translation>DX und SX unterscheiden sich in der Quellposition; die von DX gilt</translation>
    </message>
    <message>
        <source>DX and SX differ in length; that of DX counts</source>
        <translation>DX und SX unterscheiden sich in der Länge; die von DX gilt</translation>
    </message>
    <message>
        <source>%1: DX and SX are the same file; their difference is nothing</source>
        <translation>%1: DX und SX sind dieselbe Datei; ihre Differenz ist null</translation>
    </message>
    <message>
        <source>%1 and %2 are no pair: %3</source>
        <translation>%1 und %2 sind kein Paar: %3</translation>
    </message>
    <message>
        <source>a geophone of string %1 has no finite position; edit the geometry first</source>
        <translation>ein Geophon der Auslage %1 hat keine endliche Position; bearbeiten Sie zuerst die Geometrie</translation>
    </message>
    <message>
        <source>shot %1 has no finite position; edit the geometry first</source>
        <translation>Schuss %1 hat keine endliche Position; bearbeiten Sie zuerst die Geometrie</translation>
    </message>
    <message>
        <source>File %1 cannot be open.</source>
        <translation>Die Datei %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>a record names geophone string %1 of %2</source>
        <translation>ein Datensatz nennt Geophonauslage %1 von %2</translation>
    </message>
    <message>
        <source>the file holds picks of %1 shots, the survey has %2; the picks were not taken</source>
        <translation>die Datei enthält Picks von %1 Schüssen, die Messung hat %2; die Picks wurden nicht übernommen</translation>
    </message>
    <message>
        <source>trace set %1 is named twice or not in the survey; the picks were not taken</source>
        <translation>Spurensatz %1 wird zweimal genannt oder ist nicht in der Messung; die Picks wurden nicht übernommen</translation>
    </message>
    <message>
        <source>the file holds %1 times for trace set %2, which has %3 traces; the picks were not taken</source>
        <translation>die Datei enthält %1 Zeiten für Spurensatz %2, der %3 Spuren hat; die Picks wurden nicht übernommen</translation>
    </message>
    <message>
        <source>a record of the survey has no trace set; the picks were not taken</source>
        <translation>ein Datensatz der Messung hat keinen Spurensatz; die Picks wurden nicht übernommen</translation>
    </message>
    <message>
        <source>the line &quot;INFO&quot; is missing</source>
        <translation>die Zeile „INFO“ fehlt</translation>
    </message>
    <message>
        <source>the line begins with %1 where %2 must stand</source>
        <translation>die Zeile beginnt mit %1, wo %2 stehen muss</translation>
    </message>
    <message>
        <source>the line %1 is missing</source>
        <translation>die Zeile %1 fehlt</translation>
    </message>
    <message>
        <source>%1 stands without a value</source>
        <translation>%1 steht ohne Wert</translation>
    </message>
    <message>
        <source>the %1 is negative</source>
        <translation>%1 ist negativ</translation>
    </message>
    <message>
        <source>the file ends before its last receiver line</source>
        <translation>die Datei endet vor ihrer letzten Empfängerzeile</translation>
    </message>
    <message>
        <source>the receiver line holds %1 instead of 4</source>
        <translation>die Empfängerzeile enthält %1 statt 4</translation>
    </message>
    <message>
        <source>the receiver line holds more than 4 values</source>
        <translation>die Empfängerzeile enthält mehr als 4 Werte</translation>
    </message>
    <message>
        <source>the root element is not &quot;%1&quot;</source>
        <translation>das Wurzelelement ist nicht „%1“</translation>
    </message>
    <message>
        <source>the document ends too early</source>
        <translation>das Dokument endet zu früh</translation>
    </message>
    <message>
        <source>a &apos;%1&apos; is missing</source>
        <translation>das Zeichen „%1“ fehlt</translation>
    </message>
    <message>
        <source>it declares a document type or a data section</source>
        <translation>ein Dokumenttyp oder ein Datenabschnitt ist deklariert</translation>
    </message>
    <message>
        <source>an element has too long a name</source>
        <translation>ein Element hat einen zu langen Namen</translation>
    </message>
    <message>
        <source>an element has no name</source>
        <translation>ein Element hat keinen Namen</translation>
    </message>
    <message>
        <source>an attribute has no quotes</source>
        <translation>ein Attribut hat keine Anführungszeichen</translation>
    </message>
    <message>
        <source>an attribute does not end</source>
        <translation>ein Attribut endet nicht</translation>
    </message>
    <message>
        <source>its elements are nested too deep</source>
        <translation>die Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends where &quot;%2&quot; should</source>
        <translation>„%1“ endet, wo „%2“ enden müsste</translation>
    </message>
    <message>
        <source>something follows the root element</source>
        <translation>nach dem Wurzelelement folgt noch etwas</translation>
    </message>
    <message>
        <source>there is text in &quot;%1&quot;, which holds elements</source>
        <translation>in „%1“, das Elemente enthält, steht Text</translation>
    </message>
    <message>
        <source>an entity does not end</source>
        <translation>eine Entität endet nicht</translation>
    </message>
    <message>
        <source>an unknown entity</source>
        <translation>eine unbekannte Entität</translation>
    </message>
    <message>
        <source>a character that does not exist</source>
        <translation>ein Zeichen, das es nicht gibt</translation>
    </message>
    <message>
        <source>a byte of value 0</source>
        <translation>ein Byte mit dem Wert 0</translation>
    </message>
    <message>
        <source>there is an element in &quot;%1&quot;, which holds text</source>
        <translation>in „%1“, das Text enthält, steht ein Element</translation>
    </message>
    <message>
        <source>a text is too long</source>
        <translation>ein Text ist zu lang</translation>
    </message>
    <message>
        <source>it holds too many sequences</source>
        <translation>die Datei enthält zu viele Sequenzen</translation>
    </message>
    <message>
        <source>it holds bytes that no text holds</source>
        <translation>die Datei enthält Bytes, die kein Text enthält</translation>
    </message>
    <message>
        <source>it holds no XML</source>
        <translation>die Datei enthält kein XML</translation>
    </message>
    <message>
        <source>it ends within an element</source>
        <translation>die Datei endet innerhalb eines Elements</translation>
    </message>
    <message>
        <source>it has a malformed tag</source>
        <translation>die Datei hat ein fehlerhaftes Tag</translation>
    </message>
    <message>
        <source>it has a document type or raw data, which no file of this kind has</source>
        <translation>die Datei hat einen Dokumenttyp oder Rohdaten, was keine Datei dieser Art hat</translation>
    </message>
    <message>
        <source>it closes an element that it has not opened</source>
        <translation>die Datei schließt ein Element, das sie nicht geöffnet hat</translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <translation>die Elemente der Datei sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>not a finite time</source>
        <translation>keine endliche Zeit</translation>
    </message>
    <message>
        <source>%1, above an hour</source>
        <translation>%1, über einer Stunde</translation>
    </message>
    <message>
        <source>%1, beyond its record of %2</source>
        <translation>%1, jenseits der Aufzeichnung von %2</translation>
    </message>
    <message>
        <source>shot %1, trace %2 (%3)</source>
        <translation>Schuss %1, Spur %2 (%3)</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1; und %2 weitere</translation>
    </message>
    <message>
        <source>a pick that cannot be was dropped: %1</source>
        <translation>ein unmöglicher Pick wurde verworfen: %1</translation>
    </message>
    <message>
        <source>%1 picks that cannot be were dropped: %2</source>
        <translation>%1 unmögliche Picks wurden verworfen: %2</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>%1 has no traces to pick on</source>
        <translation>%1 hat keine Spuren, auf denen gepickt werden könnte</translation>
    </message>
    <message>
        <source>the machine has no memory left to pick first breaks</source>
        <translation>der Rechner hat keinen Speicher mehr, um Ersteinsätze zu picken</translation>
    </message>
    <message>
        <source>%1 has no record of times to screen</source>
        <translation>%1 hat keinen Laufzeitdatensatz, der geprüft werden könnte</translation>
    </message>
    <message>
        <source>the picks of %1 are not screened: it has no geophone string</source>
        <translation>die Picks von %1 werden nicht geprüft: es gibt dazu keine Geophonauslage</translation>
    </message>
    <message>
        <source>must be above 0 Hz and below %1 Hz, the highest frequency of the spectrum</source>
        <translation>muss über 0 Hz und unter %1 Hz liegen, der höchsten Frequenz des Spektrums</translation>
    </message>
    <message>
        <source>has no limit to keep to, as the spectrum has no frequency above 0 Hz: the traces are too short or their sample interval is not known</source>
        <translation>hat keine Grenze, an die sie sich halten könnte, da das Spektrum keine Frequenz über 0 Hz hat: die Spuren sind zu kurz, oder ihr Abtastintervall ist nicht bekannt</translation>
    </message>
    <message>
        <source>No filter applied. The %1 cut-off of %2 Hz %3.</source>
        <translation>Kein Filter angewendet. Die %1-Grenzfrequenz von %2 Hz %3.</translation>
    </message>
    <message>
        <source>there are no traces</source>
        <translation>es gibt keine Spuren</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>Kein Filter angewendet. Die Filterordnung muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>low-pass</source>
        <translation>Tiefpass</translation>
    </message>
    <message>
        <source>high-pass</source>
        <translation>Hochpass</translation>
    </message>
    <message>
        <source>sample %1 is %2, which no filter can take</source>
        <translation>Abtastwert %1 ist %2, was kein Filter verarbeiten kann</translation>
    </message>
    <message>
        <source>the result does not fit single precision; scale the samples down</source>
        <translation>das Ergebnis passt nicht in einfache Genauigkeit; skalieren Sie die Abtastwerte herunter</translation>
    </message>
    <message>
        <source>No filter applied. Filter order %1 is above the limit of %2.</source>
        <translation>Kein Filter angewendet. Die Filterordnung %1 liegt über der Grenze von %2.</translation>
    </message>
    <message>
        <source>No filter applied. The cut-off is %1 of the sample rate; it must be above 0 and below 0.5.</source>
        <translation>Kein Filter angewendet. Die Grenzfrequenz ist das %1-Fache der Abtastrate; sie muss über 0 und unter 0,5 liegen.</translation>
    </message>
    <message>
        <source>No filter applied. Single precision cannot hold a filter of order %1 with a cut-off of %2 of the sample rate; choose a lower order or a cut-off nearer to the middle of the range.</source>
        <translation>Kein Filter angewendet. Einfache Genauigkeit reicht nicht für einen Filter der Ordnung %1 mit einer Grenzfrequenz vom %2-Fachen der Abtastrate; wählen Sie eine kleinere Ordnung oder eine Grenzfrequenz näher an der Mitte des Bereichs.</translation>
    </message>
    <message>
        <source>No filter applied. The filter cannot be created.</source>
        <translation>Kein Filter angewendet. Der Filter kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>the energy of the samples does not fit single precision; scale them down</source>
        <translation>die Energie der Abtastwerte passt nicht in einfache Genauigkeit; skalieren Sie sie herunter</translation>
    </message>
    <message>
        <source>There is no grid with cells; build the grid first.</source>
        <translation>Es gibt kein Gitter mit Zellen; erstellen Sie zuerst das Gitter.</translation>
    </message>
    <message>
        <source>The velocity model cannot be used: %1</source>
        <translation>Das Geschwindigkeitsmodell kann nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>Ray tracing of shot %1 failed: %2</source>
        <translation>Die Strahlverfolgung von Schuss %1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>Choose a positive cell size and no negative depth.</source>
        <translation>Wählen Sie eine positive Zellengröße und keine negative Tiefe.</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
Please set the position of geophones
</source>
        <translation>Die Geophone haben keine Geometrie! 
Bitte legen Sie die Positionen der Geophone fest
</translation>
    </message>
    <message>
        <source>A position of the survey lies more than 100 000 km away; please check the geometry.</source>
        <translation>Eine Position der Messung liegt mehr als 100 000 km entfernt; bitte prüfen Sie die Geometrie.</translation>
    </message>
    <message>
        <source>A grid of cells of %1 with %2 nodes per side, %3 deep, cannot be built; choose a positive cell size, two nodes at least and no negative depth.</source>
        <translation>Ein Gitter aus Zellen von %1 mit %2 Knoten pro Seite und %3 Tiefe kann nicht erstellt werden; wählen Sie eine positive Zellengröße, mindestens zwei Knoten und keine negative Tiefe.</translation>
    </message>
    <message>
        <source>The grid could not be built; see the error stream.</source>
        <translation>Das Gitter konnte nicht erstellt werden; siehe die Fehlerausgabe.</translation>
    </message>
    <message>
        <source>The grid could not be built: %1</source>
        <translation>Das Gitter konnte nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>There is no grid yet; build the grid first.</source>
        <translation>Es gibt noch kein Gitter; erstellen Sie zuerst das Gitter.</translation>
    </message>
    <message>
        <source>The smoothing parameter must be 1 at least.</source>
        <translation>Der Glättungsparameter muss mindestens 1 sein.</translation>
    </message>
    <message>
        <source>The smoothed velocity model cannot be used: %1</source>
        <translation>Das geglättete Geschwindigkeitsmodell kann nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>The grid could not be smoothed: %1</source>
        <translation>Das Gitter konnte nicht geglättet werden: %1</translation>
    </message>
    <message>
        <source>The rays could not be traced: %1</source>
        <translation>Die Strahlen konnten nicht verfolgt werden: %1</translation>
    </message>
    <message>
        <source>Iterations and smoothing parameter must be 1 at least.</source>
        <translation>Iterationen und Glättungsparameter müssen mindestens 1 sein.</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers; %1 is none.</source>
        <translation>Die Geschwindigkeitsgrenzen müssen positive Zahlen sein; %1 ist keine.</translation>
    </message>
    <message>
        <source>its gradient has no colours</source>
        <translation>der Farbverlauf hat keine Farben</translation>
    </message>
    <message>
        <source>a colour stop of its gradient is not a finite number</source>
        <translation>ein Regler des Farbverlaufs ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>its range of values is out of bounds</source>
        <translation>der Wertebereich liegt außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>its gradient has %1 colour stops, more than %2</source>
        <translation>der Farbverlauf hat %1 Regler, mehr als %2</translation>
    </message>
    <message>
        <source>A section has 0 to %1 contour values.</source>
        <translation>Ein Schnitt hat 0 bis %1 Isowerte.</translation>
    </message>
    <message>
        <source>The value range of the section is empty: its maximum must be greater than its minimum.</source>
        <translation>Der Wertebereich des Schnitts ist leer: Sein Maximum muss größer sein als sein Minimum.</translation>
    </message>
    <message>
        <source>There is no section to draw: no cell that is shown has a value for &quot;%1&quot;.</source>
        <translation>Es gibt keinen Schnitt zu zeichnen: Keine gezeigte Zelle hat einen Wert für „%1“.</translation>
    </message>
    <message>
        <source>There is no section to draw: the survey has no grid yet. Build one.</source>
        <translation>Es gibt keinen Schnitt zu zeichnen: Die Messung hat noch kein Gitter. Erstellen Sie eines.</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Vertikaler Geschwindigkeitsgradient</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplace der Geschwindigkeit</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Informationsdichte</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>The layers give a velocity of %1 at a depth of %2, which is no velocity of the ground. Let the layers cover the whole depth of the grid, or make the change between them gentler.</source>
        <translation>Die Schichten ergeben in %2 Tiefe eine Geschwindigkeit von %1, die es im Untergrund nicht gibt. Lassen Sie die Schichten die ganze Tiefe des Gitters abdecken, oder machen Sie den Übergang zwischen ihnen sanfter.</translation>
    </message>
    <message>
        <source>a number is out of range or not finite</source>
        <translation>eine Zahl liegt außerhalb des Bereichs oder ist nicht endlich</translation>
    </message>
    <message>
        <source>the value of %1 is not a number it can hold</source>
        <translation>der Wert von %1 ist keine Zahl, die dort stehen kann</translation>
    </message>
    <message>
        <source>palette %1: %2</source>
        <translation>Palette %1: %2</translation>
    </message>
    <message>
        <source>there are no palettes in it</source>
        <translation>es enthält keine Paletten</translation>
    </message>
    <message>
        <source>palette %1: %2; it is left out</source>
        <translation>Palette %1: %2; sie wird ausgelassen</translation>
    </message>
    <message>
        <source>the name of palette %1 has control characters; they are blanks now</source>
        <translation>der Name der Palette %1 enthält Steuerzeichen; sie sind jetzt Leerzeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number that it can hold</source>
        <translation>„%1“ ist keine Zahl, die dort stehen kann</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>„%1“ ist weder wahr noch falsch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>„%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>The last steps of the inversion failed: %1</source>
        <translation>Die letzten Schritte der Inversion sind fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>AGC</source>
        <translation>AGC</translation>
    </message>
    <message>
        <source>Hushel</source>
        <translation>Hushel</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>SEG2 format (%1)</source>
        <translation>SEG2-Format (%1)</translation>
    </message>
    <message>
        <source>SEGY format (%1)</source>
        <translation>SEGY-Format (%1)</translation>
    </message>
    <message>
        <source>SU format (%1)</source>
        <translation>SU-Format (%1)</translation>
    </message>
    <message>
        <source>Open Travel Time Exchange format (%1)</source>
        <translation>Open-Travel-Time-Exchange-Format (%1)</translation>
    </message>
    <message>
        <source>T-x curves (%1)</source>
        <translation>T-x-Kurven (%1)</translation>
    </message>
    <message>
        <source>Sectioned pick table (%1)</source>
        <translation>Pick-Tabelle mit Abschnitten (%1)</translation>
    </message>
    <message>
        <source>Pick table (%1)</source>
        <translation>Pick-Tabelle (%1)</translation>
    </message>
    <message>
        <source>Talvesk projects (%1)</source>
        <translation>Talvesk-Projekte (%1)</translation>
    </message>
    <message>
        <source>Seismic files (%1)</source>
        <translation>Seismische Dateien (%1)</translation>
    </message>
    <message>
        <source>Travel times (%1)</source>
        <translation>Laufzeiten (%1)</translation>
    </message>
    <message>
        <source>the coverage of the last inversion and its figures are not known</source>
        <translation>die Abdeckung der letzten Inversion und ihre Zahlen sind nicht bekannt</translation>
    </message>
    <message>
        <source>every pick counts as confirmed</source>
        <translation>jeder Pick gilt als bestätigt</translation>
    </message>
    <message>
        <source>%1 and what else this version does not know, %2 in all, is too much to be kept; it will not be in the next save</source>
        <translation>%1 und was diese Version sonst nicht kennt, insgesamt %2, ist zu viel, um behalten zu werden; es fehlt beim nächsten Speichern</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of Talvesk; it stays as it is, but %2</source>
        <translation>%1 wurde von einer neueren Version von Talvesk geschrieben; es bleibt, wie es ist, aber %2</translation>
    </message>
    <message>
        <source>%1 is of another version of Talvesk; it stays as it is, but is not used</source>
        <translation>%1 stammt von einer anderen Version von Talvesk; es bleibt, wie es ist, wird aber nicht verwendet</translation>
    </message>
    <message>
        <source>%1 of a newer version of Talvesk gave way to that of this version: what it told of has changed.</source>
        <translation>%1 einer neueren Version von Talvesk wurde durch das dieser Version ersetzt: Was es beschrieb, hat sich geändert.</translation>
    </message>
    <message>
        <source>it is about other picks than those of the project</source>
        <translation>es betrifft andere Picks als die des Projekts</translation>
    </message>
    <message>
        <source>its suffix is none of %1</source>
        <translation>die Endung ist keine von %1</translation>
    </message>
    <message>
        <source>Invalid input TT file : %1 (its suffix is none of %2)</source>
        <translation>Ungültige Laufzeitdatei : %1 (ihre Endung ist keine von %2)</translation>
    </message>
    <message>
        <source>Open shot files</source>
        <translation>Schussdateien öffnen</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Schuss entfernen</translation>
    </message>
    <message>
        <source>Import travel times</source>
        <translation>Laufzeiten importieren</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Zeiten ab dem Schuss zählen</translation>
    </message>
    <message>
        <source>Edit picks</source>
        <translation>Picks bearbeiten</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Picks bestätigen</translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation>AutoPick</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>S-wave recordings</source>
        <translation>S-Wellen-Aufzeichnungen</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Modellgeschwindigkeit festlegen</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Glättung anwenden</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Tomographische Inversion starten</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Refraktion</translation>
    </message>
    <message>
        <source>Set title</source>
        <translation>Titel festlegen</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolinien</translation>
    </message>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Geographische Koordinaten</translation>
    </message>
    <message>
        <source>another edit is under way; try again when it is through</source>
        <translation>eine andere Bearbeitung läuft; versuchen Sie es erneut, wenn sie abgeschlossen ist</translation>
    </message>
    <message>
        <source>the edit failed: %1</source>
        <translation>die Bearbeitung ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>no edit is under way</source>
        <translation>es läuft keine Bearbeitung</translation>
    </message>
    <message>
        <source>%1 would change what it must not; nothing was changed</source>
        <translation>„%1“ würde ändern, was es nicht darf; es wurde nichts geändert</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Picks entfernen</translation>
    </message>
    <message>
        <source>Remove pick</source>
        <translation>Pick entfernen</translation>
    </message>
    <message>
        <source>Nudge pick</source>
        <translation>Pick verrücken</translation>
    </message>
    <message>
        <source>Set pick</source>
        <translation>Pick setzen</translation>
    </message>
    <message>
        <source>Move pick</source>
        <translation>Pick verschieben</translation>
    </message>
    <message>
        <source>Draw picks</source>
        <translation>Picks zeichnen</translation>
    </message>
    <message>
        <source>the survey has no such shot; check the recordings again</source>
        <translation>die Messung hat keinen solchen Schuss; prüfen Sie die Aufzeichnungen erneut</translation>
    </message>
    <message>
        <source>shot %1: a position is missing, no number or absurdly far away</source>
        <translation>Schuss %1: eine Position fehlt, ist keine Zahl oder unsinnig weit entfernt</translation>
    </message>
    <message>
        <source>shot %1: its geophone string has another number of geophones than the proposal; check the recordings again</source>
        <translation>Schuss %1: seine Geophonauslage hat eine andere Anzahl von Geophonen als der Vorschlag; prüfen Sie die Aufzeichnungen erneut</translation>
    </message>
    <message>
        <source>there is no trace %1; check the recordings again</source>
        <translation>es gibt keine Spur %1; prüfen Sie die Aufzeichnungen erneut</translation>
    </message>
    <message>
        <source>no trace of the record holds anything</source>
        <translation>keine Spur der Aufzeichnung enthält ein Signal</translation>
    </message>
    <message>
        <source>dead: the samples of %1 are all the same</source>
        <translation>tot: die Abtastwerte von %1 sind alle gleich</translation>
    </message>
    <message>
        <source>as good as dead: %1, at down to %2 % of the strength of the neighbours</source>
        <translation>so gut wie tot: %1, mit nur noch bis zu %2 % der Stärke der Nachbarn</translation>
    </message>
    <message>
        <source>clipped: the swings of %1 are cut off flat, up to %2 times; first breaks can be picked, amplitudes mean nothing</source>
        <translation>übersteuert: die Ausschläge von %1 sind flach abgeschnitten, bis zu %2-mal; Ersteinsätze lassen sich picken, Amplituden bedeuten nichts</translation>
    </message>
    <message>
        <source>noisy: before the first arrival of %1 there is up to %2 times the noise of the neighbours, and it drowns the arrival</source>
        <translation>verrauscht: vor dem Ersteinsatz von %1 ist das Rauschen bis zu %2-mal so stark wie bei den Nachbarn und überdeckt den Einsatz</translation>
    </message>
    <message>
        <source>doubled: trace %1 is trace %2 once more (correlation %3); the arrivals around say that it belongs to the latter</source>
        <translation>doppelt: Spur %1 ist noch einmal Spur %2 (Korrelation %3); nach den Einsätzen ringsum gehört sie zu letzterer</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>traces %1</source>
        <translation>Spuren %1</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>Schüsse %1</translation>
    </message>
    <message>
        <source>shot position</source>
        <translation>Schussposition</translation>
    </message>
    <message>
        <source>station numbers</source>
        <translation>Stationsnummern</translation>
    </message>
    <message>
        <source>repeated positions</source>
        <translation>mehrfache Positionen</translation>
    </message>
    <message>
        <source>reversed order</source>
        <translation>umgekehrte Reihenfolge</translation>
    </message>
    <message>
        <source>doubled trace</source>
        <translation>doppelte Spur</translation>
    </message>
    <message>
        <source>moved traces</source>
        <translation>vertauschte Spuren</translation>
    </message>
    <message>
        <source>geophone off the line</source>
        <translation>Geophon abseits der Messlinie</translation>
    </message>
    <message>
        <source>trigger time</source>
        <translation>Triggerzeit</translation>
    </message>
    <message>
        <source>dead traces</source>
        <translation>tote Spuren</translation>
    </message>
    <message>
        <source>clipped traces</source>
        <translation>übersteuerte Spuren</translation>
    </message>
    <message>
        <source>noisy traces</source>
        <translation>verrauschte Spuren</translation>
    </message>
    <message>
        <source>reversed polarity</source>
        <translation>umgekehrte Polarität</translation>
    </message>
    <message>
        <source>mistimed trace</source>
        <translation>zeitversetzte Spur</translation>
    </message>
    <message>
        <source>sample intervals</source>
        <translation>Abtastintervalle</translation>
    </message>
    <message>
        <source>repeated shot</source>
        <translation>wiederholter Schuss</translation>
    </message>
    <message>
        <source>overlapping spreads</source>
        <translation>überlappende Auslagen</translation>
    </message>
    <message>
        <source>no elevations</source>
        <translation>keine Höhen</translation>
    </message>
    <message>
        <source>move the record later by %1 ms</source>
        <translation>die Aufzeichnung um %1 ms nach später verschieben</translation>
    </message>
    <message>
        <source>move the record earlier by %1 ms</source>
        <translation>die Aufzeichnung um %1 ms nach früher verschieben</translation>
    </message>
    <message>
        <source>kill %1</source>
        <translation>%1 ausschalten</translation>
    </message>
    <message>
        <source>reverse the polarity of %1</source>
        <translation>die Polarität von %1 umkehren</translation>
    </message>
    <message>
        <source>mute %1 before %2 ms</source>
        <translation>%1 vor %2 ms stummschalten</translation>
    </message>
    <message>
        <source>read the channels from the last to the first</source>
        <translation>die Kanäle vom letzten zum ersten lesen</translation>
    </message>
    <message>
        <source>put the shot at %1</source>
        <translation>den Schuss auf %1 setzen</translation>
    </message>
    <message>
        <source>stack it with %1; the stack alone counts then</source>
        <translation>stapeln mit: %1; dann zählt nur noch die Stapelung</translation>
    </message>
    <message>
        <source>disable the shot</source>
        <translation>den Schuss deaktivieren</translation>
    </message>
    <message>
        <source>exchanged: over all shots the arrivals of trace %1 belong to the place of trace %2, and the other way round</source>
        <translation>vertauscht: über alle Schüsse gehören die Einsätze von Spur %1 an die Stelle von Spur %2 und umgekehrt</translation>
    </message>
    <message>
        <source>off the line: geophone %1 is said to be at %2; from both sides its arrivals are those of %3</source>
        <translation>abseits: Geophon %1 soll bei %2 stehen; von beiden Seiten sind seine Einsätze die von %3</translation>
    </message>
    <message>
        <source>%1 geophones are said to be at %2 places only</source>
        <translation>%1 Geophone sollen an nur %2 Stellen stehen</translation>
    </message>
    <message>
        <source>the shot is said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>der Schuss soll bei %1 liegen; der Dateiname sagt %2, und die kürzesten Zeiten der Messung folgen den Namen</translation>
    </message>
    <message>
        <source>the shot is said to be at an elevation of %1, and the geophones have none that could be theirs</source>
        <translation>der Schuss soll auf einer Höhe von %1 liegen, und die Geophone haben keine Höhen, die ihre sein könnten</translation>
    </message>
    <message>
        <source>the channels run against the geophones: the least times of %1 of %2 shots are beside the shot only when the string is read from its last geophone to its first</source>
        <translation>die Kanäle laufen gegen die Geophone: die kürzesten Zeiten von %1 von %2 Schüssen liegen nur dann neben dem Schuss, wenn die Auslage vom letzten zum ersten Geophon gelesen wird</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>alle Schüsse sollen bei %1 liegen; der Dateiname sagt %2, und die kürzesten Zeiten der Messung folgen den Namen</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the times of this one are least at %2</source>
        <translation>alle Schüsse sollen bei %1 liegen; die Zeiten dieses Schusses sind bei %2 am kürzesten</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; this one was at an end of the geophones or beyond</source>
        <translation>alle Schüsse sollen bei %1 liegen; dieser lag an einem Ende der Geophone oder außerhalb</translation>
    </message>
    <message>
        <source>the channels of this record run against the geophones: read from the last to the first the times are least beside the shot at %1</source>
        <translation>die Kanäle dieser Aufzeichnung laufen gegen die Geophone: vom letzten zum ersten gelesen sind die Zeiten neben dem Schuss bei %1 am kürzesten</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times grow from %2 on all the way through the geophones: it was at that end of them or beyond</source>
        <translation>der Schuss soll bei %1 liegen, aber die Zeiten wachsen ab %2 über alle Geophone hinweg: er lag an diesem Ende der Geophone oder außerhalb</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times are least at %2, beside geophone %3, and grow on both sides of it</source>
        <translation>der Schuss soll bei %1 liegen, aber die Zeiten sind bei %2 am kürzesten, neben Geophon %3, und wachsen nach beiden Seiten</translation>
    </message>
    <message>
        <source>%1; or the geophones stand %2 apart and not %3, which no other shot can decide</source>
        <translation>%1; oder die Geophone stehen %2 statt %3 auseinander, was kein anderer Schuss entscheiden kann</translation>
    </message>
    <message>
        <source>mistimed: trace %1 has its first arrival at %2 ms, its neighbours let expect it at %3 ms, and from there on it looks like them (correlation %4)</source>
        <translation>zeitversetzt: Spur %1 hat ihren Ersteinsatz bei %2 ms, nach den Nachbarn ist er bei %3 ms zu erwarten, und von dort an gleicht sie ihnen (Korrelation %4)</translation>
    </message>
    <message>
        <source>reversed: the first swings of %1 go against those of the neighbours, which agree with each other (correlation -%2 at least)</source>
        <translation>umgekehrt: die ersten Ausschläge von %1 laufen denen der Nachbarn entgegen, die untereinander übereinstimmen (Korrelation mindestens -%2)</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2, with %3 times the signal to noise of this one</source>
        <translation>Schuss %1 wurde am selben Punkt aufgezeichnet, bei %2, mit dem %3-fachen Signal-Rausch-Verhältnis</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2; its arrivals are %3 ms later</source>
        <translation>Schuss %1 wurde am selben Punkt aufgezeichnet, bei %2; seine Einsätze kommen %3 ms später</translation>
    </message>
    <message>
        <source>the record is that of shot %1 once more, sample for sample</source>
        <translation>die Aufzeichnung ist noch einmal die von Schuss %1, Abtastwert für Abtastwert</translation>
    </message>
    <message>
        <source>the sample intervals of its traces differ, %1 to %2 ms: the times of some are wrong unless the recorder meant it</source>
        <translation>die Abtastintervalle der Spuren unterscheiden sich, %1 bis %2 ms: manche Zeiten sind falsch, sofern die Apparatur nicht so eingestellt war</translation>
    </message>
    <message>
        <source>its traces have no sample interval: they have no times</source>
        <translation>die Spuren haben kein Abtastintervall: sie haben keine Zeiten</translation>
    </message>
    <message>
        <source>the sample interval is %2 ms in %1, and %3 ms in most others: right if the recorder was set so</source>
        <translation>%1: das Abtastintervall ist %2 ms, bei den meisten anderen %3 ms; richtig, wenn die Apparatur so eingestellt war</translation>
    </message>
    <message>
        <source>strings %1 and %2 overlap and have other elevations at %3 places, by up to %4 at %5</source>
        <translation>die Auslagen %1 und %2 überlappen sich und haben an %3 Stellen verschiedene Höhen, um bis zu %4 bei %5</translation>
    </message>
    <message>
        <source>no elevations: all shots and geophones are at %1; if the ground is not level, read them from a table in the survey geometry</source>
        <translation>keine Höhen: alle Schüsse und Geophone liegen auf %1; ist das Gelände nicht eben, lesen Sie die Höhen in der Geometrie der Messung aus einer Tabelle</translation>
    </message>
    <message>
        <source>the shot&apos;s position %1 counts stations: over %2 shots the least times move by %3 for each 1 in the position</source>
        <translation>die Position %1 des Schusses zählt Stationen: über %2 Schüsse wandern die kürzesten Zeiten um %3 je 1 in der Position</translation>
    </message>
    <message>
        <source>late</source>
        <translation>zu spät</translation>
    </message>
    <message>
        <source>early</source>
        <translation>zu früh</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: %3 times to the places of other shots differ by that from the times back, give or take %4 ms</source>
        <translation>die Aufzeichnung kommt %1 ms %2: %3 Zeiten zu den Stellen anderer Schüsse weichen um so viel von den Zeiten zurück ab, auf %4 ms genau</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: its times differ by that from those of %3 other shots at equal distances, give or take %4 ms</source>
        <translation>die Aufzeichnung kommt etwa %1 ms %2: ihre Zeiten weichen um so viel von denen von %3 anderen Schüssen bei gleichen Entfernungen ab, auf %4 ms genau</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: all channels have a spike at %3 ms at once, before anything can have arrived</source>
        <translation>die Aufzeichnung kommt %1 ms %2: alle Kanäle haben bei %3 ms gleichzeitig eine Spitze, bevor etwas eingetroffen sein kann</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it has %1 columns and no heading that names one for the distance and one for the elevation</source>
        <translation>sie hat %1 Spalten und keine Überschrift, die eine davon für die Entfernung und eine für die Höhe nennt</translation>
    </message>
    <message>
        <source>it holds no point</source>
        <translation>sie enthält keinen Punkt</translation>
    </message>
    <message>
        <source>Unified data format (%1)</source>
        <translation>Unified-Data-Format (%1)</translation>
    </message>
    <message>
        <source>no heading names shot, geophone and time</source>
        <translation>keine Überschrift nennt Schuss, Geophon und Zeit</translation>
    </message>
    <message>
        <source>%1 lines above the heading were ignored</source>
        <translation>%1 Zeilen über der Überschrift wurden ignoriert</translation>
    </message>
    <message>
        <source>the columns %1 and %2 were taken for positions in metres</source>
        <translation>die Spalten %1 und %2 wurden als Positionen in Metern genommen</translation>
    </message>
    <message>
        <source>the heading does not say whether its times are in ms or in s</source>
        <translation>die Überschrift sagt nicht, ob die Zeiten in ms oder in s sind</translation>
    </message>
    <message>
        <source>no row follows the heading</source>
        <translation>auf die Überschrift folgt keine Zeile</translation>
    </message>
    <message>
        <source>there are more than %1 geophones</source>
        <translation>es gibt mehr als %1 Geophone</translation>
    </message>
    <message>
        <source>%1 of %2 rows have no time above 0, or are not valid, and are no picks</source>
        <translation>%1 von %2 Zeilen haben keine Zeit über 0 oder sind nicht gültig und sind keine Picks</translation>
    </message>
    <message>
        <source>%1 shots and %2 geophones are far too many for %3 rows</source>
        <translation>%1 Schüsse und %2 Geophone sind viel zu viele für %3 Zeilen</translation>
    </message>
    <message>
        <source>no column tells the elevations of the shots; they were put on the line of the geophones</source>
        <translation>keine Spalte nennt die Höhen der Schüsse; sie wurden auf die Linie der Geophone gesetzt</translation>
    </message>
    <message>
        <source>no heading names a column for the distance and one for the elevation</source>
        <translation>keine Überschrift nennt eine Spalte für die Entfernung und eine für die Höhe</translation>
    </message>
    <message>
        <source>the unified data format</source>
        <translation>Unified-Data-Format</translation>
    </message>
    <message>
        <source>a table with a heading</source>
        <translation>Tabelle mit Überschrift</translation>
    </message>
    <message>
        <source>a pick table of long lines</source>
        <translation>Pick-Tabelle mit langen Zeilen</translation>
    </message>
    <message>
        <source>%1 times are of a shot and geophone that had one already; the first of them counts</source>
        <translation>%1 Zeiten gehören zu einem Schuss und Geophon, die schon eine hatten; die jeweils erste gilt</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>number of positions</source>
        <translation>Anzahl der Positionen</translation>
    </message>
    <message>
        <source>number of measurements</source>
        <translation>Anzahl der Messwerte</translation>
    </message>
    <message>
        <source>number of points of topography</source>
        <translation>Anzahl der Geländepunkte</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is not a number</source>
        <translation>in %1 steht %2, was keine Zahl ist</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is out of range</source>
        <translation>in %1 steht %2, was außerhalb des Bereichs liegt</translation>
    </message>
    <message>
        <source>all shot files count as read by the program&apos;s rules; the traces are those that were saved</source>
        <translation>alle Schussdateien gelten als nach den Regeln des Programms gelesen; die Spuren sind die gespeicherten</translation>
    </message>
    <message>
        <source>what was mended in its recordings is not known; traces and picks stay as they are</source>
        <translation>was an den Aufzeichnungen korrigiert wurde, ist nicht bekannt; Spuren und Picks bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>there is a grid, but a position lies more than 100 000 km away</source>
        <translation>es gibt ein Gitter, aber eine Position liegt mehr als 100 000 km entfernt</translation>
    </message>
    <message>
        <source>mends.xml: the mends of these shots are not those of their traces, and are left out; traces and picks stay as they are: %1</source>
        <translation>mends.xml: die Korrekturen dieser Schüsse passen nicht zu ihren Spuren und werden weggelassen; Spuren und Picks bleiben, wie sie sind: %1</translation>
    </message>
    <message>
        <source>it is about other shot files than those of the project</source>
        <translation>es betrifft andere Schussdateien als die des Projekts</translation>
    </message>
    <message>
        <source>the program&apos;s rules find no trace in it</source>
        <translation>die Regeln des Programms finden keine Spur darin</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces of %3 shots</source>
        <translation>die Regeln des Programms lesen %1 der %2 Spuren von %3 Schüssen</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces</source>
        <translation>die Regeln des Programms lesen %1 der %2 Spuren</translation>
    </message>
    <message>
        <source>the program&apos;s rules make one shot of its %1</source>
        <translation>die Regeln des Programms machen aus %1 Schüssen einen</translation>
    </message>
    <message>
        <source>%1 of %2 traces are all zeros by the program&apos;s rules</source>
        <translation>%1 von %2 Spuren sind nach den Regeln des Programms lauter Nullen</translation>
    </message>
    <message>
        <source>the samples of %1 of %2 traces are not those of the standard, and not for their scale alone</source>
        <translation>die Abtastwerte von %1 von %2 Spuren sind nicht die des Standards, und nicht nur im Maßstab verschieden</translation>
    </message>
    <message>
        <source>%1 of %2 traces are shorter by the program&apos;s rules</source>
        <translation>%1 von %2 Spuren sind nach den Regeln des Programms kürzer</translation>
    </message>
    <message>
        <source>the sample interval is %1 ms by the program&apos;s rules, %2 ms by the standard</source>
        <translation>das Abtastintervall ist nach den Regeln des Programms %1 ms, nach dem Standard %2 ms</translation>
    </message>
    <message>
        <source>its records start %1 ms from the shot by the program&apos;s rules, %2 ms by the standard</source>
        <translation>die Aufzeichnungen beginnen nach den Regeln des Programms %1 ms vom Schuss entfernt, nach dem Standard %2 ms</translation>
    </message>
    <message>
        <source>its geophones are at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>die Geophone stehen nach den Regeln des Programms bei %1, nach dem Standard bei %2</translation>
    </message>
    <message>
        <source>its shot is at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>der Schuss liegt nach den Regeln des Programms bei %1, nach dem Standard bei %2</translation>
    </message>
    <message>
        <source>the elevations of %1 of %2 traces are others by the program&apos;s rules</source>
        <translation>die Höhen von %1 von %2 Spuren sind nach den Regeln des Programms andere</translation>
    </message>
    <message>
        <source>the program&apos;s rules cannot read it</source>
        <translation>die Regeln des Programms können die Datei nicht lesen</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>the traces of shot %1 differ in sample interval or in the time of their first sample; they cannot be in one record</source>
        <translation>die Spuren von Schuss %1 unterscheiden sich im Abtastintervall oder in der Zeit des ersten Abtastwerts; sie können nicht in einer Aufzeichnung stehen</translation>
    </message>
    <message>
        <source>it has no sample interval</source>
        <translation>er hat kein Abtastintervall</translation>
    </message>
    <message>
        <source>its traces have %1 samples; a file holds %2</source>
        <translation>seine Spuren haben %1 Abtastwerte; eine Datei fasst %2</translation>
    </message>
    <message>
        <source>it has %1 traces; a SEG-2 file holds %2</source>
        <translation>er hat %1 Spuren; eine SEG-2-Datei fasst %2</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>Schuss %1: %2</translation>
    </message>
    <message>
        <source>read by the program&apos;s rules, the files have no elevations, and no positions that are not whole metres; read them by the standard</source>
        <translation>nach den Regeln des Programms gelesen, haben die Dateien keine Höhen und keine Positionen außer ganzen Metern; lesen Sie sie nach dem Standard</translation>
    </message>
    <message>
        <source>%1 shots are disabled or have no samples and were left out</source>
        <translation>%1 Schüsse sind deaktiviert oder haben keine Abtastwerte und wurden weggelassen</translation>
    </message>
    <message>
        <source>%1 traces begin at the shot; what was recorded before is not in the files</source>
        <translation>%1 Spuren beginnen am Schuss; was davor aufgezeichnet wurde, ist nicht in den Dateien</translation>
    </message>
    <message>
        <source>%1 samples were rounded to the seven digits of a 32-bit float</source>
        <translation>%1 Abtastwerte wurden auf die sieben Stellen einer 32-Bit-Gleitkommazahl gerundet</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>der Vorgang wurde angehalten</translation>
    </message>
    <message>
        <source>shot %1 has no samples</source>
        <translation>Schuss %1 hat keine Abtastwerte</translation>
    </message>
    <message>
        <source>shot %1, trace %2: a sample is too large for a file</source>
        <translation>Schuss %1, Spur %2: ein Abtastwert ist zu groß für eine Datei</translation>
    </message>
    <message>
        <source>the survey has no records to be written</source>
        <translation>die Messung hat keine Aufzeichnungen, die geschrieben werden könnten</translation>
    </message>
    <message>
        <source>its sample interval of %1 ms is no whole number of microseconds up to 65535, which is all that SEG-Y can hold; write SEG-2</source>
        <translation>das Abtastintervall von %1 ms ist keine ganze Anzahl von Mikrosekunden bis 65535, und nur solche kann SEG-Y aufnehmen; schreiben Sie SEG-2</translation>
    </message>
    <message>
        <source>it begins %1 ms after the shot, which SEG-Y cannot hold; write SEG-2</source>
        <translation>die Aufzeichnung beginnt %1 ms nach dem Schuss, was SEG-Y nicht aufnehmen kann; schreiben Sie SEG-2</translation>
    </message>
    <message>
        <source>it is miniSEED of version 3; version 2 is read</source>
        <translation>es ist miniSEED der Version 3; gelesen wird Version 2</translation>
    </message>
    <message>
        <source>it is no miniSEED file</source>
        <translation>es ist keine miniSEED-Datei</translation>
    </message>
    <message>
        <source>its records have no blockette 1000, which tells their encoding</source>
        <translation>die Datensätze haben keine Blockette 1000, die ihre Kodierung nennt</translation>
    </message>
    <message>
        <source>its samples have the encoding %1; 1, 3, 4, 5, 10 and 11 are read</source>
        <translation>die Abtastwerte haben die Kodierung %1; gelesen werden 1, 3, 4, 5, 10 und 11</translation>
    </message>
    <message>
        <source>none of its records has samples of a series</source>
        <translation>keiner der Datensätze enthält Abtastwerte einer Zeitreihe</translation>
    </message>
    <message>
        <source>miniSEED tells neither positions nor the time of the shot: all positions are 0 and times count from the first sample; give the survey its geometry</source>
        <translation>miniSEED nennt weder Positionen noch die Zeit des Schusses: alle Positionen sind 0, und Zeiten zählen ab dem ersten Abtastwert; geben Sie der Messung ihre Geometrie</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others; zeros stand in front</source>
        <translation>die Aufzeichnung von %1 beginnt später als andere; davor stehen Nullen</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others, by longer than it lasts; that is not applied and its times do not compare</source>
        <translation>die Aufzeichnung von %1 beginnt später als andere, um mehr als ihre Dauer; das wird nicht angewandt, und ihre Zeiten sind nicht vergleichbar</translation>
    </message>
    <message>
        <source>zeros stand for gaps in the record of %1</source>
        <translation>für Lücken in der Aufzeichnung von %1 stehen Nullen</translation>
    </message>
    <message>
        <source>records of %1 overlap; the later ones count</source>
        <translation>Datensätze von %1 überlappen sich; die späteren gelten</translation>
    </message>
    <message>
        <source>records left out after a gap that is longer than what was recorded: %1</source>
        <translation>ausgelassene Datensätze nach einer Lücke, die länger ist als das Aufgezeichnete: %1</translation>
    </message>
    <message>
        <source>records left out whose sample rate is not that of the first of their channel: %1</source>
        <translation>ausgelassene Datensätze, deren Abtastrate nicht die des ersten ihres Kanals ist: %1</translation>
    </message>
    <message>
        <source>records left out whose encoding, such as %1, is not read: %2</source>
        <translation>ausgelassene Datensätze, deren Kodierung, etwa %1, nicht gelesen wird: %2</translation>
    </message>
    <message>
        <source>records left out that have no samples of a series: %1</source>
        <translation>ausgelassene Datensätze ohne Abtastwerte einer Zeitreihe: %1</translation>
    </message>
    <message>
        <source>records left out that have no blockette 1000: %1</source>
        <translation>ausgelassene Datensätze ohne Blockette 1000: %1</translation>
    </message>
    <message>
        <source>bytes left out that are of no record: %1</source>
        <translation>ausgelassene Bytes, die zu keinem Datensatz gehören: %1</translation>
    </message>
    <message>
        <source>samples that headers promise and records do not hold: %1</source>
        <translation>Abtastwerte, die Header versprechen und Datensätze nicht enthalten: %1</translation>
    </message>
    <message>
        <source>damaged records, which do not end at the sample that they tell: %1</source>
        <translation>beschädigte Datensätze, die nicht mit dem angegebenen Abtastwert enden: %1</translation>
    </message>
    <message>
        <source>the record of %1 begins after the shot, by up to %2 ms; zeros stand in front, in whole samples</source>
        <translation>die Aufzeichnung von %1 beginnt nach dem Schuss, um bis zu %2 ms; davor stehen Nullen, in ganzen Abtastwerten</translation>
    </message>
    <message>
        <source>the header of %1 says that the record begins up to %2 ms after the shot, longer than it lasts; that delay is not applied</source>
        <translation>nach dem Header von %1 beginnt die Aufzeichnung bis zu %2 ms nach dem Schuss, um mehr als ihre Dauer; diese Verzögerung wird nicht angewandt</translation>
    </message>
    <message>
        <source>the header of %1 tells no %2; 0 stands for it</source>
        <translation>der Header von %1 nennt diesen Wert nicht: %2; dafür steht 0</translation>
    </message>
    <message>
        <source>the UNITS of its header, %1, are not known; its positions were taken as metres</source>
        <translation>die UNITS des Headers, %1, sind nicht bekannt; die Positionen wurden als Meter genommen</translation>
    </message>
    <message>
        <source>its positions are in %1 and were converted to metres, %2 m each</source>
        <translation>die Positionen sind in %1 und wurden in Meter umgerechnet, je %2 m</translation>
    </message>
    <message>
        <source>its receiver positions look like longitude and latitude in degrees, not like metres; give the survey its geometry</source>
        <translation>die Empfängerpositionen sehen nach Länge und Breite in Grad aus, nicht nach Metern; geben Sie der Messung ihre Geometrie</translation>
    </message>
    <message>
        <source>its geophones differ in y but not in x; y was taken as the position along the line</source>
        <translation>die Geophone unterscheiden sich in y, aber nicht in x; y wurde als Position entlang der Messlinie genommen</translation>
    </message>
    <message>
        <source>all its geophones are at x = %1; give the survey its geometry</source>
        <translation>alle Geophone stehen bei x = %1; geben Sie der Messung ihre Geometrie</translation>
    </message>
    <message>
        <source>its geophones differ by up to %1 in y, which is not used; positions along the line are x</source>
        <translation>die Geophone unterscheiden sich um bis zu %1 in y, das nicht verwendet wird; Positionen entlang der Messlinie sind x</translation>
    </message>
    <message>
        <source>its channel numbers do not ascend; the traces stay in the order of the file</source>
        <translation>die Kanalnummern steigen nicht an; die Spuren bleiben in der Reihenfolge der Datei</translation>
    </message>
    <message>
        <source>every trace tells a source position of its own; the file was read as one shot, at the first of them</source>
        <translation>jede Spur nennt eine eigene Quellposition; die Datei wurde als ein Schuss gelesen, an der ersten davon</translation>
    </message>
    <message>
        <source>it is no SEG-2 file</source>
        <translation>es ist keine SEG-2-Datei</translation>
    </message>
    <message>
        <source>it holds no trace</source>
        <translation>sie enthält keine Spur</translation>
    </message>
    <message>
        <source>the samples of its trace %1 have the data format code %2; the codes of SEG-2 are 1 to 5</source>
        <translation>die Abtastwerte der Spur %1 haben den Datenformatcode %2; die Codes von SEG-2 sind 1 bis 5</translation>
    </message>
    <message>
        <source>none of its traces has a usable SAMPLE_INTERVAL</source>
        <translation>keine der Spuren hat ein brauchbares SAMPLE_INTERVAL</translation>
    </message>
    <message>
        <source>nothing is read of %1 since no trace block is where the pointer leads</source>
        <translation>von %1 wird nichts gelesen, da dort, wohin der Zeiger führt, kein Spurblock steht</translation>
    </message>
    <message>
        <source>the header of %1 has no usable SAMPLE_INTERVAL; that of another was taken</source>
        <translation>der Header von %1 hat kein brauchbares SAMPLE_INTERVAL; das einer anderen Spur wurde genommen</translation>
    </message>
    <message>
        <source>the DESCALING_FACTOR of %1 is no usable number; those samples are as stored</source>
        <translation>der DESCALING_FACTOR von %1 ist keine brauchbare Zahl; diese Abtastwerte bleiben wie gespeichert</translation>
    </message>
    <message>
        <source>the header of %1 has no DESCALING_FACTOR, as others have; those samples are as stored</source>
        <translation>der Header von %1 hat keinen DESCALING_FACTOR, wie ihn andere haben; diese Abtastwerte bleiben wie gespeichert</translation>
    </message>
    <message>
        <source>the STACK of %1 is no usable number and was taken as 1</source>
        <translation>STACK von %1 ist keine brauchbare Zahl und wurde als 1 genommen</translation>
    </message>
    <message>
        <source>the DELAY of %1 is no finite number and was taken as 0</source>
        <translation>DELAY von %1 ist keine endliche Zahl und wurde als 0 genommen</translation>
    </message>
    <message>
        <source>the SKEW of %1 is up to %2 ms beyond whole samples; that part is not applied</source>
        <translation>SKEW von %1 geht bis zu %2 ms über ganze Abtastwerte hinaus; dieser Teil wird nicht angewandt</translation>
    </message>
    <message>
        <source>%1 bytes after its traces, zeros or too few for another one, were not read</source>
        <translation>%1 Bytes nach den Spuren, Nullen oder zu wenige für eine weitere, wurden nicht gelesen</translation>
    </message>
    <message>
        <source>the number of samples in %1 is not the %2 of the header of the file; the trace headers were believed</source>
        <translation>die Anzahl der Abtastwerte von %1 ist nicht die des Dateiheaders, %2; den Spurheadern wurde geglaubt</translation>
    </message>
    <message>
        <source>the header of %1 tells %2 samples, with which the traces do not fit the size of the file; %3 were taken</source>
        <translation>der Header von %1 nennt %2 Abtastwerte, womit die Spuren nicht zur Größe der Datei passen; genommen wurden %3</translation>
    </message>
    <message>
        <source>the traces, %1 among them, do not fit the size of the file with the %2 samples that its header tells; %3 were taken</source>
        <translation>mit den %2 Abtastwerten, die der Dateiheader nennt, passen die Spuren nicht zur Größe der Datei, so bei %1; genommen wurden %3</translation>
    </message>
    <message>
        <source>the header of %1 tells a sample interval of %2 microseconds; the %3 of the header of the file were taken</source>
        <translation>der Header von %1 nennt ein Abtastintervall von %2 Mikrosekunden; genommen wurden die %3 des Dateiheaders</translation>
    </message>
    <message>
        <source>the sample interval of %1 is not the %2 microseconds of the header of the file; the trace headers were believed</source>
        <translation>das Abtastintervall von %1 ist nicht das des Dateiheaders, %2 Mikrosekunden; den Spurheadern wurde geglaubt</translation>
    </message>
    <message>
        <source>a scalar of %1 for the coordinates of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>ein Skalar von %1 für die Koordinaten von %2 ist keiner, den der Standard kennt; sie wurden unverändert genommen</translation>
    </message>
    <message>
        <source>a scalar of %1 for the elevations of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>ein Skalar von %1 für die Höhen von %2 ist keiner, den der Standard kennt; sie wurden unverändert genommen</translation>
    </message>
    <message>
        <source>the coordinates of %1 are degrees or seconds of arc, no metres; x was taken as it stands, so load a geometry file</source>
        <translation>die Koordinaten von %1 sind Grad oder Bogensekunden, keine Meter; x wurde unverändert genommen, laden Sie also eine Geometriedatei</translation>
    </message>
    <message>
        <source>its coordinates do not tell the geophones apart; they were placed by their offsets (bytes 37 to 40) from the shot</source>
        <translation>die Koordinaten unterscheiden die Geophone nicht; sie wurden nach ihren Entfernungen vom Schuss (Bytes 37 bis 40) gesetzt</translation>
    </message>
    <message>
        <source>its headers tell no positions; shots and geophones all stand at %1, so load a geometry file</source>
        <translation>die Header nennen keine Positionen; Schüsse und Geophone stehen alle bei %1, laden Sie also eine Geometriedatei</translation>
    </message>
    <message>
        <source>its headers put the geophones of all traces at %1; load a geometry file if there was more than one</source>
        <translation>nach den Headern stehen die Geophone aller Spuren bei %1; laden Sie eine Geometriedatei, wenn es mehr als eines gab</translation>
    </message>
    <message>
        <source>shots stand up to %1 beside the line of geophones; x is taken as it stands</source>
        <translation>Schüsse liegen bis zu %1 neben der Linie der Geophone; x wird unverändert genommen</translation>
    </message>
    <message>
        <source>its coordinates do not lie along x; distances are those along the straight line through the geophones from the first geophone of this file, which stands at x %1, y %2; geophones stand up to %3 beside it, shots up to %4</source>
        <translation>die Koordinaten liegen nicht entlang x; Entfernungen sind die entlang der Geraden durch die Geophone ab dem ersten Geophon dieser Datei, das bei x %1, y %2 steht; Geophone stehen bis zu %3 daneben, Schüsse bis zu %4</translation>
    </message>
    <message>
        <source>the elevations or shot depths of %1 lie beyond all ground; elevations of the file were taken as 0</source>
        <translation>die Höhen oder Schusstiefen von %1 liegen jenseits jedes Geländes; die Höhen der Datei wurden als 0 genommen</translation>
    </message>
    <message>
        <source>shots lie up to %1 below the ground; their elevations are those of the shots, not of the ground above them</source>
        <translation>Schüsse liegen bis zu %1 unter Gelände; ihre Höhen sind die der Schüsse, nicht die des Geländes darüber</translation>
    </message>
    <message>
        <source>the shot depth of %1 is negative and was taken as 0</source>
        <translation>die Schusstiefe von %1 ist negativ und wurde als 0 genommen</translation>
    </message>
    <message>
        <source>its headers tell the elevations of geophones alone; shots were put at that of the geophone nearest to them</source>
        <translation>die Header nennen nur Höhen der Geophone; Schüsse wurden auf die des jeweils nächsten Geophons gesetzt</translation>
    </message>
    <message>
        <source>the time scalar of %1 is none that the standard knows; the delay was taken as it stands</source>
        <translation>der Zeitskalar von %1 ist keiner, den der Standard kennt; die Verzögerung wurde unverändert genommen</translation>
    </message>
    <message>
        <source>all of its traces are marked as dead or auxiliary (bytes 29 and 30); the marks were not believed</source>
        <translation>alle Spuren sind als tot oder Hilfsspuren gekennzeichnet (Bytes 29 und 30); den Kennzeichen wurde nicht geglaubt</translation>
    </message>
    <message>
        <source>zeros stand for the samples of %1, marked as dead or as dummies (bytes 29 and 30)</source>
        <translation>für die Abtastwerte von %1 stehen Nullen, da als tot oder Platzhalter gekennzeichnet (Bytes 29 und 30)</translation>
    </message>
    <message>
        <source>the samples of %1 were left out, marked as auxiliary (bytes 29 and 30: time breaks, upholes, sweeps and the like)</source>
        <translation>die Abtastwerte von %1 wurden ausgelassen, da als Hilfsspuren gekennzeichnet (Bytes 29 und 30: Abrisse, Aufzeiten, Sweeps und dergleichen)</translation>
    </message>
    <message>
        <source>its traces are not in the order of shots, or the headers do not tell which belong together; they were taken as one shot</source>
        <translation>die Spuren stehen nicht in der Reihenfolge der Schüsse, oder die Header sagen nicht, welche zusammengehören; sie wurden als ein Schuss genommen</translation>
    </message>
    <message>
        <source>its extended textual headers do not end in the file; it was read as if there were none</source>
        <translation>die erweiterten Textheader enden nicht innerhalb der Datei; sie wurde gelesen, als gäbe es keine</translation>
    </message>
    <message>
        <source>its lengths are in feet (bytes 3255 and 3256) and were taken to metres</source>
        <translation>die Längen sind in Fuß (Bytes 3255 und 3256) und wurden in Meter umgerechnet</translation>
    </message>
    <message>
        <source>its headers tell no number of samples</source>
        <translation>die Header nennen keine Anzahl der Abtastwerte</translation>
    </message>
    <message>
        <source>its samples have the data format code 4 (fixed point with gain), which is not read; have the recording software export another one</source>
        <translation>die Abtastwerte haben den Datenformatcode 4 (Festkomma mit Verstärkung), der nicht gelesen wird; lassen Sie das Aufnahmeprogramm einen anderen exportieren</translation>
    </message>
    <message>
        <source>its samples have the data format code %1, which the standard does not know; the file is damaged or no SEG-Y file</source>
        <translation>die Abtastwerte haben den Datenformatcode %1, den der Standard nicht kennt; die Datei ist beschädigt oder keine SEG-Y-Datei</translation>
    </message>
    <message>
        <source>the place of the first trace in its header (bytes 3521 to 3528) is not in the file and was not believed</source>
        <translation>die Stelle der ersten Spur nach dem Header (Bytes 3521 bis 3528) liegt nicht in der Datei, und ihr wurde nicht geglaubt</translation>
    </message>
    <message>
        <source>it is too short for a SEG-Y file with a trace</source>
        <translation>sie ist zu kurz für eine SEG-Y-Datei mit einer Spur</translation>
    </message>
    <message>
        <source>its bytes are swapped in pairs, which is not read</source>
        <translation>die Bytes sind paarweise vertauscht, was nicht gelesen wird</translation>
    </message>
    <message>
        <source>field record (bytes 9 to 12)</source>
        <translation>Feldaufzeichnung (Bytes 9 bis 12)</translation>
    </message>
    <message>
        <source>energy source point (bytes 17 to 20)</source>
        <translation>Quellpunkt (Bytes 17 bis 20)</translation>
    </message>
    <message>
        <source>position of the source</source>
        <translation>Position der Quelle</translation>
    </message>
    <message>
        <source>number of the trace in its record (bytes 13 to 16), which starts again</source>
        <translation>Nummer der Spur in ihrer Aufzeichnung (Bytes 13 bis 16), die neu beginnt</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>it is a text file, and no record of shots in %1; open a table of picks or positions as travel times or geometry</source>
        <translation>es ist eine Textdatei und keine Aufzeichnung von Schüssen in %1; öffnen Sie eine Tabelle von Picks oder Positionen als Laufzeiten oder Geometrie</translation>
    </message>
    <message>
        <source>by its content it is no file of %1</source>
        <translation>dem Inhalt nach ist es keine Datei dieser Formate: %1</translation>
    </message>
    <message>
        <source>it holds %1 shots, told apart by %2</source>
        <translation>sie enthält %1 Schüsse, unterschieden nach: %2</translation>
    </message>
    <message>
        <source>it is too short for an SU file with a trace</source>
        <translation>sie ist zu kurz für eine SU-Datei mit einer Spur</translation>
    </message>
    <message>
        <source>its first trace tells no number of samples</source>
        <translation>die erste Spur nennt keine Anzahl der Abtastwerte</translation>
    </message>
    <message>
        <source>all %1 traces</source>
        <translation>allen %1 Spuren</translation>
    </message>
    <message>
        <source>it cannot be read back: %1</source>
        <translation>die Datei kann nicht zurückgelesen werden: %1</translation>
    </message>
    <message>
        <source>read back, string %1 will have another number of geophones</source>
        <translation>zurückgelesen wird Auslage %1 eine andere Anzahl von Geophonen haben</translation>
    </message>
    <message>
        <source>the format has no place for the errors of the picks</source>
        <translation>das Format hat keinen Platz für die Fehler der Picks</translation>
    </message>
    <message>
        <source>it was read as %1; the reader of its suffix cannot read line %2</source>
        <translation>die Datei wurde als %1 gelesen; nach ihrer Endung lässt sich Zeile %2 nicht lesen</translation>
    </message>
    <message>
        <source>%1; as %2, line %3: %4</source>
        <translation>%1; als %2, Zeile %3: %4</translation>
    </message>
    <message>
        <source>shot %1: picks left out, as the shot is disabled or their traces are killed: %2</source>
        <translation>Schuss %1: ausgelassene Picks, da der Schuss deaktiviert ist oder ihre Spuren ausgeschaltet sind: %2</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 lines</source>
        <translation>die Datei endet nach %1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>the file holds no measurement</source>
        <translation>die Datei enthält keinen Messwert</translation>
    </message>
    <message>
        <source>no columns &quot;s&quot;, &quot;g&quot; and &quot;t&quot; are named above the numbers</source>
        <translation>über den Zahlen werden keine Spalten „s“, „g“ und „t“ genannt</translation>
    </message>
    <message>
        <source>the unit of the column %1 is none of time</source>
        <translation>die Einheit der Spalte %1 ist keine der Zeit</translation>
    </message>
    <message>
        <source>the line holds %1</source>
        <translation>die Zeile enthält %1</translation>
    </message>
    <message>
        <source>the %1 %2 is none of the %3 positions</source>
        <translation>%1 %2 ist keine der %3 Positionen</translation>
    </message>
    <message>
        <source>after the measurements neither the end nor a number of points of topography follows</source>
        <translation>nach den Messwerten folgt weder das Ende noch eine Anzahl von Geländepunkten</translation>
    </message>
    <message>
        <source>the second of three coordinates was not read</source>
        <translation>die zweite von drei Koordinaten wurde nicht gelesen</translation>
    </message>
    <message>
        <source>the third coordinate is 0 everywhere; the second one was taken for the elevation</source>
        <translation>die dritte Koordinate ist überall 0; die zweite wurde als Höhe genommen</translation>
    </message>
    <message>
        <source>the positions have elevations; the topography was not used</source>
        <translation>die Positionen haben Höhen; die Geländepunkte wurden nicht verwendet</translation>
    </message>
    <message>
        <source>%1 positions are no shot and no geophone of any time; they were left out</source>
        <translation>%1 Positionen sind weder Schuss noch Geophon einer Zeit; sie wurden weggelassen</translation>
    </message>
    <message>
        <source>%1 times are marked as not valid and are no picks</source>
        <translation>%1 Zeiten sind als nicht gültig gekennzeichnet und sind keine Picks</translation>
    </message>
    <message>
        <source>%1 times are not above 0 and are no picks</source>
        <translation>%1 Zeiten liegen nicht über 0 und sind keine Picks</translation>
    </message>
    <message>
        <source>%1 shots have no pick and are not in the file</source>
        <translation>%1 Schüsse haben keinen Pick und sind nicht in der Datei</translation>
    </message>
    <message>
        <source>%1 geophones have no pick; the file has their positions only</source>
        <translation>%1 Geophone haben keinen Pick; die Datei enthält nur ihre Positionen</translation>
    </message>
    <message>
        <source>%1 shots lie at the place of another one; the file does not tell their picks apart</source>
        <translation>%1 Schüsse liegen an der Stelle eines anderen; die Datei hält ihre Picks nicht auseinander</translation>
    </message>
    <message>
        <source>a trace without a sample interval cannot be shifted in time</source>
        <translation>eine Spur ohne Abtastintervall kann nicht in der Zeit verschoben werden</translation>
    </message>
    <message>
        <source>a shift of %1 ms is longer than the record</source>
        <translation>eine Verschiebung um %1 ms ist länger als die Aufzeichnung</translation>
    </message>
    <message>
        <source>a shot is stacked with other shots of the survey, each once</source>
        <translation>ein Schuss wird mit anderen Schüssen der Messung gestapelt, mit jedem einmal</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with it: its traces are of another number, sample interval or kind</source>
        <translation>Schuss %1 kann nicht mit ihm gestapelt werden: Anzahl, Abtastintervall oder Art seiner Spuren sind andere</translation>
    </message>
    <message>
        <source>shot %1 has no traces to mend</source>
        <translation>Schuss %1 hat keine Spuren, die korrigiert werden könnten</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, and mends of %3</source>
        <translation>Schuss %1 hat %2 Spuren und Korrekturen für %3</translation>
    </message>
    <message>
        <source>a trace cannot be muted before %1 ms</source>
        <translation>eine Spur kann nicht vor %1 ms stummgeschaltet werden</translation>
    </message>
    <message>
        <source>a record cannot be shifted by %1 ms</source>
        <translation>eine Aufzeichnung kann nicht um %1 ms verschoben werden</translation>
    </message>
    <message>
        <source>shot %1: picks that have no place any more and are set aside: %2</source>
        <translation>Schuss %1: Picks, die keinen Platz mehr haben und beiseitegelegt werden: %2</translation>
    </message>
    <message>
        <source>shot %1: picks that were set aside and are back: %2</source>
        <translation>Schuss %1: Picks, die beiseitegelegt waren und wieder da sind: %2</translation>
    </message>
    <message>
        <source>shot %1: filtered copies of traces that have changed are forgotten: %2; filter again if you need them</source>
        <translation>Schuss %1: verworfene gefilterte Kopien von Spuren, die sich geändert haben: %2; filtern Sie erneut, wenn Sie sie brauchen</translation>
    </message>
    <message>
        <source>shot %1: its shift is taken as %2 ms, whole samples</source>
        <translation>Schuss %1: als Verschiebung werden %2 ms genommen, ganze Abtastwerte</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with shot %2: they have other places, or geophones</source>
        <translation>Schuss %1 kann nicht mit Schuss %2 gestapelt werden: Stelle oder Geophone sind andere</translation>
    </message>
    <message>
        <source>traces killed: %1</source>
        <translation>ausgeschaltete Spuren: %1</translation>
    </message>
    <message>
        <source>traces with their polarity reversed: %1</source>
        <translation>Spuren mit umgekehrter Polarität: %1</translation>
    </message>
    <message>
        <source>traces muted before %1 ms: %2</source>
        <translation>vor %1 ms stummgeschaltete Spuren: %2</translation>
    </message>
    <message>
        <source>disabled: it has no picks and takes no part in anything</source>
        <translation>deaktiviert: er hat keine Picks und nimmt an nichts teil</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was late</source>
        <translation>um %1 ms verschoben: die Aufzeichnung kam zu spät</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was early</source>
        <translation>um %1 ms verschoben: die Aufzeichnung kam zu früh</translation>
    </message>
    <message>
        <source>order reversed: its channels ran against the geophones</source>
        <translation>Reihenfolge umgekehrt: die Kanäle liefen gegen die Geophone</translation>
    </message>
    <message>
        <source>stacked with shots: %1</source>
        <translation>gestapelt mit den Schüssen: %1</translation>
    </message>
    <message>
        <source>Mend recordings</source>
        <translation>Aufzeichnungen korrigieren</translation>
    </message>
    <message>
        <source>Shot %1 is disabled and takes no picks; Mend recording enables it.</source>
        <translation>Schuss %1 ist deaktiviert und nimmt keine Picks an; „Aufzeichnung korrigieren“ aktiviert ihn wieder.</translation>
    </message>
    <message>
        <source>Trace %1 is killed and takes no pick; Mend recording brings it back.</source>
        <translation>Spur %1 ist ausgeschaltet und nimmt keinen Pick an; „Aufzeichnung korrigieren“ holt sie zurück.</translation>
    </message>
    <message>
        <source>The check failed: %1</source>
        <translation>Die Prüfung ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick entlang der Messlinie</translation>
    </message>
    <message>
        <source>no trace has a place and a sample interval; give the line its geometry</source>
        <translation>keine Spur hat eine Position und ein Abtastintervall; legen Sie die Geometrie der Messlinie fest</translation>
    </message>
    <message>
        <source>shot %1, %2: %3</source>
        <translation>Schuss %1, %2: %3</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Entlang der Messlinie ergänzen</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Es gibt noch keine Picks.</translation>
    </message>
    <message>
        <source>Only one shot has picks.</source>
        <translation>Nur ein Schuss hat Picks.</translation>
    </message>
    <message>
        <source>No two shots have picks within half a geophone spacing of each other&apos;s place.</source>
        <translation>Keine zwei Schüsse haben Picks innerhalb eines halben Geophonabstands von der Stelle des jeweils anderen.</translation>
    </message>
    <message>
        <source>no error of a pick is known</source>
        <translation>von keinem Pick ist der Fehler bekannt</translation>
    </message>
    <message>
        <source>it tells errors of picks that cannot be</source>
        <translation>darin stehen unmögliche Fehler von Picks</translation>
    </message>
    <message>
        <source>the error of %1 picks is not known; the file has 0 for it</source>
        <translation>von %1 Picks ist der Fehler nicht bekannt; in der Datei steht dafür 0</translation>
    </message>
    <message>
        <source>Picks at sample %1, before which AutoPick cannot look: %2, on %3. Where the wave came earlier, pick by hand or use AutoPick along the line.</source>
        <translation>Picks bei Abtastwert %1, vor dem AutoPick nicht suchen kann: %2 (%3). Wo die Welle früher ankam, picken Sie von Hand oder mit „AutoPick entlang der Messlinie“.</translation>
    </message>
    <message>
        <source>the guide line has no times to follow</source>
        <translation>die Leitlinie hat keine Zeiten, denen gefolgt werden könnte</translation>
    </message>
    <message>
        <source>the reach of the guide line has to be at least 0 ms</source>
        <translation>die Reichweite der Leitlinie muss mindestens 0 ms betragen</translation>
    </message>
    <message>
        <source>The model to start from has not one valid velocity per cell of the grid.</source>
        <translation>Das Startmodell hat nicht für jede Zelle des Gitters eine gültige Geschwindigkeit.</translation>
    </message>
    <message>
        <source>The fit needs one iteration at least and a positive trigger error.</source>
        <translation>Die Anpassung braucht mindestens eine Iteration und einen positiven Triggerfehler.</translation>
    </message>
    <message>
        <source>There is no pick that a section could be fitted to.</source>
        <translation>Es gibt keinen Pick, an den ein Schnitt angepasst werden könnte.</translation>
    </message>
    <message>
        <source>The pick of shot %1, receiver %2 has no positive time and error.</source>
        <translation>Der Pick von Schuss %1, Empfänger %2 hat keine positive Zeit mit positivem Fehler.</translation>
    </message>
    <message>
        <source>The section fits the picks to their errors: chi-square %1.</source>
        <translation>Der Schnitt passt im Rahmen ihrer Fehler zu den Picks: Chi-Quadrat %1.</translation>
    </message>
    <message>
        <source>target not reached: chi-square stays at %1. The errors of the picks may be stated too small, shots may be shifted in time, or cells too large.</source>
        <translation>Ziel nicht erreicht: Chi-Quadrat bleibt bei %1. Vielleicht sind die Fehler der Picks zu klein angegeben, Schüsse zeitlich verschoben oder die Zellen zu groß.</translation>
    </message>
    <message>
        <source>The section fits the picks better than their errors demand: chi-square %1, however smooth it is. The errors may be stated too large.</source>
        <translation>Der Schnitt passt besser zu den Picks, als ihre Fehler verlangen: Chi-Quadrat %1, wie glatt er auch ist. Vielleicht sind die Fehler zu groß angegeben.</translation>
    </message>
    <message>
        <source>target not reached: chi-square is %1 after %2 iterations.</source>
        <translation>Ziel nicht erreicht: Chi-Quadrat ist nach %2 Iterationen %1.</translation>
    </message>
    <message>
        <source>Stopped by the user after %1 iterations: chi-square %2.</source>
        <translation>Vom Benutzer nach %1 Iterationen angehalten: Chi-Quadrat %2.</translation>
    </message>
    <message>
        <source>only %1 picks are of waves along the surface; it takes %2</source>
        <translation>nur %1 Picks gehören zu Wellen entlang der Oberfläche; nötig sind %2</translation>
    </message>
    <message>
        <source>only %1 picks are surely of waves along refractor %2; it takes %3</source>
        <translation>nur %1 Picks gehören sicher zu Wellen entlang Refraktor %2; nötig sind %3</translation>
    </message>
    <message>
        <source>waves along the surface at %1 are slower than the bounds allow</source>
        <translation>Wellen entlang der Oberfläche sind mit %1 langsamer, als die Grenzen zulassen</translation>
    </message>
    <message>
        <source>the times of a refractor grow too little with offset for the bounds</source>
        <translation>die Zeiten eines Refraktors wachsen mit dem Offset weniger, als die Grenzen zulassen</translation>
    </message>
    <message>
        <source>the picks do not settle its delay times</source>
        <translation>die Picks legen die Verzögerungszeiten nicht fest</translation>
    </message>
    <message>
        <source>the times over offset show no cross-over to a faster branch</source>
        <translation>die Zeiten über dem Offset zeigen keinen Knick zu einem schnelleren Ast</translation>
    </message>
    <message>
        <source>the velocity above the refractor grows by less than a tenth</source>
        <translation>die Geschwindigkeit über dem Refraktor wächst um weniger als ein Zehntel</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Two layers</source>
        <translation>Zwei Schichten</translation>
    </message>
    <message>
        <source>Three layers</source>
        <translation>Drei Schichten</translation>
    </message>
    <message>
        <source>Overburden gradient</source>
        <translation>Gradient in der Deckschicht</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>it takes times that grow with offset, at three offsets or more</source>
        <translation>nötig sind Zeiten, die mit dem Offset wachsen, bei mindestens drei Offsets</translation>
    </message>
    <message>
        <source>Set errors of picks</source>
        <translation>Fehler von Picks setzen</translation>
    </message>
    <message>
        <source>Set error of pick</source>
        <translation>Fehler eines Picks setzen</translation>
    </message>
    <message>
        <source>How sure the section is could not be found out: %1</source>
        <translation>Wie zuverlässig der Schnitt ist, konnte nicht ermittelt werden: %1</translation>
    </message>
    <message>
        <source>The models could not be made: %1</source>
        <translation>Die Modelle konnten nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>Rename run</source>
        <translation>Lauf umbenennen</translation>
    </message>
    <message>
        <source>Delete runs</source>
        <translation>Läufe löschen</translation>
    </message>
    <message>
        <source>There is no resolution test to draw.</source>
        <translation>Es gibt keinen Auflösungstest, der gezeichnet werden könnte.</translation>
    </message>
    <message>
        <source>Difference of velocity</source>
        <translation>Differenz der Geschwindigkeit</translation>
    </message>
    <message>
        <source>its inversion runs but the last one are not known</source>
        <translation>die Inversionsläufe außer dem letzten sind nicht bekannt</translation>
    </message>
    <message>
        <source>how sure the section is is not known</source>
        <translation>wie zuverlässig der Schnitt ist, ist nicht bekannt</translation>
    </message>
    <message>
        <source>it does not go with the section of the project, which another program may have changed</source>
        <translation>passt nicht zum Schnitt des Projekts, den ein anderes Programm geändert haben kann</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities</source>
        <translation>%1 Zeilen mit %2 Spalten passen nicht zu %3 Geschwindigkeiten</translation>
    </message>
    <message>
        <source>a velocity is none that ground can have</source>
        <translation>eine Geschwindigkeit kommt im Untergrund nicht vor</translation>
    </message>
    <message>
        <source>its grid cannot be</source>
        <translation>das Gitter ist nicht möglich</translation>
    </message>
    <message>
        <source>its settings or figures cannot be</source>
        <translation>die Einstellungen oder Zahlenwerte sind nicht möglich</translation>
    </message>
    <message>
        <source>its number is 0 or that of another</source>
        <translation>die Nummer ist 0 oder die eines anderen</translation>
    </message>
    <message>
        <source>there are more than can be kept</source>
        <translation>es sind mehr, als aufbewahrt werden können</translation>
    </message>
    <message>
        <source>inversion run %1 is left out: %2</source>
        <translation>Inversionslauf %1 wird weggelassen: %2</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Lauf %1</translation>
    </message>
    <message>
        <source>Certainty</source>
        <translation>Zuverlässigkeit</translation>
    </message>
    <message>
        <source>Use run</source>
        <translation>Lauf verwenden</translation>
    </message>
    <message>
        <source>Inversion runs</source>
        <translation>Inversionsläufe</translation>
    </message>
    <message>
        <source>Take over time shifts</source>
        <translation>Zeitverschiebungen übernehmen</translation>
    </message>
    <message>
        <source>None of the %1 members explains the picks to within their errors; how sure the section is stays unknown.</source>
        <translation>Keines der %1 Mitglieder erklärt die Picks innerhalb ihrer Fehler; wie zuverlässig der Schnitt ist, bleibt unbekannt.</translation>
    </message>
    <message>
        <source>Default model</source>
        <translation>Standardmodell</translation>
    </message>
    <message>
        <source>Present section</source>
        <translation>Jetziger Schnitt</translation>
    </message>
    <message>
        <source>No model explains the picks to within their errors (chi-square up to %1), so that nothing can be said of how sure the section is. Their errors may be stated too small, or shots may be shifted in time.</source>
        <translation>Kein Modell erklärt die Picks innerhalb ihrer Fehler (Chi-Quadrat bis %1), sodass sich nicht sagen lässt, wie zuverlässig der Schnitt ist. Vielleicht sind die Fehler zu klein angegeben oder Schüsse zeitlich verschoben.</translation>
    </message>
    <message>
        <source>There is no reference model &quot;%1&quot;.</source>
        <translation>Es gibt kein Referenzmodell „%1“.</translation>
    </message>
    <message>
        <source>The picks do not support the reference model. %1</source>
        <translation>Die Picks stützen das Referenzmodell nicht. %1</translation>
    </message>
    <message>
        <source>The picks do not support the reference model &quot;%1&quot;.</source>
        <translation>Die Picks stützen das Referenzmodell „%1“ nicht.</translation>
    </message>
    <message>
        <source>The resolution test failed: %1</source>
        <translation>Der Auflösungstest ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The size of the pattern must be positive; %1 is not.</source>
        <translation>Die Größe des Musters muss positiv sein; %1 ist es nicht.</translation>
    </message>
    <message>
        <source>The pattern has %1, less than a cell of the grid, which has %2; choose a larger one.</source>
        <translation>Das Muster hat %1, weniger als eine Zelle des Gitters mit %2; wählen Sie ein größeres.</translation>
    </message>
    <message>
        <source>The strength of the pattern must be above 0 and below 100 %; %1 % is not.</source>
        <translation>Die Stärke des Musters muss über 0 und unter 100 % liegen; %1 % tut es nicht.</translation>
    </message>
    <message>
        <source>There are no picks to test the resolution with.</source>
        <translation>Es gibt keine Picks, mit denen sich die Auflösung testen ließe.</translation>
    </message>
    <message>
        <source>The section to be disturbed has velocities that cannot be computed with.</source>
        <translation>Der Schnitt, der gestört werden soll, hat Geschwindigkeiten, mit denen sich nicht rechnen lässt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>„%1“ kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be shown: %2</source>
        <translation>„%1“ kann nicht angezeigt werden: %2</translation>
    </message>
    <message>
        <source>There is no such run any more.</source>
        <translation>Diesen Lauf gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>The surface or the ends of the line have changed since &quot;%1&quot;; its section can be compared with others, but is none of this line any more.</source>
        <translation>Die Oberfläche oder die Enden der Messlinie haben sich seit „%1“ geändert; der Schnitt lässt sich mit anderen vergleichen, gehört aber nicht mehr zu dieser Messlinie.</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Unsicherheit der Geschwindigkeit</translation>
    </message>
    <message>
        <source>There are no picks yet: a resolution test takes their positions and errors.</source>
        <translation>Es gibt noch keine Picks: Ein Auflösungstest nimmt ihre Positionen und Fehler.</translation>
    </message>
    <message>
        <source>how sure the section is is not known; find it out first</source>
        <translation>wie zuverlässig der Schnitt ist, ist nicht bekannt; ermitteln Sie es zuerst</translation>
    </message>
    <message>
        <source>there is no section whose times could be compared with the picks; run an inversion first</source>
        <translation>es gibt keinen Schnitt, dessen Zeiten sich mit den Picks vergleichen ließen; starten Sie zuerst eine Inversion</translation>
    </message>
    <message>
        <source>There is nothing to draw.</source>
        <translation>Es gibt nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>There are no rays of this section.</source>
        <translation>Es gibt keine Strahlen dieses Schnitts.</translation>
    </message>
    <message>
        <source>it does not begin with a heading of the columns kind, name, x, depth, bottom, velocity, error, ...</source>
        <translation>sie beginnt nicht mit einer Überschrift der Spalten kind, name, x, depth, bottom, velocity, error, ...</translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation>die Spalte %1 fehlt</translation>
    </message>
    <message>
        <source>column %1 is in another unit than m and m/s</source>
        <translation>die Spalte %1 hat eine andere Einheit als m und m/s</translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation>sie hat zu viele Zeilen</translation>
    </message>
    <message>
        <source>%1 is none of borehole, depth, body</source>
        <translation>%1 ist weder borehole noch depth noch body</translation>
    </message>
    <message>
        <source>%1 is no number for %2</source>
        <translation>%1 ist keine Zahl für %2</translation>
    </message>
    <message>
        <source>there is no row below its heading</source>
        <translation>unter der Überschrift steht keine Zeile</translation>
    </message>
    <message>
        <source>what was known of its ground is lost</source>
        <translation>was über den Untergrund bekannt war, ist verloren</translation>
    </message>
    <message>
        <source>finding out how sure the section is begins anew instead of going on</source>
        <translation>die Ermittlung der Zuverlässigkeit des Schnitts beginnt von vorn, statt fortgesetzt zu werden</translation>
    </message>
    <message>
        <source>it does not go with the certainty of the project</source>
        <translation>es passt nicht zur Zuverlässigkeit des Projekts</translation>
    </message>
    <message>
        <source>what it counts cannot be</source>
        <translation>die gezählten Werte sind nicht möglich</translation>
    </message>
    <message>
        <source>its depth bands cannot be drawn so; there are none now</source>
        <translation>die Tiefenbänder lassen sich so nicht zeichnen; es gibt nun keine</translation>
    </message>
    <message>
        <source>%1 is no position along the line</source>
        <translation>%1 ist keine Position entlang der Messlinie</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>der Name fehlt</translation>
    </message>
    <message>
        <source>it has no layer</source>
        <translation>die Schichten fehlen</translation>
    </message>
    <message>
        <source>the layer from %1 begins above the bottom of the one before, %2</source>
        <translation>die Schicht ab %1 beginnt über der Unterkante der vorigen, %2</translation>
    </message>
    <message>
        <source>%1 is no error of a depth</source>
        <translation>%1 ist kein Fehler einer Tiefe</translation>
    </message>
    <message>
        <source>refractors have the numbers 1 to %1</source>
        <translation>Refraktoren haben die Nummern 1 bis %1</translation>
    </message>
    <message>
        <source>the velocities above and below are the same, so nothing begins here</source>
        <translation>die Geschwindigkeiten darüber und darunter sind gleich, hier beginnt also nichts</translation>
    </message>
    <message>
        <source>its outline needs three corners at least</source>
        <translation>der Umriss braucht mindestens drei Ecken</translation>
    </message>
    <message>
        <source>more is known than can be held: %1 boreholes, depths and bodies at most, with %2 layers and corners</source>
        <translation>es ist mehr bekannt, als aufgenommen werden kann: höchstens %1 Bohrungen, Tiefen und Körper mit %2 Schichten und Ecken</translation>
    </message>
    <message>
        <source>borehole %1</source>
        <translation>Bohrung %1</translation>
    </message>
    <message>
        <source>known depth %1</source>
        <translation>bekannte Tiefe %1</translation>
    </message>
    <message>
        <source>body %1</source>
        <translation>Körper %1</translation>
    </message>
    <message>
        <source>there is no %1</source>
        <translation>die Angabe %1 fehlt</translation>
    </message>
    <message>
        <source>a %1 has no %2</source>
        <translation>bei %1 gibt es die Angabe %2 nicht</translation>
    </message>
    <message>
        <source>borehole %1 stands somewhere else in the rows above</source>
        <translation>Bohrung %1 steht in den Zeilen darüber an einer anderen Stelle</translation>
    </message>
    <message>
        <source>the number of a refractor is a whole one</source>
        <translation>die Nummer eines Refraktors ist eine ganze Zahl</translation>
    </message>
    <message>
        <source>body %1 has another velocity in the rows above</source>
        <translation>Körper %1 hat in den Zeilen darüber eine andere Geschwindigkeit</translation>
    </message>
    <message>
        <source>fewer than six picks of it</source>
        <translation>weniger als sechs Picks von ihr</translation>
    </message>
    <message>
        <source>picks of it from shots on one side only, which cannot tell a dip from a velocity</source>
        <translation>Picks von ihr nur aus Schüssen von einer Seite, die eine Neigung nicht von einer Geschwindigkeit unterscheiden können</translation>
    </message>
    <message>
        <source>no shot has three picks of it on one side, with waves the other way beside them, that are faster than the first layer</source>
        <translation>kein Schuss hat auf einer Seite drei Picks von ihr, neben denen Wellen in der Gegenrichtung liegen und die schneller sind als die erste Schicht</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where it comes out deeper than the line is long.</source>
        <translation>Schicht %1: keine Tiefe an %2 Empfängern, wo sie sich größer als die Länge der Messlinie ergibt.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where the ground above it comes out to cost no time.</source>
        <translation>Schicht %1: keine Tiefe an %2 Empfängern, wo sich für den Untergrund darüber keine Laufzeit ergibt.</translation>
    </message>
    <message>
        <source>Layer %1: %2.</source>
        <translation>Schicht %1: %2.</translation>
    </message>
    <message>
        <source>The first layer has no velocity, so there are no depths.</source>
        <translation>Die erste Schicht hat keine Geschwindigkeit, daher gibt es keine Tiefen.</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Layer %1, %2: nothing</source>
        <translation>Schicht %1, %2: nichts</translation>
    </message>
    <message>
        <source>Layer %1: methods disagree beyond the errors of the picks in depth at %2 of %3 geophones, in velocity at %4</source>
        <translation>Schicht %1: die Methoden weichen über die Fehler der Picks hinaus voneinander ab, in der Tiefe an %2 von %3 Geophonen, in der Geschwindigkeit an %4</translation>
    </message>
    <message>
        <source>no two shots have picks of it at five geophones between them</source>
        <translation>keine zwei Schüsse haben an fünf Geophonen zwischen sich Picks von ihr</translation>
    </message>
    <message>
        <source>no second layer can be fitted</source>
        <translation>eine zweite Schicht lässt sich nicht anpassen</translation>
    </message>
    <message>
        <source>a second layer gains %1 ms</source>
        <translation>eine zweite Schicht bringt %1 ms</translation>
    </message>
    <message>
        <source>no third layer can be fitted</source>
        <translation>eine dritte Schicht lässt sich nicht anpassen</translation>
    </message>
    <message>
        <source>a third layer gains %1 ms</source>
        <translation>eine dritte Schicht bringt %1 ms</translation>
    </message>
    <message>
        <source>1 layer, misfit %1 ms</source>
        <translation>1 Schicht, Abweichung %1 ms</translation>
    </message>
    <message>
        <source>%1 layers, misfit %2 ms</source>
        <translation>%1 Schichten, Abweichung %2 ms</translation>
    </message>
    <message>
        <source>no layers are proposed: there are too few picks to fit any</source>
        <translation>keine Schichten vorgeschlagen: es gibt zu wenige Picks, um welche anzupassen</translation>
    </message>
    <message>
        <source>%1; without layers, by a steady gradient, %2 ms</source>
        <translation>%1; ohne Schichten, mit einem stetigen Gradienten, %2 ms</translation>
    </message>
    <message>
        <source>three layers fit better, but no shot at each end of the line has picks of the layer in between: two layers are proposed</source>
        <translation>drei Schichten passen besser, aber es gibt nicht an jedem Ende der Messlinie einen Schuss mit Picks der mittleren Schicht: vorgeschlagen werden zwei Schichten</translation>
    </message>
    <message>
        <source>%1 picks fit no layer and are given to none (shot/trace): %2</source>
        <translation>%1 Picks passen zu keiner Schicht und bleiben ohne (Schuss/Spur): %2</translation>
    </message>
    <message>
        <source>Known ground</source>
        <translation>Bekannter Untergrund</translation>
    </message>
    <message>
        <source>with %1 ms less, the pick of receiver %2 would come before the shot</source>
        <translation>mit %1 ms weniger läge der Pick von Empfänger %2 vor dem Schuss</translation>
    </message>
    <message>
        <source>%1 The model that it started from was too far from the picks, chi-square %2, to hold the section to its sharp steps: they were smoothed first.</source>
        <translation>%1 Das Modell, mit dem er begann, war zu weit von den Picks entfernt, Chi-Quadrat %2, um den Schnitt an dessen scharfe Sprünge zu binden: Sie wurden zuerst geglättet.</translation>
    </message>
    <message>
        <source>%1 holds no cell of the grid: it is too small, or beyond it.</source>
        <translation>%1 enthält keine Zelle des Gitters: zu klein oder außerhalb davon.</translation>
    </message>
    <message>
        <source>%1 at %2 stands beyond the grid.</source>
        <translation>%1 bei %2 steht außerhalb des Gitters.</translation>
    </message>
    <message>
        <source>%1 reaches %2 down, below the grid; what is below %3 does not count.</source>
        <translation>%1 reicht %2 hinab, bis unter das Gitter; was unter %3 liegt, zählt nicht.</translation>
    </message>
    <message>
        <source>%1: no cell is mostly of this layer; it counts by its share of cells, or lies within a fixed body.</source>
        <translation>%1: Keine Zelle liegt überwiegend in dieser Schicht; sie zählt mit ihrem Anteil an Zellen oder liegt in einem festen Körper.</translation>
    </message>
    <message>
        <source>%1 (%2 along the line, %3 deep) is beyond the grid, or nearer to its edge than its error or a cell.</source>
        <translation>%1 (%2 entlang der Messlinie, %3 tief) liegt außerhalb des Gitters oder näher an dessen Rand als der eigene Fehler oder eine Zelle.</translation>
    </message>
    <message>
        <source>%1, %2 at %3</source>
        <translation>%1, %2 bei %3</translation>
    </message>
    <message>
        <source>%1, %2 above</source>
        <translation>%1, %2 darüber</translation>
    </message>
    <message>
        <source>%1, %2 below</source>
        <translation>%1, %2 darunter</translation>
    </message>
    <message>
        <source>Layered interpretation</source>
        <translation>Schichtauswertung</translation>
    </message>
    <message>
        <source>Section of another project</source>
        <translation>Schnitt eines anderen Projekts</translation>
    </message>
    <message>
        <source>There is no layered interpretation to start from. Build one first.</source>
        <translation>Es gibt keine Schichtauswertung, mit der begonnen werden könnte. Erstellen Sie zuerst eine.</translation>
    </message>
    <message>
        <source>Mean residual of the rays</source>
        <translation>Mittleres Residuum der Strahlen</translation>
    </message>
    <message>
        <source>Mean residual over pick error</source>
        <translation>Mittleres Residuum in Pickfehlern</translation>
    </message>
    <message>
        <source>Start from layers</source>
        <translation>Mit Schichten beginnen</translation>
    </message>
    <message>
        <source>A layer has a velocity of %1, which is no velocity of the ground.</source>
        <translation>Eine Schicht hat eine Geschwindigkeit von %1; das ist keine Geschwindigkeit des Untergrunds.</translation>
    </message>
    <message>
        <source>The layer that begins at %1 lies over another; order the layers by depth, without overlap.</source>
        <translation>Die Schicht, die bei %1 beginnt, überlappt eine andere; ordnen Sie die Schichten nach der Tiefe, ohne Überlappung.</translation>
    </message>
    <message>
        <source>The section fits all but one of the %1 picks to their errors: chi-square %2.</source>
        <translation>Der Schnitt passt im Rahmen ihrer Fehler zu allen der %1 Picks bis auf einen: Chi-Quadrat %2.</translation>
    </message>
    <message>
        <source>The section fits all but %1 of the %2 picks to their errors: chi-square %3.</source>
        <translation>Der Schnitt passt im Rahmen ihrer Fehler zu allen bis auf %1 der %2 Picks: Chi-Quadrat %3.</translation>
    </message>
    <message>
        <source>target not reached: %1 of the %2 picks are off by more than five of their errors, even if the others leave a chi-square of %3. Look at them first: shots may be shifted in time, or picks lie on another wave.</source>
        <translation>Ziel nicht erreicht: %1 der %2 Picks liegen um mehr als fünf ihrer Fehler daneben, auch wenn die übrigen ein Chi-Quadrat von %3 ergeben. Sehen Sie sich diese zuerst an: Vielleicht sind Schüsse zeitlich verschoben, oder Picks liegen auf einer anderen Welle.</translation>
    </message>
    <message>
        <source>%1 The model that it started from fits them better than that, chi-square %2, and was smoothed as far as the errors allow. State errors %3 times as large to keep it sharp.</source>
        <translation>%1 Das Modell, mit dem er begann, passt noch besser, Chi-Quadrat %2, und wurde so weit geglättet, wie die Fehler es zulassen. Geben Sie %3-mal so große Fehler an, damit es scharf bleibt.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems late by %3 ms: run again with shifts.</source>
        <translation>%1 Schuss %2 scheint um %3 ms zu spät: mit Verschiebungen neu rechnen.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems early by %3 ms: run again with shifts.</source>
        <translation>%1 Schuss %2 scheint um %3 ms zu früh: mit Verschiebungen neu rechnen.</translation>
    </message>
    <message>
        <source>%1: chi-square %2, suspects %3</source>
        <translation>%1: Chi-Quadrat %2, verdächtige Picks %3</translation>
    </message>
    <message>
        <source>%1 The fit from the model &quot;%2&quot; is kept, as those from others come less near to the picks: %3.</source>
        <translation>%1 Behalten wird die Anpassung, die mit dem Modell „%2“ begann, denn die mit anderen kommen den Picks weniger nahe: %3.</translation>
    </message>
    <message>
        <source>Layer %1 has no depth at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>Schicht %1 hat an %2 von %3 Empfängern keine Tiefe; sie wird von deren Nachbarn übernommen.</translation>
    </message>
    <message>
        <source>Layer %1 has no velocity at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>Schicht %1 hat an %2 von %3 Empfängern keine Geschwindigkeit; sie wird von deren Nachbarn übernommen.</translation>
    </message>
    <message>
        <source>Layer %1 has a negative depth at %2 of %3 receivers; it begins at the surface there.</source>
        <translation>Schicht %1 hat an %2 von %3 Empfängern eine negative Tiefe; sie beginnt dort an der Oberfläche.</translation>
    </message>
    <message>
        <source>There is no layered profile; build the profiles of the refraction first.</source>
        <translation>Es gibt kein Schichtprofil; erstellen Sie zuerst die Profile der Refraktion.</translation>
    </message>
    <message>
        <source>The first layer of the layered profile has no velocity. Mark direct waves as layer 1 and build the profiles again.</source>
        <translation>Die erste Schicht des Schichtprofils hat keine Geschwindigkeit. Ordnen Sie direkte Wellen der Schicht 1 zu und erstellen Sie die Profile neu.</translation>
    </message>
    <message>
        <source>The first refractor of the layered profile has no depth or no velocity at any receiver.</source>
        <translation>Der erste Refraktor des Schichtprofils hat an keinem Empfänger eine Tiefe oder an keinem eine Geschwindigkeit.</translation>
    </message>
    <message>
        <source>Layer 3 has no depth or no velocity at any receiver; the ground ends with layer 2.</source>
        <translation>Schicht 3 hat an keinem Empfänger eine Tiefe oder an keinem eine Geschwindigkeit; der Untergrund endet mit Schicht 2.</translation>
    </message>
    <message>
        <source>Layer 3 begins above layer 2 at %1 of %2 receivers; layer 2 is left out there.</source>
        <translation>Schicht 3 beginnt an %1 von %2 Empfängern über Schicht 2; Schicht 2 wird dort weggelassen.</translation>
    </message>
    <message>
        <source>The grid ends above layer %1 in %2 of %3 columns.</source>
        <translation>Das Gitter endet in %2 von %3 Spalten über Schicht %1.</translation>
    </message>
    <message>
        <source>The layered profile has no depths of layer %1.</source>
        <translation>Das Schichtprofil hat keine Tiefen von Schicht %1.</translation>
    </message>
    <message>
        <source>Layer %1, layered profile</source>
        <translation>Schicht %1, Schichtprofil</translation>
    </message>
    <message>
        <source>Section, steepest gradient</source>
        <translation>Schnitt, steilster Gradient</translation>
    </message>
    <message>
        <source>Section, %1</source>
        <translation>Schnitt, %1</translation>
    </message>
    <message>
        <source>The methods could not be compared: %1</source>
        <translation>Die Methoden konnten nicht verglichen werden: %1</translation>
    </message>
    <message>
        <source>P and S have no velocity in common to draw.</source>
        <translation>P und S haben keine gemeinsame Stelle mit Geschwindigkeiten, die gezeichnet werden könnten.</translation>
    </message>
    <message>
        <source>No method gives a depth.</source>
        <translation>Keine Methode ergibt eine Tiefe.</translation>
    </message>
    <message>
        <source>this is no file with the members of an ensemble</source>
        <translation>dies ist keine Datei mit den Mitgliedern eines Ensembles</translation>
    </message>
    <message>
        <source>its members cannot be read: the file is damaged</source>
        <translation>die Mitglieder darin sind nicht lesbar: die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>its members are those of another ensemble: another survey or section, other settings or another seed</source>
        <translation>die Mitglieder darin sind die eines anderen Ensembles: eine andere Messung, ein anderer Schnitt, andere Einstellungen oder ein anderer Startwert</translation>
    </message>
    <message>
        <source>its member %1 is done already, others are not; only sets of members that share none can be put together</source>
        <translation>das Mitglied %1 darin ist schon fertig, andere sind es nicht; zusammenfügen lassen sich nur Sätze ohne gemeinsame Mitglieder</translation>
    </message>
    <message>
        <source>its members cannot be those of this ensemble</source>
        <translation>die Mitglieder darin können nicht die dieses Ensembles sein</translation>
    </message>
    <message>
        <source>the first layer of its layered profile has one velocity</source>
        <translation>die erste Schicht des Schichtprofils hat nur eine Geschwindigkeit</translation>
    </message>
    <message>
        <source>such a first layer cannot be</source>
        <translation>eine solche erste Schicht ist nicht möglich</translation>
    </message>
    <message>
        <source>it belongs to another layered profile</source>
        <translation>sie gehört zu einem anderen Schichtprofil</translation>
    </message>
    <message>
        <source>Layer %1, medians of %2 places: %3; %4</source>
        <translation>Schicht %1, Mediane von %2 Stellen: %3; %4</translation>
    </message>
    <message>
        <source>density %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</source>
        <translation>Dichte %1 kg/m³, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places the depths of its top by P and by S differ by more than %4 % (median there %5 by P, %6 by S). P waves often see the water table, which S waves do not: the same number may be different ground.</source>
        <translation>Schicht %1: an %2 von %3 Stellen unterscheiden sich die Tiefen ihrer Oberkante aus P und aus S um mehr als %4 % (Median dort %5 aus P, %6 aus S). P-Wellen sehen oft den Grundwasserspiegel, S-Wellen nicht: Dieselbe Nummer kann verschiedener Untergrund sein.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places a velocity is not known.</source>
        <translation>Schicht %1: an %2 von %3 Stellen ist eine Geschwindigkeit nicht bekannt.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there. Are P and S exchanged, or is S a P wave?</source>
        <translation>Schicht %1: an %2 von %3 Stellen ist S nicht langsamer als P, was es in keinem Untergrund gibt: dort keine Poissonzahl, kein E0 und kein K. Sind P und S vertauscht, oder ist S eine P-Welle?</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not: the velocities are of different ground, or wrong.</source>
        <translation>Schicht %1: an %2 von %3 Stellen liegt Vp/Vs unter 1,41 und ist die Poissonzahl negativ, was es bei Boden und Fels nicht gibt: Die Geschwindigkeiten stammen aus verschiedenem Untergrund oder sind falsch.</translation>
    </message>
    <message>
        <source>The surfaces of P and S lie up to %1 apart, at %2: they may not be the same line, or not begin at the same place.</source>
        <translation>Die Geländeoberflächen von P und S liegen bis zu %1 auseinander, bei %2: Es ist vielleicht nicht dieselbe Messlinie, oder sie beginnen nicht an derselben Stelle.</translation>
    </message>
    <message>
        <source>By their recordings the project of P is one of S waves, and that of S is not: they may be exchanged.</source>
        <translation>Nach den Aufzeichnungen enthält das P-Projekt S-Wellen und das S-Projekt nicht: Sie sind vielleicht vertauscht.</translation>
    </message>
    <message>
        <source>The recordings of both projects are of S waves.</source>
        <translation>Die Aufzeichnungen beider Projekte sind solche von S-Wellen.</translation>
    </message>
    <message>
        <source>The places of P and S on the map are given in different systems (EPSG:%1 and EPSG:%2) and were not compared.</source>
        <translation>Die Lage von P und S auf der Karte ist in verschiedenen Systemen angegeben (EPSG:%1 und EPSG:%2) und wurde nicht verglichen.</translation>
    </message>
    <message>
        <source>The same distances of P and S lie up to %1 apart on the map: they may not be the same line, or not begin at the same place.</source>
        <translation>Dieselben Entfernungen von P und S liegen auf der Karte bis zu %1 auseinander: Es ist vielleicht nicht dieselbe Messlinie, oder sie beginnen nicht an derselben Stelle.</translation>
    </message>
    <message>
        <source>The project of P has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>Das P-Projekt hat kein Schichtprofil: Erstellen Sie zuerst seine Profile im Refraktionsdialog.</translation>
    </message>
    <message>
        <source>The project of S has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>Das S-Projekt hat kein Schichtprofil: Erstellen Sie zuerst seine Profile im Refraktionsdialog.</translation>
    </message>
    <message>
        <source>P and S have no place in common: P was interpreted from %1, S from %2 along the line.</source>
        <translation>P und S haben keine Stelle gemeinsam: P wurde entlang der Messlinie von %1 ausgewertet, S von %2.</translation>
    </message>
    <message>
        <source>Layer %1: P and S have no place in common.</source>
        <translation>Schicht %1: P und S haben keine Stelle gemeinsam.</translation>
    </message>
    <message>
        <source>P has %1 layers and S has %2; what lies below layer %3 is known of one wave only and left out.</source>
        <translation>P hat %1 Schichten und S hat %2; was unter Schicht %3 liegt, ist nur von einer Welle bekannt und wird weggelassen.</translation>
    </message>
    <message>
        <source>the curves of layer %1 follow the lines of shots %2 and %3, which give %4 and %5 ms for the way between these shots</source>
        <translation>die Kurven von Schicht %1 folgen den Linien der Schüsse %2 und %3, die für den Weg zwischen diesen Schüssen %4 und %5 ms ergeben</translation>
    </message>
    <message>
        <source>the delays of the waves change so fast along the line that no boundary has them all</source>
        <translation>die Verzögerungen der Wellen ändern sich entlang der Messlinie so schnell, dass keine Schichtgrenze sie alle ergibt</translation>
    </message>
    <message>
        <source>reciprocal</source>
        <translation>Reziprokmethode</translation>
    </message>
    <message>
        <source>delay times</source>
        <translation>Verzögerungszeiten</translation>
    </message>
    <message>
        <source>intercept times</source>
        <translation>Interceptzeiten</translation>
    </message>
    <message>
        <source>plus-minus</source>
        <translation>Plus-Minus</translation>
    </message>
    <message>
        <source>to the right of shot %1</source>
        <translation>rechts von Schuss %1</translation>
    </message>
    <message>
        <source>to the right of shots %1</source>
        <translation>rechts der Schüsse %1</translation>
    </message>
    <message>
        <source>to the left of shot %1</source>
        <translation>links von Schuss %1</translation>
    </message>
    <message>
        <source>to the left of shots %1</source>
        <translation>links der Schüsse %1</translation>
    </message>
    <message>
        <source>layer %1 rests on fewer than four picks (their number in brackets) %2</source>
        <translation>Schicht %1 beruht auf weniger als vier Picks (Anzahl in Klammern) %2</translation>
    </message>
    <message>
        <source>1 pick fits no layer and is given to none (shot/trace): %1</source>
        <translation>1 Pick passt zu keiner Schicht und bleibt ohne (Schuss/Spur): %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robust</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>nicht robust</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>blockig</translation>
    </message>
    <message>
        <source>smooth</source>
        <translation>glatt</translation>
    </message>
    <message>
        <source>shots shifted</source>
        <translation>Schüsse verschoben</translation>
    </message>
    <message>
        <source>no shot shifted</source>
        <translation>kein Schuss verschoben</translation>
    </message>
    <message>
        <source>%1 of the %2 cells of P lie where the section of S shows none.</source>
        <translation>%1 der %2 Zellen von P liegen, wo der Schnitt von S keine zeigt.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there.</source>
        <translation>In %1 von %2 Zellen ist S nicht langsamer als P, was es in keinem Untergrund gibt: dort keine Poissonzahl, kein E0 und kein K.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not.</source>
        <translation>In %1 von %2 Zellen liegt Vp/Vs unter 1,41 und ist die Poissonzahl negativ, was es bei Boden und Fels nicht gibt.</translation>
    </message>
    <message>
        <source>The surfaces of the sections of P and S lie up to %1 apart, at %2; cells are matched by their depths below them.</source>
        <translation>Die Geländeoberflächen der Schnitte von P und S liegen bis zu %1 auseinander, bei %2; Zellen werden nach ihrer Tiefe darunter einander zugeordnet.</translation>
    </message>
    <message>
        <source>A section has no layers: all of it has the first density.</source>
        <translation>Ein Schnitt hat keine Schichten: Er hat überall die erste Dichte.</translation>
    </message>
    <message>
        <source>The project of P has no section.</source>
        <translation>Das P-Projekt hat keinen Schnitt.</translation>
    </message>
    <message>
        <source>The project of S has no section.</source>
        <translation>Das S-Projekt hat keinen Schnitt.</translation>
    </message>
    <message>
        <source>The sections of P and S have no cell in common.</source>
        <translation>Die Schnitte von P und S haben keine Zelle gemeinsam.</translation>
    </message>
    <message>
        <source>a scratch file of samples cannot be written to</source>
        <translation>in eine temporäre Datei für Abtastwerte kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Samples are kept in memory: %1</source>
        <translation>Abtastwerte bleiben im Speicher: %1</translation>
    </message>
    <message>
        <source>no folder for scratch files of samples can be written to</source>
        <translation>für temporäre Dateien mit Abtastwerten ist kein Ordner beschreibbar</translation>
    </message>
    <message>
        <source>no scratch file of samples can be made in %1: %2</source>
        <translation>in %1 kann keine temporäre Datei für Abtastwerte angelegt werden: %2</translation>
    </message>
    <message>
        <source>No report format is known for %1: let the file name end with .pdf, .odt or .html.</source>
        <translation>Für %1 ist kein Berichtsformat bekannt: Der Dateiname muss auf .pdf, .odt oder .html enden.</translation>
    </message>
    <message>
        <source>This Talvesk cannot write web pages: it was built without the chart library. Run scripts/bootstrap and build it again, or write a PDF or ODT report.</source>
        <translation>Dieses Talvesk kann keine Webseiten schreiben: Es wurde ohne die Diagrammbibliothek gebaut. Führen Sie scripts/bootstrap aus und bauen Sie es neu, oder schreiben Sie einen PDF- oder ODT-Bericht.</translation>
    </message>
    <message>
        <source>P: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>P: Das Profil wurde an alle Picks angepasst und erhält keine Fehler. Eines nach der Reziprokmethode erhält sie.</translation>
    </message>
    <message>
        <source>S: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>S: Das Profil wurde an alle Picks angepasst und erhält keine Fehler. Eines nach der Reziprokmethode erhält sie.</translation>
    </message>
    <message>
        <source>The velocity of layer 1 changes along the line and with depth in this profile; here it is its mean, %1, everywhere.</source>
        <translation>Die Geschwindigkeit von Schicht 1 ändert sich in diesem Profil entlang der Messlinie und mit der Tiefe; hier gilt überall ihr Mittel, %1.</translation>
    </message>
    <message>
        <source>the first distance must be a number, and the EPSG code a whole number</source>
        <translation>die erste Entfernung muss eine Zahl sein und der EPSG-Code eine ganze Zahl</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Kerbfilter</translation>
    </message>
    <message>
        <source>Velocity filter</source>
        <translation>Geschwindigkeitsfilter</translation>
    </message>
    <message>
        <source>the line has no place on the map; its geographic coordinates are missing</source>
        <translation>die Messlinie hat keine Lage auf der Karte; ihre geographischen Koordinaten fehlen</translation>
    </message>
    <message>
        <source>two shot files of the survey would both become %1</source>
        <translation>zwei Schussdateien der Messung würden beide zu %1</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey; choose another folder</source>
        <translation>%1 ist eine der Schussdateien dieser Messung; wählen Sie einen anderen Ordner</translation>
    </message>
    <message>
        <source>it holds several shots, whose traces may be mixed</source>
        <translation>sie enthält mehrere Schüsse, deren Spuren vermischt sein können</translation>
    </message>
    <message>
        <source>its traces are not those of the survey any more</source>
        <translation>ihre Spuren sind nicht mehr die der Messung</translation>
    </message>
    <message>
        <source>miniSEED has no headers for picks</source>
        <translation>miniSEED hat keine Header für Picks</translation>
    </message>
    <message>
        <source>the survey has no shot files</source>
        <translation>die Messung hat keine Schussdateien</translation>
    </message>
    <message>
        <source>%1 was left out: %2</source>
        <translation>%1 wurde weggelassen: %2</translation>
    </message>
    <message>
        <source>%1 has no picks</source>
        <translation>%1 hat keine Picks</translation>
    </message>
    <message>
        <source>%1 shots have no shot file of their own and were left out</source>
        <translation>%1 Schüsse haben keine eigene Schussdatei und wurden weggelassen</translation>
    </message>
    <message>
        <source>bytes 233 to 236 of %1 trace headers held something else before</source>
        <translation>die Bytes 233 bis 236 von %1 Spurheadern enthielten zuvor etwas anderes</translation>
    </message>
    <message>
        <source>the header of trace %1 cannot be followed</source>
        <translation>der Header von Spur %1 ist nicht auswertbar</translation>
    </message>
    <message>
        <source>it has %1 traces, the survey %2 of them</source>
        <translation>sie hat %1 Spuren, die Messung %2 davon</translation>
    </message>
    <message>
        <source>it would grow too large</source>
        <translation>sie würde zu groß</translation>
    </message>
    <message>
        <source>the header of trace %1 has no room for a pick</source>
        <translation>der Header von Spur %1 hat keinen Platz für einen Pick</translation>
    </message>
    <message>
        <source>it is SEG-Y of revision 2, whose trace headers have no bytes to spare</source>
        <translation>sie ist SEG-Y der Revision 2, deren Spurheader keine freien Bytes haben</translation>
    </message>
    <message>
        <source>it is not known by what the filtered copies of its traces were made</source>
        <translation>es ist nicht bekannt, womit die gefilterten Kopien der Spuren erstellt wurden</translation>
    </message>
    <message>
        <source>marked isolines and what was drawn on its section are lost</source>
        <translation>markierte Isolinien und auf den Schnitt Gezeichnetes sind verloren</translation>
    </message>
    <message>
        <source>the line lies straight on the map between its ends</source>
        <translation>die Messlinie liegt auf der Karte gerade zwischen ihren Enden</translation>
    </message>
    <message>
        <source>its vertices are no course of a line</source>
        <translation>die Stützpunkte ergeben keinen Verlauf einer Messlinie</translation>
    </message>
    <message>
        <source>it belongs to another map position</source>
        <translation>er gehört zu einer anderen Lage auf der Karte</translation>
    </message>
    <message>
        <source>it tells of traces that are not there, or of filters that are not known</source>
        <translation>es nennt Spuren, die nicht da sind, oder Filter, die nicht bekannt sind</translation>
    </message>
    <message>
        <source>%1 is no style file: %2</source>
        <translation>%1 ist keine Stildatei: %2</translation>
    </message>
    <message>
        <source>a newer version of Talvesk has written it</source>
        <translation>eine neuere Version von Talvesk hat sie geschrieben</translation>
    </message>
    <message>
        <source>the place lies outside of %1</source>
        <translation>die Stelle liegt außerhalb von %1</translation>
    </message>
    <message>
        <source>it is not known which columns hold easting and northing, or longitude and latitude</source>
        <translation>es ist nicht bekannt, welche Spalten Ostwert und Nordwert oder Längengrad und Breitengrad enthalten</translation>
    </message>
    <message>
        <source>%1 has more than %2 rows, which is no table of a line</source>
        <translation>%1 hat mehr als %2 Zeilen; das ist keine Tabelle einer Messlinie</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>der Text ist zu lang</translation>
    </message>
    <message>
        <source>its colour is none</source>
        <translation>die Farbe ist keine gültige Farbe</translation>
    </message>
    <message>
        <source>a line is %1 to %2 points wide</source>
        <translation>eine Linie ist %1 bis %2 Punkt breit</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sand</translation>
    </message>
    <message>
        <source>Gravel</source>
        <translation>Kies</translation>
    </message>
    <message>
        <source>Clay</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Silt</source>
        <translation>Schluff</translation>
    </message>
    <message>
        <source>Rock</source>
        <translation>Fels</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Auffüllung</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>it is neither text nor line nor polygon</source>
        <translation>sie ist weder Text noch Linie noch Polygon</translation>
    </message>
    <message>
        <source>its pattern is none</source>
        <translation>das Muster ist kein gültiges Muster</translation>
    </message>
    <message>
        <source>it says nothing</source>
        <translation>sie enthält keinen Text</translation>
    </message>
    <message>
        <source>a text stands at one point, not at %1</source>
        <translation>ein Text steht an einem Punkt, nicht an %1</translation>
    </message>
    <message>
        <source>it has %1 points and needs %2 at least</source>
        <translation>sie hat %1 Punkte und braucht mindestens %2</translation>
    </message>
    <message>
        <source>%1, %2 is no place of a section</source>
        <translation>%1, %2 ist keine Stelle eines Schnitts</translation>
    </message>
    <message>
        <source>a text is %1 to %2 points high</source>
        <translation>ein Text ist %1 bis %2 Punkt hoch</translation>
    </message>
    <message>
        <source>a section holds %1 marked isolines and %2 annotations with %3 points at most</source>
        <translation>ein Schnitt fasst höchstens %1 markierte Isolinien und %2 Anmerkungen mit %3 Punkten</translation>
    </message>
    <message>
        <source>marked isoline %1</source>
        <translation>markierte Isolinie %1</translation>
    </message>
    <message>
        <source>annotation %1</source>
        <translation>Anmerkung %1</translation>
    </message>
    <message>
        <source>band-pass from %1 Hz, order %2, to %3 Hz, order %4</source>
        <translation>Bandpass von %1 Hz, Ordnung %2, bis %3 Hz, Ordnung %4</translation>
    </message>
    <message>
        <source>low-pass %1 Hz, order %2</source>
        <translation>Tiefpass %1 Hz, Ordnung %2</translation>
    </message>
    <message>
        <source>high-pass %1 Hz, order %2</source>
        <translation>Hochpass %1 Hz, Ordnung %2</translation>
    </message>
    <message>
        <source>%1 and more</source>
        <translation>%1 und mehr</translation>
    </message>
    <message>
        <source>forth along the line</source>
        <translation>vorwärts entlang der Messlinie</translation>
    </message>
    <message>
        <source>back along the line</source>
        <translation>rückwärts entlang der Messlinie</translation>
    </message>
    <message>
        <source>both ways</source>
        <translation>in beiden Richtungen</translation>
    </message>
    <message>
        <source>velocities of %1, %2, pass (taper %3 %)</source>
        <translation>Geschwindigkeiten von %1, %2, werden durchgelassen (Taper %3 %)</translation>
    </message>
    <message>
        <source>velocities of %1, %2, are rejected (taper %3 %)</source>
        <translation>Geschwindigkeiten von %1, %2, werden gesperrt (Taper %3 %)</translation>
    </message>
    <message>
        <source>notches at %1 Hz and multiples, %2 in all, quality %3</source>
        <translation>Kerben bei %1 Hz und Vielfachen, insgesamt %2, Güte %3</translation>
    </message>
    <message>
        <source>two geophones at least need easting and northing</source>
        <translation>mindestens zwei Geophone brauchen Ostwert und Nordwert</translation>
    </message>
    <message>
        <source>the first and the last geophone are at one place on the map, which gives the line no direction</source>
        <translation>das erste und das letzte Geophon liegen an derselben Stelle der Karte; so hat die Messlinie keine Richtung</translation>
    </message>
    <message>
        <source>a trace cannot have a gain of %1, only one from %2 to %3</source>
        <translation>eine Spur kann keine Verstärkung von %1 haben, nur eine von %2 bis %3</translation>
    </message>
    <message>
        <source>traces with a gain of %1: %2</source>
        <translation>Spuren mit Verstärkung %1: %2</translation>
    </message>
    <message>
        <source>geophone %1</source>
        <translation>Geophon %1</translation>
    </message>
    <message>
        <source>geophones %1</source>
        <translation>Geophone %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>Zeilen %1</translation>
    </message>
    <message>
        <source>lines %1 and %2 more</source>
        <translation>Zeilen %1 und %2 weitere</translation>
    </message>
    <message>
        <source>Not used, for no geophone or shot of the survey is there: %1</source>
        <translation>Nicht verwendet, da dort kein Geophon oder Schuss der Messung steht: %1</translation>
    </message>
    <message>
        <source>Not used, for a row above is of the same geophone or shot: %1</source>
        <translation>Nicht verwendet, da eine Zeile darüber zum selben Geophon oder Schuss gehört: %1</translation>
    </message>
    <message>
        <source>Without a row, placed among those that have one by the distances so far: %1</source>
        <translation>Ohne Zeile, nach den bisherigen Entfernungen zwischen die mit Zeile gesetzt: %1</translation>
    </message>
    <message>
        <source>Without a row, left where nothing tells how they stand to the others: %1</source>
        <translation>Ohne Zeile, unverändert, da nichts ihre Lage zu den anderen angibt: %1</translation>
    </message>
    <message>
        <source>Without an elevation, raised to the line between the others: %1</source>
        <translation>Ohne Höhe, auf die Linie zwischen den anderen gehoben: %1</translation>
    </message>
    <message>
        <source>Hardly apart from their neighbours: %1</source>
        <translation>Kaum von ihren Nachbarn entfernt: %1</translation>
    </message>
    <message>
        <source>The line runs back to %1; an exchanged row or number?</source>
        <translation>Die Messlinie läuft zurück zu %1; eine vertauschte Zeile oder Nummer?</translation>
    </message>
    <message>
        <source>Not as far from the geophone before as expected: %1</source>
        <translation>Nicht so weit vom vorigen Geophon entfernt wie erwartet: %1</translation>
    </message>
    <message>
        <source>fewer than two geophones of the survey have a row in the table</source>
        <translation>weniger als zwei Geophone der Messung haben eine Zeile in der Tabelle</translation>
    </message>
    <message>
        <source>lengths along the ground need the elevation of every geophone; the table lacks %1</source>
        <translation>Längen entlang des Geländes brauchen die Höhe jedes Geophons; in der Tabelle fehlt %1</translation>
    </message>
    <message>
        <source>its sample interval is not known</source>
        <translation>das Abtastintervall ist nicht bekannt</translation>
    </message>
    <message>
        <source>it has samples that are no numbers</source>
        <translation>die Spur hat Abtastwerte, die keine Zahlen sind</translation>
    </message>
    <message>
        <source>a notch needs a frequency, a multiple and a quality above 0</source>
        <translation>ein Kerbfilter braucht eine Frequenz, ein Vielfaches und eine Güte über 0</translation>
    </message>
    <message>
        <source>it is sampled too slowly for %1 Hz</source>
        <translation>die Abtastung ist zu langsam für %1 Hz</translation>
    </message>
    <message>
        <source>it is shorter than one period of %1 Hz</source>
        <translation>die Spur ist kürzer als eine Periode von %1 Hz</translation>
    </message>
    <message>
        <source>trace %1 has another length or sample interval than trace 1</source>
        <translation>Spur %1 hat eine andere Länge oder ein anderes Abtastintervall als Spur 1</translation>
    </message>
    <message>
        <source>trace %1 has samples that are no numbers</source>
        <translation>Spur %1 hat Abtastwerte, die keine Zahlen sind</translation>
    </message>
    <message>
        <source>it has no samples, or no known sample interval</source>
        <translation>es gibt keine Abtastwerte oder kein bekanntes Abtastintervall</translation>
    </message>
    <message>
        <source>its geophones are not evenly spaced: trace %1 at %2 is %3 from the one before, the usual distance is %4</source>
        <translation>die Geophone stehen nicht in gleichen Abständen: Spur %1 bei %2 ist %3 von der vorigen entfernt, üblich sind %4</translation>
    </message>
    <message>
        <source>it has fewer than %1 traces</source>
        <translation>es sind weniger als %1 Spuren</translation>
    </message>
    <message>
        <source>the positions of its geophones are not known</source>
        <translation>die Positionen der Geophone sind nicht bekannt</translation>
    </message>
    <message>
        <source>of %1 places along its line %2 have no trace</source>
        <translation>von %1 Stellen entlang der Messlinie haben %2 keine Spur</translation>
    </message>
    <message>
        <source>shot %1: of %2 places along its line %3 have no trace, or a killed one; they count as zero, beside them the filter is less sharp</source>
        <translation>Schuss %1: Von %2 Stellen entlang der Messlinie haben %3 keine Spur oder eine ausgeschaltete; sie zählen als null, neben ihnen ist der Filter weniger scharf</translation>
    </message>
    <message>
        <source>the slowest velocity, %1, must be above 0 and below the fastest, %2</source>
        <translation>die kleinste Geschwindigkeit, %1, muss über 0 und unter der größten, %2, liegen</translation>
    </message>
    <message>
        <source>the taper must be 0 or more and less than 100 percent of a limit</source>
        <translation>der Taper muss mindestens 0 und kleiner als 100 Prozent einer Grenze sein</translation>
    </message>
    <message>
        <source>Surveyed positions</source>
        <translation>Vermessene Positionen</translation>
    </message>
    <message>
        <source>Marked isolines</source>
        <translation>Markierte Isolinien</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Stil anwenden</translation>
    </message>
    <message>
        <source>shot %1 has no trace %2</source>
        <translation>Schuss %1 hat keine Spur %2</translation>
    </message>
    <message>
        <source>no recordings yet</source>
        <translation>noch keine Aufzeichnungen</translation>
    </message>
    <message>
        <source>times of %1 shots, without recordings</source>
        <translation>Zeiten von %1 Schüssen, ohne Aufzeichnungen</translation>
    </message>
    <message>
        <source>recordings that begin before their shot: %1</source>
        <translation>Aufzeichnungen, die vor ihrem Schuss beginnen: %1</translation>
    </message>
    <message>
        <source>recordings that were read with warnings: %1</source>
        <translation>mit Warnungen gelesene Aufzeichnungen: %1</translation>
    </message>
    <message>
        <source>shots: %1</source>
        <translation>Schüsse: %1</translation>
    </message>
    <message>
        <source>no geophones yet</source>
        <translation>noch keine Geophone</translation>
    </message>
    <message>
        <source>positions are missing or cannot be</source>
        <translation>Positionen fehlen oder sind nicht möglich</translation>
    </message>
    <message>
        <source>things that look wrong in the positions: %1</source>
        <translation>Auffälligkeiten in den Positionen: %1</translation>
    </message>
    <message>
        <source>geophones: %1, shots: %2</source>
        <translation>Geophone: %1, Schüsse: %2</translation>
    </message>
    <message>
        <source>no picks yet</source>
        <translation>noch keine Picks</translation>
    </message>
    <message>
        <source>shots without picks: %1</source>
        <translation>Schüsse ohne Picks: %1</translation>
    </message>
    <message>
        <source>only %1 of %2 traces have a pick</source>
        <translation>nur %1 von %2 Spuren haben einen Pick</translation>
    </message>
    <message>
        <source>%1 picks on %2 traces</source>
        <translation>%1 Picks auf %2 Spuren</translation>
    </message>
    <message>
        <source>no picks to check yet</source>
        <translation>noch keine Picks zu prüfen</translation>
    </message>
    <message>
        <source>%1 of %2 picks that wait for confirmation are doubtful</source>
        <translation>%1 von %2 Picks, die auf Bestätigung warten, sind zweifelhaft</translation>
    </message>
    <message>
        <source>of %1 picks nothing is known that could speak against them</source>
        <translation>von %1 Picks ist nichts bekannt, was gegen sie spräche</translation>
    </message>
    <message>
        <source>none of the %1 picks that wait for confirmation is doubtful</source>
        <translation>keiner der %1 Picks, die auf Bestätigung warten, ist zweifelhaft</translation>
    </message>
    <message>
        <source>no pick waits for confirmation</source>
        <translation>kein Pick wartet auf Bestätigung</translation>
    </message>
    <message>
        <source>no grid yet</source>
        <translation>noch kein Gitter</translation>
    </message>
    <message>
        <source>the grid has no cells</source>
        <translation>das Gitter hat keine Zellen</translation>
    </message>
    <message>
        <source>shots and geophones beyond the grid: %1</source>
        <translation>Schüsse und Geophone außerhalb des Gitters: %1</translation>
    </message>
    <message>
        <source>%1 x %2 cells</source>
        <translation>%1 x %2 Zellen</translation>
    </message>
    <message>
        <source>%1, the usual starting model</source>
        <translation>%1, übliches Startmodell</translation>
    </message>
    <message>
        <source>%1, a starting model with layers: %2</source>
        <translation>%1, Startmodell mit Schichten: %2</translation>
    </message>
    <message>
        <source>no inversion yet</source>
        <translation>noch keine Inversion</translation>
    </message>
    <message>
        <source>the section is older than the picks</source>
        <translation>der Schnitt ist älter als die Picks</translation>
    </message>
    <message>
        <source>the known ground is other than that of the section</source>
        <translation>der bekannte Untergrund ist ein anderer als der des Schnitts</translation>
    </message>
    <message>
        <source>it was stopped before its end</source>
        <translation>vorzeitig angehalten</translation>
    </message>
    <message>
        <source>chi-square is %1 and not near 1</source>
        <translation>Chi-Quadrat ist %1 und nicht nahe 1</translation>
    </message>
    <message>
        <source>the section is inverted</source>
        <translation>der Schnitt ist invertiert</translation>
    </message>
    <message>
        <source>RMSE %1 ms of %2 picks</source>
        <translation>RMSE %1 ms bei %2 Picks</translation>
    </message>
    <message>
        <source>no section yet</source>
        <translation>noch kein Schnitt</translation>
    </message>
    <message>
        <source>the layered profile is older than the picks</source>
        <translation>das Schichtprofil ist älter als die Picks</translation>
    </message>
    <message>
        <source>the certainty is older than the picks</source>
        <translation>die Zuverlässigkeit ist älter als die Picks</translation>
    </message>
    <message>
        <source>the section was smoothed after its inversion</source>
        <translation>der Schnitt wurde nach seiner Inversion geglättet</translation>
    </message>
    <message>
        <source>the section lies beyond its certainty</source>
        <translation>der Schnitt liegt außerhalb seiner Zuverlässigkeit</translation>
    </message>
    <message>
        <source>how certain the section is is not known</source>
        <translation>die Zuverlässigkeit des Schnitts ist nicht bekannt</translation>
    </message>
    <message>
        <source>the section and its certainty are there</source>
        <translation>Schnitt und Zuverlässigkeit liegen vor</translation>
    </message>
    <message>
        <source>it has no section</source>
        <translation>kein Schnitt vorhanden</translation>
    </message>
    <message>
        <source>no cell of its section is drawn</source>
        <translation>keine Zelle des Schnitts wird gezeichnet</translation>
    </message>
    <message>
        <source>its line is nowhere on the map</source>
        <translation>die Messlinie liegt nirgends auf der Karte</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Spuren ausschalten</translation>
    </message>
    <message>
        <source>Revive traces</source>
        <translation>Spuren wieder einschalten</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Polarität umkehren</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Spuren stummschalten</translation>
    </message>
    <message>
        <source>Mute traces no more</source>
        <translation>Stummschaltung der Spuren aufheben</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Spuren verstärken</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Spuren abschwächen</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet.</source>
        <translation>Die Abbildung passt in keinem Maßstab auf dieses Blatt: Wählen Sie ein größeres.</translation>
    </message>
    <message>
        <source>The scale must lie between 1:%1 and 1:%2.</source>
        <translation>Der Maßstab muss zwischen 1:%1 und 1:%2 liegen.</translation>
    </message>
    <message>
        <source>choose two different recordings</source>
        <translation>wählen Sie zwei verschiedene Aufzeichnungen</translation>
    </message>
    <message>
        <source>Choose a scale, or type one such as 1:750.</source>
        <translation>Wählen Sie einen Maßstab oder geben Sie einen ein, etwa 1:750.</translation>
    </message>
    <message>
        <source>The printer is set to paper of %1 x %2 mm, and the sheets are made for %3 x %4 mm: choose the same paper for both.</source>
        <translation>Der Drucker ist auf Papier von %1 x %2 mm eingestellt, die Blätter sind für %3 x %4 mm gemacht: Wählen Sie für beide dasselbe Papier.</translation>
    </message>
    <message>
        <source>The printer does not take the sheets.</source>
        <translation>Der Drucker nimmt die Blätter nicht an.</translation>
    </message>
    <message>
        <source>Add sum of two shots</source>
        <translation>Summe zweier Schüsse hinzufügen</translation>
    </message>
    <message>
        <source>Add difference of two shots</source>
        <translation>Differenz zweier Schüsse hinzufügen</translation>
    </message>
    <message>
        <source>Cannot make the folder %1</source>
        <translation>Der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Cannot write %1: there is a file of that name that is no page of Talvesk; move it or choose another folder</source>
        <translation>%1 kann nicht geschrieben werden: Es gibt eine Datei dieses Namens, die keine Seite von Talvesk ist; verschieben Sie sie oder wählen Sie einen anderen Ordner</translation>
    </message>
    <message>
        <source>There is nothing chosen to be drawn.</source>
        <translation>Es ist nichts zum Zeichnen gewählt.</translation>
    </message>
    <message>
        <source>There is no section to draw.</source>
        <translation>Es gibt keinen Schnitt zu zeichnen.</translation>
    </message>
    <message>
        <source>A sheet has 1 to %1 rows and 1 to %2 columns of shots.</source>
        <translation>Ein Blatt hat 1 bis %1 Zeilen und 1 bis %2 Spalten von Schüssen.</translation>
    </message>
    <message>
        <source>There is no sheet %1 to draw.</source>
        <translation>Es gibt kein Blatt %1 zu zeichnen.</translation>
    </message>
    <message>
        <source>A centimetre must be %1 to %2 ms.</source>
        <translation>Ein Zentimeter muss %1 bis %2 ms sein.</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet, or more milliseconds to a centimetre.</source>
        <translation>Die Abbildung passt in keinem Maßstab auf dieses Blatt: Wählen Sie ein größeres oder mehr Millisekunden je Zentimeter.</translation>
    </message>
    <message>
        <source>At 1:%1 the figure takes %2 x %3 mm, and the sheet has room for %4 x %5 mm: choose 1:%6 or a larger sheet, or have it split.</source>
        <translation>Bei 1:%1 braucht die Abbildung %2 x %3 mm, und das Blatt hat Platz für %4 x %5 mm: Wählen Sie 1:%6 oder ein größeres Blatt oder lassen Sie sie verteilen.</translation>
    </message>
    <message>
        <source>its format names no fields of headers</source>
        <translation>das Format nennt keine Headerfelder</translation>
    </message>
    <message>
        <source>fields of SEG-Y revision 2 are not shown</source>
        <translation>Felder von SEG-Y Revision 2 werden nicht gezeigt</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>den Regeln des Programms</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>dem Standard des Formats</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>Schuss deaktiviert</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>um %1 ms verschoben</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>Reihenfolge umgekehrt</translation>
    </message>
    <message>
        <source>stacked</source>
        <translation>gestapelt</translation>
    </message>
    <message>
        <source>killed</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>polarity reversed</source>
        <translation>Polarität umgekehrt</translation>
    </message>
    <message>
        <source>muted before %1 ms</source>
        <translation>vor %1 ms stummgeschaltet</translation>
    </message>
    <message>
        <source>gain %1</source>
        <translation>Verstärkung %1</translation>
    </message>
    <message>
        <source>filtered</source>
        <translation>gefiltert</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Shot x</source>
        <translation>Schuss x</translation>
    </message>
    <message>
        <source>Shot elevation</source>
        <translation>Höhe des Schusses</translation>
    </message>
    <message>
        <source>Geophone x</source>
        <translation>Geophon x</translation>
    </message>
    <message>
        <source>Geophone elevation</source>
        <translation>Höhe des Geophons</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Pick</translation>
    </message>
    <message>
        <source>Pick error</source>
        <translation>Pickfehler</translation>
    </message>
    <message>
        <source>Sample interval</source>
        <translation>Abtastintervall</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Abtastwerte</translation>
    </message>
    <message>
        <source>Record length</source>
        <translation>Aufzeichnungslänge</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Samples cut off</source>
        <translation>Abgeschnittene Abtastwerte</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Shot x in file</source>
        <translation>Schuss x in der Datei</translation>
    </message>
    <message>
        <source>Shot elevation in file</source>
        <translation>Höhe des Schusses in der Datei</translation>
    </message>
    <message>
        <source>Geophone x in file</source>
        <translation>Geophon x in der Datei</translation>
    </message>
    <message>
        <source>Geophone elevation in file</source>
        <translation>Höhe des Geophons in der Datei</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Gelesen nach</translation>
    </message>
    <message>
        <source>it has no shot file</source>
        <translation>er hat keine Schussdatei</translation>
    </message>
    <message>
        <source>it is made of two shot files</source>
        <translation>er ist aus zwei Schussdateien gebildet</translation>
    </message>
    <message>
        <source>its file has %1 traces, the shot %2</source>
        <translation>seine Datei hat %1 Spuren, der Schuss %2</translation>
    </message>
    <message>
        <source>no geophones of shot %1 and shot %2 that can be compared are at one place</source>
        <translation>keine vergleichbaren Geophone von Schuss %1 und Schuss %2 stehen an derselben Stelle</translation>
    </message>
    <message>
        <source>no difference and no sum: the samples are %1 ms and %2 ms apart</source>
        <translation>keine Differenz und keine Summe: die Abtastwerte liegen %1 ms und %2 ms auseinander</translation>
    </message>
    <message>
        <source>no difference and no sum: the records begin %1 samples apart, which is no whole number</source>
        <translation>keine Differenz und keine Summe: die Aufzeichnungen beginnen %1 Abtastwerte auseinander, was keine ganze Zahl ist</translation>
    </message>
    <message>
        <source>%1 traces at the same places</source>
        <translation>%1 Spuren an denselben Stellen</translation>
    </message>
    <message>
        <source>without a partner: %1 traces of shot %2, %3 of shot %4</source>
        <translation>ohne Partner: %1 Spuren von Schuss %2, %3 von Schuss %4</translation>
    </message>
    <message>
        <source>the second is %1 times as strong</source>
        <translation>der zweite ist %1-mal so stark</translation>
    </message>
    <message>
        <source>it is shown times %1</source>
        <translation>gezeigt wird er mal %1</translation>
    </message>
    <message>
        <source>its record begins %1 ms later</source>
        <translation>seine Aufzeichnung beginnt %1 ms später</translation>
    </message>
    <message>
        <source>its record begins %1 ms earlier</source>
        <translation>seine Aufzeichnung beginnt %1 ms früher</translation>
    </message>
    <message>
        <source>difference and sum begin with %1 samples of zero</source>
        <translation>Differenz und Summe beginnen mit %1 Abtastwerten, die null sind</translation>
    </message>
    <message>
        <source>difference and sum end %1 samples before the first</source>
        <translation>Differenz und Summe enden %1 Abtastwerte vor dem ersten Schuss</translation>
    </message>
    <message>
        <source>sum of shots %1 and %2</source>
        <translation>Summe der Schüsse %1 und %2</translation>
    </message>
    <message>
        <source>difference of shots %1 and %2</source>
        <translation>Differenz der Schüsse %1 und %2</translation>
    </message>
    <message>
        <source>At 1:%1 the figure is too large even for many sheets: choose 1:%2, or a scale between them.</source>
        <translation>Bei 1:%1 ist die Abbildung selbst für viele Blätter zu groß: Wählen Sie 1:%2 oder einen Maßstab dazwischen.</translation>
    </message>
    <message>
        <source>put the %1 geophones of its string at %2 to %3</source>
        <translation>die %1 Geophone seiner Auslage auf %2 bis %3 setzen</translation>
    </message>
    <message>
        <source>%1; over %2 shots the least times move by one channel as the shot moves by %3, so geophone 1 is at %4 and the last one at %5</source>
        <translation>%1; über %2 Schüsse wandern die kürzesten Zeiten um einen Kanal, wenn der Schuss um %3 wandert, also steht Geophon 1 bei %4 und das letzte bei %5</translation>
    </message>
    <message>
        <source>no geophone stands between %1 and %2: the ground there is seen from neither side unless shots reach over it</source>
        <translation>zwischen %1 und %2 steht kein Geophon: der Untergrund dort wird von keiner Seite gesehen, sofern nicht Schüsse darüber hinwegreichen</translation>
    </message>
    <message>
        <source>the positions of the geophones are no metres: over %1 shots the least times move by 1 as the shot moves by %2; geophones %3 apart from %4 on have them beside the shots</source>
        <translation>die Positionen der Geophone sind keine Meter: über %1 Schüsse wandern die kürzesten Zeiten um 1, wenn der Schuss um %2 wandert; mit Geophonen im Abstand von %3 ab %4 liegen sie neben den Schüssen</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: the geophones nearest to the shot, %3 away, would put the blow between %4 and %5 ms, whatever the ground</source>
        <translation>die Aufzeichnung kommt etwa %1 ms %2: nach den nächsten Geophonen, %3 vom Schuss, läge der Schlag zwischen %4 und %5 ms, gleich in welchem Untergrund</translation>
    </message>
    <message>
        <source>The layers make no velocity model. Order them by depth, without overlap, each more than %1 thick.</source>
        <translation>Die Schichten ergeben kein Geschwindigkeitsmodell. Ordnen Sie sie nach der Tiefe, ohne Überlappung, jede mehr als %1 mächtig.</translation>
    </message>
    <message>
        <source>%1 velocities and depths of the layers are left out: outside %2 to %3, or deeper than the line is long</source>
        <translation>%1 Geschwindigkeiten und Tiefen der Schichten werden weggelassen: außerhalb von %2 bis %3 oder tiefer, als die Messlinie lang ist</translation>
    </message>
    <message>
        <source>velocities of %1 cell cannot be; they are held within %2 and %3</source>
        <translation>die Geschwindigkeit von %1 Zelle ist nicht möglich; sie wird zwischen %2 und %3 gehalten</translation>
    </message>
    <message>
        <source>velocities of %1 cells cannot be; they are held within %2 and %3</source>
        <translation>die Geschwindigkeiten von %1 Zellen sind nicht möglich; sie werden zwischen %2 und %3 gehalten</translation>
    </message>
    <message>
        <source>by its headers the geophones stand along %1; their scalar or unit is likely wrong, so check them or load a geometry file</source>
        <translation>nach den Headern stehen die Geophone über %1 verteilt; wahrscheinlich ist ihr Skalar oder ihre Einheit falsch, prüfen Sie sie also oder laden Sie eine Geometriedatei</translation>
    </message>
    <message>
        <source>%1 fields that there is no room for, among them %2</source>
        <translation>%1 Felder, für die kein Platz ist, darunter %2</translation>
    </message>
    <message>
        <source>%1 is no velocity of ground (%2 to %3)</source>
        <translation>%1 ist keine Geschwindigkeit von Untergrund (%2 bis %3)</translation>
    </message>
    <message>
        <source>%1 is no depth below the surface (0 to %2)</source>
        <translation>%1 ist keine Tiefe unter der Oberfläche (0 bis %2)</translation>
    </message>
    <message>
        <source>a layer from %1 to %2 has its bottom not below its top</source>
        <translation>bei einer Schicht von %1 bis %2 liegt die Unterkante nicht unter der Oberkante</translation>
    </message>
    <message>
        <source>an error of %1 must not be negative, and less than its velocity, %2</source>
        <translation>ein Fehler von %1 darf nicht negativ sein und muss kleiner sein als seine Geschwindigkeit, %2</translation>
    </message>
    <message>
        <source>Farther from the line than half the spacing of %1: %2</source>
        <translation>Weiter von der Messlinie entfernt als der halbe Geophonabstand von %1: %2</translation>
    </message>
    <message>
        <source>Vp %1, Vs %2, Vp/Vs %3, Poisson&apos;s ratio %4</source>
        <translation>Vp %1, Vs %2, Vp/Vs %3, Poissonzahl %4</translation>
    </message>
    <message>
        <source>Gardner&apos;s rule was found for rocks faster than %1; at %2 of %3 places Vp is less, and the density a guess.</source>
        <translation>Die Gardner-Beziehung wurde für Gesteine gefunden, die schneller als %1 sind; an %2 von %3 Stellen ist Vp kleiner und die Dichte eine Vermutung.</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off from shot %3 at %4 on</source>
        <translation>das Profil passt nur auf %1 ms zu seinen Picks, die Wellen des Vorschlags auf %2 ms: es weicht ab Schuss %3 bei %4 ab</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off most at shot %3 at %4</source>
        <translation>das Profil passt nur auf %1 ms zu seinen Picks, die Wellen des Vorschlags auf %2 ms: am stärksten weicht es bei Schuss %3 bei %4 ab</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 receivers, where the velocity comes out outside %3 to %4.</source>
        <translation>Schicht %1: keine Geschwindigkeit und keine Tiefe an %2 Empfängern, wo sich die Geschwindigkeit außerhalb von %3 bis %4 ergibt.</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3, no depth</source>
        <translation>Schicht %1, %2: %3, keine Tiefe</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 at a depth of %4 (medians); depths at %5 of %6 geophones, %7 of them not carried by picks there</source>
        <translation>Schicht %1, %2: %3 in einer Tiefe von %4 (Mediane); Tiefen an %5 von %6 Geophonen, %7 davon dort nicht durch Picks gestützt</translation>
    </message>
    <message>
        <source>Layer %1: depths are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Schicht %1: die Tiefen liegen bei %2 am weitesten auseinander, von %3 (%4) bis %5 (%6)</translation>
    </message>
    <message>
        <source>Layer %1: velocities are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Schicht %1: die Geschwindigkeiten liegen bei %2 am weitesten auseinander, von %3 (%4) bis %5 (%6)</translation>
    </message>
    <message>
        <source>no layers: a velocity that grows steadily with depth, from %1 with a gradient of %2 1/s, has a misfit of %3 ms</source>
        <translation>keine Schichten: eine Geschwindigkeit, die stetig mit der Tiefe zunimmt, ab %1 mit einem Gradienten von %2 1/s, hat eine Abweichung von %3 ms</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers, the least below the greatest; %1 and %2 are not.</source>
        <translation>Die Geschwindigkeitsgrenzen müssen positive Zahlen sein, die untere kleiner als die obere; %1 und %2 sind es nicht.</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 bis %3</translation>
    </message>
    <message>
        <source>velocities of %1 and %2 do not increase with depth</source>
        <translation>Geschwindigkeiten von %1 und %2 nehmen nicht mit der Tiefe zu</translation>
    </message>
    <message>
        <source>%1 at the surface, %2 where the deepest ray turns, %3 down</source>
        <translation>%1 an der Oberfläche, %2 am Scheitel des tiefsten Strahls in %3 Tiefe</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down, %4 from %5 down</source>
        <translation>%1, ab %3 Tiefe %2, ab %5 Tiefe %4</translation>
    </message>
    <message>
        <source>%1 with a gradient of %2 1/s, %3 from %4 down</source>
        <translation>%1 mit einem Gradienten von %2 1/s, ab %4 Tiefe %3</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down</source>
        <translation>%1, ab %3 Tiefe %2</translation>
    </message>
    <message>
        <source>Layer %1 is known from %2 to %3; its depth and velocity stay as they are there to the ends of the grid.</source>
        <translation>Schicht %1 ist von %2 bis %3 bekannt; bis zu den Enden des Gitters bleiben Tiefe und Geschwindigkeit wie dort.</translation>
    </message>
    <message>
        <source>the records of shot %1 and shot %2 begin too far apart in time to be laid over each other; look at the delays in their headers</source>
        <translation>die Aufzeichnungen von Schuss %1 und Schuss %2 beginnen zeitlich zu weit auseinander, um sie übereinanderzulegen; prüfen Sie die Verzögerungen in ihren Headern</translation>
    </message>
    <message>
        <source>the shots are at one place</source>
        <translation>die Schüsse liegen an derselben Stelle</translation>
    </message>
    <message>
        <source>the shots are %1 apart</source>
        <translation>die Schüsse liegen %1 auseinander</translation>
    </message>
    <message>
        <source>the shots are %1 apart: difference and sum are not of one place</source>
        <translation>die Schüsse liegen %1 auseinander: Differenz und Summe gehören nicht zu einer Stelle</translation>
    </message>
    <message>
        <source>left out: %1 pairs with a trace that is killed, or has no samples or no interval</source>
        <translation>weggelassen: %1 Paare mit einer Spur, die ausgeschaltet ist oder keine Abtastwerte oder kein Intervall hat</translation>
    </message>
    <message>
        <source>left out: %1 pairs whose records begin too far apart in time</source>
        <translation>weggelassen: %1 Paare, deren Aufzeichnungen zeitlich zu weit auseinander beginnen</translation>
    </message>
    <message>
        <source>%1 fields or more that there is no room for, among them %2</source>
        <translation>%1 Felder oder mehr, für die kein Platz ist, darunter %2</translation>
    </message>
    <message>
        <source>%1 traces go together by their numbers, for all are at one place</source>
        <translation>%1 Spuren gehören nach ihren Nummern zusammen, denn alle liegen an einer Stelle</translation>
    </message>
    <message>
        <source>where a shot was is not known</source>
        <translation>wo ein Schuss lag, ist nicht bekannt</translation>
    </message>
</context>
<context>
    <name>talvesk::Messages</name>
    <message>
        <source>The document has been modified</source>
        <translation>Das Dokument wurde geändert</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>Möchten Sie Ihre Änderungen speichern?</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Recover survey</source>
        <translation>Messung wiederherstellen</translation>
    </message>
    <message>
        <source>Talvesk was not closed properly.</source>
        <translation>Talvesk wurde nicht ordnungsgemäß beendet.</translation>
    </message>
    <message>
        <source>Ask again later</source>
        <translation>Später erneut fragen</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Kopie löschen</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitPlot</name>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Abweichung nach jeder äußeren Iteration</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Äußere Iteration</translation>
    </message>
    <message>
        <source>RMSE (ms)</source>
        <translation>RMSE (ms)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Letzter Durchgang des Lösers</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitTable</name>
    <message numerus="yes">
        <source>%n pick(s); picks later than computed by %1 ms in the mean; chi2 %2</source>
        <translation>
            <numerusform>%n Pick; %1 ms später als berechnet; chi2 %2</numerusform>
            <numerusform>%n Picks; im Mittel %1 ms später als berechnet; chi2 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Misfit (ms)</source>
        <translation>Abweichung (ms)</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Schicht %1</translation>
    </message>
    <message>
        <source>RMS of picks less computed times, per shot and layer</source>
        <translation>RMS von Picks minus berechneten Zeiten, je Schuss und Schicht</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Alle Schüsse</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::NotchDialog</name>
    <message>
        <source>Notch</source>
        <translation>Kerbfilter</translation>
    </message>
    <message>
        <source>Takes the hum of power lines out of the filtered copy. Arrivals stay where they are.</source>
        <translation>Entfernt das Netzbrummen aus der gefilterten Kopie. Einsätze bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>&amp;Power line (Hz):</source>
        <translation>&amp;Netzfrequenz (Hz):</translation>
    </message>
    <message>
        <source>50 Hz in most of the world, 60 Hz in North America; some railways have 16.7 Hz</source>
        <translation>50 Hz in den meisten Ländern, 60 Hz in Nordamerika; manche Bahnnetze haben 16,7 Hz</translation>
    </message>
    <message>
        <source>&amp;Multiples:</source>
        <translation>&amp;Vielfache:</translation>
    </message>
    <message>
        <source>So many multiples are taken out, the frequency itself among them, as far as the record has them</source>
        <translation>So viele Vielfache werden entfernt, die Frequenz selbst eingeschlossen, soweit die Aufzeichnung sie enthält</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Güte:</translation>
    </message>
    <message>
        <source>The frequency over the width of every notch at 3 dB: larger ones take less of the signal, and less of hum that wanders</source>
        <translation>Frequenz geteilt durch die Breite jeder Kerbe bei 3 dB: Größere Werte nehmen weniger vom Signal weg, aber auch weniger von einem Brummen, das wandert</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Filter anwenden auf:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>O&amp;riginal</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>Gefi&amp;ltert</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Der Filter gilt für alle Schüsse.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>Der Filter gilt für Schuss %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::PaletteDialog</name>
    <message>
        <source>Palette Settings</source>
        <translation>Paletteneinstellungen</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Palette that colours the section</source>
        <translation>Palette, die den Schnitt färbt</translation>
    </message>
    <message>
        <source>Load palettes from files</source>
        <translation>Paletten aus Dateien laden</translation>
    </message>
    <message>
        <source>Save this palette to a file</source>
        <translation>Diese Palette in einer Datei speichern</translation>
    </message>
    <message>
        <source>Create New Palette</source>
        <translation>Neue Palette anlegen</translation>
    </message>
    <message>
        <source>Add a palette from black to white and select it</source>
        <translation>Fügt eine Palette von Schwarz nach Weiß hinzu und wählt sie aus</translation>
    </message>
    <message>
        <source>Edit Palette</source>
        <translation>Palette bearbeiten</translation>
    </message>
    <message>
        <source>Edit the colours; of a built-in palette, those of a copy</source>
        <translation>Bearbeitet die Farben; bei einer mitgelieferten Palette die einer Kopie</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>Palette umbenennen</translation>
    </message>
    <message>
        <source>Give the palette another name; built-in ones keep theirs</source>
        <translation>Gibt der Palette einen anderen Namen; mitgelieferte behalten ihren</translation>
    </message>
    <message>
        <source>Delete Palette</source>
        <translation>Palette löschen</translation>
    </message>
    <message>
        <source>Remove the palette; built-in ones stay</source>
        <translation>Entfernt die Palette; mitgelieferte bleiben</translation>
    </message>
    <message>
        <source>Number of colours</source>
        <translation>Anzahl der Farben</translation>
    </message>
    <message>
        <source>Into how many colours the gradient is cut</source>
        <translation>In wie viele Farben der Verlauf geteilt wird</translation>
    </message>
    <message>
        <source>Range from Data</source>
        <translation>Bereich aus Daten</translation>
    </message>
    <message>
        <source>Lock the range</source>
        <translation>Bereich festhalten</translation>
    </message>
    <message>
        <source>Keep minimum and maximum when another palette is chosen or another line is shown</source>
        <translation>Behält Minimum und Maximum, wenn eine andere Palette gewählt oder eine andere Messlinie gezeigt wird</translation>
    </message>
    <message>
        <source>Talvesk Palette (*.xml)</source>
        <translation>Talvesk-Palette (*.xml)</translation>
    </message>
    <message>
        <source>MIN: %1, MAX: %2</source>
        <translation>MIN: %1, MAX: %2</translation>
    </message>
    <message>
        <source>New palette</source>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>%1 - copy</source>
        <translation>%1 - Kopie</translation>
    </message>
    <message>
        <source>Save new palette as : </source>
        <translation>Neue Palette speichern als : </translation>
    </message>
    <message>
        <source>There is a palette of this name already.</source>
        <translation>Es gibt bereits eine Palette dieses Namens.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Dieser Name ist zu lang.</translation>
    </message>
    <message>
        <source>Save Palette</source>
        <translation>Palette speichern</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Datei ersetzen?</translation>
    </message>
    <message>
        <source>Error while saving palette.</source>
        <translation>Fehler beim Speichern der Palette.</translation>
    </message>
    <message>
        <source>Open Palette</source>
        <translation>Palette öffnen</translation>
    </message>
    <message>
        <source>Error while loading palette.</source>
        <translation>Fehler beim Laden der Palette.</translation>
    </message>
    <message>
        <source>Take minimum and maximum from the velocities of the section</source>
        <translation>Übernimmt Minimum und Maximum von den Geschwindigkeiten des Schnitts</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>&amp;Figure:</source>
        <translation>&amp;Abbildung:</translation>
    </message>
    <message>
        <source>What is printed. What there is nothing of yet is grey, with the reason.</source>
        <translation>Was gedruckt wird. Was es noch nicht gibt, ist grau, mit dem Grund.</translation>
    </message>
    <message>
        <source>&amp;At:</source>
        <translation>&amp;Bei:</translation>
    </message>
    <message>
        <source>Place along the line of the depth profile</source>
        <translation>Stelle des Tiefenprofils entlang der Messlinie</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Stands in the block below the figure</source>
        <translation>Steht im Block unter der Abbildung</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Maßstab:</translation>
    </message>
    <message>
        <source>How many times longer the line is than on paper: choose, or type any scale.</source>
        <translation>Wie viele Male länger die Messlinie ist als auf dem Papier: wählen oder einen beliebigen Maßstab eingeben.</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>&amp;Überhöhung:</translation>
    </message>
    <message>
        <source>How many times larger heights are drawn than lengths along the line</source>
        <translation>Wie viele Male größer Höhen gezeichnet werden als Längen entlang der Messlinie</translation>
    </message>
    <message>
        <source>As shown</source>
        <translation>Wie gezeigt</translation>
    </message>
    <message>
        <source>T&amp;imes:</source>
        <translation>&amp;Zeiten:</translation>
    </message>
    <message>
        <source>Milliseconds to a centimetre of paper</source>
        <translation>Millisekunden je Zentimeter Papier</translation>
    </message>
    <message>
        <source>As the sheet has room</source>
        <translation>Wie das Blatt Platz hat</translation>
    </message>
    <message>
        <source> ms/cm</source>
        <translation> ms/cm</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>Aus&amp;richtung:</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Neighbouring sheets have 10 mm in common, with match lines where they are joined</source>
        <translation>Benachbarte Blätter haben 10 mm gemeinsam, mit Anschlusslinien, an denen sie zusammengesetzt werden</translation>
    </message>
    <message>
        <source>Sp&amp;lit over several sheets</source>
        <translation>Auf mehrere Blätter &amp;verteilen</translation>
    </message>
    <message>
        <source>Whether the figure has room, and what else would fit</source>
        <translation>Ob die Abbildung Platz hat und was sonst passen würde</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Vorschau der Blätter</translation>
    </message>
    <message>
        <source>Smaller preview</source>
        <translation>Kleinere Vorschau</translation>
    </message>
    <message>
        <source>Smaller preview (Ctrl+-)</source>
        <translation>Kleinere Vorschau (Strg+-)</translation>
    </message>
    <message>
        <source>Larger preview</source>
        <translation>Größere Vorschau</translation>
    </message>
    <message>
        <source>Larger preview (Ctrl++)</source>
        <translation>Größere Vorschau (Strg++)</translation>
    </message>
    <message>
        <source>All sheets in view</source>
        <translation>Alle Blätter im Bild</translation>
    </message>
    <message>
        <source>&amp;Whole sheets</source>
        <translation>&amp;Ganze Blätter</translation>
    </message>
    <message>
        <source>Choose a printer and print the sheets on it, at their real size</source>
        <translation>Einen Drucker wählen und die Blätter darauf drucken, in ihrer wahren Größe</translation>
    </message>
    <message>
        <source>P&amp;rint ...</source>
        <translation>&amp;Drucken ...</translation>
    </message>
    <message>
        <source>Save the sheets as they would be printed</source>
        <translation>Die Blätter so speichern, wie sie gedruckt würden</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>Als PD&amp;F speichern ...</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>a figure and why it cannot be printed</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Fit to the page</source>
        <translation>An die Seite anpassen</translation>
    </message>
    <message>
        <source>No printer is installed. A PDF can be printed elsewhere.</source>
        <translation>Es ist kein Drucker installiert. Ein PDF lässt sich anderswo drucken.</translation>
    </message>
    <message>
        <source>There is nothing to print yet.</source>
        <translation>Es gibt noch nichts zu drucken.</translation>
    </message>
    <message>
        <source>The figure does not fit the sheet at this scale.</source>
        <translation>Die Abbildung passt in diesem Maßstab nicht auf das Blatt.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n Blatt</numerusform>
            <numerusform>%n Blätter</numerusform>
        </translation>
    </message>
    <message>
        <source>At %1 the figure takes %2.</source>
        <translation>Bei %1 braucht die Abbildung %2.</translation>
    </message>
    <message>
        <source>The figure takes %1.</source>
        <translation>Die Abbildung braucht %1.</translation>
    </message>
    <message>
        <source>At %1 the figure takes %2, and the sheet has room for %3.</source>
        <translation>Bei %1 braucht die Abbildung %2, und das Blatt hat Platz für %3.</translation>
    </message>
    <message>
        <source>With more milliseconds to a centimetre it is less high.</source>
        <translation>Mit mehr Millisekunden je Zentimeter ist sie weniger hoch.</translation>
    </message>
    <message>
        <source>Choose a larger sheet.</source>
        <translation>Wählen Sie ein größeres Blatt.</translation>
    </message>
    <message>
        <source>What would fit:</source>
        <translation>Was passen würde:</translation>
    </message>
    <message>
        <source>This is the first usual scale from %1 on at which it fits one sheet.</source>
        <translation>Dies ist ab %1 der erste übliche Maßstab, in dem sie auf ein Blatt passt.</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintPreview</name>
    <message>
        <source>Drawing the sheets ...</source>
        <translation>Die Blätter werden gezeichnet ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ProfileTable</name>
    <message>
        <source>picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>Phantom</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>Fortsetzung</translation>
    </message>
    <message>
        <source>Picks of the shots at both ends of the line carry it.</source>
        <translation>Picks der Schüsse an beiden Enden der Messlinie belegen den Wert.</translation>
    </message>
    <message>
        <source>Shifted arrivals of other shots carry it.</source>
        <translation>Verschobene Einsätze anderer Schüsse belegen den Wert.</translation>
    </message>
    <message>
        <source>It lies across more than two spacings without arrivals.</source>
        <translation>Der Wert liegt in einer Lücke von mehr als zwei Geophonabständen ohne Einsätze.</translation>
    </message>
    <message>
        <source>It continues what lies beside it, beyond the last arrivals.</source>
        <translation>Der Wert setzt jenseits der letzten Einsätze fort, was daneben liegt.</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>Depth %1 (m)</source>
        <translation>Tiefe %1 (m)</translation>
    </message>
    <message>
        <source>V %1 (m/s)</source>
        <translation>V %1 (m/s)</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Tiefe %1 aus</translation>
    </message>
    <message>
        <source>Fitted to all picks, some of which come from here or go here.</source>
        <translation>An alle Picks angepasst, von denen einige von hier ausgehen oder hier ankommen.</translation>
    </message>
    <message>
        <source>No pick of the layer comes from here or goes here: it lies between what others tell.</source>
        <translation>Kein Pick der Schicht geht von hier aus oder kommt hier an: Der Wert liegt zwischen dem, was andere sagen.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReadingPanel</name>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Shots:</source>
        <translation>Schüsse:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Spuren:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Abtastwerte pro Spur:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Abtastintervall:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Aufzeichnungsverzögerung:</translation>
    </message>
    <message>
        <source>Shot at:</source>
        <translation>Schuss bei:</translation>
    </message>
    <message>
        <source>Geophones at:</source>
        <translation>Geophone bei:</translation>
    </message>
    <message>
        <source>Shot in view:</source>
        <translation>Gezeigter Schuss:</translation>
    </message>
    <message>
        <source>No trace</source>
        <translation>Keine Spur</translation>
    </message>
    <message>
        <source>No warnings</source>
        <translation>Keine Warnungen</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>nicht gelesen</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Nothing was read.</source>
        <translation>Es wurde nichts gelesen.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReadingsDialog</name>
    <message>
        <source>The standard reads more</source>
        <translation>Der Standard liest mehr</translation>
    </message>
    <message>
        <source>The program&apos;s rules cannot carry all that these files hold. Read by the standard of their format they give more:</source>
        <translation>Die Regeln des Programms erfassen nicht alles, was diese Dateien enthalten. Nach dem Standard ihres Formats gelesen, ergeben sie mehr:</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>What gets lost by the program&apos;s rules</source>
        <translation>Was nach den Regeln des Programms verloren geht</translation>
    </message>
    <message>
        <source>By the program&apos;s rules</source>
        <translation>Nach den Regeln des Programms</translation>
    </message>
    <message>
        <source>By the standard</source>
        <translation>Nach dem Standard</translation>
    </message>
    <message>
        <source>Use the &amp;standard for these files</source>
        <translation>Für diese Dateien den &amp;Standard verwenden</translation>
    </message>
    <message>
        <source>&amp;Keep the program&apos;s rules</source>
        <translation>Regeln des Programms &amp;beibehalten</translation>
    </message>
    <message>
        <source>Files and what each reading finds in them</source>
        <translation>Dateien und was jede Lesart in ihnen findet</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityDialog</name>
    <message>
        <source>Reciprocity</source>
        <translation>Reziprozität</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Zeiten hin und zurück</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>Bei [m]</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paare</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Verspätet um [ms]</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Differences of times there and back, shot by shot</source>
        <translation>Differenzen der Zeiten hin und zurück, Schuss für Schuss</translation>
    </message>
    <message>
        <source>The pick of the first shot at the place of the second comes into view in the window; a click on a line or a cell does the same</source>
        <translation>Bringt den Pick des ersten Schusses an der Stelle des zweiten im Fenster ins Bild; ein Klick auf eine Zeile oder ein Feld tut dasselbe</translation>
    </message>
    <message>
        <source>Show pick &amp;there</source>
        <translation>Pick &amp;hin anzeigen</translation>
    </message>
    <message>
        <source>The pick of the second shot at the place of the first comes into view; so does a click on the second shot of a line, or on the cell across the diagonal</source>
        <translation>Bringt den Pick des zweiten Schusses an der Stelle des ersten ins Bild; ein Klick auf den zweiten Schuss einer Zeile oder auf das Feld jenseits der Diagonale tut dasselbe</translation>
    </message>
    <message>
        <source>Show pick &amp;back</source>
        <translation>Pick &amp;zurück anzeigen</translation>
    </message>
    <message>
        <source>Shifts the record of the chosen shot, with its picks, by the time that mends it; Undo takes it back</source>
        <translation>Verschiebt die Aufzeichnung des gewählten Schusses mit ihren Picks um die Zeit, die sie korrigiert; „Rückgängig“ nimmt es zurück</translation>
    </message>
    <message>
        <source>&amp;Mend</source>
        <translation>&amp;Korrigieren</translation>
    </message>
    <message>
        <source>Saves all pairs as a table (.csv)</source>
        <translation>Speichert alle Paare als Tabelle (.csv)</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Tabelle speichern...</translation>
    </message>
    <message>
        <source>Pairs of shots: %1, RMS of their differences: %2 ms. A wave takes as long on the way back: what differs is a pick, or a clock.</source>
        <translation>Schusspaare: %1, RMS ihrer Differenzen: %2 ms. Eine Welle braucht für den Rückweg ebenso lange: Was abweicht, ist ein Pick oder eine Uhr.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Schuss %1: %2.</translation>
    </message>
    <message>
        <source>–</source>
        <comment>not known</comment>
        <translation>–</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>none: there is no recording to shift</source>
        <translation>keine: es gibt keine Aufzeichnung zu verschieben</translation>
    </message>
    <message>
        <source>Pick the traces of more shots. Where they have picks, see whether geophones and shots stand where they stood.</source>
        <translation>Picken Sie die Spuren weiterer Schüsse. Haben diese Picks, prüfen Sie, ob Geophone und Schüsse dort eingetragen sind, wo sie standen.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityMatrix</name>
    <message>
        <source>Row to column, longer than back by [ms]</source>
        <translation>Von Zeile zu Spalte, länger als zurück um [ms]</translation>
    </message>
    <message>
        <source>Shot %1 to shot %2</source>
        <translation>Schuss %1 zu Schuss %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>%1: no picks along both ways</source>
        <translation>%1: keine Picks auf beiden Wegen</translation>
    </message>
    <message>
        <source>%1: %2 ms, back %3 ms, difference %4 ms</source>
        <translation>%1: %2 ms, zurück %3 ms, Differenz %4 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityModel</name>
    <message>
        <source>Shows trace %1 of shot %2</source>
        <translation>Zeigt Spur %1 von Schuss %2</translation>
    </message>
    <message>
        <source>–</source>
        <comment>not known</comment>
        <translation>–</translation>
    </message>
    <message>
        <source>The difference in standard deviations, where both picks have an error</source>
        <translation>Die Differenz in Standardabweichungen, wo beide Picks einen Fehler haben</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>Bei [m]</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Hin [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Zurück [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Differenz [ms]</translation>
    </message>
    <message>
        <source>Sigmas</source>
        <translation>Sigma</translation>
    </message>
</context>
<context>
    <name>talvesk::RecordingDetailsDialog</name>
    <message>
        <source>Recording details</source>
        <translation>Aufzeichnungsdetails</translation>
    </message>
    <message>
        <source>&amp;Shot:</source>
        <translation>&amp;Schuss:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Spuren:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Abtastwerte pro Spur:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Abtastintervall:</translation>
    </message>
    <message>
        <source>Record length:</source>
        <translation>Aufzeichnungslänge:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Aufzeichnungsverzögerung:</translation>
    </message>
    <message>
        <source>Samples dropped before the shot:</source>
        <translation>Vor dem Schuss verworfene Abtastwerte:</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Spuren des Schusses</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Geophone x (m)</source>
        <translation>Geophon x (m)</translation>
    </message>
    <message>
        <source>Geophone z (m)</source>
        <translation>Geophon z (m)</translation>
    </message>
    <message>
        <source>Shot x (m)</source>
        <translation>Schuss x (m)</translation>
    </message>
    <message>
        <source>Shot z (m)</source>
        <translation>Schuss z (m)</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Abtastwerte</translation>
    </message>
    <message>
        <source>Interval (ms)</source>
        <translation>Intervall (ms)</translation>
    </message>
    <message>
        <source>Delay (ms)</source>
        <translation>Verzögerung (ms)</translation>
    </message>
    <message>
        <source>&amp;Warnings of the reader:</source>
        <translation>&amp;Warnungen beim Lesen:</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Read by:</source>
        <translation>Gelesen nach:</translation>
    </message>
    <message>
        <source>Mends:</source>
        <translation>Korrekturen:</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>den Regeln des Programms</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>dem Standard des Formats</translation>
    </message>
    <message>
        <source>the standard of its format; record %1 of the file, %2</source>
        <translation>dem Standard des Formats; Aufzeichnung %1 der Datei, %2</translation>
    </message>
    <message>
        <source>Pick (ms)</source>
        <translation>Pick (ms)</translation>
    </message>
    <message>
        <source>Error (ms)</source>
        <translation>Fehler (ms)</translation>
    </message>
    <message>
        <source>Samples are kept:</source>
        <translation>Abtastwerte liegen:</translation>
    </message>
    <message>
        <source>in memory and on the disk</source>
        <translation>im Speicher und auf dem Datenträger</translation>
    </message>
    <message>
        <source>on the disk</source>
        <translation>auf dem Datenträger</translation>
    </message>
    <message>
        <source>in memory</source>
        <translation>im Speicher</translation>
    </message>
    <message>
        <source>in memory, for %1</source>
        <translation>im Speicher, denn %1</translation>
    </message>
    <message>
        <source>Filtered copy by:</source>
        <translation>Gefilterte Kopie durch:</translation>
    </message>
</context>
<context>
    <name>talvesk::RecoveryCopy</name>
    <message>
        <source>Nothing can be written in %1</source>
        <translation>In %1 kann nichts geschrieben werden</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProcessingDialog</name>
    <message>
        <source>Refraction processing</source>
        <translation>Refraktionsauswertung</translation>
    </message>
    <message>
        <source>T-x curves</source>
        <translation>T-x-Kurven</translation>
    </message>
    <message>
        <source>Select layer:</source>
        <translation>Schicht wählen:</translation>
    </message>
    <message>
        <source>0 none</source>
        <translation>0 keine</translation>
    </message>
    <message>
        <source>1 direct wave</source>
        <translation>1 direkte Welle</translation>
    </message>
    <message>
        <source>2 first refractor</source>
        <translation>2 erster Refraktor</translation>
    </message>
    <message>
        <source>3 second refractor</source>
        <translation>3 zweiter Refraktor</translation>
    </message>
    <message>
        <source>Show layer:</source>
        <translation>Schicht zeigen:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Bearbeitbar</translation>
    </message>
    <message>
        <source>Let clicks and drags mark picks</source>
        <translation>Klicken und Ziehen ordnen Picks zu</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Propose layers</source>
        <translation>Schichten vorschlagen</translation>
    </message>
    <message>
        <source>Find the break points of all branches</source>
        <translation>Sucht die Knickpunkte aller Äste</translation>
    </message>
    <message>
        <source>Clear marks</source>
        <translation>Zuordnungen löschen</translation>
    </message>
    <message>
        <source>Shot:</source>
        <translation>Schuss:</translation>
    </message>
    <message>
        <source>Takes part</source>
        <translation>Nimmt teil</translation>
    </message>
    <message>
        <source>Whether the chosen shot takes part in the interpretation</source>
        <translation>Ob der gewählte Schuss an der Auswertung teilnimmt</translation>
    </message>
    <message>
        <source>Phantoming</source>
        <translation>Phantoming</translation>
    </message>
    <message>
        <source>Auto phantoming</source>
        <translation>Auto-Phantoming</translation>
    </message>
    <message>
        <source>Complete the curves of the end shots by the arrivals of the other shots</source>
        <translation>Ergänzt die Kurven der Endschüsse durch die Einsätze der anderen Schüsse</translation>
    </message>
    <message>
        <source>Time shifts</source>
        <translation>Zeitverschiebungen</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>Shift (ms)</source>
        <translation>Verschiebung (ms)</translation>
    </message>
    <message>
        <source>tV/tG</source>
        <translation>tV/tG</translation>
    </message>
    <message>
        <source>Refractor:</source>
        <translation>Refraktor:</translation>
    </message>
    <message>
        <source>Velocity/Profile</source>
        <translation>Geschwindigkeit/Profil</translation>
    </message>
    <message>
        <source>Build profiles</source>
        <translation>Profile erstellen</translation>
    </message>
    <message>
        <source>Curves, tV and tG, velocities and depths from the marks</source>
        <translation>Kurven, tV und tG, Geschwindigkeiten und Tiefen aus den Zuordnungen</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>time (ms)</source>
        <translation>Zeit (ms)</translation>
    </message>
    <message>
        <source>There are no picks to assign to layers: pick first breaks, or import travel times.</source>
        <translation>Es gibt keine Picks, die Schichten zugeordnet werden könnten: Picken Sie Ersteinsätze oder importieren Sie Laufzeiten.</translation>
    </message>
    <message>
        <source>Phantom travel times</source>
        <translation>Phantom-Laufzeiten</translation>
    </message>
    <message>
        <source>No curves yet.

Assign picks to layer 2 for a shot at either end of the line, then press &quot;Auto phantoming&quot; or &quot;Build profiles&quot;.</source>
        <translation>Noch keine Kurven.

Ordnen Sie für je einen Schuss an beiden Enden der Messlinie Picks der Schicht 2 zu und drücken Sie dann „Auto-Phantoming“ oder „Profile erstellen“.</translation>
    </message>
    <message>
        <source>tV, velocity analysis</source>
        <translation>tV, Geschwindigkeitsanalyse</translation>
    </message>
    <message>
        <source>tG, time depth</source>
        <translation>tG, Zeit-Tiefe</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Velocity (m/s)</source>
        <translation>Geschwindigkeit (m/s)</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Refraktionsprofil</translation>
    </message>
    <message>
        <source>Z (m)</source>
        <translation>Z (m)</translation>
    </message>
    <message>
        <source>Nothing is built yet: assign picks to layers and press &quot;Build profiles&quot;.</source>
        <translation>Noch nichts erstellt: Ordnen Sie Picks den Schichten zu und drücken Sie „Profile erstellen“.</translation>
    </message>
    <message>
        <source>There is no depth to show. Layer 1 needs a branch with two picks, and each refractor has to be faster than the layer above.</source>
        <translation>Es gibt keine Tiefe zu zeigen. Schicht 1 braucht einen Ast mit zwei Picks, und jeder Refraktor muss schneller sein als die Schicht darüber.</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Alle Schüsse</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1: bei %2</translation>
    </message>
    <message numerus="yes">
        <source>take %n pick(s) out</source>
        <translation>
            <numerusform>%n Pick herausnehmen</numerusform>
            <numerusform>%n Picks herausnehmen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>mark %n pick(s)</source>
        <translation>
            <numerusform>%n Pick zuordnen</numerusform>
            <numerusform>%n Picks zuordnen</numerusform>
        </translation>
    </message>
    <message>
        <source>The marks have changed since the profiles were built.</source>
        <translation>Die Zuordnungen haben sich geändert, seit die Profile erstellt wurden.</translation>
    </message>
    <message>
        <source>Click a pick, or drag around several, to assign them. Keys 1, 2, 3 and 0: layer</source>
        <translation>Einen Pick anklicken oder mehrere umfahren, um sie zuzuordnen. Tasten 1, 2, 3 und 0: Schicht</translation>
    </message>
    <message>
        <source>right of shot %1</source>
        <translation>rechts von Schuss %1</translation>
    </message>
    <message>
        <source>left of shot %1</source>
        <translation>links von Schuss %1</translation>
    </message>
    <message>
        <source>no velocity</source>
        <translation>keine Geschwindigkeit</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 (%4 picks)</source>
        <translation>Schicht %1, %2: %3 (%4 Picks)</translation>
    </message>
    <message>
        <source>Replace the marks by a proposal?</source>
        <translation>Zuordnungen durch einen Vorschlag ersetzen?</translation>
    </message>
    <message>
        <source>All picks are assigned anew from the break points of the branches. Undo brings the marks back.</source>
        <translation>Alle Picks werden nach den Knickpunkten der Äste neu zugeordnet. „Rückgängig“ bringt die Zuordnungen zurück.</translation>
    </message>
    <message>
        <source>No branch of the curves has picks enough to tell layers apart.</source>
        <translation>Kein Ast der Kurven hat genug Picks, um Schichten zu unterscheiden.</translation>
    </message>
    <message>
        <source>propose layers</source>
        <translation>Schichten vorschlagen</translation>
    </message>
    <message>
        <source>clear marks</source>
        <translation>Zuordnungen löschen</translation>
    </message>
    <message>
        <source>let shot %1 take part</source>
        <translation>Schuss %1 teilnehmen lassen</translation>
    </message>
    <message>
        <source>leave shot %1 out</source>
        <translation>Schuss %1 weglassen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>No profile could be built.</source>
        <translation>Es konnte kein Profil erstellt werden.</translation>
    </message>
    <message>
        <source>first (layer 2)</source>
        <translation>erster (Schicht 2)</translation>
    </message>
    <message>
        <source>second (layer 3)</source>
        <translation>zweiter (Schicht 3)</translation>
    </message>
    <message>
        <source>Layer %1 from shot %2</source>
        <translation>Schicht %1 von Schuss %2</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>nach rechts</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>nach links</translation>
    </message>
    <message>
        <source>other XY</source>
        <translation>andere XY</translation>
    </message>
    <message>
        <source>XY = %1</source>
        <translation>XY = %1</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Schicht %1</translation>
    </message>
    <message>
        <source>Close without keeping the changes?</source>
        <translation>Schließen, ohne die Änderungen zu behalten?</translation>
    </message>
    <message>
        <source>XY, half distance (m):</source>
        <translation>XY, halber Abstand (m):</translation>
    </message>
    <message>
        <source>The forward curve is read at the distance XY after the receiver, the reverse curve at XY before it: the two points lie 2 XY apart.</source>
        <translation>Die Hinschusskurve wird um XY nach dem Empfänger abgelesen, die Gegenschusskurve um XY davor: Die beiden Punkte liegen 2 XY auseinander.</translation>
    </message>
    <message>
        <source>The picks have changed since the profiles were built.</source>
        <translation>Die Picks haben sich geändert, seit die Profile erstellt wurden.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known. Build the profiles again to be told why.</source>
        <translation>Einige Geschwindigkeiten oder Tiefen sind nicht bekannt. Erstellen Sie die Profile neu, um den Grund zu erfahren.</translation>
    </message>
    <message>
        <source>Propose over the whole survey</source>
        <translation>Über die ganze Messung vorschlagen</translation>
    </message>
    <message>
        <source>Fit ground of one, two and three layers, and ground whose velocity grows steadily, to all picks together, and propose what fits best</source>
        <translation>Passt Untergrund aus einer, zwei und drei Schichten und solchen mit stetig zunehmender Geschwindigkeit an alle Picks gemeinsam an und schlägt vor, was am besten passt</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Berechnete Zeiten</translation>
    </message>
    <message>
        <source>Draw the arrivals through the profiles as they were built, as black lines: for every pick the wave of its layer</source>
        <translation>Zeichnet die Einsätze durch die Profile, wie sie erstellt wurden, als schwarze Linien: für jeden Pick die Welle seiner Schicht</translation>
    </message>
    <message>
        <source>RMS misfit (ms)</source>
        <translation>RMS-Abweichung (ms)</translation>
    </message>
    <message>
        <source>; misfit of the shot %1</source>
        <translation>; Abweichung des Schusses: %1</translation>
    </message>
    <message>
        <source>No layers are proposed.</source>
        <translation>Es werden keine Schichten vorgeschlagen.</translation>
    </message>
    <message numerus="yes">
        <source>No layers are proposed. Mark %n layers all the same?</source>
        <translation>
            <numerusform>Es werden keine Schichten vorgeschlagen. Trotzdem %n Schicht zuordnen?</numerusform>
            <numerusform>Es werden keine Schichten vorgeschlagen. Trotzdem %n Schichten zuordnen?</numerusform>
        </translation>
    </message>
    <message>
        <source>propose layers over the whole survey</source>
        <translation>Schichten über die ganze Messung vorschlagen</translation>
    </message>
    <message>
        <source>Proposal over the whole survey: %1</source>
        <translation>Vorschlag über die ganze Messung: %1</translation>
    </message>
    <message>
        <source>The marks are no longer those of this proposal.</source>
        <translation>Die Zuordnungen sind nicht mehr die dieses Vorschlags.</translation>
    </message>
    <message>
        <source>Computing times...</source>
        <translation>Zeiten werden berechnet...</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>%1: the picks do not tell</source>
        <translation>%1: aus den Picks nicht zu bestimmen</translation>
    </message>
    <message>
        <source>smoothest tV</source>
        <translation>glatteste tV</translation>
    </message>
    <message>
        <source>most even velocity</source>
        <translation>gleichmäßigste Geschwindigkeit</translation>
    </message>
    <message>
        <source>%1: tV rough by %2 ms, velocity uneven by %3 %</source>
        <translation>%1: tV um %2 ms rau, Geschwindigkeit um %3 % ungleichmäßig</translation>
    </message>
    <message>
        <source>Depths and velocities</source>
        <translation>Tiefen und Geschwindigkeiten</translation>
    </message>
    <message>
        <source>Compare &amp;methods ...</source>
        <translation>&amp;Methoden vergleichen ...</translation>
    </message>
    <message>
        <source>Layers from the marks by other methods beside the reciprocal one: delay times, intercept times and plus-minus</source>
        <translation>Schichten aus den Zuordnungen nach anderen Methoden neben der Reziprokmethode: Verzögerungszeiten, Interceptzeiten und Plus-Minus</translation>
    </message>
    <message>
        <source>There is no profile yet.</source>
        <translation>Es gibt noch kein Profil.</translation>
    </message>
    <message>
        <source>Picks or marks have changed: build the profiles again.</source>
        <translation>Picks oder Zuordnungen haben sich geändert: Erstellen Sie die Profile neu.</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>How &quot;Build profiles&quot; finds velocities and depths: from the curves of the end shots, or so that computed times fit the picks of all shots</source>
        <translation>Wie „Profile erstellen“ Geschwindigkeiten und Tiefen bestimmt: aus den Kurven der Endschüsse oder so, dass berechnete Zeiten zu den Picks aller Schüsse passen</translation>
    </message>
    <message>
        <source>Reciprocal method</source>
        <translation>Reziprokmethode</translation>
    </message>
    <message>
        <source>Fitted to all picks</source>
        <translation>An alle Picks angepasst</translation>
    </message>
    <message>
        <source>No profile can be fitted to all picks.</source>
        <translation>An alle Picks zusammen lässt sich kein Profil anpassen.</translation>
    </message>
    <message>
        <source>Direct waves and waves along refractors do not explain picks that are marked so. Look at the marks, or choose &quot;Reciprocal method&quot;.</source>
        <translation>Direkte Wellen und Wellen entlang von Refraktoren erklären so zugeordnete Picks nicht. Prüfen Sie die Zuordnungen oder wählen Sie „Reziprokmethode“.</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Kein teilnehmender Schuss hat Picks der Schicht 2.</translation>
    </message>
    <message>
        <source>The profile that is shown is by the reciprocal method.</source>
        <translation>Das gezeigte Profil ist nach der Reziprokmethode erstellt.</translation>
    </message>
    <message>
        <source>The profile that is shown is fitted to all picks.</source>
        <translation>Das gezeigte Profil ist an alle Picks angepasst.</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no tV and tG.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Ein an alle Picks angepasstes Profil hat kein tV und kein tG.

Wählen Sie dafür „Reziprokmethode“ und drücken Sie „Profile erstellen“.</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no phantom arrivals.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Ein an alle Picks angepasstes Profil hat keine Phantom-Einsätze.

Wählen Sie dafür „Reziprokmethode“ und drücken Sie „Profile erstellen“.</translation>
    </message>
    <message>
        <source>&quot;Build profiles&quot; fits the profile to all picks; beside it the reciprocal method can be chosen.</source>
        <translation>„Profile erstellen“ passt das Profil an alle Picks an; daneben lässt sich die Reziprokmethode wählen.</translation>
    </message>
    <message>
        <source>Layer 1 at the surface, growing with depth</source>
        <translation>Schicht 1 an der Oberfläche, mit der Tiefe zunehmend</translation>
    </message>
    <message>
        <source>What errors of the picks make of a profile is found for the reciprocal method only.</source>
        <translation>Was Fehler der Picks an einem Profil ausmachen, wird nur für die Reziprokmethode bestimmt.</translation>
    </message>
    <message>
        <source>Velocities and depths are fitted to all picks. %1</source>
        <translation>Geschwindigkeiten und Tiefen sind an alle Picks angepasst. %1</translation>
    </message>
    <message>
        <source>Misfit: %1.</source>
        <translation>Abweichung: %1.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known: no ground has those that fit there.</source>
        <translation>Einige Geschwindigkeiten oder Tiefen sind nicht bekannt: Was dort passen würde, gibt es in keinem Untergrund.</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProfilePlot</name>
    <message>
        <source>Geophones</source>
        <translation>Geophone</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionTexts</name>
    <message>
        <source>Unable to find nearest shot for first refractor</source>
        <translation>Der nächste Schuss für den ersten Refraktor wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Velocity is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>Die Geschwindigkeit ist an mindestens einem Empfänger kleiner als null. Das Profil ist möglicherweise ungenau. Bitte prüfen Sie die Eingangsdaten </translation>
    </message>
    <message>
        <source>Strong lateral velocity variations. The profile may not be accurate.</source>
        <translation>Starke laterale Geschwindigkeitsänderungen. Das Profil ist möglicherweise ungenau.</translation>
    </message>
    <message>
        <source>The Tg function is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>Die Tg-Funktion ist an mindestens einem Empfänger kleiner als null. Das Profil ist möglicherweise ungenau. Bitte prüfen Sie die Eingangsdaten </translation>
    </message>
    <message>
        <source>Layer %1: no shot at each end of the line has picks of it, so it has no profile.</source>
        <translation>Schicht %1: Nicht an jedem Ende der Messlinie hat ein Schuss Picks dieser Schicht, daher hat sie kein Profil.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the start of the line has fewer than two usable picks of it, so there is no forward curve.</source>
        <translation>Schicht %1: Der Schuss am Anfang der Messlinie hat weniger als zwei brauchbare Picks dieser Schicht, daher gibt es keine Hinschusskurve.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the end of the line has fewer than two usable picks of it, so there is no reverse curve.</source>
        <translation>Schicht %1: Der Schuss am Ende der Messlinie hat weniger als zwei brauchbare Picks dieser Schicht, daher gibt es keine Gegenschusskurve.</translation>
    </message>
    <message>
        <source>Layer %1: forward and reverse curve have fewer than two receivers in common.</source>
        <translation>Schicht %1: Hinschuss- und Gegenschusskurve haben weniger als zwei gemeinsame Empfänger.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it is not faster than the layer above.</source>
        <translation>Schicht %1: keine Tiefe an %2 von %3 Empfängern, wo sie nicht schneller ist als die Schicht darüber.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, which lie beyond the profile of the layer above.</source>
        <translation>Schicht %1: keine Tiefe an %2 von %3 Empfängern, die außerhalb des Profils der Schicht darüber liegen.</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Kein teilnehmender Schuss hat Picks der Schicht 2.</translation>
    </message>
    <message>
        <source>At each end of the line, or beyond, there must be a shot with picks of layer 2. Such shots reach from %1 to %2, but the geophones from %3 to %4.</source>
        <translation>An jedem Ende der Messlinie oder jenseits davon muss ein Schuss mit Picks der Schicht 2 liegen. Solche Schüsse reichen von %1 bis %2, die Geophone aber von %3 bis %4.</translation>
    </message>
    <message>
        <source>Layer %1: no shot that takes part has two picks of it on one side, so it has no velocity and the layers below have no depth.</source>
        <translation>Schicht %1: Kein teilnehmender Schuss hat auf einer Seite zwei Picks dieser Schicht, daher hat sie keine Geschwindigkeit, und die Schichten darunter haben keine Tiefe.</translation>
    </message>
    <message>
        <source>Layer %1: its velocity comes out outside %2 to %3, so it has none and the layers below have no depth.</source>
        <translation>Schicht %1: Ihre Geschwindigkeit ergibt sich außerhalb von %2 bis %3, daher hat sie keine, und die Schichten darunter haben keine Tiefe.</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 of %3 receivers, where the velocity comes out outside %4 to %5.</source>
        <translation>Schicht %1: keine Geschwindigkeit und keine Tiefe an %2 von %3 Empfängern, wo sich die Geschwindigkeit außerhalb von %4 bis %5 ergibt.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it comes out deeper than the line is long.</source>
        <translation>Schicht %1: keine Tiefe an %2 von %3 Empfängern, wo sie sich größer als die Länge der Messlinie ergibt.</translation>
    </message>
    <message>
        <source>Layer 1 has %1 in the mean, and %2 to %3 at the surface.</source>
        <translation>Schicht 1 hat im Mittel %1 und an der Oberfläche %2 bis %3.</translation>
    </message>
    <message>
        <source>It grows by %1 % of that per %2, down to %3.</source>
        <translation>Bis %3 Tiefe nimmt die Geschwindigkeit je %2 um %1 % des Werts an der Oberfläche zu.</translation>
    </message>
</context>
<context>
    <name>talvesk::Report</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Table %1. %2</source>
        <translation>Tabelle %1. %2</translation>
    </message>
    <message>
        <source>Figure %1. %2</source>
        <translation>Abbildung %1. %2</translation>
    </message>
    <message>
        <source>Seismic refraction survey</source>
        <translation>Refraktionsseismische Messung</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Position [%1]</source>
        <translation>Position [%1]</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>RMS [%]</source>
        <translation>RMS [%]</translation>
    </message>
    <message>
        <source>Mean [ms]</source>
        <translation>Mittel [ms]</translation>
    </message>
    <message>
        <source>Largest [ms]</source>
        <translation>Größte [ms]</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Linear weighted</source>
        <translation>Linear gewichtet</translation>
    </message>
    <message>
        <source>Gaussian weighted</source>
        <translation>Gauß-gewichtet</translation>
    </message>
    <message>
        <source>Ray based</source>
        <translation>Strahlbasiert</translation>
    </message>
    <message>
        <source>Uniform weighted</source>
        <translation>Gleich gewichtet</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Zellen</translation>
    </message>
    <message>
        <source>%1 rows by %2 columns</source>
        <translation>%1 Zeilen mal %2 Spalten</translation>
    </message>
    <message>
        <source>Side of a cell</source>
        <translation>Seitenlänge einer Zelle</translation>
    </message>
    <message>
        <source>Depth below the surface</source>
        <translation>Tiefe unter der Oberfläche</translation>
    </message>
    <message>
        <source>Nodes per cell side</source>
        <translation>Knoten pro Zellenseite</translation>
    </message>
    <message>
        <source>Nodes altogether</source>
        <translation>Knoten insgesamt</translation>
    </message>
    <message>
        <source>The grid under the line</source>
        <translation>Das Gitter unter der Messlinie</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Top [%1]</source>
        <translation>Oberkante [%1]</translation>
    </message>
    <message>
        <source>Bottom [%1]</source>
        <translation>Unterkante [%1]</translation>
    </message>
    <message>
        <source>Velocity at top [%1]</source>
        <translation>Geschwindigkeit oben [%1]</translation>
    </message>
    <message>
        <source>Velocity at bottom [%1]</source>
        <translation>Geschwindigkeit unten [%1]</translation>
    </message>
    <message>
        <source>The layers of the starting model, depths below the surface</source>
        <translation>Die Schichten des Startmodells, Tiefen unter der Oberfläche</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, stopped by the user</source>
        <translation>%1, vom Benutzer angehalten</translation>
    </message>
    <message>
        <source>External iterations</source>
        <translation>Äußere Iterationen</translation>
    </message>
    <message>
        <source>Solver iterations on the rays of each</source>
        <translation>Iterationen des Lösers je Strahlensatz</translation>
    </message>
    <message>
        <source>Velocity limits</source>
        <translation>Geschwindigkeitsgrenzen</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>Smoothing radius</source>
        <translation>Glättungsradius</translation>
    </message>
    <message>
        <source>1 cell</source>
        <translation>1 Zelle</translation>
    </message>
    <message>
        <source>%1 cells</source>
        <translation>%1 Zellen</translation>
    </message>
    <message>
        <source>Height over width of the smoothing window</source>
        <translation>Höhe zu Breite des Glättungsfensters</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Parameters of the inversion</source>
        <translation>Parameter der Inversion</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Äußere Iteration</translation>
    </message>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Abweichung nach jeder äußeren Iteration</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Laufzeiten</translation>
    </message>
    <message>
        <source>No first breaks have been picked.</source>
        <translation>Es wurden keine Ersteinsätze gepickt.</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks against distance</source>
        <translation>Laufzeitkurven: gepickte Ersteinsätze über der Entfernung</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks (symbols) and times computed through the section (lines) against distance</source>
        <translation>Laufzeitkurven: gepickte Ersteinsätze (Symbole) und durch den Schnitt berechnete Zeiten (Linien) über der Entfernung</translation>
    </message>
    <message>
        <source>Picks of every shot</source>
        <translation>Picks jedes Schusses</translation>
    </message>
    <message>
        <source>Picks of every shot and their misfit, computed minus measured</source>
        <translation>Picks jedes Schusses und ihre Abweichung, berechnet minus gemessen</translation>
    </message>
    <message>
        <source>Grid and inversion</source>
        <translation>Gitter und Inversion</translation>
    </message>
    <message>
        <source>No grid has been built and nothing has been inverted.</source>
        <translation>Es wurde kein Gitter erstellt und nichts invertiert.</translation>
    </message>
    <message>
        <source>The parameters of the inversion are not known.</source>
        <translation>Die Parameter der Inversion sind nicht bekannt.</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Geschwindigkeitsschnitt</translation>
    </message>
    <message>
        <source>Misfit</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Verwendete Picks</translation>
    </message>
    <message>
        <source>RMS misfit</source>
        <translation>RMS-Abweichung</translation>
    </message>
    <message>
        <source>%1 ms, %2 %</source>
        <translation>%1 ms, %2 %</translation>
    </message>
    <message>
        <source>Residuals of the picks against the distance from their shot</source>
        <translation>Residuen der Picks über der Entfernung von ihrem Schuss</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Höhe [%1]</translation>
    </message>
    <message>
        <source>Depth %1 [%2]</source>
        <translation>Tiefe %1 [%2]</translation>
    </message>
    <message>
        <source>Velocity %1 [%2]</source>
        <translation>Geschwindigkeit %1 [%2]</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Refraktionsauswertung</translation>
    </message>
    <message>
        <source>Velocity of the first layer</source>
        <translation>Geschwindigkeit der ersten Schicht</translation>
    </message>
    <message>
        <source>Velocity of refractor %1</source>
        <translation>Geschwindigkeit von Refraktor %1</translation>
    </message>
    <message>
        <source>Distance XY of refractor %1</source>
        <translation>Abstand XY von Refraktor %1</translation>
    </message>
    <message>
        <source>Layers and refractors</source>
        <translation>Schichten und Refraktoren</translation>
    </message>
    <message>
        <source>Section of the layers</source>
        <translation>Schnitt der Schichten</translation>
    </message>
    <message>
        <source>Depths below the surface and velocities of the refractors</source>
        <translation>Tiefen unter der Oberfläche und Geschwindigkeiten der Refraktoren</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>The refractors were interpreted by the generalised reciprocal method. First breaks were assigned to layers, and the arrivals of each refractor from both ends of the line were completed by shifted arrivals of the other shots. The velocity-analysis function gives the velocity of the refractor, the time-depth function its depth beneath each geophone.</source>
        <translation>Die Refraktoren wurden mit der generalisierten Reziprokmethode (GRM) ausgewertet. Die Ersteinsätze wurden Schichten zugeordnet, und die Einsätze jedes Refraktors von beiden Enden der Messlinie wurden durch verschobene Einsätze der anderen Schüsse ergänzt. Die Funktion der Geschwindigkeitsanalyse ergibt die Geschwindigkeit des Refraktors, die Zeit-Tiefen-Funktion seine Tiefe unter jedem Geophon.</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Wellen</translation>
    </message>
    <message>
        <source>S waves</source>
        <translation>S-Wellen</translation>
    </message>
    <message>
        <source>P waves</source>
        <translation>P-Wellen</translation>
    </message>
    <message>
        <source>Geophones from, to</source>
        <translation>Geophone von, bis</translation>
    </message>
    <message>
        <source>Length of the line</source>
        <translation>Länge der Messlinie</translation>
    </message>
    <message>
        <source>Elevation of the geophones</source>
        <translation>Höhe der Geophone</translation>
    </message>
    <message>
        <source>Shots from, to</source>
        <translation>Schüsse von, bis</translation>
    </message>
    <message>
        <source>Geophone strings</source>
        <translation>Geophonauslagen</translation>
    </message>
    <message>
        <source>Geophone positions</source>
        <translation>Geophonpositionen</translation>
    </message>
    <message>
        <source>Number of shots</source>
        <translation>Anzahl der Schüsse</translation>
    </message>
    <message>
        <source>The line</source>
        <translation>Die Messlinie</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Auslage</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geophone</translation>
    </message>
    <message>
        <source>From [%1]</source>
        <translation>Von [%1]</translation>
    </message>
    <message>
        <source>To [%1]</source>
        <translation>Bis [%1]</translation>
    </message>
    <message>
        <source>Spacing [%1]</source>
        <translation>Abstand [%1]</translation>
    </message>
    <message>
        <source>Strings of geophones</source>
        <translation>Geophonauslagen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Interval [ms]</source>
        <translation>Intervall [ms]</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Abtastwerte</translation>
    </message>
    <message>
        <source>Length [ms]</source>
        <translation>Länge [ms]</translation>
    </message>
    <message>
        <source>Shots and their recordings</source>
        <translation>Schüsse und ihre Aufzeichnungen</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Auftraggeber</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Bearbeiter</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Survey</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>End of the line</source>
        <translation>Ende der Messlinie</translation>
    </message>
    <message>
        <source>Easting [m]</source>
        <translation>Ostwert [m]</translation>
    </message>
    <message>
        <source>Northing [m]</source>
        <translation>Nordwert [m]</translation>
    </message>
    <message>
        <source>Longitude [°]</source>
        <translation>Länge [°]</translation>
    </message>
    <message>
        <source>Latitude [°]</source>
        <translation>Breite [°]</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Erstes Geophon</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Letztes Geophon</translation>
    </message>
    <message>
        <source>The coordinate reference system of the line is not set.</source>
        <translation>Das Koordinatenreferenzsystem der Messlinie ist nicht festgelegt.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1.</source>
        <translation>Koordinatenreferenzsystem: EPSG:%1.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1, %2.</source>
        <translation>Koordinatenreferenzsystem: EPSG:%1, %2.</translation>
    </message>
    <message>
        <source>Ends of the line; longitude and latitude on WGS 84</source>
        <translation>Enden der Messlinie; geographische Länge und Breite in WGS 84</translation>
    </message>
    <message>
        <source>Ends of the line</source>
        <translation>Enden der Messlinie</translation>
    </message>
    <message>
        <source>Information density: how completely rays cross the surroundings of each cell</source>
        <translation>Informationsdichte: wie vollständig Strahlen die Umgebung jeder Zelle durchqueren</translation>
    </message>
    <message>
        <source>Velocity section with rays</source>
        <translation>Geschwindigkeitsschnitt mit Strahlen</translation>
    </message>
    <message>
        <source>Largest relative late error</source>
        <translation>Größte relative Verspätung</translation>
    </message>
    <message>
        <source>%1 % (%2 ms)</source>
        <translation>%1 % (%2 ms)</translation>
    </message>
    <message>
        <source>Computing time</source>
        <translation>Rechenzeit</translation>
    </message>
    <message>
        <source>Mean of computed minus measured</source>
        <translation>Mittel von berechnet minus gemessen</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Largest difference</source>
        <translation>Größte Differenz</translation>
    </message>
    <message>
        <source>%1 ms, shot %2, receiver %3</source>
        <translation>%1 ms, Schuss %2, Empfänger %3</translation>
    </message>
    <message>
        <source>Misfit of the section, along fresh rays</source>
        <translation>Abweichung des Schnitts, entlang neuer Strahlen</translation>
    </message>
    <message>
        <source>The section was smoothed after the inversion; its misfit is that of the smoothed one.</source>
        <translation>Der Schnitt wurde nach der Inversion geglättet; seine Abweichung ist die des geglätteten Schnitts.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion: the section was fitted to others than those that its misfit is told of here.</source>
        <translation>Picks haben sich seit der Inversion geändert: Der Schnitt wurde an andere Picks angepasst als an die, auf die sich seine hier angegebene Abweichung bezieht.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Last solver pass of the inversion</source>
        <translation>Letzter Durchgang des Lösers bei der Inversion</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Schnitt, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Letzter Durchgang des Lösers, RMS [ms]</translation>
    </message>
    <message>
        <source>The misfit of the section is that of fresh rays through the section that an iteration has left; 0 is the starting model. The last solver pass of an iteration goes along its old rays, before the last correction of the velocities and before they are smoothed, and its misfit is usually smaller.</source>
        <translation>Die Abweichung des Schnitts ist die neuer Strahlen durch den Schnitt, den eine Iteration hinterlassen hat; 0 ist das Startmodell. Der letzte Durchgang des Lösers einer Iteration folgt ihren alten Strahlen, vor der letzten Korrektur der Geschwindigkeiten und vor ihrer Glättung, und seine Abweichung ist meist kleiner.</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every external iteration (blue), 0 being the starting model, and of the last solver pass of each (grey)</source>
        <translation>RMS-Abweichung des Schnitts nach jeder äußeren Iteration (blau; 0 ist das Startmodell) und des jeweils letzten Durchgangs des Lösers (grau)</translation>
    </message>
    <message>
        <source>The picks have changed since this profile was built: it is that of the earlier picks.</source>
        <translation>Die Picks haben sich geändert, seit dieses Profil erstellt wurde: Es ist das der früheren Picks.</translation>
    </message>
    <message>
        <source>No velocity is given where the times lead to one outside %1 to %2. No depth is given there, below a layer whose velocity or depth is not known or which is faster, and where it came out deeper than the line is long.</source>
        <translation>Wo die Zeiten zu einer Geschwindigkeit außerhalb von %1 bis %2 führen, ist keine angegeben. Keine Tiefe ist dort angegeben, ferner unter einer Schicht, die schneller ist oder deren Geschwindigkeit oder Tiefe nicht bekannt ist, und wo sich eine Tiefe ergab, die größer ist als die Länge der Messlinie.</translation>
    </message>
    <message>
        <source>First breaks are the times at which the first seismic energy of a shot reaches each geophone. They were picked on the recorded traces.</source>
        <translation>Ersteinsätze sind die Zeiten, zu denen die erste seismische Energie eines Schusses die einzelnen Geophone erreicht. Sie wurden auf den aufgezeichneten Spuren gepickt.</translation>
    </message>
    <message>
        <source>They were inverted by travel-time tomography. The ground beneath the line is divided into square cells of constant velocity, which follow the surface. From each shot the fastest paths to all geophones are searched for in the network of nodes on the sides of the cells; they are the rays. The differences between measured and computed times are distributed along the rays and correct the slowness of the cells that they cross, several times over on the same rays, within the limits of velocity. The corrected section is smoothed, and new rays are traced through it: that is one external iteration.</source>
        <translation>Sie wurden mit Laufzeittomographie invertiert. Der Untergrund unter der Messlinie ist in quadratische Zellen konstanter Geschwindigkeit geteilt, die der Oberfläche folgen. Von jedem Schuss aus werden im Netz der Knoten auf den Zellenseiten die schnellsten Wege zu allen Geophonen gesucht; das sind die Strahlen. Die Differenzen zwischen gemessenen und berechneten Zeiten werden entlang der Strahlen verteilt und korrigieren die Langsamkeit der durchquerten Zellen, mehrmals auf denselben Strahlen und innerhalb der Geschwindigkeitsgrenzen. Der korrigierte Schnitt wird geglättet, und neue Strahlen werden durch ihn verfolgt: Das ist eine äußere Iteration.</translation>
    </message>
    <message>
        <source>The misfit is the difference between computed and measured times. The computed times are those along fresh rays through the section as it is drawn. RMS is the root mean square of the misfit, in milliseconds or relative to the measured times in percent. The information density tells how completely rays cross the surroundings of a cell; where it is low, velocities are poorly supported by the data, and below the lowest rays the section is not drawn. Velocities that decrease with depth and thin layers may remain hidden from first arrivals.</source>
        <translation>Die Abweichung ist der Unterschied zwischen berechneten und gemessenen Zeiten. Die berechneten Zeiten sind die entlang neuer Strahlen durch den Schnitt, wie er gezeichnet ist. RMS ist das quadratische Mittel der Abweichung, in Millisekunden oder in Prozent der gemessenen Zeiten. Die Informationsdichte sagt, wie vollständig Strahlen die Umgebung einer Zelle durchqueren; wo sie gering ist, sind die Geschwindigkeiten durch die Daten schwach gestützt, und unterhalb der tiefsten Strahlen wird der Schnitt nicht gezeichnet. Geschwindigkeiten, die mit der Tiefe abnehmen, und dünne Schichten können den Ersteinsätzen verborgen bleiben.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion.</source>
        <translation>Die Picks haben sich seit der Inversion geändert.</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Shots: %1; geophones: %2; picks: %3 of %4</source>
        <translation>Schüsse: %1; Geophone: %2; Picks: %3 von %4</translation>
    </message>
    <message>
        <source>No result of an inversion is known: the grid has the velocities that it was left with.</source>
        <translation>Es ist kein Ergebnis einer Inversion bekannt: Das Gitter hat die Geschwindigkeiten, mit denen es zurückgelassen wurde.</translation>
    </message>
    <message>
        <source>Velocities of the grid</source>
        <translation>Geschwindigkeiten des Gitters</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>The recordings of these shots are put right as listed. All figures and times of this report are of the mended recordings.</source>
        <translation>Die Aufzeichnungen dieser Schüsse sind wie aufgeführt korrigiert. Alle Abbildungen und Zeiten dieses Berichts beziehen sich auf die korrigierten Aufzeichnungen.</translation>
    </message>
    <message>
        <source>Mends of recordings</source>
        <translation>Korrekturen der Aufzeichnungen</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Zweifelhaft</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Fehler unbekannt</translation>
    </message>
    <message>
        <source>Median error [ms]</source>
        <translation>Median der Fehler [ms]</translation>
    </message>
    <message>
        <source>Largest error [ms]</source>
        <translation>Größter Fehler [ms]</translation>
    </message>
    <message>
        <source>Errors of the picks of every shot</source>
        <translation>Fehler der Picks jedes Schusses</translation>
    </message>
    <message>
        <source>The error of a pick is one standard deviation. A pick is good up to %1 ms and doubtful beyond.</source>
        <translation>Der Fehler eines Picks ist eine Standardabweichung. Bis %1 ms ist ein Pick gut, darüber zweifelhaft.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Anpassung an die Fehler der Picks</translation>
    </message>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Fehler von Picks ohne Fehlerangabe</translation>
    </message>
    <message>
        <source>%1 ms, or %2 % of the time where that is more</source>
        <translation>%1 ms oder %2 % der Zeit, wo das mehr ist</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi-Quadrat</translation>
    </message>
    <message>
        <source>%1; of all picks %2</source>
        <translation>%1; mit allen Picks %2</translation>
    </message>
    <message>
        <source>Target reached</source>
        <translation>Ziel erreicht</translation>
    </message>
    <message>
        <source>Suspect picks, left out of chi-square</source>
        <translation>Verdächtige Picks, in Chi-Quadrat nicht enthalten</translation>
    </message>
    <message>
        <source>Iterations to this section</source>
        <translation>Iterationen bis zu diesem Schnitt</translation>
    </message>
    <message>
        <source>Few sharp steps rather than gentle slopes</source>
        <translation>Wenige scharfe Stufen statt sanfter Übergänge</translation>
    </message>
    <message>
        <source>Time shifts of shots fitted, too</source>
        <translation>Zeitverschiebungen der Schüsse mit angepasst</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paare</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Verspätet um [ms]</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Reciprocity of every shot</source>
        <translation>Reziprozität jedes Schusses</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Hin [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Zurück [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Differenz [ms]</translation>
    </message>
    <message>
        <source>The pairs of shots that differ most</source>
        <translation>Die Schusspaare mit den größten Differenzen</translation>
    </message>
    <message>
        <source>Pairs of shots</source>
        <translation>Schusspaare</translation>
    </message>
    <message>
        <source>Reciprocity</source>
        <translation>Reziprozität</translation>
    </message>
    <message>
        <source>A wave takes as long from one shot to the place of another as back. Pairs of shots with picks along both ways: %1; RMS of their differences: %2 ms.</source>
        <translation>Eine Welle braucht von einem Schuss zur Stelle eines anderen ebenso lange wie zurück. Schusspaare mit Picks auf beiden Wegen: %1; RMS ihrer Differenzen: %2 ms.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Schuss %1: %2.</translation>
    </message>
    <message>
        <source>gradient read from the picks</source>
        <translation>Gradient aus den Picks</translation>
    </message>
    <message>
        <source>two layers read from the picks</source>
        <translation>zwei Schichten aus den Picks</translation>
    </message>
    <message>
        <source>three layers read from the picks</source>
        <translation>drei Schichten aus den Picks</translation>
    </message>
    <message>
        <source>gradient over a refractor, read from the picks</source>
        <translation>Gradient über einem Refraktor, aus den Picks</translation>
    </message>
    <message>
        <source>default model</source>
        <translation>Standardmodell</translation>
    </message>
    <message>
        <source>velocities that the grid had</source>
        <translation>Geschwindigkeiten, die das Gitter hatte</translation>
    </message>
    <message>
        <source>Started from and held to</source>
        <translation>Ausgangs- und Referenzmodell</translation>
    </message>
    <message>
        <source>%1, shrinking to a fifth</source>
        <translation>%1, auf ein Fünftel abnehmend</translation>
    </message>
    <message>
        <source>%1, the best of %2 from coarse to fine</source>
        <translation>%1, die beste von %2 von grob nach fein</translation>
    </message>
    <message>
        <source>Uncertainty: half of the range from 16 to 84 % of %1 sections that explain the picks as well, in percent</source>
        <translation>Unsicherheit: halber Bereich von 16 bis 84 % von %1 Schnitten, die die Picks ebenso gut erklären, in Prozent</translation>
    </message>
    <message>
        <source>%1; of all picks %2; suspect picks %3</source>
        <translation>%1; mit allen Picks %2; verdächtige Picks %3</translation>
    </message>
    <message>
        <source>%1; with the time shifts of shots</source>
        <translation>%1; mit den Zeitverschiebungen der Schüsse</translation>
    </message>
    <message>
        <source>Misfit after every iteration, 0 being the starting model</source>
        <translation>Abweichung nach jeder Iteration, 0 ist das Startmodell</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every iteration, 0 being the starting model</source>
        <translation>RMS-Abweichung des Schnitts nach jeder Iteration, 0 ist das Startmodell</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Reziprok</translation>
    </message>
    <message>
        <source>Delay times</source>
        <translation>Verzögerungszeiten</translation>
    </message>
    <message>
        <source>Intercept times</source>
        <translation>Interceptzeiten</translation>
    </message>
    <message>
        <source>Plus-minus</source>
        <translation>Plus-Minus</translation>
    </message>
    <message>
        <source>both</source>
        <translation>beidem</translation>
    </message>
    <message>
        <source>depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>%1: depth [%2]</source>
        <translation>%1: Tiefe [%2]</translation>
    </message>
    <message>
        <source>%1: velocity [%2]</source>
        <translation>%1: Geschwindigkeit [%2]</translation>
    </message>
    <message>
        <source>Disagree in</source>
        <translation>Uneinig in</translation>
    </message>
    <message>
        <source>Layers by method</source>
        <translation>Schichten nach Methode</translation>
    </message>
    <message>
        <source>Depths are below the surface. A value in parentheses is not carried by picks there, but by shifted arrivals of other shots, across a gap or by a continuation.</source>
        <translation>Tiefen sind unter der Oberfläche. Ein Wert in Klammern ist dort nicht durch Picks gestützt, sondern durch verschobene Einsätze anderer Schüsse, über eine Lücke hinweg oder durch eine Fortsetzung.</translation>
    </message>
    <message>
        <source>Errors are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations. Methods disagree where two of them differ by more than three times what their difference scatters by.</source>
        <translation>Fehler sind die halbe Breite, in der 68 von 100 Ergebnissen liegen, wenn Picks um ihre Fehler verschoben werden, aus %1 solchen Auswertungen. Methoden sind uneinig, wo sich zwei von ihnen um mehr als das Dreifache der Streuung ihrer Differenz unterscheiden.</translation>
    </message>
    <message>
        <source>Layer %1 by method</source>
        <translation>Schicht %1 nach Methode</translation>
    </message>
    <message>
        <source>Residuals of the picks, shot by geophone</source>
        <translation>Residuen der Picks, Schüsse gegen Geophone</translation>
    </message>
    <message>
        <source>Layer %1 [ms]</source>
        <translation>Schicht %1 [ms]</translation>
    </message>
    <message>
        <source>No misfit of the layers is told: they have no depth, or were built from other picks or marks than those of now.</source>
        <translation>Für die Schichten ist keine Abweichung angegeben: Sie haben keine Tiefe oder wurden aus anderen Picks oder Zuordnungen als den jetzigen erstellt.</translation>
    </message>
    <message>
        <source>Times computed through the layers differ from the picks by %1 ms (RMS of %2 picks; mean of picks less computed times %3 ms; chi-square %4).</source>
        <translation>Durch die Schichten berechnete Zeiten weichen von den Picks um %1 ms ab (RMS von %2 Picks; Mittel der Picks minus berechnete Zeiten %3 ms; Chi-Quadrat %4).</translation>
    </message>
    <message>
        <source>RMS misfit of the layers, by shot (number of picks)</source>
        <translation>RMS-Abweichung der Schichten, je Schuss (Anzahl der Picks)</translation>
    </message>
    <message>
        <source>Depth of refractors by method</source>
        <translation>Tiefe der Refraktoren nach Methode</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>Phantom</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>Fortsetzung</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Tiefe %1 aus</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, is not carried by picks of the shots at both ends there: but by shifted arrivals of other shots (phantom), across more than two spacings without arrivals (gap), or by a continuation beyond the last ones.</source>
        <translation>Ein Wert in Klammern und eine gestrichelte Linie sind dort nicht durch Picks der Schüsse an beiden Enden belegt, sondern durch verschobene Einsätze anderer Schüsse (Phantom), über mehr als zwei Geophonabstände ohne Einsätze hinweg (Lücke) oder durch eine Fortsetzung jenseits der letzten Einsätze.</translation>
    </message>
    <message>
        <source>Errors, and the bands round the lines, are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations.</source>
        <translation>Fehler und die Bänder um die Linien sind die halbe Breite, in der 68 von 100 Ergebnissen liegen, wenn Picks um ihre Fehler verschoben werden, aus %1 solchen Auswertungen.</translation>
    </message>
    <message>
        <source>Median velocity of refractor %1</source>
        <translation>Median der Geschwindigkeit von Refraktor %1</translation>
    </message>
    <message>
        <source>Mean velocity of the first layer</source>
        <translation>Mittlere Geschwindigkeit der ersten Schicht</translation>
    </message>
    <message>
        <source>Velocity of the first layer at the surface</source>
        <translation>Geschwindigkeit der ersten Schicht an der Oberfläche</translation>
    </message>
    <message>
        <source>Growth of its velocity with depth</source>
        <translation>Zunahme ihrer Geschwindigkeit mit der Tiefe</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per metre, down to %2</source>
        <translation>%1 % des Werts an der Oberfläche je Meter, bis %2 Tiefe</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per foot, down to %2</source>
        <translation>%1 % des Werts an der Oberfläche je Fuß, bis %2 Tiefe</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, stands where no pick of the refractor comes from or goes to: it lies between what others tell (gap). Errors are not told of a profile that is fitted to all picks.</source>
        <translation>Ein Wert in Klammern und eine gestrichelte Linie stehen dort, wo kein Pick des Refraktors ausgeht oder ankommt: Sie liegen zwischen dem, was andere sagen (Lücke). Für ein an alle Picks angepasstes Profil werden keine Fehler angegeben.</translation>
    </message>
    <message>
        <source>First breaks were assigned to layers, and velocities and depths of the refractors were fitted to all of them at once: so that the direct and refracted times computed through the layers, which may change along the line, are those of the picks.</source>
        <translation>Die Ersteinsätze wurden Schichten zugeordnet, und Geschwindigkeiten und Tiefen der Refraktoren wurden an alle zugleich angepasst: so, dass die direkten und refraktierten Zeiten, berechnet durch die Schichten, die sich entlang der Messlinie ändern dürfen, denen der Picks entsprechen.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>These shots have filtered copies beside their recordings, made as listed, one filter after the other.</source>
        <translation>Diese Schüsse haben neben ihren Aufzeichnungen gefilterte Kopien, erstellt wie aufgeführt, ein Filter nach dem anderen.</translation>
    </message>
    <message>
        <source>Filters of the recordings</source>
        <translation>Filter der Aufzeichnungen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>length, unit</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Points on the map</source>
        <translation>Punkte auf der Karte</translation>
    </message>
    <message>
        <source>Corners of more than 1°</source>
        <translation>Ecken von mehr als 1°</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Länge entlang der Messlinie</translation>
    </message>
    <message>
        <source>Length on the map</source>
        <translation>Länge auf der Karte</translation>
    </message>
    <message>
        <source>Straight from end to end</source>
        <translation>Gerade von Ende zu Ende</translation>
    </message>
    <message>
        <source>Farthest from that straight line, to the right</source>
        <translation>Größter Abstand von dieser Geraden, nach rechts</translation>
    </message>
    <message>
        <source>The same to the left</source>
        <translation>Dasselbe nach links</translation>
    </message>
    <message>
        <source>Course of the line between its ends</source>
        <translation>Verlauf der Messlinie zwischen ihren Enden</translation>
    </message>
</context>
<context>
    <name>talvesk::ReportDialog</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Title page</source>
        <translation>Titelseite</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Auftraggeber:</translation>
    </message>
    <message>
        <source>&amp;Site:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Bearbeiter:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>As it is to be read</source>
        <translation>So, wie es zu lesen sein soll</translation>
    </message>
    <message>
        <source>&amp;Notes:</source>
        <translation>An&amp;merkungen:</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Survey: line, geophones, shots, files</source>
        <translation>Messung: Messlinie, Geophone, Schüsse, Dateien</translation>
    </message>
    <message>
        <source>Position on the globe</source>
        <translation>Geographische Lage</translation>
    </message>
    <message>
        <source>Travel times and the misfit of every shot</source>
        <translation>Laufzeiten und Abweichung jedes Schusses</translation>
    </message>
    <message>
        <source>Grid and parameters of the inversion</source>
        <translation>Gitter und Parameter der Inversion</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Geschwindigkeitsschnitt</translation>
    </message>
    <message>
        <source>Rays over the section</source>
        <translation>Strahlen über dem Schnitt</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Informationsdichte</translation>
    </message>
    <message>
        <source>Misfit and its history</source>
        <translation>Abweichung und ihr Verlauf</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Refraktionsauswertung</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Puts the report together and shows its pages</source>
        <translation>Stellt den Bericht zusammen und zeigt seine Seiten</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Seiten des Berichts</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::ResidualsDialog</name>
    <message>
        <source>Residuals</source>
        <translation>Residuen</translation>
    </message>
    <message>
        <source>Residuals &amp;in:</source>
        <translation>Residuen &amp;in:</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>Errors of the picks</source>
        <translation>Fehlern der Picks</translation>
    </message>
    <message>
        <source>Whose dots have a colour of their own in the picture over the offset</source>
        <translation>Der Schuss, dessen Punkte im Bild über dem Offset eine eigene Farbe haben</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Karte</translation>
    </message>
    <message>
        <source>Residuals, shot by geophone</source>
        <translation>Residuen, Schüsse gegen Geophone</translation>
    </message>
    <message>
        <source>Over the &amp;offset</source>
        <translation>Über dem &amp;Offset</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residuen über dem Offset</translation>
    </message>
    <message>
        <source>Shots and &amp;geophones</source>
        <translation>Schüsse und &amp;Geophone</translation>
    </message>
    <message>
        <source>Residuals per shot</source>
        <translation>Residuen pro Schuss</translation>
    </message>
    <message>
        <source>Residuals per geophone</source>
        <translation>Residuen pro Geophon</translation>
    </message>
    <message>
        <source>&amp;Along the rays</source>
        <translation>Entlang der Strah&amp;len</translation>
    </message>
    <message>
        <source>Every cell has the mean residual of the rays through it, by their lengths in it; suspect picks are left out.</source>
        <translation>Jede Zelle zeigt das mittlere Residuum der Strahlen durch sie, gewichtet mit deren Länge darin; verdächtige Picks sind weggelassen.</translation>
    </message>
    <message>
        <source>Shows the trace of the current pick in the window, as a click on it or Return does</source>
        <translation>Zeigt die Spur des aktuellen Picks im Fenster, wie ein Klick darauf oder die Eingabetaste</translation>
    </message>
    <message>
        <source>Show &amp;trace</source>
        <translation>Spur &amp;zeigen</translation>
    </message>
    <message>
        <source>Puts the picture in view on the clipboard</source>
        <translation>Kopiert das sichtbare Bild in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Bild ko&amp;pieren</translation>
    </message>
    <message>
        <source>Save &amp;picture...</source>
        <translation>&amp;Bild speichern...</translation>
    </message>
    <message>
        <source>All picks with their residuals, for spreadsheets</source>
        <translation>Alle Picks mit ihren Residuen, für Tabellenkalkulationen</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Tabelle speichern...</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>Geophone at %1</source>
        <translation>Geophon bei %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Es gibt noch keinen Schnitt, dessen Zeiten man prüfen könnte.</translation>
    </message>
    <message>
        <source>Section of &quot;%1&quot;: %2.</source>
        <translation>Schnitt aus „%1“: %2.</translation>
    </message>
    <message>
        <source>Picks: %1, suspect: %2.</source>
        <translation>Picks: %1, verdächtig: %2.</translation>
    </message>
    <message>
        <source>The section was smoothed afterwards.</source>
        <translation>Der Schnitt wurde danach geglättet.</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found are counted.</source>
        <translation>Die Zeitverschiebungen der Schüsse aus der Anpassung sind eingerechnet.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>Die Picks haben sich geändert, seit der Schnitt bestimmt wurde: Er wurde an andere angepasst.</translation>
    </message>
    <message>
        <source>Offset [m]</source>
        <translation>Offset [m]</translation>
    </message>
    <message>
        <source>Median [pick errors]</source>
        <translation>Median [Pickfehler]</translation>
    </message>
    <message>
        <source>Median [ms]</source>
        <translation>Median [ms]</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Geophone at [m]</source>
        <translation>Geophon bei [m]</translation>
    </message>
    <message>
        <source>Click a pick, or walk to it with the arrow keys.</source>
        <translation>Klicken Sie auf einen Pick, oder gehen Sie mit den Pfeiltasten zu ihm.</translation>
    </message>
    <message>
        <source>Shot %1, geophone at %2: no pick with a computed time</source>
        <translation>Schuss %1, Geophon bei %2: kein Pick mit berechneter Zeit</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1: picks %2, median %3, two of three from %4 to %5</source>
        <translation>%1: Picks %2, Median %3, zwei von drei zwischen %4 und %5</translation>
    </message>
    <message>
        <source>; stands out</source>
        <translation>; auffällig</translation>
    </message>
    <message>
        <source>The picture cannot be made.</source>
        <translation>Das Bild kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Colo&amp;ur shot:</source>
        <translation>Sch&amp;uss farbig:</translation>
    </message>
</context>
<context>
    <name>talvesk::ResolutionDialog</name>
    <message>
        <source>Resolution Test</source>
        <translation>Auflösungstest</translation>
    </message>
    <message>
        <source>Would the survey see it? A pattern is laid over the section, the times of all picks are computed through it with noise of their errors, and a section is fitted to them. Where what comes back correlates with what was put in, ground of that size is resolved.</source>
        <translation>Würde die Messung es sehen? Ein Muster wird über den Schnitt gelegt, die Zeiten aller Picks werden dadurch mit Rauschen nach ihren Fehlern berechnet, und ein Schnitt wird daran angepasst. Wo das Rekonstruierte mit dem Vorgegebenen korreliert, ist Untergrund dieser Größe aufgelöst.</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Muster:</translation>
    </message>
    <message>
        <source>What the section is disturbed by</source>
        <translation>Wodurch der Schnitt gestört wird</translation>
    </message>
    <message>
        <source>Si&amp;ze [m]:</source>
        <translation>G&amp;röße [m]:</translation>
    </message>
    <message>
        <source>Side of a square, or thickness of a layer</source>
        <translation>Seite eines Quadrats oder Mächtigkeit einer Schicht</translation>
    </message>
    <message>
        <source>Se&amp;veral sizes</source>
        <translation>Mehrere &amp;Größen</translation>
    </message>
    <message>
        <source>Try sizes from the distance between positions up to the largest that fits the grid, and tell the smallest that is resolved at each depth</source>
        <translation>Probiert Größen vom Abstand der Positionen bis zur größten, die ins Gitter passt, und nennt für jede Tiefe die kleinste, die aufgelöst wird</translation>
    </message>
    <message>
        <source>St&amp;rength [%]:</source>
        <translation>Stär&amp;ke [%]:</translation>
    </message>
    <message>
        <source>How much faster and slower the pattern is than the section</source>
        <translation>Um wie viel das Muster schneller und langsamer ist als der Schnitt</translation>
    </message>
    <message>
        <source>&amp;Over:</source>
        <translation>Ü&amp;ber:</translation>
    </message>
    <message>
        <source>What the pattern is laid over</source>
        <translation>Worüber das Muster gelegt wird</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>S&amp;hown size:</source>
        <translation>Gez&amp;eigte Größe:</translation>
    </message>
    <message>
        <source>Of which of the tests the pictures are</source>
        <translation>Zu welchem der Tests die Bilder gehören</translation>
    </message>
    <message>
        <source>Save P&amp;icture ...</source>
        <translation>B&amp;ild speichern ...</translation>
    </message>
    <message>
        <source>Save Ta&amp;ble ...</source>
        <translation>&amp;Tabelle speichern ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Einzelne Quadrate</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>the section</source>
        <translation>der Schnitt</translation>
    </message>
    <message>
        <source>its mean at each depth</source>
        <translation>sein Mittel in jeder Tiefe</translation>
    </message>
    <message>
        <source>Start shows here what was put in, what came back and how they agree.</source>
        <translation>„Starten“ zeigt hier, was vorgegeben und was rekonstruiert wurde und wie beides übereinstimmt.</translation>
    </message>
    <message>
        <source>The test is under way.</source>
        <translation>Der Test läuft.</translation>
    </message>
    <message>
        <source>Times are computed through the pattern.</source>
        <translation>Zeiten durch das Muster werden berechnet.</translation>
    </message>
    <message>
        <source>Size %1: iteration %2.</source>
        <translation>Größe %1: Iteration %2.</translation>
    </message>
    <message>
        <source>Stopped before the first test was completed.</source>
        <translation>Angehalten, bevor der erste Test abgeschlossen war.</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n test(s) completed.</source>
        <translation>
            <numerusform>Angehalten: %n Test abgeschlossen.</numerusform>
            <numerusform>Angehalten: %n Tests abgeschlossen.</numerusform>
        </translation>
    </message>
    <message>
        <source>No test was completed.</source>
        <translation>Kein Test wurde abgeschlossen.</translation>
    </message>
    <message>
        <source>The resolution test could not be completed.</source>
        <translation>Der Auflösungstest konnte nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>at %1 none</source>
        <translation>in %1 keine</translation>
    </message>
    <message>
        <source>at %1 depth %2</source>
        <translation>in %1 Tiefe %2</translation>
    </message>
    <message>
        <source>Smallest size that is resolved (correlation from %1 on): %2.</source>
        <translation>Kleinste aufgelöste Größe (Korrelation ab %1): %2.</translation>
    </message>
</context>
<context>
    <name>talvesk::RunTexts</name>
    <message>
        <source>Fitted to errors</source>
        <translation>An Fehler angepasst</translation>
    </message>
    <message>
        <source>Smoothed</source>
        <translation>Geglättet</translation>
    </message>
    <message>
        <source>%1 rows and %2 columns of %3</source>
        <translation>%1 Zeilen und %2 Spalten zu %3</translation>
    </message>
    <message>
        <source>velocities from %1 to %2</source>
        <translation>Geschwindigkeiten von %1 bis %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robust</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>blockig</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>verdächtige Picks: %1</translation>
    </message>
    <message>
        <source>%1 solver iterations</source>
        <translation>%1 Löser-Iterationen</translation>
    </message>
    <message>
        <source>smoothing parameter %1</source>
        <translation>Glättungsparameter %1</translation>
    </message>
    <message>
        <source>symmetric</source>
        <translation>symmetrisch</translation>
    </message>
    <message>
        <source>stopped by the user</source>
        <translation>vom Benutzer angehalten</translation>
    </message>
    <message>
        <source>picks have changed since</source>
        <translation>Picks seither geändert</translation>
    </message>
    <message>
        <source>the surface or the ends of the line have changed since</source>
        <translation>Oberfläche oder Enden der Messlinie seither geändert</translation>
    </message>
    <message>
        <source>positions have changed since</source>
        <translation>Positionen seither geändert</translation>
    </message>
    <message>
        <source>%1 ms or %2 %</source>
        <translation>%1 ms oder %2 %</translation>
    </message>
    <message>
        <source>errors of %1</source>
        <translation>Fehler %1</translation>
    </message>
    <message>
        <source>from &quot;%1&quot;</source>
        <translation>ausgehend von „%1“</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>nicht robust</translation>
    </message>
    <message>
        <source>with shot statics, trigger error %1 ms</source>
        <translation>mit Schussstatik, Triggerfehler %1 ms</translation>
    </message>
    <message>
        <source>held to known ground</source>
        <translation>an bekannten Untergrund gehalten</translation>
    </message>
    <message>
        <source>from coarse to fine</source>
        <translation>von grob nach fein</translation>
    </message>
</context>
<context>
    <name>talvesk::RunsDialog</name>
    <message>
        <source>Inversion runs</source>
        <translation>Inversionsläufe</translation>
    </message>
    <message>
        <source>Every inversion is kept here, at most 50 of them. The run in use is the section that the window shows; exports and reports are of it.</source>
        <translation>Jede Inversion wird hier aufbewahrt, höchstens 50. Der verwendete Lauf ist der Schnitt, den das Fenster zeigt; Exporte und Berichte beziehen sich auf ihn.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi-Quadrat</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iterationen</translation>
    </message>
    <message>
        <source>Time [s]</source>
        <translation>Dauer [s]</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Bemerkungen</translation>
    </message>
    <message>
        <source>No inversion has been run yet. Run one with Processing, Run tomography inversion.</source>
        <translation>Noch keine Inversion gerechnet. Starten Sie eine mit „Verarbeitung“, „Tomographische Inversion starten“.</translation>
    </message>
    <message>
        <source>Make the section of the selected run the one that the window shows</source>
        <translation>Macht den Schnitt des ausgewählten Laufs zu dem, den das Fenster zeigt</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Verwenden</translation>
    </message>
    <message>
        <source>Show two runs side by side: the selected one beside another that is selected, else beside the one in use</source>
        <translation>Zeigt zwei Läufe nebeneinander: den ausgewählten neben einem zweiten ausgewählten, sonst neben dem verwendeten</translation>
    </message>
    <message>
        <source>&amp;Compare ...</source>
        <translation>Ver&amp;gleichen ...</translation>
    </message>
    <message>
        <source>Name the selected run; runs with a name are the last to go when the list is full</source>
        <translation>Benennt den ausgewählten Lauf; Läufe mit Namen entfallen zuletzt, wenn die Liste voll ist</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Take the selected runs out of the list; Undo brings them back</source>
        <translation>Nimmt die ausgewählten Läufe aus der Liste; „Rückgängig“ bringt sie zurück</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>verwendet</translation>
    </message>
    <message>
        <source>By errors of</source>
        <translation>Mit Fehlern von</translation>
    </message>
    <message>
        <source>Errors of picks that state none, by which chi-square is measured: figures by other errors do not compare.</source>
        <translation>Fehler von Picks ohne Fehlerangabe, an denen Chi-Quadrat gemessen wird: Werte mit anderen Fehlern sind nicht vergleichbar.</translation>
    </message>
    <message>
        <source>Of what chi-square counts: without suspect picks, with the time shifts of shots that a fit has found.</source>
        <translation>Für das, was in Chi-Quadrat zählt: ohne verdächtige Picks, mit den Zeitverschiebungen der Schüsse aus einer Anpassung.</translation>
    </message>
    <message>
        <source>RMS of all [ms]</source>
        <translation>RMS aller [ms]</translation>
    </message>
    <message>
        <source>Of all picks as they are, suspect ones among them, without time shifts.</source>
        <translation>Für alle Picks unverändert, auch die verdächtigen, ohne Zeitverschiebungen.</translation>
    </message>
    <message>
        <source>RMS of all [%]</source>
        <translation>RMS aller [%]</translation>
    </message>
</context>
<context>
    <name>talvesk::ScreenshotDialog</name>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>JPEG-&amp;Qualität:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>As the view</source>
        <translation>Wie die Ansicht</translation>
    </message>
    <message>
        <source>%1 times the view</source>
        <translation>%1-mal die Ansicht</translation>
    </message>
    <message>
        <source>%1: %2 x %3 pixels</source>
        <translation>%1: %2 x %3 Pixel</translation>
    </message>
</context>
<context>
    <name>talvesk::SecondLookDialog</name>
    <message>
        <source>Second look</source>
        <translation>Zweiter Blick</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Pick [ms]</source>
        <translation>Pick [ms]</translation>
    </message>
    <message>
        <source>Off by [ms]</source>
        <translation>Daneben um [ms]</translation>
    </message>
    <message>
        <source>Computed minus measured: the pick is late where this is negative.</source>
        <translation>Berechnet minus gemessen: Wo das negativ ist, ist der Pick zu spät.</translation>
    </message>
    <message>
        <source>In errors</source>
        <translation>In Fehlern</translation>
    </message>
    <message>
        <source>Off by how many of its errors</source>
        <translation>Um wie viele seiner Fehler der Pick danebenliegt</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Verspätet um [ms]</translation>
    </message>
    <message>
        <source>Positive: the record begins too late, and its picks are late.</source>
        <translation>Positiv: Die Aufzeichnung beginnt zu spät, und ihre Picks sind zu spät.</translation>
    </message>
    <message>
        <source>&amp;Take over as time shifts of the records</source>
        <translation>Als Zeitverschiebungen der Aufzeichnungen &amp;übernehmen</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Es gibt noch keinen Schnitt, dessen Zeiten man prüfen könnte.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>Die Picks haben sich geändert, seit der Schnitt bestimmt wurde: Er wurde an andere angepasst.</translation>
    </message>
    <message>
        <source>No pick is off by more than five of its errors.</source>
        <translation>Kein Pick liegt um mehr als fünf seiner Fehler daneben.</translation>
    </message>
    <message>
        <source>Picks off by more than five of their errors; a click shows the trace:</source>
        <translation>Picks, die um mehr als fünf ihrer Fehler danebenliegen; ein Klick zeigt die Spur:</translation>
    </message>
    <message>
        <source>No velocity is at a limit, and rays cross all cells shown.</source>
        <translation>Keine Geschwindigkeit liegt an einer Grenze, und Strahlen durchqueren alle gezeigten Zellen.</translation>
    </message>
    <message>
        <source>Shifts the records of the checked shots with their picks, as Mend recording does; of shots without a recording the picks, with their errors. One step to be undone.</source>
        <translation>Verschiebt die Aufzeichnungen der angekreuzten Schüsse mit ihren Picks, wie „Aufzeichnung korrigieren“ es tut; bei Schüssen ohne Aufzeichnung die Picks mit ihren Fehlern. Ein Schritt, der sich rückgängig machen lässt.</translation>
    </message>
    <message>
        <source>no recording: its picks are shifted</source>
        <translation>keine Aufzeichnung: die Picks werden verschoben</translation>
    </message>
    <message>
        <source>Errors of picks below %1 ms count as %1 ms: %2</source>
        <translation>Fehler von Picks unter %1 ms zählen als %1 ms: %2</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found; a click shows the shot:</source>
        <translation>Zeitverschiebungen der Schüsse aus der Anpassung; ein Klick zeigt den Schuss:</translation>
    </message>
    <message>
        <source>Ground to look at; a click shows it in the section:</source>
        <translation>Stellen, die man ansehen sollte; ein Klick zeigt sie im Schnitt:</translation>
    </message>
    <message>
        <source>No pick stands out: %1 are off by more than five of their errors, but none by more than %2, as the section does not fit the picks to their errors.</source>
        <translation>Kein Pick ist auffällig: %1 liegen um mehr als fünf ihrer Fehler daneben, aber keiner um mehr als %2, da der Schnitt nicht im Rahmen der Fehler zu den Picks passt.</translation>
    </message>
    <message>
        <source>Picks off by more than %2 of their errors, which stand out where %1 are off by more than five; a click shows the trace:</source>
        <translation>Picks, die um mehr als %2 ihrer Fehler danebenliegen und auffallen, wo %1 um mehr als fünf danebenliegen; ein Klick zeigt die Spur:</translation>
    </message>
    <message>
        <source>Cells at the limit of %1: %2</source>
        <translation>Zellen an der Grenze von %1: %2</translation>
    </message>
    <message>
        <source>Cells shown that no ray crosses: %1 of %2</source>
        <translation>Gezeigte Zellen, die kein Strahl durchquert: %1 von %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3, depth %4 to %5)</source>
        <translation>%1 (%2 bis %3, Tiefe %4 bis %5)</translation>
    </message>
    <message>
        <source>seems so: run again with shifts of shots</source>
        <translation>anscheinend: mit Verschiebungen der Schüsse neu rechnen</translation>
    </message>
    <message>
        <source>Shots that seem to be shifted in time; a click shows the shot:</source>
        <translation>Schüsse, die zeitlich verschoben scheinen; ein Klick zeigt den Schuss:</translation>
    </message>
    <message>
        <source>Picks that the section cannot explain</source>
        <translation>Picks, die der Schnitt nicht erklären kann</translation>
    </message>
    <message>
        <source>Shots shifted in time</source>
        <translation>Zeitlich verschobene Schüsse</translation>
    </message>
    <message>
        <source>Ground to look at</source>
        <translation>Stellen, die man ansehen sollte</translation>
    </message>
</context>
<context>
    <name>talvesk::SectionView</name>
    <message>
        <source>Vertical exaggeration:</source>
        <translation>Überhöhung:</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Überhöhung</translation>
    </message>
    <message>
        <source>Turn in 3-D</source>
        <translation>In 3-D drehen</translation>
    </message>
    <message>
        <source>Dragging turns the section instead of moving it</source>
        <translation>Ziehen dreht den Schnitt, statt ihn zu verschieben</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Ansicht zurücksetzen</translation>
    </message>
    <message>
        <source>Bring the whole section back into view (Home)</source>
        <translation>Bringt den ganzen Schnitt wieder ins Bild (Pos1)</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Geschwindigkeitsschnitt</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Entfernung %1</translation>
    </message>
    <message>
        <source>Horizontal %1</source>
        <translation>Horizontal %1</translation>
    </message>
    <message>
        <source>Vertical %1</source>
        <translation>Vertikal %1</translation>
    </message>
    <message>
        <source>Slope %1°</source>
        <translation>Neigung %1°</translation>
    </message>
    <message>
        <source>Click the next point; Esc ends</source>
        <translation>Nächsten Punkt anklicken; Esc beendet</translation>
    </message>
    <message>
        <source>Double click or Enter ends it, Backspace takes a point back</source>
        <translation>Doppelklick oder Eingabe schließt ab, Rücktaste nimmt einen Punkt zurück</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Drag between two points: distance, horizontal, vertical and slope; Esc ends</source>
        <translation>Zwischen zwei Punkten ziehen: Abstand, horizontal, vertikal und Neigung; Esc beendet</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Click where a text is to stand on the section</source>
        <translation>Anklicken, wo ein Text auf dem Schnitt stehen soll</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Click the points of a line on the section</source>
        <translation>Die Punkte einer Linie auf dem Schnitt anklicken</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Click the corners of an area of the section</source>
        <translation>Die Ecken einer Fläche des Schnitts anklicken</translation>
    </message>
    <message>
        <source>How much larger heights are drawn than distances</source>
        <translation>Wie viel größer Höhen gezeichnet werden als Entfernungen</translation>
    </message>
    <message>
        <source>Click texts, lines and areas of ground into the section, or move them; Esc ends</source>
        <translation>Texte, Linien und Flächen des Untergrunds in den Schnitt klicken oder verschieben; Esc beendet</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Drag what has been drawn, or one of its corners</source>
        <translation>Gezeichnetes oder eine seiner Ecken mit der Maus ziehen</translation>
    </message>
</context>
<context>
    <name>talvesk::SelectCSVDelimiterDialog</name>
    <message>
        <source>Select CSV Separator</source>
        <translation>CSV-Trennzeichen wählen</translation>
    </message>
    <message>
        <source>CSV Separator</source>
        <translation>CSV-Trennzeichen</translation>
    </message>
    <message>
        <source>What stands between two numbers of a line</source>
        <translation>Was zwischen zwei Zahlen einer Zeile steht</translation>
    </message>
    <message>
        <source>(blank space)</source>
        <translation>(Leerzeichen)</translation>
    </message>
</context>
<context>
    <name>talvesk::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Len&amp;gth unit:</source>
        <translation>Län&amp;geneinheit:</translation>
    </message>
    <message>
        <source>What lengths and velocities are shown and asked for in. Files stay in metres.</source>
        <translation>Worin Längen und Geschwindigkeiten gezeigt und erfragt werden. Dateien bleiben in Metern.</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>feet (0.3048 m)</source>
        <translation>Fuß (0,3048 m)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Wiggles füllen</translation>
    </message>
    <message>
        <source>Fills the positive half of every wiggle.</source>
        <translation>Füllt die positive Hälfte jeder Schwingung.</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Zwei Farben</translation>
    </message>
    <message>
        <source>Fills the two halves of every wiggle in two colours.</source>
        <translation>Füllt die beiden Hälften jeder Schwingung mit zwei Farben.</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>An der Nachbarspur abschneiden</translation>
    </message>
    <message>
        <source>Ends every wiggle where the next trace begins. Otherwise strong wiggles run over their neighbours.</source>
        <translation>Lässt jede Schwingung enden, wo die nächste Spur beginnt. Sonst laufen starke Schwingungen über die Nachbarspuren.</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Gefilterte Spuren anzeigen</translation>
    </message>
    <message>
        <source>Shows the filtered copy of the traces where there is one. AutoPick then picks on it.</source>
        <translation>Zeigt die gefilterte Kopie der Spuren, wo es eine gibt. AutoPick pickt dann auf ihr.</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Opens shots at the part of the record that holds the first breaks.</source>
        <translation>Öffnet Schüsse an dem Teil der Aufzeichnung, der die Ersteinsätze enthält.</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Alle Spuren anzeigen</translation>
    </message>
    <message>
        <source>Zoom in on first breaks</source>
        <translation>Auf Ersteinsätze zoomen</translation>
    </message>
    <message>
        <source>Opens shots with all traces in view, however narrow. AutoPick, Filter, AGC and Apply Hushel then work on all shots.</source>
        <translation>Öffnet Schüsse mit allen Spuren im Bild, wie schmal sie auch sind. „AutoPick“, „Filter“, „AGC“ und „Hushel anwenden“ wirken dann auf alle Schüsse.</translation>
    </message>
    <message>
        <source>Horizontal scalarbar</source>
        <translation>Waagrechte Farbskala</translation>
    </message>
    <message>
        <source>Puts the scalarbar of saved pictures above the section, not beside it.</source>
        <translation>Setzt die Farbskala gespeicherter Bilder über den Schnitt statt daneben.</translation>
    </message>
    <message>
        <source>&amp;Memory for undo:</source>
        <translation>Speicher für &amp;Rückgängig:</translation>
    </message>
    <message>
        <source>When the steps that can be undone need more, the oldest go.</source>
        <translation>Brauchen die Schritte, die sich rückgängig machen lassen, mehr, so entfallen die ältesten.</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>&amp;Keep samples on disk:</source>
        <translation>Abtastwerte auf &amp;Datenträger halten:</translation>
    </message>
    <message>
        <source>Of surveys that are larger than memory. What is open stays where it is until it is opened again.</source>
        <translation>Für Messungen, die größer sind als der Speicher. Was geöffnet ist, bleibt, wo es ist, bis es erneut geöffnet wird.</translation>
    </message>
    <message>
        <source>When they fill a quarter of the memory</source>
        <translation>Wenn sie ein Viertel des Speichers füllen</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotFileDialog</name>
    <message>
        <source>the program&apos;s rules</source>
        <translation>den Regeln des Programms</translation>
    </message>
    <message>
        <source>the standard</source>
        <translation>dem Standard</translation>
    </message>
    <message>
        <source>The program&apos;s rules read shot files as this program always has. The standard reads what their content says, whatever their suffix: other sample formats and byte orders, scaled coordinates, delays, files of several shots.</source>
        <translation>Die Regeln des Programms lesen Schussdateien wie seit jeher. Der Standard liest, was ihr Inhalt sagt, gleich mit welcher Endung: weitere Abtastformate und Bytereihenfolgen, skalierte Koordinaten, Verzögerungen, Dateien mit mehreren Schüssen.</translation>
    </message>
    <message>
        <source>&amp;Read shot files by:</source>
        <translation>Schussdateien &amp;lesen nach:</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotTable</name>
    <message>
        <source>String</source>
        <translation>Auslage</translation>
    </message>
    <message>
        <source>x (m)</source>
        <translation>x (m)</translation>
    </message>
    <message>
        <source>Elevation (m)</source>
        <translation>Höhe (m)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>DX file</source>
        <translation>DX-Datei</translation>
    </message>
    <message>
        <source>SX file</source>
        <translation>SX-Datei</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 ist zu weit entfernt.</translation>
    </message>
    <message>
        <source>There is no string %1.</source>
        <translation>Es gibt keine Auslage %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::SpectrumPlot</name>
    <message>
        <source>Amplitude spectrum</source>
        <translation>Amplitudenspektrum</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
</context>
<context>
    <name>talvesk::SpreadsheetView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Empty cells</source>
        <translation>Zellen &amp;leeren</translation>
    </message>
    <message>
        <source>Fill &amp;down</source>
        <translation>Nach &amp;unten ausfüllen</translation>
    </message>
    <message>
        <source>&amp;Insert a row above</source>
        <translation>&amp;Zeile darüber einfügen</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>Zeilen ent&amp;fernen</translation>
    </message>
</context>
<context>
    <name>talvesk::StartLayersDialog</name>
    <message>
        <source>Start from layers</source>
        <translation>Mit Schichten beginnen</translation>
    </message>
    <message>
        <source>Gives every cell of the grid the velocity of the layer of the profile that its middle lies in.</source>
        <translation>Gibt jeder Zelle des Gitters die Geschwindigkeit der Schicht des Profils, in der ihre Mitte liegt.</translation>
    </message>
    <message>
        <source>&amp;Sharp layers</source>
        <translation>&amp;Scharfe Schichtgrenzen</translation>
    </message>
    <message>
        <source>Spreads the jump from layer to layer evenly, half of it above the refractor and half below</source>
        <translation>Verteilt den Sprung von Schicht zu Schicht gleichmäßig, zur Hälfte über dem Refraktor und zur Hälfte darunter</translation>
    </message>
    <message>
        <source>&amp;Graded over a thickness of</source>
        <translation>&amp;Gleichmäßiger Übergang über</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Mächtigkeit eines Übergangs</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Die Ergebnisse der letzten Inversion werden entfernt („Rückgängig“ bringt sie zurück).</translation>
    </message>
</context>
<context>
    <name>talvesk::StepTexts</name>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Grid and start</source>
        <translation>Gitter und Start</translation>
    </message>
    <message>
        <source>Inversion</source>
        <translation>Inversion</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>zweifelhaft</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>step, reason</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>talvesk::StoppingProgress</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Wird angehalten ...</translation>
    </message>
    <message>
        <source>Stopping: %1</source>
        <comment>work</comment>
        <translation>Wird angehalten: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::SurveyedPointsTable</name>
    <message>
        <source>Shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Geophon %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>row of a table</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line, name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Row</source>
        <comment>of a table</comment>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Across
(m)</source>
        <translation>Quer
(m)</translation>
    </message>
    <message>
        <source>x before
(m)</source>
        <translation>x vorher
(m)</translation>
    </message>
    <message>
        <source>x
(m)</source>
        <translation>x
(m)</translation>
    </message>
    <message>
        <source>change
(m)</source>
        <translation>Änderung
(m)</translation>
    </message>
    <message>
        <source>z before
(m)</source>
        <translation>z vorher
(m)</translation>
    </message>
    <message>
        <source>z
(m)</source>
        <translation>z
(m)</translation>
    </message>
</context>
<context>
    <name>talvesk::SurveyedPositionsDialog</name>
    <message>
        <source>Surveyed positions</source>
        <translation>Vermessene Positionen</translation>
    </message>
    <message>
        <source>&amp;Other table ...</source>
        <translation>&amp;Andere Tabelle ...</translation>
    </message>
    <message>
        <source>First rows of the table</source>
        <translation>Erste Zeilen der Tabelle</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Spalten der Tabelle</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>T&amp;rennzeichen</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>&amp;Coordinates</source>
        <translation>K&amp;oordinaten</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Column of names</source>
        <translation>Spalte der Namen</translation>
    </message>
    <message>
        <source>Eas&amp;ting</source>
        <translation>Ost&amp;wert</translation>
    </message>
    <message>
        <source>Column of eastings or longitudes</source>
        <translation>Spalte der Ostwerte oder Längengrade</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>Ar&amp;t</translation>
    </message>
    <message>
        <source>Column of kinds</source>
        <translation>Spalte der Arten</translation>
    </message>
    <message>
        <source>No&amp;rthing</source>
        <translation>Nor&amp;dwert</translation>
    </message>
    <message>
        <source>Column of northings or latitudes</source>
        <translation>Spalte der Nordwerte oder Breitengrade</translation>
    </message>
    <message>
        <source>Ele&amp;vation</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>Column of elevations</source>
        <translation>Spalte der Höhen</translation>
    </message>
    <message>
        <source>EPS&amp;G code</source>
        <translation>EPSG-&amp;Code</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>EPSG-Code</translation>
    </message>
    <message>
        <source>The code of the reference system of easting and northing, for example 32632 for UTM zone 32 N. Without it the line gets no place on the map. Longitude and latitude are projected into it, without a code into their UTM zone.</source>
        <translation>Der Code des Referenzsystems von Ostwert und Nordwert, zum Beispiel 32632 für UTM-Zone 32 N. Ohne ihn erhält die Messlinie keine Lage auf der Karte. Längengrad und Breitengrad werden in dieses System projiziert, ohne Code in ihre UTM-Zone.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Messlinie</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Messlinie</translation>
    </message>
    <message>
        <source>Shape of the line</source>
        <translation>Form der Messlinie</translation>
    </message>
    <message>
        <source>Lengt&amp;h</source>
        <translation>Län&amp;ge</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Länge entlang der Messlinie</translation>
    </message>
    <message>
        <source>Names &amp;are</source>
        <translation>Namen &amp;sind</translation>
    </message>
    <message>
        <source>What names are</source>
        <translation>Was die Namen sind</translation>
    </message>
    <message>
        <source>First &amp;distance</source>
        <translation>Erste &amp;Entfernung</translation>
    </message>
    <message>
        <source>Distance of the first geophone</source>
        <translation>Entfernung des ersten Geophons</translation>
    </message>
    <message>
        <source>Distance of the first geophone that was surveyed (m). Empty: as it is now.</source>
        <translation>Entfernung des ersten vermessenen Geophons (m). Leer: wie bisher.</translation>
    </message>
    <message>
        <source>Count from the other &amp;end</source>
        <translation>Vom anderen Ende &amp;zählen</translation>
    </message>
    <message>
        <source>&amp;Positions</source>
        <translation>&amp;Positionen</translation>
    </message>
    <message>
        <source>Positions before and after</source>
        <translation>Positionen vorher und nachher</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Karte</translation>
    </message>
    <message>
        <source>Geophones and shots from above</source>
        <translation>Geophone und Schüsse von oben</translation>
    </message>
    <message>
        <source>O&amp;ffsets</source>
        <translation>Q&amp;uerabstände</translation>
    </message>
    <message>
        <source>Offsets across the line</source>
        <translation>Abstände quer zur Messlinie</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>Zu prüfen</translation>
    </message>
    <message>
        <source>as in the table</source>
        <translation>wie in der Tabelle</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Easting, northing</source>
        <translation>Ostwert, Nordwert</translation>
    </message>
    <message>
        <source>Longitude, latitude</source>
        <translation>Längengrad, Breitengrad</translation>
    </message>
    <message>
        <source>Straight, fitted to the geophones</source>
        <translation>Gerade, an die Geophone angepasst</translation>
    </message>
    <message>
        <source>Straight, from the first geophone to the last one</source>
        <translation>Gerade, vom ersten zum letzten Geophon</translation>
    </message>
    <message>
        <source>Bent, from geophone to geophone</source>
        <translation>Geknickt, von Geophon zu Geophon</translation>
    </message>
    <message>
        <source>Horizontal, as on the map</source>
        <translation>Horizontal, wie auf der Karte</translation>
    </message>
    <message>
        <source>Along the ground, on slopes</source>
        <translation>Entlang des Geländes, an Hängen</translation>
    </message>
    <message>
        <source>numbers of geophones and shots, from 1</source>
        <translation>Nummern der Geophone und Schüsse, ab 1</translation>
    </message>
    <message>
        <source>without a meaning: rows are in order</source>
        <translation>ohne Bedeutung: Die Zeilen sind geordnet</translation>
    </message>
    <message>
        <source>distances along the line as it is now</source>
        <translation>Entfernungen entlang der bisherigen Messlinie</translation>
    </message>
    <message>
        <source>none</source>
        <comment>column of a table</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>column, name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Longi&amp;tude</source>
        <translation>&amp;Längengrad</translation>
    </message>
    <message>
        <source>Latit&amp;ude</source>
        <translation>&amp;Breitengrad</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of the table have no position and are not used.</source>
        <translation>
            <numerusform>%n Zeile der Tabelle hat keine Position und wird nicht verwendet.</numerusform>
            <numerusform>%n Zeilen der Tabelle haben keine Position und werden nicht verwendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>With a row: %1 of %2 geophones, %3 of %4 shots. Geophones stand %5 across the line (RMS), at most %6 (%7); their spacing is %8.</source>
        <translation>Mit Zeile: %1 von %2 Geophonen, %3 von %4 Schüssen. Die Geophone stehen %5 (RMS) neben der Messlinie, höchstens %6 (%7); ihr Abstand ist %8.</translation>
    </message>
    <message>
        <source>No reference system</source>
        <translation>Kein Referenzsystem</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>%1: the zone of the first place</source>
        <translation>%1: die Zone der ersten Stelle</translation>
    </message>
    <message>
        <source>Without an EPSG code the place of the line on the map stays as it is now, where it may not fit any more.</source>
        <translation>Ohne EPSG-Code bleibt die Lage der Messlinie auf der Karte, wie sie ist; sie passt dann vielleicht nicht mehr.</translation>
    </message>
    <message>
        <source>Without an EPSG code the line gets no place on the map.</source>
        <translation>Ohne EPSG-Code erhält die Messlinie keine Lage auf der Karte.</translation>
    </message>
    <message>
        <source>On OK the line lies on the map from the first geophone to the last one, on the line that is shown.</source>
        <translation>Mit OK liegt die Messlinie auf der Karte vom ersten bis zum letzten Geophon, auf der gezeigten Linie.</translation>
    </message>
    <message numerus="yes">
        <source>On OK the line lies on the map along %n point(s), and KML follows it. Reports and the dialog of geographic coordinates give its two ends.</source>
        <translation>
            <numerusform>Mit OK liegt die Messlinie auf der Karte entlang von %n Punkt, und KML folgt ihr. Berichte und der Dialog der geographischen Koordinaten nennen ihre beiden Enden.</numerusform>
            <numerusform>Mit OK liegt die Messlinie auf der Karte entlang von %n Punkten, und KML folgt ihr. Berichte und der Dialog der geographischen Koordinaten nennen ihre beiden Enden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::TableTexts</name>
    <message>
        <source>The first line, &quot;%1&quot;, was taken for a heading and skipped.</source>
        <translation>Die erste Zeile, „%1“, wurde für eine Überschrift gehalten und übersprungen.</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot;</source>
        <translation>Zeile %1: „%2“</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiteres</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) of %1 that are no number were taken as 0.</source>
        <translation>
            <numerusform>%n Feld von %1, das keine Zahl ist, wurde als 0 genommen.</numerusform>
            <numerusform>%n Felder von %1, die keine Zahlen sind, wurden als 0 genommen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::Talvesk_MainWindows</name>
    <message>
        <source>Traces</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>&lt;h2&gt;No survey yet&lt;/h2&gt;&lt;p&gt;Open shot files with Ctrl+O, or drop them here.&lt;/p&gt;&lt;p&gt;Picks without traces come in with File &amp;gt; Import TravelTimes.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Noch keine Messung&lt;/h2&gt;&lt;p&gt;Öffnen Sie Schussdateien mit Strg+O oder ziehen Sie sie hierher.&lt;/p&gt;&lt;p&gt;Picks ohne Spuren laden Sie mit Datei &amp;gt; Laufzeiten importieren.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Traces and picks of the current shot</source>
        <translation>Spuren und Picks des aktuellen Schusses</translation>
    </message>
    <message>
        <source>Traces and picks, second view</source>
        <translation>Spuren und Picks, zweite Ansicht</translation>
    </message>
    <message>
        <source>Travel times of the current shot</source>
        <translation>Laufzeiten des aktuellen Schusses</translation>
    </message>
    <message>
        <source>Draw the picks of the other shots faintly over the traces</source>
        <translation>Zeichnet die Picks der anderen Schüsse blass über die Spuren</translation>
    </message>
    <message>
        <source>Show All Picks</source>
        <translation>Alle Picks anzeigen</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one</source>
        <translation>Zeigt die gefilterte Kopie der Spuren, wo es eine gibt</translation>
    </message>
    <message>
        <source>Show Filtered Traces</source>
        <translation>Gefilterte Spuren anzeigen</translation>
    </message>
    <message>
        <source>Hide the picks and the travel-time preview</source>
        <translation>Blendet die Picks und die Laufzeitvorschau aus</translation>
    </message>
    <message>
        <source>Show Only Traces</source>
        <translation>Nur Spuren anzeigen</translation>
    </message>
    <message>
        <source>Draw the times that the last inversion computed</source>
        <translation>Zeichnet die von der letzten Inversion berechneten Zeiten</translation>
    </message>
    <message>
        <source>Show computed Travel Times</source>
        <translation>Berechnete Laufzeiten anzeigen</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Laufzeitkurven</translation>
    </message>
    <message>
        <source>Travel time curves of all shots</source>
        <translation>Laufzeitkurven aller Schüsse</translation>
    </message>
    <message>
        <source>Tomographic profile</source>
        <translation>Tomographischer Schnitt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;KML</source>
        <translation>&amp;KML</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Show Velocity Gradient</source>
        <translation>Geschwindigkeitsgradient anzeigen</translation>
    </message>
    <message>
        <source>Show Geophones</source>
        <translation>Geophone anzeigen</translation>
    </message>
    <message>
        <source>&amp;Traces</source>
        <translation>&amp;Spuren</translation>
    </message>
    <message>
        <source>Picks of the selected traces</source>
        <translation>Picks der ausgewählten Spuren</translation>
    </message>
    <message>
        <source>Mouse tool</source>
        <translation>Mauswerkzeug</translation>
    </message>
    <message>
        <source>Snap picks to</source>
        <translation>Picks einrasten auf</translation>
    </message>
    <message>
        <source>Wiggles</source>
        <translation>Wiggles</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>P&amp;rocessing</source>
        <translation>&amp;Verarbeitung</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Neu...</translation>
    </message>
    <message>
        <source>Import TravelTimes...</source>
        <translation>Laufzeiten importieren...</translation>
    </message>
    <message>
        <source>Load traveltimes</source>
        <translation>Lädt Laufzeiten</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Glättung anwenden</translation>
    </message>
    <message>
        <source>Smooth the velocities of the section once more</source>
        <translation>Glättet die Geschwindigkeiten des Schnitts noch einmal</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Tomographische Inversion starten</translation>
    </message>
    <message>
        <source>Invert the picks into a velocity section</source>
        <translation>Invertiert die Picks zu einem Geschwindigkeitsschnitt</translation>
    </message>
    <message>
        <source>Grid view</source>
        <translation>Zellenansicht</translation>
    </message>
    <message>
        <source>Draw the section cell by cell</source>
        <translation>Zeichnet den Schnitt Zelle für Zelle</translation>
    </message>
    <message>
        <source>Smooth view</source>
        <translation>Fließende Ansicht</translation>
    </message>
    <message>
        <source>Draw the section with velocities blended between cells</source>
        <translation>Zeichnet den Schnitt mit fließenden Übergängen zwischen den Zellen</translation>
    </message>
    <message>
        <source>Export tomographic data ...</source>
        <translation>Tomographische Daten exportieren ...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>Show the next seismic file</source>
        <translation>Zeigt die nächste seismische Datei</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Voriger</translation>
    </message>
    <message>
        <source>Show the previous file</source>
        <translation>Zeigt die vorige Datei</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Modellgeschwindigkeit festlegen</translation>
    </message>
    <message>
        <source>Set the layers and velocities that the inversion starts from</source>
        <translation>Legt die Schichten und Geschwindigkeiten fest, mit denen die Inversion beginnt</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Projekt öffnen...</translation>
    </message>
    <message>
        <source>Open a project with its shots, picks and section</source>
        <translation>Öffnet ein Projekt mit Schüssen, Picks und Schnitt</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Projekt speichern unter...</translation>
    </message>
    <message>
        <source>Save the project in a file of another name</source>
        <translation>Speichert das Projekt in einer Datei mit anderem Namen</translation>
    </message>
    <message>
        <source>Images ...</source>
        <translation>Bilder ...</translation>
    </message>
    <message>
        <source>Save pictures of the section, the curves and the traces</source>
        <translation>Speichert Bilder des Schnitts, der Kurven und der Spuren</translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation>AutoPick</translation>
    </message>
    <message>
        <source>Pick the first breaks of the current shot, or of all shots when all traces are shown</source>
        <translation>Pickt die Ersteinsätze des aktuellen Schusses oder aller Schüsse, wenn alle Spuren angezeigt werden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Talvesk</translation>
    </message>
    <message>
        <source>Version, libraries and licence of Talvesk</source>
        <translation>Version, Bibliotheken und Lizenz von Talvesk</translation>
    </message>
    <message>
        <source>Geometry ...</source>
        <translation>Geometrie ...</translation>
    </message>
    <message>
        <source>Set the positions of geophones and shots</source>
        <translation>Legt die Positionen von Geophonen und Schüssen fest</translation>
    </message>
    <message>
        <source>Grid ...</source>
        <translation>Gitter ...</translation>
    </message>
    <message>
        <source>Lay the grid of the tomography under the line</source>
        <translation>Legt das Gitter der Tomographie unter die Messlinie</translation>
    </message>
    <message>
        <source>PDF ...</source>
        <translation>PDF ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as PDF</source>
        <translation>Schreibt einen Bericht der Messung als PDF</translation>
    </message>
    <message>
        <source>Palette Options...</source>
        <translation>Palettenoptionen...</translation>
    </message>
    <message>
        <source>Choose the colours of the section</source>
        <translation>Wählt die Farben des Schnitts</translation>
    </message>
    <message>
        <source>ODT...</source>
        <translation>ODT...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a text document</source>
        <translation>Schreibt einen Bericht der Messung als Textdokument</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Close Talvesk</source>
        <translation>Beendet Talvesk</translation>
    </message>
    <message>
        <source>On line help</source>
        <translation>Online-Hilfe</translation>
    </message>
    <message>
        <source>Open the help pages on the web, or the user guide without a network</source>
        <translation>Öffnet die Hilfeseiten im Web, ohne Netz das Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Show Rays</source>
        <translation>Strahlen anzeigen</translation>
    </message>
    <message>
        <source>Overlay the seismic rays to profile</source>
        <translation>Zeichnet die seismischen Strahlen über den Schnitt</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Wiggles füllen</translation>
    </message>
    <message>
        <source>Fill the positive half of every wiggle</source>
        <translation>Füllt die positive Hälfte jeder Schwingung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Language, trace view and image options</source>
        <translation>Sprache, Spuransicht und Bildoptionen</translation>
    </message>
    <message>
        <source>Show Contour Lines</source>
        <translation>Isolinien anzeigen</translation>
    </message>
    <message>
        <source>Draw lines of equal velocity over the section</source>
        <translation>Zeichnet Linien gleicher Geschwindigkeit über den Schnitt</translation>
    </message>
    <message>
        <source>Set geographic coordinates ...</source>
        <translation>Geographische Koordinaten ...</translation>
    </message>
    <message>
        <source>Say where the first and the last geophone lie on the map</source>
        <translation>Gibt an, wo das erste und das letzte Geophon auf der Karte liegen</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Ansicht zurücksetzen</translation>
    </message>
    <message>
        <source>Bring the whole section back into view</source>
        <translation>Bringt den ganzen Schnitt wieder ins Bild</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Speichert das Projekt</translation>
    </message>
    <message>
        <source>Vertical Gradient</source>
        <translation>Vertikaler Gradient</translation>
    </message>
    <message>
        <source>Show how fast the velocity grows with depth</source>
        <translation>Zeigt, wie schnell die Geschwindigkeit mit der Tiefe zunimmt</translation>
    </message>
    <message>
        <source>Laplacian Gradient</source>
        <translation>Laplace-Gradient</translation>
    </message>
    <message>
        <source>Show where the velocity changes most abruptly</source>
        <translation>Zeigt, wo sich die Geschwindigkeit am schroffsten ändert</translation>
    </message>
    <message>
        <source>Show Tomographic Profile</source>
        <translation>Tomographischen Schnitt anzeigen</translation>
    </message>
    <message>
        <source>Show the velocity section</source>
        <translation>Zeigt den Geschwindigkeitsschnitt</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Open the guide that comes with Talvesk</source>
        <translation>Öffnet das mit Talvesk gelieferte Handbuch</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation>Filter...</translation>
    </message>
    <message>
        <source>Filter the traces of the current shot by frequency, with spectrum and preview</source>
        <translation>Filtert die Spuren des aktuellen Schusses nach Frequenz, mit Spektrum und Vorschau</translation>
    </message>
    <message>
        <source>Apply Hushel</source>
        <translation>Hushel anwenden</translation>
    </message>
    <message>
        <source>Apply Hushel - The Noise Reduction tool for seismic refraction data</source>
        <translation>Hushel anwenden - die Rauschminderung für refraktionsseismische Daten</translation>
    </message>
    <message>
        <source>AGC</source>
        <translation>AGC</translation>
    </message>
    <message>
        <source>Even out the amplitudes of the traces (automatic gain control)</source>
        <translation>Gleicht die Amplituden der Spuren aus (automatische Verstärkungsregelung)</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Refraktion</translation>
    </message>
    <message>
        <source>Interpret the picks layer by layer with the reciprocal method</source>
        <translation>Wertet die Picks Schicht für Schicht mit der Reziprokmethode aus</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Draw small geophones on the section</source>
        <translation>Zeichnet kleine Geophone auf den Schnitt</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Draw geophones of normal size on the section</source>
        <translation>Zeichnet Geophone normaler Größe auf den Schnitt</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>Draw large geophones on the section</source>
        <translation>Zeichnet große Geophone auf den Schnitt</translation>
    </message>
    <message>
        <source>Show refraction</source>
        <translation>Refraktion anzeigen</translation>
    </message>
    <message>
        <source>Overlay the refractors of the layered interpretation</source>
        <translation>Zeichnet die Refraktoren der Schichtauswertung über den Schnitt</translation>
    </message>
    <message>
        <source>Show scalarbar</source>
        <translation>Farbskala anzeigen</translation>
    </message>
    <message>
        <source>Show the colour scale beside the section</source>
        <translation>Zeigt die Farbskala neben dem Schnitt</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Take a Screenshot of the tomographic profile</source>
        <translation>Nimmt ein Bildschirmfoto des tomographischen Schnitts auf</translation>
    </message>
    <message>
        <source>Export TravelTimes...</source>
        <translation>Laufzeiten exportieren...</translation>
    </message>
    <message>
        <source>Write picks and positions to a travel-time file</source>
        <translation>Schreibt Picks und Positionen in eine Laufzeitdatei</translation>
    </message>
    <message>
        <source>Show Information Density Layer</source>
        <translation>Informationsdichte anzeigen</translation>
    </message>
    <message>
        <source>Show Grid Lines</source>
        <translation>Gitterlinien anzeigen</translation>
    </message>
    <message>
        <source>Draw distance and depth lines over the section</source>
        <translation>Zeichnet Entfernungs- und Tiefenlinien über den Schnitt</translation>
    </message>
    <message>
        <source>Set title ...</source>
        <translation>Titel festlegen ...</translation>
    </message>
    <message>
        <source>Set prject title</source>
        <translation>Legt den Titel des Projekts fest</translation>
    </message>
    <message>
        <source>Show title ...</source>
        <translation>Titel anzeigen ...</translation>
    </message>
    <message>
        <source>Write the project title over the section</source>
        <translation>Schreibt den Projekttitel über den Schnitt</translation>
    </message>
    <message>
        <source>Tomography to text file ...</source>
        <translation>Tomographie in Textdatei ...</translation>
    </message>
    <message>
        <source>Export tomography as a XYZVelocity gridded text file</source>
        <translation>Exportiert die Tomographie als gerasterte Textdatei XYZGeschwindigkeit</translation>
    </message>
    <message>
        <source>Tomographic profile ...</source>
        <translation>Tomographischer Schnitt ...</translation>
    </message>
    <message>
        <source>Export the section to KML, standing on the globe</source>
        <translation>Exportiert den Schnitt als KML, stehend auf dem Globus</translation>
    </message>
    <message>
        <source>Seismic line ...</source>
        <translation>Seismische Messlinie ...</translation>
    </message>
    <message>
        <source>Export seismic line to KML</source>
        <translation>Exportiert die seismische Messlinie als KML</translation>
    </message>
    <message>
        <source>Open shot files...</source>
        <translation>Schussdateien öffnen...</translation>
    </message>
    <message>
        <source>Add shot files (SEG-2, SEG-Y, SU) to the survey</source>
        <translation>Fügt der Messung Schussdateien (SEG-2, SEG-Y, SU) hinzu</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last edit of the picks</source>
        <translation>Macht die letzte Änderung der Picks rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Do again the edit that was taken back</source>
        <translation>Führt die rückgängig gemachte Änderung erneut aus</translation>
    </message>
    <message>
        <source>Open shots at the part of the record that holds the first breaks</source>
        <translation>Öffnet Schüsse an dem Teil der Aufzeichnung, der die Ersteinsätze enthält</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>An der Nachbarspur abschneiden</translation>
    </message>
    <message>
        <source>End every wiggle where the next trace begins</source>
        <translation>Lässt jede Schwingung enden, wo die nächste Spur beginnt</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Zwei Farben</translation>
    </message>
    <message>
        <source>Fill the two halves of every wiggle in two colours</source>
        <translation>Füllt die beiden Hälften jeder Schwingung mit zwei Farben</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Gefilterte Spuren anzeigen</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one; AutoPick then picks on it</source>
        <translation>Zeigt die gefilterte Kopie der Spuren, wo es eine gibt; AutoPick pickt dann auf ihr</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Alle Spuren anzeigen</translation>
    </message>
    <message>
        <source>Open shots with all traces in view; AutoPick, Filter, AGC and Hushel then work on all shots</source>
        <translation>Öffnet Schüsse mit allen Spuren im Bild; AutoPick, Filter, AGC und Hushel wirken dann auf alle Schüsse</translation>
    </message>
    <message>
        <source>At true distance</source>
        <translation>In wahrer Entfernung</translation>
    </message>
    <message>
        <source>Place the traces at their distance along the line, not one beside the other</source>
        <translation>Setzt die Spuren an ihre Entfernung entlang der Messlinie statt dicht nebeneinander</translation>
    </message>
    <message>
        <source>True amplitudes</source>
        <translation>Wahre Amplituden</translation>
    </message>
    <message>
        <source>Keep the amplitudes of a shot in proportion; otherwise every trace is as wide as the others</source>
        <translation>Erhält die Amplitudenverhältnisse eines Schusses; sonst ist jede Spur so breit wie die anderen</translation>
    </message>
    <message>
        <source>Air wave</source>
        <translation>Luftschall</translation>
    </message>
    <message>
        <source>Draw the line of the sound that travels through the air</source>
        <translation>Zeichnet die Linie des Schalls, der durch die Luft läuft</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>Enlarge what is around the cursor (key M)</source>
        <translation>Vergrößert die Umgebung des Mauszeigers (Taste M)</translation>
    </message>
    <message>
        <source>Larger wiggles</source>
        <translation>Größere Wiggles</translation>
    </message>
    <message>
        <source>Raise the gain (key ])</source>
        <translation>Erhöht die Verstärkung (Taste ])</translation>
    </message>
    <message>
        <source>Smaller wiggles</source>
        <translation>Kleinere Wiggles</translation>
    </message>
    <message>
        <source>Lower the gain (key [)</source>
        <translation>Verringert die Verstärkung (Taste [)</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Picken</translation>
    </message>
    <message>
        <source>Click sets a pick, dragging moves it or draws a run of picks, right click removes it</source>
        <translation>Klicken setzt einen Pick, Ziehen verschiebt ihn oder zeichnet eine Reihe von Picks, Rechtsklick entfernt ihn</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it</source>
        <translation>Ein Rechteck aufziehen, um darauf zu zoomen</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Das Bild mit der Maus verschieben</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Drag a line to read its apparent velocity (key R)</source>
        <translation>Eine Linie ziehen, um ihre Scheingeschwindigkeit abzulesen (Taste R)</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Drag over traces to confirm or remove their picks together</source>
        <translation>Über Spuren ziehen, um ihre Picks gemeinsam zu bestätigen oder zu entfernen</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Picks stay where they are set</source>
        <translation>Picks bleiben, wo sie gesetzt werden</translation>
    </message>
    <message>
        <source>Onset</source>
        <translation>Signaleinsatz</translation>
    </message>
    <message>
        <source>Draw picks to where the noise ends</source>
        <translation>Zieht Picks dorthin, wo das Rauschen endet</translation>
    </message>
    <message>
        <source>Zero crossing</source>
        <translation>Nulldurchgang</translation>
    </message>
    <message>
        <source>Draw picks to the nearest change of sign</source>
        <translation>Zieht Picks zum nächsten Vorzeichenwechsel</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Extremwert</translation>
    </message>
    <message>
        <source>Draw picks to the strongest peak or trough nearby</source>
        <translation>Zieht Picks zum stärksten Maximum oder Minimum in der Nähe</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Picks bestätigen</translation>
    </message>
    <message>
        <source>Make the automatic picks of the selected traces your own (key C)</source>
        <translation>Übernimmt die automatischen Picks der ausgewählten Spuren als eigene (Taste C)</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Picks entfernen</translation>
    </message>
    <message>
        <source>Remove the picks of the selected traces (key Delete)</source>
        <translation>Entfernt die Picks der ausgewählten Spuren (Taste Entf)</translation>
    </message>
    <message>
        <source>Remove unconfirmed picks</source>
        <translation>Unbestätigte Picks entfernen</translation>
    </message>
    <message>
        <source>Remove the automatic picks of the selected traces that were not confirmed</source>
        <translation>Entfernt die nicht bestätigten automatischen Picks der ausgewählten Spuren</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Alles anzeigen</translation>
    </message>
    <message>
        <source>Show all traces and all times (key F)</source>
        <translation>Zeigt alle Spuren und alle Zeiten (Taste F)</translation>
    </message>
    <message>
        <source>Previous view</source>
        <translation>Vorige Ansicht</translation>
    </message>
    <message>
        <source>Go back to the view before the last zoom (key Backspace)</source>
        <translation>Kehrt zur Ansicht vor dem letzten Zoomen zurück (Rücktaste)</translation>
    </message>
    <message>
        <source>Next view</source>
        <translation>Nächste Ansicht</translation>
    </message>
    <message>
        <source>Go forward again after going back (keys Shift+Backspace)</source>
        <translation>Geht nach dem Zurückgehen wieder vorwärts (Umschalt+Rücktaste)</translation>
    </message>
    <message>
        <source>Recording details...</source>
        <translation>Aufzeichnungsdetails...</translation>
    </message>
    <message>
        <source>What the shot files hold: samples, interval, delay, positions, warnings</source>
        <translation>Was die Schussdateien enthalten: Abtastwerte, Intervall, Verzögerung, Positionen, Warnungen</translation>
    </message>
    <message>
        <source>Shot in view</source>
        <translation>Angezeigter Schuss</translation>
    </message>
    <message>
        <source>The shot in view</source>
        <translation>Der angezeigte Schuss</translation>
    </message>
    <message>
        <source>Open Seismic Trace</source>
        <translation>Seismische Spuren öffnen</translation>
    </message>
    <message>
        <source>Loading shot files ...</source>
        <translation>Schussdateien werden geladen ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Unsupported file format.</source>
        <translation>Dateiformat nicht unterstützt.</translation>
    </message>
    <message>
        <source>Error while loading one or more traces.</source>
        <translation>Fehler beim Laden einer oder mehrerer Spuren.</translation>
    </message>
    <message numerus="yes">
        <source>%n shot file(s) loaded.</source>
        <translation>
            <numerusform>%n Schussdatei geladen.</numerusform>
            <numerusform>%n Schussdateien geladen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Travel times of %n shot(s) imported.</source>
        <translation>
            <numerusform>Laufzeiten von %n Schuss importiert.</numerusform>
            <numerusform>Laufzeiten von %n Schüssen importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>First breaks found on %1 of %2 traces.</source>
        <translation>Ersteinsätze auf %1 von %2 Spuren gefunden.</translation>
    </message>
    <message>
        <source>Filtered copies made of %1 of %2 traces.</source>
        <translation>Gefilterte Kopien von %1 von %2 Spuren erstellt.</translation>
    </message>
    <message numerus="yes">
        <source>%n with warnings, see Traces &gt; Recording details.</source>
        <translation>
            <numerusform>%n mit Warnungen, siehe Spuren &gt; Aufzeichnungsdetails.</numerusform>
            <numerusform>%n mit Warnungen, siehe Spuren &gt; Aufzeichnungsdetails.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording delay</source>
        <translation>Aufzeichnungsverzögerung</translation>
    </message>
    <message>
        <source>The records start before the shot, by up to %1 ms.</source>
        <translation>Die Aufzeichnungen beginnen bis zu %1 ms vor dem Schuss.</translation>
    </message>
    <message>
        <source>Do you want to count times from the shot? What was recorded before it is then dropped.</source>
        <translation>Möchten Sie die Zeiten ab dem Schuss zählen? Was davor aufgezeichnet wurde, wird dann verworfen.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) end before the shot and stay as recorded.</source>
        <translation>
            <numerusform>%n Spur endet vor dem Schuss und bleibt wie aufgezeichnet.</numerusform>
            <numerusform>%n Spuren enden vor dem Schuss und bleiben wie aufgezeichnet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import TravelTimes</source>
        <translation>Laufzeiten importieren</translation>
    </message>
    <message>
        <source>Error while loading %1.</source>
        <translation>Fehler beim Laden von %1.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>%1 was loaded with warnings.</source>
        <translation>%1 wurde mit Warnungen geladen.</translation>
    </message>
    <message>
        <source>Save TravelTimeExchange</source>
        <translation>Laufzeiten speichern</translation>
    </message>
    <message>
        <source>The travel times have not been saved.</source>
        <translation>Die Laufzeiten wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Travel times saved in %1</source>
        <translation>Laufzeiten in %1 gespeichert</translation>
    </message>
    <message>
        <source>The user guide is not where it was installed.</source>
        <translation>Das Benutzerhandbuch ist nicht dort, wo es installiert wurde.</translation>
    </message>
    <message>
        <source>Install Talvesk again to get it back.</source>
        <translation>Installieren Sie Talvesk erneut, um es zurückzubekommen.</translation>
    </message>
    <message>
        <source>Picking first breaks ...</source>
        <translation>Ersteinsätze werden gepickt ...</translation>
    </message>
    <message>
        <source>Not every shot could be picked.</source>
        <translation>Nicht jeder Schuss konnte gepickt werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n Spur bleibt, wie sie war.</numerusform>
            <numerusform>%n Spuren bleiben, wie sie waren.</numerusform>
        </translation>
    </message>
    <message>
        <source>Applying AGC ...</source>
        <translation>AGC wird angewendet ...</translation>
    </message>
    <message>
        <source>Applying Hushel ...</source>
        <translation>Hushel wird angewendet ...</translation>
    </message>
    <message>
        <source>Project title</source>
        <translation>Projekttitel</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <comment>shot number, file, place</comment>
        <translation>%1: %2 bei %3</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1: bei %2</translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation>Spur %1</translation>
    </message>
    <message>
        <source>Offset %1</source>
        <translation>Offset %1</translation>
    </message>
    <message>
        <source>Time %1 ms</source>
        <translation>Zeit %1 ms</translation>
    </message>
    <message>
        <source>Pick %1 ms (automatic)</source>
        <translation>Pick %1 ms (automatisch)</translation>
    </message>
    <message>
        <source>Pick %1 ms</source>
        <translation>Pick %1 ms</translation>
    </message>
    <message>
        <source>Amplitude %1</source>
        <translation>Amplitude %1</translation>
    </message>
    <message>
        <source>Talvesk 2022.0</source>
        <translation>Talvesk 2022.0</translation>
    </message>
    <message>
        <source>Zoom in on first breaks</source>
        <translation>Auf Ersteinsätze zoomen</translation>
    </message>
    <message>
        <source>Save travel-time curves</source>
        <translation>Laufzeitkurven speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf);;All Files (*)</source>
        <translation>Bilder (*.png *.svg *.pdf);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The picture has not been saved.</source>
        <translation>Das Bild wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Picture saved in %1</source>
        <translation>Bild in %1 gespeichert</translation>
    </message>
    <message>
        <source>Colour the section by how well rays cover it</source>
        <translation>Färbt den Schnitt danach, wie gut ihn Strahlen abdecken</translation>
    </message>
    <message>
        <source>No section yet</source>
        <translation>Noch kein Schnitt</translation>
    </message>
    <message>
        <source>Load shot files or travel times with the File menu first.</source>
        <translation>Laden Sie zuerst Schussdateien oder Laufzeiten über das Menü „Datei“.</translation>
    </message>
    <message>
        <source>Build a grid with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt;, then invert the picks with &lt;b&gt;Processing &amp;gt; Run tomography inversion&lt;/b&gt;.</source>
        <translation>Erstellen Sie ein Gitter mit &lt;b&gt;Projekt &amp;gt; Gitter ...&lt;/b&gt; und invertieren Sie dann die Picks mit &lt;b&gt;Verarbeitung &amp;gt; Tomographische Inversion starten&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>The grid has no cells</source>
        <translation>Das Gitter hat keine Zellen</translation>
    </message>
    <message>
        <source>Build another one with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt; and give it a depth greater than the cell size.</source>
        <translation>Erstellen Sie mit &lt;b&gt;Projekt &amp;gt; Gitter ...&lt;/b&gt; ein anderes, dessen Tiefe größer ist als die Zellengröße.</translation>
    </message>
    <message>
        <source>Nothing to draw</source>
        <translation>Nichts zu zeichnen</translation>
    </message>
    <message>
        <source>No cell of the grid has a value to show.</source>
        <translation>Keine Zelle des Gitters hat einen anzeigbaren Wert.</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Entfernung %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Höhe %1</translation>
    </message>
    <message>
        <source>Depth %1</source>
        <translation>Tiefe %1</translation>
    </message>
    <message>
        <source>Velocity %1</source>
        <translation>Geschwindigkeit %1</translation>
    </message>
    <message>
        <source>Gradient %1 1/s</source>
        <translation>Gradient %1 1/s</translation>
    </message>
    <message>
        <source>Laplacian %1 1/(%2·s)</source>
        <translation>Laplace %1 1/(%2·s)</translation>
    </message>
    <message>
        <source>Information density %1</source>
        <translation>Informationsdichte %1</translation>
    </message>
    <message>
        <source>Export the section as a gridded text file, heights counted from the highest ground</source>
        <translation>Exportiert den Schnitt als gerasterte Textdatei mit Höhen ab dem höchsten Geländepunkt</translation>
    </message>
    <message>
        <source>Section as VTK grid ...</source>
        <translation>Schnitt als VTK-Gitter ...</translation>
    </message>
    <message>
        <source>Export velocity, gradient and information density of the cells as a VTK unstructured grid</source>
        <translation>Exportiert Geschwindigkeit, Gradient und Informationsdichte der Zellen als unstrukturiertes VTK-Gitter</translation>
    </message>
    <message>
        <source>Section as Surfer grid ...</source>
        <translation>Schnitt als Surfer-Gitter ...</translation>
    </message>
    <message>
        <source>Export the velocities on a regular raster as a Surfer ASCII grid</source>
        <translation>Exportiert die Geschwindigkeiten auf einem regelmäßigen Raster als ASCII-Gitter für Surfer</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>In %1 gespeichert</translation>
    </message>
    <message>
        <source>The data have not been exported.</source>
        <translation>Die Daten wurden nicht exportiert.</translation>
    </message>
    <message>
        <source>Export Gridded Data</source>
        <translation>Gerasterte Daten exportieren</translation>
    </message>
    <message>
        <source>Save gridded tomographic velocity in a text file (*.txt);;All Files (*)</source>
        <translation>Gerasterte tomographische Geschwindigkeit als Textdatei (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export VTK Grid</source>
        <translation>VTK-Gitter exportieren</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;All Files (*)</source>
        <translation>Unstrukturiertes VTK-Gitter (*.vtu);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export Surfer Grid</source>
        <translation>Surfer-Gitter exportieren</translation>
    </message>
    <message>
        <source>Surfer ASCII grid (*.grd);;All Files (*)</source>
        <translation>ASCII-Gitter für Surfer (*.grd);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Die geographischen Koordinaten fehlen; die Daten können nicht als KML exportiert werden</translation>
    </message>
    <message>
        <source>Export Tomography to KML</source>
        <translation>Tomographie als KML exportieren</translation>
    </message>
    <message>
        <source>KML (*.kml);;All Files (*)</source>
        <translation>KML (*.kml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export Seismic Line to KML</source>
        <translation>Seismische Messlinie als KML exportieren</translation>
    </message>
    <message>
        <source>The geometry of the survey has changed.</source>
        <translation>Die Geometrie der Messung hat sich geändert.</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
Do you want to run refraction processing anyway? </source>
        <translation>Die Picks sind unvollständig. 
 
Möchten Sie die Refraktionsauswertung trotzdem starten? </translation>
    </message>
    <message>
        <source>Empty filename to be saved</source>
        <translation>Kein Dateiname zum Speichern angegeben</translation>
    </message>
    <message>
        <source>%1 already exists.</source>
        <translation>%1 ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>Something went wrong while saving project </source>
        <translation>Beim Speichern des Projekts ist etwas schiefgegangen: </translation>
    </message>
    <message>
        <source>WARNING: the project has NOT been saved.</source>
        <translation>WARNUNG: Das Projekt wurde NICHT gespeichert.</translation>
    </message>
    <message>
        <source>Project saved in %1</source>
        <translation>Projekt in %1 gespeichert</translation>
    </message>
    <message>
        <source>The project has been saved.</source>
        <translation>Das Projekt wurde gespeichert.</translation>
    </message>
    <message>
        <source>Error while loading traces: Invalid file format.</source>
        <translation>Fehler beim Laden der Spuren: ungültiges Dateiformat.</translation>
    </message>
    <message>
        <source>%1 is not a valid project.</source>
        <translation>%1 ist kein gültiges Projekt.</translation>
    </message>
    <message>
        <source>There is no file %1</source>
        <translation>Es gibt keine Datei %1</translation>
    </message>
    <message>
        <source>Project %1 loaded.</source>
        <translation>Projekt %1 geladen.</translation>
    </message>
    <message>
        <source>Load Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>No recovery copy can be saved; save the project yourself. %1</source>
        <translation>Es kann keine Wiederherstellungskopie gespeichert werden; speichern Sie das Projekt selbst. %1</translation>
    </message>
    <message>
        <source>A survey that was not saved yet is there as it was at %1. Do you want to open it?</source>
        <translation>Eine noch nicht gespeicherte Messung liegt im Stand vom %1 vor. Möchten Sie sie öffnen?</translation>
    </message>
    <message>
        <source>The project %1 is there as it was at %2. Do you want to open it?</source>
        <translation>Das Projekt %1 liegt im Stand vom %2 vor. Möchten Sie es öffnen?</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
</source>
        <translation>Die Geophone haben keine Geometrie! 
</translation>
    </message>
    <message>
        <source>Please set the position of geophones
</source>
        <translation>Bitte legen Sie die Positionen der Geophone fest
</translation>
    </message>
    <message>
        <source>Grid of %1 rows and %2 columns built.</source>
        <translation>Gitter mit %1 Zeilen und %2 Spalten erstellt.</translation>
    </message>
    <message>
        <source>The grid could not be built.</source>
        <translation>Das Gitter konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layers.</source>
        <translation>Das Gitter hat die Geschwindigkeiten der Schichten.</translation>
    </message>
    <message>
        <source>The grid could not be smoothed.</source>
        <translation>Das Gitter konnte nicht geglättet werden.</translation>
    </message>
    <message>
        <source>The velocities of the grid are smoothed.</source>
        <translation>Die Geschwindigkeiten des Gitters sind geglättet.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
</source>
        <translation>Die Picks sind unvollständig. 
 
</translation>
    </message>
    <message>
        <source>Do you want to run tomography inversion anyway? </source>
        <translation>Möchten Sie die tomographische Inversion trotzdem starten? </translation>
    </message>
    <message>
        <source>An inversion is under way; the survey cannot be edited.</source>
        <translation>Eine Inversion läuft; die Messung kann nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>Tomography inversion</source>
        <translation>Tomographische Inversion</translation>
    </message>
    <message>
        <source>The inversion is still running.</source>
        <translation>Die Inversion läuft noch.</translation>
    </message>
    <message>
        <source>Do you want to stop it when the iteration under way is completed, and close then?</source>
        <translation>Möchten Sie sie nach der laufenden Iteration anhalten und dann beenden?</translation>
    </message>
    <message>
        <source>The inversion could not be completed.</source>
        <translation>Die Inversion konnte nicht abgeschlossen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n external iteration(s) completed.</source>
        <translation>
            <numerusform>%n äußere Iteration abgeschlossen.</numerusform>
            <numerusform>%n äußere Iterationen abgeschlossen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Inversion results</source>
        <translation>Ergebnisse der Inversion</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) exist already.</source>
        <translation>
            <numerusform>%n Datei ist bereits vorhanden.</numerusform>
            <numerusform>%n Dateien sind bereits vorhanden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Do you want to replace them?</source>
        <translation>Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Writing pictures ...</source>
        <translation>Bilder werden geschrieben ...</translation>
    </message>
    <message>
        <source>%1 of %2 pictures have been saved.</source>
        <translation>%1 von %2 Bildern wurden gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) saved.</source>
        <translation>
            <numerusform>%n Bild gespeichert.</numerusform>
            <numerusform>%n Bilder gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save screenshot</source>
        <translation>Bildschirmfoto speichern</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;JPEG picture (*.jpg *.jpeg)</source>
        <translation>PNG-Bild (*.png);;JPEG-Bild (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>Save PDF report</source>
        <translation>PDF-Bericht speichern</translation>
    </message>
    <message>
        <source>PDF report (*.pdf)</source>
        <translation>PDF-Bericht (*.pdf)</translation>
    </message>
    <message>
        <source>Save ODT report</source>
        <translation>ODT-Bericht speichern</translation>
    </message>
    <message>
        <source>OpenDocument text (*.odt)</source>
        <translation>OpenDocument-Text (*.odt)</translation>
    </message>
    <message>
        <source>Writing the report ...</source>
        <translation>Bericht wird geschrieben ...</translation>
    </message>
    <message>
        <source>Stopped; nothing has been saved.</source>
        <translation>Angehalten; es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The file has not been saved.</source>
        <translation>Die Datei wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>The survey is recovered; it is not saved yet.</source>
        <translation>Die Messung ist wiederhergestellt; sie ist noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>Survey tool bar</source>
        <translation>Werkzeugleiste Messung</translation>
    </message>
    <message>
        <source>Traces tool bar</source>
        <translation>Werkzeugleiste Spuren</translation>
    </message>
    <message>
        <source>Set them with Project &gt; Set geographic coordinates ...</source>
        <translation>Geben Sie sie hier an: Projekt &gt; Geographische Koordinaten ...</translation>
    </message>
    <message>
        <source>Writing %1 ...</source>
        <translation>%1 wird geschrieben ...</translation>
    </message>
    <message>
        <source>Start a new survey: asks for shot files, which then take the place of this one</source>
        <translation>Beginnt eine neue Messung: fragt nach Schussdateien, die dann an die Stelle der jetzigen treten</translation>
    </message>
    <message>
        <source>No shot file was loaded.</source>
        <translation>Es wurde keine Schussdatei geladen.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Seismic refraction surveys: from field records to velocity sections.&lt;/p&gt;&lt;p&gt;Talvesk is free software under the MIT licence, without any warranty.&lt;/p&gt;&lt;p&gt;It is built with these libraries, Qt being version %1:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Refraktionsseismische Messungen: von den Feldaufzeichnungen zu Geschwindigkeitsschnitten.&lt;/p&gt;&lt;p&gt;Talvesk ist freie Software unter der MIT-Lizenz, ohne jede Gewährleistung.&lt;/p&gt;&lt;p&gt;Es verwendet diese Bibliotheken, Qt in der Version %1:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 is a folder or names no file. Give the project a name.</source>
        <translation>%1 ist ein Ordner oder nennt keine Datei. Geben Sie dem Projekt einen Namen.</translation>
    </message>
    <message>
        <source>%1 is in use elsewhere.</source>
        <translation>%1 wird anderswo verwendet.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 on %3 (process %4).</source>
        <translation>%1 wird von %2 auf %3 verwendet (Prozess %4).</translation>
    </message>
    <message>
        <source>Project in use</source>
        <translation>Projekt in Gebrauch</translation>
    </message>
    <message>
        <source>If nobody uses it any more, delete the lock %1</source>
        <translation>Verwendet es niemand mehr, löschen Sie die Sperrdatei %1</translation>
    </message>
    <message>
        <source>Do you want to replace it all the same?</source>
        <translation>Möchten Sie die Datei trotzdem ersetzen?</translation>
    </message>
    <message>
        <source>%1 has been changed by somebody else since it was opened or saved here.</source>
        <translation>%1 wurde von jemand anderem geändert, seit die Datei hier geöffnet oder gespeichert wurde.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What was changed there is lost then.</source>
        <translation>Möchten Sie die Datei ersetzen? Was dort geändert wurde, geht dann verloren.</translation>
    </message>
    <message>
        <source>The file is as it was before.</source>
        <translation>Die Datei ist, wie sie vorher war.</translation>
    </message>
    <message>
        <source>Do you want to open it all the same?</source>
        <translation>Möchten Sie die Datei trotzdem öffnen?</translation>
    </message>
    <message>
        <source>Some values of the project cannot be. They were put right or left out.</source>
        <translation>Einige Werte des Projekts sind nicht möglich. Sie wurden berichtigt oder weggelassen.</translation>
    </message>
    <message>
        <source>Left out of the inversion:</source>
        <translation>Bei der Inversion weggelassen:</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Weggelassen: %1.</translation>
    </message>
    <message>
        <source>The grid has these cells already.</source>
        <translation>Das Gitter hat diese Zellen schon.</translation>
    </message>
    <message>
        <source>Do you want to build it anew, with the default velocities?</source>
        <translation>Möchten Sie es neu aufbauen, mit den Standardgeschwindigkeiten?</translation>
    </message>
    <message>
        <source>Smoothing, and tracing rays anew ...</source>
        <translation>Glätten, und Strahlen neu verfolgen ...</translation>
    </message>
    <message>
        <source>Picks have changed since.</source>
        <translation>Die Picks haben sich seitdem geändert.</translation>
    </message>
    <message>
        <source>The survey was not changed.</source>
        <translation>Die Messung wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Undo &quot;%1&quot;</source>
        <translation>Rückgängig: „%1“</translation>
    </message>
    <message>
        <source>Redo &quot;%1&quot;</source>
        <translation>Wiederholen: „%1“</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Schuss entfernen</translation>
    </message>
    <message>
        <source>Shot %1 is removed; Undo brings it back.</source>
        <translation>Schuss %1 ist entfernt; „Rückgängig“ bringt ihn zurück.</translation>
    </message>
    <message>
        <source>The oldest steps can no longer be undone: they needed more than %1 MB.</source>
        <translation>Die ältesten Schritte lassen sich nicht mehr rückgängig machen: Sie brauchten mehr als %1 MB.</translation>
    </message>
    <message>
        <source>Export recordings...</source>
        <translation>Aufzeichnungen exportieren...</translation>
    </message>
    <message>
        <source>Write the traces of all shots, with the positions of the survey, as SEG-Y or SEG-2 files</source>
        <translation>Schreibt die Spuren aller Schüsse mit den Positionen der Messung als SEG-Y- oder SEG-2-Dateien</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Zeiten ab dem Schuss zählen</translation>
    </message>
    <message>
        <source>Drop what was recorded before the shot; picks move with their traces</source>
        <translation>Verwirft, was vor dem Schuss aufgezeichnet wurde; Picks wandern mit ihren Spuren</translation>
    </message>
    <message>
        <source>Mend recording...</source>
        <translation>Aufzeichnung korrigieren...</translation>
    </message>
    <message>
        <source>Put right the time, the order or single traces of the shot in view; what was recorded is kept</source>
        <translation>Korrigiert die Zeit, die Reihenfolge oder einzelne Spuren des gezeigten Schusses; das Aufgezeichnete bleibt erhalten</translation>
    </message>
    <message>
        <source>Take back all mends</source>
        <translation>Alle Korrekturen zurücknehmen</translation>
    </message>
    <message>
        <source>Show all recordings as they were recorded, with their picks</source>
        <translation>Zeigt alle Aufzeichnungen, wie sie aufgezeichnet wurden, mit ihren Picks</translation>
    </message>
    <message>
        <source>%1 of them are of disabled shots or killed and left unpicked.</source>
        <translation>%1 davon gehören zu deaktivierten Schüssen oder sind ausgeschaltet und bleiben ohne Pick.</translation>
    </message>
    <message>
        <source>SEG-Y, a file for each shot</source>
        <translation>SEG-Y, eine Datei je Schuss</translation>
    </message>
    <message>
        <source>SEG-Y, all shots in one file</source>
        <translation>SEG-Y, alle Schüsse in einer Datei</translation>
    </message>
    <message>
        <source>SEG-2, a file for each shot</source>
        <translation>SEG-2, eine Datei je Schuss</translation>
    </message>
    <message>
        <source>Export recordings</source>
        <translation>Aufzeichnungen exportieren</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>Folder for the recordings</source>
        <translation>Ordner für die Aufzeichnungen</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey.</source>
        <translation>%1 ist eine der Schussdateien dieser Messung.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Writing recordings ...</source>
        <translation>Aufzeichnungen werden geschrieben ...</translation>
    </message>
    <message>
        <source>The export to %1 was stopped; some files are missing.</source>
        <translation>Der Export nach %1 wurde angehalten; einige Dateien fehlen.</translation>
    </message>
    <message>
        <source>The recordings have not been exported.</source>
        <translation>Die Aufzeichnungen wurden nicht exportiert.</translation>
    </message>
    <message>
        <source>Recordings saved in %1</source>
        <translation>Aufzeichnungen gespeichert in %1</translation>
    </message>
    <message>
        <source>The recordings have been saved.</source>
        <translation>Die Aufzeichnungen wurden gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>The times of %n trace(s) count from the shot now.</source>
        <translation>
            <numerusform>Die Zeiten von %n Spur zählen jetzt ab dem Schuss.</numerusform>
            <numerusform>Die Zeiten von %n Spuren zählen jetzt ab dem Schuss.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pick(s) lay before it and are removed.</source>
        <translation>
            <numerusform>%n Pick lag davor und ist entfernt.</numerusform>
            <numerusform>%n Picks lagen davor und sind entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording of shot %1 has not been mended.</source>
        <translation>Die Aufzeichnung von Schuss %1 wurde nicht korrigiert.</translation>
    </message>
    <message>
        <source>The mends have not been taken back.</source>
        <translation>Die Korrekturen wurden nicht zurückgenommen.</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <comment>shot</comment>
        <translation>%1 (deaktiviert)</translation>
    </message>
    <message>
        <source>%1 (mended)</source>
        <comment>shot</comment>
        <translation>%1 (korrigiert)</translation>
    </message>
    <message>
        <source>disabled or killed</source>
        <translation>deaktiviert oder ausgeschaltet</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>%1 does not say in which unit its times are.</source>
        <translation>%1 sagt nicht, in welcher Einheit die Zeiten sind.</translation>
    </message>
    <message>
        <source>%1 does not hold all of the survey.</source>
        <translation>%1 enthält nicht die ganze Messung.</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick entlang der Messlinie</translation>
    </message>
    <message>
        <source>Pick all traces of a shot together, and follow the picks that you made; picks that are not sure are left out</source>
        <translation>Pickt alle Spuren eines Schusses gemeinsam und folgt den von Ihnen gesetzten Picks; unsichere Picks werden weggelassen</translation>
    </message>
    <message>
        <source>Check recordings...</source>
        <translation>Aufzeichnungen prüfen...</translation>
    </message>
    <message>
        <source>List what is doubtful about positions, triggers and traces, with a mend for each that you take or leave</source>
        <translation>Listet auf, was an Positionen, Triggern und Spuren zweifelhaft ist, jeweils mit einer Korrektur, die Sie annehmen oder nicht</translation>
    </message>
    <message>
        <source>Proposals carried out: %1 of %2.</source>
        <translation>Ausgeführte Vorschläge: %1 von %2.</translation>
    </message>
    <message>
        <source>Some proposals have not been carried out.</source>
        <translation>Einige Vorschläge wurden nicht ausgeführt.</translation>
    </message>
    <message>
        <source>Of %1 traces %2 have a pick that is sure to %3 ms and %4 a doubtful one; %5 picks that you made stay.</source>
        <translation>Von %1 Spuren haben %2 einen auf %3 ms sicheren Pick und %4 einen zweifelhaften; %5 von Ihnen gesetzte Picks bleiben.</translation>
    </message>
    <message>
        <source>Guides in the traces</source>
        <translation>Hilfslinien in den Spuren</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Berechnete Zeiten</translation>
    </message>
    <message>
        <source>Draw the times through the section over the traces</source>
        <translation>Zeichnet die Zeiten durch den Schnitt über die Spuren</translation>
    </message>
    <message>
        <source>Curve of the nearest shot</source>
        <translation>Kurve des nächstgelegenen Schusses</translation>
    </message>
    <message>
        <source>Draw the picks of the nearest other shot on the same geophones, dashed</source>
        <translation>Zeichnet die Picks des nächstgelegenen anderen Schusses an denselben Geophonen gestrichelt</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Reziproke Zeiten</translation>
    </message>
    <message>
        <source>Mark when other shots recorded the same ways in the other direction: the picks should pass there</source>
        <translation>Markiert, wann andere Schüsse dieselben Wege in der anderen Richtung aufgezeichnet haben: Dort sollten die Picks verlaufen</translation>
    </message>
    <message>
        <source>Guide line</source>
        <translation>Leitlinie</translation>
    </message>
    <message>
        <source>Drag along the first breaks: the picker fills the traces near that line (key G)</source>
        <translation>Entlang der Ersteinsätze ziehen: Die Spuren werden nahe dieser Linie gepickt (Taste G)</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Entlang der Messlinie ergänzen</translation>
    </message>
    <message>
        <source>Pick the rest of the current shot through the picks that you set or confirmed</source>
        <translation>Pickt den Rest des aktuellen Schusses durch die von Ihnen gesetzten oder bestätigten Picks</translation>
    </message>
    <message>
        <source>Error 0.5 ms</source>
        <translation>Fehler 0,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 0.5 ms, and so may those that you set next (key 1)</source>
        <translation>Die Picks der ausgewählten Spuren und die, die Sie danach setzen, können um 0,5 ms danebenliegen (Taste 1)</translation>
    </message>
    <message>
        <source>Error 1 ms</source>
        <translation>Fehler 1 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 1 ms, and so may those that you set next (key 2)</source>
        <translation>Die Picks der ausgewählten Spuren und die, die Sie danach setzen, können um 1 ms danebenliegen (Taste 2)</translation>
    </message>
    <message>
        <source>Error 2.5 ms</source>
        <translation>Fehler 2,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 2.5 ms, and so may those that you set next (key 3)</source>
        <translation>Die Picks der ausgewählten Spuren und die, die Sie danach setzen, können um 2,5 ms danebenliegen (Taste 3)</translation>
    </message>
    <message>
        <source>Error 5 ms</source>
        <translation>Fehler 5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 5 ms, and so may those that you set next (key 4)</source>
        <translation>Die Picks der ausgewählten Spuren und die, die Sie danach setzen, können um 5 ms danebenliegen (Taste 4)</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Fehler unbekannt</translation>
    </message>
    <message>
        <source>Nothing is told of how far the picks of the selected traces may be off, nor those that you set next (key 0)</source>
        <translation>Wie weit die Picks der ausgewählten Spuren und die, die Sie danach setzen, danebenliegen können, bleibt offen (Taste 0)</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Fehlerbalken</translation>
    </message>
    <message>
        <source>Show how far picks may be off, in the traces and in the travel-time curves; bars of doubtful picks are dashed</source>
        <translation>Zeigt in den Spuren und in den Laufzeitkurven, wie weit Picks danebenliegen können; Balken zweifelhafter Picks sind gestrichelt</translation>
    </message>
    <message>
        <source>Next doubtful pick</source>
        <translation>Nächster zweifelhafter Pick</translation>
    </message>
    <message>
        <source>Go to the next pick of all shots that is doubtful by its error, the section or the reciprocal time, worst first</source>
        <translation>Geht zum nächsten Pick aller Schüsse, der nach seinem Fehler, dem Schnitt oder der reziproken Zeit zweifelhaft ist, der schlechteste zuerst</translation>
    </message>
    <message>
        <source>Previous doubtful pick</source>
        <translation>Voriger zweifelhafter Pick</translation>
    </message>
    <message>
        <source>Go back to the doubtful pick before, a worse one</source>
        <translation>Geht zum vorigen zweifelhaften Pick zurück, einem schlechteren</translation>
    </message>
    <message>
        <source>Reciprocity...</source>
        <translation>Reziprozität...</translation>
    </message>
    <message>
        <source>Compare the picks of all shots there and back, and find the shots that are late</source>
        <translation>Vergleicht die Picks aller Schüsse hin und zurück und findet verspätete Schüsse</translation>
    </message>
    <message>
        <source>Set or confirm some picks of this shot first, or draw a line with the tool Guide line.</source>
        <translation>Setzen oder bestätigen Sie zuerst einige Picks dieses Schusses, oder ziehen Sie eine Linie mit dem Werkzeug „Leitlinie“.</translation>
    </message>
    <message>
        <source>Shot %1 has not been filled.</source>
        <translation>Schuss %1 wurde nicht ergänzt.</translation>
    </message>
    <message>
        <source>Shot %1: %2 traces filled, %3 sure to %4 ms and %5 doubtful; %6 are without a pick, %7 picks that you made stay.</source>
        <translation>Schuss %1: %2 Spuren ergänzt, %3 auf %4 ms sicher und %5 zweifelhaft; %6 sind ohne Pick, %7 von Ihnen gesetzte Picks bleiben.</translation>
    </message>
    <message>
        <source>The record of shot %1 is mended; Undo takes it back.</source>
        <translation>Die Aufzeichnung von Schuss %1 ist korrigiert; „Rückgängig“ nimmt es zurück.</translation>
    </message>
    <message>
        <source>The recording has not been mended.</source>
        <translation>Die Aufzeichnung wurde nicht korrigiert.</translation>
    </message>
    <message>
        <source>Save Reciprocal Times</source>
        <translation>Reziproke Zeiten speichern</translation>
    </message>
    <message>
        <source>Table (*.csv);;All Files (*)</source>
        <translation>Tabelle (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Doubtful pick %1 of %2, shot %3, trace %4: %5</source>
        <translation>Zweifelhafter Pick %1 von %2, Schuss %3, Spur %4: %5</translation>
    </message>
    <message>
        <source>after the last one, the worst again</source>
        <translation>nach dem letzten wieder der schlechteste</translation>
    </message>
    <message>
        <source>before the worst, the last</source>
        <translation>vor dem schlechtesten der letzte</translation>
    </message>
    <message>
        <source>error %1 ms</source>
        <translation>Fehler %1 ms</translation>
    </message>
    <message>
        <source>computed %1 ms later</source>
        <translation>berechnet %1 ms später</translation>
    </message>
    <message>
        <source>computed %1 ms earlier</source>
        <translation>berechnet %1 ms früher</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms later</source>
        <translation>reziproke Zeit %1 ms später</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms earlier</source>
        <translation>reziproke Zeit %1 ms früher</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Es gibt noch keine Picks.</translation>
    </message>
    <message>
        <source>No pick waits for confirmation.</source>
        <translation>Kein Pick wartet auf Bestätigung.</translation>
    </message>
    <message>
        <source>None of the %1 picks that wait for confirmation is doubtful.</source>
        <translation>Keiner der %1 Picks, die auf Bestätigung warten, ist zweifelhaft.</translation>
    </message>
    <message>
        <source>Nothing is known of %1 of them: no error, no computed time, no reciprocal one.</source>
        <translation>Über %1 davon ist nichts bekannt: kein Fehler, keine berechnete und keine reziproke Zeit.</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Fehler %1 ms</translation>
    </message>
    <message>
        <source>Second look ...</source>
        <translation>Zweiter Blick ...</translation>
    </message>
    <message>
        <source>List the picks that the section cannot explain, time shifts of shots, velocities at their limits and ground without rays</source>
        <translation>Listet Picks auf, die der Schnitt nicht erklären kann, Zeitverschiebungen der Schüsse, Geschwindigkeiten an ihren Grenzen und Untergrund ohne Strahlen</translation>
    </message>
    <message>
        <source>Inversion runs ...</source>
        <translation>Inversionsläufe ...</translation>
    </message>
    <message>
        <source>List the inversions that have been run, compare them, and use one of them as the section</source>
        <translation>Listet die gerechneten Inversionen auf, vergleicht sie und verwendet eine davon als Schnitt</translation>
    </message>
    <message>
        <source>Certainty ...</source>
        <translation>Zuverlässigkeit ...</translation>
    </message>
    <message>
        <source>Find out how sure the section is, by many sections that explain the picks as well</source>
        <translation>Ermittelt, wie zuverlässig der Schnitt ist, mit vielen Schnitten, die die Picks ebenso gut erklären</translation>
    </message>
    <message>
        <source>Show Certainty Layer</source>
        <translation>Zuverlässigkeit anzeigen</translation>
    </message>
    <message>
        <source>Colour the section by how far its velocities may be off</source>
        <translation>Färbt den Schnitt danach, wie ungenau seine Geschwindigkeiten sein können</translation>
    </message>
    <message>
        <source>Certainty: %1 members, %2 left out. The section shown lies beyond two deviations in %3 % of the cells with rays.</source>
        <translation>Zuverlässigkeit: %1 Mitglieder, %2 weggelassen. Der gezeigte Schnitt liegt in %3 % der Zellen mit Strahlen außerhalb von zwei Abweichungen.</translation>
    </message>
    <message>
        <source>The list of inversion runs is full; &quot;%1&quot; has gone.</source>
        <translation>Die Liste der Inversionsläufe ist voll; „%1“ ist entfallen.</translation>
    </message>
    <message>
        <source>Tracing the rays of the run anew ...</source>
        <translation>Strahlen des Laufs neu verfolgen ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used.</source>
        <translation>„%1“ kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The section is that of &quot;%1&quot;.</source>
        <translation>Der Schnitt ist der von „%1“.</translation>
    </message>
    <message numerus="yes">
        <source>%n inversion run(s) deleted.</source>
        <translation>
            <numerusform>%n Inversionslauf gelöscht.</numerusform>
            <numerusform>%n Inversionsläufe gelöscht.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save picture of both runs</source>
        <translation>Bild beider Läufe speichern</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)</source>
        <translation>PNG-Bild (*.png);;SVG-Bild (*.svg);;PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Time shifts taken over: %1 of %2. Invert again to see what they change.</source>
        <translation>Zeitverschiebungen übernommen: %1 von %2. Invertieren Sie noch einmal, um zu sehen, was sie ändern.</translation>
    </message>
    <message>
        <source>Some time shifts have not been taken over.</source>
        <translation>Einige Zeitverschiebungen wurden nicht übernommen.</translation>
    </message>
    <message>
        <source>Uncertainty %1 %</source>
        <translation>Unsicherheit %1 %</translation>
    </message>
    <message>
        <source>Residuals...</source>
        <translation>Residuen...</translation>
    </message>
    <message>
        <source>Look at what the section leaves of every pick: shot by geophone, over the offset, per shot and geophone, and along the rays</source>
        <translation>Zeigt, was der Schnitt von jedem Pick übrig lässt: Schüsse gegen Geophone, über dem Offset, pro Schuss und Geophon und entlang der Strahlen</translation>
    </message>
    <message>
        <source>Known ground ...</source>
        <translation>Bekannter Untergrund ...</translation>
    </message>
    <message>
        <source>Boreholes, known depths and bodies of known velocity, to be drawn and to hold a fit to</source>
        <translation>Bohrungen, bekannte Tiefen und Körper bekannter Geschwindigkeit, zum Zeichnen und um eine Anpassung daran zu halten</translation>
    </message>
    <message>
        <source>Show known ground</source>
        <translation>Bekannten Untergrund anzeigen</translation>
    </message>
    <message>
        <source>Draw boreholes, known depths and bodies over the section</source>
        <translation>Zeichnet Bohrungen, bekannte Tiefen und Körper über den Schnitt</translation>
    </message>
    <message>
        <source>Resolution test ...</source>
        <translation>Auflösungstest ...</translation>
    </message>
    <message>
        <source>Find out how small ground may be that this survey still sees, by patterns laid over the section</source>
        <translation>Ermittelt mit Mustern über dem Schnitt, wie kleine Strukturen im Untergrund diese Messung noch sieht</translation>
    </message>
    <message>
        <source>Fade Uncertain Ground</source>
        <translation>Unsicheren Untergrund blass zeigen</translation>
    </message>
    <message>
        <source>Let the colours of the velocity section pale where it is not sure</source>
        <translation>Lässt die Farben des Geschwindigkeitsschnitts verblassen, wo er unsicher ist</translation>
    </message>
    <message>
        <source>Depth Bands ...</source>
        <translation>Tiefenbänder ...</translation>
    </message>
    <message>
        <source>Draw between which depths velocities of your choice are reached, 16 to 84 %</source>
        <translation>Zeichnet, zwischen welchen Tiefen Geschwindigkeiten Ihrer Wahl erreicht werden, 16 bis 84 %</translation>
    </message>
    <message>
        <source>Certainty as table ...</source>
        <translation>Zuverlässigkeit als Tabelle ...</translation>
    </message>
    <message>
        <source>Export median, 16 and 84 % velocity and spread of every cell as a table (.csv)</source>
        <translation>Exportiert Median, 16- und 84-%-Geschwindigkeit und Streuung jeder Zelle als Tabelle (.csv)</translation>
    </message>
    <message>
        <source>Export Certainty Table</source>
        <translation>Tabelle der Zuverlässigkeit exportieren</translation>
    </message>
    <message>
        <source>Table of the certainty (*.csv);;All Files (*)</source>
        <translation>Tabelle der Zuverlässigkeit (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Stopped before anything was found; the section is as it was.</source>
        <translation>Angehalten, bevor etwas gefunden war; der Schnitt ist, wie er war.</translation>
    </message>
    <message>
        <source>The section is not held to known ground.</source>
        <translation>Der Schnitt ist nicht an bekannten Untergrund gehalten.</translation>
    </message>
    <message>
        <source>The section is held to this.</source>
        <translation>Der Schnitt ist daran gehalten.</translation>
    </message>
    <message>
        <source>The section is held to known ground that was another: run the fit again.</source>
        <translation>Der Schnitt ist an früheren bekannten Untergrund gehalten: Starten Sie die Anpassung erneut.</translation>
    </message>
    <message>
        <source>Import known ground</source>
        <translation>Bekannten Untergrund importieren</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv *.txt);;All files (*)</source>
        <translation>Tabellen bekannten Untergrunds (*.csv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nichts wurde importiert.</translation>
    </message>
    <message>
        <source>Export known ground</source>
        <translation>Bekannten Untergrund exportieren</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv)</source>
        <translation>Tabellen bekannten Untergrunds (*.csv)</translation>
    </message>
    <message>
        <source>Save picture of residuals</source>
        <translation>Bild der Residuen speichern</translation>
    </message>
    <message>
        <source>Save table of residuals</source>
        <translation>Tabelle der Residuen speichern</translation>
    </message>
    <message>
        <source>Save picture of the resolution test</source>
        <translation>Bild des Auflösungstests speichern</translation>
    </message>
    <message>
        <source>Save table of the resolution test</source>
        <translation>Tabelle des Auflösungstests speichern</translation>
    </message>
    <message>
        <source>Table of resolution by depth (*.csv)</source>
        <translation>Tabelle der Auflösung nach Tiefe (*.csv)</translation>
    </message>
    <message>
        <source>How sure the section before was is known no more; Undo brings back both.</source>
        <translation>Wie zuverlässig der vorige Schnitt war, ist nicht mehr bekannt; „Rückgängig“ bringt beides zurück.</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>verdächtige Picks: %1</translation>
    </message>
    <message>
        <source>time shifts of shots: %1</source>
        <translation>Zeitverschiebungen von Schüssen: %1</translation>
    </message>
    <message>
        <source>cells at a limit of the velocity: %1</source>
        <translation>Zellen an einer Grenze der Geschwindigkeit: %1</translation>
    </message>
    <message>
        <source>cells shown that no ray crosses: %1</source>
        <translation>gezeigte Zellen, die kein Strahl durchquert: %1</translation>
    </message>
    <message>
        <source>Second look (%1)</source>
        <comment>kinds of things to look at</comment>
        <translation>Zweiter Blick (%1)</translation>
    </message>
    <message>
        <source>Shots without a recording, whose picks were shifted: %1.</source>
        <translation>Schüsse ohne Aufzeichnung, deren Picks verschoben wurden: %1.</translation>
    </message>
    <message>
        <source>Depth Bands</source>
        <translation>Tiefenbänder</translation>
    </message>
    <message>
        <source>Up to %1 &amp;velocities in %2; the depths at which the middle 68 % of the members reach them are drawn as a band. None takes the bands away.</source>
        <translation>Bis zu %1 &amp;Geschwindigkeiten in %2; die Tiefen, in denen die mittleren 68 % der Mitglieder sie erreichen, werden als Band gezeichnet. Keine Angabe entfernt die Bänder.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of velocities.</source>
        <translation>„%1“ ist keine Liste von Geschwindigkeiten.</translation>
    </message>
    <message>
        <source>Give up to %1 numbers above 0 with semicolons between them: 800; 1500</source>
        <translation>Geben Sie bis zu %1 Zahlen über 0 mit Semikolons dazwischen an: 800; 1500</translation>
    </message>
    <message>
        <source>Start from layers ...</source>
        <translation>Mit Schichten beginnen ...</translation>
    </message>
    <message>
        <source>Give the cells of the grid the velocities of the layered profile, for an inversion to start from</source>
        <translation>Gibt den Zellen des Gitters die Geschwindigkeiten des Schichtprofils, mit denen eine Inversion beginnt</translation>
    </message>
    <message>
        <source>Compare layers with the section ...</source>
        <translation>Schichten mit dem Schnitt vergleichen ...</translation>
    </message>
    <message>
        <source>Read the depth of a refractor from the section and see how far it is from that of the layered profile</source>
        <translation>Liest die Tiefe eines Refraktors aus dem Schnitt und zeigt, wie weit sie von der des Schichtprofils abweicht</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layered profile.</source>
        <translation>Das Gitter hat die Geschwindigkeiten des Schichtprofils.</translation>
    </message>
    <message>
        <source>Save picture of layers and section</source>
        <translation>Bild von Schichten und Schnitt speichern</translation>
    </message>
    <message>
        <source>Save table of layers and section</source>
        <translation>Tabelle von Schichten und Schnitt speichern</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>P and S together ...</source>
        <translation>P und S gemeinsam ...</translation>
    </message>
    <message>
        <source>Put the layers of this survey and those of a project of the other wave together: Vp/Vs, Poisson&apos;s ratio and moduli along the line</source>
        <translation>Führt die Schichten dieser Messung und die eines Projekts der anderen Welle zusammen: Vp/Vs, Poissonzahl und Moduln entlang der Messlinie</translation>
    </message>
    <message>
        <source>There are no times through the layers: build the profiles anew.</source>
        <translation>Es gibt keine Zeiten durch die Schichten: Erstellen Sie die Profile neu.</translation>
    </message>
    <message>
        <source>Project of the other wave</source>
        <translation>Projekt der anderen Welle</translation>
    </message>
    <message>
        <source>This is the project that is open.</source>
        <translation>Dies ist das geöffnete Projekt.</translation>
    </message>
    <message>
        <source>Choose the project of the other wave, P or S, along the same line.</source>
        <translation>Wählen Sie das Projekt der anderen Welle, P oder S, entlang derselben Messlinie.</translation>
    </message>
    <message>
        <source>%1 has no layered profile.</source>
        <translation>%1 hat kein Schichtprofil.</translation>
    </message>
    <message>
        <source>Open it, build its profiles in the refraction dialog, and save it.</source>
        <translation>Öffnen Sie das Projekt, erstellen Sie seine Profile im Refraktionsdialog, und speichern Sie es.</translation>
    </message>
    <message>
        <source>this survey</source>
        <translation>diese Messung</translation>
    </message>
    <message>
        <source>Save picture of P and S</source>
        <translation>Bild von P und S speichern</translation>
    </message>
    <message>
        <source>Save table of P and S</source>
        <translation>Tabelle von P und S speichern</translation>
    </message>
    <message>
        <source>Save picture of layers by method</source>
        <translation>Bild der Schichten nach Methode speichern</translation>
    </message>
    <message>
        <source>Save table of layers by method</source>
        <translation>Tabelle der Schichten nach Methode speichern</translation>
    </message>
    <message>
        <source>Web page ...</source>
        <translation>Webseite ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a page for any browser, with figures to work with</source>
        <translation>Schreibt einen Bericht der Messung als Seite für jeden Browser, mit interaktiven Abbildungen</translation>
    </message>
    <message>
        <source>Save web page</source>
        <translation>Webseite speichern</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Webseite (*.html)</translation>
    </message>
    <message>
        <source>Mends of the selected traces</source>
        <translation>Korrekturen der ausgewählten Spuren</translation>
    </message>
    <message>
        <source>Marked isolines ...</source>
        <translation>Markierte Isolinien ...</translation>
    </message>
    <message>
        <source>Name velocities, such as 1500 m/s for the water table, whose lines stand out from the section</source>
        <translation>Geschwindigkeiten benennen, etwa 1500 m/s für den Grundwasserspiegel, deren Linien sich vom Schnitt abheben</translation>
    </message>
    <message>
        <source>Annotations ...</source>
        <translation>Anmerkungen ...</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground drawn on the section</source>
        <translation>Texte, Linien und Flächen des Untergrunds, auf den Schnitt gezeichnet</translation>
    </message>
    <message>
        <source>Depth profile ...</source>
        <translation>Tiefenprofil ...</translation>
    </message>
    <message>
        <source>Velocity, its gradient and how sure it is against depth, below the mouse</source>
        <translation>Geschwindigkeit, ihr Gradient und ihre Zuverlässigkeit über der Tiefe, unter der Maus</translation>
    </message>
    <message>
        <source>Fence of several lines ...</source>
        <translation>Zaundiagramm mehrerer Messlinien ...</translation>
    </message>
    <message>
        <source>Sections of this and other projects at their places on the map, in one view</source>
        <translation>Schnitte dieses und anderer Projekte an ihrer Stelle auf der Karte, in einer Ansicht</translation>
    </message>
    <message>
        <source>Save style ...</source>
        <translation>Stil speichern ...</translation>
    </message>
    <message>
        <source>Save palette, range, contours, exaggeration, switches and marked isolines for other surveys</source>
        <translation>Palette, Bereich, Isolinien, Überhöhung, Schalter und markierte Isolinien für andere Messungen speichern</translation>
    </message>
    <message>
        <source>Apply style ...</source>
        <translation>Stil anwenden ...</translation>
    </message>
    <message>
        <source>Let this section look as the one whose style was saved</source>
        <translation>Diesen Schnitt so darstellen wie den, dessen Stil gespeichert wurde</translation>
    </message>
    <message>
        <source>Show annotations</source>
        <translation>Anmerkungen anzeigen</translation>
    </message>
    <message>
        <source>Draw marked isolines, texts, lines and areas of ground over the section</source>
        <translation>Markierte Isolinien, Texte, Linien und Flächen des Untergrunds über den Schnitt zeichnen</translation>
    </message>
    <message>
        <source>Surveyed positions ...</source>
        <translation>Vermessene Positionen ...</translation>
    </message>
    <message>
        <source>Make distances along the line and its place on the map of a table of coordinates</source>
        <translation>Aus einer Koordinatentabelle die Entfernungen entlang der Messlinie und ihre Lage auf der Karte bestimmen</translation>
    </message>
    <message>
        <source>Find command...</source>
        <translation>Befehl suchen...</translation>
    </message>
    <message>
        <source>Find any command by its words and give it</source>
        <translation>Einen Befehl anhand seiner Wörter suchen und ausführen</translation>
    </message>
    <message>
        <source>Shot files with picks ...</source>
        <translation>Schussdateien mit Picks ...</translation>
    </message>
    <message>
        <source>Copy the shot files into another folder, with the picks in their trace headers</source>
        <translation>Die Schussdateien in einen anderen Ordner kopieren, mit den Picks in den Spurheadern</translation>
    </message>
    <message>
        <source>Drawing as DXF ...</source>
        <translation>Zeichnung als DXF ...</translation>
    </message>
    <message>
        <source>Section as curtain on the map ...</source>
        <translation>Schnitt als Vorhang auf der Karte ...</translation>
    </message>
    <message>
        <source>Export the cells with their velocities where they lie on the map, as a VTK grid or a table</source>
        <translation>Die Zellen mit ihren Geschwindigkeiten an ihrer Stelle auf der Karte exportieren, als VTK-Gitter oder Tabelle</translation>
    </message>
    <message>
        <source>Line and isolines as GeoPackage ...</source>
        <translation>Messlinie und Isolinien als GeoPackage ...</translation>
    </message>
    <message>
        <source>Export line, geophones, shots, isolines, refractors and depths of isovalues as layers for maps</source>
        <translation>Messlinie, Geophone, Schüsse, Isolinien, Refraktoren und Tiefen von Isowerten als Kartenebenen exportieren</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Spuren ausschalten</translation>
    </message>
    <message>
        <source>The selected traces count for nothing and have no pick, or do again (key K); what was recorded is kept</source>
        <translation>Die ausgewählten Spuren zählen nicht und haben keinen Pick, oder wieder doch (Taste K); die Aufzeichnung bleibt erhalten</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Polarität umkehren</translation>
    </message>
    <message>
        <source>The samples of the selected traces change their sign (key P)</source>
        <translation>Die Abtastwerte der ausgewählten Spuren wechseln das Vorzeichen (Taste P)</translation>
    </message>
    <message>
        <source>Mute traces before...</source>
        <translation>Spuren stummschalten vor...</translation>
    </message>
    <message>
        <source>The samples of the selected traces before a time become zero (key U mutes before the mouse, Shift+U no more)</source>
        <translation>Die Abtastwerte der ausgewählten Spuren vor einer Zeit werden null (Taste U schaltet vor der Maus stumm, Umschalt+U hebt es auf)</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Spuren verstärken</translation>
    </message>
    <message>
        <source>The samples of the selected traces become larger, 1.5 or 2 times in turn (key })</source>
        <translation>Die Abtastwerte der ausgewählten Spuren werden größer, abwechselnd 1,5- oder 2-fach (Taste })</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Spuren abschwächen</translation>
    </message>
    <message>
        <source>The samples of the selected traces become smaller (key {)</source>
        <translation>Die Abtastwerte der ausgewählten Spuren werden kleiner (Taste {)</translation>
    </message>
    <message>
        <source>Notch...</source>
        <translation>Kerbfilter...</translation>
    </message>
    <message>
        <source>Take the hum of power lines, 50 or 60 Hz and multiples, out of the filtered copy</source>
        <translation>Das Netzbrummen, 50 oder 60 Hz und Vielfache, aus der gefilterten Kopie entfernen</translation>
    </message>
    <message>
        <source>Velocity filter...</source>
        <translation>Geschwindigkeitsfilter...</translation>
    </message>
    <message>
        <source>Keep or take out waves by their apparent velocity, in the filtered copy</source>
        <translation>Wellen nach ihrer Scheingeschwindigkeit behalten oder entfernen, in der gefilterten Kopie</translation>
    </message>
    <message>
        <source>Annotations wait for the inversion to end.</source>
        <translation>Anmerkungen warten, bis die Inversion beendet ist.</translation>
    </message>
    <message>
        <source>It cannot work now.</source>
        <translation>Das geht jetzt nicht.</translation>
    </message>
    <message>
        <source>Save depth profile</source>
        <translation>Tiefenprofil speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf)</source>
        <translation>Bilder (*.png *.svg *.pdf)</translation>
    </message>
    <message>
        <source>Picks have changed since the layered profile was built.</source>
        <translation>Die Picks wurden geändert, seit das Schichtprofil erstellt wurde.</translation>
    </message>
    <message>
        <source>The line has no place on the map.</source>
        <translation>Die Messlinie hat keine Lage auf der Karte.</translation>
    </message>
    <message>
        <source>Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>Geben Sie sie hier an: Projekt &gt; Geographische Koordinaten ...</translation>
    </message>
    <message>
        <source>Export DXF Drawing</source>
        <translation>DXF-Zeichnung exportieren</translation>
    </message>
    <message>
        <source>DXF drawing (*.dxf);;All Files (*)</source>
        <translation>DXF-Zeichnung (*.dxf);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export GeoPackage</source>
        <translation>GeoPackage exportieren</translation>
    </message>
    <message>
        <source>GeoPackage (*.gpkg);;All Files (*)</source>
        <translation>GeoPackage (*.gpkg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export Curtain</source>
        <translation>Vorhang exportieren</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;Table of cells (*.csv);;All Files (*)</source>
        <translation>Unstrukturiertes VTK-Gitter (*.vtu);;Tabelle der Zellen (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>This survey</source>
        <translation>Diese Messung</translation>
    </message>
    <message>
        <source>Add projects to the fence</source>
        <translation>Projekte zum Zaundiagramm hinzufügen</translation>
    </message>
    <message>
        <source>Talvesk projects (*.tvsk);;All Files (*)</source>
        <translation>Talvesk-Projekte (*.tvsk);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save picture of the fence</source>
        <translation>Bild des Zaundiagramms speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Applying notches ...</source>
        <translation>Kerbfilter werden angewendet ...</translation>
    </message>
    <message>
        <source>Applying the velocity filter ...</source>
        <translation>Geschwindigkeitsfilter wird angewendet ...</translation>
    </message>
    <message>
        <source>Folder for the shot files with picks</source>
        <translation>Ordner für die Schussdateien mit Picks</translation>
    </message>
    <message>
        <source>In SEG-2 files a pick is FIRST_BREAK in seconds; in SEG-Y and SU files it is whole microseconds in bytes 233 to 236 of the trace header. Both count from the shot.</source>
        <translation>In SEG-2-Dateien ist ein Pick FIRST_BREAK in Sekunden; in SEG-Y- und SU-Dateien sind es ganze Mikrosekunden in den Bytes 233 bis 236 des Spurheaders. Beide zählen ab dem Schuss.</translation>
    </message>
    <message>
        <source>Shot files with picks</source>
        <translation>Schussdateien mit Picks</translation>
    </message>
    <message>
        <source>Save style</source>
        <translation>Stil speichern</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle)</source>
        <translation>Talvesk-Stile (*.tvstyle)</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Stil anwenden</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle);;All files (*)</source>
        <translation>Talvesk-Stile (*.tvstyle);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The section looks as before.</source>
        <translation>Der Schnitt sieht aus wie zuvor.</translation>
    </message>
    <message>
        <source>Style of %1</source>
        <translation>Stil von %1</translation>
    </message>
    <message>
        <source>Geophones and shots stand where they were surveyed.</source>
        <translation>Geophone und Schüsse stehen, wo sie vermessen wurden.</translation>
    </message>
    <message>
        <source>Open surveyed positions</source>
        <translation>Vermessene Positionen öffnen</translation>
    </message>
    <message>
        <source>Tables of coordinates (*.csv *.tsv *.txt *.dat *.xyz *.asc);;All files (*)</source>
        <translation>Koordinatentabellen (*.csv *.tsv *.txt *.dat *.xyz *.asc);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The positions cannot be read.</source>
        <translation>Die Positionen können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Spuren stummschalten</translation>
    </message>
    <message>
        <source>The selected traces are zero before (ms); 0: from nowhere</source>
        <translation>Die ausgewählten Spuren sind null vor (ms); 0: nirgends</translation>
    </message>
    <message>
        <source>Offset and reduced time</source>
        <translation>Offset und reduzierte Zeit</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Drucken ...</translation>
    </message>
    <message>
        <source>Preview a figure on paper at a chosen scale, print it or save it as PDF</source>
        <translation>Eine Abbildung in einem gewählten Maßstab auf Papier ansehen, drucken oder als PDF speichern</translation>
    </message>
    <message>
        <source>AutoPick all shots along the line</source>
        <translation>AutoPick aller Schüsse entlang der Messlinie</translation>
    </message>
    <message>
        <source>Pick the traces of all shots together, whichever are in view; picks that you made stay</source>
        <translation>Pickt die Spuren aller Schüsse gemeinsam, gleich welche im Bild sind; Ihre eigenen Picks bleiben</translation>
    </message>
    <message>
        <source>Campaign page ...</source>
        <translation>Kampagnenseite ...</translation>
    </message>
    <message>
        <source>Write a web page of each of several projects, and one on all of them</source>
        <translation>Schreibt eine Webseite für jedes von mehreren Projekten und eine über alle</translation>
    </message>
    <message>
        <source>By offset</source>
        <translation>Nach Offset</translation>
    </message>
    <message>
        <source>Order and space the traces by their offset, geophone minus shot: those before the shot at its left (key X)</source>
        <translation>Ordnet die Spuren nach ihrem Offset an, Geophon minus Schuss: die vor dem Schuss links von ihm (Taste X)</translation>
    </message>
    <message>
        <source>By absolute offset</source>
        <translation>Nach absolutem Offset</translation>
    </message>
    <message>
        <source>Order and space the traces by their distance from the shot, either side over the other (key Shift+X)</source>
        <translation>Ordnet die Spuren nach ihrer Entfernung vom Schuss an, beide Seiten übereinander (Taste Umschalt+X)</translation>
    </message>
    <message>
        <source>Reduced time</source>
        <translation>Reduzierte Zeit</translation>
    </message>
    <message>
        <source>Draw every trace earlier by its offset over a velocity, that of the ruler or the one asked for last; picks stay true times (key V)</source>
        <translation>Zeichnet jede Spur um ihren Offset durch eine Geschwindigkeit früher, die des Lineals oder die zuletzt eingegebene; Picks bleiben wahre Zeiten (Taste V)</translation>
    </message>
    <message>
        <source>Velocity of reduced time...</source>
        <translation>Geschwindigkeit der reduzierten Zeit...</translation>
    </message>
    <message>
        <source>Choose the velocity that waves have to be drawn flat (key Shift+V)</source>
        <translation>Die Geschwindigkeit wählen, mit der Wellen waagrecht gezeichnet werden (Taste Umschalt+V)</translation>
    </message>
    <message>
        <source>Gain with time</source>
        <translation>Verstärkung mit der Zeit</translation>
    </message>
    <message>
        <source>Draw late waves larger, by a power of their time; samples, picks and files stay as they are (key T)</source>
        <translation>Zeichnet späte Wellen größer, nach einer Potenz ihrer Zeit; Abtastwerte, Picks und Dateien bleiben, wie sie sind (Taste T)</translation>
    </message>
    <message>
        <source>Exponent of gain with time...</source>
        <translation>Exponent der Verstärkung mit der Zeit...</translation>
    </message>
    <message>
        <source>Choose the power of time that wiggles are drawn with (key Shift+T)</source>
        <translation>Die Potenz der Zeit wählen, mit der Wiggles gezeichnet werden (Taste Umschalt+T)</translation>
    </message>
    <message>
        <source>Trace headers...</source>
        <translation>Spurheader...</translation>
    </message>
    <message>
        <source>All that is known of every trace as a table, with what the headers of the shot files say</source>
        <translation>Alles, was über jede Spur bekannt ist, als Tabelle, mit dem, was die Header der Schussdateien sagen</translation>
    </message>
    <message>
        <source>Overlay two shots...</source>
        <translation>Zwei Schüsse überlagern...</translation>
    </message>
    <message>
        <source>Lay the traces of two shots over each other, and see their difference and their sum: blows of opposite sense, or a shot that was repeated</source>
        <translation>Legt die Spuren zweier Schüsse übereinander und zeigt ihre Differenz und ihre Summe: Schläge entgegengesetzter Richtung oder ein wiederholter Schuss</translation>
    </message>
    <message>
        <source>Sheet of shots ...</source>
        <translation>Blatt mit Schüssen ...</translation>
    </message>
    <message>
        <source>Several shots side by side on one sheet, with one axis of time, as PDF, SVG or PNG</source>
        <translation>Mehrere Schüsse nebeneinander auf einem Blatt, mit einer gemeinsamen Zeitachse, als PDF, SVG oder PNG</translation>
    </message>
    <message>
        <source>The shot has not been added to the survey.</source>
        <translation>Der Schuss wurde der Messung nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>Shot %1 is added; Undo takes it away.</source>
        <translation>Schuss %1 ist hinzugefügt; „Rückgängig“ nimmt ihn weg.</translation>
    </message>
    <message>
        <source>Save Shot File</source>
        <translation>Schussdatei speichern</translation>
    </message>
    <message>
        <source>SEG-2 (*.sg2);;SEG-Y (*.sgy)</source>
        <translation>SEG-2 (*.sg2);;SEG-Y (*.sgy)</translation>
    </message>
    <message>
        <source>Save Picture of Two Shots</source>
        <translation>Bild zweier Schüsse speichern</translation>
    </message>
    <message>
        <source>Add projects to the campaign page</source>
        <translation>Projekte zur Kampagnenseite hinzufügen</translation>
    </message>
    <message>
        <source>Save campaign page</source>
        <translation>Kampagnenseite speichern</translation>
    </message>
    <message>
        <source>Campaign page</source>
        <translation>Kampagnenseite</translation>
    </message>
    <message>
        <source>%1: project %2 of %3</source>
        <comment>file, number, count</comment>
        <translation>%1: Projekt %2 von %3</translation>
    </message>
    <message>
        <source>Saved in %1, without the changes of this survey that are not saved</source>
        <translation>In %1 gespeichert, ohne die nicht gespeicherten Änderungen dieser Messung</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Some values of the projects cannot be. They were put right or left out.</source>
        <translation>Einige Werte der Projekte sind nicht möglich. Sie wurden berichtigt oder weggelassen.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. The campaign page names them.</source>
        <translation>Fehlgeschlagene Projekte: %1. Die Kampagnenseite nennt sie.</translation>
    </message>
    <message>
        <source>Save Sheets of Shots</source>
        <translation>Blätter mit Schüssen speichern</translation>
    </message>
    <message>
        <source>PDF, all sheets in one file (*.pdf);;SVG picture (*.svg);;PNG picture (*.png)</source>
        <translation>PDF, alle Blätter in einer Datei (*.pdf);;SVG-Bild (*.svg);;PNG-Bild (*.png)</translation>
    </message>
    <message numerus="yes">
        <source>The sheets have not all been saved; %n file(s) are complete.</source>
        <translation>
            <numerusform>Nicht alle Blätter wurden gespeichert; %n Datei ist vollständig.</numerusform>
            <numerusform>Nicht alle Blätter wurden gespeichert; %n Dateien sind vollständig.</numerusform>
        </translation>
    </message>
    <message>
        <source>there are no picks yet</source>
        <translation>es gibt noch keine Picks</translation>
    </message>
    <message>
        <source>Layered profile</source>
        <translation>Schichtprofil</translation>
    </message>
    <message>
        <source>there is no layered profile yet</source>
        <translation>es gibt noch kein Schichtprofil</translation>
    </message>
    <message>
        <source>Traces of shot %1</source>
        <translation>Spuren von Schuss %1</translation>
    </message>
    <message>
        <source>no shot with traces is in view</source>
        <translation>kein Schuss mit Spuren ist im Bild</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Abweichung jeder Iteration</translation>
    </message>
    <message>
        <source>there is no inversion yet</source>
        <translation>es gibt noch keine Inversion</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Residuen nach Schuss und Geophon</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residuen über dem Offset</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Residuen der Schüsse und der Geophone</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Residuen entlang der Strahlen</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Tiefenprofil</translation>
    </message>
    <message>
        <source>there is no section yet</source>
        <translation>es gibt noch keinen Schnitt</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P und S</translation>
    </message>
    <message>
        <source>its own dialog prints it</source>
        <translation>der eigene Dialog druckt es</translation>
    </message>
    <message>
        <source>Nothing has been printed.</source>
        <translation>Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>An %1 gesendet.</translation>
    </message>
    <message>
        <source>Save sheets as PDF</source>
        <translation>Blätter als PDF speichern</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Shots whose files name no fields: %1. %2</source>
        <translation>Schüsse, deren Dateien keine Felder nennen: %1. %2</translation>
    </message>
    <message>
        <source>Save Trace Headers</source>
        <translation>Spurheader speichern</translation>
    </message>
    <message>
        <source>Velocity V of t - |x|/V (%1):</source>
        <translation>Geschwindigkeit V in t - |x|/V (%1):</translation>
    </message>
    <message>
        <source>Exponent n of t^n, 0 for none:</source>
        <translation>Exponent n in t^n, 0 für keine:</translation>
    </message>
    <message>
        <source>Reduced %1 ms</source>
        <translation>Reduziert %1 ms</translation>
    </message>
    <message>
        <source>Section as it is shown</source>
        <translation>Schnitt, wie er gezeigt wird</translation>
    </message>
    <message>
        <source>Export surface, isolines, refractors, geophones, shots and annotations as a drawing for CAD</source>
        <translation>Oberfläche, Isolinien, Refraktoren, Geophone, Schüsse und Anmerkungen als CAD-Zeichnung exportieren</translation>
    </message>
    <message>
        <source>Stopped; the campaign page has not been saved, pages of %1 of its %2 projects have.</source>
        <translation>Angehalten; die Kampagnenseite wurde nicht gespeichert, wohl aber die Seiten von %1 ihrer %2 Projekte.</translation>
    </message>
    <message>
        <source>The printer failed after %1 of %2 sheets.</source>
        <translation>Der Drucker ist nach %1 von %2 Blättern ausgefallen.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. There is no campaign page that names them.</source>
        <translation>Fehlgeschlagene Projekte: %1. Es gibt keine Kampagnenseite, die sie nennt.</translation>
    </message>
</context>
<context>
    <name>talvesk::TraceAxes</name>
    <message>
        <source>x (%1)</source>
        <translation>x (%1)</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Zeit (ms)</translation>
    </message>
    <message>
        <source>Offset (%1)</source>
        <translation>Offset (%1)</translation>
    </message>
    <message>
        <source>|x| (%1)</source>
        <comment>absolute offset</comment>
        <translation>|x| (%1)</translation>
    </message>
    <message>
        <source>Reduced time (ms), t - |x|/%1 %2</source>
        <translation>Reduzierte Zeit (ms), t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>%1, gain t^%2</source>
        <comment>time axis, exponent</comment>
        <translation>%1, Verstärkung t^%2</translation>
    </message>
</context>
<context>
    <name>talvesk::TraceHeadersDialog</name>
    <message>
        <source>Trace headers</source>
        <translation>Spurheader</translation>
    </message>
    <message>
        <source>Headers of all traces</source>
        <translation>Header aller Spuren</translation>
    </message>
    <message>
        <source>A click on a heading sorts by it; the current row is shown among the traces</source>
        <translation>Ein Klick auf eine Überschrift sortiert danach; die aktuelle Zeile wird bei den Spuren gezeigt</translation>
    </message>
    <message>
        <source>Reads the shot files again and adds a column for every field that their headers name: instrument, time of recording, gain, stack, notes</source>
        <translation>Liest die Schussdateien erneut und fügt für jedes Feld, das ihre Header nennen, eine Spalte hinzu: Gerät, Zeit der Aufzeichnung, Verstärkung, Stapelung, Notizen</translation>
    </message>
    <message>
        <source>All &amp;fields of the shot files</source>
        <translation>Alle &amp;Felder der Schussdateien</translation>
    </message>
    <message>
        <source>The selected rows, or all of them, with a heading, as spreadsheets paste them (Ctrl+C)</source>
        <translation>Die ausgewählten Zeilen oder alle, mit Überschrift, zum Einfügen in Tabellenkalkulationen (Strg+C)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>All rows in the order of shots and traces, lengths in metres, with decimal points</source>
        <translation>Alle Zeilen in der Reihenfolge der Schüsse und Spuren, Längen in Metern, mit Dezimalpunkt</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Tabelle speichern...</translation>
    </message>
    <message>
        <source>Traces: %1</source>
        <translation>Spuren: %1</translation>
    </message>
    <message>
        <source>Rows copied: %1</source>
        <translation>Zeilen kopiert: %1</translation>
    </message>
    <message>
        <source>Not in the table: %1</source>
        <translation>Nicht in der Tabelle: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::TraceHeadersModel</name>
    <message>
        <source>%1 [%2]</source>
        <comment>quantity, unit</comment>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>%1 [ms]</source>
        <comment>quantity</comment>
        <translation>%1 [ms]</translation>
    </message>
</context>
<context>
    <name>talvesk::TraceTexts</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1, %2 ms</source>
        <translation>%1, %2 ms</translation>
    </message>
    <message>
        <source>%1 (%2, %3 ms)</source>
        <translation>%1 (%2, %3 ms)</translation>
    </message>
    <message>
        <source>Other shots</source>
        <translation>Andere Schüsse</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Berechnet</translation>
    </message>
    <message>
        <source>Air %1</source>
        <translation>Luft %1</translation>
    </message>
    <message>
        <source>No other shot of the string is picked</source>
        <translation>Kein anderer Schuss der Auslage ist gepickt</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <comment>number, place</comment>
        <translation>Schuss %1 bei %2</translation>
    </message>
    <message>
        <source>No computed times</source>
        <translation>Keine berechneten Zeiten</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Reziproke Zeiten</translation>
    </message>
    <message>
        <source>No reciprocal times</source>
        <translation>Keine reziproken Zeiten</translation>
    </message>
</context>
<context>
    <name>talvesk::TravelTimePlot</name>
    <message>
        <source>Travel-time curves</source>
        <translation>Laufzeitkurven</translation>
    </message>
    <message>
        <source>No travel times yet.

Pick first breaks in the traces, by hand or with AutoPick, or import travel times.</source>
        <translation>Noch keine Laufzeiten.

Picken Sie Ersteinsätze in den Spuren, von Hand oder mit AutoPick, oder importieren Sie Laufzeiten.</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Entfernung [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Zeit [ms]</translation>
    </message>
    <message>
        <source>&amp;Measured</source>
        <translation>&amp;Gemessen</translation>
    </message>
    <message>
        <source>&amp;Computed</source>
        <translation>&amp;Berechnet</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Alles anzeigen</translation>
    </message>
    <message>
        <source>Show all curves</source>
        <translation>Zeigt alle Kurven</translation>
    </message>
    <message>
        <source>Export &amp;picture...</source>
        <translation>B&amp;ild exportieren...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Speichert die Kurven als PNG, SVG oder PDF</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <translation>Schuss %1 bei %2</translation>
    </message>
    <message>
        <source>Shot %1 has no travel times yet</source>
        <translation>Schuss %1 hat noch keine Laufzeiten</translation>
    </message>
    <message>
        <source>Click a curve to choose its shot</source>
        <translation>Ein Klick auf eine Kurve wählt ihren Schuss</translation>
    </message>
    <message>
        <source>Shot %1, trace %2: %3 ms</source>
        <translation>Schuss %1, Spur %2: %3 ms</translation>
    </message>
    <message>
        <source>Computed: %1 ms</source>
        <translation>Berechnet: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Remove pick</source>
        <translation>Pick &amp;entfernen</translation>
    </message>
    <message>
        <source>Zoom &amp;back</source>
        <translation>&amp;Vorige Ansicht</translation>
    </message>
    <message>
        <source>Zoom for&amp;ward</source>
        <translation>&amp;Nächste Ansicht</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Error: %1 ms</source>
        <translation>Fehler: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>&amp;Schichten</translation>
    </message>
    <message>
        <source>Times computed through the layers of the refraction interpretation</source>
        <translation>Zeiten, durch die Schichten der Refraktionsauswertung berechnet</translation>
    </message>
    <message>
        <source>There are no layers of these picks: build the profiles of the refraction interpretation (anew).</source>
        <translation>Es gibt keine Schichten aus diesen Picks: Erstellen Sie die Profile der Refraktionsauswertung (neu).</translation>
    </message>
    <message>
        <source>Layers: %1 ms</source>
        <translation>Schichten: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::VelocityFilterDialog</name>
    <message>
        <source>Velocity filter</source>
        <translation>Geschwindigkeitsfilter</translation>
    </message>
    <message>
        <source>Keeps or takes out waves by their apparent velocity along the line, in the filtered copy. Drag the sides of the wedge, or type velocities.</source>
        <translation>Behält oder entfernt Wellen nach ihrer Scheingeschwindigkeit entlang der Messlinie, in der gefilterten Kopie. Ziehen Sie die Seiten des Keils oder geben Sie Geschwindigkeiten ein.</translation>
    </message>
    <message>
        <source>&amp;Slowest (m/s):</source>
        <translation>Langs&amp;amste (m/s):</translation>
    </message>
    <message>
        <source>Least apparent velocity of the wedge; the full line in the picture</source>
        <translation>Kleinste Scheingeschwindigkeit des Keils; im Bild die durchgezogene Linie</translation>
    </message>
    <message>
        <source>&amp;Fastest (m/s):</source>
        <translation>&amp;Schnellste (m/s):</translation>
    </message>
    <message>
        <source>Greatest apparent velocity of the wedge, 0 for no limit; the dashed line in the picture</source>
        <translation>Größte Scheingeschwindigkeit des Keils, 0 für keine Grenze; im Bild die gestrichelte Linie</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Wellen:</translation>
    </message>
    <message>
        <source>Forth is towards greater distances along the line</source>
        <translation>Vorwärts heißt zu größeren Entfernungen entlang der Messlinie</translation>
    </message>
    <message>
        <source>Both ways</source>
        <translation>In beiden Richtungen</translation>
    </message>
    <message>
        <source>Forth along the line</source>
        <translation>Vorwärts entlang der Messlinie</translation>
    </message>
    <message>
        <source>Back along the line</source>
        <translation>Rückwärts entlang der Messlinie</translation>
    </message>
    <message>
        <source>Wedge:</source>
        <translation>Keil:</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>Wird &amp;durchgelassen</translation>
    </message>
    <message>
        <source>Is re&amp;jected</source>
        <translation>Wird &amp;gesperrt</translation>
    </message>
    <message>
        <source>&amp;Taper (%):</source>
        <translation>&amp;Taper (%):</translation>
    </message>
    <message>
        <source>How far beside the wedge the filter sets in, in percent of its slowness there</source>
        <translation>Wie weit neben dem Keil der Filter einsetzt, in Prozent der dortigen Langsamkeit</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Filter anwenden auf:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>O&amp;riginal</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>Gefi&amp;ltert</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Zeigen:</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>&amp;Vorher</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>&amp;Nachher</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Der Filter gilt für alle Schüsse.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>Der Filter gilt für Schuss %1.</translation>
    </message>
    <message>
        <source>Shot %1 cannot be filtered: %2</source>
        <translation>Schuss %1 kann nicht gefiltert werden: %2</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>Kein Filter angewendet.</translation>
    </message>
</context>
<context>
    <name>talvesk::WebPage</name>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>About the report</source>
        <translation>Über den Bericht</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Zum Inhalt springen</translation>
    </message>
    <message>
        <source>%1: velocity</source>
        <translation>%1: Geschwindigkeit</translation>
    </message>
    <message>
        <source>Faster than %1 by</source>
        <translation>Schneller als %1 um</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>What the section shows</source>
        <translation>Was der Schnitt zeigt</translation>
    </message>
    <message>
        <source>Point at the section to read it, click for the profile below a point, drag to move it. Keys: arrows move a cross, Enter shows the profile below it, + and - zoom, 0 shows all.</source>
        <translation>Zeigen Sie auf den Schnitt, um Werte abzulesen; ein Klick zeigt das Profil unter einer Stelle, Ziehen verschiebt den Schnitt. Tasten: Pfeiltasten bewegen ein Kreuz, die Eingabetaste zeigt das Profil darunter, + und - zoomen, 0 zeigt alles.</translation>
    </message>
    <message>
        <source>Colours show</source>
        <translation>Farben zeigen</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Colours from</source>
        <translation>Farben von</translation>
    </message>
    <message>
        <source>Colours to</source>
        <translation>Farben bis</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolinien</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Überhöhung</translation>
    </message>
    <message>
        <source>as it fits</source>
        <translation>passend</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Strahlen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Grenze der Abdeckung</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geophone</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Schüsse</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Entfernung %1</translation>
    </message>
    <message>
        <source>elevation %1</source>
        <translation>Höhe %1</translation>
    </message>
    <message>
        <source>depth %1</source>
        <translation>Tiefe %1</translation>
    </message>
    <message>
        <source>Vertical profile</source>
        <translation>Vertikalprofil</translation>
    </message>
    <message>
        <source>Vertical profile at %1</source>
        <translation>Vertikalprofil bei %1</translation>
    </message>
    <message>
        <source>Depth from [%1]</source>
        <translation>Tiefe von [%1]</translation>
    </message>
    <message>
        <source>Depth to [%1]</source>
        <translation>Tiefe bis [%1]</translation>
    </message>
    <message>
        <source>Depth below ground [%1]</source>
        <translation>Tiefe unter Gelände [%1]</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Geschwindigkeit [%1]</translation>
    </message>
    <message>
        <source>The section has %1 cells, too many to be explored in a page: it stands here as a picture.</source>
        <translation>Der Schnitt hat %1 Zellen, zu viele für eine interaktive Darstellung auf einer Seite: Er steht hier als Bild.</translation>
    </message>
    <message>
        <source>Travel-time curves</source>
        <translation>Laufzeitkurven</translation>
    </message>
    <message>
        <source>What the curves show</source>
        <translation>Was die Kurven zeigen</translation>
    </message>
    <message>
        <source>Point at a pick to read it, click it for its recording and its ray in the section. Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Zeigen Sie auf einen Pick, um ihn abzulesen; ein Klick zeigt seine Aufzeichnung und seinen Strahl im Schnitt. Tasten: Links und Rechts gehen von Pick zu Pick, Auf und Ab von Schuss zu Schuss, + und - zoomen, 0 zeigt alles.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Fehlerbalken</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Berechnet</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Schuss %1</translation>
    </message>
    <message>
        <source>geophone %1 at %2</source>
        <translation>Geophon %1 bei %2</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 ± %2 ms</source>
        <translation>%1 ± %2 ms</translation>
    </message>
    <message>
        <source>computed %1 ms</source>
        <translation>berechnet %1 ms</translation>
    </message>
    <message>
        <source>misfit %1 ms</source>
        <translation>Abweichung %1 ms</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Schuss</translation>
    </message>
    <message>
        <source>Geophone</source>
        <translation>Geophon</translation>
    </message>
    <message>
        <source>Measured [ms]</source>
        <translation>Gemessen [ms]</translation>
    </message>
    <message>
        <source>Error [ms]</source>
        <translation>Fehler [ms]</translation>
    </message>
    <message>
        <source>Computed [ms]</source>
        <translation>Berechnet [ms]</translation>
    </message>
    <message>
        <source>Misfit [ms]</source>
        <translation>Abweichung [ms]</translation>
    </message>
    <message>
        <source>Recording of the shot</source>
        <translation>Aufzeichnung des Schusses</translation>
    </message>
    <message>
        <source>There is no recording of this shot.</source>
        <translation>Von diesem Schuss gibt es keine Aufzeichnung.</translation>
    </message>
    <message>
        <source>The recording of this shot is left out: those of the shots before it are as much as a page holds.</source>
        <translation>Die Aufzeichnung dieses Schusses ist weggelassen: Mehr als die der Schüsse davor fasst eine Seite nicht.</translation>
    </message>
    <message>
        <source>Misfit of every shot</source>
        <translation>Abweichung jedes Schusses</translation>
    </message>
    <message>
        <source>Misfit of every geophone</source>
        <translation>Abweichung jedes Geophons</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Abweichung jeder Iteration</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Berechnet minus gemessen [ms]</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Mean [ms]</source>
        <translation>Mittel [ms]</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picks</translation>
    </message>
    <message>
        <source>RMS %1 ms</source>
        <translation>RMS %1 ms</translation>
    </message>
    <message>
        <source>mean %1 ms</source>
        <translation>Mittel %1 ms</translation>
    </message>
    <message>
        <source>picks: %1</source>
        <translation>Picks: %1</translation>
    </message>
    <message>
        <source>Iteration</source>
        <translation>Iteration</translation>
    </message>
    <message>
        <source>Iteration %1</source>
        <translation>Iteration %1</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Schnitt, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Letzter Durchgang des Lösers, RMS [ms]</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Zeiten hin und zurück</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Hin [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Zurück [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Differenz [ms]</translation>
    </message>
    <message>
        <source>Shots %1 and %2</source>
        <translation>Schüsse %1 und %2</translation>
    </message>
    <message>
        <source>there %1 ms</source>
        <translation>hin %1 ms</translation>
    </message>
    <message>
        <source>back %1 ms</source>
        <translation>zurück %1 ms</translation>
    </message>
    <message>
        <source>difference %1 ms</source>
        <translation>Differenz %1 ms</translation>
    </message>
    <message>
        <source>The numbers of this figure</source>
        <translation>Die Zahlen dieser Abbildung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Picks as CSV</source>
        <translation>Picks als CSV</translation>
    </message>
    <message>
        <source>Section as CSV</source>
        <translation>Schnitt als CSV</translation>
    </message>
    <message>
        <source>Map of the line</source>
        <translation>Karte der Messlinie</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Erstes Geophon</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Letztes Geophon</translation>
    </message>
    <message>
        <source>Open the place in a map service</source>
        <translation>Die Stelle in einem Kartendienst öffnen</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Tasten: links und rechts gehen von Pick zu Pick, auf und ab von Schuss zu Schuss, + und - zoomen, 0 zeigt alles.</translation>
    </message>
    <message>
        <source>Point at a mark to read it. Keys: left and right go from mark to mark, + and - zoom, 0 shows all.</source>
        <translation>Zum Ablesen auf eine Marke zeigen. Tasten: links und rechts gehen von Marke zu Marke, + und - zoomen, 0 zeigt alles.</translation>
    </message>
</context>
<context>
    <name>talvesk::XYCriteria</name>
    <message>
        <source>XY (%1)</source>
        <translation>XY (%1)</translation>
    </message>
    <message>
        <source>Roughness of tV</source>
        <translation>Rauheit von tV</translation>
    </message>
    <message>
        <source>RMS (ms)</source>
        <translation>RMS (ms)</translation>
    </message>
    <message>
        <source>Unevenness of velocity</source>
        <translation>Ungleichmäßigkeit der Geschwindigkeit</translation>
    </message>
    <message>
        <source>RMS (%)</source>
        <translation>RMS (%)</translation>
    </message>
    <message>
        <source>Roughness of tV against XY</source>
        <translation>Rauheit von tV über XY</translation>
    </message>
    <message>
        <source>Unevenness of velocity against XY</source>
        <translation>Ungleichmäßigkeit der Geschwindigkeit über XY</translation>
    </message>
    <message>
        <source>Click to choose it</source>
        <translation>Klicken, um es zu wählen</translation>
    </message>
    <message>
        <source>No XY can be judged: forward and reverse curve have too few geophones in common.</source>
        <translation>Kein XY lässt sich beurteilen: Hin- und Gegenkurve haben zu wenige Geophone gemeinsam.</translation>
    </message>
    <message>
        <source>Nothing is built yet.</source>
        <translation>Noch nichts erstellt.</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
    <message>
        <source>proposed</source>
        <translation>vorgeschlagen</translation>
    </message>
</context>
<context>
    <name>talvesk::contourlines_dialog</name>
    <message>
        <source>Contour Lines - Settings</source>
        <translation>Isolinien - Einstellungen</translation>
    </message>
    <message>
        <source>Contour values</source>
        <translation>Werte der Isolinien</translation>
    </message>
    <message>
        <source>Equally spaced contour values</source>
        <translation>Gleichabständige Werte</translation>
    </message>
    <message>
        <source>Values that divide the range into equal parts</source>
        <translation>Werte, die den Bereich in gleiche Teile teilen</translation>
    </message>
    <message>
        <source># Values</source>
        <translation>Anzahl Werte</translation>
    </message>
    <message>
        <source>How many values divide the range</source>
        <translation>Wie viele Werte den Bereich teilen</translation>
    </message>
    <message>
        <source>Customized Contour Values</source>
        <translation>Eigene Werte</translation>
    </message>
    <message>
        <source>The values of the list</source>
        <translation>Die Werte der Liste</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Add One More Value</source>
        <translation>Wert hinzufügen</translation>
    </message>
    <message>
        <source>Add an empty line to the list</source>
        <translation>Fügt der Liste eine leere Zeile hinzu</translation>
    </message>
    <message>
        <source>Load Isovalues</source>
        <translation>Isowerte laden</translation>
    </message>
    <message>
        <source>Replace the list by the values of a file</source>
        <translation>Ersetzt die Liste durch die Werte einer Datei</translation>
    </message>
    <message>
        <source>Save Isovalues</source>
        <translation>Isowerte speichern</translation>
    </message>
    <message>
        <source>Write the list to a file</source>
        <translation>Schreibt die Liste in eine Datei</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Leert die Liste</translation>
    </message>
    <message>
        <source>Where contours are shown</source>
        <translation>Wo Isolinien gezeigt werden</translation>
    </message>
    <message>
        <source>Show Contours (on top of  Tomographic Profile)</source>
        <translation>Isolinien zeigen (auf dem tomographischen Schnitt)</translation>
    </message>
    <message>
        <source>Lines over the velocities</source>
        <translation>Linien über den Geschwindigkeiten</translation>
    </message>
    <message>
        <source>Show Filled Contours</source>
        <translation>Gefüllte Isoflächen zeigen</translation>
    </message>
    <message>
        <source>Velocities in bands from one value to the next</source>
        <translation>Geschwindigkeiten als Bänder von einem Wert zum nächsten</translation>
    </message>
    <message>
        <source>Show Contours (on Vertical Gradient of Velocity)</source>
        <translation>Isolinien zeigen (auf dem vertikalen Geschwindigkeitsgradienten)</translation>
    </message>
    <message>
        <source>Lines over the vertical gradient; not together with filled contours</source>
        <translation>Linien über dem vertikalen Gradienten; nicht zusammen mit gefüllten Isoflächen</translation>
    </message>
    <message>
        <source>Show Contours (on Laplacian Gradient of Velocity)</source>
        <translation>Isolinien zeigen (auf dem Laplace-Gradienten der Geschwindigkeit)</translation>
    </message>
    <message>
        <source>Lines over the Laplacian; not together with filled contours</source>
        <translation>Linien über dem Laplace-Gradienten; nicht zusammen mit gefüllten Isoflächen</translation>
    </message>
    <message>
        <source>Lines and labels</source>
        <translation>Linien und Beschriftung</translation>
    </message>
    <message>
        <source>Show label every N contour lines</source>
        <translation>Jede N-te Isolinie beschriften</translation>
    </message>
    <message>
        <source>1 labels every line, 2 every second one</source>
        <translation>1 beschriftet jede Linie, 2 jede zweite</translation>
    </message>
    <message>
        <source>No labels</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Size of the labels in points</source>
        <translation>Größe der Beschriftung in Punkt</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Contours colour:</source>
        <translation>Farbe der Isolinien:</translation>
    </message>
    <message>
        <source>Choose the colour of the lines</source>
        <translation>Wählt die Farbe der Linien</translation>
    </message>
    <message>
        <source>Contours colour</source>
        <translation>Farbe der Isolinien</translation>
    </message>
    <message>
        <source>Isolines (*.csv)</source>
        <translation>Isolinien (*.csv)</translation>
    </message>
    <message>
        <source>The section shows values from %1 to %2 %3</source>
        <translation>Der Schnitt zeigt Werte von %1 bis %2 %3</translation>
    </message>
    <message>
        <source>Value : </source>
        <translation>Wert : </translation>
    </message>
    <message>
        <source>Remove this value</source>
        <translation>Diesen Wert entfernen</translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) of the list are no numbers from %1 to %2.</source>
        <translation>
            <numerusform>%n Wert der Liste ist keine Zahl von %1 bis %2.</numerusform>
            <numerusform>%n Werte der Liste sind keine Zahlen von %1 bis %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Datei ersetzen?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Cannot save file </source>
        <translation>Datei kann nicht gespeichert werden: </translation>
    </message>
    <message>
        <source>Cannot open file </source>
        <translation>Datei kann nicht geöffnet werden: </translation>
    </message>
    <message>
        <source>Invalid value at line </source>
        <translation>Ungültiger Wert in Zeile </translation>
    </message>
    <message>
        <source>Or wrong CVS separator.</source>
        <translation>Oder falsches CSV-Trennzeichen.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Some loaded isovalues were out of range. Ignored.</source>
        <translation>Einige geladene Isowerte lagen außerhalb des Bereichs und wurden ignoriert.</translation>
    </message>
    <message>
        <source>Select background color</source>
        <translation>Farbe der Isolinien wählen</translation>
    </message>
    <message>
        <source>Round Values</source>
        <translation>Runde Werte</translation>
    </message>
    <message>
        <source>Replace the list by round values over the range</source>
        <translation>Die Liste durch runde Werte über den Bereich ersetzen</translation>
    </message>
    <message>
        <source>None of these is checked: no contours will be drawn.</source>
        <translation>Nichts davon ist angekreuzt: Es werden keine Isolinien gezeichnet.</translation>
    </message>
    <message>
        <source>What the section shows has no contours. Those of the velocity lie between %1 and %2 %3</source>
        <translation>Was der Schnitt zeigt, hat keine Isolinien. Die der Geschwindigkeit liegen zwischen %1 und %2 %3</translation>
    </message>
    <message>
        <source>; the file has them in %1</source>
        <translation>; in der Datei stehen sie in %1</translation>
    </message>
</context>
<context>
    <name>talvesk::doFilteringDialog</name>
    <message>
        <source>Trace Filtering</source>
        <translation>Spurfilterung</translation>
    </message>
    <message>
        <source>High Pass Filter</source>
        <translation>Hochpassfilter</translation>
    </message>
    <message>
        <source>Use &amp;high pass</source>
        <translation>&amp;Hochpass verwenden</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Frequenz (Hz)</translation>
    </message>
    <message>
        <source>High pass frequency in hertz</source>
        <translation>Hochpassfrequenz in Hertz</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordnung</translation>
    </message>
    <message>
        <source>High pass order</source>
        <translation>Ordnung des Hochpasses</translation>
    </message>
    <message>
        <source>Low Pass Filter</source>
        <translation>Tiefpassfilter</translation>
    </message>
    <message>
        <source>Use &amp;low pass</source>
        <translation>&amp;Tiefpass verwenden</translation>
    </message>
    <message>
        <source>Low pass frequency in hertz</source>
        <translation>Tiefpassfrequenz in Hertz</translation>
    </message>
    <message>
        <source>Low pass order</source>
        <translation>Ordnung des Tiefpasses</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Filter anwenden auf:</translation>
    </message>
    <message>
        <source>Filter the samples as they were recorded</source>
        <translation>Filtert die Abtastwerte, wie sie aufgezeichnet wurden</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Filter what the filters and AGC before made of them</source>
        <translation>Filtert, was frühere Filter und AGC daraus gemacht haben</translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation>Gefiltert</translation>
    </message>
    <message>
        <source>&amp;Apply filter</source>
        <translation>&amp;Filter anwenden</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Anzeigen:</translation>
    </message>
    <message>
        <source>What the filter is applied to</source>
        <translation>Worauf der Filter angewendet wird</translation>
    </message>
    <message>
        <source>Original data</source>
        <translation>Originaldaten</translation>
    </message>
    <message>
        <source>What comes out of the filter</source>
        <translation>Was aus dem Filter kommt</translation>
    </message>
    <message>
        <source>Filtered data</source>
        <translation>Gefilterte Daten</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Schuss %1 von %2</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Der Filter gilt für alle Schüsse.</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>Kein Filter angewendet. Die Filterordnung muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>Kein Filter angewendet.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n Spur bleibt, wie sie war.</numerusform>
            <numerusform>%n Spuren bleiben, wie sie waren.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::draw1DVelocityProfile</name>
    <message>
        <source>Velocity against depth</source>
        <translation>Geschwindigkeit über der Tiefe</translation>
    </message>
    <message>
        <source>Velocity (%1)</source>
        <translation>Geschwindigkeit (%1)</translation>
    </message>
    <message>
        <source>Depth below the ground (%1)</source>
        <translation>Tiefe unter Gelände (%1)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Velocity that the grid gets</source>
        <translation>Geschwindigkeit im Gitter</translation>
    </message>
</context>
<context>
    <name>talvesk::editTravelTimesWidget</name>
    <message>
        <source>Seismic traces</source>
        <translation>Seismische Spuren</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms</source>
        <translation>Spur %1, gepickt bei %2 ms</translation>
    </message>
    <message>
        <source>Trace %1, not picked</source>
        <translation>Spur %1, nicht gepickt</translation>
    </message>
    <message>
        <source>No samples, only picks</source>
        <translation>Keine Abtastwerte, nur Picks</translation>
    </message>
    <message>
        <source>Open shot files with Ctrl+O or drop them here</source>
        <translation>Schussdateien mit Strg+O öffnen oder hierher ziehen</translation>
    </message>
    <message>
        <source>No shot is shown</source>
        <translation>Kein Schuss angezeigt</translation>
    </message>
    <message>
        <source>This shot has no traces</source>
        <translation>Dieser Schuss hat keine Spuren</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms, error %3 ms</source>
        <translation>Spur %1, gepickt bei %2 ms, Fehler %3 ms</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Fehler %1 ms</translation>
    </message>
    <message>
        <source>Traces %1: C confirms, Del removes, K kills, P reverses, U mutes, Esc leaves</source>
        <translation>Spuren %1: C bestätigt, Entf entfernt, K schaltet aus, P kehrt um, U schaltet stumm, Esc bricht ab</translation>
    </message>
    <message>
        <source>Times are not reduced: offsets are not known</source>
        <translation>Zeiten sind nicht reduziert: Offsets sind nicht bekannt</translation>
    </message>
    <message>
        <source>Not by offset: offsets are not known, or all the same</source>
        <translation>Nicht nach Offset: Offsets sind nicht bekannt oder alle gleich</translation>
    </message>
</context>
<context>
    <name>talvesk::gridDialog</name>
    <message>
        <source>Grid Settings</source>
        <translation>Gittereinstellungen</translation>
    </message>
    <message>
        <source>Array length (m)</source>
        <translation>Länge der Auslage (m)</translation>
    </message>
    <message>
        <source>Max. depth (m)</source>
        <translation>Maximale Tiefe (m)</translation>
    </message>
    <message>
        <source>A deeper grid costs time and memory. Rays rarely reach deeper than a quarter to a third of the distance between the outermost shots.</source>
        <translation>Ein tieferes Gitter kostet Zeit und Speicher. Strahlen reichen selten tiefer als ein Viertel bis ein Drittel des Abstands der äußersten Schüsse.</translation>
    </message>
    <message>
        <source>Cell size (m)</source>
        <translation>Zellengröße (m)</translation>
    </message>
    <message>
        <source>Smaller cells draw finer detail and fit the times closer, but rays cover each cell less, and time and memory grow with the inverse square. A quarter of the geophone spacing is a good start.</source>
        <translation>Kleinere Zellen zeigen feinere Einzelheiten und passen sich den Zeiten besser an, aber jede Zelle wird von weniger Strahlen abgedeckt, und Zeit und Speicher wachsen mit dem inversen Quadrat. Ein Viertel des Geophonabstands ist ein guter Anfang.</translation>
    </message>
    <message>
        <source>N° of nodes per cell side</source>
        <translation>Knoten pro Zellenseite</translation>
    </message>
    <message>
        <source>More nodes let rays leave a cell at more angles, so computed times get more accurate; time and memory grow with the number. Beyond 15 little is gained.</source>
        <translation>Mit mehr Knoten können Strahlen eine Zelle unter mehr Winkeln verlassen, und die berechneten Zeiten werden genauer; Zeit und Speicher wachsen mit der Anzahl. Über 15 hinaus ist wenig gewonnen.</translation>
    </message>
    <message>
        <source>The grid will have</source>
        <translation>Das Gitter erhält</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Zellen</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>The grid has no rows: choose a greater depth or smaller cells.</source>
        <translation>Das Gitter hat keine Zeilen: Wählen Sie eine größere Tiefe oder kleinere Zellen.</translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) at the end of the line lie beyond the last column and take no part in an inversion. Another cell size may reach them.</source>
        <translation>
            <numerusform>%n Position am Ende der Messlinie liegt jenseits der letzten Spalte und nimmt an keiner Inversion teil. Eine andere Zellengröße erreicht sie vielleicht.</numerusform>
            <numerusform>%n Positionen am Ende der Messlinie liegen jenseits der letzten Spalte und nehmen an keiner Inversion teil. Eine andere Zellengröße erreicht sie vielleicht.</numerusform>
        </translation>
    </message>
    <message>
        <source>Invalid parameter</source>
        <translation>Ungültiger Parameter</translation>
    </message>
    <message>
        <source>The max depth parameter set to 0.0 is not valid for tomography</source>
        <translation>Eine maximale Tiefe von 0,0 ist für die Tomographie nicht gültig</translation>
    </message>
    <message>
        <source>Memory warning</source>
        <translation>Speicherwarnung</translation>
    </message>
    <message>
        <source>A large number of nodes may require a lot of memory</source>
        <translation>Eine große Anzahl von Knoten kann viel Speicher erfordern</translation>
    </message>
    <message>
        <source>Such small cells make an inversion very slow, and it stops only between iterations. A quarter of the geophone spacing is %1.</source>
        <translation>So kleine Zellen machen eine Inversion sehr langsam, und sie hält nur zwischen Iterationen an. Ein Viertel des Geophonabstands ist %1.</translation>
    </message>
    <message>
        <source>A quarter of the smallest geophone spacing, %1 at least. Off: the cell size of the grid that there is, the smallest without one.</source>
        <translation>Ein Viertel des kleinsten Geophonabstands, mindestens %1. Nicht angekreuzt: die Zellengröße des vorhandenen Gitters, ohne Gitter die kleinste.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Vorschlagen</translation>
    </message>
    <message>
        <source>Cell sizes that lose none:</source>
        <translation>Zellengrößen ohne Verlust:</translation>
    </message>
    <message>
        <source>Lost to an inversion: %1.</source>
        <translation>Bei einer Inversion gehen verloren: %1.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Die Ergebnisse der letzten Inversion werden entfernt („Rückgängig“ bringt sie zurück).</translation>
    </message>
</context>
<context>
    <name>talvesk::progressDialog</name>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Saving project</source>
        <translation>Projekt wird gespeichert</translation>
    </message>
    <message>
        <source>Loading project</source>
        <translation>Projekt wird geladen</translation>
    </message>
    <message>
        <source>SAVED XML</source>
        <translation>XML GESPEICHERT</translation>
    </message>
    <message>
        <source>Saving grid...</source>
        <translation>Gitter wird gespeichert...</translation>
    </message>
    <message>
        <source>SAVED GRID</source>
        <translation>GITTER GESPEICHERT</translation>
    </message>
    <message>
        <source>Saving traces...</source>
        <translation>Spuren werden gespeichert...</translation>
    </message>
    <message>
        <source>SAVED TRACES</source>
        <translation>SPUREN GESPEICHERT</translation>
    </message>
    <message>
        <source>Saving palettes...</source>
        <translation>Paletten werden gespeichert...</translation>
    </message>
    <message>
        <source>SAVED PALETTES</source>
        <translation>PALETTEN GESPEICHERT</translation>
    </message>
    <message>
        <source>Compressing...</source>
        <translation>Komprimieren...</translation>
    </message>
    <message>
        <source>COMPRESSED</source>
        <translation>KOMPRIMIERT</translation>
    </message>
    <message>
        <source>Removing temporary files...</source>
        <translation>Temporäre Dateien werden entfernt...</translation>
    </message>
    <message>
        <source>COMPLETED</source>
        <translation>ABGESCHLOSSEN</translation>
    </message>
    <message>
        <source>Extracted</source>
        <translation>Entpackt</translation>
    </message>
    <message>
        <source>Loading XML</source>
        <translation>XML wird geladen</translation>
    </message>
    <message>
        <source>Loaded XML</source>
        <translation>XML geladen</translation>
    </message>
    <message>
        <source>Loading grid...</source>
        <translation>Gitter wird geladen...</translation>
    </message>
    <message>
        <source>Loaded GRID</source>
        <translation>GITTER geladen</translation>
    </message>
    <message>
        <source>Loading traces...</source>
        <translation>Spuren werden geladen...</translation>
    </message>
    <message>
        <source>Loaded TRACES</source>
        <translation>SPUREN geladen</translation>
    </message>
    <message>
        <source>Loading palettes...</source>
        <translation>Paletten werden geladen...</translation>
    </message>
    <message>
        <source>Loaded PALETTES</source>
        <translation>PALETTEN geladen</translation>
    </message>
    <message>
        <source>Tracing rays...</source>
        <translation>Strahlen werden verfolgt...</translation>
    </message>
</context>
<context>
    <name>talvesk::progressTomographyDialog</name>
    <message>
        <source>Tomography inversion</source>
        <translation>Tomographische Inversion</translation>
    </message>
    <message>
        <source>Ends the inversion after the external iteration under way and keeps what it has reached</source>
        <translation>Beendet die Inversion nach der laufenden äußeren Iteration und behält das Erreichte</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Completed iteration %1</source>
        <translation>Iteration %1 abgeschlossen</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Verstrichen: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>noch unbekannt</translation>
    </message>
    <message>
        <source>Remaining: %1</source>
        <translation>Verbleibend: %1</translation>
    </message>
    <message>
        <source>Stops when the iteration under way is completed.</source>
        <translation>Hält an, sobald die laufende Iteration abgeschlossen ist.</translation>
    </message>
    <message>
        <source>The models to start from are being traced.</source>
        <translation>Die möglichen Startmodelle werden durchstrahlt.</translation>
    </message>
    <message>
        <source>Ends by itself, after %1 iterations at the latest.</source>
        <translation>Endet von selbst, spätestens nach %1 Iterationen.</translation>
    </message>
    <message>
        <source>Iteration %1: chi-square %2, RMS %3 ms (%4 %)</source>
        <translation>Iteration %1: Chi-Quadrat %2, RMS %3 ms (%4 %)</translation>
    </message>
    <message>
        <source>Stops, with the best section so far.</source>
        <translation>Hält an, mit dem bisher besten Schnitt.</translation>
    </message>
    <message>
        <source>Another fit, from: %1</source>
        <translation>Weitere Anpassung, beginnend mit: %1</translation>
    </message>
    <message>
        <source>Iterations and misfits</source>
        <translation>Iterationen und Abweichungen</translation>
    </message>
</context>
<context>
    <name>talvesk::runTomography_Dialog</name>
    <message>
        <source>Run tomography inversion</source>
        <translation>Tomographische Inversion starten</translation>
    </message>
    <message>
        <source>Number of external iterations (default =5)</source>
        <translation>Anzahl äußerer Iterationen (Vorgabe =5)</translation>
    </message>
    <message>
        <source>Number of solver iterations (default =20)</source>
        <translation>Anzahl Löser-Iterationen (Vorgabe =20)</translation>
    </message>
    <message>
        <source>How far the velocities are corrected along the same rays before these are traced anew. More fit the times closer but may overfit noise; fewer keep the model smoother.</source>
        <translation>Wie weit die Geschwindigkeiten entlang derselben Strahlen korrigiert werden, bevor diese neu verfolgt werden. Mehr Iterationen passen die Zeiten genauer an, womöglich auch das Rauschen; weniger halten das Modell glatter.</translation>
    </message>
    <message>
        <source>Smoothing parameter (default =5) </source>
        <translation>Glättungsparameter (Vorgabe =5) </translation>
    </message>
    <message>
        <source>How many cells to each side are averaged after every external iteration. Larger gives a smoother section that hides small bodies; smaller shows detail and artefacts along rays.</source>
        <translation>Über wie viele Zellen nach jeder Seite nach jeder äußeren Iteration gemittelt wird. Ein größerer Wert ergibt einen glatteren Schnitt, der kleine Körper verbirgt; ein kleinerer zeigt Einzelheiten und Artefakte entlang der Strahlen.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Minimale Geschwindigkeit [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this. Set it to the slowest ground that you expect.</source>
        <translation>Langsamer wird keine Zelle. Geben Sie den langsamsten Boden an, den Sie erwarten.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Maximale Geschwindigkeit [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this. Set it to the fastest rock that you expect.</source>
        <translation>Schneller wird keine Zelle. Geben Sie das schnellste Gestein an, das Sie erwarten.</translation>
    </message>
    <message>
        <source>Type of smoothing:</source>
        <translation>Art der Glättung:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>Die gleich gewichtete mittelt alle Zellen gleich; die linear und die Gauß-gewichtete geben nahen Zellen mehr Gewicht und erhalten Kontraste schärfer; die strahlbasierte füllt zuerst die Zellen ohne Strahlen aus denen, die Strahlen durchquert haben.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Gleich gewichtete Glättung</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Linear gewichtete Glättung</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Gauß-gewichtete Glättung</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Strahlbasierte Glättung</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Nicht angekreuzt reicht die Glättung nach oben und unten 0,7-mal so weit wie zur Seite, was zu geschichtetem Untergrund passt. Angekreuzt reicht sie gleich weit, was zu Einzelkörpern und steilen Kontakten passt.</translation>
    </message>
    <message>
        <source>Symmetric smoothing</source>
        <translation>Symmetrische Glättung</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>Verwendet nur einen Prozessor. Das Ergebnis ist bis zur letzten Stelle dasselbe; es dauert nur länger.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Mit nur einem Thread rechnen</translation>
    </message>
    <message>
        <source>The minimum is above the maximum: every cell that changes will end at the maximum.</source>
        <translation>Das Minimum liegt über dem Maximum: Jede Zelle, die sich ändert, endet am Maximum.</translation>
    </message>
    <message>
        <source>Starts from the default model.</source>
        <translation>Beginnt mit dem Standardmodell.</translation>
    </message>
    <message>
        <source>Starts from the layered model.</source>
        <translation>Beginnt mit dem Schichtmodell.</translation>
    </message>
    <message>
        <source>Starts from the result of the last inversion.</source>
        <translation>Beginnt mit dem Ergebnis der letzten Inversion.</translation>
    </message>
    <message>
        <source>Starts from the smoothed result of the last inversion.</source>
        <translation>Beginnt mit dem geglätteten Ergebnis der letzten Inversion.</translation>
    </message>
    <message>
        <source>Starts from the present velocities of the grid.</source>
        <translation>Beginnt mit den jetzigen Geschwindigkeiten des Gitters.</translation>
    </message>
    <message>
        <source>Each external iteration traces the rays anew through the model so far. More of them bend the rays closer to the truth and lower the misfit; the time grows with the number. When the misfit curve has levelled off, more change little. The 5 of the label is enough for a first look; the box itself starts at 10.</source>
        <translation>Jede äußere Iteration verfolgt die Strahlen neu durch das bisherige Modell. Mehr Iterationen bringen die Strahlen der Wirklichkeit näher und senken die Abweichung; die Zeit wächst mit der Anzahl. Ist die Abweichungskurve flach geworden, ändern weitere wenig. Die 5 der Beschriftung genügt für einen ersten Blick; das Feld selbst beginnt mit 10.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Solver passes correct the velocities along traced rays and smooth them, as often as is said here. A fit to the picks&apos; errors chooses its own smoothing, ends by itself, and comes as close to the picks as their errors are and no closer.</source>
        <translation>Löserdurchgänge korrigieren die Geschwindigkeiten entlang verfolgter Strahlen und glätten sie, so oft wie hier angegeben. Eine Anpassung an die Fehler der Picks wählt ihre Glättung selbst, endet von selbst und kommt den Picks so nahe, wie deren Fehler es erlauben, und nicht näher.</translation>
    </message>
    <message>
        <source>Solver passes and smoothing</source>
        <translation>Löserdurchgänge und Glättung</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Anpassung an die Fehler der Picks</translation>
    </message>
    <message>
        <source>Lets the smoothing parameter shrink to a fifth over the external iterations, and keeps the iteration whose section fits the picks best along fresh rays, which need not be the last one.</source>
        <translation>Lässt den Glättungsparameter über die äußeren Iterationen auf ein Fünftel abnehmen und behält die Iteration, deren Schnitt entlang neuer Strahlen am besten zu den Picks passt; das muss nicht die letzte sein.</translation>
    </message>
    <message>
        <source>From coarse to fine, keeping the best iteration</source>
        <translation>Von grob nach fein, beste Iteration behalten</translation>
    </message>
    <message>
        <source>Sets the velocity limits and the smoothing parameter as the picks and the distance between geophones suggest them.</source>
        <translation>Setzt die Geschwindigkeitsgrenzen und den Glättungsparameter so, wie die Picks und der Geophonabstand es nahelegen.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Vorschlagen</translation>
    </message>
    <message>
        <source>Rays are expected down to %1; the grid reaches %2.</source>
        <translation>Strahlen sind bis %1 Tiefe zu erwarten; das Gitter reicht bis %2.</translation>
    </message>
    <message>
        <source>The minimum velocity must be below the maximum.</source>
        <translation>Die minimale Geschwindigkeit muss unter der maximalen liegen.</translation>
    </message>
</context>
<context>
    <name>talvesk::select_speed_Dialog</name>
    <message>
        <source>Define model velocity</source>
        <translation>Modellgeschwindigkeit festlegen</translation>
    </message>
    <message>
        <source>Depths below the ground (m), velocities (m/s)</source>
        <translation>Tiefen unter Gelände (m), Geschwindigkeiten (m/s)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Splits the last layer at its middle</source>
        <translation>Teilt die letzte Schicht in der Mitte</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Removes the layers that are checked or selected</source>
        <translation>Entfernt die angekreuzten oder ausgewählten Schichten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>The layers make no velocity model.</source>
        <translation>Die Schichten ergeben kein Geschwindigkeitsmodell.</translation>
    </message>
    <message>
        <source>Do you want to put them into the grid all the same?</source>
        <translation>Möchten Sie sie trotzdem in das Gitter übernehmen?</translation>
    </message>
    <message>
        <source>You have not changed the layers.</source>
        <translation>Sie haben die Schichten nicht geändert.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Die Ergebnisse der letzten Inversion werden entfernt („Rückgängig“ bringt sie zurück).</translation>
    </message>
    <message>
        <source>In the &amp;grid:</source>
        <translation>Im &amp;Gitter:</translation>
    </message>
    <message>
        <source>How layers become velocities of cells. A spline rounds jumps off and swings beside great ones; sharp layers keep them; graded layers spread every jump evenly over a thickness.</source>
        <translation>Wie aus Schichten Geschwindigkeiten der Zellen werden. Ein Spline rundet Sprünge ab und schwingt neben großen über; scharfe Schichtgrenzen behalten sie bei; gleichmäßige Übergänge verteilen jeden Sprung über eine Mächtigkeit.</translation>
    </message>
    <message>
        <source>Spline through the layers</source>
        <translation>Spline durch die Schichten</translation>
    </message>
    <message>
        <source>Sharp layers</source>
        <translation>Scharfe Schichtgrenzen</translation>
    </message>
    <message>
        <source>Graded layers</source>
        <translation>Gleichmäßige Übergänge</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Mächtigkeit eines Übergangs</translation>
    </message>
    <message>
        <source>Thickness over which a jump between two layers is spread</source>
        <translation>Mächtigkeit, über die ein Sprung zwischen zwei Schichten verteilt wird</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Puts the layers into the grid as they are, without a spline</source>
        <translation>Übernimmt die Schichten unverändert in das Gitter, ohne Spline</translation>
    </message>
    <message>
        <source>Use &amp;sharp layers</source>
        <translation>&amp;Scharfe Grenzen verwenden</translation>
    </message>
    <message>
        <source>Do you want sharp layers instead? They need no spline.</source>
        <translation>Möchten Sie stattdessen scharfe Schichtgrenzen? Sie brauchen keinen Spline.</translation>
    </message>
</context>
<context>
    <name>talvesk::setGeographyDialog</name>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Geographische Koordinaten</translation>
    </message>
    <message>
        <source>Easting (m)</source>
        <translation>Ostwert (m)</translation>
    </message>
    <message>
        <source>Northing (m)</source>
        <translation>Nordwert (m)</translation>
    </message>
    <message>
        <source>Latitude, longitude (WGS84)</source>
        <translation>Breite, Länge (WGS84)</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Erstes Geophon</translation>
    </message>
    <message>
        <source>Easting of the first geophone in metres</source>
        <translation>Ostwert des ersten Geophons in Metern</translation>
    </message>
    <message>
        <source>Northing of the first geophone in metres</source>
        <translation>Nordwert des ersten Geophons in Metern</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Letztes Geophon</translation>
    </message>
    <message>
        <source>Easting of the last geophone in metres</source>
        <translation>Ostwert des letzten Geophons in Metern</translation>
    </message>
    <message>
        <source>Northing of the last geophone in metres</source>
        <translation>Nordwert des letzten Geophons in Metern</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>EPSG-Code</translation>
    </message>
    <message>
        <source>EPSG code of the reference system</source>
        <translation>EPSG-Code des Referenzsystems</translation>
    </message>
    <message>
        <source>First geophone (at %1)</source>
        <translation>Erstes Geophon (bei %1)</translation>
    </message>
    <message>
        <source>Last geophone (at %1)</source>
        <translation>Letztes Geophon (bei %1)</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation>S</translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation>O</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>W</translation>
    </message>
    <message>
        <source>There is no reference system with this EPSG code.</source>
        <translation>Es gibt kein Referenzsystem mit diesem EPSG-Code.</translation>
    </message>
    <message>
        <source>This system is not projected: it has no easting and northing.</source>
        <translation>Dieses System ist nicht projiziert: Es hat keinen Ost- und Nordwert.</translation>
    </message>
    <message>
        <source>This system does not count in metres. Choose one that does.</source>
        <translation>Dieses System zählt nicht in Metern. Wählen Sie eines in Metern.</translation>
    </message>
    <message>
        <source>This system counts westward or southward. Choose one with easting and northing.</source>
        <translation>Dieses System zählt nach Westen oder Süden. Wählen Sie eines mit Ost- und Nordwert.</translation>
    </message>
    <message>
        <source>This system cannot be turned into longitude and latitude.</source>
        <translation>Dieses System lässt sich nicht in geographische Länge und Breite umrechnen.</translation>
    </message>
    <message>
        <source>Enter easting and northing of both geophones, in metres.</source>
        <translation>Geben Sie Ost- und Nordwert beider Geophone in Metern ein.</translation>
    </message>
    <message>
        <source>Enter the EPSG code of the reference system, for example 32632 for UTM zone 32 N.</source>
        <translation>Geben Sie den EPSG-Code des Referenzsystems ein, zum Beispiel 32632 für UTM-Zone 32 N.</translation>
    </message>
    <message>
        <source>The first and the last geophone have the same coordinates.</source>
        <translation>Das erste und das letzte Geophon haben dieselben Koordinaten.</translation>
    </message>
    <message>
        <source>These coordinates lie outside of the reference system.</source>
        <translation>Diese Koordinaten liegen außerhalb des Referenzsystems.</translation>
    </message>
    <message>
        <source>On the map the two geophones are %1 apart</source>
        <translation>Auf der Karte liegen die beiden Geophone %1 auseinander</translation>
    </message>
    <message>
        <source>%1, along the line %2.</source>
        <comment>distance on the map, distance along the line</comment>
        <translation>%1, entlang der Messlinie %2.</translation>
    </message>
    <message>
        <source>Check the coordinates.</source>
        <translation>Prüfen Sie die Koordinaten.</translation>
    </message>
</context>
<context>
    <name>talvesk::setVelocityWidget</name>
    <message>
        <source>Marks the layer for Remove</source>
        <translation>Kreuzt die Schicht für „Entfernen“ an</translation>
    </message>
    <message>
        <source>Initial depth   </source>
        <translation>Anfangstiefe   </translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s top below the ground (m)</source>
        <translation>Tiefe der Schichtoberkante unter Gelände (m)</translation>
    </message>
    <message>
        <source>    Velocity</source>
        <translation>    Geschwindigkeit</translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s top (m/s)</source>
        <translation>Geschwindigkeit an der Schichtoberkante (m/s)</translation>
    </message>
    <message>
        <source>Final depth</source>
        <translation>Endtiefe</translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s bottom below the ground (m)</source>
        <translation>Tiefe der Schichtunterkante unter Gelände (m)</translation>
    </message>
    <message>
        <source>    Velocity  </source>
        <translation>    Geschwindigkeit  </translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s bottom (m/s)</source>
        <translation>Geschwindigkeit an der Schichtunterkante (m/s)</translation>
    </message>
</context>
<context>
    <name>talvesk::smoothingDialog</name>
    <message>
        <source>Apply smoothing</source>
        <translation>Glättung anwenden</translation>
    </message>
    <message>
        <source>&amp;Type of smoothing:</source>
        <translation>&amp;Art der Glättung:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>Die gleich gewichtete mittelt alle Zellen gleich; die linear und die Gauß-gewichtete geben nahen Zellen mehr Gewicht und erhalten Kontraste schärfer; die strahlbasierte füllt zuerst die Zellen ohne Strahlen aus denen, die Strahlen durchquert haben.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Gleich gewichtete Glättung</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Linear gewichtete Glättung</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Gauß-gewichtete Glättung</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Strahlbasierte Glättung</translation>
    </message>
    <message>
        <source>Smoothing &amp;parameter:</source>
        <translation>&amp;Glättungsparameter:</translation>
    </message>
    <message>
        <source>How many cells to each side are averaged. Larger gives a smoother section that hides small bodies.</source>
        <translation>Über wie viele Zellen nach jeder Seite gemittelt wird. Ein größerer Wert ergibt einen glatteren Schnitt, der kleine Körper verbirgt.</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Nicht angekreuzt reicht die Glättung nach oben und unten 0,7-mal so weit wie zur Seite, was zu geschichtetem Untergrund passt. Angekreuzt reicht sie gleich weit, was zu Einzelkörpern und steilen Kontakten passt.</translation>
    </message>
    <message>
        <source>&amp;Symmetric smoothing</source>
        <translation>&amp;Symmetrische Glättung</translation>
    </message>
    <message>
        <source>Smooths the velocities of the present grid. Rays and misfit of a result are traced anew through the smoothed section.</source>
        <translation>Glättet die Geschwindigkeiten des vorhandenen Gitters. Strahlen und Abweichung eines Ergebnisses werden durch den geglätteten Schnitt neu berechnet.</translation>
    </message>
</context>
</TS>
