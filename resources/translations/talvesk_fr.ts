<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommandWords</name>
    <message>
        <source>start over, empty, close survey, clear</source>
        <translation>recommencer, repartir de zéro, vider, fermer le levé, effacer tout</translation>
    </message>
    <message>
        <source>load recordings, seismograms, records, raw data, gathers, seg2, segy</source>
        <translation>charger les enregistrements, importer, sismogrammes, données brutes, données de terrain, points de tir, seg2, segy</translation>
    </message>
    <message>
        <source>file headers, metadata, sampling rate, sample interval</source>
        <translation>en-têtes de fichiers, métadonnées, fréquence d&apos;échantillonnage, cadence, pas d&apos;échantillonnage</translation>
    </message>
    <message>
        <source>metadata, channels, trace table</source>
        <translation>métadonnées, canaux, voies, tableau des traces, headers</translation>
    </message>
    <message>
        <source>trigger, pretrigger, time zero, t0, recording delay</source>
        <translation>trigger, déclenchement, prétrigger, pré-déclenchement, temps zéro, t0, retard d&apos;enregistrement</translation>
    </message>
    <message>
        <source>trigger shift, time correction, static, reverse channels</source>
        <translation>décalage du trigger, retard au déclenchement, correction de temps, statique, inverser les canaux, inverser les voies</translation>
    </message>
    <message>
        <source>delete shot, discard recording</source>
        <translation>effacer le tir, éliminer l&apos;enregistrement, rejeter</translation>
    </message>
    <message>
        <source>convert, seg2, segy</source>
        <translation>convertir, conversion, sauver les sismogrammes, seg2, segy</translation>
    </message>
    <message>
        <source>geophone positions, receivers, source positions, shot points, spacing, spread, layout, elevations, topography, coordinates</source>
        <translation>position des géophones, récepteurs, capteurs, positions des sources, points de tir, espacement, intertrace, étalement, flûte, altitudes, topographie, coordonnées, en-têtes de géométrie</translation>
    </message>
    <message>
        <source>gps, gnss, total station, easting northing, longitude latitude, utm, topography, elevations, geophone positions</source>
        <translation>GPS, GNSS, tachéomètre, station totale, topographe, est nord, longitude latitude, UTM, Lambert, topographie, altitudes, positions des géophones</translation>
    </message>
    <message>
        <source>map position, easting northing, utm, epsg, georeference, reference system</source>
        <translation>position sur la carte, est nord, UTM, Lambert, EPSG, géoréférencement, géoréférencer, système de référence, projection</translation>
    </message>
    <message>
        <source>band pass, bandpass, low pass, high pass, lowpass, highpass, frequencies</source>
        <translation>passe-bande, passe bande, passe-bas, passe bas, passe-haut, passe haut, coupe-bas, coupe-haut, bandpass, fréquences, Butterworth</translation>
    </message>
    <message>
        <source>mains, power line noise, hertz</source>
        <translation>notch, coupe-bande, bruit de ligne électrique, réseau électrique, ronflement, hertz</translation>
    </message>
    <message>
        <source>f-k, fk, fan filter, dip filter, ground roll, surface waves</source>
        <translation>f-k, fk, filtre en éventail, filtre de pendage, ground roll, ondes de surface, ondes de Rayleigh</translation>
    </message>
    <message>
        <source>balance, normalise, normalize, level</source>
        <translation>équilibrer, égalisation, normaliser, niveau, gain automatique, CAG</translation>
    </message>
    <message>
        <source>denoise, suppress noise</source>
        <translation>débruiter, débruitage, atténuer le bruit, supprimer le bruit</translation>
    </message>
    <message>
        <source>reduction velocity, reduced travel times, linear moveout, flatten</source>
        <translation>vitesse de réduction, temps de parcours réduits, correction linéaire, LMO, aplatir, horizontaliser</translation>
    </message>
    <message>
        <source>reduction velocity, reducing velocity, linear moveout, flatten</source>
        <translation>vitesse de réduction, vitesse réductrice, correction linéaire, LMO, aplatir, horizontaliser</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, amplify</source>
        <translation>tn, t^n, récupération des amplitudes, compensation de la divergence, divergence sphérique, amplifier</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, power</source>
        <translation>tn, t^n, récupération des amplitudes, divergence sphérique, loi de puissance</translation>
    </message>
    <message>
        <source>sort traces, common shot, distance</source>
        <translation>trier les traces, tri, point de tir commun, distance source-récepteur, offset</translation>
    </message>
    <message>
        <source>sort traces, distance</source>
        <translation>trier les traces, tri, distance source-récepteur, offset</translation>
    </message>
    <message>
        <source>dead, bad, noisy traces, disable, delete, zero</source>
        <translation>traces mortes, mauvaises traces, traces bruitées, éditer les traces, désactiver, supprimer, mettre à zéro, annuler</translation>
    </message>
    <message>
        <source>flip, invert, sign, phase</source>
        <translation>retourner, changer le signe, phase, opposé, géophone inversé</translation>
    </message>
    <message>
        <source>silence, blank, cut noise</source>
        <translation>silence, blanchir, couper le bruit, mise à zéro, muter, top mute</translation>
    </message>
    <message>
        <source>gain, scale, louder</source>
        <translation>gain, échelle, plus fort, augmenter</translation>
    </message>
    <message>
        <source>gain, scale, quieter</source>
        <translation>gain, échelle, plus faible, diminuer</translation>
    </message>
    <message>
        <source>shear waves, SH, opposite blows, hammer, subtract, stack</source>
        <translation>ondes de cisaillement, ondes SH, ondes S, coups opposés, marteau, masse, soustraire, soustraction, stack, sommation</translation>
    </message>
    <message>
        <source>gathers, record section, plot</source>
        <translation>gathers, sismogrammes, section sismique, planche, montage, tracer</translation>
    </message>
    <message>
        <source>measure, slope</source>
        <translation>mesurer, mesure, pente</translation>
    </message>
    <message>
        <source>loupe, lens</source>
        <translation>verre grossissant, lentille, détail</translation>
    </message>
    <message>
        <source>zoom all, fit, whole shot</source>
        <translation>zoomer tout, vue d&apos;ensemble, ajuster, tir entier</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, onsets, automatic picking, picker</source>
        <translation>premières arrivées, premiers bris, first breaks, débuts d&apos;onde, primo-arrivées, pointage automatique, pointeur, picking</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, by hand, manual picking</source>
        <translation>premières arrivées, premiers bris, first breaks, débuts d&apos;onde, à la main, pointage manuel, picking</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, load picks, time picks</source>
        <translation>premières arrivées, premiers bris, first breaks, charger les pointés, temps d&apos;arrivée, hodochrones</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, save picks, time picks</source>
        <translation>premières arrivées, premiers bris, first breaks, sauver les pointés, enregistrer les pointés, temps d&apos;arrivée, hodochrones</translation>
    </message>
    <message>
        <source>review, check picks, outliers, bad picks, quality</source>
        <translation>passer en revue, vérifier les pointés, contrôler, aberrants, mauvais pointés, qualité</translation>
    </message>
    <message>
        <source>quality control, qc, doctor, bad traces, dead traces, wrong headers</source>
        <translation>contrôle qualité, QC, diagnostic, mauvaises traces, traces mortes, mauvais en-têtes, erreurs de géométrie</translation>
    </message>
    <message>
        <source>reciprocal times, reverse shots, trigger errors, quality control, qc</source>
        <translation>temps de bout en bout, temps réciproques, tirs inverses, tirs directs et inverses, erreurs de trigger, retards, contrôle qualité, QC</translation>
    </message>
    <message>
        <source>mesh, cell size, discretisation, depth</source>
        <translation>maillage, mailles, taille des cellules, pas, discrétisation, profondeur</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model, gradient</source>
        <translation>modèle de départ, modèle initial, modèle a priori, gradient</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model</source>
        <translation>modèle de départ, modèle initial, modèle de vitesse</translation>
    </message>
    <message>
        <source>wells, drilling, constraints, a priori, soundings</source>
        <translation>puits, sondages, contraintes, a priori, pénétromètre, géotechnique</translation>
    </message>
    <message>
        <source>invert, calculate, iterations, velocity model, sirt, start inversion</source>
        <translation>calculer, calcul, itérations, modèle de vitesse, SIRT, démarrer, tomographie sismique</translation>
    </message>
    <message>
        <source>history, earlier results, compare models</source>
        <translation>historique, résultats antérieurs, anciens résultats, comparer les modèles</translation>
    </message>
    <message>
        <source>chi-square, chi2, misfit, quality of the inversion</source>
        <translation>khi-deux, chi2, khi2, désajustement, misfit, qualité de l&apos;inversion</translation>
    </message>
    <message>
        <source>misfit, rms, errors of the fit, measured and computed times</source>
        <translation>désajustement, misfit, RMS, EQM, erreurs d&apos;ajustement, temps observés et calculés</translation>
    </message>
    <message>
        <source>uncertainty, ensemble, standard deviation, confidence</source>
        <translation>incertitude, ensemble, écart type, confiance, fiabilité</translation>
    </message>
    <message>
        <source>checkerboard, chequerboard, spike test, sensitivity</source>
        <translation>damier, test du damier, checkerboard, impulsion, sensibilité, pouvoir de résolution</translation>
    </message>
    <message>
        <source>smoother model, average</source>
        <translation>modèle plus lisse, moyenner, moyenne, adoucir</translation>
    </message>
    <message>
        <source>refractors, layered model, plus minus, delay times, intercept times, grm, time depth</source>
        <translation>réfracteurs, modèle de couches, plus-minus, Hagedoorn, délais, temps de retard, intercepts, intercept, GRM, Palmer, profondeur en temps</translation>
    </message>
    <message>
        <source>shear modulus, Young, elastic, stiffness</source>
        <translation>module de cisaillement, module d&apos;Young, élastique, rigidité, Gmax</translation>
    </message>
    <message>
        <source>ray paths, ray tracing</source>
        <translation>trajets des rais, rayons, trajets sismiques, tracé de rais, ray tracing</translation>
    </message>
    <message>
        <source>ray coverage, hit count</source>
        <translation>couverture en rais, nombre de rais, couverture par cellule, hit count</translation>
    </message>
    <message>
        <source>isolines, isovalues</source>
        <translation>isovaleurs, isovitesses, courbes de niveau, contours</translation>
    </message>
    <message>
        <source>contour, groundwater, bedrock</source>
        <translation>contour, niveau d&apos;eau, eau souterraine, aquifère, substratum, toit du rocher, bedrock</translation>
    </message>
    <message>
        <source>labels, lithology, geology, polygons, legend</source>
        <translation>étiquettes, légendes, lithologie, géologie, polygones, habillage</translation>
    </message>
    <message>
        <source>velocity depth function, 1-D, 1d, log</source>
        <translation>fonction vitesse-profondeur, 1-D, 1d, log, diagraphie, sondage virtuel</translation>
    </message>
    <message>
        <source>3-D, 3d, fence diagram, crossing lines</source>
        <translation>3-D, 3d, diagramme en barrières, fence diagram, profils croisés, lignes sécantes</translation>
    </message>
    <message>
        <source>colour scale, colors, colormap, range, legend</source>
        <translation>échelle de couleurs, table de couleurs, colormap, plage, légende</translation>
    </message>
    <message>
        <source>colour bar, color bar, legend</source>
        <translation>barre de couleurs, barre colorée, légende</translation>
    </message>
    <message>
        <source>template, look, appearance</source>
        <translation>modèle de présentation, gabarit, apparence, mise en forme</translation>
    </message>
    <message>
        <source>plot, printer, page, a3, a4</source>
        <translation>tracer, traceur, imprimante, page, tirage, a3, a4</translation>
    </message>
    <message>
        <source>figures, png, svg, save picture</source>
        <translation>figures, png, svg, sauver l&apos;image, exporter la coupe en image</translation>
    </message>
    <message>
        <source>document</source>
        <translation>document, compte rendu</translation>
    </message>
    <message>
        <source>word processor, editable report</source>
        <translation>traitement de texte, rapport modifiable, LibreOffice, Word</translation>
    </message>
    <message>
        <source>html, interactive report</source>
        <translation>html, rapport interactif, compte rendu</translation>
    </message>
    <message>
        <source>html, several lines, report</source>
        <translation>html, plusieurs lignes, rapport, récapitulatif</translation>
    </message>
    <message>
        <source>cad, contours</source>
        <translation>CAO, AutoCAD, contours</translation>
    </message>
    <message>
        <source>gis, shape file, gpkg</source>
        <translation>SIG, QGIS, shapefile, gpkg</translation>
    </message>
    <message>
        <source>gis, 3-D, 3d, georeferenced</source>
        <translation>SIG, 3-D, 3d, géoréférencé</translation>
    </message>
    <message>
        <source>xyz, ascii, velocities</source>
        <translation>xyz, ASCII, vitesses</translation>
    </message>
    <message>
        <source>ascii, velocities, section</source>
        <translation>ASCII, vitesses, coupe</translation>
    </message>
    <message>
        <source>preferences, feet, metres, units, memory, undo</source>
        <translation>préférences, réglages, pieds, mètres, unités, mémoire, annuler</translation>
    </message>
    <message>
        <source>manual, handbook, documentation, help</source>
        <translation>manuel, mode d&apos;emploi, notice, documentation, aide</translation>
    </message>
    <message>
        <source>manual, handbook, documentation</source>
        <translation>manuel, mode d&apos;emploi, notice, documentation</translation>
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
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>talvesk::AnnotationsDialog</name>
    <message>
        <source>Annotations</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground that are drawn on the section. They can be drawn with the mouse as well: Draw, above the section.</source>
        <translation>Textes, lignes et zones de terrain dessinés sur la coupe. Ils peuvent aussi être dessinés à la souris&#xa0;: Dessiner, au-dessus de la coupe.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Add a text in the middle of the section</source>
        <translation>Ajouter un texte au milieu de la coupe</translation>
    </message>
    <message>
        <source>Add &amp;text</source>
        <translation>Ajouter un &amp;texte</translation>
    </message>
    <message>
        <source>Add a line in the middle of the section</source>
        <translation>Ajouter une ligne au milieu de la coupe</translation>
    </message>
    <message>
        <source>Add &amp;line</source>
        <translation>Ajouter une &amp;ligne</translation>
    </message>
    <message>
        <source>Add an area in the middle of the section</source>
        <translation>Ajouter une zone au milieu de la coupe</translation>
    </message>
    <message>
        <source>Add &amp;polygon</source>
        <translation>Ajouter un &amp;polygone</translation>
    </message>
    <message>
        <source>Remove the annotation that is selected</source>
        <translation>Supprimer l&apos;annotation sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Let those after it be drawn over it</source>
        <translation>Laisser les suivantes se dessiner par-dessus</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Points of the annotation that is selected</source>
        <translation>Points de l&apos;annotation sélectionnée</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Distance [m]</translation>
    </message>
    <message>
        <source>Elevation [m]</source>
        <translation>Altitude [m]</translation>
    </message>
    <message>
        <source>Add a point behind the one that is selected</source>
        <translation>Ajouter un point après celui qui est sélectionné</translation>
    </message>
    <message>
        <source>Add p&amp;oint</source>
        <translation>Ajouter un p&amp;oint</translation>
    </message>
    <message>
        <source>Remove the point that is selected</source>
        <translation>Supprimer le point sélectionné</translation>
    </message>
    <message>
        <source>Remove po&amp;int</source>
        <translation>Supprimer le po&amp;int</translation>
    </message>
    <message>
        <source>Annotations: %1.</source>
        <translation>Annotations&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Discard what was changed?</source>
        <translation>Abandonner les modifications&#xa0;?</translation>
    </message>
</context>
<context>
    <name>talvesk::BlowPairDialog</name>
    <message>
        <source>Two shots</source>
        <translation>Deux tirs</translation>
    </message>
    <message>
        <source>&amp;First:</source>
        <translation>&amp;Premier&#xa0;:</translation>
    </message>
    <message>
        <source>The recording that time and places are counted by</source>
        <translation>L&apos;enregistrement selon lequel le temps et les positions sont comptés</translation>
    </message>
    <message>
        <source>S&amp;econd:</source>
        <translation>&amp;Second&#xa0;:</translation>
    </message>
    <message>
        <source>The recording that is laid over it; the nearest is proposed</source>
        <translation>L&apos;enregistrement qui lui est superposé&#xa0;; le plus proche est proposé</translation>
    </message>
    <message>
        <source>The traces of both over each other</source>
        <translation>Les traces des deux, superposées</translation>
    </message>
    <message>
        <source>&amp;Overlaid</source>
        <translation>S&amp;uperposés</translation>
    </message>
    <message>
        <source>First less second: of blows of opposite sense it enhances S waves</source>
        <translation>Premier moins second&#xa0;: pour des coups de sens opposés, elle renforce les ondes S</translation>
    </message>
    <message>
        <source>&amp;Difference</source>
        <translation>&amp;Différence</translation>
    </message>
    <message>
        <source>Of blows of opposite sense it enhances P waves</source>
        <translation>Pour des coups de sens opposés, elle renforce les ondes P</translation>
    </message>
    <message>
        <source>S&amp;um</source>
        <translation>So&amp;mme</translation>
    </message>
    <message>
        <source>The second is made as strong as the first</source>
        <translation>Le second est rendu aussi fort que le premier</translation>
    </message>
    <message>
        <source>E&amp;qual strength</source>
        <translation>Force é&amp;gale</translation>
    </message>
    <message>
        <source>All traces by one measure; else each pair of traces by the larger of both</source>
        <translation>Toutes les traces à une même mesure&#xa0;; sinon, chaque paire de traces à la plus grande des deux</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>&amp;Amplitudes réelles</translation>
    </message>
    <message>
        <source>The filtered copies of traces that have one</source>
        <translation>Les copies filtrées des traces qui en ont une</translation>
    </message>
    <message>
        <source>Filtered co&amp;pies</source>
        <translation>&amp;Copies filtrées</translation>
    </message>
    <message>
        <source>Mark the first breaks of both, each in its colour</source>
        <translation>Marquer les premières arrivées des deux, chacune dans sa couleur</translation>
    </message>
    <message>
        <source>Pic&amp;ks</source>
        <translation>P&amp;ointés</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>Ga&amp;in&#xa0;:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Amplitude de la plus grande valeur, en écartements de traces</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>&amp;Temps jusqu&apos;à&#xa0;:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Où finit l&apos;axe du temps&#xa0;; automatique&#xa0;: une fois et demie le temps du dernier pointé</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>What is added or saved</source>
        <translation>Ce qui est ajouté ou enregistré</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>As a shot of the survey, without picks, at the place of the first; Undo takes it away</source>
        <translation>Comme tir du levé, sans pointés, à l&apos;emplacement du premier&#xa0;; «&#xa0;Défaire&#xa0;» le retire</translation>
    </message>
    <message>
        <source>Add to su&amp;rvey</source>
        <translation>Ajouter au &amp;levé</translation>
    </message>
    <message>
        <source>As SEG-2 or SEG-Y</source>
        <translation>En SEG-2 ou SEG-Y</translation>
    </message>
    <message>
        <source>Save s&amp;hot file ...</source>
        <translation>Enregistrer le &amp;fichier de tir ...</translation>
    </message>
    <message>
        <source>What is shown, as PNG, SVG or PDF</source>
        <translation>Ce qui est affiché, en PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>E&amp;nregistrer l&apos;image ...</translation>
    </message>
    <message>
        <source>Traces of both shots, their difference and their sum</source>
        <translation>Traces des deux tirs, leur différence et leur somme</translation>
    </message>
    <message>
        <source>one sense</source>
        <comment>of a pair of blows</comment>
        <translation>un sens</translation>
    </message>
    <message>
        <source>other sense</source>
        <comment>of a pair of blows</comment>
        <translation>autre sens</translation>
    </message>
    <message>
        <source>at %1 %2</source>
        <comment>place, unit</comment>
        <translation>à %1 %2</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <translation>Tir %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>There are no two recordings to be compared.</source>
        <translation>Il n&apos;y a pas deux enregistrements à comparer.</translation>
    </message>
    <message>
        <source>Not to be added, only saved as a shot file: %1</source>
        <translation>Ne peut pas être ajouté, seulement enregistré en fichier de tir&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignDialog</name>
    <message>
        <source>Campaign page</source>
        <translation>Page de campagne</translation>
    </message>
    <message>
        <source>A web page of every project, and one on all of them: a table, the sections in small by one scale of colours, and a map. The projects stay as they are.</source>
        <translation>Une page web de chaque projet, et une sur tous&#xa0;: un tableau, les coupes en petit selon une même échelle de couleurs, et une carte. Les projets restent inchangés.</translation>
    </message>
    <message>
        <source>&amp;Projects:</source>
        <translation>&amp;Projets&#xa0;:</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>&amp;Ajouter des projets ...</translation>
    </message>
    <message>
        <source>Take the projects that are selected off the list; their files stay</source>
        <translation>Ôter de la liste les projets sélectionnés&#xa0;; leurs fichiers restent</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Client&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>S&amp;ite&#xa0;:</translation>
    </message>
    <message>
        <source>A&amp;uthor:</source>
        <translation>A&amp;uteur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignPage</name>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>Écart quadratique moyen [ms]</translation>
    </message>
    <message>
        <source>RMS misfit [%]</source>
        <translation>Écart quadratique moyen [%]</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Khi-deux</translation>
    </message>
    <message>
        <source>Length covered [%1]</source>
        <translation>Longueur couverte [%1]</translation>
    </message>
    <message>
        <source>Depth reached [%1]</source>
        <translation>Profondeur atteinte [%1]</translation>
    </message>
    <message>
        <source>Cells with rays [%]</source>
        <translation>Cellules avec rais [%]</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Géophones</translation>
    </message>
    <message>
        <source>Not inverted yet</source>
        <translation>Pas encore inversée</translation>
    </message>
    <message>
        <source>The misfit of the section is not known</source>
        <translation>L&apos;écart de la coupe n&apos;est pas connu</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion</source>
        <translation>Les pointés ont changé depuis l&apos;inversion</translation>
    </message>
    <message>
        <source>Smoothed after the inversion</source>
        <translation>Lissée après l&apos;inversion</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Lines: %1; with a section: %2; failed: %3</source>
        <translation>Lignes&#xa0;: %1&#xa0;; avec une coupe&#xa0;: %2&#xa0;; en échec&#xa0;: %3</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Vitesse [%1]</translation>
    </message>
    <message>
        <source>Small sections are stretched to fill their place; their colours are the same for all lines. Misfits are those of the sections shown, along fresh rays.</source>
        <translation>Les petites coupes sont étirées pour remplir leur place&#xa0;; leurs couleurs sont les mêmes pour toutes les lignes. Les écarts sont ceux des coupes affichées, le long de nouveaux rais.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Pointés utilisés</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Inversée</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Failed:</source>
        <translation>En échec&#xa0;:</translation>
    </message>
    <message>
        <source>Velocity section of %1</source>
        <translation>Coupe de vitesse de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Map of the lines</source>
        <translation>Carte des lignes</translation>
    </message>
    <message>
        <source>Numbers are those of the table; each stands at the first geophone of its line.</source>
        <translation>Les numéros sont ceux du tableau&#xa0;; chacun se trouve au premier géophone de sa ligne.</translation>
    </message>
    <message>
        <source>Lines whose position is not known: %1</source>
        <translation>Lignes dont la position n&apos;est pas connue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Campaign</source>
        <translation>Campagne</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Aller au contenu</translation>
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
        <translation>Certitude</translation>
    </message>
    <message>
        <source>Many sections explain the picks as well as the one that is shown. Each member is fitted to picks that are moved by their errors, from another model that explains them. Where the members agree the section is sure.</source>
        <translation>Bien des coupes expliquent les pointés aussi bien que celle qui est affichée. Chaque membre est ajusté à des pointés déplacés selon leurs erreurs, à partir d&apos;un autre modèle qui les explique. Là où les membres concordent, la coupe est sûre.</translation>
    </message>
    <message>
        <source>&amp;Members:</source>
        <translation>&amp;Membres&#xa0;:</translation>
    </message>
    <message>
        <source>How many sections are compared. More of them tell the spread more exactly and take longer.</source>
        <translation>Nombre de coupes comparées. Un plus grand nombre donne la dispersion plus exactement et prend plus de temps.</translation>
    </message>
    <message>
        <source>S&amp;eed:</source>
        <translation>&amp;Graine aléatoire&#xa0;:</translation>
    </message>
    <message>
        <source>The number that the errors of all members come from. The same survey and seed give the same members.</source>
        <translation>Le nombre d&apos;où sont tirées les erreurs de tous les membres. Le même levé et la même graine donnent les mêmes membres.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Models are being tried.</source>
        <translation>Essai des modèles en cours.</translation>
    </message>
    <message>
        <source>Models are being tried: %1 of %2.</source>
        <translation>Essai des modèles en cours&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>%1 of %2 members are done; %3 left out.</source>
        <translation>%1 membres sur %2 sont calculés&#xa0;; %3 écartés.</translation>
    </message>
    <message>
        <source>How sure the section is stays unknown.</source>
        <translation>La certitude de la coupe reste inconnue.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message numerus="yes">
        <source>%n member(s) of this seed are done; Continue goes on with more.</source>
        <translation>
            <numerusform>%n membre de cette graine est calculé&#xa0;; «&#xa0;Continuer&#xa0;» en ajoute d&apos;autres.</numerusform>
            <numerusform>%n membres de cette graine sont calculés&#xa0;; «&#xa0;Continuer&#xa0;» en ajoute d&apos;autres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped with %n member(s); Continue goes on from there.</source>
        <translation>
            <numerusform>Arrêté avec %n membre&#xa0;; «&#xa0;Continuer&#xa0;» reprend à partir de là.</numerusform>
            <numerusform>Arrêté avec %n membres&#xa0;; «&#xa0;Continuer&#xa0;» reprend à partir de là.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped before the first member was done; Continue goes on.</source>
        <translation>Arrêté avant la fin du premier membre&#xa0;; «&#xa0;Continuer&#xa0;» reprend.</translation>
    </message>
</context>
<context>
    <name>talvesk::CheckDialog</name>
    <message>
        <source>Check recordings</source>
        <translation>Vérifier les enregistrements</translation>
    </message>
    <message>
        <source>The recordings are being looked at...</source>
        <translation>Examen des enregistrements en cours...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>What is doubtful</source>
        <translation>Ce qui est douteux</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Douteux</translation>
    </message>
    <message>
        <source>Sure</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Proposition</translation>
    </message>
    <message>
        <source>What is doubtful, and why</source>
        <translation>Ce qui est douteux, et pourquoi</translation>
    </message>
    <message>
        <source>The figure of the proposal, to be altered</source>
        <translation>La valeur de la proposition, modifiable</translation>
    </message>
    <message>
        <source>The shot comes into view in the window; a double click on its line does the same</source>
        <translation>Affiche le tir dans la fenêtre&#xa0;; un double clic sur sa ligne fait de même</translation>
    </message>
    <message>
        <source>&amp;Show traces</source>
        <translation>Affi&amp;cher les traces</translation>
    </message>
    <message>
        <source>The record was &amp;late by:</source>
        <translation>&amp;Retard de l&apos;enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Muted before:</source>
        <translation>&amp;Mute avant&#xa0;:</translation>
    </message>
    <message>
        <source>The shot is &amp;at:</source>
        <translation>&amp;Position du tir&#xa0;:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>share</comment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Carry &amp;out</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Distance (m)</translation>
    </message>
    <message>
        <source>Time, ms</source>
        <translation>Temps, ms</translation>
    </message>
    <message>
        <source>There are no times to draw.</source>
        <translation>Il n&apos;y a pas de temps à tracer.</translation>
    </message>
    <message>
        <source>Nothing is doubtful.</source>
        <translation>Rien n&apos;est douteux.</translation>
    </message>
    <message>
        <source>Nothing was found so far.</source>
        <translation>Rien n&apos;a été trouvé jusqu&apos;ici.</translation>
    </message>
    <message>
        <source>Carried out when it is ticked; the space bar does it, too</source>
        <translation>Appliquée si la case est cochée&#xa0;; la barre d&apos;espace la coche aussi</translation>
    </message>
    <message>
        <source>all</source>
        <comment>shots</comment>
        <translation>tous</translation>
    </message>
    <message>
        <source>all</source>
        <comment>traces</comment>
        <translation>toutes</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesurés</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attendus</translation>
    </message>
    <message>
        <source>The check was stopped: not all shots were looked at.</source>
        <translation>La vérification a été interrompue&#xa0;: tous les tirs n&apos;ont pas été examinés.</translation>
    </message>
    <message>
        <source>Findings: %1, with a proposal: %2, ticked to be carried out: %3. What was recorded is kept, and Undo takes everything back.</source>
        <translation>Anomalies&#xa0;: %1, avec une proposition&#xa0;: %2, cochées pour être appliquées&#xa0;: %3. Ce qui a été enregistré est conservé, et Défaire annule tout.</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorField</name>
    <message>
        <source>Choose another colour</source>
        <translation>Choisir une autre couleur</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Couleur %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorPaletteWidget</name>
    <message>
        <source>Handles of the gradient</source>
        <translation>Curseurs du dégradé</translation>
    </message>
    <message>
        <source>Drag a handle; double-click it for its colour.
Keys: Left and Right move the selected handle (with Ctrl by one), Up and Down select another, Space asks for its colour, Insert adds and Delete removes one.</source>
        <translation>Faites glisser un curseur&#xa0;; double-cliquez dessus pour choisir sa couleur.
Touches&#xa0;: Gauche et Droite déplacent le curseur sélectionné (d&apos;une unité avec Ctrl), Haut et Bas en sélectionnent un autre, Espace demande sa couleur, Inser en ajoute un et Suppr le retire.</translation>
    </message>
    <message>
        <source>Number of the handle that the value, the colour and Delete are for</source>
        <translation>Numéro du curseur auquel se rapportent la valeur, la couleur et la suppression</translation>
    </message>
    <message>
        <source>Where on the scale the selected handle stands</source>
        <translation>Position du curseur sélectionné sur l&apos;échelle</translation>
    </message>
    <message>
        <source>Value shown in the first colour, and below it</source>
        <translation>Valeur affichée dans la première couleur, comme celles qui sont inférieures</translation>
    </message>
    <message>
        <source>Value shown in the last colour, and above it</source>
        <translation>Valeur affichée dans la dernière couleur, comme celles qui sont supérieures</translation>
    </message>
    <message>
        <source>Add Slider</source>
        <translation>Ajouter un curseur</translation>
    </message>
    <message>
        <source>Add a handle between the selected one and the next, in the colour of that place</source>
        <translation>Ajouter un curseur entre le curseur sélectionné et le suivant, de la couleur de cet endroit</translation>
    </message>
    <message>
        <source>Set Selected Slider Color</source>
        <translation>Couleur du curseur sélectionné</translation>
    </message>
    <message>
        <source>Choose the handle&apos;s colour</source>
        <translation>Choisir la couleur du curseur</translation>
    </message>
    <message>
        <source>Delete Selected Slider</source>
        <translation>Supprimer le curseur sélectionné</translation>
    </message>
    <message>
        <source>Remove the selected handle; the first and the last stay</source>
        <translation>Retirer le curseur sélectionné&#xa0;; le premier et le dernier restent</translation>
    </message>
    <message>
        <source>Selected Handle</source>
        <translation>Curseur sélectionné</translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Valeur&#xa0;: </translation>
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
        <translation>Les couleurs d&apos;une palette prédéfinie ne changent pas&#xa0;; «&#xa0;Modifier la palette&#xa0;» en crée une copie.</translation>
    </message>
    <message>
        <source>Cannot move handle at mimimum value.</source>
        <translation>Le curseur de la valeur minimale ne peut pas être déplacé.</translation>
    </message>
    <message>
        <source>Cannot move handle at maximum value.</source>
        <translation>Le curseur de la valeur maximale ne peut pas être déplacé.</translation>
    </message>
    <message>
        <source>There is no room for another handle here.</source>
        <translation>Il n&apos;y a pas de place ici pour un autre curseur.</translation>
    </message>
    <message>
        <source>The first and the last handle stay.</source>
        <translation>Le premier et le dernier curseur restent.</translation>
    </message>
    <message>
        <source>Colour of the selected handle</source>
        <translation>Couleur du curseur sélectionné</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> sur %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandReasons</name>
    <message>
        <source>There are no shots yet.</source>
        <translation>Il n&apos;y a pas encore de tirs.</translation>
    </message>
    <message>
        <source>There are no recordings yet.</source>
        <translation>Il n&apos;y a pas encore d&apos;enregistrements.</translation>
    </message>
    <message>
        <source>No shot is in view.</source>
        <translation>Aucun tir n&apos;est affiché.</translation>
    </message>
    <message>
        <source>No shot with traces is in view.</source>
        <translation>Aucun tir avec traces n&apos;est affiché.</translation>
    </message>
    <message>
        <source>Nothing is mended.</source>
        <translation>Rien n&apos;est corrigé.</translation>
    </message>
    <message>
        <source>The shot in view has no filtered copy.</source>
        <translation>Le tir affiché n&apos;a pas de copie filtrée.</translation>
    </message>
    <message>
        <source>No recording begins before its shot.</source>
        <translation>Aucun enregistrement ne commence avant son tir.</translation>
    </message>
    <message>
        <source>The selected traces have no picks.</source>
        <translation>Les traces sélectionnées n&apos;ont pas de pointés.</translation>
    </message>
    <message>
        <source>No pick of the selected traces waits for confirmation.</source>
        <translation>Aucun pointé des traces sélectionnées n&apos;attend de confirmation.</translation>
    </message>
    <message>
        <source>There are no shots yet, or no picks are shown.</source>
        <translation>Il n&apos;y a pas encore de tirs, ou aucun pointé n&apos;est affiché.</translation>
    </message>
    <message>
        <source>There is no earlier view.</source>
        <translation>Il n&apos;y a pas de vue précédente.</translation>
    </message>
    <message>
        <source>There is no later view.</source>
        <translation>Il n&apos;y a pas de vue suivante.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n&apos;y a rien à défaire.</translation>
    </message>
    <message>
        <source>There is nothing to do again.</source>
        <translation>Il n&apos;y a rien à refaire.</translation>
    </message>
    <message>
        <source>There are no geophones and no shots yet.</source>
        <translation>Il n&apos;y a pas encore de géophones ni de tirs.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>Il n&apos;y a rien à enregistrer.</translation>
    </message>
    <message>
        <source>There is no grid yet.</source>
        <translation>Il n&apos;y a pas encore de grille.</translation>
    </message>
    <message>
        <source>There is no inversion yet.</source>
        <translation>Il n&apos;y a pas encore d&apos;inversion.</translation>
    </message>
    <message>
        <source>There is no layered profile yet.</source>
        <translation>Il n&apos;y a pas encore de profil en couches.</translation>
    </message>
    <message>
        <source>Nothing is known of the ground under the grid.</source>
        <translation>On ne sait rien du terrain sous la grille.</translation>
    </message>
    <message>
        <source>Nothing is drawn on the section yet.</source>
        <translation>Rien n&apos;est encore dessiné sur la coupe.</translation>
    </message>
    <message>
        <source>There is no section yet.</source>
        <translation>Il n&apos;y a pas encore de coupe.</translation>
    </message>
    <message>
        <source>There is no line of geophones yet.</source>
        <translation>Il n&apos;y a pas encore de ligne de géophones.</translation>
    </message>
    <message>
        <source>There is no grid under a line of geophones yet.</source>
        <translation>Il n&apos;y a pas encore de grille sous une ligne de géophones.</translation>
    </message>
    <message>
        <source>There is nothing to make pictures of yet.</source>
        <translation>Il n&apos;y a encore rien à mettre en images.</translation>
    </message>
    <message>
        <source>How certain the section is has not been computed.</source>
        <translation>La certitude de la coupe n&apos;a pas été calculée.</translation>
    </message>
    <message>
        <source>It cannot work yet.</source>
        <translation>La commande n&apos;est pas encore possible.</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandSearchDialog</name>
    <message>
        <source>Find Command</source>
        <translation>Chercher une commande</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>Mots de la commande</translation>
    </message>
    <message>
        <source>Type words of a command</source>
        <translation>Saisissez des mots d&apos;une commande</translation>
    </message>
    <message>
        <source>Commands found</source>
        <translation>Commandes trouvées</translation>
    </message>
    <message>
        <source>No command has these words.</source>
        <translation>Aucune commande ne contient ces mots.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>why a command cannot work, its menu</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>pas maintenant&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareLayersDialog</name>
    <message>
        <source>Compare layers with the section</source>
        <translation>Comparer les couches à la coupe</translation>
    </message>
    <message>
        <source>&amp;Refractor:</source>
        <translation>&amp;Réfracteur&#xa0;:</translation>
    </message>
    <message>
        <source>The layer that begins at the refractor</source>
        <translation>La couche qui commence au réfracteur</translation>
    </message>
    <message>
        <source>In the &amp;section:</source>
        <translation>Dans la &amp;coupe&#xa0;:</translation>
    </message>
    <message>
        <source>What stands for the refractor in the section: the shallowest place where a velocity is reached, or where the logarithm of velocity grows most with depth. Of two refractors the steepest gradient is looked for on their own sides of the middle between both.</source>
        <translation>Ce qui représente le réfracteur dans la coupe&#xa0;: l&apos;endroit le moins profond où une vitesse est atteinte, ou celui où le logarithme de la vitesse croît le plus avec la profondeur. Pour deux réfracteurs, le plus fort gradient de chacun est cherché de son côté du milieu entre les deux.</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Steepest gradient</source>
        <translation>Plus fort gradient</translation>
    </message>
    <message>
        <source>Velocity that stands for the refractor</source>
        <translation>Vitesse qui représente le réfracteur</translation>
    </message>
    <message>
        <source>Begins with the middle between the velocities of the layers above and below</source>
        <translation>Au départ, le milieu entre les vitesses des couches au-dessus et au-dessous</translation>
    </message>
    <message>
        <source> m/s</source>
        <translation> m/s</translation>
    </message>
    <message>
        <source>Depths of the refractor at the geophones</source>
        <translation>Profondeurs du réfracteur aux géophones</translation>
    </message>
    <message>
        <source>Depths below the surface; a difference is section less layers</source>
        <translation>Profondeurs sous la surface&#xa0;; une différence est coupe moins couches</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Distance (m)</translation>
    </message>
    <message>
        <source>Layers (m)</source>
        <translation>Couches (m)</translation>
    </message>
    <message>
        <source>Section (m)</source>
        <translation>Coupe (m)</translation>
    </message>
    <message>
        <source>Difference (m)</source>
        <translation>Différence (m)</translation>
    </message>
    <message>
        <source>Save section and lines as PNG, SVG or PDF</source>
        <translation>Enregistrer la coupe et les lignes en PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>Enregistrer l&apos;&amp;image ...</translation>
    </message>
    <message>
        <source>Save the depths at the geophones as CSV, in metres</source>
        <translation>Enregistrer les profondeurs aux géophones en CSV, en mètres</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Enregistrer le &amp;tableau ...</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Couche %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>No geophone has both depths. Another velocity may be reached below the line.</source>
        <translation>Aucun géophone n&apos;a les deux profondeurs. Une autre vitesse est peut-être atteinte sous la ligne.</translation>
    </message>
    <message>
        <source>Section less layers: %1 on average, RMS %2, at %3 of %4 geophones.</source>
        <translation>Coupe moins couches&#xa0;: %1 en moyenne, RMS %2, à %3 géophones sur %4.</translation>
    </message>
    <message>
        <source>The others lack a depth.</source>
        <translation>Aux autres, il manque une profondeur.</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareRunsDialog</name>
    <message>
        <source>Compare inversion runs</source>
        <translation>Comparer des calculs d&apos;inversion</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>À &amp;gauche&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>À &amp;droite&#xa0;:</translation>
    </message>
    <message>
        <source>Save both sections and their difference as PNG, SVG or PDF</source>
        <translation>Enregistrer les deux coupes et leur différence en PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>&amp;Enregistrer l&apos;image ...</translation>
    </message>
    <message>
        <source>%1 against %2</source>
        <comment>right run, left run</comment>
        <translation>%1 par rapport à %2</translation>
    </message>
    <message>
        <source>Chi-square %1</source>
        <translation>Khi-deux %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms</source>
        <translation>Écart quadratique moyen %1 ms</translation>
    </message>
    <message>
        <source>their computed times differ by %1 ms RMS</source>
        <translation>leurs temps calculés diffèrent de %1 ms RMS</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>run, remarks</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>by errors of %1</source>
        <translation>avec des erreurs de %1</translation>
    </message>
    <message>
        <source>by other errors, so these do not compare: %1</source>
        <translation>avec des erreurs différentes, donc non comparables&#xa0;: %1</translation>
    </message>
    <message>
        <source>of all picks as they are %1 ms</source>
        <translation>de tous les pointés tels quels %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::DepthProfileDialog</name>
    <message>
        <source>Depth profile</source>
        <translation>Profil de profondeur</translation>
    </message>
    <message>
        <source>&amp;Distance:</source>
        <translation>&amp;Distance&#xa0;:</translation>
    </message>
    <message>
        <source>Where along the line the profile stands</source>
        <translation>Où se trouve le profil le long de la ligne</translation>
    </message>
    <message>
        <source>Show the ground below the mouse as it moves over the section</source>
        <translation>Montrer le terrain sous la souris lorsqu&apos;elle se déplace sur la coupe</translation>
    </message>
    <message>
        <source>&amp;Follow the pointer</source>
        <translation>&amp;Suivre le pointeur</translation>
    </message>
    <message>
        <source>Save the profile as PNG, SVG or PDF</source>
        <translation>Enregistrer le profil en PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>&amp;Enregistrer l&apos;image ...</translation>
    </message>
    <message>
        <source>Velocity, gradient and certainty against depth</source>
        <translation>Vitesse, gradient et certitude en fonction de la profondeur</translation>
    </message>
</context>
<context>
    <name>talvesk::DialogSetGeometry</name>
    <message>
        <source>Set survey geometry - Dialog</source>
        <translation>Géométrie du levé</translation>
    </message>
    <message>
        <source>This survey has no shots yet. Open shot files (Ctrl+O) or import travel times first, or add S-wave pairs on the page Shots.</source>
        <translation>Ce levé ne contient encore aucun tir. Ouvrez d&apos;abord des fichiers de tirs (Ctrl+O) ou importez des temps de parcours, ou bien ajoutez des paires d&apos;ondes S dans la page Tirs.</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Géophones</translation>
    </message>
    <message>
        <source>&amp;String:</source>
        <translation>&amp;Dispositif&#xa0;:</translation>
    </message>
    <message>
        <source>The geophone string in the table; its geophones are in the order of the channels</source>
        <translation>Le dispositif de géophones du tableau&#xa0;; ses géophones sont dans l&apos;ordre des canaux</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Add a string without geophones</source>
        <translation>Ajouter un dispositif sans géophones</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Remove the string in the table</source>
        <translation>Supprimer le dispositif du tableau</translation>
    </message>
    <message>
        <source>&amp;Copy from</source>
        <translation>&amp;Copier depuis</translation>
    </message>
    <message>
        <source>Replace the geophones of this string by those of another one</source>
        <translation>Remplacer les géophones de ce dispositif par ceux d&apos;un autre</translation>
    </message>
    <message>
        <source>&amp;First (m):</source>
        <translation>&amp;Premier (m)&#xa0;:</translation>
    </message>
    <message>
        <source>Distance of the first geophone along the line</source>
        <translation>Distance du premier géophone le long de la ligne</translation>
    </message>
    <message>
        <source>S&amp;pacing (m):</source>
        <translation>&amp;Espacement (m)&#xa0;:</translation>
    </message>
    <message>
        <source>Distance from one geophone to the next; negative where the channels run backwards</source>
        <translation>Distance d&apos;un géophone au suivant&#xa0;; négative si les canaux vont à rebours</translation>
    </message>
    <message>
        <source>C&amp;ount:</source>
        <translation>&amp;Nombre&#xa0;:</translation>
    </message>
    <message>
        <source>How many geophones the string gets, as a rule the channels of a shot</source>
        <translation>Nombre de géophones du dispositif, en général le nombre de canaux d&apos;un tir</translation>
    </message>
    <message>
        <source>A&amp;utofill</source>
        <translation>Remplissage a&amp;uto</translation>
    </message>
    <message>
        <source>Give the string so many geophones, evenly spaced; elevations that are there stay</source>
        <translation>Donner au dispositif ce nombre de géophones, régulièrement espacés&#xa0;; les altitudes déjà présentes restent</translation>
    </message>
    <message>
        <source>Geophones of the string</source>
        <translation>Géophones du dispositif</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down, Insert adds a row. Elevations in italics were not typed and can be interpolated.</source>
        <translation>Saisissez les valeurs ou collez-les depuis un tableur. Entrée descend, Suppr vide les cellules, Ctrl+D recopie vers le bas, Inser ajoute une ligne. Les altitudes en italique n&apos;ont pas été saisies et peuvent être interpolées.</translation>
    </message>
    <message>
        <source>&amp;Interpolate elevations</source>
        <translation>&amp;Interpoler les altitudes</translation>
    </message>
    <message>
        <source>Elevations that were not typed follow a line from typed one to typed one; empty those that shall be interpolated</source>
        <translation>Les altitudes non saisies suivent une droite d&apos;une altitude saisie à l&apos;autre&#xa0;; videz celles à interpoler</translation>
    </message>
    <message>
        <source>&amp;Load Geometry</source>
        <translation>Char&amp;ger la géométrie</translation>
    </message>
    <message>
        <source>Read x and elevation of the geophones of this string from a text file, in metres</source>
        <translation>Lire x et l&apos;altitude des géophones de ce dispositif dans un fichier texte, en mètres</translation>
    </message>
    <message>
        <source>Sa&amp;ve Geometry</source>
        <translation>Enregist&amp;rer la géométrie</translation>
    </message>
    <message>
        <source>Write x and elevation of the geophones of this string to a text file, in metres</source>
        <translation>Écrire x et l&apos;altitude des géophones de ce dispositif dans un fichier texte, en mètres</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down.</source>
        <translation>Saisissez les valeurs ou collez-les depuis un tableur. Entrée descend, Suppr vide les cellules, Ctrl+D recopie vers le bas.</translation>
    </message>
    <message>
        <source>Shot in the table</source>
        <translation>Tir du tableau</translation>
    </message>
    <message>
        <source>Elevations of shots that were not typed are those of the line between the geophones</source>
        <translation>Les altitudes de tirs non saisies sont celles de la ligne entre les géophones</translation>
    </message>
    <message>
        <source>S-&amp;wave files ...</source>
        <translation>&amp;Fichiers d&apos;ondes S ...</translation>
    </message>
    <message>
        <source>Choose the DX and the SX file that the selected shot is made of</source>
        <translation>Choisir le fichier DX et le fichier SX dont est formé le tir sélectionné</translation>
    </message>
    <message>
        <source>Add S-wave &amp;pairs ...</source>
        <translation>Ajouter des paires d&apos;&amp;ondes S ...</translation>
    </message>
    <message>
        <source>Choose DX files and as many SX files; each pair becomes a shot whose traces are DX minus SX</source>
        <translation>Choisir des fichiers DX et autant de fichiers SX&#xa0;; chaque paire devient un tir dont les traces sont DX moins SX</translation>
    </message>
    <message>
        <source>&amp;Load Shots Geometry</source>
        <translation>Char&amp;ger la géométrie des tirs</translation>
    </message>
    <message>
        <source>Read x and elevation of all shots from a text file, in metres</source>
        <translation>Lire x et l&apos;altitude de tous les tirs dans un fichier texte, en mètres</translation>
    </message>
    <message>
        <source>Sa&amp;ve Shots Geometry</source>
        <translation>Enregist&amp;rer la géométrie des tirs</translation>
    </message>
    <message>
        <source>Write x and elevation of all shots to a text file, in metres</source>
        <translation>Écrire x et l&apos;altitude de tous les tirs dans un fichier texte, en mètres</translation>
    </message>
    <message>
        <source>&amp;To be looked at:</source>
        <translation>À &amp;vérifier&#xa0;:</translation>
    </message>
    <message>
        <source>A click shows the geophones or shots that are meant</source>
        <translation>Un clic montre les géophones ou les tirs concernés</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>Take the last step back (Ctrl+Z)</source>
        <translation>Défaire la dernière modification (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refaire</translation>
    </message>
    <message>
        <source>Do the step again (Ctrl+Shift+Z)</source>
        <translation>Refaire la modification (Ctrl+Maj+Z)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n geophone(s)</source>
        <translation>
            <numerusform>%1&#xa0;: %n géophone</numerusform>
            <numerusform>%1&#xa0;: %n géophones</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length in %2.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une longueur en %2.</translation>
    </message>
    <message>
        <source>They have no geophones then, until another string is added.</source>
        <translation>Ils n&apos;auront alors plus de géophones, jusqu&apos;à l&apos;ajout d&apos;un autre dispositif.</translation>
    </message>
    <message>
        <source>They will use string %1, as it is numbered then.</source>
        <translation>Ils utiliseront le dispositif %1, selon la nouvelle numérotation.</translation>
    </message>
    <message numerus="yes">
        <source>String %1 is used by shot(s) %2. Remove it?</source>
        <translation>
            <numerusform>Le dispositif %1 est utilisé par le tir %2. Le supprimer&#xa0;?</numerusform>
            <numerusform>Le dispositif %1 est utilisé par les tirs %2. Le supprimer&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>All elevations were typed. Empty those that shall be interpolated.</source>
        <translation>Toutes les altitudes ont été saisies. Videz celles à interpoler.</translation>
    </message>
    <message>
        <source>Type the elevation of one geophone at least.</source>
        <translation>Saisissez l&apos;altitude d&apos;au moins un géophone.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) interpolated.</source>
        <translation>
            <numerusform>%n altitude interpolée.</numerusform>
            <numerusform>%n altitudes interpolées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the picks of shot(s) %1</source>
        <translation>
            <numerusform>les pointés du tir %1</numerusform>
            <numerusform>les pointés des tirs %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>The geometry is not complete.</source>
        <translation>La géométrie n&apos;est pas complète.</translation>
    </message>
    <message>
        <source>The geometry has been edited.</source>
        <translation>La géométrie a été modifiée.</translation>
    </message>
    <message>
        <source>Do you want to leave it as it was before?</source>
        <translation>Voulez-vous la laisser telle qu&apos;elle était&#xa0;?</translation>
    </message>
    <message>
        <source>Open Geometry</source>
        <translation>Ouvrir une géométrie</translation>
    </message>
    <message>
        <source>Save Geometry</source>
        <translation>Enregistrer la géométrie</translation>
    </message>
    <message>
        <source>%1 exists.</source>
        <translation>%1 existe déjà.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Geophones Geometry (*csv)</source>
        <translation>Géométrie des géophones (*csv)</translation>
    </message>
    <message>
        <source>Error Message</source>
        <translation>Message d&apos;erreur</translation>
    </message>
    <message>
        <source>Invalid geometry file.</source>
        <translation>Fichier de géométrie non valide.</translation>
    </message>
    <message>
        <source>Geophones saved in %1</source>
        <translation>Géophones enregistrés dans %1</translation>
    </message>
    <message>
        <source>CSV format (*.csv)</source>
        <translation>Format CSV (*.csv)</translation>
    </message>
    <message>
        <source>Invalid geometry file. </source>
        <translation>Fichier de géométrie non valide. </translation>
    </message>
    <message>
        <source>Geophones loaded from %1</source>
        <translation>Géophones chargés depuis %1</translation>
    </message>
    <message>
        <source>Invalid shot file. </source>
        <translation>Fichier de tirs non valide. </translation>
    </message>
    <message>
        <source>Shots saved in %1</source>
        <translation>Tirs enregistrés dans %1</translation>
    </message>
    <message>
        <source>Shots loaded from %1</source>
        <translation>Tirs chargés depuis %1</translation>
    </message>
    <message>
        <source>Open DX File of Shot %1</source>
        <translation>Ouvrir le fichier DX du tir %1</translation>
    </message>
    <message>
        <source>Open SX File of Shot %1</source>
        <translation>Ouvrir le fichier SX du tir %1</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Une erreur s&apos;est produite</translation>
    </message>
    <message>
        <source>The files are not taken as an S-wave pair.</source>
        <translation>Les fichiers ne sont pas acceptés comme paire d&apos;ondes S.</translation>
    </message>
    <message>
        <source>Open DX Files</source>
        <translation>Ouvrir les fichiers DX</translation>
    </message>
    <message>
        <source>Open SX Files</source>
        <translation>Ouvrir les fichiers SX</translation>
    </message>
    <message>
        <source>There must be as many SX files as DX files.</source>
        <translation>Il faut autant de fichiers SX que de fichiers DX.</translation>
    </message>
    <message>
        <source>%1 DX files and %2 SX files were chosen.</source>
        <translation>%1 fichiers DX et %2 fichiers SX ont été choisis.</translation>
    </message>
    <message>
        <source>No shot was added: the files are not taken as S-wave pairs.</source>
        <translation>Aucun tir n&apos;a été ajouté&#xa0;: les fichiers ne sont pas acceptés comme paires d&apos;ondes S.</translation>
    </message>
    <message numerus="yes">
        <source>%n S-wave shot(s) added.</source>
        <translation>
            <numerusform>%n tir d&apos;ondes S ajouté.</numerusform>
            <numerusform>%n tirs d&apos;ondes S ajoutés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Read with this separator the file has %1 lines of numbers; %2 are needed.</source>
        <translation>Lu avec ce séparateur, le fichier a %1 lignes de nombres&#xa0;; il en faut %2.</translation>
    </message>
    <message>
        <source>Its numbers were cut at their decimal commas: they need points.</source>
        <translation>Ses nombres ont été coupés à la virgule : il leur faut le point décimal.</translation>
    </message>
    <message>
        <source>Elevations from table</source>
        <translation>Altitudes depuis un tableau</translation>
    </message>
    <message>
        <source>Give all geophones and shots the elevations of a table of distances and elevations, in metres</source>
        <translation>Donner à tous les géophones et à tous les tirs les altitudes d&apos;un tableau de distances et d&apos;altitudes, en mètres</translation>
    </message>
    <message>
        <source>&amp;Straight from point to point ...</source>
        <translation>&amp;Droite d&apos;un point à l&apos;autre ...</translation>
    </message>
    <message>
        <source>Along a s&amp;mooth curve ...</source>
        <translation>Selon une &amp;courbe lisse ...</translation>
    </message>
    <message>
        <source>It was read by the names of its columns.</source>
        <translation>Il a été lu d&apos;après les noms de ses colonnes.</translation>
    </message>
    <message>
        <source>Open Elevations</source>
        <translation>Ouvrir des altitudes</translation>
    </message>
    <message>
        <source>Tables of distances and elevations (*.csv *.txt *.dat *.xyz *.tsv);;All Files (*)</source>
        <translation>Tableaux de distances et d&apos;altitudes (*.csv *.txt *.dat *.xyz *.tsv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The elevations have not been taken.</source>
        <translation>Les altitudes n&apos;ont pas été reprises.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) taken from the table.</source>
        <translation>
            <numerusform>%n altitude reprise du tableau.</numerusform>
            <numerusform>%n altitudes reprises du tableau.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) lie beyond its ends, %1 to %2, and got the elevation there.</source>
        <translation>
            <numerusform>%n position se trouve au-delà de ses extrémités, %1 à %2, et a reçu l&apos;altitude de l&apos;extrémité.</numerusform>
            <numerusform>%n positions se trouvent au-delà de ses extrémités, %1 à %2, et ont reçu l&apos;altitude de l&apos;extrémité.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::DrawingDialog</name>
    <message>
        <source>Lines to be exported</source>
        <translation>Lignes à exporter</translation>
    </message>
    <message>
        <source>&amp;Isolines of velocity:</source>
        <translation>&amp;Isolignes de vitesse&#xa0;:</translation>
    </message>
    <message>
        <source>Velocities with blanks between them; each becomes lines through the section</source>
        <translation>Vitesses séparées par des espaces&#xa0;; chacune devient des lignes à travers la coupe</translation>
    </message>
    <message>
        <source>&amp;Distance along the line and elevation</source>
        <translation>&amp;Distance le long de la ligne et altitude</translation>
    </message>
    <message>
        <source>A flat drawing: x is the distance along the line, y the elevation, in metres</source>
        <translation>Un dessin plan&#xa0;: x est la distance le long de la ligne, y l&apos;altitude, en mètres</translation>
    </message>
    <message>
        <source>&amp;Easting, northing and elevation on the map</source>
        <translation>&amp;Est, nord et altitude sur la carte</translation>
    </message>
    <message>
        <source>Lines in space by the geographic coordinates of the line, in metres</source>
        <translation>Lignes dans l&apos;espace selon les coordonnées géographiques de la ligne, en mètres</translation>
    </message>
    <message>
        <source>There is no section yet, and so there are no isolines.</source>
        <translation>Il n&apos;y a pas encore de coupe, donc pas d&apos;isolignes.</translation>
    </message>
    <message>
        <source>The line has no place on the map. Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>La ligne n&apos;a pas de place sur la carte. Indiquez-la avec Projet &gt; Définir les coordonnées géographiques ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a velocity.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une vitesse.</translation>
    </message>
    <message>
        <source>A section has %1 isovalues at most.</source>
        <translation>Une coupe a %1 isovaleurs au plus.</translation>
    </message>
</context>
<context>
    <name>talvesk::ElasticDialog</name>
    <message>
        <source>P and S together</source>
        <translation>P et S ensemble</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Ondes&#xa0;:</translation>
    </message>
    <message>
        <source>Which of the two projects is of P waves and which of S waves. The program guesses it from the recordings, else from the velocities.</source>
        <translation>Lequel des deux projets est d&apos;ondes P et lequel d&apos;ondes S. Le programme le devine d&apos;après les enregistrements, sinon d&apos;après les vitesses.</translation>
    </message>
    <message>
        <source>Take another project for the other wave</source>
        <translation>Prendre un autre projet pour l&apos;autre onde</translation>
    </message>
    <message>
        <source>&amp;Other project ...</source>
        <translation>&amp;Autre projet ...</translation>
    </message>
    <message>
        <source>Shi&amp;ft S by:</source>
        <translation>&amp;Décaler S de&#xa0;:</translation>
    </message>
    <message>
        <source>Length added to distances of S</source>
        <translation>Longueur ajoutée aux distances de S</translation>
    </message>
    <message>
        <source>What is added to the distances of S, whose line begins elsewhere, to have those of P</source>
        <translation>Ce qui s&apos;ajoute aux distances de S, dont la ligne commence ailleurs, pour obtenir celles de P</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>&amp;Depths may differ by:</source>
        <translation>Écart de &amp;profondeur admis&#xa0;:</translation>
    </message>
    <message>
        <source>Percent that depths may differ by</source>
        <translation>Pour cent dont les profondeurs peuvent différer</translation>
    </message>
    <message>
        <source>Difference between the depths of a layer by P and by S, as a share of their mean, beyond which both may be different ground: that is marked and said, and nothing is left out</source>
        <translation>Différence entre les profondeurs d&apos;une couche selon P et selon S, en part de leur moyenne, au-delà de laquelle il peut s&apos;agir de terrains différents&#xa0;: c&apos;est marqué et signalé, et rien n&apos;est écarté</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>D&amp;ensity:</source>
        <translation>Masse &amp;volumique&#xa0;:</translation>
    </message>
    <message>
        <source>A number for each layer, or 310 Vp^0.25 in kg/m3, which Gardner and others (1974) found for rocks faster than 1500 m/s</source>
        <translation>Un nombre par couche, ou 310 Vp^0.25 en kg/m3, relation que Gardner et al. (1974) ont établie pour des roches plus rapides que 1500 m/s</translation>
    </message>
    <message>
        <source>Of each layer</source>
        <translation>De chaque couche</translation>
    </message>
    <message>
        <source>From Vp, by Gardner&apos;s rule</source>
        <translation>D&apos;après Vp, par la relation de Gardner</translation>
    </message>
    <message>
        <source>1:</source>
        <translation>1&#xa0;:</translation>
    </message>
    <message>
        <source>Density of layer 1</source>
        <translation>Masse volumique de la couche 1</translation>
    </message>
    <message>
        <source> kg/m3</source>
        <translation> kg/m3</translation>
    </message>
    <message>
        <source>2:</source>
        <translation>2&#xa0;:</translation>
    </message>
    <message>
        <source>Density of layer 2</source>
        <translation>Masse volumique de la couche 2</translation>
    </message>
    <message>
        <source>3:</source>
        <translation>3&#xa0;:</translation>
    </message>
    <message>
        <source>Density of layer 3</source>
        <translation>Masse volumique de la couche 3</translation>
    </message>
    <message>
        <source>Standard deviations of all that follows from the velocities, by 100 interpretations of picks that are moved by their errors</source>
        <translation>Écarts types de tout ce qui découle des vitesses, d&apos;après 100 interprétations de pointés déplacés selon leurs erreurs</translation>
    </message>
    <message>
        <source>Errors from the pic&amp;ks</source>
        <translation>&amp;Erreurs d&apos;après les pointés</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>&amp;Couche&#xa0;:</translation>
    </message>
    <message>
        <source>Which layers picture and table show</source>
        <translation>Les couches que montrent l&apos;image et le tableau</translation>
    </message>
    <message>
        <source>P and S along the line</source>
        <translation>P et S le long de la ligne</translation>
    </message>
    <message>
        <source>Depths below the surface; moduli of small strains: shear G0, Young&apos;s E0, bulk K, constrained M</source>
        <translation>Profondeurs sous la surface&#xa0;; modules aux petites déformations&#xa0;: cisaillement G0, Young E0, incompressibilité K, œdométrique M</translation>
    </message>
    <message>
        <source>Copy the table as it stands here, for a spreadsheet</source>
        <translation>Copier le tableau tel qu&apos;il est affiché, pour un tableur</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>Copie&amp;r le tableau</translation>
    </message>
    <message>
        <source>Save the table as CSV, in metres, m/s, kg/m3 and MPa</source>
        <translation>Enregistrer le tableau en CSV, en mètres, m/s, kg/m3 et MPa</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Enregistrer le &amp;tableau ...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Enregistrer les courbes en PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>Enregistrer l&apos;&amp;image ...</translation>
    </message>
    <message>
        <source>Interpreting moved picks ...</source>
        <translation>Interprétation des pointés déplacés ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>P: %1, S: %2</source>
        <translation>P&#xa0;: %1, S&#xa0;: %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Couche %1</translation>
    </message>
    <message>
        <source>Picks of %1 have changed since its layers were built.</source>
        <translation>Les pointés de %1 ont changé depuis la construction de ses couches.</translation>
    </message>
    <message>
        <source>It has no errors.</source>
        <translation>Ce projet est donc sans erreurs.</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Distance [m]</translation>
    </message>
    <message>
        <source>Depth by P [m]</source>
        <translation>Profondeur selon P [m]</translation>
    </message>
    <message>
        <source>Depth by S [m]</source>
        <translation>Profondeur selon S [m]</translation>
    </message>
    <message>
        <source>Depths by P and S differ: it may be different ground.</source>
        <translation>Les profondeurs selon P et S diffèrent&#xa0;: ce sont peut-être des terrains différents.</translation>
    </message>
    <message>
        <source>Preview and print the curves at a chosen scale</source>
        <translation>Voir l&apos;aperçu des courbes et les imprimer à l&apos;échelle choisie</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Imprimer ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ErrorBands</name>
    <message>
        <source>&amp;Error bands</source>
        <translation>Bandes d&apos;&amp;erreur</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>How far depths and velocities scatter as picks are moved by their errors, over %1 interpretations</source>
        <translation>Dispersion des profondeurs et des vitesses lorsque les pointés sont déplacés selon leurs erreurs, sur %1 interprétations</translation>
    </message>
    <message>
        <source>No errors could be found: the profile is not that of the picks and marks. Build it again.</source>
        <translation>Aucune erreur n&apos;a pu être calculée&#xa0;: le profil n&apos;est pas celui des pointés et des attributions. Reconstruisez-le.</translation>
    </message>
    <message>
        <source>Bands: 68 of %1 interpretations of picks that were moved by their errors</source>
        <translation>Bandes&#xa0;: 68 interprétations sur %1, de pointés déplacés selon leurs erreurs</translation>
    </message>
</context>
<context>
    <name>talvesk::ExportTomoVelData</name>
    <message>
        <source>Set optional shift parameter before export</source>
        <translation>Décalage facultatif avant l&apos;exportation</translation>
    </message>
    <message>
        <source>Y coord of the line</source>
        <translation>Coordonnée Y de la ligne</translation>
    </message>
    <message>
        <source>Y coordinate of the line in metres</source>
        <translation>Coordonnée Y de la ligne en mètres</translation>
    </message>
    <message>
        <source>Written as Y of every cell</source>
        <translation>Écrite comme Y de chaque cellule</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Z offset of the line</source>
        <translation>Décalage Z de la ligne</translation>
    </message>
    <message>
        <source>Z offset of the line in metres</source>
        <translation>Décalage Z de la ligne en mètres</translation>
    </message>
    <message>
        <source>Added to the elevation of every cell</source>
        <translation>Ajouté à l&apos;altitude de chaque cellule</translation>
    </message>
    <message>
        <source>X is the distance along the line</source>
        <translation>X est la distance le long de la ligne</translation>
    </message>
    <message>
        <source>Takes the grid&apos;s offset off; X is the grid&apos;s own abscissa else</source>
        <translation>Retire le décalage de la grille&#xa0;; sinon X est l&apos;abscisse propre à la grille</translation>
    </message>
    <message>
        <source>The Y coordinate is not a number.</source>
        <translation>La coordonnée Y n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>The Z offset is not a number.</source>
        <translation>Le décalage Z n&apos;est pas un nombre.</translation>
    </message>
</context>
<context>
    <name>talvesk::FenceDialog</name>
    <message>
        <source>Fence of several lines</source>
        <translation>Panneaux de plusieurs lignes</translation>
    </message>
    <message>
        <source>&amp;Lines:</source>
        <translation>&amp;Lignes&#xa0;:</translation>
    </message>
    <message>
        <source>Stand the sections of other projects beside this one; the projects stay as they are</source>
        <translation>Placer les coupes d&apos;autres projets à côté de celle-ci&#xa0;; les projets restent inchangés</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>&amp;Ajouter des projets ...</translation>
    </message>
    <message>
        <source>Take the line that is selected out of the fence</source>
        <translation>Ôter des panneaux la ligne sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>Exagération &amp;verticale&#xa0;:</translation>
    </message>
    <message>
        <source>Save the view as a PNG picture</source>
        <translation>Enregistrer la vue en image PNG</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>&amp;Enregistrer l&apos;image ...</translation>
    </message>
    <message>
        <source>S&amp;how all</source>
        <translation>&amp;Tout afficher</translation>
    </message>
    <message>
        <source>Lines that stand in the fence: %1.</source>
        <translation>Lignes présentes dans les panneaux&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Écartées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>it has no position on the map</source>
        <translation>elle n&apos;a pas de position sur la carte</translation>
    </message>
    <message>
        <source>its position is in EPSG:%1, that of the others in EPSG:%2</source>
        <translation>sa position est en EPSG:%1, celle des autres en EPSG:%2</translation>
    </message>
    <message>
        <source>it has no geophones</source>
        <translation>elle n&apos;a pas de géophones</translation>
    </message>
    <message>
        <source>its first and last geophone are at one place of the map</source>
        <translation>ses premier et dernier géophones sont au même endroit de la carte</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line, why</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Lines of the fence</source>
        <translation>Lignes des panneaux</translation>
    </message>
    <message>
        <source>Converted: %1.</source>
        <comment>lines</comment>
        <translation>Converties&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 from EPSG:%2 to EPSG:%3</source>
        <comment>line, systems</comment>
        <translation>%1 d&apos;EPSG:%2 en EPSG:%3</translation>
    </message>
    <message>
        <source>No line stands in the fence yet.

A line needs a section and a place on the map. Give this survey its place, or add projects that have theirs.</source>
        <translation>Aucune ligne n&apos;est encore dans les panneaux.

Une ligne a besoin d&apos;une coupe et d&apos;une place sur la carte. Donnez sa place à ce levé, ou ajoutez des projets qui ont la leur.</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>line, velocities</comment>
        <translation>%1 de %2 à %3</translation>
    </message>
    <message>
        <source>Beyond the colours: %1.</source>
        <comment>lines</comment>
        <translation>Au-delà des couleurs&#xa0;: %1.</translation>
    </message>
    <message>
        <source>it stands in the fence already</source>
        <translation>elle est déjà dans les panneaux</translation>
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
        <translation>Vitesse [%1]</translation>
    </message>
    <message>
        <source>Sections at their places on the map</source>
        <translation>Coupes à leur place sur la carte</translation>
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
        <translation>Altitude [%1]</translation>
    </message>
</context>
<context>
    <name>talvesk::FigureSheetWidget</name>
    <message>
        <source>Figure</source>
        <translation>Figure</translation>
    </message>
</context>
<context>
    <name>talvesk::FigureWords</name>
    <message>
        <source>Contours</source>
        <translation>Isolignes</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Gradient vertical de vitesse</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplacien de la vitesse</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densité d&apos;information</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>1 trace</source>
        <translation>1 trace</translation>
    </message>
    <message>
        <source>%1 traces</source>
        <translation>%1 traces</translation>
    </message>
    <message>
        <source>1 pick</source>
        <translation>1 pointé</translation>
    </message>
    <message>
        <source>%1 picks</source>
        <translation>%1 pointés</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 tir</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 tirs</translation>
    </message>
    <message>
        <source>1 computed time</source>
        <translation>1 temps calculé</translation>
    </message>
    <message>
        <source>%1 computed times</source>
        <translation>%1 temps calculés</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>quantity, least and greatest value with its unit</comment>
        <translation>%1 de %2 à %3</translation>
    </message>
    <message>
        <source>Contours every %1</source>
        <translation>Isolignes tous les %1</translation>
    </message>
    <message>
        <source>1 ray</source>
        <translation>1 rai</translation>
    </message>
    <message>
        <source>%1 rays</source>
        <translation>%1 rais</translation>
    </message>
    <message>
        <source>Vertical exaggeration %1</source>
        <translation>Exagération verticale %1</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Distance [%1]</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Altitude [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Temps [ms]</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Géophones</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>First breaks</source>
        <translation>Premières arrivées</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Tir %1 sur %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tir %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>shot, place</comment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1, filtered</source>
        <comment>traces</comment>
        <translation>%1, filtrées</translation>
    </message>
    <message>
        <source>%1, some filtered</source>
        <comment>traces</comment>
        <translation>%1, certaines filtrées</translation>
    </message>
    <message>
        <source>One of every %1 is drawn</source>
        <translation>Une sur %1 est dessinée</translation>
    </message>
    <message>
        <source>%1 without samples or sample interval</source>
        <translation>%1 sans échantillons ou sans pas d&apos;échantillonnage</translation>
    </message>
    <message>
        <source>Each trace to its own maximum, gain %1</source>
        <translation>Chaque trace à son propre maximum, gain %1</translation>
    </message>
    <message>
        <source>All traces to one maximum, gain %1</source>
        <translation>Toutes les traces au même maximum, gain %1</translation>
    </message>
    <message>
        <source>no picks</source>
        <translation>aucun pointé</translation>
    </message>
    <message>
        <source>%1 outside the times shown</source>
        <comment>picks</comment>
        <translation>%1 hors des temps affichés</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rais</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Limite de couverture</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Temps de parcours</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesurés</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calculés</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Profil de réfraction</translation>
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
        <translation>Couche %1</translation>
    </message>
    <message>
        <source>Velocities of refractors: median</source>
        <translation>Vitesses des réfracteurs&#xa0;: médiane</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Itération externe</translation>
    </message>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>Écart quadratique moyen [ms]</translation>
    </message>
    <message>
        <source>Offset [%1]</source>
        <translation>Déport [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Calculés moins mesurés [ms]</translation>
    </message>
    <message>
        <source>Refractor %1</source>
        <translation>Réfracteur %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms, %2 %</source>
        <translation>Écart quadratique moyen %1 ms, %2&#xa0;%</translation>
    </message>
    <message>
        <source>last solver pass %1 %</source>
        <translation>dernière passe du solveur %1&#xa0;%</translation>
    </message>
    <message>
        <source>picks have changed since the inversion</source>
        <translation>les pointés ont changé depuis l&apos;inversion</translation>
    </message>
    <message>
        <source>Refractor %1 (picks have changed since)</source>
        <translation>Réfracteur %1 (les pointés ont changé depuis)</translation>
    </message>
    <message>
        <source>Picks have changed since this was built</source>
        <translation>Les pointés ont changé depuis la construction de ce profil</translation>
    </message>
    <message>
        <source>smoothed since the inversion</source>
        <translation>lissée depuis l&apos;inversion</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>tir désactivé</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>décalé de %1 ms</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>ordre inversé</translation>
    </message>
    <message>
        <source>stacked with %1</source>
        <comment>shots</comment>
        <translation>sommé avec %1</translation>
    </message>
    <message>
        <source>%1 killed</source>
        <comment>traces</comment>
        <translation>neutralisation de %1</translation>
    </message>
    <message>
        <source>%1 of reversed polarity</source>
        <comment>traces</comment>
        <translation>%1 à polarité inversée</translation>
    </message>
    <message>
        <source>%1 muted</source>
        <comment>traces</comment>
        <translation>%1 avec mute</translation>
    </message>
    <message>
        <source>bars of one standard deviation, dashed above %1 ms</source>
        <translation>barres d&apos;un écart type, en tirets au-delà de %1 ms</translation>
    </message>
    <message>
        <source>%1 good</source>
        <comment>picks</comment>
        <translation>bons&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 doubtful</source>
        <comment>picks</comment>
        <translation>douteux&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 of unknown error</source>
        <comment>picks</comment>
        <translation>d&apos;erreur inconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Incertitude de la vitesse</translation>
    </message>
    <message>
        <source>chi-square %1 with the time shifts of shots</source>
        <translation>khi-deux %1 avec les décalages temporels des tirs</translation>
    </message>
    <message>
        <source>chi-square %1</source>
        <translation>khi-deux %1</translation>
    </message>
    <message>
        <source>Correlation by depth</source>
        <translation>Corrélation selon la profondeur</translation>
    </message>
    <message>
        <source>Correlation of true and recovered</source>
        <translation>Corrélation entre vrai et restitué</translation>
    </message>
    <message>
        <source>-%1 % to +%1 % of the section&apos;s velocity; grey: no ray</source>
        <translation>de -%1&#xa0;% à +%1&#xa0;% de la vitesse de la coupe&#xa0;; gris&#xa0;: aucun rai</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Vrai</translation>
    </message>
    <message>
        <source>Recovered</source>
        <translation>Restitué</translation>
    </message>
    <message>
        <source>[%1]</source>
        <translation>[%1]</translation>
    </message>
    <message>
        <source>Depth of %1, 16 to 84 %</source>
        <translation>Profondeur de %1, 16 à 84&#xa0;%</translation>
    </message>
    <message>
        <source>Pale: uncertain, ± %1 to %2 % and no ray</source>
        <translation>Pâle&#xa0;: incertain, ± %1 à %2&#xa0;% et aucun rai</translation>
    </message>
    <message>
        <source>picks have changed since the certainty was found out</source>
        <translation>les pointés ont changé depuis le calcul de la certitude</translation>
    </message>
    <message>
        <source>certainty of other sections than this one: %1 % of its cells with rays lie beyond two deviations</source>
        <translation>certitude d&apos;autres coupes que celle-ci&#xa0;: %1&#xa0;% de ses cellules avec rais sortent de deux écarts types</translation>
    </message>
    <message>
        <source>±: half of the range from 16 to 84 % of %1 members</source>
        <translation>±&#xa0;: moitié de l&apos;intervalle de 16 à 84&#xa0;% de %1 membres</translation>
    </message>
    <message>
        <source>certainty of %1 members</source>
        <translation>certitude de %1 membres</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 écartés</translation>
    </message>
    <message>
        <source>Geophone at [%1]</source>
        <translation>Géophone à [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [pick errors]</source>
        <translation>Calculé moins mesuré [erreurs de pointé]</translation>
    </message>
    <message>
        <source>Shot %1, geophone %2 at %3, offset %4: measured %5 ms, computed %6 ms, residual %7 ms, error %8 ms (%9 errors)</source>
        <translation>Tir %1, géophone %2 à %3, déport %4&#xa0;: mesuré %5 ms, calculé %6 ms, résidu %7 ms, erreur %8 ms (%9 erreurs)</translation>
    </message>
    <message>
        <source>; suspect</source>
        <translation>&#xa0;; suspect</translation>
    </message>
    <message>
        <source>Geophone at [%1]; hatched: no pick, with a dot: suspect</source>
        <translation>Géophone à [%1]&#xa0;; hachuré&#xa0;: aucun pointé, avec un point&#xa0;: suspect</translation>
    </message>
    <message>
        <source>Shot, along the line</source>
        <translation>Tir, le long de la ligne</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Pointés</translation>
    </message>
    <message>
        <source>Suspect</source>
        <translation>Suspect</translation>
    </message>
    <message>
        <source>Running median</source>
        <translation>Médiane glissante</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Un écart type</translation>
    </message>
    <message>
        <source>Stands out</source>
        <translation>Sort du lot</translation>
    </message>
    <message>
        <source>Median and one standard deviation</source>
        <translation>Médiane et un écart type</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 (%2 beside the line)</source>
        <translation>%1 (%2 à côté de la ligne)</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Forages</translation>
    </message>
    <message>
        <source>Known depths</source>
        <translation>Profondeurs connues</translation>
    </message>
    <message>
        <source>Fixed bodies</source>
        <translation>Corps fixes</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Vitesse [%1]</translation>
    </message>
    <message>
        <source>Vp/Vs</source>
        <translation>Vp/Vs</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>Coefficient de Poisson</translation>
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
        <translation>Profondeurs selon P et S différentes</translation>
    </message>
    <message>
        <source>No ground: Vp/Vs below 1.41</source>
        <translation>Sol impossible&#xa0;: Vp/Vs inférieur à 1,41</translation>
    </message>
    <message>
        <source>Bars: one standard deviation, of the picks</source>
        <translation>Barres&#xa0;: un écart type, celui des pointés</translation>
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
        <translation>Masse volumique</translation>
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
        <translation>Masse volumique d&apos;après Vp, par la relation de Gardner</translation>
    </message>
    <message>
        <source>Density %1 kg/m3</source>
        <translation>Masse volumique %1 kg/m3</translation>
    </message>
    <message>
        <source>Layer %1, %2</source>
        <translation>Couche %1, %2</translation>
    </message>
    <message>
        <source>Layer %1, %2 ± %3</source>
        <translation>Couche %1, %2 ± %3</translation>
    </message>
    <message>
        <source>Dashed: not carried by picks there</source>
        <translation>Tirets&#xa0;: sans appui de pointés à cet endroit</translation>
    </message>
    <message>
        <source>Error of the picks (68 of 100)</source>
        <translation>Erreur due aux pointés (68 sur 100)</translation>
    </message>
    <message>
        <source>Depth [%1]</source>
        <translation>Profondeur [%1]</translation>
    </message>
    <message>
        <source>Depths are below the surface</source>
        <translation>Les profondeurs sont comptées sous la surface</translation>
    </message>
    <message>
        <source>dashed: not carried by picks there</source>
        <translation>tirets&#xa0;: sans appui de pointés à cet endroit</translation>
    </message>
    <message>
        <source>hollow marks: layer 3</source>
        <translation>symboles vides&#xa0;: couche 3</translation>
    </message>
    <message>
        <source>shaded: 68 of 100 results of moved picks</source>
        <translation>zones teintées&#xa0;: 68 résultats sur 100 de pointés déplacés</translation>
    </message>
    <message>
        <source>dashed: times through the layers</source>
        <translation>tirets&#xa0;: temps à travers les couches</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean, growing with depth</source>
        <translation>Couche 1, %1 en moyenne, croissant avec la profondeur</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean</source>
        <translation>Couche 1, %1 en moyenne</translation>
    </message>
    <message>
        <source>Vertical gradient [1/s]</source>
        <translation>Gradient vertical [1/s]</translation>
    </message>
    <message>
        <source>Uncertainty [%]</source>
        <translation>Incertitude [%]</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distance %1</translation>
    </message>
    <message>
        <source>no section here</source>
        <translation>pas de coupe ici</translation>
    </message>
    <message>
        <source>surface at %1</source>
        <translation>surface à %1</translation>
    </message>
    <message>
        <source>shaded: 16 to 84 %</source>
        <translation>ombré&#xa0;: 16 à 84&#xa0;%</translation>
    </message>
    <message>
        <source>%1 with a gain of their own</source>
        <comment>traces</comment>
        <translation>%1 avec gain propre</translation>
    </message>
    <message>
        <source>annotations outside the section: %1</source>
        <translation>annotations hors de la coupe&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 (not reached)</source>
        <translation>%1 (non atteinte)</translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation>Échelle %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Altitude %1</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Each pair of traces to one maximum, gain %1</source>
        <translation>Chaque paire de traces au même maximum, gain %1</translation>
    </message>
    <message>
        <source>Absolute offset [%1]</source>
        <translation>Déport absolu [%1]</translation>
    </message>
    <message>
        <source>Reduced time [ms], t - |x|/%1 %2</source>
        <translation>Temps réduit [ms], t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>gain with time t^%1</source>
        <comment>exponent</comment>
        <translation>gain selon le temps t^%1</translation>
    </message>
    <message>
        <source>offsets not known: not drawn by offset or reduced as asked</source>
        <translation>déports inconnus&#xa0;: pas de dessin par déport ni en temps réduit comme demandé</translation>
    </message>
    <message>
        <source>All traces of a shot to one maximum, gain %1</source>
        <translation>Toutes les traces d&apos;un tir au même maximum, gain %1</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <comment>what is left out of it, or mended</comment>
        <translation>Tir %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Feuille %1 sur %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>Misfit in each iteration</source>
        <translation>Écart à chaque itération</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Résidus le long des rais</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Profil de profondeur</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P et S</translation>
    </message>
    <message>
        <source>1 cm is %1 ms</source>
        <translation>1 cm = %1 ms</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Dernière passe du solveur</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Résidus par tir et géophone</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Résidus selon le déport</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Résidus des tirs et des géophones</translation>
    </message>
    <message>
        <source>Match line: sheet %1</source>
        <translation>Raccord&#xa0;: feuille %1</translation>
    </message>
</context>
<context>
    <name>talvesk::FitPanel</name>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Erreurs des pointés qui n&apos;en indiquent pas</translation>
    </message>
    <message>
        <source>Least error [ms]</source>
        <translation>Erreur minimale [ms]</translation>
    </message>
    <message>
        <source>How far off a pick is at least, one standard deviation. A small error makes the section follow every pick, and its noise; a large one lets it pass by.</source>
        <translation>L&apos;erreur d&apos;un pointé est au moins celle-ci (un écart type). Une petite erreur fait suivre à la coupe chaque pointé, et son bruit&#xa0;; une grande la laisse passer à côté.</translation>
    </message>
    <message>
        <source>Share of the time [%]</source>
        <translation>Part du temps [%]</translation>
    </message>
    <message>
        <source>The error of a late pick is this share of its time, where that is more than the least error.</source>
        <translation>L&apos;erreur d&apos;un pointé tardif est cette part de son temps, là où elle dépasse l&apos;erreur minimale.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Vitesse minimale [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this.</source>
        <translation>Aucune cellule ne devient plus lente.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Vitesse maximale [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this.</source>
        <translation>Aucune cellule ne devient plus rapide.</translation>
    </message>
    <message>
        <source>Iterations at most</source>
        <translation>Itérations au plus</translation>
    </message>
    <message>
        <source>The fit ends by itself, as a rule after 5 to 15 iterations.</source>
        <translation>L&apos;ajustement se termine de lui-même, en général après 5 à 15 itérations.</translation>
    </message>
    <message>
        <source>Picks that are far off count by how far they are off, and no more by its square: some gross errors then hardly change the section.</source>
        <translation>Les pointés très écartés comptent selon leur écart, et non plus selon son carré&#xa0;: quelques erreurs grossières ne changent alors guère la coupe.</translation>
    </message>
    <message>
        <source>Robust against gross errors of picks</source>
        <translation>Robuste aux erreurs grossières de pointé</translation>
    </message>
    <message>
        <source>Looks for few sharp steps of the velocity rather than for gentle slopes.</source>
        <translation>Cherche quelques sauts nets de vitesse plutôt que des pentes douces.</translation>
    </message>
    <message>
        <source>Blocky: sharp steps rather than slopes</source>
        <translation>Par blocs&#xa0;: sauts nets plutôt que pentes</translation>
    </message>
    <message>
        <source>Also finds by how much the record of every shot begins too early or too late, zero on the whole. The shifts are listed after the run and change nothing by themselves.</source>
        <translation>Trouve aussi de combien l&apos;enregistrement de chaque tir commence trop tôt ou trop tard, avec une moyenne nulle. Les décalages sont énumérés après le calcul et ne changent rien par eux-mêmes.</translation>
    </message>
    <message>
        <source>Find time shifts of shots</source>
        <translation>Chercher les décalages temporels des tirs</translation>
    </message>
    <message>
        <source>Trigger error [ms]</source>
        <translation>Erreur de déclenchement [ms]</translation>
    </message>
    <message>
        <source>How far the shots are thought to be off. Shifts that are large beside it are less welcome.</source>
        <translation>Décalage attendu pour les tirs. Les décalages grands devant lui sont pénalisés.</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>N&apos;utilise qu&apos;un seul processeur. Le résultat est le même jusqu&apos;au dernier chiffre&#xa0;; cela prend seulement plus de temps.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Exécuter en un seul thread</translation>
    </message>
    <message>
        <source>The section starts from this model, and departs from it no more than the picks ask for:</source>
        <translation>La coupe part de ce modèle et ne s&apos;en éloigne pas plus que les pointés ne l&apos;exigent&#xa0;:</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Khi-deux</translation>
    </message>
    <message>
        <source>Of the times through the model as it is, suspect picks included: 1 is a fit as good as the picks are.</source>
        <translation>Des temps à travers le modèle tel quel, pointés suspects compris&#xa0;: 1 est un ajustement aussi bon que les pointés.</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Distance from the shot (m)</source>
        <translation>Distance au tir (m)</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Temps (ms)</translation>
    </message>
    <message>
        <source>%1 of %2 picks state an error of their own.</source>
        <translation>%1 pointés sur %2 indiquent leur propre erreur.</translation>
    </message>
    <message>
        <source>By these errors the present section has chi-square %1, with %2 suspect picks left out.</source>
        <translation>Avec ces erreurs, la coupe actuelle a un khi-deux de %1, %2 pointés suspects étant exclus.</translation>
    </message>
    <message>
        <source>The models are being made and traced...</source>
        <translation>Construction et tracé des modèles...</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Non étayé</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Pointés</translation>
    </message>
    <message>
        <source>The section is drawn to the velocities and depths of &quot;Known ground&quot; by their errors, and fixed bodies stay as they are. How the section goes with them is told after the run; chi-square is of the picks alone.</source>
        <translation>La coupe est tirée vers les vitesses et profondeurs du «&#xa0;Terrain connu&#xa0;» selon leurs erreurs, et les corps fixes restent tels quels. L&apos;accord de la coupe avec eux est indiqué après le calcul&#xa0;; le khi-deux est celui des pointés seuls.</translation>
    </message>
    <message>
        <source>Hold to known ground</source>
        <translation>Respecter le terrain connu</translation>
    </message>
</context>
<context>
    <name>talvesk::FkView</name>
    <message>
        <source>Spectrum over wavenumber and frequency</source>
        <translation>Spectre selon le nombre d&apos;onde et la fréquence</translation>
    </message>
    <message>
        <source>No spectrum</source>
        <translation>Pas de spectre</translation>
    </message>
    <message>
        <source>Wavenumber along the line (1/%1)</source>
        <translation>Nombre d&apos;onde le long de la ligne (1/%1)</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Fréquence (Hz)</translation>
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
        <translation>Feuille de tirs</translation>
    </message>
    <message>
        <source>&amp;Rows:</source>
        <translation>&amp;Lignes&#xa0;:</translation>
    </message>
    <message>
        <source>Shots one above the other</source>
        <translation>Tirs l&apos;un au-dessus de l&apos;autre</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>Shots side by side</source>
        <translation>Tirs côte à côte</translation>
    </message>
    <message>
        <source>&amp;First shot:</source>
        <translation>&amp;Premier tir&#xa0;:</translation>
    </message>
    <message>
        <source>The shots from this one on</source>
        <translation>Les tirs à partir de celui-ci</translation>
    </message>
    <message>
        <source>&amp;Last shot:</source>
        <translation>&amp;Dernier tir&#xa0;:</translation>
    </message>
    <message>
        <source>The shots up to this one</source>
        <translation>Les tirs jusqu&apos;à celui-ci</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>Pap&amp;ier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>&amp;Temps jusqu&apos;à&#xa0;:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Où finit l&apos;axe du temps&#xa0;; automatique&#xa0;: une fois et demie le temps du dernier pointé</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Gain&#xa0;:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Amplitude de la plus grande valeur, en écartements de traces</translation>
    </message>
    <message>
        <source>Mark the first breaks</source>
        <translation>Marquer les premières arrivées</translation>
    </message>
    <message>
        <source>P&amp;icks</source>
        <translation>P&amp;ointés</translation>
    </message>
    <message>
        <source>All traces of a shot to one measure</source>
        <translation>Toutes les traces d&apos;un tir à une même mesure</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>&amp;Amplitudes réelles</translation>
    </message>
    <message>
        <source>The filtered copies of the traces that have one</source>
        <translation>Les copies filtrées des traces qui en ont une</translation>
    </message>
    <message>
        <source>Filtered c&amp;opies</source>
        <translation>Copies &amp;filtrées</translation>
    </message>
    <message>
        <source>Channel numbers in place of distances</source>
        <translation>Numéros des canaux au lieu des distances</translation>
    </message>
    <message>
        <source>C&amp;hannels below</source>
        <translation>Ca&amp;naux en bas</translation>
    </message>
    <message>
        <source>Sh&amp;eet:</source>
        <translation>F&amp;euille&#xa0;:</translation>
    </message>
    <message>
        <source>The sheet that is shown; all are saved</source>
        <translation>La feuille affichée&#xa0;; toutes sont enregistrées</translation>
    </message>
    <message>
        <source>A4 landscape</source>
        <translation>A4 paysage</translation>
    </message>
    <message>
        <source>A4 portrait</source>
        <translation>A4 portrait</translation>
    </message>
    <message>
        <source>A3 landscape</source>
        <translation>A3 paysage</translation>
    </message>
    <message>
        <source>A3 portrait</source>
        <translation>A3 portrait</translation>
    </message>
    <message>
        <source>A2 landscape</source>
        <translation>A2 paysage</translation>
    </message>
    <message>
        <source>A2 portrait</source>
        <translation>A2 portrait</translation>
    </message>
    <message>
        <source>&amp;Save sheets ...</source>
        <translation>Enregi&amp;strer les feuilles ...</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>sheets</comment>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Aperçu des feuilles</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTable</name>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1.</source>
        <translation>Rien n&apos;a été collé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows do not fit from row %2 on, of %3.</source>
        <translation>Rien n&apos;a été collé&#xa0;: %1 lignes ne tiennent pas à partir de la ligne %2, sur %3.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 columns do not fit from column &quot;%2&quot; on.</source>
        <translation>Rien n&apos;a été collé&#xa0;: %1 colonnes ne tiennent pas à partir de la colonne «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1</source>
        <translation>Rien n&apos;a été collé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTexts</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 without a position.</source>
        <translation>
            <numerusform>Dispositif %1&#xa0;: le géophone %2 est sans position.</numerusform>
            <numerusform>Dispositif %1&#xa0;: les géophones %2 sont sans position.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1: geophones %2 stand at one place.</source>
        <translation>Dispositif %1&#xa0;: les géophones %2 sont au même endroit.</translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 against the direction of the string.</source>
        <translation>
            <numerusform>Dispositif %1&#xa0;: le géophone %2 va à l&apos;encontre du sens du dispositif.</numerusform>
            <numerusform>Dispositif %1&#xa0;: les géophones %2 vont à l&apos;encontre du sens du dispositif.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 not at the elevation that string %3 has there.</source>
        <translation>
            <numerusform>Dispositif %1&#xa0;: le géophone %2 n&apos;est pas à l&apos;altitude que le dispositif %3 a à cet endroit.</numerusform>
            <numerusform>Dispositif %1&#xa0;: les géophones %2 ne sont pas à l&apos;altitude que le dispositif %3 a à ces endroits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a position.</source>
        <translation>
            <numerusform>Le tir %1 est sans position.</numerusform>
            <numerusform>Les tirs %1 sont sans position.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string.</source>
        <translation>
            <numerusform>Le tir %1 est sans dispositif de géophones.</numerusform>
            <numerusform>Les tirs %1 sont sans dispositif de géophones.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not an S-wave pair, as others are: a survey holds one kind of wave.</source>
        <translation>
            <numerusform>Le tir %1 n&apos;est pas une paire d&apos;ondes S comme d&apos;autres&#xa0;: un levé contient un seul type d&apos;onde.</numerusform>
            <numerusform>Les tirs %1 ne sont pas des paires d&apos;ondes S comme d&apos;autres&#xa0;: un levé contient un seul type d&apos;onde.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 farther off the line than the line is long.</source>
        <translation>
            <numerusform>Le tir %1 est éloigné de la ligne de plus que sa longueur.</numerusform>
            <numerusform>Les tirs %1 sont éloignés de la ligne de plus que sa longueur.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 far above or below the line.</source>
        <translation>
            <numerusform>Le tir %1 est loin au-dessus ou au-dessous de la ligne.</numerusform>
            <numerusform>Les tirs %1 sont loin au-dessus ou au-dessous de la ligne.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1 has %2 geophones, shot(s) %3 %4 traces: the first %5 of both are used.</source>
        <translation>
            <numerusform>Le dispositif %1 a %2 géophones, le tir %3 a %4 traces&#xa0;: les %5 premiers sont utilisés.</numerusform>
            <numerusform>Le dispositif %1 a %2 géophones, les tirs %3 ont %4 traces&#xa0;: les %5 premiers sont utilisés.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1 has no geophones.</source>
        <translation>Le dispositif %1 n&apos;a pas de géophones.</translation>
    </message>
    <message>
        <source>No shot uses string %1; its positions shape the surface all the same.</source>
        <translation>Aucun tir n&apos;utilise le dispositif %1&#xa0;; ses positions façonnent néanmoins la surface.</translation>
    </message>
    <message>
        <source>Shot ID &lt;b&gt;</source>
        <translation>N° de tir &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt;&lt;br&gt;Geophone geometry ID: &lt;b&gt;</source>
        <translation>&lt;/b&gt;&lt;br&gt;N° de géométrie des géophones&#xa0;: &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt; Shot position: &lt;b&gt;</source>
        <translation>&lt;/b&gt; Position du tir&#xa0;: &lt;b&gt;</translation>
    </message>
    <message>
        <source> m&lt;/b&gt;</source>
        <translation> m&lt;/b&gt;</translation>
    </message>
    <message>
        <source>File name &lt;b&gt;</source>
        <translation>Nom du fichier &lt;b&gt;</translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not at the elevation of the line: type it, or interpolate elevations.</source>
        <translation>
            <numerusform>Le tir %1 n&apos;est pas à l&apos;altitude de la ligne : saisissez-la ou interpolez les altitudes.</numerusform>
            <numerusform>Les tirs %1 ne sont pas à l&apos;altitude de la ligne : saisissez-la ou interpolez les altitudes.</numerusform>
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
        <translation>Altitude (m)</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 est trop loin.</translation>
    </message>
</context>
<context>
    <name>talvesk::GuidanceStrip</name>
    <message>
        <source>Guidance</source>
        <translation>Guidage</translation>
    </message>
    <message>
        <source>Show the steps from recordings to a section, and how they stand</source>
        <translation>Afficher les étapes des enregistrements à la coupe, et leur état</translation>
    </message>
    <message>
        <source>A click: %1</source>
        <translation>Un clic&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>step, how it stands</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1. A click: %2</source>
        <translation>%1. Un clic&#xa0;: %2</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Ensuite&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GuideWindow</name>
    <message>
        <source>User guide</source>
        <translation>Guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Pages trouvées</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texte plus petit</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texte plus grand</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Rechercher le précédent</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Rechercher le suivant</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Ouvrir dans le navigateur</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>title of a page, number of places</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>No program to show the user guide was found.</source>
        <translation>Aucun programme n&apos;a été trouvé pour afficher le guide de l&apos;utilisateur.</translation>
    </message>
    <message>
        <source>You find it in %1</source>
        <translation>Il se trouve dans %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>talvesk::HandleTrack</name>
    <message>
        <source>Handle %1</source>
        <translation>Curseur %1</translation>
    </message>
</context>
<context>
    <name>talvesk::ImagesDialog</name>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Pictures of</source>
        <translation>Images de</translation>
    </message>
    <message>
        <source>Traces of the current shot</source>
        <translation>Traces du tir courant</translation>
    </message>
    <message>
        <source>Traces of all shots</source>
        <translation>Traces de tous les tirs</translation>
    </message>
    <message>
        <source>A picture for every shot</source>
        <translation>Une image par tir</translation>
    </message>
    <message>
        <source>Filtered traces</source>
        <translation>Traces filtrées</translation>
    </message>
    <message>
        <source>The filtered copy of the traces, where there is one</source>
        <translation>La copie filtrée des traces, là où il y en a une</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Dromochroniques</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Coupe de vitesse</translation>
    </message>
    <message>
        <source>Palette, contours, rays and geophones as the section view shows them</source>
        <translation>Palette, isolignes, rais et géophones comme la vue de la coupe les montre</translation>
    </message>
    <message>
        <source>Vertical gradient</source>
        <translation>Gradient vertical</translation>
    </message>
    <message>
        <source>Laplacian</source>
        <translation>Laplacien</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densité d&apos;information</translation>
    </message>
    <message>
        <source>Sections as cells</source>
        <translation>Coupes en cellules</translation>
    </message>
    <message>
        <source>In bands where contours are filled</source>
        <translation>En bandes là où les isolignes sont remplies</translation>
    </message>
    <message>
        <source>Sections smooth</source>
        <translation>Coupes lissées</translation>
    </message>
    <message>
        <source>Blended from cell to cell, in pictures of their own</source>
        <translation>Fondues de cellule en cellule, dans des images à part</translation>
    </message>
    <message>
        <source>Refraction profile</source>
        <translation>Profil de réfraction</translation>
    </message>
    <message>
        <source>Format and size</source>
        <translation>Format et taille</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat&#xa0;:</translation>
    </message>
    <message>
        <source>PNG (pixels)</source>
        <translation>PNG (pixels)</translation>
    </message>
    <message>
        <source>SVG (shapes)</source>
        <translation>SVG (formes)</translation>
    </message>
    <message>
        <source>PDF (shapes)</source>
        <translation>PDF (formes)</translation>
    </message>
    <message>
        <source>&amp;Unit of the size:</source>
        <translation>&amp;Unité de la taille&#xa0;:</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>millimètres</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>Height as each picture asks for</source>
        <translation>Hauteur selon chaque image</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Résolution&#xa0;:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>Pixels per inch; also how large letters and lines are in a picture of so many pixels</source>
        <translation>Pixels par pouce&#xa0;; aussi la taille des lettres et des traits dans une image de tant de pixels</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;Names begin with:</source>
        <translation>Les &amp;noms commencent par&#xa0;:</translation>
    </message>
    <message>
        <source>Files to be wri&amp;tten:</source>
        <translation>Fichiers à é&amp;crire&#xa0;:</translation>
    </message>
    <message>
        <source>Folder of the pictures</source>
        <translation>Dossier des images</translation>
    </message>
    <message>
        <source>Nothing to write is chosen.</source>
        <translation>Rien n&apos;est choisi.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Ce dossier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The folder is not writable.</source>
        <translation>Le dossier n&apos;est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>A name cannot hold a slash.</source>
        <translation>Un nom ne peut pas contenir de barre oblique.</translation>
    </message>
    <message>
        <source>%1 (exists)</source>
        <translation>%1 (existe)</translation>
    </message>
    <message>
        <source>Residuals of the picks</source>
        <translation>Résidus des pointés</translation>
    </message>
    <message>
        <source>Shot by geophone, and in the section along the rays</source>
        <translation>Par tir et géophone, et dans la coupe le long des rais</translation>
    </message>
    <message>
        <source>Files to be written</source>
        <translation>Fichiers à écrire</translation>
    </message>
    <message>
        <source>Traces as in the view</source>
        <translation>Traces comme dans la vue</translation>
    </message>
    <message>
        <source>By offset, in reduced time and with a gain in time, as the view of the traces is now</source>
        <translation>Par déport, en temps réduit et avec un gain selon le temps, comme la vue des traces actuellement</translation>
    </message>
</context>
<context>
    <name>talvesk::InversionTexts</name>
    <message>
        <source>Section, along fresh rays
</source>
        <translation>Coupe, le long de nouveaux rais
</translation>
    </message>
    <message>
        <source>RMS: [ms] %1; [%] %2
</source>
        <translation>RMS&#xa0;: [ms] %1&#xa0;; [%] %2
</translation>
    </message>
    <message>
        <source>Mean: [ms] %1
</source>
        <translation>Moyenne&#xa0;: [ms] %1
</translation>
    </message>
    <message>
        <source>Largest difference: [ms] %1; shot %2, receiver %3
</source>
        <translation>Plus grande différence&#xa0;: [ms] %1&#xa0;; tir %2, récepteur %3
</translation>
    </message>
    <message>
        <source>Computing time: [s] %1
</source>
        <translation>Temps de calcul&#xa0;: [s] %1
</translation>
    </message>
    <message>
        <source>Last solver pass
</source>
        <translation>Dernière passe du solveur
</translation>
    </message>
    <message>
        <source>Elapsed time: [s] %1
</source>
        <translation>Temps écoulé&#xa0;: [s] %1
</translation>
    </message>
    <message>
        <source>RMSE: [ms] %1; [%] %2
</source>
        <translation>RMSE&#xa0;: [ms] %1&#xa0;; [%] %2
</translation>
    </message>
    <message>
        <source>MaxError: [ms] %1; [%] %2
</source>
        <translation>Erreur maximale&#xa0;: [ms] %1&#xa0;; [%] %2
</translation>
    </message>
    <message>
        <source>Chi-square: %1; of all picks %2; suspect picks %3
</source>
        <translation>Khi-deux&#xa0;: %1&#xa0;; de tous les pointés %2&#xa0;; pointés suspects %3
</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3 with the time shifts of shots.</source>
        <translation>Écart de la coupe&#xa0;: RMS %1 ms (%2&#xa0;%), khi-deux %3 avec les décalages temporels des tirs.</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3.</source>
        <translation>Écart de la coupe&#xa0;: RMS %1 ms (%2&#xa0;%), khi-deux %3.</translation>
    </message>
    <message>
        <source>From coarse to fine: iteration %1 of %2 is kept, smoothing parameter %3
</source>
        <translation>Du grossier au fin&#xa0;: itération %1 sur %2 conservée, paramètre de lissage %3
</translation>
    </message>
    <message>
        <source>Iterations: %1
</source>
        <translation>Itérations&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Weight of the roughness: %1
</source>
        <translation>Poids de la rugosité&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Started from and held to: %1
</source>
        <translation>Modèle de départ et de référence&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Time shifts of shots: [ms] %1
</source>
        <translation>Décalages temporels des tirs&#xa0;: [ms] %1
</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>tir %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Best of the picks&apos; models</source>
        <translation>Meilleur modèle tiré des pointés</translation>
    </message>
    <message>
        <source>With the time shifts of shots</source>
        <translation>Avec les décalages temporels des tirs</translation>
    </message>
    <message>
        <source>Without suspects, with the time shifts of shots</source>
        <translation>Sans les suspects, avec les décalages temporels des tirs</translation>
    </message>
    <message>
        <source>Without suspects</source>
        <translation>Sans les suspects</translation>
    </message>
    <message>
        <source>All picks as they are, </source>
        <translation>Tous les pointés tels quels, </translation>
    </message>
    <message>
        <source>Known ground: %1 conditions, RMS %2 of their errors; fixed cells %3
</source>
        <translation>Terrain connu&#xa0;: %1 conditions, RMS %2 de leurs erreurs&#xa0;; cellules fixes %3
</translation>
    </message>
    <message>
        <source>The section does not go with %1: off by %2 of its errors
</source>
        <translation>La coupe ne s&apos;accorde pas avec %1&#xa0;: écart de %2 fois son erreur
</translation>
    </message>
    <message>
        <source>RMS of what chi-square counts: %1 ms.</source>
        <translation>RMS de ce que compte le khi-deux&#xa0;: %1 ms.</translation>
    </message>
</context>
<context>
    <name>talvesk::KnownGroundDialog</name>
    <message>
        <source>Known ground</source>
        <translation>Terrain connu</translation>
    </message>
    <message>
        <source>&amp;Boreholes</source>
        <translation>&amp;Forages</translation>
    </message>
    <message>
        <source>A row is a layer; layers of one name are of one borehole, from the top down. Depths are counted from the surface. Without an error a velocity counts as known to 5 %.</source>
        <translation>Une ligne est une couche&#xa0;; les couches de même nom sont d&apos;un même forage, de haut en bas. Les profondeurs sont comptées depuis la surface. Sans erreur, une vitesse est supposée connue à 5&#xa0;% près.</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Forages</translation>
    </message>
    <message>
        <source>&amp;Depths</source>
        <translation>&amp;Profondeurs</translation>
    </message>
    <message>
        <source>A row is a place where a refractor is known to lie: the velocity that is reached there, or those above and below. Without an error a depth counts as known to a tenth. Points of one refractor number belong together.</source>
        <translation>Une ligne est un endroit où la position d&apos;un réfracteur est connue&#xa0;: la vitesse qui y est atteinte, ou celles au-dessus et au-dessous. Sans erreur, une profondeur est supposée connue à un dixième près. Les points d&apos;un même numéro de réfracteur vont ensemble.</translation>
    </message>
    <message>
        <source>Depths</source>
        <translation>Profondeurs</translation>
    </message>
    <message>
        <source>B&amp;odies</source>
        <translation>&amp;Corps</translation>
    </message>
    <message>
        <source>A row is a corner; corners of one name go around a body of known velocity, which a fit leaves as it is.</source>
        <translation>Une ligne est un sommet&#xa0;; les sommets de même nom entourent un corps de vitesse connue, que l&apos;ajustement laisse tel quel.</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Corps</translation>
    </message>
    <message>
        <source>Insert a row above the current one. The last line of a table is always empty: type there to go on</source>
        <translation>Insérer une ligne au-dessus de la ligne courante. La dernière ligne d&apos;un tableau est toujours vide&#xa0;: saisissez-y la suite</translation>
    </message>
    <message>
        <source>&amp;Add row</source>
        <translation>&amp;Ajouter une ligne</translation>
    </message>
    <message>
        <source>Remove the rows with selected cells</source>
        <translation>Supprimer les lignes dont des cellules sont sélectionnées</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>&amp;Supprimer les lignes</translation>
    </message>
    <message>
        <source>Take the last step in these tables back</source>
        <translation>Annuler la dernière étape dans ces tableaux</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>Do it again</source>
        <translation>La rétablir</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refaire</translation>
    </message>
    <message>
        <source>Read a table in place of all that stands here, in metres</source>
        <translation>Lire un tableau à la place de tout ce qui figure ici, en mètres</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importer ...</translation>
    </message>
    <message>
        <source>Write all of it as one table, in metres</source>
        <translation>Écrire le tout dans un seul tableau, en mètres</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exporter ...</translation>
    </message>
    <message>
        <source>Boreholes: %1, known depths: %2, bodies: %3.</source>
        <translation>Forages&#xa0;: %1, profondeurs connues&#xa0;: %2, corps&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1, row %2: %3.</source>
        <translation>%1, ligne %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Discard what was changed in these tables?</source>
        <translation>Abandonner les modifications de ces tableaux&#xa0;?</translation>
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
        <translation>Déport [m]</translation>
    </message>
    <message>
        <source>Top [m]</source>
        <translation>Toit [m]</translation>
    </message>
    <message>
        <source>Depth [m]</source>
        <translation>Profondeur [m]</translation>
    </message>
    <message>
        <source>Bottom [m]</source>
        <translation>Base [m]</translation>
    </message>
    <message>
        <source>Isovalue [m/s]</source>
        <translation>Isovaleur [m/s]</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Vitesse [m/s]</translation>
    </message>
    <message>
        <source>Error [m]</source>
        <translation>Erreur [m]</translation>
    </message>
    <message>
        <source>Error [m/s]</source>
        <translation>Erreur [m/s]</translation>
    </message>
    <message>
        <source>Refractor</source>
        <translation>Réfracteur</translation>
    </message>
    <message>
        <source>Above [m/s]</source>
        <translation>Au-dessus [m/s]</translation>
    </message>
    <message>
        <source>Below [m/s]</source>
        <translation>Au-dessous [m/s]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows of %2 columns do not fit from here on.</source>
        <translation>Rien n&apos;a été collé&#xa0;: %1 lignes de %2 colonnes ne tiennent pas à partir d&apos;ici.</translation>
    </message>
    <message>
        <source>Nothing was pasted. Row %1: %2</source>
        <translation>Rien n&apos;a été collé. Ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerCurvesPlot</name>
    <message>
        <source>Shot %1, trace %2: %3, %4 ms, %5</source>
        <translation>Tir %1, trace %2&#xa0;: %3, %4 ms, %5</translation>
    </message>
    <message>
        <source>no layer</source>
        <translation>aucune couche</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>couche %1</translation>
    </message>
    <message>
        <source>computed: %1 ms</source>
        <translation>calculé&#xa0;: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerMethodsDialog</name>
    <message>
        <source>Compare methods</source>
        <translation>Comparer les méthodes</translation>
    </message>
    <message>
        <source>I&amp;nterpretations for error bands:</source>
        <translation>Interprétations pour les &amp;bandes d&apos;erreur&#xa0;:</translation>
    </message>
    <message>
        <source>The layers are interpreted as often again, by picks that are moved by their errors. How far the results scatter is the error of depth and velocity, and tells whether methods disagree by more than that.</source>
        <translation>Les couches sont réinterprétées autant de fois, avec des pointés déplacés selon leurs erreurs. La dispersion des résultats est l&apos;erreur de la profondeur et de la vitesse, et dit si les méthodes divergent davantage que cela.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>Medians by method</source>
        <translation>Médianes selon la méthode</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Median velocity
[m/s]</source>
        <translation>Vitesse médiane
[m/s]</translation>
    </message>
    <message>
        <source>Median depth
[m]</source>
        <translation>Profondeur médiane
[m]</translation>
    </message>
    <message>
        <source>Geophones
with a depth</source>
        <translation>Géophones avec
une profondeur</translation>
    </message>
    <message>
        <source>Of these not
carried by picks</source>
        <translation>Dont sans appui
de pointés</translation>
    </message>
    <message>
        <source>How far methods agree, and their remarks</source>
        <translation>Accord des méthodes et leurs remarques</translation>
    </message>
    <message>
        <source>Layer &amp;2</source>
        <translation>Couche &amp;2</translation>
    </message>
    <message>
        <source>Layer 2 by method</source>
        <translation>Couche 2 selon la méthode</translation>
    </message>
    <message>
        <source>Layer &amp;3</source>
        <translation>Couche &amp;3</translation>
    </message>
    <message>
        <source>Layer 3 by method</source>
        <translation>Couche 3 selon la méthode</translation>
    </message>
    <message>
        <source>Save the picture as PNG, SVG or PDF</source>
        <translation>Enregistrer l&apos;image en PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>Save p&amp;icture ...</source>
        <translation>Enregistrer l&apos;&amp;image ...</translation>
    </message>
    <message>
        <source>Save depths and velocities of all layers and methods at the geophones as CSV, in metres</source>
        <translation>Enregistrer en CSV les profondeurs et vitesses de toutes les couches et méthodes aux géophones, en mètres</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Enregistrer le &amp;tableau ...</translation>
    </message>
    <message>
        <source>Copy the same table for a spreadsheet</source>
        <translation>Copier le même tableau pour un tableur</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>&amp;Copier le tableau</translation>
    </message>
    <message>
        <source>Layers are being interpreted...</source>
        <translation>Interprétation des couches en cours...</translation>
    </message>
    <message>
        <source>Stopped: no error bands.</source>
        <translation>Arrêté&#xa0;: pas de bandes d&apos;erreur.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>no pick is assigned to a refractor.</source>
        <translation>aucun pointé n&apos;est attribué à un réfracteur.</translation>
    </message>
</context>
<context>
    <name>talvesk::LeftOutText</name>
    <message>
        <source>%1 of %2 picks</source>
        <translation>%1 sur %2 pointés</translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) beyond the last column</source>
        <translation>
            <numerusform>%n tir au-delà de la dernière colonne</numerusform>
            <numerusform>%n tirs au-delà de la dernière colonne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n geophone(s) beyond the last column</source>
        <translation>
            <numerusform>%n géophone au-delà de la dernière colonne</numerusform>
            <numerusform>%n géophones au-delà de la dernière colonne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) without a geophone string</source>
        <translation>
            <numerusform>%n tir sans dispositif de géophones</numerusform>
            <numerusform>%n tirs sans dispositif de géophones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 beyond the last column</source>
        <translation>
            <numerusform>Tir %1 au-delà de la dernière colonne</numerusform>
            <numerusform>Tirs %1 au-delà de la dernière colonne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Geophone(s) %1 of string %2 beyond the last column</source>
        <translation>
            <numerusform>Géophone %1 du dispositif %2 au-delà de la dernière colonne</numerusform>
            <numerusform>Géophones %1 du dispositif %2 au-delà de la dernière colonne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string</source>
        <translation>
            <numerusform>Tir %1 sans dispositif de géophones</numerusform>
            <numerusform>Tirs %1 sans dispositif de géophones</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::LinePlan</name>
    <message>
        <source>Geophones of string %1</source>
        <translation>Géophones du dispositif %1</translation>
    </message>
    <message>
        <source>Other strings</source>
        <translation>Autres dispositifs</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>x %1, z %2</source>
        <translation>x %1, z %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tir %1</translation>
    </message>
    <message>
        <source>String %1, geophone %2</source>
        <translation>Dispositif %1, géophone %2</translation>
    </message>
    <message>
        <source>Plan of the line</source>
        <translation>Plan de la ligne</translation>
    </message>
    <message>
        <source>Distance (%1)</source>
        <translation>Distance (%1)</translation>
    </message>
    <message>
        <source>Elevation (%1)</source>
        <translation>Altitude (%1)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Géophones</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Géophone %1</translation>
    </message>
    <message>
        <source>x %1, %2 across</source>
        <translation>x %1, %2 en travers</translation>
    </message>
    <message>
        <source>%1 east, %2 north</source>
        <translation>%1 est, %2 nord</translation>
    </message>
    <message>
        <source>Across the line (%1)</source>
        <translation>En travers de la ligne (%1)</translation>
    </message>
    <message>
        <source>East of the first geophone (%1)</source>
        <translation>À l&apos;est du premier géophone (%1)</translation>
    </message>
    <message>
        <source>North of it (%1)</source>
        <translation>Au nord de celui-ci (%1)</translation>
    </message>
</context>
<context>
    <name>talvesk::LossQuestion</name>
    <message>
        <source>the grid and the results of the inversion</source>
        <translation>la grille et les résultats de l&apos;inversion</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>la grille</translation>
    </message>
    <message>
        <source>the results of the inversion; the grid stays</source>
        <translation>les résultats de l&apos;inversion&#xa0;; la grille reste</translation>
    </message>
    <message>
        <source>the layers of the starting model</source>
        <translation>les couches du modèle initial</translation>
    </message>
    <message>
        <source>the refraction interpretation</source>
        <translation>l&apos;interprétation en réfraction</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Do you want to continue?</source>
        <translation>Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>The survey changes. This will be removed (Undo brings it back):</source>
        <translation>Le levé change. Ceci sera supprimé («&#xa0;Défaire&#xa0;» le rétablit)&#xa0;:</translation>
    </message>
</context>
<context>
    <name>talvesk::MarkedIsolinesDialog</name>
    <message>
        <source>Marked isolines</source>
        <translation>Isolignes marquées</translation>
    </message>
    <message>
        <source>Velocities that mean something, such as 1500 m/s for the water table. Their lines stand out from the section and carry their names.</source>
        <translation>Vitesses qui ont un sens, comme 1500 m/s pour la nappe phréatique. Leurs lignes ressortent de la coupe et portent leur nom.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Vitesse [m/s]</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <source>Mark another velocity</source>
        <translation>Marquer une autre vitesse</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Remove the line that is selected</source>
        <translation>Supprimer la ligne sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>water table</source>
        <translation>nappe phréatique</translation>
    </message>
</context>
<context>
    <name>talvesk::MendDialog</name>
    <message>
        <source>Mend recording</source>
        <translation>Corriger l&apos;enregistrement</translation>
    </message>
    <message>
        <source>What was recorded is kept: everything here can be taken back at any time. Picks move with the recording.</source>
        <translation>Ce qui a été enregistré est conservé&#xa0;: tout ici peut être retiré à tout moment. Les pointés suivent l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>&amp;The record was late by:</source>
        <translation>&amp;Retard de l&apos;enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Positive: the front of the record goes, and picks become earlier. Negative: the record was early. Whole samples are taken.</source>
        <translation>Positif&#xa0;: le début de l&apos;enregistrement est retiré et les pointés sont avancés. Négatif&#xa0;: l&apos;enregistrement était en avance. Le décalage se fait en échantillons entiers.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Its picks are set aside and come back with it</source>
        <translation>Ses pointés sont mis de côté et reviennent avec lui</translation>
    </message>
    <message>
        <source>&amp;Disabled: the shot has no picks and takes no part</source>
        <translation>&amp;Désactivé&#xa0;: le tir n&apos;a pas de pointés et ne participe à rien</translation>
    </message>
    <message>
        <source>The last channel goes to the first geophone, with its pick</source>
        <translation>Le dernier canal va au premier géophone, avec son pointé</translation>
    </message>
    <message>
        <source>&amp;Order reversed: the channels run against the geophones</source>
        <translation>&amp;Ordre inversé&#xa0;: les canaux vont à rebours des géophones</translation>
    </message>
    <message>
        <source>&amp;Stack with:</source>
        <translation>&amp;Sommer avec&#xa0;:</translation>
    </message>
    <message>
        <source>Shots of the same place and geophones; the mean of their samples is shown and picked</source>
        <translation>Tirs au même endroit et aux mêmes géophones&#xa0;; la moyenne de leurs échantillons est affichée et pointée</translation>
    </message>
    <message>
        <source>Dis&amp;able the shots that it is stacked with</source>
        <translation>Désactiver les &amp;tirs avec lesquels il est sommé</translation>
    </message>
    <message>
        <source>No other shot has the same place, geophones and sample interval.</source>
        <translation>Aucun autre tir n&apos;a le même endroit, les mêmes géophones et le même pas d&apos;échantillonnage.</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Traces du tir</translation>
    </message>
    <message>
        <source>Killed</source>
        <translation>Neutralisée</translation>
    </message>
    <message>
        <source>Polarity reversed</source>
        <translation>Polarité inversée</translation>
    </message>
    <message>
        <source>Muted before</source>
        <translation>Mute avant</translation>
    </message>
    <message>
        <source>Mend recording of shot %1</source>
        <translation>Corriger l&apos;enregistrement du tir %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
</context>
<context>
    <name>talvesk::Message</name>
    <message>
        <source>The inversion failed: %1</source>
        <translation>L&apos;inversion a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>The picture cannot be made: %1</source>
        <translation>L&apos;image ne peut pas être produite&#xa0;: %1</translation>
    </message>
    <message>
        <source>The view cannot be drawn for a picture.</source>
        <translation>La vue ne peut pas être dessinée pour une image.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8 text</source>
        <translation>son nom n&apos;est pas un texte UTF-8 valide</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop volumineux</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>its text could not be put together</source>
        <translation>son texte n&apos;a pas pu être composé</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>its %1 bytes are more than the limit of %2</source>
        <translation>ses %1 octets dépassent la limite de %2</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la mémoire est insuffisante</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is %2; choose another place.</source>
        <translation>Le fichier %1 ne peut pas être remplacé (%2)&#xa0;; choisissez un autre emplacement.</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>protected against writing</source>
        <translation>il est protégé en écriture</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>Le fichier %1 ne peut pas être créé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be given its permissions: %2.</source>
        <translation>Le fichier %1 ne peut pas recevoir ses droits d&apos;accès&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Le fichier %1 ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: %2.</source>
        <translation>Le fichier %1 ne peut pas être remplacé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>personne n&apos;y lit</translation>
    </message>
    <message>
        <source>there are more than %1 rows</source>
        <translation>il y a plus de %1 lignes</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; is no number</source>
        <translation>ligne %1&#xa0;: «&#xa0;%2&#xa0;» n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>the survey has no grid; create the grid or run the inversion first</source>
        <translation>le levé n&apos;a pas de grille&#xa0;; créez d&apos;abord la grille ou lancez l&apos;inversion</translation>
    </message>
    <message>
        <source>no cell of the section is drawn</source>
        <translation>aucune cellule de la coupe n&apos;est dessinée</translation>
    </message>
    <message>
        <source>eastward</source>
        <translation>vers l&apos;est</translation>
    </message>
    <message>
        <source>northward</source>
        <translation>vers le nord</translation>
    </message>
    <message>
        <source>westward</source>
        <translation>vers l&apos;ouest</translation>
    </message>
    <message>
        <source>southward</source>
        <translation>vers le sud</translation>
    </message>
    <message>
        <source>%1 is no reference system that is known here</source>
        <translation>%1 n&apos;est pas un système de référence connu ici</translation>
    </message>
    <message>
        <source>%1 is not a projected system; easting and northing need one</source>
        <translation>%1 n&apos;est pas un système projeté&#xa0;; il en faut un pour les coordonnées est et nord</translation>
    </message>
    <message>
        <source>%1 has no axes that are known here</source>
        <translation>%1 n&apos;a pas d&apos;axes connus ici</translation>
    </message>
    <message>
        <source>%1 counts in another unit than the metre: %2; choose a system in metres</source>
        <translation>%1 compte dans une autre unité que le mètre&#xa0;: %2&#xa0;; choisissez un système en mètres</translation>
    </message>
    <message>
        <source>%1 counts %2 and %3; choose a system with easting and northing</source>
        <translation>%1 compte %2 et %3&#xa0;; choisissez un système dont les coordonnées croissent vers l&apos;est et vers le nord</translation>
    </message>
    <message>
        <source>%1 (%2) cannot be turned into longitude and latitude</source>
        <translation>%1 (%2) ne peut pas être converti en longitude et latitude</translation>
    </message>
    <message>
        <source>the Y coordinate and the Z offset of the line must be finite numbers</source>
        <translation>la coordonnée Y et le décalage Z de la ligne doivent être des nombres finis</translation>
    </message>
    <message>
        <source>Cannot write %1: its text could not be put together</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: son texte n&apos;a pas pu être composé</translation>
    </message>
    <message>
        <source>the coordinates of the geophones are not numbers</source>
        <translation>les coordonnées des géophones ne sont pas des nombres</translation>
    </message>
    <message>
        <source>the first and the last geophone have the same coordinates</source>
        <translation>le premier et le dernier géophone ont les mêmes coordonnées</translation>
    </message>
    <message>
        <source>the coordinates of the geophones lie outside of EPSG:%1 (%2)</source>
        <translation>les coordonnées des géophones sont hors du domaine d&apos;EPSG:%1 (%2)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Les coordonnées géographiques manquent, les données ne peuvent pas être exportées au format KML</translation>
    </message>
    <message>
        <source>the section has too many cells for this format, %1</source>
        <translation>la coupe a trop de cellules pour ce format, %1</translation>
    </message>
    <message>
        <source>the palette has no colours</source>
        <translation>la palette n&apos;a pas de couleurs</translation>
    </message>
    <message>
        <source>the value range of the section is empty; its maximum must be greater than its minimum</source>
        <translation>la plage de valeurs de la coupe est vide&#xa0;; son maximum doit être supérieur à son minimum</translation>
    </message>
    <message>
        <source>the survey has no geophones</source>
        <translation>le levé n&apos;a pas de géophones</translation>
    </message>
    <message>
        <source>the raster would have %1 nodes; choose larger cells</source>
        <translation>le maillage aurait %1 nœuds&#xa0;; choisissez des cellules plus grandes</translation>
    </message>
    <message>
        <source>Not enough memory for a picture of this size: choose a smaller size or resolution.</source>
        <translation>Mémoire insuffisante pour une image de cette taille&#xa0;: choisissez une taille ou une résolution plus petite.</translation>
    </message>
    <message>
        <source>The PNG picture cannot be made.</source>
        <translation>L&apos;image PNG ne peut pas être produite.</translation>
    </message>
    <message>
        <source>The SVG picture cannot be made.</source>
        <translation>L&apos;image SVG ne peut pas être produite.</translation>
    </message>
    <message>
        <source>The PDF page cannot be made.</source>
        <translation>La page PDF ne peut pas être produite.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn before the application object exists.</source>
        <translation>Une figure ne peut pas être dessinée avant que l&apos;objet application n&apos;existe.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn without fonts: install a font package, for instance fonts-dejavu-core.</source>
        <translation>Une figure ne peut pas être dessinée sans polices&#xa0;: installez un paquet de polices, par exemple fonts-dejavu-core.</translation>
    </message>
    <message>
        <source>No picture format is known for %1: let the file name end with .png, .svg or .pdf.</source>
        <translation>Aucun format d&apos;image n&apos;est connu pour %1&#xa0;: le nom du fichier doit se terminer par .png, .svg ou .pdf.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm wide: choose %2 to %3 mm.</source>
        <translation>Une figure ne peut pas avoir une largeur de %1 mm&#xa0;: choisissez de %2 à %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm high: choose %2 to %3 mm.</source>
        <translation>Une figure ne peut pas avoir une hauteur de %1 mm&#xa0;: choisissez de %2 à %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 pixels per inch: choose %2 to %3 pixels per inch.</source>
        <translation>Une figure ne peut pas avoir %1 pixels par pouce&#xa0;: choisissez de %2 à %3 pixels par pouce.</translation>
    </message>
    <message>
        <source>A picture of %1 million pixels is too large: the limit is %2 million. Choose a smaller size or resolution.</source>
        <translation>Une image de %1 millions de pixels est trop grande&#xa0;: la limite est de %2 millions. Choisissez une taille ou une résolution plus petite.</translation>
    </message>
    <message>
        <source>A PDF file needs a page at least.</source>
        <translation>Un fichier PDF doit avoir au moins une page.</translation>
    </message>
    <message>
        <source>%1 cannot be drawn before the application object exists.</source>
        <translation>Impossible de dessiner avant que l&apos;objet application n&apos;existe&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The picture is too small for what it shows with its axes and texts: choose a larger size.</source>
        <translation>L&apos;image est trop petite pour ce qu&apos;elle montre avec ses axes et ses textes&#xa0;: choisissez une taille plus grande.</translation>
    </message>
    <message>
        <source>The document has no traces to draw.</source>
        <translation>Le document n&apos;a aucune trace à dessiner.</translation>
    </message>
    <message>
        <source>The times from %1 to %2 ms cannot be drawn: choose a begin of 0 or more and an end after it.</source>
        <translation>Les temps de %1 à %2 ms ne peuvent pas être dessinés&#xa0;: choisissez un début positif ou nul et une fin postérieure au début.</translation>
    </message>
    <message>
        <source>The gain of a gather must lie above 0 and not above %1.</source>
        <translation>Le gain des traces d&apos;un tir doit être supérieur à 0 et au plus égal à %1.</translation>
    </message>
    <message>
        <source>Wiggles can be cut at more than 0 and up to 100 trace distances.</source>
        <translation>La coupure des oscillations doit être supérieure à 0 et au plus égale à 100 intervalles entre traces.</translation>
    </message>
    <message>
        <source>There is no shot %1 to draw: the document has %2 with traces.</source>
        <translation>Il n&apos;y a pas de tir %1 à dessiner&#xa0;: le document a %2 avec des traces.</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 tir</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 tirs</translation>
    </message>
    <message>
        <source>The inversion has no misfit to draw.</source>
        <translation>L&apos;inversion n&apos;a pas d&apos;écart à dessiner.</translation>
    </message>
    <message>
        <source>There are no residuals to draw.</source>
        <translation>Il n&apos;y a aucun résidu à dessiner.</translation>
    </message>
    <message>
        <source>There is no refractor with a depth to draw.</source>
        <translation>Il n&apos;y a aucun réfracteur avec une profondeur à dessiner.</translation>
    </message>
    <message>
        <source>There is no survey to report on: load shot files or travel times first.</source>
        <translation>Il n&apos;y a pas de levé pour un rapport&#xa0;: chargez d&apos;abord des fichiers de tirs ou des temps de parcours.</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>Le rapport a été interrompu.</translation>
    </message>
    <message>
        <source>The vertical exaggeration must lie between 0.01 and 100, or be 0 to let the picture choose.</source>
        <translation>L&apos;exagération verticale doit être comprise entre 0,01 et 100, ou valoir 0 pour que l&apos;image choisisse.</translation>
    </message>
    <message>
        <source>The palette &quot;%1&quot; has no colours.</source>
        <translation>La palette «&#xa0;%1&#xa0;» n&apos;a pas de couleurs.</translation>
    </message>
    <message>
        <source>The section has no extent to draw.</source>
        <translation>La coupe n&apos;a pas d&apos;étendue à dessiner.</translation>
    </message>
    <message>
        <source>The picture is too small for the section with its axes and texts: choose a larger size.</source>
        <translation>L&apos;image est trop petite pour la coupe avec ses axes et ses textes&#xa0;: choisissez une taille plus grande.</translation>
    </message>
    <message>
        <source>There are no travel times to draw: pick first breaks, or load travel times, first.</source>
        <translation>Il n&apos;y a aucun temps de parcours à dessiner&#xa0;: pointez d&apos;abord les premières arrivées ou chargez des temps de parcours.</translation>
    </message>
    <message>
        <source>The document cannot be packed: %1</source>
        <translation>Le document ne peut pas être compressé&#xa0;: %1</translation>
    </message>
    <message>
        <source>its bytes cannot be read back</source>
        <translation>ses octets ne peuvent pas être relus</translation>
    </message>
    <message>
        <source>cell %1 has no valid velocity (slowness %2 s/m)</source>
        <translation>la cellule %1 n&apos;a pas de vitesse valide (lenteur %2 s/m)</translation>
    </message>
    <message>
        <source>A grid of %1 rows and %2 columns with %3 nodes per side %4</source>
        <translation>Une grille de %1 lignes et %2 colonnes avec %3 nœuds par côté %4</translation>
    </message>
    <message>
        <source>has no cells; choose cells smaller than the array is long.</source>
        <translation>n&apos;a pas de cellules&#xa0;; choisissez des cellules plus petites que la longueur du dispositif.</translation>
    </message>
    <message>
        <source>has %1 nodes; at most %2 can be numbered. Choose larger cells or a smaller depth.</source>
        <translation>a %1 nœuds&#xa0;; au plus %2 peuvent être numérotés. Choisissez des cellules plus grandes ou une profondeur plus faible.</translation>
    </message>
    <message>
        <source>needs about %1 MiB, but only %2 MiB are free. Choose larger cells or a smaller depth.</source>
        <translation>demande environ %1 Mio, mais seuls %2 Mio sont libres. Choisissez des cellules plus grandes ou une profondeur plus faible.</translation>
    </message>
    <message>
        <source>No layer is left: a layer&apos;s final depth must be greater than its initial depth, and that not negative.</source>
        <translation>Il ne reste aucune couche&#xa0;: la profondeur finale d&apos;une couche doit être supérieure à sa profondeur initiale, et celle-ci ne doit pas être négative.</translation>
    </message>
    <message>
        <source>The grid of the layered model could not be built.</source>
        <translation>La grille du modèle en couches n&apos;a pas pu être construite.</translation>
    </message>
    <message>
        <source>the line holds %1 characters, more than the limit of %2; split the table into one file per spread</source>
        <translation>la ligne contient %1 caractères, plus que la limite de %2&#xa0;; découpez le tableau en un fichier par dispositif</translation>
    </message>
    <message>
        <source>the first line names no receiver</source>
        <translation>la première ligne ne nomme aucun récepteur</translation>
    </message>
    <message>
        <source>there are %1 for %2</source>
        <translation>il y a %1 pour %2</translation>
    </message>
    <message>
        <source>%1 without an elevation were taken to lie at 0</source>
        <translation>%1 sans altitude&#xa0;: altitude 0 retenue</translation>
    </message>
    <message>
        <source>the shot has no elevation</source>
        <translation>le tir n&apos;a pas d&apos;altitude</translation>
    </message>
    <message>
        <source>line %1: only %2 for %3</source>
        <translation>ligne %1&#xa0;: seulement %2 pour %3</translation>
    </message>
    <message>
        <source>the %1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>invalid stod argument</source>
        <translation>argument de stod non valide</translation>
    </message>
    <message>
        <source>stod argument out of range</source>
        <translation>argument de stod hors limites</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Cannot write %1: there are %2 labels for %3 records</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: il y a %2 étiquettes pour %3 enregistrements</translation>
    </message>
    <message>
        <source>the line holds more than %1 characters</source>
        <translation>la ligne contient plus de %1 caractères</translation>
    </message>
    <message>
        <source>line %1 has no x and z; check the separator</source>
        <translation>la ligne %1 n&apos;a pas x et z&#xa0;; vérifiez le séparateur</translation>
    </message>
    <message>
        <source>%1, line %2 does not begin with a number; check the separator</source>
        <translation>%1, la ligne %2 ne commence pas par un nombre&#xa0;; vérifiez le séparateur</translation>
    </message>
    <message>
        <source>%1 holds more than %2 values</source>
        <translation>%1 contient plus de %2 valeurs</translation>
    </message>
    <message>
        <source>there are only %1 shots</source>
        <translation>il n&apos;y a que %1 tirs</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a layer number: 0 for none, 1, 2 or 3</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un numéro de couche&#xa0;: 0 pour aucune, 1, 2 ou 3</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, which is not how many layer numbers there are</source>
        <translation>le tir %1 a %2 traces, ce qui n&apos;est pas le nombre des numéros de couche</translation>
    </message>
    <message>
        <source>%1: it holds layers of %2 shots, and there are %3</source>
        <translation>%1&#xa0;: il contient les couches de %2 tirs, et il y en a %3</translation>
    </message>
    <message>
        <source>the first line is %1 where &quot;otte&quot; must stand</source>
        <translation>la première ligne est %1 au lieu de «&#xa0;otte&#xa0;»</translation>
    </message>
    <message>
        <source>the format version is missing</source>
        <translation>la version du format manque</translation>
    </message>
    <message>
        <source>the format version %1 was read as &quot;1.0&quot;</source>
        <translation>la version de format %1 a été lue comme «&#xa0;1.0&#xa0;»</translation>
    </message>
    <message>
        <source>line 3 holds %1, not 2</source>
        <translation>la ligne 3 contient %1 et non 2</translation>
    </message>
    <message>
        <source>the %1 is missing</source>
        <translation>donnée manquante&#xa0;: %1</translation>
    </message>
    <message>
        <source>the line of each %1 is missing</source>
        <translation>ligne de valeurs manquante&#xa0;: %1</translation>
    </message>
    <message>
        <source>there are %1 but %2</source>
        <translation>il y a %1 mais %2</translation>
    </message>
    <message>
        <source>the file names %1 strings for %2 and %3</source>
        <translation>le nombre de dispositifs annoncé est %1, pour %2 et %3</translation>
    </message>
    <message>
        <source>there are more records than the %1</source>
        <translation>il y a plus d&apos;enregistrements qu&apos;il n&apos;en faut pour %1</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2</source>
        <translation>le fichier se termine après %1 sur %2</translation>
    </message>
    <message>
        <source>the record names string %1 of %2</source>
        <translation>l&apos;enregistrement désigne le dispositif %1 sur %2</translation>
    </message>
    <message>
        <source>record %1 names trace set %2; it was taken for that of its own place</source>
        <translation>l&apos;enregistrement %1 désigne le jeu de traces %2&#xa0;; il a été attribué à celui de son propre rang</translation>
    </message>
    <message>
        <source>the last line does not end in &quot;;&quot;: the file may be cut short</source>
        <translation>la dernière ligne ne se termine pas par «&#xa0;;&#xa0;»&#xa0;: le fichier est peut-être tronqué</translation>
    </message>
    <message>
        <source>the records need %1 in %2, the file holds %3</source>
        <translation>les enregistrements demandent %1 dans %2, le fichier contient %3</translation>
    </message>
    <message>
        <source>no string claims the last %1: a record of each string must hold one time per geophone</source>
        <translation>aucun dispositif ne revendique %1 en fin de liste&#xa0;: un enregistrement de chaque dispositif doit contenir un temps par géophone</translation>
    </message>
    <message>
        <source>the strings without a record do not share %1 equally; the first ones took one more</source>
        <translation>les dispositifs sans enregistrement ne se partagent pas également %1&#xa0;; les premiers en ont pris un de plus</translation>
    </message>
    <message>
        <source>record %1 holds %2 for %3</source>
        <translation>l&apos;enregistrement %1 contient %2 pour %3</translation>
    </message>
    <message>
        <source>%1 is too large for a palette</source>
        <translation>%1 est trop volumineux pour une palette</translation>
    </message>
    <message>
        <source>%1 is no palette file: %2</source>
        <translation>%1 n&apos;est pas un fichier de palette&#xa0;: %2</translation>
    </message>
    <message>
        <source>the byte order mark before the first line was ignored</source>
        <translation>la marque d&apos;ordre des octets avant la première ligne a été ignorée</translation>
    </message>
    <message>
        <source>the %1 %2 is not a number</source>
        <translation>la valeur %2 (%1) n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>the %1 %2 is out of range</source>
        <translation>la valeur %2 (%1) est hors limites</translation>
    </message>
    <message>
        <source>the %1 %2 is not finite</source>
        <translation>la valeur %2 (%1) n&apos;est pas finie</translation>
    </message>
    <message>
        <source>the %1 %2 is not a whole number</source>
        <translation>la valeur %2 (%1) n&apos;est pas un nombre entier</translation>
    </message>
    <message>
        <source>and more of this kind</source>
        <translation>et d&apos;autres du même genre</translation>
    </message>
    <message>
        <source>line %1 and what follows it was ignored</source>
        <translation>la ligne %1 et ce qui la suit ont été ignorés</translation>
    </message>
    <message>
        <source>the file holds no shot</source>
        <translation>le fichier ne contient aucun tir</translation>
    </message>
    <message>
        <source>Invalid phone list : %1</source>
        <translation>Liste de géophones non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 pour %2</translation>
    </message>
    <message>
        <source>Invalid header : %1</source>
        <translation>En-tête non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 must stand here</source>
        <translation>%1 est attendu ici</translation>
    </message>
    <message>
        <source>Invalid match : %1</source>
        <translation>Correspondance non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>line %1: %2 is not a number and was taken as 0</source>
        <translation>ligne %1&#xa0;: %2 n&apos;est pas un nombre et a été pris égal à 0</translation>
    </message>
    <message>
        <source>line %1: number %2 is named twice; its last value was taken</source>
        <translation>ligne %1&#xa0;: le numéro %2 est donné deux fois&#xa0;; sa dernière valeur a été retenue</translation>
    </message>
    <message>
        <source>number %1 is not known</source>
        <translation>le numéro %1 est inconnu</translation>
    </message>
    <message>
        <source>%1 %2 has no %3</source>
        <translation>%1 %2, donnée manquante&#xa0;: %3</translation>
    </message>
    <message>
        <source>Invalid times : %1</source>
        <translation>Temps non valides&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 of shot %2 for %3</source>
        <translation>%1 du tir %2 pour %3</translation>
    </message>
    <message>
        <source>geophone distance</source>
        <translation>distance du géophone</translation>
    </message>
    <message>
        <source>geophone elevation</source>
        <translation>altitude du géophone</translation>
    </message>
    <message>
        <source>shot distance</source>
        <translation>distance du tir</translation>
    </message>
    <message>
        <source>shot elevation</source>
        <translation>altitude du tir</translation>
    </message>
    <message>
        <source>receiver number</source>
        <translation>numéro du récepteur</translation>
    </message>
    <message>
        <source>receiver distance</source>
        <translation>distance du récepteur</translation>
    </message>
    <message>
        <source>receiver elevation</source>
        <translation>altitude du récepteur</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>distance</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>altitude</translation>
    </message>
    <message>
        <source>shot</source>
        <translation>tir</translation>
    </message>
    <message>
        <source>receiver</source>
        <translation>récepteur</translation>
    </message>
    <message>
        <source>time</source>
        <translation>temps</translation>
    </message>
    <message>
        <source>first-break time</source>
        <translation>temps de première arrivée</translation>
    </message>
    <message>
        <source>number</source>
        <translation>numéro</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>format constant 2</source>
        <translation>constante de format 2</translation>
    </message>
    <message>
        <source>number of geophone strings</source>
        <translation>nombre de dispositifs de géophones</translation>
    </message>
    <message>
        <source>string of the record</source>
        <translation>dispositif de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>trace set of the record</source>
        <translation>jeu de traces de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>%1 geophone</source>
        <translation>%1 géophone</translation>
    </message>
    <message>
        <source>%1 geophones</source>
        <translation>%1 géophones</translation>
    </message>
    <message>
        <source>%1 receiver</source>
        <translation>%1 récepteur</translation>
    </message>
    <message>
        <source>%1 receivers</source>
        <translation>%1 récepteurs</translation>
    </message>
    <message>
        <source>%1 shot</source>
        <translation>%1 tir</translation>
    </message>
    <message>
        <source>%1 shot position</source>
        <translation>%1 position de tir</translation>
    </message>
    <message>
        <source>%1 shot positions</source>
        <translation>%1 positions de tir</translation>
    </message>
    <message>
        <source>%1 geophone distance</source>
        <translation>%1 distance de géophone</translation>
    </message>
    <message>
        <source>%1 geophone distances</source>
        <translation>%1 distances de géophones</translation>
    </message>
    <message>
        <source>%1 shot distance</source>
        <translation>%1 distance de tir</translation>
    </message>
    <message>
        <source>%1 shot distances</source>
        <translation>%1 distances de tirs</translation>
    </message>
    <message>
        <source>%1 elevation</source>
        <translation>%1 altitude</translation>
    </message>
    <message>
        <source>%1 elevations</source>
        <translation>%1 altitudes</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 temps</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1 temps</translation>
    </message>
    <message>
        <source>%1 record</source>
        <translation>%1 enregistrement</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 enregistrements</translation>
    </message>
    <message>
        <source>%1 string</source>
        <translation>%1 dispositif</translation>
    </message>
    <message>
        <source>%1 strings</source>
        <translation>%1 dispositifs</translation>
    </message>
    <message>
        <source>%1 number</source>
        <translation>%1 numéro</translation>
    </message>
    <message>
        <source>%1 numbers</source>
        <translation>%1 numéros</translation>
    </message>
    <message>
        <source>%1 value</source>
        <translation>%1 valeur</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 valeurs</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities and %4 draw flags</source>
        <translation>%1 lignes de %2 colonnes ne correspondent pas à %3 vitesses et %4 indicateurs de dessin</translation>
    </message>
    <message>
        <source>cells with %1 nodes per side, %2 long, cannot be</source>
        <translation>des cellules de %2 avec %1 nœuds par côté sont impossibles</translation>
    </message>
    <message>
        <source>a velocity is not a positive number</source>
        <translation>une vitesse n&apos;est pas un nombre positif</translation>
    </message>
    <message>
        <source>there is a grid, but no two geophones</source>
        <translation>il y a une grille, mais pas deux géophones</translation>
    </message>
    <message>
        <source>the grid cannot be built</source>
        <translation>la grille ne peut pas être construite</translation>
    </message>
    <message>
        <source>the limit of its rays lies off the line; it is left out</source>
        <translation>la limite de ses rais est hors de la ligne&#xa0;; elle est écartée</translation>
    </message>
    <message>
        <source>its information density does not fit the grid; it is left out</source>
        <translation>sa densité d&apos;information ne correspond pas à la grille&#xa0;; elle est écartée</translation>
    </message>
    <message>
        <source>what it tells of its last inversion cannot be; it is left out</source>
        <translation>ce qu&apos;il indique de sa dernière inversion est impossible&#xa0;; cela est écarté</translation>
    </message>
    <message>
        <source>a geophone has no place</source>
        <translation>un géophone n&apos;a pas de position</translation>
    </message>
    <message>
        <source>a shot was recorded by geophone string %1 of %2</source>
        <translation>un tir a été enregistré par le dispositif de géophones %1 sur %2</translation>
    </message>
    <message>
        <source>a shot has no place</source>
        <translation>un tir n&apos;a pas de position</translation>
    </message>
    <message>
        <source>the grid cannot be built: %1</source>
        <translation>la grille ne peut pas être construite&#xa0;: %1</translation>
    </message>
    <message>
        <source>layers belong to shot %1, but %2 shots exist</source>
        <translation>des couches se rapportent au tir %1, mais il existe %2 tirs</translation>
    </message>
    <message>
        <source>an arrival belongs to a layer that does not exist</source>
        <translation>une arrivée appartient à une couche qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>il manque</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop volumineux</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Ce n&apos;est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>You may not read it.</source>
        <translation>Vous n&apos;avez pas le droit de le lire.</translation>
    </message>
    <message>
        <source>It cannot be extracted: %1.</source>
        <translation>Il ne peut pas être extrait&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No temporary folder can be created in %1.</source>
        <translation>Aucun dossier temporaire ne peut être créé dans %1.</translation>
    </message>
    <message>
        <source>It cannot be extracted.</source>
        <translation>Il ne peut pas être extrait.</translation>
    </message>
    <message>
        <source>It cannot be loaded: %1</source>
        <translation>Il ne peut pas être chargé&#xa0;: %1</translation>
    </message>
    <message>
        <source>its title has control characters or is too long; it reads %1 now</source>
        <translation>son titre contient des caractères de contrôle ou est trop long&#xa0;; il est maintenant %1</translation>
    </message>
    <message>
        <source>its RMS misfit is no number; it is left out</source>
        <translation>son écart quadratique moyen n&apos;est pas un nombre&#xa0;; il est écarté</translation>
    </message>
    <message>
        <source>its limits of velocity cannot be; they are as in a new survey</source>
        <translation>ses limites de vitesse sont impossibles&#xa0;; elles sont celles d&apos;un nouveau levé</translation>
    </message>
    <message>
        <source>a layer of its starting model cannot be; the model is left out</source>
        <translation>une couche de son modèle initial est impossible&#xa0;; le modèle est écarté</translation>
    </message>
    <message>
        <source>a cell size that it proposes cannot be; it proposes new ones</source>
        <translation>une taille de cellule qu&apos;il propose est impossible&#xa0;; il en propose de nouvelles</translation>
    </message>
    <message>
        <source>its geographic coordinates are no numbers; they are left out</source>
        <translation>ses coordonnées géographiques ne sont pas des nombres&#xa0;; elles sont écartées</translation>
    </message>
    <message>
        <source>no section can be drawn with a vertical exaggeration of %1; it is %2 now</source>
        <translation>aucune coupe ne peut être dessinée avec une exagération verticale de %1&#xa0;; elle est maintenant de %2</translation>
    </message>
    <message>
        <source>its contours cannot be drawn so; they are put right</source>
        <translation>ses isolignes ne peuvent pas être dessinées ainsi&#xa0;; elles sont corrigées</translation>
    </message>
    <message>
        <source>its section shows a quantity that does not exist; it is the velocity now</source>
        <translation>sa coupe montre une grandeur qui n&apos;existe pas&#xa0;; c&apos;est maintenant la vitesse</translation>
    </message>
    <message>
        <source>its geophone markers have a size that does not exist; it is normal now</source>
        <translation>ses marques de géophones ont une taille qui n&apos;existe pas&#xa0;; elle est maintenant normale</translation>
    </message>
    <message>
        <source>a time shift of its arrivals cannot be; it is 0 now</source>
        <translation>un décalage temporel de ses arrivées est impossible&#xa0;; il est maintenant nul</translation>
    </message>
    <message>
        <source>its layered profile cannot be; it is left out and can be built again</source>
        <translation>son profil en couches est impossible&#xa0;; il est écarté et peut être reconstruit</translation>
    </message>
    <message>
        <source>its coverage and figures do not go with the grid and the inversion of the project</source>
        <translation>sa couverture et ses chiffres ne correspondent pas à la grille et à l&apos;inversion du projet</translation>
    </message>
    <message>
        <source>%1 is no name of a file</source>
        <translation>%1 n&apos;est pas un nom de fichier</translation>
    </message>
    <message>
        <source>trace set %1 has %2 traces, but %3 filtered copies</source>
        <translation>le jeu de traces %1 a %2 traces, mais %3 copies filtrées</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten and its traces are empty</source>
        <translation>tir %1&#xa0;: son fichier de tir s&apos;appelle %2, ce qui n&apos;est pas un simple nom de fichier&#xa0;; le nom est oublié et ses traces sont vides</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten</source>
        <translation>tir %1&#xa0;: son fichier de tir s&apos;appelle %2, ce qui n&apos;est pas un simple nom de fichier&#xa0;; le nom est oublié</translation>
    </message>
    <message>
        <source>%1 has %2 traces instead of %3</source>
        <translation>%1 a %2 traces au lieu de %3</translation>
    </message>
    <message>
        <source>there are %1 trace sets, but %2 travel-time records</source>
        <translation>il y a %1 jeux de traces, mais %2 enregistrements de temps de parcours</translation>
    </message>
    <message>
        <source>no travel-time record belongs to trace set %1</source>
        <translation>aucun enregistrement de temps de parcours ne correspond au jeu de traces %1</translation>
    </message>
    <message>
        <source>%1 and %2 have different numbers of traces</source>
        <translation>%1 et %2 n&apos;ont pas le même nombre de traces</translation>
    </message>
    <message>
        <source>wave type %1 does not exist</source>
        <translation>le type d&apos;onde %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>there are more files or filtered copies than trace sets</source>
        <translation>il y a plus de fichiers ou de copies filtrées que de jeux de traces</translation>
    </message>
    <message>
        <source>trace set %1 has a position or delay that cannot be</source>
        <translation>le jeu de traces %1 a une position ou un délai impossible</translation>
    </message>
    <message>
        <source>trace set %1 has a sample that is no finite number</source>
        <translation>le jeu de traces %1 a un échantillon qui n&apos;est pas un nombre fini</translation>
    </message>
    <message>
        <source>Its parts cannot be written in %1; is the disk full?</source>
        <translation>Ses parties ne peuvent pas être écrites dans %1&#xa0;; le disque est-il plein&#xa0;?</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written.</source>
        <translation>L&apos;archive %1 ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>It cannot be put together: %1</source>
        <translation>Il ne peut pas être composé&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>it unpacks to more than %1, which no project of %2 does</source>
        <translation>une fois décompressé, il dépasse %1, ce qu&apos;aucun projet de %2 ne fait</translation>
    </message>
    <message>
        <source>it unpacks to %1 or more, and the disk has room for %2</source>
        <translation>une fois décompressé, il occupe %1 ou plus, et le disque n&apos;a que %2 de libre</translation>
    </message>
    <message>
        <source>%1 cannot be extracted: %2</source>
        <translation>%1 ne peut pas être extrait&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 in it cannot be read: %2</source>
        <translation>son élément %1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 in it is damaged: %2</source>
        <translation>son élément %1 est endommagé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 in it is not as long as it says</source>
        <translation>son élément %1 n&apos;a pas la longueur annoncée</translation>
    </message>
    <message>
        <source>The file %1 cannot be added to the archive.</source>
        <translation>Le fichier %1 ne peut pas être ajouté à l&apos;archive.</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written: %2.</source>
        <translation>L&apos;archive %1 ne peut pas être écrite&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it holds %1 files, more than %2</source>
        <translation>il contient %1 fichiers, plus que %2</translation>
    </message>
    <message>
        <source>%1 in it is no name of a file without a folder</source>
        <translation>son élément %1 n&apos;est pas un nom de fichier sans dossier</translation>
    </message>
    <message>
        <source>two files in it are called %1</source>
        <translation>deux de ses fichiers s&apos;appellent %1</translation>
    </message>
    <message>
        <source>The files of the project are %1, more than the %2 that can be opened again.</source>
        <translation>Les fichiers du projet sont au nombre de %1, plus que les %2 qui peuvent être rouverts.</translation>
    </message>
    <message>
        <source>it is no archive of a project, or damaged: %1</source>
        <translation>ce n&apos;est pas une archive de projet, ou elle est endommagée&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is no archive of a project: there is no %1 in it</source>
        <translation>ce n&apos;est pas une archive de projet&#xa0;: elle ne contient pas %1</translation>
    </message>
    <message>
        <source>its list of files is damaged</source>
        <translation>sa liste de fichiers est endommagée</translation>
    </message>
    <message>
        <source>it cannot be closed: %1</source>
        <translation>il ne peut pas être fermé&#xa0;: %1</translation>
    </message>
    <message>
        <source>its headers promise %1 traces of more data than can come from %2 bytes; the file is damaged or no shot file</source>
        <translation>ses en-têtes promettent %1 traces de plus de données que ne peuvent en fournir %2 octets&#xa0;; le fichier est endommagé ou n&apos;est pas un fichier de tir</translation>
    </message>
    <message>
        <source>trace %1</source>
        <translation>trace %1</translation>
    </message>
    <message>
        <source>%1 traces, the first of them trace %2,</source>
        <translation>%1 traces, dont la première est la trace %2</translation>
    </message>
    <message>
        <source>the %1 in the header of %2 is no finite number; what cannot be used of it was taken as 0</source>
        <translation>un nombre de l&apos;en-tête n&apos;est pas fini (%1&#xa0;; %2)&#xa0;; ce qui n&apos;en est pas utilisable a été pris égal à 0</translation>
    </message>
    <message>
        <source>it is no SEG-2 file of little-endian numbers</source>
        <translation>ce n&apos;est pas un fichier SEG-2 à nombres petit-boutistes</translation>
    </message>
    <message>
        <source>its last trace has no usable sample interval</source>
        <translation>sa dernière trace n&apos;a pas de pas d&apos;échantillonnage utilisable</translation>
    </message>
    <message>
        <source>source position</source>
        <translation>position de la source</translation>
    </message>
    <message>
        <source>receiver position</source>
        <translation>position du récepteur</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>délai</translation>
    </message>
    <message>
        <source>data format code %1: one 16-bit sample is taken of every four bytes</source>
        <translation>code de format de données %1&#xa0;: un échantillon de 16 bits est pris tous les quatre octets</translation>
    </message>
    <message>
        <source>data format code %1 is not read; its samples are 0</source>
        <translation>le code de format de données %1 n&apos;est pas lu&#xa0;; ses échantillons sont nuls</translation>
    </message>
    <message>
        <source>its traces are taken to lie as close as the 16-bit data of the SEG-Y file before it</source>
        <translation>ses traces sont supposées aussi rapprochées que les données de 16 bits du fichier SEG-Y précédent</translation>
    </message>
    <message>
        <source>it says that its numbers are little-endian, but is read big-endian as a file before it; load the little-endian files first</source>
        <translation>il annonce des nombres petit-boutistes, mais il est lu comme gros-boutiste, à l&apos;instar d&apos;un fichier précédent&#xa0;; chargez d&apos;abord les fichiers petit-boutistes</translation>
    </message>
    <message>
        <source>its numbers seem to be in the other byte order; load a SEG-Y file of that order first</source>
        <translation>ses nombres semblent être dans l&apos;autre ordre des octets&#xa0;; chargez d&apos;abord un fichier SEG-Y de cet ordre</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1&#xa0;; %2</translation>
    </message>
    <message>
        <source>%1 bytes after the traces that its headers name were not read</source>
        <translation>%1 octets après les traces annoncées par ses en-têtes n&apos;ont pas été lus</translation>
    </message>
    <message>
        <source>data format code %1 (IBM floats) is not read; its samples are 0</source>
        <translation>le code de format de données %1 (flottants IBM) n&apos;est pas lu&#xa0;; ses échantillons sont nuls</translation>
    </message>
    <message>
        <source>Error while loading %1</source>
        <translation>Erreur lors du chargement de %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>the survey holds S-wave pairs; add more of them in the survey geometry, or start a new survey to load shot files</source>
        <translation>le levé contient des paires d&apos;ondes S&#xa0;; ajoutez-en d&apos;autres dans la géométrie du levé, ou commencez un nouveau levé pour charger des fichiers de tirs</translation>
    </message>
    <message>
        <source>the survey holds picks without traces; start a new survey to load shot files</source>
        <translation>le levé contient des pointés sans traces&#xa0;; commencez un nouveau levé pour charger des fichiers de tirs</translation>
    </message>
    <message>
        <source>the file holds no trace</source>
        <translation>le fichier ne contient aucune trace</translation>
    </message>
    <message>
        <source>the file is cut short: %1 bytes that its headers promise are missing and were taken as zeros</source>
        <translation>le fichier est tronqué&#xa0;: %1 octets promis par ses en-têtes manquent et ont été pris comme des zéros</translation>
    </message>
    <message>
        <source>%1 samples that are no finite numbers were set to 0</source>
        <translation>%1 échantillons qui ne sont pas des nombres finis ont été mis à 0</translation>
    </message>
    <message>
        <source>its traces have different numbers of samples</source>
        <translation>ses traces n&apos;ont pas toutes le même nombre d&apos;échantillons</translation>
    </message>
    <message>
        <source>its traces have different sample intervals</source>
        <translation>ses traces n&apos;ont pas toutes le même pas d&apos;échantillonnage</translation>
    </message>
    <message>
        <source>a sample interval is not positive, so that times mean nothing</source>
        <translation>un pas d&apos;échantillonnage n&apos;est pas positif, si bien que les temps n&apos;ont pas de sens</translation>
    </message>
    <message>
        <source>The shot file %1 could not be copied; its traces are saved without it.</source>
        <translation>Le fichier de tir %1 n&apos;a pas pu être copié&#xa0;; ses traces sont enregistrées sans lui.</translation>
    </message>
    <message>
        <source>Of the shot files %1 and %2 only the second is in the project; the traces of both are.</source>
        <translation>Des fichiers de tirs %1 et %2, seul le second est dans le projet&#xa0;; les traces des deux y sont.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>a file holds no traces</source>
        <translation>un fichier ne contient aucune trace</translation>
    </message>
    <message>
        <source>the DX file has %1 traces, the SX file %2</source>
        <translation>le fichier DX a %1 traces, le fichier SX %2</translation>
    </message>
    <message>
        <source>trace %1 has a sample interval of %2 in the DX file and of %3 in the SX file</source>
        <translation>la trace %1 a un pas d&apos;échantillonnage de %2 dans le fichier DX et de %3 dans le fichier SX</translation>
    </message>
    <message>
        <source>trace %1 has a delay of %2 in the DX file and of %3 in the SX file</source>
        <translation>la trace %1 a un délai de %2 dans le fichier DX et de %3 dans le fichier SX</translation>
    </message>
    <message>
        <source>DX and SX differ in receiver positions; those of DX count</source>
        <translation>DX et SX diffèrent par les positions des récepteurs&#xa0;; celles de DX font foi</translation>
    </message>
    <message>
        <source>DX and SX differ in source position; that of DX counts</source>
        <translation>DX et SX diffèrent par la position de la source&#xa0;; celle de DX fait foi</translation>
    </message>
    <message>
        <source>DX and SX differ in length; that of DX counts</source>
        <translation>DX et SX diffèrent par la longueur&#xa0;; celle de DX fait foi</translation>
    </message>
    <message>
        <source>%1: DX and SX are the same file; their difference is nothing</source>
        <translation>%1&#xa0;: DX et SX sont le même fichier&#xa0;; leur différence est nulle</translation>
    </message>
    <message>
        <source>%1 and %2 are no pair: %3</source>
        <translation>%1 et %2 ne forment pas une paire&#xa0;: %3</translation>
    </message>
    <message>
        <source>a geophone of string %1 has no finite position; edit the geometry first</source>
        <translation>un géophone du dispositif %1 n&apos;a pas de position finie&#xa0;; modifiez d&apos;abord la géométrie</translation>
    </message>
    <message>
        <source>shot %1 has no finite position; edit the geometry first</source>
        <translation>le tir %1 n&apos;a pas de position finie&#xa0;; modifiez d&apos;abord la géométrie</translation>
    </message>
    <message>
        <source>File %1 cannot be open.</source>
        <translation>Le fichier %1 ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>a record names geophone string %1 of %2</source>
        <translation>un enregistrement désigne le dispositif de géophones %1 sur %2</translation>
    </message>
    <message>
        <source>the file holds picks of %1 shots, the survey has %2; the picks were not taken</source>
        <translation>le fichier contient les pointés de %1 tirs, le levé en a %2&#xa0;; les pointés n&apos;ont pas été repris</translation>
    </message>
    <message>
        <source>trace set %1 is named twice or not in the survey; the picks were not taken</source>
        <translation>le jeu de traces %1 est nommé deux fois ou n&apos;est pas dans le levé&#xa0;; les pointés n&apos;ont pas été repris</translation>
    </message>
    <message>
        <source>the file holds %1 times for trace set %2, which has %3 traces; the picks were not taken</source>
        <translation>le fichier contient %1 temps pour le jeu de traces %2, qui a %3 traces&#xa0;; les pointés n&apos;ont pas été repris</translation>
    </message>
    <message>
        <source>a record of the survey has no trace set; the picks were not taken</source>
        <translation>un enregistrement du levé n&apos;a pas de jeu de traces&#xa0;; les pointés n&apos;ont pas été repris</translation>
    </message>
    <message>
        <source>the line &quot;INFO&quot; is missing</source>
        <translation>la ligne «&#xa0;INFO&#xa0;» manque</translation>
    </message>
    <message>
        <source>the line begins with %1 where %2 must stand</source>
        <translation>la ligne commence par %1 au lieu de %2</translation>
    </message>
    <message>
        <source>the line %1 is missing</source>
        <translation>la ligne %1 manque</translation>
    </message>
    <message>
        <source>%1 stands without a value</source>
        <translation>%1 est sans valeur</translation>
    </message>
    <message>
        <source>the %1 is negative</source>
        <translation>la valeur de %1 est négative</translation>
    </message>
    <message>
        <source>the file ends before its last receiver line</source>
        <translation>le fichier se termine avant sa dernière ligne de récepteur</translation>
    </message>
    <message>
        <source>the receiver line holds %1 instead of 4</source>
        <translation>la ligne de récepteur contient %1 au lieu de 4</translation>
    </message>
    <message>
        <source>the receiver line holds more than 4 values</source>
        <translation>la ligne de récepteur contient plus de 4 valeurs</translation>
    </message>
    <message>
        <source>the root element is not &quot;%1&quot;</source>
        <translation>l&apos;élément racine n&apos;est pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the document ends too early</source>
        <translation>le document se termine trop tôt</translation>
    </message>
    <message>
        <source>a &apos;%1&apos; is missing</source>
        <translation>il manque un «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>it declares a document type or a data section</source>
        <translation>il déclare un type de document ou une section de données</translation>
    </message>
    <message>
        <source>an element has too long a name</source>
        <translation>un élément a un nom trop long</translation>
    </message>
    <message>
        <source>an element has no name</source>
        <translation>un élément n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>an attribute has no quotes</source>
        <translation>un attribut n&apos;a pas de guillemets</translation>
    </message>
    <message>
        <source>an attribute does not end</source>
        <translation>un attribut ne se termine pas</translation>
    </message>
    <message>
        <source>its elements are nested too deep</source>
        <translation>ses éléments sont trop profondément imbriqués</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends where &quot;%2&quot; should</source>
        <translation>«&#xa0;%1&#xa0;» se termine là où «&#xa0;%2&#xa0;» devrait se terminer</translation>
    </message>
    <message>
        <source>something follows the root element</source>
        <translation>quelque chose suit l&apos;élément racine</translation>
    </message>
    <message>
        <source>there is text in &quot;%1&quot;, which holds elements</source>
        <translation>il y a du texte dans «&#xa0;%1&#xa0;», qui contient des éléments</translation>
    </message>
    <message>
        <source>an entity does not end</source>
        <translation>une entité ne se termine pas</translation>
    </message>
    <message>
        <source>an unknown entity</source>
        <translation>une entité inconnue</translation>
    </message>
    <message>
        <source>a character that does not exist</source>
        <translation>un caractère qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>a byte of value 0</source>
        <translation>un octet de valeur 0</translation>
    </message>
    <message>
        <source>there is an element in &quot;%1&quot;, which holds text</source>
        <translation>il y a un élément dans «&#xa0;%1&#xa0;», qui contient du texte</translation>
    </message>
    <message>
        <source>a text is too long</source>
        <translation>un texte est trop long</translation>
    </message>
    <message>
        <source>it holds too many sequences</source>
        <translation>il contient trop de séquences</translation>
    </message>
    <message>
        <source>it holds bytes that no text holds</source>
        <translation>il contient des octets qu&apos;aucun texte ne contient</translation>
    </message>
    <message>
        <source>it holds no XML</source>
        <translation>il ne contient pas de XML</translation>
    </message>
    <message>
        <source>it ends within an element</source>
        <translation>il se termine à l&apos;intérieur d&apos;un élément</translation>
    </message>
    <message>
        <source>it has a malformed tag</source>
        <translation>il a une balise mal formée</translation>
    </message>
    <message>
        <source>it has a document type or raw data, which no file of this kind has</source>
        <translation>il a un type de document ou des données brutes, ce qu&apos;aucun fichier de ce genre n&apos;a</translation>
    </message>
    <message>
        <source>it closes an element that it has not opened</source>
        <translation>il ferme un élément qu&apos;il n&apos;a pas ouvert</translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <translation>ses éléments sont trop profondément imbriqués</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>not a finite time</source>
        <translation>temps non fini</translation>
    </message>
    <message>
        <source>%1, above an hour</source>
        <translation>%1, plus d&apos;une heure</translation>
    </message>
    <message>
        <source>%1, beyond its record of %2</source>
        <translation>%1, au-delà de son enregistrement de %2</translation>
    </message>
    <message>
        <source>shot %1, trace %2 (%3)</source>
        <translation>tir %1, trace %2 (%3)</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1&#xa0;; et %2 de plus</translation>
    </message>
    <message>
        <source>a pick that cannot be was dropped: %1</source>
        <translation>un pointé impossible a été retiré&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 picks that cannot be were dropped: %2</source>
        <translation>%1 pointés impossibles ont été retirés&#xa0;: %2</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>tir %1</translation>
    </message>
    <message>
        <source>%1 has no traces to pick on</source>
        <translation>%1&#xa0;: aucune trace à pointer</translation>
    </message>
    <message>
        <source>the machine has no memory left to pick first breaks</source>
        <translation>la machine n&apos;a plus de mémoire pour pointer les premières arrivées</translation>
    </message>
    <message>
        <source>%1 has no record of times to screen</source>
        <translation>%1&#xa0;: aucun enregistrement de temps à contrôler</translation>
    </message>
    <message>
        <source>the picks of %1 are not screened: it has no geophone string</source>
        <translation>%1&#xa0;: ses pointés ne sont pas contrôlés, faute de dispositif de géophones</translation>
    </message>
    <message>
        <source>must be above 0 Hz and below %1 Hz, the highest frequency of the spectrum</source>
        <translation>doit être supérieure à 0 Hz et inférieure à %1 Hz, la plus haute fréquence du spectre</translation>
    </message>
    <message>
        <source>has no limit to keep to, as the spectrum has no frequency above 0 Hz: the traces are too short or their sample interval is not known</source>
        <translation>n&apos;a pas de limite à respecter, car le spectre n&apos;a aucune fréquence supérieure à 0 Hz&#xa0;: les traces sont trop courtes ou leur pas d&apos;échantillonnage est inconnu</translation>
    </message>
    <message>
        <source>No filter applied. The %1 cut-off of %2 Hz %3.</source>
        <translation>Aucun filtre appliqué. La fréquence de coupure du %1, %2 Hz, %3.</translation>
    </message>
    <message>
        <source>there are no traces</source>
        <translation>il n&apos;y a pas de traces</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>Aucun filtre appliqué. L&apos;ordre du filtre doit être supérieur à 0.</translation>
    </message>
    <message>
        <source>low-pass</source>
        <translation>passe-bas</translation>
    </message>
    <message>
        <source>high-pass</source>
        <translation>passe-haut</translation>
    </message>
    <message>
        <source>sample %1 is %2, which no filter can take</source>
        <translation>l&apos;échantillon %1 vaut %2, ce qu&apos;aucun filtre ne peut accepter</translation>
    </message>
    <message>
        <source>the result does not fit single precision; scale the samples down</source>
        <translation>le résultat dépasse la simple précision&#xa0;; réduisez l&apos;échelle des échantillons</translation>
    </message>
    <message>
        <source>No filter applied. Filter order %1 is above the limit of %2.</source>
        <translation>Aucun filtre appliqué. L&apos;ordre %1 du filtre dépasse la limite de %2.</translation>
    </message>
    <message>
        <source>No filter applied. The cut-off is %1 of the sample rate; it must be above 0 and below 0.5.</source>
        <translation>Aucun filtre appliqué. La fréquence de coupure est %1 fois la fréquence d&apos;échantillonnage&#xa0;; elle doit être supérieure à 0 et inférieure à 0,5.</translation>
    </message>
    <message>
        <source>No filter applied. Single precision cannot hold a filter of order %1 with a cut-off of %2 of the sample rate; choose a lower order or a cut-off nearer to the middle of the range.</source>
        <translation>Aucun filtre appliqué. La simple précision ne suffit pas à un filtre d&apos;ordre %1 dont la fréquence de coupure est %2 fois la fréquence d&apos;échantillonnage&#xa0;; choisissez un ordre plus bas ou une fréquence de coupure plus proche du milieu de la plage.</translation>
    </message>
    <message>
        <source>No filter applied. The filter cannot be created.</source>
        <translation>Aucun filtre appliqué. Le filtre ne peut pas être créé.</translation>
    </message>
    <message>
        <source>the energy of the samples does not fit single precision; scale them down</source>
        <translation>l&apos;énergie des échantillons dépasse la simple précision&#xa0;; réduisez leur échelle</translation>
    </message>
    <message>
        <source>There is no grid with cells; build the grid first.</source>
        <translation>Il n&apos;y a pas de grille avec des cellules&#xa0;; construisez d&apos;abord la grille.</translation>
    </message>
    <message>
        <source>The velocity model cannot be used: %1</source>
        <translation>Le modèle de vitesse ne peut pas être utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Ray tracing of shot %1 failed: %2</source>
        <translation>Le tracé des rais du tir %1 a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>Choose a positive cell size and no negative depth.</source>
        <translation>Choisissez une taille de cellule positive et une profondeur non négative.</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
Please set the position of geophones
</source>
        <translation>Les géophones n&apos;ont pas de géométrie&#xa0;! 
Veuillez définir la position des géophones
</translation>
    </message>
    <message>
        <source>A position of the survey lies more than 100 000 km away; please check the geometry.</source>
        <translation>Une position du levé est à plus de 100&#xa0;000 km&#xa0;; veuillez vérifier la géométrie.</translation>
    </message>
    <message>
        <source>A grid of cells of %1 with %2 nodes per side, %3 deep, cannot be built; choose a positive cell size, two nodes at least and no negative depth.</source>
        <translation>Une grille de cellules de %1 avec %2 nœuds par côté et une profondeur de %3 ne peut pas être construite&#xa0;; choisissez une taille de cellule positive, au moins deux nœuds et une profondeur non négative.</translation>
    </message>
    <message>
        <source>The grid could not be built; see the error stream.</source>
        <translation>La grille n&apos;a pas pu être construite&#xa0;; voyez le flux d&apos;erreur.</translation>
    </message>
    <message>
        <source>The grid could not be built: %1</source>
        <translation>La grille n&apos;a pas pu être construite&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no grid yet; build the grid first.</source>
        <translation>Il n&apos;y a pas encore de grille&#xa0;; construisez d&apos;abord la grille.</translation>
    </message>
    <message>
        <source>The smoothing parameter must be 1 at least.</source>
        <translation>Le paramètre de lissage doit être au moins égal à 1.</translation>
    </message>
    <message>
        <source>The smoothed velocity model cannot be used: %1</source>
        <translation>Le modèle de vitesse lissé ne peut pas être utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The grid could not be smoothed: %1</source>
        <translation>La grille n&apos;a pas pu être lissée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The rays could not be traced: %1</source>
        <translation>Les rais n&apos;ont pas pu être tracés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Iterations and smoothing parameter must be 1 at least.</source>
        <translation>Le nombre d&apos;itérations et le paramètre de lissage doivent être au moins égaux à 1.</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers; %1 is none.</source>
        <translation>Les limites de vitesse doivent être des nombres positifs&#xa0;; %1 n&apos;en est pas un.</translation>
    </message>
    <message>
        <source>its gradient has no colours</source>
        <translation>son dégradé n&apos;a pas de couleurs</translation>
    </message>
    <message>
        <source>a colour stop of its gradient is not a finite number</source>
        <translation>un point de couleur de son dégradé n&apos;est pas un nombre fini</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>son nom est trop long</translation>
    </message>
    <message>
        <source>its range of values is out of bounds</source>
        <translation>sa plage de valeurs est hors limites</translation>
    </message>
    <message>
        <source>its gradient has %1 colour stops, more than %2</source>
        <translation>son dégradé a %1 points de couleur, plus que %2</translation>
    </message>
    <message>
        <source>A section has 0 to %1 contour values.</source>
        <translation>Une coupe a de 0 à %1 valeurs d&apos;isolignes.</translation>
    </message>
    <message>
        <source>The value range of the section is empty: its maximum must be greater than its minimum.</source>
        <translation>La plage de valeurs de la coupe est vide&#xa0;: son maximum doit être supérieur à son minimum.</translation>
    </message>
    <message>
        <source>There is no section to draw: no cell that is shown has a value for &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de coupe à dessiner&#xa0;: aucune cellule affichée n&apos;a de valeur pour «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no section to draw: the survey has no grid yet. Build one.</source>
        <translation>Il n&apos;y a pas de coupe à dessiner&#xa0;: le levé n&apos;a pas encore de grille. Construisez-en une.</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Gradient vertical de vitesse</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplacien de la vitesse</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densité d&apos;information</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>The layers give a velocity of %1 at a depth of %2, which is no velocity of the ground. Let the layers cover the whole depth of the grid, or make the change between them gentler.</source>
        <translation>Les couches donnent une vitesse de %1 à %2 de profondeur, ce qui n&apos;est pas une vitesse du sol. Faites couvrir aux couches toute la profondeur de la grille, ou adoucissez le passage de l&apos;une à l&apos;autre.</translation>
    </message>
    <message>
        <source>a number is out of range or not finite</source>
        <translation>un nombre est hors limites ou n&apos;est pas fini</translation>
    </message>
    <message>
        <source>the value of %1 is not a number it can hold</source>
        <translation>la valeur de %1 n&apos;est pas un nombre possible</translation>
    </message>
    <message>
        <source>palette %1: %2</source>
        <translation>palette %1 : %2</translation>
    </message>
    <message>
        <source>there are no palettes in it</source>
        <translation>il ne contient aucune palette</translation>
    </message>
    <message>
        <source>palette %1: %2; it is left out</source>
        <translation>palette %1 : %2 ; elle est laissée de côté</translation>
    </message>
    <message>
        <source>the name of palette %1 has control characters; they are blanks now</source>
        <translation>le nom de la palette %1 contient des caractères de contrôle ; ce sont maintenant des espaces</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number that it can hold</source>
        <translation>« %1 » n&apos;est pas un nombre possible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>« %1 » n&apos;est ni vrai ni faux</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>« %1 » y est deux fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>« %1 » manque</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 ko</translation>
    </message>
    <message>
        <source>The last steps of the inversion failed: %1</source>
        <translation>Les dernières étapes de l&apos;inversion ont échoué : %1</translation>
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
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>SEG2 format (%1)</source>
        <translation>Format SEG2 (%1)</translation>
    </message>
    <message>
        <source>SEGY format (%1)</source>
        <translation>Format SEGY (%1)</translation>
    </message>
    <message>
        <source>SU format (%1)</source>
        <translation>Format SU (%1)</translation>
    </message>
    <message>
        <source>Open Travel Time Exchange format (%1)</source>
        <translation>Format Open Travel Time Exchange (%1)</translation>
    </message>
    <message>
        <source>T-x curves (%1)</source>
        <translation>Courbes T-x (%1)</translation>
    </message>
    <message>
        <source>Sectioned pick table (%1)</source>
        <translation>Tableau de pointés en sections (%1)</translation>
    </message>
    <message>
        <source>Pick table (%1)</source>
        <translation>Tableau de pointés (%1)</translation>
    </message>
    <message>
        <source>Talvesk projects (%1)</source>
        <translation>Projets Talvesk (%1)</translation>
    </message>
    <message>
        <source>Seismic files (%1)</source>
        <translation>Fichiers sismiques (%1)</translation>
    </message>
    <message>
        <source>Travel times (%1)</source>
        <translation>Temps de parcours (%1)</translation>
    </message>
    <message>
        <source>the coverage of the last inversion and its figures are not known</source>
        <translation>la couverture de la dernière inversion et ses chiffres ne sont pas connus</translation>
    </message>
    <message>
        <source>every pick counts as confirmed</source>
        <translation>tous les pointés comptent comme confirmés</translation>
    </message>
    <message>
        <source>%1 and what else this version does not know, %2 in all, is too much to be kept; it will not be in the next save</source>
        <translation>%1 et ce que cette version ne connaît pas non plus, %2 en tout, est trop volumineux pour être conservé&#xa0;; cela manquera au prochain enregistrement</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of Talvesk; it stays as it is, but %2</source>
        <translation>%1 a été écrit par une version plus récente de Talvesk&#xa0;; il reste tel quel, mais %2</translation>
    </message>
    <message>
        <source>%1 is of another version of Talvesk; it stays as it is, but is not used</source>
        <translation>%1 provient d&apos;une autre version de Talvesk&#xa0;; il reste tel quel, mais n&apos;est pas utilisé</translation>
    </message>
    <message>
        <source>%1 of a newer version of Talvesk gave way to that of this version: what it told of has changed.</source>
        <translation>%1 d&apos;une version plus récente de Talvesk a cédé la place à celui de cette version&#xa0;: ce qu&apos;il décrivait a changé.</translation>
    </message>
    <message>
        <source>it is about other picks than those of the project</source>
        <translation>il porte sur d&apos;autres pointés que ceux du projet</translation>
    </message>
    <message>
        <source>its suffix is none of %1</source>
        <translation>son suffixe n&apos;est aucun de ceux-ci&#xa0;: %1</translation>
    </message>
    <message>
        <source>Invalid input TT file : %1 (its suffix is none of %2)</source>
        <translation>Fichier TT d&apos;entrée non valide&#xa0;: %1 (son suffixe n&apos;est aucun de ceux-ci&#xa0;: %2)</translation>
    </message>
    <message>
        <source>Open shot files</source>
        <translation>Ouvrir des fichiers de tirs</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Supprimer le tir</translation>
    </message>
    <message>
        <source>Import travel times</source>
        <translation>Importer des temps de parcours</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Compter les temps à partir du tir</translation>
    </message>
    <message>
        <source>Edit picks</source>
        <translation>Modifier les pointés</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Confirmer les pointés</translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation>AutoPick</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Géométrie</translation>
    </message>
    <message>
        <source>S-wave recordings</source>
        <translation>Enregistrements d&apos;ondes S</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Définir le modèle de vitesse</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Appliquer un lissage</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Lancer l&apos;inversion tomographique</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Réfraction</translation>
    </message>
    <message>
        <source>Set title</source>
        <translation>Définir le titre</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolignes</translation>
    </message>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Définir les coordonnées géographiques</translation>
    </message>
    <message>
        <source>another edit is under way; try again when it is through</source>
        <translation>une autre modification est en cours&#xa0;; réessayez quand elle sera terminée</translation>
    </message>
    <message>
        <source>the edit failed: %1</source>
        <translation>la modification a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>no edit is under way</source>
        <translation>aucune modification n&apos;est en cours</translation>
    </message>
    <message>
        <source>%1 would change what it must not; nothing was changed</source>
        <translation>«&#xa0;%1&#xa0;» modifierait ce qui ne doit pas l&apos;être&#xa0;; rien n&apos;a été modifié</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Supprimer les pointés</translation>
    </message>
    <message>
        <source>Remove pick</source>
        <translation>Supprimer le pointé</translation>
    </message>
    <message>
        <source>Nudge pick</source>
        <translation>Ajuster le pointé</translation>
    </message>
    <message>
        <source>Set pick</source>
        <translation>Placer le pointé</translation>
    </message>
    <message>
        <source>Move pick</source>
        <translation>Déplacer le pointé</translation>
    </message>
    <message>
        <source>Draw picks</source>
        <translation>Tracer les pointés</translation>
    </message>
    <message>
        <source>the survey has no such shot; check the recordings again</source>
        <translation>le levé n&apos;a pas ce tir&#xa0;; vérifiez à nouveau les enregistrements</translation>
    </message>
    <message>
        <source>shot %1: a position is missing, no number or absurdly far away</source>
        <translation>tir %1&#xa0;: une position manque, n&apos;est pas un nombre ou est absurdement lointaine</translation>
    </message>
    <message>
        <source>shot %1: its geophone string has another number of geophones than the proposal; check the recordings again</source>
        <translation>tir %1&#xa0;: son dispositif n&apos;a pas le même nombre de géophones que la proposition&#xa0;; vérifiez à nouveau les enregistrements</translation>
    </message>
    <message>
        <source>there is no trace %1; check the recordings again</source>
        <translation>il n&apos;y a pas de trace %1&#xa0;; vérifiez à nouveau les enregistrements</translation>
    </message>
    <message>
        <source>no trace of the record holds anything</source>
        <translation>aucune trace de l&apos;enregistrement ne contient quoi que ce soit</translation>
    </message>
    <message>
        <source>dead: the samples of %1 are all the same</source>
        <translation>trace morte&#xa0;: tous les échantillons sont identiques (%1)</translation>
    </message>
    <message>
        <source>as good as dead: %1, at down to %2 % of the strength of the neighbours</source>
        <translation>signal presque mort (%1)&#xa0;: l&apos;amplitude descend jusqu&apos;à %2&#xa0;% de celle des voisines</translation>
    </message>
    <message>
        <source>clipped: the swings of %1 are cut off flat, up to %2 times; first breaks can be picked, amplitudes mean nothing</source>
        <translation>écrêtage (%1)&#xa0;: les oscillations sont coupées à plat, jusqu&apos;à %2 fois&#xa0;; les premières arrivées peuvent être pointées, les amplitudes n&apos;ont pas de sens</translation>
    </message>
    <message>
        <source>noisy: before the first arrival of %1 there is up to %2 times the noise of the neighbours, and it drowns the arrival</source>
        <translation>bruit (%1)&#xa0;: avant la première arrivée, il atteint jusqu&apos;à %2 fois celui des voisines et noie l&apos;arrivée</translation>
    </message>
    <message>
        <source>doubled: trace %1 is trace %2 once more (correlation %3); the arrivals around say that it belongs to the latter</source>
        <translation>doublon&#xa0;: la trace %1 répète la trace %2 (corrélation %3)&#xa0;; d&apos;après les arrivées alentour, le signal appartient à cette dernière</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>traces %1</source>
        <translation>traces %1</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>tirs %1</translation>
    </message>
    <message>
        <source>shot position</source>
        <translation>position du tir</translation>
    </message>
    <message>
        <source>station numbers</source>
        <translation>numéros de station</translation>
    </message>
    <message>
        <source>repeated positions</source>
        <translation>positions répétées</translation>
    </message>
    <message>
        <source>reversed order</source>
        <translation>ordre inversé</translation>
    </message>
    <message>
        <source>doubled trace</source>
        <translation>trace en double</translation>
    </message>
    <message>
        <source>moved traces</source>
        <translation>traces déplacées</translation>
    </message>
    <message>
        <source>geophone off the line</source>
        <translation>géophone hors de la ligne</translation>
    </message>
    <message>
        <source>trigger time</source>
        <translation>instant de déclenchement</translation>
    </message>
    <message>
        <source>dead traces</source>
        <translation>traces mortes</translation>
    </message>
    <message>
        <source>clipped traces</source>
        <translation>traces écrêtées</translation>
    </message>
    <message>
        <source>noisy traces</source>
        <translation>traces bruitées</translation>
    </message>
    <message>
        <source>reversed polarity</source>
        <translation>polarité inversée</translation>
    </message>
    <message>
        <source>mistimed trace</source>
        <translation>trace décalée en temps</translation>
    </message>
    <message>
        <source>sample intervals</source>
        <translation>pas d&apos;échantillonnage</translation>
    </message>
    <message>
        <source>repeated shot</source>
        <translation>tir répété</translation>
    </message>
    <message>
        <source>overlapping spreads</source>
        <translation>dispositifs en recouvrement</translation>
    </message>
    <message>
        <source>no elevations</source>
        <translation>aucune altitude</translation>
    </message>
    <message>
        <source>move the record later by %1 ms</source>
        <translation>retarder l&apos;enregistrement de %1 ms</translation>
    </message>
    <message>
        <source>move the record earlier by %1 ms</source>
        <translation>avancer l&apos;enregistrement de %1 ms</translation>
    </message>
    <message>
        <source>kill %1</source>
        <translation>neutraliser&#xa0;: %1</translation>
    </message>
    <message>
        <source>reverse the polarity of %1</source>
        <translation>inverser la polarité&#xa0;: %1</translation>
    </message>
    <message>
        <source>mute %1 before %2 ms</source>
        <translation>mute avant %2 ms&#xa0;: %1</translation>
    </message>
    <message>
        <source>read the channels from the last to the first</source>
        <translation>lire les canaux du dernier au premier</translation>
    </message>
    <message>
        <source>put the shot at %1</source>
        <translation>placer le tir à %1</translation>
    </message>
    <message>
        <source>stack it with %1; the stack alone counts then</source>
        <translation>sommer avec&#xa0;: %1&#xa0;; seule la somme compte alors</translation>
    </message>
    <message>
        <source>disable the shot</source>
        <translation>désactiver le tir</translation>
    </message>
    <message>
        <source>exchanged: over all shots the arrivals of trace %1 belong to the place of trace %2, and the other way round</source>
        <translation>traces échangées&#xa0;: sur tous les tirs, les arrivées de la trace %1 appartiennent à la place de la trace %2, et inversement</translation>
    </message>
    <message>
        <source>off the line: geophone %1 is said to be at %2; from both sides its arrivals are those of %3</source>
        <translation>hors de la ligne&#xa0;: le géophone %1 est indiqué à %2&#xa0;; des deux côtés, ses arrivées sont celles de %3</translation>
    </message>
    <message>
        <source>%1 geophones are said to be at %2 places only</source>
        <translation>%1 géophones sont indiqués à %2 positions seulement</translation>
    </message>
    <message>
        <source>the shot is said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>le tir est indiqué à %1&#xa0;; le nom du fichier dit %2, et les temps minimaux du levé suivent les noms</translation>
    </message>
    <message>
        <source>the shot is said to be at an elevation of %1, and the geophones have none that could be theirs</source>
        <translation>le tir est indiqué à une altitude de %1, et aucune altitude des géophones ne peut être la sienne</translation>
    </message>
    <message>
        <source>the channels run against the geophones: the least times of %1 of %2 shots are beside the shot only when the string is read from its last geophone to its first</source>
        <translation>les canaux vont à rebours des géophones&#xa0;: pour %1 tirs sur %2, les temps ne sont minimaux à côté du tir que si le dispositif est lu du dernier géophone au premier</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>tous les tirs sont indiqués à %1&#xa0;; le nom du fichier dit %2, et les temps minimaux du levé suivent les noms</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the times of this one are least at %2</source>
        <translation>tous les tirs sont indiqués à %1&#xa0;; les temps de celui-ci sont minimaux à %2</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; this one was at an end of the geophones or beyond</source>
        <translation>tous les tirs sont indiqués à %1&#xa0;; celui-ci était à une extrémité des géophones ou au-delà</translation>
    </message>
    <message>
        <source>the channels of this record run against the geophones: read from the last to the first the times are least beside the shot at %1</source>
        <translation>les canaux de cet enregistrement vont à rebours des géophones&#xa0;: lus du dernier au premier, les temps sont minimaux à côté du tir, à %1</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times grow from %2 on all the way through the geophones: it was at that end of them or beyond</source>
        <translation>le tir est indiqué à %1, mais les temps croissent à partir de %2 tout au long des géophones&#xa0;: il était à cette extrémité ou au-delà</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times are least at %2, beside geophone %3, and grow on both sides of it</source>
        <translation>le tir est indiqué à %1, mais les temps sont minimaux à %2, à côté du géophone %3, et croissent de part et d&apos;autre</translation>
    </message>
    <message>
        <source>%1; or the geophones stand %2 apart and not %3, which no other shot can decide</source>
        <translation>%1&#xa0;; ou bien les géophones sont espacés de %2 et non de %3, ce qu&apos;aucun autre tir ne permet de trancher</translation>
    </message>
    <message>
        <source>mistimed: trace %1 has its first arrival at %2 ms, its neighbours let expect it at %3 ms, and from there on it looks like them (correlation %4)</source>
        <translation>trace décalée en temps&#xa0;: la trace %1 a sa première arrivée à %2 ms, ses voisines la laissent attendre à %3 ms, et à partir de là elle leur ressemble (corrélation %4)</translation>
    </message>
    <message>
        <source>reversed: the first swings of %1 go against those of the neighbours, which agree with each other (correlation -%2 at least)</source>
        <translation>polarité inversée (%1)&#xa0;: les premières oscillations vont à l&apos;encontre de celles des voisines, qui concordent entre elles (corrélation d&apos;au moins -%2)</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2, with %3 times the signal to noise of this one</source>
        <translation>le tir %1 a été enregistré au même point, à %2, avec %3 fois le rapport signal sur bruit de celui-ci</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2; its arrivals are %3 ms later</source>
        <translation>le tir %1 a été enregistré au même point, à %2&#xa0;; ses arrivées sont plus tardives de %3 ms</translation>
    </message>
    <message>
        <source>the record is that of shot %1 once more, sample for sample</source>
        <translation>l&apos;enregistrement répète celui du tir %1, échantillon par échantillon</translation>
    </message>
    <message>
        <source>the sample intervals of its traces differ, %1 to %2 ms: the times of some are wrong unless the recorder meant it</source>
        <translation>les pas d&apos;échantillonnage de ses traces diffèrent, de %1 à %2 ms&#xa0;: les temps de certaines sont faux, sauf si le sismographe était réglé ainsi</translation>
    </message>
    <message>
        <source>its traces have no sample interval: they have no times</source>
        <translation>ses traces n&apos;ont pas de pas d&apos;échantillonnage&#xa0;: elles n&apos;ont pas de temps</translation>
    </message>
    <message>
        <source>the sample interval is %2 ms in %1, and %3 ms in most others: right if the recorder was set so</source>
        <translation>le pas d&apos;échantillonnage est de %2 ms (%1), et de %3 ms pour la plupart des autres&#xa0;: correct si le sismographe était réglé ainsi</translation>
    </message>
    <message>
        <source>strings %1 and %2 overlap and have other elevations at %3 places, by up to %4 at %5</source>
        <translation>les dispositifs %1 et %2 se recouvrent et ont des altitudes différentes en %3 endroits, de %4 au plus, à %5</translation>
    </message>
    <message>
        <source>no elevations: all shots and geophones are at %1; if the ground is not level, read them from a table in the survey geometry</source>
        <translation>aucune altitude&#xa0;: tous les tirs et géophones sont à %1&#xa0;; si le terrain n&apos;est pas plat, lisez-les dans un tableau, dans la géométrie du levé</translation>
    </message>
    <message>
        <source>the shot&apos;s position %1 counts stations: over %2 shots the least times move by %3 for each 1 in the position</source>
        <translation>la position %1 du tir compte des stations&#xa0;: sur %2 tirs, les temps minimaux se déplacent de %3 pour chaque unité de la position</translation>
    </message>
    <message>
        <source>late</source>
        <translation>en retard</translation>
    </message>
    <message>
        <source>early</source>
        <translation>en avance</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: %3 times to the places of other shots differ by that from the times back, give or take %4 ms</source>
        <translation>l&apos;enregistrement est %2 de %1 ms&#xa0;: %3 temps vers les emplacements d&apos;autres tirs diffèrent d&apos;autant des temps de retour, à %4 ms près</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: its times differ by that from those of %3 other shots at equal distances, give or take %4 ms</source>
        <translation>l&apos;enregistrement est %2 d&apos;environ %1 ms&#xa0;: ses temps diffèrent d&apos;autant de ceux de %3 autres tirs à distances égales, à %4 ms près</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: all channels have a spike at %3 ms at once, before anything can have arrived</source>
        <translation>l&apos;enregistrement est %2 de %1 ms&#xa0;: tous les canaux ont une impulsion simultanée à %3 ms, avant que quoi que ce soit ait pu arriver</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it has %1 columns and no heading that names one for the distance and one for the elevation</source>
        <translation>il a %1 colonnes et aucun en-tête qui en nomme une pour la distance et une pour l&apos;altitude</translation>
    </message>
    <message>
        <source>it holds no point</source>
        <translation>il ne contient aucun point</translation>
    </message>
    <message>
        <source>Unified data format (%1)</source>
        <translation>Format de données unifié (%1)</translation>
    </message>
    <message>
        <source>no heading names shot, geophone and time</source>
        <translation>aucun en-tête ne nomme tir, géophone et temps</translation>
    </message>
    <message>
        <source>%1 lines above the heading were ignored</source>
        <translation>%1 lignes au-dessus de l&apos;en-tête ont été ignorées</translation>
    </message>
    <message>
        <source>the columns %1 and %2 were taken for positions in metres</source>
        <translation>les colonnes %1 et %2 ont été prises comme positions en mètres</translation>
    </message>
    <message>
        <source>the heading does not say whether its times are in ms or in s</source>
        <translation>l&apos;en-tête ne dit pas si ses temps sont en ms ou en s</translation>
    </message>
    <message>
        <source>no row follows the heading</source>
        <translation>aucune ligne ne suit l&apos;en-tête</translation>
    </message>
    <message>
        <source>there are more than %1 geophones</source>
        <translation>il y a plus de %1 géophones</translation>
    </message>
    <message>
        <source>%1 of %2 rows have no time above 0, or are not valid, and are no picks</source>
        <translation>%1 lignes sur %2 n&apos;ont pas de temps supérieur à 0, ou ne sont pas valides, et ne sont pas des pointés</translation>
    </message>
    <message>
        <source>%1 shots and %2 geophones are far too many for %3 rows</source>
        <translation>%1 tirs et %2 géophones sont bien trop nombreux pour %3 lignes</translation>
    </message>
    <message>
        <source>no column tells the elevations of the shots; they were put on the line of the geophones</source>
        <translation>aucune colonne ne donne les altitudes des tirs&#xa0;; ils ont été placés sur la ligne des géophones</translation>
    </message>
    <message>
        <source>no heading names a column for the distance and one for the elevation</source>
        <translation>aucun en-tête ne nomme une colonne pour la distance et une pour l&apos;altitude</translation>
    </message>
    <message>
        <source>the unified data format</source>
        <translation>format de données unifié</translation>
    </message>
    <message>
        <source>a table with a heading</source>
        <translation>tableau avec en-tête</translation>
    </message>
    <message>
        <source>a pick table of long lines</source>
        <translation>tableau de pointés à longues lignes</translation>
    </message>
    <message>
        <source>%1 times are of a shot and geophone that had one already; the first of them counts</source>
        <translation>%1 temps concernent un tir et un géophone qui en avaient déjà un&#xa0;; le premier compte</translation>
    </message>
    <message>
        <source>position</source>
        <translation>position</translation>
    </message>
    <message>
        <source>number of positions</source>
        <translation>nombre de positions</translation>
    </message>
    <message>
        <source>number of measurements</source>
        <translation>nombre de mesures</translation>
    </message>
    <message>
        <source>number of points of topography</source>
        <translation>nombre de points de topographie</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is not a number</source>
        <translation>%2 (%1) n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is out of range</source>
        <translation>%2 (%1) est hors limites</translation>
    </message>
    <message>
        <source>all shot files count as read by the program&apos;s rules; the traces are those that were saved</source>
        <translation>tous les fichiers de tirs comptent comme lus selon les règles du programme&#xa0;; les traces sont celles qui ont été enregistrées dans le projet</translation>
    </message>
    <message>
        <source>what was mended in its recordings is not known; traces and picks stay as they are</source>
        <translation>ce qui a été corrigé dans ses enregistrements n&apos;est pas connu&#xa0;; les traces et les pointés restent tels quels</translation>
    </message>
    <message>
        <source>there is a grid, but a position lies more than 100 000 km away</source>
        <translation>il y a une grille, mais une position se trouve à plus de 100&#xa0;000 km</translation>
    </message>
    <message>
        <source>mends.xml: the mends of these shots are not those of their traces, and are left out; traces and picks stay as they are: %1</source>
        <translation>mends.xml&#xa0;: les corrections de ces tirs ne sont pas celles de leurs traces et sont écartées&#xa0;; les traces et les pointés restent tels quels&#xa0;: %1</translation>
    </message>
    <message>
        <source>it is about other shot files than those of the project</source>
        <translation>il porte sur d&apos;autres fichiers de tirs que ceux du projet</translation>
    </message>
    <message>
        <source>the program&apos;s rules find no trace in it</source>
        <translation>les règles du programme n&apos;y trouvent aucune trace</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces of %3 shots</source>
        <translation>les règles du programme lisent %1 de ses %2 traces de %3 tirs</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces</source>
        <translation>les règles du programme lisent %1 de ses %2 traces</translation>
    </message>
    <message>
        <source>the program&apos;s rules make one shot of its %1</source>
        <translation>les règles du programme font un seul tir de ses %1</translation>
    </message>
    <message>
        <source>%1 of %2 traces are all zeros by the program&apos;s rules</source>
        <translation>%1 traces sur %2 sont toutes nulles selon les règles du programme</translation>
    </message>
    <message>
        <source>the samples of %1 of %2 traces are not those of the standard, and not for their scale alone</source>
        <translation>les échantillons de %1 traces sur %2 ne sont pas ceux de la norme, et pas seulement par leur échelle</translation>
    </message>
    <message>
        <source>%1 of %2 traces are shorter by the program&apos;s rules</source>
        <translation>%1 traces sur %2 sont plus courtes selon les règles du programme</translation>
    </message>
    <message>
        <source>the sample interval is %1 ms by the program&apos;s rules, %2 ms by the standard</source>
        <translation>le pas d&apos;échantillonnage est de %1 ms selon les règles du programme, de %2 ms selon la norme</translation>
    </message>
    <message>
        <source>its records start %1 ms from the shot by the program&apos;s rules, %2 ms by the standard</source>
        <translation>ses enregistrements commencent à %1 ms du tir selon les règles du programme, à %2 ms selon la norme</translation>
    </message>
    <message>
        <source>its geophones are at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>positions de ses géophones&#xa0;: %1 selon les règles du programme, %2 selon la norme</translation>
    </message>
    <message>
        <source>its shot is at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>position de son tir&#xa0;: %1 selon les règles du programme, %2 selon la norme</translation>
    </message>
    <message>
        <source>the elevations of %1 of %2 traces are others by the program&apos;s rules</source>
        <translation>les altitudes de %1 traces sur %2 sont autres selon les règles du programme</translation>
    </message>
    <message>
        <source>the program&apos;s rules cannot read it</source>
        <translation>les règles du programme ne peuvent pas le lire</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>the traces of shot %1 differ in sample interval or in the time of their first sample; they cannot be in one record</source>
        <translation>les traces du tir %1 n&apos;ont pas toutes le même pas d&apos;échantillonnage ou le même temps du premier échantillon&#xa0;; elles ne peuvent pas être dans un même enregistrement</translation>
    </message>
    <message>
        <source>it has no sample interval</source>
        <translation>il n&apos;a pas de pas d&apos;échantillonnage</translation>
    </message>
    <message>
        <source>its traces have %1 samples; a file holds %2</source>
        <translation>ses traces ont %1 échantillons&#xa0;; un fichier en contient au plus %2</translation>
    </message>
    <message>
        <source>it has %1 traces; a SEG-2 file holds %2</source>
        <translation>il a %1 traces&#xa0;; un fichier SEG-2 en contient au plus %2</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>tir %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>read by the program&apos;s rules, the files have no elevations, and no positions that are not whole metres; read them by the standard</source>
        <translation>lus selon les règles du programme, les fichiers n&apos;ont pas d&apos;altitudes, ni de positions qui ne soient pas des mètres entiers&#xa0;; lisez-les selon la norme</translation>
    </message>
    <message>
        <source>%1 shots are disabled or have no samples and were left out</source>
        <translation>%1 tirs sont désactivés ou sans échantillons et ont été écartés</translation>
    </message>
    <message>
        <source>%1 traces begin at the shot; what was recorded before is not in the files</source>
        <translation>%1 traces commencent au tir&#xa0;; ce qui a été enregistré avant n&apos;est pas dans les fichiers</translation>
    </message>
    <message>
        <source>%1 samples were rounded to the seven digits of a 32-bit float</source>
        <translation>%1 échantillons ont été arrondis aux sept chiffres d&apos;un flottant de 32 bits</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>interruption demandée</translation>
    </message>
    <message>
        <source>shot %1 has no samples</source>
        <translation>le tir %1 n&apos;a pas d&apos;échantillons</translation>
    </message>
    <message>
        <source>shot %1, trace %2: a sample is too large for a file</source>
        <translation>tir %1, trace %2&#xa0;: un échantillon est trop grand pour un fichier</translation>
    </message>
    <message>
        <source>the survey has no records to be written</source>
        <translation>le levé n&apos;a pas d&apos;enregistrements à écrire</translation>
    </message>
    <message>
        <source>its sample interval of %1 ms is no whole number of microseconds up to 65535, which is all that SEG-Y can hold; write SEG-2</source>
        <translation>son pas d&apos;échantillonnage de %1 ms n&apos;est pas un nombre entier de microsecondes jusqu&apos;à 65535, tout ce que SEG-Y peut contenir&#xa0;; écrivez en SEG-2</translation>
    </message>
    <message>
        <source>it begins %1 ms after the shot, which SEG-Y cannot hold; write SEG-2</source>
        <translation>il commence %1 ms après le tir, ce que SEG-Y ne peut pas contenir&#xa0;; écrivez en SEG-2</translation>
    </message>
    <message>
        <source>it is miniSEED of version 3; version 2 is read</source>
        <translation>c&apos;est du miniSEED de version 3&#xa0;; la version 2 est lue</translation>
    </message>
    <message>
        <source>it is no miniSEED file</source>
        <translation>ce n&apos;est pas un fichier miniSEED</translation>
    </message>
    <message>
        <source>its records have no blockette 1000, which tells their encoding</source>
        <translation>ses enregistrements n&apos;ont pas de blockette 1000, qui indique leur codage</translation>
    </message>
    <message>
        <source>its samples have the encoding %1; 1, 3, 4, 5, 10 and 11 are read</source>
        <translation>ses échantillons ont le codage %1&#xa0;; 1, 3, 4, 5, 10 et 11 sont lus</translation>
    </message>
    <message>
        <source>none of its records has samples of a series</source>
        <translation>aucun de ses enregistrements n&apos;a d&apos;échantillons d&apos;une série</translation>
    </message>
    <message>
        <source>miniSEED tells neither positions nor the time of the shot: all positions are 0 and times count from the first sample; give the survey its geometry</source>
        <translation>miniSEED n&apos;indique ni les positions ni l&apos;instant du tir&#xa0;: toutes les positions sont à 0 et les temps comptent à partir du premier échantillon&#xa0;; donnez au levé sa géométrie</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others; zeros stand in front</source>
        <translation>enregistrement commençant plus tard que d&apos;autres (%1)&#xa0;; des zéros le précèdent</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others, by longer than it lasts; that is not applied and its times do not compare</source>
        <translation>enregistrement commençant plus tard que d&apos;autres, de plus que sa durée (%1)&#xa0;; ce retard n&apos;est pas appliqué et les temps ne sont pas comparables</translation>
    </message>
    <message>
        <source>zeros stand for gaps in the record of %1</source>
        <translation>lacunes dans l&apos;enregistrement remplacées par des zéros (%1)</translation>
    </message>
    <message>
        <source>records of %1 overlap; the later ones count</source>
        <translation>enregistrements qui se recouvrent (%1)&#xa0;; les plus tardifs comptent</translation>
    </message>
    <message>
        <source>records left out after a gap that is longer than what was recorded: %1</source>
        <translation>enregistrements écartés après une lacune plus longue que ce qui a été enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>records left out whose sample rate is not that of the first of their channel: %1</source>
        <translation>enregistrements écartés, de fréquence d&apos;échantillonnage autre que celle du premier de leur canal&#xa0;: %1</translation>
    </message>
    <message>
        <source>records left out whose encoding, such as %1, is not read: %2</source>
        <translation>enregistrements écartés dont le codage, par exemple %1, n&apos;est pas lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>records left out that have no samples of a series: %1</source>
        <translation>enregistrements écartés, sans échantillons d&apos;une série&#xa0;: %1</translation>
    </message>
    <message>
        <source>records left out that have no blockette 1000: %1</source>
        <translation>enregistrements écartés, sans blockette 1000&#xa0;: %1</translation>
    </message>
    <message>
        <source>bytes left out that are of no record: %1</source>
        <translation>octets écartés qui ne sont d&apos;aucun enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>samples that headers promise and records do not hold: %1</source>
        <translation>échantillons promis par les en-têtes et absents des enregistrements&#xa0;: %1</translation>
    </message>
    <message>
        <source>damaged records, which do not end at the sample that they tell: %1</source>
        <translation>enregistrements endommagés, qui ne finissent pas à l&apos;échantillon qu&apos;ils indiquent&#xa0;: %1</translation>
    </message>
    <message>
        <source>the record of %1 begins after the shot, by up to %2 ms; zeros stand in front, in whole samples</source>
        <translation>enregistrement commençant après le tir, jusqu&apos;à %2 ms plus tard (%1)&#xa0;; des zéros le précèdent, en échantillons entiers</translation>
    </message>
    <message>
        <source>the header of %1 says that the record begins up to %2 ms after the shot, longer than it lasts; that delay is not applied</source>
        <translation>d&apos;après l&apos;en-tête, l&apos;enregistrement commence jusqu&apos;à %2 ms après le tir, plus que sa durée (%1)&#xa0;; ce délai n&apos;est pas appliqué</translation>
    </message>
    <message>
        <source>the header of %1 tells no %2; 0 stands for it</source>
        <translation>donnée absente de l&apos;en-tête&#xa0;: %2 (%1)&#xa0;; 0 la remplace</translation>
    </message>
    <message>
        <source>the UNITS of its header, %1, are not known; its positions were taken as metres</source>
        <translation>la valeur UNITS de son en-tête, %1, n&apos;est pas connue&#xa0;; ses positions ont été prises en mètres</translation>
    </message>
    <message>
        <source>its positions are in %1 and were converted to metres, %2 m each</source>
        <translation>ses positions sont en %1 et ont été converties en mètres, à raison de %2 m</translation>
    </message>
    <message>
        <source>its receiver positions look like longitude and latitude in degrees, not like metres; give the survey its geometry</source>
        <translation>ses positions de récepteurs ressemblent à des longitudes et latitudes en degrés, pas à des mètres&#xa0;; donnez au levé sa géométrie</translation>
    </message>
    <message>
        <source>its geophones differ in y but not in x; y was taken as the position along the line</source>
        <translation>ses géophones diffèrent en y mais pas en x&#xa0;; y a été pris comme position le long de la ligne</translation>
    </message>
    <message>
        <source>all its geophones are at x = %1; give the survey its geometry</source>
        <translation>tous ses géophones sont à x = %1&#xa0;; donnez au levé sa géométrie</translation>
    </message>
    <message>
        <source>its geophones differ by up to %1 in y, which is not used; positions along the line are x</source>
        <translation>ses géophones diffèrent jusqu&apos;à %1 en y, qui n&apos;est pas utilisé&#xa0;; les positions le long de la ligne sont x</translation>
    </message>
    <message>
        <source>its channel numbers do not ascend; the traces stay in the order of the file</source>
        <translation>ses numéros de canal ne sont pas croissants&#xa0;; les traces restent dans l&apos;ordre du fichier</translation>
    </message>
    <message>
        <source>every trace tells a source position of its own; the file was read as one shot, at the first of them</source>
        <translation>chaque trace indique sa propre position de source&#xa0;; le fichier a été lu comme un seul tir, à la première de ces positions</translation>
    </message>
    <message>
        <source>it is no SEG-2 file</source>
        <translation>ce n&apos;est pas un fichier SEG-2</translation>
    </message>
    <message>
        <source>it holds no trace</source>
        <translation>il ne contient aucune trace</translation>
    </message>
    <message>
        <source>the samples of its trace %1 have the data format code %2; the codes of SEG-2 are 1 to 5</source>
        <translation>les échantillons de sa trace %1 ont le code de format de données %2&#xa0;; les codes de SEG-2 vont de 1 à 5</translation>
    </message>
    <message>
        <source>none of its traces has a usable SAMPLE_INTERVAL</source>
        <translation>aucune de ses traces n&apos;a de SAMPLE_INTERVAL utilisable</translation>
    </message>
    <message>
        <source>nothing is read of %1 since no trace block is where the pointer leads</source>
        <translation>rien n&apos;est lu, car il n&apos;y a pas de bloc de trace là où mène le pointeur (%1)</translation>
    </message>
    <message>
        <source>the header of %1 has no usable SAMPLE_INTERVAL; that of another was taken</source>
        <translation>l&apos;en-tête n&apos;a pas de SAMPLE_INTERVAL utilisable (%1)&#xa0;; celui d&apos;une autre trace a été retenu</translation>
    </message>
    <message>
        <source>the DESCALING_FACTOR of %1 is no usable number; those samples are as stored</source>
        <translation>DESCALING_FACTOR n&apos;est pas un nombre utilisable (%1)&#xa0;; ces échantillons sont tels qu&apos;écrits dans le fichier</translation>
    </message>
    <message>
        <source>the header of %1 has no DESCALING_FACTOR, as others have; those samples are as stored</source>
        <translation>l&apos;en-tête n&apos;a pas de DESCALING_FACTOR, contrairement à d&apos;autres (%1)&#xa0;; ces échantillons sont tels qu&apos;écrits dans le fichier</translation>
    </message>
    <message>
        <source>the STACK of %1 is no usable number and was taken as 1</source>
        <translation>STACK n&apos;est pas un nombre utilisable et a été pris égal à 1 (%1)</translation>
    </message>
    <message>
        <source>the DELAY of %1 is no finite number and was taken as 0</source>
        <translation>DELAY n&apos;est pas un nombre fini et a été pris égal à 0 (%1)</translation>
    </message>
    <message>
        <source>the SKEW of %1 is up to %2 ms beyond whole samples; that part is not applied</source>
        <translation>SKEW dépasse les échantillons entiers, de %2 ms au plus (%1)&#xa0;; cette partie n&apos;est pas appliquée</translation>
    </message>
    <message>
        <source>%1 bytes after its traces, zeros or too few for another one, were not read</source>
        <translation>%1 octets après ses traces, des zéros ou trop peu pour une autre, n&apos;ont pas été lus</translation>
    </message>
    <message>
        <source>the number of samples in %1 is not the %2 of the header of the file; the trace headers were believed</source>
        <translation>le nombre d&apos;échantillons n&apos;est pas celui de l&apos;en-tête du fichier, %2 (%1)&#xa0;; les en-têtes de trace ont été crus</translation>
    </message>
    <message>
        <source>the header of %1 tells %2 samples, with which the traces do not fit the size of the file; %3 were taken</source>
        <translation>l&apos;en-tête indique %2 échantillons (%1), avec lesquels les traces ne correspondent pas à la taille du fichier&#xa0;; %3 ont été retenus</translation>
    </message>
    <message>
        <source>the traces, %1 among them, do not fit the size of the file with the %2 samples that its header tells; %3 were taken</source>
        <translation>les traces, dont %1, ne correspondent pas à la taille du fichier avec les %2 échantillons indiqués par son en-tête&#xa0;; %3 ont été retenus</translation>
    </message>
    <message>
        <source>the header of %1 tells a sample interval of %2 microseconds; the %3 of the header of the file were taken</source>
        <translation>l&apos;en-tête indique un pas d&apos;échantillonnage de %2 microsecondes (%1)&#xa0;; les %3 de l&apos;en-tête du fichier ont été retenues</translation>
    </message>
    <message>
        <source>the sample interval of %1 is not the %2 microseconds of the header of the file; the trace headers were believed</source>
        <translation>le pas d&apos;échantillonnage n&apos;est pas celui de l&apos;en-tête du fichier, %2 microsecondes (%1)&#xa0;; les en-têtes de trace ont été crus</translation>
    </message>
    <message>
        <source>a scalar of %1 for the coordinates of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>le facteur d&apos;échelle %1 des coordonnées n&apos;est pas de ceux que connaît la norme (%2)&#xa0;; elles ont été prises telles quelles</translation>
    </message>
    <message>
        <source>a scalar of %1 for the elevations of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>le facteur d&apos;échelle %1 des altitudes n&apos;est pas de ceux que connaît la norme (%2)&#xa0;; elles ont été prises telles quelles</translation>
    </message>
    <message>
        <source>the coordinates of %1 are degrees or seconds of arc, no metres; x was taken as it stands, so load a geometry file</source>
        <translation>les coordonnées sont en degrés ou en secondes d&apos;arc, pas en mètres (%1)&#xa0;; x a été pris tel quel, chargez donc un fichier de géométrie</translation>
    </message>
    <message>
        <source>its coordinates do not tell the geophones apart; they were placed by their offsets (bytes 37 to 40) from the shot</source>
        <translation>ses coordonnées ne distinguent pas les géophones&#xa0;; ils ont été placés d&apos;après leur déport (octets 37 à 40) par rapport au tir</translation>
    </message>
    <message>
        <source>its headers tell no positions; shots and geophones all stand at %1, so load a geometry file</source>
        <translation>ses en-têtes n&apos;indiquent aucune position&#xa0;; tirs et géophones sont tous à %1, chargez donc un fichier de géométrie</translation>
    </message>
    <message>
        <source>its headers put the geophones of all traces at %1; load a geometry file if there was more than one</source>
        <translation>ses en-têtes placent les géophones de toutes les traces à %1&#xa0;; chargez un fichier de géométrie s&apos;il y en avait plus d&apos;un</translation>
    </message>
    <message>
        <source>shots stand up to %1 beside the line of geophones; x is taken as it stands</source>
        <translation>des tirs sont jusqu&apos;à %1 à côté de la ligne des géophones&#xa0;; x est pris tel quel</translation>
    </message>
    <message>
        <source>its coordinates do not lie along x; distances are those along the straight line through the geophones from the first geophone of this file, which stands at x %1, y %2; geophones stand up to %3 beside it, shots up to %4</source>
        <translation>ses coordonnées ne suivent pas x&#xa0;; les distances sont celles le long de la droite passant par les géophones, depuis le premier géophone de ce fichier, qui est à x %1, y %2&#xa0;; des géophones s&apos;en écartent jusqu&apos;à %3, des tirs jusqu&apos;à %4</translation>
    </message>
    <message>
        <source>the elevations or shot depths of %1 lie beyond all ground; elevations of the file were taken as 0</source>
        <translation>les altitudes ou les profondeurs de tir sont hors de tout terrain possible (%1)&#xa0;; les altitudes du fichier ont été prises égales à 0</translation>
    </message>
    <message>
        <source>shots lie up to %1 below the ground; their elevations are those of the shots, not of the ground above them</source>
        <translation>des tirs sont jusqu&apos;à %1 sous le sol&#xa0;; leurs altitudes sont celles des tirs, pas celles du sol au-dessus</translation>
    </message>
    <message>
        <source>the shot depth of %1 is negative and was taken as 0</source>
        <translation>la profondeur de tir est négative et a été prise égale à 0 (%1)</translation>
    </message>
    <message>
        <source>its headers tell the elevations of geophones alone; shots were put at that of the geophone nearest to them</source>
        <translation>ses en-têtes n&apos;indiquent que les altitudes des géophones&#xa0;; les tirs ont été placés à celle du géophone le plus proche</translation>
    </message>
    <message>
        <source>the time scalar of %1 is none that the standard knows; the delay was taken as it stands</source>
        <translation>le facteur d&apos;échelle des temps n&apos;est pas de ceux que connaît la norme (%1)&#xa0;; le délai a été pris tel quel</translation>
    </message>
    <message>
        <source>all of its traces are marked as dead or auxiliary (bytes 29 and 30); the marks were not believed</source>
        <translation>toutes ses traces sont marquées comme mortes ou auxiliaires (octets 29 et 30)&#xa0;; ces marques n&apos;ont pas été crues</translation>
    </message>
    <message>
        <source>zeros stand for the samples of %1, marked as dead or as dummies (bytes 29 and 30)</source>
        <translation>échantillons remplacés par des zéros (%1), marqués comme morts ou factices (octets 29 et 30)</translation>
    </message>
    <message>
        <source>the samples of %1 were left out, marked as auxiliary (bytes 29 and 30: time breaks, upholes, sweeps and the like)</source>
        <translation>échantillons écartés (%1), marqués comme auxiliaires (octets 29 et 30&#xa0;: instants de tir, temps verticaux, sweeps et autres)</translation>
    </message>
    <message>
        <source>its traces are not in the order of shots, or the headers do not tell which belong together; they were taken as one shot</source>
        <translation>ses traces ne sont pas dans l&apos;ordre des tirs, ou les en-têtes n&apos;indiquent pas lesquelles vont ensemble&#xa0;; elles ont été prises comme un seul tir</translation>
    </message>
    <message>
        <source>its extended textual headers do not end in the file; it was read as if there were none</source>
        <translation>ses en-têtes textuels étendus ne se terminent pas dans le fichier&#xa0;; il a été lu comme s&apos;il n&apos;y en avait pas</translation>
    </message>
    <message>
        <source>its lengths are in feet (bytes 3255 and 3256) and were taken to metres</source>
        <translation>ses longueurs sont en pieds (octets 3255 et 3256) et ont été converties en mètres</translation>
    </message>
    <message>
        <source>its headers tell no number of samples</source>
        <translation>ses en-têtes n&apos;indiquent pas le nombre d&apos;échantillons</translation>
    </message>
    <message>
        <source>its samples have the data format code 4 (fixed point with gain), which is not read; have the recording software export another one</source>
        <translation>ses échantillons ont le code de format de données 4 (virgule fixe avec gain), qui n&apos;est pas lu&#xa0;; faites exporter un autre code par le logiciel d&apos;acquisition</translation>
    </message>
    <message>
        <source>its samples have the data format code %1, which the standard does not know; the file is damaged or no SEG-Y file</source>
        <translation>ses échantillons ont le code de format de données %1, que la norme ne connaît pas&#xa0;; le fichier est endommagé ou n&apos;est pas un fichier SEG-Y</translation>
    </message>
    <message>
        <source>the place of the first trace in its header (bytes 3521 to 3528) is not in the file and was not believed</source>
        <translation>la position de la première trace dans son en-tête (octets 3521 à 3528) n&apos;est pas dans le fichier et n&apos;a pas été crue</translation>
    </message>
    <message>
        <source>it is too short for a SEG-Y file with a trace</source>
        <translation>il est trop court pour un fichier SEG-Y avec une trace</translation>
    </message>
    <message>
        <source>its bytes are swapped in pairs, which is not read</source>
        <translation>ses octets sont permutés deux à deux, ce qui n&apos;est pas lu</translation>
    </message>
    <message>
        <source>field record (bytes 9 to 12)</source>
        <translation>enregistrement de terrain (octets 9 à 12)</translation>
    </message>
    <message>
        <source>energy source point (bytes 17 to 20)</source>
        <translation>point source d&apos;énergie (octets 17 à 20)</translation>
    </message>
    <message>
        <source>position of the source</source>
        <translation>position de la source</translation>
    </message>
    <message>
        <source>number of the trace in its record (bytes 13 to 16), which starts again</source>
        <translation>numéro de la trace dans son enregistrement (octets 13 à 16), qui recommence</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>it is a text file, and no record of shots in %1; open a table of picks or positions as travel times or geometry</source>
        <translation>c&apos;est un fichier texte, pas un enregistrement de tirs en %1&#xa0;; ouvrez un tableau de pointés ou de positions comme temps de parcours ou géométrie</translation>
    </message>
    <message>
        <source>by its content it is no file of %1</source>
        <translation>d&apos;après son contenu, ce n&apos;est pas un fichier de l&apos;un des formats lus&#xa0;: %1</translation>
    </message>
    <message>
        <source>it holds %1 shots, told apart by %2</source>
        <translation>il contient %1 tirs, distingués par&#xa0;: %2</translation>
    </message>
    <message>
        <source>it is too short for an SU file with a trace</source>
        <translation>il est trop court pour un fichier SU avec une trace</translation>
    </message>
    <message>
        <source>its first trace tells no number of samples</source>
        <translation>sa première trace n&apos;indique pas le nombre d&apos;échantillons</translation>
    </message>
    <message>
        <source>all %1 traces</source>
        <translation>les %1 traces</translation>
    </message>
    <message>
        <source>it cannot be read back: %1</source>
        <translation>il ne peut pas être relu&#xa0;: %1</translation>
    </message>
    <message>
        <source>read back, string %1 will have another number of geophones</source>
        <translation>à la relecture, le dispositif %1 aura un autre nombre de géophones</translation>
    </message>
    <message>
        <source>the format has no place for the errors of the picks</source>
        <translation>le format n&apos;a pas de place pour les erreurs des pointés</translation>
    </message>
    <message>
        <source>it was read as %1; the reader of its suffix cannot read line %2</source>
        <translation>il a été lu comme %1&#xa0;; le lecteur de son suffixe ne peut pas lire la ligne %2</translation>
    </message>
    <message>
        <source>%1; as %2, line %3: %4</source>
        <translation>%1&#xa0;; comme %2, ligne %3&#xa0;: %4</translation>
    </message>
    <message>
        <source>shot %1: picks left out, as the shot is disabled or their traces are killed: %2</source>
        <translation>tir %1&#xa0;: pointés écartés, car le tir est désactivé ou leurs traces sont neutralisées&#xa0;: %2</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 lines</source>
        <translation>le fichier se termine après %1 lignes sur %2</translation>
    </message>
    <message>
        <source>the file holds no measurement</source>
        <translation>le fichier ne contient aucune mesure</translation>
    </message>
    <message>
        <source>no columns &quot;s&quot;, &quot;g&quot; and &quot;t&quot; are named above the numbers</source>
        <translation>aucune colonne «&#xa0;s&#xa0;», «&#xa0;g&#xa0;» et «&#xa0;t&#xa0;» n&apos;est nommée au-dessus des nombres</translation>
    </message>
    <message>
        <source>the unit of the column %1 is none of time</source>
        <translation>l&apos;unité de la colonne %1 n&apos;est pas une unité de temps</translation>
    </message>
    <message>
        <source>the line holds %1</source>
        <translation>la ligne contient %1</translation>
    </message>
    <message>
        <source>the %1 %2 is none of the %3 positions</source>
        <translation>la valeur %2 (%1) n&apos;est aucune des %3 positions</translation>
    </message>
    <message>
        <source>after the measurements neither the end nor a number of points of topography follows</source>
        <translation>après les mesures ne suit ni la fin ni un nombre de points de topographie</translation>
    </message>
    <message>
        <source>the second of three coordinates was not read</source>
        <translation>la deuxième de trois coordonnées n&apos;a pas été lue</translation>
    </message>
    <message>
        <source>the third coordinate is 0 everywhere; the second one was taken for the elevation</source>
        <translation>la troisième coordonnée est partout 0&#xa0;; la deuxième a été prise comme altitude</translation>
    </message>
    <message>
        <source>the positions have elevations; the topography was not used</source>
        <translation>les positions ont des altitudes&#xa0;; la topographie n&apos;a pas été utilisée</translation>
    </message>
    <message>
        <source>%1 positions are no shot and no geophone of any time; they were left out</source>
        <translation>%1 positions ne sont ni le tir ni le géophone d&apos;aucun temps&#xa0;; elles ont été écartées</translation>
    </message>
    <message>
        <source>%1 times are marked as not valid and are no picks</source>
        <translation>%1 temps sont marqués comme non valides et ne sont pas des pointés</translation>
    </message>
    <message>
        <source>%1 times are not above 0 and are no picks</source>
        <translation>%1 temps ne sont pas supérieurs à 0 et ne sont pas des pointés</translation>
    </message>
    <message>
        <source>%1 shots have no pick and are not in the file</source>
        <translation>%1 tirs n&apos;ont aucun pointé et ne sont pas dans le fichier</translation>
    </message>
    <message>
        <source>%1 geophones have no pick; the file has their positions only</source>
        <translation>%1 géophones n&apos;ont aucun pointé&#xa0;; le fichier n&apos;a que leurs positions</translation>
    </message>
    <message>
        <source>%1 shots lie at the place of another one; the file does not tell their picks apart</source>
        <translation>%1 tirs sont à l&apos;endroit d&apos;un autre&#xa0;; le fichier ne distingue pas leurs pointés</translation>
    </message>
    <message>
        <source>a trace without a sample interval cannot be shifted in time</source>
        <translation>une trace sans pas d&apos;échantillonnage ne peut pas être décalée en temps</translation>
    </message>
    <message>
        <source>a shift of %1 ms is longer than the record</source>
        <translation>un décalage de %1 ms est plus long que l&apos;enregistrement</translation>
    </message>
    <message>
        <source>a shot is stacked with other shots of the survey, each once</source>
        <translation>un tir se somme avec d&apos;autres tirs du levé, chacun une fois</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with it: its traces are of another number, sample interval or kind</source>
        <translation>le tir %1 ne peut pas être sommé avec lui&#xa0;: ses traces sont d&apos;un autre nombre, pas d&apos;échantillonnage ou type</translation>
    </message>
    <message>
        <source>shot %1 has no traces to mend</source>
        <translation>le tir %1 n&apos;a pas de traces à corriger</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, and mends of %3</source>
        <translation>le tir %1 a %2 traces, et des corrections pour %3</translation>
    </message>
    <message>
        <source>a trace cannot be muted before %1 ms</source>
        <translation>une trace ne peut pas avoir de mute avant %1 ms</translation>
    </message>
    <message>
        <source>a record cannot be shifted by %1 ms</source>
        <translation>un enregistrement ne peut pas être décalé de %1 ms</translation>
    </message>
    <message>
        <source>shot %1: picks that have no place any more and are set aside: %2</source>
        <translation>tir %1&#xa0;: pointés qui n&apos;ont plus de place et sont mis de côté&#xa0;: %2</translation>
    </message>
    <message>
        <source>shot %1: picks that were set aside and are back: %2</source>
        <translation>tir %1&#xa0;: pointés qui étaient mis de côté et sont revenus&#xa0;: %2</translation>
    </message>
    <message>
        <source>shot %1: filtered copies of traces that have changed are forgotten: %2; filter again if you need them</source>
        <translation>tir %1&#xa0;: copies filtrées abandonnées de traces qui ont changé&#xa0;: %2&#xa0;; filtrez à nouveau si vous en avez besoin</translation>
    </message>
    <message>
        <source>shot %1: its shift is taken as %2 ms, whole samples</source>
        <translation>tir %1&#xa0;: son décalage est pris à %2 ms, en échantillons entiers</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with shot %2: they have other places, or geophones</source>
        <translation>le tir %1 ne peut pas être sommé avec le tir %2&#xa0;: leurs endroits, ou leurs géophones, diffèrent</translation>
    </message>
    <message>
        <source>traces killed: %1</source>
        <translation>traces neutralisées&#xa0;: %1</translation>
    </message>
    <message>
        <source>traces with their polarity reversed: %1</source>
        <translation>traces à polarité inversée&#xa0;: %1</translation>
    </message>
    <message>
        <source>traces muted before %1 ms: %2</source>
        <translation>traces avec mute avant %1 ms&#xa0;: %2</translation>
    </message>
    <message>
        <source>disabled: it has no picks and takes no part in anything</source>
        <translation>désactivé&#xa0;: il n&apos;a pas de pointés et ne participe à rien</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was late</source>
        <translation>décalé de %1 ms&#xa0;: son enregistrement était en retard</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was early</source>
        <translation>décalé de %1 ms&#xa0;: son enregistrement était en avance</translation>
    </message>
    <message>
        <source>order reversed: its channels ran against the geophones</source>
        <translation>ordre inversé&#xa0;: ses canaux allaient à rebours des géophones</translation>
    </message>
    <message>
        <source>stacked with shots: %1</source>
        <translation>sommé avec les tirs&#xa0;: %1</translation>
    </message>
    <message>
        <source>Mend recordings</source>
        <translation>Corriger les enregistrements</translation>
    </message>
    <message>
        <source>Shot %1 is disabled and takes no picks; Mend recording enables it.</source>
        <translation>Le tir %1 est désactivé et n&apos;accepte pas de pointés&#xa0;; «&#xa0;Corriger l&apos;enregistrement&#xa0;» le réactive.</translation>
    </message>
    <message>
        <source>Trace %1 is killed and takes no pick; Mend recording brings it back.</source>
        <translation>La trace %1 est neutralisée et n&apos;accepte pas de pointé&#xa0;; «&#xa0;Corriger l&apos;enregistrement&#xa0;» la rétablit.</translation>
    </message>
    <message>
        <source>The check failed: %1</source>
        <translation>La vérification a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick le long de la ligne</translation>
    </message>
    <message>
        <source>no trace has a place and a sample interval; give the line its geometry</source>
        <translation>aucune trace n&apos;a à la fois une position et un pas d&apos;échantillonnage&#xa0;; indiquez la géométrie de la ligne</translation>
    </message>
    <message>
        <source>shot %1, %2: %3</source>
        <translation>tir %1, %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Compléter le long de la ligne</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Il n&apos;y a pas encore de pointés.</translation>
    </message>
    <message>
        <source>Only one shot has picks.</source>
        <translation>Un seul tir a des pointés.</translation>
    </message>
    <message>
        <source>No two shots have picks within half a geophone spacing of each other&apos;s place.</source>
        <translation>Il n&apos;y a pas deux tirs qui aient des pointés à moins d&apos;un demi-écartement de géophones de l&apos;emplacement l&apos;un de l&apos;autre.</translation>
    </message>
    <message>
        <source>no error of a pick is known</source>
        <translation>aucune erreur de pointé n&apos;est connue</translation>
    </message>
    <message>
        <source>it tells errors of picks that cannot be</source>
        <translation>il indique des erreurs de pointés impossibles</translation>
    </message>
    <message>
        <source>the error of %1 picks is not known; the file has 0 for it</source>
        <translation>l&apos;erreur de %1 pointés n&apos;est pas connue&#xa0;; le fichier indique 0</translation>
    </message>
    <message>
        <source>Picks at sample %1, before which AutoPick cannot look: %2, on %3. Where the wave came earlier, pick by hand or use AutoPick along the line.</source>
        <translation>Pointés à l&apos;échantillon %1, avant lequel AutoPick ne peut pas chercher&#xa0;: %2, sur %3. Là où l&apos;onde est arrivée plus tôt, pointez à la main ou utilisez AutoPick le long de la ligne.</translation>
    </message>
    <message>
        <source>the guide line has no times to follow</source>
        <translation>la ligne guide n&apos;a pas de temps à suivre</translation>
    </message>
    <message>
        <source>the reach of the guide line has to be at least 0 ms</source>
        <translation>la portée de la ligne guide doit être d&apos;au moins 0 ms</translation>
    </message>
    <message>
        <source>The model to start from has not one valid velocity per cell of the grid.</source>
        <translation>Le modèle initial n&apos;a pas une vitesse valide pour chaque cellule de la grille.</translation>
    </message>
    <message>
        <source>The fit needs one iteration at least and a positive trigger error.</source>
        <translation>L&apos;ajustement exige au moins une itération et une erreur de déclenchement positive.</translation>
    </message>
    <message>
        <source>There is no pick that a section could be fitted to.</source>
        <translation>Il n&apos;y a aucun pointé auquel ajuster une coupe.</translation>
    </message>
    <message>
        <source>The pick of shot %1, receiver %2 has no positive time and error.</source>
        <translation>Le pointé du tir %1, récepteur %2, n&apos;a pas un temps et une erreur positifs.</translation>
    </message>
    <message>
        <source>The section fits the picks to their errors: chi-square %1.</source>
        <translation>La coupe explique les pointés à leurs erreurs près&#xa0;: khi-deux %1.</translation>
    </message>
    <message>
        <source>target not reached: chi-square stays at %1. The errors of the picks may be stated too small, shots may be shifted in time, or cells too large.</source>
        <translation>objectif non atteint&#xa0;: le khi-deux reste à %1. Les erreurs des pointés sont peut-être sous-estimées, des tirs décalés en temps, ou les cellules trop grandes.</translation>
    </message>
    <message>
        <source>The section fits the picks better than their errors demand: chi-square %1, however smooth it is. The errors may be stated too large.</source>
        <translation>La coupe explique les pointés mieux que leurs erreurs ne le demandent&#xa0;: khi-deux %1, si lisse soit-elle. Les erreurs sont peut-être surestimées.</translation>
    </message>
    <message>
        <source>target not reached: chi-square is %1 after %2 iterations.</source>
        <translation>objectif non atteint&#xa0;: le khi-deux est de %1 après %2 itérations.</translation>
    </message>
    <message>
        <source>Stopped by the user after %1 iterations: chi-square %2.</source>
        <translation>Arrêté par l&apos;utilisateur après %1 itérations&#xa0;: khi-deux %2.</translation>
    </message>
    <message>
        <source>only %1 picks are of waves along the surface; it takes %2</source>
        <translation>seuls %1 pointés sont d&apos;ondes directes&#xa0;; il en faut %2</translation>
    </message>
    <message>
        <source>only %1 picks are surely of waves along refractor %2; it takes %3</source>
        <translation>seuls %1 pointés sont avec certitude d&apos;ondes réfractées par le réfracteur %2&#xa0;; il en faut %3</translation>
    </message>
    <message>
        <source>waves along the surface at %1 are slower than the bounds allow</source>
        <translation>les ondes directes, à %1, sont plus lentes que les limites ne le permettent</translation>
    </message>
    <message>
        <source>the times of a refractor grow too little with offset for the bounds</source>
        <translation>les temps d&apos;un réfracteur croissent trop peu avec le déport pour les limites</translation>
    </message>
    <message>
        <source>the picks do not settle its delay times</source>
        <translation>les pointés ne suffisent pas à déterminer ses temps de retard</translation>
    </message>
    <message>
        <source>the times over offset show no cross-over to a faster branch</source>
        <translation>les temps en fonction du déport ne montrent pas de rupture de pente vers une branche plus rapide</translation>
    </message>
    <message>
        <source>the velocity above the refractor grows by less than a tenth</source>
        <translation>la vitesse au-dessus du réfracteur croît de moins d&apos;un dixième</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Two layers</source>
        <translation>Deux couches</translation>
    </message>
    <message>
        <source>Three layers</source>
        <translation>Trois couches</translation>
    </message>
    <message>
        <source>Overburden gradient</source>
        <translation>Gradient dans la couverture</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>it takes times that grow with offset, at three offsets or more</source>
        <translation>il faut des temps qui croissent avec le déport, pour au moins trois déports</translation>
    </message>
    <message>
        <source>Set errors of picks</source>
        <translation>Fixer les erreurs des pointés</translation>
    </message>
    <message>
        <source>Set error of pick</source>
        <translation>Fixer l&apos;erreur du pointé</translation>
    </message>
    <message>
        <source>How sure the section is could not be found out: %1</source>
        <translation>La certitude de la coupe n&apos;a pas pu être déterminée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The models could not be made: %1</source>
        <translation>Les modèles n&apos;ont pas pu être construits&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rename run</source>
        <translation>Renommer le calcul</translation>
    </message>
    <message>
        <source>Delete runs</source>
        <translation>Supprimer des calculs</translation>
    </message>
    <message>
        <source>There is no resolution test to draw.</source>
        <translation>Il n&apos;y a pas de test de résolution à dessiner.</translation>
    </message>
    <message>
        <source>Difference of velocity</source>
        <translation>Différence de vitesse</translation>
    </message>
    <message>
        <source>its inversion runs but the last one are not known</source>
        <translation>ses calculs d&apos;inversion, hormis le dernier, ne sont pas connus</translation>
    </message>
    <message>
        <source>how sure the section is is not known</source>
        <translation>la certitude de la coupe n&apos;est pas connue</translation>
    </message>
    <message>
        <source>it does not go with the section of the project, which another program may have changed</source>
        <translation>elle ne correspond pas à la coupe du projet, qu&apos;un autre programme a peut-être modifiée</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities</source>
        <translation>%1 lignes de %2 colonnes ne correspondent pas à %3 vitesses</translation>
    </message>
    <message>
        <source>a velocity is none that ground can have</source>
        <translation>une vitesse est impossible pour un terrain</translation>
    </message>
    <message>
        <source>its grid cannot be</source>
        <translation>sa grille est impossible</translation>
    </message>
    <message>
        <source>its settings or figures cannot be</source>
        <translation>ses réglages ou ses chiffres sont impossibles</translation>
    </message>
    <message>
        <source>its number is 0 or that of another</source>
        <translation>son numéro est 0 ou celui d&apos;un autre</translation>
    </message>
    <message>
        <source>there are more than can be kept</source>
        <translation>il y en a plus qu&apos;il n&apos;en peut être conservé</translation>
    </message>
    <message>
        <source>inversion run %1 is left out: %2</source>
        <translation>le calcul d&apos;inversion %1 est écarté&#xa0;: %2</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Calcul %1</translation>
    </message>
    <message>
        <source>Certainty</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>Use run</source>
        <translation>Utiliser le calcul</translation>
    </message>
    <message>
        <source>Inversion runs</source>
        <translation>Calculs d&apos;inversion</translation>
    </message>
    <message>
        <source>Take over time shifts</source>
        <translation>Reprendre les décalages temporels</translation>
    </message>
    <message>
        <source>None of the %1 members explains the picks to within their errors; how sure the section is stays unknown.</source>
        <translation>Aucun des %1 membres n&apos;explique les pointés à leurs erreurs près&#xa0;; la certitude de la coupe reste inconnue.</translation>
    </message>
    <message>
        <source>Default model</source>
        <translation>Modèle par défaut</translation>
    </message>
    <message>
        <source>Present section</source>
        <translation>Coupe actuelle</translation>
    </message>
    <message>
        <source>No model explains the picks to within their errors (chi-square up to %1), so that nothing can be said of how sure the section is. Their errors may be stated too small, or shots may be shifted in time.</source>
        <translation>Aucun modèle n&apos;explique les pointés à leurs erreurs près (khi-deux jusqu&apos;à %1)&#xa0;; on ne peut donc rien dire de la certitude de la coupe. Leurs erreurs sont peut-être indiquées trop petites, ou des tirs décalés dans le temps.</translation>
    </message>
    <message>
        <source>There is no reference model &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de modèle de référence «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The picks do not support the reference model. %1</source>
        <translation>Les pointés n&apos;étayent pas le modèle de référence. %1</translation>
    </message>
    <message>
        <source>The picks do not support the reference model &quot;%1&quot;.</source>
        <translation>Les pointés n&apos;étayent pas le modèle de référence «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The resolution test failed: %1</source>
        <translation>Le test de résolution a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>The size of the pattern must be positive; %1 is not.</source>
        <translation>La taille du motif doit être positive&#xa0;; %1 ne l&apos;est pas.</translation>
    </message>
    <message>
        <source>The pattern has %1, less than a cell of the grid, which has %2; choose a larger one.</source>
        <translation>Le motif a %1, moins qu&apos;une cellule de la grille, qui en a %2&#xa0;; choisissez-en un plus grand.</translation>
    </message>
    <message>
        <source>The strength of the pattern must be above 0 and below 100 %; %1 % is not.</source>
        <translation>L&apos;amplitude du motif doit être supérieure à 0 et inférieure à 100&#xa0;%&#xa0;; %1&#xa0;% ne l&apos;est pas.</translation>
    </message>
    <message>
        <source>There are no picks to test the resolution with.</source>
        <translation>Il n&apos;y a pas de pointés avec lesquels tester la résolution.</translation>
    </message>
    <message>
        <source>The section to be disturbed has velocities that cannot be computed with.</source>
        <translation>La coupe à perturber a des vitesses avec lesquelles on ne peut pas calculer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être utilisé&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be shown: %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être affiché&#xa0;: %2</translation>
    </message>
    <message>
        <source>There is no such run any more.</source>
        <translation>Ce calcul n&apos;existe plus.</translation>
    </message>
    <message>
        <source>The surface or the ends of the line have changed since &quot;%1&quot;; its section can be compared with others, but is none of this line any more.</source>
        <translation>La surface ou les extrémités de la ligne ont changé depuis «&#xa0;%1&#xa0;»&#xa0;; sa coupe peut être comparée à d&apos;autres, mais n&apos;est plus celle de cette ligne.</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Incertitude de la vitesse</translation>
    </message>
    <message>
        <source>There are no picks yet: a resolution test takes their positions and errors.</source>
        <translation>Il n&apos;y a pas encore de pointés&#xa0;: un test de résolution utilise leurs positions et leurs erreurs.</translation>
    </message>
    <message>
        <source>how sure the section is is not known; find it out first</source>
        <translation>la certitude de la coupe n&apos;est pas connue&#xa0;; calculez-la d&apos;abord</translation>
    </message>
    <message>
        <source>there is no section whose times could be compared with the picks; run an inversion first</source>
        <translation>il n&apos;y a pas de coupe dont comparer les temps aux pointés&#xa0;; lancez d&apos;abord une inversion</translation>
    </message>
    <message>
        <source>There is nothing to draw.</source>
        <translation>Il n&apos;y a rien à dessiner.</translation>
    </message>
    <message>
        <source>There are no rays of this section.</source>
        <translation>Il n&apos;y a pas de rais de cette coupe.</translation>
    </message>
    <message>
        <source>it does not begin with a heading of the columns kind, name, x, depth, bottom, velocity, error, ...</source>
        <translation>il ne commence pas par un en-tête avec les colonnes kind, name, x, depth, bottom, velocity, error, ...</translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation>il n&apos;y a pas de colonne %1</translation>
    </message>
    <message>
        <source>column %1 is in another unit than m and m/s</source>
        <translation>la colonne %1 est dans une autre unité que m et m/s</translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation>il a trop de lignes</translation>
    </message>
    <message>
        <source>%1 is none of borehole, depth, body</source>
        <translation>%1 n&apos;est ni borehole, ni depth, ni body</translation>
    </message>
    <message>
        <source>%1 is no number for %2</source>
        <translation>%1 n&apos;est pas un nombre pour %2</translation>
    </message>
    <message>
        <source>there is no row below its heading</source>
        <translation>il n&apos;y a aucune ligne sous son en-tête</translation>
    </message>
    <message>
        <source>what was known of its ground is lost</source>
        <translation>ce qui était connu de son terrain est perdu</translation>
    </message>
    <message>
        <source>finding out how sure the section is begins anew instead of going on</source>
        <translation>le calcul de la certitude de la coupe recommence du début au lieu de reprendre</translation>
    </message>
    <message>
        <source>it does not go with the certainty of the project</source>
        <translation>il ne s&apos;accorde pas avec la certitude du projet</translation>
    </message>
    <message>
        <source>what it counts cannot be</source>
        <translation>ce qu&apos;il compte est impossible</translation>
    </message>
    <message>
        <source>its depth bands cannot be drawn so; there are none now</source>
        <translation>ses bandes de profondeur ne peuvent pas être dessinées ainsi&#xa0;; il n&apos;y en a plus aucune</translation>
    </message>
    <message>
        <source>%1 is no position along the line</source>
        <translation>%1 n&apos;est pas une position le long de la ligne</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>il n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>it has no layer</source>
        <translation>il n&apos;a pas de couche</translation>
    </message>
    <message>
        <source>the layer from %1 begins above the bottom of the one before, %2</source>
        <translation>la couche à partir de %1 commence au-dessus de la base de la précédente, %2</translation>
    </message>
    <message>
        <source>%1 is no error of a depth</source>
        <translation>%1 n&apos;est pas une erreur de profondeur</translation>
    </message>
    <message>
        <source>refractors have the numbers 1 to %1</source>
        <translation>les réfracteurs portent les numéros 1 à %1</translation>
    </message>
    <message>
        <source>the velocities above and below are the same, so nothing begins here</source>
        <translation>les vitesses au-dessus et au-dessous sont les mêmes, donc rien ne commence ici</translation>
    </message>
    <message>
        <source>its outline needs three corners at least</source>
        <translation>son contour demande au moins trois sommets</translation>
    </message>
    <message>
        <source>more is known than can be held: %1 boreholes, depths and bodies at most, with %2 layers and corners</source>
        <translation>plus de données de terrain connu que possible&#xa0;: au plus %1 forages, profondeurs et corps, avec %2 couches et sommets</translation>
    </message>
    <message>
        <source>borehole %1</source>
        <translation>forage %1</translation>
    </message>
    <message>
        <source>known depth %1</source>
        <translation>profondeur connue %1</translation>
    </message>
    <message>
        <source>body %1</source>
        <translation>corps %1</translation>
    </message>
    <message>
        <source>there is no %1</source>
        <translation>il manque %1</translation>
    </message>
    <message>
        <source>a %1 has no %2</source>
        <translation>une ligne %1 n&apos;a pas de %2</translation>
    </message>
    <message>
        <source>borehole %1 stands somewhere else in the rows above</source>
        <translation>le forage %1 est placé ailleurs dans les lignes précédentes</translation>
    </message>
    <message>
        <source>the number of a refractor is a whole one</source>
        <translation>le numéro d&apos;un réfracteur est un entier</translation>
    </message>
    <message>
        <source>body %1 has another velocity in the rows above</source>
        <translation>le corps %1 a une autre vitesse dans les lignes précédentes</translation>
    </message>
    <message>
        <source>fewer than six picks of it</source>
        <translation>moins de six pointés de ce réfracteur</translation>
    </message>
    <message>
        <source>picks of it from shots on one side only, which cannot tell a dip from a velocity</source>
        <translation>des pointés de tirs d&apos;un seul côté, ce qui ne permet pas de distinguer un pendage d&apos;une vitesse</translation>
    </message>
    <message>
        <source>no shot has three picks of it on one side, with waves the other way beside them, that are faster than the first layer</source>
        <translation>aucun tir n&apos;a d&apos;un même côté trois pointés de ce réfracteur, accompagnés d&apos;ondes en sens inverse, qui soient plus rapides que la première couche</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where it comes out deeper than the line is long.</source>
        <translation>Couche %1&#xa0;: aucune profondeur à %2 récepteurs, où la profondeur calculée dépasse la longueur de la ligne.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where the ground above it comes out to cost no time.</source>
        <translation>Couche %1&#xa0;: aucune profondeur à %2 récepteurs, où la traversée du terrain au-dessus ne prendrait aucun temps d&apos;après le calcul.</translation>
    </message>
    <message>
        <source>Layer %1: %2.</source>
        <translation>Couche %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The first layer has no velocity, so there are no depths.</source>
        <translation>La première couche n&apos;a pas de vitesse, il n&apos;y a donc pas de profondeurs.</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Layer %1, %2: nothing</source>
        <translation>Couche %1, %2&#xa0;: rien</translation>
    </message>
    <message>
        <source>Layer %1: methods disagree beyond the errors of the picks in depth at %2 of %3 geophones, in velocity at %4</source>
        <translation>Couche %1&#xa0;: les méthodes divergent au-delà des erreurs des pointés, en profondeur à %2 des %3 géophones, en vitesse à %4</translation>
    </message>
    <message>
        <source>no two shots have picks of it at five geophones between them</source>
        <translation>il n&apos;y a pas deux tirs qui aient des pointés de ce réfracteur à cinq géophones situés entre eux</translation>
    </message>
    <message>
        <source>no second layer can be fitted</source>
        <translation>aucune deuxième couche ne peut être ajustée</translation>
    </message>
    <message>
        <source>a second layer gains %1 ms</source>
        <translation>une deuxième couche fait gagner %1 ms</translation>
    </message>
    <message>
        <source>no third layer can be fitted</source>
        <translation>aucune troisième couche ne peut être ajustée</translation>
    </message>
    <message>
        <source>a third layer gains %1 ms</source>
        <translation>une troisième couche fait gagner %1 ms</translation>
    </message>
    <message>
        <source>1 layer, misfit %1 ms</source>
        <translation>1 couche, écart %1 ms</translation>
    </message>
    <message>
        <source>%1 layers, misfit %2 ms</source>
        <translation>%1 couches, écart %2 ms</translation>
    </message>
    <message>
        <source>no layers are proposed: there are too few picks to fit any</source>
        <translation>aucune couche n&apos;est proposée&#xa0;: il y a trop peu de pointés pour en ajuster</translation>
    </message>
    <message>
        <source>%1; without layers, by a steady gradient, %2 ms</source>
        <translation>%1&#xa0;; sans couches, avec un gradient constant, %2 ms</translation>
    </message>
    <message>
        <source>three layers fit better, but no shot at each end of the line has picks of the layer in between: two layers are proposed</source>
        <translation>trois couches s&apos;ajustent mieux, mais les deux bouts de la ligne n&apos;ont pas chacun un tir avec des pointés de la couche intermédiaire&#xa0;: deux couches sont proposées</translation>
    </message>
    <message>
        <source>%1 picks fit no layer and are given to none (shot/trace): %2</source>
        <translation>%1 pointés ne s&apos;accordent avec aucune couche et ne sont attribués à aucune (tir/trace)&#xa0;: %2</translation>
    </message>
    <message>
        <source>Known ground</source>
        <translation>Terrain connu</translation>
    </message>
    <message>
        <source>with %1 ms less, the pick of receiver %2 would come before the shot</source>
        <translation>avec %1 ms de moins, le pointé du récepteur %2 précéderait le tir</translation>
    </message>
    <message>
        <source>%1 The model that it started from was too far from the picks, chi-square %2, to hold the section to its sharp steps: they were smoothed first.</source>
        <translation>%1 Le modèle dont elle est partie était trop loin des pointés, khi-deux %2, pour maintenir la coupe sur ses sauts nets&#xa0;: ils ont d&apos;abord été lissés.</translation>
    </message>
    <message>
        <source>%1 holds no cell of the grid: it is too small, or beyond it.</source>
        <translation>%1 ne contient aucune cellule de la grille&#xa0;: trop petit, ou hors de celle-ci.</translation>
    </message>
    <message>
        <source>%1 at %2 stands beyond the grid.</source>
        <translation>%1, à %2, est hors de la grille.</translation>
    </message>
    <message>
        <source>%1 reaches %2 down, below the grid; what is below %3 does not count.</source>
        <translation>%1 descend à %2, sous la grille&#xa0;; ce qui est au-dessous de %3 ne compte pas.</translation>
    </message>
    <message>
        <source>%1: no cell is mostly of this layer; it counts by its share of cells, or lies within a fixed body.</source>
        <translation>%1&#xa0;: aucune cellule n&apos;est en majeure partie de cette couche&#xa0;; elle compte selon sa part des cellules, ou se trouve dans un corps fixe.</translation>
    </message>
    <message>
        <source>%1 (%2 along the line, %3 deep) is beyond the grid, or nearer to its edge than its error or a cell.</source>
        <translation>%1 (à %2 le long de la ligne, à %3 de profondeur) est hors de la grille, ou plus près de son bord que son erreur ou qu&apos;une cellule.</translation>
    </message>
    <message>
        <source>%1, %2 at %3</source>
        <translation>%1, %2 à %3</translation>
    </message>
    <message>
        <source>%1, %2 above</source>
        <translation>%1, %2 au-dessus</translation>
    </message>
    <message>
        <source>%1, %2 below</source>
        <translation>%1, %2 au-dessous</translation>
    </message>
    <message>
        <source>Layered interpretation</source>
        <translation>Interprétation en couches</translation>
    </message>
    <message>
        <source>Section of another project</source>
        <translation>Coupe d&apos;un autre projet</translation>
    </message>
    <message>
        <source>There is no layered interpretation to start from. Build one first.</source>
        <translation>Il n&apos;y a pas d&apos;interprétation en couches dont partir. Construisez-en d&apos;abord une.</translation>
    </message>
    <message>
        <source>Mean residual of the rays</source>
        <translation>Résidu moyen des rais</translation>
    </message>
    <message>
        <source>Mean residual over pick error</source>
        <translation>Résidu moyen sur erreur de pointé</translation>
    </message>
    <message>
        <source>Start from layers</source>
        <translation>Partir des couches</translation>
    </message>
    <message>
        <source>A layer has a velocity of %1, which is no velocity of the ground.</source>
        <translation>Une couche a une vitesse de %1, ce qui n&apos;est pas une vitesse du sol.</translation>
    </message>
    <message>
        <source>The layer that begins at %1 lies over another; order the layers by depth, without overlap.</source>
        <translation>La couche qui commence à %1 en chevauche une autre&#xa0;; classez les couches par profondeur, sans chevauchement.</translation>
    </message>
    <message>
        <source>The section fits all but one of the %1 picks to their errors: chi-square %2.</source>
        <translation>La coupe explique à leurs erreurs près tous les %1 pointés sauf un&#xa0;: khi-deux %2.</translation>
    </message>
    <message>
        <source>The section fits all but %1 of the %2 picks to their errors: chi-square %3.</source>
        <translation>La coupe explique les pointés à leurs erreurs près, sauf %1 sur %2&#xa0;: khi-deux %3.</translation>
    </message>
    <message>
        <source>target not reached: %1 of the %2 picks are off by more than five of their errors, even if the others leave a chi-square of %3. Look at them first: shots may be shifted in time, or picks lie on another wave.</source>
        <translation>objectif non atteint&#xa0;: %1 des %2 pointés s&apos;écartent de plus de cinq fois leur erreur, même si les autres laissent un khi-deux de %3. Examinez-les d&apos;abord&#xa0;: des tirs sont peut-être décalés en temps, ou des pointés placés sur une autre onde.</translation>
    </message>
    <message>
        <source>%1 The model that it started from fits them better than that, chi-square %2, and was smoothed as far as the errors allow. State errors %3 times as large to keep it sharp.</source>
        <translation>%1 Le modèle dont elle est partie les explique mieux, khi-deux %2, et a été lissé autant que les erreurs le permettent. Indiquez des erreurs %3 fois aussi grandes pour le garder net.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems late by %3 ms: run again with shifts.</source>
        <translation>%1 Le tir %2 semble en retard de %3 ms&#xa0;: refaites le calcul avec les décalages.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems early by %3 ms: run again with shifts.</source>
        <translation>%1 Le tir %2 semble en avance de %3 ms&#xa0;: refaites le calcul avec les décalages.</translation>
    </message>
    <message>
        <source>%1: chi-square %2, suspects %3</source>
        <translation>%1&#xa0;: khi-deux %2, suspects %3</translation>
    </message>
    <message>
        <source>%1 The fit from the model &quot;%2&quot; is kept, as those from others come less near to the picks: %3.</source>
        <translation>%1 L&apos;ajustement issu du modèle «&#xa0;%2&#xa0;» est conservé, car ceux issus d&apos;autres modèles reproduisent moins bien les pointés&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Layer %1 has no depth at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>La couche %1 n&apos;a pas de profondeur à %2 récepteurs sur %3&#xa0;; elle est reprise de leurs voisins.</translation>
    </message>
    <message>
        <source>Layer %1 has no velocity at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>La couche %1 n&apos;a pas de vitesse à %2 récepteurs sur %3&#xa0;; elle est reprise de leurs voisins.</translation>
    </message>
    <message>
        <source>Layer %1 has a negative depth at %2 of %3 receivers; it begins at the surface there.</source>
        <translation>La couche %1 a une profondeur négative à %2 récepteurs sur %3&#xa0;; elle y commence à la surface.</translation>
    </message>
    <message>
        <source>There is no layered profile; build the profiles of the refraction first.</source>
        <translation>Il n&apos;y a pas de profil en couches&#xa0;; construisez d&apos;abord les profils de la réfraction.</translation>
    </message>
    <message>
        <source>The first layer of the layered profile has no velocity. Mark direct waves as layer 1 and build the profiles again.</source>
        <translation>La première couche du profil en couches n&apos;a pas de vitesse. Attribuez les ondes directes à la couche 1 et reconstruisez les profils.</translation>
    </message>
    <message>
        <source>The first refractor of the layered profile has no depth or no velocity at any receiver.</source>
        <translation>Le premier réfracteur du profil en couches n&apos;a de profondeur, ou de vitesse, à aucun récepteur.</translation>
    </message>
    <message>
        <source>Layer 3 has no depth or no velocity at any receiver; the ground ends with layer 2.</source>
        <translation>La couche 3 n&apos;a de profondeur, ou de vitesse, à aucun récepteur&#xa0;; le terrain s&apos;arrête à la couche 2.</translation>
    </message>
    <message>
        <source>Layer 3 begins above layer 2 at %1 of %2 receivers; layer 2 is left out there.</source>
        <translation>La couche 3 commence au-dessus de la couche 2 à %1 récepteurs sur %2&#xa0;; la couche 2 y est omise.</translation>
    </message>
    <message>
        <source>The grid ends above layer %1 in %2 of %3 columns.</source>
        <translation>La grille s&apos;arrête au-dessus de la couche %1 dans %2 colonnes sur %3.</translation>
    </message>
    <message>
        <source>The layered profile has no depths of layer %1.</source>
        <translation>Le profil en couches n&apos;a pas de profondeurs pour la couche %1.</translation>
    </message>
    <message>
        <source>Layer %1, layered profile</source>
        <translation>Couche %1, profil en couches</translation>
    </message>
    <message>
        <source>Section, steepest gradient</source>
        <translation>Coupe, plus fort gradient</translation>
    </message>
    <message>
        <source>Section, %1</source>
        <translation>Coupe, %1</translation>
    </message>
    <message>
        <source>The methods could not be compared: %1</source>
        <translation>Les méthodes n&apos;ont pas pu être comparées&#xa0;: %1</translation>
    </message>
    <message>
        <source>P and S have no velocity in common to draw.</source>
        <translation>P et S n&apos;ont aucune vitesse commune à dessiner.</translation>
    </message>
    <message>
        <source>No method gives a depth.</source>
        <translation>Aucune méthode ne donne de profondeur.</translation>
    </message>
    <message>
        <source>this is no file with the members of an ensemble</source>
        <translation>ce n&apos;est pas un fichier de membres d&apos;un ensemble</translation>
    </message>
    <message>
        <source>its members cannot be read: the file is damaged</source>
        <translation>ses membres sont illisibles&#xa0;: le fichier est endommagé</translation>
    </message>
    <message>
        <source>its members are those of another ensemble: another survey or section, other settings or another seed</source>
        <translation>ses membres sont ceux d&apos;un autre ensemble&#xa0;: un autre levé ou une autre coupe, d&apos;autres réglages ou une autre graine</translation>
    </message>
    <message>
        <source>its member %1 is done already, others are not; only sets of members that share none can be put together</source>
        <translation>son membre %1 est déjà calculé, d&apos;autres ne le sont pas&#xa0;; seuls des jeux de membres qui n&apos;en partagent aucun peuvent être réunis</translation>
    </message>
    <message>
        <source>its members cannot be those of this ensemble</source>
        <translation>ses membres ne peuvent pas être ceux de cet ensemble</translation>
    </message>
    <message>
        <source>the first layer of its layered profile has one velocity</source>
        <translation>la première couche de son profil en couches a une seule vitesse</translation>
    </message>
    <message>
        <source>such a first layer cannot be</source>
        <translation>une telle première couche est impossible</translation>
    </message>
    <message>
        <source>it belongs to another layered profile</source>
        <translation>elle appartient à un autre profil en couches</translation>
    </message>
    <message>
        <source>Layer %1, medians of %2 places: %3; %4</source>
        <translation>Couche %1, médianes de %2 points&#xa0;: %3&#xa0;; %4</translation>
    </message>
    <message>
        <source>density %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</source>
        <translation>masse volumique %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places the depths of its top by P and by S differ by more than %4 % (median there %5 by P, %6 by S). P waves often see the water table, which S waves do not: the same number may be different ground.</source>
        <translation>Couche %1&#xa0;: en %2 points sur %3, les profondeurs de son toit selon P et selon S diffèrent de plus de %4&#xa0;% (leur médiane y est de %5 selon P, %6 selon S). Les ondes P voient souvent la nappe, les ondes S non&#xa0;: le même numéro peut désigner des terrains différents.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places a velocity is not known.</source>
        <translation>Couche %1&#xa0;: en %2 points sur %3, une vitesse n&apos;est pas connue.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there. Are P and S exchanged, or is S a P wave?</source>
        <translation>Couche %1&#xa0;: en %2 points sur %3, S n&apos;est pas plus lente que P, ce qu&apos;aucun terrain ne présente&#xa0;: ni coefficient de Poisson, ni E0, ni K à ces endroits. P et S sont-elles échangées, ou S est-elle une onde P&#xa0;?</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not: the velocities are of different ground, or wrong.</source>
        <translation>Couche %1&#xa0;: en %2 points sur %3, Vp/Vs est inférieur à 1,41 et le coefficient de Poisson négatif, ce qui n&apos;est le cas ni des sols ni des roches&#xa0;: les vitesses sont de terrains différents, ou fausses.</translation>
    </message>
    <message>
        <source>The surfaces of P and S lie up to %1 apart, at %2: they may not be the same line, or not begin at the same place.</source>
        <translation>Les surfaces de P et de S sont distantes de %1 au plus, à %2&#xa0;: ce n&apos;est peut-être pas la même ligne, ou elle ne commence pas au même endroit.</translation>
    </message>
    <message>
        <source>By their recordings the project of P is one of S waves, and that of S is not: they may be exchanged.</source>
        <translation>D&apos;après leurs enregistrements, le projet de P est d&apos;ondes S, et celui de S ne l&apos;est pas&#xa0;: ils sont peut-être échangés.</translation>
    </message>
    <message>
        <source>The recordings of both projects are of S waves.</source>
        <translation>Les enregistrements des deux projets sont d&apos;ondes S.</translation>
    </message>
    <message>
        <source>The places of P and S on the map are given in different systems (EPSG:%1 and EPSG:%2) and were not compared.</source>
        <translation>Les positions de P et de S sur la carte sont données dans des systèmes différents (EPSG:%1 et EPSG:%2) et n&apos;ont pas été comparées.</translation>
    </message>
    <message>
        <source>The same distances of P and S lie up to %1 apart on the map: they may not be the same line, or not begin at the same place.</source>
        <translation>Les mêmes distances de P et de S sont éloignées de %1 au plus sur la carte&#xa0;: ce n&apos;est peut-être pas la même ligne, ou elle ne commence pas au même endroit.</translation>
    </message>
    <message>
        <source>The project of P has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>Le projet de P n&apos;a pas de profil en couches&#xa0;: construisez d&apos;abord ses profils dans la boîte de dialogue de réfraction.</translation>
    </message>
    <message>
        <source>The project of S has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>Le projet de S n&apos;a pas de profil en couches&#xa0;: construisez d&apos;abord ses profils dans la boîte de dialogue de réfraction.</translation>
    </message>
    <message>
        <source>P and S have no place in common: P was interpreted from %1, S from %2 along the line.</source>
        <translation>P et S n&apos;ont aucun point commun&#xa0;: le long de la ligne, P est interprétée de %1, S de %2.</translation>
    </message>
    <message>
        <source>Layer %1: P and S have no place in common.</source>
        <translation>Couche %1&#xa0;: P et S n&apos;ont aucun point commun.</translation>
    </message>
    <message>
        <source>P has %1 layers and S has %2; what lies below layer %3 is known of one wave only and left out.</source>
        <translation>P a %1 couches et S en a %2&#xa0;; ce qui est sous la couche %3 n&apos;est connu que d&apos;une onde et est écarté.</translation>
    </message>
    <message>
        <source>the curves of layer %1 follow the lines of shots %2 and %3, which give %4 and %5 ms for the way between these shots</source>
        <translation>les courbes de la couche %1 suivent les lignes des tirs %2 et %3, qui donnent %4 et %5 ms pour le trajet entre ces tirs</translation>
    </message>
    <message>
        <source>the delays of the waves change so fast along the line that no boundary has them all</source>
        <translation>les retards des ondes changent si vite le long de la ligne qu&apos;aucune interface ne les explique tous</translation>
    </message>
    <message>
        <source>reciprocal</source>
        <translation>méthode réciproque</translation>
    </message>
    <message>
        <source>delay times</source>
        <translation>temps de retard</translation>
    </message>
    <message>
        <source>intercept times</source>
        <translation>temps d&apos;intercept</translation>
    </message>
    <message>
        <source>plus-minus</source>
        <translation>plus-minus</translation>
    </message>
    <message>
        <source>to the right of shot %1</source>
        <translation>à droite du tir %1</translation>
    </message>
    <message>
        <source>to the right of shots %1</source>
        <translation>à droite des tirs %1</translation>
    </message>
    <message>
        <source>to the left of shot %1</source>
        <translation>à gauche du tir %1</translation>
    </message>
    <message>
        <source>to the left of shots %1</source>
        <translation>à gauche des tirs %1</translation>
    </message>
    <message>
        <source>layer %1 rests on fewer than four picks (their number in brackets) %2</source>
        <translation>la couche %1 repose sur moins de quatre pointés (leur nombre entre parenthèses) %2</translation>
    </message>
    <message>
        <source>1 pick fits no layer and is given to none (shot/trace): %1</source>
        <translation>1 pointé ne s&apos;accorde avec aucune couche et n&apos;est attribué à aucune (tir/trace)&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robuste</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>non robuste</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>par blocs</translation>
    </message>
    <message>
        <source>smooth</source>
        <translation>lisse</translation>
    </message>
    <message>
        <source>shots shifted</source>
        <translation>tirs décalés</translation>
    </message>
    <message>
        <source>no shot shifted</source>
        <translation>aucun tir décalé</translation>
    </message>
    <message>
        <source>%1 of the %2 cells of P lie where the section of S shows none.</source>
        <translation>%1 des %2 cellules de P se trouvent là où la coupe de S n&apos;en montre aucune.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there.</source>
        <translation>Dans %1 cellules sur %2, S n&apos;est pas plus lente que P, ce qu&apos;aucun terrain ne présente&#xa0;: ni coefficient de Poisson, ni E0, ni K à ces endroits.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not.</source>
        <translation>Dans %1 cellules sur %2, Vp/Vs est inférieur à 1,41 et le coefficient de Poisson négatif, ce qui n&apos;est le cas ni des sols ni des roches.</translation>
    </message>
    <message>
        <source>The surfaces of the sections of P and S lie up to %1 apart, at %2; cells are matched by their depths below them.</source>
        <translation>Les surfaces des coupes de P et de S sont distantes de %1 au plus, à %2&#xa0;; les cellules sont appariées selon leur profondeur sous elles.</translation>
    </message>
    <message>
        <source>A section has no layers: all of it has the first density.</source>
        <translation>Une coupe n&apos;a pas de couches&#xa0;: elle a partout la première masse volumique.</translation>
    </message>
    <message>
        <source>The project of P has no section.</source>
        <translation>Le projet de P n&apos;a pas de coupe.</translation>
    </message>
    <message>
        <source>The project of S has no section.</source>
        <translation>Le projet de S n&apos;a pas de coupe.</translation>
    </message>
    <message>
        <source>The sections of P and S have no cell in common.</source>
        <translation>Les coupes de P et de S n&apos;ont aucune cellule commune.</translation>
    </message>
    <message>
        <source>a scratch file of samples cannot be written to</source>
        <translation>un fichier temporaire d&apos;échantillons ne peut pas être écrit</translation>
    </message>
    <message>
        <source>Samples are kept in memory: %1</source>
        <translation>Les échantillons restent en mémoire&#xa0;: %1</translation>
    </message>
    <message>
        <source>no folder for scratch files of samples can be written to</source>
        <translation>aucun dossier pour les fichiers temporaires d&apos;échantillons n&apos;est accessible en écriture</translation>
    </message>
    <message>
        <source>no scratch file of samples can be made in %1: %2</source>
        <translation>aucun fichier temporaire d&apos;échantillons ne peut être créé dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>No report format is known for %1: let the file name end with .pdf, .odt or .html.</source>
        <translation>Aucun format de rapport n&apos;est connu pour %1&#xa0;: le nom du fichier doit se terminer par .pdf, .odt ou .html.</translation>
    </message>
    <message>
        <source>This Talvesk cannot write web pages: it was built without the chart library. Run scripts/bootstrap and build it again, or write a PDF or ODT report.</source>
        <translation>Ce Talvesk ne peut pas écrire de pages web&#xa0;: il a été compilé sans la bibliothèque de graphiques. Lancez scripts/bootstrap et compilez-le de nouveau, ou écrivez un rapport PDF ou ODT.</translation>
    </message>
    <message>
        <source>P: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>P&#xa0;: son profil a été ajusté à tous les pointés et ne reçoit pas d&apos;erreurs. Un profil par la méthode réciproque en reçoit.</translation>
    </message>
    <message>
        <source>S: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>S&#xa0;: son profil a été ajusté à tous les pointés et ne reçoit pas d&apos;erreurs. Un profil par la méthode réciproque en reçoit.</translation>
    </message>
    <message>
        <source>The velocity of layer 1 changes along the line and with depth in this profile; here it is its mean, %1, everywhere.</source>
        <translation>Dans ce profil, la vitesse de la couche 1 varie le long de la ligne et avec la profondeur&#xa0;; ici, c&apos;est partout sa moyenne, %1.</translation>
    </message>
    <message>
        <source>the first distance must be a number, and the EPSG code a whole number</source>
        <translation>la première distance doit être un nombre, et le code EPSG un nombre entier</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossible d&apos;écrire %1</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Filtre réjecteur</translation>
    </message>
    <message>
        <source>Velocity filter</source>
        <translation>Filtre de vitesse</translation>
    </message>
    <message>
        <source>the line has no place on the map; its geographic coordinates are missing</source>
        <translation>la ligne n&apos;a pas de place sur la carte&#xa0;; ses coordonnées géographiques manquent</translation>
    </message>
    <message>
        <source>two shot files of the survey would both become %1</source>
        <translation>deux fichiers de tirs du levé deviendraient tous deux %1</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey; choose another folder</source>
        <translation>%1 est l&apos;un des fichiers de tirs de ce levé&#xa0;; choisissez un autre dossier</translation>
    </message>
    <message>
        <source>it holds several shots, whose traces may be mixed</source>
        <translation>il contient plusieurs tirs, dont les traces peuvent être mêlées</translation>
    </message>
    <message>
        <source>its traces are not those of the survey any more</source>
        <translation>ses traces ne sont plus celles du levé</translation>
    </message>
    <message>
        <source>miniSEED has no headers for picks</source>
        <translation>miniSEED n&apos;a pas d&apos;en-têtes pour les pointés</translation>
    </message>
    <message>
        <source>the survey has no shot files</source>
        <translation>le levé n&apos;a pas de fichiers de tirs</translation>
    </message>
    <message>
        <source>%1 was left out: %2</source>
        <translation>%1 a été écarté&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 has no picks</source>
        <translation>%1 n&apos;a pas de pointés</translation>
    </message>
    <message>
        <source>%1 shots have no shot file of their own and were left out</source>
        <translation>%1 tirs n&apos;ont pas de fichier de tirs à eux et ont été écartés</translation>
    </message>
    <message>
        <source>bytes 233 to 236 of %1 trace headers held something else before</source>
        <translation>les octets 233 à 236 de %1 en-têtes de trace contenaient auparavant autre chose</translation>
    </message>
    <message>
        <source>the header of trace %1 cannot be followed</source>
        <translation>l&apos;en-tête de la trace %1 ne peut pas être suivi</translation>
    </message>
    <message>
        <source>it has %1 traces, the survey %2 of them</source>
        <translation>il a %1 traces, le levé en a %2</translation>
    </message>
    <message>
        <source>it would grow too large</source>
        <translation>il deviendrait trop grand</translation>
    </message>
    <message>
        <source>the header of trace %1 has no room for a pick</source>
        <translation>l&apos;en-tête de la trace %1 n&apos;a pas de place pour un pointé</translation>
    </message>
    <message>
        <source>it is SEG-Y of revision 2, whose trace headers have no bytes to spare</source>
        <translation>c&apos;est du SEG-Y de révision 2, dont les en-têtes de trace n&apos;ont pas d&apos;octets libres</translation>
    </message>
    <message>
        <source>it is not known by what the filtered copies of its traces were made</source>
        <translation>on ne sait pas par quoi les copies filtrées de ses traces ont été faites</translation>
    </message>
    <message>
        <source>marked isolines and what was drawn on its section are lost</source>
        <translation>les isolignes marquées et ce qui a été dessiné sur sa coupe sont perdus</translation>
    </message>
    <message>
        <source>the line lies straight on the map between its ends</source>
        <translation>la ligne est droite sur la carte entre ses extrémités</translation>
    </message>
    <message>
        <source>its vertices are no course of a line</source>
        <translation>ses sommets ne forment pas le tracé d&apos;une ligne</translation>
    </message>
    <message>
        <source>it belongs to another map position</source>
        <translation>il appartient à une autre position sur la carte</translation>
    </message>
    <message>
        <source>it tells of traces that are not there, or of filters that are not known</source>
        <translation>il parle de traces qui n&apos;existent pas, ou de filtres inconnus</translation>
    </message>
    <message>
        <source>%1 is no style file: %2</source>
        <translation>%1 n&apos;est pas un fichier de style&#xa0;: %2</translation>
    </message>
    <message>
        <source>a newer version of Talvesk has written it</source>
        <translation>une version plus récente de Talvesk l&apos;a écrit</translation>
    </message>
    <message>
        <source>the place lies outside of %1</source>
        <translation>l&apos;endroit est hors du domaine de %1</translation>
    </message>
    <message>
        <source>it is not known which columns hold easting and northing, or longitude and latitude</source>
        <translation>on ne sait pas quelles colonnes contiennent est et nord, ou longitude et latitude</translation>
    </message>
    <message>
        <source>%1 has more than %2 rows, which is no table of a line</source>
        <translation>%1 a plus de %2 lignes, ce n&apos;est pas un tableau d&apos;une ligne de géophones</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>son texte est trop long</translation>
    </message>
    <message>
        <source>its colour is none</source>
        <translation>sa couleur n&apos;en est pas une</translation>
    </message>
    <message>
        <source>a line is %1 to %2 points wide</source>
        <translation>une ligne a une épaisseur de %1 à %2 points</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sable</translation>
    </message>
    <message>
        <source>Gravel</source>
        <translation>Gravier</translation>
    </message>
    <message>
        <source>Clay</source>
        <translation>Argile</translation>
    </message>
    <message>
        <source>Silt</source>
        <translation>Limon</translation>
    </message>
    <message>
        <source>Rock</source>
        <translation>Roche</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remblai</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>it is neither text nor line nor polygon</source>
        <translation>ce n&apos;est ni un texte, ni une ligne, ni un polygone</translation>
    </message>
    <message>
        <source>its pattern is none</source>
        <translation>son motif n&apos;en est pas un</translation>
    </message>
    <message>
        <source>it says nothing</source>
        <translation>elle ne dit rien</translation>
    </message>
    <message>
        <source>a text stands at one point, not at %1</source>
        <translation>un texte se trouve en un point, non en %1</translation>
    </message>
    <message>
        <source>it has %1 points and needs %2 at least</source>
        <translation>elle a %1 points et il en faut %2 au moins</translation>
    </message>
    <message>
        <source>%1, %2 is no place of a section</source>
        <translation>%1, %2 n&apos;est pas un endroit d&apos;une coupe</translation>
    </message>
    <message>
        <source>a text is %1 to %2 points high</source>
        <translation>un texte a une hauteur de %1 à %2 points</translation>
    </message>
    <message>
        <source>a section holds %1 marked isolines and %2 annotations with %3 points at most</source>
        <translation>une coupe contient au plus %1 isolignes marquées et %2 annotations avec %3 points</translation>
    </message>
    <message>
        <source>marked isoline %1</source>
        <translation>isoligne marquée %1</translation>
    </message>
    <message>
        <source>annotation %1</source>
        <translation>annotation %1</translation>
    </message>
    <message>
        <source>band-pass from %1 Hz, order %2, to %3 Hz, order %4</source>
        <translation>passe-bande de %1 Hz, ordre %2, à %3 Hz, ordre %4</translation>
    </message>
    <message>
        <source>low-pass %1 Hz, order %2</source>
        <translation>passe-bas %1 Hz, ordre %2</translation>
    </message>
    <message>
        <source>high-pass %1 Hz, order %2</source>
        <translation>passe-haut %1 Hz, ordre %2</translation>
    </message>
    <message>
        <source>%1 and more</source>
        <translation>%1 et plus</translation>
    </message>
    <message>
        <source>forth along the line</source>
        <translation>vers l&apos;avant le long de la ligne</translation>
    </message>
    <message>
        <source>back along the line</source>
        <translation>vers l&apos;arrière le long de la ligne</translation>
    </message>
    <message>
        <source>both ways</source>
        <translation>dans les deux sens</translation>
    </message>
    <message>
        <source>velocities of %1, %2, pass (taper %3 %)</source>
        <translation>les vitesses de %1, %2, passent (apodisation %3&#xa0;%)</translation>
    </message>
    <message>
        <source>velocities of %1, %2, are rejected (taper %3 %)</source>
        <translation>les vitesses de %1, %2, sont rejetées (apodisation %3&#xa0;%)</translation>
    </message>
    <message>
        <source>notches at %1 Hz and multiples, %2 in all, quality %3</source>
        <translation>filtre réjecteur à %1 Hz et multiples, %2 en tout, qualité %3</translation>
    </message>
    <message>
        <source>two geophones at least need easting and northing</source>
        <translation>il faut les coordonnées est et nord de deux géophones au moins</translation>
    </message>
    <message>
        <source>the first and the last geophone are at one place on the map, which gives the line no direction</source>
        <translation>le premier et le dernier géophone sont au même endroit de la carte, ce qui ne donne aucune direction à la ligne</translation>
    </message>
    <message>
        <source>a trace cannot have a gain of %1, only one from %2 to %3</source>
        <translation>une trace ne peut pas avoir un gain de %1, seulement de %2 à %3</translation>
    </message>
    <message>
        <source>traces with a gain of %1: %2</source>
        <translation>traces avec un gain de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>geophone %1</source>
        <translation>géophone %1</translation>
    </message>
    <message>
        <source>geophones %1</source>
        <translation>géophones %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>lignes %1</translation>
    </message>
    <message>
        <source>lines %1 and %2 more</source>
        <translation>lignes %1 et %2 autres</translation>
    </message>
    <message>
        <source>Not used, for no geophone or shot of the survey is there: %1</source>
        <translation>Non utilisé, car aucun géophone ni tir du levé ne s&apos;y trouve&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not used, for a row above is of the same geophone or shot: %1</source>
        <translation>Non utilisé, car une ligne plus haut est du même géophone ou tir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Without a row, placed among those that have one by the distances so far: %1</source>
        <translation>Sans ligne de tableau, placé parmi ceux qui en ont une selon les distances actuelles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Without a row, left where nothing tells how they stand to the others: %1</source>
        <translation>Sans ligne de tableau, laissé là où rien ne dit sa place par rapport aux autres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Without an elevation, raised to the line between the others: %1</source>
        <translation>Sans altitude, placé sur la droite entre les autres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Hardly apart from their neighbours: %1</source>
        <translation>À peine distincts de leurs voisins&#xa0;: %1</translation>
    </message>
    <message>
        <source>The line runs back to %1; an exchanged row or number?</source>
        <translation>La ligne revient en arrière à %1&#xa0;; une ligne de tableau ou un numéro échangés&#xa0;?</translation>
    </message>
    <message>
        <source>Not as far from the geophone before as expected: %1</source>
        <translation>Pas à la distance attendue du géophone précédent&#xa0;: %1</translation>
    </message>
    <message>
        <source>fewer than two geophones of the survey have a row in the table</source>
        <translation>moins de deux géophones du levé ont une ligne dans le tableau</translation>
    </message>
    <message>
        <source>lengths along the ground need the elevation of every geophone; the table lacks %1</source>
        <translation>les longueurs le long du terrain exigent l&apos;altitude de chaque géophone&#xa0;; il manque au tableau %1</translation>
    </message>
    <message>
        <source>its sample interval is not known</source>
        <translation>son pas d&apos;échantillonnage n&apos;est pas connu</translation>
    </message>
    <message>
        <source>it has samples that are no numbers</source>
        <translation>elle a des échantillons qui ne sont pas des nombres</translation>
    </message>
    <message>
        <source>a notch needs a frequency, a multiple and a quality above 0</source>
        <translation>un filtre réjecteur exige une fréquence, un multiple et une qualité supérieurs à 0</translation>
    </message>
    <message>
        <source>it is sampled too slowly for %1 Hz</source>
        <translation>l&apos;échantillonnage est trop lent pour %1 Hz</translation>
    </message>
    <message>
        <source>it is shorter than one period of %1 Hz</source>
        <translation>elle est plus courte qu&apos;une période de %1 Hz</translation>
    </message>
    <message>
        <source>trace %1 has another length or sample interval than trace 1</source>
        <translation>la trace %1 a une autre longueur ou un autre pas d&apos;échantillonnage que la trace 1</translation>
    </message>
    <message>
        <source>trace %1 has samples that are no numbers</source>
        <translation>la trace %1 a des échantillons qui ne sont pas des nombres</translation>
    </message>
    <message>
        <source>it has no samples, or no known sample interval</source>
        <translation>il n&apos;a pas d&apos;échantillons, ou pas de pas d&apos;échantillonnage connu</translation>
    </message>
    <message>
        <source>its geophones are not evenly spaced: trace %1 at %2 is %3 from the one before, the usual distance is %4</source>
        <translation>ses géophones ne sont pas régulièrement espacés&#xa0;: la trace %1 à %2 est à %3 de la précédente, la distance habituelle est de %4</translation>
    </message>
    <message>
        <source>it has fewer than %1 traces</source>
        <translation>il a moins de %1 traces</translation>
    </message>
    <message>
        <source>the positions of its geophones are not known</source>
        <translation>les positions de ses géophones ne sont pas connues</translation>
    </message>
    <message>
        <source>of %1 places along its line %2 have no trace</source>
        <translation>sur %1 emplacements le long de sa ligne, %2 n&apos;ont pas de trace</translation>
    </message>
    <message>
        <source>shot %1: of %2 places along its line %3 have no trace, or a killed one; they count as zero, beside them the filter is less sharp</source>
        <translation>tir %1&#xa0;: sur %2 emplacements le long de sa ligne, %3 n&apos;ont pas de trace, ou une trace neutralisée&#xa0;; ils comptent comme nuls, à côté le filtre est moins net</translation>
    </message>
    <message>
        <source>the slowest velocity, %1, must be above 0 and below the fastest, %2</source>
        <translation>la vitesse la plus lente, %1, doit être supérieure à 0 et inférieure à la plus rapide, %2</translation>
    </message>
    <message>
        <source>the taper must be 0 or more and less than 100 percent of a limit</source>
        <translation>l&apos;apodisation doit être d&apos;au moins 0 et de moins de 100 pour cent d&apos;une limite</translation>
    </message>
    <message>
        <source>Surveyed positions</source>
        <translation>Positions levées</translation>
    </message>
    <message>
        <source>Marked isolines</source>
        <translation>Isolignes marquées</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Appliquer un style</translation>
    </message>
    <message>
        <source>shot %1 has no trace %2</source>
        <translation>le tir %1 n&apos;a pas de trace %2</translation>
    </message>
    <message>
        <source>no recordings yet</source>
        <translation>pas encore d&apos;enregistrements</translation>
    </message>
    <message>
        <source>times of %1 shots, without recordings</source>
        <translation>temps de %1 tirs, sans enregistrements</translation>
    </message>
    <message>
        <source>recordings that begin before their shot: %1</source>
        <translation>enregistrements qui commencent avant leur tir&#xa0;: %1</translation>
    </message>
    <message>
        <source>recordings that were read with warnings: %1</source>
        <translation>enregistrements lus avec des avertissements&#xa0;: %1</translation>
    </message>
    <message>
        <source>shots: %1</source>
        <translation>tirs&#xa0;: %1</translation>
    </message>
    <message>
        <source>no geophones yet</source>
        <translation>pas encore de géophones</translation>
    </message>
    <message>
        <source>positions are missing or cannot be</source>
        <translation>des positions manquent ou sont impossibles</translation>
    </message>
    <message>
        <source>things that look wrong in the positions: %1</source>
        <translation>points qui semblent faux dans les positions&#xa0;: %1</translation>
    </message>
    <message>
        <source>geophones: %1, shots: %2</source>
        <translation>géophones&#xa0;: %1, tirs&#xa0;: %2</translation>
    </message>
    <message>
        <source>no picks yet</source>
        <translation>pas encore de pointés</translation>
    </message>
    <message>
        <source>shots without picks: %1</source>
        <translation>tirs sans pointés&#xa0;: %1</translation>
    </message>
    <message>
        <source>only %1 of %2 traces have a pick</source>
        <translation>seulement %1 traces sur %2 ont un pointé</translation>
    </message>
    <message>
        <source>%1 picks on %2 traces</source>
        <translation>%1 pointés sur %2 traces</translation>
    </message>
    <message>
        <source>no picks to check yet</source>
        <translation>pas encore de pointés à vérifier</translation>
    </message>
    <message>
        <source>%1 of %2 picks that wait for confirmation are doubtful</source>
        <translation>%1 pointés en attente de confirmation sur %2 sont douteux</translation>
    </message>
    <message>
        <source>of %1 picks nothing is known that could speak against them</source>
        <translation>de %1 pointés, rien n&apos;est connu qui pourrait les contredire</translation>
    </message>
    <message>
        <source>none of the %1 picks that wait for confirmation is doubtful</source>
        <translation>aucun des %1 pointés en attente de confirmation n&apos;est douteux</translation>
    </message>
    <message>
        <source>no pick waits for confirmation</source>
        <translation>aucun pointé n&apos;attend de confirmation</translation>
    </message>
    <message>
        <source>no grid yet</source>
        <translation>pas encore de grille</translation>
    </message>
    <message>
        <source>the grid has no cells</source>
        <translation>la grille n&apos;a pas de cellules</translation>
    </message>
    <message>
        <source>shots and geophones beyond the grid: %1</source>
        <translation>tirs et géophones hors de la grille&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 x %2 cells</source>
        <translation>%1 x %2 cellules</translation>
    </message>
    <message>
        <source>%1, the usual starting model</source>
        <translation>%1, le modèle initial habituel</translation>
    </message>
    <message>
        <source>%1, a starting model with layers: %2</source>
        <translation>%1, un modèle initial en couches&#xa0;: %2</translation>
    </message>
    <message>
        <source>no inversion yet</source>
        <translation>pas encore d&apos;inversion</translation>
    </message>
    <message>
        <source>the section is older than the picks</source>
        <translation>la coupe est antérieure aux pointés</translation>
    </message>
    <message>
        <source>the known ground is other than that of the section</source>
        <translation>le terrain connu n&apos;est pas celui de la coupe</translation>
    </message>
    <message>
        <source>it was stopped before its end</source>
        <translation>elle a été arrêtée avant la fin</translation>
    </message>
    <message>
        <source>chi-square is %1 and not near 1</source>
        <translation>le khi-deux est de %1 et non proche de 1</translation>
    </message>
    <message>
        <source>the section is inverted</source>
        <translation>la coupe est inversée</translation>
    </message>
    <message>
        <source>RMSE %1 ms of %2 picks</source>
        <translation>RMSE %1 ms de %2 pointés</translation>
    </message>
    <message>
        <source>no section yet</source>
        <translation>pas encore de coupe</translation>
    </message>
    <message>
        <source>the layered profile is older than the picks</source>
        <translation>le profil en couches est antérieur aux pointés</translation>
    </message>
    <message>
        <source>the certainty is older than the picks</source>
        <translation>la certitude est antérieure aux pointés</translation>
    </message>
    <message>
        <source>the section was smoothed after its inversion</source>
        <translation>la coupe a été lissée après son inversion</translation>
    </message>
    <message>
        <source>the section lies beyond its certainty</source>
        <translation>la coupe dépasse sa certitude</translation>
    </message>
    <message>
        <source>how certain the section is is not known</source>
        <translation>la certitude de la coupe n&apos;est pas connue</translation>
    </message>
    <message>
        <source>the section and its certainty are there</source>
        <translation>la coupe et sa certitude sont là</translation>
    </message>
    <message>
        <source>it has no section</source>
        <translation>elle n&apos;a pas de coupe</translation>
    </message>
    <message>
        <source>no cell of its section is drawn</source>
        <translation>aucune cellule de sa coupe n&apos;est dessinée</translation>
    </message>
    <message>
        <source>its line is nowhere on the map</source>
        <translation>sa ligne n&apos;est nulle part sur la carte</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Neutraliser les traces</translation>
    </message>
    <message>
        <source>Revive traces</source>
        <translation>Rétablir les traces</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Inverser la polarité</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Mute des traces</translation>
    </message>
    <message>
        <source>Mute traces no more</source>
        <translation>Lever le mute des traces</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Amplifier les traces</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Atténuer les traces</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet.</source>
        <translation>La figure ne tient sur cette feuille à aucune échelle : choisissez une feuille plus grande.</translation>
    </message>
    <message>
        <source>The scale must lie between 1:%1 and 1:%2.</source>
        <translation>L’échelle doit être comprise entre 1:%1 et 1:%2.</translation>
    </message>
    <message>
        <source>choose two different recordings</source>
        <translation>choisissez deux enregistrements différents</translation>
    </message>
    <message>
        <source>Choose a scale, or type one such as 1:750.</source>
        <translation>Choisissez une échelle ou saisissez-en une, par exemple 1:750.</translation>
    </message>
    <message>
        <source>The printer is set to paper of %1 x %2 mm, and the sheets are made for %3 x %4 mm: choose the same paper for both.</source>
        <translation>L&apos;imprimante est réglée sur du papier de %1 x %2 mm, et les feuilles sont faites pour %3 x %4 mm&#xa0;: choisissez le même papier pour les deux.</translation>
    </message>
    <message>
        <source>The printer does not take the sheets.</source>
        <translation>L&apos;imprimante n&apos;accepte pas les feuilles.</translation>
    </message>
    <message>
        <source>Add sum of two shots</source>
        <translation>Ajouter la somme de deux tirs</translation>
    </message>
    <message>
        <source>Add difference of two shots</source>
        <translation>Ajouter la différence de deux tirs</translation>
    </message>
    <message>
        <source>Cannot make the folder %1</source>
        <translation>Impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>Cannot write %1: there is a file of that name that is no page of Talvesk; move it or choose another folder</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: il existe un fichier de ce nom qui n&apos;est pas une page de Talvesk&#xa0;; déplacez-le ou choisissez un autre dossier</translation>
    </message>
    <message>
        <source>There is nothing chosen to be drawn.</source>
        <translation>Rien n&apos;est choisi à dessiner.</translation>
    </message>
    <message>
        <source>There is no section to draw.</source>
        <translation>Il n&apos;y a pas de coupe à dessiner.</translation>
    </message>
    <message>
        <source>A sheet has 1 to %1 rows and 1 to %2 columns of shots.</source>
        <translation>Une feuille a de 1 à %1 lignes et de 1 à %2 colonnes de tirs.</translation>
    </message>
    <message>
        <source>There is no sheet %1 to draw.</source>
        <translation>Il n&apos;y a pas de feuille %1 à dessiner.</translation>
    </message>
    <message>
        <source>A centimetre must be %1 to %2 ms.</source>
        <translation>Un centimètre doit valoir de %1 à %2 ms.</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet, or more milliseconds to a centimetre.</source>
        <translation>La figure ne tient sur cette feuille à aucune échelle&#xa0;: choisissez une feuille plus grande, ou plus de millisecondes par centimètre.</translation>
    </message>
    <message>
        <source>At 1:%1 the figure takes %2 x %3 mm, and the sheet has room for %4 x %5 mm: choose 1:%6 or a larger sheet, or have it split.</source>
        <translation>À 1:%1, la figure occupe %2 x %3 mm et la feuille offre %4 x %5 mm&#xa0;: choisissez 1:%6 ou une feuille plus grande, ou faites-la répartir.</translation>
    </message>
    <message>
        <source>its format names no fields of headers</source>
        <translation>son format ne nomme pas de champs d&apos;en-tête</translation>
    </message>
    <message>
        <source>fields of SEG-Y revision 2 are not shown</source>
        <translation>les champs de SEG-Y révision 2 ne sont pas affichés</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>les règles du programme</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>la norme de son format</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>tir désactivé</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>décalé de %1 ms</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>ordre inversé</translation>
    </message>
    <message>
        <source>stacked</source>
        <translation>sommé</translation>
    </message>
    <message>
        <source>killed</source>
        <translation>neutralisée</translation>
    </message>
    <message>
        <source>polarity reversed</source>
        <translation>polarité inversée</translation>
    </message>
    <message>
        <source>muted before %1 ms</source>
        <translation>mute avant %1 ms</translation>
    </message>
    <message>
        <source>gain %1</source>
        <translation>gain %1</translation>
    </message>
    <message>
        <source>filtered</source>
        <translation>filtrée</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Shot x</source>
        <translation>x tir</translation>
    </message>
    <message>
        <source>Shot elevation</source>
        <translation>Altitude tir</translation>
    </message>
    <message>
        <source>Geophone x</source>
        <translation>x géophone</translation>
    </message>
    <message>
        <source>Geophone elevation</source>
        <translation>Altitude géophone</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Déport</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Pointé</translation>
    </message>
    <message>
        <source>Pick error</source>
        <translation>Erreur du pointé</translation>
    </message>
    <message>
        <source>Sample interval</source>
        <translation>Pas d&apos;échantillonnage</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Record length</source>
        <translation>Durée d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Délai</translation>
    </message>
    <message>
        <source>Samples cut off</source>
        <translation>Échantillons retirés</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Corrections</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Shot x in file</source>
        <translation>x tir (fichier)</translation>
    </message>
    <message>
        <source>Shot elevation in file</source>
        <translation>Altitude tir (fichier)</translation>
    </message>
    <message>
        <source>Geophone x in file</source>
        <translation>x géophone (fichier)</translation>
    </message>
    <message>
        <source>Geophone elevation in file</source>
        <translation>Altitude géophone (fichier)</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Lu selon</translation>
    </message>
    <message>
        <source>it has no shot file</source>
        <translation>il n&apos;a pas de fichier de tir</translation>
    </message>
    <message>
        <source>it is made of two shot files</source>
        <translation>il est fait de deux fichiers de tirs</translation>
    </message>
    <message>
        <source>its file has %1 traces, the shot %2</source>
        <translation>son fichier a %1 traces, le tir %2</translation>
    </message>
    <message>
        <source>no geophones of shot %1 and shot %2 that can be compared are at one place</source>
        <translation>aucun géophone comparable du tir %1 et du tir %2 n&apos;est au même endroit</translation>
    </message>
    <message>
        <source>no difference and no sum: the samples are %1 ms and %2 ms apart</source>
        <translation>ni différence ni somme&#xa0;: les pas d&apos;échantillonnage sont de %1 ms et %2 ms</translation>
    </message>
    <message>
        <source>no difference and no sum: the records begin %1 samples apart, which is no whole number</source>
        <translation>ni différence ni somme&#xa0;: les débuts des enregistrements sont séparés de %1 échantillons, ce qui n&apos;est pas un nombre entier</translation>
    </message>
    <message>
        <source>%1 traces at the same places</source>
        <translation>%1 traces aux mêmes endroits</translation>
    </message>
    <message>
        <source>without a partner: %1 traces of shot %2, %3 of shot %4</source>
        <translation>sans vis-à-vis&#xa0;: %1 traces du tir %2, %3 du tir %4</translation>
    </message>
    <message>
        <source>the second is %1 times as strong</source>
        <translation>le second est %1 fois aussi fort</translation>
    </message>
    <message>
        <source>it is shown times %1</source>
        <translation>il est affiché multiplié par %1</translation>
    </message>
    <message>
        <source>its record begins %1 ms later</source>
        <translation>son enregistrement commence %1 ms plus tard</translation>
    </message>
    <message>
        <source>its record begins %1 ms earlier</source>
        <translation>son enregistrement commence %1 ms plus tôt</translation>
    </message>
    <message>
        <source>difference and sum begin with %1 samples of zero</source>
        <translation>différence et somme commencent par %1 échantillons nuls</translation>
    </message>
    <message>
        <source>difference and sum end %1 samples before the first</source>
        <translation>différence et somme finissent %1 échantillons avant le premier</translation>
    </message>
    <message>
        <source>sum of shots %1 and %2</source>
        <translation>somme des tirs %1 et %2</translation>
    </message>
    <message>
        <source>difference of shots %1 and %2</source>
        <translation>différence des tirs %1 et %2</translation>
    </message>
    <message>
        <source>At 1:%1 the figure is too large even for many sheets: choose 1:%2, or a scale between them.</source>
        <translation>À 1:%1, la figure est trop grande même pour de nombreuses feuilles : choisissez 1:%2 ou une échelle intermédiaire.</translation>
    </message>
    <message>
        <source>put the %1 geophones of its string at %2 to %3</source>
        <translation>placer les %1 géophones de son dispositif de %2 à %3</translation>
    </message>
    <message>
        <source>%1; over %2 shots the least times move by one channel as the shot moves by %3, so geophone 1 is at %4 and the last one at %5</source>
        <translation>%1&#xa0;; sur %2 tirs, les temps minimaux se déplacent d&apos;un canal quand le tir se déplace de %3&#xa0;: le géophone 1 est donc à %4 et le dernier à %5</translation>
    </message>
    <message>
        <source>no geophone stands between %1 and %2: the ground there is seen from neither side unless shots reach over it</source>
        <translation>aucun géophone entre %1 et %2&#xa0;: le terrain n&apos;y est vu d&apos;aucun côté, sauf si des tirs portent au-delà</translation>
    </message>
    <message>
        <source>the positions of the geophones are no metres: over %1 shots the least times move by 1 as the shot moves by %2; geophones %3 apart from %4 on have them beside the shots</source>
        <translation>les positions des géophones ne sont pas des mètres&#xa0;: sur %1 tirs, les temps minimaux se déplacent de 1 quand le tir se déplace de %2&#xa0;; des géophones espacés de %3 à partir de %4 les ont à côté des tirs</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: the geophones nearest to the shot, %3 away, would put the blow between %4 and %5 ms, whatever the ground</source>
        <translation>l&apos;enregistrement est %2 d&apos;environ %1 ms&#xa0;: les géophones les plus proches du tir, à %3, situeraient le coup entre %4 et %5 ms, quel que soit le terrain</translation>
    </message>
    <message>
        <source>The layers make no velocity model. Order them by depth, without overlap, each more than %1 thick.</source>
        <translation>Les couches ne forment pas un modèle de vitesse. Classez-les par profondeur, sans chevauchement, chacune de plus de %1 d&apos;épaisseur.</translation>
    </message>
    <message>
        <source>%1 velocities and depths of the layers are left out: outside %2 to %3, or deeper than the line is long</source>
        <translation>%1 vitesses et profondeurs des couches sont écartées&#xa0;: hors de la plage de %2 à %3, ou plus profondes que la longueur de la ligne</translation>
    </message>
    <message>
        <source>velocities of %1 cell cannot be; they are held within %2 and %3</source>
        <translation>les vitesses de %1 cellule sont impossibles&#xa0;; elles sont maintenues entre %2 et %3</translation>
    </message>
    <message>
        <source>velocities of %1 cells cannot be; they are held within %2 and %3</source>
        <translation>les vitesses de %1 cellules sont impossibles&#xa0;; elles sont maintenues entre %2 et %3</translation>
    </message>
    <message>
        <source>by its headers the geophones stand along %1; their scalar or unit is likely wrong, so check them or load a geometry file</source>
        <translation>d&apos;après ses en-têtes, les géophones s&apos;étendent sur %1&#xa0;; leur facteur d&apos;échelle ou leur unité est sans doute faux, vérifiez-les donc ou chargez un fichier de géométrie</translation>
    </message>
    <message>
        <source>%1 fields that there is no room for, among them %2</source>
        <translation>%1 champs pour lesquels il n&apos;y a pas de place, dont %2</translation>
    </message>
    <message>
        <source>%1 is no velocity of ground (%2 to %3)</source>
        <translation>%1 n&apos;est pas une vitesse de terrain (%2 à %3)</translation>
    </message>
    <message>
        <source>%1 is no depth below the surface (0 to %2)</source>
        <translation>%1 n&apos;est pas une profondeur sous la surface (0 à %2)</translation>
    </message>
    <message>
        <source>a layer from %1 to %2 has its bottom not below its top</source>
        <translation>une couche de %1 à %2 n&apos;a pas sa base au-dessous de son toit</translation>
    </message>
    <message>
        <source>an error of %1 must not be negative, and less than its velocity, %2</source>
        <translation>une erreur de %1 ne doit pas être négative, et doit être inférieure à sa vitesse, %2</translation>
    </message>
    <message>
        <source>Farther from the line than half the spacing of %1: %2</source>
        <translation>Plus loin de la ligne que la moitié de l&apos;espacement de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Vp %1, Vs %2, Vp/Vs %3, Poisson&apos;s ratio %4</source>
        <translation>Vp %1, Vs %2, Vp/Vs %3, coefficient de Poisson %4</translation>
    </message>
    <message>
        <source>Gardner&apos;s rule was found for rocks faster than %1; at %2 of %3 places Vp is less, and the density a guess.</source>
        <translation>La relation de Gardner a été établie pour des roches plus rapides que %1&#xa0;; en %2 points sur %3, Vp est inférieure et la masse volumique approximative.</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off from shot %3 at %4 on</source>
        <translation>le profil ne s&apos;ajuste à ses pointés qu&apos;à %1 ms près, les ondes de la proposition à %2 ms près&#xa0;: il s&apos;en écarte à partir du tir %3, à %4</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off most at shot %3 at %4</source>
        <translation>le profil ne s&apos;ajuste à ses pointés qu&apos;à %1 ms près, les ondes de la proposition à %2 ms près&#xa0;: il s&apos;en écarte le plus au tir %3, à %4</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 receivers, where the velocity comes out outside %3 to %4.</source>
        <translation>Couche %1&#xa0;: ni vitesse ni profondeur à %2 récepteurs, où la vitesse calculée est hors de la plage de %3 à %4.</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3, no depth</source>
        <translation>Couche %1, %2&#xa0;: %3, aucune profondeur</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 at a depth of %4 (medians); depths at %5 of %6 geophones, %7 of them not carried by picks there</source>
        <translation>Couche %1, %2&#xa0;: %3 à une profondeur de %4 (médianes)&#xa0;; profondeurs à %5 des %6 géophones, dont %7 sans appui de pointés à cet endroit</translation>
    </message>
    <message>
        <source>Layer %1: depths are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Couche %1&#xa0;: les profondeurs diffèrent le plus à %2, de %3 (%4) à %5 (%6)</translation>
    </message>
    <message>
        <source>Layer %1: velocities are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Couche %1&#xa0;: les vitesses diffèrent le plus à %2, de %3 (%4) à %5 (%6)</translation>
    </message>
    <message>
        <source>no layers: a velocity that grows steadily with depth, from %1 with a gradient of %2 1/s, has a misfit of %3 ms</source>
        <translation>pas de couches&#xa0;: une vitesse qui croît régulièrement avec la profondeur, à partir de %1 avec un gradient de %2 1/s, a un écart de %3 ms</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers, the least below the greatest; %1 and %2 are not.</source>
        <translation>Les limites de vitesse doivent être des nombres positifs, la plus petite inférieure à la plus grande&#xa0;; %1 et %2 ne le sont pas.</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 à %3</translation>
    </message>
    <message>
        <source>velocities of %1 and %2 do not increase with depth</source>
        <translation>des vitesses de %1 et %2 n&apos;augmentent pas avec la profondeur</translation>
    </message>
    <message>
        <source>%1 at the surface, %2 where the deepest ray turns, %3 down</source>
        <translation>%1 en surface, %2 au point bas du rai le plus profond, à %3 de profondeur</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down, %4 from %5 down</source>
        <translation>%1, %2 à partir de %3 de profondeur, %4 à partir de %5</translation>
    </message>
    <message>
        <source>%1 with a gradient of %2 1/s, %3 from %4 down</source>
        <translation>%1 avec un gradient de %2 1/s, %3 à partir de %4 de profondeur</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down</source>
        <translation>%1, %2 à partir de %3 de profondeur</translation>
    </message>
    <message>
        <source>Layer %1 is known from %2 to %3; its depth and velocity stay as they are there to the ends of the grid.</source>
        <translation>La couche %1 est connue de %2 à %3&#xa0;; au-delà, jusqu&apos;aux bouts de la grille, sa profondeur et sa vitesse restent celles de ces extrémités.</translation>
    </message>
    <message>
        <source>the records of shot %1 and shot %2 begin too far apart in time to be laid over each other; look at the delays in their headers</source>
        <translation>les enregistrements des tirs %1 et %2 commencent trop loin l&apos;un de l&apos;autre dans le temps pour être superposés&#xa0;; regardez les délais dans leurs en-têtes</translation>
    </message>
    <message>
        <source>the shots are at one place</source>
        <translation>les tirs sont au même endroit</translation>
    </message>
    <message>
        <source>the shots are %1 apart</source>
        <translation>les tirs sont distants de %1</translation>
    </message>
    <message>
        <source>the shots are %1 apart: difference and sum are not of one place</source>
        <translation>les tirs sont distants de %1&#xa0;: différence et somme ne sont pas d&apos;un même endroit</translation>
    </message>
    <message>
        <source>left out: %1 pairs with a trace that is killed, or has no samples or no interval</source>
        <translation>écartées&#xa0;: %1 paires avec une trace neutralisée, ou sans échantillons ou sans pas d&apos;échantillonnage</translation>
    </message>
    <message>
        <source>left out: %1 pairs whose records begin too far apart in time</source>
        <translation>écartées&#xa0;: %1 paires dont les enregistrements commencent trop loin l&apos;un de l&apos;autre dans le temps</translation>
    </message>
    <message>
        <source>%1 fields or more that there is no room for, among them %2</source>
        <translation>%1 champs ou plus pour lesquels il n&apos;y a pas de place, dont %2</translation>
    </message>
    <message>
        <source>%1 traces go together by their numbers, for all are at one place</source>
        <translation>%1 traces vont ensemble selon leurs numéros, car toutes sont au même endroit</translation>
    </message>
    <message>
        <source>where a shot was is not known</source>
        <translation>on ne sait pas où était un tir</translation>
    </message>
</context>
<context>
    <name>talvesk::Messages</name>
    <message>
        <source>The document has been modified</source>
        <translation>Le document a été modifié</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>Voulez-vous enregistrer vos modifications&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Recover survey</source>
        <translation>Récupérer le levé</translation>
    </message>
    <message>
        <source>Talvesk was not closed properly.</source>
        <translation>Talvesk n&apos;a pas été fermé correctement.</translation>
    </message>
    <message>
        <source>Ask again later</source>
        <translation>Redemander plus tard</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Supprimer la copie</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitPlot</name>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Écart après chaque itération externe</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Itération externe</translation>
    </message>
    <message>
        <source>RMSE (ms)</source>
        <translation>RMSE (ms)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Dernière passe du solveur</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitTable</name>
    <message numerus="yes">
        <source>%n pick(s); picks later than computed by %1 ms in the mean; chi2 %2</source>
        <translation>
            <numerusform>%n pointé&#xa0;; en retard de %1 ms en moyenne sur le temps calculé&#xa0;; khi-deux %2</numerusform>
            <numerusform>%n pointés&#xa0;; en retard de %1 ms en moyenne sur les temps calculés&#xa0;; khi-deux %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Misfit (ms)</source>
        <translation>Écart (ms)</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Couche %1</translation>
    </message>
    <message>
        <source>RMS of picks less computed times, per shot and layer</source>
        <translation>RMS des pointés moins temps calculés, par tir et par couche</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tir %1</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Tous les tirs</translation>
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
        <translation>Filtre réjecteur</translation>
    </message>
    <message>
        <source>Takes the hum of power lines out of the filtered copy. Arrivals stay where they are.</source>
        <translation>Ôte de la copie filtrée le bourdonnement du secteur. Les arrivées restent à leur place.</translation>
    </message>
    <message>
        <source>&amp;Power line (Hz):</source>
        <translation>&amp;Secteur (Hz)&#xa0;:</translation>
    </message>
    <message>
        <source>50 Hz in most of the world, 60 Hz in North America; some railways have 16.7 Hz</source>
        <translation>50 Hz presque partout dans le monde, 60 Hz en Amérique du Nord&#xa0;; certains chemins de fer utilisent 16,7 Hz</translation>
    </message>
    <message>
        <source>&amp;Multiples:</source>
        <translation>&amp;Multiples&#xa0;:</translation>
    </message>
    <message>
        <source>So many multiples are taken out, the frequency itself among them, as far as the record has them</source>
        <translation>Nombre de multiples ôtés, dont la fréquence elle-même, autant que l&apos;enregistrement en contient</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualité&#xa0;:</translation>
    </message>
    <message>
        <source>The frequency over the width of every notch at 3 dB: larger ones take less of the signal, and less of hum that wanders</source>
        <translation>La fréquence sur la largeur de chaque coupure à 3 dB&#xa0;: plus grande, elle ôte moins de signal, et moins d&apos;un bourdonnement instable</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Appliquer le filtre à&#xa0;:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>O&amp;riginales</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>Fi&amp;ltrées</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Le filtre s&apos;applique à tous les tirs.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>Le filtre s&apos;applique au tir %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::PaletteDialog</name>
    <message>
        <source>Palette Settings</source>
        <translation>Réglages de la palette</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Palette that colours the section</source>
        <translation>Palette qui colore la coupe</translation>
    </message>
    <message>
        <source>Load palettes from files</source>
        <translation>Charger des palettes depuis des fichiers</translation>
    </message>
    <message>
        <source>Save this palette to a file</source>
        <translation>Enregistrer cette palette dans un fichier</translation>
    </message>
    <message>
        <source>Create New Palette</source>
        <translation>Créer une palette</translation>
    </message>
    <message>
        <source>Add a palette from black to white and select it</source>
        <translation>Ajouter une palette du noir au blanc et la sélectionner</translation>
    </message>
    <message>
        <source>Edit Palette</source>
        <translation>Modifier la palette</translation>
    </message>
    <message>
        <source>Edit the colours; of a built-in palette, those of a copy</source>
        <translation>Modifier les couleurs&#xa0;; pour une palette prédéfinie, celles d&apos;une copie</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>Renommer la palette</translation>
    </message>
    <message>
        <source>Give the palette another name; built-in ones keep theirs</source>
        <translation>Donner un autre nom à la palette&#xa0;; les palettes prédéfinies gardent le leur</translation>
    </message>
    <message>
        <source>Delete Palette</source>
        <translation>Supprimer la palette</translation>
    </message>
    <message>
        <source>Remove the palette; built-in ones stay</source>
        <translation>Retirer la palette&#xa0;; les palettes prédéfinies restent</translation>
    </message>
    <message>
        <source>Number of colours</source>
        <translation>Nombre de couleurs</translation>
    </message>
    <message>
        <source>Into how many colours the gradient is cut</source>
        <translation>En combien de couleurs le dégradé est découpé</translation>
    </message>
    <message>
        <source>Range from Data</source>
        <translation>Plage des données</translation>
    </message>
    <message>
        <source>Lock the range</source>
        <translation>Verrouiller la plage</translation>
    </message>
    <message>
        <source>Keep minimum and maximum when another palette is chosen or another line is shown</source>
        <translation>Conserver le minimum et le maximum lorsqu&apos;une autre palette est choisie ou qu&apos;une autre ligne est affichée</translation>
    </message>
    <message>
        <source>Talvesk Palette (*.xml)</source>
        <translation>Palette Talvesk (*.xml)</translation>
    </message>
    <message>
        <source>MIN: %1, MAX: %2</source>
        <translation>MIN&#xa0;: %1, MAX&#xa0;: %2</translation>
    </message>
    <message>
        <source>New palette</source>
        <translation>Nouvelle palette</translation>
    </message>
    <message>
        <source>%1 - copy</source>
        <translation>%1 - copie</translation>
    </message>
    <message>
        <source>Save new palette as : </source>
        <translation>Enregistrer la nouvelle palette sous&#xa0;: </translation>
    </message>
    <message>
        <source>There is a palette of this name already.</source>
        <translation>Une palette de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Ce nom est trop long.</translation>
    </message>
    <message>
        <source>Save Palette</source>
        <translation>Enregistrer la palette</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Remplacer le fichier&#xa0;?</translation>
    </message>
    <message>
        <source>Error while saving palette.</source>
        <translation>Erreur lors de l&apos;enregistrement de la palette.</translation>
    </message>
    <message>
        <source>Open Palette</source>
        <translation>Ouvrir une palette</translation>
    </message>
    <message>
        <source>Error while loading palette.</source>
        <translation>Erreur lors du chargement de la palette.</translation>
    </message>
    <message>
        <source>Take minimum and maximum from the velocities of the section</source>
        <translation>Prendre le minimum et le maximum des vitesses de la coupe</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>&amp;Figure:</source>
        <translation>&amp;Figure&#xa0;:</translation>
    </message>
    <message>
        <source>What is printed. What there is nothing of yet is grey, with the reason.</source>
        <translation>Ce qui est imprimé. Ce dont il n&apos;y a encore rien est en gris, avec la raison.</translation>
    </message>
    <message>
        <source>&amp;At:</source>
        <translation>&amp;Distance&#xa0;:</translation>
    </message>
    <message>
        <source>Place along the line of the depth profile</source>
        <translation>Endroit du profil de profondeur le long de la ligne</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>Stands in the block below the figure</source>
        <translation>Apparaît dans le cartouche sous la figure</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>Éche&amp;lle&#xa0;:</translation>
    </message>
    <message>
        <source>How many times longer the line is than on paper: choose, or type any scale.</source>
        <translation>Combien de fois la ligne est plus longue que sur le papier : choisir, ou taper une échelle quelconque.</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>Exagération &amp;verticale&#xa0;:</translation>
    </message>
    <message>
        <source>How many times larger heights are drawn than lengths along the line</source>
        <translation>Combien de fois les hauteurs sont dessinées plus grandes que les longueurs le long de la ligne</translation>
    </message>
    <message>
        <source>As shown</source>
        <translation>Comme affichée</translation>
    </message>
    <message>
        <source>T&amp;imes:</source>
        <translation>Te&amp;mps&#xa0;:</translation>
    </message>
    <message>
        <source>Milliseconds to a centimetre of paper</source>
        <translation>Millisecondes par centimètre de papier</translation>
    </message>
    <message>
        <source>As the sheet has room</source>
        <translation>Selon la place sur la feuille</translation>
    </message>
    <message>
        <source> ms/cm</source>
        <translation> ms/cm</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientation&#xa0;:</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Neighbouring sheets have 10 mm in common, with match lines where they are joined</source>
        <translation>Les feuilles voisines ont 10 mm en commun, avec des lignes de raccord pour les assembler</translation>
    </message>
    <message>
        <source>Sp&amp;lit over several sheets</source>
        <translation>&amp;Répartir sur plusieurs feuilles</translation>
    </message>
    <message>
        <source>Whether the figure has room, and what else would fit</source>
        <translation>Si la figure a la place, et ce qui tiendrait sinon</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Aperçu des feuilles</translation>
    </message>
    <message>
        <source>Smaller preview</source>
        <translation>Aperçu plus petit</translation>
    </message>
    <message>
        <source>Smaller preview (Ctrl+-)</source>
        <translation>Aperçu plus petit (Ctrl+-)</translation>
    </message>
    <message>
        <source>Larger preview</source>
        <translation>Aperçu plus grand</translation>
    </message>
    <message>
        <source>Larger preview (Ctrl++)</source>
        <translation>Aperçu plus grand (Ctrl++)</translation>
    </message>
    <message>
        <source>All sheets in view</source>
        <translation>Toutes les feuilles visibles</translation>
    </message>
    <message>
        <source>&amp;Whole sheets</source>
        <translation>Feuilles &amp;entières</translation>
    </message>
    <message>
        <source>Choose a printer and print the sheets on it, at their real size</source>
        <translation>Choisir une imprimante et y imprimer les feuilles, à leur taille réelle</translation>
    </message>
    <message>
        <source>P&amp;rint ...</source>
        <translation>&amp;Imprimer ...</translation>
    </message>
    <message>
        <source>Save the sheets as they would be printed</source>
        <translation>Enregistrer les feuilles telles qu&apos;elles seraient imprimées</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>E&amp;nregistrer en PDF ...</translation>
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
        <translation>Ajuster à la page</translation>
    </message>
    <message>
        <source>No printer is installed. A PDF can be printed elsewhere.</source>
        <translation>Aucune imprimante n&apos;est installée. Un PDF peut être imprimé ailleurs.</translation>
    </message>
    <message>
        <source>There is nothing to print yet.</source>
        <translation>Il n&apos;y a encore rien à imprimer.</translation>
    </message>
    <message>
        <source>The figure does not fit the sheet at this scale.</source>
        <translation>La figure ne tient pas sur la feuille à cette échelle.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n feuille</numerusform>
            <numerusform>%n feuilles</numerusform>
        </translation>
    </message>
    <message>
        <source>At %1 the figure takes %2.</source>
        <translation>À %1, la figure occupe %2.</translation>
    </message>
    <message>
        <source>The figure takes %1.</source>
        <translation>La figure occupe %1.</translation>
    </message>
    <message>
        <source>At %1 the figure takes %2, and the sheet has room for %3.</source>
        <translation>À %1, la figure occupe %2 et la feuille offre %3.</translation>
    </message>
    <message>
        <source>With more milliseconds to a centimetre it is less high.</source>
        <translation>Avec plus de millisecondes par centimètre, elle est moins haute.</translation>
    </message>
    <message>
        <source>Choose a larger sheet.</source>
        <translation>Choisissez une feuille plus grande.</translation>
    </message>
    <message>
        <source>What would fit:</source>
        <translation>Ce qui tiendrait&#xa0;:</translation>
    </message>
    <message>
        <source>This is the first usual scale from %1 on at which it fits one sheet.</source>
        <translation>C&apos;est la première échelle usuelle, à partir de %1, à laquelle cela tient sur une feuille.</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintPreview</name>
    <message>
        <source>Drawing the sheets ...</source>
        <translation>Dessin des feuilles ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ProfileTable</name>
    <message>
        <source>picks</source>
        <translation>pointés</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>fantôme</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>lacune</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>prolongement</translation>
    </message>
    <message>
        <source>Picks of the shots at both ends of the line carry it.</source>
        <translation>S&apos;appuie sur des pointés des tirs aux deux extrémités de la ligne.</translation>
    </message>
    <message>
        <source>Shifted arrivals of other shots carry it.</source>
        <translation>S&apos;appuie sur des arrivées décalées d&apos;autres tirs.</translation>
    </message>
    <message>
        <source>It lies across more than two spacings without arrivals.</source>
        <translation>Se trouve dans une lacune sans arrivées de plus de deux espacements.</translation>
    </message>
    <message>
        <source>It continues what lies beside it, beyond the last arrivals.</source>
        <translation>Prolonge ce qui est à côté, au-delà des dernières arrivées.</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>Depth %1 (m)</source>
        <translation>Profondeur %1 (m)</translation>
    </message>
    <message>
        <source>V %1 (m/s)</source>
        <translation>V %1 (m/s)</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Appui profondeur %1</translation>
    </message>
    <message>
        <source>Fitted to all picks, some of which come from here or go here.</source>
        <translation>Ajusté à tous les pointés, dont certains partent d&apos;ici ou arrivent ici.</translation>
    </message>
    <message>
        <source>No pick of the layer comes from here or goes here: it lies between what others tell.</source>
        <translation>Aucun pointé de la couche ne part d&apos;ici ni n&apos;arrive ici&#xa0;: la valeur se situe entre ce qu&apos;indiquent les autres.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReadingPanel</name>
    <message>
        <source>Format:</source>
        <translation>Format&#xa0;:</translation>
    </message>
    <message>
        <source>Shots:</source>
        <translation>Tirs&#xa0;:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Traces&#xa0;:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Échantillons par trace&#xa0;:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Pas d&apos;échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Délai d&apos;enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Shot at:</source>
        <translation>Tir à&#xa0;:</translation>
    </message>
    <message>
        <source>Geophones at:</source>
        <translation>Géophones à&#xa0;:</translation>
    </message>
    <message>
        <source>Shot in view:</source>
        <translation>Tir affiché&#xa0;:</translation>
    </message>
    <message>
        <source>No trace</source>
        <translation>Aucune trace</translation>
    </message>
    <message>
        <source>No warnings</source>
        <translation>Aucun avertissement</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>non lu</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Nothing was read.</source>
        <translation>Rien n&apos;a été lu.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReadingsDialog</name>
    <message>
        <source>The standard reads more</source>
        <translation>La norme lit davantage</translation>
    </message>
    <message>
        <source>The program&apos;s rules cannot carry all that these files hold. Read by the standard of their format they give more:</source>
        <translation>Les règles du programme ne peuvent pas reprendre tout ce que contiennent ces fichiers. Lus selon la norme de leur format, ils donnent davantage&#xa0;:</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>What gets lost by the program&apos;s rules</source>
        <translation>Ce qui est perdu selon les règles du programme</translation>
    </message>
    <message>
        <source>By the program&apos;s rules</source>
        <translation>Selon les règles du programme</translation>
    </message>
    <message>
        <source>By the standard</source>
        <translation>Selon la norme</translation>
    </message>
    <message>
        <source>Use the &amp;standard for these files</source>
        <translation>&amp;Utiliser la norme pour ces fichiers</translation>
    </message>
    <message>
        <source>&amp;Keep the program&apos;s rules</source>
        <translation>&amp;Garder les règles du programme</translation>
    </message>
    <message>
        <source>Files and what each reading finds in them</source>
        <translation>Fichiers et ce que chaque lecture y trouve</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityDialog</name>
    <message>
        <source>Reciprocity</source>
        <translation>Réciprocité</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Temps à l&apos;aller et au retour</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>À [m]</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paires</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Retard [ms]</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Differences of times there and back, shot by shot</source>
        <translation>Différences des temps à l&apos;aller et au retour, tir par tir</translation>
    </message>
    <message>
        <source>The pick of the first shot at the place of the second comes into view in the window; a click on a line or a cell does the same</source>
        <translation>Affiche dans la fenêtre le pointé du premier tir à l&apos;emplacement du second&#xa0;; un clic sur une ligne ou une case fait de même</translation>
    </message>
    <message>
        <source>Show pick &amp;there</source>
        <translation>Afficher le pointé &amp;aller</translation>
    </message>
    <message>
        <source>The pick of the second shot at the place of the first comes into view; so does a click on the second shot of a line, or on the cell across the diagonal</source>
        <translation>Affiche le pointé du second tir à l&apos;emplacement du premier&#xa0;; un clic sur le second tir d&apos;une ligne, ou sur la case symétrique par rapport à la diagonale, fait de même</translation>
    </message>
    <message>
        <source>Show pick &amp;back</source>
        <translation>Afficher le pointé &amp;retour</translation>
    </message>
    <message>
        <source>Shifts the record of the chosen shot, with its picks, by the time that mends it; Undo takes it back</source>
        <translation>Décale l&apos;enregistrement du tir choisi, avec ses pointés, du temps qui le corrige&#xa0;; «&#xa0;Défaire&#xa0;» l&apos;annule</translation>
    </message>
    <message>
        <source>&amp;Mend</source>
        <translation>&amp;Corriger</translation>
    </message>
    <message>
        <source>Saves all pairs as a table (.csv)</source>
        <translation>Enregistre toutes les paires dans un tableau (.csv)</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Enregistrer le tableau...</translation>
    </message>
    <message>
        <source>Pairs of shots: %1, RMS of their differences: %2 ms. A wave takes as long on the way back: what differs is a pick, or a clock.</source>
        <translation>Paires de tirs&#xa0;: %1, RMS de leurs différences&#xa0;: %2 ms. L&apos;onde met autant de temps au retour&#xa0;: ce qui diffère est un pointé, ou une horloge.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Tir %1&#xa0;: %2.</translation>
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
        <translation>aucune&#xa0;: il n&apos;y a pas d&apos;enregistrement à décaler</translation>
    </message>
    <message>
        <source>Pick the traces of more shots. Where they have picks, see whether geophones and shots stand where they stood.</source>
        <translation>Pointez les traces d&apos;autres tirs. Là où il y a des pointés, vérifiez que géophones et tirs sont bien là où ils étaient.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityMatrix</name>
    <message>
        <source>Row to column, longer than back by [ms]</source>
        <translation>Ligne vers colonne, excès sur le retour [ms]</translation>
    </message>
    <message>
        <source>Shot %1 to shot %2</source>
        <translation>Tir %1 vers tir %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tir %1</translation>
    </message>
    <message>
        <source>%1: no picks along both ways</source>
        <translation>%1&#xa0;: pas de pointés dans les deux sens</translation>
    </message>
    <message>
        <source>%1: %2 ms, back %3 ms, difference %4 ms</source>
        <translation>%1&#xa0;: %2 ms, retour %3 ms, différence %4 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityModel</name>
    <message>
        <source>Shows trace %1 of shot %2</source>
        <translation>Affiche la trace %1 du tir %2</translation>
    </message>
    <message>
        <source>–</source>
        <comment>not known</comment>
        <translation>–</translation>
    </message>
    <message>
        <source>The difference in standard deviations, where both picks have an error</source>
        <translation>La différence en écarts types, si les deux pointés ont une erreur</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>À [m]</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Aller [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Retour [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Différence [ms]</translation>
    </message>
    <message>
        <source>Sigmas</source>
        <translation>Sigmas</translation>
    </message>
</context>
<context>
    <name>talvesk::RecordingDetailsDialog</name>
    <message>
        <source>Recording details</source>
        <translation>Détails de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>&amp;Shot:</source>
        <translation>&amp;Tir&#xa0;:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format&#xa0;:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Traces&#xa0;:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Échantillons par trace&#xa0;:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Pas d&apos;échantillonnage&#xa0;:</translation>
    </message>
    <message>
        <source>Record length:</source>
        <translation>Durée d&apos;enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Délai d&apos;enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Samples dropped before the shot:</source>
        <translation>Échantillons retirés avant le tir&#xa0;:</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Traces du tir</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Geophone x (m)</source>
        <translation>x géophone (m)</translation>
    </message>
    <message>
        <source>Geophone z (m)</source>
        <translation>z géophone (m)</translation>
    </message>
    <message>
        <source>Shot x (m)</source>
        <translation>x tir (m)</translation>
    </message>
    <message>
        <source>Shot z (m)</source>
        <translation>z tir (m)</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Interval (ms)</source>
        <translation>Pas (ms)</translation>
    </message>
    <message>
        <source>Delay (ms)</source>
        <translation>Délai (ms)</translation>
    </message>
    <message>
        <source>&amp;Warnings of the reader:</source>
        <translation>&amp;Avertissements du lecteur&#xa0;:</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Read by:</source>
        <translation>Lu selon&#xa0;:</translation>
    </message>
    <message>
        <source>Mends:</source>
        <translation>Corrections&#xa0;:</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>les règles du programme</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>la norme de son format</translation>
    </message>
    <message>
        <source>the standard of its format; record %1 of the file, %2</source>
        <translation>la norme de son format&#xa0;; enregistrement %1 du fichier, %2</translation>
    </message>
    <message>
        <source>Pick (ms)</source>
        <translation>Pointé (ms)</translation>
    </message>
    <message>
        <source>Error (ms)</source>
        <translation>Erreur (ms)</translation>
    </message>
    <message>
        <source>Samples are kept:</source>
        <translation>Échantillons gardés&#xa0;:</translation>
    </message>
    <message>
        <source>in memory and on the disk</source>
        <translation>en mémoire et sur le disque</translation>
    </message>
    <message>
        <source>on the disk</source>
        <translation>sur le disque</translation>
    </message>
    <message>
        <source>in memory</source>
        <translation>en mémoire</translation>
    </message>
    <message>
        <source>in memory, for %1</source>
        <translation>en mémoire, car %1</translation>
    </message>
    <message>
        <source>Filtered copy by:</source>
        <translation>Copie filtrée par&#xa0;:</translation>
    </message>
</context>
<context>
    <name>talvesk::RecoveryCopy</name>
    <message>
        <source>Nothing can be written in %1</source>
        <translation>Impossible d&apos;écrire dans %1</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProcessingDialog</name>
    <message>
        <source>Refraction processing</source>
        <translation>Traitement en réfraction</translation>
    </message>
    <message>
        <source>T-x curves</source>
        <translation>Courbes T-x</translation>
    </message>
    <message>
        <source>Select layer:</source>
        <translation>Choix de la couche&#xa0;:</translation>
    </message>
    <message>
        <source>0 none</source>
        <translation>0 aucune</translation>
    </message>
    <message>
        <source>1 direct wave</source>
        <translation>1 onde directe</translation>
    </message>
    <message>
        <source>2 first refractor</source>
        <translation>2 premier réfracteur</translation>
    </message>
    <message>
        <source>3 second refractor</source>
        <translation>3 second réfracteur</translation>
    </message>
    <message>
        <source>Show layer:</source>
        <translation>Afficher la couche&#xa0;:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
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
        <translation>Modifiable</translation>
    </message>
    <message>
        <source>Let clicks and drags mark picks</source>
        <translation>Les clics et les glissements attribuent les pointés</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refaire</translation>
    </message>
    <message>
        <source>Propose layers</source>
        <translation>Proposer les couches</translation>
    </message>
    <message>
        <source>Find the break points of all branches</source>
        <translation>Trouver les points de brisure de toutes les branches</translation>
    </message>
    <message>
        <source>Clear marks</source>
        <translation>Effacer les attributions</translation>
    </message>
    <message>
        <source>Shot:</source>
        <translation>Tir&#xa0;:</translation>
    </message>
    <message>
        <source>Takes part</source>
        <translation>Participe</translation>
    </message>
    <message>
        <source>Whether the chosen shot takes part in the interpretation</source>
        <translation>Si le tir choisi participe à l&apos;interprétation</translation>
    </message>
    <message>
        <source>Phantoming</source>
        <translation>Phantoming</translation>
    </message>
    <message>
        <source>Auto phantoming</source>
        <translation>Phantoming automatique</translation>
    </message>
    <message>
        <source>Complete the curves of the end shots by the arrivals of the other shots</source>
        <translation>Compléter les courbes des tirs d&apos;extrémité par les arrivées des autres tirs</translation>
    </message>
    <message>
        <source>Time shifts</source>
        <translation>Décalages temporels</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Récepteurs</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Pointés</translation>
    </message>
    <message>
        <source>Shift (ms)</source>
        <translation>Décalage (ms)</translation>
    </message>
    <message>
        <source>tV/tG</source>
        <translation>tV/tG</translation>
    </message>
    <message>
        <source>Refractor:</source>
        <translation>Réfracteur&#xa0;:</translation>
    </message>
    <message>
        <source>Velocity/Profile</source>
        <translation>Vitesse/Profil</translation>
    </message>
    <message>
        <source>Build profiles</source>
        <translation>Construire les profils</translation>
    </message>
    <message>
        <source>Curves, tV and tG, velocities and depths from the marks</source>
        <translation>Courbes, tV et tG, vitesses et profondeurs d&apos;après les attributions</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>time (ms)</source>
        <translation>temps (ms)</translation>
    </message>
    <message>
        <source>There are no picks to assign to layers: pick first breaks, or import travel times.</source>
        <translation>Il n&apos;y a aucun pointé à attribuer aux couches&#xa0;: pointez les premières arrivées ou importez des temps de parcours.</translation>
    </message>
    <message>
        <source>Phantom travel times</source>
        <translation>Temps de parcours fantômes</translation>
    </message>
    <message>
        <source>No curves yet.

Assign picks to layer 2 for a shot at either end of the line, then press &quot;Auto phantoming&quot; or &quot;Build profiles&quot;.</source>
        <translation>Aucune courbe pour l&apos;instant.

Attribuez à la couche 2 les pointés d&apos;un tir à chaque extrémité de la ligne, puis cliquez sur «&#xa0;Phantoming automatique&#xa0;» ou «&#xa0;Construire les profils&#xa0;».</translation>
    </message>
    <message>
        <source>tV, velocity analysis</source>
        <translation>tV, analyse de vitesse</translation>
    </message>
    <message>
        <source>tG, time depth</source>
        <translation>tG, profondeur-temps</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Velocity (m/s)</source>
        <translation>Vitesse (m/s)</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Profil de réfraction</translation>
    </message>
    <message>
        <source>Z (m)</source>
        <translation>Z (m)</translation>
    </message>
    <message>
        <source>Nothing is built yet: assign picks to layers and press &quot;Build profiles&quot;.</source>
        <translation>Rien n&apos;est encore construit&#xa0;: attribuez des pointés aux couches et cliquez sur «&#xa0;Construire les profils&#xa0;».</translation>
    </message>
    <message>
        <source>There is no depth to show. Layer 1 needs a branch with two picks, and each refractor has to be faster than the layer above.</source>
        <translation>Il n&apos;y a aucune profondeur à afficher. La couche 1 a besoin d&apos;une branche avec deux pointés, et chaque réfracteur doit être plus rapide que la couche au-dessus.</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Tous les tirs</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1&#xa0;: à %2</translation>
    </message>
    <message numerus="yes">
        <source>take %n pick(s) out</source>
        <translation>
            <numerusform>retirer %n pointé</numerusform>
            <numerusform>retirer %n pointés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>mark %n pick(s)</source>
        <translation>
            <numerusform>attribuer %n pointé</numerusform>
            <numerusform>attribuer %n pointés</numerusform>
        </translation>
    </message>
    <message>
        <source>The marks have changed since the profiles were built.</source>
        <translation>Les attributions ont changé depuis la construction des profils.</translation>
    </message>
    <message>
        <source>Click a pick, or drag around several, to assign them. Keys 1, 2, 3 and 0: layer</source>
        <translation>Cliquez sur un pointé, ou encadrez-en plusieurs, pour les attribuer. Touches 1, 2, 3 et 0&#xa0;: couche</translation>
    </message>
    <message>
        <source>right of shot %1</source>
        <translation>à droite du tir %1</translation>
    </message>
    <message>
        <source>left of shot %1</source>
        <translation>à gauche du tir %1</translation>
    </message>
    <message>
        <source>no velocity</source>
        <translation>aucune vitesse</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 (%4 picks)</source>
        <translation>Couche %1, %2&#xa0;: %3 (%4 pointés)</translation>
    </message>
    <message>
        <source>Replace the marks by a proposal?</source>
        <translation>Remplacer les attributions par une proposition&#xa0;?</translation>
    </message>
    <message>
        <source>All picks are assigned anew from the break points of the branches. Undo brings the marks back.</source>
        <translation>Tous les pointés sont réattribués d&apos;après les points de brisure des branches. «&#xa0;Défaire&#xa0;» rétablit les attributions.</translation>
    </message>
    <message>
        <source>No branch of the curves has picks enough to tell layers apart.</source>
        <translation>Aucune branche des courbes n&apos;a assez de pointés pour distinguer les couches.</translation>
    </message>
    <message>
        <source>propose layers</source>
        <translation>proposer les couches</translation>
    </message>
    <message>
        <source>clear marks</source>
        <translation>effacer les attributions</translation>
    </message>
    <message>
        <source>let shot %1 take part</source>
        <translation>faire participer le tir %1</translation>
    </message>
    <message>
        <source>leave shot %1 out</source>
        <translation>écarter le tir %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>No profile could be built.</source>
        <translation>Aucun profil n&apos;a pu être construit.</translation>
    </message>
    <message>
        <source>first (layer 2)</source>
        <translation>premier (couche 2)</translation>
    </message>
    <message>
        <source>second (layer 3)</source>
        <translation>second (couche 3)</translation>
    </message>
    <message>
        <source>Layer %1 from shot %2</source>
        <translation>Couche %1 depuis le tir %2</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>vers la droite</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>vers la gauche</translation>
    </message>
    <message>
        <source>other XY</source>
        <translation>autres XY</translation>
    </message>
    <message>
        <source>XY = %1</source>
        <translation>XY = %1</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Couche %1</translation>
    </message>
    <message>
        <source>Close without keeping the changes?</source>
        <translation>Fermer sans conserver les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>XY, half distance (m):</source>
        <translation>XY, demi-distance (m)&#xa0;:</translation>
    </message>
    <message>
        <source>The forward curve is read at the distance XY after the receiver, the reverse curve at XY before it: the two points lie 2 XY apart.</source>
        <translation>La courbe directe est lue à la distance XY après le récepteur, la courbe inverse à la distance XY avant&#xa0;: les deux points sont distants de 2 XY.</translation>
    </message>
    <message>
        <source>The picks have changed since the profiles were built.</source>
        <translation>Les pointés ont changé depuis la construction des profils.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known. Build the profiles again to be told why.</source>
        <translation>Certaines vitesses ou profondeurs ne sont pas connues. Reconstruisez les profils pour en connaître la raison.</translation>
    </message>
    <message>
        <source>Propose over the whole survey</source>
        <translation>Proposer sur tout le levé</translation>
    </message>
    <message>
        <source>Fit ground of one, two and three layers, and ground whose velocity grows steadily, to all picks together, and propose what fits best</source>
        <translation>Ajuster à l&apos;ensemble des pointés un terrain à une, deux et trois couches, et un terrain dont la vitesse croît régulièrement, et proposer celui qui s&apos;ajuste le mieux</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Temps calculés</translation>
    </message>
    <message>
        <source>Draw the arrivals through the profiles as they were built, as black lines: for every pick the wave of its layer</source>
        <translation>Dessiner en traits noirs les arrivées à travers les profils tels qu&apos;ils ont été construits&#xa0;: pour chaque pointé, l&apos;onde de sa couche</translation>
    </message>
    <message>
        <source>RMS misfit (ms)</source>
        <translation>Écart quadratique moyen (ms)</translation>
    </message>
    <message>
        <source>; misfit of the shot %1</source>
        <translation>&#xa0;; écart du tir&#xa0;: %1</translation>
    </message>
    <message>
        <source>No layers are proposed.</source>
        <translation>Aucune couche n&apos;est proposée.</translation>
    </message>
    <message numerus="yes">
        <source>No layers are proposed. Mark %n layers all the same?</source>
        <translation>
            <numerusform>Aucune couche n&apos;est proposée. Attribuer quand même les pointés à %n couche&#xa0;?</numerusform>
            <numerusform>Aucune couche n&apos;est proposée. Attribuer quand même les pointés à %n couches&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>propose layers over the whole survey</source>
        <translation>proposer les couches sur tout le levé</translation>
    </message>
    <message>
        <source>Proposal over the whole survey: %1</source>
        <translation>Proposition sur tout le levé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The marks are no longer those of this proposal.</source>
        <translation>Les attributions ne sont plus celles de cette proposition.</translation>
    </message>
    <message>
        <source>Computing times...</source>
        <translation>Calcul des temps...</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1: the picks do not tell</source>
        <translation>%1&#xa0;: les pointés n&apos;en disent rien</translation>
    </message>
    <message>
        <source>smoothest tV</source>
        <translation>tV la plus lisse</translation>
    </message>
    <message>
        <source>most even velocity</source>
        <translation>vitesse la plus régulière</translation>
    </message>
    <message>
        <source>%1: tV rough by %2 ms, velocity uneven by %3 %</source>
        <translation>%1&#xa0;: rugosité de tV %2 ms, irrégularité de la vitesse %3&#xa0;%</translation>
    </message>
    <message>
        <source>Depths and velocities</source>
        <translation>Profondeurs et vitesses</translation>
    </message>
    <message>
        <source>Compare &amp;methods ...</source>
        <translation>Comparer les &amp;méthodes ...</translation>
    </message>
    <message>
        <source>Layers from the marks by other methods beside the reciprocal one: delay times, intercept times and plus-minus</source>
        <translation>Couches tirées des attributions par d&apos;autres méthodes que la réciproque&#xa0;: temps de retard, temps d&apos;intercept et plus-minus</translation>
    </message>
    <message>
        <source>There is no profile yet.</source>
        <translation>Il n&apos;y a pas encore de profil.</translation>
    </message>
    <message>
        <source>Picks or marks have changed: build the profiles again.</source>
        <translation>Les pointés ou les attributions ont changé&#xa0;: reconstruisez les profils.</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Profil&#xa0;:</translation>
    </message>
    <message>
        <source>How &quot;Build profiles&quot; finds velocities and depths: from the curves of the end shots, or so that computed times fit the picks of all shots</source>
        <translation>Comment «&#xa0;Construire les profils&#xa0;» détermine vitesses et profondeurs&#xa0;: à partir des courbes des tirs d&apos;extrémité, ou de sorte que les temps calculés s&apos;ajustent aux pointés de tous les tirs</translation>
    </message>
    <message>
        <source>Reciprocal method</source>
        <translation>Méthode réciproque</translation>
    </message>
    <message>
        <source>Fitted to all picks</source>
        <translation>Ajusté à tous les pointés</translation>
    </message>
    <message>
        <source>No profile can be fitted to all picks.</source>
        <translation>Aucun profil ne peut être ajusté à tous les pointés.</translation>
    </message>
    <message>
        <source>Direct waves and waves along refractors do not explain picks that are marked so. Look at the marks, or choose &quot;Reciprocal method&quot;.</source>
        <translation>Des ondes directes et des ondes le long de réfracteurs n&apos;expliquent pas les pointés ainsi attribués. Examinez les attributions, ou choisissez «&#xa0;Méthode réciproque&#xa0;».</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Aucun tir participant n&apos;a de pointés de la couche 2.</translation>
    </message>
    <message>
        <source>The profile that is shown is by the reciprocal method.</source>
        <translation>Le profil affiché provient de la méthode réciproque.</translation>
    </message>
    <message>
        <source>The profile that is shown is fitted to all picks.</source>
        <translation>Le profil affiché est ajusté à tous les pointés.</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no tV and tG.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Un profil ajusté à tous les pointés n&apos;a ni tV ni tG.

Pour les obtenir, choisissez «&#xa0;Méthode réciproque&#xa0;» et cliquez sur «&#xa0;Construire les profils&#xa0;».</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no phantom arrivals.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Un profil ajusté à tous les pointés n&apos;a pas d&apos;arrivées fantômes.

Pour les obtenir, choisissez «&#xa0;Méthode réciproque&#xa0;» et cliquez sur «&#xa0;Construire les profils&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;Build profiles&quot; fits the profile to all picks; beside it the reciprocal method can be chosen.</source>
        <translation>«&#xa0;Construire les profils&#xa0;» ajuste le profil à tous les pointés&#xa0;; à côté, on peut choisir la méthode réciproque.</translation>
    </message>
    <message>
        <source>Layer 1 at the surface, growing with depth</source>
        <translation>Couche 1 en surface, croissant avec la profondeur</translation>
    </message>
    <message>
        <source>What errors of the picks make of a profile is found for the reciprocal method only.</source>
        <translation>L&apos;effet des erreurs des pointés sur un profil n&apos;est déterminé que pour la méthode réciproque.</translation>
    </message>
    <message>
        <source>Velocities and depths are fitted to all picks. %1</source>
        <translation>Vitesses et profondeurs sont ajustées à tous les pointés. %1</translation>
    </message>
    <message>
        <source>Misfit: %1.</source>
        <translation>Écart&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known: no ground has those that fit there.</source>
        <translation>Certaines vitesses ou profondeurs sont inconnues&#xa0;: aucun terrain n&apos;a celles qui s&apos;y ajusteraient.</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProfilePlot</name>
    <message>
        <source>Geophones</source>
        <translation>Géophones</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionTexts</name>
    <message>
        <source>Unable to find nearest shot for first refractor</source>
        <translation>Impossible de trouver le tir le plus proche pour le premier réfracteur</translation>
    </message>
    <message>
        <source>Velocity is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>La vitesse est négative à au moins un récepteur. Le profil peut être imprécis. Vérifiez les données d&apos;entrée </translation>
    </message>
    <message>
        <source>Strong lateral velocity variations. The profile may not be accurate.</source>
        <translation>Fortes variations latérales de vitesse. Le profil peut être imprécis.</translation>
    </message>
    <message>
        <source>The Tg function is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>La fonction Tg est négative à au moins un récepteur. Le profil peut être imprécis. Vérifiez les données d&apos;entrée </translation>
    </message>
    <message>
        <source>Layer %1: no shot at each end of the line has picks of it, so it has no profile.</source>
        <translation>Couche %1&#xa0;: il n&apos;y a pas à chaque extrémité de la ligne un tir ayant des pointés dans cette couche&#xa0;; elle n&apos;a donc pas de profil.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the start of the line has fewer than two usable picks of it, so there is no forward curve.</source>
        <translation>Couche %1&#xa0;: le tir au début de la ligne a moins de deux pointés utilisables dans cette couche&#xa0;; il n&apos;y a donc pas de courbe directe.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the end of the line has fewer than two usable picks of it, so there is no reverse curve.</source>
        <translation>Couche %1&#xa0;: le tir à la fin de la ligne a moins de deux pointés utilisables dans cette couche&#xa0;; il n&apos;y a donc pas de courbe inverse.</translation>
    </message>
    <message>
        <source>Layer %1: forward and reverse curve have fewer than two receivers in common.</source>
        <translation>Couche %1&#xa0;: les courbes directe et inverse ont moins de deux récepteurs en commun.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it is not faster than the layer above.</source>
        <translation>Couche %1&#xa0;: aucune profondeur à %2 des %3 récepteurs, où elle n&apos;est pas plus rapide que la couche au-dessus.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, which lie beyond the profile of the layer above.</source>
        <translation>Couche %1&#xa0;: aucune profondeur à %2 des %3 récepteurs, situés au-delà du profil de la couche au-dessus.</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Aucun tir participant n&apos;a de pointés de la couche 2.</translation>
    </message>
    <message>
        <source>At each end of the line, or beyond, there must be a shot with picks of layer 2. Such shots reach from %1 to %2, but the geophones from %3 to %4.</source>
        <translation>À chaque extrémité de la ligne, ou au-delà, il faut un tir avec des pointés de la couche 2. De tels tirs vont de %1 à %2, mais les géophones de %3 à %4.</translation>
    </message>
    <message>
        <source>Layer %1: no shot that takes part has two picks of it on one side, so it has no velocity and the layers below have no depth.</source>
        <translation>Couche %1&#xa0;: aucun tir participant n&apos;a deux pointés dans cette couche d&apos;un même côté&#xa0;; elle n&apos;a donc pas de vitesse et les couches inférieures n&apos;ont pas de profondeur.</translation>
    </message>
    <message>
        <source>Layer %1: its velocity comes out outside %2 to %3, so it has none and the layers below have no depth.</source>
        <translation>Couche %1&#xa0;: la vitesse calculée est hors de la plage de %2 à %3&#xa0;; la couche n&apos;en a donc pas et les couches inférieures n&apos;ont pas de profondeur.</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 of %3 receivers, where the velocity comes out outside %4 to %5.</source>
        <translation>Couche %1&#xa0;: ni vitesse ni profondeur à %2 des %3 récepteurs, où la vitesse calculée est hors de la plage de %4 à %5.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it comes out deeper than the line is long.</source>
        <translation>Couche %1&#xa0;: aucune profondeur à %2 des %3 récepteurs, où la profondeur calculée dépasse la longueur de la ligne.</translation>
    </message>
    <message>
        <source>Layer 1 has %1 in the mean, and %2 to %3 at the surface.</source>
        <translation>La couche 1 a %1 en moyenne, et de %2 à %3 en surface.</translation>
    </message>
    <message>
        <source>It grows by %1 % of that per %2, down to %3.</source>
        <translation>La vitesse croît de %1&#xa0;% de sa valeur en surface par %2, jusqu&apos;à %3 de profondeur.</translation>
    </message>
</context>
<context>
    <name>talvesk::Report</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Table %1. %2</source>
        <translation>Tableau %1. %2</translation>
    </message>
    <message>
        <source>Figure %1. %2</source>
        <translation>Figure %1. %2</translation>
    </message>
    <message>
        <source>Seismic refraction survey</source>
        <translation>Levé de sismique réfraction</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>Position [%1]</source>
        <translation>Position [%1]</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Pointés</translation>
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
        <translation>Moyenne [ms]</translation>
    </message>
    <message>
        <source>Largest [ms]</source>
        <translation>Maximum [ms]</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Linear weighted</source>
        <translation>Pondéré linéairement</translation>
    </message>
    <message>
        <source>Gaussian weighted</source>
        <translation>Pondéré par une gaussienne</translation>
    </message>
    <message>
        <source>Ray based</source>
        <translation>Basé sur les rais</translation>
    </message>
    <message>
        <source>Uniform weighted</source>
        <translation>À poids uniformes</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cellules</translation>
    </message>
    <message>
        <source>%1 rows by %2 columns</source>
        <translation>%1 lignes sur %2 colonnes</translation>
    </message>
    <message>
        <source>Side of a cell</source>
        <translation>Côté d&apos;une cellule</translation>
    </message>
    <message>
        <source>Depth below the surface</source>
        <translation>Profondeur sous la surface</translation>
    </message>
    <message>
        <source>Nodes per cell side</source>
        <translation>Nœuds par côté de cellule</translation>
    </message>
    <message>
        <source>Nodes altogether</source>
        <translation>Nœuds au total</translation>
    </message>
    <message>
        <source>The grid under the line</source>
        <translation>La grille sous la ligne</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message>
        <source>Top [%1]</source>
        <translation>Toit [%1]</translation>
    </message>
    <message>
        <source>Bottom [%1]</source>
        <translation>Base [%1]</translation>
    </message>
    <message>
        <source>Velocity at top [%1]</source>
        <translation>Vitesse au toit [%1]</translation>
    </message>
    <message>
        <source>Velocity at bottom [%1]</source>
        <translation>Vitesse à la base [%1]</translation>
    </message>
    <message>
        <source>The layers of the starting model, depths below the surface</source>
        <translation>Les couches du modèle initial, profondeurs sous la surface</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1, stopped by the user</source>
        <translation>%1, arrêt par l&apos;utilisateur</translation>
    </message>
    <message>
        <source>External iterations</source>
        <translation>Itérations externes</translation>
    </message>
    <message>
        <source>Solver iterations on the rays of each</source>
        <translation>Itérations du solveur sur les rais de chacune</translation>
    </message>
    <message>
        <source>Velocity limits</source>
        <translation>Limites de vitesse</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Lissage</translation>
    </message>
    <message>
        <source>Smoothing radius</source>
        <translation>Rayon de lissage</translation>
    </message>
    <message>
        <source>1 cell</source>
        <translation>1 cellule</translation>
    </message>
    <message>
        <source>%1 cells</source>
        <translation>%1 cellules</translation>
    </message>
    <message>
        <source>Height over width of the smoothing window</source>
        <translation>Hauteur sur largeur de la fenêtre de lissage</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Temps écoulé</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Parameters of the inversion</source>
        <translation>Paramètres de l&apos;inversion</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Itération externe</translation>
    </message>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Écart après chaque itération externe</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Temps de parcours</translation>
    </message>
    <message>
        <source>No first breaks have been picked.</source>
        <translation>Aucune première arrivée n&apos;a été pointée.</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks against distance</source>
        <translation>Dromochroniques&#xa0;: premières arrivées pointées en fonction de la distance</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks (symbols) and times computed through the section (lines) against distance</source>
        <translation>Dromochroniques&#xa0;: premières arrivées pointées (symboles) et temps calculés à travers la coupe (lignes) en fonction de la distance</translation>
    </message>
    <message>
        <source>Picks of every shot</source>
        <translation>Pointés de chaque tir</translation>
    </message>
    <message>
        <source>Picks of every shot and their misfit, computed minus measured</source>
        <translation>Pointés de chaque tir et leur écart, calculés moins mesurés</translation>
    </message>
    <message>
        <source>Grid and inversion</source>
        <translation>Grille et inversion</translation>
    </message>
    <message>
        <source>No grid has been built and nothing has been inverted.</source>
        <translation>Aucune grille n&apos;a été construite et rien n&apos;a été inversé.</translation>
    </message>
    <message>
        <source>The parameters of the inversion are not known.</source>
        <translation>Les paramètres de l&apos;inversion ne sont pas connus.</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Coupe de vitesse</translation>
    </message>
    <message>
        <source>Misfit</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Pointés utilisés</translation>
    </message>
    <message>
        <source>RMS misfit</source>
        <translation>Écart quadratique moyen</translation>
    </message>
    <message>
        <source>%1 ms, %2 %</source>
        <translation>%1 ms, %2&#xa0;%</translation>
    </message>
    <message>
        <source>Residuals of the picks against the distance from their shot</source>
        <translation>Résidus des pointés en fonction de la distance à leur tir</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Altitude [%1]</translation>
    </message>
    <message>
        <source>Depth %1 [%2]</source>
        <translation>Profondeur %1 [%2]</translation>
    </message>
    <message>
        <source>Velocity %1 [%2]</source>
        <translation>Vitesse %1 [%2]</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Interprétation en réfraction</translation>
    </message>
    <message>
        <source>Velocity of the first layer</source>
        <translation>Vitesse de la première couche</translation>
    </message>
    <message>
        <source>Velocity of refractor %1</source>
        <translation>Vitesse du réfracteur %1</translation>
    </message>
    <message>
        <source>Distance XY of refractor %1</source>
        <translation>Distance XY du réfracteur %1</translation>
    </message>
    <message>
        <source>Layers and refractors</source>
        <translation>Couches et réfracteurs</translation>
    </message>
    <message>
        <source>Section of the layers</source>
        <translation>Coupe des couches</translation>
    </message>
    <message>
        <source>Depths below the surface and velocities of the refractors</source>
        <translation>Profondeurs sous la surface et vitesses des réfracteurs</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>The refractors were interpreted by the generalised reciprocal method. First breaks were assigned to layers, and the arrivals of each refractor from both ends of the line were completed by shifted arrivals of the other shots. The velocity-analysis function gives the velocity of the refractor, the time-depth function its depth beneath each geophone.</source>
        <translation>Les réfracteurs ont été interprétés par la méthode réciproque généralisée. Les premières arrivées ont été attribuées aux couches, et les arrivées de chaque réfracteur depuis les deux extrémités de la ligne ont été complétées par les arrivées décalées des autres tirs. La fonction d&apos;analyse de vitesse donne la vitesse du réfracteur, la fonction profondeur-temps sa profondeur sous chaque géophone.</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Ondes</translation>
    </message>
    <message>
        <source>S waves</source>
        <translation>Ondes S</translation>
    </message>
    <message>
        <source>P waves</source>
        <translation>Ondes P</translation>
    </message>
    <message>
        <source>Geophones from, to</source>
        <translation>Géophones de, à</translation>
    </message>
    <message>
        <source>Length of the line</source>
        <translation>Longueur de la ligne</translation>
    </message>
    <message>
        <source>Elevation of the geophones</source>
        <translation>Altitude des géophones</translation>
    </message>
    <message>
        <source>Shots from, to</source>
        <translation>Tirs de, à</translation>
    </message>
    <message>
        <source>Geophone strings</source>
        <translation>Dispositifs de géophones</translation>
    </message>
    <message>
        <source>Geophone positions</source>
        <translation>Positions de géophones</translation>
    </message>
    <message>
        <source>Number of shots</source>
        <translation>Nombre de tirs</translation>
    </message>
    <message>
        <source>The line</source>
        <translation>La ligne</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Disp.</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Géophones</translation>
    </message>
    <message>
        <source>From [%1]</source>
        <translation>De [%1]</translation>
    </message>
    <message>
        <source>To [%1]</source>
        <translation>À [%1]</translation>
    </message>
    <message>
        <source>Spacing [%1]</source>
        <translation>Espacement [%1]</translation>
    </message>
    <message>
        <source>Strings of geophones</source>
        <translation>Dispositifs de géophones</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Interval [ms]</source>
        <translation>Pas [ms]</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Length [ms]</source>
        <translation>Durée [ms]</translation>
    </message>
    <message>
        <source>Shots and their recordings</source>
        <translation>Les tirs et leurs enregistrements</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Survey</source>
        <translation>Levé</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>End of the line</source>
        <translation>Extrémité de la ligne</translation>
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
        <translation>Longitude [°]</translation>
    </message>
    <message>
        <source>Latitude [°]</source>
        <translation>Latitude [°]</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Premier géophone</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Dernier géophone</translation>
    </message>
    <message>
        <source>The coordinate reference system of the line is not set.</source>
        <translation>Le système de coordonnées de référence de la ligne n&apos;est pas défini.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1.</source>
        <translation>Système de coordonnées de référence&#xa0;: EPSG:%1.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1, %2.</source>
        <translation>Système de coordonnées de référence&#xa0;: EPSG:%1, %2.</translation>
    </message>
    <message>
        <source>Ends of the line; longitude and latitude on WGS 84</source>
        <translation>Extrémités de la ligne&#xa0;; longitude et latitude en WGS 84</translation>
    </message>
    <message>
        <source>Ends of the line</source>
        <translation>Extrémités de la ligne</translation>
    </message>
    <message>
        <source>Information density: how completely rays cross the surroundings of each cell</source>
        <translation>Densité d&apos;information : à quel point les rais traversent les environs de chaque cellule</translation>
    </message>
    <message>
        <source>Velocity section with rays</source>
        <translation>Coupe de vitesse avec rais</translation>
    </message>
    <message>
        <source>Largest relative late error</source>
        <translation>Plus grand retard relatif</translation>
    </message>
    <message>
        <source>%1 % (%2 ms)</source>
        <translation>%1 % (%2 ms)</translation>
    </message>
    <message>
        <source>Computing time</source>
        <translation>Temps de calcul</translation>
    </message>
    <message>
        <source>Mean of computed minus measured</source>
        <translation>Moyenne de calculés moins mesurés</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Largest difference</source>
        <translation>Plus grande différence</translation>
    </message>
    <message>
        <source>%1 ms, shot %2, receiver %3</source>
        <translation>%1 ms, tir %2, récepteur %3</translation>
    </message>
    <message>
        <source>Misfit of the section, along fresh rays</source>
        <translation>Écart de la coupe, le long de nouveaux rais</translation>
    </message>
    <message>
        <source>The section was smoothed after the inversion; its misfit is that of the smoothed one.</source>
        <translation>La coupe a été lissée après l&apos;inversion&#xa0;; l&apos;écart est celui de la coupe lissée.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion: the section was fitted to others than those that its misfit is told of here.</source>
        <translation>Les pointés ont changé depuis l&apos;inversion&#xa0;: la coupe a été ajustée à d&apos;autres pointés que ceux auxquels se rapporte l&apos;écart donné ici.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Last solver pass of the inversion</source>
        <translation>Dernière passe du solveur de l&apos;inversion</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Coupe, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Dernière passe du solveur, RMS [ms]</translation>
    </message>
    <message>
        <source>The misfit of the section is that of fresh rays through the section that an iteration has left; 0 is the starting model. The last solver pass of an iteration goes along its old rays, before the last correction of the velocities and before they are smoothed, and its misfit is usually smaller.</source>
        <translation>L&apos;écart de la coupe est celui de nouveaux rais à travers la coupe qu&apos;une itération a laissée&#xa0;; 0 est le modèle initial. La dernière passe du solveur d&apos;une itération suit les anciens rais de celle-ci, avant la dernière correction des vitesses et avant leur lissage, et son écart est en général plus petit.</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every external iteration (blue), 0 being the starting model, and of the last solver pass of each (grey)</source>
        <translation>Écart quadratique moyen de la coupe après chaque itération externe (bleu), 0 étant le modèle initial, et de la dernière passe du solveur de chacune (gris)</translation>
    </message>
    <message>
        <source>The picks have changed since this profile was built: it is that of the earlier picks.</source>
        <translation>Les pointés ont changé depuis la construction de ce profil&#xa0;: il est celui des pointés antérieurs.</translation>
    </message>
    <message>
        <source>No velocity is given where the times lead to one outside %1 to %2. No depth is given there, below a layer whose velocity or depth is not known or which is faster, and where it came out deeper than the line is long.</source>
        <translation>Aucune vitesse n&apos;est donnée là où les temps en donneraient une hors de la plage de %1 à %2. Aucune profondeur n&apos;est donnée à ces endroits, ni sous une couche dont la vitesse ou la profondeur n&apos;est pas connue ou qui est plus rapide, ni là où la profondeur calculée dépasse la longueur de la ligne.</translation>
    </message>
    <message>
        <source>First breaks are the times at which the first seismic energy of a shot reaches each geophone. They were picked on the recorded traces.</source>
        <translation>Les premières arrivées sont les instants auxquels la première énergie sismique d&apos;un tir atteint chaque géophone. Elles ont été pointées sur les traces enregistrées.</translation>
    </message>
    <message>
        <source>They were inverted by travel-time tomography. The ground beneath the line is divided into square cells of constant velocity, which follow the surface. From each shot the fastest paths to all geophones are searched for in the network of nodes on the sides of the cells; they are the rays. The differences between measured and computed times are distributed along the rays and correct the slowness of the cells that they cross, several times over on the same rays, within the limits of velocity. The corrected section is smoothed, and new rays are traced through it: that is one external iteration.</source>
        <translation>Elles ont été inversées par tomographie des temps de parcours. Le terrain sous la ligne est divisé en cellules carrées de vitesse constante, qui suivent la surface. Depuis chaque tir, les chemins les plus rapides vers tous les géophones sont recherchés dans le réseau des nœuds placés sur les côtés des cellules&#xa0;: ce sont les rais. Les différences entre temps mesurés et calculés sont réparties le long des rais et corrigent la lenteur des cellules qu&apos;ils traversent, plusieurs fois sur les mêmes rais et dans les limites de vitesse. La coupe corrigée est lissée et de nouveaux rais y sont tracés&#xa0;: c&apos;est une itération externe.</translation>
    </message>
    <message>
        <source>The misfit is the difference between computed and measured times. The computed times are those along fresh rays through the section as it is drawn. RMS is the root mean square of the misfit, in milliseconds or relative to the measured times in percent. The information density tells how completely rays cross the surroundings of a cell; where it is low, velocities are poorly supported by the data, and below the lowest rays the section is not drawn. Velocities that decrease with depth and thin layers may remain hidden from first arrivals.</source>
        <translation>L&apos;écart est la différence entre temps calculés et mesurés. Les temps calculés sont ceux le long de nouveaux rais à travers la coupe telle qu&apos;elle est dessinée. Le RMS est la moyenne quadratique de l&apos;écart, en millisecondes ou en pourcentage des temps mesurés. La densité d&apos;information dit à quel point les rais traversent les environs d&apos;une cellule&#xa0;; là où elle est faible, les vitesses sont peu étayées par les données, et sous les rais les plus profonds la coupe n&apos;est pas dessinée. Des vitesses qui diminuent avec la profondeur et des couches minces peuvent rester cachées aux premières arrivées.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion.</source>
        <translation>Les pointés ont changé depuis l&apos;inversion.</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Laissés de côté</translation>
    </message>
    <message>
        <source>Shots: %1; geophones: %2; picks: %3 of %4</source>
        <translation>Tirs : %1 ; géophones : %2 ; pointés : %3 sur %4</translation>
    </message>
    <message>
        <source>No result of an inversion is known: the grid has the velocities that it was left with.</source>
        <translation>Aucun résultat d&apos;inversion n&apos;est connu&#xa0;: la grille a les vitesses dans lesquelles elle a été laissée.</translation>
    </message>
    <message>
        <source>Velocities of the grid</source>
        <translation>Vitesses de la grille</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Corrections</translation>
    </message>
    <message>
        <source>The recordings of these shots are put right as listed. All figures and times of this report are of the mended recordings.</source>
        <translation>Les enregistrements de ces tirs sont corrigés comme indiqué. Toutes les figures et tous les temps de ce rapport sont ceux des enregistrements corrigés.</translation>
    </message>
    <message>
        <source>Mends of recordings</source>
        <translation>Corrections des enregistrements</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bons</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Douteux</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>Median error [ms]</source>
        <translation>Erreur médiane [ms]</translation>
    </message>
    <message>
        <source>Largest error [ms]</source>
        <translation>Erreur maximale [ms]</translation>
    </message>
    <message>
        <source>Errors of the picks of every shot</source>
        <translation>Erreurs des pointés de chaque tir</translation>
    </message>
    <message>
        <source>The error of a pick is one standard deviation. A pick is good up to %1 ms and doubtful beyond.</source>
        <translation>L&apos;erreur d&apos;un pointé est d&apos;un écart type. Un pointé est bon jusqu&apos;à %1 ms et douteux au-delà.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Ajustement aux erreurs des pointés</translation>
    </message>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Erreurs des pointés qui n&apos;en indiquent pas</translation>
    </message>
    <message>
        <source>%1 ms, or %2 % of the time where that is more</source>
        <translation>%1 ms, ou %2&#xa0;% du temps si c&apos;est davantage</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Khi-deux</translation>
    </message>
    <message>
        <source>%1; of all picks %2</source>
        <translation>%1&#xa0;; de tous les pointés %2</translation>
    </message>
    <message>
        <source>Target reached</source>
        <translation>Objectif atteint</translation>
    </message>
    <message>
        <source>Suspect picks, left out of chi-square</source>
        <translation>Pointés suspects, exclus du khi-deux</translation>
    </message>
    <message>
        <source>Iterations to this section</source>
        <translation>Itérations jusqu&apos;à cette coupe</translation>
    </message>
    <message>
        <source>Few sharp steps rather than gentle slopes</source>
        <translation>Peu de sauts nets plutôt que des transitions douces</translation>
    </message>
    <message>
        <source>Time shifts of shots fitted, too</source>
        <translation>Décalages temporels des tirs ajustés aussi</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paires</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Retard [ms]</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Reciprocity of every shot</source>
        <translation>Réciprocité de chaque tir</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Aller [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Retour [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Différence [ms]</translation>
    </message>
    <message>
        <source>The pairs of shots that differ most</source>
        <translation>Les paires de tirs qui diffèrent le plus</translation>
    </message>
    <message>
        <source>Pairs of shots</source>
        <translation>Paires de tirs</translation>
    </message>
    <message>
        <source>Reciprocity</source>
        <translation>Réciprocité</translation>
    </message>
    <message>
        <source>A wave takes as long from one shot to the place of another as back. Pairs of shots with picks along both ways: %1; RMS of their differences: %2 ms.</source>
        <translation>D&apos;un tir à l&apos;emplacement d&apos;un autre, l&apos;onde met autant de temps qu&apos;au retour. Paires de tirs avec des pointés dans les deux sens&#xa0;: %1&#xa0;; RMS de leurs différences&#xa0;: %2 ms.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Tir %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>gradient read from the picks</source>
        <translation>gradient lu sur les pointés</translation>
    </message>
    <message>
        <source>two layers read from the picks</source>
        <translation>deux couches lues sur les pointés</translation>
    </message>
    <message>
        <source>three layers read from the picks</source>
        <translation>trois couches lues sur les pointés</translation>
    </message>
    <message>
        <source>gradient over a refractor, read from the picks</source>
        <translation>gradient au-dessus d&apos;un réfracteur, lu sur les pointés</translation>
    </message>
    <message>
        <source>default model</source>
        <translation>modèle par défaut</translation>
    </message>
    <message>
        <source>velocities that the grid had</source>
        <translation>vitesses qu&apos;avait la grille</translation>
    </message>
    <message>
        <source>Started from and held to</source>
        <translation>Modèle de départ et de référence</translation>
    </message>
    <message>
        <source>%1, shrinking to a fifth</source>
        <translation>%1, réduit progressivement au cinquième</translation>
    </message>
    <message>
        <source>%1, the best of %2 from coarse to fine</source>
        <translation>%1, la meilleure de %2 du grossier au fin</translation>
    </message>
    <message>
        <source>Uncertainty: half of the range from 16 to 84 % of %1 sections that explain the picks as well, in percent</source>
        <translation>Incertitude&#xa0;: moitié de l&apos;intervalle de 16 à 84&#xa0;% de %1 coupes qui expliquent aussi bien les pointés, en pour cent</translation>
    </message>
    <message>
        <source>%1; of all picks %2; suspect picks %3</source>
        <translation>%1&#xa0;; de tous les pointés %2&#xa0;; pointés suspects %3</translation>
    </message>
    <message>
        <source>%1; with the time shifts of shots</source>
        <translation>%1&#xa0;; avec les décalages temporels des tirs</translation>
    </message>
    <message>
        <source>Misfit after every iteration, 0 being the starting model</source>
        <translation>Écart après chaque itération, 0 étant le modèle initial</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every iteration, 0 being the starting model</source>
        <translation>Écart quadratique moyen de la coupe après chaque itération, 0 étant le modèle initial</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Réciproque</translation>
    </message>
    <message>
        <source>Delay times</source>
        <translation>Temps de retard</translation>
    </message>
    <message>
        <source>Intercept times</source>
        <translation>Temps d&apos;intercept</translation>
    </message>
    <message>
        <source>Plus-minus</source>
        <translation>Plus-minus</translation>
    </message>
    <message>
        <source>both</source>
        <translation>les deux</translation>
    </message>
    <message>
        <source>depth</source>
        <translation>profondeur</translation>
    </message>
    <message>
        <source>velocity</source>
        <translation>vitesse</translation>
    </message>
    <message>
        <source>%1: depth [%2]</source>
        <translation>%1&#xa0;: profondeur [%2]</translation>
    </message>
    <message>
        <source>%1: velocity [%2]</source>
        <translation>%1&#xa0;: vitesse [%2]</translation>
    </message>
    <message>
        <source>Disagree in</source>
        <translation>Désaccord sur</translation>
    </message>
    <message>
        <source>Layers by method</source>
        <translation>Couches selon la méthode</translation>
    </message>
    <message>
        <source>Depths are below the surface. A value in parentheses is not carried by picks there, but by shifted arrivals of other shots, across a gap or by a continuation.</source>
        <translation>Les profondeurs sont comptées sous la surface. Une valeur entre parenthèses ne s&apos;appuie pas sur des pointés à cet endroit, mais sur des arrivées décalées d&apos;autres tirs, à travers une lacune ou par prolongement.</translation>
    </message>
    <message>
        <source>Errors are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations. Methods disagree where two of them differ by more than three times what their difference scatters by.</source>
        <translation>Les erreurs sont la moitié de la largeur où se trouvent 68 résultats sur 100 lorsque les pointés sont déplacés de leurs erreurs, d&apos;après %1 interprétations de ce genre. Les méthodes sont en désaccord là où deux d&apos;entre elles diffèrent de plus de trois fois la dispersion de leur différence.</translation>
    </message>
    <message>
        <source>Layer %1 by method</source>
        <translation>Couche %1 selon la méthode</translation>
    </message>
    <message>
        <source>Residuals of the picks, shot by geophone</source>
        <translation>Résidus des pointés, par tir et géophone</translation>
    </message>
    <message>
        <source>Layer %1 [ms]</source>
        <translation>Couche %1 [ms]</translation>
    </message>
    <message>
        <source>No misfit of the layers is told: they have no depth, or were built from other picks or marks than those of now.</source>
        <translation>L&apos;écart des couches n&apos;est pas indiqué&#xa0;: elles n&apos;ont pas de profondeur, ou ont été construites avec d&apos;autres pointés ou attributions que ceux d&apos;à présent.</translation>
    </message>
    <message>
        <source>Times computed through the layers differ from the picks by %1 ms (RMS of %2 picks; mean of picks less computed times %3 ms; chi-square %4).</source>
        <translation>Les temps calculés à travers les couches diffèrent des pointés de %1 ms (RMS de %2 pointés&#xa0;; moyenne des pointés moins temps calculés %3 ms&#xa0;; khi-deux %4).</translation>
    </message>
    <message>
        <source>RMS misfit of the layers, by shot (number of picks)</source>
        <translation>Écart quadratique moyen des couches, par tir (nombre de pointés)</translation>
    </message>
    <message>
        <source>Depth of refractors by method</source>
        <translation>Profondeur des réfracteurs selon la méthode</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>pointés</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>fantôme</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>lacune</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>prolongement</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Appui profondeur %1</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, is not carried by picks of the shots at both ends there: but by shifted arrivals of other shots (phantom), across more than two spacings without arrivals (gap), or by a continuation beyond the last ones.</source>
        <translation>Une valeur entre parenthèses, et une ligne en tirets, ne s&apos;appuie pas à cet endroit sur des pointés des tirs aux deux extrémités, mais sur des arrivées décalées d&apos;autres tirs (fantôme), à travers plus de deux espacements sans arrivées (lacune), ou par prolongement au-delà des dernières (prolongement).</translation>
    </message>
    <message>
        <source>Errors, and the bands round the lines, are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations.</source>
        <translation>Les erreurs, et les bandes autour des lignes, sont la moitié de la largeur où se trouvent 68 résultats sur 100 lorsque les pointés sont déplacés selon leurs erreurs, d&apos;après %1 interprétations de ce genre.</translation>
    </message>
    <message>
        <source>Median velocity of refractor %1</source>
        <translation>Vitesse médiane du réfracteur %1</translation>
    </message>
    <message>
        <source>Mean velocity of the first layer</source>
        <translation>Vitesse moyenne de la première couche</translation>
    </message>
    <message>
        <source>Velocity of the first layer at the surface</source>
        <translation>Vitesse de la première couche en surface</translation>
    </message>
    <message>
        <source>Growth of its velocity with depth</source>
        <translation>Croissance de sa vitesse avec la profondeur</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per metre, down to %2</source>
        <translation>%1&#xa0;% de celle en surface par mètre, jusqu&apos;à %2 de profondeur</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per foot, down to %2</source>
        <translation>%1&#xa0;% de celle en surface par pied, jusqu&apos;à %2 de profondeur</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, stands where no pick of the refractor comes from or goes to: it lies between what others tell (gap). Errors are not told of a profile that is fitted to all picks.</source>
        <translation>Une valeur entre parenthèses, et une ligne en tirets, figure là d&apos;où aucun pointé du réfracteur ne part et où aucun n&apos;arrive&#xa0;: elle se situe entre ce qu&apos;indiquent les autres (lacune). Les erreurs d&apos;un profil ajusté à tous les pointés ne sont pas indiquées.</translation>
    </message>
    <message>
        <source>First breaks were assigned to layers, and velocities and depths of the refractors were fitted to all of them at once: so that the direct and refracted times computed through the layers, which may change along the line, are those of the picks.</source>
        <translation>Les premières arrivées ont été attribuées à des couches, et les vitesses et profondeurs des réfracteurs ajustées à toutes à la fois&#xa0;: de sorte que les temps directs et réfractés calculés à travers les couches, qui peuvent varier le long de la ligne, soient ceux des pointés.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>These shots have filtered copies beside their recordings, made as listed, one filter after the other.</source>
        <translation>Ces tirs ont des copies filtrées à côté de leurs enregistrements, faites comme indiqué, un filtre après l&apos;autre.</translation>
    </message>
    <message>
        <source>Filters of the recordings</source>
        <translation>Filtres des enregistrements</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>length, unit</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Points on the map</source>
        <translation>Points sur la carte</translation>
    </message>
    <message>
        <source>Corners of more than 1°</source>
        <translation>Angles de plus de 1°</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Longueur le long de la ligne</translation>
    </message>
    <message>
        <source>Length on the map</source>
        <translation>Longueur sur la carte</translation>
    </message>
    <message>
        <source>Straight from end to end</source>
        <translation>En droite d&apos;une extrémité à l&apos;autre</translation>
    </message>
    <message>
        <source>Farthest from that straight line, to the right</source>
        <translation>Plus grand écart à cette droite, vers la droite</translation>
    </message>
    <message>
        <source>The same to the left</source>
        <translation>De même vers la gauche</translation>
    </message>
    <message>
        <source>Course of the line between its ends</source>
        <translation>Tracé de la ligne entre ses extrémités</translation>
    </message>
</context>
<context>
    <name>talvesk::ReportDialog</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Title page</source>
        <translation>Page de titre</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Client&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Site:</source>
        <translation>&amp;Site&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Auteur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Date&#xa0;:</translation>
    </message>
    <message>
        <source>As it is to be read</source>
        <translation>Telle qu&apos;elle doit se lire</translation>
    </message>
    <message>
        <source>&amp;Notes:</source>
        <translation>&amp;Notes&#xa0;:</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parties</translation>
    </message>
    <message>
        <source>Survey: line, geophones, shots, files</source>
        <translation>Levé&#xa0;: ligne, géophones, tirs, fichiers</translation>
    </message>
    <message>
        <source>Position on the globe</source>
        <translation>Position sur le globe</translation>
    </message>
    <message>
        <source>Travel times and the misfit of every shot</source>
        <translation>Temps de parcours et écart de chaque tir</translation>
    </message>
    <message>
        <source>Grid and parameters of the inversion</source>
        <translation>Grille et paramètres de l&apos;inversion</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Coupe de vitesse</translation>
    </message>
    <message>
        <source>Rays over the section</source>
        <translation>Rais sur la coupe</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densité d&apos;information</translation>
    </message>
    <message>
        <source>Misfit and its history</source>
        <translation>Écart et son évolution</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Interprétation en réfraction</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Pa&amp;pier&#xa0;:</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Lettre US</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>Ap&amp;erçu</translation>
    </message>
    <message>
        <source>Puts the report together and shows its pages</source>
        <translation>Compose le rapport et montre ses pages</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Pages du rapport</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::ResidualsDialog</name>
    <message>
        <source>Residuals</source>
        <translation>Résidus</translation>
    </message>
    <message>
        <source>Residuals &amp;in:</source>
        <translation>Résidus e&amp;n&#xa0;:</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisecondes</translation>
    </message>
    <message>
        <source>Errors of the picks</source>
        <translation>Erreurs des pointés</translation>
    </message>
    <message>
        <source>Whose dots have a colour of their own in the picture over the offset</source>
        <translation>Le tir dont les points ont leur propre couleur dans la vue selon le déport</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>Ca&amp;rte</translation>
    </message>
    <message>
        <source>Residuals, shot by geophone</source>
        <translation>Résidus, par tir et géophone</translation>
    </message>
    <message>
        <source>Over the &amp;offset</source>
        <translation>Selon le &amp;déport</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Résidus selon le déport</translation>
    </message>
    <message>
        <source>Shots and &amp;geophones</source>
        <translation>Tirs et &amp;géophones</translation>
    </message>
    <message>
        <source>Residuals per shot</source>
        <translation>Résidus par tir</translation>
    </message>
    <message>
        <source>Residuals per geophone</source>
        <translation>Résidus par géophone</translation>
    </message>
    <message>
        <source>&amp;Along the rays</source>
        <translation>Le long des r&amp;ais</translation>
    </message>
    <message>
        <source>Every cell has the mean residual of the rays through it, by their lengths in it; suspect picks are left out.</source>
        <translation>Chaque cellule porte le résidu moyen des rais qui la traversent, pondéré par leur longueur dans la cellule&#xa0;; les pointés suspects sont exclus.</translation>
    </message>
    <message>
        <source>Shows the trace of the current pick in the window, as a click on it or Return does</source>
        <translation>Affiche la trace du pointé courant dans la fenêtre, comme un clic dessus ou la touche Entrée</translation>
    </message>
    <message>
        <source>Show &amp;trace</source>
        <translation>Afficher la &amp;trace</translation>
    </message>
    <message>
        <source>Puts the picture in view on the clipboard</source>
        <translation>Place l&apos;image affichée dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Co&amp;pier l&apos;image</translation>
    </message>
    <message>
        <source>Save &amp;picture...</source>
        <translation>Enregistrer l&apos;&amp;image...</translation>
    </message>
    <message>
        <source>All picks with their residuals, for spreadsheets</source>
        <translation>Tous les pointés avec leurs résidus, pour les tableurs</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Enregistrer le tableau...</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tir %1</translation>
    </message>
    <message>
        <source>Geophone at %1</source>
        <translation>Géophone à %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Il n&apos;y a pas encore de coupe dont examiner les temps.</translation>
    </message>
    <message>
        <source>Section of &quot;%1&quot;: %2.</source>
        <translation>Coupe de «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Picks: %1, suspect: %2.</source>
        <translation>Pointés&#xa0;: %1, suspects&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The section was smoothed afterwards.</source>
        <translation>La coupe a été lissée ensuite.</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found are counted.</source>
        <translation>Les décalages temporels des tirs trouvés par l&apos;ajustement sont pris en compte.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>Les pointés ont changé depuis le calcul de la coupe&#xa0;: elle a été ajustée à d&apos;autres.</translation>
    </message>
    <message>
        <source>Offset [m]</source>
        <translation>Déport [m]</translation>
    </message>
    <message>
        <source>Median [pick errors]</source>
        <translation>Médiane [erreurs de pointé]</translation>
    </message>
    <message>
        <source>Median [ms]</source>
        <translation>Médiane [ms]</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>Geophone at [m]</source>
        <translation>Géophone à [m]</translation>
    </message>
    <message>
        <source>Click a pick, or walk to it with the arrow keys.</source>
        <translation>Cliquez sur un pointé, ou allez-y avec les touches fléchées.</translation>
    </message>
    <message>
        <source>Shot %1, geophone at %2: no pick with a computed time</source>
        <translation>Tir %1, géophone à %2&#xa0;: aucun pointé avec un temps calculé</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1: picks %2, median %3, two of three from %4 to %5</source>
        <translation>%1&#xa0;: pointés %2, médiane %3, deux sur trois de %4 à %5</translation>
    </message>
    <message>
        <source>; stands out</source>
        <translation>&#xa0;; sort du lot</translation>
    </message>
    <message>
        <source>The picture cannot be made.</source>
        <translation>L&apos;image ne peut pas être produite.</translation>
    </message>
    <message>
        <source>Colo&amp;ur shot:</source>
        <translation>Co&amp;lorer le tir&#xa0;:</translation>
    </message>
</context>
<context>
    <name>talvesk::ResolutionDialog</name>
    <message>
        <source>Resolution Test</source>
        <translation>Test de résolution</translation>
    </message>
    <message>
        <source>Would the survey see it? A pattern is laid over the section, the times of all picks are computed through it with noise of their errors, and a section is fitted to them. Where what comes back correlates with what was put in, ground of that size is resolved.</source>
        <translation>Le levé le verrait-il&#xa0;? Un motif est superposé à la coupe, les temps de tous les pointés y sont calculés avec un bruit de leurs erreurs, et une coupe leur est ajustée. Là où ce qui revient est corrélé à ce qui a été introduit, un terrain de cette taille est résolu.</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Motif&#xa0;:</translation>
    </message>
    <message>
        <source>What the section is disturbed by</source>
        <translation>Ce qui perturbe la coupe</translation>
    </message>
    <message>
        <source>Si&amp;ze [m]:</source>
        <translation>Tai&amp;lle [m]&#xa0;:</translation>
    </message>
    <message>
        <source>Side of a square, or thickness of a layer</source>
        <translation>Côté d&apos;un carré, ou épaisseur d&apos;une couche</translation>
    </message>
    <message>
        <source>Se&amp;veral sizes</source>
        <translation>&amp;Plusieurs tailles</translation>
    </message>
    <message>
        <source>Try sizes from the distance between positions up to the largest that fits the grid, and tell the smallest that is resolved at each depth</source>
        <translation>Essayer des tailles allant de l&apos;espacement des positions à la plus grande que la grille admet, et indiquer la plus petite qui est résolue à chaque profondeur</translation>
    </message>
    <message>
        <source>St&amp;rength [%]:</source>
        <translation>Amplit&amp;ude [%]&#xa0;:</translation>
    </message>
    <message>
        <source>How much faster and slower the pattern is than the section</source>
        <translation>De combien le motif est plus rapide et plus lent que la coupe</translation>
    </message>
    <message>
        <source>&amp;Over:</source>
        <translation>Su&amp;r&#xa0;:</translation>
    </message>
    <message>
        <source>What the pattern is laid over</source>
        <translation>Ce à quoi le motif est superposé</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>S&amp;hown size:</source>
        <translation>Taille aff&amp;ichée&#xa0;:</translation>
    </message>
    <message>
        <source>Of which of the tests the pictures are</source>
        <translation>Auquel des tests correspondent les images</translation>
    </message>
    <message>
        <source>Save P&amp;icture ...</source>
        <translation>Enregistrer l&apos;ima&amp;ge ...</translation>
    </message>
    <message>
        <source>Save Ta&amp;ble ...</source>
        <translation>Enregistrer le ta&amp;bleau ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Damier</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Pics isolés</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>the section</source>
        <translation>la coupe</translation>
    </message>
    <message>
        <source>its mean at each depth</source>
        <translation>sa moyenne à chaque profondeur</translation>
    </message>
    <message>
        <source>Start shows here what was put in, what came back and how they agree.</source>
        <translation>«&#xa0;Démarrer&#xa0;» affiche ici ce qui a été introduit, ce qui est revenu et leur accord.</translation>
    </message>
    <message>
        <source>The test is under way.</source>
        <translation>Le test est en cours.</translation>
    </message>
    <message>
        <source>Times are computed through the pattern.</source>
        <translation>Les temps sont calculés à travers le motif.</translation>
    </message>
    <message>
        <source>Size %1: iteration %2.</source>
        <translation>Taille %1&#xa0;: itération %2.</translation>
    </message>
    <message>
        <source>Stopped before the first test was completed.</source>
        <translation>Arrêté avant la fin du premier test.</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n test(s) completed.</source>
        <translation>
            <numerusform>Arrêté&#xa0;: %n test terminé.</numerusform>
            <numerusform>Arrêté&#xa0;: %n tests terminés.</numerusform>
        </translation>
    </message>
    <message>
        <source>No test was completed.</source>
        <translation>Aucun test n&apos;a été terminé.</translation>
    </message>
    <message>
        <source>The resolution test could not be completed.</source>
        <translation>Le test de résolution n&apos;a pas pu être terminé.</translation>
    </message>
    <message>
        <source>at %1 none</source>
        <translation>à %1 aucune</translation>
    </message>
    <message>
        <source>at %1 depth %2</source>
        <translation>à %1 de profondeur %2</translation>
    </message>
    <message>
        <source>Smallest size that is resolved (correlation from %1 on): %2.</source>
        <translation>Plus petite taille résolue (corrélation à partir de %1)&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>talvesk::RunTexts</name>
    <message>
        <source>Fitted to errors</source>
        <translation>Ajusté aux erreurs</translation>
    </message>
    <message>
        <source>Smoothed</source>
        <translation>Lissé</translation>
    </message>
    <message>
        <source>%1 rows and %2 columns of %3</source>
        <translation>%1 lignes et %2 colonnes de %3</translation>
    </message>
    <message>
        <source>velocities from %1 to %2</source>
        <translation>vitesses de %1 à %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robuste</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>par blocs</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>pointés suspects&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 solver iterations</source>
        <translation>%1 itérations du solveur</translation>
    </message>
    <message>
        <source>smoothing parameter %1</source>
        <translation>paramètre de lissage %1</translation>
    </message>
    <message>
        <source>symmetric</source>
        <translation>symétrique</translation>
    </message>
    <message>
        <source>stopped by the user</source>
        <translation>arrêté par l&apos;utilisateur</translation>
    </message>
    <message>
        <source>picks have changed since</source>
        <translation>les pointés ont changé depuis</translation>
    </message>
    <message>
        <source>the surface or the ends of the line have changed since</source>
        <translation>la surface ou les extrémités de la ligne ont changé depuis</translation>
    </message>
    <message>
        <source>positions have changed since</source>
        <translation>les positions ont changé depuis</translation>
    </message>
    <message>
        <source>%1 ms or %2 %</source>
        <translation>%1 ms ou %2&#xa0;%</translation>
    </message>
    <message>
        <source>errors of %1</source>
        <translation>erreurs de %1</translation>
    </message>
    <message>
        <source>from &quot;%1&quot;</source>
        <translation>à partir de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>non robuste</translation>
    </message>
    <message>
        <source>with shot statics, trigger error %1 ms</source>
        <translation>avec statiques de tir, erreur de déclenchement %1 ms</translation>
    </message>
    <message>
        <source>held to known ground</source>
        <translation>contraint par le terrain connu</translation>
    </message>
    <message>
        <source>from coarse to fine</source>
        <translation>du grossier au fin</translation>
    </message>
</context>
<context>
    <name>talvesk::RunsDialog</name>
    <message>
        <source>Inversion runs</source>
        <translation>Calculs d&apos;inversion</translation>
    </message>
    <message>
        <source>Every inversion is kept here, at most 50 of them. The run in use is the section that the window shows; exports and reports are of it.</source>
        <translation>Chaque inversion est conservée ici, 50 au plus. Le calcul utilisé est la coupe que la fenêtre affiche&#xa0;; les exportations et les rapports s&apos;y rapportent.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Khi-deux</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Itérations</translation>
    </message>
    <message>
        <source>Time [s]</source>
        <translation>Durée [s]</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>No inversion has been run yet. Run one with Processing, Run tomography inversion.</source>
        <translation>Aucune inversion n&apos;a encore été lancée. Lancez-en une par Traitement, Lancer l&apos;inversion tomographique.</translation>
    </message>
    <message>
        <source>Make the section of the selected run the one that the window shows</source>
        <translation>Faire de la coupe du calcul sélectionné celle que la fenêtre affiche</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Utiliser</translation>
    </message>
    <message>
        <source>Show two runs side by side: the selected one beside another that is selected, else beside the one in use</source>
        <translation>Montrer deux calculs côte à côte&#xa0;: celui qui est sélectionné à côté d&apos;un autre sélectionné, sinon à côté de celui qui est utilisé</translation>
    </message>
    <message>
        <source>&amp;Compare ...</source>
        <translation>&amp;Comparer ...</translation>
    </message>
    <message>
        <source>Name the selected run; runs with a name are the last to go when the list is full</source>
        <translation>Nommer le calcul sélectionné&#xa0;; les calculs nommés sont les derniers à disparaître quand la liste est pleine</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Take the selected runs out of the list; Undo brings them back</source>
        <translation>Ôter de la liste les calculs sélectionnés&#xa0;; «&#xa0;Défaire&#xa0;» les rétablit</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>utilisé</translation>
    </message>
    <message>
        <source>By errors of</source>
        <translation>Avec erreurs de</translation>
    </message>
    <message>
        <source>Errors of picks that state none, by which chi-square is measured: figures by other errors do not compare.</source>
        <translation>Erreurs des pointés qui n&apos;en indiquent pas, par lesquelles le khi-deux est mesuré&#xa0;: des valeurs obtenues avec d&apos;autres erreurs ne se comparent pas.</translation>
    </message>
    <message>
        <source>Of what chi-square counts: without suspect picks, with the time shifts of shots that a fit has found.</source>
        <translation>De ce que compte le khi-deux&#xa0;: sans les pointés suspects, avec les décalages temporels des tirs trouvés par un ajustement.</translation>
    </message>
    <message>
        <source>RMS of all [ms]</source>
        <translation>RMS de tous [ms]</translation>
    </message>
    <message>
        <source>Of all picks as they are, suspect ones among them, without time shifts.</source>
        <translation>De tous les pointés tels quels, suspects compris, sans décalages temporels.</translation>
    </message>
    <message>
        <source>RMS of all [%]</source>
        <translation>RMS de tous [%]</translation>
    </message>
</context>
<context>
    <name>talvesk::ScreenshotDialog</name>
    <message>
        <source>Screenshot</source>
        <translation>Capture d&apos;écran</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Taille&#xa0;:</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>&amp;Qualité JPEG&#xa0;:</translation>
    </message>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
    <message>
        <source>As the view</source>
        <translation>Comme la vue</translation>
    </message>
    <message>
        <source>%1 times the view</source>
        <translation>%1 fois la vue</translation>
    </message>
    <message>
        <source>%1: %2 x %3 pixels</source>
        <translation>%1&#xa0;: %2 x %3 pixels</translation>
    </message>
</context>
<context>
    <name>talvesk::SecondLookDialog</name>
    <message>
        <source>Second look</source>
        <translation>À revoir</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Récepteur</translation>
    </message>
    <message>
        <source>Pick [ms]</source>
        <translation>Pointé [ms]</translation>
    </message>
    <message>
        <source>Off by [ms]</source>
        <translation>Écart [ms]</translation>
    </message>
    <message>
        <source>Computed minus measured: the pick is late where this is negative.</source>
        <translation>Calculé moins mesuré&#xa0;: le pointé est en retard là où il est négatif.</translation>
    </message>
    <message>
        <source>In errors</source>
        <translation>En erreurs</translation>
    </message>
    <message>
        <source>Off by how many of its errors</source>
        <translation>Écart exprimé en nombre de fois son erreur</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Retard [ms]</translation>
    </message>
    <message>
        <source>Positive: the record begins too late, and its picks are late.</source>
        <translation>Positif&#xa0;: l&apos;enregistrement commence trop tard, et ses pointés sont en retard.</translation>
    </message>
    <message>
        <source>&amp;Take over as time shifts of the records</source>
        <translation>&amp;Reprendre comme décalages des enregistrements</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Il n&apos;y a pas encore de coupe dont examiner les temps.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>Les pointés ont changé depuis le calcul de la coupe&#xa0;: elle a été ajustée à d&apos;autres.</translation>
    </message>
    <message>
        <source>No pick is off by more than five of its errors.</source>
        <translation>Aucun pointé ne s&apos;écarte de plus de cinq fois son erreur.</translation>
    </message>
    <message>
        <source>Picks off by more than five of their errors; a click shows the trace:</source>
        <translation>Pointés écartés de plus de cinq fois leur erreur&#xa0;; un clic montre la trace&#xa0;:</translation>
    </message>
    <message>
        <source>No velocity is at a limit, and rays cross all cells shown.</source>
        <translation>Aucune vitesse n&apos;est à une limite, et des rais traversent toutes les cellules affichées.</translation>
    </message>
    <message>
        <source>Shifts the records of the checked shots with their picks, as Mend recording does; of shots without a recording the picks, with their errors. One step to be undone.</source>
        <translation>Décale les enregistrements des tirs cochés avec leurs pointés, comme «&#xa0;Corriger l&apos;enregistrement&#xa0;»&#xa0;; pour les tirs sans enregistrement, les pointés avec leurs erreurs. Une seule étape, annulable.</translation>
    </message>
    <message>
        <source>no recording: its picks are shifted</source>
        <translation>pas d&apos;enregistrement&#xa0;: ses pointés sont décalés</translation>
    </message>
    <message>
        <source>Errors of picks below %1 ms count as %1 ms: %2</source>
        <translation>Les erreurs de pointés inférieures à %1 ms comptent pour %1 ms&#xa0;: %2</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found; a click shows the shot:</source>
        <translation>Décalages temporels des tirs trouvés par l&apos;ajustement&#xa0;; un clic montre le tir&#xa0;:</translation>
    </message>
    <message>
        <source>Ground to look at; a click shows it in the section:</source>
        <translation>Terrain à examiner&#xa0;; un clic le montre dans la coupe&#xa0;:</translation>
    </message>
    <message>
        <source>No pick stands out: %1 are off by more than five of their errors, but none by more than %2, as the section does not fit the picks to their errors.</source>
        <translation>Aucun pointé ne sort du lot&#xa0;: %1 s&apos;écartent de plus de cinq fois leur erreur, mais aucun de plus de %2, car la coupe n&apos;explique pas les pointés à leurs erreurs près.</translation>
    </message>
    <message>
        <source>Picks off by more than %2 of their errors, which stand out where %1 are off by more than five; a click shows the trace:</source>
        <translation>Pointés écartés de plus de %2 fois leur erreur, qui sortent du lot là où %1 s&apos;écartent de plus de cinq&#xa0;; un clic montre la trace&#xa0;:</translation>
    </message>
    <message>
        <source>Cells at the limit of %1: %2</source>
        <translation>Cellules à la limite de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cells shown that no ray crosses: %1 of %2</source>
        <translation>Cellules affichées qu&apos;aucun rai ne traverse&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3, depth %4 to %5)</source>
        <translation>%1 (%2 à %3, profondeur %4 à %5)</translation>
    </message>
    <message>
        <source>seems so: run again with shifts of shots</source>
        <translation>probable&#xa0;: refaire le calcul avec les décalages des tirs</translation>
    </message>
    <message>
        <source>Shots that seem to be shifted in time; a click shows the shot:</source>
        <translation>Tirs qui semblent décalés en temps&#xa0;; un clic montre le tir&#xa0;:</translation>
    </message>
    <message>
        <source>Picks that the section cannot explain</source>
        <translation>Pointés que la coupe ne peut pas expliquer</translation>
    </message>
    <message>
        <source>Shots shifted in time</source>
        <translation>Tirs décalés en temps</translation>
    </message>
    <message>
        <source>Ground to look at</source>
        <translation>Terrain à examiner</translation>
    </message>
</context>
<context>
    <name>talvesk::SectionView</name>
    <message>
        <source>Vertical exaggeration:</source>
        <translation>Exagération verticale&#xa0;:</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Exagération verticale</translation>
    </message>
    <message>
        <source>Turn in 3-D</source>
        <translation>Rotation 3D</translation>
    </message>
    <message>
        <source>Dragging turns the section instead of moving it</source>
        <translation>Le glissement fait tourner la coupe au lieu de la déplacer</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Rétablir la vue</translation>
    </message>
    <message>
        <source>Bring the whole section back into view (Home)</source>
        <translation>Ramener toute la coupe dans la vue (Début)</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Coupe de vitesse</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distance %1</translation>
    </message>
    <message>
        <source>Horizontal %1</source>
        <translation>Horizontale %1</translation>
    </message>
    <message>
        <source>Vertical %1</source>
        <translation>Verticale %1</translation>
    </message>
    <message>
        <source>Slope %1°</source>
        <translation>Pente %1°</translation>
    </message>
    <message>
        <source>Click the next point; Esc ends</source>
        <translation>Cliquez le point suivant&#xa0;; Échap termine</translation>
    </message>
    <message>
        <source>Double click or Enter ends it, Backspace takes a point back</source>
        <translation>Un double-clic ou Entrée termine, Retour arrière retire un point</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>Drag between two points: distance, horizontal, vertical and slope; Esc ends</source>
        <translation>Glisser entre deux points&#xa0;: distance, horizontale, verticale et pente&#xa0;; Échap termine</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dessiner</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Click where a text is to stand on the section</source>
        <translation>Cliquez à l&apos;endroit de la coupe où placer un texte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Click the points of a line on the section</source>
        <translation>Cliquez les points d&apos;une ligne sur la coupe</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Click the corners of an area of the section</source>
        <translation>Cliquez les sommets d&apos;une zone de la coupe</translation>
    </message>
    <message>
        <source>How much larger heights are drawn than distances</source>
        <translation>De combien les hauteurs sont dessinées plus grandes que les distances</translation>
    </message>
    <message>
        <source>Click texts, lines and areas of ground into the section, or move them; Esc ends</source>
        <translation>Cliquer des textes, des lignes et des zones de terrain sur la coupe, ou les déplacer&#xa0;; Échap termine</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Drag what has been drawn, or one of its corners</source>
        <translation>Faire glisser ce qui a été dessiné, ou l&apos;un de ses coins</translation>
    </message>
</context>
<context>
    <name>talvesk::SelectCSVDelimiterDialog</name>
    <message>
        <source>Select CSV Separator</source>
        <translation>Séparateur CSV</translation>
    </message>
    <message>
        <source>CSV Separator</source>
        <translation>Séparateur CSV</translation>
    </message>
    <message>
        <source>What stands between two numbers of a line</source>
        <translation>Ce qui sépare deux nombres d&apos;une ligne</translation>
    </message>
    <message>
        <source>(blank space)</source>
        <translation>(espace)</translation>
    </message>
</context>
<context>
    <name>talvesk::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>Len&amp;gth unit:</source>
        <translation>&amp;Unité de longueur&#xa0;:</translation>
    </message>
    <message>
        <source>What lengths and velocities are shown and asked for in. Files stay in metres.</source>
        <translation>Unité dans laquelle longueurs et vitesses sont affichées et demandées. Les fichiers restent en mètres.</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>mètres</translation>
    </message>
    <message>
        <source>feet (0.3048 m)</source>
        <translation>pieds (0,3048&#xa0;m)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Remplir les oscillations</translation>
    </message>
    <message>
        <source>Fills the positive half of every wiggle.</source>
        <translation>Remplit la moitié positive de chaque oscillation.</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Deux couleurs</translation>
    </message>
    <message>
        <source>Fills the two halves of every wiggle in two colours.</source>
        <translation>Remplit les deux moitiés de chaque oscillation de deux couleurs.</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>Couper à la trace voisine</translation>
    </message>
    <message>
        <source>Ends every wiggle where the next trace begins. Otherwise strong wiggles run over their neighbours.</source>
        <translation>Arrête chaque oscillation là où commence la trace voisine. Sinon, les fortes oscillations débordent sur leurs voisines.</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Afficher les traces filtrées</translation>
    </message>
    <message>
        <source>Shows the filtered copy of the traces where there is one. AutoPick then picks on it.</source>
        <translation>Affiche la copie filtrée des traces quand elle existe. AutoPick pointe alors sur elle.</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Opens shots at the part of the record that holds the first breaks.</source>
        <translation>Ouvre les tirs sur la partie de l&apos;enregistrement qui contient les premières arrivées.</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Afficher toutes les traces</translation>
    </message>
    <message>
        <source>Zoom in on first breaks</source>
        <translation>Zoomer sur les premières arrivées</translation>
    </message>
    <message>
        <source>Opens shots with all traces in view, however narrow. AutoPick, Filter, AGC and Apply Hushel then work on all shots.</source>
        <translation>Ouvre les tirs avec toutes les traces visibles, si étroites soient-elles. AutoPick, Filtre, AGC et Appliquer Hushel agissent alors sur tous les tirs.</translation>
    </message>
    <message>
        <source>Horizontal scalarbar</source>
        <translation>Échelle de couleurs horizontale</translation>
    </message>
    <message>
        <source>Puts the scalarbar of saved pictures above the section, not beside it.</source>
        <translation>Place l&apos;échelle de couleurs des images enregistrées au-dessus de la coupe, et non à côté.</translation>
    </message>
    <message>
        <source>&amp;Memory for undo:</source>
        <translation>&amp;Mémoire pour défaire&#xa0;:</translation>
    </message>
    <message>
        <source>When the steps that can be undone need more, the oldest go.</source>
        <translation>Si les modifications qui peuvent être défaites en demandent davantage, les plus anciennes sont abandonnées.</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>&amp;Keep samples on disk:</source>
        <translation>&amp;Garder les échantillons sur disque&#xa0;:</translation>
    </message>
    <message>
        <source>Of surveys that are larger than memory. What is open stays where it is until it is opened again.</source>
        <translation>Pour les levés plus volumineux que la mémoire. Ce qui est ouvert reste où il est jusqu&apos;à sa prochaine ouverture.</translation>
    </message>
    <message>
        <source>When they fill a quarter of the memory</source>
        <translation>S&apos;ils remplissent le quart de la mémoire</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotFileDialog</name>
    <message>
        <source>the program&apos;s rules</source>
        <translation>les règles du programme</translation>
    </message>
    <message>
        <source>the standard</source>
        <translation>la norme</translation>
    </message>
    <message>
        <source>The program&apos;s rules read shot files as this program always has. The standard reads what their content says, whatever their suffix: other sample formats and byte orders, scaled coordinates, delays, files of several shots.</source>
        <translation>Les règles du programme lisent les fichiers de tirs comme ce programme l&apos;a toujours fait. La norme lit ce que dit leur contenu, quel que soit leur suffixe&#xa0;: autres formats d&apos;échantillons et ordres des octets, coordonnées avec facteur d&apos;échelle, délais, fichiers de plusieurs tirs.</translation>
    </message>
    <message>
        <source>&amp;Read shot files by:</source>
        <translation>&amp;Lire les fichiers de tirs selon&#xa0;:</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotTable</name>
    <message>
        <source>String</source>
        <translation>Dispositif</translation>
    </message>
    <message>
        <source>x (m)</source>
        <translation>x (m)</translation>
    </message>
    <message>
        <source>Elevation (m)</source>
        <translation>Altitude (m)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>DX file</source>
        <translation>Fichier DX</translation>
    </message>
    <message>
        <source>SX file</source>
        <translation>Fichier SX</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 est trop loin.</translation>
    </message>
    <message>
        <source>There is no string %1.</source>
        <translation>Il n&apos;y a pas de dispositif %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::SpectrumPlot</name>
    <message>
        <source>Amplitude spectrum</source>
        <translation>Spectre d&apos;amplitude</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensité</translation>
    </message>
</context>
<context>
    <name>talvesk::SpreadsheetView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Empty cells</source>
        <translation>&amp;Vider les cellules</translation>
    </message>
    <message>
        <source>Fill &amp;down</source>
        <translation>Recopier vers le &amp;bas</translation>
    </message>
    <message>
        <source>&amp;Insert a row above</source>
        <translation>&amp;Insérer une ligne au-dessus</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>&amp;Supprimer les lignes</translation>
    </message>
</context>
<context>
    <name>talvesk::StartLayersDialog</name>
    <message>
        <source>Start from layers</source>
        <translation>Partir des couches</translation>
    </message>
    <message>
        <source>Gives every cell of the grid the velocity of the layer of the profile that its middle lies in.</source>
        <translation>Donne à chaque cellule de la grille la vitesse de la couche du profil dans laquelle se trouve son centre.</translation>
    </message>
    <message>
        <source>&amp;Sharp layers</source>
        <translation>Couches &amp;nettes</translation>
    </message>
    <message>
        <source>Spreads the jump from layer to layer evenly, half of it above the refractor and half below</source>
        <translation>Répartit régulièrement le saut d&apos;une couche à l&apos;autre, pour moitié au-dessus du réfracteur et pour moitié au-dessous</translation>
    </message>
    <message>
        <source>&amp;Graded over a thickness of</source>
        <translation>&amp;Graduelles sur une épaisseur de</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Épaisseur d&apos;un saut graduel</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Les résultats de la dernière inversion seront supprimés («&#xa0;Défaire&#xa0;» les rétablit).</translation>
    </message>
</context>
<context>
    <name>talvesk::StepTexts</name>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Géométrie</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Pointés</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Grid and start</source>
        <translation>Grille et départ</translation>
    </message>
    <message>
        <source>Inversion</source>
        <translation>Inversion</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fait</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>douteux</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>manquant</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>périmé</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>step, reason</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>talvesk::StoppingProgress</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Arrêt ...</translation>
    </message>
    <message>
        <source>Stopping: %1</source>
        <comment>work</comment>
        <translation>Arrêt&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::SurveyedPointsTable</name>
    <message>
        <source>Shot %1</source>
        <translation>Tir %1</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Géophone %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>row of a table</comment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line, name</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Row</source>
        <comment>of a table</comment>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Across
(m)</source>
        <translation>En travers
(m)</translation>
    </message>
    <message>
        <source>x before
(m)</source>
        <translation>x avant
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
        <translation>variation
(m)</translation>
    </message>
    <message>
        <source>z before
(m)</source>
        <translation>z avant
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
        <translation>Positions levées</translation>
    </message>
    <message>
        <source>&amp;Other table ...</source>
        <translation>Autre ta&amp;bleau ...</translation>
    </message>
    <message>
        <source>First rows of the table</source>
        <translation>Premières lignes du tableau</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Colonnes du tableau</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>&amp;Séparateur</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>&amp;Coordinates</source>
        <translation>&amp;Coordonnées</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordonnées</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>Column of names</source>
        <translation>Colonne des noms</translation>
    </message>
    <message>
        <source>Eas&amp;ting</source>
        <translation>Es&amp;t</translation>
    </message>
    <message>
        <source>Column of eastings or longitudes</source>
        <translation>Colonne des coordonnées est ou des longitudes</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>T&amp;ype</translation>
    </message>
    <message>
        <source>Column of kinds</source>
        <translation>Colonne des types</translation>
    </message>
    <message>
        <source>No&amp;rthing</source>
        <translation>Nor&amp;d</translation>
    </message>
    <message>
        <source>Column of northings or latitudes</source>
        <translation>Colonne des coordonnées nord ou des latitudes</translation>
    </message>
    <message>
        <source>Ele&amp;vation</source>
        <translation>Alt&amp;itude</translation>
    </message>
    <message>
        <source>Column of elevations</source>
        <translation>Colonne des altitudes</translation>
    </message>
    <message>
        <source>EPS&amp;G code</source>
        <translation>Code EPS&amp;G</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>Code EPSG</translation>
    </message>
    <message>
        <source>The code of the reference system of easting and northing, for example 32632 for UTM zone 32 N. Without it the line gets no place on the map. Longitude and latitude are projected into it, without a code into their UTM zone.</source>
        <translation>Le code du système de référence des coordonnées est et nord, par exemple 32632 pour UTM zone 32 N. Sans lui, la ligne n&apos;a pas de place sur la carte. Longitude et latitude y sont projetées, et sans code dans leur zone UTM.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Ligne</translation>
    </message>
    <message>
        <source>Shape of the line</source>
        <translation>Forme de la ligne</translation>
    </message>
    <message>
        <source>Lengt&amp;h</source>
        <translation>Longue&amp;ur</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Longueur le long de la ligne</translation>
    </message>
    <message>
        <source>Names &amp;are</source>
        <translation>Les noms s&amp;ont</translation>
    </message>
    <message>
        <source>What names are</source>
        <translation>Ce que sont les noms</translation>
    </message>
    <message>
        <source>First &amp;distance</source>
        <translation>Pre&amp;mière distance</translation>
    </message>
    <message>
        <source>Distance of the first geophone</source>
        <translation>Distance du premier géophone</translation>
    </message>
    <message>
        <source>Distance of the first geophone that was surveyed (m). Empty: as it is now.</source>
        <translation>Distance du premier géophone levé (m). Vide&#xa0;: celle d&apos;à présent.</translation>
    </message>
    <message>
        <source>Count from the other &amp;end</source>
        <translation>Compter depuis l&apos;autre e&amp;xtrémité</translation>
    </message>
    <message>
        <source>&amp;Positions</source>
        <translation>&amp;Positions</translation>
    </message>
    <message>
        <source>Positions before and after</source>
        <translation>Positions avant et après</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>C&amp;arte</translation>
    </message>
    <message>
        <source>Geophones and shots from above</source>
        <translation>Géophones et tirs vus de dessus</translation>
    </message>
    <message>
        <source>O&amp;ffsets</source>
        <translation>Dépo&amp;rts</translation>
    </message>
    <message>
        <source>Offsets across the line</source>
        <translation>Déports en travers de la ligne</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>À vérifier</translation>
    </message>
    <message>
        <source>as in the table</source>
        <translation>comme dans le tableau</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>tabulation</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>point-virgule</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>virgule</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>espace</translation>
    </message>
    <message>
        <source>Easting, northing</source>
        <translation>Est, nord</translation>
    </message>
    <message>
        <source>Longitude, latitude</source>
        <translation>Longitude, latitude</translation>
    </message>
    <message>
        <source>Straight, fitted to the geophones</source>
        <translation>Droite, ajustée aux géophones</translation>
    </message>
    <message>
        <source>Straight, from the first geophone to the last one</source>
        <translation>Droite, du premier au dernier géophone</translation>
    </message>
    <message>
        <source>Bent, from geophone to geophone</source>
        <translation>Brisée, de géophone en géophone</translation>
    </message>
    <message>
        <source>Horizontal, as on the map</source>
        <translation>Horizontale, comme sur la carte</translation>
    </message>
    <message>
        <source>Along the ground, on slopes</source>
        <translation>Le long du terrain, selon la pente</translation>
    </message>
    <message>
        <source>numbers of geophones and shots, from 1</source>
        <translation>numéros de géophones et de tirs, à partir de 1</translation>
    </message>
    <message>
        <source>without a meaning: rows are in order</source>
        <translation>sans signification&#xa0;: les lignes sont dans l&apos;ordre</translation>
    </message>
    <message>
        <source>distances along the line as it is now</source>
        <translation>distances le long de la ligne telle qu&apos;elle est</translation>
    </message>
    <message>
        <source>none</source>
        <comment>column of a table</comment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>column, name</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Longi&amp;tude</source>
        <translation>Longi&amp;tude</translation>
    </message>
    <message>
        <source>Latit&amp;ude</source>
        <translation>Latitu&amp;de</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of the table have no position and are not used.</source>
        <translation>
            <numerusform>%n ligne du tableau n&apos;a pas de position et n&apos;est pas utilisée.</numerusform>
            <numerusform>%n lignes du tableau n&apos;ont pas de position et ne sont pas utilisées.</numerusform>
        </translation>
    </message>
    <message>
        <source>With a row: %1 of %2 geophones, %3 of %4 shots. Geophones stand %5 across the line (RMS), at most %6 (%7); their spacing is %8.</source>
        <translation>Avec une ligne&#xa0;: %1 géophones sur %2, %3 tirs sur %4. Les géophones sont à %5 en travers de la ligne (RMS), au plus %6 (%7)&#xa0;; leur espacement est de %8.</translation>
    </message>
    <message>
        <source>No reference system</source>
        <translation>Aucun système de référence</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>%1: the zone of the first place</source>
        <translation>%1&#xa0;: la zone du premier endroit</translation>
    </message>
    <message>
        <source>Without an EPSG code the place of the line on the map stays as it is now, where it may not fit any more.</source>
        <translation>Sans code EPSG, la place de la ligne sur la carte reste celle d&apos;à présent, où elle ne convient peut-être plus.</translation>
    </message>
    <message>
        <source>Without an EPSG code the line gets no place on the map.</source>
        <translation>Sans code EPSG, la ligne n&apos;a pas de place sur la carte.</translation>
    </message>
    <message>
        <source>On OK the line lies on the map from the first geophone to the last one, on the line that is shown.</source>
        <translation>Avec OK, la ligne est placée sur la carte du premier géophone au dernier, sur la ligne affichée.</translation>
    </message>
    <message numerus="yes">
        <source>On OK the line lies on the map along %n point(s), and KML follows it. Reports and the dialog of geographic coordinates give its two ends.</source>
        <translation>
            <numerusform>Avec OK, la ligne est placée sur la carte le long de %n point, et le KML la suit. Les rapports et la boîte de dialogue des coordonnées géographiques donnent ses deux extrémités.</numerusform>
            <numerusform>Avec OK, la ligne est placée sur la carte le long de %n points, et le KML la suit. Les rapports et la boîte de dialogue des coordonnées géographiques donnent ses deux extrémités.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::TableTexts</name>
    <message>
        <source>The first line, &quot;%1&quot;, was taken for a heading and skipped.</source>
        <translation>La première ligne, «&#xa0;%1&#xa0;», a été prise pour un en-tête et ignorée.</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot;</source>
        <translation>ligne %1&#xa0;: «&#xa0;%2&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) of %1 that are no number were taken as 0.</source>
        <translation>
            <numerusform>%n champ de %1 qui n&apos;est pas un nombre a été lu comme 0.</numerusform>
            <numerusform>%n champs de %1 qui ne sont pas des nombres ont été lus comme 0.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::Talvesk_MainWindows</name>
    <message>
        <source>Traces</source>
        <translation>Traces</translation>
    </message>
    <message>
        <source>&lt;h2&gt;No survey yet&lt;/h2&gt;&lt;p&gt;Open shot files with Ctrl+O, or drop them here.&lt;/p&gt;&lt;p&gt;Picks without traces come in with File &amp;gt; Import TravelTimes.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Aucun levé&lt;/h2&gt;&lt;p&gt;Ouvrez des fichiers de tirs avec Ctrl+O, ou déposez-les ici.&lt;/p&gt;&lt;p&gt;Les pointés sans traces se chargent avec Fichier &amp;gt; Importer des temps de parcours.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Traces and picks of the current shot</source>
        <translation>Traces et pointés du tir affiché</translation>
    </message>
    <message>
        <source>Traces and picks, second view</source>
        <translation>Traces et pointés, seconde vue</translation>
    </message>
    <message>
        <source>Travel times of the current shot</source>
        <translation>Temps de parcours du tir affiché</translation>
    </message>
    <message>
        <source>Draw the picks of the other shots faintly over the traces</source>
        <translation>Dessiner en clair sur les traces les pointés des autres tirs</translation>
    </message>
    <message>
        <source>Show All Picks</source>
        <translation>Afficher tous les pointés</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one</source>
        <translation>Afficher la copie filtrée des traces quand elle existe</translation>
    </message>
    <message>
        <source>Show Filtered Traces</source>
        <translation>Afficher les traces filtrées</translation>
    </message>
    <message>
        <source>Hide the picks and the travel-time preview</source>
        <translation>Masquer les pointés et l&apos;aperçu des temps de parcours</translation>
    </message>
    <message>
        <source>Show Only Traces</source>
        <translation>Traces seules</translation>
    </message>
    <message>
        <source>Draw the times that the last inversion computed</source>
        <translation>Dessiner les temps calculés par la dernière inversion</translation>
    </message>
    <message>
        <source>Show computed Travel Times</source>
        <translation>Afficher les temps calculés</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Dromochroniques</translation>
    </message>
    <message>
        <source>Travel time curves of all shots</source>
        <translation>Dromochroniques de tous les tirs</translation>
    </message>
    <message>
        <source>Tomographic profile</source>
        <translation>Profil tomographique</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>&amp;KML</source>
        <translation>&amp;KML</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Show Velocity Gradient</source>
        <translation>Afficher le gradient de vitesse</translation>
    </message>
    <message>
        <source>Show Geophones</source>
        <translation>Afficher les géophones</translation>
    </message>
    <message>
        <source>&amp;Traces</source>
        <translation>&amp;Traces</translation>
    </message>
    <message>
        <source>Picks of the selected traces</source>
        <translation>Pointés des traces sélectionnées</translation>
    </message>
    <message>
        <source>Mouse tool</source>
        <translation>Outil de la souris</translation>
    </message>
    <message>
        <source>Snap picks to</source>
        <translation>Caler les pointés sur</translation>
    </message>
    <message>
        <source>Wiggles</source>
        <translation>Oscillations</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projet</translation>
    </message>
    <message>
        <source>P&amp;rocessing</source>
        <translation>T&amp;raitement</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Nouveau...</translation>
    </message>
    <message>
        <source>Import TravelTimes...</source>
        <translation>Importer des temps de parcours...</translation>
    </message>
    <message>
        <source>Load traveltimes</source>
        <translation>Charger des temps de parcours</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Appliquer un lissage</translation>
    </message>
    <message>
        <source>Smooth the velocities of the section once more</source>
        <translation>Lisser une fois de plus les vitesses de la coupe</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Lancer l&apos;inversion tomographique</translation>
    </message>
    <message>
        <source>Invert the picks into a velocity section</source>
        <translation>Inverser les pointés en une coupe de vitesse</translation>
    </message>
    <message>
        <source>Grid view</source>
        <translation>Vue en cellules</translation>
    </message>
    <message>
        <source>Draw the section cell by cell</source>
        <translation>Dessiner la coupe cellule par cellule</translation>
    </message>
    <message>
        <source>Smooth view</source>
        <translation>Vue lissée</translation>
    </message>
    <message>
        <source>Draw the section with velocities blended between cells</source>
        <translation>Dessiner la coupe avec des vitesses fondues entre les cellules</translation>
    </message>
    <message>
        <source>Export tomographic data ...</source>
        <translation>Exporter les données tomographiques ...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Show the next seismic file</source>
        <translation>Afficher le fichier sismique suivant</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Show the previous file</source>
        <translation>Afficher le fichier sismique précédent</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Définir le modèle de vitesse</translation>
    </message>
    <message>
        <source>Set the layers and velocities that the inversion starts from</source>
        <translation>Définir les couches et les vitesses d&apos;où part l&apos;inversion</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Ouvrir un projet...</translation>
    </message>
    <message>
        <source>Open a project with its shots, picks and section</source>
        <translation>Ouvrir un projet avec ses tirs, ses pointés et sa coupe</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Enregistrer le projet sous...</translation>
    </message>
    <message>
        <source>Save the project in a file of another name</source>
        <translation>Enregistrer le projet dans un fichier d&apos;un autre nom</translation>
    </message>
    <message>
        <source>Images ...</source>
        <translation>Images ...</translation>
    </message>
    <message>
        <source>Save pictures of the section, the curves and the traces</source>
        <translation>Enregistrer des images de la coupe, des courbes et des traces</translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation>AutoPick</translation>
    </message>
    <message>
        <source>Pick the first breaks of the current shot, or of all shots when all traces are shown</source>
        <translation>Pointer les premières arrivées du tir affiché, ou de tous les tirs si toutes les traces sont affichées</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Version, libraries and licence of Talvesk</source>
        <translation>Version, bibliothèques et licence de Talvesk</translation>
    </message>
    <message>
        <source>Geometry ...</source>
        <translation>Géométrie ...</translation>
    </message>
    <message>
        <source>Set the positions of geophones and shots</source>
        <translation>Définir les positions des géophones et des tirs</translation>
    </message>
    <message>
        <source>Grid ...</source>
        <translation>Grille ...</translation>
    </message>
    <message>
        <source>Lay the grid of the tomography under the line</source>
        <translation>Poser la grille de la tomographie sous la ligne</translation>
    </message>
    <message>
        <source>PDF ...</source>
        <translation>PDF ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as PDF</source>
        <translation>Écrire un rapport du levé en PDF</translation>
    </message>
    <message>
        <source>Palette Options...</source>
        <translation>Options de palette...</translation>
    </message>
    <message>
        <source>Choose the colours of the section</source>
        <translation>Choisir les couleurs de la coupe</translation>
    </message>
    <message>
        <source>ODT...</source>
        <translation>ODT...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a text document</source>
        <translation>Écrire un rapport du levé sous forme de document texte</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Close Talvesk</source>
        <translation>Fermer Talvesk</translation>
    </message>
    <message>
        <source>On line help</source>
        <translation>Aide en ligne</translation>
    </message>
    <message>
        <source>Open the help pages on the web, or the user guide without a network</source>
        <translation>Ouvrir les pages d&apos;aide sur le web, ou le guide de l&apos;utilisateur en l&apos;absence de réseau</translation>
    </message>
    <message>
        <source>Show Rays</source>
        <translation>Afficher les rais</translation>
    </message>
    <message>
        <source>Overlay the seismic rays to profile</source>
        <translation>Superposer les rais sismiques au profil</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Remplir les oscillations</translation>
    </message>
    <message>
        <source>Fill the positive half of every wiggle</source>
        <translation>Remplir la moitié positive de chaque oscillation</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Language, trace view and image options</source>
        <translation>Langue, affichage des traces et options des images</translation>
    </message>
    <message>
        <source>Show Contour Lines</source>
        <translation>Afficher les isolignes</translation>
    </message>
    <message>
        <source>Draw lines of equal velocity over the section</source>
        <translation>Dessiner les lignes d&apos;égale vitesse sur la coupe</translation>
    </message>
    <message>
        <source>Set geographic coordinates ...</source>
        <translation>Définir les coordonnées géographiques ...</translation>
    </message>
    <message>
        <source>Say where the first and the last geophone lie on the map</source>
        <translation>Indiquer où se trouvent le premier et le dernier géophone sur la carte</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Rétablir la vue</translation>
    </message>
    <message>
        <source>Bring the whole section back into view</source>
        <translation>Ramener toute la coupe dans la vue</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Enregistrer le projet dans son fichier</translation>
    </message>
    <message>
        <source>Vertical Gradient</source>
        <translation>Gradient vertical</translation>
    </message>
    <message>
        <source>Show how fast the velocity grows with depth</source>
        <translation>Montrer à quel point la vitesse croît avec la profondeur</translation>
    </message>
    <message>
        <source>Laplacian Gradient</source>
        <translation>Gradient laplacien</translation>
    </message>
    <message>
        <source>Show where the velocity changes most abruptly</source>
        <translation>Montrer où la vitesse change le plus brusquement</translation>
    </message>
    <message>
        <source>Show Tomographic Profile</source>
        <translation>Afficher le profil tomographique</translation>
    </message>
    <message>
        <source>Show the velocity section</source>
        <translation>Afficher la coupe de vitesse</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>Open the guide that comes with Talvesk</source>
        <translation>Ouvrir le guide fourni avec Talvesk</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation>Filtre...</translation>
    </message>
    <message>
        <source>Filter the traces of the current shot by frequency, with spectrum and preview</source>
        <translation>Filtrer en fréquence les traces du tir affiché, avec spectre et aperçu</translation>
    </message>
    <message>
        <source>Apply Hushel</source>
        <translation>Appliquer Hushel</translation>
    </message>
    <message>
        <source>Apply Hushel - The Noise Reduction tool for seismic refraction data</source>
        <translation>Appliquer Hushel - L&apos;outil de réduction du bruit pour les données de sismique réfraction</translation>
    </message>
    <message>
        <source>AGC</source>
        <translation>AGC</translation>
    </message>
    <message>
        <source>Even out the amplitudes of the traces (automatic gain control)</source>
        <translation>Égaliser les amplitudes des traces (contrôle automatique du gain)</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Réfraction</translation>
    </message>
    <message>
        <source>Interpret the picks layer by layer with the reciprocal method</source>
        <translation>Interpréter les pointés couche par couche avec la méthode réciproque</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petits</translation>
    </message>
    <message>
        <source>Draw small geophones on the section</source>
        <translation>Dessiner de petits géophones sur la coupe</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaux</translation>
    </message>
    <message>
        <source>Draw geophones of normal size on the section</source>
        <translation>Dessiner des géophones de taille normale sur la coupe</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grands</translation>
    </message>
    <message>
        <source>Draw large geophones on the section</source>
        <translation>Dessiner de grands géophones sur la coupe</translation>
    </message>
    <message>
        <source>Show refraction</source>
        <translation>Afficher la réfraction</translation>
    </message>
    <message>
        <source>Overlay the refractors of the layered interpretation</source>
        <translation>Superposer les réfracteurs de l&apos;interprétation en couches</translation>
    </message>
    <message>
        <source>Show scalarbar</source>
        <translation>Afficher l&apos;échelle de couleurs</translation>
    </message>
    <message>
        <source>Show the colour scale beside the section</source>
        <translation>Afficher l&apos;échelle de couleurs à côté de la coupe</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d&apos;écran</translation>
    </message>
    <message>
        <source>Take a Screenshot of the tomographic profile</source>
        <translation>Prendre une capture d&apos;écran du profil tomographique</translation>
    </message>
    <message>
        <source>Export TravelTimes...</source>
        <translation>Exporter les temps de parcours...</translation>
    </message>
    <message>
        <source>Write picks and positions to a travel-time file</source>
        <translation>Écrire les pointés et les positions dans un fichier de temps de parcours</translation>
    </message>
    <message>
        <source>Show Information Density Layer</source>
        <translation>Afficher la densité d&apos;information</translation>
    </message>
    <message>
        <source>Show Grid Lines</source>
        <translation>Afficher les lignes de grille</translation>
    </message>
    <message>
        <source>Draw distance and depth lines over the section</source>
        <translation>Dessiner des lignes de distance et de profondeur sur la coupe</translation>
    </message>
    <message>
        <source>Set title ...</source>
        <translation>Définir le titre ...</translation>
    </message>
    <message>
        <source>Set prject title</source>
        <translation>Définir le titre du projet</translation>
    </message>
    <message>
        <source>Show title ...</source>
        <translation>Afficher le titre ...</translation>
    </message>
    <message>
        <source>Write the project title over the section</source>
        <translation>Écrire le titre du projet au-dessus de la coupe</translation>
    </message>
    <message>
        <source>Tomography to text file ...</source>
        <translation>Tomographie vers un fichier texte ...</translation>
    </message>
    <message>
        <source>Export tomography as a XYZVelocity gridded text file</source>
        <translation>Exporter la tomographie dans un fichier texte XYZVitesse sur grille</translation>
    </message>
    <message>
        <source>Tomographic profile ...</source>
        <translation>Profil tomographique ...</translation>
    </message>
    <message>
        <source>Export the section to KML, standing on the globe</source>
        <translation>Exporter la coupe en KML, dressée sur le globe</translation>
    </message>
    <message>
        <source>Seismic line ...</source>
        <translation>Ligne sismique ...</translation>
    </message>
    <message>
        <source>Export seismic line to KML</source>
        <translation>Exporter la ligne sismique en KML</translation>
    </message>
    <message>
        <source>Open shot files...</source>
        <translation>Ouvrir des fichiers de tirs...</translation>
    </message>
    <message>
        <source>Add shot files (SEG-2, SEG-Y, SU) to the survey</source>
        <translation>Ajouter au levé des fichiers de tirs (SEG-2, SEG-Y, SU)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>Take back the last edit of the picks</source>
        <translation>Défaire la dernière modification des pointés</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refaire</translation>
    </message>
    <message>
        <source>Do again the edit that was taken back</source>
        <translation>Refaire la modification défaite</translation>
    </message>
    <message>
        <source>Open shots at the part of the record that holds the first breaks</source>
        <translation>Ouvrir les tirs sur la partie de l&apos;enregistrement qui contient les premières arrivées</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>Couper à la trace voisine</translation>
    </message>
    <message>
        <source>End every wiggle where the next trace begins</source>
        <translation>Arrêter chaque oscillation là où commence la trace voisine</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Deux couleurs</translation>
    </message>
    <message>
        <source>Fill the two halves of every wiggle in two colours</source>
        <translation>Remplir les deux moitiés de chaque oscillation de deux couleurs</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Afficher les traces filtrées</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one; AutoPick then picks on it</source>
        <translation>Afficher la copie filtrée des traces quand elle existe&#xa0;; AutoPick pointe alors sur elle</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Afficher toutes les traces</translation>
    </message>
    <message>
        <source>Open shots with all traces in view; AutoPick, Filter, AGC and Hushel then work on all shots</source>
        <translation>Ouvrir les tirs avec toutes les traces visibles&#xa0;; AutoPick, Filtre, AGC et Hushel agissent alors sur tous les tirs</translation>
    </message>
    <message>
        <source>At true distance</source>
        <translation>À leur distance réelle</translation>
    </message>
    <message>
        <source>Place the traces at their distance along the line, not one beside the other</source>
        <translation>Placer les traces à leur distance le long de la ligne, et non côte à côte</translation>
    </message>
    <message>
        <source>True amplitudes</source>
        <translation>Amplitudes réelles</translation>
    </message>
    <message>
        <source>Keep the amplitudes of a shot in proportion; otherwise every trace is as wide as the others</source>
        <translation>Conserver les proportions entre les amplitudes d&apos;un tir&#xa0;; sinon chaque trace est aussi large que les autres</translation>
    </message>
    <message>
        <source>Air wave</source>
        <translation>Onde aérienne</translation>
    </message>
    <message>
        <source>Draw the line of the sound that travels through the air</source>
        <translation>Dessiner la droite du son qui se propage dans l&apos;air</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Enlarge what is around the cursor (key M)</source>
        <translation>Agrandir ce qui entoure le curseur (touche M)</translation>
    </message>
    <message>
        <source>Larger wiggles</source>
        <translation>Oscillations plus grandes</translation>
    </message>
    <message>
        <source>Raise the gain (key ])</source>
        <translation>Augmenter le gain (touche ])</translation>
    </message>
    <message>
        <source>Smaller wiggles</source>
        <translation>Oscillations plus petites</translation>
    </message>
    <message>
        <source>Lower the gain (key [)</source>
        <translation>Réduire le gain (touche [)</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Pointé</translation>
    </message>
    <message>
        <source>Click sets a pick, dragging moves it or draws a run of picks, right click removes it</source>
        <translation>Un clic place un pointé, le glissement le déplace ou trace une suite de pointés, un clic droit le supprime</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it</source>
        <translation>Tracer un rectangle pour l&apos;agrandir</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Déplacement</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Faire glisser l&apos;image</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Drag a line to read its apparent velocity (key R)</source>
        <translation>Tracer une droite pour en lire la vitesse apparente (touche R)</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Drag over traces to confirm or remove their picks together</source>
        <translation>Glisser sur des traces pour confirmer ou supprimer ensemble leurs pointés</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Picks stay where they are set</source>
        <translation>Les pointés restent là où ils sont placés</translation>
    </message>
    <message>
        <source>Onset</source>
        <translation>Début du signal</translation>
    </message>
    <message>
        <source>Draw picks to where the noise ends</source>
        <translation>Amener les pointés là où finit le bruit</translation>
    </message>
    <message>
        <source>Zero crossing</source>
        <translation>Passage par zéro</translation>
    </message>
    <message>
        <source>Draw picks to the nearest change of sign</source>
        <translation>Amener les pointés au changement de signe le plus proche</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Pic</translation>
    </message>
    <message>
        <source>Draw picks to the strongest peak or trough nearby</source>
        <translation>Amener les pointés au pic ou au creux le plus fort du voisinage</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Confirmer les pointés</translation>
    </message>
    <message>
        <source>Make the automatic picks of the selected traces your own (key C)</source>
        <translation>Faire vôtres les pointés automatiques des traces sélectionnées (touche C)</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Supprimer les pointés</translation>
    </message>
    <message>
        <source>Remove the picks of the selected traces (key Delete)</source>
        <translation>Supprimer les pointés des traces sélectionnées (touche Suppr)</translation>
    </message>
    <message>
        <source>Remove unconfirmed picks</source>
        <translation>Supprimer les pointés non confirmés</translation>
    </message>
    <message>
        <source>Remove the automatic picks of the selected traces that were not confirmed</source>
        <translation>Supprimer les pointés automatiques des traces sélectionnées qui n&apos;ont pas été confirmés</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Show all traces and all times (key F)</source>
        <translation>Afficher toutes les traces et tous les temps (touche F)</translation>
    </message>
    <message>
        <source>Previous view</source>
        <translation>Vue précédente</translation>
    </message>
    <message>
        <source>Go back to the view before the last zoom (key Backspace)</source>
        <translation>Revenir à la vue d&apos;avant le dernier zoom (touche Retour arrière)</translation>
    </message>
    <message>
        <source>Next view</source>
        <translation>Vue suivante</translation>
    </message>
    <message>
        <source>Go forward again after going back (keys Shift+Backspace)</source>
        <translation>Avancer de nouveau après un retour (touches Maj+Retour arrière)</translation>
    </message>
    <message>
        <source>Recording details...</source>
        <translation>Détails de l&apos;enregistrement...</translation>
    </message>
    <message>
        <source>What the shot files hold: samples, interval, delay, positions, warnings</source>
        <translation>Ce que contiennent les fichiers de tirs&#xa0;: échantillons, pas, délai, positions, avertissements</translation>
    </message>
    <message>
        <source>Shot in view</source>
        <translation>Tir affiché</translation>
    </message>
    <message>
        <source>The shot in view</source>
        <translation>Le tir affiché</translation>
    </message>
    <message>
        <source>Open Seismic Trace</source>
        <translation>Ouvrir des traces sismiques</translation>
    </message>
    <message>
        <source>Loading shot files ...</source>
        <translation>Chargement des fichiers de tirs ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Une erreur s&apos;est produite</translation>
    </message>
    <message>
        <source>Unsupported file format.</source>
        <translation>Format de fichier non pris en charge.</translation>
    </message>
    <message>
        <source>Error while loading one or more traces.</source>
        <translation>Erreur lors du chargement d&apos;une ou plusieurs traces.</translation>
    </message>
    <message numerus="yes">
        <source>%n shot file(s) loaded.</source>
        <translation>
            <numerusform>%n fichier de tir chargé.</numerusform>
            <numerusform>%n fichiers de tirs chargés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Travel times of %n shot(s) imported.</source>
        <translation>
            <numerusform>Temps de parcours de %n tir importés.</numerusform>
            <numerusform>Temps de parcours de %n tirs importés.</numerusform>
        </translation>
    </message>
    <message>
        <source>First breaks found on %1 of %2 traces.</source>
        <translation>Premières arrivées trouvées sur %1 traces sur %2.</translation>
    </message>
    <message>
        <source>Filtered copies made of %1 of %2 traces.</source>
        <translation>Copies filtrées créées pour %1 traces sur %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n with warnings, see Traces &gt; Recording details.</source>
        <translation>
            <numerusform>%n avec avertissements, voir Traces &gt; Détails de l&apos;enregistrement.</numerusform>
            <numerusform>%n avec avertissements, voir Traces &gt; Détails de l&apos;enregistrement.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording delay</source>
        <translation>Délai d&apos;enregistrement</translation>
    </message>
    <message>
        <source>The records start before the shot, by up to %1 ms.</source>
        <translation>Les enregistrements commencent avant le tir, jusqu&apos;à %1 ms.</translation>
    </message>
    <message>
        <source>Do you want to count times from the shot? What was recorded before it is then dropped.</source>
        <translation>Voulez-vous compter les temps à partir du tir&#xa0;? Ce qui a été enregistré avant est alors retiré.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) end before the shot and stay as recorded.</source>
        <translation>
            <numerusform>%n trace se termine avant le tir et reste telle qu&apos;enregistrée.</numerusform>
            <numerusform>%n traces se terminent avant le tir et restent telles qu&apos;enregistrées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import TravelTimes</source>
        <translation>Importer des temps de parcours</translation>
    </message>
    <message>
        <source>Error while loading %1.</source>
        <translation>Erreur lors du chargement de %1.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>%1 was loaded with warnings.</source>
        <translation>%1 a été chargé avec des avertissements.</translation>
    </message>
    <message>
        <source>Save TravelTimeExchange</source>
        <translation>Enregistrer les temps de parcours</translation>
    </message>
    <message>
        <source>The travel times have not been saved.</source>
        <translation>Les temps de parcours n&apos;ont pas été enregistrés.</translation>
    </message>
    <message>
        <source>Travel times saved in %1</source>
        <translation>Temps de parcours enregistrés dans %1</translation>
    </message>
    <message>
        <source>The user guide is not where it was installed.</source>
        <translation>Le guide de l&apos;utilisateur n&apos;est pas là où il a été installé.</translation>
    </message>
    <message>
        <source>Install Talvesk again to get it back.</source>
        <translation>Réinstallez Talvesk pour le récupérer.</translation>
    </message>
    <message>
        <source>Picking first breaks ...</source>
        <translation>Pointage des premières arrivées ...</translation>
    </message>
    <message>
        <source>Not every shot could be picked.</source>
        <translation>Tous les tirs n&apos;ont pas pu être pointés.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n trace reste telle quelle.</numerusform>
            <numerusform>%n traces restent telles quelles.</numerusform>
        </translation>
    </message>
    <message>
        <source>Applying AGC ...</source>
        <translation>Application de l&apos;AGC ...</translation>
    </message>
    <message>
        <source>Applying Hushel ...</source>
        <translation>Application de Hushel ...</translation>
    </message>
    <message>
        <source>Project title</source>
        <translation>Titre du projet</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <comment>shot number, file, place</comment>
        <translation>%1&#xa0;: %2 à %3</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1&#xa0;: à %2</translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation>Trace %1</translation>
    </message>
    <message>
        <source>Offset %1</source>
        <translation>Déport %1</translation>
    </message>
    <message>
        <source>Time %1 ms</source>
        <translation>Temps %1 ms</translation>
    </message>
    <message>
        <source>Pick %1 ms (automatic)</source>
        <translation>Pointé %1 ms (automatique)</translation>
    </message>
    <message>
        <source>Pick %1 ms</source>
        <translation>Pointé %1 ms</translation>
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
        <translation>Zoomer sur les premières arrivées</translation>
    </message>
    <message>
        <source>Save travel-time curves</source>
        <translation>Enregistrer les dromochroniques</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf);;All Files (*)</source>
        <translation>Images (*.png *.svg *.pdf);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The picture has not been saved.</source>
        <translation>L&apos;image n&apos;a pas été enregistrée.</translation>
    </message>
    <message>
        <source>Picture saved in %1</source>
        <translation>Image enregistrée dans %1</translation>
    </message>
    <message>
        <source>Colour the section by how well rays cover it</source>
        <translation>Colorer la coupe selon sa couverture par les rais</translation>
    </message>
    <message>
        <source>No section yet</source>
        <translation>Aucune coupe pour l&apos;instant</translation>
    </message>
    <message>
        <source>Load shot files or travel times with the File menu first.</source>
        <translation>Chargez d&apos;abord des fichiers de tirs ou des temps de parcours avec le menu Fichier.</translation>
    </message>
    <message>
        <source>Build a grid with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt;, then invert the picks with &lt;b&gt;Processing &amp;gt; Run tomography inversion&lt;/b&gt;.</source>
        <translation>Construisez une grille avec &lt;b&gt;Projet &amp;gt; Grille ...&lt;/b&gt;, puis inversez les pointés avec &lt;b&gt;Traitement &amp;gt; Lancer l&apos;inversion tomographique&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>The grid has no cells</source>
        <translation>La grille n&apos;a pas de cellules</translation>
    </message>
    <message>
        <source>Build another one with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt; and give it a depth greater than the cell size.</source>
        <translation>Construisez-en une autre avec &lt;b&gt;Projet &amp;gt; Grille ...&lt;/b&gt; et donnez-lui une profondeur supérieure à la taille des cellules.</translation>
    </message>
    <message>
        <source>Nothing to draw</source>
        <translation>Rien à dessiner</translation>
    </message>
    <message>
        <source>No cell of the grid has a value to show.</source>
        <translation>Aucune cellule de la grille n&apos;a de valeur à afficher.</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distance %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Altitude %1</translation>
    </message>
    <message>
        <source>Depth %1</source>
        <translation>Profondeur %1</translation>
    </message>
    <message>
        <source>Velocity %1</source>
        <translation>Vitesse %1</translation>
    </message>
    <message>
        <source>Gradient %1 1/s</source>
        <translation>Gradient %1 1/s</translation>
    </message>
    <message>
        <source>Laplacian %1 1/(%2·s)</source>
        <translation>Laplacien %1 1/(%2·s)</translation>
    </message>
    <message>
        <source>Information density %1</source>
        <translation>Densité d&apos;information %1</translation>
    </message>
    <message>
        <source>Export the section as a gridded text file, heights counted from the highest ground</source>
        <translation>Exporter la coupe dans un fichier texte sur grille, les hauteurs étant comptées depuis le point le plus haut du terrain</translation>
    </message>
    <message>
        <source>Section as VTK grid ...</source>
        <translation>Coupe en grille VTK ...</translation>
    </message>
    <message>
        <source>Export velocity, gradient and information density of the cells as a VTK unstructured grid</source>
        <translation>Exporter la vitesse, le gradient et la densité d&apos;information des cellules en grille non structurée VTK</translation>
    </message>
    <message>
        <source>Section as Surfer grid ...</source>
        <translation>Coupe en grille Surfer ...</translation>
    </message>
    <message>
        <source>Export the velocities on a regular raster as a Surfer ASCII grid</source>
        <translation>Exporter les vitesses sur un maillage régulier en grille ASCII Surfer</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>The data have not been exported.</source>
        <translation>Les données n&apos;ont pas été exportées.</translation>
    </message>
    <message>
        <source>Export Gridded Data</source>
        <translation>Exporter des données sur grille</translation>
    </message>
    <message>
        <source>Save gridded tomographic velocity in a text file (*.txt);;All Files (*)</source>
        <translation>Vitesses tomographiques sur grille dans un fichier texte (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export VTK Grid</source>
        <translation>Exporter une grille VTK</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;All Files (*)</source>
        <translation>Grille non structurée VTK (*.vtu);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export Surfer Grid</source>
        <translation>Exporter une grille Surfer</translation>
    </message>
    <message>
        <source>Surfer ASCII grid (*.grd);;All Files (*)</source>
        <translation>Grille ASCII Surfer (*.grd);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Les coordonnées géographiques manquent, les données ne peuvent pas être exportées au format KML</translation>
    </message>
    <message>
        <source>Export Tomography to KML</source>
        <translation>Exporter la tomographie en KML</translation>
    </message>
    <message>
        <source>KML (*.kml);;All Files (*)</source>
        <translation>KML (*.kml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export Seismic Line to KML</source>
        <translation>Exporter la ligne sismique en KML</translation>
    </message>
    <message>
        <source>The geometry of the survey has changed.</source>
        <translation>La géométrie du levé a changé.</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
Do you want to run refraction processing anyway? </source>
        <translation>Ensemble de pointés incomplet. 
 
Voulez-vous tout de même lancer le traitement en réfraction&#xa0;? </translation>
    </message>
    <message>
        <source>Empty filename to be saved</source>
        <translation>Le nom du fichier à enregistrer est vide</translation>
    </message>
    <message>
        <source>%1 already exists.</source>
        <translation>%1 existe déjà.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Something went wrong while saving project </source>
        <translation>Un problème est survenu lors de l&apos;enregistrement du projet </translation>
    </message>
    <message>
        <source>WARNING: the project has NOT been saved.</source>
        <translation>AVERTISSEMENT&#xa0;: le projet n&apos;a PAS été enregistré.</translation>
    </message>
    <message>
        <source>Project saved in %1</source>
        <translation>Projet enregistré dans %1</translation>
    </message>
    <message>
        <source>The project has been saved.</source>
        <translation>Le projet a été enregistré.</translation>
    </message>
    <message>
        <source>Error while loading traces: Invalid file format.</source>
        <translation>Erreur lors du chargement des traces&#xa0;: format de fichier non valide.</translation>
    </message>
    <message>
        <source>%1 is not a valid project.</source>
        <translation>%1 n&apos;est pas un projet valide.</translation>
    </message>
    <message>
        <source>There is no file %1</source>
        <translation>Le fichier %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>Project %1 loaded.</source>
        <translation>Projet %1 chargé.</translation>
    </message>
    <message>
        <source>Load Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Effacer la liste</translation>
    </message>
    <message>
        <source>No recovery copy can be saved; save the project yourself. %1</source>
        <translation>Aucune copie de récupération ne peut être enregistrée&#xa0;; enregistrez vous-même le projet. %1</translation>
    </message>
    <message>
        <source>A survey that was not saved yet is there as it was at %1. Do you want to open it?</source>
        <translation>Un levé qui n&apos;avait pas encore été enregistré est disponible dans son état du %1. Voulez-vous l&apos;ouvrir&#xa0;?</translation>
    </message>
    <message>
        <source>The project %1 is there as it was at %2. Do you want to open it?</source>
        <translation>Le projet %1 est disponible dans son état du %2. Voulez-vous l&apos;ouvrir&#xa0;?</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
</source>
        <translation>Les géophones n&apos;ont pas de géométrie&#xa0;! 
</translation>
    </message>
    <message>
        <source>Please set the position of geophones
</source>
        <translation>Veuillez définir la position des géophones
</translation>
    </message>
    <message>
        <source>Grid of %1 rows and %2 columns built.</source>
        <translation>Grille de %1 lignes et %2 colonnes construite.</translation>
    </message>
    <message>
        <source>The grid could not be built.</source>
        <translation>La grille n&apos;a pas pu être construite.</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layers.</source>
        <translation>La grille a les vitesses des couches.</translation>
    </message>
    <message>
        <source>The grid could not be smoothed.</source>
        <translation>La grille n&apos;a pas pu être lissée.</translation>
    </message>
    <message>
        <source>The velocities of the grid are smoothed.</source>
        <translation>Les vitesses de la grille sont lissées.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Avertissement&#xa0;:</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
</source>
        <translation>Ensemble de pointés incomplet. 
 
</translation>
    </message>
    <message>
        <source>Do you want to run tomography inversion anyway? </source>
        <translation>Voulez-vous tout de même lancer l&apos;inversion tomographique&#xa0;? </translation>
    </message>
    <message>
        <source>An inversion is under way; the survey cannot be edited.</source>
        <translation>Une inversion est en cours&#xa0;; le levé ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>Tomography inversion</source>
        <translation>Inversion tomographique</translation>
    </message>
    <message>
        <source>The inversion is still running.</source>
        <translation>L&apos;inversion est encore en cours.</translation>
    </message>
    <message>
        <source>Do you want to stop it when the iteration under way is completed, and close then?</source>
        <translation>Voulez-vous l&apos;arrêter à la fin de l&apos;itération en cours, puis fermer&#xa0;?</translation>
    </message>
    <message>
        <source>The inversion could not be completed.</source>
        <translation>L&apos;inversion n&apos;a pas pu être menée à bien.</translation>
    </message>
    <message numerus="yes">
        <source>%n external iteration(s) completed.</source>
        <translation>
            <numerusform>%n itération externe terminée.</numerusform>
            <numerusform>%n itérations externes terminées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Inversion results</source>
        <translation>Résultats de l&apos;inversion</translation>
    </message>
    <message>
        <source>The survey is recovered; it is not saved yet.</source>
        <translation>Le levé est récupéré&#xa0;; il n&apos;est pas encore enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) exist already.</source>
        <translation>
            <numerusform>%n fichier existe déjà.</numerusform>
            <numerusform>%n fichiers existent déjà.</numerusform>
        </translation>
    </message>
    <message>
        <source>Do you want to replace them?</source>
        <translation>Voulez-vous les remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Writing pictures ...</source>
        <translation>Écriture des images ...</translation>
    </message>
    <message>
        <source>%1 of %2 pictures have been saved.</source>
        <translation>%1 images sur %2 ont été enregistrées.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) saved.</source>
        <translation>
            <numerusform>%n image enregistrée.</numerusform>
            <numerusform>%n images enregistrées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save screenshot</source>
        <translation>Enregistrer la capture d&apos;écran</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;JPEG picture (*.jpg *.jpeg)</source>
        <translation>Image PNG (*.png);;Image JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>Save PDF report</source>
        <translation>Enregistrer le rapport PDF</translation>
    </message>
    <message>
        <source>PDF report (*.pdf)</source>
        <translation>Rapport PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save ODT report</source>
        <translation>Enregistrer le rapport ODT</translation>
    </message>
    <message>
        <source>OpenDocument text (*.odt)</source>
        <translation>Texte OpenDocument (*.odt)</translation>
    </message>
    <message>
        <source>Writing the report ...</source>
        <translation>Écriture du rapport ...</translation>
    </message>
    <message>
        <source>Stopped; nothing has been saved.</source>
        <translation>Arrêté&#xa0;; rien n&apos;a été enregistré.</translation>
    </message>
    <message>
        <source>The file has not been saved.</source>
        <translation>Le fichier n&apos;a pas été enregistré.</translation>
    </message>
    <message>
        <source>Survey tool bar</source>
        <translation>Barre d&apos;outils Levé</translation>
    </message>
    <message>
        <source>Traces tool bar</source>
        <translation>Barre d&apos;outils Traces</translation>
    </message>
    <message>
        <source>Set them with Project &gt; Set geographic coordinates ...</source>
        <translation>Indiquez-les avec Projet &gt; Définir les coordonnées géographiques ...</translation>
    </message>
    <message>
        <source>Writing %1 ...</source>
        <translation>Écriture de %1 ...</translation>
    </message>
    <message>
        <source>Start a new survey: asks for shot files, which then take the place of this one</source>
        <translation>Commencer un nouveau levé&#xa0;: demande des fichiers de tirs, qui prennent alors la place de celui-ci</translation>
    </message>
    <message>
        <source>No shot file was loaded.</source>
        <translation>Aucun fichier de tir n&apos;a été chargé.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Seismic refraction surveys: from field records to velocity sections.&lt;/p&gt;&lt;p&gt;Talvesk is free software under the MIT licence, without any warranty.&lt;/p&gt;&lt;p&gt;It is built with these libraries, Qt being version %1:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Levés de sismique réfraction&#xa0;: des enregistrements de terrain aux coupes de vitesse.&lt;/p&gt;&lt;p&gt;Talvesk est un logiciel libre sous licence MIT, sans aucune garantie.&lt;/p&gt;&lt;p&gt;Il est construit avec ces bibliothèques, Qt étant en version %1&#xa0;:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 is a folder or names no file. Give the project a name.</source>
        <translation>%1 est un dossier ou ne désigne aucun fichier. Donnez un nom au projet.</translation>
    </message>
    <message>
        <source>%1 is in use elsewhere.</source>
        <translation>%1 est utilisé ailleurs.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 on %3 (process %4).</source>
        <translation>%1 est utilisé par %2 sur %3 (processus %4).</translation>
    </message>
    <message>
        <source>Project in use</source>
        <translation>Projet en cours d&apos;utilisation</translation>
    </message>
    <message>
        <source>If nobody uses it any more, delete the lock %1</source>
        <translation>Si plus personne ne l&apos;utilise, supprimez le verrou %1</translation>
    </message>
    <message>
        <source>Do you want to replace it all the same?</source>
        <translation>Voulez-vous tout de même le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>%1 has been changed by somebody else since it was opened or saved here.</source>
        <translation>%1 a été modifié par quelqu&apos;un d&apos;autre depuis qu&apos;il a été ouvert ou enregistré ici.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What was changed there is lost then.</source>
        <translation>Voulez-vous le remplacer&#xa0;? Ces modifications seront alors perdues.</translation>
    </message>
    <message>
        <source>The file is as it was before.</source>
        <translation>Le fichier est tel qu&apos;il était auparavant.</translation>
    </message>
    <message>
        <source>Do you want to open it all the same?</source>
        <translation>Voulez-vous tout de même l&apos;ouvrir&#xa0;?</translation>
    </message>
    <message>
        <source>Some values of the project cannot be. They were put right or left out.</source>
        <translation>Certaines valeurs du projet sont impossibles. Elles ont été corrigées ou écartées.</translation>
    </message>
    <message>
        <source>Left out of the inversion:</source>
        <translation>Écartés de l&apos;inversion&#xa0;:</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Écartés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The grid has these cells already.</source>
        <translation>La grille a déjà ces cellules.</translation>
    </message>
    <message>
        <source>Do you want to build it anew, with the default velocities?</source>
        <translation>Voulez-vous la reconstruire, avec les vitesses par défaut ?</translation>
    </message>
    <message>
        <source>Smoothing, and tracing rays anew ...</source>
        <translation>Lissage, et nouveau tracé des rais ...</translation>
    </message>
    <message>
        <source>Picks have changed since.</source>
        <translation>Les pointés ont changé depuis.</translation>
    </message>
    <message>
        <source>The survey was not changed.</source>
        <translation>Le levé n&apos;a pas été modifié.</translation>
    </message>
    <message>
        <source>Undo &quot;%1&quot;</source>
        <translation>Défaire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Redo &quot;%1&quot;</source>
        <translation>Refaire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Défait : %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Refait : %1</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Supprimer le tir</translation>
    </message>
    <message>
        <source>Shot %1 is removed; Undo brings it back.</source>
        <translation>Le tir %1 est supprimé&#xa0;; «&#xa0;Défaire&#xa0;» le rétablit.</translation>
    </message>
    <message>
        <source>The oldest steps can no longer be undone: they needed more than %1 MB.</source>
        <translation>Les modifications les plus anciennes ne peuvent plus être défaites&#xa0;: elles demandaient plus de %1 Mo.</translation>
    </message>
    <message>
        <source>Export recordings...</source>
        <translation>Exporter les enregistrements...</translation>
    </message>
    <message>
        <source>Write the traces of all shots, with the positions of the survey, as SEG-Y or SEG-2 files</source>
        <translation>Écrire les traces de tous les tirs, avec les positions du levé, en fichiers SEG-Y ou SEG-2</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Compter les temps à partir du tir</translation>
    </message>
    <message>
        <source>Drop what was recorded before the shot; picks move with their traces</source>
        <translation>Retirer ce qui a été enregistré avant le tir&#xa0;; les pointés suivent leurs traces</translation>
    </message>
    <message>
        <source>Mend recording...</source>
        <translation>Corriger l&apos;enregistrement...</translation>
    </message>
    <message>
        <source>Put right the time, the order or single traces of the shot in view; what was recorded is kept</source>
        <translation>Rectifier le temps, l&apos;ordre ou certaines traces du tir affiché&#xa0;; ce qui a été enregistré est conservé</translation>
    </message>
    <message>
        <source>Take back all mends</source>
        <translation>Retirer toutes les corrections</translation>
    </message>
    <message>
        <source>Show all recordings as they were recorded, with their picks</source>
        <translation>Afficher tous les enregistrements tels qu&apos;enregistrés, avec leurs pointés</translation>
    </message>
    <message>
        <source>%1 of them are of disabled shots or killed and left unpicked.</source>
        <translation>%1 d&apos;entre elles, de tirs désactivés ou neutralisées, n&apos;ont pas été pointées.</translation>
    </message>
    <message>
        <source>SEG-Y, a file for each shot</source>
        <translation>SEG-Y, un fichier par tir</translation>
    </message>
    <message>
        <source>SEG-Y, all shots in one file</source>
        <translation>SEG-Y, tous les tirs dans un fichier</translation>
    </message>
    <message>
        <source>SEG-2, a file for each shot</source>
        <translation>SEG-2, un fichier par tir</translation>
    </message>
    <message>
        <source>Export recordings</source>
        <translation>Exporter les enregistrements</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>Folder for the recordings</source>
        <translation>Dossier des enregistrements</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey.</source>
        <translation>%1 est l&apos;un des fichiers de tirs de ce levé.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Writing recordings ...</source>
        <translation>Écriture des enregistrements ...</translation>
    </message>
    <message>
        <source>The export to %1 was stopped; some files are missing.</source>
        <translation>L&apos;exportation vers %1 a été interrompue&#xa0;; des fichiers manquent.</translation>
    </message>
    <message>
        <source>The recordings have not been exported.</source>
        <translation>Les enregistrements n&apos;ont pas été exportés.</translation>
    </message>
    <message>
        <source>Recordings saved in %1</source>
        <translation>Enregistrements sauvegardés dans %1</translation>
    </message>
    <message>
        <source>The recordings have been saved.</source>
        <translation>Les enregistrements ont été sauvegardés.</translation>
    </message>
    <message numerus="yes">
        <source>The times of %n trace(s) count from the shot now.</source>
        <translation>
            <numerusform>Les temps de %n trace comptent maintenant à partir du tir.</numerusform>
            <numerusform>Les temps de %n traces comptent maintenant à partir du tir.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pick(s) lay before it and are removed.</source>
        <translation>
            <numerusform>%n pointé se trouvait avant et est supprimé.</numerusform>
            <numerusform>%n pointés se trouvaient avant et sont supprimés.</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording of shot %1 has not been mended.</source>
        <translation>L&apos;enregistrement du tir %1 n&apos;a pas été corrigé.</translation>
    </message>
    <message>
        <source>The mends have not been taken back.</source>
        <translation>Les corrections n&apos;ont pas été retirées.</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <comment>shot</comment>
        <translation>%1 (désactivé)</translation>
    </message>
    <message>
        <source>%1 (mended)</source>
        <comment>shot</comment>
        <translation>%1 (corrigé)</translation>
    </message>
    <message>
        <source>disabled or killed</source>
        <translation>tir désactivé ou trace neutralisée</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>millisecondes</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>%1 does not say in which unit its times are.</source>
        <translation>%1 n&apos;indique pas dans quelle unité sont ses temps.</translation>
    </message>
    <message>
        <source>%1 does not hold all of the survey.</source>
        <translation>%1 ne contient pas tout le levé.</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick le long de la ligne</translation>
    </message>
    <message>
        <source>Pick all traces of a shot together, and follow the picks that you made; picks that are not sure are left out</source>
        <translation>Pointer ensemble toutes les traces d&apos;un tir, en suivant vos propres pointés&#xa0;; les pointés peu sûrs sont omis</translation>
    </message>
    <message>
        <source>Check recordings...</source>
        <translation>Vérifier les enregistrements...</translation>
    </message>
    <message>
        <source>List what is doubtful about positions, triggers and traces, with a mend for each that you take or leave</source>
        <translation>Énumérer ce qui est douteux dans les positions, les déclenchements et les traces, avec chaque fois une correction à prendre ou à laisser</translation>
    </message>
    <message>
        <source>Proposals carried out: %1 of %2.</source>
        <translation>Propositions appliquées&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>Some proposals have not been carried out.</source>
        <translation>Certaines propositions n&apos;ont pas été appliquées.</translation>
    </message>
    <message>
        <source>Of %1 traces %2 have a pick that is sure to %3 ms and %4 a doubtful one; %5 picks that you made stay.</source>
        <translation>Traces&#xa0;: %1, dont %2 avec un pointé sûr à %3 ms près et %4 avec un pointé douteux&#xa0;; vos propres pointés conservés&#xa0;: %5.</translation>
    </message>
    <message>
        <source>Guides in the traces</source>
        <translation>Repères sur les traces</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Temps calculés</translation>
    </message>
    <message>
        <source>Draw the times through the section over the traces</source>
        <translation>Dessiner sur les traces les temps à travers la coupe</translation>
    </message>
    <message>
        <source>Curve of the nearest shot</source>
        <translation>Courbe du tir le plus proche</translation>
    </message>
    <message>
        <source>Draw the picks of the nearest other shot on the same geophones, dashed</source>
        <translation>Dessiner en tirets les pointés de l&apos;autre tir le plus proche aux mêmes géophones</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Temps réciproques</translation>
    </message>
    <message>
        <source>Mark when other shots recorded the same ways in the other direction: the picks should pass there</source>
        <translation>Marquer les temps auxquels d&apos;autres tirs ont enregistré les mêmes parcours dans l&apos;autre sens&#xa0;: les pointés devraient y passer</translation>
    </message>
    <message>
        <source>Guide line</source>
        <translation>Ligne guide</translation>
    </message>
    <message>
        <source>Drag along the first breaks: the picker fills the traces near that line (key G)</source>
        <translation>Glisser le long des premières arrivées&#xa0;: le pointage automatique complète les traces près de cette ligne (touche G)</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Compléter le long de la ligne</translation>
    </message>
    <message>
        <source>Pick the rest of the current shot through the picks that you set or confirmed</source>
        <translation>Pointer le reste du tir affiché en suivant les pointés que vous avez placés ou confirmés</translation>
    </message>
    <message>
        <source>Error 0.5 ms</source>
        <translation>Erreur 0,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 0.5 ms, and so may those that you set next (key 1)</source>
        <translation>Les pointés des traces sélectionnées, et ceux que vous placerez ensuite, sont justes à 0,5 ms près (touche 1)</translation>
    </message>
    <message>
        <source>Error 1 ms</source>
        <translation>Erreur 1 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 1 ms, and so may those that you set next (key 2)</source>
        <translation>Les pointés des traces sélectionnées, et ceux que vous placerez ensuite, sont justes à 1 ms près (touche 2)</translation>
    </message>
    <message>
        <source>Error 2.5 ms</source>
        <translation>Erreur 2,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 2.5 ms, and so may those that you set next (key 3)</source>
        <translation>Les pointés des traces sélectionnées, et ceux que vous placerez ensuite, sont justes à 2,5 ms près (touche 3)</translation>
    </message>
    <message>
        <source>Error 5 ms</source>
        <translation>Erreur 5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 5 ms, and so may those that you set next (key 4)</source>
        <translation>Les pointés des traces sélectionnées, et ceux que vous placerez ensuite, sont justes à 5 ms près (touche 4)</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>Nothing is told of how far the picks of the selected traces may be off, nor those that you set next (key 0)</source>
        <translation>Rien n&apos;est dit de l&apos;erreur des pointés des traces sélectionnées, ni de ceux que vous placerez ensuite (touche 0)</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Barres d&apos;erreur</translation>
    </message>
    <message>
        <source>Show how far picks may be off, in the traces and in the travel-time curves; bars of doubtful picks are dashed</source>
        <translation>Afficher l&apos;erreur possible des pointés, sur les traces et dans les dromochroniques&#xa0;; les barres des pointés douteux sont en tirets</translation>
    </message>
    <message>
        <source>Next doubtful pick</source>
        <translation>Pointé douteux suivant</translation>
    </message>
    <message>
        <source>Go to the next pick of all shots that is doubtful by its error, the section or the reciprocal time, worst first</source>
        <translation>Aller au prochain pointé, tous tirs confondus, douteux par son erreur, la coupe ou le temps réciproque, le pire d&apos;abord</translation>
    </message>
    <message>
        <source>Previous doubtful pick</source>
        <translation>Pointé douteux précédent</translation>
    </message>
    <message>
        <source>Go back to the doubtful pick before, a worse one</source>
        <translation>Revenir au pointé douteux précédent, qui est pire</translation>
    </message>
    <message>
        <source>Reciprocity...</source>
        <translation>Réciprocité...</translation>
    </message>
    <message>
        <source>Compare the picks of all shots there and back, and find the shots that are late</source>
        <translation>Comparer les pointés de tous les tirs à l&apos;aller et au retour, et trouver les tirs en retard</translation>
    </message>
    <message>
        <source>Set or confirm some picks of this shot first, or draw a line with the tool Guide line.</source>
        <translation>Placez ou confirmez d&apos;abord quelques pointés de ce tir, ou tracez une ligne avec l&apos;outil «&#xa0;Ligne guide&#xa0;».</translation>
    </message>
    <message>
        <source>Shot %1 has not been filled.</source>
        <translation>Le tir %1 n&apos;a pas été complété.</translation>
    </message>
    <message>
        <source>Shot %1: %2 traces filled, %3 sure to %4 ms and %5 doubtful; %6 are without a pick, %7 picks that you made stay.</source>
        <translation>Tir %1&#xa0;: traces complétées&#xa0;: %2, dont %3 avec un pointé sûr à %4 ms près et %5 avec un pointé douteux&#xa0;; sans pointé&#xa0;: %6&#xa0;; vos propres pointés conservés&#xa0;: %7.</translation>
    </message>
    <message>
        <source>The record of shot %1 is mended; Undo takes it back.</source>
        <translation>L&apos;enregistrement du tir %1 est corrigé&#xa0;; «&#xa0;Défaire&#xa0;» annule la correction.</translation>
    </message>
    <message>
        <source>The recording has not been mended.</source>
        <translation>L&apos;enregistrement n&apos;a pas été corrigé.</translation>
    </message>
    <message>
        <source>Save Reciprocal Times</source>
        <translation>Enregistrer les temps réciproques</translation>
    </message>
    <message>
        <source>Table (*.csv);;All Files (*)</source>
        <translation>Tableau (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Doubtful pick %1 of %2, shot %3, trace %4: %5</source>
        <translation>Pointé douteux %1 sur %2, tir %3, trace %4&#xa0;: %5</translation>
    </message>
    <message>
        <source>after the last one, the worst again</source>
        <translation>après le dernier, de nouveau le pire</translation>
    </message>
    <message>
        <source>before the worst, the last</source>
        <translation>avant le pire, le dernier</translation>
    </message>
    <message>
        <source>error %1 ms</source>
        <translation>erreur %1 ms</translation>
    </message>
    <message>
        <source>computed %1 ms later</source>
        <translation>calculé %1 ms plus tard</translation>
    </message>
    <message>
        <source>computed %1 ms earlier</source>
        <translation>calculé %1 ms plus tôt</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms later</source>
        <translation>temps réciproque %1 ms plus tard</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms earlier</source>
        <translation>temps réciproque %1 ms plus tôt</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Il n&apos;y a pas encore de pointés.</translation>
    </message>
    <message>
        <source>No pick waits for confirmation.</source>
        <translation>Aucun pointé n&apos;attend de confirmation.</translation>
    </message>
    <message>
        <source>None of the %1 picks that wait for confirmation is doubtful.</source>
        <translation>Pointés en attente de confirmation&#xa0;: %1&#xa0;; aucun n&apos;est douteux.</translation>
    </message>
    <message>
        <source>Nothing is known of %1 of them: no error, no computed time, no reciprocal one.</source>
        <translation>On ne sait rien de %1 d&apos;entre eux&#xa0;: ni erreur, ni temps calculé, ni temps réciproque.</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Erreur %1 ms</translation>
    </message>
    <message>
        <source>Second look ...</source>
        <translation>À revoir ...</translation>
    </message>
    <message>
        <source>List the picks that the section cannot explain, time shifts of shots, velocities at their limits and ground without rays</source>
        <translation>Énumérer les pointés que la coupe n&apos;explique pas, les décalages temporels des tirs, les vitesses à leurs limites et le terrain sans rais</translation>
    </message>
    <message>
        <source>Inversion runs ...</source>
        <translation>Calculs d&apos;inversion ...</translation>
    </message>
    <message>
        <source>List the inversions that have been run, compare them, and use one of them as the section</source>
        <translation>Énumérer les inversions effectuées, les comparer et utiliser l&apos;une d&apos;elles comme coupe</translation>
    </message>
    <message>
        <source>Certainty ...</source>
        <translation>Certitude ...</translation>
    </message>
    <message>
        <source>Find out how sure the section is, by many sections that explain the picks as well</source>
        <translation>Déterminer la certitude de la coupe, par de nombreuses coupes qui expliquent aussi bien les pointés</translation>
    </message>
    <message>
        <source>Show Certainty Layer</source>
        <translation>Afficher la certitude</translation>
    </message>
    <message>
        <source>Colour the section by how far its velocities may be off</source>
        <translation>Colorer la coupe selon l&apos;erreur possible de ses vitesses</translation>
    </message>
    <message>
        <source>Certainty: %1 members, %2 left out. The section shown lies beyond two deviations in %3 % of the cells with rays.</source>
        <translation>Certitude&#xa0;: %1 membres, %2 écartés. La section affichée sort de deux écarts types dans %3&#xa0;% des cellules avec rayons.</translation>
    </message>
    <message>
        <source>The list of inversion runs is full; &quot;%1&quot; has gone.</source>
        <translation>La liste des calculs d&apos;inversion est pleine&#xa0;; «&#xa0;%1&#xa0;» en a disparu.</translation>
    </message>
    <message>
        <source>Tracing the rays of the run anew ...</source>
        <translation>Nouveau tracé des rais du calcul ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>The section is that of &quot;%1&quot;.</source>
        <translation>La coupe est celle de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%n inversion run(s) deleted.</source>
        <translation>
            <numerusform>%n calcul d&apos;inversion supprimé.</numerusform>
            <numerusform>%n calculs d&apos;inversion supprimés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save picture of both runs</source>
        <translation>Enregistrer l&apos;image des deux calculs</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)</source>
        <translation>Image PNG (*.png);;Image SVG (*.svg);;Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Time shifts taken over: %1 of %2. Invert again to see what they change.</source>
        <translation>Décalages temporels repris&#xa0;: %1 sur %2. Relancez l&apos;inversion pour voir ce qu&apos;ils changent.</translation>
    </message>
    <message>
        <source>Some time shifts have not been taken over.</source>
        <translation>Certains décalages temporels n&apos;ont pas été repris.</translation>
    </message>
    <message>
        <source>Uncertainty %1 %</source>
        <translation>Incertitude %1&#xa0;%</translation>
    </message>
    <message>
        <source>Residuals...</source>
        <translation>Résidus...</translation>
    </message>
    <message>
        <source>Look at what the section leaves of every pick: shot by geophone, over the offset, per shot and geophone, and along the rays</source>
        <translation>Examiner ce que la coupe laisse de chaque pointé&#xa0;: par tir et géophone, selon le déport, par tir, par géophone et le long des rais</translation>
    </message>
    <message>
        <source>Known ground ...</source>
        <translation>Terrain connu ...</translation>
    </message>
    <message>
        <source>Boreholes, known depths and bodies of known velocity, to be drawn and to hold a fit to</source>
        <translation>Forages, profondeurs connues et corps de vitesse connue, à dessiner et à respecter par l&apos;ajustement</translation>
    </message>
    <message>
        <source>Show known ground</source>
        <translation>Afficher le terrain connu</translation>
    </message>
    <message>
        <source>Draw boreholes, known depths and bodies over the section</source>
        <translation>Dessiner les forages, profondeurs connues et corps sur la coupe</translation>
    </message>
    <message>
        <source>Resolution test ...</source>
        <translation>Test de résolution ...</translation>
    </message>
    <message>
        <source>Find out how small ground may be that this survey still sees, by patterns laid over the section</source>
        <translation>Déterminer quelle taille minimale de terrain ce levé voit encore, par des motifs superposés à la coupe</translation>
    </message>
    <message>
        <source>Fade Uncertain Ground</source>
        <translation>Estomper le terrain incertain</translation>
    </message>
    <message>
        <source>Let the colours of the velocity section pale where it is not sure</source>
        <translation>Faire pâlir les couleurs de la coupe de vitesse là où elle n&apos;est pas sûre</translation>
    </message>
    <message>
        <source>Depth Bands ...</source>
        <translation>Bandes de profondeur ...</translation>
    </message>
    <message>
        <source>Draw between which depths velocities of your choice are reached, 16 to 84 %</source>
        <translation>Dessiner entre quelles profondeurs sont atteintes les vitesses de votre choix, 16 à 84&#xa0;%</translation>
    </message>
    <message>
        <source>Certainty as table ...</source>
        <translation>Certitude en tableau ...</translation>
    </message>
    <message>
        <source>Export median, 16 and 84 % velocity and spread of every cell as a table (.csv)</source>
        <translation>Exporter la médiane, les vitesses à 16 et 84&#xa0;% et la dispersion de chaque cellule en tableau (.csv)</translation>
    </message>
    <message>
        <source>Export Certainty Table</source>
        <translation>Exporter le tableau de certitude</translation>
    </message>
    <message>
        <source>Table of the certainty (*.csv);;All Files (*)</source>
        <translation>Tableau de la certitude (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Stopped before anything was found; the section is as it was.</source>
        <translation>Arrêté avant tout résultat&#xa0;; la coupe est inchangée.</translation>
    </message>
    <message>
        <source>The section is not held to known ground.</source>
        <translation>La coupe n&apos;est pas contrainte par le terrain connu.</translation>
    </message>
    <message>
        <source>The section is held to this.</source>
        <translation>La coupe y est contrainte.</translation>
    </message>
    <message>
        <source>The section is held to known ground that was another: run the fit again.</source>
        <translation>La coupe est contrainte par un terrain connu qui a changé depuis&#xa0;: relancez l&apos;ajustement.</translation>
    </message>
    <message>
        <source>Import known ground</source>
        <translation>Importer le terrain connu</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv *.txt);;All files (*)</source>
        <translation>Tableaux du terrain connu (*.csv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Rien n&apos;a été importé.</translation>
    </message>
    <message>
        <source>Export known ground</source>
        <translation>Exporter le terrain connu</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv)</source>
        <translation>Tableaux du terrain connu (*.csv)</translation>
    </message>
    <message>
        <source>Save picture of residuals</source>
        <translation>Enregistrer l&apos;image des résidus</translation>
    </message>
    <message>
        <source>Save table of residuals</source>
        <translation>Enregistrer le tableau des résidus</translation>
    </message>
    <message>
        <source>Save picture of the resolution test</source>
        <translation>Enregistrer l&apos;image du test de résolution</translation>
    </message>
    <message>
        <source>Save table of the resolution test</source>
        <translation>Enregistrer le tableau du test de résolution</translation>
    </message>
    <message>
        <source>Table of resolution by depth (*.csv)</source>
        <translation>Tableau de la résolution par profondeur (*.csv)</translation>
    </message>
    <message>
        <source>How sure the section before was is known no more; Undo brings back both.</source>
        <translation>La certitude de la coupe précédente n&apos;est plus connue&#xa0;; «&#xa0;Défaire&#xa0;» ramène les deux.</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>pointés suspects&#xa0;: %1</translation>
    </message>
    <message>
        <source>time shifts of shots: %1</source>
        <translation>décalages temporels des tirs&#xa0;: %1</translation>
    </message>
    <message>
        <source>cells at a limit of the velocity: %1</source>
        <translation>cellules à une limite de vitesse&#xa0;: %1</translation>
    </message>
    <message>
        <source>cells shown that no ray crosses: %1</source>
        <translation>cellules affichées qu&apos;aucun rai ne traverse&#xa0;: %1</translation>
    </message>
    <message>
        <source>Second look (%1)</source>
        <comment>kinds of things to look at</comment>
        <translation>À revoir (%1)</translation>
    </message>
    <message>
        <source>Shots without a recording, whose picks were shifted: %1.</source>
        <translation>Tirs sans enregistrement, dont les pointés ont été décalés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Depth Bands</source>
        <translation>Bandes de profondeur</translation>
    </message>
    <message>
        <source>Up to %1 &amp;velocities in %2; the depths at which the middle 68 % of the members reach them are drawn as a band. None takes the bands away.</source>
        <translation>Jusqu&apos;à %1 &amp;vitesses en %2&#xa0;; les profondeurs où les 68&#xa0;% centraux des membres les atteignent sont dessinées en bande. Une liste vide enlève les bandes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of velocities.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une liste de vitesses.</translation>
    </message>
    <message>
        <source>Give up to %1 numbers above 0 with semicolons between them: 800; 1500</source>
        <translation>Indiquez jusqu&apos;à %1 nombres supérieurs à 0, séparés par des points-virgules&#xa0;: 800; 1500</translation>
    </message>
    <message>
        <source>Start from layers ...</source>
        <translation>Partir des couches ...</translation>
    </message>
    <message>
        <source>Give the cells of the grid the velocities of the layered profile, for an inversion to start from</source>
        <translation>Donner aux cellules de la grille les vitesses du profil en couches, comme départ d&apos;une inversion</translation>
    </message>
    <message>
        <source>Compare layers with the section ...</source>
        <translation>Comparer les couches à la coupe ...</translation>
    </message>
    <message>
        <source>Read the depth of a refractor from the section and see how far it is from that of the layered profile</source>
        <translation>Lire la profondeur d&apos;un réfracteur dans la coupe et voir de combien elle s&apos;écarte de celle du profil en couches</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layered profile.</source>
        <translation>La grille a les vitesses du profil en couches.</translation>
    </message>
    <message>
        <source>Save picture of layers and section</source>
        <translation>Enregistrer l&apos;image des couches et de la coupe</translation>
    </message>
    <message>
        <source>Save table of layers and section</source>
        <translation>Enregistrer le tableau des couches et de la coupe</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tableau (*.csv)</translation>
    </message>
    <message>
        <source>P and S together ...</source>
        <translation>P et S ensemble ...</translation>
    </message>
    <message>
        <source>Put the layers of this survey and those of a project of the other wave together: Vp/Vs, Poisson&apos;s ratio and moduli along the line</source>
        <translation>Réunir les couches de ce levé et celles d&apos;un projet de l&apos;autre onde&#xa0;: Vp/Vs, coefficient de Poisson et modules le long de la ligne</translation>
    </message>
    <message>
        <source>There are no times through the layers: build the profiles anew.</source>
        <translation>Il n&apos;y a pas de temps à travers les couches&#xa0;: reconstruisez les profils.</translation>
    </message>
    <message>
        <source>Project of the other wave</source>
        <translation>Projet de l&apos;autre onde</translation>
    </message>
    <message>
        <source>This is the project that is open.</source>
        <translation>C&apos;est le projet qui est ouvert.</translation>
    </message>
    <message>
        <source>Choose the project of the other wave, P or S, along the same line.</source>
        <translation>Choisissez le projet de l&apos;autre onde, P ou S, le long de la même ligne.</translation>
    </message>
    <message>
        <source>%1 has no layered profile.</source>
        <translation>%1 n&apos;a pas de profil en couches.</translation>
    </message>
    <message>
        <source>Open it, build its profiles in the refraction dialog, and save it.</source>
        <translation>Ouvrez-le, construisez ses profils dans la boîte de dialogue de réfraction et enregistrez-le.</translation>
    </message>
    <message>
        <source>this survey</source>
        <translation>ce levé</translation>
    </message>
    <message>
        <source>Save picture of P and S</source>
        <translation>Enregistrer l&apos;image de P et S</translation>
    </message>
    <message>
        <source>Save table of P and S</source>
        <translation>Enregistrer le tableau de P et S</translation>
    </message>
    <message>
        <source>Save picture of layers by method</source>
        <translation>Enregistrer l&apos;image des couches selon la méthode</translation>
    </message>
    <message>
        <source>Save table of layers by method</source>
        <translation>Enregistrer le tableau des couches selon la méthode</translation>
    </message>
    <message>
        <source>Web page ...</source>
        <translation>Page web ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a page for any browser, with figures to work with</source>
        <translation>Écrire un rapport du levé sous forme de page pour tout navigateur, avec des figures interactives</translation>
    </message>
    <message>
        <source>Save web page</source>
        <translation>Enregistrer la page web</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Page web (*.html)</translation>
    </message>
    <message>
        <source>Mends of the selected traces</source>
        <translation>Corrections des traces sélectionnées</translation>
    </message>
    <message>
        <source>Marked isolines ...</source>
        <translation>Isolignes marquées ...</translation>
    </message>
    <message>
        <source>Name velocities, such as 1500 m/s for the water table, whose lines stand out from the section</source>
        <translation>Nommer des vitesses, comme 1500 m/s pour la nappe phréatique, dont les lignes ressortent de la coupe</translation>
    </message>
    <message>
        <source>Annotations ...</source>
        <translation>Annotations ...</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground drawn on the section</source>
        <translation>Textes, lignes et zones de terrain dessinés sur la coupe</translation>
    </message>
    <message>
        <source>Depth profile ...</source>
        <translation>Profil de profondeur ...</translation>
    </message>
    <message>
        <source>Velocity, its gradient and how sure it is against depth, below the mouse</source>
        <translation>Vitesse, gradient et degré de certitude en fonction de la profondeur, sous la souris</translation>
    </message>
    <message>
        <source>Fence of several lines ...</source>
        <translation>Panneaux de plusieurs lignes ...</translation>
    </message>
    <message>
        <source>Sections of this and other projects at their places on the map, in one view</source>
        <translation>Coupes de ce projet et d&apos;autres à leur place sur la carte, dans une même vue</translation>
    </message>
    <message>
        <source>Save style ...</source>
        <translation>Enregistrer le style ...</translation>
    </message>
    <message>
        <source>Save palette, range, contours, exaggeration, switches and marked isolines for other surveys</source>
        <translation>Enregistrer palette, plage, isolignes, exagération, options d&apos;affichage et isolignes marquées pour d&apos;autres levés</translation>
    </message>
    <message>
        <source>Apply style ...</source>
        <translation>Appliquer un style ...</translation>
    </message>
    <message>
        <source>Let this section look as the one whose style was saved</source>
        <translation>Donner à cette coupe l&apos;aspect de celle dont le style a été enregistré</translation>
    </message>
    <message>
        <source>Show annotations</source>
        <translation>Afficher les annotations</translation>
    </message>
    <message>
        <source>Draw marked isolines, texts, lines and areas of ground over the section</source>
        <translation>Dessiner isolignes marquées, textes, lignes et zones de terrain sur la coupe</translation>
    </message>
    <message>
        <source>Surveyed positions ...</source>
        <translation>Positions levées ...</translation>
    </message>
    <message>
        <source>Make distances along the line and its place on the map of a table of coordinates</source>
        <translation>Tirer d&apos;un tableau de coordonnées les distances le long de la ligne et sa place sur la carte</translation>
    </message>
    <message>
        <source>Find command...</source>
        <translation>Chercher une commande...</translation>
    </message>
    <message>
        <source>Find any command by its words and give it</source>
        <translation>Trouver une commande par ses mots et la lancer</translation>
    </message>
    <message>
        <source>Shot files with picks ...</source>
        <translation>Fichiers de tirs avec pointés ...</translation>
    </message>
    <message>
        <source>Copy the shot files into another folder, with the picks in their trace headers</source>
        <translation>Copier les fichiers de tirs dans un autre dossier, avec les pointés dans leurs en-têtes de trace</translation>
    </message>
    <message>
        <source>Drawing as DXF ...</source>
        <translation>Dessin DXF ...</translation>
    </message>
    <message>
        <source>Section as curtain on the map ...</source>
        <translation>Coupe en rideau sur la carte ...</translation>
    </message>
    <message>
        <source>Export the cells with their velocities where they lie on the map, as a VTK grid or a table</source>
        <translation>Exporter les cellules avec leurs vitesses à leur place sur la carte, en grille VTK ou en tableau</translation>
    </message>
    <message>
        <source>Line and isolines as GeoPackage ...</source>
        <translation>Ligne et isolignes en GeoPackage ...</translation>
    </message>
    <message>
        <source>Export line, geophones, shots, isolines, refractors and depths of isovalues as layers for maps</source>
        <translation>Exporter ligne, géophones, tirs, isolignes, réfracteurs et profondeurs des isovaleurs en couches cartographiques</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Neutraliser les traces</translation>
    </message>
    <message>
        <source>The selected traces count for nothing and have no pick, or do again (key K); what was recorded is kept</source>
        <translation>Les traces sélectionnées ne comptent pas et n&apos;ont pas de pointé, ou comptent de nouveau (touche K)&#xa0;; ce qui a été enregistré est conservé</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Inverser la polarité</translation>
    </message>
    <message>
        <source>The samples of the selected traces change their sign (key P)</source>
        <translation>Les échantillons des traces sélectionnées changent de signe (touche P)</translation>
    </message>
    <message>
        <source>Mute traces before...</source>
        <translation>Mute des traces avant...</translation>
    </message>
    <message>
        <source>The samples of the selected traces before a time become zero (key U mutes before the mouse, Shift+U no more)</source>
        <translation>Les échantillons des traces sélectionnées avant un temps deviennent nuls (touche U&#xa0;: mute avant la souris, Maj+U&#xa0;: sans mute)</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Amplifier les traces</translation>
    </message>
    <message>
        <source>The samples of the selected traces become larger, 1.5 or 2 times in turn (key })</source>
        <translation>Les échantillons des traces sélectionnées sont agrandis, tour à tour de 1,5 ou 2 fois (touche })</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Atténuer les traces</translation>
    </message>
    <message>
        <source>The samples of the selected traces become smaller (key {)</source>
        <translation>Les échantillons des traces sélectionnées sont réduits (touche {)</translation>
    </message>
    <message>
        <source>Notch...</source>
        <translation>Filtre réjecteur...</translation>
    </message>
    <message>
        <source>Take the hum of power lines, 50 or 60 Hz and multiples, out of the filtered copy</source>
        <translation>Ôter de la copie filtrée le bourdonnement du secteur, 50 ou 60 Hz et multiples</translation>
    </message>
    <message>
        <source>Velocity filter...</source>
        <translation>Filtre de vitesse...</translation>
    </message>
    <message>
        <source>Keep or take out waves by their apparent velocity, in the filtered copy</source>
        <translation>Conserver ou ôter des ondes selon leur vitesse apparente, dans la copie filtrée</translation>
    </message>
    <message>
        <source>Annotations wait for the inversion to end.</source>
        <translation>Les annotations attendent la fin de l&apos;inversion.</translation>
    </message>
    <message>
        <source>It cannot work now.</source>
        <translation>La commande n&apos;est pas possible maintenant.</translation>
    </message>
    <message>
        <source>Save depth profile</source>
        <translation>Enregistrer le profil de profondeur</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf)</source>
        <translation>Images (*.png *.svg *.pdf)</translation>
    </message>
    <message>
        <source>Picks have changed since the layered profile was built.</source>
        <translation>Les pointés ont changé depuis la construction du profil en couches.</translation>
    </message>
    <message>
        <source>The line has no place on the map.</source>
        <translation>La ligne n&apos;a pas de place sur la carte.</translation>
    </message>
    <message>
        <source>Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>Indiquez-la avec Projet &gt; Définir les coordonnées géographiques ...</translation>
    </message>
    <message>
        <source>Export DXF Drawing</source>
        <translation>Exporter le dessin DXF</translation>
    </message>
    <message>
        <source>DXF drawing (*.dxf);;All Files (*)</source>
        <translation>Dessin DXF (*.dxf);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export GeoPackage</source>
        <translation>Exporter le GeoPackage</translation>
    </message>
    <message>
        <source>GeoPackage (*.gpkg);;All Files (*)</source>
        <translation>GeoPackage (*.gpkg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export Curtain</source>
        <translation>Exporter le rideau</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;Table of cells (*.csv);;All Files (*)</source>
        <translation>Grille VTK non structurée (*.vtu);;Tableau des cellules (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>This survey</source>
        <translation>Ce levé</translation>
    </message>
    <message>
        <source>Add projects to the fence</source>
        <translation>Ajouter des projets aux panneaux</translation>
    </message>
    <message>
        <source>Talvesk projects (*.tvsk);;All Files (*)</source>
        <translation>Projets Talvesk (*.tvsk);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save picture of the fence</source>
        <translation>Enregistrer l&apos;image des panneaux</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Images (*.png)</translation>
    </message>
    <message>
        <source>Applying notches ...</source>
        <translation>Application du filtre réjecteur ...</translation>
    </message>
    <message>
        <source>Applying the velocity filter ...</source>
        <translation>Application du filtre de vitesse ...</translation>
    </message>
    <message>
        <source>Folder for the shot files with picks</source>
        <translation>Dossier des fichiers de tirs avec pointés</translation>
    </message>
    <message>
        <source>In SEG-2 files a pick is FIRST_BREAK in seconds; in SEG-Y and SU files it is whole microseconds in bytes 233 to 236 of the trace header. Both count from the shot.</source>
        <translation>Dans les fichiers SEG-2, un pointé est FIRST_BREAK en secondes&#xa0;; dans les fichiers SEG-Y et SU, ce sont des microsecondes entières dans les octets 233 à 236 de l&apos;en-tête de trace. Les deux comptent à partir du tir.</translation>
    </message>
    <message>
        <source>Shot files with picks</source>
        <translation>Fichiers de tirs avec pointés</translation>
    </message>
    <message>
        <source>Save style</source>
        <translation>Enregistrer le style</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle)</source>
        <translation>Styles Talvesk (*.tvstyle)</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Appliquer un style</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle);;All files (*)</source>
        <translation>Styles Talvesk (*.tvstyle);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The section looks as before.</source>
        <translation>La coupe garde son aspect.</translation>
    </message>
    <message>
        <source>Style of %1</source>
        <translation>Style de %1</translation>
    </message>
    <message>
        <source>Geophones and shots stand where they were surveyed.</source>
        <translation>Les géophones et les tirs sont là où ils ont été levés.</translation>
    </message>
    <message>
        <source>Open surveyed positions</source>
        <translation>Ouvrir des positions levées</translation>
    </message>
    <message>
        <source>Tables of coordinates (*.csv *.tsv *.txt *.dat *.xyz *.asc);;All files (*)</source>
        <translation>Tableaux de coordonnées (*.csv *.tsv *.txt *.dat *.xyz *.asc);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The positions cannot be read.</source>
        <translation>Les positions ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Mute des traces</translation>
    </message>
    <message>
        <source>The selected traces are zero before (ms); 0: from nowhere</source>
        <translation>Les traces sélectionnées sont nulles avant (ms)&#xa0;; 0&#xa0;: nulle part</translation>
    </message>
    <message>
        <source>Offset and reduced time</source>
        <translation>Déport et temps réduit</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Imprimer ...</translation>
    </message>
    <message>
        <source>Preview a figure on paper at a chosen scale, print it or save it as PDF</source>
        <translation>Voir l&apos;aperçu d&apos;une figure sur papier à l&apos;échelle choisie, l&apos;imprimer ou l&apos;enregistrer en PDF</translation>
    </message>
    <message>
        <source>AutoPick all shots along the line</source>
        <translation>AutoPick de tous les tirs le long de la ligne</translation>
    </message>
    <message>
        <source>Pick the traces of all shots together, whichever are in view; picks that you made stay</source>
        <translation>Pointer ensemble les traces de tous les tirs, quels que soient ceux affichés&#xa0;; les pointés que vous avez faits restent</translation>
    </message>
    <message>
        <source>Campaign page ...</source>
        <translation>Page de campagne ...</translation>
    </message>
    <message>
        <source>Write a web page of each of several projects, and one on all of them</source>
        <translation>Écrire une page web de chacun de plusieurs projets, et une sur tous</translation>
    </message>
    <message>
        <source>By offset</source>
        <translation>Par déport</translation>
    </message>
    <message>
        <source>Order and space the traces by their offset, geophone minus shot: those before the shot at its left (key X)</source>
        <translation>Ordonner et espacer les traces selon leur déport, géophone moins tir&#xa0;: celles d&apos;avant le tir à sa gauche (touche X)</translation>
    </message>
    <message>
        <source>By absolute offset</source>
        <translation>Par déport absolu</translation>
    </message>
    <message>
        <source>Order and space the traces by their distance from the shot, either side over the other (key Shift+X)</source>
        <translation>Ordonner et espacer les traces selon leur distance au tir, un côté sur l&apos;autre (touche Maj+X)</translation>
    </message>
    <message>
        <source>Reduced time</source>
        <translation>Temps réduit</translation>
    </message>
    <message>
        <source>Draw every trace earlier by its offset over a velocity, that of the ruler or the one asked for last; picks stay true times (key V)</source>
        <translation>Avancer chaque trace de son déport divisé par une vitesse, celle de la règle ou la dernière demandée&#xa0;; les pointés restent des temps vrais (touche V)</translation>
    </message>
    <message>
        <source>Velocity of reduced time...</source>
        <translation>Vitesse du temps réduit...</translation>
    </message>
    <message>
        <source>Choose the velocity that waves have to be drawn flat (key Shift+V)</source>
        <translation>Choisir la vitesse des ondes à dessiner à plat (touche Maj+V)</translation>
    </message>
    <message>
        <source>Gain with time</source>
        <translation>Gain selon le temps</translation>
    </message>
    <message>
        <source>Draw late waves larger, by a power of their time; samples, picks and files stay as they are (key T)</source>
        <translation>Agrandir les ondes tardives selon une puissance de leur temps&#xa0;; échantillons, pointés et fichiers restent inchangés (touche T)</translation>
    </message>
    <message>
        <source>Exponent of gain with time...</source>
        <translation>Exposant du gain selon le temps...</translation>
    </message>
    <message>
        <source>Choose the power of time that wiggles are drawn with (key Shift+T)</source>
        <translation>Choisir la puissance du temps avec laquelle les oscillations sont dessinées (touche Maj+T)</translation>
    </message>
    <message>
        <source>Trace headers...</source>
        <translation>En-têtes des traces...</translation>
    </message>
    <message>
        <source>All that is known of every trace as a table, with what the headers of the shot files say</source>
        <translation>Tout ce qui est connu de chaque trace en un tableau, avec ce que disent les en-têtes des fichiers de tirs</translation>
    </message>
    <message>
        <source>Overlay two shots...</source>
        <translation>Superposer deux tirs...</translation>
    </message>
    <message>
        <source>Lay the traces of two shots over each other, and see their difference and their sum: blows of opposite sense, or a shot that was repeated</source>
        <translation>Superposer les traces de deux tirs, et voir leur différence et leur somme&#xa0;: coups de sens opposés, ou tir répété</translation>
    </message>
    <message>
        <source>Sheet of shots ...</source>
        <translation>Feuille de tirs ...</translation>
    </message>
    <message>
        <source>Several shots side by side on one sheet, with one axis of time, as PDF, SVG or PNG</source>
        <translation>Plusieurs tirs côte à côte sur une feuille, avec un même axe du temps, en PDF, SVG ou PNG</translation>
    </message>
    <message>
        <source>The shot has not been added to the survey.</source>
        <translation>Le tir n&apos;a pas été ajouté au levé.</translation>
    </message>
    <message>
        <source>Shot %1 is added; Undo takes it away.</source>
        <translation>Le tir %1 est ajouté&#xa0;; «&#xa0;Défaire&#xa0;» le retire.</translation>
    </message>
    <message>
        <source>Save Shot File</source>
        <translation>Enregistrer le fichier de tir</translation>
    </message>
    <message>
        <source>SEG-2 (*.sg2);;SEG-Y (*.sgy)</source>
        <translation>SEG-2 (*.sg2);;SEG-Y (*.sgy)</translation>
    </message>
    <message>
        <source>Save Picture of Two Shots</source>
        <translation>Enregistrer l&apos;image de deux tirs</translation>
    </message>
    <message>
        <source>Add projects to the campaign page</source>
        <translation>Ajouter des projets à la page de campagne</translation>
    </message>
    <message>
        <source>Save campaign page</source>
        <translation>Enregistrer la page de campagne</translation>
    </message>
    <message>
        <source>Campaign page</source>
        <translation>Page de campagne</translation>
    </message>
    <message>
        <source>%1: project %2 of %3</source>
        <comment>file, number, count</comment>
        <translation>%1&#xa0;: projet %2 sur %3</translation>
    </message>
    <message>
        <source>Saved in %1, without the changes of this survey that are not saved</source>
        <translation>Enregistré dans %1, sans les modifications de ce levé qui ne sont pas enregistrées</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, why</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Some values of the projects cannot be. They were put right or left out.</source>
        <translation>Certaines valeurs des projets sont impossibles. Elles ont été corrigées ou écartées.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. The campaign page names them.</source>
        <translation>Projets en échec&#xa0;: %1. La page de campagne les nomme.</translation>
    </message>
    <message>
        <source>Save Sheets of Shots</source>
        <translation>Enregistrer les feuilles de tirs</translation>
    </message>
    <message>
        <source>PDF, all sheets in one file (*.pdf);;SVG picture (*.svg);;PNG picture (*.png)</source>
        <translation>PDF, toutes les feuilles en un fichier (*.pdf);;Image SVG (*.svg);;Image PNG (*.png)</translation>
    </message>
    <message numerus="yes">
        <source>The sheets have not all been saved; %n file(s) are complete.</source>
        <translation>
            <numerusform>Les feuilles n&apos;ont pas toutes été enregistrées&#xa0;; %n fichier est complet.</numerusform>
            <numerusform>Les feuilles n&apos;ont pas toutes été enregistrées&#xa0;; %n fichiers sont complets.</numerusform>
        </translation>
    </message>
    <message>
        <source>there are no picks yet</source>
        <translation>il n&apos;y a pas encore de pointés</translation>
    </message>
    <message>
        <source>Layered profile</source>
        <translation>Profil en couches</translation>
    </message>
    <message>
        <source>there is no layered profile yet</source>
        <translation>il n&apos;y a pas encore de profil en couches</translation>
    </message>
    <message>
        <source>Traces of shot %1</source>
        <translation>Traces du tir %1</translation>
    </message>
    <message>
        <source>no shot with traces is in view</source>
        <translation>aucun tir avec traces n&apos;est affiché</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Écart de chaque itération</translation>
    </message>
    <message>
        <source>there is no inversion yet</source>
        <translation>il n&apos;y a pas encore d&apos;inversion</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Résidus par tir et géophone</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Résidus selon le déport</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Résidus des tirs et des géophones</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Résidus le long des rais</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Profil de profondeur</translation>
    </message>
    <message>
        <source>there is no section yet</source>
        <translation>il n&apos;y a pas encore de coupe</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P et S</translation>
    </message>
    <message>
        <source>its own dialog prints it</source>
        <translation>sa propre boîte de dialogue l&apos;imprime</translation>
    </message>
    <message>
        <source>Nothing has been printed.</source>
        <translation>Rien n&apos;a été imprimé.</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Envoyé à %1.</translation>
    </message>
    <message>
        <source>Save sheets as PDF</source>
        <translation>Enregistrer les feuilles en PDF</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Shots whose files name no fields: %1. %2</source>
        <translation>Tirs dont les fichiers ne nomment pas de champs&#xa0;: %1. %2</translation>
    </message>
    <message>
        <source>Save Trace Headers</source>
        <translation>Enregistrer les en-têtes des traces</translation>
    </message>
    <message>
        <source>Velocity V of t - |x|/V (%1):</source>
        <translation>Vitesse V de t - |x|/V (%1)&#xa0;:</translation>
    </message>
    <message>
        <source>Exponent n of t^n, 0 for none:</source>
        <translation>Exposant n de t^n, 0 pour aucun&#xa0;:</translation>
    </message>
    <message>
        <source>Reduced %1 ms</source>
        <translation>Réduit %1 ms</translation>
    </message>
    <message>
        <source>Section as it is shown</source>
        <translation>Coupe telle qu&apos;elle est affichée</translation>
    </message>
    <message>
        <source>Export surface, isolines, refractors, geophones, shots and annotations as a drawing for CAD</source>
        <translation>Exporter surface, isolignes, réfracteurs, géophones, tirs et annotations en dessin pour la CAO</translation>
    </message>
    <message>
        <source>Stopped; the campaign page has not been saved, pages of %1 of its %2 projects have.</source>
        <translation>Arrêté&#xa0;; la page de campagne n&apos;a pas été enregistrée, les pages de %1 de ses %2 projets l&apos;ont été.</translation>
    </message>
    <message>
        <source>The printer failed after %1 of %2 sheets.</source>
        <translation>L&apos;imprimante s&apos;est arrêtée en erreur après %1 feuilles sur %2.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. There is no campaign page that names them.</source>
        <translation>Projets en échec&#xa0;: %1. Il n&apos;y a pas de page de campagne qui les nomme.</translation>
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
        <translation>Canal</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Temps (ms)</translation>
    </message>
    <message>
        <source>Offset (%1)</source>
        <translation>Déport (%1)</translation>
    </message>
    <message>
        <source>|x| (%1)</source>
        <comment>absolute offset</comment>
        <translation>|x| (%1)</translation>
    </message>
    <message>
        <source>Reduced time (ms), t - |x|/%1 %2</source>
        <translation>Temps réduit (ms), t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>%1, gain t^%2</source>
        <comment>time axis, exponent</comment>
        <translation>%1, gain t^%2</translation>
    </message>
</context>
<context>
    <name>talvesk::TraceHeadersDialog</name>
    <message>
        <source>Trace headers</source>
        <translation>En-têtes des traces</translation>
    </message>
    <message>
        <source>Headers of all traces</source>
        <translation>En-têtes de toutes les traces</translation>
    </message>
    <message>
        <source>A click on a heading sorts by it; the current row is shown among the traces</source>
        <translation>Un clic sur un intitulé trie selon lui&#xa0;; la ligne courante est affichée parmi les traces</translation>
    </message>
    <message>
        <source>Reads the shot files again and adds a column for every field that their headers name: instrument, time of recording, gain, stack, notes</source>
        <translation>Relit les fichiers de tirs et ajoute une colonne pour chaque champ que nomment leurs en-têtes&#xa0;: appareil, heure d&apos;enregistrement, gain, sommation, notes</translation>
    </message>
    <message>
        <source>All &amp;fields of the shot files</source>
        <translation>Tous les c&amp;hamps des fichiers de tirs</translation>
    </message>
    <message>
        <source>The selected rows, or all of them, with a heading, as spreadsheets paste them (Ctrl+C)</source>
        <translation>Les lignes sélectionnées, ou toutes, avec les intitulés, telles que les tableurs les collent (Ctrl+C)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>All rows in the order of shots and traces, lengths in metres, with decimal points</source>
        <translation>Toutes les lignes dans l&apos;ordre des tirs et des traces, longueurs en mètres, avec points décimaux</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Enregistrer le tableau...</translation>
    </message>
    <message>
        <source>Traces: %1</source>
        <translation>Traces&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rows copied: %1</source>
        <translation>Lignes copiées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not in the table: %1</source>
        <translation>Absents du tableau&#xa0;: %1</translation>
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
        <translation>Autres tirs</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calculés</translation>
    </message>
    <message>
        <source>Air %1</source>
        <translation>Air %1</translation>
    </message>
    <message>
        <source>No other shot of the string is picked</source>
        <translation>Aucun autre tir du dispositif n&apos;est pointé</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <comment>number, place</comment>
        <translation>Tir %1 à %2</translation>
    </message>
    <message>
        <source>No computed times</source>
        <translation>Pas de temps calculés</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Temps réciproques</translation>
    </message>
    <message>
        <source>No reciprocal times</source>
        <translation>Pas de temps réciproques</translation>
    </message>
</context>
<context>
    <name>talvesk::TravelTimePlot</name>
    <message>
        <source>Travel-time curves</source>
        <translation>Dromochroniques</translation>
    </message>
    <message>
        <source>No travel times yet.

Pick first breaks in the traces, by hand or with AutoPick, or import travel times.</source>
        <translation>Aucun temps de parcours pour l&apos;instant.

Pointez les premières arrivées sur les traces, à la main ou avec AutoPick, ou importez des temps de parcours.</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Distance [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Temps [ms]</translation>
    </message>
    <message>
        <source>&amp;Measured</source>
        <translation>&amp;Mesurés</translation>
    </message>
    <message>
        <source>&amp;Computed</source>
        <translation>&amp;Calculés</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>T&amp;out afficher</translation>
    </message>
    <message>
        <source>Show all curves</source>
        <translation>Afficher toutes les courbes</translation>
    </message>
    <message>
        <source>Export &amp;picture...</source>
        <translation>Exporter l&apos;&amp;image...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Enregistrer les courbes en PNG, SVG ou PDF</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <translation>Tir %1 à %2</translation>
    </message>
    <message>
        <source>Shot %1 has no travel times yet</source>
        <translation>Le tir %1 n&apos;a pas encore de temps de parcours</translation>
    </message>
    <message>
        <source>Click a curve to choose its shot</source>
        <translation>Cliquez sur une courbe pour choisir son tir</translation>
    </message>
    <message>
        <source>Shot %1, trace %2: %3 ms</source>
        <translation>Tir %1, trace %2&#xa0;: %3 ms</translation>
    </message>
    <message>
        <source>Computed: %1 ms</source>
        <translation>Calculé&#xa0;: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Remove pick</source>
        <translation>&amp;Supprimer le pointé</translation>
    </message>
    <message>
        <source>Zoom &amp;back</source>
        <translation>Vue &amp;précédente</translation>
    </message>
    <message>
        <source>Zoom for&amp;ward</source>
        <translation>Vue sui&amp;vante</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Error: %1 ms</source>
        <translation>Erreur&#xa0;: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>Co&amp;uches</translation>
    </message>
    <message>
        <source>Times computed through the layers of the refraction interpretation</source>
        <translation>Temps calculés à travers les couches de l&apos;interprétation en réfraction</translation>
    </message>
    <message>
        <source>There are no layers of these picks: build the profiles of the refraction interpretation (anew).</source>
        <translation>Il n&apos;y a pas de couches pour ces pointés&#xa0;: construisez (ou reconstruisez) les profils de l&apos;interprétation en réfraction.</translation>
    </message>
    <message>
        <source>Layers: %1 ms</source>
        <translation>Couches&#xa0;: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::VelocityFilterDialog</name>
    <message>
        <source>Velocity filter</source>
        <translation>Filtre de vitesse</translation>
    </message>
    <message>
        <source>Keeps or takes out waves by their apparent velocity along the line, in the filtered copy. Drag the sides of the wedge, or type velocities.</source>
        <translation>Conserve ou ôte des ondes selon leur vitesse apparente le long de la ligne, dans la copie filtrée. Faites glisser les côtés de l&apos;éventail, ou saisissez des vitesses.</translation>
    </message>
    <message>
        <source>&amp;Slowest (m/s):</source>
        <translation>Plus len&amp;te (m/s)&#xa0;:</translation>
    </message>
    <message>
        <source>Least apparent velocity of the wedge; the full line in the picture</source>
        <translation>Plus petite vitesse apparente de l&apos;éventail&#xa0;; la ligne pleine de l&apos;image</translation>
    </message>
    <message>
        <source>&amp;Fastest (m/s):</source>
        <translation>Plus ra&amp;pide (m/s)&#xa0;:</translation>
    </message>
    <message>
        <source>Greatest apparent velocity of the wedge, 0 for no limit; the dashed line in the picture</source>
        <translation>Plus grande vitesse apparente de l&apos;éventail, 0 pour aucune limite&#xa0;; la ligne en tirets de l&apos;image</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Ondes&#xa0;:</translation>
    </message>
    <message>
        <source>Forth is towards greater distances along the line</source>
        <translation>Vers l&apos;avant, c&apos;est vers les distances croissantes le long de la ligne</translation>
    </message>
    <message>
        <source>Both ways</source>
        <translation>Dans les deux sens</translation>
    </message>
    <message>
        <source>Forth along the line</source>
        <translation>Vers l&apos;avant le long de la ligne</translation>
    </message>
    <message>
        <source>Back along the line</source>
        <translation>Vers l&apos;arrière le long de la ligne</translation>
    </message>
    <message>
        <source>Wedge:</source>
        <translation>Éventail&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>Pa&amp;sse</translation>
    </message>
    <message>
        <source>Is re&amp;jected</source>
        <translation>Est re&amp;jeté</translation>
    </message>
    <message>
        <source>&amp;Taper (%):</source>
        <translation>Apo&amp;disation (%)&#xa0;:</translation>
    </message>
    <message>
        <source>How far beside the wedge the filter sets in, in percent of its slowness there</source>
        <translation>Sur quelle largeur à côté de l&apos;éventail le filtre s&apos;installe, en pour cent de la lenteur à cet endroit</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Appliquer le filtre à&#xa0;:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>O&amp;riginales</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>Fi&amp;ltrées</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Afficher&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>A&amp;vant</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>&amp;Après</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Le filtre s&apos;applique à tous les tirs.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>Le filtre s&apos;applique au tir %1.</translation>
    </message>
    <message>
        <source>Shot %1 cannot be filtered: %2</source>
        <translation>Le tir %1 ne peut pas être filtré&#xa0;: %2</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>Aucun filtre appliqué.</translation>
    </message>
</context>
<context>
    <name>talvesk::WebPage</name>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>About the report</source>
        <translation>À propos du rapport</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Aller au contenu</translation>
    </message>
    <message>
        <source>%1: velocity</source>
        <translation>%1&#xa0;: vitesse</translation>
    </message>
    <message>
        <source>Faster than %1 by</source>
        <translation>Plus rapide que %1 de</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>What the section shows</source>
        <translation>Ce que montre la coupe</translation>
    </message>
    <message>
        <source>Point at the section to read it, click for the profile below a point, drag to move it. Keys: arrows move a cross, Enter shows the profile below it, + and - zoom, 0 shows all.</source>
        <translation>Survolez la coupe pour la lire, cliquez pour voir le profil sous un point, faites-la glisser pour la déplacer. Touches&#xa0;: les flèches déplacent une croix, Entrée montre le profil au-dessous, + et - zooment, 0 affiche tout.</translation>
    </message>
    <message>
        <source>Colours show</source>
        <translation>Colorer selon</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Colours from</source>
        <translation>Couleurs à partir de</translation>
    </message>
    <message>
        <source>Colours to</source>
        <translation>Couleurs jusqu&apos;à</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolignes</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Exagération verticale</translation>
    </message>
    <message>
        <source>as it fits</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rais</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Limite de couverture</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Géophones</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Tirs</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distance %1</translation>
    </message>
    <message>
        <source>elevation %1</source>
        <translation>altitude %1</translation>
    </message>
    <message>
        <source>depth %1</source>
        <translation>profondeur %1</translation>
    </message>
    <message>
        <source>Vertical profile</source>
        <translation>Profil vertical</translation>
    </message>
    <message>
        <source>Vertical profile at %1</source>
        <translation>Profil vertical à %1</translation>
    </message>
    <message>
        <source>Depth from [%1]</source>
        <translation>Profondeur de [%1]</translation>
    </message>
    <message>
        <source>Depth to [%1]</source>
        <translation>Profondeur à [%1]</translation>
    </message>
    <message>
        <source>Depth below ground [%1]</source>
        <translation>Profondeur sous le sol [%1]</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Vitesse [%1]</translation>
    </message>
    <message>
        <source>The section has %1 cells, too many to be explored in a page: it stands here as a picture.</source>
        <translation>La coupe a %1 cellules, trop pour être explorée dans une page&#xa0;: elle figure ici sous forme d&apos;image.</translation>
    </message>
    <message>
        <source>Travel-time curves</source>
        <translation>Dromochroniques</translation>
    </message>
    <message>
        <source>What the curves show</source>
        <translation>Ce que montrent les courbes</translation>
    </message>
    <message>
        <source>Point at a pick to read it, click it for its recording and its ray in the section. Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Survolez un pointé pour le lire, cliquez dessus pour voir son enregistrement et son rai dans la coupe. Touches&#xa0;: gauche et droite vont de pointé en pointé, haut et bas de tir en tir, + et - zooment, 0 affiche tout.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesurés</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Barres d&apos;erreur</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calculés</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Tir %1</translation>
    </message>
    <message>
        <source>geophone %1 at %2</source>
        <translation>géophone %1 à %2</translation>
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
        <translation>calculé %1 ms</translation>
    </message>
    <message>
        <source>misfit %1 ms</source>
        <translation>écart %1 ms</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Tir</translation>
    </message>
    <message>
        <source>Geophone</source>
        <translation>Géophone</translation>
    </message>
    <message>
        <source>Measured [ms]</source>
        <translation>Mesuré [ms]</translation>
    </message>
    <message>
        <source>Error [ms]</source>
        <translation>Erreur [ms]</translation>
    </message>
    <message>
        <source>Computed [ms]</source>
        <translation>Calculé [ms]</translation>
    </message>
    <message>
        <source>Misfit [ms]</source>
        <translation>Écart [ms]</translation>
    </message>
    <message>
        <source>Recording of the shot</source>
        <translation>Enregistrement du tir</translation>
    </message>
    <message>
        <source>There is no recording of this shot.</source>
        <translation>Il n&apos;y a pas d&apos;enregistrement de ce tir.</translation>
    </message>
    <message>
        <source>The recording of this shot is left out: those of the shots before it are as much as a page holds.</source>
        <translation>L&apos;enregistrement de ce tir est omis&#xa0;: ceux des tirs précédents remplissent déjà la page.</translation>
    </message>
    <message>
        <source>Misfit of every shot</source>
        <translation>Écart de chaque tir</translation>
    </message>
    <message>
        <source>Misfit of every geophone</source>
        <translation>Écart de chaque géophone</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Écart de chaque itération</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Calculés moins mesurés [ms]</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Mean [ms]</source>
        <translation>Moyenne [ms]</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Pointés</translation>
    </message>
    <message>
        <source>RMS %1 ms</source>
        <translation>RMS %1 ms</translation>
    </message>
    <message>
        <source>mean %1 ms</source>
        <translation>moyenne %1 ms</translation>
    </message>
    <message>
        <source>picks: %1</source>
        <translation>pointés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Iteration</source>
        <translation>Itération</translation>
    </message>
    <message>
        <source>Iteration %1</source>
        <translation>Itération %1</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Coupe, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Dernière passe du solveur, RMS [ms]</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Temps à l&apos;aller et au retour</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Aller [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Retour [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Différence [ms]</translation>
    </message>
    <message>
        <source>Shots %1 and %2</source>
        <translation>Tirs %1 et %2</translation>
    </message>
    <message>
        <source>there %1 ms</source>
        <translation>aller %1 ms</translation>
    </message>
    <message>
        <source>back %1 ms</source>
        <translation>retour %1 ms</translation>
    </message>
    <message>
        <source>difference %1 ms</source>
        <translation>différence %1 ms</translation>
    </message>
    <message>
        <source>The numbers of this figure</source>
        <translation>Les valeurs de cette figure</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Picks as CSV</source>
        <translation>Pointés en CSV</translation>
    </message>
    <message>
        <source>Section as CSV</source>
        <translation>Coupe en CSV</translation>
    </message>
    <message>
        <source>Map of the line</source>
        <translation>Plan de la ligne</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Premier géophone</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Dernier géophone</translation>
    </message>
    <message>
        <source>Open the place in a map service</source>
        <translation>Ouvrir le lieu dans un service de cartes</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Touches&#xa0;: gauche et droite vont de pointé en pointé, haut et bas de tir en tir, + et - zooment, 0 affiche tout.</translation>
    </message>
    <message>
        <source>Point at a mark to read it. Keys: left and right go from mark to mark, + and - zoom, 0 shows all.</source>
        <translation>Survolez un repère pour le lire. Touches&#xa0;: gauche et droite vont de repère en repère, + et - zooment, 0 affiche tout.</translation>
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
        <translation>Rugosité de tV</translation>
    </message>
    <message>
        <source>RMS (ms)</source>
        <translation>RMS (ms)</translation>
    </message>
    <message>
        <source>Unevenness of velocity</source>
        <translation>Irrégularité de la vitesse</translation>
    </message>
    <message>
        <source>RMS (%)</source>
        <translation>RMS (%)</translation>
    </message>
    <message>
        <source>Roughness of tV against XY</source>
        <translation>Rugosité de tV en fonction de XY</translation>
    </message>
    <message>
        <source>Unevenness of velocity against XY</source>
        <translation>Irrégularité de la vitesse en fonction de XY</translation>
    </message>
    <message>
        <source>Click to choose it</source>
        <translation>Cliquer pour le choisir</translation>
    </message>
    <message>
        <source>No XY can be judged: forward and reverse curve have too few geophones in common.</source>
        <translation>Aucun XY ne peut être jugé&#xa0;: les courbes directe et inverse ont trop peu de géophones en commun.</translation>
    </message>
    <message>
        <source>Nothing is built yet.</source>
        <translation>Rien n&apos;est encore construit.</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>choisi</translation>
    </message>
    <message>
        <source>proposed</source>
        <translation>proposé</translation>
    </message>
</context>
<context>
    <name>talvesk::contourlines_dialog</name>
    <message>
        <source>Contour Lines - Settings</source>
        <translation>Isolignes - Paramètres</translation>
    </message>
    <message>
        <source>Contour values</source>
        <translation>Valeurs des isolignes</translation>
    </message>
    <message>
        <source>Equally spaced contour values</source>
        <translation>Valeurs équidistantes</translation>
    </message>
    <message>
        <source>Values that divide the range into equal parts</source>
        <translation>Valeurs qui divisent la plage en parties égales</translation>
    </message>
    <message>
        <source># Values</source>
        <translation>Nombre de valeurs</translation>
    </message>
    <message>
        <source>How many values divide the range</source>
        <translation>Combien de valeurs divisent la plage</translation>
    </message>
    <message>
        <source>Customized Contour Values</source>
        <translation>Valeurs personnalisées</translation>
    </message>
    <message>
        <source>The values of the list</source>
        <translation>Les valeurs de la liste</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Add One More Value</source>
        <translation>Ajouter une valeur</translation>
    </message>
    <message>
        <source>Add an empty line to the list</source>
        <translation>Ajouter une ligne vide à la liste</translation>
    </message>
    <message>
        <source>Load Isovalues</source>
        <translation>Charger des isovaleurs</translation>
    </message>
    <message>
        <source>Replace the list by the values of a file</source>
        <translation>Remplacer la liste par les valeurs d&apos;un fichier</translation>
    </message>
    <message>
        <source>Save Isovalues</source>
        <translation>Enregistrer les isovaleurs</translation>
    </message>
    <message>
        <source>Write the list to a file</source>
        <translation>Écrire la liste dans un fichier</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Tout supprimer</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Where contours are shown</source>
        <translation>Où afficher les isolignes</translation>
    </message>
    <message>
        <source>Show Contours (on top of  Tomographic Profile)</source>
        <translation>Afficher les isolignes (sur le profil tomographique)</translation>
    </message>
    <message>
        <source>Lines over the velocities</source>
        <translation>Lignes par-dessus les vitesses</translation>
    </message>
    <message>
        <source>Show Filled Contours</source>
        <translation>Afficher les isolignes remplies</translation>
    </message>
    <message>
        <source>Velocities in bands from one value to the next</source>
        <translation>Vitesses en bandes, d&apos;une valeur à la suivante</translation>
    </message>
    <message>
        <source>Show Contours (on Vertical Gradient of Velocity)</source>
        <translation>Afficher les isolignes (sur le gradient vertical de vitesse)</translation>
    </message>
    <message>
        <source>Lines over the vertical gradient; not together with filled contours</source>
        <translation>Lignes par-dessus le gradient vertical&#xa0;; incompatible avec les isolignes remplies</translation>
    </message>
    <message>
        <source>Show Contours (on Laplacian Gradient of Velocity)</source>
        <translation>Afficher les isolignes (sur le gradient laplacien de vitesse)</translation>
    </message>
    <message>
        <source>Lines over the Laplacian; not together with filled contours</source>
        <translation>Lignes par-dessus le laplacien&#xa0;; incompatible avec les isolignes remplies</translation>
    </message>
    <message>
        <source>Lines and labels</source>
        <translation>Lignes et étiquettes</translation>
    </message>
    <message>
        <source>Show label every N contour lines</source>
        <translation>Une étiquette toutes les N isolignes</translation>
    </message>
    <message>
        <source>1 labels every line, 2 every second one</source>
        <translation>1&#xa0;: une étiquette à chaque ligne, 2&#xa0;: une ligne sur deux</translation>
    </message>
    <message>
        <source>No labels</source>
        <translation>Aucune étiquette</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>Taille des étiquettes</translation>
    </message>
    <message>
        <source>Size of the labels in points</source>
        <translation>Taille des étiquettes en points</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Contours colour:</source>
        <translation>Couleur des isolignes&#xa0;:</translation>
    </message>
    <message>
        <source>Choose the colour of the lines</source>
        <translation>Choisir la couleur des lignes</translation>
    </message>
    <message>
        <source>Contours colour</source>
        <translation>Couleur des isolignes</translation>
    </message>
    <message>
        <source>Isolines (*.csv)</source>
        <translation>Isolignes (*.csv)</translation>
    </message>
    <message>
        <source>The section shows values from %1 to %2 %3</source>
        <translation>La coupe affiche des valeurs de %1 à %2 %3</translation>
    </message>
    <message>
        <source>Value : </source>
        <translation>Valeur&#xa0;: </translation>
    </message>
    <message>
        <source>Remove this value</source>
        <translation>Retirer cette valeur</translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) of the list are no numbers from %1 to %2.</source>
        <translation>
            <numerusform>%n valeur de la liste n&apos;est pas un nombre de %1 à %2.</numerusform>
            <numerusform>%n valeurs de la liste ne sont pas des nombres de %1 à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Remplacer le fichier&#xa0;?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Cannot save file </source>
        <translation>Impossible d&apos;enregistrer le fichier </translation>
    </message>
    <message>
        <source>Cannot open file </source>
        <translation>Impossible d&apos;ouvrir le fichier </translation>
    </message>
    <message>
        <source>Invalid value at line </source>
        <translation>Valeur non valide à la ligne </translation>
    </message>
    <message>
        <source>Or wrong CVS separator.</source>
        <translation>Ou séparateur CSV incorrect.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Some loaded isovalues were out of range. Ignored.</source>
        <translation>Certaines isovaleurs chargées étaient hors plage. Elles ont été ignorées.</translation>
    </message>
    <message>
        <source>Select background color</source>
        <translation>Choisir la couleur des isolignes</translation>
    </message>
    <message>
        <source>Round Values</source>
        <translation>Valeurs rondes</translation>
    </message>
    <message>
        <source>Replace the list by round values over the range</source>
        <translation>Remplacer la liste par des valeurs rondes sur la plage</translation>
    </message>
    <message>
        <source>None of these is checked: no contours will be drawn.</source>
        <translation>Aucune case n&apos;est cochée&#xa0;: aucune isoligne ne sera dessinée.</translation>
    </message>
    <message>
        <source>What the section shows has no contours. Those of the velocity lie between %1 and %2 %3</source>
        <translation>Ce que montre la coupe n&apos;a pas d&apos;isolignes. Celles de la vitesse sont comprises entre %1 et %2 %3</translation>
    </message>
    <message>
        <source>; the file has them in %1</source>
        <translation>&#xa0;; le fichier les contient en %1</translation>
    </message>
</context>
<context>
    <name>talvesk::doFilteringDialog</name>
    <message>
        <source>Trace Filtering</source>
        <translation>Filtrage des traces</translation>
    </message>
    <message>
        <source>High Pass Filter</source>
        <translation>Filtre passe-haut</translation>
    </message>
    <message>
        <source>Use &amp;high pass</source>
        <translation>Utiliser le passe-&amp;haut</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Fréquence (Hz)</translation>
    </message>
    <message>
        <source>High pass frequency in hertz</source>
        <translation>Fréquence du passe-haut en hertz</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>High pass order</source>
        <translation>Ordre du passe-haut</translation>
    </message>
    <message>
        <source>Low Pass Filter</source>
        <translation>Filtre passe-bas</translation>
    </message>
    <message>
        <source>Use &amp;low pass</source>
        <translation>Utiliser le passe-&amp;bas</translation>
    </message>
    <message>
        <source>Low pass frequency in hertz</source>
        <translation>Fréquence du passe-bas en hertz</translation>
    </message>
    <message>
        <source>Low pass order</source>
        <translation>Ordre du passe-bas</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Appliquer le filtre à&#xa0;:</translation>
    </message>
    <message>
        <source>Filter the samples as they were recorded</source>
        <translation>Filtrer les échantillons tels qu&apos;enregistrés</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Originales</translation>
    </message>
    <message>
        <source>Filter what the filters and AGC before made of them</source>
        <translation>Filtrer ce que les filtres et l&apos;AGC précédents en ont fait</translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation>Filtrées</translation>
    </message>
    <message>
        <source>&amp;Apply filter</source>
        <translation>&amp;Appliquer le filtre</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Afficher&#xa0;:</translation>
    </message>
    <message>
        <source>What the filter is applied to</source>
        <translation>Ce à quoi le filtre est appliqué</translation>
    </message>
    <message>
        <source>Original data</source>
        <translation>Données originales</translation>
    </message>
    <message>
        <source>What comes out of the filter</source>
        <translation>Ce qui sort du filtre</translation>
    </message>
    <message>
        <source>Filtered data</source>
        <translation>Données filtrées</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Tir %1 sur %2</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>Le filtre s&apos;applique à tous les tirs.</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>Aucun filtre appliqué. L&apos;ordre du filtre doit être supérieur à 0.</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>Aucun filtre appliqué.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n trace reste telle quelle.</numerusform>
            <numerusform>%n traces restent telles quelles.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::draw1DVelocityProfile</name>
    <message>
        <source>Velocity against depth</source>
        <translation>Vitesse en fonction de la profondeur</translation>
    </message>
    <message>
        <source>Velocity (%1)</source>
        <translation>Vitesse (%1)</translation>
    </message>
    <message>
        <source>Depth below the ground (%1)</source>
        <translation>Profondeur sous le sol (%1)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>Velocity that the grid gets</source>
        <translation>Vitesse que recevra la grille</translation>
    </message>
</context>
<context>
    <name>talvesk::editTravelTimesWidget</name>
    <message>
        <source>Seismic traces</source>
        <translation>Traces sismiques</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms</source>
        <translation>Trace %1, pointée à %2 ms</translation>
    </message>
    <message>
        <source>Trace %1, not picked</source>
        <translation>Trace %1, non pointée</translation>
    </message>
    <message>
        <source>No samples, only picks</source>
        <translation>Aucun échantillon, seulement des pointés</translation>
    </message>
    <message>
        <source>Open shot files with Ctrl+O or drop them here</source>
        <translation>Ouvrez des fichiers de tirs avec Ctrl+O ou déposez-les ici</translation>
    </message>
    <message>
        <source>No shot is shown</source>
        <translation>Aucun tir affiché</translation>
    </message>
    <message>
        <source>This shot has no traces</source>
        <translation>Ce tir n&apos;a pas de traces</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms, error %3 ms</source>
        <translation>Trace %1, pointée à %2 ms, erreur %3 ms</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Erreur %1 ms</translation>
    </message>
    <message>
        <source>Traces %1: C confirms, Del removes, K kills, P reverses, U mutes, Esc leaves</source>
        <translation>Traces %1&#xa0;: C confirme, Suppr supprime, K neutralise, P inverse, U mute, Échap quitte</translation>
    </message>
    <message>
        <source>Times are not reduced: offsets are not known</source>
        <translation>Les temps ne sont pas réduits&#xa0;: les déports sont inconnus</translation>
    </message>
    <message>
        <source>Not by offset: offsets are not known, or all the same</source>
        <translation>Pas par déport&#xa0;: les déports sont inconnus, ou tous égaux</translation>
    </message>
</context>
<context>
    <name>talvesk::gridDialog</name>
    <message>
        <source>Grid Settings</source>
        <translation>Paramètres de la grille</translation>
    </message>
    <message>
        <source>Array length (m)</source>
        <translation>Longueur du dispositif (m)</translation>
    </message>
    <message>
        <source>Max. depth (m)</source>
        <translation>Profondeur max. (m)</translation>
    </message>
    <message>
        <source>A deeper grid costs time and memory. Rays rarely reach deeper than a quarter to a third of the distance between the outermost shots.</source>
        <translation>Une grille plus profonde coûte du temps et de la mémoire. Les rais descendent rarement au-delà du quart au tiers de la distance entre les tirs extrêmes.</translation>
    </message>
    <message>
        <source>Cell size (m)</source>
        <translation>Taille des cellules (m)</translation>
    </message>
    <message>
        <source>Smaller cells draw finer detail and fit the times closer, but rays cover each cell less, and time and memory grow with the inverse square. A quarter of the geophone spacing is a good start.</source>
        <translation>Des cellules plus petites montrent des détails plus fins et ajustent mieux les temps, mais chacune est moins couverte par les rais, et le temps et la mémoire croissent comme l&apos;inverse du carré. Un quart de l&apos;espacement des géophones est un bon point de départ.</translation>
    </message>
    <message>
        <source>N° of nodes per cell side</source>
        <translation>Nombre de nœuds par côté de cellule</translation>
    </message>
    <message>
        <source>More nodes let rays leave a cell at more angles, so computed times get more accurate; time and memory grow with the number. Beyond 15 little is gained.</source>
        <translation>Avec plus de nœuds, les rais peuvent quitter une cellule sous plus d&apos;angles et les temps calculés sont plus précis&#xa0;; le temps et la mémoire croissent avec leur nombre. Au-delà de 15, le gain est faible.</translation>
    </message>
    <message>
        <source>The grid will have</source>
        <translation>La grille aura</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cellules</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>The grid has no rows: choose a greater depth or smaller cells.</source>
        <translation>La grille n&apos;a pas de lignes&#xa0;: choisissez une profondeur plus grande ou des cellules plus petites.</translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) at the end of the line lie beyond the last column and take no part in an inversion. Another cell size may reach them.</source>
        <translation>
            <numerusform>%n position à la fin de la ligne se trouve au-delà de la dernière colonne et ne participe pas à une inversion. Une autre taille de cellule peut l&apos;atteindre.</numerusform>
            <numerusform>%n positions à la fin de la ligne se trouvent au-delà de la dernière colonne et ne participent pas à une inversion. Une autre taille de cellule peut les atteindre.</numerusform>
        </translation>
    </message>
    <message>
        <source>Invalid parameter</source>
        <translation>Paramètre non valide</translation>
    </message>
    <message>
        <source>The max depth parameter set to 0.0 is not valid for tomography</source>
        <translation>Une profondeur maximale de 0,0 n&apos;est pas valide pour la tomographie</translation>
    </message>
    <message>
        <source>Memory warning</source>
        <translation>Avertissement sur la mémoire</translation>
    </message>
    <message>
        <source>A large number of nodes may require a lot of memory</source>
        <translation>Un grand nombre de nœuds peut demander beaucoup de mémoire</translation>
    </message>
    <message>
        <source>Such small cells make an inversion very slow, and it stops only between iterations. A quarter of the geophone spacing is %1.</source>
        <translation>Des cellules si petites rendent l&apos;inversion très lente, et elle ne s&apos;arrête qu&apos;entre deux itérations. Le quart de l&apos;espacement des géophones est de %1.</translation>
    </message>
    <message>
        <source>A quarter of the smallest geophone spacing, %1 at least. Off: the cell size of the grid that there is, the smallest without one.</source>
        <translation>Le quart du plus petit espacement des géophones, %1 au moins. Décochée&#xa0;: la taille des cellules de la grille existante, la plus petite s&apos;il n&apos;y en a pas.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Proposer</translation>
    </message>
    <message>
        <source>Cell sizes that lose none:</source>
        <translation>Tailles de cellules sans perte&#xa0;:</translation>
    </message>
    <message>
        <source>Lost to an inversion: %1.</source>
        <translation>Perdus pour une inversion&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Les résultats de la dernière inversion seront supprimés («&#xa0;Défaire&#xa0;» les rétablit).</translation>
    </message>
</context>
<context>
    <name>talvesk::progressDialog</name>
    <message>
        <source>Steps</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>Saving project</source>
        <translation>Enregistrement du projet</translation>
    </message>
    <message>
        <source>Loading project</source>
        <translation>Chargement du projet</translation>
    </message>
    <message>
        <source>SAVED XML</source>
        <translation>XML ENREGISTRÉ</translation>
    </message>
    <message>
        <source>Saving grid...</source>
        <translation>Enregistrement de la grille...</translation>
    </message>
    <message>
        <source>SAVED GRID</source>
        <translation>GRILLE ENREGISTRÉE</translation>
    </message>
    <message>
        <source>Saving traces...</source>
        <translation>Enregistrement des traces...</translation>
    </message>
    <message>
        <source>SAVED TRACES</source>
        <translation>TRACES ENREGISTRÉES</translation>
    </message>
    <message>
        <source>Saving palettes...</source>
        <translation>Enregistrement des palettes...</translation>
    </message>
    <message>
        <source>SAVED PALETTES</source>
        <translation>PALETTES ENREGISTRÉES</translation>
    </message>
    <message>
        <source>Compressing...</source>
        <translation>Compression...</translation>
    </message>
    <message>
        <source>COMPRESSED</source>
        <translation>COMPRESSÉ</translation>
    </message>
    <message>
        <source>Removing temporary files...</source>
        <translation>Suppression des fichiers temporaires...</translation>
    </message>
    <message>
        <source>COMPLETED</source>
        <translation>TERMINÉ</translation>
    </message>
    <message>
        <source>Extracted</source>
        <translation>Extrait</translation>
    </message>
    <message>
        <source>Loading XML</source>
        <translation>Chargement du XML</translation>
    </message>
    <message>
        <source>Loaded XML</source>
        <translation>XML chargé</translation>
    </message>
    <message>
        <source>Loading grid...</source>
        <translation>Chargement de la grille...</translation>
    </message>
    <message>
        <source>Loaded GRID</source>
        <translation>GRILLE chargée</translation>
    </message>
    <message>
        <source>Loading traces...</source>
        <translation>Chargement des traces...</translation>
    </message>
    <message>
        <source>Loaded TRACES</source>
        <translation>TRACES chargées</translation>
    </message>
    <message>
        <source>Loading palettes...</source>
        <translation>Chargement des palettes...</translation>
    </message>
    <message>
        <source>Loaded PALETTES</source>
        <translation>PALETTES chargées</translation>
    </message>
    <message>
        <source>Tracing rays...</source>
        <translation>Tracé des rais...</translation>
    </message>
</context>
<context>
    <name>talvesk::progressTomographyDialog</name>
    <message>
        <source>Tomography inversion</source>
        <translation>Inversion tomographique</translation>
    </message>
    <message>
        <source>Ends the inversion after the external iteration under way and keeps what it has reached</source>
        <translation>Termine l&apos;inversion après l&apos;itération externe en cours et conserve ce qu&apos;elle a atteint</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Completed iteration %1</source>
        <translation>Itération %1 terminée</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Écoulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>pas encore connu</translation>
    </message>
    <message>
        <source>Remaining: %1</source>
        <translation>Restant&#xa0;: %1</translation>
    </message>
    <message>
        <source>Stops when the iteration under way is completed.</source>
        <translation>S&apos;arrêtera à la fin de l&apos;itération en cours.</translation>
    </message>
    <message>
        <source>The models to start from are being traced.</source>
        <translation>Tracé des modèles de départ en cours.</translation>
    </message>
    <message>
        <source>Ends by itself, after %1 iterations at the latest.</source>
        <translation>Se termine de lui-même, après %1 itérations au plus.</translation>
    </message>
    <message>
        <source>Iteration %1: chi-square %2, RMS %3 ms (%4 %)</source>
        <translation>Itération %1&#xa0;: khi-deux %2, RMS %3 ms (%4&#xa0;%)</translation>
    </message>
    <message>
        <source>Stops, with the best section so far.</source>
        <translation>S&apos;arrête, avec la meilleure coupe jusqu&apos;ici.</translation>
    </message>
    <message>
        <source>Another fit, from: %1</source>
        <translation>Autre ajustement, à partir de&#xa0;: %1</translation>
    </message>
    <message>
        <source>Iterations and misfits</source>
        <translation>Itérations et écarts</translation>
    </message>
</context>
<context>
    <name>talvesk::runTomography_Dialog</name>
    <message>
        <source>Run tomography inversion</source>
        <translation>Lancer l&apos;inversion tomographique</translation>
    </message>
    <message>
        <source>Number of external iterations (default =5)</source>
        <translation>Nombre d&apos;itérations externes (par défaut =5)</translation>
    </message>
    <message>
        <source>Number of solver iterations (default =20)</source>
        <translation>Nombre d&apos;itérations du solveur (par défaut =20)</translation>
    </message>
    <message>
        <source>How far the velocities are corrected along the same rays before these are traced anew. More fit the times closer but may overfit noise; fewer keep the model smoother.</source>
        <translation>Jusqu&apos;où les vitesses sont corrigées le long des mêmes rais avant que ceux-ci soient retracés. Plus d&apos;itérations ajustent mieux les temps mais peuvent suivre le bruit&#xa0;; moins d&apos;itérations gardent un modèle plus lisse.</translation>
    </message>
    <message>
        <source>Smoothing parameter (default =5) </source>
        <translation>Paramètre de lissage (par défaut =5) </translation>
    </message>
    <message>
        <source>How many cells to each side are averaged after every external iteration. Larger gives a smoother section that hides small bodies; smaller shows detail and artefacts along rays.</source>
        <translation>Nombre de cellules de chaque côté moyennées après chaque itération externe. Plus grand, il donne une coupe plus lisse qui cache les petits corps&#xa0;; plus petit, il montre les détails et les artefacts le long des rais.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Vitesse minimale [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this. Set it to the slowest ground that you expect.</source>
        <translation>Les cellules ne deviennent jamais plus lentes. Indiquez le terrain le plus lent attendu.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Vitesse maximale [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this. Set it to the fastest rock that you expect.</source>
        <translation>Les cellules ne deviennent jamais plus rapides. Indiquez la roche la plus rapide attendue.</translation>
    </message>
    <message>
        <source>Type of smoothing:</source>
        <translation>Type de lissage&#xa0;:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>Le lissage uniforme moyenne toutes les cellules de la même façon&#xa0;; le linéaire et le gaussien donnent plus de poids aux cellules proches et gardent des contrastes plus nets&#xa0;; celui basé sur les rais remplit d&apos;abord les cellules qu&apos;aucun rai n&apos;a traversées à partir de celles qui l&apos;ont été.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Lissage à poids uniformes</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Lissage à poids linéaires</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Lissage à poids gaussiens</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Lissage basé sur les rais</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Si la case n&apos;est pas cochée, le lissage s&apos;étend verticalement à 0,7 fois sa portée horizontale, ce qui convient à un terrain stratifié. Si elle est cochée, il s&apos;étend autant dans les deux sens, ce qui convient aux corps isolés et aux contacts raides.</translation>
    </message>
    <message>
        <source>Symmetric smoothing</source>
        <translation>Lissage symétrique</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>N&apos;utilise qu&apos;un seul processeur. Le résultat est le même jusqu&apos;au dernier chiffre&#xa0;; cela prend seulement plus de temps.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Exécuter en un seul thread</translation>
    </message>
    <message>
        <source>The minimum is above the maximum: every cell that changes will end at the maximum.</source>
        <translation>Le minimum est supérieur au maximum&#xa0;: chaque cellule modifiée finira au maximum.</translation>
    </message>
    <message>
        <source>Starts from the default model.</source>
        <translation>Part du modèle par défaut.</translation>
    </message>
    <message>
        <source>Starts from the layered model.</source>
        <translation>Part du modèle en couches.</translation>
    </message>
    <message>
        <source>Starts from the result of the last inversion.</source>
        <translation>Part du résultat de la dernière inversion.</translation>
    </message>
    <message>
        <source>Starts from the smoothed result of the last inversion.</source>
        <translation>Part du résultat lissé de la dernière inversion.</translation>
    </message>
    <message>
        <source>Starts from the present velocities of the grid.</source>
        <translation>Part des vitesses actuelles de la grille.</translation>
    </message>
    <message>
        <source>Each external iteration traces the rays anew through the model so far. More of them bend the rays closer to the truth and lower the misfit; the time grows with the number. When the misfit curve has levelled off, more change little. The 5 of the label is enough for a first look; the box itself starts at 10.</source>
        <translation>Chaque itération externe retrace les rais à travers le modèle obtenu jusque-là. Davantage d&apos;itérations courbent les rais plus près de la réalité et réduisent l&apos;écart&#xa0;; le temps croît avec leur nombre. Quand la courbe de l&apos;écart s&apos;est aplatie, de nouvelles itérations changent peu. Le 5 de l&apos;intitulé suffit pour un premier aperçu&#xa0;; le champ lui-même commence à 10.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <source>Solver passes correct the velocities along traced rays and smooth them, as often as is said here. A fit to the picks&apos; errors chooses its own smoothing, ends by itself, and comes as close to the picks as their errors are and no closer.</source>
        <translation>Les passes du solveur corrigent les vitesses le long des rais tracés et les lissent, autant de fois qu&apos;indiqué ici. Un ajustement aux erreurs des pointés choisit son propre lissage, se termine de lui-même et approche les pointés d&apos;aussi près que leurs erreurs le justifient, sans plus.</translation>
    </message>
    <message>
        <source>Solver passes and smoothing</source>
        <translation>Passes du solveur et lissage</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Ajustement aux erreurs des pointés</translation>
    </message>
    <message>
        <source>Lets the smoothing parameter shrink to a fifth over the external iterations, and keeps the iteration whose section fits the picks best along fresh rays, which need not be the last one.</source>
        <translation>Réduit le paramètre de lissage au cinquième au fil des itérations externes, et conserve l&apos;itération dont la coupe s&apos;ajuste le mieux aux pointés le long de nouveaux rais, qui n&apos;est pas forcément la dernière.</translation>
    </message>
    <message>
        <source>From coarse to fine, keeping the best iteration</source>
        <translation>Du grossier au fin, en conservant la meilleure itération</translation>
    </message>
    <message>
        <source>Sets the velocity limits and the smoothing parameter as the picks and the distance between geophones suggest them.</source>
        <translation>Fixe les limites de vitesse et le paramètre de lissage comme le suggèrent les pointés et la distance entre géophones.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Proposer</translation>
    </message>
    <message>
        <source>Rays are expected down to %1; the grid reaches %2.</source>
        <translation>Des rais sont attendus jusqu&apos;à %1 de profondeur&#xa0;; la grille descend à %2.</translation>
    </message>
    <message>
        <source>The minimum velocity must be below the maximum.</source>
        <translation>La vitesse minimale doit être inférieure à la maximale.</translation>
    </message>
</context>
<context>
    <name>talvesk::select_speed_Dialog</name>
    <message>
        <source>Define model velocity</source>
        <translation>Définir le modèle de vitesse</translation>
    </message>
    <message>
        <source>Depths below the ground (m), velocities (m/s)</source>
        <translation>Profondeurs sous le sol (m), vitesses (m/s)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>Splits the last layer at its middle</source>
        <translation>Divise la dernière couche en son milieu</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Removes the layers that are checked or selected</source>
        <translation>Supprime les couches cochées ou sélectionnées</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>The layers make no velocity model.</source>
        <translation>Les couches ne forment pas un modèle de vitesse.</translation>
    </message>
    <message>
        <source>Do you want to put them into the grid all the same?</source>
        <translation>Voulez-vous tout de même les mettre dans la grille&#xa0;?</translation>
    </message>
    <message>
        <source>You have not changed the layers.</source>
        <translation>Vous n&apos;avez pas modifié les couches.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Les résultats de la dernière inversion seront supprimés («&#xa0;Défaire&#xa0;» les rétablit).</translation>
    </message>
    <message>
        <source>In the &amp;grid:</source>
        <translation>Dans la &amp;grille&#xa0;:</translation>
    </message>
    <message>
        <source>How layers become velocities of cells. A spline rounds jumps off and swings beside great ones; sharp layers keep them; graded layers spread every jump evenly over a thickness.</source>
        <translation>Comment les couches deviennent les vitesses des cellules. Une spline arrondit les sauts et oscille à côté des grands&#xa0;; des couches nettes les conservent&#xa0;; des couches graduelles répartissent chaque saut régulièrement sur une épaisseur.</translation>
    </message>
    <message>
        <source>Spline through the layers</source>
        <translation>Spline passant par les couches</translation>
    </message>
    <message>
        <source>Sharp layers</source>
        <translation>Couches nettes</translation>
    </message>
    <message>
        <source>Graded layers</source>
        <translation>Couches graduelles</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Épaisseur d&apos;un saut graduel</translation>
    </message>
    <message>
        <source>Thickness over which a jump between two layers is spread</source>
        <translation>Épaisseur sur laquelle un saut entre deux couches est réparti</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Puts the layers into the grid as they are, without a spline</source>
        <translation>Met les couches dans la grille telles quelles, sans spline</translation>
    </message>
    <message>
        <source>Use &amp;sharp layers</source>
        <translation>Utiliser des couches &amp;nettes</translation>
    </message>
    <message>
        <source>Do you want sharp layers instead? They need no spline.</source>
        <translation>Voulez-vous plutôt des couches nettes&#xa0;? Elles n&apos;ont pas besoin de spline.</translation>
    </message>
</context>
<context>
    <name>talvesk::setGeographyDialog</name>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Coordonnées géographiques</translation>
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
        <translation>Latitude, longitude (WGS84)</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Premier géophone</translation>
    </message>
    <message>
        <source>Easting of the first geophone in metres</source>
        <translation>Coordonnée est du premier géophone en mètres</translation>
    </message>
    <message>
        <source>Northing of the first geophone in metres</source>
        <translation>Coordonnée nord du premier géophone en mètres</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Dernier géophone</translation>
    </message>
    <message>
        <source>Easting of the last geophone in metres</source>
        <translation>Coordonnée est du dernier géophone en mètres</translation>
    </message>
    <message>
        <source>Northing of the last geophone in metres</source>
        <translation>Coordonnée nord du dernier géophone en mètres</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>Code EPSG</translation>
    </message>
    <message>
        <source>EPSG code of the reference system</source>
        <translation>Code EPSG du système de référence</translation>
    </message>
    <message>
        <source>First geophone (at %1)</source>
        <translation>Premier géophone (à %1)</translation>
    </message>
    <message>
        <source>Last geophone (at %1)</source>
        <translation>Dernier géophone (à %1)</translation>
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
        <translation>Il n&apos;existe pas de système de référence avec ce code EPSG.</translation>
    </message>
    <message>
        <source>This system is not projected: it has no easting and northing.</source>
        <translation>Ce système n&apos;est pas projeté&#xa0;: il n&apos;a pas de coordonnées est et nord.</translation>
    </message>
    <message>
        <source>This system does not count in metres. Choose one that does.</source>
        <translation>Ce système n&apos;est pas en mètres. Choisissez-en un en mètres.</translation>
    </message>
    <message>
        <source>This system counts westward or southward. Choose one with easting and northing.</source>
        <translation>Ce système compte vers l&apos;ouest ou vers le sud. Choisissez-en un avec des coordonnées est et nord.</translation>
    </message>
    <message>
        <source>This system cannot be turned into longitude and latitude.</source>
        <translation>Ce système ne peut pas être converti en longitude et latitude.</translation>
    </message>
    <message>
        <source>Enter easting and northing of both geophones, in metres.</source>
        <translation>Saisissez les coordonnées est et nord des deux géophones, en mètres.</translation>
    </message>
    <message>
        <source>Enter the EPSG code of the reference system, for example 32632 for UTM zone 32 N.</source>
        <translation>Saisissez le code EPSG du système de référence, par exemple 32632 pour UTM zone 32 N.</translation>
    </message>
    <message>
        <source>The first and the last geophone have the same coordinates.</source>
        <translation>Le premier et le dernier géophone ont les mêmes coordonnées.</translation>
    </message>
    <message>
        <source>These coordinates lie outside of the reference system.</source>
        <translation>Ces coordonnées sont en dehors du système de référence.</translation>
    </message>
    <message>
        <source>On the map the two geophones are %1 apart</source>
        <translation>Sur la carte, les deux géophones sont distants de %1</translation>
    </message>
    <message>
        <source>%1, along the line %2.</source>
        <comment>distance on the map, distance along the line</comment>
        <translation>%1, le long de la ligne de %2.</translation>
    </message>
    <message>
        <source>Check the coordinates.</source>
        <translation>Vérifiez les coordonnées.</translation>
    </message>
</context>
<context>
    <name>talvesk::setVelocityWidget</name>
    <message>
        <source>Marks the layer for Remove</source>
        <translation>Marque la couche pour «&#xa0;Supprimer&#xa0;»</translation>
    </message>
    <message>
        <source>Initial depth   </source>
        <translation>Profondeur initiale   </translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s top below the ground (m)</source>
        <translation>Profondeur du toit de la couche sous le sol (m)</translation>
    </message>
    <message>
        <source>    Velocity</source>
        <translation>    Vitesse</translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s top (m/s)</source>
        <translation>Vitesse au toit de la couche (m/s)</translation>
    </message>
    <message>
        <source>Final depth</source>
        <translation>Profondeur finale</translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s bottom below the ground (m)</source>
        <translation>Profondeur de la base de la couche sous le sol (m)</translation>
    </message>
    <message>
        <source>    Velocity  </source>
        <translation>    Vitesse  </translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s bottom (m/s)</source>
        <translation>Vitesse à la base de la couche (m/s)</translation>
    </message>
</context>
<context>
    <name>talvesk::smoothingDialog</name>
    <message>
        <source>Apply smoothing</source>
        <translation>Appliquer un lissage</translation>
    </message>
    <message>
        <source>&amp;Type of smoothing:</source>
        <translation>&amp;Type de lissage&#xa0;:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>Le lissage uniforme moyenne toutes les cellules de la même façon&#xa0;; le linéaire et le gaussien donnent plus de poids aux cellules proches et gardent des contrastes plus nets&#xa0;; celui basé sur les rais remplit d&apos;abord les cellules qu&apos;aucun rai n&apos;a traversées à partir de celles qui l&apos;ont été.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Lissage à poids uniformes</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Lissage à poids linéaires</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Lissage à poids gaussiens</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Lissage basé sur les rais</translation>
    </message>
    <message>
        <source>Smoothing &amp;parameter:</source>
        <translation>&amp;Paramètre de lissage&#xa0;:</translation>
    </message>
    <message>
        <source>How many cells to each side are averaged. Larger gives a smoother section that hides small bodies.</source>
        <translation>Nombre de cellules de chaque côté moyennées. Plus grand, il donne une coupe plus lisse qui cache les petits corps.</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Si la case n&apos;est pas cochée, le lissage s&apos;étend verticalement à 0,7 fois sa portée horizontale, ce qui convient à un terrain stratifié. Si elle est cochée, il s&apos;étend autant dans les deux sens, ce qui convient aux corps isolés et aux contacts raides.</translation>
    </message>
    <message>
        <source>&amp;Symmetric smoothing</source>
        <translation>Lissage &amp;symétrique</translation>
    </message>
    <message>
        <source>Smooths the velocities of the present grid. Rays and misfit of a result are traced anew through the smoothed section.</source>
        <translation>Lisse les vitesses de la grille actuelle. Les rais d&apos;un résultat sont tracés à nouveau à travers la coupe lissée et son écart est recalculé.</translation>
    </message>
</context>
</TS>
