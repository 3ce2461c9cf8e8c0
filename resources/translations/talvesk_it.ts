<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CommandWords</name>
    <message>
        <source>start over, empty, close survey, clear</source>
        <translation>ricominciare, da capo, svuota, chiudi il rilievo, azzera progetto, vuoto</translation>
    </message>
    <message>
        <source>load recordings, seismograms, records, raw data, gathers, seg2, segy</source>
        <translation>carica registrazioni, sismogrammi, acquisizioni, dati grezzi, shot gather, scoppi, battute, energizzazioni, seg2, segy</translation>
    </message>
    <message>
        <source>file headers, metadata, sampling rate, sample interval</source>
        <translation>header dei file, metadati, frequenza di campionamento, passo di campionamento, parametri di acquisizione, numero di campioni</translation>
    </message>
    <message>
        <source>metadata, channels, trace table</source>
        <translation>header, metadati, canali, tabella delle tracce, trace header</translation>
    </message>
    <message>
        <source>trigger, pretrigger, time zero, t0, recording delay</source>
        <translation>trigger, pretrigger, tempo zero, istante zero, t0, ritardo di registrazione, delay, time break</translation>
    </message>
    <message>
        <source>trigger shift, time correction, static, reverse channels</source>
        <translation>errore di trigger, trigger in ritardo, correzione dei tempi, statica, canali invertiti, inverti canali, shift</translation>
    </message>
    <message>
        <source>delete shot, discard recording</source>
        <translation>elimina tiro, cancella tiro, scarta registrazione, elimina scoppio, rimuovi battuta</translation>
    </message>
    <message>
        <source>convert, seg2, segy</source>
        <translation>converti, conversione, salva sismogrammi, seg2, segy</translation>
    </message>
    <message>
        <source>geophone positions, receivers, source positions, shot points, spacing, spread, layout, elevations, topography, coordinates</source>
        <translation>posizione dei geofoni, ricevitori, sorgenti, punti di scoppio, punti di battuta, interdistanza, passo intergeofonico, stendimento, quote, topografia, coordinate</translation>
    </message>
    <message>
        <source>gps, gnss, total station, easting northing, longitude latitude, utm, topography, elevations, geophone positions</source>
        <translation>gps, gnss, stazione totale, rilievo topografico, est nord, longitudine latitudine, utm, gauss-boaga, topografia, quote, punti battuti</translation>
    </message>
    <message>
        <source>map position, easting northing, utm, epsg, georeference, reference system</source>
        <translation>ubicazione, posizione in pianta, est nord, utm, epsg, georeferenziazione, georeferenzia, sistema di riferimento, gps</translation>
    </message>
    <message>
        <source>band pass, bandpass, low pass, high pass, lowpass, highpass, frequencies</source>
        <translation>passabanda, passa banda, passabasso, passa basso, passaalto, passa alto, taglia basso, taglia alto, spettro di frequenza, hertz, Butterworth</translation>
    </message>
    <message>
        <source>mains, power line noise, hertz</source>
        <translation>rete elettrica, disturbo elettrico, rumore di rete, elimina banda, hertz, frequenza di rete</translation>
    </message>
    <message>
        <source>f-k, fk, fan filter, dip filter, ground roll, surface waves</source>
        <translation>f-k, fk, filtro a ventaglio, filtro di pendenza, ground roll, onde superficiali, onda d&apos;aria</translation>
    </message>
    <message>
        <source>balance, normalise, normalize, level</source>
        <translation>bilanciamento, normalizza, normalizzazione, equalizza, livella, gain</translation>
    </message>
    <message>
        <source>denoise, suppress noise</source>
        <translation>denoise, elimina il rumore, attenua il disturbo, pulizia del segnale, rapporto segnale rumore</translation>
    </message>
    <message>
        <source>reduction velocity, reduced travel times, linear moveout, flatten</source>
        <translation>velocità di riduzione, tempi ridotti, dromocrone ridotte, linear moveout, lmo, spiana, raddrizza</translation>
    </message>
    <message>
        <source>reduction velocity, reducing velocity, linear moveout, flatten</source>
        <translation>velocità di riduzione, tempi ridotti, linear moveout, lmo, spiana, raddrizza</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, amplify</source>
        <translation>tn, t^n, recupero delle ampiezze, divergenza sferica, espansione geometrica, amplifica, gain</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, power</source>
        <translation>tn, t^n, recupero delle ampiezze, divergenza sferica, espansione geometrica, gain</translation>
    </message>
    <message>
        <source>sort traces, common shot, distance</source>
        <translation>ordinamento delle tracce, sort, shot gather, distanza sorgente ricevitore</translation>
    </message>
    <message>
        <source>sort traces, distance</source>
        <translation>ordinamento delle tracce, sort, distanza sorgente ricevitore</translation>
    </message>
    <message>
        <source>dead, bad, noisy traces, disable, delete, zero</source>
        <translation>tracce morte, cattive, rumorose, disattiva, elimina, annulla tracce, kill, traccia muta</translation>
    </message>
    <message>
        <source>flip, invert, sign, phase</source>
        <translation>ribalta, rovescia, fase, flip, capovolgi, segno opposto</translation>
    </message>
    <message>
        <source>silence, blank, cut noise</source>
        <translation>mute, muting, silenzia, cancella il rumore, taglia, top mute</translation>
    </message>
    <message>
        <source>gain, scale, louder</source>
        <translation>gain, guadagno, scala, ingrandisci oscillazioni, aumenta</translation>
    </message>
    <message>
        <source>gain, scale, quieter</source>
        <translation>gain, guadagno, scala, riduci oscillazioni, diminuisci</translation>
    </message>
    <message>
        <source>shear waves, SH, opposite blows, hammer, subtract, stack</source>
        <translation>onde di taglio, onde S, SH, battute opposte, energizzazioni opposte, mazza, martello, sottrai, stack, sommare</translation>
    </message>
    <message>
        <source>gathers, record section, plot</source>
        <translation>shot gather, montaggio di sismogrammi, tavola dei sismogrammi, sezione delle registrazioni, plot</translation>
    </message>
    <message>
        <source>measure, slope</source>
        <translation>misurare, pendenza, inclinazione, regolo</translation>
    </message>
    <message>
        <source>loupe, lens</source>
        <translation>lente d&apos;ingrandimento, zoom, ingranditore</translation>
    </message>
    <message>
        <source>zoom all, fit, whole shot</source>
        <translation>zoom tutto, adatta alla finestra, tutto il tiro, vista intera, azzera zoom</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, onsets, automatic picking, picker</source>
        <translation>first break, primi impulsi, tempi di primo arrivo, onset, picking automatico, picker, autopicking</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, by hand, manual picking</source>
        <translation>first break, primi impulsi, tempi di primo arrivo, a mano, picking manuale, pick</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, load picks, time picks</source>
        <translation>first break, carica primi arrivi, carica picking, apri pick, dromocrone</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, save picks, time picks</source>
        <translation>first break, salva picking, salva pick, dromocrone</translation>
    </message>
    <message>
        <source>review, check picks, outliers, bad picks, quality</source>
        <translation>revisione, verifica dei pick, valori anomali, outlier, picking errati, qualità, incerto</translation>
    </message>
    <message>
        <source>quality control, qc, doctor, bad traces, dead traces, wrong headers</source>
        <translation>controllo di qualità, qc, diagnosi, tracce cattive, tracce morte, header sbagliati, verifica acquisizione</translation>
    </message>
    <message>
        <source>reciprocal times, reverse shots, trigger errors, quality control, qc</source>
        <translation>tempi reciproci, tempo totale, tiri coniugati, scoppi coniugati, errori di trigger, controllo di qualità, qc, andata e ritorno</translation>
    </message>
    <message>
        <source>mesh, cell size, discretisation, depth</source>
        <translation>mesh, maglia, dimensione delle celle, lato delle celle, discretizzazione, profondità</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model, gradient</source>
        <translation>modello iniziale, modello di partenza, gradiente, starting model</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model</source>
        <translation>modello iniziale, modello di partenza, modello di velocità, starting model</translation>
    </message>
    <message>
        <source>wells, drilling, constraints, a priori, soundings</source>
        <translation>pozzi, perforazioni, carotaggi, vincoli, stratigrafia, a priori, penetrometrie, down-hole</translation>
    </message>
    <message>
        <source>invert, calculate, iterations, velocity model, sirt, start inversion</source>
        <translation>calcola, lancia il calcolo, iterazioni, modello di velocità, sirt, avvia inversione, tomografia</translation>
    </message>
    <message>
        <source>history, earlier results, compare models</source>
        <translation>storico, cronologia, risultati precedenti, confronto dei modelli, versioni</translation>
    </message>
    <message>
        <source>chi-square, chi2, misfit, quality of the inversion</source>
        <translation>chi quadrato, chi2, scarto, misfit, bontà dell&apos;inversione, qualità</translation>
    </message>
    <message>
        <source>misfit, rms, errors of the fit, measured and computed times</source>
        <translation>misfit, scarto, rms, errori dell&apos;adattamento, tempi osservati e calcolati, bontà del fit</translation>
    </message>
    <message>
        <source>uncertainty, ensemble, standard deviation, confidence</source>
        <translation>incertezza, ensemble, deviazione standard, confidenza, attendibilità, errore della velocità, bootstrap</translation>
    </message>
    <message>
        <source>checkerboard, chequerboard, spike test, sensitivity</source>
        <translation>checkerboard, test della scacchiera, spike test, sensibilità, potere risolutivo</translation>
    </message>
    <message>
        <source>smoother model, average</source>
        <translation>modello più liscio, media, smoothing, levigare, filtro di media</translation>
    </message>
    <message>
        <source>refractors, layered model, plus minus, delay times, intercept times, grm, time depth</source>
        <translation>rifrattori, modello a strati, plus minus, delay time, tempi di ritardo, tempi di intercetta, intercept time, grm, Palmer, Hagedoorn, time depth, sismostrati</translation>
    </message>
    <message>
        <source>shear modulus, Young, elastic, stiffness</source>
        <translation>modulo di taglio, modulo di Young, moduli elastici, rigidezza, rigidità, moduli dinamici, Poisson</translation>
    </message>
    <message>
        <source>ray paths, ray tracing</source>
        <translation>percorsi dei raggi, traiettorie, ray tracing, raypath</translation>
    </message>
    <message>
        <source>ray coverage, hit count</source>
        <translation>ray coverage, numero di raggi per cella, hit count, illuminazione</translation>
    </message>
    <message>
        <source>isolines, isovalues</source>
        <translation>curve di livello, isovalori, isotachie, isovelocità, contouring</translation>
    </message>
    <message>
        <source>contour, groundwater, bedrock</source>
        <translation>curva di livello, falda acquifera, substrato, bedrock, basamento, tetto della roccia, isotachia</translation>
    </message>
    <message>
        <source>labels, lithology, geology, polygons, legend</source>
        <translation>etichette, scritte, litologia, geologia, stratigrafia, poligoni, legenda</translation>
    </message>
    <message>
        <source>velocity depth function, 1-D, 1d, log</source>
        <translation>funzione velocità profondità, 1-D, 1d, monodimensionale, verticale di velocità, log</translation>
    </message>
    <message>
        <source>3-D, 3d, fence diagram, crossing lines</source>
        <translation>3-D, 3d, fence diagram, linee incrociate, stendimenti incrociati, più linee, vista tridimensionale</translation>
    </message>
    <message>
        <source>colour scale, colors, colormap, range, legend</source>
        <translation>scala cromatica, colormap, mappa di colori, intervallo di velocità, legenda, minimo e massimo</translation>
    </message>
    <message>
        <source>colour bar, color bar, legend</source>
        <translation>barra dei colori, barra cromatica, colorbar, legenda</translation>
    </message>
    <message>
        <source>template, look, appearance</source>
        <translation>modello grafico, template, apparenza, impaginazione, formato</translation>
    </message>
    <message>
        <source>plot, printer, page, a3, a4</source>
        <translation>plotter, stampante, pagina, tavola, in scala, a3, a4</translation>
    </message>
    <message>
        <source>figures, png, svg, save picture</source>
        <translation>figure, png, svg, jpg, esporta immagine, salva figura</translation>
    </message>
    <message>
        <source>document</source>
        <translation>documento, report, rapporto, elaborato</translation>
    </message>
    <message>
        <source>word processor, editable report</source>
        <translation>word, libreoffice, videoscrittura, rapporto modificabile, report</translation>
    </message>
    <message>
        <source>html, interactive report</source>
        <translation>html, rapporto interattivo, report, sito</translation>
    </message>
    <message>
        <source>html, several lines, report</source>
        <translation>html, più linee, rapporto, report, riepilogo, indice dei progetti</translation>
    </message>
    <message>
        <source>cad, contours</source>
        <translation>cad, autocad, curve di livello, contorni</translation>
    </message>
    <message>
        <source>gis, shape file, gpkg</source>
        <translation>gis, qgis, shapefile, shape file, gpkg</translation>
    </message>
    <message>
        <source>gis, 3-D, 3d, georeferenced</source>
        <translation>gis, 3-D, 3d, georeferenziata, paraview, fence</translation>
    </message>
    <message>
        <source>xyz, ascii, velocities</source>
        <translation>xyz, ascii, surfer, velocità, griglia regolare</translation>
    </message>
    <message>
        <source>ascii, velocities, section</source>
        <translation>ascii, velocità, xyz, sezione, txt</translation>
    </message>
    <message>
        <source>preferences, feet, metres, units, memory, undo</source>
        <translation>preferenze, configurazione, piedi, metri, unità di misura, memoria, annulla</translation>
    </message>
    <message>
        <source>manual, handbook, documentation, help</source>
        <translation>manuale, istruzioni, documentazione, tutorial, aiuto, help</translation>
    </message>
    <message>
        <source>manual, handbook, documentation</source>
        <translation>manuale, istruzioni, documentazione, help, sito</translation>
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
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
</context>
<context>
    <name>talvesk::AnnotationsDialog</name>
    <message>
        <source>Annotations</source>
        <translation>Annotazioni</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground that are drawn on the section. They can be drawn with the mouse as well: Draw, above the section.</source>
        <translation>Testi, linee e aree di terreno disegnati sulla sezione. Si possono disegnare anche con il mouse: Disegna, sopra la sezione.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Retino</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Spessore</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Dimensione del testo</translation>
    </message>
    <message>
        <source>Add a text in the middle of the section</source>
        <translation>Aggiunge un testo al centro della sezione</translation>
    </message>
    <message>
        <source>Add &amp;text</source>
        <translation>Aggiungi &amp;testo</translation>
    </message>
    <message>
        <source>Add a line in the middle of the section</source>
        <translation>Aggiunge una linea al centro della sezione</translation>
    </message>
    <message>
        <source>Add &amp;line</source>
        <translation>Aggiungi &amp;linea</translation>
    </message>
    <message>
        <source>Add an area in the middle of the section</source>
        <translation>Aggiunge un&apos;area al centro della sezione</translation>
    </message>
    <message>
        <source>Add &amp;polygon</source>
        <translation>Aggiungi &amp;poligono</translation>
    </message>
    <message>
        <source>Remove the annotation that is selected</source>
        <translation>Rimuove l&apos;annotazione selezionata</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Let those after it be drawn over it</source>
        <translation>Lascia disegnare sopra di essa quelle che seguono</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Su</translation>
    </message>
    <message>
        <source>Points of the annotation that is selected</source>
        <translation>Punti dell&apos;annotazione selezionata</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Distanza [m]</translation>
    </message>
    <message>
        <source>Elevation [m]</source>
        <translation>Quota [m]</translation>
    </message>
    <message>
        <source>Add a point behind the one that is selected</source>
        <translation>Aggiunge un punto dopo quello selezionato</translation>
    </message>
    <message>
        <source>Add p&amp;oint</source>
        <translation>Aggiungi pu&amp;nto</translation>
    </message>
    <message>
        <source>Remove the point that is selected</source>
        <translation>Rimuove il punto selezionato</translation>
    </message>
    <message>
        <source>Remove po&amp;int</source>
        <translation>Rimuovi p&amp;unto</translation>
    </message>
    <message>
        <source>Annotations: %1.</source>
        <translation>Annotazioni: %1.</translation>
    </message>
    <message>
        <source>Discard what was changed?</source>
        <translation>Abbandonare le modifiche?</translation>
    </message>
</context>
<context>
    <name>talvesk::BlowPairDialog</name>
    <message>
        <source>Two shots</source>
        <translation>Due tiri</translation>
    </message>
    <message>
        <source>&amp;First:</source>
        <translation>&amp;Primo:</translation>
    </message>
    <message>
        <source>The recording that time and places are counted by</source>
        <translation>La registrazione da cui si contano tempi e posizioni</translation>
    </message>
    <message>
        <source>S&amp;econd:</source>
        <translation>&amp;Secondo:</translation>
    </message>
    <message>
        <source>The recording that is laid over it; the nearest is proposed</source>
        <translation>La registrazione che le si sovrappone; si propone la più vicina</translation>
    </message>
    <message>
        <source>The traces of both over each other</source>
        <translation>Le tracce di entrambi le une sulle altre</translation>
    </message>
    <message>
        <source>&amp;Overlaid</source>
        <translation>S&amp;ovrapposti</translation>
    </message>
    <message>
        <source>First less second: of blows of opposite sense it enhances S waves</source>
        <translation>Il primo meno il secondo: di colpi di verso opposto esalta le onde S</translation>
    </message>
    <message>
        <source>&amp;Difference</source>
        <translation>&amp;Differenza</translation>
    </message>
    <message>
        <source>Of blows of opposite sense it enhances P waves</source>
        <translation>Di colpi di verso opposto esalta le onde P</translation>
    </message>
    <message>
        <source>S&amp;um</source>
        <translation>So&amp;mma</translation>
    </message>
    <message>
        <source>The second is made as strong as the first</source>
        <translation>Il secondo è reso forte come il primo</translation>
    </message>
    <message>
        <source>E&amp;qual strength</source>
        <translation>Pari i&amp;ntensità</translation>
    </message>
    <message>
        <source>All traces by one measure; else each pair of traces by the larger of both</source>
        <translation>Tutte le tracce con una sola misura; altrimenti ogni coppia di tracce secondo la maggiore delle due</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>&amp;Ampiezze vere</translation>
    </message>
    <message>
        <source>The filtered copies of traces that have one</source>
        <translation>Le copie filtrate delle tracce che ne hanno una</translation>
    </message>
    <message>
        <source>Filtered co&amp;pies</source>
        <translation>&amp;Copie filtrate</translation>
    </message>
    <message>
        <source>Mark the first breaks of both, each in its colour</source>
        <translation>Segna i primi arrivi di entrambi, ciascuno nel suo colore</translation>
    </message>
    <message>
        <source>Pic&amp;ks</source>
        <translation>Primi a&amp;rrivi</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Guadagno:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Escursione del valore più grande, in distanze fra le tracce</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>&amp;Tempi fino a:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Dove finisce l&apos;asse del tempo; automatico: a una volta e mezza il tempo dell&apos;ultimo primo arrivo</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatico</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>What is added or saved</source>
        <translation>Che cosa si aggiunge o si salva</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somma</translation>
    </message>
    <message>
        <source>As a shot of the survey, without picks, at the place of the first; Undo takes it away</source>
        <translation>Come tiro del rilievo, senza primi arrivi, al posto del primo; &quot;Annulla modifica&quot; lo toglie</translation>
    </message>
    <message>
        <source>Add to su&amp;rvey</source>
        <translation>Aggiungi al ri&amp;lievo</translation>
    </message>
    <message>
        <source>As SEG-2 or SEG-Y</source>
        <translation>Come SEG-2 o SEG-Y</translation>
    </message>
    <message>
        <source>Save s&amp;hot file ...</source>
        <translation>Sal&amp;va file del tiro ...</translation>
    </message>
    <message>
        <source>What is shown, as PNG, SVG or PDF</source>
        <translation>Ciò che è mostrato, come PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Salva &amp;immagine ...</translation>
    </message>
    <message>
        <source>Traces of both shots, their difference and their sum</source>
        <translation>Tracce di entrambi i tiri, la loro differenza e la loro somma</translation>
    </message>
    <message>
        <source>one sense</source>
        <comment>of a pair of blows</comment>
        <translation>un verso</translation>
    </message>
    <message>
        <source>other sense</source>
        <comment>of a pair of blows</comment>
        <translation>altro verso</translation>
    </message>
    <message>
        <source>at %1 %2</source>
        <comment>place, unit</comment>
        <translation>a %1 %2</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <translation>Tiro %1: %2</translation>
    </message>
    <message>
        <source>There are no two recordings to be compared.</source>
        <translation>Non ci sono due registrazioni da confrontare.</translation>
    </message>
    <message>
        <source>Not to be added, only saved as a shot file: %1</source>
        <translation>Non si può aggiungere, solo salvare come file del tiro: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignDialog</name>
    <message>
        <source>Campaign page</source>
        <translation>Pagina della campagna</translation>
    </message>
    <message>
        <source>A web page of every project, and one on all of them: a table, the sections in small by one scale of colours, and a map. The projects stay as they are.</source>
        <translation>Una pagina web per ogni progetto, e una su tutti: una tabella, le sezioni in piccolo con una sola scala di colori, e una mappa. I progetti restano come sono.</translation>
    </message>
    <message>
        <source>&amp;Projects:</source>
        <translation>&amp;Progetti:</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Progetti</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>&amp;Aggiungi progetti ...</translation>
    </message>
    <message>
        <source>Take the projects that are selected off the list; their files stay</source>
        <translation>Toglie dall&apos;elenco i progetti selezionati; i loro file restano</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titolo:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Committente:</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>&amp;Sito:</translation>
    </message>
    <message>
        <source>A&amp;uthor:</source>
        <translation>A&amp;utore:</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignPage</name>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>Scarto quadratico medio [ms]</translation>
    </message>
    <message>
        <source>RMS misfit [%]</source>
        <translation>Scarto quadratico medio [%]</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi quadrato</translation>
    </message>
    <message>
        <source>Length covered [%1]</source>
        <translation>Lunghezza coperta [%1]</translation>
    </message>
    <message>
        <source>Depth reached [%1]</source>
        <translation>Profondità raggiunta [%1]</translation>
    </message>
    <message>
        <source>Cells with rays [%]</source>
        <translation>Celle con raggi [%]</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geofoni</translation>
    </message>
    <message>
        <source>Not inverted yet</source>
        <translation>Non ancora invertita</translation>
    </message>
    <message>
        <source>The misfit of the section is not known</source>
        <translation>Lo scarto della sezione non è noto</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion</source>
        <translation>I primi arrivi sono cambiati dopo l&apos;inversione</translation>
    </message>
    <message>
        <source>Smoothed after the inversion</source>
        <translation>Smussata dopo l&apos;inversione</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tema scuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Tema chiaro</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Committente</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Sito</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Lines: %1; with a section: %2; failed: %3</source>
        <translation>Linee: %1; con una sezione: %2; non riuscite: %3</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linee</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Velocità [%1]</translation>
    </message>
    <message>
        <source>Small sections are stretched to fill their place; their colours are the same for all lines. Misfits are those of the sections shown, along fresh rays.</source>
        <translation>Le sezioni piccole sono stirate per riempire il loro posto; i colori sono gli stessi per tutte le linee. Gli scarti sono quelli delle sezioni mostrate, lungo raggi tracciati di nuovo.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sezione</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Primi arrivi usati</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Invertita</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Failed:</source>
        <translation>Non riuscite:</translation>
    </message>
    <message>
        <source>Velocity section of %1</source>
        <translation>Sezione di velocità di %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Map of the lines</source>
        <translation>Mappa delle linee</translation>
    </message>
    <message>
        <source>Numbers are those of the table; each stands at the first geophone of its line.</source>
        <translation>I numeri sono quelli della tabella; ciascuno sta al primo geofono della sua linea.</translation>
    </message>
    <message>
        <source>Lines whose position is not known: %1</source>
        <translation>Linee di posizione non nota: %1</translation>
    </message>
    <message>
        <source>Campaign</source>
        <translation>Campagna</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Vai al contenuto</translation>
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
        <translation>Affidabilità</translation>
    </message>
    <message>
        <source>Many sections explain the picks as well as the one that is shown. Each member is fitted to picks that are moved by their errors, from another model that explains them. Where the members agree the section is sure.</source>
        <translation>Molte sezioni spiegano i primi arrivi altrettanto bene di quella mostrata. Ogni membro si adatta a primi arrivi spostati secondo i loro errori, a partire da un altro modello che li spiega. Dove i membri concordano la sezione è sicura.</translation>
    </message>
    <message>
        <source>&amp;Members:</source>
        <translation>&amp;Membri:</translation>
    </message>
    <message>
        <source>How many sections are compared. More of them tell the spread more exactly and take longer.</source>
        <translation>Quante sezioni si confrontano. Con più sezioni la dispersione è nota con più precisione, e ci vuole più tempo.</translation>
    </message>
    <message>
        <source>S&amp;eed:</source>
        <translation>S&amp;eme:</translation>
    </message>
    <message>
        <source>The number that the errors of all members come from. The same survey and seed give the same members.</source>
        <translation>Il numero da cui derivano gli errori di tutti i membri. Lo stesso rilievo e lo stesso seme danno gli stessi membri.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Avvia</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Models are being tried.</source>
        <translation>Si provano i modelli.</translation>
    </message>
    <message>
        <source>Models are being tried: %1 of %2.</source>
        <translation>Si provano i modelli: %1 di %2.</translation>
    </message>
    <message>
        <source>%1 of %2 members are done; %3 left out.</source>
        <translation>%1 di %2 membri completati; %3 esclusi.</translation>
    </message>
    <message>
        <source>How sure the section is stays unknown.</source>
        <translation>Quanto sia sicura la sezione resta ignoto.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>Con&amp;tinua</translation>
    </message>
    <message numerus="yes">
        <source>%n member(s) of this seed are done; Continue goes on with more.</source>
        <translation>
            <numerusform>%n membro di questo seme è completato; &quot;Continua&quot; ne aggiunge altri.</numerusform>
            <numerusform>%n membri di questo seme sono completati; &quot;Continua&quot; ne aggiunge altri.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped with %n member(s); Continue goes on from there.</source>
        <translation>
            <numerusform>Fermato con %n membro; &quot;Continua&quot; riprende da lì.</numerusform>
            <numerusform>Fermato con %n membri; &quot;Continua&quot; riprende da lì.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped before the first member was done; Continue goes on.</source>
        <translation>Fermato prima di completare il primo membro; &quot;Continua&quot; riprende.</translation>
    </message>
</context>
<context>
    <name>talvesk::CheckDialog</name>
    <message>
        <source>Check recordings</source>
        <translation>Controlla le registrazioni</translation>
    </message>
    <message>
        <source>The recordings are being looked at...</source>
        <translation>Controllo delle registrazioni in corso...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>What is doubtful</source>
        <translation>Che cosa è dubbio</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Esegui</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Tracce</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Dubbio</translation>
    </message>
    <message>
        <source>Sure</source>
        <translation>Certezza</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Proposta</translation>
    </message>
    <message>
        <source>What is doubtful, and why</source>
        <translation>Che cosa è dubbio, e perché</translation>
    </message>
    <message>
        <source>The figure of the proposal, to be altered</source>
        <translation>Il valore della proposta, modificabile</translation>
    </message>
    <message>
        <source>The shot comes into view in the window; a double click on its line does the same</source>
        <translation>Il tiro viene in vista nella finestra; un doppio clic sulla sua riga fa lo stesso</translation>
    </message>
    <message>
        <source>&amp;Show traces</source>
        <translation>&amp;Mostra le tracce</translation>
    </message>
    <message>
        <source>The record was &amp;late by:</source>
        <translation>La registrazione era in &amp;ritardo di:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Muted before:</source>
        <translation>A&amp;zzerate prima di:</translation>
    </message>
    <message>
        <source>The shot is &amp;at:</source>
        <translation>Il &amp;tiro è a:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>share</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Carry &amp;out</source>
        <translation>&amp;Esegui</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Distanza (m)</translation>
    </message>
    <message>
        <source>Time, ms</source>
        <translation>Tempo, ms</translation>
    </message>
    <message>
        <source>There are no times to draw.</source>
        <translation>Non ci sono tempi da disegnare.</translation>
    </message>
    <message>
        <source>Nothing is doubtful.</source>
        <translation>Nulla è dubbio.</translation>
    </message>
    <message>
        <source>Nothing was found so far.</source>
        <translation>Finora non è stato trovato nulla.</translation>
    </message>
    <message>
        <source>Carried out when it is ticked; the space bar does it, too</source>
        <translation>Se spuntata, la proposta viene eseguita; si spunta anche con la barra spaziatrice</translation>
    </message>
    <message>
        <source>all</source>
        <comment>shots</comment>
        <translation>tutti</translation>
    </message>
    <message>
        <source>all</source>
        <comment>traces</comment>
        <translation>tutte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Misurati</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attesi</translation>
    </message>
    <message>
        <source>The check was stopped: not all shots were looked at.</source>
        <translation>Il controllo è stato interrotto: non tutti i tiri sono stati esaminati.</translation>
    </message>
    <message>
        <source>Findings: %1, with a proposal: %2, ticked to be carried out: %3. What was recorded is kept, and Undo takes everything back.</source>
        <translation>Punti dubbi: %1, con una proposta: %2, spuntati per l&apos;esecuzione: %3. Ciò che è stato registrato si conserva, e Annulla modifica riporta tutto com&apos;era.</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorField</name>
    <message>
        <source>Choose another colour</source>
        <translation>Scegli un altro colore</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Colore %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorPaletteWidget</name>
    <message>
        <source>Handles of the gradient</source>
        <translation>Cursori del gradiente</translation>
    </message>
    <message>
        <source>Drag a handle; double-click it for its colour.
Keys: Left and Right move the selected handle (with Ctrl by one), Up and Down select another, Space asks for its colour, Insert adds and Delete removes one.</source>
        <translation>Trascinare un cursore; doppio clic per sceglierne il colore.
Tasti: Sinistra e Destra spostano il cursore selezionato (con Ctrl di uno), Su e Giù ne selezionano un altro, Spazio chiede il colore, Ins ne aggiunge uno e Canc lo toglie.</translation>
    </message>
    <message>
        <source>Number of the handle that the value, the colour and Delete are for</source>
        <translation>Numero del cursore a cui si riferiscono valore, colore ed eliminazione</translation>
    </message>
    <message>
        <source>Where on the scale the selected handle stands</source>
        <translation>Posizione del cursore selezionato sulla scala</translation>
    </message>
    <message>
        <source>Value shown in the first colour, and below it</source>
        <translation>Valore mostrato con il primo colore, come quelli inferiori</translation>
    </message>
    <message>
        <source>Value shown in the last colour, and above it</source>
        <translation>Valore mostrato con l&apos;ultimo colore, come quelli superiori</translation>
    </message>
    <message>
        <source>Add Slider</source>
        <translation>Aggiungi cursore</translation>
    </message>
    <message>
        <source>Add a handle between the selected one and the next, in the colour of that place</source>
        <translation>Aggiunge un cursore tra quello selezionato e il successivo, con il colore di quel punto</translation>
    </message>
    <message>
        <source>Set Selected Slider Color</source>
        <translation>Colore del cursore selezionato</translation>
    </message>
    <message>
        <source>Choose the handle&apos;s colour</source>
        <translation>Sceglie il colore del cursore</translation>
    </message>
    <message>
        <source>Delete Selected Slider</source>
        <translation>Elimina il cursore selezionato</translation>
    </message>
    <message>
        <source>Remove the selected handle; the first and the last stay</source>
        <translation>Toglie il cursore selezionato; il primo e l&apos;ultimo restano</translation>
    </message>
    <message>
        <source>Selected Handle</source>
        <translation>Cursore selezionato</translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Valore: </translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>The colours of a built-in palette stay as they are; Edit Palette makes a copy.</source>
        <translation>I colori di una tavolozza predefinita non si cambiano; Modifica tavolozza ne crea una copia.</translation>
    </message>
    <message>
        <source>Cannot move handle at mimimum value.</source>
        <translation>Il cursore del valore minimo non si può spostare.</translation>
    </message>
    <message>
        <source>Cannot move handle at maximum value.</source>
        <translation>Il cursore del valore massimo non si può spostare.</translation>
    </message>
    <message>
        <source>There is no room for another handle here.</source>
        <translation>Qui non c&apos;è posto per un altro cursore.</translation>
    </message>
    <message>
        <source>The first and the last handle stay.</source>
        <translation>Il primo e l&apos;ultimo cursore restano.</translation>
    </message>
    <message>
        <source>Colour of the selected handle</source>
        <translation>Colore del cursore selezionato</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> di %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandReasons</name>
    <message>
        <source>There are no shots yet.</source>
        <translation>Non ci sono ancora tiri.</translation>
    </message>
    <message>
        <source>There are no recordings yet.</source>
        <translation>Non ci sono ancora registrazioni.</translation>
    </message>
    <message>
        <source>No shot is in view.</source>
        <translation>Nessun tiro è in vista.</translation>
    </message>
    <message>
        <source>No shot with traces is in view.</source>
        <translation>Nessun tiro con tracce è in vista.</translation>
    </message>
    <message>
        <source>Nothing is mended.</source>
        <translation>Nulla è stato corretto.</translation>
    </message>
    <message>
        <source>The shot in view has no filtered copy.</source>
        <translation>Il tiro in vista non ha una copia filtrata.</translation>
    </message>
    <message>
        <source>No recording begins before its shot.</source>
        <translation>Nessuna registrazione comincia prima del suo tiro.</translation>
    </message>
    <message>
        <source>The selected traces have no picks.</source>
        <translation>Le tracce selezionate non hanno primi arrivi.</translation>
    </message>
    <message>
        <source>No pick of the selected traces waits for confirmation.</source>
        <translation>Nessun primo arrivo delle tracce selezionate attende conferma.</translation>
    </message>
    <message>
        <source>There are no shots yet, or no picks are shown.</source>
        <translation>Non ci sono ancora tiri, o i primi arrivi non sono mostrati.</translation>
    </message>
    <message>
        <source>There is no earlier view.</source>
        <translation>Non c&apos;è una vista precedente.</translation>
    </message>
    <message>
        <source>There is no later view.</source>
        <translation>Non c&apos;è una vista successiva.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Non c&apos;è nulla da annullare.</translation>
    </message>
    <message>
        <source>There is nothing to do again.</source>
        <translation>Non c&apos;è nulla da ripetere.</translation>
    </message>
    <message>
        <source>There are no geophones and no shots yet.</source>
        <translation>Non ci sono ancora geofoni né tiri.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Non c&apos;è nulla da salvare.</translation>
    </message>
    <message>
        <source>There is no grid yet.</source>
        <translation>Non c&apos;è ancora una griglia.</translation>
    </message>
    <message>
        <source>There is no inversion yet.</source>
        <translation>Non c&apos;è ancora un&apos;inversione.</translation>
    </message>
    <message>
        <source>There is no layered profile yet.</source>
        <translation>Non c&apos;è ancora un profilo a strati.</translation>
    </message>
    <message>
        <source>Nothing is known of the ground under the grid.</source>
        <translation>Nulla è noto del terreno sotto la griglia.</translation>
    </message>
    <message>
        <source>Nothing is drawn on the section yet.</source>
        <translation>Sulla sezione non è ancora disegnato nulla.</translation>
    </message>
    <message>
        <source>There is no section yet.</source>
        <translation>Non c&apos;è ancora una sezione.</translation>
    </message>
    <message>
        <source>There is no line of geophones yet.</source>
        <translation>Non c&apos;è ancora una linea di geofoni.</translation>
    </message>
    <message>
        <source>There is no grid under a line of geophones yet.</source>
        <translation>Non c&apos;è ancora una griglia sotto una linea di geofoni.</translation>
    </message>
    <message>
        <source>There is nothing to make pictures of yet.</source>
        <translation>Non c&apos;è ancora nulla di cui fare immagini.</translation>
    </message>
    <message>
        <source>How certain the section is has not been computed.</source>
        <translation>L&apos;affidabilità della sezione non è stata calcolata.</translation>
    </message>
    <message>
        <source>It cannot work yet.</source>
        <translation>Non è ancora possibile.</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandSearchDialog</name>
    <message>
        <source>Find Command</source>
        <translation>Trova comando</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>Parole del comando</translation>
    </message>
    <message>
        <source>Type words of a command</source>
        <translation>Scrivere parole di un comando</translation>
    </message>
    <message>
        <source>Commands found</source>
        <translation>Comandi trovati</translation>
    </message>
    <message>
        <source>No command has these words.</source>
        <translation>Nessun comando contiene queste parole.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>why a command cannot work, its menu</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>non ora: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareLayersDialog</name>
    <message>
        <source>Compare layers with the section</source>
        <translation>Confronta gli strati con la sezione</translation>
    </message>
    <message>
        <source>&amp;Refractor:</source>
        <translation>&amp;Rifrattore:</translation>
    </message>
    <message>
        <source>The layer that begins at the refractor</source>
        <translation>Lo strato che comincia al rifrattore</translation>
    </message>
    <message>
        <source>In the &amp;section:</source>
        <translation>Nella &amp;sezione:</translation>
    </message>
    <message>
        <source>What stands for the refractor in the section: the shallowest place where a velocity is reached, or where the logarithm of velocity grows most with depth. Of two refractors the steepest gradient is looked for on their own sides of the middle between both.</source>
        <translation>Che cosa rappresenta il rifrattore nella sezione: il punto meno profondo in cui si raggiunge una velocità, o quello in cui il logaritmo della velocità cresce di più con la profondità. Se i rifrattori sono due, il gradiente massimo di ciascuno si cerca dalla sua parte rispetto alla metà fra i due.</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Steepest gradient</source>
        <translation>Gradiente massimo</translation>
    </message>
    <message>
        <source>Velocity that stands for the refractor</source>
        <translation>Velocità che rappresenta il rifrattore</translation>
    </message>
    <message>
        <source>Begins with the middle between the velocities of the layers above and below</source>
        <translation>All&apos;inizio è la media fra le velocità degli strati sopra e sotto</translation>
    </message>
    <message>
        <source> m/s</source>
        <translation> m/s</translation>
    </message>
    <message>
        <source>Depths of the refractor at the geophones</source>
        <translation>Profondità del rifrattore ai geofoni</translation>
    </message>
    <message>
        <source>Depths below the surface; a difference is section less layers</source>
        <translation>Profondità dalla superficie; la differenza è sezione meno strati</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Distanza (m)</translation>
    </message>
    <message>
        <source>Layers (m)</source>
        <translation>Strati (m)</translation>
    </message>
    <message>
        <source>Section (m)</source>
        <translation>Sezione (m)</translation>
    </message>
    <message>
        <source>Difference (m)</source>
        <translation>Differenza (m)</translation>
    </message>
    <message>
        <source>Save section and lines as PNG, SVG or PDF</source>
        <translation>Salva sezione e linee come PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>Salva &amp;immagine ...</translation>
    </message>
    <message>
        <source>Save the depths at the geophones as CSV, in metres</source>
        <translation>Salva le profondità ai geofoni come CSV, in metri</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Salva &amp;tabella ...</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Strato %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non nota</translation>
    </message>
    <message>
        <source>No geophone has both depths. Another velocity may be reached below the line.</source>
        <translation>Nessun geofono ha entrambe le profondità. Sotto la linea potrebbe essere raggiunta un&apos;altra velocità.</translation>
    </message>
    <message>
        <source>Section less layers: %1 on average, RMS %2, at %3 of %4 geophones.</source>
        <translation>Sezione meno strati: in media %1, RMS %2, a %3 geofoni su %4.</translation>
    </message>
    <message>
        <source>The others lack a depth.</source>
        <translation>Agli altri manca una profondità.</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareRunsDialog</name>
    <message>
        <source>Compare inversion runs</source>
        <translation>Confronta le inversioni</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Sinistra:</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Destra:</translation>
    </message>
    <message>
        <source>Save both sections and their difference as PNG, SVG or PDF</source>
        <translation>Salva le due sezioni e la loro differenza in PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Salva &amp;immagine ...</translation>
    </message>
    <message>
        <source>%1 against %2</source>
        <comment>right run, left run</comment>
        <translation>%1 rispetto a %2</translation>
    </message>
    <message>
        <source>Chi-square %1</source>
        <translation>Chi quadrato %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms</source>
        <translation>Scarto RMS %1 ms</translation>
    </message>
    <message>
        <source>their computed times differ by %1 ms RMS</source>
        <translation>i loro tempi calcolati differiscono di %1 ms RMS</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>run, remarks</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>by errors of %1</source>
        <translation>con errori di %1</translation>
    </message>
    <message>
        <source>by other errors, so these do not compare: %1</source>
        <translation>con errori diversi, quindi non confrontabili: %1</translation>
    </message>
    <message>
        <source>of all picks as they are %1 ms</source>
        <translation>di tutti i primi arrivi così come sono %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::DepthProfileDialog</name>
    <message>
        <source>Depth profile</source>
        <translation>Profilo di profondità</translation>
    </message>
    <message>
        <source>&amp;Distance:</source>
        <translation>&amp;Distanza:</translation>
    </message>
    <message>
        <source>Where along the line the profile stands</source>
        <translation>Dove si trova il profilo lungo la linea</translation>
    </message>
    <message>
        <source>Show the ground below the mouse as it moves over the section</source>
        <translation>Mostra il terreno sotto il mouse mentre si muove sulla sezione</translation>
    </message>
    <message>
        <source>&amp;Follow the pointer</source>
        <translation>S&amp;egui il puntatore</translation>
    </message>
    <message>
        <source>Save the profile as PNG, SVG or PDF</source>
        <translation>Salva il profilo in PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Salva &amp;immagine ...</translation>
    </message>
    <message>
        <source>Velocity, gradient and certainty against depth</source>
        <translation>Velocità, gradiente e affidabilità in funzione della profondità</translation>
    </message>
</context>
<context>
    <name>talvesk::DialogSetGeometry</name>
    <message>
        <source>Set survey geometry - Dialog</source>
        <translation>Geometria del rilievo</translation>
    </message>
    <message>
        <source>This survey has no shots yet. Open shot files (Ctrl+O) or import travel times first, or add S-wave pairs on the page Shots.</source>
        <translation>Questo rilievo non ha ancora tiri. Apri prima i file dei tiri (Ctrl+O) o importa i tempi di arrivo, oppure aggiungi coppie di onde S nella pagina Tiri.</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geofoni</translation>
    </message>
    <message>
        <source>&amp;String:</source>
        <translation>&amp;Stesa:</translation>
    </message>
    <message>
        <source>The geophone string in the table; its geophones are in the order of the channels</source>
        <translation>La stesa di geofoni nella tabella; i geofoni sono nell&apos;ordine dei canali</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>Add a string without geophones</source>
        <translation>Aggiunge una stesa senza geofoni</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Remove the string in the table</source>
        <translation>Rimuove la stesa nella tabella</translation>
    </message>
    <message>
        <source>&amp;Copy from</source>
        <translation>&amp;Copia da</translation>
    </message>
    <message>
        <source>Replace the geophones of this string by those of another one</source>
        <translation>Sostituisce i geofoni di questa stesa con quelli di un&apos;altra</translation>
    </message>
    <message>
        <source>&amp;First (m):</source>
        <translation>&amp;Primo (m):</translation>
    </message>
    <message>
        <source>Distance of the first geophone along the line</source>
        <translation>Distanza del primo geofono lungo la linea</translation>
    </message>
    <message>
        <source>S&amp;pacing (m):</source>
        <translation>Pass&amp;o (m):</translation>
    </message>
    <message>
        <source>Distance from one geophone to the next; negative where the channels run backwards</source>
        <translation>Distanza da un geofono al successivo; negativa se i canali vanno all&apos;indietro</translation>
    </message>
    <message>
        <source>C&amp;ount:</source>
        <translation>&amp;Numero:</translation>
    </message>
    <message>
        <source>How many geophones the string gets, as a rule the channels of a shot</source>
        <translation>Quanti geofoni riceve la stesa, di regola i canali di un tiro</translation>
    </message>
    <message>
        <source>A&amp;utofill</source>
        <translation>A&amp;utoriempi</translation>
    </message>
    <message>
        <source>Give the string so many geophones, evenly spaced; elevations that are there stay</source>
        <translation>Dà alla stesa questo numero di geofoni, a passo costante; le quote già presenti restano</translation>
    </message>
    <message>
        <source>Geophones of the string</source>
        <translation>Geofoni della stesa</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down, Insert adds a row. Elevations in italics were not typed and can be interpolated.</source>
        <translation>Scrivi, o incolla da un foglio di calcolo. Invio scende, Canc svuota le celle, Ctrl+D ripete verso il basso, Ins aggiunge una riga. Le quote in corsivo non sono state scritte e si possono interpolare.</translation>
    </message>
    <message>
        <source>&amp;Interpolate elevations</source>
        <translation>&amp;Interpola le quote</translation>
    </message>
    <message>
        <source>Elevations that were not typed follow a line from typed one to typed one; empty those that shall be interpolated</source>
        <translation>Le quote non scritte seguono una linea da una quota scritta all&apos;altra; svuota quelle da interpolare</translation>
    </message>
    <message>
        <source>&amp;Load Geometry</source>
        <translation>Carica &amp;geometria</translation>
    </message>
    <message>
        <source>Read x and elevation of the geophones of this string from a text file, in metres</source>
        <translation>Legge x e quota dei geofoni di questa stesa da un file di testo, in metri</translation>
    </message>
    <message>
        <source>Sa&amp;ve Geometry</source>
        <translation>Sal&amp;va geometria</translation>
    </message>
    <message>
        <source>Write x and elevation of the geophones of this string to a text file, in metres</source>
        <translation>Scrive x e quota dei geofoni di questa stesa in un file di testo, in metri</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down.</source>
        <translation>Scrivi, o incolla da un foglio di calcolo. Invio scende, Canc svuota le celle, Ctrl+D ripete verso il basso.</translation>
    </message>
    <message>
        <source>Shot in the table</source>
        <translation>Tiro nella tabella</translation>
    </message>
    <message>
        <source>Elevations of shots that were not typed are those of the line between the geophones</source>
        <translation>Le quote dei tiri non scritte sono quelle della linea tra i geofoni</translation>
    </message>
    <message>
        <source>S-&amp;wave files ...</source>
        <translation>&amp;File onde S ...</translation>
    </message>
    <message>
        <source>Choose the DX and the SX file that the selected shot is made of</source>
        <translation>Sceglie il file DX e il file SX di cui è fatto il tiro selezionato</translation>
    </message>
    <message>
        <source>Add S-wave &amp;pairs ...</source>
        <translation>Aggiungi co&amp;ppie onde S ...</translation>
    </message>
    <message>
        <source>Choose DX files and as many SX files; each pair becomes a shot whose traces are DX minus SX</source>
        <translation>Sceglie i file DX e altrettanti file SX; ogni coppia diventa un tiro le cui tracce sono DX meno SX</translation>
    </message>
    <message>
        <source>&amp;Load Shots Geometry</source>
        <translation>Carica &amp;geometria tiri</translation>
    </message>
    <message>
        <source>Read x and elevation of all shots from a text file, in metres</source>
        <translation>Legge x e quota di tutti i tiri da un file di testo, in metri</translation>
    </message>
    <message>
        <source>Sa&amp;ve Shots Geometry</source>
        <translation>Sal&amp;va geometria tiri</translation>
    </message>
    <message>
        <source>Write x and elevation of all shots to a text file, in metres</source>
        <translation>Scrive x e quota di tutti i tiri in un file di testo, in metri</translation>
    </message>
    <message>
        <source>&amp;To be looked at:</source>
        <translation>&amp;Da controllare:</translation>
    </message>
    <message>
        <source>A click shows the geophones or shots that are meant</source>
        <translation>Un clic mostra i geofoni o i tiri interessati</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla modifica</translation>
    </message>
    <message>
        <source>Take the last step back (Ctrl+Z)</source>
        <translation>Annulla l&apos;ultima modifica (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti modifica</translation>
    </message>
    <message>
        <source>Do the step again (Ctrl+Shift+Z)</source>
        <translation>Ripete la modifica (Ctrl+Shift+Z)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n geophone(s)</source>
        <translation>
            <numerusform>%1: %n geofono</numerusform>
            <numerusform>%1: %n geofoni</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length in %2.</source>
        <translation>&quot;%1&quot; non è una lunghezza in %2.</translation>
    </message>
    <message>
        <source>They have no geophones then, until another string is added.</source>
        <translation>Restano senza geofoni finché non si aggiunge un&apos;altra stesa.</translation>
    </message>
    <message>
        <source>They will use string %1, as it is numbered then.</source>
        <translation>Useranno la stesa %1, secondo la nuova numerazione.</translation>
    </message>
    <message numerus="yes">
        <source>String %1 is used by shot(s) %2. Remove it?</source>
        <translation>
            <numerusform>La stesa %1 è usata dal tiro %2. Rimuoverla?</numerusform>
            <numerusform>La stesa %1 è usata dai tiri %2. Rimuoverla?</numerusform>
        </translation>
    </message>
    <message>
        <source>All elevations were typed. Empty those that shall be interpolated.</source>
        <translation>Tutte le quote sono state scritte. Svuota quelle da interpolare.</translation>
    </message>
    <message>
        <source>Type the elevation of one geophone at least.</source>
        <translation>Scrivi la quota di almeno un geofono.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) interpolated.</source>
        <translation>
            <numerusform>%n quota interpolata.</numerusform>
            <numerusform>%n quote interpolate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the picks of shot(s) %1</source>
        <translation>
            <numerusform>i picking del tiro %1</numerusform>
            <numerusform>i picking dei tiri %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>The geometry is not complete.</source>
        <translation>La geometria non è completa.</translation>
    </message>
    <message>
        <source>The geometry has been edited.</source>
        <translation>La geometria è stata modificata.</translation>
    </message>
    <message>
        <source>Do you want to leave it as it was before?</source>
        <translation>Vuoi lasciarla com&apos;era prima?</translation>
    </message>
    <message>
        <source>Open Geometry</source>
        <translation>Apri geometria</translation>
    </message>
    <message>
        <source>Save Geometry</source>
        <translation>Salva geometria</translation>
    </message>
    <message>
        <source>%1 exists.</source>
        <translation>%1 esiste già.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Vuoi sostituirlo?</translation>
    </message>
    <message>
        <source>Geophones Geometry (*csv)</source>
        <translation>Geometria dei geofoni (*csv)</translation>
    </message>
    <message>
        <source>Error Message</source>
        <translation>Messaggio di errore</translation>
    </message>
    <message>
        <source>Invalid geometry file.</source>
        <translation>File di geometria non valido.</translation>
    </message>
    <message>
        <source>Geophones saved in %1</source>
        <translation>Geofoni salvati in %1</translation>
    </message>
    <message>
        <source>CSV format (*.csv)</source>
        <translation>Formato CSV (*.csv)</translation>
    </message>
    <message>
        <source>Invalid geometry file. </source>
        <translation>File di geometria non valido. </translation>
    </message>
    <message>
        <source>Geophones loaded from %1</source>
        <translation>Geofoni caricati da %1</translation>
    </message>
    <message>
        <source>Invalid shot file. </source>
        <translation>File dei tiri non valido. </translation>
    </message>
    <message>
        <source>Shots saved in %1</source>
        <translation>Tiri salvati in %1</translation>
    </message>
    <message>
        <source>Shots loaded from %1</source>
        <translation>Tiri caricati da %1</translation>
    </message>
    <message>
        <source>Open DX File of Shot %1</source>
        <translation>Apri il file DX del tiro %1</translation>
    </message>
    <message>
        <source>Open SX File of Shot %1</source>
        <translation>Apri il file SX del tiro %1</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>The files are not taken as an S-wave pair.</source>
        <translation>I file non sono accettati come coppia di onde S.</translation>
    </message>
    <message>
        <source>Open DX Files</source>
        <translation>Apri i file DX</translation>
    </message>
    <message>
        <source>Open SX Files</source>
        <translation>Apri i file SX</translation>
    </message>
    <message>
        <source>There must be as many SX files as DX files.</source>
        <translation>I file SX devono essere tanti quanti i file DX.</translation>
    </message>
    <message>
        <source>%1 DX files and %2 SX files were chosen.</source>
        <translation>Sono stati scelti %1 file DX e %2 file SX.</translation>
    </message>
    <message>
        <source>No shot was added: the files are not taken as S-wave pairs.</source>
        <translation>Nessun tiro aggiunto: i file non sono accettati come coppie di onde S.</translation>
    </message>
    <message numerus="yes">
        <source>%n S-wave shot(s) added.</source>
        <translation>
            <numerusform>%n tiro di onde S aggiunto.</numerusform>
            <numerusform>%n tiri di onde S aggiunti.</numerusform>
        </translation>
    </message>
    <message>
        <source>Read with this separator the file has %1 lines of numbers; %2 are needed.</source>
        <translation>Letto con questo separatore il file ha %1 righe di numeri; ne servono %2.</translation>
    </message>
    <message>
        <source>Its numbers were cut at their decimal commas: they need points.</source>
        <translation>I numeri sono stati troncati alla virgola: serve il punto decimale.</translation>
    </message>
    <message>
        <source>Elevations from table</source>
        <translation>Quote da tabella</translation>
    </message>
    <message>
        <source>Give all geophones and shots the elevations of a table of distances and elevations, in metres</source>
        <translation>Dà a tutti i geofoni e i tiri le quote di una tabella di distanze e quote, in metri</translation>
    </message>
    <message>
        <source>&amp;Straight from point to point ...</source>
        <translation>In linea &amp;retta da punto a punto ...</translation>
    </message>
    <message>
        <source>Along a s&amp;mooth curve ...</source>
        <translation>Lungo una c&amp;urva continua ...</translation>
    </message>
    <message>
        <source>It was read by the names of its columns.</source>
        <translation>Il file è stato letto secondo i nomi delle colonne.</translation>
    </message>
    <message>
        <source>Open Elevations</source>
        <translation>Apri quote</translation>
    </message>
    <message>
        <source>Tables of distances and elevations (*.csv *.txt *.dat *.xyz *.tsv);;All Files (*)</source>
        <translation>Tabelle di distanze e quote (*.csv *.txt *.dat *.xyz *.tsv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>The elevations have not been taken.</source>
        <translation>Le quote non sono state prese.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) taken from the table.</source>
        <translation>
            <numerusform>%n quota presa dalla tabella.</numerusform>
            <numerusform>%n quote prese dalla tabella.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) lie beyond its ends, %1 to %2, and got the elevation there.</source>
        <translation>
            <numerusform>%n posizione è oltre i suoi estremi, da %1 a %2, e ha ricevuto la quota dell&apos;estremo.</numerusform>
            <numerusform>%n posizioni sono oltre i suoi estremi, da %1 a %2, e hanno ricevuto la quota dell&apos;estremo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::DrawingDialog</name>
    <message>
        <source>Lines to be exported</source>
        <translation>Linee da esportare</translation>
    </message>
    <message>
        <source>&amp;Isolines of velocity:</source>
        <translation>&amp;Isolinee di velocità:</translation>
    </message>
    <message>
        <source>Velocities with blanks between them; each becomes lines through the section</source>
        <translation>Velocità separate da spazi; ciascuna diventa linee attraverso la sezione</translation>
    </message>
    <message>
        <source>&amp;Distance along the line and elevation</source>
        <translation>&amp;Distanza lungo la linea e quota</translation>
    </message>
    <message>
        <source>A flat drawing: x is the distance along the line, y the elevation, in metres</source>
        <translation>Un disegno piano: x è la distanza lungo la linea, y la quota, in metri</translation>
    </message>
    <message>
        <source>&amp;Easting, northing and elevation on the map</source>
        <translation>&amp;Est, nord e quota sulla mappa</translation>
    </message>
    <message>
        <source>Lines in space by the geographic coordinates of the line, in metres</source>
        <translation>Linee nello spazio secondo le coordinate geografiche della linea, in metri</translation>
    </message>
    <message>
        <source>There is no section yet, and so there are no isolines.</source>
        <translation>Non c&apos;è ancora una sezione, e quindi non ci sono isolinee.</translation>
    </message>
    <message>
        <source>The line has no place on the map. Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>La linea non ha un posto sulla mappa. Impostarlo con Progetto &gt; Coordinate geografiche ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a velocity.</source>
        <translation>&quot;%1&quot; non è una velocità.</translation>
    </message>
    <message>
        <source>A section has %1 isovalues at most.</source>
        <translation>Una sezione ha al massimo %1 isovalori.</translation>
    </message>
</context>
<context>
    <name>talvesk::ElasticDialog</name>
    <message>
        <source>P and S together</source>
        <translation>P e S insieme</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Onde:</translation>
    </message>
    <message>
        <source>Which of the two projects is of P waves and which of S waves. The program guesses it from the recordings, else from the velocities.</source>
        <translation>Quale dei due progetti è di onde P e quale di onde S. Il programma lo deduce dalle registrazioni, altrimenti dalle velocità.</translation>
    </message>
    <message>
        <source>Take another project for the other wave</source>
        <translation>Scegli un altro progetto per l&apos;altra onda</translation>
    </message>
    <message>
        <source>&amp;Other project ...</source>
        <translation>&amp;Altro progetto ...</translation>
    </message>
    <message>
        <source>Shi&amp;ft S by:</source>
        <translation>Tras&amp;la S di:</translation>
    </message>
    <message>
        <source>Length added to distances of S</source>
        <translation>Lunghezza aggiunta alle distanze di S</translation>
    </message>
    <message>
        <source>What is added to the distances of S, whose line begins elsewhere, to have those of P</source>
        <translation>Quanto si aggiunge alle distanze di S, la cui linea comincia altrove, per avere quelle di P</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>&amp;Depths may differ by:</source>
        <translation>Differenza di &amp;profondità ammessa:</translation>
    </message>
    <message>
        <source>Percent that depths may differ by</source>
        <translation>Percentuale di cui le profondità possono differire</translation>
    </message>
    <message>
        <source>Difference between the depths of a layer by P and by S, as a share of their mean, beyond which both may be different ground: that is marked and said, and nothing is left out</source>
        <translation>Differenza fra le profondità di uno strato da P e da S, in rapporto alla loro media, oltre la quale può trattarsi di terreni diversi: viene segnalata nella figura e a parole, e nulla viene tralasciato</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>D&amp;ensity:</source>
        <translation>&amp;Densità:</translation>
    </message>
    <message>
        <source>A number for each layer, or 310 Vp^0.25 in kg/m3, which Gardner and others (1974) found for rocks faster than 1500 m/s</source>
        <translation>Un valore per ogni strato, o 310 Vp^0,25 in kg/m3, che Gardner e altri (1974) hanno trovato per rocce più veloci di 1500 m/s</translation>
    </message>
    <message>
        <source>Of each layer</source>
        <translation>Per ogni strato</translation>
    </message>
    <message>
        <source>From Vp, by Gardner&apos;s rule</source>
        <translation>Da Vp, relazione di Gardner</translation>
    </message>
    <message>
        <source>1:</source>
        <translation>1:</translation>
    </message>
    <message>
        <source>Density of layer 1</source>
        <translation>Densità dello strato 1</translation>
    </message>
    <message>
        <source> kg/m3</source>
        <translation> kg/m3</translation>
    </message>
    <message>
        <source>2:</source>
        <translation>2:</translation>
    </message>
    <message>
        <source>Density of layer 2</source>
        <translation>Densità dello strato 2</translation>
    </message>
    <message>
        <source>3:</source>
        <translation>3:</translation>
    </message>
    <message>
        <source>Density of layer 3</source>
        <translation>Densità dello strato 3</translation>
    </message>
    <message>
        <source>Standard deviations of all that follows from the velocities, by 100 interpretations of picks that are moved by their errors</source>
        <translation>Deviazioni standard di tutto ciò che deriva dalle velocità, da 100 interpretazioni di primi arrivi spostati secondo i loro errori</translation>
    </message>
    <message>
        <source>Errors from the pic&amp;ks</source>
        <translation>Errori dai primi a&amp;rrivi</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>&amp;Strato:</translation>
    </message>
    <message>
        <source>Which layers picture and table show</source>
        <translation>Quali strati mostrano immagine e tabella</translation>
    </message>
    <message>
        <source>P and S along the line</source>
        <translation>P e S lungo la linea</translation>
    </message>
    <message>
        <source>Depths below the surface; moduli of small strains: shear G0, Young&apos;s E0, bulk K, constrained M</source>
        <translation>Profondità dalla superficie; moduli a piccole deformazioni: di taglio G0, di Young E0, volumetrico K, edometrico M</translation>
    </message>
    <message>
        <source>Copy the table as it stands here, for a spreadsheet</source>
        <translation>Copia la tabella così com&apos;è qui, per un foglio di calcolo</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>Copia ta&amp;bella</translation>
    </message>
    <message>
        <source>Save the table as CSV, in metres, m/s, kg/m3 and MPa</source>
        <translation>Salva la tabella come CSV, in metri, m/s, kg/m3 e MPa</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Salva &amp;tabella ...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Salva le curve come PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>Salva &amp;immagine ...</translation>
    </message>
    <message>
        <source>Interpreting moved picks ...</source>
        <translation>Interpretazione dei primi arrivi spostati ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>P: %1, S: %2</source>
        <translation>P: %1, S: %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Strato %1</translation>
    </message>
    <message>
        <source>Picks of %1 have changed since its layers were built.</source>
        <translation>I primi arrivi di %1 sono cambiati dopo la costruzione dei suoi strati.</translation>
    </message>
    <message>
        <source>It has no errors.</source>
        <translation>Non ha errori.</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Strato</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Distanza [m]</translation>
    </message>
    <message>
        <source>Depth by P [m]</source>
        <translation>Profondità da P [m]</translation>
    </message>
    <message>
        <source>Depth by S [m]</source>
        <translation>Profondità da S [m]</translation>
    </message>
    <message>
        <source>Depths by P and S differ: it may be different ground.</source>
        <translation>Le profondità da P e da S differiscono: può trattarsi di terreni diversi.</translation>
    </message>
    <message>
        <source>Preview and print the curves at a chosen scale</source>
        <translation>Anteprima e stampa delle curve in una scala a scelta</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Stampa ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ErrorBands</name>
    <message>
        <source>&amp;Error bands</source>
        <translation>Fasce di &amp;errore</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>How far depths and velocities scatter as picks are moved by their errors, over %1 interpretations</source>
        <translation>Quanto si disperdono profondità e velocità spostando gli arrivi secondo i loro errori, su %1 interpretazioni</translation>
    </message>
    <message>
        <source>No errors could be found: the profile is not that of the picks and marks. Build it again.</source>
        <translation>Impossibile trovare gli errori: il profilo non è quello degli arrivi e delle assegnazioni. Costruirlo di nuovo.</translation>
    </message>
    <message>
        <source>Bands: 68 of %1 interpretations of picks that were moved by their errors</source>
        <translation>Fasce: 68 interpretazioni su %1 di arrivi spostati secondo i loro errori</translation>
    </message>
</context>
<context>
    <name>talvesk::ExportTomoVelData</name>
    <message>
        <source>Set optional shift parameter before export</source>
        <translation>Traslazione facoltativa prima dell&apos;esportazione</translation>
    </message>
    <message>
        <source>Y coord of the line</source>
        <translation>Coordinata Y della linea</translation>
    </message>
    <message>
        <source>Y coordinate of the line in metres</source>
        <translation>Coordinata Y della linea in metri</translation>
    </message>
    <message>
        <source>Written as Y of every cell</source>
        <translation>Scritta come Y di ogni cella</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Z offset of the line</source>
        <translation>Spostamento Z della linea</translation>
    </message>
    <message>
        <source>Z offset of the line in metres</source>
        <translation>Spostamento Z della linea in metri</translation>
    </message>
    <message>
        <source>Added to the elevation of every cell</source>
        <translation>Aggiunto alla quota di ogni cella</translation>
    </message>
    <message>
        <source>X is the distance along the line</source>
        <translation>X è la distanza lungo la linea</translation>
    </message>
    <message>
        <source>Takes the grid&apos;s offset off; X is the grid&apos;s own abscissa else</source>
        <translation>Toglie lo scostamento della griglia; altrimenti X è l&apos;ascissa della griglia</translation>
    </message>
    <message>
        <source>The Y coordinate is not a number.</source>
        <translation>La coordinata Y non è un numero.</translation>
    </message>
    <message>
        <source>The Z offset is not a number.</source>
        <translation>Lo spostamento Z non è un numero.</translation>
    </message>
</context>
<context>
    <name>talvesk::FenceDialog</name>
    <message>
        <source>Fence of several lines</source>
        <translation>Diagramma a pannelli</translation>
    </message>
    <message>
        <source>&amp;Lines:</source>
        <translation>&amp;Linee:</translation>
    </message>
    <message>
        <source>Stand the sections of other projects beside this one; the projects stay as they are</source>
        <translation>Affianca a questa le sezioni di altri progetti; i progetti restano come sono</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>&amp;Aggiungi progetti ...</translation>
    </message>
    <message>
        <source>Take the line that is selected out of the fence</source>
        <translation>Toglie dal diagramma la linea selezionata</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>&amp;Esagerazione verticale:</translation>
    </message>
    <message>
        <source>Save the view as a PNG picture</source>
        <translation>Salva la vista come immagine PNG</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Salva &amp;immagine ...</translation>
    </message>
    <message>
        <source>S&amp;how all</source>
        <translation>Mostra &amp;tutto</translation>
    </message>
    <message>
        <source>Lines that stand in the fence: %1.</source>
        <translation>Linee nel diagramma: %1.</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Esclusi: %1.</translation>
    </message>
    <message>
        <source>it has no position on the map</source>
        <translation>non ha una posizione sulla mappa</translation>
    </message>
    <message>
        <source>its position is in EPSG:%1, that of the others in EPSG:%2</source>
        <translation>la sua posizione è in EPSG:%1, quella delle altre in EPSG:%2</translation>
    </message>
    <message>
        <source>it has no geophones</source>
        <translation>non ha geofoni</translation>
    </message>
    <message>
        <source>its first and last geophone are at one place of the map</source>
        <translation>il primo e l&apos;ultimo geofono sono nello stesso punto della mappa</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Lines of the fence</source>
        <translation>Linee del diagramma</translation>
    </message>
    <message>
        <source>Converted: %1.</source>
        <comment>lines</comment>
        <translation>Convertite: %1.</translation>
    </message>
    <message>
        <source>%1 from EPSG:%2 to EPSG:%3</source>
        <comment>line, systems</comment>
        <translation>%1 da EPSG:%2 a EPSG:%3</translation>
    </message>
    <message>
        <source>No line stands in the fence yet.

A line needs a section and a place on the map. Give this survey its place, or add projects that have theirs.</source>
        <translation>Nessuna linea sta ancora nel diagramma.

Una linea ha bisogno di una sezione e di un posto sulla mappa. Dai a questo rilievo il suo posto, o aggiungi progetti che hanno il loro.</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>line, velocities</comment>
        <translation>%1 da %2 a %3</translation>
    </message>
    <message>
        <source>Beyond the colours: %1.</source>
        <comment>lines</comment>
        <translation>Oltre i colori: %1.</translation>
    </message>
    <message>
        <source>it stands in the fence already</source>
        <translation>sta già nel diagramma</translation>
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
        <translation>Velocità [%1]</translation>
    </message>
    <message>
        <source>Sections at their places on the map</source>
        <translation>Sezioni al loro posto sulla mappa</translation>
    </message>
    <message>
        <source>Easting [m]</source>
        <translation>Est [m]</translation>
    </message>
    <message>
        <source>Northing [m]</source>
        <translation>Nord [m]</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Quota [%1]</translation>
    </message>
</context>
<context>
    <name>talvesk::FigureSheetWidget</name>
    <message>
        <source>Figure</source>
        <translation>Figura</translation>
    </message>
</context>
<context>
    <name>talvesk::FigureWords</name>
    <message>
        <source>Contours</source>
        <translation>Isolinee</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Gradiente verticale di velocità</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplaciano della velocità</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densità d&apos;informazione</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>1 trace</source>
        <translation>1 traccia</translation>
    </message>
    <message>
        <source>%1 traces</source>
        <translation>%1 tracce</translation>
    </message>
    <message>
        <source>1 pick</source>
        <translation>1 primo arrivo</translation>
    </message>
    <message>
        <source>%1 picks</source>
        <translation>%1 primi arrivi</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 tiro</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 tiri</translation>
    </message>
    <message>
        <source>1 computed time</source>
        <translation>1 tempo calcolato</translation>
    </message>
    <message>
        <source>%1 computed times</source>
        <translation>%1 tempi calcolati</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>quantity, least and greatest value with its unit</comment>
        <translation>%1 da %2 a %3</translation>
    </message>
    <message>
        <source>Contours every %1</source>
        <translation>Isolinee ogni %1</translation>
    </message>
    <message>
        <source>1 ray</source>
        <translation>1 raggio</translation>
    </message>
    <message>
        <source>%1 rays</source>
        <translation>%1 raggi</translation>
    </message>
    <message>
        <source>Vertical exaggeration %1</source>
        <translation>Esagerazione verticale %1</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Distanza [%1]</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Quota [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Tempo [ms]</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geofoni</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>First breaks</source>
        <translation>Primi arrivi</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Tiro %1 di %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>shot, place</comment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1, filtered</source>
        <comment>traces</comment>
        <translation>%1, filtrate</translation>
    </message>
    <message>
        <source>%1, some filtered</source>
        <comment>traces</comment>
        <translation>%1, alcune filtrate</translation>
    </message>
    <message>
        <source>One of every %1 is drawn</source>
        <translation>Disegnata una ogni %1</translation>
    </message>
    <message>
        <source>%1 without samples or sample interval</source>
        <translation>%1 senza campioni o intervallo di campionamento</translation>
    </message>
    <message>
        <source>Each trace to its own maximum, gain %1</source>
        <translation>Ogni traccia al proprio massimo, guadagno %1</translation>
    </message>
    <message>
        <source>All traces to one maximum, gain %1</source>
        <translation>Tutte le tracce a un solo massimo, guadagno %1</translation>
    </message>
    <message>
        <source>no picks</source>
        <translation>nessun primo arrivo</translation>
    </message>
    <message>
        <source>%1 outside the times shown</source>
        <comment>picks</comment>
        <translation>%1 fuori dai tempi mostrati</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Raggi</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Limite di copertura</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Tempi di arrivo</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Misurati</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calcolati</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Profilo a rifrazione</translation>
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
        <translation>Strato %1</translation>
    </message>
    <message>
        <source>Velocities of refractors: median</source>
        <translation>Velocità dei rifrattori: mediana</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Iterazione esterna</translation>
    </message>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>Scarto quadratico medio [ms]</translation>
    </message>
    <message>
        <source>Offset [%1]</source>
        <translation>Distanza dal tiro [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Calcolati meno misurati [ms]</translation>
    </message>
    <message>
        <source>Refractor %1</source>
        <translation>Rifrattore %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms, %2 %</source>
        <translation>Scarto quadratico medio %1 ms, %2 %</translation>
    </message>
    <message>
        <source>last solver pass %1 %</source>
        <translation>ultimo passaggio del risolutore %1 %</translation>
    </message>
    <message>
        <source>picks have changed since the inversion</source>
        <translation>primi arrivi cambiati dopo l&apos;inversione</translation>
    </message>
    <message>
        <source>Refractor %1 (picks have changed since)</source>
        <translation>Rifrattore %1 (primi arrivi cambiati da allora)</translation>
    </message>
    <message>
        <source>Picks have changed since this was built</source>
        <translation>Primi arrivi cambiati dopo la costruzione</translation>
    </message>
    <message>
        <source>smoothed since the inversion</source>
        <translation>smussata dopo l&apos;inversione</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>tiro disattivato</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>traslazione di %1 ms</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>ordine invertito</translation>
    </message>
    <message>
        <source>stacked with %1</source>
        <comment>shots</comment>
        <translation>somma con %1</translation>
    </message>
    <message>
        <source>%1 killed</source>
        <comment>traces</comment>
        <translation>esclusione di %1</translation>
    </message>
    <message>
        <source>%1 of reversed polarity</source>
        <comment>traces</comment>
        <translation>%1 con polarità invertita</translation>
    </message>
    <message>
        <source>%1 muted</source>
        <comment>traces</comment>
        <translation>azzeramento iniziale di %1</translation>
    </message>
    <message>
        <source>bars of one standard deviation, dashed above %1 ms</source>
        <translation>barre di una deviazione standard, tratteggiate oltre %1 ms</translation>
    </message>
    <message>
        <source>%1 good</source>
        <comment>picks</comment>
        <translation>%1 buoni</translation>
    </message>
    <message>
        <source>%1 doubtful</source>
        <comment>picks</comment>
        <translation>%1 dubbi</translation>
    </message>
    <message>
        <source>%1 of unknown error</source>
        <comment>picks</comment>
        <translation>%1 con errore ignoto</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Incertezza della velocità</translation>
    </message>
    <message>
        <source>chi-square %1 with the time shifts of shots</source>
        <translation>chi quadrato %1 con le traslazioni temporali dei tiri</translation>
    </message>
    <message>
        <source>chi-square %1</source>
        <translation>chi quadrato %1</translation>
    </message>
    <message>
        <source>Correlation by depth</source>
        <translation>Correlazione secondo la profondità</translation>
    </message>
    <message>
        <source>Correlation of true and recovered</source>
        <translation>Correlazione fra vero e ricostruito</translation>
    </message>
    <message>
        <source>-%1 % to +%1 % of the section&apos;s velocity; grey: no ray</source>
        <translation>da -%1 % a +%1 % della velocità della sezione; grigio: nessun raggio</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Vero</translation>
    </message>
    <message>
        <source>Recovered</source>
        <translation>Ricostruito</translation>
    </message>
    <message>
        <source>[%1]</source>
        <translation>[%1]</translation>
    </message>
    <message>
        <source>Depth of %1, 16 to 84 %</source>
        <translation>Profondità di %1, dal 16 all&apos;84 %</translation>
    </message>
    <message>
        <source>Pale: uncertain, ± %1 to %2 % and no ray</source>
        <translation>Sbiadito: incerto, da ± %1 a %2 % e senza raggi</translation>
    </message>
    <message>
        <source>picks have changed since the certainty was found out</source>
        <translation>i primi arrivi sono cambiati dopo il calcolo dell&apos;affidabilità</translation>
    </message>
    <message>
        <source>certainty of other sections than this one: %1 % of its cells with rays lie beyond two deviations</source>
        <translation>affidabilità di sezioni diverse da questa: il %1 % delle sue celle con raggi sta oltre due deviazioni</translation>
    </message>
    <message>
        <source>±: half of the range from 16 to 84 % of %1 members</source>
        <translation>±: metà dell&apos;intervallo dal 16 all&apos;84 % di %1 membri</translation>
    </message>
    <message>
        <source>certainty of %1 members</source>
        <translation>affidabilità di %1 membri</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 esclusi</translation>
    </message>
    <message>
        <source>Geophone at [%1]</source>
        <translation>Geofono a [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [pick errors]</source>
        <translation>Calcolato meno misurato [errori dei primi arrivi]</translation>
    </message>
    <message>
        <source>Shot %1, geophone %2 at %3, offset %4: measured %5 ms, computed %6 ms, residual %7 ms, error %8 ms (%9 errors)</source>
        <translation>Tiro %1, geofono %2 a %3, distanza %4: misurato %5 ms, calcolato %6 ms, residuo %7 ms, errore %8 ms (%9 errori)</translation>
    </message>
    <message>
        <source>; suspect</source>
        <translation>; sospetto</translation>
    </message>
    <message>
        <source>Geophone at [%1]; hatched: no pick, with a dot: suspect</source>
        <translation>Geofono a [%1]; tratteggiato: nessun primo arrivo, con un punto: sospetto</translation>
    </message>
    <message>
        <source>Shot, along the line</source>
        <translation>Tiro, lungo la linea</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Primi arrivi</translation>
    </message>
    <message>
        <source>Suspect</source>
        <translation>Sospetti</translation>
    </message>
    <message>
        <source>Running median</source>
        <translation>Mediana mobile</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Una deviazione standard</translation>
    </message>
    <message>
        <source>Stands out</source>
        <translation>Anomalo</translation>
    </message>
    <message>
        <source>Median and one standard deviation</source>
        <translation>Mediana e una deviazione standard</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2 beside the line)</source>
        <translation>%1 (%2 di lato alla linea)</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Sondaggi</translation>
    </message>
    <message>
        <source>Known depths</source>
        <translation>Profondità note</translation>
    </message>
    <message>
        <source>Fixed bodies</source>
        <translation>Corpi fissi</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Velocità [%1]</translation>
    </message>
    <message>
        <source>Vp/Vs</source>
        <translation>Vp/Vs</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>Coefficiente di Poisson</translation>
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
        <translation>Le profondità da P e S differiscono</translation>
    </message>
    <message>
        <source>No ground: Vp/Vs below 1.41</source>
        <translation>Non è terreno: Vp/Vs sotto 1,41</translation>
    </message>
    <message>
        <source>Bars: one standard deviation, of the picks</source>
        <translation>Barre: una deviazione standard, dai primi arrivi</translation>
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
        <translation>Densità</translation>
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
        <translation>kg/m3</translation>
    </message>
    <message>
        <source>MPa</source>
        <translation>MPa</translation>
    </message>
    <message>
        <source>Density from Vp by Gardner&apos;s rule</source>
        <translation>Densità da Vp con la relazione di Gardner</translation>
    </message>
    <message>
        <source>Density %1 kg/m3</source>
        <translation>Densità %1 kg/m3</translation>
    </message>
    <message>
        <source>Layer %1, %2</source>
        <translation>Strato %1, %2</translation>
    </message>
    <message>
        <source>Layer %1, %2 ± %3</source>
        <translation>Strato %1, %2 ± %3</translation>
    </message>
    <message>
        <source>Dashed: not carried by picks there</source>
        <translation>Tratteggio: non sostenuto da primi arrivi in quel punto</translation>
    </message>
    <message>
        <source>Error of the picks (68 of 100)</source>
        <translation>Errore dei primi arrivi (68 su 100)</translation>
    </message>
    <message>
        <source>Depth [%1]</source>
        <translation>Profondità [%1]</translation>
    </message>
    <message>
        <source>Depths are below the surface</source>
        <translation>Le profondità sono dalla superficie</translation>
    </message>
    <message>
        <source>dashed: not carried by picks there</source>
        <translation>tratteggio: non sostenuto da primi arrivi in quel punto</translation>
    </message>
    <message>
        <source>hollow marks: layer 3</source>
        <translation>simboli vuoti: strato 3</translation>
    </message>
    <message>
        <source>shaded: 68 of 100 results of moved picks</source>
        <translation>ombreggiato: 68 risultati su 100 con primi arrivi spostati</translation>
    </message>
    <message>
        <source>dashed: times through the layers</source>
        <translation>tratteggio: tempi attraverso gli strati</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Strati</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean, growing with depth</source>
        <translation>Strato 1, in media %1, crescente con la profondità</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean</source>
        <translation>Strato 1, in media %1</translation>
    </message>
    <message>
        <source>Vertical gradient [1/s]</source>
        <translation>Gradiente verticale [1/s]</translation>
    </message>
    <message>
        <source>Uncertainty [%]</source>
        <translation>Incertezza [%]</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distanza %1</translation>
    </message>
    <message>
        <source>no section here</source>
        <translation>qui nessuna sezione</translation>
    </message>
    <message>
        <source>surface at %1</source>
        <translation>superficie a %1</translation>
    </message>
    <message>
        <source>shaded: 16 to 84 %</source>
        <translation>ombreggiato: dal 16 all&apos;84 %</translation>
    </message>
    <message>
        <source>%1 with a gain of their own</source>
        <comment>traces</comment>
        <translation>%1 con un proprio guadagno</translation>
    </message>
    <message>
        <source>annotations outside the section: %1</source>
        <translation>annotazioni fuori dalla sezione: %1</translation>
    </message>
    <message>
        <source>%1 (not reached)</source>
        <translation>%1 (non raggiunta)</translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation>Scala %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Quota %1</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somma</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Each pair of traces to one maximum, gain %1</source>
        <translation>Ogni coppia di tracce a un solo massimo, guadagno %1</translation>
    </message>
    <message>
        <source>Absolute offset [%1]</source>
        <translation>Offset assoluto [%1]</translation>
    </message>
    <message>
        <source>Reduced time [ms], t - |x|/%1 %2</source>
        <translation>Tempo ridotto [ms], t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>gain with time t^%1</source>
        <comment>exponent</comment>
        <translation>guadagno nel tempo t^%1</translation>
    </message>
    <message>
        <source>offsets not known: not drawn by offset or reduced as asked</source>
        <translation>offset non noti: non disegnato per offset o in tempo ridotto come richiesto</translation>
    </message>
    <message>
        <source>All traces of a shot to one maximum, gain %1</source>
        <translation>Tutte le tracce di un tiro a un solo massimo, guadagno %1</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <comment>what is left out of it, or mended</comment>
        <translation>Tiro %1: %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Foglio %1 di %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sezione</translation>
    </message>
    <message>
        <source>Misfit in each iteration</source>
        <translation>Scarto in ogni iterazione</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Residui lungo i raggi</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Profilo di profondità</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P e S</translation>
    </message>
    <message>
        <source>1 cm is %1 ms</source>
        <translation>1 cm è %1 ms</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Ultimo passaggio del risolutore</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Residui per tiro e geofono</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residui in funzione della distanza dal tiro</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Residui di tiri e di geofoni</translation>
    </message>
    <message>
        <source>Match line: sheet %1</source>
        <translation>Linea di giunzione: foglio %1</translation>
    </message>
</context>
<context>
    <name>talvesk::FitPanel</name>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Errori dei primi arrivi che non ne indicano</translation>
    </message>
    <message>
        <source>Least error [ms]</source>
        <translation>Errore minimo [ms]</translation>
    </message>
    <message>
        <source>How far off a pick is at least, one standard deviation. A small error makes the section follow every pick, and its noise; a large one lets it pass by.</source>
        <translation>Di quanto sbaglia almeno un primo arrivo, una deviazione standard. Con un errore piccolo la sezione segue ogni primo arrivo, e il suo rumore; con uno grande lo trascura.</translation>
    </message>
    <message>
        <source>Share of the time [%]</source>
        <translation>Quota del tempo [%]</translation>
    </message>
    <message>
        <source>The error of a late pick is this share of its time, where that is more than the least error.</source>
        <translation>L&apos;errore di un primo arrivo tardo è questa quota del suo tempo, dove è più dell&apos;errore minimo.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Velocità minima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this.</source>
        <translation>Le celle non diventano mai più lente di così.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Velocità massima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this.</source>
        <translation>Le celle non diventano mai più veloci di così.</translation>
    </message>
    <message>
        <source>Iterations at most</source>
        <translation>Iterazioni al massimo</translation>
    </message>
    <message>
        <source>The fit ends by itself, as a rule after 5 to 15 iterations.</source>
        <translation>L&apos;adattamento finisce da sé, di regola dopo 5 - 15 iterazioni.</translation>
    </message>
    <message>
        <source>Picks that are far off count by how far they are off, and no more by its square: some gross errors then hardly change the section.</source>
        <translation>I primi arrivi molto lontani contano in proporzione a quanto sono lontani, e non più al quadrato: qualche errore grossolano cambia allora appena la sezione.</translation>
    </message>
    <message>
        <source>Robust against gross errors of picks</source>
        <translation>Robusto contro errori grossolani dei primi arrivi</translation>
    </message>
    <message>
        <source>Looks for few sharp steps of the velocity rather than for gentle slopes.</source>
        <translation>Cerca pochi salti netti della velocità invece di variazioni graduali.</translation>
    </message>
    <message>
        <source>Blocky: sharp steps rather than slopes</source>
        <translation>A blocchi: salti netti invece di variazioni graduali</translation>
    </message>
    <message>
        <source>Also finds by how much the record of every shot begins too early or too late, zero on the whole. The shifts are listed after the run and change nothing by themselves.</source>
        <translation>Trova anche di quanto la registrazione di ogni tiro comincia troppo presto o troppo tardi, zero nel complesso. Le traslazioni sono elencate dopo l&apos;inversione e da sole non cambiano nulla.</translation>
    </message>
    <message>
        <source>Find time shifts of shots</source>
        <translation>Trova le traslazioni temporali dei tiri</translation>
    </message>
    <message>
        <source>Trigger error [ms]</source>
        <translation>Errore del trigger [ms]</translation>
    </message>
    <message>
        <source>How far the shots are thought to be off. Shifts that are large beside it are less welcome.</source>
        <translation>Di quanto si pensa che sbaglino i tiri. Traslazioni grandi rispetto a questo sono meno gradite.</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>Usa un solo processore. Il risultato è lo stesso fino all&apos;ultima cifra; ci vuole solo più tempo.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Esegui con un solo thread</translation>
    </message>
    <message>
        <source>The section starts from this model, and departs from it no more than the picks ask for:</source>
        <translation>La sezione parte da questo modello, e se ne scosta non più di quanto i primi arrivi richiedano:</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi quadrato</translation>
    </message>
    <message>
        <source>Of the times through the model as it is, suspect picks included: 1 is a fit as good as the picks are.</source>
        <translation>Dei tempi attraverso il modello così com&apos;è, primi arrivi sospetti inclusi: 1 è un accordo buono quanto i primi arrivi.</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Che cos&apos;è</translation>
    </message>
    <message>
        <source>Distance from the shot (m)</source>
        <translation>Distanza dal tiro (m)</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Tempo (ms)</translation>
    </message>
    <message>
        <source>%1 of %2 picks state an error of their own.</source>
        <translation>Primi arrivi che indicano un errore proprio: %1 di %2.</translation>
    </message>
    <message>
        <source>By these errors the present section has chi-square %1, with %2 suspect picks left out.</source>
        <translation>Con questi errori la sezione attuale ha chi quadrato %1, esclusi %2 primi arrivi sospetti.</translation>
    </message>
    <message>
        <source>The models are being made and traced...</source>
        <translation>Si costruiscono i modelli e si tracciano i raggi...</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Non sostenuto dai primi arrivi</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Primi arrivi</translation>
    </message>
    <message>
        <source>The section is drawn to the velocities and depths of &quot;Known ground&quot; by their errors, and fixed bodies stay as they are. How the section goes with them is told after the run; chi-square is of the picks alone.</source>
        <translation>La sezione è attratta verso le velocità e le profondità di &quot;Terreno noto&quot; secondo i loro errori, e i corpi fissi restano come sono. Come la sezione vi si accorda è detto dopo il calcolo; il chi quadrato è dei soli primi arrivi.</translation>
    </message>
    <message>
        <source>Hold to known ground</source>
        <translation>Vincola al terreno noto</translation>
    </message>
</context>
<context>
    <name>talvesk::FkView</name>
    <message>
        <source>Spectrum over wavenumber and frequency</source>
        <translation>Spettro in numero d&apos;onda e frequenza</translation>
    </message>
    <message>
        <source>No spectrum</source>
        <translation>Nessuno spettro</translation>
    </message>
    <message>
        <source>Wavenumber along the line (1/%1)</source>
        <translation>Numero d&apos;onda lungo la linea (1/%1)</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Frequenza (Hz)</translation>
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
        <translation>Foglio di tiri</translation>
    </message>
    <message>
        <source>&amp;Rows:</source>
        <translation>&amp;Righe:</translation>
    </message>
    <message>
        <source>Shots one above the other</source>
        <translation>Tiri uno sopra l&apos;altro</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Colonne:</translation>
    </message>
    <message>
        <source>Shots side by side</source>
        <translation>Tiri uno accanto all&apos;altro</translation>
    </message>
    <message>
        <source>&amp;First shot:</source>
        <translation>&amp;Primo tiro:</translation>
    </message>
    <message>
        <source>The shots from this one on</source>
        <translation>I tiri da questo in poi</translation>
    </message>
    <message>
        <source>&amp;Last shot:</source>
        <translation>&amp;Ultimo tiro:</translation>
    </message>
    <message>
        <source>The shots up to this one</source>
        <translation>I tiri fino a questo</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>C&amp;arta:</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>&amp;Tempi fino a:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Dove finisce l&apos;asse del tempo; automatico: a una volta e mezza il tempo dell&apos;ultimo primo arrivo</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatico</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Guadagno:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Escursione del valore più grande, in distanze fra le tracce</translation>
    </message>
    <message>
        <source>Mark the first breaks</source>
        <translation>Segna i primi arrivi</translation>
    </message>
    <message>
        <source>P&amp;icks</source>
        <translation>Primi arr&amp;ivi</translation>
    </message>
    <message>
        <source>All traces of a shot to one measure</source>
        <translation>Tutte le tracce di un tiro con una sola misura</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>Ampiezze &amp;vere</translation>
    </message>
    <message>
        <source>The filtered copies of the traces that have one</source>
        <translation>Le copie filtrate delle tracce che ne hanno una</translation>
    </message>
    <message>
        <source>Filtered c&amp;opies</source>
        <translation>Copie &amp;filtrate</translation>
    </message>
    <message>
        <source>Channel numbers in place of distances</source>
        <translation>Numeri di canale al posto delle distanze</translation>
    </message>
    <message>
        <source>C&amp;hannels below</source>
        <translation>Ca&amp;nali sotto</translation>
    </message>
    <message>
        <source>Sh&amp;eet:</source>
        <translation>F&amp;oglio:</translation>
    </message>
    <message>
        <source>The sheet that is shown; all are saved</source>
        <translation>Il foglio mostrato; si salvano tutti</translation>
    </message>
    <message>
        <source>A4 landscape</source>
        <translation>A4 orizzontale</translation>
    </message>
    <message>
        <source>A4 portrait</source>
        <translation>A4 verticale</translation>
    </message>
    <message>
        <source>A3 landscape</source>
        <translation>A3 orizzontale</translation>
    </message>
    <message>
        <source>A3 portrait</source>
        <translation>A3 verticale</translation>
    </message>
    <message>
        <source>A2 landscape</source>
        <translation>A2 orizzontale</translation>
    </message>
    <message>
        <source>A2 portrait</source>
        <translation>A2 verticale</translation>
    </message>
    <message>
        <source>&amp;Save sheets ...</source>
        <translation>&amp;Salva fogli ...</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>sheets</comment>
        <translation>di %1</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Anteprima dei fogli</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTable</name>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>&quot;%1&quot; non è un numero.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1.</source>
        <translation>Non è stato incollato nulla: %1.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows do not fit from row %2 on, of %3.</source>
        <translation>Non è stato incollato nulla: %1 righe non entrano dalla riga %2, su %3.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 columns do not fit from column &quot;%2&quot; on.</source>
        <translation>Non è stato incollato nulla: %1 colonne non entrano dalla colonna &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1</source>
        <translation>Non è stato incollato nulla: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTexts</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e un altro</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 without a position.</source>
        <translation>
            <numerusform>Stesa %1: il geofono %2 non ha posizione.</numerusform>
            <numerusform>Stesa %1: i geofoni %2 non hanno posizione.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1: geophones %2 stand at one place.</source>
        <translation>Stesa %1: i geofoni %2 sono nello stesso punto.</translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 against the direction of the string.</source>
        <translation>
            <numerusform>Stesa %1: il geofono %2 va contro il verso della stesa.</numerusform>
            <numerusform>Stesa %1: i geofoni %2 vanno contro il verso della stesa.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 not at the elevation that string %3 has there.</source>
        <translation>
            <numerusform>Stesa %1: il geofono %2 non è alla quota che la stesa %3 ha in quel punto.</numerusform>
            <numerusform>Stesa %1: i geofoni %2 non sono alla quota che la stesa %3 ha in quei punti.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a position.</source>
        <translation>
            <numerusform>Il tiro %1 non ha posizione.</numerusform>
            <numerusform>I tiri %1 non hanno posizione.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string.</source>
        <translation>
            <numerusform>Il tiro %1 non ha una stesa di geofoni.</numerusform>
            <numerusform>I tiri %1 non hanno una stesa di geofoni.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not an S-wave pair, as others are: a survey holds one kind of wave.</source>
        <translation>
            <numerusform>Il tiro %1 non è una coppia di onde S come gli altri: un rilievo contiene un solo tipo di onda.</numerusform>
            <numerusform>I tiri %1 non sono coppie di onde S come gli altri: un rilievo contiene un solo tipo di onda.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 farther off the line than the line is long.</source>
        <translation>
            <numerusform>Il tiro %1 è lontano dalla linea più della sua lunghezza.</numerusform>
            <numerusform>I tiri %1 sono lontani dalla linea più della sua lunghezza.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 far above or below the line.</source>
        <translation>
            <numerusform>Il tiro %1 è molto sopra o sotto la linea.</numerusform>
            <numerusform>I tiri %1 sono molto sopra o sotto la linea.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1 has %2 geophones, shot(s) %3 %4 traces: the first %5 of both are used.</source>
        <translation>
            <numerusform>La stesa %1 ha %2 geofoni, il tiro %3 ha %4 tracce: si usano i primi %5.</numerusform>
            <numerusform>La stesa %1 ha %2 geofoni, i tiri %3 hanno %4 tracce: si usano i primi %5.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1 has no geophones.</source>
        <translation>La stesa %1 non ha geofoni.</translation>
    </message>
    <message>
        <source>No shot uses string %1; its positions shape the surface all the same.</source>
        <translation>Nessun tiro usa la stesa %1; le sue posizioni modellano comunque la superficie.</translation>
    </message>
    <message>
        <source>Shot ID &lt;b&gt;</source>
        <translation>ID tiro &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt;&lt;br&gt;Geophone geometry ID: &lt;b&gt;</source>
        <translation>&lt;/b&gt;&lt;br&gt;ID geometria geofoni: &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt; Shot position: &lt;b&gt;</source>
        <translation>&lt;/b&gt; Posizione del tiro: &lt;b&gt;</translation>
    </message>
    <message>
        <source> m&lt;/b&gt;</source>
        <translation> m&lt;/b&gt;</translation>
    </message>
    <message>
        <source>File name &lt;b&gt;</source>
        <translation>Nome del file &lt;b&gt;</translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not at the elevation of the line: type it, or interpolate elevations.</source>
        <translation>
            <numerusform>Il tiro %1 non è alla quota della linea: scrivila, o interpola le quote.</numerusform>
            <numerusform>I tiri %1 non sono alla quota della linea: scrivile, o interpola le quote.</numerusform>
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
        <translation>Quota (m)</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 è troppo lontano.</translation>
    </message>
</context>
<context>
    <name>talvesk::GuidanceStrip</name>
    <message>
        <source>Guidance</source>
        <translation>Percorso guidato</translation>
    </message>
    <message>
        <source>Show the steps from recordings to a section, and how they stand</source>
        <translation>Mostra i passi dalle registrazioni alla sezione, e a che punto sono</translation>
    </message>
    <message>
        <source>A click: %1</source>
        <translation>Un clic: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>step, how it stands</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1. A click: %2</source>
        <translation>%1. Un clic: %2</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Prossimo: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GuideWindow</name>
    <message>
        <source>User guide</source>
        <translation>Guida per l&apos;utente</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Pagine trovate</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Testo più piccolo</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Testo più grande</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Trova precedente</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Trova successivo</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Apri nel browser</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>title of a page, number of places</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>No program to show the user guide was found.</source>
        <translation>Non è stato trovato un programma per mostrare la guida.</translation>
    </message>
    <message>
        <source>You find it in %1</source>
        <translation>Si trova in %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
</context>
<context>
    <name>talvesk::HandleTrack</name>
    <message>
        <source>Handle %1</source>
        <translation>Cursore %1</translation>
    </message>
</context>
<context>
    <name>talvesk::ImagesDialog</name>
    <message>
        <source>Images</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Pictures of</source>
        <translation>Immagini di</translation>
    </message>
    <message>
        <source>Traces of the current shot</source>
        <translation>Tracce del tiro in vista</translation>
    </message>
    <message>
        <source>Traces of all shots</source>
        <translation>Tracce di tutti i tiri</translation>
    </message>
    <message>
        <source>A picture for every shot</source>
        <translation>Un&apos;immagine per ogni tiro</translation>
    </message>
    <message>
        <source>Filtered traces</source>
        <translation>Tracce filtrate</translation>
    </message>
    <message>
        <source>The filtered copy of the traces, where there is one</source>
        <translation>La copia filtrata delle tracce, dove c&apos;è</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Dromocrone</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sezione di velocità</translation>
    </message>
    <message>
        <source>Palette, contours, rays and geophones as the section view shows them</source>
        <translation>Tavolozza, isolinee, raggi e geofoni come li mostra la vista della sezione</translation>
    </message>
    <message>
        <source>Vertical gradient</source>
        <translation>Gradiente verticale</translation>
    </message>
    <message>
        <source>Laplacian</source>
        <translation>Laplaciano</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densità d&apos;informazione</translation>
    </message>
    <message>
        <source>Sections as cells</source>
        <translation>Sezioni a celle</translation>
    </message>
    <message>
        <source>In bands where contours are filled</source>
        <translation>A bande dove le isolinee sono riempite</translation>
    </message>
    <message>
        <source>Sections smooth</source>
        <translation>Sezioni sfumate</translation>
    </message>
    <message>
        <source>Blended from cell to cell, in pictures of their own</source>
        <translation>Sfumate da cella a cella, in immagini a parte</translation>
    </message>
    <message>
        <source>Refraction profile</source>
        <translation>Profilo a rifrazione</translation>
    </message>
    <message>
        <source>Format and size</source>
        <translation>Formato e dimensioni</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormato:</translation>
    </message>
    <message>
        <source>PNG (pixels)</source>
        <translation>PNG (pixel)</translation>
    </message>
    <message>
        <source>SVG (shapes)</source>
        <translation>SVG (vettoriale)</translation>
    </message>
    <message>
        <source>PDF (shapes)</source>
        <translation>PDF (vettoriale)</translation>
    </message>
    <message>
        <source>&amp;Unit of the size:</source>
        <translation>&amp;Unità di misura:</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>millimetri</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixel</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Larghezza:</translation>
    </message>
    <message>
        <source>Height as each picture asks for</source>
        <translation>Altezza come richiede ogni immagine</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>Al&amp;tezza:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Risoluzione:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Pixels per inch; also how large letters and lines are in a picture of so many pixels</source>
        <translation>Pixel per pollice; decide anche quanto sono grandi lettere e linee in un&apos;immagine di tanti pixel</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Cartella:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Sfoglia...</translation>
    </message>
    <message>
        <source>&amp;Names begin with:</source>
        <translation>I &amp;nomi cominciano con:</translation>
    </message>
    <message>
        <source>Files to be wri&amp;tten:</source>
        <translation>Fil&amp;e da scrivere:</translation>
    </message>
    <message>
        <source>Folder of the pictures</source>
        <translation>Cartella delle immagini</translation>
    </message>
    <message>
        <source>Nothing to write is chosen.</source>
        <translation>Non è stato scelto nulla da scrivere.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>The folder is not writable.</source>
        <translation>Nella cartella non si può scrivere.</translation>
    </message>
    <message>
        <source>A name cannot hold a slash.</source>
        <translation>Un nome non può contenere una barra.</translation>
    </message>
    <message>
        <source>%1 (exists)</source>
        <translation>%1 (esiste)</translation>
    </message>
    <message>
        <source>Residuals of the picks</source>
        <translation>Residui dei primi arrivi</translation>
    </message>
    <message>
        <source>Shot by geophone, and in the section along the rays</source>
        <translation>Tiro per geofono, e nella sezione lungo i raggi</translation>
    </message>
    <message>
        <source>Files to be written</source>
        <translation>File da scrivere</translation>
    </message>
    <message>
        <source>Traces as in the view</source>
        <translation>Tracce come nella vista</translation>
    </message>
    <message>
        <source>By offset, in reduced time and with a gain in time, as the view of the traces is now</source>
        <translation>Per offset, in tempo ridotto e con un guadagno nel tempo, come è ora la vista delle tracce</translation>
    </message>
</context>
<context>
    <name>talvesk::InversionTexts</name>
    <message>
        <source>Section, along fresh rays
</source>
        <translation>Sezione, lungo raggi nuovi
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
        <translation>Media: [ms] %1
</translation>
    </message>
    <message>
        <source>Largest difference: [ms] %1; shot %2, receiver %3
</source>
        <translation>Differenza massima: [ms] %1; tiro %2, ricevitore %3
</translation>
    </message>
    <message>
        <source>Computing time: [s] %1
</source>
        <translation>Tempo di calcolo: [s] %1
</translation>
    </message>
    <message>
        <source>Last solver pass
</source>
        <translation>Ultimo passaggio del risolutore
</translation>
    </message>
    <message>
        <source>Elapsed time: [s] %1
</source>
        <translation>Tempo trascorso: [s] %1
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
        <translation>Errore massimo: [ms] %1; [%] %2
</translation>
    </message>
    <message>
        <source>Chi-square: %1; of all picks %2; suspect picks %3
</source>
        <translation>Chi quadrato: %1; di tutti i primi arrivi %2; primi arrivi sospetti %3
</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3 with the time shifts of shots.</source>
        <translation>Scarto della sezione: RMS %1 ms (%2 %), chi quadrato %3 con le traslazioni temporali dei tiri.</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3.</source>
        <translation>Scarto della sezione: RMS %1 ms (%2 %), chi quadrato %3.</translation>
    </message>
    <message>
        <source>From coarse to fine: iteration %1 of %2 is kept, smoothing parameter %3
</source>
        <translation>Dal grosso al fine: si conserva l&apos;iterazione %1 di %2, parametro di smussamento %3
</translation>
    </message>
    <message>
        <source>Iterations: %1
</source>
        <translation>Iterazioni: %1
</translation>
    </message>
    <message>
        <source>Weight of the roughness: %1
</source>
        <translation>Peso della rugosità: %1
</translation>
    </message>
    <message>
        <source>Started from and held to: %1
</source>
        <translation>Modello di partenza e di riferimento: %1
</translation>
    </message>
    <message>
        <source>Time shifts of shots: [ms] %1
</source>
        <translation>Traslazioni temporali dei tiri: [ms] %1
</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>tiro %1: %2</translation>
    </message>
    <message>
        <source>Best of the picks&apos; models</source>
        <translation>Il migliore dei modelli dai primi arrivi</translation>
    </message>
    <message>
        <source>With the time shifts of shots</source>
        <translation>Con le traslazioni temporali dei tiri</translation>
    </message>
    <message>
        <source>Without suspects, with the time shifts of shots</source>
        <translation>Senza i sospetti, con le traslazioni temporali dei tiri</translation>
    </message>
    <message>
        <source>Without suspects</source>
        <translation>Senza i sospetti</translation>
    </message>
    <message>
        <source>All picks as they are, </source>
        <translation>Tutti i primi arrivi così come sono, </translation>
    </message>
    <message>
        <source>Known ground: %1 conditions, RMS %2 of their errors; fixed cells %3
</source>
        <translation>Terreno noto: %1 condizioni, RMS %2 dei loro errori; celle fisse %3
</translation>
    </message>
    <message>
        <source>The section does not go with %1: off by %2 of its errors
</source>
        <translation>La sezione non si accorda con %1: scarto di %2 volte l&apos;errore
</translation>
    </message>
    <message>
        <source>RMS of what chi-square counts: %1 ms.</source>
        <translation>RMS di ciò che conta nel chi quadrato: %1 ms.</translation>
    </message>
</context>
<context>
    <name>talvesk::KnownGroundDialog</name>
    <message>
        <source>Known ground</source>
        <translation>Terreno noto</translation>
    </message>
    <message>
        <source>&amp;Boreholes</source>
        <translation>&amp;Sondaggi</translation>
    </message>
    <message>
        <source>A row is a layer; layers of one name are of one borehole, from the top down. Depths are counted from the surface. Without an error a velocity counts as known to 5 %.</source>
        <translation>Una riga è uno strato; gli strati con lo stesso nome sono di un solo sondaggio, dall&apos;alto in basso. Le profondità si contano dal suolo. Senza errore una velocità vale come nota al 5 %.</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Sondaggi</translation>
    </message>
    <message>
        <source>&amp;Depths</source>
        <translation>&amp;Profondità</translation>
    </message>
    <message>
        <source>A row is a place where a refractor is known to lie: the velocity that is reached there, or those above and below. Without an error a depth counts as known to a tenth. Points of one refractor number belong together.</source>
        <translation>Una riga è un punto in cui si sa che passa un rifrattore: la velocità che vi si raggiunge, o quelle sopra e sotto. Senza errore una profondità vale come nota a un decimo. I punti con lo stesso numero di rifrattore vanno insieme.</translation>
    </message>
    <message>
        <source>Depths</source>
        <translation>Profondità</translation>
    </message>
    <message>
        <source>B&amp;odies</source>
        <translation>&amp;Corpi</translation>
    </message>
    <message>
        <source>A row is a corner; corners of one name go around a body of known velocity, which a fit leaves as it is.</source>
        <translation>Una riga è un vertice; i vertici con lo stesso nome delimitano un corpo di velocità nota, che un adattamento lascia com&apos;è.</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Corpi</translation>
    </message>
    <message>
        <source>Insert a row above the current one. The last line of a table is always empty: type there to go on</source>
        <translation>Inserisce una riga sopra quella attuale. L&apos;ultima riga di una tabella è sempre vuota: per continuare basta scrivere lì</translation>
    </message>
    <message>
        <source>&amp;Add row</source>
        <translation>&amp;Aggiungi riga</translation>
    </message>
    <message>
        <source>Remove the rows with selected cells</source>
        <translation>Toglie le righe con celle selezionate</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>&amp;Rimuovi righe</translation>
    </message>
    <message>
        <source>Take the last step in these tables back</source>
        <translation>Annulla l&apos;ultimo passo in queste tabelle</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla modifica</translation>
    </message>
    <message>
        <source>Do it again</source>
        <translation>Rifà il passo annullato</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti modifica</translation>
    </message>
    <message>
        <source>Read a table in place of all that stands here, in metres</source>
        <translation>Legge una tabella al posto di tutto ciò che sta qui, in metri</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importa ...</translation>
    </message>
    <message>
        <source>Write all of it as one table, in metres</source>
        <translation>Scrive tutto in un&apos;unica tabella, in metri</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Esporta ...</translation>
    </message>
    <message>
        <source>Boreholes: %1, known depths: %2, bodies: %3.</source>
        <translation>Sondaggi: %1, profondità note: %2, corpi: %3.</translation>
    </message>
    <message>
        <source>%1, row %2: %3.</source>
        <translation>%1, riga %2: %3.</translation>
    </message>
    <message>
        <source>Discard what was changed in these tables?</source>
        <translation>Abbandonare le modifiche a queste tabelle?</translation>
    </message>
</context>
<context>
    <name>talvesk::KnownTable</name>
    <message>
        <source>Position [m]</source>
        <translation>Posizione [m]</translation>
    </message>
    <message>
        <source>Offset [m]</source>
        <translation>Scostamento [m]</translation>
    </message>
    <message>
        <source>Top [m]</source>
        <translation>Tetto [m]</translation>
    </message>
    <message>
        <source>Depth [m]</source>
        <translation>Profondità [m]</translation>
    </message>
    <message>
        <source>Bottom [m]</source>
        <translation>Letto [m]</translation>
    </message>
    <message>
        <source>Isovalue [m/s]</source>
        <translation>Isovalore [m/s]</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Velocità [m/s]</translation>
    </message>
    <message>
        <source>Error [m]</source>
        <translation>Errore [m]</translation>
    </message>
    <message>
        <source>Error [m/s]</source>
        <translation>Errore [m/s]</translation>
    </message>
    <message>
        <source>Refractor</source>
        <translation>Rifrattore</translation>
    </message>
    <message>
        <source>Above [m/s]</source>
        <translation>Sopra [m/s]</translation>
    </message>
    <message>
        <source>Below [m/s]</source>
        <translation>Sotto [m/s]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>&quot;%1&quot; non è un numero.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows of %2 columns do not fit from here on.</source>
        <translation>Non è stato incollato nulla: %1 righe di %2 colonne non entrano da qui in poi.</translation>
    </message>
    <message>
        <source>Nothing was pasted. Row %1: %2</source>
        <translation>Non è stato incollato nulla. Riga %1: %2</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerCurvesPlot</name>
    <message>
        <source>Shot %1, trace %2: %3, %4 ms, %5</source>
        <translation>Tiro %1, traccia %2: %3, %4 ms, %5</translation>
    </message>
    <message>
        <source>no layer</source>
        <translation>nessuno strato</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>strato %1</translation>
    </message>
    <message>
        <source>computed: %1 ms</source>
        <translation>calcolato: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerMethodsDialog</name>
    <message>
        <source>Compare methods</source>
        <translation>Confronta metodi</translation>
    </message>
    <message>
        <source>I&amp;nterpretations for error bands:</source>
        <translation>I&amp;nterpretazioni per le fasce di errore:</translation>
    </message>
    <message>
        <source>The layers are interpreted as often again, by picks that are moved by their errors. How far the results scatter is the error of depth and velocity, and tells whether methods disagree by more than that.</source>
        <translation>Gli strati si interpretano altrettante volte di nuovo, con arrivi spostati secondo i loro errori. La dispersione dei risultati è l&apos;errore di profondità e velocità, e dice se i metodi discordano più di così.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Avvia</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>&amp;Riepilogo</translation>
    </message>
    <message>
        <source>Medians by method</source>
        <translation>Mediane secondo i metodi</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Strato</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>Median velocity
[m/s]</source>
        <translation>Velocità mediana
[m/s]</translation>
    </message>
    <message>
        <source>Median depth
[m]</source>
        <translation>Profondità mediana
[m]</translation>
    </message>
    <message>
        <source>Geophones
with a depth</source>
        <translation>Geofoni con
profondità</translation>
    </message>
    <message>
        <source>Of these not
carried by picks</source>
        <translation>Di cui non sostenuti
da arrivi</translation>
    </message>
    <message>
        <source>How far methods agree, and their remarks</source>
        <translation>Quanto i metodi concordano, e le loro note</translation>
    </message>
    <message>
        <source>Layer &amp;2</source>
        <translation>Strato &amp;2</translation>
    </message>
    <message>
        <source>Layer 2 by method</source>
        <translation>Strato 2 secondo i metodi</translation>
    </message>
    <message>
        <source>Layer &amp;3</source>
        <translation>Strato &amp;3</translation>
    </message>
    <message>
        <source>Layer 3 by method</source>
        <translation>Strato 3 secondo i metodi</translation>
    </message>
    <message>
        <source>Save the picture as PNG, SVG or PDF</source>
        <translation>Salva l&apos;immagine come PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Save p&amp;icture ...</source>
        <translation>Salva &amp;immagine ...</translation>
    </message>
    <message>
        <source>Save depths and velocities of all layers and methods at the geophones as CSV, in metres</source>
        <translation>Salva come CSV profondità e velocità di tutti gli strati e metodi ai geofoni, in metri</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Salva &amp;tabella ...</translation>
    </message>
    <message>
        <source>Copy the same table for a spreadsheet</source>
        <translation>Copia la stessa tabella per un foglio di calcolo</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>C&amp;opia tabella</translation>
    </message>
    <message>
        <source>Layers are being interpreted...</source>
        <translation>Interpretazione degli strati...</translation>
    </message>
    <message>
        <source>Stopped: no error bands.</source>
        <translation>Fermato: nessuna fascia di errore.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>no pick is assigned to a refractor.</source>
        <translation>nessun arrivo è assegnato a un rifrattore.</translation>
    </message>
</context>
<context>
    <name>talvesk::LeftOutText</name>
    <message>
        <source>%1 of %2 picks</source>
        <translation>%1 su %2 primi arrivi</translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) beyond the last column</source>
        <translation>
            <numerusform>%n tiro oltre l&apos;ultima colonna</numerusform>
            <numerusform>%n tiri oltre l&apos;ultima colonna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n geophone(s) beyond the last column</source>
        <translation>
            <numerusform>%n geofono oltre l&apos;ultima colonna</numerusform>
            <numerusform>%n geofoni oltre l&apos;ultima colonna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) without a geophone string</source>
        <translation>
            <numerusform>%n tiro senza una stesa di geofoni</numerusform>
            <numerusform>%n tiri senza una stesa di geofoni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 beyond the last column</source>
        <translation>
            <numerusform>Tiro %1 oltre l&apos;ultima colonna</numerusform>
            <numerusform>Tiri %1 oltre l&apos;ultima colonna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Geophone(s) %1 of string %2 beyond the last column</source>
        <translation>
            <numerusform>Geofono %1 della stesa %2 oltre l&apos;ultima colonna</numerusform>
            <numerusform>Geofoni %1 della stesa %2 oltre l&apos;ultima colonna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string</source>
        <translation>
            <numerusform>Tiro %1 senza una stesa di geofoni</numerusform>
            <numerusform>Tiri %1 senza una stesa di geofoni</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::LinePlan</name>
    <message>
        <source>Geophones of string %1</source>
        <translation>Geofoni della stesa %1</translation>
    </message>
    <message>
        <source>Other strings</source>
        <translation>Altre stese</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>Da controllare</translation>
    </message>
    <message>
        <source>x %1, z %2</source>
        <translation>x %1, z %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>String %1, geophone %2</source>
        <translation>Stesa %1, geofono %2</translation>
    </message>
    <message>
        <source>Plan of the line</source>
        <translation>Pianta della linea</translation>
    </message>
    <message>
        <source>Distance (%1)</source>
        <translation>Distanza (%1)</translation>
    </message>
    <message>
        <source>Elevation (%1)</source>
        <translation>Quota (%1)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geofoni</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Geofono %1</translation>
    </message>
    <message>
        <source>x %1, %2 across</source>
        <translation>x %1, %2 di lato</translation>
    </message>
    <message>
        <source>%1 east, %2 north</source>
        <translation>%1 a est, %2 a nord</translation>
    </message>
    <message>
        <source>Across the line (%1)</source>
        <translation>Di lato alla linea (%1)</translation>
    </message>
    <message>
        <source>East of the first geophone (%1)</source>
        <translation>A est del primo geofono (%1)</translation>
    </message>
    <message>
        <source>North of it (%1)</source>
        <translation>A nord di esso (%1)</translation>
    </message>
</context>
<context>
    <name>talvesk::LossQuestion</name>
    <message>
        <source>the grid and the results of the inversion</source>
        <translation>la griglia e i risultati dell&apos;inversione</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>la griglia</translation>
    </message>
    <message>
        <source>the results of the inversion; the grid stays</source>
        <translation>i risultati dell&apos;inversione; la griglia resta</translation>
    </message>
    <message>
        <source>the layers of the starting model</source>
        <translation>gli strati del modello iniziale</translation>
    </message>
    <message>
        <source>the refraction interpretation</source>
        <translation>l&apos;interpretazione a rifrazione</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Do you want to continue?</source>
        <translation>Vuoi continuare?</translation>
    </message>
    <message>
        <source>The survey changes. This will be removed (Undo brings it back):</source>
        <translation>Il rilievo cambia. Verranno tolti (&quot;Annulla modifica&quot; li ripristina):</translation>
    </message>
</context>
<context>
    <name>talvesk::MarkedIsolinesDialog</name>
    <message>
        <source>Marked isolines</source>
        <translation>Isolinee evidenziate</translation>
    </message>
    <message>
        <source>Velocities that mean something, such as 1500 m/s for the water table. Their lines stand out from the section and carry their names.</source>
        <translation>Velocità che hanno un significato, come 1500 m/s per la falda. Le loro linee risaltano sulla sezione e portano il loro nome.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Velocità [m/s]</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Spessore</translation>
    </message>
    <message>
        <source>Mark another velocity</source>
        <translation>Evidenzia un&apos;altra velocità</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>Remove the line that is selected</source>
        <translation>Rimuove la linea selezionata</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>water table</source>
        <translation>falda</translation>
    </message>
</context>
<context>
    <name>talvesk::MendDialog</name>
    <message>
        <source>Mend recording</source>
        <translation>Correggi la registrazione</translation>
    </message>
    <message>
        <source>What was recorded is kept: everything here can be taken back at any time. Picks move with the recording.</source>
        <translation>Ciò che è stato registrato si conserva: qui tutto si può togliere in qualsiasi momento. I primi arrivi si spostano con la registrazione.</translation>
    </message>
    <message>
        <source>&amp;The record was late by:</source>
        <translation>La registrazione era in &amp;ritardo di:</translation>
    </message>
    <message>
        <source>Positive: the front of the record goes, and picks become earlier. Negative: the record was early. Whole samples are taken.</source>
        <translation>Positivo: l&apos;inizio della registrazione viene tolto e i primi arrivi si anticipano. Negativo: la registrazione era in anticipo. Si prendono campioni interi.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Its picks are set aside and come back with it</source>
        <translation>I suoi primi arrivi sono messi da parte e tornano con esso</translation>
    </message>
    <message>
        <source>&amp;Disabled: the shot has no picks and takes no part</source>
        <translation>&amp;Disattivato: il tiro non ha primi arrivi e non partecipa a nulla</translation>
    </message>
    <message>
        <source>The last channel goes to the first geophone, with its pick</source>
        <translation>L&apos;ultimo canale va al primo geofono, con il suo primo arrivo</translation>
    </message>
    <message>
        <source>&amp;Order reversed: the channels run against the geophones</source>
        <translation>&amp;Ordine invertito: i canali vanno in senso contrario ai geofoni</translation>
    </message>
    <message>
        <source>&amp;Stack with:</source>
        <translation>&amp;Somma con:</translation>
    </message>
    <message>
        <source>Shots of the same place and geophones; the mean of their samples is shown and picked</source>
        <translation>Tiri con stessa posizione e stessi geofoni; si mostra la media dei campioni, e su di essa si segnano i primi arrivi</translation>
    </message>
    <message>
        <source>Dis&amp;able the shots that it is stacked with</source>
        <translation>Disattiva &amp;i tiri con cui è sommato</translation>
    </message>
    <message>
        <source>No other shot has the same place, geophones and sample interval.</source>
        <translation>Nessun altro tiro ha la stessa posizione, gli stessi geofoni e lo stesso intervallo di campionamento.</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Tracce del tiro</translation>
    </message>
    <message>
        <source>Killed</source>
        <translation>Esclusa</translation>
    </message>
    <message>
        <source>Polarity reversed</source>
        <translation>Polarità invertita</translation>
    </message>
    <message>
        <source>Muted before</source>
        <translation>Azzerata prima di</translation>
    </message>
    <message>
        <source>Mend recording of shot %1</source>
        <translation>Correggi la registrazione del tiro %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Guadagno</translation>
    </message>
</context>
<context>
    <name>talvesk::Message</name>
    <message>
        <source>The inversion failed: %1</source>
        <translation>L&apos;inversione non è riuscita: %1</translation>
    </message>
    <message>
        <source>The picture cannot be made: %1</source>
        <translation>Non è possibile creare l&apos;immagine: %1</translation>
    </message>
    <message>
        <source>The view cannot be drawn for a picture.</source>
        <translation>Non è possibile disegnare la vista per un&apos;immagine.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8 text</source>
        <translation>il nome non è testo UTF-8 valido</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>il file è troppo grande</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>non è un file regolare</translation>
    </message>
    <message>
        <source>its text could not be put together</source>
        <translation>non è stato possibile comporne il testo</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>its %1 bytes are more than the limit of %2</source>
        <translation>i suoi %1 byte superano il limite di %2</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la memoria non basta</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is %2; choose another place.</source>
        <translation>Il file %1 non può essere sostituito: è %2; scegliere un altro percorso.</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>una cartella</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>un file non regolare</translation>
    </message>
    <message>
        <source>protected against writing</source>
        <translation>protetto da scrittura</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Il file %1 non può essere creato: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be given its permissions: %2.</source>
        <translation>Non è possibile assegnare i permessi al file %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Il file %1 non può essere scritto: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: %2.</source>
        <translation>Il file %1 non può essere sostituito: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>nessuno legge da lì</translation>
    </message>
    <message>
        <source>there are more than %1 rows</source>
        <translation>ci sono più di %1 righe</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; is no number</source>
        <translation>riga %1: &quot;%2&quot; non è un numero</translation>
    </message>
    <message>
        <source>the survey has no grid; create the grid or run the inversion first</source>
        <translation>il rilievo non ha una griglia; creare la griglia o eseguire prima l&apos;inversione</translation>
    </message>
    <message>
        <source>no cell of the section is drawn</source>
        <translation>nessuna cella della sezione è disegnata</translation>
    </message>
    <message>
        <source>eastward</source>
        <translation>verso est</translation>
    </message>
    <message>
        <source>northward</source>
        <translation>verso nord</translation>
    </message>
    <message>
        <source>westward</source>
        <translation>verso ovest</translation>
    </message>
    <message>
        <source>southward</source>
        <translation>verso sud</translation>
    </message>
    <message>
        <source>%1 is no reference system that is known here</source>
        <translation>%1 non è un sistema di riferimento noto</translation>
    </message>
    <message>
        <source>%1 is not a projected system; easting and northing need one</source>
        <translation>%1 non è un sistema proiettato; le coordinate est e nord ne richiedono uno</translation>
    </message>
    <message>
        <source>%1 has no axes that are known here</source>
        <translation>%1 non ha assi noti</translation>
    </message>
    <message>
        <source>%1 counts in another unit than the metre: %2; choose a system in metres</source>
        <translation>%1 usa un&apos;unità diversa dal metro: %2; scegliere un sistema in metri</translation>
    </message>
    <message>
        <source>%1 counts %2 and %3; choose a system with easting and northing</source>
        <translation>%1 conta %2 e %3; scegliere un sistema con coordinate est e nord</translation>
    </message>
    <message>
        <source>%1 (%2) cannot be turned into longitude and latitude</source>
        <translation>%1 (%2) non può essere convertito in longitudine e latitudine</translation>
    </message>
    <message>
        <source>the Y coordinate and the Z offset of the line must be finite numbers</source>
        <translation>la coordinata Y e lo spostamento Z della linea devono essere numeri finiti</translation>
    </message>
    <message>
        <source>Cannot write %1: its text could not be put together</source>
        <translation>Impossibile scrivere %1: non è stato possibile comporne il testo</translation>
    </message>
    <message>
        <source>the coordinates of the geophones are not numbers</source>
        <translation>le coordinate dei geofoni non sono numeri</translation>
    </message>
    <message>
        <source>the first and the last geophone have the same coordinates</source>
        <translation>il primo e l&apos;ultimo geofono hanno le stesse coordinate</translation>
    </message>
    <message>
        <source>the coordinates of the geophones lie outside of EPSG:%1 (%2)</source>
        <translation>le coordinate dei geofoni sono fuori da EPSG:%1 (%2)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Mancano le coordinate geografiche: i dati non possono essere esportati in formato KML</translation>
    </message>
    <message>
        <source>the section has too many cells for this format, %1</source>
        <translation>la sezione ha troppe celle per questo formato, %1</translation>
    </message>
    <message>
        <source>the palette has no colours</source>
        <translation>la tavolozza non ha colori</translation>
    </message>
    <message>
        <source>the value range of the section is empty; its maximum must be greater than its minimum</source>
        <translation>l&apos;intervallo di valori della sezione è vuoto; il massimo deve essere maggiore del minimo</translation>
    </message>
    <message>
        <source>the survey has no geophones</source>
        <translation>il rilievo non ha geofoni</translation>
    </message>
    <message>
        <source>the raster would have %1 nodes; choose larger cells</source>
        <translation>la maglia avrebbe %1 nodi; scegliere celle più grandi</translation>
    </message>
    <message>
        <source>Not enough memory for a picture of this size: choose a smaller size or resolution.</source>
        <translation>La memoria non basta per un&apos;immagine di queste dimensioni: scegliere dimensioni o risoluzione minori.</translation>
    </message>
    <message>
        <source>The PNG picture cannot be made.</source>
        <translation>Non è possibile creare l&apos;immagine PNG.</translation>
    </message>
    <message>
        <source>The SVG picture cannot be made.</source>
        <translation>Non è possibile creare l&apos;immagine SVG.</translation>
    </message>
    <message>
        <source>The PDF page cannot be made.</source>
        <translation>Non è possibile creare la pagina PDF.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn before the application object exists.</source>
        <translation>Non è possibile disegnare una figura prima che esista l&apos;oggetto applicazione.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn without fonts: install a font package, for instance fonts-dejavu-core.</source>
        <translation>Non è possibile disegnare una figura senza caratteri: installare un pacchetto di caratteri, per esempio fonts-dejavu-core.</translation>
    </message>
    <message>
        <source>No picture format is known for %1: let the file name end with .png, .svg or .pdf.</source>
        <translation>Nessun formato di immagine noto per %1: il nome del file deve finire con .png, .svg o .pdf.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm wide: choose %2 to %3 mm.</source>
        <translation>Una figura non può essere larga %1 mm: scegliere da %2 a %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm high: choose %2 to %3 mm.</source>
        <translation>Una figura non può essere alta %1 mm: scegliere da %2 a %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 pixels per inch: choose %2 to %3 pixels per inch.</source>
        <translation>Una figura non può avere %1 pixel per pollice: scegliere da %2 a %3 pixel per pollice.</translation>
    </message>
    <message>
        <source>A picture of %1 million pixels is too large: the limit is %2 million. Choose a smaller size or resolution.</source>
        <translation>Un&apos;immagine di %1 milioni di pixel è troppo grande: il limite è di %2 milioni. Scegliere dimensioni o risoluzione minori.</translation>
    </message>
    <message>
        <source>A PDF file needs a page at least.</source>
        <translation>Un file PDF ha bisogno di almeno una pagina.</translation>
    </message>
    <message>
        <source>%1 cannot be drawn before the application object exists.</source>
        <translation>%1: non è possibile disegnare prima che esista l&apos;oggetto applicazione.</translation>
    </message>
    <message>
        <source>The picture is too small for what it shows with its axes and texts: choose a larger size.</source>
        <translation>L&apos;immagine è troppo piccola per ciò che mostra con assi e testi: scegliere dimensioni maggiori.</translation>
    </message>
    <message>
        <source>The document has no traces to draw.</source>
        <translation>Il documento non ha tracce da disegnare.</translation>
    </message>
    <message>
        <source>The times from %1 to %2 ms cannot be drawn: choose a begin of 0 or more and an end after it.</source>
        <translation>Non è possibile disegnare i tempi da %1 a %2 ms: scegliere un inizio pari o superiore a 0 e una fine successiva.</translation>
    </message>
    <message>
        <source>The gain of a gather must lie above 0 and not above %1.</source>
        <translation>Il guadagno delle tracce di un tiro deve essere maggiore di 0 e non superiore a %1.</translation>
    </message>
    <message>
        <source>Wiggles can be cut at more than 0 and up to 100 trace distances.</source>
        <translation>Le oscillazioni si possono troncare a più di 0 e fino a 100 distanze fra le tracce.</translation>
    </message>
    <message>
        <source>There is no shot %1 to draw: the document has %2 with traces.</source>
        <translation>Non c&apos;è un tiro %1 da disegnare: il documento ha %2 con tracce.</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 tiro</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 tiri</translation>
    </message>
    <message>
        <source>The inversion has no misfit to draw.</source>
        <translation>L&apos;inversione non ha scarti da disegnare.</translation>
    </message>
    <message>
        <source>There are no residuals to draw.</source>
        <translation>Non ci sono residui da disegnare.</translation>
    </message>
    <message>
        <source>There is no refractor with a depth to draw.</source>
        <translation>Non c&apos;è alcun rifrattore con una profondità da disegnare.</translation>
    </message>
    <message>
        <source>There is no survey to report on: load shot files or travel times first.</source>
        <translation>Non c&apos;è un rilievo su cui scrivere una relazione: caricare prima file dei tiri o tempi di arrivo.</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>La relazione è stata interrotta.</translation>
    </message>
    <message>
        <source>The vertical exaggeration must lie between 0.01 and 100, or be 0 to let the picture choose.</source>
        <translation>L&apos;esagerazione verticale deve essere compresa fra 0,01 e 100, o essere 0 per lasciare la scelta all&apos;immagine.</translation>
    </message>
    <message>
        <source>The palette &quot;%1&quot; has no colours.</source>
        <translation>La tavolozza &quot;%1&quot; non ha colori.</translation>
    </message>
    <message>
        <source>The section has no extent to draw.</source>
        <translation>La sezione non ha un&apos;estensione da disegnare.</translation>
    </message>
    <message>
        <source>The picture is too small for the section with its axes and texts: choose a larger size.</source>
        <translation>L&apos;immagine è troppo piccola per la sezione con assi e testi: scegliere dimensioni maggiori.</translation>
    </message>
    <message>
        <source>There are no travel times to draw: pick first breaks, or load travel times, first.</source>
        <translation>Non ci sono tempi di arrivo da disegnare: segnare prima i primi arrivi, o caricare tempi di arrivo.</translation>
    </message>
    <message>
        <source>The document cannot be packed: %1</source>
        <translation>Il documento non può essere impacchettato: %1</translation>
    </message>
    <message>
        <source>its bytes cannot be read back</source>
        <translation>i suoi byte non possono essere riletti</translation>
    </message>
    <message>
        <source>cell %1 has no valid velocity (slowness %2 s/m)</source>
        <translation>la cella %1 non ha una velocità valida (lentezza %2 s/m)</translation>
    </message>
    <message>
        <source>A grid of %1 rows and %2 columns with %3 nodes per side %4</source>
        <translation>Una griglia di %1 righe e %2 colonne con %3 nodi per lato %4</translation>
    </message>
    <message>
        <source>has no cells; choose cells smaller than the array is long.</source>
        <translation>non ha celle; scegliere celle più piccole della lunghezza dello stendimento.</translation>
    </message>
    <message>
        <source>has %1 nodes; at most %2 can be numbered. Choose larger cells or a smaller depth.</source>
        <translation>ha %1 nodi; se ne possono numerare al massimo %2. Scegliere celle più grandi o una profondità minore.</translation>
    </message>
    <message>
        <source>needs about %1 MiB, but only %2 MiB are free. Choose larger cells or a smaller depth.</source>
        <translation>richiede circa %1 MiB, ma solo %2 MiB sono liberi. Scegliere celle più grandi o una profondità minore.</translation>
    </message>
    <message>
        <source>No layer is left: a layer&apos;s final depth must be greater than its initial depth, and that not negative.</source>
        <translation>Non resta alcuno strato: la profondità finale di uno strato deve essere maggiore di quella iniziale, e questa non negativa.</translation>
    </message>
    <message>
        <source>The grid of the layered model could not be built.</source>
        <translation>Non è stato possibile creare la griglia del modello a strati.</translation>
    </message>
    <message>
        <source>the line holds %1 characters, more than the limit of %2; split the table into one file per spread</source>
        <translation>la riga contiene %1 caratteri, più del limite di %2; dividere la tabella in un file per stendimento</translation>
    </message>
    <message>
        <source>the first line names no receiver</source>
        <translation>la prima riga non indica alcun ricevitore</translation>
    </message>
    <message>
        <source>there are %1 for %2</source>
        <translation>il file ha %1 per %2</translation>
    </message>
    <message>
        <source>%1 without an elevation were taken to lie at 0</source>
        <translation>%1 senza quota: presi a quota 0</translation>
    </message>
    <message>
        <source>the shot has no elevation</source>
        <translation>il tiro non ha quota</translation>
    </message>
    <message>
        <source>line %1: only %2 for %3</source>
        <translation>riga %1: solo %2 per %3</translation>
    </message>
    <message>
        <source>the %1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>invalid stod argument</source>
        <translation>argomento di stod non valido</translation>
    </message>
    <message>
        <source>stod argument out of range</source>
        <translation>argomento di stod fuori intervallo</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, riga %2: %3</translation>
    </message>
    <message>
        <source>Cannot write %1: there are %2 labels for %3 records</source>
        <translation>Impossibile scrivere %1: ci sono %2 etichette per %3 record</translation>
    </message>
    <message>
        <source>the line holds more than %1 characters</source>
        <translation>la riga contiene più di %1 caratteri</translation>
    </message>
    <message>
        <source>line %1 has no x and z; check the separator</source>
        <translation>la riga %1 non ha x e z; controllare il separatore</translation>
    </message>
    <message>
        <source>%1, line %2 does not begin with a number; check the separator</source>
        <translation>%1, la riga %2 non comincia con un numero; controllare il separatore</translation>
    </message>
    <message>
        <source>%1 holds more than %2 values</source>
        <translation>%1 contiene più di %2 valori</translation>
    </message>
    <message>
        <source>there are only %1 shots</source>
        <translation>ci sono solo %1 tiri</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a layer number: 0 for none, 1, 2 or 3</source>
        <translation>&apos;%1&apos; non è un numero di strato: 0 per nessuno, 1, 2 o 3</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, which is not how many layer numbers there are</source>
        <translation>il tiro %1 ha %2 tracce, ma non altrettanti numeri di strato</translation>
    </message>
    <message>
        <source>%1: it holds layers of %2 shots, and there are %3</source>
        <translation>%1: contiene gli strati di %2 tiri, ma i tiri sono %3</translation>
    </message>
    <message>
        <source>the first line is %1 where &quot;otte&quot; must stand</source>
        <translation>la prima riga è %1, dove deve esserci &quot;otte&quot;</translation>
    </message>
    <message>
        <source>the format version is missing</source>
        <translation>manca la versione del formato</translation>
    </message>
    <message>
        <source>the format version %1 was read as &quot;1.0&quot;</source>
        <translation>la versione del formato %1 è stata letta come &quot;1.0&quot;</translation>
    </message>
    <message>
        <source>line 3 holds %1, not 2</source>
        <translation>la riga 3 contiene %1, non 2</translation>
    </message>
    <message>
        <source>the %1 is missing</source>
        <translation>manca: %1</translation>
    </message>
    <message>
        <source>the line of each %1 is missing</source>
        <translation>manca la riga con i valori di %1</translation>
    </message>
    <message>
        <source>there are %1 but %2</source>
        <translation>il file ha %1 ma %2</translation>
    </message>
    <message>
        <source>the file names %1 strings for %2 and %3</source>
        <translation>il file indica %1 stese per %2 e %3</translation>
    </message>
    <message>
        <source>there are more records than the %1</source>
        <translation>ci sono più record che tiri (%1)</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2</source>
        <translation>il file finisce dopo %1 di %2</translation>
    </message>
    <message>
        <source>the record names string %1 of %2</source>
        <translation>il record indica la stesa %1 di %2</translation>
    </message>
    <message>
        <source>record %1 names trace set %2; it was taken for that of its own place</source>
        <translation>il record %1 indica il gruppo di tracce %2; è stato preso quello del suo posto</translation>
    </message>
    <message>
        <source>the last line does not end in &quot;;&quot;: the file may be cut short</source>
        <translation>l&apos;ultima riga non finisce con &quot;;&quot;: il file potrebbe essere troncato</translation>
    </message>
    <message>
        <source>the records need %1 in %2, the file holds %3</source>
        <translation>i record richiedono %1 in %2, il file contiene %3</translation>
    </message>
    <message>
        <source>no string claims the last %1: a record of each string must hold one time per geophone</source>
        <translation>nessuna stesa comprende gli ultimi geofoni (%1): un record di ogni stesa deve contenere un tempo per geofono</translation>
    </message>
    <message>
        <source>the strings without a record do not share %1 equally; the first ones took one more</source>
        <translation>le stese senza record non si dividono %1 in parti uguali; le prime ne hanno preso uno in più</translation>
    </message>
    <message>
        <source>record %1 holds %2 for %3</source>
        <translation>il record %1 contiene %2 per %3</translation>
    </message>
    <message>
        <source>%1 is too large for a palette</source>
        <translation>%1 è troppo grande per una tavolozza</translation>
    </message>
    <message>
        <source>%1 is no palette file: %2</source>
        <translation>%1 non è un file di tavolozza: %2</translation>
    </message>
    <message>
        <source>the byte order mark before the first line was ignored</source>
        <translation>l&apos;indicatore dell&apos;ordine dei byte (BOM) prima della prima riga è stato ignorato</translation>
    </message>
    <message>
        <source>the %1 %2 is not a number</source>
        <translation>%1 %2: non è un numero</translation>
    </message>
    <message>
        <source>the %1 %2 is out of range</source>
        <translation>%1 %2: fuori intervallo</translation>
    </message>
    <message>
        <source>the %1 %2 is not finite</source>
        <translation>%1 %2: numero non finito</translation>
    </message>
    <message>
        <source>the %1 %2 is not a whole number</source>
        <translation>%1 %2: non è un numero intero</translation>
    </message>
    <message>
        <source>and more of this kind</source>
        <translation>e altri dello stesso tipo</translation>
    </message>
    <message>
        <source>line %1 and what follows it was ignored</source>
        <translation>la riga %1 e ciò che la segue sono stati ignorati</translation>
    </message>
    <message>
        <source>the file holds no shot</source>
        <translation>il file non contiene tiri</translation>
    </message>
    <message>
        <source>Invalid phone list : %1</source>
        <translation>Elenco dei ricevitori non valido : %1</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 per %2</translation>
    </message>
    <message>
        <source>Invalid header : %1</source>
        <translation>Intestazione non valida : %1</translation>
    </message>
    <message>
        <source>%1 must stand here</source>
        <translation>qui deve esserci %1</translation>
    </message>
    <message>
        <source>Invalid match : %1</source>
        <translation>Corrispondenza non valida : %1</translation>
    </message>
    <message>
        <source>line %1: %2 is not a number and was taken as 0</source>
        <translation>riga %1: %2 non è un numero ed è stato preso come 0</translation>
    </message>
    <message>
        <source>line %1: number %2 is named twice; its last value was taken</source>
        <translation>riga %1: il numero %2 è indicato due volte; è stato preso l&apos;ultimo valore</translation>
    </message>
    <message>
        <source>number %1 is not known</source>
        <translation>il numero %1 non è noto</translation>
    </message>
    <message>
        <source>%1 %2 has no %3</source>
        <translation>%1 %2: manca %3</translation>
    </message>
    <message>
        <source>Invalid times : %1</source>
        <translation>Tempi non validi : %1</translation>
    </message>
    <message>
        <source>%1 of shot %2 for %3</source>
        <translation>%1 del tiro %2 per %3</translation>
    </message>
    <message>
        <source>geophone distance</source>
        <translation>distanza del geofono</translation>
    </message>
    <message>
        <source>geophone elevation</source>
        <translation>quota del geofono</translation>
    </message>
    <message>
        <source>shot distance</source>
        <translation>distanza del tiro</translation>
    </message>
    <message>
        <source>shot elevation</source>
        <translation>quota del tiro</translation>
    </message>
    <message>
        <source>receiver number</source>
        <translation>numero del ricevitore</translation>
    </message>
    <message>
        <source>receiver distance</source>
        <translation>distanza del ricevitore</translation>
    </message>
    <message>
        <source>receiver elevation</source>
        <translation>quota del ricevitore</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>distanza</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>quota</translation>
    </message>
    <message>
        <source>shot</source>
        <translation>tiro</translation>
    </message>
    <message>
        <source>receiver</source>
        <translation>ricevitore</translation>
    </message>
    <message>
        <source>time</source>
        <translation>tempo</translation>
    </message>
    <message>
        <source>first-break time</source>
        <translation>tempo di primo arrivo</translation>
    </message>
    <message>
        <source>number</source>
        <translation>numero</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valore</translation>
    </message>
    <message>
        <source>format constant 2</source>
        <translation>costante di formato 2</translation>
    </message>
    <message>
        <source>number of geophone strings</source>
        <translation>numero delle stese di geofoni</translation>
    </message>
    <message>
        <source>string of the record</source>
        <translation>stesa del record</translation>
    </message>
    <message>
        <source>trace set of the record</source>
        <translation>gruppo di tracce del record</translation>
    </message>
    <message>
        <source>%1 geophone</source>
        <translation>%1 geofono</translation>
    </message>
    <message>
        <source>%1 geophones</source>
        <translation>%1 geofoni</translation>
    </message>
    <message>
        <source>%1 receiver</source>
        <translation>%1 ricevitore</translation>
    </message>
    <message>
        <source>%1 receivers</source>
        <translation>%1 ricevitori</translation>
    </message>
    <message>
        <source>%1 shot</source>
        <translation>%1 tiro</translation>
    </message>
    <message>
        <source>%1 shot position</source>
        <translation>%1 posizione di tiro</translation>
    </message>
    <message>
        <source>%1 shot positions</source>
        <translation>%1 posizioni di tiro</translation>
    </message>
    <message>
        <source>%1 geophone distance</source>
        <translation>%1 distanza dei geofoni</translation>
    </message>
    <message>
        <source>%1 geophone distances</source>
        <translation>%1 distanze dei geofoni</translation>
    </message>
    <message>
        <source>%1 shot distance</source>
        <translation>%1 distanza dei tiri</translation>
    </message>
    <message>
        <source>%1 shot distances</source>
        <translation>%1 distanze dei tiri</translation>
    </message>
    <message>
        <source>%1 elevation</source>
        <translation>%1 quota</translation>
    </message>
    <message>
        <source>%1 elevations</source>
        <translation>%1 quote</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 tempo</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1 tempi</translation>
    </message>
    <message>
        <source>%1 record</source>
        <translation>%1 record</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 record</translation>
    </message>
    <message>
        <source>%1 string</source>
        <translation>%1 stesa</translation>
    </message>
    <message>
        <source>%1 strings</source>
        <translation>%1 stese</translation>
    </message>
    <message>
        <source>%1 number</source>
        <translation>%1 numero</translation>
    </message>
    <message>
        <source>%1 numbers</source>
        <translation>%1 numeri</translation>
    </message>
    <message>
        <source>%1 value</source>
        <translation>%1 valore</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 valori</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities and %4 draw flags</source>
        <translation>%1 righe di %2 colonne non corrispondono a %3 velocità e %4 indicatori di disegno</translation>
    </message>
    <message>
        <source>cells with %1 nodes per side, %2 long, cannot be</source>
        <translation>celle con %1 nodi per lato, lunghe %2, non sono possibili</translation>
    </message>
    <message>
        <source>a velocity is not a positive number</source>
        <translation>una velocità non è un numero positivo</translation>
    </message>
    <message>
        <source>there is a grid, but no two geophones</source>
        <translation>c&apos;è una griglia, ma non due geofoni</translation>
    </message>
    <message>
        <source>the grid cannot be built</source>
        <translation>non è possibile creare la griglia</translation>
    </message>
    <message>
        <source>the limit of its rays lies off the line; it is left out</source>
        <translation>il limite dei suoi raggi è fuori dalla linea; è stato tralasciato</translation>
    </message>
    <message>
        <source>its information density does not fit the grid; it is left out</source>
        <translation>la sua densità d&apos;informazione non corrisponde alla griglia; è stata tralasciata</translation>
    </message>
    <message>
        <source>what it tells of its last inversion cannot be; it is left out</source>
        <translation>ciò che indica della sua ultima inversione non è possibile; è stato tralasciato</translation>
    </message>
    <message>
        <source>a geophone has no place</source>
        <translation>un geofono non ha posizione</translation>
    </message>
    <message>
        <source>a shot was recorded by geophone string %1 of %2</source>
        <translation>un tiro è stato registrato dalla stesa di geofoni %1 di %2</translation>
    </message>
    <message>
        <source>a shot has no place</source>
        <translation>un tiro non ha posizione</translation>
    </message>
    <message>
        <source>the grid cannot be built: %1</source>
        <translation>non è possibile creare la griglia: %1</translation>
    </message>
    <message>
        <source>layers belong to shot %1, but %2 shots exist</source>
        <translation>ci sono strati assegnati al tiro %1, ma i tiri sono %2</translation>
    </message>
    <message>
        <source>an arrival belongs to a layer that does not exist</source>
        <translation>un arrivo è assegnato a uno strato che non esiste</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Non è un file regolare.</translation>
    </message>
    <message>
        <source>You may not read it.</source>
        <translation>Non si ha il permesso di leggerlo.</translation>
    </message>
    <message>
        <source>It cannot be extracted: %1.</source>
        <translation>Non può essere estratto: %1.</translation>
    </message>
    <message>
        <source>No temporary folder can be created in %1.</source>
        <translation>Non è possibile creare una cartella temporanea in %1.</translation>
    </message>
    <message>
        <source>It cannot be extracted.</source>
        <translation>Non può essere estratto.</translation>
    </message>
    <message>
        <source>It cannot be loaded: %1</source>
        <translation>Non può essere caricato: %1</translation>
    </message>
    <message>
        <source>its title has control characters or is too long; it reads %1 now</source>
        <translation>il titolo ha caratteri di controllo o è troppo lungo; ora è %1</translation>
    </message>
    <message>
        <source>its RMS misfit is no number; it is left out</source>
        <translation>il suo scarto quadratico medio non è un numero; è stato tralasciato</translation>
    </message>
    <message>
        <source>its limits of velocity cannot be; they are as in a new survey</source>
        <translation>i suoi limiti di velocità non sono possibili; sono quelli di un nuovo rilievo</translation>
    </message>
    <message>
        <source>a layer of its starting model cannot be; the model is left out</source>
        <translation>uno strato del suo modello iniziale non è possibile; il modello è stato tralasciato</translation>
    </message>
    <message>
        <source>a cell size that it proposes cannot be; it proposes new ones</source>
        <translation>un lato delle celle che propone non è possibile; ne propone di nuovi</translation>
    </message>
    <message>
        <source>its geographic coordinates are no numbers; they are left out</source>
        <translation>le sue coordinate geografiche non sono numeri; sono state tralasciate</translation>
    </message>
    <message>
        <source>no section can be drawn with a vertical exaggeration of %1; it is %2 now</source>
        <translation>non è possibile disegnare una sezione con un&apos;esagerazione verticale di %1; ora è %2</translation>
    </message>
    <message>
        <source>its contours cannot be drawn so; they are put right</source>
        <translation>le sue isolinee non si possono disegnare così; sono state corrette</translation>
    </message>
    <message>
        <source>its section shows a quantity that does not exist; it is the velocity now</source>
        <translation>la sua sezione mostra una grandezza che non esiste; ora è la velocità</translation>
    </message>
    <message>
        <source>its geophone markers have a size that does not exist; it is normal now</source>
        <translation>i suoi simboli dei geofoni hanno una dimensione che non esiste; ora è normale</translation>
    </message>
    <message>
        <source>a time shift of its arrivals cannot be; it is 0 now</source>
        <translation>una traslazione temporale dei suoi arrivi non è possibile; ora è 0</translation>
    </message>
    <message>
        <source>its layered profile cannot be; it is left out and can be built again</source>
        <translation>il suo profilo a strati non è possibile; è stato tralasciato e può essere costruito di nuovo</translation>
    </message>
    <message>
        <source>its coverage and figures do not go with the grid and the inversion of the project</source>
        <translation>la sua copertura e le sue cifre non corrispondono alla griglia e all&apos;inversione del progetto</translation>
    </message>
    <message>
        <source>%1 is no name of a file</source>
        <translation>%1 non è un nome di file</translation>
    </message>
    <message>
        <source>trace set %1 has %2 traces, but %3 filtered copies</source>
        <translation>il gruppo di tracce %1 ha %2 tracce, ma %3 copie filtrate</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten and its traces are empty</source>
        <translation>tiro %1: il suo file si chiama %2, che non è un semplice nome di file; il nome è stato tolto e le tracce sono vuote</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten</source>
        <translation>tiro %1: il suo file si chiama %2, che non è un semplice nome di file; il nome è stato tolto</translation>
    </message>
    <message>
        <source>%1 has %2 traces instead of %3</source>
        <translation>%1 ha %2 tracce invece di %3</translation>
    </message>
    <message>
        <source>there are %1 trace sets, but %2 travel-time records</source>
        <translation>ci sono %1 gruppi di tracce, ma %2 record di tempi di arrivo</translation>
    </message>
    <message>
        <source>no travel-time record belongs to trace set %1</source>
        <translation>nessun record di tempi di arrivo appartiene al gruppo di tracce %1</translation>
    </message>
    <message>
        <source>%1 and %2 have different numbers of traces</source>
        <translation>%1 e %2 hanno numeri di tracce diversi</translation>
    </message>
    <message>
        <source>wave type %1 does not exist</source>
        <translation>il tipo di onda %1 non esiste</translation>
    </message>
    <message>
        <source>there are more files or filtered copies than trace sets</source>
        <translation>ci sono più file o copie filtrate che gruppi di tracce</translation>
    </message>
    <message>
        <source>trace set %1 has a position or delay that cannot be</source>
        <translation>il gruppo di tracce %1 ha una posizione o un ritardo non possibili</translation>
    </message>
    <message>
        <source>trace set %1 has a sample that is no finite number</source>
        <translation>il gruppo di tracce %1 ha un campione che non è un numero finito</translation>
    </message>
    <message>
        <source>Its parts cannot be written in %1; is the disk full?</source>
        <translation>Le sue parti non possono essere scritte in %1; il disco è pieno?</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written.</source>
        <translation>L&apos;archivio %1 non può essere scritto.</translation>
    </message>
    <message>
        <source>It cannot be put together: %1</source>
        <translation>Non può essere composto: %1</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>it unpacks to more than %1, which no project of %2 does</source>
        <translation>una volta estratto supera %1, cosa che nessun progetto di %2 fa</translation>
    </message>
    <message>
        <source>it unpacks to %1 or more, and the disk has room for %2</source>
        <translation>una volta estratto occupa %1 o più, e sul disco c&apos;è posto per %2</translation>
    </message>
    <message>
        <source>%1 cannot be extracted: %2</source>
        <translation>%1 non può essere estratto: %2</translation>
    </message>
    <message>
        <source>%1 in it cannot be read: %2</source>
        <translation>%1 al suo interno non può essere letto: %2</translation>
    </message>
    <message>
        <source>%1 in it is damaged: %2</source>
        <translation>%1 al suo interno è danneggiato: %2</translation>
    </message>
    <message>
        <source>%1 in it is not as long as it says</source>
        <translation>%1 al suo interno non ha la lunghezza che dichiara</translation>
    </message>
    <message>
        <source>The file %1 cannot be added to the archive.</source>
        <translation>Il file %1 non può essere aggiunto all&apos;archivio.</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written: %2.</source>
        <translation>L&apos;archivio %1 non può essere scritto: %2.</translation>
    </message>
    <message>
        <source>it holds %1 files, more than %2</source>
        <translation>contiene %1 file, più di %2</translation>
    </message>
    <message>
        <source>%1 in it is no name of a file without a folder</source>
        <translation>%1 al suo interno non è un nome di file senza cartella</translation>
    </message>
    <message>
        <source>two files in it are called %1</source>
        <translation>due file al suo interno si chiamano %1</translation>
    </message>
    <message>
        <source>The files of the project are %1, more than the %2 that can be opened again.</source>
        <translation>I file del progetto occupano %1, più dei %2 che si possono riaprire.</translation>
    </message>
    <message>
        <source>it is no archive of a project, or damaged: %1</source>
        <translation>non è un archivio di progetto, o è danneggiato: %1</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>non contiene nulla</translation>
    </message>
    <message>
        <source>it is no archive of a project: there is no %1 in it</source>
        <translation>non è un archivio di progetto: non contiene %1</translation>
    </message>
    <message>
        <source>its list of files is damaged</source>
        <translation>il suo elenco di file è danneggiato</translation>
    </message>
    <message>
        <source>it cannot be closed: %1</source>
        <translation>non può essere chiuso: %1</translation>
    </message>
    <message>
        <source>its headers promise %1 traces of more data than can come from %2 bytes; the file is damaged or no shot file</source>
        <translation>le intestazioni promettono %1 tracce con più dati di quanti ne possano contenere %2 byte; il file è danneggiato o non è un file dei tiri</translation>
    </message>
    <message>
        <source>trace %1</source>
        <translation>traccia %1</translation>
    </message>
    <message>
        <source>%1 traces, the first of them trace %2,</source>
        <translation>%1 tracce, la prima delle quali è la traccia %2</translation>
    </message>
    <message>
        <source>the %1 in the header of %2 is no finite number; what cannot be used of it was taken as 0</source>
        <translation>%1 nell&apos;intestazione (%2): numero non finito; ciò che non si può usare è stato preso come 0</translation>
    </message>
    <message>
        <source>it is no SEG-2 file of little-endian numbers</source>
        <translation>non è un file SEG-2 con numeri little-endian</translation>
    </message>
    <message>
        <source>its last trace has no usable sample interval</source>
        <translation>la sua ultima traccia non ha un intervallo di campionamento utilizzabile</translation>
    </message>
    <message>
        <source>source position</source>
        <translation>posizione della sorgente</translation>
    </message>
    <message>
        <source>receiver position</source>
        <translation>posizione del ricevitore</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>ritardo</translation>
    </message>
    <message>
        <source>data format code %1: one 16-bit sample is taken of every four bytes</source>
        <translation>codice di formato dei dati %1: si prende un campione a 16 bit ogni quattro byte</translation>
    </message>
    <message>
        <source>data format code %1 is not read; its samples are 0</source>
        <translation>il codice di formato dei dati %1 non viene letto; i suoi campioni sono 0</translation>
    </message>
    <message>
        <source>its traces are taken to lie as close as the 16-bit data of the SEG-Y file before it</source>
        <translation>si suppone che le sue tracce siano vicine fra loro come i dati a 16 bit del file SEG-Y precedente</translation>
    </message>
    <message>
        <source>it says that its numbers are little-endian, but is read big-endian as a file before it; load the little-endian files first</source>
        <translation>dichiara numeri little-endian, ma viene letto come big-endian come un file precedente; caricare prima i file little-endian</translation>
    </message>
    <message>
        <source>its numbers seem to be in the other byte order; load a SEG-Y file of that order first</source>
        <translation>i suoi numeri sembrano nell&apos;altro ordine dei byte; caricare prima un file SEG-Y di quell&apos;ordine</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 bytes after the traces that its headers name were not read</source>
        <translation>%1 byte dopo le tracce indicate dalle intestazioni non sono stati letti</translation>
    </message>
    <message>
        <source>data format code %1 (IBM floats) is not read; its samples are 0</source>
        <translation>il codice di formato dei dati %1 (numeri in virgola mobile IBM) non viene letto; i suoi campioni sono 0</translation>
    </message>
    <message>
        <source>Error while loading %1</source>
        <translation>Errore nel caricamento di %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>the survey holds S-wave pairs; add more of them in the survey geometry, or start a new survey to load shot files</source>
        <translation>il rilievo contiene coppie di onde S; aggiungerne altre nella geometria del rilievo, o iniziare un nuovo rilievo per caricare file dei tiri</translation>
    </message>
    <message>
        <source>the survey holds picks without traces; start a new survey to load shot files</source>
        <translation>il rilievo contiene primi arrivi senza tracce; iniziare un nuovo rilievo per caricare file dei tiri</translation>
    </message>
    <message>
        <source>the file holds no trace</source>
        <translation>il file non contiene tracce</translation>
    </message>
    <message>
        <source>the file is cut short: %1 bytes that its headers promise are missing and were taken as zeros</source>
        <translation>il file è troncato: mancano %1 byte promessi dalle intestazioni, presi come zeri</translation>
    </message>
    <message>
        <source>%1 samples that are no finite numbers were set to 0</source>
        <translation>%1 campioni che non sono numeri finiti sono stati posti a 0</translation>
    </message>
    <message>
        <source>its traces have different numbers of samples</source>
        <translation>le sue tracce hanno numeri di campioni diversi</translation>
    </message>
    <message>
        <source>its traces have different sample intervals</source>
        <translation>le sue tracce hanno intervalli di campionamento diversi</translation>
    </message>
    <message>
        <source>a sample interval is not positive, so that times mean nothing</source>
        <translation>un intervallo di campionamento non è positivo: i tempi non hanno significato</translation>
    </message>
    <message>
        <source>The shot file %1 could not be copied; its traces are saved without it.</source>
        <translation>Il file dei tiri %1 non è stato copiato; le sue tracce sono salvate senza di esso.</translation>
    </message>
    <message>
        <source>Of the shot files %1 and %2 only the second is in the project; the traces of both are.</source>
        <translation>Dei file dei tiri %1 e %2 solo il secondo è nel progetto; le tracce di entrambi ci sono.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>a file holds no traces</source>
        <translation>un file non contiene tracce</translation>
    </message>
    <message>
        <source>the DX file has %1 traces, the SX file %2</source>
        <translation>il file DX ha %1 tracce, il file SX %2</translation>
    </message>
    <message>
        <source>trace %1 has a sample interval of %2 in the DX file and of %3 in the SX file</source>
        <translation>la traccia %1 ha un intervallo di campionamento di %2 nel file DX e di %3 nel file SX</translation>
    </message>
    <message>
        <source>trace %1 has a delay of %2 in the DX file and of %3 in the SX file</source>
        <translation>la traccia %1 ha un ritardo di %2 nel file DX e di %3 nel file SX</translation>
    </message>
    <message>
        <source>DX and SX differ in receiver positions; those of DX count</source>
        <translation>DX e SX differiscono nelle posizioni dei ricevitori; valgono quelle di DX</translation>
    </message>
    <message>
        <source>DX and SX differ in source position; that of DX counts</source>
        <translation>DX e SX differiscono nella posizione della sorgente; vale quella di DX</translation>
    </message>
    <message>
        <source>DX and SX differ in length; that of DX counts</source>
        <translation>DX e SX differiscono in lunghezza; vale quella di DX</translation>
    </message>
    <message>
        <source>%1: DX and SX are the same file; their difference is nothing</source>
        <translation>%1: DX e SX sono lo stesso file; la loro differenza è nulla</translation>
    </message>
    <message>
        <source>%1 and %2 are no pair: %3</source>
        <translation>%1 e %2 non sono una coppia: %3</translation>
    </message>
    <message>
        <source>a geophone of string %1 has no finite position; edit the geometry first</source>
        <translation>un geofono della stesa %1 non ha una posizione finita; modificare prima la geometria</translation>
    </message>
    <message>
        <source>shot %1 has no finite position; edit the geometry first</source>
        <translation>il tiro %1 non ha una posizione finita; modificare prima la geometria</translation>
    </message>
    <message>
        <source>File %1 cannot be open.</source>
        <translation>Impossibile aprire il file %1.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>a record names geophone string %1 of %2</source>
        <translation>un record indica la stesa di geofoni %1 di %2</translation>
    </message>
    <message>
        <source>the file holds picks of %1 shots, the survey has %2; the picks were not taken</source>
        <translation>il file contiene primi arrivi di %1 tiri, il rilievo ne ha %2; i primi arrivi non sono stati presi</translation>
    </message>
    <message>
        <source>trace set %1 is named twice or not in the survey; the picks were not taken</source>
        <translation>il gruppo di tracce %1 è indicato due volte o non è nel rilievo; i primi arrivi non sono stati presi</translation>
    </message>
    <message>
        <source>the file holds %1 times for trace set %2, which has %3 traces; the picks were not taken</source>
        <translation>il file contiene %1 tempi per il gruppo di tracce %2, che ha %3 tracce; i primi arrivi non sono stati presi</translation>
    </message>
    <message>
        <source>a record of the survey has no trace set; the picks were not taken</source>
        <translation>un record del rilievo non ha gruppo di tracce; i primi arrivi non sono stati presi</translation>
    </message>
    <message>
        <source>the line &quot;INFO&quot; is missing</source>
        <translation>manca la riga &quot;INFO&quot;</translation>
    </message>
    <message>
        <source>the line begins with %1 where %2 must stand</source>
        <translation>la riga comincia con %1, dove deve esserci %2</translation>
    </message>
    <message>
        <source>the line %1 is missing</source>
        <translation>manca la riga %1</translation>
    </message>
    <message>
        <source>%1 stands without a value</source>
        <translation>%1 non ha un valore</translation>
    </message>
    <message>
        <source>the %1 is negative</source>
        <translation>valore negativo: %1</translation>
    </message>
    <message>
        <source>the file ends before its last receiver line</source>
        <translation>il file finisce prima della sua ultima riga dei ricevitori</translation>
    </message>
    <message>
        <source>the receiver line holds %1 instead of 4</source>
        <translation>la riga del ricevitore contiene %1 invece di 4</translation>
    </message>
    <message>
        <source>the receiver line holds more than 4 values</source>
        <translation>la riga del ricevitore contiene più di 4 valori</translation>
    </message>
    <message>
        <source>the root element is not &quot;%1&quot;</source>
        <translation>l&apos;elemento radice non è &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the document ends too early</source>
        <translation>il documento finisce troppo presto</translation>
    </message>
    <message>
        <source>a &apos;%1&apos; is missing</source>
        <translation>manca un &apos;%1&apos;</translation>
    </message>
    <message>
        <source>it declares a document type or a data section</source>
        <translation>dichiara un tipo di documento o una sezione di dati</translation>
    </message>
    <message>
        <source>an element has too long a name</source>
        <translation>un elemento ha un nome troppo lungo</translation>
    </message>
    <message>
        <source>an element has no name</source>
        <translation>un elemento non ha nome</translation>
    </message>
    <message>
        <source>an attribute has no quotes</source>
        <translation>un attributo non ha virgolette</translation>
    </message>
    <message>
        <source>an attribute does not end</source>
        <translation>un attributo non finisce</translation>
    </message>
    <message>
        <source>its elements are nested too deep</source>
        <translation>i suoi elementi sono annidati troppo a fondo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends where &quot;%2&quot; should</source>
        <translation>&quot;%1&quot; finisce dove dovrebbe finire &quot;%2&quot;</translation>
    </message>
    <message>
        <source>something follows the root element</source>
        <translation>qualcosa segue l&apos;elemento radice</translation>
    </message>
    <message>
        <source>there is text in &quot;%1&quot;, which holds elements</source>
        <translation>c&apos;è del testo in &quot;%1&quot;, che contiene elementi</translation>
    </message>
    <message>
        <source>an entity does not end</source>
        <translation>un&apos;entità non finisce</translation>
    </message>
    <message>
        <source>an unknown entity</source>
        <translation>un&apos;entità sconosciuta</translation>
    </message>
    <message>
        <source>a character that does not exist</source>
        <translation>un carattere che non esiste</translation>
    </message>
    <message>
        <source>a byte of value 0</source>
        <translation>un byte di valore 0</translation>
    </message>
    <message>
        <source>there is an element in &quot;%1&quot;, which holds text</source>
        <translation>c&apos;è un elemento in &quot;%1&quot;, che contiene testo</translation>
    </message>
    <message>
        <source>a text is too long</source>
        <translation>un testo è troppo lungo</translation>
    </message>
    <message>
        <source>it holds too many sequences</source>
        <translation>contiene troppe sequenze</translation>
    </message>
    <message>
        <source>it holds bytes that no text holds</source>
        <translation>contiene byte che nessun testo contiene</translation>
    </message>
    <message>
        <source>it holds no XML</source>
        <translation>non contiene XML</translation>
    </message>
    <message>
        <source>it ends within an element</source>
        <translation>finisce dentro un elemento</translation>
    </message>
    <message>
        <source>it has a malformed tag</source>
        <translation>ha un tag malformato</translation>
    </message>
    <message>
        <source>it has a document type or raw data, which no file of this kind has</source>
        <translation>ha un tipo di documento o dati grezzi, che nessun file di questo tipo ha</translation>
    </message>
    <message>
        <source>it closes an element that it has not opened</source>
        <translation>chiude un elemento che non ha aperto</translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <translation>i suoi elementi sono annidati troppo a fondo</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 non può essere letto: %2</translation>
    </message>
    <message>
        <source>not a finite time</source>
        <translation>un tempo non finito</translation>
    </message>
    <message>
        <source>%1, above an hour</source>
        <translation>%1, più di un&apos;ora</translation>
    </message>
    <message>
        <source>%1, beyond its record of %2</source>
        <translation>%1, oltre la sua registrazione di %2</translation>
    </message>
    <message>
        <source>shot %1, trace %2 (%3)</source>
        <translation>tiro %1, traccia %2 (%3)</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1; e altri %2</translation>
    </message>
    <message>
        <source>a pick that cannot be was dropped: %1</source>
        <translation>un primo arrivo impossibile è stato tralasciato: %1</translation>
    </message>
    <message>
        <source>%1 picks that cannot be were dropped: %2</source>
        <translation>%1 primi arrivi impossibili sono stati tralasciati: %2</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>tiro %1</translation>
    </message>
    <message>
        <source>%1 has no traces to pick on</source>
        <translation>%1: non ha tracce su cui segnare i primi arrivi</translation>
    </message>
    <message>
        <source>the machine has no memory left to pick first breaks</source>
        <translation>il computer non ha più memoria per segnare i primi arrivi</translation>
    </message>
    <message>
        <source>%1 has no record of times to screen</source>
        <translation>%1: non ha un record di tempi da controllare</translation>
    </message>
    <message>
        <source>the picks of %1 are not screened: it has no geophone string</source>
        <translation>i primi arrivi non sono stati controllati, %1: non ha una stesa di geofoni</translation>
    </message>
    <message>
        <source>must be above 0 Hz and below %1 Hz, the highest frequency of the spectrum</source>
        <translation>deve essere superiore a 0 Hz e inferiore a %1 Hz, la frequenza massima dello spettro</translation>
    </message>
    <message>
        <source>has no limit to keep to, as the spectrum has no frequency above 0 Hz: the traces are too short or their sample interval is not known</source>
        <translation>non ha un limite da rispettare, poiché lo spettro non ha frequenze superiori a 0 Hz: le tracce sono troppo corte o il loro intervallo di campionamento non è noto</translation>
    </message>
    <message>
        <source>No filter applied. The %1 cut-off of %2 Hz %3.</source>
        <translation>Nessun filtro applicato. La frequenza di taglio del %1, %2 Hz, %3.</translation>
    </message>
    <message>
        <source>there are no traces</source>
        <translation>non ci sono tracce</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>Nessun filtro applicato. L&apos;ordine del filtro deve essere maggiore di 0.</translation>
    </message>
    <message>
        <source>low-pass</source>
        <translation>passa basso</translation>
    </message>
    <message>
        <source>high-pass</source>
        <translation>passa alto</translation>
    </message>
    <message>
        <source>sample %1 is %2, which no filter can take</source>
        <translation>il campione %1 è %2, che nessun filtro può accettare</translation>
    </message>
    <message>
        <source>the result does not fit single precision; scale the samples down</source>
        <translation>il risultato non entra nella precisione singola; ridurre la scala dei campioni</translation>
    </message>
    <message>
        <source>No filter applied. Filter order %1 is above the limit of %2.</source>
        <translation>Nessun filtro applicato. L&apos;ordine del filtro %1 supera il limite di %2.</translation>
    </message>
    <message>
        <source>No filter applied. The cut-off is %1 of the sample rate; it must be above 0 and below 0.5.</source>
        <translation>Nessun filtro applicato. La frequenza di taglio è %1 della frequenza di campionamento; deve essere superiore a 0 e inferiore a 0,5.</translation>
    </message>
    <message>
        <source>No filter applied. Single precision cannot hold a filter of order %1 with a cut-off of %2 of the sample rate; choose a lower order or a cut-off nearer to the middle of the range.</source>
        <translation>Nessun filtro applicato. La precisione singola non può contenere un filtro di ordine %1 con una frequenza di taglio di %2 della frequenza di campionamento; scegliere un ordine minore o un taglio più vicino al centro dell&apos;intervallo.</translation>
    </message>
    <message>
        <source>No filter applied. The filter cannot be created.</source>
        <translation>Nessun filtro applicato. Il filtro non può essere creato.</translation>
    </message>
    <message>
        <source>the energy of the samples does not fit single precision; scale them down</source>
        <translation>l&apos;energia dei campioni non entra nella precisione singola; ridurne la scala</translation>
    </message>
    <message>
        <source>There is no grid with cells; build the grid first.</source>
        <translation>Non c&apos;è una griglia con celle; creare prima la griglia.</translation>
    </message>
    <message>
        <source>The velocity model cannot be used: %1</source>
        <translation>Il modello di velocità non può essere usato: %1</translation>
    </message>
    <message>
        <source>Ray tracing of shot %1 failed: %2</source>
        <translation>Il tracciamento dei raggi del tiro %1 non è riuscito: %2</translation>
    </message>
    <message>
        <source>Choose a positive cell size and no negative depth.</source>
        <translation>Scegliere un lato delle celle positivo e una profondità non negativa.</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
Please set the position of geophones
</source>
        <translation>I geofoni non hanno geometria! 
Impostare la posizione dei geofoni
</translation>
    </message>
    <message>
        <source>A position of the survey lies more than 100 000 km away; please check the geometry.</source>
        <translation>Una posizione del rilievo dista più di 100 000 km; controllare la geometria.</translation>
    </message>
    <message>
        <source>A grid of cells of %1 with %2 nodes per side, %3 deep, cannot be built; choose a positive cell size, two nodes at least and no negative depth.</source>
        <translation>Una griglia di celle di %1 con %2 nodi per lato, profonda %3, non può essere creata; scegliere un lato delle celle positivo, almeno due nodi e una profondità non negativa.</translation>
    </message>
    <message>
        <source>The grid could not be built; see the error stream.</source>
        <translation>Non è stato possibile creare la griglia; vedere il flusso degli errori.</translation>
    </message>
    <message>
        <source>The grid could not be built: %1</source>
        <translation>Non è stato possibile creare la griglia: %1</translation>
    </message>
    <message>
        <source>There is no grid yet; build the grid first.</source>
        <translation>Non c&apos;è ancora una griglia; creare prima la griglia.</translation>
    </message>
    <message>
        <source>The smoothing parameter must be 1 at least.</source>
        <translation>Il parametro di smussamento deve essere almeno 1.</translation>
    </message>
    <message>
        <source>The smoothed velocity model cannot be used: %1</source>
        <translation>Il modello di velocità smussato non può essere usato: %1</translation>
    </message>
    <message>
        <source>The grid could not be smoothed: %1</source>
        <translation>Non è stato possibile smussare la griglia: %1</translation>
    </message>
    <message>
        <source>The rays could not be traced: %1</source>
        <translation>Non è stato possibile tracciare i raggi: %1</translation>
    </message>
    <message>
        <source>Iterations and smoothing parameter must be 1 at least.</source>
        <translation>Iterazioni e parametro di smussamento devono essere almeno 1.</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers; %1 is none.</source>
        <translation>I limiti di velocità devono essere numeri positivi; %1 non lo è.</translation>
    </message>
    <message>
        <source>its gradient has no colours</source>
        <translation>il suo gradiente non ha colori</translation>
    </message>
    <message>
        <source>a colour stop of its gradient is not a finite number</source>
        <translation>un cursore del suo gradiente non è un numero finito</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>il suo nome è troppo lungo</translation>
    </message>
    <message>
        <source>its range of values is out of bounds</source>
        <translation>il suo intervallo di valori è fuori dai limiti</translation>
    </message>
    <message>
        <source>its gradient has %1 colour stops, more than %2</source>
        <translation>il suo gradiente ha %1 cursori, più di %2</translation>
    </message>
    <message>
        <source>A section has 0 to %1 contour values.</source>
        <translation>Una sezione ha da 0 a %1 valori di isolinea.</translation>
    </message>
    <message>
        <source>The value range of the section is empty: its maximum must be greater than its minimum.</source>
        <translation>L&apos;intervallo di valori della sezione è vuoto: il massimo deve essere maggiore del minimo.</translation>
    </message>
    <message>
        <source>There is no section to draw: no cell that is shown has a value for &quot;%1&quot;.</source>
        <translation>Non c&apos;è una sezione da disegnare: nessuna cella mostrata ha un valore per &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no section to draw: the survey has no grid yet. Build one.</source>
        <translation>Non c&apos;è una sezione da disegnare: il rilievo non ha ancora una griglia. Crearne una.</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Gradiente verticale di velocità</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplaciano della velocità</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densità d&apos;informazione</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>The layers give a velocity of %1 at a depth of %2, which is no velocity of the ground. Let the layers cover the whole depth of the grid, or make the change between them gentler.</source>
        <translation>Gli strati danno una velocità di %1 alla profondità di %2, che non è una velocità del terreno. Si facciano coprire agli strati tutta la profondità della griglia, o si renda più graduale il passaggio tra di essi.</translation>
    </message>
    <message>
        <source>a number is out of range or not finite</source>
        <translation>un numero è fuori intervallo o non è finito</translation>
    </message>
    <message>
        <source>the value of %1 is not a number it can hold</source>
        <translation>il valore di %1 non è un numero ammesso</translation>
    </message>
    <message>
        <source>palette %1: %2</source>
        <translation>tavolozza %1: %2</translation>
    </message>
    <message>
        <source>there are no palettes in it</source>
        <translation>non contiene tavolozze</translation>
    </message>
    <message>
        <source>palette %1: %2; it is left out</source>
        <translation>tavolozza %1: %2; è tralasciata</translation>
    </message>
    <message>
        <source>the name of palette %1 has control characters; they are blanks now</source>
        <translation>il nome della tavolozza %1 ha caratteri di controllo; ora sono spazi</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number that it can hold</source>
        <translation>«%1» non è un numero ammesso</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>«%1» non è né vero né falso</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>«%1» c&apos;è due volte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>manca «%1»</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>The last steps of the inversion failed: %1</source>
        <translation>Gli ultimi passi dell&apos;inversione non sono riusciti: %1</translation>
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
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>SEG2 format (%1)</source>
        <translation>Formato SEG2 (%1)</translation>
    </message>
    <message>
        <source>SEGY format (%1)</source>
        <translation>Formato SEGY (%1)</translation>
    </message>
    <message>
        <source>SU format (%1)</source>
        <translation>Formato SU (%1)</translation>
    </message>
    <message>
        <source>Open Travel Time Exchange format (%1)</source>
        <translation>Formato Open Travel Time Exchange (%1)</translation>
    </message>
    <message>
        <source>T-x curves (%1)</source>
        <translation>Curve T-x (%1)</translation>
    </message>
    <message>
        <source>Sectioned pick table (%1)</source>
        <translation>Tabella dei primi arrivi in sezioni (%1)</translation>
    </message>
    <message>
        <source>Pick table (%1)</source>
        <translation>Tabella dei primi arrivi (%1)</translation>
    </message>
    <message>
        <source>Talvesk projects (%1)</source>
        <translation>Progetti Talvesk (%1)</translation>
    </message>
    <message>
        <source>Seismic files (%1)</source>
        <translation>File sismici (%1)</translation>
    </message>
    <message>
        <source>Travel times (%1)</source>
        <translation>Tempi di arrivo (%1)</translation>
    </message>
    <message>
        <source>the coverage of the last inversion and its figures are not known</source>
        <translation>la copertura dell&apos;ultima inversione e le sue cifre non sono note</translation>
    </message>
    <message>
        <source>every pick counts as confirmed</source>
        <translation>ogni primo arrivo vale come confermato</translation>
    </message>
    <message>
        <source>%1 and what else this version does not know, %2 in all, is too much to be kept; it will not be in the next save</source>
        <translation>%1 e il resto che questa versione non conosce, %2 in tutto, è troppo per essere conservato; mancherà nel prossimo salvataggio</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of Talvesk; it stays as it is, but %2</source>
        <translation>%1 è stato scritto da una versione più recente di Talvesk; resta com&apos;è, ma %2</translation>
    </message>
    <message>
        <source>%1 is of another version of Talvesk; it stays as it is, but is not used</source>
        <translation>%1 è di un&apos;altra versione di Talvesk; resta com&apos;è, ma non viene usato</translation>
    </message>
    <message>
        <source>%1 of a newer version of Talvesk gave way to that of this version: what it told of has changed.</source>
        <translation>%1 di una versione più recente di Talvesk ha lasciato il posto a quello di questa versione: ciò che descriveva è cambiato.</translation>
    </message>
    <message>
        <source>it is about other picks than those of the project</source>
        <translation>riguarda primi arrivi diversi da quelli del progetto</translation>
    </message>
    <message>
        <source>its suffix is none of %1</source>
        <translation>l&apos;estensione non è nessuna di %1</translation>
    </message>
    <message>
        <source>Invalid input TT file : %1 (its suffix is none of %2)</source>
        <translation>File TT in ingresso non valido : %1 (l&apos;estensione non è nessuna di %2)</translation>
    </message>
    <message>
        <source>Open shot files</source>
        <translation>Apri file dei tiri</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Togli il tiro</translation>
    </message>
    <message>
        <source>Import travel times</source>
        <translation>Importa tempi di arrivo</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Conta i tempi dal tiro</translation>
    </message>
    <message>
        <source>Edit picks</source>
        <translation>Modifica i primi arrivi</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Conferma i primi arrivi</translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation>AutoPick</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometria</translation>
    </message>
    <message>
        <source>S-wave recordings</source>
        <translation>Registrazioni di onde S</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Definisci il modello di velocità</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Applica lo smussamento</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Esegui l&apos;inversione tomografica</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Rifrazione</translation>
    </message>
    <message>
        <source>Set title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Tavolozza</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolinee</translation>
    </message>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Coordinate geografiche</translation>
    </message>
    <message>
        <source>another edit is under way; try again when it is through</source>
        <translation>un&apos;altra modifica è in corso; riprovare quando è terminata</translation>
    </message>
    <message>
        <source>the edit failed: %1</source>
        <translation>la modifica non è riuscita: %1</translation>
    </message>
    <message>
        <source>no edit is under way</source>
        <translation>nessuna modifica è in corso</translation>
    </message>
    <message>
        <source>%1 would change what it must not; nothing was changed</source>
        <translation>&quot;%1&quot; cambierebbe ciò che non deve; nulla è stato cambiato</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Togli i primi arrivi</translation>
    </message>
    <message>
        <source>Remove pick</source>
        <translation>Togli il primo arrivo</translation>
    </message>
    <message>
        <source>Nudge pick</source>
        <translation>Sposta di poco il primo arrivo</translation>
    </message>
    <message>
        <source>Set pick</source>
        <translation>Metti il primo arrivo</translation>
    </message>
    <message>
        <source>Move pick</source>
        <translation>Sposta il primo arrivo</translation>
    </message>
    <message>
        <source>Draw picks</source>
        <translation>Traccia i primi arrivi</translation>
    </message>
    <message>
        <source>the survey has no such shot; check the recordings again</source>
        <translation>il rilievo non ha questo tiro; controllare di nuovo le registrazioni</translation>
    </message>
    <message>
        <source>shot %1: a position is missing, no number or absurdly far away</source>
        <translation>tiro %1: una posizione manca, non è un numero o è assurdamente lontana</translation>
    </message>
    <message>
        <source>shot %1: its geophone string has another number of geophones than the proposal; check the recordings again</source>
        <translation>tiro %1: la sua stesa ha un numero di geofoni diverso dalla proposta; controllare di nuovo le registrazioni</translation>
    </message>
    <message>
        <source>there is no trace %1; check the recordings again</source>
        <translation>la traccia %1 non esiste; controllare di nuovo le registrazioni</translation>
    </message>
    <message>
        <source>no trace of the record holds anything</source>
        <translation>nessuna traccia della registrazione contiene qualcosa</translation>
    </message>
    <message>
        <source>dead: the samples of %1 are all the same</source>
        <translation>segnale assente (%1): i campioni sono tutti uguali</translation>
    </message>
    <message>
        <source>as good as dead: %1, at down to %2 % of the strength of the neighbours</source>
        <translation>segnale quasi assente (%1): fino al %2 % dell&apos;ampiezza delle tracce vicine</translation>
    </message>
    <message>
        <source>clipped: the swings of %1 are cut off flat, up to %2 times; first breaks can be picked, amplitudes mean nothing</source>
        <translation>saturazione (%1): le oscillazioni sono troncate in piano, fino a %2 volte; i primi arrivi si possono segnare, le ampiezze non hanno significato</translation>
    </message>
    <message>
        <source>noisy: before the first arrival of %1 there is up to %2 times the noise of the neighbours, and it drowns the arrival</source>
        <translation>rumore (%1): prima del primo arrivo il rumore è fino a %2 volte quello delle tracce vicine, e copre l&apos;arrivo</translation>
    </message>
    <message>
        <source>doubled: trace %1 is trace %2 once more (correlation %3); the arrivals around say that it belongs to the latter</source>
        <translation>doppione: la traccia %1 è di nuovo la traccia %2 (correlazione %3); secondo gli arrivi vicini il segnale è di quest&apos;ultima</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>traces %1</source>
        <translation>tracce %1</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>tiri %1</translation>
    </message>
    <message>
        <source>shot position</source>
        <translation>posizione del tiro</translation>
    </message>
    <message>
        <source>station numbers</source>
        <translation>numeri di stazione</translation>
    </message>
    <message>
        <source>repeated positions</source>
        <translation>posizioni ripetute</translation>
    </message>
    <message>
        <source>reversed order</source>
        <translation>ordine invertito</translation>
    </message>
    <message>
        <source>doubled trace</source>
        <translation>traccia doppia</translation>
    </message>
    <message>
        <source>moved traces</source>
        <translation>tracce scambiate</translation>
    </message>
    <message>
        <source>geophone off the line</source>
        <translation>geofono fuori posto</translation>
    </message>
    <message>
        <source>trigger time</source>
        <translation>tempo di trigger</translation>
    </message>
    <message>
        <source>dead traces</source>
        <translation>tracce morte</translation>
    </message>
    <message>
        <source>clipped traces</source>
        <translation>tracce saturate</translation>
    </message>
    <message>
        <source>noisy traces</source>
        <translation>tracce rumorose</translation>
    </message>
    <message>
        <source>reversed polarity</source>
        <translation>polarità invertita</translation>
    </message>
    <message>
        <source>mistimed trace</source>
        <translation>traccia fuori tempo</translation>
    </message>
    <message>
        <source>sample intervals</source>
        <translation>intervalli di campionamento</translation>
    </message>
    <message>
        <source>repeated shot</source>
        <translation>tiro ripetuto</translation>
    </message>
    <message>
        <source>overlapping spreads</source>
        <translation>stese sovrapposte</translation>
    </message>
    <message>
        <source>no elevations</source>
        <translation>quote assenti</translation>
    </message>
    <message>
        <source>move the record later by %1 ms</source>
        <translation>ritardare la registrazione di %1 ms</translation>
    </message>
    <message>
        <source>move the record earlier by %1 ms</source>
        <translation>anticipare la registrazione di %1 ms</translation>
    </message>
    <message>
        <source>kill %1</source>
        <translation>escludere: %1</translation>
    </message>
    <message>
        <source>reverse the polarity of %1</source>
        <translation>invertire la polarità: %1</translation>
    </message>
    <message>
        <source>mute %1 before %2 ms</source>
        <translation>azzerare prima di %2 ms: %1</translation>
    </message>
    <message>
        <source>read the channels from the last to the first</source>
        <translation>leggere i canali dall&apos;ultimo al primo</translation>
    </message>
    <message>
        <source>put the shot at %1</source>
        <translation>mettere il tiro a %1</translation>
    </message>
    <message>
        <source>stack it with %1; the stack alone counts then</source>
        <translation>sommarlo con altri (%1); conta allora soltanto la somma</translation>
    </message>
    <message>
        <source>disable the shot</source>
        <translation>disattivare il tiro</translation>
    </message>
    <message>
        <source>exchanged: over all shots the arrivals of trace %1 belong to the place of trace %2, and the other way round</source>
        <translation>scambio: in tutti i tiri gli arrivi della traccia %1 corrispondono al posto della traccia %2, e viceversa</translation>
    </message>
    <message>
        <source>off the line: geophone %1 is said to be at %2; from both sides its arrivals are those of %3</source>
        <translation>fuori posto: il geofono %1 è indicato a %2; da entrambi i lati i suoi arrivi sono quelli di %3</translation>
    </message>
    <message>
        <source>%1 geophones are said to be at %2 places only</source>
        <translation>%1 geofoni sono indicati in sole %2 posizioni</translation>
    </message>
    <message>
        <source>the shot is said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>il tiro è indicato a %1; il nome del file dice %2, e i tempi minimi del rilievo seguono i nomi</translation>
    </message>
    <message>
        <source>the shot is said to be at an elevation of %1, and the geophones have none that could be theirs</source>
        <translation>il tiro è indicato alla quota di %1, e i geofoni non hanno quote plausibili</translation>
    </message>
    <message>
        <source>the channels run against the geophones: the least times of %1 of %2 shots are beside the shot only when the string is read from its last geophone to its first</source>
        <translation>i canali vanno in senso contrario ai geofoni: i tempi minimi di %1 tiri su %2 sono accanto al tiro solo se la stesa si legge dall&apos;ultimo geofono al primo</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>tutti i tiri sono indicati a %1; il nome del file dice %2, e i tempi minimi del rilievo seguono i nomi</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the times of this one are least at %2</source>
        <translation>tutti i tiri sono indicati a %1; i tempi di questo sono minimi a %2</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; this one was at an end of the geophones or beyond</source>
        <translation>tutti i tiri sono indicati a %1; questo era a un estremo dei geofoni o oltre</translation>
    </message>
    <message>
        <source>the channels of this record run against the geophones: read from the last to the first the times are least beside the shot at %1</source>
        <translation>i canali di questa registrazione vanno in senso contrario ai geofoni: letti dall&apos;ultimo al primo, i tempi sono minimi accanto al tiro a %1</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times grow from %2 on all the way through the geophones: it was at that end of them or beyond</source>
        <translation>il tiro è indicato a %1, ma i tempi crescono da %2 in poi lungo tutti i geofoni: era a quell&apos;estremo o oltre</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times are least at %2, beside geophone %3, and grow on both sides of it</source>
        <translation>il tiro è indicato a %1, ma i tempi sono minimi a %2, accanto al geofono %3, e crescono da entrambi i lati</translation>
    </message>
    <message>
        <source>%1; or the geophones stand %2 apart and not %3, which no other shot can decide</source>
        <translation>%1; oppure i geofoni distano %2 e non %3, e nessun altro tiro permette di deciderlo</translation>
    </message>
    <message>
        <source>mistimed: trace %1 has its first arrival at %2 ms, its neighbours let expect it at %3 ms, and from there on it looks like them (correlation %4)</source>
        <translation>fuori tempo: la traccia %1 ha il primo arrivo a %2 ms, le vicine lo fanno attendere a %3 ms, e dall&apos;arrivo in poi somiglia a loro (correlazione %4)</translation>
    </message>
    <message>
        <source>reversed: the first swings of %1 go against those of the neighbours, which agree with each other (correlation -%2 at least)</source>
        <translation>polarità invertita (%1): le prime oscillazioni sono opposte a quelle delle tracce vicine, concordi fra loro (correlazione almeno -%2)</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2, with %3 times the signal to noise of this one</source>
        <translation>il tiro %1 è stato registrato nello stesso punto, a %2, con un rapporto segnale/rumore %3 volte quello di questo</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2; its arrivals are %3 ms later</source>
        <translation>il tiro %1 è stato registrato nello stesso punto, a %2; i suoi arrivi sono in ritardo di %3 ms</translation>
    </message>
    <message>
        <source>the record is that of shot %1 once more, sample for sample</source>
        <translation>la registrazione è di nuovo quella del tiro %1, campione per campione</translation>
    </message>
    <message>
        <source>the sample intervals of its traces differ, %1 to %2 ms: the times of some are wrong unless the recorder meant it</source>
        <translation>gli intervalli di campionamento delle tracce sono diversi, da %1 a %2 ms: i tempi di alcune sono sbagliati, a meno che lo strumento non fosse impostato così</translation>
    </message>
    <message>
        <source>its traces have no sample interval: they have no times</source>
        <translation>le tracce non hanno intervallo di campionamento, quindi nemmeno tempi</translation>
    </message>
    <message>
        <source>the sample interval is %2 ms in %1, and %3 ms in most others: right if the recorder was set so</source>
        <translation>l&apos;intervallo di campionamento è %2 ms (%1), e %3 ms in quasi tutti gli altri tiri: va bene se lo strumento era impostato così</translation>
    </message>
    <message>
        <source>strings %1 and %2 overlap and have other elevations at %3 places, by up to %4 at %5</source>
        <translation>le stese %1 e %2 si sovrappongono e hanno quote diverse in %3 punti, fino a %4 di differenza a %5</translation>
    </message>
    <message>
        <source>no elevations: all shots and geophones are at %1; if the ground is not level, read them from a table in the survey geometry</source>
        <translation>quote assenti: tutti i tiri e i geofoni sono a %1; se il terreno non è piano, leggerle da una tabella nella geometria del rilievo</translation>
    </message>
    <message>
        <source>the shot&apos;s position %1 counts stations: over %2 shots the least times move by %3 for each 1 in the position</source>
        <translation>la posizione %1 del tiro conta stazioni: su %2 tiri i tempi minimi si spostano di %3 per ogni unità della posizione</translation>
    </message>
    <message>
        <source>late</source>
        <translation>in ritardo</translation>
    </message>
    <message>
        <source>early</source>
        <translation>in anticipo</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: %3 times to the places of other shots differ by that from the times back, give or take %4 ms</source>
        <translation>la registrazione è %2 di %1 ms: di tanto differiscono %3 tempi verso le posizioni di altri tiri dai loro reciproci, con un margine di %4 ms</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: its times differ by that from those of %3 other shots at equal distances, give or take %4 ms</source>
        <translation>la registrazione è %2 di circa %1 ms: di tanto differiscono i suoi tempi da quelli di altri %3 tiri a pari distanza, con un margine di %4 ms</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: all channels have a spike at %3 ms at once, before anything can have arrived</source>
        <translation>la registrazione è %2 di %1 ms: tutti i canali hanno insieme un impulso a %3 ms, prima che qualcosa possa essere arrivato</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it has %1 columns and no heading that names one for the distance and one for the elevation</source>
        <translation>ha %1 colonne e nessuna intestazione che ne indichi una per la distanza e una per la quota</translation>
    </message>
    <message>
        <source>it holds no point</source>
        <translation>non contiene punti</translation>
    </message>
    <message>
        <source>Unified data format (%1)</source>
        <translation>Formato di dati unificato (%1)</translation>
    </message>
    <message>
        <source>no heading names shot, geophone and time</source>
        <translation>nessuna intestazione indica tiro, geofono e tempo</translation>
    </message>
    <message>
        <source>%1 lines above the heading were ignored</source>
        <translation>le righe sopra l&apos;intestazione (%1) sono state ignorate</translation>
    </message>
    <message>
        <source>the columns %1 and %2 were taken for positions in metres</source>
        <translation>le colonne %1 e %2 sono state prese come posizioni in metri</translation>
    </message>
    <message>
        <source>the heading does not say whether its times are in ms or in s</source>
        <translation>l&apos;intestazione non dice se i tempi sono in ms o in s</translation>
    </message>
    <message>
        <source>no row follows the heading</source>
        <translation>nessuna riga segue l&apos;intestazione</translation>
    </message>
    <message>
        <source>there are more than %1 geophones</source>
        <translation>ci sono più di %1 geofoni</translation>
    </message>
    <message>
        <source>%1 of %2 rows have no time above 0, or are not valid, and are no picks</source>
        <translation>%1 righe su %2 non hanno un tempo maggiore di 0, o non sono valide, e non sono primi arrivi</translation>
    </message>
    <message>
        <source>%1 shots and %2 geophones are far too many for %3 rows</source>
        <translation>%1 tiri e %2 geofoni sono troppi per %3 righe</translation>
    </message>
    <message>
        <source>no column tells the elevations of the shots; they were put on the line of the geophones</source>
        <translation>nessuna colonna indica le quote dei tiri; sono stati messi sulla linea dei geofoni</translation>
    </message>
    <message>
        <source>no heading names a column for the distance and one for the elevation</source>
        <translation>nessuna intestazione indica una colonna per la distanza e una per la quota</translation>
    </message>
    <message>
        <source>the unified data format</source>
        <translation>formato di dati unificato</translation>
    </message>
    <message>
        <source>a table with a heading</source>
        <translation>tabella con intestazione</translation>
    </message>
    <message>
        <source>a pick table of long lines</source>
        <translation>tabella di primi arrivi con righe lunghe</translation>
    </message>
    <message>
        <source>%1 times are of a shot and geophone that had one already; the first of them counts</source>
        <translation>%1 tempi sono di un tiro e di un geofono che ne avevano già uno; vale il primo</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posizione</translation>
    </message>
    <message>
        <source>number of positions</source>
        <translation>numero delle posizioni</translation>
    </message>
    <message>
        <source>number of measurements</source>
        <translation>numero delle misure</translation>
    </message>
    <message>
        <source>number of points of topography</source>
        <translation>numero dei punti della topografia</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonna %1</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is not a number</source>
        <translation>%1: %2 non è un numero</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is out of range</source>
        <translation>%1: %2 è fuori intervallo</translation>
    </message>
    <message>
        <source>all shot files count as read by the program&apos;s rules; the traces are those that were saved</source>
        <translation>tutti i file dei tiri valgono come letti secondo le regole del programma; le tracce sono quelle salvate</translation>
    </message>
    <message>
        <source>what was mended in its recordings is not known; traces and picks stay as they are</source>
        <translation>le correzioni alle sue registrazioni non sono note; tracce e primi arrivi restano come sono</translation>
    </message>
    <message>
        <source>there is a grid, but a position lies more than 100 000 km away</source>
        <translation>c&apos;è una griglia, ma una posizione è a più di 100 000 km</translation>
    </message>
    <message>
        <source>mends.xml: the mends of these shots are not those of their traces, and are left out; traces and picks stay as they are: %1</source>
        <translation>mends.xml: le correzioni di questi tiri non sono quelle delle loro tracce e sono state tralasciate; tracce e primi arrivi restano come sono: %1</translation>
    </message>
    <message>
        <source>it is about other shot files than those of the project</source>
        <translation>riguarda file dei tiri diversi da quelli del progetto</translation>
    </message>
    <message>
        <source>the program&apos;s rules find no trace in it</source>
        <translation>le regole del programma non vi trovano tracce</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces of %3 shots</source>
        <translation>le regole del programma leggono %1 delle sue %2 tracce di %3 tiri</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces</source>
        <translation>le regole del programma leggono %1 delle sue %2 tracce</translation>
    </message>
    <message>
        <source>the program&apos;s rules make one shot of its %1</source>
        <translation>le regole del programma fanno un solo tiro dei suoi %1</translation>
    </message>
    <message>
        <source>%1 of %2 traces are all zeros by the program&apos;s rules</source>
        <translation>%1 tracce su %2 sono tutte zeri secondo le regole del programma</translation>
    </message>
    <message>
        <source>the samples of %1 of %2 traces are not those of the standard, and not for their scale alone</source>
        <translation>i campioni di %1 tracce su %2 non sono quelli dello standard, e non solo per la scala</translation>
    </message>
    <message>
        <source>%1 of %2 traces are shorter by the program&apos;s rules</source>
        <translation>%1 tracce su %2 sono più corte secondo le regole del programma</translation>
    </message>
    <message>
        <source>the sample interval is %1 ms by the program&apos;s rules, %2 ms by the standard</source>
        <translation>l&apos;intervallo di campionamento è %1 ms secondo le regole del programma, %2 ms secondo lo standard</translation>
    </message>
    <message>
        <source>its records start %1 ms from the shot by the program&apos;s rules, %2 ms by the standard</source>
        <translation>le registrazioni cominciano a %1 ms dal tiro secondo le regole del programma, a %2 ms secondo lo standard</translation>
    </message>
    <message>
        <source>its geophones are at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>posizioni dei geofoni: %1 secondo le regole del programma, %2 secondo lo standard</translation>
    </message>
    <message>
        <source>its shot is at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>posizione del tiro: %1 secondo le regole del programma, %2 secondo lo standard</translation>
    </message>
    <message>
        <source>the elevations of %1 of %2 traces are others by the program&apos;s rules</source>
        <translation>le quote di %1 tracce su %2 sono diverse secondo le regole del programma</translation>
    </message>
    <message>
        <source>the program&apos;s rules cannot read it</source>
        <translation>le regole del programma non possono leggerlo</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>the traces of shot %1 differ in sample interval or in the time of their first sample; they cannot be in one record</source>
        <translation>le tracce del tiro %1 differiscono nell&apos;intervallo di campionamento o nel tempo del primo campione; non possono stare in una sola registrazione</translation>
    </message>
    <message>
        <source>it has no sample interval</source>
        <translation>non ha un intervallo di campionamento</translation>
    </message>
    <message>
        <source>its traces have %1 samples; a file holds %2</source>
        <translation>le tracce hanno %1 campioni; un file ne contiene %2</translation>
    </message>
    <message>
        <source>it has %1 traces; a SEG-2 file holds %2</source>
        <translation>ha %1 tracce; un file SEG-2 ne contiene %2</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>tiro %1: %2</translation>
    </message>
    <message>
        <source>read by the program&apos;s rules, the files have no elevations, and no positions that are not whole metres; read them by the standard</source>
        <translation>letti secondo le regole del programma, i file non hanno quote, e hanno solo posizioni in metri interi; leggerli secondo lo standard</translation>
    </message>
    <message>
        <source>%1 shots are disabled or have no samples and were left out</source>
        <translation>%1 tiri sono disattivati o senza campioni e sono stati tralasciati</translation>
    </message>
    <message>
        <source>%1 traces begin at the shot; what was recorded before is not in the files</source>
        <translation>%1 tracce cominciano dal tiro; ciò che è stato registrato prima non è nei file</translation>
    </message>
    <message>
        <source>%1 samples were rounded to the seven digits of a 32-bit float</source>
        <translation>%1 campioni sono stati arrotondati alle sette cifre di un numero in virgola mobile a 32 bit</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>è stato interrotto</translation>
    </message>
    <message>
        <source>shot %1 has no samples</source>
        <translation>il tiro %1 non ha campioni</translation>
    </message>
    <message>
        <source>shot %1, trace %2: a sample is too large for a file</source>
        <translation>tiro %1, traccia %2: un campione è troppo grande per un file</translation>
    </message>
    <message>
        <source>the survey has no records to be written</source>
        <translation>il rilievo non ha registrazioni da scrivere</translation>
    </message>
    <message>
        <source>its sample interval of %1 ms is no whole number of microseconds up to 65535, which is all that SEG-Y can hold; write SEG-2</source>
        <translation>il suo intervallo di campionamento di %1 ms non è un numero intero di microsecondi fino a 65535, il solo che SEG-Y può contenere; scrivere SEG-2</translation>
    </message>
    <message>
        <source>it begins %1 ms after the shot, which SEG-Y cannot hold; write SEG-2</source>
        <translation>comincia %1 ms dopo il tiro, e SEG-Y non può indicarlo; scrivere SEG-2</translation>
    </message>
    <message>
        <source>it is miniSEED of version 3; version 2 is read</source>
        <translation>è miniSEED versione 3; si legge la versione 2</translation>
    </message>
    <message>
        <source>it is no miniSEED file</source>
        <translation>non è un file miniSEED</translation>
    </message>
    <message>
        <source>its records have no blockette 1000, which tells their encoding</source>
        <translation>i suoi record non hanno il blockette 1000, che ne indica la codifica</translation>
    </message>
    <message>
        <source>its samples have the encoding %1; 1, 3, 4, 5, 10 and 11 are read</source>
        <translation>i suoi campioni hanno la codifica %1; si leggono 1, 3, 4, 5, 10 e 11</translation>
    </message>
    <message>
        <source>none of its records has samples of a series</source>
        <translation>nessuno dei suoi record ha campioni di una serie temporale</translation>
    </message>
    <message>
        <source>miniSEED tells neither positions nor the time of the shot: all positions are 0 and times count from the first sample; give the survey its geometry</source>
        <translation>miniSEED non indica né posizioni né il tempo del tiro: tutte le posizioni sono 0 e i tempi si contano dal primo campione; definire la geometria del rilievo</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others; zeros stand in front</source>
        <translation>%1: la registrazione comincia dopo le altre; è preceduta da zeri</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others, by longer than it lasts; that is not applied and its times do not compare</source>
        <translation>%1: la registrazione comincia dopo le altre, di più della sua durata; ciò non viene applicato e i tempi non sono confrontabili</translation>
    </message>
    <message>
        <source>zeros stand for gaps in the record of %1</source>
        <translation>%1: zeri al posto delle lacune della registrazione</translation>
    </message>
    <message>
        <source>records of %1 overlap; the later ones count</source>
        <translation>%1: record sovrapposti; valgono gli ultimi</translation>
    </message>
    <message>
        <source>records left out after a gap that is longer than what was recorded: %1</source>
        <translation>record tralasciati dopo una lacuna più lunga di quanto registrato: %1</translation>
    </message>
    <message>
        <source>records left out whose sample rate is not that of the first of their channel: %1</source>
        <translation>record tralasciati con frequenza di campionamento diversa dal primo del loro canale: %1</translation>
    </message>
    <message>
        <source>records left out whose encoding, such as %1, is not read: %2</source>
        <translation>record tralasciati con una codifica che non si legge, come %1: %2</translation>
    </message>
    <message>
        <source>records left out that have no samples of a series: %1</source>
        <translation>record tralasciati senza campioni di una serie temporale: %1</translation>
    </message>
    <message>
        <source>records left out that have no blockette 1000: %1</source>
        <translation>record tralasciati senza blockette 1000: %1</translation>
    </message>
    <message>
        <source>bytes left out that are of no record: %1</source>
        <translation>byte tralasciati che non appartengono a nessun record: %1</translation>
    </message>
    <message>
        <source>samples that headers promise and records do not hold: %1</source>
        <translation>campioni promessi dalle intestazioni e assenti nei record: %1</translation>
    </message>
    <message>
        <source>damaged records, which do not end at the sample that they tell: %1</source>
        <translation>record danneggiati, che non finiscono con il campione indicato: %1</translation>
    </message>
    <message>
        <source>the record of %1 begins after the shot, by up to %2 ms; zeros stand in front, in whole samples</source>
        <translation>%1: la registrazione comincia dopo il tiro, fino a %2 ms; è preceduta da zeri, in campioni interi</translation>
    </message>
    <message>
        <source>the header of %1 says that the record begins up to %2 ms after the shot, longer than it lasts; that delay is not applied</source>
        <translation>%1: secondo l&apos;intestazione la registrazione comincia fino a %2 ms dopo il tiro, più della sua durata; questo ritardo non viene applicato</translation>
    </message>
    <message>
        <source>the header of %1 tells no %2; 0 stands for it</source>
        <translation>%1: l&apos;intestazione non indica %2; al suo posto vale 0</translation>
    </message>
    <message>
        <source>the UNITS of its header, %1, are not known; its positions were taken as metres</source>
        <translation>le UNITS dell&apos;intestazione, %1, non sono note; le posizioni sono state prese in metri</translation>
    </message>
    <message>
        <source>its positions are in %1 and were converted to metres, %2 m each</source>
        <translation>le posizioni sono in %1 e sono state convertite in metri, %2 m per unità</translation>
    </message>
    <message>
        <source>its receiver positions look like longitude and latitude in degrees, not like metres; give the survey its geometry</source>
        <translation>le posizioni dei ricevitori sembrano longitudine e latitudine in gradi, non metri; definire la geometria del rilievo</translation>
    </message>
    <message>
        <source>its geophones differ in y but not in x; y was taken as the position along the line</source>
        <translation>i geofoni differiscono in y ma non in x; y è stata presa come posizione lungo la linea</translation>
    </message>
    <message>
        <source>all its geophones are at x = %1; give the survey its geometry</source>
        <translation>tutti i geofoni sono a x = %1; definire la geometria del rilievo</translation>
    </message>
    <message>
        <source>its geophones differ by up to %1 in y, which is not used; positions along the line are x</source>
        <translation>i geofoni differiscono fino a %1 in y, che non viene usata; le posizioni lungo la linea sono x</translation>
    </message>
    <message>
        <source>its channel numbers do not ascend; the traces stay in the order of the file</source>
        <translation>i numeri dei canali non sono crescenti; le tracce restano nell&apos;ordine del file</translation>
    </message>
    <message>
        <source>every trace tells a source position of its own; the file was read as one shot, at the first of them</source>
        <translation>ogni traccia indica una propria posizione della sorgente; il file è stato letto come un solo tiro, nella prima posizione</translation>
    </message>
    <message>
        <source>it is no SEG-2 file</source>
        <translation>non è un file SEG-2</translation>
    </message>
    <message>
        <source>it holds no trace</source>
        <translation>non contiene tracce</translation>
    </message>
    <message>
        <source>the samples of its trace %1 have the data format code %2; the codes of SEG-2 are 1 to 5</source>
        <translation>i campioni della traccia %1 hanno il codice di formato dei dati %2; i codici di SEG-2 vanno da 1 a 5</translation>
    </message>
    <message>
        <source>none of its traces has a usable SAMPLE_INTERVAL</source>
        <translation>nessuna traccia ha un SAMPLE_INTERVAL utilizzabile</translation>
    </message>
    <message>
        <source>nothing is read of %1 since no trace block is where the pointer leads</source>
        <translation>%1: non si legge nulla, perché dove porta il puntatore non c&apos;è un blocco di traccia</translation>
    </message>
    <message>
        <source>the header of %1 has no usable SAMPLE_INTERVAL; that of another was taken</source>
        <translation>%1: l&apos;intestazione non ha un SAMPLE_INTERVAL utilizzabile; è stato preso quello di un&apos;altra traccia</translation>
    </message>
    <message>
        <source>the DESCALING_FACTOR of %1 is no usable number; those samples are as stored</source>
        <translation>%1: DESCALING_FACTOR non è un numero utilizzabile; i campioni sono come memorizzati</translation>
    </message>
    <message>
        <source>the header of %1 has no DESCALING_FACTOR, as others have; those samples are as stored</source>
        <translation>%1: l&apos;intestazione non ha DESCALING_FACTOR, che altre hanno; i campioni sono come memorizzati</translation>
    </message>
    <message>
        <source>the STACK of %1 is no usable number and was taken as 1</source>
        <translation>%1: STACK non è un numero utilizzabile ed è stato preso come 1</translation>
    </message>
    <message>
        <source>the DELAY of %1 is no finite number and was taken as 0</source>
        <translation>%1: DELAY non è un numero finito ed è stato preso come 0</translation>
    </message>
    <message>
        <source>the SKEW of %1 is up to %2 ms beyond whole samples; that part is not applied</source>
        <translation>%1: SKEW eccede fino a %2 ms i campioni interi; questa parte non viene applicata</translation>
    </message>
    <message>
        <source>%1 bytes after its traces, zeros or too few for another one, were not read</source>
        <translation>%1 byte dopo le tracce, zeri o troppo pochi per un&apos;altra traccia, non sono stati letti</translation>
    </message>
    <message>
        <source>the number of samples in %1 is not the %2 of the header of the file; the trace headers were believed</source>
        <translation>%1: il numero di campioni non è %2 come nell&apos;intestazione del file; valgono le intestazioni delle tracce</translation>
    </message>
    <message>
        <source>the header of %1 tells %2 samples, with which the traces do not fit the size of the file; %3 were taken</source>
        <translation>%1: l&apos;intestazione indica %2 campioni, con i quali le tracce non corrispondono alla dimensione del file; ne sono stati presi %3</translation>
    </message>
    <message>
        <source>the traces, %1 among them, do not fit the size of the file with the %2 samples that its header tells; %3 were taken</source>
        <translation>le tracce (fra cui %1) non corrispondono alla dimensione del file con i %2 campioni indicati dalla sua intestazione; ne sono stati presi %3</translation>
    </message>
    <message>
        <source>the header of %1 tells a sample interval of %2 microseconds; the %3 of the header of the file were taken</source>
        <translation>%1: l&apos;intestazione indica un intervallo di campionamento di %2 microsecondi; sono stati presi i %3 dell&apos;intestazione del file</translation>
    </message>
    <message>
        <source>the sample interval of %1 is not the %2 microseconds of the header of the file; the trace headers were believed</source>
        <translation>%1: l&apos;intervallo di campionamento non è di %2 microsecondi come nell&apos;intestazione del file; valgono le intestazioni delle tracce</translation>
    </message>
    <message>
        <source>a scalar of %1 for the coordinates of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>%2: il fattore di scala %1 per le coordinate non è previsto dallo standard; sono state prese come sono</translation>
    </message>
    <message>
        <source>a scalar of %1 for the elevations of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>%2: il fattore di scala %1 per le quote non è previsto dallo standard; sono state prese come sono</translation>
    </message>
    <message>
        <source>the coordinates of %1 are degrees or seconds of arc, no metres; x was taken as it stands, so load a geometry file</source>
        <translation>%1: le coordinate sono gradi o secondi d&apos;arco, non metri; x è stata presa com&apos;è, perciò caricare un file di geometria</translation>
    </message>
    <message>
        <source>its coordinates do not tell the geophones apart; they were placed by their offsets (bytes 37 to 40) from the shot</source>
        <translation>le coordinate non distinguono i geofoni; sono stati posti secondo la loro distanza dal tiro (byte da 37 a 40)</translation>
    </message>
    <message>
        <source>its headers tell no positions; shots and geophones all stand at %1, so load a geometry file</source>
        <translation>le intestazioni non indicano posizioni; tiri e geofoni sono tutti a %1, perciò caricare un file di geometria</translation>
    </message>
    <message>
        <source>its headers put the geophones of all traces at %1; load a geometry file if there was more than one</source>
        <translation>le intestazioni mettono i geofoni di tutte le tracce a %1; caricare un file di geometria se ce n&apos;era più d&apos;uno</translation>
    </message>
    <message>
        <source>shots stand up to %1 beside the line of geophones; x is taken as it stands</source>
        <translation>i tiri sono fino a %1 di lato alla linea dei geofoni; x viene presa com&apos;è</translation>
    </message>
    <message>
        <source>its coordinates do not lie along x; distances are those along the straight line through the geophones from the first geophone of this file, which stands at x %1, y %2; geophones stand up to %3 beside it, shots up to %4</source>
        <translation>le coordinate non sono lungo x; le distanze sono quelle lungo la retta dei geofoni a partire dal primo geofono di questo file, che è a x %1, y %2; i geofoni sono fino a %3 di lato alla retta, i tiri fino a %4</translation>
    </message>
    <message>
        <source>the elevations or shot depths of %1 lie beyond all ground; elevations of the file were taken as 0</source>
        <translation>%1: le quote o le profondità del tiro sono fuori da ogni terreno possibile; le quote del file sono state prese come 0</translation>
    </message>
    <message>
        <source>shots lie up to %1 below the ground; their elevations are those of the shots, not of the ground above them</source>
        <translation>i tiri sono fino a %1 sotto il suolo; le loro quote sono quelle dei tiri, non del suolo sopra di essi</translation>
    </message>
    <message>
        <source>the shot depth of %1 is negative and was taken as 0</source>
        <translation>%1: la profondità del tiro è negativa ed è stata presa come 0</translation>
    </message>
    <message>
        <source>its headers tell the elevations of geophones alone; shots were put at that of the geophone nearest to them</source>
        <translation>le intestazioni indicano le quote dei soli geofoni; i tiri sono stati messi a quella del geofono più vicino</translation>
    </message>
    <message>
        <source>the time scalar of %1 is none that the standard knows; the delay was taken as it stands</source>
        <translation>il fattore di scala dei tempi %1 non è previsto dallo standard; il ritardo è stato preso com&apos;è</translation>
    </message>
    <message>
        <source>all of its traces are marked as dead or auxiliary (bytes 29 and 30); the marks were not believed</source>
        <translation>tutte le tracce sono marcate come morte o ausiliarie (byte 29 e 30); le marcature sono state ignorate</translation>
    </message>
    <message>
        <source>zeros stand for the samples of %1, marked as dead or as dummies (bytes 29 and 30)</source>
        <translation>%1: zeri al posto dei campioni, marcati come morti o fittizi (byte 29 e 30)</translation>
    </message>
    <message>
        <source>the samples of %1 were left out, marked as auxiliary (bytes 29 and 30: time breaks, upholes, sweeps and the like)</source>
        <translation>%1: campioni tralasciati, marcati come ausiliari (byte 29 e 30: time break, uphole, sweep e simili)</translation>
    </message>
    <message>
        <source>its traces are not in the order of shots, or the headers do not tell which belong together; they were taken as one shot</source>
        <translation>le tracce non sono nell&apos;ordine dei tiri, o le intestazioni non dicono quali vanno insieme; sono state prese come un solo tiro</translation>
    </message>
    <message>
        <source>its extended textual headers do not end in the file; it was read as if there were none</source>
        <translation>le intestazioni testuali estese non finiscono nel file; è stato letto come se non ce ne fossero</translation>
    </message>
    <message>
        <source>its lengths are in feet (bytes 3255 and 3256) and were taken to metres</source>
        <translation>le lunghezze sono in piedi (byte 3255 e 3256) e sono state convertite in metri</translation>
    </message>
    <message>
        <source>its headers tell no number of samples</source>
        <translation>le intestazioni non indicano il numero di campioni</translation>
    </message>
    <message>
        <source>its samples have the data format code 4 (fixed point with gain), which is not read; have the recording software export another one</source>
        <translation>i campioni hanno il codice di formato dei dati 4 (virgola fissa con guadagno), che non si legge; esportarli in un altro formato con il programma di registrazione</translation>
    </message>
    <message>
        <source>its samples have the data format code %1, which the standard does not know; the file is damaged or no SEG-Y file</source>
        <translation>i campioni hanno il codice di formato dei dati %1, che lo standard non prevede; il file è danneggiato o non è un file SEG-Y</translation>
    </message>
    <message>
        <source>the place of the first trace in its header (bytes 3521 to 3528) is not in the file and was not believed</source>
        <translation>la posizione della prima traccia indicata dall&apos;intestazione (byte da 3521 a 3528) non è nel file ed è stata ignorata</translation>
    </message>
    <message>
        <source>it is too short for a SEG-Y file with a trace</source>
        <translation>è troppo corto per un file SEG-Y con una traccia</translation>
    </message>
    <message>
        <source>its bytes are swapped in pairs, which is not read</source>
        <translation>i byte sono scambiati a coppie, e così non si legge</translation>
    </message>
    <message>
        <source>field record (bytes 9 to 12)</source>
        <translation>record di campagna (byte da 9 a 12)</translation>
    </message>
    <message>
        <source>energy source point (bytes 17 to 20)</source>
        <translation>punto di energizzazione (byte da 17 a 20)</translation>
    </message>
    <message>
        <source>position of the source</source>
        <translation>posizione della sorgente</translation>
    </message>
    <message>
        <source>number of the trace in its record (bytes 13 to 16), which starts again</source>
        <translation>numero della traccia nella registrazione (byte da 13 a 16), che ricomincia</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>it is a text file, and no record of shots in %1; open a table of picks or positions as travel times or geometry</source>
        <translation>è un file di testo, non una registrazione di tiri (%1); aprire una tabella di primi arrivi o di posizioni come tempi di arrivo o geometria</translation>
    </message>
    <message>
        <source>by its content it is no file of %1</source>
        <translation>secondo il contenuto non è un file di nessuno di questi formati: %1</translation>
    </message>
    <message>
        <source>it holds %1 shots, told apart by %2</source>
        <translation>contiene %1 tiri, distinti secondo: %2</translation>
    </message>
    <message>
        <source>it is too short for an SU file with a trace</source>
        <translation>è troppo corto per un file SU con una traccia</translation>
    </message>
    <message>
        <source>its first trace tells no number of samples</source>
        <translation>la prima traccia non indica il numero di campioni</translation>
    </message>
    <message>
        <source>all %1 traces</source>
        <translation>tutte le %1 tracce</translation>
    </message>
    <message>
        <source>it cannot be read back: %1</source>
        <translation>non può essere riletto: %1</translation>
    </message>
    <message>
        <source>read back, string %1 will have another number of geophones</source>
        <translation>alla rilettura la stesa %1 avrà un altro numero di geofoni</translation>
    </message>
    <message>
        <source>the format has no place for the errors of the picks</source>
        <translation>il formato non ha posto per gli errori dei primi arrivi</translation>
    </message>
    <message>
        <source>it was read as %1; the reader of its suffix cannot read line %2</source>
        <translation>è stato letto come %1; il lettore della sua estensione non può leggere la riga %2</translation>
    </message>
    <message>
        <source>%1; as %2, line %3: %4</source>
        <translation>%1; come %2, riga %3: %4</translation>
    </message>
    <message>
        <source>shot %1: picks left out, as the shot is disabled or their traces are killed: %2</source>
        <translation>tiro %1: primi arrivi tralasciati, poiché il tiro è disattivato o le loro tracce sono escluse: %2</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 lines</source>
        <translation>il file finisce dopo %1 righe su %2</translation>
    </message>
    <message>
        <source>the file holds no measurement</source>
        <translation>il file non contiene misure</translation>
    </message>
    <message>
        <source>no columns &quot;s&quot;, &quot;g&quot; and &quot;t&quot; are named above the numbers</source>
        <translation>sopra i numeri non sono indicate le colonne &quot;s&quot;, &quot;g&quot; e &quot;t&quot;</translation>
    </message>
    <message>
        <source>the unit of the column %1 is none of time</source>
        <translation>l&apos;unità della colonna %1 non è un&apos;unità di tempo</translation>
    </message>
    <message>
        <source>the line holds %1</source>
        <translation>la riga contiene %1</translation>
    </message>
    <message>
        <source>the %1 %2 is none of the %3 positions</source>
        <translation>%1 %2: non è nessuna delle %3 posizioni</translation>
    </message>
    <message>
        <source>after the measurements neither the end nor a number of points of topography follows</source>
        <translation>dopo le misure non segue né la fine né il numero dei punti della topografia</translation>
    </message>
    <message>
        <source>the second of three coordinates was not read</source>
        <translation>la seconda di tre coordinate non è stata letta</translation>
    </message>
    <message>
        <source>the third coordinate is 0 everywhere; the second one was taken for the elevation</source>
        <translation>la terza coordinata è 0 ovunque; la seconda è stata presa come quota</translation>
    </message>
    <message>
        <source>the positions have elevations; the topography was not used</source>
        <translation>le posizioni hanno quote; la topografia non è stata usata</translation>
    </message>
    <message>
        <source>%1 positions are no shot and no geophone of any time; they were left out</source>
        <translation>%1 posizioni non sono né tiro né geofono di alcun tempo; sono state tralasciate</translation>
    </message>
    <message>
        <source>%1 times are marked as not valid and are no picks</source>
        <translation>%1 tempi sono marcati come non validi e non sono primi arrivi</translation>
    </message>
    <message>
        <source>%1 times are not above 0 and are no picks</source>
        <translation>%1 tempi non sono maggiori di 0 e non sono primi arrivi</translation>
    </message>
    <message>
        <source>%1 shots have no pick and are not in the file</source>
        <translation>%1 tiri non hanno primi arrivi e non sono nel file</translation>
    </message>
    <message>
        <source>%1 geophones have no pick; the file has their positions only</source>
        <translation>%1 geofoni non hanno primi arrivi; il file ne ha solo le posizioni</translation>
    </message>
    <message>
        <source>%1 shots lie at the place of another one; the file does not tell their picks apart</source>
        <translation>%1 tiri sono nello stesso punto di un altro; il file non distingue i loro primi arrivi</translation>
    </message>
    <message>
        <source>a trace without a sample interval cannot be shifted in time</source>
        <translation>una traccia senza intervallo di campionamento non può essere traslata nel tempo</translation>
    </message>
    <message>
        <source>a shift of %1 ms is longer than the record</source>
        <translation>una traslazione di %1 ms è più lunga della registrazione</translation>
    </message>
    <message>
        <source>a shot is stacked with other shots of the survey, each once</source>
        <translation>un tiro si somma con altri tiri del rilievo, ognuno una volta sola</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with it: its traces are of another number, sample interval or kind</source>
        <translation>il tiro %1 non può essere sommato con questo: le sue tracce sono diverse per numero, intervallo di campionamento o tipo</translation>
    </message>
    <message>
        <source>shot %1 has no traces to mend</source>
        <translation>il tiro %1 non ha tracce da correggere</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, and mends of %3</source>
        <translation>il tiro %1 ha %2 tracce, e correzioni di %3</translation>
    </message>
    <message>
        <source>a trace cannot be muted before %1 ms</source>
        <translation>una traccia non può essere azzerata prima di %1 ms</translation>
    </message>
    <message>
        <source>a record cannot be shifted by %1 ms</source>
        <translation>una registrazione non può essere traslata di %1 ms</translation>
    </message>
    <message>
        <source>shot %1: picks that have no place any more and are set aside: %2</source>
        <translation>tiro %1: primi arrivi che non hanno più posto e sono messi da parte: %2</translation>
    </message>
    <message>
        <source>shot %1: picks that were set aside and are back: %2</source>
        <translation>tiro %1: primi arrivi che erano messi da parte e sono tornati: %2</translation>
    </message>
    <message>
        <source>shot %1: filtered copies of traces that have changed are forgotten: %2; filter again if you need them</source>
        <translation>tiro %1: copie filtrate di tracce cambiate, non più conservate: %2; filtrare di nuovo se servono</translation>
    </message>
    <message>
        <source>shot %1: its shift is taken as %2 ms, whole samples</source>
        <translation>tiro %1: la traslazione è presa come %2 ms, in campioni interi</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with shot %2: they have other places, or geophones</source>
        <translation>il tiro %1 non può essere sommato con il tiro %2: hanno posizioni o geofoni diversi</translation>
    </message>
    <message>
        <source>traces killed: %1</source>
        <translation>tracce escluse: %1</translation>
    </message>
    <message>
        <source>traces with their polarity reversed: %1</source>
        <translation>tracce con polarità invertita: %1</translation>
    </message>
    <message>
        <source>traces muted before %1 ms: %2</source>
        <translation>tracce azzerate prima di %1 ms: %2</translation>
    </message>
    <message>
        <source>disabled: it has no picks and takes no part in anything</source>
        <translation>disattivato: non ha primi arrivi e non partecipa a nulla</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was late</source>
        <translation>traslazione di %1 ms: la registrazione era in ritardo</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was early</source>
        <translation>traslazione di %1 ms: la registrazione era in anticipo</translation>
    </message>
    <message>
        <source>order reversed: its channels ran against the geophones</source>
        <translation>ordine invertito: i canali andavano in senso contrario ai geofoni</translation>
    </message>
    <message>
        <source>stacked with shots: %1</source>
        <translation>somma con i tiri: %1</translation>
    </message>
    <message>
        <source>Mend recordings</source>
        <translation>Correggi le registrazioni</translation>
    </message>
    <message>
        <source>Shot %1 is disabled and takes no picks; Mend recording enables it.</source>
        <translation>Il tiro %1 è disattivato e non accetta primi arrivi; &quot;Correggi la registrazione&quot; lo riattiva.</translation>
    </message>
    <message>
        <source>Trace %1 is killed and takes no pick; Mend recording brings it back.</source>
        <translation>La traccia %1 è esclusa e non accetta primi arrivi; &quot;Correggi la registrazione&quot; la ripristina.</translation>
    </message>
    <message>
        <source>The check failed: %1</source>
        <translation>Il controllo non è riuscito: %1</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick lungo la linea</translation>
    </message>
    <message>
        <source>no trace has a place and a sample interval; give the line its geometry</source>
        <translation>nessuna traccia ha una posizione e un intervallo di campionamento; definire la geometria della linea</translation>
    </message>
    <message>
        <source>shot %1, %2: %3</source>
        <translation>tiro %1, %2: %3</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Completa lungo la linea</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Non ci sono ancora primi arrivi.</translation>
    </message>
    <message>
        <source>Only one shot has picks.</source>
        <translation>Un solo tiro ha primi arrivi.</translation>
    </message>
    <message>
        <source>No two shots have picks within half a geophone spacing of each other&apos;s place.</source>
        <translation>Non ci sono due tiri con primi arrivi entro mezzo passo dei geofoni dalla posizione l&apos;uno dell&apos;altro.</translation>
    </message>
    <message>
        <source>no error of a pick is known</source>
        <translation>non è noto l&apos;errore di alcun primo arrivo</translation>
    </message>
    <message>
        <source>it tells errors of picks that cannot be</source>
        <translation>indica errori dei primi arrivi che non sono possibili</translation>
    </message>
    <message>
        <source>the error of %1 picks is not known; the file has 0 for it</source>
        <translation>l&apos;errore di %1 primi arrivi non è noto; nel file vale 0</translation>
    </message>
    <message>
        <source>Picks at sample %1, before which AutoPick cannot look: %2, on %3. Where the wave came earlier, pick by hand or use AutoPick along the line.</source>
        <translation>Primi arrivi al campione %1, prima del quale l&apos;AutoPick non può cercare: %2 (%3). Dove l&apos;onda è arrivata prima, segnarli a mano o usare AutoPick lungo la linea.</translation>
    </message>
    <message>
        <source>the guide line has no times to follow</source>
        <translation>la linea guida non ha tempi da seguire</translation>
    </message>
    <message>
        <source>the reach of the guide line has to be at least 0 ms</source>
        <translation>la tolleranza della linea guida deve essere almeno 0 ms</translation>
    </message>
    <message>
        <source>The model to start from has not one valid velocity per cell of the grid.</source>
        <translation>Il modello di partenza non ha una velocità valida per ogni cella della griglia.</translation>
    </message>
    <message>
        <source>The fit needs one iteration at least and a positive trigger error.</source>
        <translation>L&apos;adattamento richiede almeno un&apos;iterazione e un errore del trigger positivo.</translation>
    </message>
    <message>
        <source>There is no pick that a section could be fitted to.</source>
        <translation>Non c&apos;è alcun primo arrivo a cui adattare una sezione.</translation>
    </message>
    <message>
        <source>The pick of shot %1, receiver %2 has no positive time and error.</source>
        <translation>Il primo arrivo del tiro %1, ricevitore %2 non ha tempo ed errore positivi.</translation>
    </message>
    <message>
        <source>The section fits the picks to their errors: chi-square %1.</source>
        <translation>La sezione si adatta ai primi arrivi entro i loro errori: chi quadrato %1.</translation>
    </message>
    <message>
        <source>target not reached: chi-square stays at %1. The errors of the picks may be stated too small, shots may be shifted in time, or cells too large.</source>
        <translation>obiettivo non raggiunto: il chi quadrato resta a %1. Gli errori dei primi arrivi potrebbero essere indicati troppo piccoli, alcuni tiri traslati nel tempo, o le celle troppo grandi.</translation>
    </message>
    <message>
        <source>The section fits the picks better than their errors demand: chi-square %1, however smooth it is. The errors may be stated too large.</source>
        <translation>La sezione si adatta ai primi arrivi meglio di quanto i loro errori richiedano: chi quadrato %1, per quanto sia smussata. Gli errori potrebbero essere indicati troppo grandi.</translation>
    </message>
    <message>
        <source>target not reached: chi-square is %1 after %2 iterations.</source>
        <translation>obiettivo non raggiunto: il chi quadrato è %1 dopo %2 iterazioni.</translation>
    </message>
    <message>
        <source>Stopped by the user after %1 iterations: chi-square %2.</source>
        <translation>Interrotta dall&apos;utente dopo %1 iterazioni: chi quadrato %2.</translation>
    </message>
    <message>
        <source>only %1 picks are of waves along the surface; it takes %2</source>
        <translation>i primi arrivi di onde lungo la superficie sono solo %1; ne servono %2</translation>
    </message>
    <message>
        <source>only %1 picks are surely of waves along refractor %2; it takes %3</source>
        <translation>i primi arrivi sicuramente di onde lungo il rifrattore %2 sono solo %1; ne servono %3</translation>
    </message>
    <message>
        <source>waves along the surface at %1 are slower than the bounds allow</source>
        <translation>le onde lungo la superficie, a %1, sono più lente di quanto i limiti permettano</translation>
    </message>
    <message>
        <source>the times of a refractor grow too little with offset for the bounds</source>
        <translation>i tempi di un rifrattore crescono troppo poco con la distanza per rispettare i limiti</translation>
    </message>
    <message>
        <source>the picks do not settle its delay times</source>
        <translation>i primi arrivi non bastano a determinare i suoi tempi di ritardo</translation>
    </message>
    <message>
        <source>the times over offset show no cross-over to a faster branch</source>
        <translation>i tempi in funzione della distanza non mostrano un punto di ginocchio verso un ramo più veloce</translation>
    </message>
    <message>
        <source>the velocity above the refractor grows by less than a tenth</source>
        <translation>la velocità sopra il rifrattore cresce di meno di un decimo</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradiente</translation>
    </message>
    <message>
        <source>Two layers</source>
        <translation>Due strati</translation>
    </message>
    <message>
        <source>Three layers</source>
        <translation>Tre strati</translation>
    </message>
    <message>
        <source>Overburden gradient</source>
        <translation>Copertura a gradiente</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>it takes times that grow with offset, at three offsets or more</source>
        <translation>servono tempi che crescono con la distanza, ad almeno tre distanze dal tiro</translation>
    </message>
    <message>
        <source>Set errors of picks</source>
        <translation>Imposta gli errori dei primi arrivi</translation>
    </message>
    <message>
        <source>Set error of pick</source>
        <translation>Imposta l&apos;errore del primo arrivo</translation>
    </message>
    <message>
        <source>How sure the section is could not be found out: %1</source>
        <translation>Non è stato possibile stabilire quanto sia sicura la sezione: %1</translation>
    </message>
    <message>
        <source>The models could not be made: %1</source>
        <translation>Non è stato possibile costruire i modelli: %1</translation>
    </message>
    <message>
        <source>Rename run</source>
        <translation>Rinomina inversione</translation>
    </message>
    <message>
        <source>Delete runs</source>
        <translation>Elimina inversioni</translation>
    </message>
    <message>
        <source>There is no resolution test to draw.</source>
        <translation>Non c&apos;è una prova di risoluzione da disegnare.</translation>
    </message>
    <message>
        <source>Difference of velocity</source>
        <translation>Differenza di velocità</translation>
    </message>
    <message>
        <source>its inversion runs but the last one are not known</source>
        <translation>le sue inversioni, tranne l&apos;ultima, non sono note</translation>
    </message>
    <message>
        <source>how sure the section is is not known</source>
        <translation>non è noto quanto sia sicura la sezione</translation>
    </message>
    <message>
        <source>it does not go with the section of the project, which another program may have changed</source>
        <translation>non corrisponde alla sezione del progetto, che un altro programma potrebbe aver cambiato</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities</source>
        <translation>%1 righe di %2 colonne non corrispondono a %3 velocità</translation>
    </message>
    <message>
        <source>a velocity is none that ground can have</source>
        <translation>una velocità non è possibile per un terreno</translation>
    </message>
    <message>
        <source>its grid cannot be</source>
        <translation>la sua griglia non è possibile</translation>
    </message>
    <message>
        <source>its settings or figures cannot be</source>
        <translation>le sue impostazioni o i suoi valori non sono possibili</translation>
    </message>
    <message>
        <source>its number is 0 or that of another</source>
        <translation>il suo numero è 0 o quello di un&apos;altra</translation>
    </message>
    <message>
        <source>there are more than can be kept</source>
        <translation>ce ne sono più di quante se ne possano conservare</translation>
    </message>
    <message>
        <source>inversion run %1 is left out: %2</source>
        <translation>l&apos;inversione %1 è stata tralasciata: %2</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Inversione %1</translation>
    </message>
    <message>
        <source>Certainty</source>
        <translation>Affidabilità</translation>
    </message>
    <message>
        <source>Use run</source>
        <translation>Usa inversione</translation>
    </message>
    <message>
        <source>Inversion runs</source>
        <translation>Inversioni eseguite</translation>
    </message>
    <message>
        <source>Take over time shifts</source>
        <translation>Applica le traslazioni temporali</translation>
    </message>
    <message>
        <source>None of the %1 members explains the picks to within their errors; how sure the section is stays unknown.</source>
        <translation>Nessuno dei %1 membri spiega i primi arrivi entro i loro errori; quanto sia sicura la sezione resta ignoto.</translation>
    </message>
    <message>
        <source>Default model</source>
        <translation>Modello predefinito</translation>
    </message>
    <message>
        <source>Present section</source>
        <translation>Sezione attuale</translation>
    </message>
    <message>
        <source>No model explains the picks to within their errors (chi-square up to %1), so that nothing can be said of how sure the section is. Their errors may be stated too small, or shots may be shifted in time.</source>
        <translation>Nessun modello spiega i primi arrivi entro i loro errori (chi quadrato fino a %1), perciò non si può dire quanto sia sicura la sezione. I loro errori potrebbero essere indicati troppo piccoli, o alcuni tiri traslati nel tempo.</translation>
    </message>
    <message>
        <source>There is no reference model &quot;%1&quot;.</source>
        <translation>Non c&apos;è un modello di riferimento &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The picks do not support the reference model. %1</source>
        <translation>I primi arrivi non sostengono il modello di riferimento. %1</translation>
    </message>
    <message>
        <source>The picks do not support the reference model &quot;%1&quot;.</source>
        <translation>I primi arrivi non sostengono il modello di riferimento &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The resolution test failed: %1</source>
        <translation>La prova di risoluzione non è riuscita: %1</translation>
    </message>
    <message>
        <source>The size of the pattern must be positive; %1 is not.</source>
        <translation>La dimensione del motivo deve essere positiva; %1 non lo è.</translation>
    </message>
    <message>
        <source>The pattern has %1, less than a cell of the grid, which has %2; choose a larger one.</source>
        <translation>Il motivo ha %1, meno di una cella della griglia, che ha %2; sceglierne uno più grande.</translation>
    </message>
    <message>
        <source>The strength of the pattern must be above 0 and below 100 %; %1 % is not.</source>
        <translation>L&apos;intensità del motivo deve essere sopra 0 e sotto 100 %; %1 % non lo è.</translation>
    </message>
    <message>
        <source>There are no picks to test the resolution with.</source>
        <translation>Non ci sono primi arrivi con cui provare la risoluzione.</translation>
    </message>
    <message>
        <source>The section to be disturbed has velocities that cannot be computed with.</source>
        <translation>La sezione da perturbare ha velocità con cui non si può calcolare.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>&quot;%1&quot; non si può usare: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be shown: %2</source>
        <translation>&quot;%1&quot; non si può mostrare: %2</translation>
    </message>
    <message>
        <source>There is no such run any more.</source>
        <translation>Questa inversione non c&apos;è più.</translation>
    </message>
    <message>
        <source>The surface or the ends of the line have changed since &quot;%1&quot;; its section can be compared with others, but is none of this line any more.</source>
        <translation>La superficie o gli estremi della linea sono cambiati dopo &quot;%1&quot;; la sua sezione si può confrontare con altre, ma non è più di questa linea.</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Incertezza della velocità</translation>
    </message>
    <message>
        <source>There are no picks yet: a resolution test takes their positions and errors.</source>
        <translation>Non ci sono ancora primi arrivi: una prova di risoluzione ne usa posizioni ed errori.</translation>
    </message>
    <message>
        <source>how sure the section is is not known; find it out first</source>
        <translation>quanto sia sicura la sezione non è noto; calcolare prima l&apos;affidabilità</translation>
    </message>
    <message>
        <source>there is no section whose times could be compared with the picks; run an inversion first</source>
        <translation>non c&apos;è una sezione di cui confrontare i tempi con i primi arrivi; eseguire prima un&apos;inversione</translation>
    </message>
    <message>
        <source>There is nothing to draw.</source>
        <translation>Non c&apos;è nulla da disegnare.</translation>
    </message>
    <message>
        <source>There are no rays of this section.</source>
        <translation>Non ci sono raggi di questa sezione.</translation>
    </message>
    <message>
        <source>it does not begin with a heading of the columns kind, name, x, depth, bottom, velocity, error, ...</source>
        <translation>non comincia con un&apos;intestazione delle colonne kind, name, x, depth, bottom, velocity, error, ...</translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation>non c&apos;è la colonna %1</translation>
    </message>
    <message>
        <source>column %1 is in another unit than m and m/s</source>
        <translation>la colonna %1 è in un&apos;unità diversa da m e m/s</translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation>ha troppe righe</translation>
    </message>
    <message>
        <source>%1 is none of borehole, depth, body</source>
        <translation>%1 non è né borehole, né depth, né body</translation>
    </message>
    <message>
        <source>%1 is no number for %2</source>
        <translation>%1 non è un numero valido per %2</translation>
    </message>
    <message>
        <source>there is no row below its heading</source>
        <translation>nessuna riga segue la sua intestazione</translation>
    </message>
    <message>
        <source>what was known of its ground is lost</source>
        <translation>ciò che era noto del suo terreno è perso</translation>
    </message>
    <message>
        <source>finding out how sure the section is begins anew instead of going on</source>
        <translation>il calcolo dell&apos;affidabilità ricomincia da capo invece di riprendere</translation>
    </message>
    <message>
        <source>it does not go with the certainty of the project</source>
        <translation>non corrisponde all&apos;affidabilità del progetto</translation>
    </message>
    <message>
        <source>what it counts cannot be</source>
        <translation>i suoi conteggi non sono possibili</translation>
    </message>
    <message>
        <source>its depth bands cannot be drawn so; there are none now</source>
        <translation>le sue fasce di profondità non si possono disegnare così; ora non ce ne sono</translation>
    </message>
    <message>
        <source>%1 is no position along the line</source>
        <translation>%1 non è una posizione lungo la linea</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>non ha un nome</translation>
    </message>
    <message>
        <source>it has no layer</source>
        <translation>non ha strati</translation>
    </message>
    <message>
        <source>the layer from %1 begins above the bottom of the one before, %2</source>
        <translation>lo strato da %1 comincia sopra il letto di quello precedente, %2</translation>
    </message>
    <message>
        <source>%1 is no error of a depth</source>
        <translation>%1 non è l&apos;errore di una profondità</translation>
    </message>
    <message>
        <source>refractors have the numbers 1 to %1</source>
        <translation>i rifrattori hanno i numeri da 1 a %1</translation>
    </message>
    <message>
        <source>the velocities above and below are the same, so nothing begins here</source>
        <translation>le velocità sopra e sotto sono uguali, quindi qui non comincia nulla</translation>
    </message>
    <message>
        <source>its outline needs three corners at least</source>
        <translation>il suo contorno richiede almeno tre vertici</translation>
    </message>
    <message>
        <source>more is known than can be held: %1 boreholes, depths and bodies at most, with %2 layers and corners</source>
        <translation>gli elementi noti sono troppi: al massimo %1 fra sondaggi, profondità e corpi, con %2 fra strati e vertici</translation>
    </message>
    <message>
        <source>borehole %1</source>
        <translation>sondaggio %1</translation>
    </message>
    <message>
        <source>known depth %1</source>
        <translation>profondità nota %1</translation>
    </message>
    <message>
        <source>body %1</source>
        <translation>corpo %1</translation>
    </message>
    <message>
        <source>there is no %1</source>
        <translation>manca %1</translation>
    </message>
    <message>
        <source>a %1 has no %2</source>
        <translation>un elemento %1 non ha %2</translation>
    </message>
    <message>
        <source>borehole %1 stands somewhere else in the rows above</source>
        <translation>il sondaggio %1 sta altrove nelle righe sopra</translation>
    </message>
    <message>
        <source>the number of a refractor is a whole one</source>
        <translation>il numero di un rifrattore deve essere intero</translation>
    </message>
    <message>
        <source>body %1 has another velocity in the rows above</source>
        <translation>il corpo %1 ha un&apos;altra velocità nelle righe sopra</translation>
    </message>
    <message>
        <source>fewer than six picks of it</source>
        <translation>ha meno di sei primi arrivi</translation>
    </message>
    <message>
        <source>picks of it from shots on one side only, which cannot tell a dip from a velocity</source>
        <translation>ha primi arrivi di tiri da un lato solo, che non distinguono una pendenza da una velocità</translation>
    </message>
    <message>
        <source>no shot has three picks of it on one side, with waves the other way beside them, that are faster than the first layer</source>
        <translation>nessun tiro ha tre suoi primi arrivi da un lato, accompagnati da onde in verso opposto, che siano più veloci del primo strato</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where it comes out deeper than the line is long.</source>
        <translation>Strato %1: nessuna profondità a %2 ricevitori, dove risulta maggiore della lunghezza della linea.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where the ground above it comes out to cost no time.</source>
        <translation>Strato %1: nessuna profondità a %2 ricevitori, dove il terreno sovrastante risulta attraversato in tempo nullo.</translation>
    </message>
    <message>
        <source>Layer %1: %2.</source>
        <translation>Strato %1: %2.</translation>
    </message>
    <message>
        <source>The first layer has no velocity, so there are no depths.</source>
        <translation>Il primo strato non ha velocità, quindi non ci sono profondità.</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Layer %1, %2: nothing</source>
        <translation>Strato %1, %2: nulla</translation>
    </message>
    <message>
        <source>Layer %1: methods disagree beyond the errors of the picks in depth at %2 of %3 geophones, in velocity at %4</source>
        <translation>Strato %1: i metodi discordano oltre gli errori dei primi arrivi, nella profondità a %2 geofoni su %3, nella velocità a %4</translation>
    </message>
    <message>
        <source>no two shots have picks of it at five geophones between them</source>
        <translation>nessuna coppia di tiri ne ha primi arrivi a cinque geofoni compresi fra i due</translation>
    </message>
    <message>
        <source>no second layer can be fitted</source>
        <translation>non è possibile adattare un secondo strato</translation>
    </message>
    <message>
        <source>a second layer gains %1 ms</source>
        <translation>un secondo strato migliora di %1 ms</translation>
    </message>
    <message>
        <source>no third layer can be fitted</source>
        <translation>non è possibile adattare un terzo strato</translation>
    </message>
    <message>
        <source>a third layer gains %1 ms</source>
        <translation>un terzo strato migliora di %1 ms</translation>
    </message>
    <message>
        <source>1 layer, misfit %1 ms</source>
        <translation>1 strato, scarto %1 ms</translation>
    </message>
    <message>
        <source>%1 layers, misfit %2 ms</source>
        <translation>%1 strati, scarto %2 ms</translation>
    </message>
    <message>
        <source>no layers are proposed: there are too few picks to fit any</source>
        <translation>nessuno strato proposto: i primi arrivi sono troppo pochi per adattarne</translation>
    </message>
    <message>
        <source>%1; without layers, by a steady gradient, %2 ms</source>
        <translation>%1; senza strati, con un gradiente costante, %2 ms</translation>
    </message>
    <message>
        <source>three layers fit better, but no shot at each end of the line has picks of the layer in between: two layers are proposed</source>
        <translation>tre strati si adattano meglio, ma non c&apos;è un tiro a ogni estremo della linea con primi arrivi dello strato intermedio: si propongono due strati</translation>
    </message>
    <message>
        <source>%1 picks fit no layer and are given to none (shot/trace): %2</source>
        <translation>%1 primi arrivi non si adattano ad alcuno strato e non sono assegnati (tiro/traccia): %2</translation>
    </message>
    <message>
        <source>Known ground</source>
        <translation>Terreno noto</translation>
    </message>
    <message>
        <source>with %1 ms less, the pick of receiver %2 would come before the shot</source>
        <translation>con %1 ms in meno, il primo arrivo del ricevitore %2 precederebbe il tiro</translation>
    </message>
    <message>
        <source>%1 The model that it started from was too far from the picks, chi-square %2, to hold the section to its sharp steps: they were smoothed first.</source>
        <translation>%1 Il modello da cui è partita era troppo lontano dai primi arrivi, chi quadrato %2, per vincolare la sezione ai suoi salti netti: prima sono stati smussati.</translation>
    </message>
    <message>
        <source>%1 holds no cell of the grid: it is too small, or beyond it.</source>
        <translation>%1 non contiene celle della griglia: è troppo piccolo, o ne è fuori.</translation>
    </message>
    <message>
        <source>%1 at %2 stands beyond the grid.</source>
        <translation>%1 a %2 sta fuori dalla griglia.</translation>
    </message>
    <message>
        <source>%1 reaches %2 down, below the grid; what is below %3 does not count.</source>
        <translation>%1 arriva a %2 di profondità, sotto la griglia; ciò che sta sotto %3 non conta.</translation>
    </message>
    <message>
        <source>%1: no cell is mostly of this layer; it counts by its share of cells, or lies within a fixed body.</source>
        <translation>%1: nessuna cella è in maggior parte di questo strato; conta per la sua quota delle celle, o sta dentro un corpo fisso.</translation>
    </message>
    <message>
        <source>%1 (%2 along the line, %3 deep) is beyond the grid, or nearer to its edge than its error or a cell.</source>
        <translation>%1 (a %2 lungo la linea, profonda %3) è fuori dalla griglia, o più vicina al suo bordo del proprio errore o di una cella.</translation>
    </message>
    <message>
        <source>%1, %2 at %3</source>
        <translation>%1, %2 a %3</translation>
    </message>
    <message>
        <source>%1, %2 above</source>
        <translation>%1, %2 sopra</translation>
    </message>
    <message>
        <source>%1, %2 below</source>
        <translation>%1, %2 sotto</translation>
    </message>
    <message>
        <source>Layered interpretation</source>
        <translation>Interpretazione a strati</translation>
    </message>
    <message>
        <source>Section of another project</source>
        <translation>Sezione di un altro progetto</translation>
    </message>
    <message>
        <source>There is no layered interpretation to start from. Build one first.</source>
        <translation>Non c&apos;è un&apos;interpretazione a strati da cui partire. Crearne prima una.</translation>
    </message>
    <message>
        <source>Mean residual of the rays</source>
        <translation>Residuo medio dei raggi</translation>
    </message>
    <message>
        <source>Mean residual over pick error</source>
        <translation>Residuo medio rapportato all&apos;errore del primo arrivo</translation>
    </message>
    <message>
        <source>Start from layers</source>
        <translation>Parti dagli strati</translation>
    </message>
    <message>
        <source>A layer has a velocity of %1, which is no velocity of the ground.</source>
        <translation>Uno strato ha una velocità di %1, che nessun terreno ha.</translation>
    </message>
    <message>
        <source>The layer that begins at %1 lies over another; order the layers by depth, without overlap.</source>
        <translation>Lo strato che comincia a %1 si sovrappone a un altro; ordinare gli strati per profondità, senza sovrapposizioni.</translation>
    </message>
    <message>
        <source>The section fits all but one of the %1 picks to their errors: chi-square %2.</source>
        <translation>La sezione si adatta ai primi arrivi entro i loro errori, tranne uno su %1: chi quadrato %2.</translation>
    </message>
    <message>
        <source>The section fits all but %1 of the %2 picks to their errors: chi-square %3.</source>
        <translation>La sezione si adatta ai primi arrivi entro i loro errori, tranne %1 su %2: chi quadrato %3.</translation>
    </message>
    <message>
        <source>target not reached: %1 of the %2 picks are off by more than five of their errors, even if the others leave a chi-square of %3. Look at them first: shots may be shifted in time, or picks lie on another wave.</source>
        <translation>obiettivo non raggiunto: %1 primi arrivi su %2 si scostano di più di cinque volte il loro errore, anche se gli altri lasciano un chi quadrato di %3. Guardarli per primi: alcuni tiri potrebbero essere traslati nel tempo, o alcuni arrivi segnati su un&apos;altra onda.</translation>
    </message>
    <message>
        <source>%1 The model that it started from fits them better than that, chi-square %2, and was smoothed as far as the errors allow. State errors %3 times as large to keep it sharp.</source>
        <translation>%1 Il modello da cui è partita vi si adatta meglio, chi quadrato %2, ed è stato smussato fin dove gli errori consentono. Per mantenerlo netto, indicare errori %3 volte più grandi.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems late by %3 ms: run again with shifts.</source>
        <translation>%1 Il tiro %2 sembra in ritardo di %3 ms: ripetere l&apos;inversione con le traslazioni.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems early by %3 ms: run again with shifts.</source>
        <translation>%1 Il tiro %2 sembra in anticipo di %3 ms: ripetere l&apos;inversione con le traslazioni.</translation>
    </message>
    <message>
        <source>%1: chi-square %2, suspects %3</source>
        <translation>%1: chi quadrato %2, sospetti %3</translation>
    </message>
    <message>
        <source>%1 The fit from the model &quot;%2&quot; is kept, as those from others come less near to the picks: %3.</source>
        <translation>%1 Resta l&apos;adattamento partito dal modello &quot;%2&quot;, poiché quelli partiti da altri si avvicinano meno ai primi arrivi: %3.</translation>
    </message>
    <message>
        <source>Layer %1 has no depth at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>Lo strato %1 non ha profondità a %2 ricevitori su %3; è presa dai ricevitori vicini.</translation>
    </message>
    <message>
        <source>Layer %1 has no velocity at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>Lo strato %1 non ha velocità a %2 ricevitori su %3; è presa dai ricevitori vicini.</translation>
    </message>
    <message>
        <source>Layer %1 has a negative depth at %2 of %3 receivers; it begins at the surface there.</source>
        <translation>Lo strato %1 ha profondità negativa a %2 ricevitori su %3; lì comincia in superficie.</translation>
    </message>
    <message>
        <source>There is no layered profile; build the profiles of the refraction first.</source>
        <translation>Non c&apos;è alcun profilo a strati; costruire prima i profili della rifrazione.</translation>
    </message>
    <message>
        <source>The first layer of the layered profile has no velocity. Mark direct waves as layer 1 and build the profiles again.</source>
        <translation>Il primo strato del profilo a strati non ha velocità. Assegnare le onde dirette allo strato 1 e costruire di nuovo i profili.</translation>
    </message>
    <message>
        <source>The first refractor of the layered profile has no depth or no velocity at any receiver.</source>
        <translation>Il primo rifrattore del profilo a strati non ha profondità o velocità ad alcun ricevitore.</translation>
    </message>
    <message>
        <source>Layer 3 has no depth or no velocity at any receiver; the ground ends with layer 2.</source>
        <translation>Lo strato 3 non ha profondità o velocità ad alcun ricevitore; il terreno termina con lo strato 2.</translation>
    </message>
    <message>
        <source>Layer 3 begins above layer 2 at %1 of %2 receivers; layer 2 is left out there.</source>
        <translation>Lo strato 3 comincia sopra lo strato 2 a %1 ricevitori su %2; lì lo strato 2 è tralasciato.</translation>
    </message>
    <message>
        <source>The grid ends above layer %1 in %2 of %3 columns.</source>
        <translation>La griglia finisce sopra lo strato %1 in %2 colonne su %3.</translation>
    </message>
    <message>
        <source>The layered profile has no depths of layer %1.</source>
        <translation>Il profilo a strati non ha profondità dello strato %1.</translation>
    </message>
    <message>
        <source>Layer %1, layered profile</source>
        <translation>Strato %1, profilo a strati</translation>
    </message>
    <message>
        <source>Section, steepest gradient</source>
        <translation>Sezione, gradiente massimo</translation>
    </message>
    <message>
        <source>Section, %1</source>
        <translation>Sezione, %1</translation>
    </message>
    <message>
        <source>The methods could not be compared: %1</source>
        <translation>Non è stato possibile confrontare i metodi: %1</translation>
    </message>
    <message>
        <source>P and S have no velocity in common to draw.</source>
        <translation>P e S non hanno alcuna velocità comune da disegnare.</translation>
    </message>
    <message>
        <source>No method gives a depth.</source>
        <translation>Nessun metodo dà una profondità.</translation>
    </message>
    <message>
        <source>this is no file with the members of an ensemble</source>
        <translation>non è un file con i membri di un insieme di modelli</translation>
    </message>
    <message>
        <source>its members cannot be read: the file is damaged</source>
        <translation>i suoi membri non si possono leggere: il file è danneggiato</translation>
    </message>
    <message>
        <source>its members are those of another ensemble: another survey or section, other settings or another seed</source>
        <translation>i suoi membri sono di un altro insieme di modelli: un altro rilievo o un&apos;altra sezione, altre impostazioni o un altro seme</translation>
    </message>
    <message>
        <source>its member %1 is done already, others are not; only sets of members that share none can be put together</source>
        <translation>il suo membro %1 è già completato, altri no; si possono riunire solo gruppi che non hanno membri in comune</translation>
    </message>
    <message>
        <source>its members cannot be those of this ensemble</source>
        <translation>i suoi membri non possono essere di questo insieme di modelli</translation>
    </message>
    <message>
        <source>the first layer of its layered profile has one velocity</source>
        <translation>il primo strato del suo profilo a strati ha una sola velocità</translation>
    </message>
    <message>
        <source>such a first layer cannot be</source>
        <translation>un primo strato simile non è possibile</translation>
    </message>
    <message>
        <source>it belongs to another layered profile</source>
        <translation>appartiene a un altro profilo a strati</translation>
    </message>
    <message>
        <source>Layer %1, medians of %2 places: %3; %4</source>
        <translation>Strato %1, mediane di %2 punti: %3; %4</translation>
    </message>
    <message>
        <source>density %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</source>
        <translation>densità %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places the depths of its top by P and by S differ by more than %4 % (median there %5 by P, %6 by S). P waves often see the water table, which S waves do not: the same number may be different ground.</source>
        <translation>Strato %1: in %2 punti su %3 le profondità del suo tetto da P e da S differiscono di oltre il %4 % (mediana in quei punti %5 da P, %6 da S). Le onde P vedono spesso la falda, le onde S no: lo stesso numero può indicare terreni diversi.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places a velocity is not known.</source>
        <translation>Strato %1: in %2 punti su %3 una velocità non è nota.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there. Are P and S exchanged, or is S a P wave?</source>
        <translation>Strato %1: in %2 punti su %3 S non è più lenta di P, come in nessun terreno: lì mancano coefficiente di Poisson, E0 e K. P e S sono scambiate, o S è un&apos;onda P?</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not: the velocities are of different ground, or wrong.</source>
        <translation>Strato %1: in %2 punti su %3 Vp/Vs è sotto 1,41 e il coefficiente di Poisson negativo, come in nessun terreno o roccia: le velocità sono di terreni diversi, o sbagliate.</translation>
    </message>
    <message>
        <source>The surfaces of P and S lie up to %1 apart, at %2: they may not be the same line, or not begin at the same place.</source>
        <translation>Le superfici di P e di S distano fra loro fino a %1, a %2 lungo la linea: forse non sono la stessa linea, o non cominciano nello stesso punto.</translation>
    </message>
    <message>
        <source>By their recordings the project of P is one of S waves, and that of S is not: they may be exchanged.</source>
        <translation>Secondo le registrazioni il progetto di P è di onde S, e quello di S no: forse sono scambiati.</translation>
    </message>
    <message>
        <source>The recordings of both projects are of S waves.</source>
        <translation>Le registrazioni di entrambi i progetti sono di onde S.</translation>
    </message>
    <message>
        <source>The places of P and S on the map are given in different systems (EPSG:%1 and EPSG:%2) and were not compared.</source>
        <translation>Le posizioni di P e S sulla mappa sono date in sistemi diversi (EPSG:%1 e EPSG:%2) e non sono state confrontate.</translation>
    </message>
    <message>
        <source>The same distances of P and S lie up to %1 apart on the map: they may not be the same line, or not begin at the same place.</source>
        <translation>Alle stesse distanze, P e S si trovano fino a %1 l&apos;una dall&apos;altra sulla mappa: forse non sono la stessa linea, o non cominciano nello stesso punto.</translation>
    </message>
    <message>
        <source>The project of P has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>Il progetto di P non ha un profilo a strati: costruirne prima i profili nella finestra della rifrazione.</translation>
    </message>
    <message>
        <source>The project of S has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>Il progetto di S non ha un profilo a strati: costruirne prima i profili nella finestra della rifrazione.</translation>
    </message>
    <message>
        <source>P and S have no place in common: P was interpreted from %1, S from %2 along the line.</source>
        <translation>P e S non hanno alcun punto in comune: lungo la linea P è stata interpretata da %1, S da %2.</translation>
    </message>
    <message>
        <source>Layer %1: P and S have no place in common.</source>
        <translation>Strato %1: P e S non hanno alcun punto in comune.</translation>
    </message>
    <message>
        <source>P has %1 layers and S has %2; what lies below layer %3 is known of one wave only and left out.</source>
        <translation>P ha %1 strati e S ne ha %2; ciò che sta sotto lo strato %3 è noto per una sola onda e viene tralasciato.</translation>
    </message>
    <message>
        <source>the curves of layer %1 follow the lines of shots %2 and %3, which give %4 and %5 ms for the way between these shots</source>
        <translation>le dromocrone dello strato %1 seguono le rette dei tiri %2 e %3, che danno %4 e %5 ms per il percorso fra questi tiri</translation>
    </message>
    <message>
        <source>the delays of the waves change so fast along the line that no boundary has them all</source>
        <translation>i ritardi delle onde cambiano così in fretta lungo la linea che nessuna interfaccia li spiega tutti</translation>
    </message>
    <message>
        <source>reciprocal</source>
        <translation>reciproco</translation>
    </message>
    <message>
        <source>delay times</source>
        <translation>tempi di ritardo</translation>
    </message>
    <message>
        <source>intercept times</source>
        <translation>tempi d&apos;intercetta</translation>
    </message>
    <message>
        <source>plus-minus</source>
        <translation>plus-minus</translation>
    </message>
    <message>
        <source>to the right of shot %1</source>
        <translation>a destra del tiro %1</translation>
    </message>
    <message>
        <source>to the right of shots %1</source>
        <translation>a destra dei tiri %1</translation>
    </message>
    <message>
        <source>to the left of shot %1</source>
        <translation>a sinistra del tiro %1</translation>
    </message>
    <message>
        <source>to the left of shots %1</source>
        <translation>a sinistra dei tiri %1</translation>
    </message>
    <message>
        <source>layer %1 rests on fewer than four picks (their number in brackets) %2</source>
        <translation>lo strato %1 poggia su meno di quattro primi arrivi (il numero fra parentesi) %2</translation>
    </message>
    <message>
        <source>1 pick fits no layer and is given to none (shot/trace): %1</source>
        <translation>1 primo arrivo non si adatta ad alcuno strato e non è assegnato (tiro/traccia): %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robusta</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>non robusta</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>a blocchi</translation>
    </message>
    <message>
        <source>smooth</source>
        <translation>smussata</translation>
    </message>
    <message>
        <source>shots shifted</source>
        <translation>tiri traslati</translation>
    </message>
    <message>
        <source>no shot shifted</source>
        <translation>nessun tiro traslato</translation>
    </message>
    <message>
        <source>%1 of the %2 cells of P lie where the section of S shows none.</source>
        <translation>%1 celle di P su %2 sono dove la sezione di S non ne mostra.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there.</source>
        <translation>In %1 celle su %2 S non è più lenta di P, come in nessun terreno: lì mancano coefficiente di Poisson, E0 e K.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not.</source>
        <translation>In %1 celle su %2 Vp/Vs è sotto 1,41 e il coefficiente di Poisson negativo, come in nessun terreno o roccia.</translation>
    </message>
    <message>
        <source>The surfaces of the sections of P and S lie up to %1 apart, at %2; cells are matched by their depths below them.</source>
        <translation>Le superfici delle sezioni di P e S distano fra loro fino a %1, a %2 lungo la linea; le celle si abbinano secondo la profondità da esse.</translation>
    </message>
    <message>
        <source>A section has no layers: all of it has the first density.</source>
        <translation>Una sezione non ha strati: le si dà ovunque la prima densità.</translation>
    </message>
    <message>
        <source>The project of P has no section.</source>
        <translation>Il progetto di P non ha una sezione.</translation>
    </message>
    <message>
        <source>The project of S has no section.</source>
        <translation>Il progetto di S non ha una sezione.</translation>
    </message>
    <message>
        <source>The sections of P and S have no cell in common.</source>
        <translation>Le sezioni di P e S non hanno celle in comune.</translation>
    </message>
    <message>
        <source>a scratch file of samples cannot be written to</source>
        <translation>non è possibile scrivere in un file temporaneo dei campioni</translation>
    </message>
    <message>
        <source>Samples are kept in memory: %1</source>
        <translation>I campioni restano in memoria: %1</translation>
    </message>
    <message>
        <source>no folder for scratch files of samples can be written to</source>
        <translation>nessuna cartella per i file temporanei dei campioni è scrivibile</translation>
    </message>
    <message>
        <source>no scratch file of samples can be made in %1: %2</source>
        <translation>non è possibile creare un file temporaneo dei campioni in %1: %2</translation>
    </message>
    <message>
        <source>No report format is known for %1: let the file name end with .pdf, .odt or .html.</source>
        <translation>Nessun formato di relazione noto per %1: il nome del file deve finire con .pdf, .odt o .html.</translation>
    </message>
    <message>
        <source>This Talvesk cannot write web pages: it was built without the chart library. Run scripts/bootstrap and build it again, or write a PDF or ODT report.</source>
        <translation>Questo Talvesk non può scrivere pagine web: è stato compilato senza la libreria dei grafici. Eseguire scripts/bootstrap e compilarlo di nuovo, oppure scrivere una relazione PDF o ODT.</translation>
    </message>
    <message>
        <source>P: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>P: il suo profilo è stato adattato a tutti gli arrivi e non riceve errori. Uno ottenuto con il metodo reciproco sì.</translation>
    </message>
    <message>
        <source>S: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>S: il suo profilo è stato adattato a tutti gli arrivi e non riceve errori. Uno ottenuto con il metodo reciproco sì.</translation>
    </message>
    <message>
        <source>The velocity of layer 1 changes along the line and with depth in this profile; here it is its mean, %1, everywhere.</source>
        <translation>In questo profilo la velocità dello strato 1 cambia lungo la linea e con la profondità; qui è ovunque la sua media, %1.</translation>
    </message>
    <message>
        <source>the first distance must be a number, and the EPSG code a whole number</source>
        <translation>la prima distanza deve essere un numero, e il codice EPSG un numero intero</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossibile scrivere %1</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Filtro notch</translation>
    </message>
    <message>
        <source>Velocity filter</source>
        <translation>Filtro di velocità</translation>
    </message>
    <message>
        <source>the line has no place on the map; its geographic coordinates are missing</source>
        <translation>la linea non ha un posto sulla mappa; mancano le sue coordinate geografiche</translation>
    </message>
    <message>
        <source>two shot files of the survey would both become %1</source>
        <translation>due file dei tiri del rilievo diventerebbero entrambi %1</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey; choose another folder</source>
        <translation>%1 è uno dei file dei tiri di questo rilievo; scegliere un&apos;altra cartella</translation>
    </message>
    <message>
        <source>it holds several shots, whose traces may be mixed</source>
        <translation>contiene più tiri, le cui tracce potrebbero essere mescolate</translation>
    </message>
    <message>
        <source>its traces are not those of the survey any more</source>
        <translation>le sue tracce non sono più quelle del rilievo</translation>
    </message>
    <message>
        <source>miniSEED has no headers for picks</source>
        <translation>miniSEED non ha intestazioni per i primi arrivi</translation>
    </message>
    <message>
        <source>the survey has no shot files</source>
        <translation>il rilievo non ha file dei tiri</translation>
    </message>
    <message>
        <source>%1 was left out: %2</source>
        <translation>%1 è stato tralasciato: %2</translation>
    </message>
    <message>
        <source>%1 has no picks</source>
        <translation>%1 non ha primi arrivi</translation>
    </message>
    <message>
        <source>%1 shots have no shot file of their own and were left out</source>
        <translation>%1 tiri non hanno un proprio file e sono stati tralasciati</translation>
    </message>
    <message>
        <source>bytes 233 to 236 of %1 trace headers held something else before</source>
        <translation>i byte da 233 a 236 di %1 intestazioni di traccia contenevano prima qualcos&apos;altro</translation>
    </message>
    <message>
        <source>the header of trace %1 cannot be followed</source>
        <translation>l&apos;intestazione della traccia %1 non si può seguire</translation>
    </message>
    <message>
        <source>it has %1 traces, the survey %2 of them</source>
        <translation>ha %1 tracce, il rilievo ne ha %2</translation>
    </message>
    <message>
        <source>it would grow too large</source>
        <translation>diventerebbe troppo grande</translation>
    </message>
    <message>
        <source>the header of trace %1 has no room for a pick</source>
        <translation>l&apos;intestazione della traccia %1 non ha spazio per un primo arrivo</translation>
    </message>
    <message>
        <source>it is SEG-Y of revision 2, whose trace headers have no bytes to spare</source>
        <translation>è un SEG-Y di revisione 2, le cui intestazioni di traccia non hanno byte liberi</translation>
    </message>
    <message>
        <source>it is not known by what the filtered copies of its traces were made</source>
        <translation>non si sa con che cosa sono state fatte le copie filtrate delle sue tracce</translation>
    </message>
    <message>
        <source>marked isolines and what was drawn on its section are lost</source>
        <translation>le isolinee evidenziate e ciò che era disegnato sulla sua sezione sono andati perduti</translation>
    </message>
    <message>
        <source>the line lies straight on the map between its ends</source>
        <translation>la linea è diritta sulla mappa fra i suoi estremi</translation>
    </message>
    <message>
        <source>its vertices are no course of a line</source>
        <translation>i suoi vertici non sono il tracciato di una linea</translation>
    </message>
    <message>
        <source>it belongs to another map position</source>
        <translation>appartiene a un&apos;altra posizione sulla mappa</translation>
    </message>
    <message>
        <source>it tells of traces that are not there, or of filters that are not known</source>
        <translation>descrive tracce che non ci sono, o filtri che non sono noti</translation>
    </message>
    <message>
        <source>%1 is no style file: %2</source>
        <translation>%1 non è un file di stile: %2</translation>
    </message>
    <message>
        <source>a newer version of Talvesk has written it</source>
        <translation>è stato scritto da una versione più recente di Talvesk</translation>
    </message>
    <message>
        <source>the place lies outside of %1</source>
        <translation>il punto sta fuori da %1</translation>
    </message>
    <message>
        <source>it is not known which columns hold easting and northing, or longitude and latitude</source>
        <translation>non si sa quali colonne contengano est e nord, o longitudine e latitudine</translation>
    </message>
    <message>
        <source>%1 has more than %2 rows, which is no table of a line</source>
        <translation>%1 ha più di %2 righe: non è la tabella di una linea</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>il suo testo è troppo lungo</translation>
    </message>
    <message>
        <source>its colour is none</source>
        <translation>il suo colore non è un colore</translation>
    </message>
    <message>
        <source>a line is %1 to %2 points wide</source>
        <translation>una linea è spessa da %1 a %2 punti</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Poligono</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sabbia</translation>
    </message>
    <message>
        <source>Gravel</source>
        <translation>Ghiaia</translation>
    </message>
    <message>
        <source>Clay</source>
        <translation>Argilla</translation>
    </message>
    <message>
        <source>Silt</source>
        <translation>Limo</translation>
    </message>
    <message>
        <source>Rock</source>
        <translation>Roccia</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Riporto</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Acqua</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>it is neither text nor line nor polygon</source>
        <translation>non è né testo, né linea, né poligono</translation>
    </message>
    <message>
        <source>its pattern is none</source>
        <translation>il suo retino non è un retino</translation>
    </message>
    <message>
        <source>it says nothing</source>
        <translation>non dice nulla</translation>
    </message>
    <message>
        <source>a text stands at one point, not at %1</source>
        <translation>un testo sta in un solo punto, non in %1</translation>
    </message>
    <message>
        <source>it has %1 points and needs %2 at least</source>
        <translation>ha %1 punti e ne servono almeno %2</translation>
    </message>
    <message>
        <source>%1, %2 is no place of a section</source>
        <translation>%1, %2 non è un punto di una sezione</translation>
    </message>
    <message>
        <source>a text is %1 to %2 points high</source>
        <translation>un testo è alto da %1 a %2 punti</translation>
    </message>
    <message>
        <source>a section holds %1 marked isolines and %2 annotations with %3 points at most</source>
        <translation>una sezione contiene al massimo %1 isolinee evidenziate e %2 annotazioni con %3 punti</translation>
    </message>
    <message>
        <source>marked isoline %1</source>
        <translation>isolinea evidenziata %1</translation>
    </message>
    <message>
        <source>annotation %1</source>
        <translation>annotazione %1</translation>
    </message>
    <message>
        <source>band-pass from %1 Hz, order %2, to %3 Hz, order %4</source>
        <translation>passa banda da %1 Hz, ordine %2, a %3 Hz, ordine %4</translation>
    </message>
    <message>
        <source>low-pass %1 Hz, order %2</source>
        <translation>passa basso %1 Hz, ordine %2</translation>
    </message>
    <message>
        <source>high-pass %1 Hz, order %2</source>
        <translation>passa alto %1 Hz, ordine %2</translation>
    </message>
    <message>
        <source>%1 and more</source>
        <translation>%1 e oltre</translation>
    </message>
    <message>
        <source>forth along the line</source>
        <translation>in avanti lungo la linea</translation>
    </message>
    <message>
        <source>back along the line</source>
        <translation>all&apos;indietro lungo la linea</translation>
    </message>
    <message>
        <source>both ways</source>
        <translation>nei due versi</translation>
    </message>
    <message>
        <source>velocities of %1, %2, pass (taper %3 %)</source>
        <translation>passano velocità di %1, %2 (taper %3 %)</translation>
    </message>
    <message>
        <source>velocities of %1, %2, are rejected (taper %3 %)</source>
        <translation>sono eliminate velocità di %1, %2 (taper %3 %)</translation>
    </message>
    <message>
        <source>notches at %1 Hz and multiples, %2 in all, quality %3</source>
        <translation>notch a %1 Hz e multipli, %2 in tutto, qualità %3</translation>
    </message>
    <message>
        <source>two geophones at least need easting and northing</source>
        <translation>almeno due geofoni devono avere est e nord</translation>
    </message>
    <message>
        <source>the first and the last geophone are at one place on the map, which gives the line no direction</source>
        <translation>il primo e l&apos;ultimo geofono sono nello stesso punto della mappa, il che non dà alcuna direzione alla linea</translation>
    </message>
    <message>
        <source>a trace cannot have a gain of %1, only one from %2 to %3</source>
        <translation>una traccia non può avere un guadagno di %1, ma solo da %2 a %3</translation>
    </message>
    <message>
        <source>traces with a gain of %1: %2</source>
        <translation>tracce con un guadagno di %1: %2</translation>
    </message>
    <message>
        <source>geophone %1</source>
        <translation>geofono %1</translation>
    </message>
    <message>
        <source>geophones %1</source>
        <translation>geofoni %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>riga %1</translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>righe %1</translation>
    </message>
    <message>
        <source>lines %1 and %2 more</source>
        <translation>righe %1 e altre %2</translation>
    </message>
    <message>
        <source>Not used, for no geophone or shot of the survey is there: %1</source>
        <translation>Non usate, perché nel rilievo non c&apos;è alcun geofono o tiro corrispondente: %1</translation>
    </message>
    <message>
        <source>Not used, for a row above is of the same geophone or shot: %1</source>
        <translation>Non usate, perché una riga precedente è dello stesso geofono o tiro: %1</translation>
    </message>
    <message>
        <source>Without a row, placed among those that have one by the distances so far: %1</source>
        <translation>Senza riga, posti fra quelli che ne hanno una secondo le distanze attuali: %1</translation>
    </message>
    <message>
        <source>Without a row, left where nothing tells how they stand to the others: %1</source>
        <translation>Senza riga, lasciati dove nulla dice come stanno rispetto agli altri: %1</translation>
    </message>
    <message>
        <source>Without an elevation, raised to the line between the others: %1</source>
        <translation>Senza quota, portati sulla linea fra gli altri: %1</translation>
    </message>
    <message>
        <source>Hardly apart from their neighbours: %1</source>
        <translation>Appena distinti dai loro vicini: %1</translation>
    </message>
    <message>
        <source>The line runs back to %1; an exchanged row or number?</source>
        <translation>La linea torna indietro a %1; una riga o un numero scambiati?</translation>
    </message>
    <message>
        <source>Not as far from the geophone before as expected: %1</source>
        <translation>Non alla distanza attesa dal geofono precedente: %1</translation>
    </message>
    <message>
        <source>fewer than two geophones of the survey have a row in the table</source>
        <translation>meno di due geofoni del rilievo hanno una riga nella tabella</translation>
    </message>
    <message>
        <source>lengths along the ground need the elevation of every geophone; the table lacks %1</source>
        <translation>le lunghezze lungo il terreno richiedono la quota di ogni geofono; nella tabella mancano %1</translation>
    </message>
    <message>
        <source>its sample interval is not known</source>
        <translation>il suo intervallo di campionamento non è noto</translation>
    </message>
    <message>
        <source>it has samples that are no numbers</source>
        <translation>ha campioni che non sono numeri</translation>
    </message>
    <message>
        <source>a notch needs a frequency, a multiple and a quality above 0</source>
        <translation>un filtro notch richiede una frequenza, un multiplo e una qualità maggiori di 0</translation>
    </message>
    <message>
        <source>it is sampled too slowly for %1 Hz</source>
        <translation>il suo campionamento è troppo rado per %1 Hz</translation>
    </message>
    <message>
        <source>it is shorter than one period of %1 Hz</source>
        <translation>è più corta di un periodo di %1 Hz</translation>
    </message>
    <message>
        <source>trace %1 has another length or sample interval than trace 1</source>
        <translation>la traccia %1 ha lunghezza o intervallo di campionamento diversi dalla traccia 1</translation>
    </message>
    <message>
        <source>trace %1 has samples that are no numbers</source>
        <translation>la traccia %1 ha campioni che non sono numeri</translation>
    </message>
    <message>
        <source>it has no samples, or no known sample interval</source>
        <translation>non ha campioni, o il suo intervallo di campionamento non è noto</translation>
    </message>
    <message>
        <source>its geophones are not evenly spaced: trace %1 at %2 is %3 from the one before, the usual distance is %4</source>
        <translation>i suoi geofoni non sono a passo costante: la traccia %1 a %2 è a %3 dalla precedente, la distanza usuale è %4</translation>
    </message>
    <message>
        <source>it has fewer than %1 traces</source>
        <translation>ha meno di %1 tracce</translation>
    </message>
    <message>
        <source>the positions of its geophones are not known</source>
        <translation>le posizioni dei suoi geofoni non sono note</translation>
    </message>
    <message>
        <source>of %1 places along its line %2 have no trace</source>
        <translation>di %1 posti lungo la sua linea %2 non hanno traccia</translation>
    </message>
    <message>
        <source>shot %1: of %2 places along its line %3 have no trace, or a killed one; they count as zero, beside them the filter is less sharp</source>
        <translation>tiro %1: di %2 posti lungo la sua linea %3 non hanno traccia, o ne hanno una esclusa; valgono zero, e accanto a essi il filtro è meno netto</translation>
    </message>
    <message>
        <source>the slowest velocity, %1, must be above 0 and below the fastest, %2</source>
        <translation>la velocità minima, %1, deve essere maggiore di 0 e minore della massima, %2</translation>
    </message>
    <message>
        <source>the taper must be 0 or more and less than 100 percent of a limit</source>
        <translation>il taper deve essere 0 o più e inferiore al 100 per cento di un limite</translation>
    </message>
    <message>
        <source>Surveyed positions</source>
        <translation>Posizioni rilevate</translation>
    </message>
    <message>
        <source>Marked isolines</source>
        <translation>Isolinee evidenziate</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Annotazioni</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Applica stile</translation>
    </message>
    <message>
        <source>shot %1 has no trace %2</source>
        <translation>il tiro %1 non ha la traccia %2</translation>
    </message>
    <message>
        <source>no recordings yet</source>
        <translation>ancora nessuna registrazione</translation>
    </message>
    <message>
        <source>times of %1 shots, without recordings</source>
        <translation>tempi di %1 tiri, senza registrazioni</translation>
    </message>
    <message>
        <source>recordings that begin before their shot: %1</source>
        <translation>registrazioni che cominciano prima del loro tiro: %1</translation>
    </message>
    <message>
        <source>recordings that were read with warnings: %1</source>
        <translation>registrazioni lette con avvisi: %1</translation>
    </message>
    <message>
        <source>shots: %1</source>
        <translation>tiri: %1</translation>
    </message>
    <message>
        <source>no geophones yet</source>
        <translation>ancora nessun geofono</translation>
    </message>
    <message>
        <source>positions are missing or cannot be</source>
        <translation>mancano posizioni, o non sono possibili</translation>
    </message>
    <message>
        <source>things that look wrong in the positions: %1</source>
        <translation>cose che sembrano errate nelle posizioni: %1</translation>
    </message>
    <message>
        <source>geophones: %1, shots: %2</source>
        <translation>geofoni: %1, tiri: %2</translation>
    </message>
    <message>
        <source>no picks yet</source>
        <translation>ancora nessun primo arrivo</translation>
    </message>
    <message>
        <source>shots without picks: %1</source>
        <translation>tiri senza primi arrivi: %1</translation>
    </message>
    <message>
        <source>only %1 of %2 traces have a pick</source>
        <translation>solo %1 tracce su %2 hanno un primo arrivo</translation>
    </message>
    <message>
        <source>%1 picks on %2 traces</source>
        <translation>%1 primi arrivi su %2 tracce</translation>
    </message>
    <message>
        <source>no picks to check yet</source>
        <translation>ancora nessun primo arrivo da controllare</translation>
    </message>
    <message>
        <source>%1 of %2 picks that wait for confirmation are doubtful</source>
        <translation>%1 primi arrivi su %2 che attendono conferma sono dubbi</translation>
    </message>
    <message>
        <source>of %1 picks nothing is known that could speak against them</source>
        <translation>di %1 primi arrivi non si sa nulla che possa contraddirli</translation>
    </message>
    <message>
        <source>none of the %1 picks that wait for confirmation is doubtful</source>
        <translation>nessuno dei %1 primi arrivi che attendono conferma è dubbio</translation>
    </message>
    <message>
        <source>no pick waits for confirmation</source>
        <translation>nessun primo arrivo attende conferma</translation>
    </message>
    <message>
        <source>no grid yet</source>
        <translation>ancora nessuna griglia</translation>
    </message>
    <message>
        <source>the grid has no cells</source>
        <translation>la griglia non ha celle</translation>
    </message>
    <message>
        <source>shots and geophones beyond the grid: %1</source>
        <translation>tiri e geofoni fuori dalla griglia: %1</translation>
    </message>
    <message>
        <source>%1 x %2 cells</source>
        <translation>%1 x %2 celle</translation>
    </message>
    <message>
        <source>%1, the usual starting model</source>
        <translation>%1, il modello iniziale usuale</translation>
    </message>
    <message>
        <source>%1, a starting model with layers: %2</source>
        <translation>%1, un modello iniziale a strati: %2</translation>
    </message>
    <message>
        <source>no inversion yet</source>
        <translation>ancora nessuna inversione</translation>
    </message>
    <message>
        <source>the section is older than the picks</source>
        <translation>la sezione è anteriore ai primi arrivi</translation>
    </message>
    <message>
        <source>the known ground is other than that of the section</source>
        <translation>il terreno noto è diverso da quello della sezione</translation>
    </message>
    <message>
        <source>it was stopped before its end</source>
        <translation>è stata interrotta prima della fine</translation>
    </message>
    <message>
        <source>chi-square is %1 and not near 1</source>
        <translation>il chi quadrato è %1 e non vicino a 1</translation>
    </message>
    <message>
        <source>the section is inverted</source>
        <translation>la sezione è invertita</translation>
    </message>
    <message>
        <source>RMSE %1 ms of %2 picks</source>
        <translation>RMSE %1 ms di %2 primi arrivi</translation>
    </message>
    <message>
        <source>no section yet</source>
        <translation>ancora nessuna sezione</translation>
    </message>
    <message>
        <source>the layered profile is older than the picks</source>
        <translation>il profilo a strati è anteriore ai primi arrivi</translation>
    </message>
    <message>
        <source>the certainty is older than the picks</source>
        <translation>l&apos;affidabilità è anteriore ai primi arrivi</translation>
    </message>
    <message>
        <source>the section was smoothed after its inversion</source>
        <translation>la sezione è stata smussata dopo la sua inversione</translation>
    </message>
    <message>
        <source>the section lies beyond its certainty</source>
        <translation>la sezione sta oltre la sua affidabilità</translation>
    </message>
    <message>
        <source>how certain the section is is not known</source>
        <translation>l&apos;affidabilità della sezione non è nota</translation>
    </message>
    <message>
        <source>the section and its certainty are there</source>
        <translation>la sezione e la sua affidabilità ci sono</translation>
    </message>
    <message>
        <source>it has no section</source>
        <translation>non ha una sezione</translation>
    </message>
    <message>
        <source>no cell of its section is drawn</source>
        <translation>nessuna cella della sua sezione è disegnata</translation>
    </message>
    <message>
        <source>its line is nowhere on the map</source>
        <translation>la sua linea non è in alcun punto della mappa</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Escludi tracce</translation>
    </message>
    <message>
        <source>Revive traces</source>
        <translation>Riammetti tracce</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Inverti polarità</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Azzera l&apos;inizio delle tracce</translation>
    </message>
    <message>
        <source>Mute traces no more</source>
        <translation>Togli l&apos;azzeramento delle tracce</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Amplifica tracce</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Attenua tracce</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet.</source>
        <translation>La figura non sta su questo foglio in nessuna scala: scegliere un foglio più grande.</translation>
    </message>
    <message>
        <source>The scale must lie between 1:%1 and 1:%2.</source>
        <translation>La scala deve essere compresa tra 1:%1 e 1:%2.</translation>
    </message>
    <message>
        <source>choose two different recordings</source>
        <translation>scegliere due registrazioni diverse</translation>
    </message>
    <message>
        <source>Choose a scale, or type one such as 1:750.</source>
        <translation>Scegliere una scala, o scriverne una come 1:750.</translation>
    </message>
    <message>
        <source>The printer is set to paper of %1 x %2 mm, and the sheets are made for %3 x %4 mm: choose the same paper for both.</source>
        <translation>La stampante è impostata su carta di %1 x %2 mm, e i fogli sono fatti per %3 x %4 mm: scegliere la stessa carta per entrambi.</translation>
    </message>
    <message>
        <source>The printer does not take the sheets.</source>
        <translation>La stampante non accetta i fogli.</translation>
    </message>
    <message>
        <source>Add sum of two shots</source>
        <translation>Aggiungi somma di due tiri</translation>
    </message>
    <message>
        <source>Add difference of two shots</source>
        <translation>Aggiungi differenza di due tiri</translation>
    </message>
    <message>
        <source>Cannot make the folder %1</source>
        <translation>Impossibile creare la cartella %1</translation>
    </message>
    <message>
        <source>Cannot write %1: there is a file of that name that is no page of Talvesk; move it or choose another folder</source>
        <translation>Impossibile scrivere %1: c&apos;è un file con quel nome che non è una pagina di Talvesk; spostarlo o scegliere un&apos;altra cartella</translation>
    </message>
    <message>
        <source>There is nothing chosen to be drawn.</source>
        <translation>Non è stato scelto nulla da disegnare.</translation>
    </message>
    <message>
        <source>There is no section to draw.</source>
        <translation>Non c&apos;è una sezione da disegnare.</translation>
    </message>
    <message>
        <source>A sheet has 1 to %1 rows and 1 to %2 columns of shots.</source>
        <translation>Un foglio ha da 1 a %1 righe e da 1 a %2 colonne di tiri.</translation>
    </message>
    <message>
        <source>There is no sheet %1 to draw.</source>
        <translation>Non c&apos;è un foglio %1 da disegnare.</translation>
    </message>
    <message>
        <source>A centimetre must be %1 to %2 ms.</source>
        <translation>Un centimetro deve essere da %1 a %2 ms.</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet, or more milliseconds to a centimetre.</source>
        <translation>La figura non sta su questo foglio in nessuna scala: scegliere un foglio più grande, o più millisecondi per centimetro.</translation>
    </message>
    <message>
        <source>At 1:%1 the figure takes %2 x %3 mm, and the sheet has room for %4 x %5 mm: choose 1:%6 or a larger sheet, or have it split.</source>
        <translation>A 1:%1 la figura occupa %2 x %3 mm e il foglio offre %4 x %5 mm: scegliere 1:%6 o un foglio più grande, o farla dividere.</translation>
    </message>
    <message>
        <source>its format names no fields of headers</source>
        <translation>il suo formato non dà nomi ai campi delle intestazioni</translation>
    </message>
    <message>
        <source>fields of SEG-Y revision 2 are not shown</source>
        <translation>i campi di SEG-Y revisione 2 non sono mostrati</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>le regole del programma</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>lo standard del suo formato</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>tiro disattivato</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>traslazione di %1 ms</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>ordine invertito</translation>
    </message>
    <message>
        <source>stacked</source>
        <translation>somma di tiri</translation>
    </message>
    <message>
        <source>killed</source>
        <translation>esclusa</translation>
    </message>
    <message>
        <source>polarity reversed</source>
        <translation>polarità invertita</translation>
    </message>
    <message>
        <source>muted before %1 ms</source>
        <translation>azzerata prima di %1 ms</translation>
    </message>
    <message>
        <source>gain %1</source>
        <translation>guadagno %1</translation>
    </message>
    <message>
        <source>filtered</source>
        <translation>filtrata</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Shot x</source>
        <translation>x del tiro</translation>
    </message>
    <message>
        <source>Shot elevation</source>
        <translation>Quota del tiro</translation>
    </message>
    <message>
        <source>Geophone x</source>
        <translation>x del geofono</translation>
    </message>
    <message>
        <source>Geophone elevation</source>
        <translation>Quota del geofono</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Primo arrivo</translation>
    </message>
    <message>
        <source>Pick error</source>
        <translation>Errore del primo arrivo</translation>
    </message>
    <message>
        <source>Sample interval</source>
        <translation>Intervallo di campionamento</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source>Record length</source>
        <translation>Lunghezza della registrazione</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Ritardo</translation>
    </message>
    <message>
        <source>Samples cut off</source>
        <translation>Campioni tolti</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Correzioni</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Shot x in file</source>
        <translation>x del tiro nel file</translation>
    </message>
    <message>
        <source>Shot elevation in file</source>
        <translation>Quota del tiro nel file</translation>
    </message>
    <message>
        <source>Geophone x in file</source>
        <translation>x del geofono nel file</translation>
    </message>
    <message>
        <source>Geophone elevation in file</source>
        <translation>Quota del geofono nel file</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Letto secondo</translation>
    </message>
    <message>
        <source>it has no shot file</source>
        <translation>non ha un file del tiro</translation>
    </message>
    <message>
        <source>it is made of two shot files</source>
        <translation>è composto da due file dei tiri</translation>
    </message>
    <message>
        <source>its file has %1 traces, the shot %2</source>
        <translation>il suo file ha %1 tracce, il tiro %2</translation>
    </message>
    <message>
        <source>no geophones of shot %1 and shot %2 that can be compared are at one place</source>
        <translation>i tiri %1 e %2 non hanno geofoni confrontabili nello stesso punto</translation>
    </message>
    <message>
        <source>no difference and no sum: the samples are %1 ms and %2 ms apart</source>
        <translation>né differenza né somma: i campioni distano %1 ms e %2 ms</translation>
    </message>
    <message>
        <source>no difference and no sum: the records begin %1 samples apart, which is no whole number</source>
        <translation>né differenza né somma: gli inizi delle registrazioni distano %1 campioni, che non è un numero intero</translation>
    </message>
    <message>
        <source>%1 traces at the same places</source>
        <translation>%1 tracce negli stessi punti</translation>
    </message>
    <message>
        <source>without a partner: %1 traces of shot %2, %3 of shot %4</source>
        <translation>senza corrispondente: %1 tracce del tiro %2, %3 del tiro %4</translation>
    </message>
    <message>
        <source>the second is %1 times as strong</source>
        <translation>il secondo è forte %1 volte il primo</translation>
    </message>
    <message>
        <source>it is shown times %1</source>
        <translation>è mostrato moltiplicato per %1</translation>
    </message>
    <message>
        <source>its record begins %1 ms later</source>
        <translation>la sua registrazione comincia %1 ms più tardi</translation>
    </message>
    <message>
        <source>its record begins %1 ms earlier</source>
        <translation>la sua registrazione comincia %1 ms prima</translation>
    </message>
    <message>
        <source>difference and sum begin with %1 samples of zero</source>
        <translation>differenza e somma cominciano con %1 campioni a zero</translation>
    </message>
    <message>
        <source>difference and sum end %1 samples before the first</source>
        <translation>differenza e somma finiscono %1 campioni prima del primo</translation>
    </message>
    <message>
        <source>sum of shots %1 and %2</source>
        <translation>somma dei tiri %1 e %2</translation>
    </message>
    <message>
        <source>difference of shots %1 and %2</source>
        <translation>differenza dei tiri %1 e %2</translation>
    </message>
    <message>
        <source>At 1:%1 the figure is too large even for many sheets: choose 1:%2, or a scale between them.</source>
        <translation>A 1:%1 la figura è troppo grande anche per molti fogli: scegli 1:%2 o una scala intermedia.</translation>
    </message>
    <message>
        <source>put the %1 geophones of its string at %2 to %3</source>
        <translation>mettere i %1 geofoni della sua stesa da %2 a %3</translation>
    </message>
    <message>
        <source>%1; over %2 shots the least times move by one channel as the shot moves by %3, so geophone 1 is at %4 and the last one at %5</source>
        <translation>%1; su %2 tiri i tempi minimi si spostano di un canale quando il tiro si sposta di %3: il geofono 1 è quindi a %4 e l&apos;ultimo a %5</translation>
    </message>
    <message>
        <source>no geophone stands between %1 and %2: the ground there is seen from neither side unless shots reach over it</source>
        <translation>nessun geofono fra %1 e %2: il terreno lì non si vede da nessun lato, se non vi sono tiri che lo attraversano</translation>
    </message>
    <message>
        <source>the positions of the geophones are no metres: over %1 shots the least times move by 1 as the shot moves by %2; geophones %3 apart from %4 on have them beside the shots</source>
        <translation>le posizioni dei geofoni non sono metri: su %1 tiri i tempi minimi si spostano di 1 quando il tiro si sposta di %2; con geofoni ogni %3 a partire da %4 cadono accanto ai tiri</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: the geophones nearest to the shot, %3 away, would put the blow between %4 and %5 ms, whatever the ground</source>
        <translation>la registrazione è %2 di circa %1 ms: secondo i geofoni più vicini al tiro, a %3, l&apos;energizzazione sarebbe fra %4 e %5 ms, qualunque sia il terreno</translation>
    </message>
    <message>
        <source>The layers make no velocity model. Order them by depth, without overlap, each more than %1 thick.</source>
        <translation>Gli strati non formano un modello di velocità. Ordinarli per profondità, senza sovrapposizioni, ognuno spesso più di %1.</translation>
    </message>
    <message>
        <source>%1 velocities and depths of the layers are left out: outside %2 to %3, or deeper than the line is long</source>
        <translation>%1 velocità e profondità degli strati tralasciate: fuori dall&apos;intervallo da %2 a %3, o più profonde della lunghezza della linea</translation>
    </message>
    <message>
        <source>velocities of %1 cell cannot be; they are held within %2 and %3</source>
        <translation>la velocità di %1 cella non è possibile; è stata portata fra %2 e %3</translation>
    </message>
    <message>
        <source>velocities of %1 cells cannot be; they are held within %2 and %3</source>
        <translation>le velocità di %1 celle non sono possibili; sono state portate fra %2 e %3</translation>
    </message>
    <message>
        <source>by its headers the geophones stand along %1; their scalar or unit is likely wrong, so check them or load a geometry file</source>
        <translation>secondo le intestazioni i geofoni si estendono per %1; il loro fattore di scala o la loro unità è probabilmente sbagliata: controllarli o caricare un file di geometria</translation>
    </message>
    <message>
        <source>%1 fields that there is no room for, among them %2</source>
        <translation>%1 campi per cui non c&apos;è posto, fra cui %2</translation>
    </message>
    <message>
        <source>%1 is no velocity of ground (%2 to %3)</source>
        <translation>%1 non è una velocità del terreno (da %2 a %3)</translation>
    </message>
    <message>
        <source>%1 is no depth below the surface (0 to %2)</source>
        <translation>%1 non è una profondità dal suolo (da 0 a %2)</translation>
    </message>
    <message>
        <source>a layer from %1 to %2 has its bottom not below its top</source>
        <translation>uno strato da %1 a %2 ha il letto non più in basso del tetto</translation>
    </message>
    <message>
        <source>an error of %1 must not be negative, and less than its velocity, %2</source>
        <translation>un errore di %1 non può essere negativo, e deve essere minore della velocità, %2</translation>
    </message>
    <message>
        <source>Farther from the line than half the spacing of %1: %2</source>
        <translation>Più lontani dalla linea di metà del passo di %1: %2</translation>
    </message>
    <message>
        <source>Vp %1, Vs %2, Vp/Vs %3, Poisson&apos;s ratio %4</source>
        <translation>Vp %1, Vs %2, Vp/Vs %3, coefficiente di Poisson %4</translation>
    </message>
    <message>
        <source>Gardner&apos;s rule was found for rocks faster than %1; at %2 of %3 places Vp is less, and the density a guess.</source>
        <translation>La relazione di Gardner vale per rocce più veloci di %1; in %2 punti su %3 Vp è minore, e la densità solo indicativa.</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off from shot %3 at %4 on</source>
        <translation>il profilo si adatta ai suoi primi arrivi solo entro %1 ms, le onde della proposta entro %2 ms: se ne scosta dal tiro %3 a %4 in poi</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off most at shot %3 at %4</source>
        <translation>il profilo si adatta ai suoi primi arrivi solo entro %1 ms, le onde della proposta entro %2 ms: se ne scosta di più al tiro %3 a %4</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 receivers, where the velocity comes out outside %3 to %4.</source>
        <translation>Strato %1: né velocità né profondità a %2 ricevitori, dove la velocità risulta fuori dall&apos;intervallo da %3 a %4.</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3, no depth</source>
        <translation>Strato %1, %2: %3, nessuna profondità</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 at a depth of %4 (medians); depths at %5 of %6 geophones, %7 of them not carried by picks there</source>
        <translation>Strato %1, %2: %3 a una profondità di %4 (mediane); profondità a %5 geofoni su %6, di cui %7 non sostenute da primi arrivi in quel punto</translation>
    </message>
    <message>
        <source>Layer %1: depths are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Strato %1: le profondità discordano di più a %2, da %3 (%4) a %5 (%6)</translation>
    </message>
    <message>
        <source>Layer %1: velocities are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Strato %1: le velocità discordano di più a %2, da %3 (%4) a %5 (%6)</translation>
    </message>
    <message>
        <source>no layers: a velocity that grows steadily with depth, from %1 with a gradient of %2 1/s, has a misfit of %3 ms</source>
        <translation>nessuno strato: una velocità che cresce costantemente con la profondità, da %1 con un gradiente di %2 1/s, ha uno scarto di %3 ms</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers, the least below the greatest; %1 and %2 are not.</source>
        <translation>I limiti di velocità devono essere numeri positivi, il minimo sotto il massimo; %1 e %2 non lo sono.</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, da %2 a %3</translation>
    </message>
    <message>
        <source>velocities of %1 and %2 do not increase with depth</source>
        <translation>velocità di %1 e %2 non crescono con la profondità</translation>
    </message>
    <message>
        <source>%1 at the surface, %2 where the deepest ray turns, %3 down</source>
        <translation>%1 in superficie, %2 dove il raggio più profondo risale, a %3 di profondità</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down, %4 from %5 down</source>
        <translation>%1, %2 oltre %3 di profondità, %4 oltre %5</translation>
    </message>
    <message>
        <source>%1 with a gradient of %2 1/s, %3 from %4 down</source>
        <translation>%1 con un gradiente di %2 1/s, %3 oltre %4 di profondità</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down</source>
        <translation>%1, %2 oltre %3 di profondità</translation>
    </message>
    <message>
        <source>Layer %1 is known from %2 to %3; its depth and velocity stay as they are there to the ends of the grid.</source>
        <translation>Lo strato %1 è noto da %2 a %3; oltre, fino ai bordi della griglia, profondità e velocità restano quelle dei due estremi.</translation>
    </message>
    <message>
        <source>the records of shot %1 and shot %2 begin too far apart in time to be laid over each other; look at the delays in their headers</source>
        <translation>le registrazioni del tiro %1 e del tiro %2 cominciano troppo lontano nel tempo per essere sovrapposte; guarda i ritardi nelle loro intestazioni</translation>
    </message>
    <message>
        <source>the shots are at one place</source>
        <translation>i tiri sono nello stesso punto</translation>
    </message>
    <message>
        <source>the shots are %1 apart</source>
        <translation>i tiri distano fra loro %1</translation>
    </message>
    <message>
        <source>the shots are %1 apart: difference and sum are not of one place</source>
        <translation>i tiri distano fra loro %1: differenza e somma non sono di uno stesso punto</translation>
    </message>
    <message>
        <source>left out: %1 pairs with a trace that is killed, or has no samples or no interval</source>
        <translation>tralasciate: %1 coppie con una traccia esclusa, senza campioni o senza intervallo</translation>
    </message>
    <message>
        <source>left out: %1 pairs whose records begin too far apart in time</source>
        <translation>tralasciate: %1 coppie le cui registrazioni cominciano troppo lontano nel tempo</translation>
    </message>
    <message>
        <source>%1 fields or more that there is no room for, among them %2</source>
        <translation>%1 campi o più per cui non c&apos;è posto, fra cui %2</translation>
    </message>
    <message>
        <source>%1 traces go together by their numbers, for all are at one place</source>
        <translation>%1 tracce vanno insieme secondo i numeri, perché sono tutte nello stesso punto</translation>
    </message>
    <message>
        <source>where a shot was is not known</source>
        <translation>non si sa dove fosse un tiro</translation>
    </message>
</context>
<context>
    <name>talvesk::Messages</name>
    <message>
        <source>The document has been modified</source>
        <translation>Il documento è stato modificato</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>Salvare le modifiche?</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e un altro</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Recover survey</source>
        <translation>Recupera il rilievo</translation>
    </message>
    <message>
        <source>Talvesk was not closed properly.</source>
        <translation>Talvesk non è stato chiuso correttamente.</translation>
    </message>
    <message>
        <source>Ask again later</source>
        <translation>Chiedi più tardi</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Elimina la copia</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitPlot</name>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Scarto dopo ogni iterazione esterna</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Iterazione esterna</translation>
    </message>
    <message>
        <source>RMSE (ms)</source>
        <translation>RMSE (ms)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sezione</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Ultimo passaggio del risolutore</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitTable</name>
    <message numerus="yes">
        <source>%n pick(s); picks later than computed by %1 ms in the mean; chi2 %2</source>
        <translation>
            <numerusform>%n arrivo; in media %1 ms dopo il tempo calcolato; chi2 %2</numerusform>
            <numerusform>%n arrivi; in media %1 ms dopo i tempi calcolati; chi2 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Misfit (ms)</source>
        <translation>Scarto (ms)</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Strato %1</translation>
    </message>
    <message>
        <source>RMS of picks less computed times, per shot and layer</source>
        <translation>RMS degli arrivi meno i tempi calcolati, per tiro e strato</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Tutti i tiri</translation>
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
        <translation>Filtro notch</translation>
    </message>
    <message>
        <source>Takes the hum of power lines out of the filtered copy. Arrivals stay where they are.</source>
        <translation>Toglie dalla copia filtrata il ronzio delle linee elettriche. Gli arrivi restano dove sono.</translation>
    </message>
    <message>
        <source>&amp;Power line (Hz):</source>
        <translation>Frequenza di &amp;rete (Hz):</translation>
    </message>
    <message>
        <source>50 Hz in most of the world, 60 Hz in North America; some railways have 16.7 Hz</source>
        <translation>50 Hz in gran parte del mondo, 60 Hz in Nord America; alcune ferrovie usano 16,7 Hz</translation>
    </message>
    <message>
        <source>&amp;Multiples:</source>
        <translation>&amp;Multipli:</translation>
    </message>
    <message>
        <source>So many multiples are taken out, the frequency itself among them, as far as the record has them</source>
        <translation>Quanti multipli vengono tolti, compresa la frequenza stessa, fin dove la registrazione ne contiene</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualità:</translation>
    </message>
    <message>
        <source>The frequency over the width of every notch at 3 dB: larger ones take less of the signal, and less of hum that wanders</source>
        <translation>La frequenza diviso la larghezza di ogni notch a 3 dB: valori maggiori tolgono meno segnale, e meno di un ronzio che oscilla in frequenza</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Applica il filtro a:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>Ori&amp;ginali</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>Fi&amp;ltrati</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Il filtro va a tutti i tiri.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>Il filtro va al tiro %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::PaletteDialog</name>
    <message>
        <source>Palette Settings</source>
        <translation>Impostazioni della tavolozza</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Tavolozza</translation>
    </message>
    <message>
        <source>Palette that colours the section</source>
        <translation>Tavolozza che colora la sezione</translation>
    </message>
    <message>
        <source>Load palettes from files</source>
        <translation>Carica tavolozze da file</translation>
    </message>
    <message>
        <source>Save this palette to a file</source>
        <translation>Salva questa tavolozza in un file</translation>
    </message>
    <message>
        <source>Create New Palette</source>
        <translation>Crea nuova tavolozza</translation>
    </message>
    <message>
        <source>Add a palette from black to white and select it</source>
        <translation>Aggiunge una tavolozza dal nero al bianco e la seleziona</translation>
    </message>
    <message>
        <source>Edit Palette</source>
        <translation>Modifica tavolozza</translation>
    </message>
    <message>
        <source>Edit the colours; of a built-in palette, those of a copy</source>
        <translation>Modifica i colori; per una tavolozza predefinita, quelli di una copia</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>Rinomina tavolozza</translation>
    </message>
    <message>
        <source>Give the palette another name; built-in ones keep theirs</source>
        <translation>Dà un altro nome alla tavolozza; quelle predefinite lo conservano</translation>
    </message>
    <message>
        <source>Delete Palette</source>
        <translation>Elimina tavolozza</translation>
    </message>
    <message>
        <source>Remove the palette; built-in ones stay</source>
        <translation>Toglie la tavolozza; quelle predefinite restano</translation>
    </message>
    <message>
        <source>Number of colours</source>
        <translation>Numero di colori</translation>
    </message>
    <message>
        <source>Into how many colours the gradient is cut</source>
        <translation>In quanti colori è diviso il gradiente</translation>
    </message>
    <message>
        <source>Range from Data</source>
        <translation>Intervallo dai dati</translation>
    </message>
    <message>
        <source>Lock the range</source>
        <translation>Blocca l&apos;intervallo</translation>
    </message>
    <message>
        <source>Keep minimum and maximum when another palette is chosen or another line is shown</source>
        <translation>Conserva minimo e massimo quando si sceglie un&apos;altra tavolozza o si mostra un&apos;altra linea</translation>
    </message>
    <message>
        <source>Talvesk Palette (*.xml)</source>
        <translation>Tavolozza di Talvesk (*.xml)</translation>
    </message>
    <message>
        <source>MIN: %1, MAX: %2</source>
        <translation>MIN: %1, MAX: %2</translation>
    </message>
    <message>
        <source>New palette</source>
        <translation>Nuova tavolozza</translation>
    </message>
    <message>
        <source>%1 - copy</source>
        <translation>%1 - copia</translation>
    </message>
    <message>
        <source>Save new palette as : </source>
        <translation>Salva la nuova tavolozza come : </translation>
    </message>
    <message>
        <source>There is a palette of this name already.</source>
        <translation>Esiste già una tavolozza con questo nome.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Questo nome è troppo lungo.</translation>
    </message>
    <message>
        <source>Save Palette</source>
        <translation>Salva tavolozza</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Sostituire il file?</translation>
    </message>
    <message>
        <source>Error while saving palette.</source>
        <translation>Errore durante il salvataggio della tavolozza.</translation>
    </message>
    <message>
        <source>Open Palette</source>
        <translation>Apri tavolozza</translation>
    </message>
    <message>
        <source>Error while loading palette.</source>
        <translation>Errore durante il caricamento della tavolozza.</translation>
    </message>
    <message>
        <source>Take minimum and maximum from the velocities of the section</source>
        <translation>Prende minimo e massimo dalle velocità della sezione</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>&amp;Figure:</source>
        <translation>&amp;Figura:</translation>
    </message>
    <message>
        <source>What is printed. What there is nothing of yet is grey, with the reason.</source>
        <translation>Che cosa si stampa. Ciò di cui non c&apos;è ancora nulla è in grigio, con il motivo.</translation>
    </message>
    <message>
        <source>&amp;At:</source>
        <translation>&amp;A:</translation>
    </message>
    <message>
        <source>Place along the line of the depth profile</source>
        <translation>Posto del profilo di profondità lungo la linea</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titolo:</translation>
    </message>
    <message>
        <source>Stands in the block below the figure</source>
        <translation>Sta nel riquadro sotto la figura</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>&amp;Scala:</translation>
    </message>
    <message>
        <source>How many times longer the line is than on paper: choose, or type any scale.</source>
        <translation>Quante volte la linea è più lunga che sulla carta: scegli o scrivi una scala qualsiasi.</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>&amp;Esagerazione verticale:</translation>
    </message>
    <message>
        <source>How many times larger heights are drawn than lengths along the line</source>
        <translation>Quante volte più grandi sono disegnate le altezze delle lunghezze lungo la linea</translation>
    </message>
    <message>
        <source>As shown</source>
        <translation>Come mostrata</translation>
    </message>
    <message>
        <source>T&amp;imes:</source>
        <translation>Te&amp;mpi:</translation>
    </message>
    <message>
        <source>Milliseconds to a centimetre of paper</source>
        <translation>Millisecondi per centimetro di carta</translation>
    </message>
    <message>
        <source>As the sheet has room</source>
        <translation>Quanto permette il foglio</translation>
    </message>
    <message>
        <source> ms/cm</source>
        <translation> ms/cm</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Carta:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientamento:</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Neighbouring sheets have 10 mm in common, with match lines where they are joined</source>
        <translation>I fogli vicini hanno 10 mm in comune, con linee di giunzione per accostarli</translation>
    </message>
    <message>
        <source>Sp&amp;lit over several sheets</source>
        <translation>Di&amp;vidi su più fogli</translation>
    </message>
    <message>
        <source>Whether the figure has room, and what else would fit</source>
        <translation>Se la figura ha posto, e che cos&apos;altro ci starebbe</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Anteprima dei fogli</translation>
    </message>
    <message>
        <source>Smaller preview</source>
        <translation>Anteprima più piccola</translation>
    </message>
    <message>
        <source>Smaller preview (Ctrl+-)</source>
        <translation>Anteprima più piccola (Ctrl+-)</translation>
    </message>
    <message>
        <source>Larger preview</source>
        <translation>Anteprima più grande</translation>
    </message>
    <message>
        <source>Larger preview (Ctrl++)</source>
        <translation>Anteprima più grande (Ctrl++)</translation>
    </message>
    <message>
        <source>All sheets in view</source>
        <translation>Tutti i fogli in vista</translation>
    </message>
    <message>
        <source>&amp;Whole sheets</source>
        <translation>Fogli &amp;interi</translation>
    </message>
    <message>
        <source>Choose a printer and print the sheets on it, at their real size</source>
        <translation>Sceglie una stampante e vi stampa i fogli, nella loro grandezza reale</translation>
    </message>
    <message>
        <source>P&amp;rint ...</source>
        <translation>Stam&amp;pa ...</translation>
    </message>
    <message>
        <source>Save the sheets as they would be printed</source>
        <translation>Salva i fogli come sarebbero stampati</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>Salva come P&amp;DF ...</translation>
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
        <translation>Adatta alla pagina</translation>
    </message>
    <message>
        <source>No printer is installed. A PDF can be printed elsewhere.</source>
        <translation>Nessuna stampante è installata. Un PDF si può stampare altrove.</translation>
    </message>
    <message>
        <source>There is nothing to print yet.</source>
        <translation>Non c&apos;è ancora nulla da stampare.</translation>
    </message>
    <message>
        <source>The figure does not fit the sheet at this scale.</source>
        <translation>La figura non sta sul foglio in questa scala.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n foglio</numerusform>
            <numerusform>%n fogli</numerusform>
        </translation>
    </message>
    <message>
        <source>At %1 the figure takes %2.</source>
        <translation>A %1 la figura occupa %2.</translation>
    </message>
    <message>
        <source>The figure takes %1.</source>
        <translation>La figura occupa %1.</translation>
    </message>
    <message>
        <source>At %1 the figure takes %2, and the sheet has room for %3.</source>
        <translation>A %1 la figura occupa %2, e il foglio offre %3.</translation>
    </message>
    <message>
        <source>With more milliseconds to a centimetre it is less high.</source>
        <translation>Con più millisecondi per centimetro è meno alta.</translation>
    </message>
    <message>
        <source>Choose a larger sheet.</source>
        <translation>Scegliere un foglio più grande.</translation>
    </message>
    <message>
        <source>What would fit:</source>
        <translation>Ci starebbe con:</translation>
    </message>
    <message>
        <source>This is the first usual scale from %1 on at which it fits one sheet.</source>
        <translation>È la prima scala usuale da %1 in poi con cui sta su un solo foglio.</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintPreview</name>
    <message>
        <source>Drawing the sheets ...</source>
        <translation>Disegno dei fogli ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ProfileTable</name>
    <message>
        <source>picks</source>
        <translation>arrivi</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>phantom</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>lacuna</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>prolungamento</translation>
    </message>
    <message>
        <source>Picks of the shots at both ends of the line carry it.</source>
        <translation>Sostenuto da arrivi dei tiri a entrambe le estremità della linea.</translation>
    </message>
    <message>
        <source>Shifted arrivals of other shots carry it.</source>
        <translation>Sostenuto da arrivi traslati di altri tiri.</translation>
    </message>
    <message>
        <source>It lies across more than two spacings without arrivals.</source>
        <translation>Attraversa più di due intervalli fra geofoni senza arrivi.</translation>
    </message>
    <message>
        <source>It continues what lies beside it, beyond the last arrivals.</source>
        <translation>Prolunga ciò che gli sta accanto, oltre gli ultimi arrivi.</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>Depth %1 (m)</source>
        <translation>Profondità %1 (m)</translation>
    </message>
    <message>
        <source>V %1 (m/s)</source>
        <translation>V %1 (m/s)</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Profondità %1 da</translation>
    </message>
    <message>
        <source>Fitted to all picks, some of which come from here or go here.</source>
        <translation>Adattato a tutti gli arrivi, alcuni dei quali partono da qui o giungono qui.</translation>
    </message>
    <message>
        <source>No pick of the layer comes from here or goes here: it lies between what others tell.</source>
        <translation>Nessun arrivo dello strato parte da qui o giunge qui: il valore sta fra ciò che indicano altri.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReadingPanel</name>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Shots:</source>
        <translation>Tiri:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Tracce:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Campioni per traccia:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Intervallo di campionamento:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Ritardo di registrazione:</translation>
    </message>
    <message>
        <source>Shot at:</source>
        <translation>Posizione del tiro:</translation>
    </message>
    <message>
        <source>Geophones at:</source>
        <translation>Posizioni dei geofoni:</translation>
    </message>
    <message>
        <source>Shot in view:</source>
        <translation>Tiro in vista:</translation>
    </message>
    <message>
        <source>No trace</source>
        <translation>Nessuna traccia</translation>
    </message>
    <message>
        <source>No warnings</source>
        <translation>Nessun avvertimento</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non letto</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Nothing was read.</source>
        <translation>Non è stato letto nulla.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReadingsDialog</name>
    <message>
        <source>The standard reads more</source>
        <translation>Lo standard legge di più</translation>
    </message>
    <message>
        <source>The program&apos;s rules cannot carry all that these files hold. Read by the standard of their format they give more:</source>
        <translation>Le regole del programma non possono rendere tutto ciò che questi file contengono. Letti secondo lo standard del loro formato danno di più:</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>What gets lost by the program&apos;s rules</source>
        <translation>Che cosa va perso con le regole del programma</translation>
    </message>
    <message>
        <source>By the program&apos;s rules</source>
        <translation>Secondo le regole del programma</translation>
    </message>
    <message>
        <source>By the standard</source>
        <translation>Secondo lo standard</translation>
    </message>
    <message>
        <source>Use the &amp;standard for these files</source>
        <translation>Usa lo &amp;standard per questi file</translation>
    </message>
    <message>
        <source>&amp;Keep the program&apos;s rules</source>
        <translation>&amp;Mantieni le regole del programma</translation>
    </message>
    <message>
        <source>Files and what each reading finds in them</source>
        <translation>I file e ciò che ogni lettura vi trova</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityDialog</name>
    <message>
        <source>Reciprocity</source>
        <translation>Reciprocità</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Tempi di andata e di ritorno</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>Posizione [m]</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Coppie</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>In ritardo di [ms]</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Correzione</translation>
    </message>
    <message>
        <source>Differences of times there and back, shot by shot</source>
        <translation>Differenze fra i tempi di andata e di ritorno, tiro per tiro</translation>
    </message>
    <message>
        <source>The pick of the first shot at the place of the second comes into view in the window; a click on a line or a cell does the same</source>
        <translation>Il primo arrivo del primo tiro alla posizione del secondo viene in vista nella finestra; un clic su una riga o una cella fa lo stesso</translation>
    </message>
    <message>
        <source>Show pick &amp;there</source>
        <translation>Mostra l&apos;&amp;andata</translation>
    </message>
    <message>
        <source>The pick of the second shot at the place of the first comes into view; so does a click on the second shot of a line, or on the cell across the diagonal</source>
        <translation>Il primo arrivo del secondo tiro alla posizione del primo viene in vista; lo stesso fa un clic sul secondo tiro di una riga, o sulla cella opposta rispetto alla diagonale</translation>
    </message>
    <message>
        <source>Show pick &amp;back</source>
        <translation>Mostra il &amp;ritorno</translation>
    </message>
    <message>
        <source>Shifts the record of the chosen shot, with its picks, by the time that mends it; Undo takes it back</source>
        <translation>Trasla la registrazione del tiro scelto, con i suoi primi arrivi, del tempo che la corregge; &quot;Annulla modifica&quot; ripristina tutto</translation>
    </message>
    <message>
        <source>&amp;Mend</source>
        <translation>&amp;Correggi</translation>
    </message>
    <message>
        <source>Saves all pairs as a table (.csv)</source>
        <translation>Salva tutte le coppie come tabella (.csv)</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Salva tabella...</translation>
    </message>
    <message>
        <source>Pairs of shots: %1, RMS of their differences: %2 ms. A wave takes as long on the way back: what differs is a pick, or a clock.</source>
        <translation>Coppie di tiri: %1, RMS delle loro differenze: %2 ms. Un&apos;onda impiega al ritorno lo stesso tempo: se c&apos;è una differenza, è di un primo arrivo o di un orologio.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Tiro %1: %2.</translation>
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
        <translation>nessuna: non c&apos;è una registrazione da traslare</translation>
    </message>
    <message>
        <source>Pick the traces of more shots. Where they have picks, see whether geophones and shots stand where they stood.</source>
        <translation>Segna i primi arrivi di altri tiri. Dove ci sono già, controlla che geofoni e tiri siano dove stavano.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityMatrix</name>
    <message>
        <source>Row to column, longer than back by [ms]</source>
        <translation>Da riga a colonna, più lungo del ritorno di [ms]</translation>
    </message>
    <message>
        <source>Shot %1 to shot %2</source>
        <translation>Dal tiro %1 al tiro %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>%1: no picks along both ways</source>
        <translation>%1: mancano primi arrivi in entrambi i versi</translation>
    </message>
    <message>
        <source>%1: %2 ms, back %3 ms, difference %4 ms</source>
        <translation>%1: %2 ms, ritorno %3 ms, differenza %4 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityModel</name>
    <message>
        <source>Shows trace %1 of shot %2</source>
        <translation>Mostra la traccia %1 del tiro %2</translation>
    </message>
    <message>
        <source>–</source>
        <comment>not known</comment>
        <translation>–</translation>
    </message>
    <message>
        <source>The difference in standard deviations, where both picks have an error</source>
        <translation>La differenza in deviazioni standard, dove entrambi i primi arrivi hanno un errore</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>Posizione [m]</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Andata [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Ritorno [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Differenza [ms]</translation>
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
        <translation>Dettagli di registrazione</translation>
    </message>
    <message>
        <source>&amp;Shot:</source>
        <translation>&amp;Tiro:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Tracce:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Campioni per traccia:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Intervallo di campionamento:</translation>
    </message>
    <message>
        <source>Record length:</source>
        <translation>Lunghezza della registrazione:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Ritardo di registrazione:</translation>
    </message>
    <message>
        <source>Samples dropped before the shot:</source>
        <translation>Campioni tolti prima del tiro:</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Tracce del tiro</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>Geophone x (m)</source>
        <translation>Geofono x (m)</translation>
    </message>
    <message>
        <source>Geophone z (m)</source>
        <translation>Geofono z (m)</translation>
    </message>
    <message>
        <source>Shot x (m)</source>
        <translation>Tiro x (m)</translation>
    </message>
    <message>
        <source>Shot z (m)</source>
        <translation>Tiro z (m)</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source>Interval (ms)</source>
        <translation>Intervallo (ms)</translation>
    </message>
    <message>
        <source>Delay (ms)</source>
        <translation>Ritardo (ms)</translation>
    </message>
    <message>
        <source>&amp;Warnings of the reader:</source>
        <translation>&amp;Avvertimenti del lettore:</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Read by:</source>
        <translation>Letto secondo:</translation>
    </message>
    <message>
        <source>Mends:</source>
        <translation>Correzioni:</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>le regole del programma</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>lo standard del suo formato</translation>
    </message>
    <message>
        <source>the standard of its format; record %1 of the file, %2</source>
        <translation>lo standard del suo formato; registrazione %1 del file, %2</translation>
    </message>
    <message>
        <source>Pick (ms)</source>
        <translation>Primo arrivo (ms)</translation>
    </message>
    <message>
        <source>Error (ms)</source>
        <translation>Errore (ms)</translation>
    </message>
    <message>
        <source>Samples are kept:</source>
        <translation>Campioni conservati:</translation>
    </message>
    <message>
        <source>in memory and on the disk</source>
        <translation>in memoria e su disco</translation>
    </message>
    <message>
        <source>on the disk</source>
        <translation>su disco</translation>
    </message>
    <message>
        <source>in memory</source>
        <translation>in memoria</translation>
    </message>
    <message>
        <source>in memory, for %1</source>
        <translation>in memoria, perché %1</translation>
    </message>
    <message>
        <source>Filtered copy by:</source>
        <translation>Copia filtrata con:</translation>
    </message>
</context>
<context>
    <name>talvesk::RecoveryCopy</name>
    <message>
        <source>Nothing can be written in %1</source>
        <translation>Non è possibile scrivere in %1</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProcessingDialog</name>
    <message>
        <source>Refraction processing</source>
        <translation>Elaborazione a rifrazione</translation>
    </message>
    <message>
        <source>T-x curves</source>
        <translation>Curve T-x</translation>
    </message>
    <message>
        <source>Select layer:</source>
        <translation>Seleziona strato:</translation>
    </message>
    <message>
        <source>0 none</source>
        <translation>0 nessuno</translation>
    </message>
    <message>
        <source>1 direct wave</source>
        <translation>1 onda diretta</translation>
    </message>
    <message>
        <source>2 first refractor</source>
        <translation>2 primo rifrattore</translation>
    </message>
    <message>
        <source>3 second refractor</source>
        <translation>3 secondo rifrattore</translation>
    </message>
    <message>
        <source>Show layer:</source>
        <translation>Mostra strato:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
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
        <translation>Modificabile</translation>
    </message>
    <message>
        <source>Let clicks and drags mark picks</source>
        <translation>Clic e trascinamenti assegnano gli arrivi</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla modifica</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti modifica</translation>
    </message>
    <message>
        <source>Propose layers</source>
        <translation>Proponi strati</translation>
    </message>
    <message>
        <source>Find the break points of all branches</source>
        <translation>Trova i punti di ginocchio di tutti i rami</translation>
    </message>
    <message>
        <source>Clear marks</source>
        <translation>Cancella assegnazioni</translation>
    </message>
    <message>
        <source>Shot:</source>
        <translation>Tiro:</translation>
    </message>
    <message>
        <source>Takes part</source>
        <translation>Partecipa</translation>
    </message>
    <message>
        <source>Whether the chosen shot takes part in the interpretation</source>
        <translation>Se il tiro scelto partecipa all&apos;interpretazione</translation>
    </message>
    <message>
        <source>Phantoming</source>
        <translation>Phantoming</translation>
    </message>
    <message>
        <source>Auto phantoming</source>
        <translation>Phantoming automatico</translation>
    </message>
    <message>
        <source>Complete the curves of the end shots by the arrivals of the other shots</source>
        <translation>Completa le dromocrone dei tiri estremi con gli arrivi degli altri tiri</translation>
    </message>
    <message>
        <source>Time shifts</source>
        <translation>Traslazioni temporali</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Strato</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Ricevitori</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Arrivi</translation>
    </message>
    <message>
        <source>Shift (ms)</source>
        <translation>Traslazione (ms)</translation>
    </message>
    <message>
        <source>tV/tG</source>
        <translation>tV/tG</translation>
    </message>
    <message>
        <source>Refractor:</source>
        <translation>Rifrattore:</translation>
    </message>
    <message>
        <source>Velocity/Profile</source>
        <translation>Velocità/Profilo</translation>
    </message>
    <message>
        <source>Build profiles</source>
        <translation>Costruisci profili</translation>
    </message>
    <message>
        <source>Curves, tV and tG, velocities and depths from the marks</source>
        <translation>Dromocrone, tV e tG, velocità e profondità dalle assegnazioni</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>time (ms)</source>
        <translation>tempo (ms)</translation>
    </message>
    <message>
        <source>There are no picks to assign to layers: pick first breaks, or import travel times.</source>
        <translation>Non ci sono arrivi da assegnare agli strati: individuare i primi arrivi o importare tempi di percorso.</translation>
    </message>
    <message>
        <source>Phantom travel times</source>
        <translation>Tempi di percorso fantasma</translation>
    </message>
    <message>
        <source>No curves yet.

Assign picks to layer 2 for a shot at either end of the line, then press &quot;Auto phantoming&quot; or &quot;Build profiles&quot;.</source>
        <translation>Ancora nessuna dromocrona.

Assegnare allo strato 2 gli arrivi di un tiro a ciascuna estremità della linea, poi premere &quot;Phantoming automatico&quot; o &quot;Costruisci profili&quot;.</translation>
    </message>
    <message>
        <source>tV, velocity analysis</source>
        <translation>tV, analisi di velocità</translation>
    </message>
    <message>
        <source>tG, time depth</source>
        <translation>tG, profondità in tempo</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Velocity (m/s)</source>
        <translation>Velocità (m/s)</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Profilo a rifrazione</translation>
    </message>
    <message>
        <source>Z (m)</source>
        <translation>Z (m)</translation>
    </message>
    <message>
        <source>Nothing is built yet: assign picks to layers and press &quot;Build profiles&quot;.</source>
        <translation>Ancora nulla di costruito: assegnare gli arrivi agli strati e premere &quot;Costruisci profili&quot;.</translation>
    </message>
    <message>
        <source>There is no depth to show. Layer 1 needs a branch with two picks, and each refractor has to be faster than the layer above.</source>
        <translation>Nessuna profondità da mostrare. Lo strato 1 richiede un ramo con due arrivi e ogni rifrattore deve essere più veloce dello strato sovrastante.</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Tutti i tiri</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1: a %2</translation>
    </message>
    <message numerus="yes">
        <source>take %n pick(s) out</source>
        <translation>
            <numerusform>togli %n arrivo</numerusform>
            <numerusform>togli %n arrivi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>mark %n pick(s)</source>
        <translation>
            <numerusform>assegna %n arrivo</numerusform>
            <numerusform>assegna %n arrivi</numerusform>
        </translation>
    </message>
    <message>
        <source>The marks have changed since the profiles were built.</source>
        <translation>Le assegnazioni sono cambiate dopo la costruzione dei profili.</translation>
    </message>
    <message>
        <source>Click a pick, or drag around several, to assign them. Keys 1, 2, 3 and 0: layer</source>
        <translation>Cliccare un arrivo, o trascinare attorno a più d&apos;uno, per assegnarli. Tasti 1, 2, 3 e 0: strato</translation>
    </message>
    <message>
        <source>right of shot %1</source>
        <translation>a destra del tiro %1</translation>
    </message>
    <message>
        <source>left of shot %1</source>
        <translation>a sinistra del tiro %1</translation>
    </message>
    <message>
        <source>no velocity</source>
        <translation>nessuna velocità</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 (%4 picks)</source>
        <translation>Strato %1, %2: %3 (%4 arrivi)</translation>
    </message>
    <message>
        <source>Replace the marks by a proposal?</source>
        <translation>Sostituire le assegnazioni con una proposta?</translation>
    </message>
    <message>
        <source>All picks are assigned anew from the break points of the branches. Undo brings the marks back.</source>
        <translation>Tutti gli arrivi vengono riassegnati dai punti di ginocchio dei rami. &quot;Annulla modifica&quot; ripristina le assegnazioni.</translation>
    </message>
    <message>
        <source>No branch of the curves has picks enough to tell layers apart.</source>
        <translation>Nessun ramo delle dromocrone ha abbastanza arrivi per distinguere gli strati.</translation>
    </message>
    <message>
        <source>propose layers</source>
        <translation>proponi strati</translation>
    </message>
    <message>
        <source>clear marks</source>
        <translation>cancella assegnazioni</translation>
    </message>
    <message>
        <source>let shot %1 take part</source>
        <translation>fai partecipare il tiro %1</translation>
    </message>
    <message>
        <source>leave shot %1 out</source>
        <translation>escludi il tiro %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>No profile could be built.</source>
        <translation>Impossibile costruire un profilo.</translation>
    </message>
    <message>
        <source>first (layer 2)</source>
        <translation>primo (strato 2)</translation>
    </message>
    <message>
        <source>second (layer 3)</source>
        <translation>secondo (strato 3)</translation>
    </message>
    <message>
        <source>Layer %1 from shot %2</source>
        <translation>Strato %1 dal tiro %2</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>a destra</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>a sinistra</translation>
    </message>
    <message>
        <source>other XY</source>
        <translation>altri XY</translation>
    </message>
    <message>
        <source>XY = %1</source>
        <translation>XY = %1</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Strato %1</translation>
    </message>
    <message>
        <source>Close without keeping the changes?</source>
        <translation>Chiudere senza conservare le modifiche?</translation>
    </message>
    <message>
        <source>XY, half distance (m):</source>
        <translation>XY, metà distanza (m):</translation>
    </message>
    <message>
        <source>The forward curve is read at the distance XY after the receiver, the reverse curve at XY before it: the two points lie 2 XY apart.</source>
        <translation>La dromocrona diretta è letta a distanza XY dopo il ricevitore, quella inversa a distanza XY prima: i due punti distano 2 XY.</translation>
    </message>
    <message>
        <source>The picks have changed since the profiles were built.</source>
        <translation>Gli arrivi sono cambiati dopo la costruzione dei profili.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known. Build the profiles again to be told why.</source>
        <translation>Alcune velocità o profondità non sono note. Costruire di nuovo i profili per saperne il motivo.</translation>
    </message>
    <message>
        <source>Propose over the whole survey</source>
        <translation>Proponi su tutto il rilievo</translation>
    </message>
    <message>
        <source>Fit ground of one, two and three layers, and ground whose velocity grows steadily, to all picks together, and propose what fits best</source>
        <translation>Adatta a tutti gli arrivi insieme terreni di uno, due e tre strati, e un terreno la cui velocità cresce costantemente, e propone ciò che si accorda meglio</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Tempi calcolati</translation>
    </message>
    <message>
        <source>Draw the arrivals through the profiles as they were built, as black lines: for every pick the wave of its layer</source>
        <translation>Disegna come linee nere gli arrivi attraverso i profili così come sono stati costruiti: per ogni arrivo letto, l&apos;onda del suo strato</translation>
    </message>
    <message>
        <source>RMS misfit (ms)</source>
        <translation>Scarto RMS (ms)</translation>
    </message>
    <message>
        <source>; misfit of the shot %1</source>
        <translation>; scarto del tiro: %1</translation>
    </message>
    <message>
        <source>No layers are proposed.</source>
        <translation>Nessuno strato proposto.</translation>
    </message>
    <message numerus="yes">
        <source>No layers are proposed. Mark %n layers all the same?</source>
        <translation>
            <numerusform>Nessuno strato proposto. Assegnare comunque gli arrivi a %n strato?</numerusform>
            <numerusform>Nessuno strato proposto. Assegnare comunque gli arrivi a %n strati?</numerusform>
        </translation>
    </message>
    <message>
        <source>propose layers over the whole survey</source>
        <translation>proponi strati su tutto il rilievo</translation>
    </message>
    <message>
        <source>Proposal over the whole survey: %1</source>
        <translation>Proposta su tutto il rilievo: %1</translation>
    </message>
    <message>
        <source>The marks are no longer those of this proposal.</source>
        <translation>Le assegnazioni non sono più quelle di questa proposta.</translation>
    </message>
    <message>
        <source>Computing times...</source>
        <translation>Calcolo dei tempi...</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1: the picks do not tell</source>
        <translation>%1: gli arrivi non lo indicano</translation>
    </message>
    <message>
        <source>smoothest tV</source>
        <translation>tV più regolare</translation>
    </message>
    <message>
        <source>most even velocity</source>
        <translation>velocità più uniforme</translation>
    </message>
    <message>
        <source>%1: tV rough by %2 ms, velocity uneven by %3 %</source>
        <translation>%1: irregolarità di tV %2 ms, disuniformità della velocità %3 %</translation>
    </message>
    <message>
        <source>Depths and velocities</source>
        <translation>Profondità e velocità</translation>
    </message>
    <message>
        <source>Compare &amp;methods ...</source>
        <translation>Confronta &amp;metodi ...</translation>
    </message>
    <message>
        <source>Layers from the marks by other methods beside the reciprocal one: delay times, intercept times and plus-minus</source>
        <translation>Strati dalle assegnazioni con altri metodi oltre a quello reciproco: tempi di ritardo, tempi d&apos;intercetta e plus-minus</translation>
    </message>
    <message>
        <source>There is no profile yet.</source>
        <translation>Non c&apos;è ancora un profilo.</translation>
    </message>
    <message>
        <source>Picks or marks have changed: build the profiles again.</source>
        <translation>Arrivi o assegnazioni sono cambiati: costruire di nuovo i profili.</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Profilo:</translation>
    </message>
    <message>
        <source>How &quot;Build profiles&quot; finds velocities and depths: from the curves of the end shots, or so that computed times fit the picks of all shots</source>
        <translation>Come &quot;Costruisci profili&quot; trova velocità e profondità: dalle dromocrone dei tiri estremi, oppure in modo che i tempi calcolati si adattino agli arrivi di tutti i tiri</translation>
    </message>
    <message>
        <source>Reciprocal method</source>
        <translation>Metodo reciproco</translation>
    </message>
    <message>
        <source>Fitted to all picks</source>
        <translation>Adattato a tutti gli arrivi</translation>
    </message>
    <message>
        <source>No profile can be fitted to all picks.</source>
        <translation>Non è possibile adattare un profilo a tutti gli arrivi.</translation>
    </message>
    <message>
        <source>Direct waves and waves along refractors do not explain picks that are marked so. Look at the marks, or choose &quot;Reciprocal method&quot;.</source>
        <translation>Onde dirette e onde lungo i rifrattori non spiegano arrivi assegnati così. Controllare le assegnazioni, oppure scegliere &quot;Metodo reciproco&quot;.</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Nessun tiro che partecipa ha arrivi dello strato 2.</translation>
    </message>
    <message>
        <source>The profile that is shown is by the reciprocal method.</source>
        <translation>Il profilo mostrato è ottenuto con il metodo reciproco.</translation>
    </message>
    <message>
        <source>The profile that is shown is fitted to all picks.</source>
        <translation>Il profilo mostrato è adattato a tutti gli arrivi.</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no tV and tG.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Un profilo adattato a tutti gli arrivi non ha tV e tG.

Per averli, scegliere &quot;Metodo reciproco&quot; e premere &quot;Costruisci profili&quot;.</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no phantom arrivals.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Un profilo adattato a tutti gli arrivi non ha arrivi fantasma.

Per averli, scegliere &quot;Metodo reciproco&quot; e premere &quot;Costruisci profili&quot;.</translation>
    </message>
    <message>
        <source>&quot;Build profiles&quot; fits the profile to all picks; beside it the reciprocal method can be chosen.</source>
        <translation>&quot;Costruisci profili&quot; adatta il profilo a tutti gli arrivi; accanto si può scegliere il metodo reciproco.</translation>
    </message>
    <message>
        <source>Layer 1 at the surface, growing with depth</source>
        <translation>Strato 1 in superficie, crescente con la profondità</translation>
    </message>
    <message>
        <source>What errors of the picks make of a profile is found for the reciprocal method only.</source>
        <translation>L&apos;effetto degli errori degli arrivi su un profilo si determina solo per il metodo reciproco.</translation>
    </message>
    <message>
        <source>Velocities and depths are fitted to all picks. %1</source>
        <translation>Velocità e profondità sono adattate a tutti gli arrivi. %1</translation>
    </message>
    <message>
        <source>Misfit: %1.</source>
        <translation>Scarto: %1.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known: no ground has those that fit there.</source>
        <translation>Alcune velocità o profondità non sono note: quelle che lì si adatterebbero non sono possibili in alcun terreno.</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProfilePlot</name>
    <message>
        <source>Geophones</source>
        <translation>Geofoni</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionTexts</name>
    <message>
        <source>Unable to find nearest shot for first refractor</source>
        <translation>Impossibile trovare il tiro più vicino per il primo rifrattore</translation>
    </message>
    <message>
        <source>Velocity is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>La velocità è minore di zero in almeno un ricevitore. Il profilo potrebbe non essere accurato. Controllare i dati di ingresso </translation>
    </message>
    <message>
        <source>Strong lateral velocity variations. The profile may not be accurate.</source>
        <translation>Forti variazioni laterali di velocità. Il profilo potrebbe non essere accurato.</translation>
    </message>
    <message>
        <source>The Tg function is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>La funzione Tg è minore di zero in almeno un ricevitore. Il profilo potrebbe non essere accurato. Controllare i dati di ingresso </translation>
    </message>
    <message>
        <source>Layer %1: no shot at each end of the line has picks of it, so it has no profile.</source>
        <translation>Strato %1: non c&apos;è un tiro con suoi arrivi a ciascuna estremità della linea, quindi non ha profilo.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the start of the line has fewer than two usable picks of it, so there is no forward curve.</source>
        <translation>Strato %1: il tiro all&apos;inizio della linea ha meno di due arrivi utilizzabili, quindi manca la dromocrona diretta.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the end of the line has fewer than two usable picks of it, so there is no reverse curve.</source>
        <translation>Strato %1: il tiro alla fine della linea ha meno di due arrivi utilizzabili, quindi manca la dromocrona inversa.</translation>
    </message>
    <message>
        <source>Layer %1: forward and reverse curve have fewer than two receivers in common.</source>
        <translation>Strato %1: le dromocrone diretta e inversa hanno meno di due ricevitori in comune.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it is not faster than the layer above.</source>
        <translation>Strato %1: nessuna profondità in %2 ricevitori su %3, dove non è più veloce dello strato sovrastante.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, which lie beyond the profile of the layer above.</source>
        <translation>Strato %1: nessuna profondità in %2 ricevitori su %3, che stanno oltre il profilo dello strato sovrastante.</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Nessun tiro che partecipa ha arrivi dello strato 2.</translation>
    </message>
    <message>
        <source>At each end of the line, or beyond, there must be a shot with picks of layer 2. Such shots reach from %1 to %2, but the geophones from %3 to %4.</source>
        <translation>A ogni estremo della linea, o oltre, serve un tiro con arrivi dello strato 2. Questi tiri vanno da %1 a %2, i geofoni invece da %3 a %4.</translation>
    </message>
    <message>
        <source>Layer %1: no shot that takes part has two picks of it on one side, so it has no velocity and the layers below have no depth.</source>
        <translation>Strato %1: nessun tiro che partecipa ne ha due arrivi su un lato, quindi non ha velocità e gli strati sottostanti non hanno profondità.</translation>
    </message>
    <message>
        <source>Layer %1: its velocity comes out outside %2 to %3, so it has none and the layers below have no depth.</source>
        <translation>Strato %1: la sua velocità risulta fuori dall&apos;intervallo da %2 a %3, quindi non ne ha una e gli strati sottostanti non hanno profondità.</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 of %3 receivers, where the velocity comes out outside %4 to %5.</source>
        <translation>Strato %1: nessuna velocità e nessuna profondità in %2 ricevitori su %3, dove la velocità risulta fuori dall&apos;intervallo da %4 a %5.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it comes out deeper than the line is long.</source>
        <translation>Strato %1: nessuna profondità in %2 ricevitori su %3, dove risulta maggiore della lunghezza della linea.</translation>
    </message>
    <message>
        <source>Layer 1 has %1 in the mean, and %2 to %3 at the surface.</source>
        <translation>Lo strato 1 ha in media %1, e da %2 a %3 in superficie.</translation>
    </message>
    <message>
        <source>It grows by %1 % of that per %2, down to %3.</source>
        <translation>La velocità cresce del %1 % di quest&apos;ultimo valore per %2, fino a %3 di profondità.</translation>
    </message>
</context>
<context>
    <name>talvesk::Report</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>Table %1. %2</source>
        <translation>Tabella %1. %2</translation>
    </message>
    <message>
        <source>Figure %1. %2</source>
        <translation>Figura %1. %2</translation>
    </message>
    <message>
        <source>Seismic refraction survey</source>
        <translation>Rilievo sismico a rifrazione</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Position [%1]</source>
        <translation>Posizione [%1]</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Tracce</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Primi arrivi</translation>
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
        <translation>Media [ms]</translation>
    </message>
    <message>
        <source>Largest [ms]</source>
        <translation>Massimo [ms]</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Linear weighted</source>
        <translation>Pesato linearmente</translation>
    </message>
    <message>
        <source>Gaussian weighted</source>
        <translation>Pesato con una gaussiana</translation>
    </message>
    <message>
        <source>Ray based</source>
        <translation>Basato sui raggi</translation>
    </message>
    <message>
        <source>Uniform weighted</source>
        <translation>A pesi uniformi</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Celle</translation>
    </message>
    <message>
        <source>%1 rows by %2 columns</source>
        <translation>%1 righe per %2 colonne</translation>
    </message>
    <message>
        <source>Side of a cell</source>
        <translation>Lato di una cella</translation>
    </message>
    <message>
        <source>Depth below the surface</source>
        <translation>Profondità dalla superficie</translation>
    </message>
    <message>
        <source>Nodes per cell side</source>
        <translation>Nodi per lato di cella</translation>
    </message>
    <message>
        <source>Nodes altogether</source>
        <translation>Nodi in tutto</translation>
    </message>
    <message>
        <source>The grid under the line</source>
        <translation>La griglia sotto la linea</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Strato</translation>
    </message>
    <message>
        <source>Top [%1]</source>
        <translation>Tetto [%1]</translation>
    </message>
    <message>
        <source>Bottom [%1]</source>
        <translation>Letto [%1]</translation>
    </message>
    <message>
        <source>Velocity at top [%1]</source>
        <translation>Velocità al tetto [%1]</translation>
    </message>
    <message>
        <source>Velocity at bottom [%1]</source>
        <translation>Velocità al letto [%1]</translation>
    </message>
    <message>
        <source>The layers of the starting model, depths below the surface</source>
        <translation>Gli strati del modello iniziale, profondità dalla superficie</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1, stopped by the user</source>
        <translation>%1, interrotta dall&apos;utente</translation>
    </message>
    <message>
        <source>External iterations</source>
        <translation>Iterazioni esterne</translation>
    </message>
    <message>
        <source>Solver iterations on the rays of each</source>
        <translation>Iterazioni del risolutore sui raggi di ognuna</translation>
    </message>
    <message>
        <source>Velocity limits</source>
        <translation>Limiti di velocità</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Smussamento</translation>
    </message>
    <message>
        <source>Smoothing radius</source>
        <translation>Raggio di smussamento</translation>
    </message>
    <message>
        <source>1 cell</source>
        <translation>1 cella</translation>
    </message>
    <message>
        <source>%1 cells</source>
        <translation>%1 celle</translation>
    </message>
    <message>
        <source>Height over width of the smoothing window</source>
        <translation>Altezza su larghezza della finestra di smussamento</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Tempo impiegato</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Parameters of the inversion</source>
        <translation>Parametri dell&apos;inversione</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Iterazione esterna</translation>
    </message>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Scarto dopo ogni iterazione esterna</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Tempi di arrivo</translation>
    </message>
    <message>
        <source>No first breaks have been picked.</source>
        <translation>Non sono stati letti primi arrivi.</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks against distance</source>
        <translation>Dromocrone: primi arrivi letti in funzione della distanza</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks (symbols) and times computed through the section (lines) against distance</source>
        <translation>Dromocrone: primi arrivi letti (simboli) e tempi calcolati attraverso la sezione (linee) in funzione della distanza</translation>
    </message>
    <message>
        <source>Picks of every shot</source>
        <translation>Primi arrivi di ogni tiro</translation>
    </message>
    <message>
        <source>Picks of every shot and their misfit, computed minus measured</source>
        <translation>Primi arrivi di ogni tiro e il loro scarto, calcolati meno misurati</translation>
    </message>
    <message>
        <source>Grid and inversion</source>
        <translation>Griglia e inversione</translation>
    </message>
    <message>
        <source>No grid has been built and nothing has been inverted.</source>
        <translation>Nessuna griglia è stata costruita e nulla è stato invertito.</translation>
    </message>
    <message>
        <source>The parameters of the inversion are not known.</source>
        <translation>I parametri dell&apos;inversione non sono noti.</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sezione di velocità</translation>
    </message>
    <message>
        <source>Misfit</source>
        <translation>Scarto</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Primi arrivi usati</translation>
    </message>
    <message>
        <source>RMS misfit</source>
        <translation>Scarto quadratico medio</translation>
    </message>
    <message>
        <source>%1 ms, %2 %</source>
        <translation>%1 ms, %2 %</translation>
    </message>
    <message>
        <source>Residuals of the picks against the distance from their shot</source>
        <translation>Residui dei primi arrivi in funzione della distanza dal tiro</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Quota [%1]</translation>
    </message>
    <message>
        <source>Depth %1 [%2]</source>
        <translation>Profondità %1 [%2]</translation>
    </message>
    <message>
        <source>Velocity %1 [%2]</source>
        <translation>Velocità %1 [%2]</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Interpretazione a rifrazione</translation>
    </message>
    <message>
        <source>Velocity of the first layer</source>
        <translation>Velocità del primo strato</translation>
    </message>
    <message>
        <source>Velocity of refractor %1</source>
        <translation>Velocità del rifrattore %1</translation>
    </message>
    <message>
        <source>Distance XY of refractor %1</source>
        <translation>Distanza XY del rifrattore %1</translation>
    </message>
    <message>
        <source>Layers and refractors</source>
        <translation>Strati e rifrattori</translation>
    </message>
    <message>
        <source>Section of the layers</source>
        <translation>Sezione degli strati</translation>
    </message>
    <message>
        <source>Depths below the surface and velocities of the refractors</source>
        <translation>Profondità dalla superficie e velocità dei rifrattori</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>The refractors were interpreted by the generalised reciprocal method. First breaks were assigned to layers, and the arrivals of each refractor from both ends of the line were completed by shifted arrivals of the other shots. The velocity-analysis function gives the velocity of the refractor, the time-depth function its depth beneath each geophone.</source>
        <translation>I rifrattori sono stati interpretati con il metodo reciproco generalizzato. I primi arrivi sono stati assegnati agli strati, e gli arrivi di ogni rifrattore dai due estremi della linea completati con arrivi traslati degli altri tiri. La funzione di analisi della velocità dà la velocità del rifrattore, la funzione tempo-profondità la sua profondità sotto ogni geofono.</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Onde</translation>
    </message>
    <message>
        <source>S waves</source>
        <translation>Onde S</translation>
    </message>
    <message>
        <source>P waves</source>
        <translation>Onde P</translation>
    </message>
    <message>
        <source>Geophones from, to</source>
        <translation>Geofoni da, a</translation>
    </message>
    <message>
        <source>Length of the line</source>
        <translation>Lunghezza della linea</translation>
    </message>
    <message>
        <source>Elevation of the geophones</source>
        <translation>Quota dei geofoni</translation>
    </message>
    <message>
        <source>Shots from, to</source>
        <translation>Tiri da, a</translation>
    </message>
    <message>
        <source>Geophone strings</source>
        <translation>Stese</translation>
    </message>
    <message>
        <source>Geophone positions</source>
        <translation>Posizioni dei geofoni</translation>
    </message>
    <message>
        <source>Number of shots</source>
        <translation>Numero dei tiri</translation>
    </message>
    <message>
        <source>The line</source>
        <translation>La linea</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Stesa</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geofoni</translation>
    </message>
    <message>
        <source>From [%1]</source>
        <translation>Da [%1]</translation>
    </message>
    <message>
        <source>To [%1]</source>
        <translation>A [%1]</translation>
    </message>
    <message>
        <source>Spacing [%1]</source>
        <translation>Passo [%1]</translation>
    </message>
    <message>
        <source>Strings of geophones</source>
        <translation>Stese di geofoni</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Interval [ms]</source>
        <translation>Intervallo [ms]</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source>Length [ms]</source>
        <translation>Durata [ms]</translation>
    </message>
    <message>
        <source>Shots and their recordings</source>
        <translation>I tiri e le loro registrazioni</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Committente</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Sito</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Survey</source>
        <translation>Rilievo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>End of the line</source>
        <translation>Estremo della linea</translation>
    </message>
    <message>
        <source>Easting [m]</source>
        <translation>Est [m]</translation>
    </message>
    <message>
        <source>Northing [m]</source>
        <translation>Nord [m]</translation>
    </message>
    <message>
        <source>Longitude [°]</source>
        <translation>Longitudine [°]</translation>
    </message>
    <message>
        <source>Latitude [°]</source>
        <translation>Latitudine [°]</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Primo geofono</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Ultimo geofono</translation>
    </message>
    <message>
        <source>The coordinate reference system of the line is not set.</source>
        <translation>Il sistema di riferimento delle coordinate della linea non è indicato.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1.</source>
        <translation>Sistema di riferimento delle coordinate: EPSG:%1.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1, %2.</source>
        <translation>Sistema di riferimento delle coordinate: EPSG:%1, %2.</translation>
    </message>
    <message>
        <source>Ends of the line; longitude and latitude on WGS 84</source>
        <translation>Estremi della linea; longitudine e latitudine in WGS 84</translation>
    </message>
    <message>
        <source>Ends of the line</source>
        <translation>Estremi della linea</translation>
    </message>
    <message>
        <source>Information density: how completely rays cross the surroundings of each cell</source>
        <translation>Densità d&apos;informazione: quanto i raggi attraversano i dintorni di ogni cella</translation>
    </message>
    <message>
        <source>Velocity section with rays</source>
        <translation>Sezione di velocità con i raggi</translation>
    </message>
    <message>
        <source>Largest relative late error</source>
        <translation>Massimo ritardo relativo</translation>
    </message>
    <message>
        <source>%1 % (%2 ms)</source>
        <translation>%1 % (%2 ms)</translation>
    </message>
    <message>
        <source>Computing time</source>
        <translation>Tempo di calcolo</translation>
    </message>
    <message>
        <source>Mean of computed minus measured</source>
        <translation>Media di calcolati meno misurati</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Largest difference</source>
        <translation>Differenza massima</translation>
    </message>
    <message>
        <source>%1 ms, shot %2, receiver %3</source>
        <translation>%1 ms, tiro %2, ricevitore %3</translation>
    </message>
    <message>
        <source>Misfit of the section, along fresh rays</source>
        <translation>Scarto della sezione, lungo raggi nuovi</translation>
    </message>
    <message>
        <source>The section was smoothed after the inversion; its misfit is that of the smoothed one.</source>
        <translation>La sezione è stata smussata dopo l&apos;inversione; il suo scarto è quello della sezione smussata.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion: the section was fitted to others than those that its misfit is told of here.</source>
        <translation>I primi arrivi sono cambiati dopo l&apos;inversione: la sezione è stata adattata ad arrivi diversi da quelli a cui si riferisce lo scarto indicato qui.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Last solver pass of the inversion</source>
        <translation>Ultimo passaggio del risolutore nell&apos;inversione</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Sezione, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Ultimo passaggio del risolutore, RMS [ms]</translation>
    </message>
    <message>
        <source>The misfit of the section is that of fresh rays through the section that an iteration has left; 0 is the starting model. The last solver pass of an iteration goes along its old rays, before the last correction of the velocities and before they are smoothed, and its misfit is usually smaller.</source>
        <translation>Lo scarto della sezione è quello di raggi nuovi attraverso la sezione lasciata da un&apos;iterazione; 0 è il modello iniziale. L&apos;ultimo passaggio del risolutore di un&apos;iterazione segue i suoi vecchi raggi, prima dell&apos;ultima correzione delle velocità e prima che siano smussate, e il suo scarto è di solito minore.</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every external iteration (blue), 0 being the starting model, and of the last solver pass of each (grey)</source>
        <translation>Scarto quadratico medio della sezione dopo ogni iterazione esterna (blu), 0 essendo il modello iniziale, e dell&apos;ultimo passaggio del risolutore di ognuna (grigio)</translation>
    </message>
    <message>
        <source>The picks have changed since this profile was built: it is that of the earlier picks.</source>
        <translation>I primi arrivi sono cambiati dopo la costruzione di questo profilo: è quello degli arrivi precedenti.</translation>
    </message>
    <message>
        <source>No velocity is given where the times lead to one outside %1 to %2. No depth is given there, below a layer whose velocity or depth is not known or which is faster, and where it came out deeper than the line is long.</source>
        <translation>Dove i tempi portano a una velocità fuori dall&apos;intervallo da %1 a %2 non se ne dà alcuna. La profondità non è data in quei punti, né sotto uno strato più veloce o di velocità o profondità non note, né dove è risultata maggiore della lunghezza della linea.</translation>
    </message>
    <message>
        <source>First breaks are the times at which the first seismic energy of a shot reaches each geophone. They were picked on the recorded traces.</source>
        <translation>I primi arrivi sono i tempi in cui la prima energia sismica di un tiro raggiunge ogni geofono. Sono stati letti sulle tracce registrate.</translation>
    </message>
    <message>
        <source>They were inverted by travel-time tomography. The ground beneath the line is divided into square cells of constant velocity, which follow the surface. From each shot the fastest paths to all geophones are searched for in the network of nodes on the sides of the cells; they are the rays. The differences between measured and computed times are distributed along the rays and correct the slowness of the cells that they cross, several times over on the same rays, within the limits of velocity. The corrected section is smoothed, and new rays are traced through it: that is one external iteration.</source>
        <translation>Sono stati invertiti per tomografia dei tempi di arrivo. Il terreno sotto la linea è diviso in celle quadrate a velocità costante, che seguono la superficie. Da ogni tiro si cercano i percorsi più rapidi verso tutti i geofoni nella rete dei nodi sui lati delle celle: sono i raggi. Le differenze fra tempi misurati e calcolati si distribuiscono lungo i raggi e correggono la lentezza delle celle attraversate, più volte sugli stessi raggi ed entro i limiti di velocità. La sezione corretta viene smussata e vi si tracciano nuovi raggi: questa è un&apos;iterazione esterna.</translation>
    </message>
    <message>
        <source>The misfit is the difference between computed and measured times. The computed times are those along fresh rays through the section as it is drawn. RMS is the root mean square of the misfit, in milliseconds or relative to the measured times in percent. The information density tells how completely rays cross the surroundings of a cell; where it is low, velocities are poorly supported by the data, and below the lowest rays the section is not drawn. Velocities that decrease with depth and thin layers may remain hidden from first arrivals.</source>
        <translation>Lo scarto è la differenza fra tempi calcolati e misurati. I tempi calcolati sono quelli lungo raggi nuovi attraverso la sezione così come è disegnata. RMS è la media quadratica dello scarto, in millisecondi o in percentuale dei tempi misurati. La densità d&apos;informazione dice quanto completamente i raggi attraversano i dintorni di una cella; dove è bassa le velocità sono poco sostenute dai dati, e sotto i raggi più profondi la sezione non è disegnata. Velocità che diminuiscono con la profondità e strati sottili possono restare nascosti ai primi arrivi.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion.</source>
        <translation>I primi arrivi sono cambiati dopo l&apos;inversione.</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Tralasciati</translation>
    </message>
    <message>
        <source>Shots: %1; geophones: %2; picks: %3 of %4</source>
        <translation>Tiri: %1; geofoni: %2; primi arrivi: %3 di %4</translation>
    </message>
    <message>
        <source>No result of an inversion is known: the grid has the velocities that it was left with.</source>
        <translation>Nessun risultato di un&apos;inversione è noto: la griglia ha le velocità che le sono rimaste.</translation>
    </message>
    <message>
        <source>Velocities of the grid</source>
        <translation>Velocità della griglia</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Correzione</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Correzioni</translation>
    </message>
    <message>
        <source>The recordings of these shots are put right as listed. All figures and times of this report are of the mended recordings.</source>
        <translation>Le registrazioni di questi tiri sono corrette come indicato nell&apos;elenco. Tutte le figure e i tempi di questa relazione sono delle registrazioni corrette.</translation>
    </message>
    <message>
        <source>Mends of recordings</source>
        <translation>Correzioni delle registrazioni</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buoni</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Dubbi</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Errore ignoto</translation>
    </message>
    <message>
        <source>Median error [ms]</source>
        <translation>Errore mediano [ms]</translation>
    </message>
    <message>
        <source>Largest error [ms]</source>
        <translation>Errore massimo [ms]</translation>
    </message>
    <message>
        <source>Errors of the picks of every shot</source>
        <translation>Errori dei primi arrivi di ogni tiro</translation>
    </message>
    <message>
        <source>The error of a pick is one standard deviation. A pick is good up to %1 ms and doubtful beyond.</source>
        <translation>L&apos;errore di un primo arrivo è una deviazione standard. Un primo arrivo è buono fino a %1 ms, dubbio oltre.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Adattamento entro gli errori dei primi arrivi</translation>
    </message>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Errori dei primi arrivi che non ne indicano</translation>
    </message>
    <message>
        <source>%1 ms, or %2 % of the time where that is more</source>
        <translation>%1 ms, o il %2 % del tempo dove è di più</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi quadrato</translation>
    </message>
    <message>
        <source>%1; of all picks %2</source>
        <translation>%1; di tutti i primi arrivi %2</translation>
    </message>
    <message>
        <source>Target reached</source>
        <translation>Obiettivo raggiunto</translation>
    </message>
    <message>
        <source>Suspect picks, left out of chi-square</source>
        <translation>Primi arrivi sospetti, esclusi dal chi quadrato</translation>
    </message>
    <message>
        <source>Iterations to this section</source>
        <translation>Iterazioni fino a questa sezione</translation>
    </message>
    <message>
        <source>Few sharp steps rather than gentle slopes</source>
        <translation>Pochi salti netti invece di variazioni graduali</translation>
    </message>
    <message>
        <source>Time shifts of shots fitted, too</source>
        <translation>Traslazioni temporali dei tiri incluse nell&apos;adattamento</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Coppie</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>In ritardo di [ms]</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Reciprocity of every shot</source>
        <translation>Reciprocità di ogni tiro</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Andata [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Ritorno [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Differenza [ms]</translation>
    </message>
    <message>
        <source>The pairs of shots that differ most</source>
        <translation>Le coppie di tiri che differiscono di più</translation>
    </message>
    <message>
        <source>Pairs of shots</source>
        <translation>Coppie di tiri</translation>
    </message>
    <message>
        <source>Reciprocity</source>
        <translation>Reciprocità</translation>
    </message>
    <message>
        <source>A wave takes as long from one shot to the place of another as back. Pairs of shots with picks along both ways: %1; RMS of their differences: %2 ms.</source>
        <translation>Un&apos;onda impiega da un tiro alla posizione di un altro lo stesso tempo che al ritorno. Coppie di tiri con primi arrivi in entrambi i versi: %1; RMS delle loro differenze: %2 ms.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Tiro %1: %2.</translation>
    </message>
    <message>
        <source>gradient read from the picks</source>
        <translation>gradiente ricavato dai primi arrivi</translation>
    </message>
    <message>
        <source>two layers read from the picks</source>
        <translation>due strati ricavati dai primi arrivi</translation>
    </message>
    <message>
        <source>three layers read from the picks</source>
        <translation>tre strati ricavati dai primi arrivi</translation>
    </message>
    <message>
        <source>gradient over a refractor, read from the picks</source>
        <translation>gradiente sopra un rifrattore, ricavato dai primi arrivi</translation>
    </message>
    <message>
        <source>default model</source>
        <translation>modello predefinito</translation>
    </message>
    <message>
        <source>velocities that the grid had</source>
        <translation>velocità che la griglia aveva</translation>
    </message>
    <message>
        <source>Started from and held to</source>
        <translation>Modello di partenza e di riferimento</translation>
    </message>
    <message>
        <source>%1, shrinking to a fifth</source>
        <translation>%1, ridotto fino a un quinto</translation>
    </message>
    <message>
        <source>%1, the best of %2 from coarse to fine</source>
        <translation>%1, la migliore di %2 dal grosso al fine</translation>
    </message>
    <message>
        <source>Uncertainty: half of the range from 16 to 84 % of %1 sections that explain the picks as well, in percent</source>
        <translation>Incertezza: metà dell&apos;intervallo dal 16 all&apos;84 % di %1 sezioni che spiegano i primi arrivi altrettanto bene, in percento</translation>
    </message>
    <message>
        <source>%1; of all picks %2; suspect picks %3</source>
        <translation>%1; di tutti i primi arrivi %2; primi arrivi sospetti %3</translation>
    </message>
    <message>
        <source>%1; with the time shifts of shots</source>
        <translation>%1; con le traslazioni temporali dei tiri</translation>
    </message>
    <message>
        <source>Misfit after every iteration, 0 being the starting model</source>
        <translation>Scarto dopo ogni iterazione, 0 essendo il modello iniziale</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every iteration, 0 being the starting model</source>
        <translation>Scarto quadratico medio della sezione dopo ogni iterazione, 0 essendo il modello iniziale</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Reciproco</translation>
    </message>
    <message>
        <source>Delay times</source>
        <translation>Tempi di ritardo</translation>
    </message>
    <message>
        <source>Intercept times</source>
        <translation>Tempi d&apos;intercetta</translation>
    </message>
    <message>
        <source>Plus-minus</source>
        <translation>Plus-minus</translation>
    </message>
    <message>
        <source>both</source>
        <translation>entrambe</translation>
    </message>
    <message>
        <source>depth</source>
        <translation>profondità</translation>
    </message>
    <message>
        <source>velocity</source>
        <translation>velocità</translation>
    </message>
    <message>
        <source>%1: depth [%2]</source>
        <translation>%1: profondità [%2]</translation>
    </message>
    <message>
        <source>%1: velocity [%2]</source>
        <translation>%1: velocità [%2]</translation>
    </message>
    <message>
        <source>Disagree in</source>
        <translation>Discordano in</translation>
    </message>
    <message>
        <source>Layers by method</source>
        <translation>Strati secondo i metodi</translation>
    </message>
    <message>
        <source>Depths are below the surface. A value in parentheses is not carried by picks there, but by shifted arrivals of other shots, across a gap or by a continuation.</source>
        <translation>Le profondità sono dal suolo. Un valore fra parentesi non è sostenuto da primi arrivi in quel punto, ma da arrivi traslati di altri tiri, attraverso una lacuna o per prolungamento.</translation>
    </message>
    <message>
        <source>Errors are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations. Methods disagree where two of them differ by more than three times what their difference scatters by.</source>
        <translation>Gli errori sono la semiampiezza entro cui cadono 68 risultati su 100 quando i primi arrivi si spostano secondo i loro errori, da %1 interpretazioni di questo tipo. I metodi discordano dove due di essi differiscono di più di tre volte la dispersione della loro differenza.</translation>
    </message>
    <message>
        <source>Layer %1 by method</source>
        <translation>Strato %1 secondo i metodi</translation>
    </message>
    <message>
        <source>Residuals of the picks, shot by geophone</source>
        <translation>Residui dei primi arrivi, tiro per geofono</translation>
    </message>
    <message>
        <source>Layer %1 [ms]</source>
        <translation>Strato %1 [ms]</translation>
    </message>
    <message>
        <source>No misfit of the layers is told: they have no depth, or were built from other picks or marks than those of now.</source>
        <translation>Lo scarto degli strati non è indicato: non hanno profondità, o sono stati costruiti da primi arrivi o assegnazioni diversi da quelli attuali.</translation>
    </message>
    <message>
        <source>Times computed through the layers differ from the picks by %1 ms (RMS of %2 picks; mean of picks less computed times %3 ms; chi-square %4).</source>
        <translation>I tempi calcolati attraverso gli strati differiscono dai primi arrivi di %1 ms (RMS di %2 primi arrivi; media di primi arrivi meno tempi calcolati %3 ms; chi quadrato %4).</translation>
    </message>
    <message>
        <source>RMS misfit of the layers, by shot (number of picks)</source>
        <translation>Scarto quadratico medio degli strati, per tiro (numero di primi arrivi)</translation>
    </message>
    <message>
        <source>Depth of refractors by method</source>
        <translation>Profondità dei rifrattori secondo i metodi</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>primi arrivi</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>phantom</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>lacuna</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>prolungamento</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Profondità %1 da</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, is not carried by picks of the shots at both ends there: but by shifted arrivals of other shots (phantom), across more than two spacings without arrivals (gap), or by a continuation beyond the last ones.</source>
        <translation>Un valore fra parentesi, e una linea tratteggiata, non sono sostenuti in quel punto da primi arrivi dei tiri a entrambe le estremità, ma da arrivi traslati di altri tiri (phantom), attraverso più di due intervalli fra geofoni senza arrivi (lacuna), o da un prolungamento oltre gli ultimi.</translation>
    </message>
    <message>
        <source>Errors, and the bands round the lines, are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations.</source>
        <translation>Gli errori, e le fasce attorno alle linee, sono la semiampiezza entro cui cadono 68 risultati su 100 quando i primi arrivi si spostano secondo i loro errori, da %1 interpretazioni di questo tipo.</translation>
    </message>
    <message>
        <source>Median velocity of refractor %1</source>
        <translation>Velocità mediana del rifrattore %1</translation>
    </message>
    <message>
        <source>Mean velocity of the first layer</source>
        <translation>Velocità media del primo strato</translation>
    </message>
    <message>
        <source>Velocity of the first layer at the surface</source>
        <translation>Velocità del primo strato in superficie</translation>
    </message>
    <message>
        <source>Growth of its velocity with depth</source>
        <translation>Crescita della sua velocità con la profondità</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per metre, down to %2</source>
        <translation>%1 % di quella in superficie al metro, fino a %2 di profondità</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per foot, down to %2</source>
        <translation>%1 % di quella in superficie al piede, fino a %2 di profondità</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, stands where no pick of the refractor comes from or goes to: it lies between what others tell (gap). Errors are not told of a profile that is fitted to all picks.</source>
        <translation>Un valore fra parentesi, e una linea tratteggiata, stanno dove nessun primo arrivo del rifrattore parte o giunge: il valore sta fra ciò che indicano altri (lacuna). Per un profilo adattato a tutti i primi arrivi non si danno errori.</translation>
    </message>
    <message>
        <source>First breaks were assigned to layers, and velocities and depths of the refractors were fitted to all of them at once: so that the direct and refracted times computed through the layers, which may change along the line, are those of the picks.</source>
        <translation>I primi arrivi sono stati assegnati agli strati, e le velocità e profondità dei rifrattori adattate a tutti insieme: in modo che i tempi diretti e rifratti calcolati attraverso gli strati, che possono cambiare lungo la linea, siano quelli letti.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>These shots have filtered copies beside their recordings, made as listed, one filter after the other.</source>
        <translation>Questi tiri hanno copie filtrate accanto alle registrazioni, fatte come elencato, un filtro dopo l&apos;altro.</translation>
    </message>
    <message>
        <source>Filters of the recordings</source>
        <translation>Filtri delle registrazioni</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>length, unit</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Points on the map</source>
        <translation>Punti sulla mappa</translation>
    </message>
    <message>
        <source>Corners of more than 1°</source>
        <translation>Vertici con angoli di oltre 1°</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Lunghezza lungo la linea</translation>
    </message>
    <message>
        <source>Length on the map</source>
        <translation>Lunghezza sulla mappa</translation>
    </message>
    <message>
        <source>Straight from end to end</source>
        <translation>In linea retta da un estremo all&apos;altro</translation>
    </message>
    <message>
        <source>Farthest from that straight line, to the right</source>
        <translation>Massima distanza da questa retta, a destra</translation>
    </message>
    <message>
        <source>The same to the left</source>
        <translation>La stessa a sinistra</translation>
    </message>
    <message>
        <source>Course of the line between its ends</source>
        <translation>Percorso della linea fra i suoi estremi</translation>
    </message>
</context>
<context>
    <name>talvesk::ReportDialog</name>
    <message>
        <source>Report</source>
        <translation>Relazione</translation>
    </message>
    <message>
        <source>Title page</source>
        <translation>Frontespizio</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titolo:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Committente:</translation>
    </message>
    <message>
        <source>&amp;Site:</source>
        <translation>&amp;Sito:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Autore:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Data:</translation>
    </message>
    <message>
        <source>As it is to be read</source>
        <translation>Come va letta</translation>
    </message>
    <message>
        <source>&amp;Notes:</source>
        <translation>&amp;Note:</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parti</translation>
    </message>
    <message>
        <source>Survey: line, geophones, shots, files</source>
        <translation>Rilievo: linea, geofoni, tiri, file</translation>
    </message>
    <message>
        <source>Position on the globe</source>
        <translation>Posizione geografica</translation>
    </message>
    <message>
        <source>Travel times and the misfit of every shot</source>
        <translation>Tempi di arrivo e scarto di ogni tiro</translation>
    </message>
    <message>
        <source>Grid and parameters of the inversion</source>
        <translation>Griglia e parametri dell&apos;inversione</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sezione di velocità</translation>
    </message>
    <message>
        <source>Rays over the section</source>
        <translation>Raggi sulla sezione</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densità d&apos;informazione</translation>
    </message>
    <message>
        <source>Misfit and its history</source>
        <translation>Scarto e suo andamento</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Interpretazione a rifrazione</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Ca&amp;rta:</translation>
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
        <translation>Ante&amp;prima</translation>
    </message>
    <message>
        <source>Puts the report together and shows its pages</source>
        <translation>Compone la relazione e ne mostra le pagine</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Pagine della relazione</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n pagina</numerusform>
            <numerusform>%n pagine</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::ResidualsDialog</name>
    <message>
        <source>Residuals</source>
        <translation>Residui</translation>
    </message>
    <message>
        <source>Residuals &amp;in:</source>
        <translation>Residui &amp;in:</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisecondi</translation>
    </message>
    <message>
        <source>Errors of the picks</source>
        <translation>Errori dei primi arrivi</translation>
    </message>
    <message>
        <source>Whose dots have a colour of their own in the picture over the offset</source>
        <translation>Il tiro i cui punti hanno un colore proprio nell&apos;immagine in funzione della distanza</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Mappa</translation>
    </message>
    <message>
        <source>Residuals, shot by geophone</source>
        <translation>Residui, tiro per geofono</translation>
    </message>
    <message>
        <source>Over the &amp;offset</source>
        <translation>Per &amp;distanza</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residui in funzione della distanza dal tiro</translation>
    </message>
    <message>
        <source>Shots and &amp;geophones</source>
        <translation>Tiri e geo&amp;foni</translation>
    </message>
    <message>
        <source>Residuals per shot</source>
        <translation>Residui per tiro</translation>
    </message>
    <message>
        <source>Residuals per geophone</source>
        <translation>Residui per geofono</translation>
    </message>
    <message>
        <source>&amp;Along the rays</source>
        <translation>&amp;Lungo i raggi</translation>
    </message>
    <message>
        <source>Every cell has the mean residual of the rays through it, by their lengths in it; suspect picks are left out.</source>
        <translation>Ogni cella ha il residuo medio dei raggi che la attraversano, pesato con la loro lunghezza in essa; i primi arrivi sospetti sono esclusi.</translation>
    </message>
    <message>
        <source>Shows the trace of the current pick in the window, as a click on it or Return does</source>
        <translation>Mostra nella finestra principale la traccia del primo arrivo attuale, come un clic su di esso o Invio</translation>
    </message>
    <message>
        <source>Show &amp;trace</source>
        <translation>Mostra la &amp;traccia</translation>
    </message>
    <message>
        <source>Puts the picture in view on the clipboard</source>
        <translation>Mette negli appunti l&apos;immagine in vista</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>C&amp;opia immagine</translation>
    </message>
    <message>
        <source>Save &amp;picture...</source>
        <translation>Salva imma&amp;gine...</translation>
    </message>
    <message>
        <source>All picks with their residuals, for spreadsheets</source>
        <translation>Tutti i primi arrivi con i loro residui, per fogli di calcolo</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Salva tabella...</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>Geophone at %1</source>
        <translation>Geofono a %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Non c&apos;è ancora una sezione di cui guardare i tempi.</translation>
    </message>
    <message>
        <source>Section of &quot;%1&quot;: %2.</source>
        <translation>Sezione di &quot;%1&quot;: %2.</translation>
    </message>
    <message>
        <source>Picks: %1, suspect: %2.</source>
        <translation>Primi arrivi: %1, sospetti: %2.</translation>
    </message>
    <message>
        <source>The section was smoothed afterwards.</source>
        <translation>La sezione è stata smussata in seguito.</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found are counted.</source>
        <translation>Si tiene conto delle traslazioni temporali dei tiri trovate dall&apos;adattamento.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>I primi arrivi sono cambiati dopo il calcolo della sezione: era adattata ad altri.</translation>
    </message>
    <message>
        <source>Offset [m]</source>
        <translation>Distanza dal tiro [m]</translation>
    </message>
    <message>
        <source>Median [pick errors]</source>
        <translation>Mediana [errori dei primi arrivi]</translation>
    </message>
    <message>
        <source>Median [ms]</source>
        <translation>Mediana [ms]</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Geophone at [m]</source>
        <translation>Geofono a [m]</translation>
    </message>
    <message>
        <source>Click a pick, or walk to it with the arrow keys.</source>
        <translation>Fai clic su un primo arrivo, o raggiungilo con le frecce.</translation>
    </message>
    <message>
        <source>Shot %1, geophone at %2: no pick with a computed time</source>
        <translation>Tiro %1, geofono a %2: nessun primo arrivo con un tempo calcolato</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1: picks %2, median %3, two of three from %4 to %5</source>
        <translation>%1: primi arrivi %2, mediana %3, due su tre da %4 a %5</translation>
    </message>
    <message>
        <source>; stands out</source>
        <translation>; anomalo</translation>
    </message>
    <message>
        <source>The picture cannot be made.</source>
        <translation>Non è possibile creare l&apos;immagine.</translation>
    </message>
    <message>
        <source>Colo&amp;ur shot:</source>
        <translation>Colo&amp;ra il tiro:</translation>
    </message>
</context>
<context>
    <name>talvesk::ResolutionDialog</name>
    <message>
        <source>Resolution Test</source>
        <translation>Prova di risoluzione</translation>
    </message>
    <message>
        <source>Would the survey see it? A pattern is laid over the section, the times of all picks are computed through it with noise of their errors, and a section is fitted to them. Where what comes back correlates with what was put in, ground of that size is resolved.</source>
        <translation>Il rilievo lo vedrebbe? Alla sezione si sovrappone un motivo, i tempi di tutti i primi arrivi si calcolano attraverso di esso con rumore pari ai loro errori, e vi si adatta una sezione. Dove ciò che torna è correlato con ciò che è stato messo, il terreno di quella dimensione è risolto.</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Motivo:</translation>
    </message>
    <message>
        <source>What the section is disturbed by</source>
        <translation>Che cosa perturba la sezione</translation>
    </message>
    <message>
        <source>Si&amp;ze [m]:</source>
        <translation>&amp;Dimensione [m]:</translation>
    </message>
    <message>
        <source>Side of a square, or thickness of a layer</source>
        <translation>Lato di un quadrato, o spessore di uno strato</translation>
    </message>
    <message>
        <source>Se&amp;veral sizes</source>
        <translation>&amp;Più dimensioni</translation>
    </message>
    <message>
        <source>Try sizes from the distance between positions up to the largest that fits the grid, and tell the smallest that is resolved at each depth</source>
        <translation>Prova dimensioni dalla distanza fra le posizioni fino alla massima che entra nella griglia, e indica la minima risolta a ogni profondità</translation>
    </message>
    <message>
        <source>St&amp;rength [%]:</source>
        <translation>&amp;Intensità [%]:</translation>
    </message>
    <message>
        <source>How much faster and slower the pattern is than the section</source>
        <translation>Di quanto il motivo è più veloce e più lento della sezione</translation>
    </message>
    <message>
        <source>&amp;Over:</source>
        <translation>&amp;Sopra:</translation>
    </message>
    <message>
        <source>What the pattern is laid over</source>
        <translation>A che cosa si sovrappone il motivo</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Avvia</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>S&amp;hown size:</source>
        <translation>Dimensione mos&amp;trata:</translation>
    </message>
    <message>
        <source>Of which of the tests the pictures are</source>
        <translation>Di quale delle prove sono le immagini</translation>
    </message>
    <message>
        <source>Save P&amp;icture ...</source>
        <translation>Salva immagi&amp;ne ...</translation>
    </message>
    <message>
        <source>Save Ta&amp;ble ...</source>
        <translation>Salva ta&amp;bella ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Scacchiera</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Impulsi</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Strati</translation>
    </message>
    <message>
        <source>the section</source>
        <translation>la sezione</translation>
    </message>
    <message>
        <source>its mean at each depth</source>
        <translation>la sua media a ogni profondità</translation>
    </message>
    <message>
        <source>Start shows here what was put in, what came back and how they agree.</source>
        <translation>&quot;Avvia&quot; mostra qui ciò che è stato messo, ciò che è tornato e quanto si accordano.</translation>
    </message>
    <message>
        <source>The test is under way.</source>
        <translation>La prova è in corso.</translation>
    </message>
    <message>
        <source>Times are computed through the pattern.</source>
        <translation>Si calcolano i tempi attraverso il motivo.</translation>
    </message>
    <message>
        <source>Size %1: iteration %2.</source>
        <translation>Dimensione %1: iterazione %2.</translation>
    </message>
    <message>
        <source>Stopped before the first test was completed.</source>
        <translation>Fermata prima di completare la prima prova.</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n test(s) completed.</source>
        <translation>
            <numerusform>Fermata: %n prova completata.</numerusform>
            <numerusform>Fermata: %n prove completate.</numerusform>
        </translation>
    </message>
    <message>
        <source>No test was completed.</source>
        <translation>Nessuna prova è stata completata.</translation>
    </message>
    <message>
        <source>The resolution test could not be completed.</source>
        <translation>Non è stato possibile completare la prova di risoluzione.</translation>
    </message>
    <message>
        <source>at %1 none</source>
        <translation>a %1 nessuna</translation>
    </message>
    <message>
        <source>at %1 depth %2</source>
        <translation>a %1 di profondità %2</translation>
    </message>
    <message>
        <source>Smallest size that is resolved (correlation from %1 on): %2.</source>
        <translation>Dimensione minima risolta (correlazione da %1 in su): %2.</translation>
    </message>
</context>
<context>
    <name>talvesk::RunTexts</name>
    <message>
        <source>Fitted to errors</source>
        <translation>Adattata agli errori</translation>
    </message>
    <message>
        <source>Smoothed</source>
        <translation>Smussata</translation>
    </message>
    <message>
        <source>%1 rows and %2 columns of %3</source>
        <translation>%1 righe e %2 colonne di %3</translation>
    </message>
    <message>
        <source>velocities from %1 to %2</source>
        <translation>velocità da %1 a %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robusta</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>a blocchi</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>primi arrivi sospetti: %1</translation>
    </message>
    <message>
        <source>%1 solver iterations</source>
        <translation>%1 iterazioni del risolutore</translation>
    </message>
    <message>
        <source>smoothing parameter %1</source>
        <translation>parametro di smussamento %1</translation>
    </message>
    <message>
        <source>symmetric</source>
        <translation>simmetrico</translation>
    </message>
    <message>
        <source>stopped by the user</source>
        <translation>interrotta dall&apos;utente</translation>
    </message>
    <message>
        <source>picks have changed since</source>
        <translation>primi arrivi cambiati in seguito</translation>
    </message>
    <message>
        <source>the surface or the ends of the line have changed since</source>
        <translation>superficie o estremi della linea cambiati in seguito</translation>
    </message>
    <message>
        <source>positions have changed since</source>
        <translation>posizioni cambiate in seguito</translation>
    </message>
    <message>
        <source>%1 ms or %2 %</source>
        <translation>%1 ms o %2 %</translation>
    </message>
    <message>
        <source>errors of %1</source>
        <translation>errori di %1</translation>
    </message>
    <message>
        <source>from &quot;%1&quot;</source>
        <translation>da &quot;%1&quot;</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>non robusta</translation>
    </message>
    <message>
        <source>with shot statics, trigger error %1 ms</source>
        <translation>con statiche dei tiri, errore del trigger %1 ms</translation>
    </message>
    <message>
        <source>held to known ground</source>
        <translation>vincolata al terreno noto</translation>
    </message>
    <message>
        <source>from coarse to fine</source>
        <translation>dal grosso al fine</translation>
    </message>
</context>
<context>
    <name>talvesk::RunsDialog</name>
    <message>
        <source>Inversion runs</source>
        <translation>Inversioni eseguite</translation>
    </message>
    <message>
        <source>Every inversion is kept here, at most 50 of them. The run in use is the section that the window shows; exports and reports are of it.</source>
        <translation>Ogni inversione è conservata qui, al massimo 50. Quella in uso è la sezione che la finestra mostra; esportazioni e relazioni la riguardano.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Inversione</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi quadrato</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iterazioni</translation>
    </message>
    <message>
        <source>Time [s]</source>
        <translation>Tempo [s]</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>No inversion has been run yet. Run one with Processing, Run tomography inversion.</source>
        <translation>Non è ancora stata eseguita alcuna inversione. Eseguirne una con Elaborazione, Esegui l&apos;inversione tomografica.</translation>
    </message>
    <message>
        <source>Make the section of the selected run the one that the window shows</source>
        <translation>Fa dell&apos;inversione scelta la sezione che la finestra mostra</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Usa</translation>
    </message>
    <message>
        <source>Show two runs side by side: the selected one beside another that is selected, else beside the one in use</source>
        <translation>Mostra due inversioni affiancate: quella scelta accanto a un&apos;altra scelta, altrimenti accanto a quella in uso</translation>
    </message>
    <message>
        <source>&amp;Compare ...</source>
        <translation>&amp;Confronta ...</translation>
    </message>
    <message>
        <source>Name the selected run; runs with a name are the last to go when the list is full</source>
        <translation>Dà un nome all&apos;inversione scelta; quelle con un nome sono le ultime a uscire quando l&apos;elenco è pieno</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>Take the selected runs out of the list; Undo brings them back</source>
        <translation>Toglie dall&apos;elenco le inversioni scelte; &quot;Annulla modifica&quot; le ripristina</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>in uso</translation>
    </message>
    <message>
        <source>By errors of</source>
        <translation>Con errori di</translation>
    </message>
    <message>
        <source>Errors of picks that state none, by which chi-square is measured: figures by other errors do not compare.</source>
        <translation>Errori dei primi arrivi che non ne indicano, con cui si misura il chi quadrato: valori ottenuti con altri errori non sono confrontabili.</translation>
    </message>
    <message>
        <source>Of what chi-square counts: without suspect picks, with the time shifts of shots that a fit has found.</source>
        <translation>Di ciò che conta nel chi quadrato: senza primi arrivi sospetti, con le traslazioni temporali dei tiri trovate da un adattamento.</translation>
    </message>
    <message>
        <source>RMS of all [ms]</source>
        <translation>RMS di tutti [ms]</translation>
    </message>
    <message>
        <source>Of all picks as they are, suspect ones among them, without time shifts.</source>
        <translation>Di tutti i primi arrivi così come sono, sospetti compresi, senza traslazioni temporali.</translation>
    </message>
    <message>
        <source>RMS of all [%]</source>
        <translation>RMS di tutti [%]</translation>
    </message>
</context>
<context>
    <name>talvesk::ScreenshotDialog</name>
    <message>
        <source>Screenshot</source>
        <translation>Istantanea</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Dimensioni:</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>&amp;Qualità JPEG:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>As the view</source>
        <translation>Come la vista</translation>
    </message>
    <message>
        <source>%1 times the view</source>
        <translation>%1 volte la vista</translation>
    </message>
    <message>
        <source>%1: %2 x %3 pixels</source>
        <translation>%1: %2 x %3 pixel</translation>
    </message>
</context>
<context>
    <name>talvesk::SecondLookDialog</name>
    <message>
        <source>Second look</source>
        <translation>Da riguardare</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Ricevitore</translation>
    </message>
    <message>
        <source>Pick [ms]</source>
        <translation>Primo arrivo [ms]</translation>
    </message>
    <message>
        <source>Off by [ms]</source>
        <translation>Scarto [ms]</translation>
    </message>
    <message>
        <source>Computed minus measured: the pick is late where this is negative.</source>
        <translation>Calcolato meno misurato: il primo arrivo è in ritardo dove è negativo.</translation>
    </message>
    <message>
        <source>In errors</source>
        <translation>In errori</translation>
    </message>
    <message>
        <source>Off by how many of its errors</source>
        <translation>Scarto in multipli del suo errore</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>In ritardo di [ms]</translation>
    </message>
    <message>
        <source>Positive: the record begins too late, and its picks are late.</source>
        <translation>Positivo: la registrazione comincia troppo tardi, e i suoi primi arrivi sono in ritardo.</translation>
    </message>
    <message>
        <source>&amp;Take over as time shifts of the records</source>
        <translation>&amp;Applica come traslazioni delle registrazioni</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Non c&apos;è ancora una sezione di cui guardare i tempi.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>I primi arrivi sono cambiati dopo il calcolo della sezione: era adattata ad altri.</translation>
    </message>
    <message>
        <source>No pick is off by more than five of its errors.</source>
        <translation>Nessun primo arrivo è lontano più di cinque dei suoi errori.</translation>
    </message>
    <message>
        <source>Picks off by more than five of their errors; a click shows the trace:</source>
        <translation>Primi arrivi lontani più di cinque dei loro errori; un clic mostra la traccia:</translation>
    </message>
    <message>
        <source>No velocity is at a limit, and rays cross all cells shown.</source>
        <translation>Nessuna velocità è a un limite, e i raggi attraversano tutte le celle mostrate.</translation>
    </message>
    <message>
        <source>Shifts the records of the checked shots with their picks, as Mend recording does; of shots without a recording the picks, with their errors. One step to be undone.</source>
        <translation>Trasla le registrazioni dei tiri spuntati con i loro primi arrivi, come &quot;Correggi la registrazione&quot;; dei tiri senza registrazione i primi arrivi, con i loro errori. Un solo passo da annullare.</translation>
    </message>
    <message>
        <source>no recording: its picks are shifted</source>
        <translation>nessuna registrazione: si traslano i suoi primi arrivi</translation>
    </message>
    <message>
        <source>Errors of picks below %1 ms count as %1 ms: %2</source>
        <translation>Gli errori dei primi arrivi sotto %1 ms contano come %1 ms: %2</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found; a click shows the shot:</source>
        <translation>Traslazioni temporali dei tiri trovate dall&apos;adattamento; un clic mostra il tiro:</translation>
    </message>
    <message>
        <source>Ground to look at; a click shows it in the section:</source>
        <translation>Terreno da riguardare; un clic lo mostra nella sezione:</translation>
    </message>
    <message>
        <source>No pick stands out: %1 are off by more than five of their errors, but none by more than %2, as the section does not fit the picks to their errors.</source>
        <translation>Nessun primo arrivo è anomalo: %1 scartano di più di cinque volte il loro errore, ma nessuno di più di %2, poiché la sezione non si adatta ai primi arrivi entro i loro errori.</translation>
    </message>
    <message>
        <source>Picks off by more than %2 of their errors, which stand out where %1 are off by more than five; a click shows the trace:</source>
        <translation>Primi arrivi che scartano di più di %2 volte il loro errore, e sono anomali dove %1 scartano di più di cinque; un clic mostra la traccia:</translation>
    </message>
    <message>
        <source>Cells at the limit of %1: %2</source>
        <translation>Celle al limite di %1: %2</translation>
    </message>
    <message>
        <source>Cells shown that no ray crosses: %1 of %2</source>
        <translation>Celle mostrate che nessun raggio attraversa: %1 su %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3, depth %4 to %5)</source>
        <translation>%1 (da %2 a %3, profondità da %4 a %5)</translation>
    </message>
    <message>
        <source>seems so: run again with shifts of shots</source>
        <translation>sembra di sì: ripetere l&apos;inversione con le traslazioni dei tiri</translation>
    </message>
    <message>
        <source>Shots that seem to be shifted in time; a click shows the shot:</source>
        <translation>Tiri che sembrano traslati nel tempo; un clic mostra il tiro:</translation>
    </message>
    <message>
        <source>Picks that the section cannot explain</source>
        <translation>Primi arrivi che la sezione non spiega</translation>
    </message>
    <message>
        <source>Shots shifted in time</source>
        <translation>Tiri traslati nel tempo</translation>
    </message>
    <message>
        <source>Ground to look at</source>
        <translation>Terreno da riguardare</translation>
    </message>
</context>
<context>
    <name>talvesk::SectionView</name>
    <message>
        <source>Vertical exaggeration:</source>
        <translation>Esagerazione verticale:</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Esagerazione verticale</translation>
    </message>
    <message>
        <source>Turn in 3-D</source>
        <translation>Ruota in 3-D</translation>
    </message>
    <message>
        <source>Dragging turns the section instead of moving it</source>
        <translation>Trascinando, la sezione ruota invece di spostarsi</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Ripristina la vista</translation>
    </message>
    <message>
        <source>Bring the whole section back into view (Home)</source>
        <translation>Riporta in vista tutta la sezione (Home)</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sezione di velocità</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distanza %1</translation>
    </message>
    <message>
        <source>Horizontal %1</source>
        <translation>Orizzontale %1</translation>
    </message>
    <message>
        <source>Vertical %1</source>
        <translation>Verticale %1</translation>
    </message>
    <message>
        <source>Slope %1°</source>
        <translation>Pendenza %1°</translation>
    </message>
    <message>
        <source>Click the next point; Esc ends</source>
        <translation>Fai clic sul punto successivo; Esc termina</translation>
    </message>
    <message>
        <source>Double click or Enter ends it, Backspace takes a point back</source>
        <translation>Doppio clic o Invio termina, Backspace toglie un punto</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Misura</translation>
    </message>
    <message>
        <source>Drag between two points: distance, horizontal, vertical and slope; Esc ends</source>
        <translation>Trascina fra due punti: distanza, orizzontale, verticale e pendenza; Esc termina</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Disegna</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Click where a text is to stand on the section</source>
        <translation>Fai clic sulla sezione dove deve stare il testo</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Click the points of a line on the section</source>
        <translation>Fai clic sui punti di una linea sulla sezione</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Poligono</translation>
    </message>
    <message>
        <source>Click the corners of an area of the section</source>
        <translation>Fai clic sui vertici di un&apos;area della sezione</translation>
    </message>
    <message>
        <source>How much larger heights are drawn than distances</source>
        <translation>Di quanto le altezze sono ingrandite rispetto alle distanze</translation>
    </message>
    <message>
        <source>Click texts, lines and areas of ground into the section, or move them; Esc ends</source>
        <translation>Mette testi, linee e aree di terreno sulla sezione con clic, o li sposta; Esc termina</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Drag what has been drawn, or one of its corners</source>
        <translation>Trascina ciò che è stato disegnato, o uno dei suoi vertici</translation>
    </message>
</context>
<context>
    <name>talvesk::SelectCSVDelimiterDialog</name>
    <message>
        <source>Select CSV Separator</source>
        <translation>Separatore CSV</translation>
    </message>
    <message>
        <source>CSV Separator</source>
        <translation>Separatore CSV</translation>
    </message>
    <message>
        <source>What stands between two numbers of a line</source>
        <translation>Ciò che separa due numeri di una riga</translation>
    </message>
    <message>
        <source>(blank space)</source>
        <translation>(spazio)</translation>
    </message>
</context>
<context>
    <name>talvesk::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>Len&amp;gth unit:</source>
        <translation>&amp;Unità di lunghezza:</translation>
    </message>
    <message>
        <source>What lengths and velocities are shown and asked for in. Files stay in metres.</source>
        <translation>In che cosa lunghezze e velocità sono mostrate e chieste. I file restano in metri.</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>metri</translation>
    </message>
    <message>
        <source>feet (0.3048 m)</source>
        <translation>piedi (0,3048 m)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Tracce</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Riempi le oscillazioni</translation>
    </message>
    <message>
        <source>Fills the positive half of every wiggle.</source>
        <translation>Riempie la metà positiva di ogni oscillazione.</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Due colori</translation>
    </message>
    <message>
        <source>Fills the two halves of every wiggle in two colours.</source>
        <translation>Riempie le due metà di ogni oscillazione con due colori.</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>Taglia alla traccia vicina</translation>
    </message>
    <message>
        <source>Ends every wiggle where the next trace begins. Otherwise strong wiggles run over their neighbours.</source>
        <translation>Ferma ogni oscillazione dove comincia la traccia vicina. Altrimenti le oscillazioni forti coprono le vicine.</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Mostra le tracce filtrate</translation>
    </message>
    <message>
        <source>Shows the filtered copy of the traces where there is one. AutoPick then picks on it.</source>
        <translation>Mostra la copia filtrata delle tracce, dove c&apos;è. L&apos;AutoPick lavora allora su di essa.</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Opens shots at the part of the record that holds the first breaks.</source>
        <translation>Apre i tiri sulla parte della registrazione che contiene i primi arrivi.</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Mostra tutte le tracce</translation>
    </message>
    <message>
        <source>Zoom in on first breaks</source>
        <translation>Ingrandisci i primi arrivi</translation>
    </message>
    <message>
        <source>Opens shots with all traces in view, however narrow. AutoPick, Filter, AGC and Apply Hushel then work on all shots.</source>
        <translation>Apre i tiri con tutte le tracce in vista, per quanto strette. AutoPick, Filtro, AGC e Applica Hushel lavorano allora su tutti i tiri.</translation>
    </message>
    <message>
        <source>Horizontal scalarbar</source>
        <translation>Scala dei colori orizzontale</translation>
    </message>
    <message>
        <source>Puts the scalarbar of saved pictures above the section, not beside it.</source>
        <translation>Mette la scala dei colori delle immagini salvate sopra la sezione, non accanto.</translation>
    </message>
    <message>
        <source>&amp;Memory for undo:</source>
        <translation>&amp;Memoria per l&apos;annullamento:</translation>
    </message>
    <message>
        <source>When the steps that can be undone need more, the oldest go.</source>
        <translation>Se le modifiche che si possono annullare ne richiedono di più, le più vecchie vengono scartate.</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>&amp;Keep samples on disk:</source>
        <translation>&amp;Campioni su disco:</translation>
    </message>
    <message>
        <source>Of surveys that are larger than memory. What is open stays where it is until it is opened again.</source>
        <translation>Per i rilievi più grandi della memoria. Ciò che è aperto resta dove si trova finché non viene riaperto.</translation>
    </message>
    <message>
        <source>When they fill a quarter of the memory</source>
        <translation>Se riempiono un quarto della memoria</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Mai</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotFileDialog</name>
    <message>
        <source>the program&apos;s rules</source>
        <translation>le regole del programma</translation>
    </message>
    <message>
        <source>the standard</source>
        <translation>lo standard</translation>
    </message>
    <message>
        <source>The program&apos;s rules read shot files as this program always has. The standard reads what their content says, whatever their suffix: other sample formats and byte orders, scaled coordinates, delays, files of several shots.</source>
        <translation>Le regole del programma leggono i file dei tiri come questo programma ha sempre fatto. Lo standard legge ciò che dice il contenuto, qualunque sia l&apos;estensione: altri formati dei campioni e ordini dei byte, coordinate con fattore di scala, ritardi, file con più tiri.</translation>
    </message>
    <message>
        <source>&amp;Read shot files by:</source>
        <translation>&amp;Leggi i file dei tiri secondo:</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotTable</name>
    <message>
        <source>String</source>
        <translation>Stesa</translation>
    </message>
    <message>
        <source>x (m)</source>
        <translation>x (m)</translation>
    </message>
    <message>
        <source>Elevation (m)</source>
        <translation>Quota (m)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>DX file</source>
        <translation>File DX</translation>
    </message>
    <message>
        <source>SX file</source>
        <translation>File SX</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 è troppo lontano.</translation>
    </message>
    <message>
        <source>There is no string %1.</source>
        <translation>Non c&apos;è una stesa %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::SpectrumPlot</name>
    <message>
        <source>Amplitude spectrum</source>
        <translation>Spettro d&apos;ampiezza</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensità</translation>
    </message>
</context>
<context>
    <name>talvesk::SpreadsheetView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>&amp;Empty cells</source>
        <translation>&amp;Svuota celle</translation>
    </message>
    <message>
        <source>Fill &amp;down</source>
        <translation>Ripeti verso il &amp;basso</translation>
    </message>
    <message>
        <source>&amp;Insert a row above</source>
        <translation>I&amp;nserisci una riga sopra</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>&amp;Rimuovi righe</translation>
    </message>
</context>
<context>
    <name>talvesk::StartLayersDialog</name>
    <message>
        <source>Start from layers</source>
        <translation>Parti dagli strati</translation>
    </message>
    <message>
        <source>Gives every cell of the grid the velocity of the layer of the profile that its middle lies in.</source>
        <translation>Dà a ogni cella della griglia la velocità dello strato del profilo in cui cade il suo centro.</translation>
    </message>
    <message>
        <source>&amp;Sharp layers</source>
        <translation>Strati &amp;netti</translation>
    </message>
    <message>
        <source>Spreads the jump from layer to layer evenly, half of it above the refractor and half below</source>
        <translation>Distribuisce uniformemente il salto da uno strato all&apos;altro, metà sopra il rifrattore e metà sotto</translation>
    </message>
    <message>
        <source>&amp;Graded over a thickness of</source>
        <translation>&amp;Graduali su uno spessore di</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Spessore di un salto graduale</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>I risultati dell&apos;ultima inversione verranno tolti (&quot;Annulla modifica&quot; li ripristina).</translation>
    </message>
</context>
<context>
    <name>talvesk::StepTexts</name>
    <message>
        <source>Recordings</source>
        <translation>Registrazioni</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometria</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Primi arrivi</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Controllo</translation>
    </message>
    <message>
        <source>Grid and start</source>
        <translation>Griglia e modello</translation>
    </message>
    <message>
        <source>Inversion</source>
        <translation>Inversione</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fatto</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>dubbio</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>superato</translation>
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
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Interruzione ...</translation>
    </message>
    <message>
        <source>Stopping: %1</source>
        <comment>work</comment>
        <translation>Interruzione: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::SurveyedPointsTable</name>
    <message>
        <source>Shot %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Geofono %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>row of a table</comment>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line, name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Row</source>
        <comment>of a table</comment>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Across
(m)</source>
        <translation>Di lato
(m)</translation>
    </message>
    <message>
        <source>x before
(m)</source>
        <translation>x prima
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
        <translation>variazione
(m)</translation>
    </message>
    <message>
        <source>z before
(m)</source>
        <translation>z prima
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
        <translation>Posizioni rilevate</translation>
    </message>
    <message>
        <source>&amp;Other table ...</source>
        <translation>Altra ta&amp;bella ...</translation>
    </message>
    <message>
        <source>First rows of the table</source>
        <translation>Prime righe della tabella</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Colonne della tabella</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>&amp;Separatore</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separatore</translation>
    </message>
    <message>
        <source>&amp;Coordinates</source>
        <translation>&amp;Coordinate</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordinate</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nome</translation>
    </message>
    <message>
        <source>Column of names</source>
        <translation>Colonna dei nomi</translation>
    </message>
    <message>
        <source>Eas&amp;ting</source>
        <translation>&amp;Est</translation>
    </message>
    <message>
        <source>Column of eastings or longitudes</source>
        <translation>Colonna delle coordinate est o delle longitudini</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>Column of kinds</source>
        <translation>Colonna dei tipi</translation>
    </message>
    <message>
        <source>No&amp;rthing</source>
        <translation>No&amp;rd</translation>
    </message>
    <message>
        <source>Column of northings or latitudes</source>
        <translation>Colonna delle coordinate nord o delle latitudini</translation>
    </message>
    <message>
        <source>Ele&amp;vation</source>
        <translation>&amp;Quota</translation>
    </message>
    <message>
        <source>Column of elevations</source>
        <translation>Colonna delle quote</translation>
    </message>
    <message>
        <source>EPS&amp;G code</source>
        <translation>Codice EPS&amp;G</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>Codice EPSG</translation>
    </message>
    <message>
        <source>The code of the reference system of easting and northing, for example 32632 for UTM zone 32 N. Without it the line gets no place on the map. Longitude and latitude are projected into it, without a code into their UTM zone.</source>
        <translation>Il codice del sistema di riferimento di est e nord, per esempio 32632 per UTM fuso 32 N. Senza di esso la linea non ottiene un posto sulla mappa. Longitudine e latitudine vengono proiettate in esso; senza un codice, nel loro fuso UTM.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Linea</translation>
    </message>
    <message>
        <source>Shape of the line</source>
        <translation>Forma della linea</translation>
    </message>
    <message>
        <source>Lengt&amp;h</source>
        <translation>L&amp;unghezza</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Lunghezza lungo la linea</translation>
    </message>
    <message>
        <source>Names &amp;are</source>
        <translation>I n&amp;omi sono</translation>
    </message>
    <message>
        <source>What names are</source>
        <translation>Che cosa sono i nomi</translation>
    </message>
    <message>
        <source>First &amp;distance</source>
        <translation>Prima &amp;distanza</translation>
    </message>
    <message>
        <source>Distance of the first geophone</source>
        <translation>Distanza del primo geofono</translation>
    </message>
    <message>
        <source>Distance of the first geophone that was surveyed (m). Empty: as it is now.</source>
        <translation>Distanza del primo geofono rilevato (m). Vuoto: come ora.</translation>
    </message>
    <message>
        <source>Count from the other &amp;end</source>
        <translation>Cont&amp;a dall&apos;altro estremo</translation>
    </message>
    <message>
        <source>&amp;Positions</source>
        <translation>&amp;Posizioni</translation>
    </message>
    <message>
        <source>Positions before and after</source>
        <translation>Posizioni prima e dopo</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Mappa</translation>
    </message>
    <message>
        <source>Geophones and shots from above</source>
        <translation>Geofoni e tiri visti dall&apos;alto</translation>
    </message>
    <message>
        <source>O&amp;ffsets</source>
        <translation>&amp;Fuori linea</translation>
    </message>
    <message>
        <source>Offsets across the line</source>
        <translation>Scostamenti dalla linea</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>Da controllare</translation>
    </message>
    <message>
        <source>as in the table</source>
        <translation>come nella tabella</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>tabulazione</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>punto e virgola</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>virgola</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>spazio</translation>
    </message>
    <message>
        <source>Easting, northing</source>
        <translation>Est, nord</translation>
    </message>
    <message>
        <source>Longitude, latitude</source>
        <translation>Longitudine, latitudine</translation>
    </message>
    <message>
        <source>Straight, fitted to the geophones</source>
        <translation>Diritta, adattata ai geofoni</translation>
    </message>
    <message>
        <source>Straight, from the first geophone to the last one</source>
        <translation>Diritta, dal primo geofono all&apos;ultimo</translation>
    </message>
    <message>
        <source>Bent, from geophone to geophone</source>
        <translation>Spezzata, da geofono a geofono</translation>
    </message>
    <message>
        <source>Horizontal, as on the map</source>
        <translation>Orizzontale, come sulla mappa</translation>
    </message>
    <message>
        <source>Along the ground, on slopes</source>
        <translation>Lungo il terreno, sui pendii</translation>
    </message>
    <message>
        <source>numbers of geophones and shots, from 1</source>
        <translation>numeri di geofoni e tiri, da 1</translation>
    </message>
    <message>
        <source>without a meaning: rows are in order</source>
        <translation>senza significato: le righe sono in ordine</translation>
    </message>
    <message>
        <source>distances along the line as it is now</source>
        <translation>distanze lungo la linea attuale</translation>
    </message>
    <message>
        <source>none</source>
        <comment>column of a table</comment>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonna %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>column, name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Longi&amp;tude</source>
        <translation>Longitudin&amp;e</translation>
    </message>
    <message>
        <source>Latit&amp;ude</source>
        <translation>Lat&amp;itudine</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of the table have no position and are not used.</source>
        <translation>
            <numerusform>%n riga della tabella non ha posizione e non viene usata.</numerusform>
            <numerusform>%n righe della tabella non hanno posizione e non vengono usate.</numerusform>
        </translation>
    </message>
    <message>
        <source>With a row: %1 of %2 geophones, %3 of %4 shots. Geophones stand %5 across the line (RMS), at most %6 (%7); their spacing is %8.</source>
        <translation>Con una riga: %1 geofoni su %2, %3 tiri su %4. I geofoni stanno a %5 di lato alla linea (RMS), al massimo a %6 (%7); il loro passo è %8.</translation>
    </message>
    <message>
        <source>No reference system</source>
        <translation>Nessun sistema di riferimento</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>%1: the zone of the first place</source>
        <translation>%1: il fuso del primo punto</translation>
    </message>
    <message>
        <source>Without an EPSG code the place of the line on the map stays as it is now, where it may not fit any more.</source>
        <translation>Senza un codice EPSG il posto della linea sulla mappa resta quello attuale, che potrebbe non essere più adatto.</translation>
    </message>
    <message>
        <source>Without an EPSG code the line gets no place on the map.</source>
        <translation>Senza un codice EPSG la linea non ottiene un posto sulla mappa.</translation>
    </message>
    <message>
        <source>On OK the line lies on the map from the first geophone to the last one, on the line that is shown.</source>
        <translation>Con OK la linea va sulla mappa dal primo geofono all&apos;ultimo, sulla linea mostrata.</translation>
    </message>
    <message numerus="yes">
        <source>On OK the line lies on the map along %n point(s), and KML follows it. Reports and the dialog of geographic coordinates give its two ends.</source>
        <translation>
            <numerusform>Con OK la linea va sulla mappa per %n punto, e il KML la segue. Le relazioni e la finestra delle coordinate geografiche ne danno i due estremi.</numerusform>
            <numerusform>Con OK la linea va sulla mappa per %n punti, e il KML la segue. Le relazioni e la finestra delle coordinate geografiche ne danno i due estremi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::TableTexts</name>
    <message>
        <source>The first line, &quot;%1&quot;, was taken for a heading and skipped.</source>
        <translation>La prima riga, &quot;%1&quot;, è stata presa per un&apos;intestazione e saltata.</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot;</source>
        <translation>riga %1: &quot;%2&quot;</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e un altro</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attenzione</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) of %1 that are no number were taken as 0.</source>
        <translation>
            <numerusform>%n campo di %1 che non è un numero è stato preso come 0.</numerusform>
            <numerusform>%n campi di %1 che non sono numeri sono stati presi come 0.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::Talvesk_MainWindows</name>
    <message>
        <source>Traces</source>
        <translation>Tracce</translation>
    </message>
    <message>
        <source>&lt;h2&gt;No survey yet&lt;/h2&gt;&lt;p&gt;Open shot files with Ctrl+O, or drop them here.&lt;/p&gt;&lt;p&gt;Picks without traces come in with File &amp;gt; Import TravelTimes.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Nessun rilievo&lt;/h2&gt;&lt;p&gt;Apri i file dei tiri con Ctrl+O, o trascinali qui.&lt;/p&gt;&lt;p&gt;I tempi senza tracce si caricano con File &amp;gt; Importa tempi di arrivo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Traces and picks of the current shot</source>
        <translation>Tracce e primi arrivi del tiro in vista</translation>
    </message>
    <message>
        <source>Traces and picks, second view</source>
        <translation>Tracce e primi arrivi, seconda vista</translation>
    </message>
    <message>
        <source>Travel times of the current shot</source>
        <translation>Tempi di arrivo del tiro in vista</translation>
    </message>
    <message>
        <source>Draw the picks of the other shots faintly over the traces</source>
        <translation>Disegna in chiaro sulle tracce i primi arrivi degli altri tiri</translation>
    </message>
    <message>
        <source>Show All Picks</source>
        <translation>Mostra tutti i primi arrivi</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one</source>
        <translation>Mostra la copia filtrata delle tracce, dove c&apos;è</translation>
    </message>
    <message>
        <source>Show Filtered Traces</source>
        <translation>Mostra le tracce filtrate</translation>
    </message>
    <message>
        <source>Hide the picks and the travel-time preview</source>
        <translation>Nasconde i primi arrivi e l&apos;anteprima dei tempi</translation>
    </message>
    <message>
        <source>Show Only Traces</source>
        <translation>Mostra solo le tracce</translation>
    </message>
    <message>
        <source>Draw the times that the last inversion computed</source>
        <translation>Disegna i tempi calcolati dall&apos;ultima inversione</translation>
    </message>
    <message>
        <source>Show computed Travel Times</source>
        <translation>Mostra i tempi calcolati</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Dromocrone</translation>
    </message>
    <message>
        <source>Travel time curves of all shots</source>
        <translation>Dromocrone di tutti i tiri</translation>
    </message>
    <message>
        <source>Tomographic profile</source>
        <translation>Sezione tomografica</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Esporta</translation>
    </message>
    <message>
        <source>&amp;KML</source>
        <translation>&amp;KML</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Vista</translation>
    </message>
    <message>
        <source>Show Velocity Gradient</source>
        <translation>Mostra il gradiente di velocità</translation>
    </message>
    <message>
        <source>Show Geophones</source>
        <translation>Mostra i geofoni</translation>
    </message>
    <message>
        <source>&amp;Traces</source>
        <translation>&amp;Tracce</translation>
    </message>
    <message>
        <source>Picks of the selected traces</source>
        <translation>Primi arrivi delle tracce scelte</translation>
    </message>
    <message>
        <source>Mouse tool</source>
        <translation>Strumento del mouse</translation>
    </message>
    <message>
        <source>Snap picks to</source>
        <translation>Aggancia i primi arrivi a</translation>
    </message>
    <message>
        <source>Wiggles</source>
        <translation>Oscillazioni</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Progetto</translation>
    </message>
    <message>
        <source>P&amp;rocessing</source>
        <translation>&amp;Elaborazione</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Nuovo...</translation>
    </message>
    <message>
        <source>Import TravelTimes...</source>
        <translation>Importa tempi di arrivo...</translation>
    </message>
    <message>
        <source>Load traveltimes</source>
        <translation>Carica i tempi di arrivo</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Applica lo smussamento</translation>
    </message>
    <message>
        <source>Smooth the velocities of the section once more</source>
        <translation>Smussa ancora una volta le velocità della sezione</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Esegui l&apos;inversione tomografica</translation>
    </message>
    <message>
        <source>Invert the picks into a velocity section</source>
        <translation>Inverte i primi arrivi in una sezione di velocità</translation>
    </message>
    <message>
        <source>Grid view</source>
        <translation>Vista a celle</translation>
    </message>
    <message>
        <source>Draw the section cell by cell</source>
        <translation>Disegna la sezione cella per cella</translation>
    </message>
    <message>
        <source>Smooth view</source>
        <translation>Vista sfumata</translation>
    </message>
    <message>
        <source>Draw the section with velocities blended between cells</source>
        <translation>Disegna la sezione con velocità sfumate fra le celle</translation>
    </message>
    <message>
        <source>Export tomographic data ...</source>
        <translation>Esporta i dati tomografici ...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>Show the next seismic file</source>
        <translation>Mostra il file sismico successivo</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Show the previous file</source>
        <translation>Mostra il file precedente</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Definisci il modello di velocità</translation>
    </message>
    <message>
        <source>Set the layers and velocities that the inversion starts from</source>
        <translation>Definisce gli strati e le velocità da cui parte l&apos;inversione</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Apri progetto...</translation>
    </message>
    <message>
        <source>Open a project with its shots, picks and section</source>
        <translation>Apre un progetto con tiri, primi arrivi e sezione</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Salva progetto con nome...</translation>
    </message>
    <message>
        <source>Save the project in a file of another name</source>
        <translation>Salva il progetto in un file con un altro nome</translation>
    </message>
    <message>
        <source>Images ...</source>
        <translation>Immagini ...</translation>
    </message>
    <message>
        <source>Save pictures of the section, the curves and the traces</source>
        <translation>Salva immagini della sezione, delle dromocrone e delle tracce</translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation>AutoPick</translation>
    </message>
    <message>
        <source>Pick the first breaks of the current shot, or of all shots when all traces are shown</source>
        <translation>Trova i primi arrivi del tiro in vista, o di tutti i tiri quando si mostrano tutte le tracce</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Version, libraries and licence of Talvesk</source>
        <translation>Versione, librerie e licenza di Talvesk</translation>
    </message>
    <message>
        <source>Geometry ...</source>
        <translation>Geometria ...</translation>
    </message>
    <message>
        <source>Set the positions of geophones and shots</source>
        <translation>Definisce le posizioni di geofoni e tiri</translation>
    </message>
    <message>
        <source>Grid ...</source>
        <translation>Griglia ...</translation>
    </message>
    <message>
        <source>Lay the grid of the tomography under the line</source>
        <translation>Stende la griglia della tomografia sotto la linea</translation>
    </message>
    <message>
        <source>PDF ...</source>
        <translation>PDF ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as PDF</source>
        <translation>Scrive una relazione del rilievo in PDF</translation>
    </message>
    <message>
        <source>Palette Options...</source>
        <translation>Opzioni della tavolozza...</translation>
    </message>
    <message>
        <source>Choose the colours of the section</source>
        <translation>Sceglie i colori della sezione</translation>
    </message>
    <message>
        <source>ODT...</source>
        <translation>ODT...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a text document</source>
        <translation>Scrive una relazione del rilievo come documento di testo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Close Talvesk</source>
        <translation>Chiude Talvesk</translation>
    </message>
    <message>
        <source>On line help</source>
        <translation>Aiuto in linea</translation>
    </message>
    <message>
        <source>Open the help pages on the web, or the user guide without a network</source>
        <translation>Apre le pagine di aiuto sul web, o la guida se manca la rete</translation>
    </message>
    <message>
        <source>Show Rays</source>
        <translation>Mostra i raggi</translation>
    </message>
    <message>
        <source>Overlay the seismic rays to profile</source>
        <translation>Sovrappone i raggi sismici alla sezione</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Riempi le oscillazioni</translation>
    </message>
    <message>
        <source>Fill the positive half of every wiggle</source>
        <translation>Riempie la metà positiva di ogni oscillazione</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Language, trace view and image options</source>
        <translation>Lingua, vista delle tracce e opzioni delle immagini</translation>
    </message>
    <message>
        <source>Show Contour Lines</source>
        <translation>Mostra le isolinee</translation>
    </message>
    <message>
        <source>Draw lines of equal velocity over the section</source>
        <translation>Disegna sulla sezione le linee di uguale velocità</translation>
    </message>
    <message>
        <source>Set geographic coordinates ...</source>
        <translation>Coordinate geografiche ...</translation>
    </message>
    <message>
        <source>Say where the first and the last geophone lie on the map</source>
        <translation>Dice dove si trovano sulla mappa il primo e l&apos;ultimo geofono</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Ripristina la vista</translation>
    </message>
    <message>
        <source>Bring the whole section back into view</source>
        <translation>Riporta in vista tutta la sezione</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Salva il progetto</translation>
    </message>
    <message>
        <source>Vertical Gradient</source>
        <translation>Gradiente verticale</translation>
    </message>
    <message>
        <source>Show how fast the velocity grows with depth</source>
        <translation>Mostra quanto cresce la velocità con la profondità</translation>
    </message>
    <message>
        <source>Laplacian Gradient</source>
        <translation>Gradiente laplaciano</translation>
    </message>
    <message>
        <source>Show where the velocity changes most abruptly</source>
        <translation>Mostra dove la velocità cambia più bruscamente</translation>
    </message>
    <message>
        <source>Show Tomographic Profile</source>
        <translation>Mostra la sezione tomografica</translation>
    </message>
    <message>
        <source>Show the velocity section</source>
        <translation>Mostra la sezione di velocità</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guida per l&apos;utente</translation>
    </message>
    <message>
        <source>Open the guide that comes with Talvesk</source>
        <translation>Apre la guida che accompagna Talvesk</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation>Filtro...</translation>
    </message>
    <message>
        <source>Filter the traces of the current shot by frequency, with spectrum and preview</source>
        <translation>Filtra in frequenza le tracce del tiro in vista, con spettro e anteprima</translation>
    </message>
    <message>
        <source>Apply Hushel</source>
        <translation>Applica Hushel</translation>
    </message>
    <message>
        <source>Apply Hushel - The Noise Reduction tool for seismic refraction data</source>
        <translation>Applica Hushel - La riduzione del rumore per i dati di sismica a rifrazione</translation>
    </message>
    <message>
        <source>AGC</source>
        <translation>AGC</translation>
    </message>
    <message>
        <source>Even out the amplitudes of the traces (automatic gain control)</source>
        <translation>Pareggia le ampiezze delle tracce (controllo automatico del guadagno)</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Rifrazione</translation>
    </message>
    <message>
        <source>Interpret the picks layer by layer with the reciprocal method</source>
        <translation>Interpreta i primi arrivi strato per strato con il metodo reciproco</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Piccoli</translation>
    </message>
    <message>
        <source>Draw small geophones on the section</source>
        <translation>Disegna geofoni piccoli sulla sezione</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normali</translation>
    </message>
    <message>
        <source>Draw geophones of normal size on the section</source>
        <translation>Disegna geofoni di grandezza normale sulla sezione</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grandi</translation>
    </message>
    <message>
        <source>Draw large geophones on the section</source>
        <translation>Disegna geofoni grandi sulla sezione</translation>
    </message>
    <message>
        <source>Show refraction</source>
        <translation>Mostra la rifrazione</translation>
    </message>
    <message>
        <source>Overlay the refractors of the layered interpretation</source>
        <translation>Sovrappone i rifrattori dell&apos;interpretazione a strati</translation>
    </message>
    <message>
        <source>Show scalarbar</source>
        <translation>Mostra la scala dei colori</translation>
    </message>
    <message>
        <source>Show the colour scale beside the section</source>
        <translation>Mostra la scala dei colori accanto alla sezione</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Istantanea</translation>
    </message>
    <message>
        <source>Take a Screenshot of the tomographic profile</source>
        <translation>Prende un&apos;istantanea della sezione tomografica</translation>
    </message>
    <message>
        <source>Export TravelTimes...</source>
        <translation>Esporta tempi di arrivo...</translation>
    </message>
    <message>
        <source>Write picks and positions to a travel-time file</source>
        <translation>Scrive primi arrivi e posizioni in un file</translation>
    </message>
    <message>
        <source>Show Information Density Layer</source>
        <translation>Mostra la densità d&apos;informazione</translation>
    </message>
    <message>
        <source>Show Grid Lines</source>
        <translation>Mostra le linee della griglia</translation>
    </message>
    <message>
        <source>Draw distance and depth lines over the section</source>
        <translation>Disegna sulla sezione linee di distanza e profondità</translation>
    </message>
    <message>
        <source>Set title ...</source>
        <translation>Titolo ...</translation>
    </message>
    <message>
        <source>Set prject title</source>
        <translation>Definisce il titolo del progetto</translation>
    </message>
    <message>
        <source>Show title ...</source>
        <translation>Mostra il titolo ...</translation>
    </message>
    <message>
        <source>Write the project title over the section</source>
        <translation>Scrive il titolo del progetto sopra la sezione</translation>
    </message>
    <message>
        <source>Tomography to text file ...</source>
        <translation>Tomografia in un file di testo ...</translation>
    </message>
    <message>
        <source>Export tomography as a XYZVelocity gridded text file</source>
        <translation>Esporta la tomografia in un file di testo XYZVelocità</translation>
    </message>
    <message>
        <source>Tomographic profile ...</source>
        <translation>Sezione tomografica ...</translation>
    </message>
    <message>
        <source>Export the section to KML, standing on the globe</source>
        <translation>Esporta la sezione in KML, in piedi sul globo</translation>
    </message>
    <message>
        <source>Seismic line ...</source>
        <translation>Linea sismica ...</translation>
    </message>
    <message>
        <source>Export seismic line to KML</source>
        <translation>Esporta la linea sismica in KML</translation>
    </message>
    <message>
        <source>Open shot files...</source>
        <translation>Apri file dei tiri...</translation>
    </message>
    <message>
        <source>Add shot files (SEG-2, SEG-Y, SU) to the survey</source>
        <translation>Aggiunge al rilievo file dei tiri (SEG-2, SEG-Y, SU)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla modifica</translation>
    </message>
    <message>
        <source>Take back the last edit of the picks</source>
        <translation>Annulla l&apos;ultima modifica dei primi arrivi</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti modifica</translation>
    </message>
    <message>
        <source>Do again the edit that was taken back</source>
        <translation>Ripete la modifica annullata</translation>
    </message>
    <message>
        <source>Open shots at the part of the record that holds the first breaks</source>
        <translation>Apre i tiri sulla parte della registrazione che contiene i primi arrivi</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>Taglia alla traccia vicina</translation>
    </message>
    <message>
        <source>End every wiggle where the next trace begins</source>
        <translation>Ferma ogni oscillazione dove comincia la traccia vicina</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Due colori</translation>
    </message>
    <message>
        <source>Fill the two halves of every wiggle in two colours</source>
        <translation>Riempie le due metà di ogni oscillazione con due colori</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Mostra le tracce filtrate</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one; AutoPick then picks on it</source>
        <translation>Mostra la copia filtrata delle tracce, dove c&apos;è; l&apos;AutoPick lavora allora su di essa</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Mostra tutte le tracce</translation>
    </message>
    <message>
        <source>Open shots with all traces in view; AutoPick, Filter, AGC and Hushel then work on all shots</source>
        <translation>Apre i tiri con tutte le tracce in vista; AutoPick, Filtro, AGC e Hushel lavorano allora su tutti i tiri</translation>
    </message>
    <message>
        <source>At true distance</source>
        <translation>Alla distanza vera</translation>
    </message>
    <message>
        <source>Place the traces at their distance along the line, not one beside the other</source>
        <translation>Mette le tracce alla loro distanza lungo la linea, non una accanto all&apos;altra</translation>
    </message>
    <message>
        <source>True amplitudes</source>
        <translation>Ampiezze vere</translation>
    </message>
    <message>
        <source>Keep the amplitudes of a shot in proportion; otherwise every trace is as wide as the others</source>
        <translation>Mantiene le proporzioni fra le ampiezze di un tiro; altrimenti ogni traccia è larga come le altre</translation>
    </message>
    <message>
        <source>Air wave</source>
        <translation>Onda d&apos;aria</translation>
    </message>
    <message>
        <source>Draw the line of the sound that travels through the air</source>
        <translation>Disegna la linea del suono che viaggia nell&apos;aria</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Enlarge what is around the cursor (key M)</source>
        <translation>Ingrandisce ciò che sta intorno al cursore (tasto M)</translation>
    </message>
    <message>
        <source>Larger wiggles</source>
        <translation>Oscillazioni più grandi</translation>
    </message>
    <message>
        <source>Raise the gain (key ])</source>
        <translation>Alza il guadagno (tasto ])</translation>
    </message>
    <message>
        <source>Smaller wiggles</source>
        <translation>Oscillazioni più piccole</translation>
    </message>
    <message>
        <source>Lower the gain (key [)</source>
        <translation>Abbassa il guadagno (tasto [)</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Primo arrivo</translation>
    </message>
    <message>
        <source>Click sets a pick, dragging moves it or draws a run of picks, right click removes it</source>
        <translation>Il clic mette un primo arrivo, trascinando lo si sposta o se ne traccia una serie, il clic destro lo toglie</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ingrandimento</translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it</source>
        <translation>Trascina un rettangolo per ingrandirlo</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Spostamento</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Trascina l&apos;immagine</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Righello</translation>
    </message>
    <message>
        <source>Drag a line to read its apparent velocity (key R)</source>
        <translation>Trascina una linea per leggerne la velocità apparente (tasto R)</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selezione</translation>
    </message>
    <message>
        <source>Drag over traces to confirm or remove their picks together</source>
        <translation>Trascina sulle tracce per confermarne o toglierne insieme i primi arrivi</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Niente</translation>
    </message>
    <message>
        <source>Picks stay where they are set</source>
        <translation>I primi arrivi restano dove sono messi</translation>
    </message>
    <message>
        <source>Onset</source>
        <translation>Inizio del segnale</translation>
    </message>
    <message>
        <source>Draw picks to where the noise ends</source>
        <translation>Porta i primi arrivi dove finisce il rumore</translation>
    </message>
    <message>
        <source>Zero crossing</source>
        <translation>Passaggio per lo zero</translation>
    </message>
    <message>
        <source>Draw picks to the nearest change of sign</source>
        <translation>Porta i primi arrivi al cambio di segno più vicino</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Picco</translation>
    </message>
    <message>
        <source>Draw picks to the strongest peak or trough nearby</source>
        <translation>Porta i primi arrivi al picco o alla valle più forte vicina</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Conferma i primi arrivi</translation>
    </message>
    <message>
        <source>Make the automatic picks of the selected traces your own (key C)</source>
        <translation>Fa propri i primi arrivi automatici delle tracce scelte (tasto C)</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Togli i primi arrivi</translation>
    </message>
    <message>
        <source>Remove the picks of the selected traces (key Delete)</source>
        <translation>Toglie i primi arrivi delle tracce scelte (tasto Canc)</translation>
    </message>
    <message>
        <source>Remove unconfirmed picks</source>
        <translation>Togli i primi arrivi non confermati</translation>
    </message>
    <message>
        <source>Remove the automatic picks of the selected traces that were not confirmed</source>
        <translation>Toglie i primi arrivi automatici delle tracce scelte che non sono stati confermati</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>Show all traces and all times (key F)</source>
        <translation>Mostra tutte le tracce e tutti i tempi (tasto F)</translation>
    </message>
    <message>
        <source>Previous view</source>
        <translation>Vista precedente</translation>
    </message>
    <message>
        <source>Go back to the view before the last zoom (key Backspace)</source>
        <translation>Torna alla vista prima dell&apos;ultimo ingrandimento (tasto Backspace)</translation>
    </message>
    <message>
        <source>Next view</source>
        <translation>Vista successiva</translation>
    </message>
    <message>
        <source>Go forward again after going back (keys Shift+Backspace)</source>
        <translation>Torna avanti dopo essere tornati indietro (tasti Maiusc+Backspace)</translation>
    </message>
    <message>
        <source>Recording details...</source>
        <translation>Dettagli di registrazione...</translation>
    </message>
    <message>
        <source>What the shot files hold: samples, interval, delay, positions, warnings</source>
        <translation>Che cosa contengono i file dei tiri: campioni, intervallo, ritardo, posizioni, avvertimenti</translation>
    </message>
    <message>
        <source>Shot in view</source>
        <translation>Tiro in vista</translation>
    </message>
    <message>
        <source>The shot in view</source>
        <translation>Il tiro in vista</translation>
    </message>
    <message>
        <source>Open Seismic Trace</source>
        <translation>Apri tracce sismiche</translation>
    </message>
    <message>
        <source>Loading shot files ...</source>
        <translation>Caricamento dei file dei tiri ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Unsupported file format.</source>
        <translation>Formato di file non supportato.</translation>
    </message>
    <message>
        <source>Error while loading one or more traces.</source>
        <translation>Errore nel caricamento di una o più tracce.</translation>
    </message>
    <message numerus="yes">
        <source>%n shot file(s) loaded.</source>
        <translation>
            <numerusform>%n file caricato.</numerusform>
            <numerusform>%n file caricati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Travel times of %n shot(s) imported.</source>
        <translation>
            <numerusform>Tempi di arrivo di %n tiro importati.</numerusform>
            <numerusform>Tempi di arrivo di %n tiri importati.</numerusform>
        </translation>
    </message>
    <message>
        <source>First breaks found on %1 of %2 traces.</source>
        <translation>Primi arrivi trovati su %1 tracce di %2.</translation>
    </message>
    <message>
        <source>Filtered copies made of %1 of %2 traces.</source>
        <translation>Copie filtrate di %1 tracce su %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n with warnings, see Traces &gt; Recording details.</source>
        <translation>
            <numerusform>%n con avvertimenti, vedi Tracce &gt; Dettagli di registrazione.</numerusform>
            <numerusform>%n con avvertimenti, vedi Tracce &gt; Dettagli di registrazione.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording delay</source>
        <translation>Ritardo di registrazione</translation>
    </message>
    <message>
        <source>The records start before the shot, by up to %1 ms.</source>
        <translation>Le registrazioni cominciano prima del tiro, fino a %1 ms.</translation>
    </message>
    <message>
        <source>Do you want to count times from the shot? What was recorded before it is then dropped.</source>
        <translation>Contare i tempi dal tiro? Ciò che è stato registrato prima viene allora tolto.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) end before the shot and stay as recorded.</source>
        <translation>
            <numerusform>%n traccia finisce prima del tiro e resta come registrata.</numerusform>
            <numerusform>%n tracce finiscono prima del tiro e restano come registrate.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import TravelTimes</source>
        <translation>Importa tempi di arrivo</translation>
    </message>
    <message>
        <source>Error while loading %1.</source>
        <translation>Errore nel caricamento di %1.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>%1 was loaded with warnings.</source>
        <translation>%1 è stato caricato con avvertimenti.</translation>
    </message>
    <message>
        <source>Save TravelTimeExchange</source>
        <translation>Salva tempi di arrivo</translation>
    </message>
    <message>
        <source>The travel times have not been saved.</source>
        <translation>I tempi di arrivo non sono stati salvati.</translation>
    </message>
    <message>
        <source>Travel times saved in %1</source>
        <translation>Tempi di arrivo salvati in %1</translation>
    </message>
    <message>
        <source>The user guide is not where it was installed.</source>
        <translation>La guida non è dove era stata installata.</translation>
    </message>
    <message>
        <source>Install Talvesk again to get it back.</source>
        <translation>Installa di nuovo Talvesk per riaverla.</translation>
    </message>
    <message>
        <source>Picking first breaks ...</source>
        <translation>Ricerca dei primi arrivi ...</translation>
    </message>
    <message>
        <source>Not every shot could be picked.</source>
        <translation>Non tutti i tiri hanno dato primi arrivi.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n traccia resta com&apos;era.</numerusform>
            <numerusform>%n tracce restano com&apos;erano.</numerusform>
        </translation>
    </message>
    <message>
        <source>Applying AGC ...</source>
        <translation>Applicazione dell&apos;AGC ...</translation>
    </message>
    <message>
        <source>Applying Hushel ...</source>
        <translation>Applicazione di Hushel ...</translation>
    </message>
    <message>
        <source>Project title</source>
        <translation>Titolo del progetto</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titolo:</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <comment>shot number, file, place</comment>
        <translation>%1: %2 a %3</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1: a %2</translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation>Traccia %1</translation>
    </message>
    <message>
        <source>Offset %1</source>
        <translation>Offset %1</translation>
    </message>
    <message>
        <source>Time %1 ms</source>
        <translation>Tempo %1 ms</translation>
    </message>
    <message>
        <source>Pick %1 ms (automatic)</source>
        <translation>Primo arrivo %1 ms (automatico)</translation>
    </message>
    <message>
        <source>Pick %1 ms</source>
        <translation>Primo arrivo %1 ms</translation>
    </message>
    <message>
        <source>Amplitude %1</source>
        <translation>Ampiezza %1</translation>
    </message>
    <message>
        <source>Talvesk 2022.0</source>
        <translation>Talvesk 2022.0</translation>
    </message>
    <message>
        <source>Zoom in on first breaks</source>
        <translation>Ingrandisci i primi arrivi</translation>
    </message>
    <message>
        <source>Save travel-time curves</source>
        <translation>Salva le dromocrone</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf);;All Files (*)</source>
        <translation>Immagini (*.png *.svg *.pdf);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>The picture has not been saved.</source>
        <translation>L&apos;immagine non è stata salvata.</translation>
    </message>
    <message>
        <source>Picture saved in %1</source>
        <translation>Immagine salvata in %1</translation>
    </message>
    <message>
        <source>Colour the section by how well rays cover it</source>
        <translation>Colora la sezione secondo la copertura dei raggi</translation>
    </message>
    <message>
        <source>No section yet</source>
        <translation>Ancora nessuna sezione</translation>
    </message>
    <message>
        <source>Load shot files or travel times with the File menu first.</source>
        <translation>Caricare prima i file dei tiri o i tempi di arrivo dal menu File.</translation>
    </message>
    <message>
        <source>Build a grid with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt;, then invert the picks with &lt;b&gt;Processing &amp;gt; Run tomography inversion&lt;/b&gt;.</source>
        <translation>Costruire una griglia con &lt;b&gt;Progetto &amp;gt; Griglia ...&lt;/b&gt;, poi invertire i tempi con &lt;b&gt;Elaborazione &amp;gt; Esegui l&apos;inversione tomografica&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>The grid has no cells</source>
        <translation>La griglia non ha celle</translation>
    </message>
    <message>
        <source>Build another one with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt; and give it a depth greater than the cell size.</source>
        <translation>Costruirne un&apos;altra con &lt;b&gt;Progetto &amp;gt; Griglia ...&lt;/b&gt;, con una profondità maggiore della dimensione delle celle.</translation>
    </message>
    <message>
        <source>Nothing to draw</source>
        <translation>Niente da disegnare</translation>
    </message>
    <message>
        <source>No cell of the grid has a value to show.</source>
        <translation>Nessuna cella della griglia ha un valore da mostrare.</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distanza %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Quota %1</translation>
    </message>
    <message>
        <source>Depth %1</source>
        <translation>Profondità %1</translation>
    </message>
    <message>
        <source>Velocity %1</source>
        <translation>Velocità %1</translation>
    </message>
    <message>
        <source>Gradient %1 1/s</source>
        <translation>Gradiente %1 1/s</translation>
    </message>
    <message>
        <source>Laplacian %1 1/(%2·s)</source>
        <translation>Laplaciano %1 1/(%2·s)</translation>
    </message>
    <message>
        <source>Information density %1</source>
        <translation>Densità d&apos;informazione %1</translation>
    </message>
    <message>
        <source>Export the section as a gridded text file, heights counted from the highest ground</source>
        <translation>Esporta la sezione come file di testo a griglia, con le quote contate dal punto più alto del terreno</translation>
    </message>
    <message>
        <source>Section as VTK grid ...</source>
        <translation>Sezione come griglia VTK ...</translation>
    </message>
    <message>
        <source>Export velocity, gradient and information density of the cells as a VTK unstructured grid</source>
        <translation>Esporta velocità, gradiente e densità d&apos;informazione delle celle come griglia non strutturata VTK</translation>
    </message>
    <message>
        <source>Section as Surfer grid ...</source>
        <translation>Sezione come griglia Surfer ...</translation>
    </message>
    <message>
        <source>Export the velocities on a regular raster as a Surfer ASCII grid</source>
        <translation>Esporta le velocità su una maglia regolare come griglia ASCII di Surfer</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Salvato in %1</translation>
    </message>
    <message>
        <source>The data have not been exported.</source>
        <translation>I dati non sono stati esportati.</translation>
    </message>
    <message>
        <source>Export Gridded Data</source>
        <translation>Esporta dati a griglia</translation>
    </message>
    <message>
        <source>Save gridded tomographic velocity in a text file (*.txt);;All Files (*)</source>
        <translation>Velocità tomografiche a griglia in un file di testo (*.txt);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Export VTK Grid</source>
        <translation>Esporta griglia VTK</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;All Files (*)</source>
        <translation>Griglia non strutturata VTK (*.vtu);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Export Surfer Grid</source>
        <translation>Esporta griglia Surfer</translation>
    </message>
    <message>
        <source>Surfer ASCII grid (*.grd);;All Files (*)</source>
        <translation>Griglia ASCII di Surfer (*.grd);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Mancano le coordinate geografiche: i dati non possono essere esportati in formato KML</translation>
    </message>
    <message>
        <source>Export Tomography to KML</source>
        <translation>Esporta tomografia in KML</translation>
    </message>
    <message>
        <source>KML (*.kml);;All Files (*)</source>
        <translation>KML (*.kml);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Export Seismic Line to KML</source>
        <translation>Esporta la linea sismica in KML</translation>
    </message>
    <message>
        <source>The geometry of the survey has changed.</source>
        <translation>La geometria del rilievo è cambiata.</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
Do you want to run refraction processing anyway? </source>
        <translation>Insieme dei primi arrivi incompleto. 
 
Eseguire comunque l&apos;elaborazione a rifrazione? </translation>
    </message>
    <message>
        <source>Empty filename to be saved</source>
        <translation>Nome del file da salvare vuoto</translation>
    </message>
    <message>
        <source>%1 already exists.</source>
        <translation>%1 esiste già.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Vuoi sostituirlo?</translation>
    </message>
    <message>
        <source>Something went wrong while saving project </source>
        <translation>Qualcosa è andato storto durante il salvataggio del progetto </translation>
    </message>
    <message>
        <source>WARNING: the project has NOT been saved.</source>
        <translation>ATTENZIONE: il progetto NON è stato salvato.</translation>
    </message>
    <message>
        <source>Project saved in %1</source>
        <translation>Progetto salvato in %1</translation>
    </message>
    <message>
        <source>The project has been saved.</source>
        <translation>Il progetto è stato salvato.</translation>
    </message>
    <message>
        <source>Error while loading traces: Invalid file format.</source>
        <translation>Errore nel caricamento delle tracce: formato di file non valido.</translation>
    </message>
    <message>
        <source>%1 is not a valid project.</source>
        <translation>%1 non è un progetto valido.</translation>
    </message>
    <message>
        <source>There is no file %1</source>
        <translation>Il file %1 non esiste</translation>
    </message>
    <message>
        <source>Project %1 loaded.</source>
        <translation>Progetto %1 caricato.</translation>
    </message>
    <message>
        <source>Load Project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Progetti recenti</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Svuota l&apos;elenco</translation>
    </message>
    <message>
        <source>No recovery copy can be saved; save the project yourself. %1</source>
        <translation>Non è possibile salvare una copia di recupero; salva tu il progetto. %1</translation>
    </message>
    <message>
        <source>A survey that was not saved yet is there as it was at %1. Do you want to open it?</source>
        <translation>È disponibile un rilievo non ancora salvato, com&apos;era il %1. Vuoi aprirlo?</translation>
    </message>
    <message>
        <source>The project %1 is there as it was at %2. Do you want to open it?</source>
        <translation>È disponibile il progetto %1 com&apos;era il %2. Vuoi aprirlo?</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
</source>
        <translation>I geofoni non hanno geometria! 
</translation>
    </message>
    <message>
        <source>Please set the position of geophones
</source>
        <translation>Impostare la posizione dei geofoni
</translation>
    </message>
    <message>
        <source>Grid of %1 rows and %2 columns built.</source>
        <translation>Creata una griglia di %1 righe e %2 colonne.</translation>
    </message>
    <message>
        <source>The grid could not be built.</source>
        <translation>Non è stato possibile creare la griglia.</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layers.</source>
        <translation>La griglia ha le velocità degli strati.</translation>
    </message>
    <message>
        <source>The grid could not be smoothed.</source>
        <translation>Non è stato possibile smussare la griglia.</translation>
    </message>
    <message>
        <source>The velocities of the grid are smoothed.</source>
        <translation>Le velocità della griglia sono state smussate.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Attenzione:</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
</source>
        <translation>Insieme dei primi arrivi incompleto. 
 
</translation>
    </message>
    <message>
        <source>Do you want to run tomography inversion anyway? </source>
        <translation>Eseguire comunque l&apos;inversione tomografica? </translation>
    </message>
    <message>
        <source>An inversion is under way; the survey cannot be edited.</source>
        <translation>Un&apos;inversione è in corso; il rilievo non può essere modificato.</translation>
    </message>
    <message>
        <source>Tomography inversion</source>
        <translation>Inversione tomografica</translation>
    </message>
    <message>
        <source>The inversion is still running.</source>
        <translation>L&apos;inversione è ancora in corso.</translation>
    </message>
    <message>
        <source>Do you want to stop it when the iteration under way is completed, and close then?</source>
        <translation>Fermarla al termine dell&apos;iterazione in corso e poi chiudere?</translation>
    </message>
    <message>
        <source>The inversion could not be completed.</source>
        <translation>Non è stato possibile completare l&apos;inversione.</translation>
    </message>
    <message numerus="yes">
        <source>%n external iteration(s) completed.</source>
        <translation>
            <numerusform>%n iterazione esterna completata.</numerusform>
            <numerusform>%n iterazioni esterne completate.</numerusform>
        </translation>
    </message>
    <message>
        <source>Inversion results</source>
        <translation>Risultati dell&apos;inversione</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) exist already.</source>
        <translation>
            <numerusform>%n file esiste già.</numerusform>
            <numerusform>%n file esistono già.</numerusform>
        </translation>
    </message>
    <message>
        <source>Do you want to replace them?</source>
        <translation>Sostituirli?</translation>
    </message>
    <message>
        <source>Writing pictures ...</source>
        <translation>Scrittura delle immagini ...</translation>
    </message>
    <message>
        <source>%1 of %2 pictures have been saved.</source>
        <translation>Sono state salvate %1 immagini su %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) saved.</source>
        <translation>
            <numerusform>%n immagine salvata.</numerusform>
            <numerusform>%n immagini salvate.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save screenshot</source>
        <translation>Salva istantanea</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;JPEG picture (*.jpg *.jpeg)</source>
        <translation>Immagine PNG (*.png);;Immagine JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>Save PDF report</source>
        <translation>Salva relazione PDF</translation>
    </message>
    <message>
        <source>PDF report (*.pdf)</source>
        <translation>Relazione PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save ODT report</source>
        <translation>Salva relazione ODT</translation>
    </message>
    <message>
        <source>OpenDocument text (*.odt)</source>
        <translation>Testo OpenDocument (*.odt)</translation>
    </message>
    <message>
        <source>Writing the report ...</source>
        <translation>Scrittura della relazione ...</translation>
    </message>
    <message>
        <source>Stopped; nothing has been saved.</source>
        <translation>Interrotto; nulla è stato salvato.</translation>
    </message>
    <message>
        <source>The file has not been saved.</source>
        <translation>Il file non è stato salvato.</translation>
    </message>
    <message>
        <source>The survey is recovered; it is not saved yet.</source>
        <translation>Il rilievo è recuperato; non è ancora salvato.</translation>
    </message>
    <message>
        <source>Survey tool bar</source>
        <translation>Barra degli strumenti Rilievo</translation>
    </message>
    <message>
        <source>Traces tool bar</source>
        <translation>Barra degli strumenti Tracce</translation>
    </message>
    <message>
        <source>Set them with Project &gt; Set geographic coordinates ...</source>
        <translation>Impostale con Progetto &gt; Coordinate geografiche ...</translation>
    </message>
    <message>
        <source>Writing %1 ...</source>
        <translation>Scrittura di %1 ...</translation>
    </message>
    <message>
        <source>Start a new survey: asks for shot files, which then take the place of this one</source>
        <translation>Comincia un nuovo rilievo: chiede i file dei tiri, che prendono poi il posto di questo</translation>
    </message>
    <message>
        <source>No shot file was loaded.</source>
        <translation>Nessun file dei tiri è stato caricato.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Seismic refraction surveys: from field records to velocity sections.&lt;/p&gt;&lt;p&gt;Talvesk is free software under the MIT licence, without any warranty.&lt;/p&gt;&lt;p&gt;It is built with these libraries, Qt being version %1:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Rilievi di sismica a rifrazione: dalle registrazioni di campagna alle sezioni di velocità.&lt;/p&gt;&lt;p&gt;Talvesk è software libero con licenza MIT, senza alcuna garanzia.&lt;/p&gt;&lt;p&gt;È costruito con queste librerie, Qt nella versione %1:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 is a folder or names no file. Give the project a name.</source>
        <translation>%1 è una cartella o non indica alcun file. Dare un nome al progetto.</translation>
    </message>
    <message>
        <source>%1 is in use elsewhere.</source>
        <translation>%1 è in uso altrove.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 on %3 (process %4).</source>
        <translation>%1 è in uso da parte di %2 su %3 (processo %4).</translation>
    </message>
    <message>
        <source>Project in use</source>
        <translation>Progetto in uso</translation>
    </message>
    <message>
        <source>If nobody uses it any more, delete the lock %1</source>
        <translation>Se nessuno lo usa più, eliminare il blocco %1</translation>
    </message>
    <message>
        <source>Do you want to replace it all the same?</source>
        <translation>Vuoi sostituirlo comunque?</translation>
    </message>
    <message>
        <source>%1 has been changed by somebody else since it was opened or saved here.</source>
        <translation>%1 è stato modificato da qualcun altro dopo l&apos;ultima apertura o l&apos;ultimo salvataggio da qui.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What was changed there is lost then.</source>
        <translation>Vuoi sostituirlo? Le modifiche fatte lì andranno perse.</translation>
    </message>
    <message>
        <source>The file is as it was before.</source>
        <translation>Il file è com&apos;era prima.</translation>
    </message>
    <message>
        <source>Do you want to open it all the same?</source>
        <translation>Vuoi aprirlo comunque?</translation>
    </message>
    <message>
        <source>Some values of the project cannot be. They were put right or left out.</source>
        <translation>Alcuni valori del progetto non sono possibili. Sono stati corretti o tralasciati.</translation>
    </message>
    <message>
        <source>Left out of the inversion:</source>
        <translation>Esclusi dall&apos;inversione:</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Esclusi: %1.</translation>
    </message>
    <message>
        <source>The grid has these cells already.</source>
        <translation>La griglia ha già queste celle.</translation>
    </message>
    <message>
        <source>Do you want to build it anew, with the default velocities?</source>
        <translation>Ricostruirla con le velocità predefinite?</translation>
    </message>
    <message>
        <source>Smoothing, and tracing rays anew ...</source>
        <translation>Smussamento, e nuovo tracciamento dei raggi ...</translation>
    </message>
    <message>
        <source>Picks have changed since.</source>
        <translation>I primi arrivi sono cambiati da allora.</translation>
    </message>
    <message>
        <source>The survey was not changed.</source>
        <translation>Il rilievo non è stato modificato.</translation>
    </message>
    <message>
        <source>Undo &quot;%1&quot;</source>
        <translation>Annulla modifica &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Redo &quot;%1&quot;</source>
        <translation>Ripeti modifica &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annullato: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Ripetuto: %1</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Togli il tiro</translation>
    </message>
    <message>
        <source>Shot %1 is removed; Undo brings it back.</source>
        <translation>Il tiro %1 è stato tolto; &quot;Annulla modifica&quot; lo ripristina.</translation>
    </message>
    <message>
        <source>The oldest steps can no longer be undone: they needed more than %1 MB.</source>
        <translation>Le modifiche più vecchie non si possono più annullare: richiedevano più di %1 MB.</translation>
    </message>
    <message>
        <source>Export recordings...</source>
        <translation>Esporta registrazioni...</translation>
    </message>
    <message>
        <source>Write the traces of all shots, with the positions of the survey, as SEG-Y or SEG-2 files</source>
        <translation>Scrive le tracce di tutti i tiri, con le posizioni del rilievo, in file SEG-Y o SEG-2</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Conta i tempi dal tiro</translation>
    </message>
    <message>
        <source>Drop what was recorded before the shot; picks move with their traces</source>
        <translation>Toglie ciò che è stato registrato prima del tiro; i primi arrivi si spostano con le tracce</translation>
    </message>
    <message>
        <source>Mend recording...</source>
        <translation>Correggi la registrazione...</translation>
    </message>
    <message>
        <source>Put right the time, the order or single traces of the shot in view; what was recorded is kept</source>
        <translation>Corregge il tempo, l&apos;ordine o singole tracce del tiro in vista; ciò che è stato registrato si conserva</translation>
    </message>
    <message>
        <source>Take back all mends</source>
        <translation>Togli tutte le correzioni</translation>
    </message>
    <message>
        <source>Show all recordings as they were recorded, with their picks</source>
        <translation>Mostra tutte le registrazioni com&apos;erano all&apos;origine, con i loro primi arrivi</translation>
    </message>
    <message>
        <source>%1 of them are of disabled shots or killed and left unpicked.</source>
        <translation>Di queste, %1 sono escluse o di tiri disattivati e restano senza primo arrivo.</translation>
    </message>
    <message>
        <source>SEG-Y, a file for each shot</source>
        <translation>SEG-Y, un file per ogni tiro</translation>
    </message>
    <message>
        <source>SEG-Y, all shots in one file</source>
        <translation>SEG-Y, tutti i tiri in un solo file</translation>
    </message>
    <message>
        <source>SEG-2, a file for each shot</source>
        <translation>SEG-2, un file per ogni tiro</translation>
    </message>
    <message>
        <source>Export recordings</source>
        <translation>Esporta registrazioni</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>Folder for the recordings</source>
        <translation>Cartella per le registrazioni</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey.</source>
        <translation>%1 è uno dei file dei tiri di questo rilievo.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Writing recordings ...</source>
        <translation>Scrittura delle registrazioni ...</translation>
    </message>
    <message>
        <source>The export to %1 was stopped; some files are missing.</source>
        <translation>L&apos;esportazione in %1 è stata interrotta; mancano alcuni file.</translation>
    </message>
    <message>
        <source>The recordings have not been exported.</source>
        <translation>Le registrazioni non sono state esportate.</translation>
    </message>
    <message>
        <source>Recordings saved in %1</source>
        <translation>Registrazioni salvate in %1</translation>
    </message>
    <message>
        <source>The recordings have been saved.</source>
        <translation>Le registrazioni sono state salvate.</translation>
    </message>
    <message numerus="yes">
        <source>The times of %n trace(s) count from the shot now.</source>
        <translation>
            <numerusform>I tempi di %n traccia si contano ora dal tiro.</numerusform>
            <numerusform>I tempi di %n tracce si contano ora dal tiro.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pick(s) lay before it and are removed.</source>
        <translation>
            <numerusform>%n primo arrivo era prima del tiro ed è stato tolto.</numerusform>
            <numerusform>%n primi arrivi erano prima del tiro e sono stati tolti.</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording of shot %1 has not been mended.</source>
        <translation>La registrazione del tiro %1 non è stata corretta.</translation>
    </message>
    <message>
        <source>The mends have not been taken back.</source>
        <translation>Le correzioni non sono state tolte.</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <comment>shot</comment>
        <translation>%1 (disattivato)</translation>
    </message>
    <message>
        <source>%1 (mended)</source>
        <comment>shot</comment>
        <translation>%1 (corretto)</translation>
    </message>
    <message>
        <source>disabled or killed</source>
        <translation>esclusa o di un tiro disattivato</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>millisecondi</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>%1 does not say in which unit its times are.</source>
        <translation>%1 non dice in quale unità sono i tempi.</translation>
    </message>
    <message>
        <source>%1 does not hold all of the survey.</source>
        <translation>%1 non contiene tutto il rilievo.</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick lungo la linea</translation>
    </message>
    <message>
        <source>Pick all traces of a shot together, and follow the picks that you made; picks that are not sure are left out</source>
        <translation>Trova i primi arrivi di tutte le tracce di un tiro insieme, seguendo quelli messi da te; quelli non sicuri restano esclusi</translation>
    </message>
    <message>
        <source>Check recordings...</source>
        <translation>Controlla le registrazioni...</translation>
    </message>
    <message>
        <source>List what is doubtful about positions, triggers and traces, with a mend for each that you take or leave</source>
        <translation>Elenca ciò che è dubbio in posizioni, trigger e tracce, con una correzione per ciascun caso, da prendere o lasciare</translation>
    </message>
    <message>
        <source>Proposals carried out: %1 of %2.</source>
        <translation>Proposte eseguite: %1 di %2.</translation>
    </message>
    <message>
        <source>Some proposals have not been carried out.</source>
        <translation>Alcune proposte non sono state eseguite.</translation>
    </message>
    <message>
        <source>Of %1 traces %2 have a pick that is sure to %3 ms and %4 a doubtful one; %5 picks that you made stay.</source>
        <translation>Su %1 tracce, %2 hanno un primo arrivo sicuro entro %3 ms e %4 uno dubbio; %5 primi arrivi messi da te restano.</translation>
    </message>
    <message>
        <source>Guides in the traces</source>
        <translation>Riferimenti nelle tracce</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Tempi calcolati</translation>
    </message>
    <message>
        <source>Draw the times through the section over the traces</source>
        <translation>Disegna sulle tracce i tempi attraverso la sezione</translation>
    </message>
    <message>
        <source>Curve of the nearest shot</source>
        <translation>Dromocrona del tiro più vicino</translation>
    </message>
    <message>
        <source>Draw the picks of the nearest other shot on the same geophones, dashed</source>
        <translation>Disegna, tratteggiati, i primi arrivi dell&apos;altro tiro più vicino agli stessi geofoni</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Tempi reciproci</translation>
    </message>
    <message>
        <source>Mark when other shots recorded the same ways in the other direction: the picks should pass there</source>
        <translation>Segna quando altri tiri hanno registrato gli stessi percorsi nell&apos;altro verso: i primi arrivi dovrebbero passare di lì</translation>
    </message>
    <message>
        <source>Guide line</source>
        <translation>Linea guida</translation>
    </message>
    <message>
        <source>Drag along the first breaks: the picker fills the traces near that line (key G)</source>
        <translation>Trascina lungo i primi arrivi: vengono cercati sulle tracce vicino a quella linea (tasto G)</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Completa lungo la linea</translation>
    </message>
    <message>
        <source>Pick the rest of the current shot through the picks that you set or confirmed</source>
        <translation>Trova gli altri primi arrivi del tiro in vista passando per quelli messi o confermati da te</translation>
    </message>
    <message>
        <source>Error 0.5 ms</source>
        <translation>Errore 0,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 0.5 ms, and so may those that you set next (key 1)</source>
        <translation>I primi arrivi delle tracce scelte possono sbagliare di 0,5 ms, e così quelli che metti in seguito (tasto 1)</translation>
    </message>
    <message>
        <source>Error 1 ms</source>
        <translation>Errore 1 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 1 ms, and so may those that you set next (key 2)</source>
        <translation>I primi arrivi delle tracce scelte possono sbagliare di 1 ms, e così quelli che metti in seguito (tasto 2)</translation>
    </message>
    <message>
        <source>Error 2.5 ms</source>
        <translation>Errore 2,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 2.5 ms, and so may those that you set next (key 3)</source>
        <translation>I primi arrivi delle tracce scelte possono sbagliare di 2,5 ms, e così quelli che metti in seguito (tasto 3)</translation>
    </message>
    <message>
        <source>Error 5 ms</source>
        <translation>Errore 5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 5 ms, and so may those that you set next (key 4)</source>
        <translation>I primi arrivi delle tracce scelte possono sbagliare di 5 ms, e così quelli che metti in seguito (tasto 4)</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Errore ignoto</translation>
    </message>
    <message>
        <source>Nothing is told of how far the picks of the selected traces may be off, nor those that you set next (key 0)</source>
        <translation>Non si indica di quanto possono sbagliare i primi arrivi delle tracce scelte, né quelli che metti in seguito (tasto 0)</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Barre d&apos;errore</translation>
    </message>
    <message>
        <source>Show how far picks may be off, in the traces and in the travel-time curves; bars of doubtful picks are dashed</source>
        <translation>Mostra di quanto possono sbagliare i primi arrivi, nelle tracce e nelle dromocrone; le barre di quelli dubbi sono tratteggiate</translation>
    </message>
    <message>
        <source>Next doubtful pick</source>
        <translation>Primo arrivo dubbio successivo</translation>
    </message>
    <message>
        <source>Go to the next pick of all shots that is doubtful by its error, the section or the reciprocal time, worst first</source>
        <translation>Va al successivo, fra tutti i tiri, dei primi arrivi dubbi per l&apos;errore, la sezione o il tempo reciproco, a partire dal peggiore</translation>
    </message>
    <message>
        <source>Previous doubtful pick</source>
        <translation>Primo arrivo dubbio precedente</translation>
    </message>
    <message>
        <source>Go back to the doubtful pick before, a worse one</source>
        <translation>Torna al primo arrivo dubbio che precede, uno peggiore</translation>
    </message>
    <message>
        <source>Reciprocity...</source>
        <translation>Reciprocità...</translation>
    </message>
    <message>
        <source>Compare the picks of all shots there and back, and find the shots that are late</source>
        <translation>Confronta i primi arrivi di tutti i tiri nei due versi e trova i tiri in ritardo</translation>
    </message>
    <message>
        <source>Set or confirm some picks of this shot first, or draw a line with the tool Guide line.</source>
        <translation>Metti o conferma prima alcuni primi arrivi di questo tiro, o traccia una linea con lo strumento &quot;Linea guida&quot;.</translation>
    </message>
    <message>
        <source>Shot %1 has not been filled.</source>
        <translation>Il tiro %1 non è stato completato.</translation>
    </message>
    <message>
        <source>Shot %1: %2 traces filled, %3 sure to %4 ms and %5 doubtful; %6 are without a pick, %7 picks that you made stay.</source>
        <translation>Tiro %1: %2 tracce completate, %3 con un primo arrivo sicuro entro %4 ms e %5 con uno dubbio; %6 ne sono senza, %7 primi arrivi messi da te restano.</translation>
    </message>
    <message>
        <source>The record of shot %1 is mended; Undo takes it back.</source>
        <translation>La registrazione del tiro %1 è corretta; &quot;Annulla modifica&quot; la ripristina.</translation>
    </message>
    <message>
        <source>The recording has not been mended.</source>
        <translation>La registrazione non è stata corretta.</translation>
    </message>
    <message>
        <source>Save Reciprocal Times</source>
        <translation>Salva tempi reciproci</translation>
    </message>
    <message>
        <source>Table (*.csv);;All Files (*)</source>
        <translation>Tabella (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Doubtful pick %1 of %2, shot %3, trace %4: %5</source>
        <translation>Primo arrivo dubbio %1 di %2, tiro %3, traccia %4: %5</translation>
    </message>
    <message>
        <source>after the last one, the worst again</source>
        <translation>dopo l&apos;ultimo, di nuovo il peggiore</translation>
    </message>
    <message>
        <source>before the worst, the last</source>
        <translation>prima del peggiore, l&apos;ultimo</translation>
    </message>
    <message>
        <source>error %1 ms</source>
        <translation>errore %1 ms</translation>
    </message>
    <message>
        <source>computed %1 ms later</source>
        <translation>calcolato %1 ms più tardi</translation>
    </message>
    <message>
        <source>computed %1 ms earlier</source>
        <translation>calcolato %1 ms prima</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms later</source>
        <translation>tempo reciproco %1 ms più tardi</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms earlier</source>
        <translation>tempo reciproco %1 ms prima</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Non ci sono ancora primi arrivi.</translation>
    </message>
    <message>
        <source>No pick waits for confirmation.</source>
        <translation>Nessun primo arrivo attende conferma.</translation>
    </message>
    <message>
        <source>None of the %1 picks that wait for confirmation is doubtful.</source>
        <translation>Nessuno dei %1 primi arrivi che attendono conferma è dubbio.</translation>
    </message>
    <message>
        <source>Nothing is known of %1 of them: no error, no computed time, no reciprocal one.</source>
        <translation>Di %1 di essi non si sa nulla: né errore, né tempo calcolato, né tempo reciproco.</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Errore %1 ms</translation>
    </message>
    <message>
        <source>Second look ...</source>
        <translation>Da riguardare ...</translation>
    </message>
    <message>
        <source>List the picks that the section cannot explain, time shifts of shots, velocities at their limits and ground without rays</source>
        <translation>Elenca i primi arrivi che la sezione non sa spiegare, le traslazioni temporali dei tiri, le velocità ai limiti e il terreno senza raggi</translation>
    </message>
    <message>
        <source>Inversion runs ...</source>
        <translation>Inversioni eseguite ...</translation>
    </message>
    <message>
        <source>List the inversions that have been run, compare them, and use one of them as the section</source>
        <translation>Elenca le inversioni eseguite, le confronta, e ne usa una come sezione</translation>
    </message>
    <message>
        <source>Certainty ...</source>
        <translation>Affidabilità ...</translation>
    </message>
    <message>
        <source>Find out how sure the section is, by many sections that explain the picks as well</source>
        <translation>Stabilisce quanto è sicura la sezione, con molte sezioni che spiegano i primi arrivi altrettanto bene</translation>
    </message>
    <message>
        <source>Show Certainty Layer</source>
        <translation>Mostra l&apos;affidabilità</translation>
    </message>
    <message>
        <source>Colour the section by how far its velocities may be off</source>
        <translation>Colora la sezione secondo quanto possono sbagliare le sue velocità</translation>
    </message>
    <message>
        <source>Certainty: %1 members, %2 left out. The section shown lies beyond two deviations in %3 % of the cells with rays.</source>
        <translation>Affidabilità: %1 membri, %2 esclusi. La sezione mostrata è oltre due deviazioni nel %3 % delle celle con raggi.</translation>
    </message>
    <message>
        <source>The list of inversion runs is full; &quot;%1&quot; has gone.</source>
        <translation>L&apos;elenco delle inversioni è pieno; &quot;%1&quot; ne è uscita.</translation>
    </message>
    <message>
        <source>Tracing the rays of the run anew ...</source>
        <translation>Si tracciano di nuovo i raggi dell&apos;inversione ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used.</source>
        <translation>&quot;%1&quot; non si può usare.</translation>
    </message>
    <message>
        <source>The section is that of &quot;%1&quot;.</source>
        <translation>La sezione è quella di &quot;%1&quot;.</translation>
    </message>
    <message numerus="yes">
        <source>%n inversion run(s) deleted.</source>
        <translation>
            <numerusform>%n inversione eliminata.</numerusform>
            <numerusform>%n inversioni eliminate.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save picture of both runs</source>
        <translation>Salva immagine delle due inversioni</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)</source>
        <translation>Immagine PNG (*.png);;Immagine SVG (*.svg);;Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Time shifts taken over: %1 of %2. Invert again to see what they change.</source>
        <translation>Traslazioni temporali applicate: %1 di %2. Invertire di nuovo per vedere che cosa cambiano.</translation>
    </message>
    <message>
        <source>Some time shifts have not been taken over.</source>
        <translation>Alcune traslazioni temporali non sono state applicate.</translation>
    </message>
    <message>
        <source>Uncertainty %1 %</source>
        <translation>Incertezza %1 %</translation>
    </message>
    <message>
        <source>Residuals...</source>
        <translation>Residui...</translation>
    </message>
    <message>
        <source>Look at what the section leaves of every pick: shot by geophone, over the offset, per shot and geophone, and along the rays</source>
        <translation>Guarda che cosa la sezione lascia di ogni primo arrivo: tiro per geofono, in funzione della distanza, per tiro e geofono, e lungo i raggi</translation>
    </message>
    <message>
        <source>Known ground ...</source>
        <translation>Terreno noto ...</translation>
    </message>
    <message>
        <source>Boreholes, known depths and bodies of known velocity, to be drawn and to hold a fit to</source>
        <translation>Sondaggi, profondità note e corpi di velocità nota, da disegnare e a cui vincolare un adattamento</translation>
    </message>
    <message>
        <source>Show known ground</source>
        <translation>Mostra il terreno noto</translation>
    </message>
    <message>
        <source>Draw boreholes, known depths and bodies over the section</source>
        <translation>Disegna sondaggi, profondità note e corpi sopra la sezione</translation>
    </message>
    <message>
        <source>Resolution test ...</source>
        <translation>Prova di risoluzione ...</translation>
    </message>
    <message>
        <source>Find out how small ground may be that this survey still sees, by patterns laid over the section</source>
        <translation>Determina quanto può essere piccolo il terreno che questo rilievo vede ancora, con motivi sovrapposti alla sezione</translation>
    </message>
    <message>
        <source>Fade Uncertain Ground</source>
        <translation>Sbiadisci il terreno incerto</translation>
    </message>
    <message>
        <source>Let the colours of the velocity section pale where it is not sure</source>
        <translation>Sbiadisce i colori della sezione di velocità dove non è sicura</translation>
    </message>
    <message>
        <source>Depth Bands ...</source>
        <translation>Fasce di profondità ...</translation>
    </message>
    <message>
        <source>Draw between which depths velocities of your choice are reached, 16 to 84 %</source>
        <translation>Disegna fra quali profondità si raggiungono le velocità scelte, dal 16 all&apos;84 %</translation>
    </message>
    <message>
        <source>Certainty as table ...</source>
        <translation>Affidabilità come tabella ...</translation>
    </message>
    <message>
        <source>Export median, 16 and 84 % velocity and spread of every cell as a table (.csv)</source>
        <translation>Esporta mediana, velocità al 16 e all&apos;84 % e dispersione di ogni cella in una tabella (.csv)</translation>
    </message>
    <message>
        <source>Export Certainty Table</source>
        <translation>Esporta tabella dell&apos;affidabilità</translation>
    </message>
    <message>
        <source>Table of the certainty (*.csv);;All Files (*)</source>
        <translation>Tabella dell&apos;affidabilità (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Stopped before anything was found; the section is as it was.</source>
        <translation>Fermato prima di trovare qualcosa; la sezione è com&apos;era.</translation>
    </message>
    <message>
        <source>The section is not held to known ground.</source>
        <translation>La sezione non è vincolata al terreno noto.</translation>
    </message>
    <message>
        <source>The section is held to this.</source>
        <translation>La sezione è vincolata a questo.</translation>
    </message>
    <message>
        <source>The section is held to known ground that was another: run the fit again.</source>
        <translation>La sezione è vincolata a un terreno noto che era diverso: ripetere l&apos;adattamento.</translation>
    </message>
    <message>
        <source>Import known ground</source>
        <translation>Importa terreno noto</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv *.txt);;All files (*)</source>
        <translation>Tabelle del terreno noto (*.csv *.txt);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Non è stato importato nulla.</translation>
    </message>
    <message>
        <source>Export known ground</source>
        <translation>Esporta terreno noto</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv)</source>
        <translation>Tabelle del terreno noto (*.csv)</translation>
    </message>
    <message>
        <source>Save picture of residuals</source>
        <translation>Salva immagine dei residui</translation>
    </message>
    <message>
        <source>Save table of residuals</source>
        <translation>Salva tabella dei residui</translation>
    </message>
    <message>
        <source>Save picture of the resolution test</source>
        <translation>Salva immagine della prova di risoluzione</translation>
    </message>
    <message>
        <source>Save table of the resolution test</source>
        <translation>Salva tabella della prova di risoluzione</translation>
    </message>
    <message>
        <source>Table of resolution by depth (*.csv)</source>
        <translation>Tabella della risoluzione per profondità (*.csv)</translation>
    </message>
    <message>
        <source>How sure the section before was is known no more; Undo brings back both.</source>
        <translation>Quanto fosse sicura la sezione precedente non è più noto; &quot;Annulla modifica&quot; ripristina entrambe.</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>primi arrivi sospetti: %1</translation>
    </message>
    <message>
        <source>time shifts of shots: %1</source>
        <translation>traslazioni temporali dei tiri: %1</translation>
    </message>
    <message>
        <source>cells at a limit of the velocity: %1</source>
        <translation>celle a un limite della velocità: %1</translation>
    </message>
    <message>
        <source>cells shown that no ray crosses: %1</source>
        <translation>celle mostrate che nessun raggio attraversa: %1</translation>
    </message>
    <message>
        <source>Second look (%1)</source>
        <comment>kinds of things to look at</comment>
        <translation>Da riguardare (%1)</translation>
    </message>
    <message>
        <source>Shots without a recording, whose picks were shifted: %1.</source>
        <translation>Tiri senza registrazione, di cui sono stati traslati i primi arrivi: %1.</translation>
    </message>
    <message>
        <source>Depth Bands</source>
        <translation>Fasce di profondità</translation>
    </message>
    <message>
        <source>Up to %1 &amp;velocities in %2; the depths at which the middle 68 % of the members reach them are drawn as a band. None takes the bands away.</source>
        <translation>Fino a %1 &amp;velocità in %2; le profondità a cui il 68 % centrale dei membri le raggiunge si disegnano come una fascia. Nessuna velocità toglie le fasce.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of velocities.</source>
        <translation>&quot;%1&quot; non è un elenco di velocità.</translation>
    </message>
    <message>
        <source>Give up to %1 numbers above 0 with semicolons between them: 800; 1500</source>
        <translation>Indicare fino a %1 numeri maggiori di 0 separati da punto e virgola: 800; 1500</translation>
    </message>
    <message>
        <source>Start from layers ...</source>
        <translation>Parti dagli strati ...</translation>
    </message>
    <message>
        <source>Give the cells of the grid the velocities of the layered profile, for an inversion to start from</source>
        <translation>Dà alle celle della griglia le velocità del profilo a strati, da cui parte un&apos;inversione</translation>
    </message>
    <message>
        <source>Compare layers with the section ...</source>
        <translation>Confronta gli strati con la sezione ...</translation>
    </message>
    <message>
        <source>Read the depth of a refractor from the section and see how far it is from that of the layered profile</source>
        <translation>Legge dalla sezione la profondità di un rifrattore e mostra quanto si scosta da quella del profilo a strati</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layered profile.</source>
        <translation>La griglia ha le velocità del profilo a strati.</translation>
    </message>
    <message>
        <source>Save picture of layers and section</source>
        <translation>Salva immagine di strati e sezione</translation>
    </message>
    <message>
        <source>Save table of layers and section</source>
        <translation>Salva tabella di strati e sezione</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabella (*.csv)</translation>
    </message>
    <message>
        <source>P and S together ...</source>
        <translation>P e S insieme ...</translation>
    </message>
    <message>
        <source>Put the layers of this survey and those of a project of the other wave together: Vp/Vs, Poisson&apos;s ratio and moduli along the line</source>
        <translation>Riunisce gli strati di questo rilievo e quelli di un progetto dell&apos;altra onda: Vp/Vs, coefficiente di Poisson e moduli lungo la linea</translation>
    </message>
    <message>
        <source>There are no times through the layers: build the profiles anew.</source>
        <translation>Non ci sono tempi attraverso gli strati: costruire di nuovo i profili.</translation>
    </message>
    <message>
        <source>Project of the other wave</source>
        <translation>Progetto dell&apos;altra onda</translation>
    </message>
    <message>
        <source>This is the project that is open.</source>
        <translation>Questo è il progetto aperto.</translation>
    </message>
    <message>
        <source>Choose the project of the other wave, P or S, along the same line.</source>
        <translation>Scegliere il progetto dell&apos;altra onda, P o S, lungo la stessa linea.</translation>
    </message>
    <message>
        <source>%1 has no layered profile.</source>
        <translation>%1 non ha un profilo a strati.</translation>
    </message>
    <message>
        <source>Open it, build its profiles in the refraction dialog, and save it.</source>
        <translation>Aprirlo, costruirne i profili nella finestra della rifrazione e salvarlo.</translation>
    </message>
    <message>
        <source>this survey</source>
        <translation>questo rilievo</translation>
    </message>
    <message>
        <source>Save picture of P and S</source>
        <translation>Salva immagine di P e S</translation>
    </message>
    <message>
        <source>Save table of P and S</source>
        <translation>Salva tabella di P e S</translation>
    </message>
    <message>
        <source>Save picture of layers by method</source>
        <translation>Salva immagine degli strati secondo i metodi</translation>
    </message>
    <message>
        <source>Save table of layers by method</source>
        <translation>Salva tabella degli strati secondo i metodi</translation>
    </message>
    <message>
        <source>Web page ...</source>
        <translation>Pagina web ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a page for any browser, with figures to work with</source>
        <translation>Scrive una relazione del rilievo come pagina per qualsiasi browser, con figure interattive</translation>
    </message>
    <message>
        <source>Save web page</source>
        <translation>Salva pagina web</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Pagina web (*.html)</translation>
    </message>
    <message>
        <source>Mends of the selected traces</source>
        <translation>Correzioni delle tracce selezionate</translation>
    </message>
    <message>
        <source>Marked isolines ...</source>
        <translation>Isolinee evidenziate ...</translation>
    </message>
    <message>
        <source>Name velocities, such as 1500 m/s for the water table, whose lines stand out from the section</source>
        <translation>Dà un nome a velocità, come 1500 m/s per la falda, le cui linee risaltano sulla sezione</translation>
    </message>
    <message>
        <source>Annotations ...</source>
        <translation>Annotazioni ...</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground drawn on the section</source>
        <translation>Testi, linee e aree di terreno disegnati sulla sezione</translation>
    </message>
    <message>
        <source>Depth profile ...</source>
        <translation>Profilo di profondità ...</translation>
    </message>
    <message>
        <source>Velocity, its gradient and how sure it is against depth, below the mouse</source>
        <translation>Velocità, il suo gradiente e quanto è sicura in funzione della profondità, sotto il mouse</translation>
    </message>
    <message>
        <source>Fence of several lines ...</source>
        <translation>Diagramma a pannelli ...</translation>
    </message>
    <message>
        <source>Sections of this and other projects at their places on the map, in one view</source>
        <translation>Le sezioni di questo e di altri progetti al loro posto sulla mappa, in un&apos;unica vista</translation>
    </message>
    <message>
        <source>Save style ...</source>
        <translation>Salva stile ...</translation>
    </message>
    <message>
        <source>Save palette, range, contours, exaggeration, switches and marked isolines for other surveys</source>
        <translation>Salva tavolozza, intervallo, isolinee, esagerazione, opzioni e isolinee evidenziate per altri rilievi</translation>
    </message>
    <message>
        <source>Apply style ...</source>
        <translation>Applica stile ...</translation>
    </message>
    <message>
        <source>Let this section look as the one whose style was saved</source>
        <translation>Dà a questa sezione l&apos;aspetto di quella di cui è stato salvato lo stile</translation>
    </message>
    <message>
        <source>Show annotations</source>
        <translation>Mostra annotazioni</translation>
    </message>
    <message>
        <source>Draw marked isolines, texts, lines and areas of ground over the section</source>
        <translation>Disegna isolinee evidenziate, testi, linee e aree di terreno sopra la sezione</translation>
    </message>
    <message>
        <source>Surveyed positions ...</source>
        <translation>Posizioni rilevate ...</translation>
    </message>
    <message>
        <source>Make distances along the line and its place on the map of a table of coordinates</source>
        <translation>Ricava da una tabella di coordinate le distanze lungo la linea e il suo posto sulla mappa</translation>
    </message>
    <message>
        <source>Find command...</source>
        <translation>Trova comando...</translation>
    </message>
    <message>
        <source>Find any command by its words and give it</source>
        <translation>Trova un comando qualsiasi dalle sue parole e lo esegue</translation>
    </message>
    <message>
        <source>Shot files with picks ...</source>
        <translation>File dei tiri con primi arrivi ...</translation>
    </message>
    <message>
        <source>Copy the shot files into another folder, with the picks in their trace headers</source>
        <translation>Copia i file dei tiri in un&apos;altra cartella, con i primi arrivi nelle intestazioni di traccia</translation>
    </message>
    <message>
        <source>Drawing as DXF ...</source>
        <translation>Disegno in DXF ...</translation>
    </message>
    <message>
        <source>Section as curtain on the map ...</source>
        <translation>Sezione come cortina sulla mappa ...</translation>
    </message>
    <message>
        <source>Export the cells with their velocities where they lie on the map, as a VTK grid or a table</source>
        <translation>Esporta le celle con le loro velocità dove stanno sulla mappa, come griglia VTK o tabella</translation>
    </message>
    <message>
        <source>Line and isolines as GeoPackage ...</source>
        <translation>Linea e isolinee in GeoPackage ...</translation>
    </message>
    <message>
        <source>Export line, geophones, shots, isolines, refractors and depths of isovalues as layers for maps</source>
        <translation>Esporta linea, geofoni, tiri, isolinee, rifrattori e profondità degli isovalori come layer per mappe</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Escludi tracce</translation>
    </message>
    <message>
        <source>The selected traces count for nothing and have no pick, or do again (key K); what was recorded is kept</source>
        <translation>Le tracce selezionate non contano e non hanno primo arrivo, o tornano a contare (tasto K); ciò che è stato registrato resta</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Inverti polarità</translation>
    </message>
    <message>
        <source>The samples of the selected traces change their sign (key P)</source>
        <translation>I campioni delle tracce selezionate cambiano segno (tasto P)</translation>
    </message>
    <message>
        <source>Mute traces before...</source>
        <translation>Azzera tracce prima di...</translation>
    </message>
    <message>
        <source>The samples of the selected traces before a time become zero (key U mutes before the mouse, Shift+U no more)</source>
        <translation>I campioni delle tracce selezionate prima di un tempo diventano zero (il tasto U azzera prima del mouse, Maiusc+U non più)</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Amplifica tracce</translation>
    </message>
    <message>
        <source>The samples of the selected traces become larger, 1.5 or 2 times in turn (key })</source>
        <translation>I campioni delle tracce selezionate diventano più grandi, alternando 1,5 e 2 volte (tasto })</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Attenua tracce</translation>
    </message>
    <message>
        <source>The samples of the selected traces become smaller (key {)</source>
        <translation>I campioni delle tracce selezionate diventano più piccoli (tasto {)</translation>
    </message>
    <message>
        <source>Notch...</source>
        <translation>Filtro notch...</translation>
    </message>
    <message>
        <source>Take the hum of power lines, 50 or 60 Hz and multiples, out of the filtered copy</source>
        <translation>Toglie dalla copia filtrata il ronzio delle linee elettriche, 50 o 60 Hz e multipli</translation>
    </message>
    <message>
        <source>Velocity filter...</source>
        <translation>Filtro di velocità...</translation>
    </message>
    <message>
        <source>Keep or take out waves by their apparent velocity, in the filtered copy</source>
        <translation>Mantiene o toglie onde secondo la loro velocità apparente, nella copia filtrata</translation>
    </message>
    <message>
        <source>Annotations wait for the inversion to end.</source>
        <translation>Le annotazioni attendono la fine dell&apos;inversione.</translation>
    </message>
    <message>
        <source>It cannot work now.</source>
        <translation>Ora non è possibile.</translation>
    </message>
    <message>
        <source>Save depth profile</source>
        <translation>Salva profilo di profondità</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf)</source>
        <translation>Immagini (*.png *.svg *.pdf)</translation>
    </message>
    <message>
        <source>Picks have changed since the layered profile was built.</source>
        <translation>I primi arrivi sono cambiati dopo la costruzione del profilo a strati.</translation>
    </message>
    <message>
        <source>The line has no place on the map.</source>
        <translation>La linea non ha un posto sulla mappa.</translation>
    </message>
    <message>
        <source>Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>Impostarlo con Progetto &gt; Coordinate geografiche ...</translation>
    </message>
    <message>
        <source>Export DXF Drawing</source>
        <translation>Esporta disegno DXF</translation>
    </message>
    <message>
        <source>DXF drawing (*.dxf);;All Files (*)</source>
        <translation>Disegno DXF (*.dxf);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Export GeoPackage</source>
        <translation>Esporta GeoPackage</translation>
    </message>
    <message>
        <source>GeoPackage (*.gpkg);;All Files (*)</source>
        <translation>GeoPackage (*.gpkg);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Export Curtain</source>
        <translation>Esporta cortina</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;Table of cells (*.csv);;All Files (*)</source>
        <translation>Griglia non strutturata VTK (*.vtu);;Tabella delle celle (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>This survey</source>
        <translation>Questo rilievo</translation>
    </message>
    <message>
        <source>Add projects to the fence</source>
        <translation>Aggiungi progetti al diagramma</translation>
    </message>
    <message>
        <source>Talvesk projects (*.tvsk);;All Files (*)</source>
        <translation>Progetti di Talvesk (*.tvsk);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Save picture of the fence</source>
        <translation>Salva immagine del diagramma</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Immagini (*.png)</translation>
    </message>
    <message>
        <source>Applying notches ...</source>
        <translation>Applicazione del filtro notch ...</translation>
    </message>
    <message>
        <source>Applying the velocity filter ...</source>
        <translation>Applicazione del filtro di velocità ...</translation>
    </message>
    <message>
        <source>Folder for the shot files with picks</source>
        <translation>Cartella per i file dei tiri con primi arrivi</translation>
    </message>
    <message>
        <source>In SEG-2 files a pick is FIRST_BREAK in seconds; in SEG-Y and SU files it is whole microseconds in bytes 233 to 236 of the trace header. Both count from the shot.</source>
        <translation>Nei file SEG-2 un primo arrivo è FIRST_BREAK in secondi; nei file SEG-Y e SU è in microsecondi interi nei byte da 233 a 236 dell&apos;intestazione di traccia. Entrambi contano dal tiro.</translation>
    </message>
    <message>
        <source>Shot files with picks</source>
        <translation>File dei tiri con primi arrivi</translation>
    </message>
    <message>
        <source>Save style</source>
        <translation>Salva stile</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle)</source>
        <translation>Stili di Talvesk (*.tvstyle)</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Applica stile</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle);;All files (*)</source>
        <translation>Stili di Talvesk (*.tvstyle);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>The section looks as before.</source>
        <translation>La sezione ha l&apos;aspetto di prima.</translation>
    </message>
    <message>
        <source>Style of %1</source>
        <translation>Stile di %1</translation>
    </message>
    <message>
        <source>Geophones and shots stand where they were surveyed.</source>
        <translation>Geofoni e tiri stanno dove sono stati rilevati.</translation>
    </message>
    <message>
        <source>Open surveyed positions</source>
        <translation>Apri posizioni rilevate</translation>
    </message>
    <message>
        <source>Tables of coordinates (*.csv *.tsv *.txt *.dat *.xyz *.asc);;All files (*)</source>
        <translation>Tabelle di coordinate (*.csv *.tsv *.txt *.dat *.xyz *.asc);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>The positions cannot be read.</source>
        <translation>Non è possibile leggere le posizioni.</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Azzera l&apos;inizio delle tracce</translation>
    </message>
    <message>
        <source>The selected traces are zero before (ms); 0: from nowhere</source>
        <translation>Le tracce selezionate sono zero prima di (ms); 0: mai</translation>
    </message>
    <message>
        <source>Offset and reduced time</source>
        <translation>Offset e tempo ridotto</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Stampa ...</translation>
    </message>
    <message>
        <source>Preview a figure on paper at a chosen scale, print it or save it as PDF</source>
        <translation>Anteprima di una figura su carta in una scala a scelta, stampa o salvataggio come PDF</translation>
    </message>
    <message>
        <source>AutoPick all shots along the line</source>
        <translation>AutoPick lungo la linea di tutti i tiri</translation>
    </message>
    <message>
        <source>Pick the traces of all shots together, whichever are in view; picks that you made stay</source>
        <translation>Trova insieme i primi arrivi delle tracce di tutti i tiri, quali che siano in vista; quelli messi da te restano</translation>
    </message>
    <message>
        <source>Campaign page ...</source>
        <translation>Pagina della campagna ...</translation>
    </message>
    <message>
        <source>Write a web page of each of several projects, and one on all of them</source>
        <translation>Scrive una pagina web per ciascuno di più progetti, e una su tutti</translation>
    </message>
    <message>
        <source>By offset</source>
        <translation>Per offset</translation>
    </message>
    <message>
        <source>Order and space the traces by their offset, geophone minus shot: those before the shot at its left (key X)</source>
        <translation>Ordina e spazia le tracce secondo il loro offset, geofono meno tiro: quelle prima del tiro alla sua sinistra (tasto X)</translation>
    </message>
    <message>
        <source>By absolute offset</source>
        <translation>Per offset assoluto</translation>
    </message>
    <message>
        <source>Order and space the traces by their distance from the shot, either side over the other (key Shift+X)</source>
        <translation>Ordina e spazia le tracce secondo la distanza dal tiro, un lato sull&apos;altro (tasto Maiusc+X)</translation>
    </message>
    <message>
        <source>Reduced time</source>
        <translation>Tempo ridotto</translation>
    </message>
    <message>
        <source>Draw every trace earlier by its offset over a velocity, that of the ruler or the one asked for last; picks stay true times (key V)</source>
        <translation>Anticipa ogni traccia del suo offset diviso per una velocità, quella del righello o l&apos;ultima indicata; i primi arrivi restano tempi veri (tasto V)</translation>
    </message>
    <message>
        <source>Velocity of reduced time...</source>
        <translation>Velocità del tempo ridotto...</translation>
    </message>
    <message>
        <source>Choose the velocity that waves have to be drawn flat (key Shift+V)</source>
        <translation>Sceglie la velocità che devono avere le onde per essere disegnate piatte (tasto Maiusc+V)</translation>
    </message>
    <message>
        <source>Gain with time</source>
        <translation>Guadagno nel tempo</translation>
    </message>
    <message>
        <source>Draw late waves larger, by a power of their time; samples, picks and files stay as they are (key T)</source>
        <translation>Disegna più grandi le onde tardive, con una potenza del loro tempo; campioni, primi arrivi e file restano come sono (tasto T)</translation>
    </message>
    <message>
        <source>Exponent of gain with time...</source>
        <translation>Esponente del guadagno nel tempo...</translation>
    </message>
    <message>
        <source>Choose the power of time that wiggles are drawn with (key Shift+T)</source>
        <translation>Sceglie la potenza del tempo con cui si disegnano le oscillazioni (tasto Maiusc+T)</translation>
    </message>
    <message>
        <source>Trace headers...</source>
        <translation>Intestazioni delle tracce...</translation>
    </message>
    <message>
        <source>All that is known of every trace as a table, with what the headers of the shot files say</source>
        <translation>Tutto ciò che si sa di ogni traccia come tabella, con ciò che dicono le intestazioni dei file dei tiri</translation>
    </message>
    <message>
        <source>Overlay two shots...</source>
        <translation>Sovrapponi due tiri...</translation>
    </message>
    <message>
        <source>Lay the traces of two shots over each other, and see their difference and their sum: blows of opposite sense, or a shot that was repeated</source>
        <translation>Mette una sull&apos;altra le tracce di due tiri, e ne mostra differenza e somma: colpi di verso opposto, o un tiro ripetuto</translation>
    </message>
    <message>
        <source>Sheet of shots ...</source>
        <translation>Foglio di tiri ...</translation>
    </message>
    <message>
        <source>Several shots side by side on one sheet, with one axis of time, as PDF, SVG or PNG</source>
        <translation>Più tiri uno accanto all&apos;altro su un foglio, con un solo asse del tempo, come PDF, SVG o PNG</translation>
    </message>
    <message>
        <source>The shot has not been added to the survey.</source>
        <translation>Il tiro non è stato aggiunto al rilievo.</translation>
    </message>
    <message>
        <source>Shot %1 is added; Undo takes it away.</source>
        <translation>Il tiro %1 è aggiunto; &quot;Annulla modifica&quot; lo toglie.</translation>
    </message>
    <message>
        <source>Save Shot File</source>
        <translation>Salva file del tiro</translation>
    </message>
    <message>
        <source>SEG-2 (*.sg2);;SEG-Y (*.sgy)</source>
        <translation>SEG-2 (*.sg2);;SEG-Y (*.sgy)</translation>
    </message>
    <message>
        <source>Save Picture of Two Shots</source>
        <translation>Salva immagine di due tiri</translation>
    </message>
    <message>
        <source>Add projects to the campaign page</source>
        <translation>Aggiungi progetti alla pagina della campagna</translation>
    </message>
    <message>
        <source>Save campaign page</source>
        <translation>Salva pagina della campagna</translation>
    </message>
    <message>
        <source>Campaign page</source>
        <translation>Pagina della campagna</translation>
    </message>
    <message>
        <source>%1: project %2 of %3</source>
        <comment>file, number, count</comment>
        <translation>%1: progetto %2 di %3</translation>
    </message>
    <message>
        <source>Saved in %1, without the changes of this survey that are not saved</source>
        <translation>Salvata in %1, senza le modifiche di questo rilievo che non sono salvate</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Some values of the projects cannot be. They were put right or left out.</source>
        <translation>Alcuni valori dei progetti non sono possibili. Sono stati corretti o tralasciati.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. The campaign page names them.</source>
        <translation>Progetti non riusciti: %1. La pagina della campagna li nomina.</translation>
    </message>
    <message>
        <source>Save Sheets of Shots</source>
        <translation>Salva fogli di tiri</translation>
    </message>
    <message>
        <source>PDF, all sheets in one file (*.pdf);;SVG picture (*.svg);;PNG picture (*.png)</source>
        <translation>PDF, tutti i fogli in un file (*.pdf);;Immagine SVG (*.svg);;Immagine PNG (*.png)</translation>
    </message>
    <message numerus="yes">
        <source>The sheets have not all been saved; %n file(s) are complete.</source>
        <translation>
            <numerusform>I fogli non sono stati salvati tutti; %n file è completo.</numerusform>
            <numerusform>I fogli non sono stati salvati tutti; %n file sono completi.</numerusform>
        </translation>
    </message>
    <message>
        <source>there are no picks yet</source>
        <translation>non ci sono ancora primi arrivi</translation>
    </message>
    <message>
        <source>Layered profile</source>
        <translation>Profilo a strati</translation>
    </message>
    <message>
        <source>there is no layered profile yet</source>
        <translation>non c&apos;è ancora un profilo a strati</translation>
    </message>
    <message>
        <source>Traces of shot %1</source>
        <translation>Tracce del tiro %1</translation>
    </message>
    <message>
        <source>no shot with traces is in view</source>
        <translation>nessun tiro con tracce è in vista</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Scarto di ogni iterazione</translation>
    </message>
    <message>
        <source>there is no inversion yet</source>
        <translation>non c&apos;è ancora un&apos;inversione</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Residui per tiro e geofono</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residui in funzione della distanza dal tiro</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Residui di tiri e di geofoni</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Residui lungo i raggi</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Profilo di profondità</translation>
    </message>
    <message>
        <source>there is no section yet</source>
        <translation>non c&apos;è ancora una sezione</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P e S</translation>
    </message>
    <message>
        <source>its own dialog prints it</source>
        <translation>si stampa dalla sua finestra di dialogo</translation>
    </message>
    <message>
        <source>Nothing has been printed.</source>
        <translation>Non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Inviato a %1.</translation>
    </message>
    <message>
        <source>Save sheets as PDF</source>
        <translation>Salva fogli come PDF</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Shots whose files name no fields: %1. %2</source>
        <translation>Tiri i cui file non danno nomi ai campi: %1. %2</translation>
    </message>
    <message>
        <source>Save Trace Headers</source>
        <translation>Salva intestazioni delle tracce</translation>
    </message>
    <message>
        <source>Velocity V of t - |x|/V (%1):</source>
        <translation>Velocità V di t - |x|/V (%1):</translation>
    </message>
    <message>
        <source>Exponent n of t^n, 0 for none:</source>
        <translation>Esponente n di t^n, 0 per nessuno:</translation>
    </message>
    <message>
        <source>Reduced %1 ms</source>
        <translation>Ridotto %1 ms</translation>
    </message>
    <message>
        <source>Section as it is shown</source>
        <translation>Sezione come è mostrata</translation>
    </message>
    <message>
        <source>Export surface, isolines, refractors, geophones, shots and annotations as a drawing for CAD</source>
        <translation>Esporta superficie, isolinee, rifrattori, geofoni, tiri e annotazioni come disegno per CAD</translation>
    </message>
    <message>
        <source>Stopped; the campaign page has not been saved, pages of %1 of its %2 projects have.</source>
        <translation>Interrotto; la pagina della campagna non è stata salvata, quelle di %1 dei suoi %2 progetti sì.</translation>
    </message>
    <message>
        <source>The printer failed after %1 of %2 sheets.</source>
        <translation>La stampante si è fermata dopo %1 fogli su %2.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. There is no campaign page that names them.</source>
        <translation>Progetti non riusciti: %1. Non c&apos;è una pagina della campagna che li nomini.</translation>
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
        <translation>Canale</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Tempo (ms)</translation>
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
        <translation>Tempo ridotto (ms), t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>%1, gain t^%2</source>
        <comment>time axis, exponent</comment>
        <translation>%1, guadagno t^%2</translation>
    </message>
</context>
<context>
    <name>talvesk::TraceHeadersDialog</name>
    <message>
        <source>Trace headers</source>
        <translation>Intestazioni delle tracce</translation>
    </message>
    <message>
        <source>Headers of all traces</source>
        <translation>Intestazioni di tutte le tracce</translation>
    </message>
    <message>
        <source>A click on a heading sorts by it; the current row is shown among the traces</source>
        <translation>Un clic su un&apos;intestazione di colonna ordina secondo essa; la riga corrente è mostrata fra le tracce</translation>
    </message>
    <message>
        <source>Reads the shot files again and adds a column for every field that their headers name: instrument, time of recording, gain, stack, notes</source>
        <translation>Legge di nuovo i file dei tiri e aggiunge una colonna per ogni campo che le loro intestazioni nominano: strumento, ora di registrazione, guadagno, somma, note</translation>
    </message>
    <message>
        <source>All &amp;fields of the shot files</source>
        <translation>Tutti i campi dei &amp;file dei tiri</translation>
    </message>
    <message>
        <source>The selected rows, or all of them, with a heading, as spreadsheets paste them (Ctrl+C)</source>
        <translation>Le righe selezionate, o tutte, con un&apos;intestazione, come le incollano i fogli di calcolo (Ctrl+C)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>All rows in the order of shots and traces, lengths in metres, with decimal points</source>
        <translation>Tutte le righe nell&apos;ordine di tiri e tracce, lunghezze in metri, con punti decimali</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Salva tabella...</translation>
    </message>
    <message>
        <source>Traces: %1</source>
        <translation>Tracce: %1</translation>
    </message>
    <message>
        <source>Rows copied: %1</source>
        <translation>Righe copiate: %1</translation>
    </message>
    <message>
        <source>Not in the table: %1</source>
        <translation>Fuori dalla tabella: %1</translation>
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
        <translation>Altri tiri</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calcolati</translation>
    </message>
    <message>
        <source>Air %1</source>
        <translation>Aria %1</translation>
    </message>
    <message>
        <source>No other shot of the string is picked</source>
        <translation>Nessun altro tiro della stesa ha primi arrivi</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <comment>number, place</comment>
        <translation>Tiro %1 a %2</translation>
    </message>
    <message>
        <source>No computed times</source>
        <translation>Nessun tempo calcolato</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Tempi reciproci</translation>
    </message>
    <message>
        <source>No reciprocal times</source>
        <translation>Nessun tempo reciproco</translation>
    </message>
</context>
<context>
    <name>talvesk::TravelTimePlot</name>
    <message>
        <source>Travel-time curves</source>
        <translation>Dromocrone</translation>
    </message>
    <message>
        <source>No travel times yet.

Pick first breaks in the traces, by hand or with AutoPick, or import travel times.</source>
        <translation>Nessun tempo di arrivo.

Segna i primi arrivi nelle tracce, a mano o con l&apos;AutoPick, o importa tempi di arrivo.</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Distanza [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Tempo [ms]</translation>
    </message>
    <message>
        <source>&amp;Measured</source>
        <translation>&amp;Misurati</translation>
    </message>
    <message>
        <source>&amp;Computed</source>
        <translation>&amp;Calcolati</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Mostra &amp;tutto</translation>
    </message>
    <message>
        <source>Show all curves</source>
        <translation>Mostra tutte le dromocrone</translation>
    </message>
    <message>
        <source>Export &amp;picture...</source>
        <translation>Esporta &amp;immagine...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Salva le dromocrone come PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <translation>Tiro %1 a %2</translation>
    </message>
    <message>
        <source>Shot %1 has no travel times yet</source>
        <translation>Il tiro %1 non ha ancora tempi di arrivo</translation>
    </message>
    <message>
        <source>Click a curve to choose its shot</source>
        <translation>Un clic su una dromocrona ne sceglie il tiro</translation>
    </message>
    <message>
        <source>Shot %1, trace %2: %3 ms</source>
        <translation>Tiro %1, traccia %2: %3 ms</translation>
    </message>
    <message>
        <source>Computed: %1 ms</source>
        <translation>Calcolato: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Remove pick</source>
        <translation>&amp;Togli il primo arrivo</translation>
    </message>
    <message>
        <source>Zoom &amp;back</source>
        <translation>Vista &amp;precedente</translation>
    </message>
    <message>
        <source>Zoom for&amp;ward</source>
        <translation>Vista &amp;successiva</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Error: %1 ms</source>
        <translation>Errore: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>St&amp;rati</translation>
    </message>
    <message>
        <source>Times computed through the layers of the refraction interpretation</source>
        <translation>Tempi calcolati attraverso gli strati dell&apos;interpretazione a rifrazione</translation>
    </message>
    <message>
        <source>There are no layers of these picks: build the profiles of the refraction interpretation (anew).</source>
        <translation>Non ci sono strati di questi primi arrivi: costruire (di nuovo) i profili dell&apos;interpretazione a rifrazione.</translation>
    </message>
    <message>
        <source>Layers: %1 ms</source>
        <translation>Strati: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::VelocityFilterDialog</name>
    <message>
        <source>Velocity filter</source>
        <translation>Filtro di velocità</translation>
    </message>
    <message>
        <source>Keeps or takes out waves by their apparent velocity along the line, in the filtered copy. Drag the sides of the wedge, or type velocities.</source>
        <translation>Mantiene o toglie onde secondo la loro velocità apparente lungo la linea, nella copia filtrata. Trascinare i lati del ventaglio, o scrivere le velocità.</translation>
    </message>
    <message>
        <source>&amp;Slowest (m/s):</source>
        <translation>&amp;Minima (m/s):</translation>
    </message>
    <message>
        <source>Least apparent velocity of the wedge; the full line in the picture</source>
        <translation>Velocità apparente minima del ventaglio; la linea continua nell&apos;immagine</translation>
    </message>
    <message>
        <source>&amp;Fastest (m/s):</source>
        <translation>Ma&amp;ssima (m/s):</translation>
    </message>
    <message>
        <source>Greatest apparent velocity of the wedge, 0 for no limit; the dashed line in the picture</source>
        <translation>Velocità apparente massima del ventaglio, 0 per nessun limite; la linea tratteggiata nell&apos;immagine</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Onde:</translation>
    </message>
    <message>
        <source>Forth is towards greater distances along the line</source>
        <translation>In avanti è verso distanze maggiori lungo la linea</translation>
    </message>
    <message>
        <source>Both ways</source>
        <translation>Nei due versi</translation>
    </message>
    <message>
        <source>Forth along the line</source>
        <translation>In avanti lungo la linea</translation>
    </message>
    <message>
        <source>Back along the line</source>
        <translation>All&apos;indietro lungo la linea</translation>
    </message>
    <message>
        <source>Wedge:</source>
        <translation>Ventaglio:</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>&amp;Passa</translation>
    </message>
    <message>
        <source>Is re&amp;jected</source>
        <translation>Viene &amp;eliminato</translation>
    </message>
    <message>
        <source>&amp;Taper (%):</source>
        <translation>&amp;Taper (%):</translation>
    </message>
    <message>
        <source>How far beside the wedge the filter sets in, in percent of its slowness there</source>
        <translation>A quale distanza dal ventaglio il filtro comincia ad agire, in percento della lentezza in quel punto</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Applica il filtro a:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>Ori&amp;ginali</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>Fi&amp;ltrati</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Mostra:</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>P&amp;rima</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>&amp;Dopo</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Il filtro va a tutti i tiri.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>Il filtro va al tiro %1.</translation>
    </message>
    <message>
        <source>Shot %1 cannot be filtered: %2</source>
        <translation>Il tiro %1 non può essere filtrato: %2</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>Nessun filtro applicato.</translation>
    </message>
</context>
<context>
    <name>talvesk::WebPage</name>
    <message>
        <source>Contents</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>About the report</source>
        <translation>Informazioni sulla relazione</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Vai al contenuto</translation>
    </message>
    <message>
        <source>%1: velocity</source>
        <translation>%1: velocità</translation>
    </message>
    <message>
        <source>Faster than %1 by</source>
        <translation>Velocità in più rispetto a %1</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sezione</translation>
    </message>
    <message>
        <source>What the section shows</source>
        <translation>Che cosa mostra la sezione</translation>
    </message>
    <message>
        <source>Point at the section to read it, click for the profile below a point, drag to move it. Keys: arrows move a cross, Enter shows the profile below it, + and - zoom, 0 shows all.</source>
        <translation>Puntare la sezione per leggerne i valori, fare clic per il profilo sotto un punto, trascinare per spostarla. Tasti: le frecce muovono una croce, Invio mostra il profilo sotto di essa, + e - ingrandiscono e riducono, 0 mostra tutto.</translation>
    </message>
    <message>
        <source>Colours show</source>
        <translation>I colori mostrano</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Tavolozza</translation>
    </message>
    <message>
        <source>Colours from</source>
        <translation>Colori da</translation>
    </message>
    <message>
        <source>Colours to</source>
        <translation>Colori fino a</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolinee</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Esagerazione verticale</translation>
    </message>
    <message>
        <source>as it fits</source>
        <translation>automatica</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Raggi</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Limite di copertura</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geofoni</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tiri</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Strati</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distanza %1</translation>
    </message>
    <message>
        <source>elevation %1</source>
        <translation>quota %1</translation>
    </message>
    <message>
        <source>depth %1</source>
        <translation>profondità %1</translation>
    </message>
    <message>
        <source>Vertical profile</source>
        <translation>Profilo verticale</translation>
    </message>
    <message>
        <source>Vertical profile at %1</source>
        <translation>Profilo verticale a %1</translation>
    </message>
    <message>
        <source>Depth from [%1]</source>
        <translation>Profondità da [%1]</translation>
    </message>
    <message>
        <source>Depth to [%1]</source>
        <translation>Profondità fino a [%1]</translation>
    </message>
    <message>
        <source>Depth below ground [%1]</source>
        <translation>Profondità dal suolo [%1]</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Velocità [%1]</translation>
    </message>
    <message>
        <source>The section has %1 cells, too many to be explored in a page: it stands here as a picture.</source>
        <translation>La sezione ha %1 celle, troppe per esplorarla in una pagina: qui è riportata come immagine.</translation>
    </message>
    <message>
        <source>Travel-time curves</source>
        <translation>Dromocrone</translation>
    </message>
    <message>
        <source>What the curves show</source>
        <translation>Che cosa mostrano le dromocrone</translation>
    </message>
    <message>
        <source>Point at a pick to read it, click it for its recording and its ray in the section. Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Puntare un primo arrivo per leggerlo, farci clic per vederne la registrazione e il raggio nella sezione. Tasti: sinistra e destra passano da un primo arrivo all&apos;altro, su e giù da un tiro all&apos;altro, + e - ingrandiscono e riducono, 0 mostra tutto.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Misurati</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Barre d&apos;errore</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calcolati</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>geophone %1 at %2</source>
        <translation>geofono %1 a %2</translation>
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
        <translation>calcolato %1 ms</translation>
    </message>
    <message>
        <source>misfit %1 ms</source>
        <translation>scarto %1 ms</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Geophone</source>
        <translation>Geofono</translation>
    </message>
    <message>
        <source>Measured [ms]</source>
        <translation>Misurato [ms]</translation>
    </message>
    <message>
        <source>Error [ms]</source>
        <translation>Errore [ms]</translation>
    </message>
    <message>
        <source>Computed [ms]</source>
        <translation>Calcolato [ms]</translation>
    </message>
    <message>
        <source>Misfit [ms]</source>
        <translation>Scarto [ms]</translation>
    </message>
    <message>
        <source>Recording of the shot</source>
        <translation>Registrazione del tiro</translation>
    </message>
    <message>
        <source>There is no recording of this shot.</source>
        <translation>Di questo tiro non c&apos;è registrazione.</translation>
    </message>
    <message>
        <source>The recording of this shot is left out: those of the shots before it are as much as a page holds.</source>
        <translation>La registrazione di questo tiro è tralasciata: quelle dei tiri precedenti sono quanto una pagina può contenere.</translation>
    </message>
    <message>
        <source>Misfit of every shot</source>
        <translation>Scarto di ogni tiro</translation>
    </message>
    <message>
        <source>Misfit of every geophone</source>
        <translation>Scarto di ogni geofono</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Scarto di ogni iterazione</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Calcolati meno misurati [ms]</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Mean [ms]</source>
        <translation>Media [ms]</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Primi arrivi</translation>
    </message>
    <message>
        <source>RMS %1 ms</source>
        <translation>RMS %1 ms</translation>
    </message>
    <message>
        <source>mean %1 ms</source>
        <translation>media %1 ms</translation>
    </message>
    <message>
        <source>picks: %1</source>
        <translation>primi arrivi: %1</translation>
    </message>
    <message>
        <source>Iteration</source>
        <translation>Iterazione</translation>
    </message>
    <message>
        <source>Iteration %1</source>
        <translation>Iterazione %1</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Sezione, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Ultimo passaggio del risolutore, RMS [ms]</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Tempi di andata e di ritorno</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Andata [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Ritorno [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Differenza [ms]</translation>
    </message>
    <message>
        <source>Shots %1 and %2</source>
        <translation>Tiri %1 e %2</translation>
    </message>
    <message>
        <source>there %1 ms</source>
        <translation>andata %1 ms</translation>
    </message>
    <message>
        <source>back %1 ms</source>
        <translation>ritorno %1 ms</translation>
    </message>
    <message>
        <source>difference %1 ms</source>
        <translation>differenza %1 ms</translation>
    </message>
    <message>
        <source>The numbers of this figure</source>
        <translation>I numeri di questa figura</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tema scuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Tema chiaro</translation>
    </message>
    <message>
        <source>Picks as CSV</source>
        <translation>Primi arrivi in CSV</translation>
    </message>
    <message>
        <source>Section as CSV</source>
        <translation>Sezione in CSV</translation>
    </message>
    <message>
        <source>Map of the line</source>
        <translation>Mappa della linea</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Primo geofono</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Ultimo geofono</translation>
    </message>
    <message>
        <source>Open the place in a map service</source>
        <translation>Apri la posizione in un servizio di mappe</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Annotazioni</translation>
    </message>
    <message>
        <source>Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Tasti: sinistra e destra vanno da un primo arrivo all&apos;altro, su e giù da un tiro all&apos;altro, + e - ingrandiscono e riducono, 0 mostra tutto.</translation>
    </message>
    <message>
        <source>Point at a mark to read it. Keys: left and right go from mark to mark, + and - zoom, 0 shows all.</source>
        <translation>Puntare un segno per leggerlo. Tasti: sinistra e destra vanno da un segno all&apos;altro, + e - ingrandiscono e riducono, 0 mostra tutto.</translation>
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
        <translation>Irregolarità di tV</translation>
    </message>
    <message>
        <source>RMS (ms)</source>
        <translation>RMS (ms)</translation>
    </message>
    <message>
        <source>Unevenness of velocity</source>
        <translation>Disuniformità della velocità</translation>
    </message>
    <message>
        <source>RMS (%)</source>
        <translation>RMS (%)</translation>
    </message>
    <message>
        <source>Roughness of tV against XY</source>
        <translation>Irregolarità di tV in funzione di XY</translation>
    </message>
    <message>
        <source>Unevenness of velocity against XY</source>
        <translation>Disuniformità della velocità in funzione di XY</translation>
    </message>
    <message>
        <source>Click to choose it</source>
        <translation>Fai clic per sceglierlo</translation>
    </message>
    <message>
        <source>No XY can be judged: forward and reverse curve have too few geophones in common.</source>
        <translation>Nessun XY si può valutare: dromocrona diretta e inversa hanno troppo pochi geofoni in comune.</translation>
    </message>
    <message>
        <source>Nothing is built yet.</source>
        <translation>Ancora nulla di costruito.</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>scelto</translation>
    </message>
    <message>
        <source>proposed</source>
        <translation>proposto</translation>
    </message>
</context>
<context>
    <name>talvesk::contourlines_dialog</name>
    <message>
        <source>Contour Lines - Settings</source>
        <translation>Isolinee - Impostazioni</translation>
    </message>
    <message>
        <source>Contour values</source>
        <translation>Valori delle isolinee</translation>
    </message>
    <message>
        <source>Equally spaced contour values</source>
        <translation>Valori equidistanti</translation>
    </message>
    <message>
        <source>Values that divide the range into equal parts</source>
        <translation>Valori che dividono l&apos;intervallo in parti uguali</translation>
    </message>
    <message>
        <source># Values</source>
        <translation>N. di valori</translation>
    </message>
    <message>
        <source>How many values divide the range</source>
        <translation>Quanti valori dividono l&apos;intervallo</translation>
    </message>
    <message>
        <source>Customized Contour Values</source>
        <translation>Valori personalizzati</translation>
    </message>
    <message>
        <source>The values of the list</source>
        <translation>I valori dell&apos;elenco</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>Add One More Value</source>
        <translation>Aggiungi un valore</translation>
    </message>
    <message>
        <source>Add an empty line to the list</source>
        <translation>Aggiunge una riga vuota all&apos;elenco</translation>
    </message>
    <message>
        <source>Load Isovalues</source>
        <translation>Carica isovalori</translation>
    </message>
    <message>
        <source>Replace the list by the values of a file</source>
        <translation>Sostituisce l&apos;elenco con i valori di un file</translation>
    </message>
    <message>
        <source>Save Isovalues</source>
        <translation>Salva isovalori</translation>
    </message>
    <message>
        <source>Write the list to a file</source>
        <translation>Scrive l&apos;elenco in un file</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Togli tutti</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Svuota l&apos;elenco</translation>
    </message>
    <message>
        <source>Where contours are shown</source>
        <translation>Dove mostrare le isolinee</translation>
    </message>
    <message>
        <source>Show Contours (on top of  Tomographic Profile)</source>
        <translation>Mostra le isolinee (sulla sezione tomografica)</translation>
    </message>
    <message>
        <source>Lines over the velocities</source>
        <translation>Linee sopra le velocità</translation>
    </message>
    <message>
        <source>Show Filled Contours</source>
        <translation>Mostra le fasce colorate</translation>
    </message>
    <message>
        <source>Velocities in bands from one value to the next</source>
        <translation>Velocità a fasce, da un valore al successivo</translation>
    </message>
    <message>
        <source>Show Contours (on Vertical Gradient of Velocity)</source>
        <translation>Mostra le isolinee (sul gradiente verticale della velocità)</translation>
    </message>
    <message>
        <source>Lines over the vertical gradient; not together with filled contours</source>
        <translation>Linee sopra il gradiente verticale; non insieme alle fasce colorate</translation>
    </message>
    <message>
        <source>Show Contours (on Laplacian Gradient of Velocity)</source>
        <translation>Mostra le isolinee (sul laplaciano della velocità)</translation>
    </message>
    <message>
        <source>Lines over the Laplacian; not together with filled contours</source>
        <translation>Linee sopra il laplaciano; non insieme alle fasce colorate</translation>
    </message>
    <message>
        <source>Lines and labels</source>
        <translation>Linee ed etichette</translation>
    </message>
    <message>
        <source>Show label every N contour lines</source>
        <translation>Etichetta ogni N isolinee</translation>
    </message>
    <message>
        <source>1 labels every line, 2 every second one</source>
        <translation>1: un&apos;etichetta a ogni linea, 2: una linea sì e una no</translation>
    </message>
    <message>
        <source>No labels</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>Dimensione delle etichette</translation>
    </message>
    <message>
        <source>Size of the labels in points</source>
        <translation>Dimensione delle etichette in punti</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Contours colour:</source>
        <translation>Colore delle isolinee:</translation>
    </message>
    <message>
        <source>Choose the colour of the lines</source>
        <translation>Sceglie il colore delle linee</translation>
    </message>
    <message>
        <source>Contours colour</source>
        <translation>Colore delle isolinee</translation>
    </message>
    <message>
        <source>Isolines (*.csv)</source>
        <translation>Isolinee (*.csv)</translation>
    </message>
    <message>
        <source>The section shows values from %1 to %2 %3</source>
        <translation>La sezione mostra valori da %1 a %2 %3</translation>
    </message>
    <message>
        <source>Value : </source>
        <translation>Valore : </translation>
    </message>
    <message>
        <source>Remove this value</source>
        <translation>Togli questo valore</translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) of the list are no numbers from %1 to %2.</source>
        <translation>
            <numerusform>%n valore dell&apos;elenco non è un numero da %1 a %2.</numerusform>
            <numerusform>%n valori dell&apos;elenco non sono numeri da %1 a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Sostituire il file?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Cannot save file </source>
        <translation>Impossibile salvare il file </translation>
    </message>
    <message>
        <source>Cannot open file </source>
        <translation>Impossibile aprire il file </translation>
    </message>
    <message>
        <source>Invalid value at line </source>
        <translation>Valore non valido alla riga </translation>
    </message>
    <message>
        <source>Or wrong CVS separator.</source>
        <translation>Oppure separatore CSV sbagliato.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Some loaded isovalues were out of range. Ignored.</source>
        <translation>Alcuni isovalori caricati erano fuori intervallo. Ignorati.</translation>
    </message>
    <message>
        <source>Select background color</source>
        <translation>Scelta del colore delle isolinee</translation>
    </message>
    <message>
        <source>Round Values</source>
        <translation>Valori tondi</translation>
    </message>
    <message>
        <source>Replace the list by round values over the range</source>
        <translation>Sostituisce l&apos;elenco con valori tondi lungo l&apos;intervallo</translation>
    </message>
    <message>
        <source>None of these is checked: no contours will be drawn.</source>
        <translation>Nessuna casella è spuntata: non verrà disegnata alcuna isolinea.</translation>
    </message>
    <message>
        <source>What the section shows has no contours. Those of the velocity lie between %1 and %2 %3</source>
        <translation>Ciò che la sezione mostra non ha isolinee. Quelle della velocità stanno fra %1 e %2 %3</translation>
    </message>
    <message>
        <source>; the file has them in %1</source>
        <translation>; nel file sono in %1</translation>
    </message>
</context>
<context>
    <name>talvesk::doFilteringDialog</name>
    <message>
        <source>Trace Filtering</source>
        <translation>Filtro delle tracce</translation>
    </message>
    <message>
        <source>High Pass Filter</source>
        <translation>Filtro passa alto</translation>
    </message>
    <message>
        <source>Use &amp;high pass</source>
        <translation>Usa il passa &amp;alto</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Frequenza (Hz)</translation>
    </message>
    <message>
        <source>High pass frequency in hertz</source>
        <translation>Frequenza del passa alto in hertz</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>High pass order</source>
        <translation>Ordine del passa alto</translation>
    </message>
    <message>
        <source>Low Pass Filter</source>
        <translation>Filtro passa basso</translation>
    </message>
    <message>
        <source>Use &amp;low pass</source>
        <translation>Usa il passa &amp;basso</translation>
    </message>
    <message>
        <source>Low pass frequency in hertz</source>
        <translation>Frequenza del passa basso in hertz</translation>
    </message>
    <message>
        <source>Low pass order</source>
        <translation>Ordine del passa basso</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Applica il filtro a:</translation>
    </message>
    <message>
        <source>Filter the samples as they were recorded</source>
        <translation>Filtra i campioni come sono stati registrati</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Originali</translation>
    </message>
    <message>
        <source>Filter what the filters and AGC before made of them</source>
        <translation>Filtra ciò che ne hanno fatto i filtri e l&apos;AGC di prima</translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation>Filtrati</translation>
    </message>
    <message>
        <source>&amp;Apply filter</source>
        <translation>A&amp;pplica il filtro</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Mostra:</translation>
    </message>
    <message>
        <source>What the filter is applied to</source>
        <translation>Ciò a cui si applica il filtro</translation>
    </message>
    <message>
        <source>Original data</source>
        <translation>Dati originali</translation>
    </message>
    <message>
        <source>What comes out of the filter</source>
        <translation>Ciò che esce dal filtro</translation>
    </message>
    <message>
        <source>Filtered data</source>
        <translation>Dati filtrati</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Tiro %1 di %2</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Il filtro va a tutti i tiri.</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>Nessun filtro applicato. L&apos;ordine del filtro deve essere maggiore di 0.</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>Nessun filtro applicato.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n traccia resta com&apos;era.</numerusform>
            <numerusform>%n tracce restano com&apos;erano.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::draw1DVelocityProfile</name>
    <message>
        <source>Velocity against depth</source>
        <translation>Velocità in funzione della profondità</translation>
    </message>
    <message>
        <source>Velocity (%1)</source>
        <translation>Velocità (%1)</translation>
    </message>
    <message>
        <source>Depth below the ground (%1)</source>
        <translation>Profondità dal suolo (%1)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Strati</translation>
    </message>
    <message>
        <source>Velocity that the grid gets</source>
        <translation>Velocità che avrà la griglia</translation>
    </message>
</context>
<context>
    <name>talvesk::editTravelTimesWidget</name>
    <message>
        <source>Seismic traces</source>
        <translation>Tracce sismiche</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms</source>
        <translation>Traccia %1, primo arrivo a %2 ms</translation>
    </message>
    <message>
        <source>Trace %1, not picked</source>
        <translation>Traccia %1, senza primo arrivo</translation>
    </message>
    <message>
        <source>No samples, only picks</source>
        <translation>Nessun campione, solo primi arrivi</translation>
    </message>
    <message>
        <source>Open shot files with Ctrl+O or drop them here</source>
        <translation>Apri i file dei tiri con Ctrl+O o trascinali qui</translation>
    </message>
    <message>
        <source>No shot is shown</source>
        <translation>Nessun tiro in vista</translation>
    </message>
    <message>
        <source>This shot has no traces</source>
        <translation>Questo tiro non ha tracce</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms, error %3 ms</source>
        <translation>Traccia %1, primo arrivo a %2 ms, errore %3 ms</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Errore %1 ms</translation>
    </message>
    <message>
        <source>Traces %1: C confirms, Del removes, K kills, P reverses, U mutes, Esc leaves</source>
        <translation>Tracce %1: C conferma, Canc toglie, K esclude, P inverte, U azzera, Esc lascia</translation>
    </message>
    <message>
        <source>Times are not reduced: offsets are not known</source>
        <translation>Tempi non ridotti: gli offset non sono noti</translation>
    </message>
    <message>
        <source>Not by offset: offsets are not known, or all the same</source>
        <translation>Non per offset: gli offset non sono noti, o sono tutti uguali</translation>
    </message>
</context>
<context>
    <name>talvesk::gridDialog</name>
    <message>
        <source>Grid Settings</source>
        <translation>Impostazioni della griglia</translation>
    </message>
    <message>
        <source>Array length (m)</source>
        <translation>Lunghezza dello stendimento (m)</translation>
    </message>
    <message>
        <source>Max. depth (m)</source>
        <translation>Profondità massima (m)</translation>
    </message>
    <message>
        <source>A deeper grid costs time and memory. Rays rarely reach deeper than a quarter to a third of the distance between the outermost shots.</source>
        <translation>Una griglia più profonda costa tempo e memoria. I raggi raramente scendono oltre un quarto o un terzo della distanza fra i tiri più esterni.</translation>
    </message>
    <message>
        <source>Cell size (m)</source>
        <translation>Lato delle celle (m)</translation>
    </message>
    <message>
        <source>Smaller cells draw finer detail and fit the times closer, but rays cover each cell less, and time and memory grow with the inverse square. A quarter of the geophone spacing is a good start.</source>
        <translation>Celle più piccole mostrano dettagli più fini e si adattano meglio ai tempi, ma ogni cella è coperta da meno raggi, e tempo e memoria crescono con l&apos;inverso del quadrato. Un quarto della distanza fra i geofoni è un buon inizio.</translation>
    </message>
    <message>
        <source>N° of nodes per cell side</source>
        <translation>N° di nodi per lato di cella</translation>
    </message>
    <message>
        <source>More nodes let rays leave a cell at more angles, so computed times get more accurate; time and memory grow with the number. Beyond 15 little is gained.</source>
        <translation>Con più nodi i raggi possono lasciare una cella con più angoli, e i tempi calcolati diventano più accurati; tempo e memoria crescono con il numero. Oltre 15 si guadagna poco.</translation>
    </message>
    <message>
        <source>The grid will have</source>
        <translation>La griglia avrà</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Celle</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodi</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>The grid has no rows: choose a greater depth or smaller cells.</source>
        <translation>La griglia non ha righe: scegliere una profondità maggiore o celle più piccole.</translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) at the end of the line lie beyond the last column and take no part in an inversion. Another cell size may reach them.</source>
        <translation>
            <numerusform>%n posizione alla fine della linea è oltre l&apos;ultima colonna e non partecipa a un&apos;inversione. Un altro lato delle celle può raggiungerla.</numerusform>
            <numerusform>%n posizioni alla fine della linea sono oltre l&apos;ultima colonna e non partecipano a un&apos;inversione. Un altro lato delle celle può raggiungerle.</numerusform>
        </translation>
    </message>
    <message>
        <source>Invalid parameter</source>
        <translation>Parametro non valido</translation>
    </message>
    <message>
        <source>The max depth parameter set to 0.0 is not valid for tomography</source>
        <translation>La profondità massima impostata a 0.0 non è valida per la tomografia</translation>
    </message>
    <message>
        <source>Memory warning</source>
        <translation>Avviso sulla memoria</translation>
    </message>
    <message>
        <source>A large number of nodes may require a lot of memory</source>
        <translation>Un numero elevato di nodi può richiedere molta memoria</translation>
    </message>
    <message>
        <source>Such small cells make an inversion very slow, and it stops only between iterations. A quarter of the geophone spacing is %1.</source>
        <translation>Celle così piccole rendono l&apos;inversione molto lenta, e si ferma solo tra un&apos;iterazione e l&apos;altra. Un quarto della distanza fra i geofoni è %1.</translation>
    </message>
    <message>
        <source>A quarter of the smallest geophone spacing, %1 at least. Off: the cell size of the grid that there is, the smallest without one.</source>
        <translation>Un quarto della distanza più piccola fra i geofoni, almeno %1. Se non è spuntato: il lato delle celle della griglia esistente, o il più piccolo se non ce n&apos;è una.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Proponi</translation>
    </message>
    <message>
        <source>Cell sizes that lose none:</source>
        <translation>Lati delle celle senza perdite:</translation>
    </message>
    <message>
        <source>Lost to an inversion: %1.</source>
        <translation>Andranno persi in un&apos;inversione: %1.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>I risultati dell&apos;ultima inversione verranno tolti (&quot;Annulla modifica&quot; li ripristina).</translation>
    </message>
</context>
<context>
    <name>talvesk::progressDialog</name>
    <message>
        <source>Steps</source>
        <translation>Passi</translation>
    </message>
    <message>
        <source>Saving project</source>
        <translation>Salvataggio del progetto</translation>
    </message>
    <message>
        <source>Loading project</source>
        <translation>Caricamento del progetto</translation>
    </message>
    <message>
        <source>SAVED XML</source>
        <translation>XML SALVATO</translation>
    </message>
    <message>
        <source>Saving grid...</source>
        <translation>Salvataggio della griglia...</translation>
    </message>
    <message>
        <source>SAVED GRID</source>
        <translation>GRIGLIA SALVATA</translation>
    </message>
    <message>
        <source>Saving traces...</source>
        <translation>Salvataggio delle tracce...</translation>
    </message>
    <message>
        <source>SAVED TRACES</source>
        <translation>TRACCE SALVATE</translation>
    </message>
    <message>
        <source>Saving palettes...</source>
        <translation>Salvataggio delle tavolozze...</translation>
    </message>
    <message>
        <source>SAVED PALETTES</source>
        <translation>TAVOLOZZE SALVATE</translation>
    </message>
    <message>
        <source>Compressing...</source>
        <translation>Compressione...</translation>
    </message>
    <message>
        <source>COMPRESSED</source>
        <translation>COMPRESSO</translation>
    </message>
    <message>
        <source>Removing temporary files...</source>
        <translation>Eliminazione dei file temporanei...</translation>
    </message>
    <message>
        <source>COMPLETED</source>
        <translation>COMPLETATO</translation>
    </message>
    <message>
        <source>Extracted</source>
        <translation>Estratto</translation>
    </message>
    <message>
        <source>Loading XML</source>
        <translation>Caricamento dell&apos;XML</translation>
    </message>
    <message>
        <source>Loaded XML</source>
        <translation>XML caricato</translation>
    </message>
    <message>
        <source>Loading grid...</source>
        <translation>Caricamento della griglia...</translation>
    </message>
    <message>
        <source>Loaded GRID</source>
        <translation>GRIGLIA caricata</translation>
    </message>
    <message>
        <source>Loading traces...</source>
        <translation>Caricamento delle tracce...</translation>
    </message>
    <message>
        <source>Loaded TRACES</source>
        <translation>TRACCE caricate</translation>
    </message>
    <message>
        <source>Loading palettes...</source>
        <translation>Caricamento delle tavolozze...</translation>
    </message>
    <message>
        <source>Loaded PALETTES</source>
        <translation>TAVOLOZZE caricate</translation>
    </message>
    <message>
        <source>Tracing rays...</source>
        <translation>Tracciamento dei raggi...</translation>
    </message>
</context>
<context>
    <name>talvesk::progressTomographyDialog</name>
    <message>
        <source>Tomography inversion</source>
        <translation>Inversione tomografica</translation>
    </message>
    <message>
        <source>Ends the inversion after the external iteration under way and keeps what it has reached</source>
        <translation>Termina l&apos;inversione dopo l&apos;iterazione esterna in corso e conserva quanto ha raggiunto</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>Completed iteration %1</source>
        <translation>Iterazione %1 completata</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Trascorso: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>non ancora noto</translation>
    </message>
    <message>
        <source>Remaining: %1</source>
        <translation>Rimanente: %1</translation>
    </message>
    <message>
        <source>Stops when the iteration under way is completed.</source>
        <translation>Si ferma al termine dell&apos;iterazione in corso.</translation>
    </message>
    <message>
        <source>The models to start from are being traced.</source>
        <translation>Si tracciano i raggi dei modelli di partenza.</translation>
    </message>
    <message>
        <source>Ends by itself, after %1 iterations at the latest.</source>
        <translation>Finisce da sé, al più tardi dopo %1 iterazioni.</translation>
    </message>
    <message>
        <source>Iteration %1: chi-square %2, RMS %3 ms (%4 %)</source>
        <translation>Iterazione %1: chi quadrato %2, RMS %3 ms (%4 %)</translation>
    </message>
    <message>
        <source>Stops, with the best section so far.</source>
        <translation>Si ferma, con la migliore sezione finora.</translation>
    </message>
    <message>
        <source>Another fit, from: %1</source>
        <translation>Un altro adattamento, da: %1</translation>
    </message>
    <message>
        <source>Iterations and misfits</source>
        <translation>Iterazioni e scarti</translation>
    </message>
</context>
<context>
    <name>talvesk::runTomography_Dialog</name>
    <message>
        <source>Run tomography inversion</source>
        <translation>Esegui l&apos;inversione tomografica</translation>
    </message>
    <message>
        <source>Number of external iterations (default =5)</source>
        <translation>Numero di iterazioni esterne (predefinito =5)</translation>
    </message>
    <message>
        <source>Number of solver iterations (default =20)</source>
        <translation>Numero di iterazioni del risolutore (predefinito =20)</translation>
    </message>
    <message>
        <source>How far the velocities are corrected along the same rays before these are traced anew. More fit the times closer but may overfit noise; fewer keep the model smoother.</source>
        <translation>Quanto le velocità vengono corrette lungo gli stessi raggi prima che questi siano tracciati di nuovo. Con più iterazioni i tempi si adattano meglio, ma si può inseguire il rumore; con meno il modello resta più morbido.</translation>
    </message>
    <message>
        <source>Smoothing parameter (default =5) </source>
        <translation>Parametro di smussamento (predefinito =5) </translation>
    </message>
    <message>
        <source>How many cells to each side are averaged after every external iteration. Larger gives a smoother section that hides small bodies; smaller shows detail and artefacts along rays.</source>
        <translation>Quante celle per parte vengono mediate dopo ogni iterazione esterna. Un valore maggiore dà una sezione più morbida che nasconde i corpi piccoli; uno minore mostra dettagli e artefatti lungo i raggi.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Velocità minima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this. Set it to the slowest ground that you expect.</source>
        <translation>Nessuna cella diventa più lenta di così. Impostare il terreno più lento che ci si aspetta.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Velocità massima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this. Set it to the fastest rock that you expect.</source>
        <translation>Nessuna cella diventa più veloce di così. Impostare la roccia più veloce che ci si aspetta.</translation>
    </message>
    <message>
        <source>Type of smoothing:</source>
        <translation>Tipo di smussamento:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>Quello uniforme media tutte le celle allo stesso modo; quello lineare e quello gaussiano danno più peso alle celle vicine e mantengono più netti i contrasti; quello basato sui raggi riempie prima le celle che nessun raggio ha attraversato partendo da quelle attraversate.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Smussamento a pesi uniformi</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Smussamento a pesi lineari</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Smussamento a pesi gaussiani</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Smussamento basato sui raggi</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Se non è spuntato, lo smussamento arriva in verticale a 0,7 volte la distanza che raggiunge in orizzontale, come conviene a un terreno stratificato. Se è spuntato, arriva altrettanto lontano, come conviene a corpi isolati e contatti ripidi.</translation>
    </message>
    <message>
        <source>Symmetric smoothing</source>
        <translation>Smussamento simmetrico</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>Usa un solo processore. Il risultato è lo stesso fino all&apos;ultima cifra; ci vuole solo più tempo.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Esegui con un solo thread</translation>
    </message>
    <message>
        <source>The minimum is above the maximum: every cell that changes will end at the maximum.</source>
        <translation>Il minimo è sopra il massimo: ogni cella che cambia finirà al massimo.</translation>
    </message>
    <message>
        <source>Starts from the default model.</source>
        <translation>Parte dal modello predefinito.</translation>
    </message>
    <message>
        <source>Starts from the layered model.</source>
        <translation>Parte dal modello a strati.</translation>
    </message>
    <message>
        <source>Starts from the result of the last inversion.</source>
        <translation>Parte dal risultato dell&apos;ultima inversione.</translation>
    </message>
    <message>
        <source>Starts from the smoothed result of the last inversion.</source>
        <translation>Parte dal risultato smussato dell&apos;ultima inversione.</translation>
    </message>
    <message>
        <source>Starts from the present velocities of the grid.</source>
        <translation>Parte dalle velocità attuali della griglia.</translation>
    </message>
    <message>
        <source>Each external iteration traces the rays anew through the model so far. More of them bend the rays closer to the truth and lower the misfit; the time grows with the number. When the misfit curve has levelled off, more change little. The 5 of the label is enough for a first look; the box itself starts at 10.</source>
        <translation>Ogni iterazione esterna traccia di nuovo i raggi attraverso il modello ottenuto finora. Con più iterazioni i raggi si avvicinano alla realtà e lo scarto diminuisce; il tempo cresce con il numero. Quando la curva dello scarto si è appiattita, altre cambiano poco. Il 5 dell&apos;etichetta basta per una prima occhiata; il campo parte da 10.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>Solver passes correct the velocities along traced rays and smooth them, as often as is said here. A fit to the picks&apos; errors chooses its own smoothing, ends by itself, and comes as close to the picks as their errors are and no closer.</source>
        <translation>I passaggi del risolutore correggono le velocità lungo i raggi tracciati e le smussano, tante volte quante sono indicate qui. Un adattamento entro gli errori dei primi arrivi sceglie da sé lo smussamento, finisce da sé, e si avvicina ai primi arrivi quanto i loro errori e non di più.</translation>
    </message>
    <message>
        <source>Solver passes and smoothing</source>
        <translation>Passaggi del risolutore e smussamento</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Adattamento entro gli errori dei primi arrivi</translation>
    </message>
    <message>
        <source>Lets the smoothing parameter shrink to a fifth over the external iterations, and keeps the iteration whose section fits the picks best along fresh rays, which need not be the last one.</source>
        <translation>Riduce il parametro di smussamento fino a un quinto nel corso delle iterazioni esterne, e conserva l&apos;iterazione la cui sezione si accorda meglio con i primi arrivi lungo raggi nuovi, che non è necessariamente l&apos;ultima.</translation>
    </message>
    <message>
        <source>From coarse to fine, keeping the best iteration</source>
        <translation>Dal grosso al fine, conservando l&apos;iterazione migliore</translation>
    </message>
    <message>
        <source>Sets the velocity limits and the smoothing parameter as the picks and the distance between geophones suggest them.</source>
        <translation>Imposta i limiti di velocità e il parametro di smussamento come suggeriscono i primi arrivi e la distanza fra i geofoni.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Proponi</translation>
    </message>
    <message>
        <source>Rays are expected down to %1; the grid reaches %2.</source>
        <translation>I raggi dovrebbero scendere fino a %1; la griglia arriva a %2.</translation>
    </message>
    <message>
        <source>The minimum velocity must be below the maximum.</source>
        <translation>La velocità minima deve essere sotto la massima.</translation>
    </message>
</context>
<context>
    <name>talvesk::select_speed_Dialog</name>
    <message>
        <source>Define model velocity</source>
        <translation>Definisci il modello di velocità</translation>
    </message>
    <message>
        <source>Depths below the ground (m), velocities (m/s)</source>
        <translation>Profondità dal suolo (m), velocità (m/s)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Strati</translation>
    </message>
    <message>
        <source>Splits the last layer at its middle</source>
        <translation>Divide a metà l&apos;ultimo strato</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Removes the layers that are checked or selected</source>
        <translation>Rimuove gli strati spuntati o selezionati</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>The layers make no velocity model.</source>
        <translation>Gli strati non formano un modello di velocità.</translation>
    </message>
    <message>
        <source>Do you want to put them into the grid all the same?</source>
        <translation>Vuoi metterli comunque nella griglia?</translation>
    </message>
    <message>
        <source>You have not changed the layers.</source>
        <translation>Gli strati non sono stati cambiati.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>I risultati dell&apos;ultima inversione verranno tolti (&quot;Annulla modifica&quot; li ripristina).</translation>
    </message>
    <message>
        <source>In the &amp;grid:</source>
        <translation>Nella &amp;griglia:</translation>
    </message>
    <message>
        <source>How layers become velocities of cells. A spline rounds jumps off and swings beside great ones; sharp layers keep them; graded layers spread every jump evenly over a thickness.</source>
        <translation>Come gli strati diventano velocità delle celle. Una spline arrotonda i salti e oscilla accanto a quelli grandi; gli strati netti li conservano; gli strati graduali distribuiscono ogni salto uniformemente su uno spessore.</translation>
    </message>
    <message>
        <source>Spline through the layers</source>
        <translation>Spline attraverso gli strati</translation>
    </message>
    <message>
        <source>Sharp layers</source>
        <translation>Strati netti</translation>
    </message>
    <message>
        <source>Graded layers</source>
        <translation>Strati graduali</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Spessore di un salto graduale</translation>
    </message>
    <message>
        <source>Thickness over which a jump between two layers is spread</source>
        <translation>Spessore su cui si distribuisce un salto fra due strati</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Puts the layers into the grid as they are, without a spline</source>
        <translation>Mette gli strati nella griglia così come sono, senza spline</translation>
    </message>
    <message>
        <source>Use &amp;sharp layers</source>
        <translation>Usa strati &amp;netti</translation>
    </message>
    <message>
        <source>Do you want sharp layers instead? They need no spline.</source>
        <translation>Vuoi invece strati netti? Non richiedono alcuna spline.</translation>
    </message>
</context>
<context>
    <name>talvesk::setGeographyDialog</name>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Coordinate geografiche</translation>
    </message>
    <message>
        <source>Easting (m)</source>
        <translation>Est (m)</translation>
    </message>
    <message>
        <source>Northing (m)</source>
        <translation>Nord (m)</translation>
    </message>
    <message>
        <source>Latitude, longitude (WGS84)</source>
        <translation>Latitudine, longitudine (WGS84)</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Primo geofono</translation>
    </message>
    <message>
        <source>Easting of the first geophone in metres</source>
        <translation>Coordinata est del primo geofono in metri</translation>
    </message>
    <message>
        <source>Northing of the first geophone in metres</source>
        <translation>Coordinata nord del primo geofono in metri</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Ultimo geofono</translation>
    </message>
    <message>
        <source>Easting of the last geophone in metres</source>
        <translation>Coordinata est dell&apos;ultimo geofono in metri</translation>
    </message>
    <message>
        <source>Northing of the last geophone in metres</source>
        <translation>Coordinata nord dell&apos;ultimo geofono in metri</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>Codice EPSG</translation>
    </message>
    <message>
        <source>EPSG code of the reference system</source>
        <translation>Codice EPSG del sistema di riferimento</translation>
    </message>
    <message>
        <source>First geophone (at %1)</source>
        <translation>Primo geofono (a %1)</translation>
    </message>
    <message>
        <source>Last geophone (at %1)</source>
        <translation>Ultimo geofono (a %1)</translation>
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
        <translation>E</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>O</translation>
    </message>
    <message>
        <source>There is no reference system with this EPSG code.</source>
        <translation>Non esiste un sistema di riferimento con questo codice EPSG.</translation>
    </message>
    <message>
        <source>This system is not projected: it has no easting and northing.</source>
        <translation>Questo sistema non è proiettato: non ha coordinate est e nord.</translation>
    </message>
    <message>
        <source>This system does not count in metres. Choose one that does.</source>
        <translation>Questo sistema non è in metri. Sceglierne uno in metri.</translation>
    </message>
    <message>
        <source>This system counts westward or southward. Choose one with easting and northing.</source>
        <translation>Questo sistema conta verso ovest o verso sud. Sceglierne uno con coordinate est e nord.</translation>
    </message>
    <message>
        <source>This system cannot be turned into longitude and latitude.</source>
        <translation>Questo sistema non può essere convertito in longitudine e latitudine.</translation>
    </message>
    <message>
        <source>Enter easting and northing of both geophones, in metres.</source>
        <translation>Inserire le coordinate est e nord dei due geofoni, in metri.</translation>
    </message>
    <message>
        <source>Enter the EPSG code of the reference system, for example 32632 for UTM zone 32 N.</source>
        <translation>Inserire il codice EPSG del sistema di riferimento, per esempio 32632 per UTM zona 32 N.</translation>
    </message>
    <message>
        <source>The first and the last geophone have the same coordinates.</source>
        <translation>Il primo e l&apos;ultimo geofono hanno le stesse coordinate.</translation>
    </message>
    <message>
        <source>These coordinates lie outside of the reference system.</source>
        <translation>Queste coordinate sono fuori dal sistema di riferimento.</translation>
    </message>
    <message>
        <source>On the map the two geophones are %1 apart</source>
        <translation>Sulla carta i due geofoni distano %1</translation>
    </message>
    <message>
        <source>%1, along the line %2.</source>
        <comment>distance on the map, distance along the line</comment>
        <translation>%1, lungo la linea %2.</translation>
    </message>
    <message>
        <source>Check the coordinates.</source>
        <translation>Controllare le coordinate.</translation>
    </message>
</context>
<context>
    <name>talvesk::setVelocityWidget</name>
    <message>
        <source>Marks the layer for Remove</source>
        <translation>Segna lo strato per Rimuovi</translation>
    </message>
    <message>
        <source>Initial depth   </source>
        <translation>Profondità iniziale   </translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s top below the ground (m)</source>
        <translation>Profondità del tetto dello strato dal suolo (m)</translation>
    </message>
    <message>
        <source>    Velocity</source>
        <translation>    Velocità</translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s top (m/s)</source>
        <translation>Velocità al tetto dello strato (m/s)</translation>
    </message>
    <message>
        <source>Final depth</source>
        <translation>Profondità finale</translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s bottom below the ground (m)</source>
        <translation>Profondità della base dello strato dal suolo (m)</translation>
    </message>
    <message>
        <source>    Velocity  </source>
        <translation>    Velocità  </translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s bottom (m/s)</source>
        <translation>Velocità alla base dello strato (m/s)</translation>
    </message>
</context>
<context>
    <name>talvesk::smoothingDialog</name>
    <message>
        <source>Apply smoothing</source>
        <translation>Applica lo smussamento</translation>
    </message>
    <message>
        <source>&amp;Type of smoothing:</source>
        <translation>&amp;Tipo di smussamento:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>Quello uniforme media tutte le celle allo stesso modo; quello lineare e quello gaussiano danno più peso alle celle vicine e mantengono più netti i contrasti; quello basato sui raggi riempie prima le celle che nessun raggio ha attraversato partendo da quelle attraversate.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Smussamento a pesi uniformi</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Smussamento a pesi lineari</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Smussamento a pesi gaussiani</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Smussamento basato sui raggi</translation>
    </message>
    <message>
        <source>Smoothing &amp;parameter:</source>
        <translation>&amp;Parametro di smussamento:</translation>
    </message>
    <message>
        <source>How many cells to each side are averaged. Larger gives a smoother section that hides small bodies.</source>
        <translation>Quante celle per parte vengono mediate. Un valore maggiore dà una sezione più morbida che nasconde i corpi piccoli.</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Se non è spuntato, lo smussamento arriva in verticale a 0,7 volte la distanza che raggiunge in orizzontale, come conviene a un terreno stratificato. Se è spuntato, arriva altrettanto lontano, come conviene a corpi isolati e contatti ripidi.</translation>
    </message>
    <message>
        <source>&amp;Symmetric smoothing</source>
        <translation>Smussamento &amp;simmetrico</translation>
    </message>
    <message>
        <source>Smooths the velocities of the present grid. Rays and misfit of a result are traced anew through the smoothed section.</source>
        <translation>Smussa le velocità della griglia attuale. I raggi e lo scarto di un risultato vengono ricalcolati attraverso la sezione smussata.</translation>
    </message>
</context>
</TS>
