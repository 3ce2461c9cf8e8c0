<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CommandWords</name>
    <message>
        <source>start over, empty, close survey, clear</source>
        <translation>empezar de cero, vaciar, cerrar levantamiento, campaña nueva, limpiar</translation>
    </message>
    <message>
        <source>load recordings, seismograms, records, raw data, gathers, seg2, segy</source>
        <translation>cargar registros, sismogramas, datos brutos, datos crudos, tiros, golpes, seg2, segy</translation>
    </message>
    <message>
        <source>file headers, metadata, sampling rate, sample interval</source>
        <translation>cabeceras, metadatos, frecuencia de muestreo, tasa de muestreo, formato</translation>
    </message>
    <message>
        <source>metadata, channels, trace table</source>
        <translation>metadatos, canales, headers, encabezados, tabla de trazas</translation>
    </message>
    <message>
        <source>trigger, pretrigger, time zero, t0, recording delay</source>
        <translation>trigger, pretrigger, tiempo cero, t0, retardo del registro, instante del golpe</translation>
    </message>
    <message>
        <source>trigger shift, time correction, static, reverse channels</source>
        <translation>trigger, error de disparo, corrección de tiempo, estáticas, invertir canales, reparar, arreglar</translation>
    </message>
    <message>
        <source>delete shot, discard recording</source>
        <translation>eliminar disparo, borrar tiro, descartar registro, suprimir golpe</translation>
    </message>
    <message>
        <source>convert, seg2, segy</source>
        <translation>convertir, guardar trazas, sismogramas, seg2, segy, sgy</translation>
    </message>
    <message>
        <source>geophone positions, receivers, source positions, shot points, spacing, spread, layout, elevations, topography, coordinates</source>
        <translation>ubicación de geófonos, receptores, fuentes, puntos de tiro, puntos de disparo, espaciamiento, separación, tendido, dispositivo, cotas, elevaciones, topografía, coordenadas</translation>
    </message>
    <message>
        <source>gps, gnss, total station, easting northing, longitude latitude, utm, topography, elevations, geophone positions</source>
        <translation>gps, gnss, estación total, taquímetro, este norte, longitud latitud, utm, topografía, cotas, elevaciones, ubicación de geófonos</translation>
    </message>
    <message>
        <source>map position, easting northing, utm, epsg, georeference, reference system</source>
        <translation>posición, ubicación, este norte, utm, epsg, georreferenciar, sistema de referencia, datum</translation>
    </message>
    <message>
        <source>band pass, bandpass, low pass, high pass, lowpass, highpass, frequencies</source>
        <translation>paso banda, pasa banda, pasabanda, pasobanda, paso bajo, pasa bajo, pasabajos, paso alto, pasa alto, pasaaltos, frecuencias</translation>
    </message>
    <message>
        <source>mains, power line noise, hertz</source>
        <translation>filtro de muesca, rechazo de banda, ruido de red, línea eléctrica, tendido eléctrico, hercios, Hertz</translation>
    </message>
    <message>
        <source>f-k, fk, fan filter, dip filter, ground roll, surface waves</source>
        <translation>f-k, fk, filtro de abanico, filtro de buzamiento, ground roll, ondas superficiales, onda aérea, pendiente</translation>
    </message>
    <message>
        <source>balance, normalise, normalize, level</source>
        <translation>normalizar, equilibrar, balancear, CAG, nivelar, ecualizar</translation>
    </message>
    <message>
        <source>denoise, suppress noise</source>
        <translation>eliminar ruido, suprimir ruido, limpiar, relación señal ruido</translation>
    </message>
    <message>
        <source>reduction velocity, reduced travel times, linear moveout, flatten</source>
        <translation>velocidad de reducción, tiempos reducidos, linear moveout, LMO, aplanar, horizontalizar</translation>
    </message>
    <message>
        <source>reduction velocity, reducing velocity, linear moveout, flatten</source>
        <translation>velocidad de reducción, velocidad reductora, linear moveout, LMO, aplanar, horizontalizar</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, amplify</source>
        <translation>tn, t^n, recuperación de amplitud, divergencia esférica, expansión geométrica, amplificar, TVG</translation>
    </message>
    <message>
        <source>tn, t^n, amplitude recovery, spreading, power</source>
        <translation>tn, t^n, recuperación de amplitud, divergencia esférica, expansión geométrica, TVG</translation>
    </message>
    <message>
        <source>sort traces, common shot, distance</source>
        <translation>offset, ordenar trazas, disparo común, tiro común, alejamiento</translation>
    </message>
    <message>
        <source>sort traces, distance</source>
        <translation>offset, ordenar trazas, alejamiento</translation>
    </message>
    <message>
        <source>dead, bad, noisy traces, disable, delete, zero</source>
        <translation>muertas, malas, ruidosas, desactivar, eliminar, borrar, excluir, cero, kill</translation>
    </message>
    <message>
        <source>flip, invert, sign, phase</source>
        <translation>voltear, dar la vuelta, fase, cambio de polaridad, signo contrario</translation>
    </message>
    <message>
        <source>silence, blank, cut noise</source>
        <translation>mute, enmudecer, blanquear, cortar ruido, recortar, borrar</translation>
    </message>
    <message>
        <source>gain, scale, louder</source>
        <translation>ganancia, escalar, más fuerte, realzar</translation>
    </message>
    <message>
        <source>gain, scale, quieter</source>
        <translation>ganancia, escalar, más débil, bajar</translation>
    </message>
    <message>
        <source>shear waves, SH, opposite blows, hammer, subtract, stack</source>
        <translation>ondas de cizalla, ondas transversales, SH, golpes opuestos, martillo, maza, restar, apilar, stack, comparar</translation>
    </message>
    <message>
        <source>gathers, record section, plot</source>
        <translation>sismogramas, montaje de trazas, sección de registros, trazar, figura, lámina</translation>
    </message>
    <message>
        <source>measure, slope</source>
        <translation>medir, pendiente, inclinación</translation>
    </message>
    <message>
        <source>loupe, lens</source>
        <translation>lente, aumentar, ampliar</translation>
    </message>
    <message>
        <source>zoom all, fit, whole shot</source>
        <translation>ver todo, ajustar a la ventana, encajar, disparo completo, zoom</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, onsets, automatic picking, picker</source>
        <translation>primeros quiebres, primeros arribos, primeras rupturas, primeras entradas, picado automático, picking</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, by hand, manual picking</source>
        <translation>primeras llegadas, primeros quiebres, primeros arribos, picar a mano, picado manual, picking, marcar</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, load picks, time picks</source>
        <translation>primeras llegadas, primeros quiebres, primeros arribos, abrir picados, leer tiempos, picking</translation>
    </message>
    <message>
        <source>first breaks, first arrivals, save picks, time picks</source>
        <translation>primeras llegadas, primeros quiebres, primeros arribos, guardar picados, picking</translation>
    </message>
    <message>
        <source>review, check picks, outliers, bad picks, quality</source>
        <translation>repasar, revisar picados, valores atípicos, picados malos, erróneos, calidad</translation>
    </message>
    <message>
        <source>quality control, qc, doctor, bad traces, dead traces, wrong headers</source>
        <translation>control de calidad, qc, diagnóstico, comprobar, trazas malas, trazas muertas, cabeceras erróneas</translation>
    </message>
    <message>
        <source>reciprocal times, reverse shots, trigger errors, quality control, qc</source>
        <translation>tiempos recíprocos, tiro directo e inverso, contratiro, disparos inversos, errores de trigger, control de calidad, qc</translation>
    </message>
    <message>
        <source>mesh, cell size, discretisation, depth</source>
        <translation>mallado, grilla, retícula, tamaño de celda, discretización, profundidad</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model, gradient</source>
        <translation>modelo inicial, modelo de partida, gradiente</translation>
    </message>
    <message>
        <source>starting model, initial model, velocity model</source>
        <translation>modelo de partida, modelo de velocidad, perfil de refracción</translation>
    </message>
    <message>
        <source>wells, drilling, constraints, a priori, soundings</source>
        <translation>pozos, perforaciones, barrenos, calicatas, restricciones, a priori, información previa</translation>
    </message>
    <message>
        <source>invert, calculate, iterations, velocity model, sirt, start inversion</source>
        <translation>calcular, iteraciones, modelo de velocidad, sirt, iniciar inversión, lanzar, tomografía sísmica</translation>
    </message>
    <message>
        <source>history, earlier results, compare models</source>
        <translation>historial, resultados anteriores, comparar modelos</translation>
    </message>
    <message>
        <source>chi-square, chi2, misfit, quality of the inversion</source>
        <translation>chi cuadrado, chi2, desajuste, ajuste, calidad de la inversión</translation>
    </message>
    <message>
        <source>misfit, rms, errors of the fit, measured and computed times</source>
        <translation>desajuste, rms, errores del ajuste, discrepancia, tiempos medidos y calculados, observados</translation>
    </message>
    <message>
        <source>uncertainty, ensemble, standard deviation, confidence</source>
        <translation>incertidumbre, conjunto de modelos, desviación estándar, desviación típica, confianza, fiabilidad</translation>
    </message>
    <message>
        <source>checkerboard, chequerboard, spike test, sensitivity</source>
        <translation>tablero de ajedrez, damero, checkerboard, test de picos, sensibilidad</translation>
    </message>
    <message>
        <source>smoother model, average</source>
        <translation>alisar, modelo más suave, promediar, filtrar</translation>
    </message>
    <message>
        <source>refractors, layered model, plus minus, delay times, intercept times, grm, time depth</source>
        <translation>refractores, modelo de capas, más menos, plus minus, tiempos de retardo, tiempos de intercepción, dromocronas, grm, tiempo profundidad, Hagedoorn</translation>
    </message>
    <message>
        <source>shear modulus, Young, elastic, stiffness</source>
        <translation>módulo de corte, módulo de cizalla, módulo de rigidez, Young, elástico, constantes elásticas, rigidez</translation>
    </message>
    <message>
        <source>ray paths, ray tracing</source>
        <translation>trayectorias, trazado de rayos, recorrido</translation>
    </message>
    <message>
        <source>ray coverage, hit count</source>
        <translation>cobertura de rayos, número de rayos, hit count, recubrimiento</translation>
    </message>
    <message>
        <source>isolines, isovalues</source>
        <translation>curvas de nivel, contornos, isovalores, isovelocidades</translation>
    </message>
    <message>
        <source>contour, groundwater, bedrock</source>
        <translation>contorno, agua subterránea, sustrato rocoso, roca firme, basamento</translation>
    </message>
    <message>
        <source>labels, lithology, geology, polygons, legend</source>
        <translation>etiquetas, rótulos, litología, geología, polígonos, leyenda, comentarios, notas</translation>
    </message>
    <message>
        <source>velocity depth function, 1-D, 1d, log</source>
        <translation>función velocidad profundidad, 1-D, 1d, diagrafía, log, sondeo virtual</translation>
    </message>
    <message>
        <source>3-D, 3d, fence diagram, crossing lines</source>
        <translation>3-D, 3d, diagrama de vallas, diagrama de cercas, fence, líneas cruzadas, perfiles cruzados</translation>
    </message>
    <message>
        <source>colour scale, colors, colormap, range, legend</source>
        <translation>escala de color, gama, mapa de colores, rango, leyenda, colormap</translation>
    </message>
    <message>
        <source>colour bar, color bar, legend</source>
        <translation>leyenda, barra de escala, colores, colorbar</translation>
    </message>
    <message>
        <source>template, look, appearance</source>
        <translation>plantilla, apariencia, formato, presentación</translation>
    </message>
    <message>
        <source>plot, printer, page, a3, a4</source>
        <translation>plotear, impresora, hoja, página, a3, a4, plano</translation>
    </message>
    <message>
        <source>figures, png, svg, save picture</source>
        <translation>figuras, png, svg, guardar imagen, gráficos</translation>
    </message>
    <message>
        <source>document</source>
        <translation>documento, memoria</translation>
    </message>
    <message>
        <source>word processor, editable report</source>
        <translation>procesador de textos, memoria, informe editable, Word, LibreOffice</translation>
    </message>
    <message>
        <source>html, interactive report</source>
        <translation>html, informe interactivo</translation>
    </message>
    <message>
        <source>html, several lines, report</source>
        <translation>html, varias líneas, varios perfiles, informe, resumen</translation>
    </message>
    <message>
        <source>cad, contours</source>
        <translation>autocad, contornos, curvas de nivel, plano, exportar</translation>
    </message>
    <message>
        <source>gis, shape file, gpkg</source>
        <translation>sig, gis, shapefile, qgis, gpkg, cartografía</translation>
    </message>
    <message>
        <source>gis, 3-D, 3d, georeferenced</source>
        <translation>sig, gis, 3-D, 3d, georreferenciada, vtu</translation>
    </message>
    <message>
        <source>xyz, ascii, velocities</source>
        <translation>xyz, ascii, txt, velocidades</translation>
    </message>
    <message>
        <source>ascii, velocities, section</source>
        <translation>ascii, xyz, txt, velocidades, sección</translation>
    </message>
    <message>
        <source>preferences, feet, metres, units, memory, undo</source>
        <translation>preferencias, ajustes, opciones del programa, pies, metros, unidades, memoria, deshacer</translation>
    </message>
    <message>
        <source>manual, handbook, documentation, help</source>
        <translation>manual, instrucciones, documentación, ayuda, tutorial</translation>
    </message>
    <message>
        <source>manual, handbook, documentation</source>
        <translation>manual, instrucciones, documentación</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>talvesk::AnnotationsDialog</name>
    <message>
        <source>Annotations</source>
        <translation>Anotaciones</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground that are drawn on the section. They can be drawn with the mouse as well: Draw, above the section.</source>
        <translation>Textos, líneas y áreas de terreno que se dibujan en la sección. También se pueden dibujar con el ratón: Dibujar, encima de la sección.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>Add a text in the middle of the section</source>
        <translation>Añade un texto en el centro de la sección</translation>
    </message>
    <message>
        <source>Add &amp;text</source>
        <translation>Añadir &amp;texto</translation>
    </message>
    <message>
        <source>Add a line in the middle of the section</source>
        <translation>Añade una línea en el centro de la sección</translation>
    </message>
    <message>
        <source>Add &amp;line</source>
        <translation>Añadir &amp;línea</translation>
    </message>
    <message>
        <source>Add an area in the middle of the section</source>
        <translation>Añade un área en el centro de la sección</translation>
    </message>
    <message>
        <source>Add &amp;polygon</source>
        <translation>Añadir &amp;polígono</translation>
    </message>
    <message>
        <source>Remove the annotation that is selected</source>
        <translation>Quita la anotación seleccionada</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Let those after it be drawn over it</source>
        <translation>Hace que las siguientes se dibujen encima de ella</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Points of the annotation that is selected</source>
        <translation>Puntos de la anotación seleccionada</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Distancia [m]</translation>
    </message>
    <message>
        <source>Elevation [m]</source>
        <translation>Cota [m]</translation>
    </message>
    <message>
        <source>Add a point behind the one that is selected</source>
        <translation>Añade un punto detrás del seleccionado</translation>
    </message>
    <message>
        <source>Add p&amp;oint</source>
        <translation>Añadir p&amp;unto</translation>
    </message>
    <message>
        <source>Remove the point that is selected</source>
        <translation>Quita el punto seleccionado</translation>
    </message>
    <message>
        <source>Remove po&amp;int</source>
        <translation>Quitar pu&amp;nto</translation>
    </message>
    <message>
        <source>Annotations: %1.</source>
        <translation>Anotaciones: %1.</translation>
    </message>
    <message>
        <source>Discard what was changed?</source>
        <translation>¿Descartar los cambios?</translation>
    </message>
</context>
<context>
    <name>talvesk::BlowPairDialog</name>
    <message>
        <source>Two shots</source>
        <translation>Dos disparos</translation>
    </message>
    <message>
        <source>&amp;First:</source>
        <translation>&amp;Primero:</translation>
    </message>
    <message>
        <source>The recording that time and places are counted by</source>
        <translation>El registro según el que se cuentan tiempos y lugares</translation>
    </message>
    <message>
        <source>S&amp;econd:</source>
        <translation>S&amp;egundo:</translation>
    </message>
    <message>
        <source>The recording that is laid over it; the nearest is proposed</source>
        <translation>El registro que se le superpone; se propone el más cercano</translation>
    </message>
    <message>
        <source>The traces of both over each other</source>
        <translation>Las trazas de ambos, superpuestas</translation>
    </message>
    <message>
        <source>&amp;Overlaid</source>
        <translation>&amp;Superpuestas</translation>
    </message>
    <message>
        <source>First less second: of blows of opposite sense it enhances S waves</source>
        <translation>Primero menos segundo: con golpes de sentido opuesto realza las ondas S</translation>
    </message>
    <message>
        <source>&amp;Difference</source>
        <translation>&amp;Diferencia</translation>
    </message>
    <message>
        <source>Of blows of opposite sense it enhances P waves</source>
        <translation>Con golpes de sentido opuesto realza las ondas P</translation>
    </message>
    <message>
        <source>S&amp;um</source>
        <translation>S&amp;uma</translation>
    </message>
    <message>
        <source>The second is made as strong as the first</source>
        <translation>El segundo se iguala en intensidad al primero</translation>
    </message>
    <message>
        <source>E&amp;qual strength</source>
        <translation>&amp;Igual intensidad</translation>
    </message>
    <message>
        <source>All traces by one measure; else each pair of traces by the larger of both</source>
        <translation>Todas las trazas con una misma medida; si no, cada par de trazas según la mayor de las dos</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>&amp;Amplitudes reales</translation>
    </message>
    <message>
        <source>The filtered copies of traces that have one</source>
        <translation>Las copias filtradas de las trazas que la tienen</translation>
    </message>
    <message>
        <source>Filtered co&amp;pies</source>
        <translation>Copias &amp;filtradas</translation>
    </message>
    <message>
        <source>Mark the first breaks of both, each in its colour</source>
        <translation>Marca las primeras llegadas de ambos, cada una con su color</translation>
    </message>
    <message>
        <source>Pic&amp;ks</source>
        <translation>Pi&amp;cados</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Ganancia:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Amplitud del valor mayor, en distancias entre trazas</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>&amp;Tiempos hasta:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Dónde termina el eje de tiempos; automático: a una vez y media el tiempo del último picado</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automático</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>What is added or saved</source>
        <translation>Qué se añade o se guarda</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>As a shot of the survey, without picks, at the place of the first; Undo takes it away</source>
        <translation>Como disparo del levantamiento, sin picados, en el lugar del primero; Deshacer lo quita</translation>
    </message>
    <message>
        <source>Add to su&amp;rvey</source>
        <translation>Añadi&amp;r al levantamiento</translation>
    </message>
    <message>
        <source>As SEG-2 or SEG-Y</source>
        <translation>Como SEG-2 o SEG-Y</translation>
    </message>
    <message>
        <source>Save s&amp;hot file ...</source>
        <translation>Guardar arc&amp;hivo de disparo ...</translation>
    </message>
    <message>
        <source>What is shown, as PNG, SVG or PDF</source>
        <translation>Lo que se muestra, como PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>Guardar i&amp;magen ...</translation>
    </message>
    <message>
        <source>Traces of both shots, their difference and their sum</source>
        <translation>Trazas de ambos disparos, su diferencia y su suma</translation>
    </message>
    <message>
        <source>one sense</source>
        <comment>of a pair of blows</comment>
        <translation>un sentido</translation>
    </message>
    <message>
        <source>other sense</source>
        <comment>of a pair of blows</comment>
        <translation>el otro sentido</translation>
    </message>
    <message>
        <source>at %1 %2</source>
        <comment>place, unit</comment>
        <translation>en %1 %2</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <translation>Disparo %1: %2</translation>
    </message>
    <message>
        <source>There are no two recordings to be compared.</source>
        <translation>No hay dos registros que comparar.</translation>
    </message>
    <message>
        <source>Not to be added, only saved as a shot file: %1</source>
        <translation>No se puede añadir, solo guardar como archivo de disparo: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignDialog</name>
    <message>
        <source>Campaign page</source>
        <translation>Página de campaña</translation>
    </message>
    <message>
        <source>A web page of every project, and one on all of them: a table, the sections in small by one scale of colours, and a map. The projects stay as they are.</source>
        <translation>Una página web de cada proyecto y una de todos: una tabla, las secciones en pequeño con una misma escala de colores y un mapa. Los proyectos quedan como están.</translation>
    </message>
    <message>
        <source>&amp;Projects:</source>
        <translation>&amp;Proyectos:</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>&amp;Añadir proyectos ...</translation>
    </message>
    <message>
        <source>Take the projects that are selected off the list; their files stay</source>
        <translation>Quita de la lista los proyectos seleccionados; sus archivos se mantienen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Cliente:</translation>
    </message>
    <message>
        <source>S&amp;ite:</source>
        <translation>&amp;Emplazamiento:</translation>
    </message>
    <message>
        <source>A&amp;uthor:</source>
        <translation>A&amp;utor:</translation>
    </message>
</context>
<context>
    <name>talvesk::CampaignPage</name>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>Desajuste RMS [ms]</translation>
    </message>
    <message>
        <source>RMS misfit [%]</source>
        <translation>Desajuste RMS [%]</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi cuadrado</translation>
    </message>
    <message>
        <source>Length covered [%1]</source>
        <translation>Longitud cubierta [%1]</translation>
    </message>
    <message>
        <source>Depth reached [%1]</source>
        <translation>Profundidad alcanzada [%1]</translation>
    </message>
    <message>
        <source>Cells with rays [%]</source>
        <translation>Celdas con rayos [%]</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geófonos</translation>
    </message>
    <message>
        <source>Not inverted yet</source>
        <translation>Aún sin invertir</translation>
    </message>
    <message>
        <source>The misfit of the section is not known</source>
        <translation>No se conoce el desajuste de la sección</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion</source>
        <translation>Los picados han cambiado desde la inversión</translation>
    </message>
    <message>
        <source>Smoothed after the inversion</source>
        <translation>Suavizada después de la inversión</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Modo oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Modo claro</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Emplazamiento</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Lines: %1; with a section: %2; failed: %3</source>
        <translation>Líneas: %1; con sección: %2; fallidas: %3</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Velocidad [%1]</translation>
    </message>
    <message>
        <source>Small sections are stretched to fill their place; their colours are the same for all lines. Misfits are those of the sections shown, along fresh rays.</source>
        <translation>Las secciones pequeñas se estiran para llenar su sitio; sus colores son los mismos en todas las líneas. Los desajustes son los de las secciones mostradas, con rayos recalculados.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Picados utilizados</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Fecha de inversión</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Failed:</source>
        <translation>Fallidas:</translation>
    </message>
    <message>
        <source>Velocity section of %1</source>
        <translation>Sección de velocidades de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Map of the lines</source>
        <translation>Mapa de las líneas</translation>
    </message>
    <message>
        <source>Numbers are those of the table; each stands at the first geophone of its line.</source>
        <translation>Los números son los de la tabla; cada uno está en el primer geófono de su línea.</translation>
    </message>
    <message>
        <source>Lines whose position is not known: %1</source>
        <translation>Líneas cuya posición no se conoce: %1</translation>
    </message>
    <message>
        <source>Campaign</source>
        <translation>Campaña</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Saltar al contenido</translation>
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
        <translation>Certeza</translation>
    </message>
    <message>
        <source>Many sections explain the picks as well as the one that is shown. Each member is fitted to picks that are moved by their errors, from another model that explains them. Where the members agree the section is sure.</source>
        <translation>Muchas secciones explican los picados tan bien como la que se muestra. Cada miembro se ajusta a picados desplazados según sus errores, partiendo de otro modelo que los explica. Donde los miembros coinciden, la sección es fiable.</translation>
    </message>
    <message>
        <source>&amp;Members:</source>
        <translation>&amp;Miembros:</translation>
    </message>
    <message>
        <source>How many sections are compared. More of them tell the spread more exactly and take longer.</source>
        <translation>Cuántas secciones se comparan. Con más, la dispersión se conoce con más exactitud y se tarda más.</translation>
    </message>
    <message>
        <source>S&amp;eed:</source>
        <translation>S&amp;emilla:</translation>
    </message>
    <message>
        <source>The number that the errors of all members come from. The same survey and seed give the same members.</source>
        <translation>El número del que salen los errores de todos los miembros. El mismo levantamiento y la misma semilla dan los mismos miembros.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Models are being tried.</source>
        <translation>Se están probando los modelos.</translation>
    </message>
    <message>
        <source>Models are being tried: %1 of %2.</source>
        <translation>Se están probando los modelos: %1 de %2.</translation>
    </message>
    <message>
        <source>%1 of %2 members are done; %3 left out.</source>
        <translation>%1 de %2 miembros terminados; %3 excluidos.</translation>
    </message>
    <message>
        <source>How sure the section is stays unknown.</source>
        <translation>La certeza de la sección sigue sin conocerse.</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>C&amp;ontinuar</translation>
    </message>
    <message numerus="yes">
        <source>%n member(s) of this seed are done; Continue goes on with more.</source>
        <translation>
            <numerusform>%n miembro de esta semilla terminado; Continuar añade más.</numerusform>
            <numerusform>%n miembros de esta semilla terminados; Continuar añade más.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped with %n member(s); Continue goes on from there.</source>
        <translation>
            <numerusform>Detenido con %n miembro; Continuar sigue desde ahí.</numerusform>
            <numerusform>Detenido con %n miembros; Continuar sigue desde ahí.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped before the first member was done; Continue goes on.</source>
        <translation>Detenido antes de terminar el primer miembro; Continuar sigue desde ahí.</translation>
    </message>
</context>
<context>
    <name>talvesk::CheckDialog</name>
    <message>
        <source>Check recordings</source>
        <translation>Revisar registros</translation>
    </message>
    <message>
        <source>The recordings are being looked at...</source>
        <translation>Se están examinando los registros...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>What is doubtful</source>
        <translation>Lo que es dudoso</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Trazas</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Dudoso</translation>
    </message>
    <message>
        <source>Sure</source>
        <translation>Certeza</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Propuesta</translation>
    </message>
    <message>
        <source>What is doubtful, and why</source>
        <translation>Qué es dudoso y por qué</translation>
    </message>
    <message>
        <source>The figure of the proposal, to be altered</source>
        <translation>El valor de la propuesta, que se puede cambiar</translation>
    </message>
    <message>
        <source>The shot comes into view in the window; a double click on its line does the same</source>
        <translation>Muestra el disparo en la ventana; un doble clic en su fila hace lo mismo</translation>
    </message>
    <message>
        <source>&amp;Show traces</source>
        <translation>&amp;Mostrar trazas</translation>
    </message>
    <message>
        <source>The record was &amp;late by:</source>
        <translation>&amp;Retraso del registro:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Muted before:</source>
        <translation>&amp;Silenciadas antes de:</translation>
    </message>
    <message>
        <source>The shot is &amp;at:</source>
        <translation>&amp;Posición del disparo:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>share</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Carry &amp;out</source>
        <translation>Ap&amp;licar</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Distancia (m)</translation>
    </message>
    <message>
        <source>Time, ms</source>
        <translation>Tiempo, ms</translation>
    </message>
    <message>
        <source>There are no times to draw.</source>
        <translation>No hay tiempos que dibujar.</translation>
    </message>
    <message>
        <source>Nothing is doubtful.</source>
        <translation>No hay nada dudoso.</translation>
    </message>
    <message>
        <source>Nothing was found so far.</source>
        <translation>Hasta ahora no se ha encontrado nada.</translation>
    </message>
    <message>
        <source>Carried out when it is ticked; the space bar does it, too</source>
        <translation>Se aplica si está marcada; también se marca con la barra espaciadora</translation>
    </message>
    <message>
        <source>all</source>
        <comment>shots</comment>
        <translation>todos</translation>
    </message>
    <message>
        <source>all</source>
        <comment>traces</comment>
        <translation>todas</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medidos</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperados</translation>
    </message>
    <message>
        <source>The check was stopped: not all shots were looked at.</source>
        <translation>La revisión se ha detenido: no se han examinado todos los disparos.</translation>
    </message>
    <message>
        <source>Findings: %1, with a proposal: %2, ticked to be carried out: %3. What was recorded is kept, and Undo takes everything back.</source>
        <translation>Hallazgos: %1, con propuesta: %2, marcados para aplicar: %3. Lo registrado se conserva, y Deshacer lo revierte todo.</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorField</name>
    <message>
        <source>Choose another colour</source>
        <translation>Elegir otro color</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Color %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
</context>
<context>
    <name>talvesk::ColorPaletteWidget</name>
    <message>
        <source>Handles of the gradient</source>
        <translation>Cursores del degradado</translation>
    </message>
    <message>
        <source>Drag a handle; double-click it for its colour.
Keys: Left and Right move the selected handle (with Ctrl by one), Up and Down select another, Space asks for its colour, Insert adds and Delete removes one.</source>
        <translation>Arrastre un cursor; haga doble clic en él para elegir su color.
Teclas: Izquierda y Derecha mueven el cursor seleccionado (con Ctrl, de uno en uno), Arriba y Abajo seleccionan otro, Espacio pide el color, Insert añade uno y Supr lo quita.</translation>
    </message>
    <message>
        <source>Number of the handle that the value, the colour and Delete are for</source>
        <translation>Número del cursor al que se refieren el valor, el color y Supr</translation>
    </message>
    <message>
        <source>Where on the scale the selected handle stands</source>
        <translation>Posición del cursor seleccionado en la escala</translation>
    </message>
    <message>
        <source>Value shown in the first colour, and below it</source>
        <translation>Valor que se muestra con el primer color, como los inferiores</translation>
    </message>
    <message>
        <source>Value shown in the last colour, and above it</source>
        <translation>Valor que se muestra con el último color, como los superiores</translation>
    </message>
    <message>
        <source>Add Slider</source>
        <translation>Añadir cursor</translation>
    </message>
    <message>
        <source>Add a handle between the selected one and the next, in the colour of that place</source>
        <translation>Añade un cursor entre el seleccionado y el siguiente, con el color de ese punto</translation>
    </message>
    <message>
        <source>Set Selected Slider Color</source>
        <translation>Color del cursor seleccionado</translation>
    </message>
    <message>
        <source>Choose the handle&apos;s colour</source>
        <translation>Elige el color del cursor</translation>
    </message>
    <message>
        <source>Delete Selected Slider</source>
        <translation>Eliminar cursor seleccionado</translation>
    </message>
    <message>
        <source>Remove the selected handle; the first and the last stay</source>
        <translation>Quita el cursor seleccionado; el primero y el último permanecen</translation>
    </message>
    <message>
        <source>Selected Handle</source>
        <translation>Cursor seleccionado</translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Valor: </translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>The colours of a built-in palette stay as they are; Edit Palette makes a copy.</source>
        <translation>Los colores de una paleta predefinida no cambian; Editar paleta crea una copia.</translation>
    </message>
    <message>
        <source>Cannot move handle at mimimum value.</source>
        <translation>No se puede mover el cursor del valor mínimo.</translation>
    </message>
    <message>
        <source>Cannot move handle at maximum value.</source>
        <translation>No se puede mover el cursor del valor máximo.</translation>
    </message>
    <message>
        <source>There is no room for another handle here.</source>
        <translation>Aquí no hay sitio para otro cursor.</translation>
    </message>
    <message>
        <source>The first and the last handle stay.</source>
        <translation>El primer y el último cursor permanecen.</translation>
    </message>
    <message>
        <source>Colour of the selected handle</source>
        <translation>Color del cursor seleccionado</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> de %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandReasons</name>
    <message>
        <source>There are no shots yet.</source>
        <translation>Aún no hay disparos.</translation>
    </message>
    <message>
        <source>There are no recordings yet.</source>
        <translation>Aún no hay registros.</translation>
    </message>
    <message>
        <source>No shot is in view.</source>
        <translation>No hay ningún disparo a la vista.</translation>
    </message>
    <message>
        <source>No shot with traces is in view.</source>
        <translation>No hay ningún disparo con trazas a la vista.</translation>
    </message>
    <message>
        <source>Nothing is mended.</source>
        <translation>No hay nada corregido.</translation>
    </message>
    <message>
        <source>The shot in view has no filtered copy.</source>
        <translation>El disparo a la vista no tiene copia filtrada.</translation>
    </message>
    <message>
        <source>No recording begins before its shot.</source>
        <translation>Ningún registro comienza antes de su disparo.</translation>
    </message>
    <message>
        <source>The selected traces have no picks.</source>
        <translation>Las trazas seleccionadas no tienen picados.</translation>
    </message>
    <message>
        <source>No pick of the selected traces waits for confirmation.</source>
        <translation>Ningún picado de las trazas seleccionadas espera confirmación.</translation>
    </message>
    <message>
        <source>There are no shots yet, or no picks are shown.</source>
        <translation>Aún no hay disparos, o no se muestran los picados.</translation>
    </message>
    <message>
        <source>There is no earlier view.</source>
        <translation>No hay vista anterior.</translation>
    </message>
    <message>
        <source>There is no later view.</source>
        <translation>No hay vista siguiente.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>There is nothing to do again.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>There are no geophones and no shots yet.</source>
        <translation>Aún no hay geófonos ni disparos.</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>No hay nada que guardar.</translation>
    </message>
    <message>
        <source>There is no grid yet.</source>
        <translation>Aún no hay malla.</translation>
    </message>
    <message>
        <source>There is no inversion yet.</source>
        <translation>Aún no hay inversión.</translation>
    </message>
    <message>
        <source>There is no layered profile yet.</source>
        <translation>Aún no hay perfil de capas.</translation>
    </message>
    <message>
        <source>Nothing is known of the ground under the grid.</source>
        <translation>No se conoce nada del terreno bajo la malla.</translation>
    </message>
    <message>
        <source>Nothing is drawn on the section yet.</source>
        <translation>Aún no hay nada dibujado en la sección.</translation>
    </message>
    <message>
        <source>There is no section yet.</source>
        <translation>Aún no hay sección.</translation>
    </message>
    <message>
        <source>There is no line of geophones yet.</source>
        <translation>Aún no hay línea de geófonos.</translation>
    </message>
    <message>
        <source>There is no grid under a line of geophones yet.</source>
        <translation>Aún no hay malla bajo una línea de geófonos.</translation>
    </message>
    <message>
        <source>There is nothing to make pictures of yet.</source>
        <translation>Aún no hay nada de lo que hacer imágenes.</translation>
    </message>
    <message>
        <source>How certain the section is has not been computed.</source>
        <translation>No se ha calculado la certeza de la sección.</translation>
    </message>
    <message>
        <source>It cannot work yet.</source>
        <translation>Aún no está disponible.</translation>
    </message>
</context>
<context>
    <name>talvesk::CommandSearchDialog</name>
    <message>
        <source>Find Command</source>
        <translation>Buscar comando</translation>
    </message>
    <message>
        <source>Words of the command</source>
        <translation>Palabras del comando</translation>
    </message>
    <message>
        <source>Type words of a command</source>
        <translation>Escriba palabras de un comando</translation>
    </message>
    <message>
        <source>Commands found</source>
        <translation>Comandos encontrados</translation>
    </message>
    <message>
        <source>No command has these words.</source>
        <translation>Ningún comando tiene estas palabras.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>why a command cannot work, its menu</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>ahora no: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareLayersDialog</name>
    <message>
        <source>Compare layers with the section</source>
        <translation>Comparar capas con la sección</translation>
    </message>
    <message>
        <source>&amp;Refractor:</source>
        <translation>&amp;Refractor:</translation>
    </message>
    <message>
        <source>The layer that begins at the refractor</source>
        <translation>La capa que empieza en el refractor</translation>
    </message>
    <message>
        <source>In the &amp;section:</source>
        <translation>En la &amp;sección:</translation>
    </message>
    <message>
        <source>What stands for the refractor in the section: the shallowest place where a velocity is reached, or where the logarithm of velocity grows most with depth. Of two refractors the steepest gradient is looked for on their own sides of the middle between both.</source>
        <translation>Qué representa al refractor en la sección: el punto más somero en que se alcanza una velocidad, o aquel en que el logaritmo de la velocidad crece más con la profundidad. Si hay dos refractores, el gradiente máximo de cada uno se busca a su lado del punto medio entre ambos.</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Steepest gradient</source>
        <translation>Gradiente máximo</translation>
    </message>
    <message>
        <source>Velocity that stands for the refractor</source>
        <translation>Velocidad que representa al refractor</translation>
    </message>
    <message>
        <source>Begins with the middle between the velocities of the layers above and below</source>
        <translation>Empieza en el valor medio entre las velocidades de las capas superior e inferior</translation>
    </message>
    <message>
        <source> m/s</source>
        <translation> m/s</translation>
    </message>
    <message>
        <source>Depths of the refractor at the geophones</source>
        <translation>Profundidades del refractor en los geófonos</translation>
    </message>
    <message>
        <source>Depths below the surface; a difference is section less layers</source>
        <translation>Profundidades bajo la superficie; la diferencia es sección menos capas</translation>
    </message>
    <message>
        <source>Distance (m)</source>
        <translation>Distancia (m)</translation>
    </message>
    <message>
        <source>Layers (m)</source>
        <translation>Capas (m)</translation>
    </message>
    <message>
        <source>Section (m)</source>
        <translation>Sección (m)</translation>
    </message>
    <message>
        <source>Difference (m)</source>
        <translation>Diferencia (m)</translation>
    </message>
    <message>
        <source>Save section and lines as PNG, SVG or PDF</source>
        <translation>Guarda la sección y las líneas como PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>Guardar &amp;imagen ...</translation>
    </message>
    <message>
        <source>Save the depths at the geophones as CSV, in metres</source>
        <translation>Guarda las profundidades en los geófonos como CSV, en metros</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Guardar &amp;tabla ...</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Capa %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocida</translation>
    </message>
    <message>
        <source>No geophone has both depths. Another velocity may be reached below the line.</source>
        <translation>Ningún geófono tiene ambas profundidades. Quizá otra velocidad sí se alcance bajo la línea.</translation>
    </message>
    <message>
        <source>Section less layers: %1 on average, RMS %2, at %3 of %4 geophones.</source>
        <translation>Sección menos capas: %1 de media, RMS %2, en %3 de %4 geófonos.</translation>
    </message>
    <message>
        <source>The others lack a depth.</source>
        <translation>A los demás les falta alguna profundidad.</translation>
    </message>
</context>
<context>
    <name>talvesk::CompareRunsDialog</name>
    <message>
        <source>Compare inversion runs</source>
        <translation>Comparar inversiones</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Izquierda:</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Derecha:</translation>
    </message>
    <message>
        <source>Save both sections and their difference as PNG, SVG or PDF</source>
        <translation>Guarda ambas secciones y su diferencia como PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>&amp;Guardar imagen ...</translation>
    </message>
    <message>
        <source>%1 against %2</source>
        <comment>right run, left run</comment>
        <translation>%1 frente a %2</translation>
    </message>
    <message>
        <source>Chi-square %1</source>
        <translation>Chi cuadrado %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms</source>
        <translation>Desajuste RMS %1 ms</translation>
    </message>
    <message>
        <source>their computed times differ by %1 ms RMS</source>
        <translation>sus tiempos calculados difieren en %1 ms RMS</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>run, remarks</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>by errors of %1</source>
        <translation>con errores de %1</translation>
    </message>
    <message>
        <source>by other errors, so these do not compare: %1</source>
        <translation>con otros errores, así que no son comparables: %1</translation>
    </message>
    <message>
        <source>of all picks as they are %1 ms</source>
        <translation>de todos los picados tal como están, %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::DepthProfileDialog</name>
    <message>
        <source>Depth profile</source>
        <translation>Perfil de profundidad</translation>
    </message>
    <message>
        <source>&amp;Distance:</source>
        <translation>&amp;Distancia:</translation>
    </message>
    <message>
        <source>Where along the line the profile stands</source>
        <translation>Lugar de la línea en que está el perfil</translation>
    </message>
    <message>
        <source>Show the ground below the mouse as it moves over the section</source>
        <translation>Muestra el terreno bajo el ratón mientras se mueve por la sección</translation>
    </message>
    <message>
        <source>&amp;Follow the pointer</source>
        <translation>&amp;Seguir el puntero</translation>
    </message>
    <message>
        <source>Save the profile as PNG, SVG or PDF</source>
        <translation>Guarda el perfil como PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>&amp;Guardar imagen ...</translation>
    </message>
    <message>
        <source>Velocity, gradient and certainty against depth</source>
        <translation>Velocidad, gradiente y certeza en función de la profundidad</translation>
    </message>
</context>
<context>
    <name>talvesk::DialogSetGeometry</name>
    <message>
        <source>Set survey geometry - Dialog</source>
        <translation>Geometría del levantamiento</translation>
    </message>
    <message>
        <source>This survey has no shots yet. Open shot files (Ctrl+O) or import travel times first, or add S-wave pairs on the page Shots.</source>
        <translation>Este levantamiento aún no tiene disparos. Abra primero los archivos de disparos (Ctrl+O) o importe tiempos de recorrido, o añada pares de onda S en la página Disparos.</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geófonos</translation>
    </message>
    <message>
        <source>&amp;String:</source>
        <translation>&amp;Tendido:</translation>
    </message>
    <message>
        <source>The geophone string in the table; its geophones are in the order of the channels</source>
        <translation>Tendido de geófonos que muestra la tabla; sus geófonos siguen el orden de los canales</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Add a string without geophones</source>
        <translation>Añade un tendido sin geófonos</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Remove the string in the table</source>
        <translation>Quita el tendido que muestra la tabla</translation>
    </message>
    <message>
        <source>&amp;Copy from</source>
        <translation>&amp;Copiar de</translation>
    </message>
    <message>
        <source>Replace the geophones of this string by those of another one</source>
        <translation>Sustituye los geófonos de este tendido por los de otro</translation>
    </message>
    <message>
        <source>&amp;First (m):</source>
        <translation>&amp;Primero (m):</translation>
    </message>
    <message>
        <source>Distance of the first geophone along the line</source>
        <translation>Distancia del primer geófono a lo largo de la línea</translation>
    </message>
    <message>
        <source>S&amp;pacing (m):</source>
        <translation>&amp;Separación (m):</translation>
    </message>
    <message>
        <source>Distance from one geophone to the next; negative where the channels run backwards</source>
        <translation>Distancia de un geófono al siguiente; negativa si los canales van hacia atrás</translation>
    </message>
    <message>
        <source>C&amp;ount:</source>
        <translation>&amp;Número:</translation>
    </message>
    <message>
        <source>How many geophones the string gets, as a rule the channels of a shot</source>
        <translation>Cuántos geófonos recibe el tendido, por lo general los canales de un disparo</translation>
    </message>
    <message>
        <source>A&amp;utofill</source>
        <translation>A&amp;utorrellenar</translation>
    </message>
    <message>
        <source>Give the string so many geophones, evenly spaced; elevations that are there stay</source>
        <translation>Da al tendido ese número de geófonos, equidistantes; las cotas ya presentes se mantienen</translation>
    </message>
    <message>
        <source>Geophones of the string</source>
        <translation>Geófonos del tendido</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down, Insert adds a row. Elevations in italics were not typed and can be interpolated.</source>
        <translation>Escriba o pegue desde una hoja de cálculo. Intro baja, Supr vacía celdas, Ctrl+D rellena hacia abajo, Insert añade una fila. Las cotas en cursiva no se han escrito y pueden interpolarse.</translation>
    </message>
    <message>
        <source>&amp;Interpolate elevations</source>
        <translation>&amp;Interpolar cotas</translation>
    </message>
    <message>
        <source>Elevations that were not typed follow a line from typed one to typed one; empty those that shall be interpolated</source>
        <translation>Las cotas no escritas siguen una línea de una cota escrita a la siguiente; vacíe las que se deban interpolar</translation>
    </message>
    <message>
        <source>&amp;Load Geometry</source>
        <translation>Car&amp;gar geometría</translation>
    </message>
    <message>
        <source>Read x and elevation of the geophones of this string from a text file, in metres</source>
        <translation>Lee x y cota de los geófonos de este tendido de un archivo de texto, en metros</translation>
    </message>
    <message>
        <source>Sa&amp;ve Geometry</source>
        <translation>Guar&amp;dar geometría</translation>
    </message>
    <message>
        <source>Write x and elevation of the geophones of this string to a text file, in metres</source>
        <translation>Escribe x y cota de los geófonos de este tendido en un archivo de texto, en metros</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>Type, or paste from a spreadsheet. Enter goes down, Delete empties cells, Ctrl+D fills down.</source>
        <translation>Escriba o pegue desde una hoja de cálculo. Intro baja, Supr vacía celdas, Ctrl+D rellena hacia abajo.</translation>
    </message>
    <message>
        <source>Shot in the table</source>
        <translation>Disparo en la tabla</translation>
    </message>
    <message>
        <source>Elevations of shots that were not typed are those of the line between the geophones</source>
        <translation>Las cotas de disparos no escritas son las de la línea entre los geófonos</translation>
    </message>
    <message>
        <source>S-&amp;wave files ...</source>
        <translation>Archivos de &amp;onda S ...</translation>
    </message>
    <message>
        <source>Choose the DX and the SX file that the selected shot is made of</source>
        <translation>Elige el archivo DX y el archivo SX que componen el disparo seleccionado</translation>
    </message>
    <message>
        <source>Add S-wave &amp;pairs ...</source>
        <translation>Añadir &amp;pares de onda S ...</translation>
    </message>
    <message>
        <source>Choose DX files and as many SX files; each pair becomes a shot whose traces are DX minus SX</source>
        <translation>Elige archivos DX y otros tantos SX; cada par se convierte en un disparo cuyas trazas son DX menos SX</translation>
    </message>
    <message>
        <source>&amp;Load Shots Geometry</source>
        <translation>Car&amp;gar geometría de disparos</translation>
    </message>
    <message>
        <source>Read x and elevation of all shots from a text file, in metres</source>
        <translation>Lee x y cota de todos los disparos de un archivo de texto, en metros</translation>
    </message>
    <message>
        <source>Sa&amp;ve Shots Geometry</source>
        <translation>Guar&amp;dar geometría de disparos</translation>
    </message>
    <message>
        <source>Write x and elevation of all shots to a text file, in metres</source>
        <translation>Escribe x y cota de todos los disparos en un archivo de texto, en metros</translation>
    </message>
    <message>
        <source>&amp;To be looked at:</source>
        <translation>Por re&amp;visar:</translation>
    </message>
    <message>
        <source>A click shows the geophones or shots that are meant</source>
        <translation>Un clic muestra los geófonos o disparos afectados</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Take the last step back (Ctrl+Z)</source>
        <translation>Deshace el último cambio (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Do the step again (Ctrl+Shift+Z)</source>
        <translation>Rehace el cambio (Ctrl+Mayús+Z)</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n geophone(s)</source>
        <translation>
            <numerusform>%1: %n geófono</numerusform>
            <numerusform>%1: %n geófonos</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a length in %2.</source>
        <translation>«%1» no es una longitud en %2.</translation>
    </message>
    <message>
        <source>They have no geophones then, until another string is added.</source>
        <translation>Quedarán sin geófonos hasta que se añada otro tendido.</translation>
    </message>
    <message>
        <source>They will use string %1, as it is numbered then.</source>
        <translation>Usarán el tendido %1, según la nueva numeración.</translation>
    </message>
    <message numerus="yes">
        <source>String %1 is used by shot(s) %2. Remove it?</source>
        <translation>
            <numerusform>El tendido %1 lo usa el disparo %2. ¿Quitarlo?</numerusform>
            <numerusform>El tendido %1 lo usan los disparos %2. ¿Quitarlo?</numerusform>
        </translation>
    </message>
    <message>
        <source>All elevations were typed. Empty those that shall be interpolated.</source>
        <translation>Todas las cotas se han escrito. Vacíe las que se deban interpolar.</translation>
    </message>
    <message>
        <source>Type the elevation of one geophone at least.</source>
        <translation>Escriba la cota de al menos un geófono.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) interpolated.</source>
        <translation>
            <numerusform>%n cota interpolada.</numerusform>
            <numerusform>%n cotas interpoladas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the picks of shot(s) %1</source>
        <translation>
            <numerusform>los picados del disparo %1</numerusform>
            <numerusform>los picados de los disparos %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>The geometry is not complete.</source>
        <translation>La geometría no está completa.</translation>
    </message>
    <message>
        <source>The geometry has been edited.</source>
        <translation>La geometría se ha modificado.</translation>
    </message>
    <message>
        <source>Do you want to leave it as it was before?</source>
        <translation>¿Desea dejarla como estaba?</translation>
    </message>
    <message>
        <source>Open Geometry</source>
        <translation>Abrir geometría</translation>
    </message>
    <message>
        <source>Save Geometry</source>
        <translation>Guardar geometría</translation>
    </message>
    <message>
        <source>%1 exists.</source>
        <translation>%1 ya existe.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Geophones Geometry (*csv)</source>
        <translation>Geometría de geófonos (*csv)</translation>
    </message>
    <message>
        <source>Error Message</source>
        <translation>Mensaje de error</translation>
    </message>
    <message>
        <source>Invalid geometry file.</source>
        <translation>Archivo de geometría no válido.</translation>
    </message>
    <message>
        <source>Geophones saved in %1</source>
        <translation>Geófonos guardados en %1</translation>
    </message>
    <message>
        <source>CSV format (*.csv)</source>
        <translation>Formato CSV (*.csv)</translation>
    </message>
    <message>
        <source>Invalid geometry file. </source>
        <translation>Archivo de geometría no válido. </translation>
    </message>
    <message>
        <source>Geophones loaded from %1</source>
        <translation>Geófonos cargados de %1</translation>
    </message>
    <message>
        <source>Invalid shot file. </source>
        <translation>Archivo de disparos no válido. </translation>
    </message>
    <message>
        <source>Shots saved in %1</source>
        <translation>Disparos guardados en %1</translation>
    </message>
    <message>
        <source>Shots loaded from %1</source>
        <translation>Disparos cargados de %1</translation>
    </message>
    <message>
        <source>Open DX File of Shot %1</source>
        <translation>Abrir archivo DX del disparo %1</translation>
    </message>
    <message>
        <source>Open SX File of Shot %1</source>
        <translation>Abrir archivo SX del disparo %1</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Se ha producido un error</translation>
    </message>
    <message>
        <source>The files are not taken as an S-wave pair.</source>
        <translation>Los archivos no se aceptan como par de onda S.</translation>
    </message>
    <message>
        <source>Open DX Files</source>
        <translation>Abrir archivos DX</translation>
    </message>
    <message>
        <source>Open SX Files</source>
        <translation>Abrir archivos SX</translation>
    </message>
    <message>
        <source>There must be as many SX files as DX files.</source>
        <translation>Debe haber tantos archivos SX como archivos DX.</translation>
    </message>
    <message>
        <source>%1 DX files and %2 SX files were chosen.</source>
        <translation>Se han elegido %1 archivos DX y %2 archivos SX.</translation>
    </message>
    <message>
        <source>No shot was added: the files are not taken as S-wave pairs.</source>
        <translation>No se ha añadido ningún disparo: los archivos no se aceptan como pares de onda S.</translation>
    </message>
    <message numerus="yes">
        <source>%n S-wave shot(s) added.</source>
        <translation>
            <numerusform>%n disparo de onda S añadido.</numerusform>
            <numerusform>%n disparos de onda S añadidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Read with this separator the file has %1 lines of numbers; %2 are needed.</source>
        <translation>Leído con este separador, el archivo tiene %1 líneas de números; se necesitan %2.</translation>
    </message>
    <message>
        <source>Its numbers were cut at their decimal commas: they need points.</source>
        <translation>Sus números se cortaron en la coma decimal: necesitan puntos.</translation>
    </message>
    <message>
        <source>Elevations from table</source>
        <translation>Cotas de una tabla</translation>
    </message>
    <message>
        <source>Give all geophones and shots the elevations of a table of distances and elevations, in metres</source>
        <translation>Da a todos los geófonos y disparos las cotas de una tabla de distancias y cotas, en metros</translation>
    </message>
    <message>
        <source>&amp;Straight from point to point ...</source>
        <translation>&amp;Recta de punto a punto ...</translation>
    </message>
    <message>
        <source>Along a s&amp;mooth curve ...</source>
        <translation>&amp;Curva suave ...</translation>
    </message>
    <message>
        <source>It was read by the names of its columns.</source>
        <translation>Se ha leído por los nombres de sus columnas.</translation>
    </message>
    <message>
        <source>Open Elevations</source>
        <translation>Abrir cotas</translation>
    </message>
    <message>
        <source>Tables of distances and elevations (*.csv *.txt *.dat *.xyz *.tsv);;All Files (*)</source>
        <translation>Tablas de distancias y cotas (*.csv *.txt *.dat *.xyz *.tsv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The elevations have not been taken.</source>
        <translation>No se han tomado las cotas.</translation>
    </message>
    <message numerus="yes">
        <source>%n elevation(s) taken from the table.</source>
        <translation>
            <numerusform>%n cota tomada de la tabla.</numerusform>
            <numerusform>%n cotas tomadas de la tabla.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) lie beyond its ends, %1 to %2, and got the elevation there.</source>
        <translation>
            <numerusform>%n posición queda más allá de sus extremos, de %1 a %2, y ha recibido la cota de allí.</numerusform>
            <numerusform>%n posiciones quedan más allá de sus extremos, de %1 a %2, y han recibido la cota de allí.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::DrawingDialog</name>
    <message>
        <source>Lines to be exported</source>
        <translation>Líneas que se exportan</translation>
    </message>
    <message>
        <source>&amp;Isolines of velocity:</source>
        <translation>&amp;Isolíneas de velocidad:</translation>
    </message>
    <message>
        <source>Velocities with blanks between them; each becomes lines through the section</source>
        <translation>Velocidades separadas por espacios; cada una da líneas en la sección</translation>
    </message>
    <message>
        <source>&amp;Distance along the line and elevation</source>
        <translation>&amp;Distancia a lo largo de la línea y cota</translation>
    </message>
    <message>
        <source>A flat drawing: x is the distance along the line, y the elevation, in metres</source>
        <translation>Un dibujo plano: x es la distancia a lo largo de la línea, y la cota, en metros</translation>
    </message>
    <message>
        <source>&amp;Easting, northing and elevation on the map</source>
        <translation>&amp;Este, norte y cota en el mapa</translation>
    </message>
    <message>
        <source>Lines in space by the geographic coordinates of the line, in metres</source>
        <translation>Líneas en el espacio según las coordenadas geográficas de la línea, en metros</translation>
    </message>
    <message>
        <source>There is no section yet, and so there are no isolines.</source>
        <translation>Aún no hay sección y, por tanto, no hay isolíneas.</translation>
    </message>
    <message>
        <source>The line has no place on the map. Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>La línea no tiene lugar en el mapa. Indíquelo con Proyecto &gt; Definir coordenadas geográficas ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a velocity.</source>
        <translation>«%1» no es una velocidad.</translation>
    </message>
    <message>
        <source>A section has %1 isovalues at most.</source>
        <translation>Una sección tiene %1 isovalores como máximo.</translation>
    </message>
</context>
<context>
    <name>talvesk::ElasticDialog</name>
    <message>
        <source>P and S together</source>
        <translation>P y S juntas</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Ondas:</translation>
    </message>
    <message>
        <source>Which of the two projects is of P waves and which of S waves. The program guesses it from the recordings, else from the velocities.</source>
        <translation>Cuál de los dos proyectos es de ondas P y cuál de ondas S. El programa lo deduce de los registros o, si no, de las velocidades.</translation>
    </message>
    <message>
        <source>Take another project for the other wave</source>
        <translation>Toma otro proyecto para la otra onda</translation>
    </message>
    <message>
        <source>&amp;Other project ...</source>
        <translation>Otro pro&amp;yecto ...</translation>
    </message>
    <message>
        <source>Shi&amp;ft S by:</source>
        <translation>Despla&amp;zar S:</translation>
    </message>
    <message>
        <source>Length added to distances of S</source>
        <translation>Longitud que se suma a las distancias de S</translation>
    </message>
    <message>
        <source>What is added to the distances of S, whose line begins elsewhere, to have those of P</source>
        <translation>Lo que se suma a las distancias de S, cuya línea empieza en otro punto, para obtener las de P</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>&amp;Depths may differ by:</source>
        <translation>Diferencia de &amp;profundidad admitida:</translation>
    </message>
    <message>
        <source>Percent that depths may differ by</source>
        <translation>Porcentaje en que pueden diferir las profundidades</translation>
    </message>
    <message>
        <source>Difference between the depths of a layer by P and by S, as a share of their mean, beyond which both may be different ground: that is marked and said, and nothing is left out</source>
        <translation>Diferencia entre las profundidades de una capa según P y según S, en proporción a su media, a partir de la cual ambas pueden ser terrenos distintos: se marca y se indica, y no se excluye nada</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>D&amp;ensity:</source>
        <translation>D&amp;ensidad:</translation>
    </message>
    <message>
        <source>A number for each layer, or 310 Vp^0.25 in kg/m3, which Gardner and others (1974) found for rocks faster than 1500 m/s</source>
        <translation>Un valor para cada capa, o 310 Vp^0,25 en kg/m3, que Gardner y otros (1974) hallaron para rocas de más de 1500 m/s</translation>
    </message>
    <message>
        <source>Of each layer</source>
        <translation>De cada capa</translation>
    </message>
    <message>
        <source>From Vp, by Gardner&apos;s rule</source>
        <translation>A partir de Vp, por la relación de Gardner</translation>
    </message>
    <message>
        <source>1:</source>
        <translation>1:</translation>
    </message>
    <message>
        <source>Density of layer 1</source>
        <translation>Densidad de la capa 1</translation>
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
        <translation>Densidad de la capa 2</translation>
    </message>
    <message>
        <source>3:</source>
        <translation>3:</translation>
    </message>
    <message>
        <source>Density of layer 3</source>
        <translation>Densidad de la capa 3</translation>
    </message>
    <message>
        <source>Standard deviations of all that follows from the velocities, by 100 interpretations of picks that are moved by their errors</source>
        <translation>Desviaciones estándar de todo lo que se deriva de las velocidades, con 100 interpretaciones de picados desplazados según sus errores</translation>
    </message>
    <message>
        <source>Errors from the pic&amp;ks</source>
        <translation>Erro&amp;res a partir de los picados</translation>
    </message>
    <message>
        <source>&amp;Layer:</source>
        <translation>&amp;Capa:</translation>
    </message>
    <message>
        <source>Which layers picture and table show</source>
        <translation>Qué capas muestran la imagen y la tabla</translation>
    </message>
    <message>
        <source>P and S along the line</source>
        <translation>P y S a lo largo de la línea</translation>
    </message>
    <message>
        <source>Depths below the surface; moduli of small strains: shear G0, Young&apos;s E0, bulk K, constrained M</source>
        <translation>Profundidades bajo la superficie; módulos a pequeñas deformaciones: de corte G0, de Young E0, volumétrico K, edométrico M</translation>
    </message>
    <message>
        <source>Copy the table as it stands here, for a spreadsheet</source>
        <translation>Copia la tabla tal como está aquí, para una hoja de cálculo</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>Copi&amp;ar tabla</translation>
    </message>
    <message>
        <source>Save the table as CSV, in metres, m/s, kg/m3 and MPa</source>
        <translation>Guarda la tabla como CSV, en metros, m/s, kg/m3 y MPa</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Guardar &amp;tabla ...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Guarda las curvas como PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Save &amp;picture ...</source>
        <translation>Guardar &amp;imagen ...</translation>
    </message>
    <message>
        <source>Interpreting moved picks ...</source>
        <translation>Interpretando picados desplazados ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>P: %1, S: %2</source>
        <translation>P: %1, S: %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Capa %1</translation>
    </message>
    <message>
        <source>Picks of %1 have changed since its layers were built.</source>
        <translation>Los picados de %1 han cambiado desde que se construyeron sus capas.</translation>
    </message>
    <message>
        <source>It has no errors.</source>
        <translation>No tiene errores calculados.</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Distance [m]</source>
        <translation>Distancia [m]</translation>
    </message>
    <message>
        <source>Depth by P [m]</source>
        <translation>Profundidad según P [m]</translation>
    </message>
    <message>
        <source>Depth by S [m]</source>
        <translation>Profundidad según S [m]</translation>
    </message>
    <message>
        <source>Depths by P and S differ: it may be different ground.</source>
        <translation>Las profundidades según P y S difieren: puede ser un terreno distinto.</translation>
    </message>
    <message>
        <source>Preview and print the curves at a chosen scale</source>
        <translation>Vista previa e impresión de las curvas a una escala elegida</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Imprimir ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ErrorBands</name>
    <message>
        <source>&amp;Error bands</source>
        <translation>Bandas de &amp;error</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>How far depths and velocities scatter as picks are moved by their errors, over %1 interpretations</source>
        <translation>Cuánto se dispersan las profundidades y velocidades al desplazar los picados según sus errores, en %1 interpretaciones</translation>
    </message>
    <message>
        <source>No errors could be found: the profile is not that of the picks and marks. Build it again.</source>
        <translation>No se han podido hallar los errores: el perfil no corresponde a los picados y las asignaciones. Vuelva a construirlo.</translation>
    </message>
    <message>
        <source>Bands: 68 of %1 interpretations of picks that were moved by their errors</source>
        <translation>Bandas: 68 de cada %1 interpretaciones con los picados desplazados según sus errores</translation>
    </message>
</context>
<context>
    <name>talvesk::ExportTomoVelData</name>
    <message>
        <source>Set optional shift parameter before export</source>
        <translation>Desplazamiento opcional antes de exportar</translation>
    </message>
    <message>
        <source>Y coord of the line</source>
        <translation>Coordenada Y de la línea</translation>
    </message>
    <message>
        <source>Y coordinate of the line in metres</source>
        <translation>Coordenada Y de la línea en metros</translation>
    </message>
    <message>
        <source>Written as Y of every cell</source>
        <translation>Se escribe como Y de cada celda</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Z offset of the line</source>
        <translation>Desplazamiento Z de la línea</translation>
    </message>
    <message>
        <source>Z offset of the line in metres</source>
        <translation>Desplazamiento Z de la línea en metros</translation>
    </message>
    <message>
        <source>Added to the elevation of every cell</source>
        <translation>Se suma a la cota de cada celda</translation>
    </message>
    <message>
        <source>X is the distance along the line</source>
        <translation>X es la distancia a lo largo de la línea</translation>
    </message>
    <message>
        <source>Takes the grid&apos;s offset off; X is the grid&apos;s own abscissa else</source>
        <translation>Descuenta el desplazamiento de la malla; si no, X es la abscisa propia de la malla</translation>
    </message>
    <message>
        <source>The Y coordinate is not a number.</source>
        <translation>La coordenada Y no es un número.</translation>
    </message>
    <message>
        <source>The Z offset is not a number.</source>
        <translation>El desplazamiento Z no es un número.</translation>
    </message>
</context>
<context>
    <name>talvesk::FenceDialog</name>
    <message>
        <source>Fence of several lines</source>
        <translation>Panel de varias líneas</translation>
    </message>
    <message>
        <source>&amp;Lines:</source>
        <translation>&amp;Líneas:</translation>
    </message>
    <message>
        <source>Stand the sections of other projects beside this one; the projects stay as they are</source>
        <translation>Coloca las secciones de otros proyectos junto a esta; los proyectos quedan como están</translation>
    </message>
    <message>
        <source>&amp;Add projects ...</source>
        <translation>&amp;Añadir proyectos ...</translation>
    </message>
    <message>
        <source>Take the line that is selected out of the fence</source>
        <translation>Quita del panel la línea seleccionada</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>&amp;Exageración vertical:</translation>
    </message>
    <message>
        <source>Save the view as a PNG picture</source>
        <translation>Guarda la vista como imagen PNG</translation>
    </message>
    <message>
        <source>&amp;Save picture ...</source>
        <translation>&amp;Guardar imagen ...</translation>
    </message>
    <message>
        <source>S&amp;how all</source>
        <translation>Ver &amp;todo</translation>
    </message>
    <message>
        <source>Lines that stand in the fence: %1.</source>
        <translation>Líneas del panel: %1.</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Excluidas: %1.</translation>
    </message>
    <message>
        <source>it has no position on the map</source>
        <translation>no tiene posición en el mapa</translation>
    </message>
    <message>
        <source>its position is in EPSG:%1, that of the others in EPSG:%2</source>
        <translation>su posición está en EPSG:%1, la de las demás en EPSG:%2</translation>
    </message>
    <message>
        <source>it has no geophones</source>
        <translation>no tiene geófonos</translation>
    </message>
    <message>
        <source>its first and last geophone are at one place of the map</source>
        <translation>su primer y su último geófono están en el mismo punto del mapa</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>line, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Lines of the fence</source>
        <translation>Líneas del panel</translation>
    </message>
    <message>
        <source>Converted: %1.</source>
        <comment>lines</comment>
        <translation>Convertidas: %1.</translation>
    </message>
    <message>
        <source>%1 from EPSG:%2 to EPSG:%3</source>
        <comment>line, systems</comment>
        <translation>%1 de EPSG:%2 a EPSG:%3</translation>
    </message>
    <message>
        <source>No line stands in the fence yet.

A line needs a section and a place on the map. Give this survey its place, or add projects that have theirs.</source>
        <translation>Aún no hay ninguna línea en el panel.

Una línea necesita una sección y un lugar en el mapa. Dé a este levantamiento su lugar, o añada proyectos que tengan el suyo.</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>line, velocities</comment>
        <translation>%1 de %2 a %3</translation>
    </message>
    <message>
        <source>Beyond the colours: %1.</source>
        <comment>lines</comment>
        <translation>Fuera de la escala de colores: %1.</translation>
    </message>
    <message>
        <source>it stands in the fence already</source>
        <translation>ya está en el panel</translation>
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
        <translation>Velocidad [%1]</translation>
    </message>
    <message>
        <source>Sections at their places on the map</source>
        <translation>Secciones en su lugar del mapa</translation>
    </message>
    <message>
        <source>Easting [m]</source>
        <translation>Este [m]</translation>
    </message>
    <message>
        <source>Northing [m]</source>
        <translation>Norte [m]</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Cota [%1]</translation>
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
        <translation>Isolíneas</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Gradiente vertical de velocidad</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplaciano de la velocidad</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densidad de información</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>1 trace</source>
        <translation>1 traza</translation>
    </message>
    <message>
        <source>%1 traces</source>
        <translation>%1 trazas</translation>
    </message>
    <message>
        <source>1 pick</source>
        <translation>1 picado</translation>
    </message>
    <message>
        <source>%1 picks</source>
        <translation>%1 picados</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 disparo</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 disparos</translation>
    </message>
    <message>
        <source>1 computed time</source>
        <translation>1 tiempo calculado</translation>
    </message>
    <message>
        <source>%1 computed times</source>
        <translation>%1 tiempos calculados</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>quantity, least and greatest value with its unit</comment>
        <translation>%1 de %2 a %3</translation>
    </message>
    <message>
        <source>Contours every %1</source>
        <translation>Isolíneas cada %1</translation>
    </message>
    <message>
        <source>1 ray</source>
        <translation>1 rayo</translation>
    </message>
    <message>
        <source>%1 rays</source>
        <translation>%1 rayos</translation>
    </message>
    <message>
        <source>Vertical exaggeration %1</source>
        <translation>Exageración vertical %1</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Distancia [%1]</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Cota [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Tiempo [ms]</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geófonos</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>First breaks</source>
        <translation>Primeras llegadas</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Disparo %1 de %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Disparo %1</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>shot, place</comment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1, filtered</source>
        <comment>traces</comment>
        <translation>%1, filtradas</translation>
    </message>
    <message>
        <source>%1, some filtered</source>
        <comment>traces</comment>
        <translation>%1, algunas filtradas</translation>
    </message>
    <message>
        <source>One of every %1 is drawn</source>
        <translation>Se dibuja una de cada %1</translation>
    </message>
    <message>
        <source>%1 without samples or sample interval</source>
        <translation>%1 sin muestras o sin intervalo de muestreo</translation>
    </message>
    <message>
        <source>Each trace to its own maximum, gain %1</source>
        <translation>Cada traza a su propio máximo, ganancia %1</translation>
    </message>
    <message>
        <source>All traces to one maximum, gain %1</source>
        <translation>Todas las trazas a un mismo máximo, ganancia %1</translation>
    </message>
    <message>
        <source>no picks</source>
        <translation>sin picados</translation>
    </message>
    <message>
        <source>%1 outside the times shown</source>
        <comment>picks</comment>
        <translation>%1 fuera de los tiempos mostrados</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rayos</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Límite de cobertura</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Tiempos de recorrido</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medidos</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calculados</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Perfil de refracción</translation>
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
        <translation>Capa %1</translation>
    </message>
    <message>
        <source>Velocities of refractors: median</source>
        <translation>Velocidades de los refractores: mediana</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Iteración externa</translation>
    </message>
    <message>
        <source>RMS misfit [ms]</source>
        <translation>Desajuste RMS [ms]</translation>
    </message>
    <message>
        <source>Offset [%1]</source>
        <translation>Distancia al disparo [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Calculado menos medido [ms]</translation>
    </message>
    <message>
        <source>Refractor %1</source>
        <translation>Refractor %1</translation>
    </message>
    <message>
        <source>RMS misfit %1 ms, %2 %</source>
        <translation>Desajuste RMS %1 ms, %2 %</translation>
    </message>
    <message>
        <source>last solver pass %1 %</source>
        <translation>última pasada del solucionador %1 %</translation>
    </message>
    <message>
        <source>picks have changed since the inversion</source>
        <translation>los picados han cambiado desde la inversión</translation>
    </message>
    <message>
        <source>Refractor %1 (picks have changed since)</source>
        <translation>Refractor %1 (los picados han cambiado desde entonces)</translation>
    </message>
    <message>
        <source>Picks have changed since this was built</source>
        <translation>Los picados han cambiado desde que se construyó este perfil</translation>
    </message>
    <message>
        <source>smoothed since the inversion</source>
        <translation>suavizada desde la inversión</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>disparo desactivado</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>desplazado %1 ms</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>orden invertido</translation>
    </message>
    <message>
        <source>stacked with %1</source>
        <comment>shots</comment>
        <translation>apilado con %1</translation>
    </message>
    <message>
        <source>%1 killed</source>
        <comment>traces</comment>
        <translation>anulación de %1</translation>
    </message>
    <message>
        <source>%1 of reversed polarity</source>
        <comment>traces</comment>
        <translation>%1 con polaridad invertida</translation>
    </message>
    <message>
        <source>%1 muted</source>
        <comment>traces</comment>
        <translation>silenciado de %1</translation>
    </message>
    <message>
        <source>bars of one standard deviation, dashed above %1 ms</source>
        <translation>barras de una desviación estándar, discontinuas por encima de %1 ms</translation>
    </message>
    <message>
        <source>%1 good</source>
        <comment>picks</comment>
        <translation>buenos: %1</translation>
    </message>
    <message>
        <source>%1 doubtful</source>
        <comment>picks</comment>
        <translation>dudosos: %1</translation>
    </message>
    <message>
        <source>%1 of unknown error</source>
        <comment>picks</comment>
        <translation>de error desconocido: %1</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Incertidumbre de la velocidad</translation>
    </message>
    <message>
        <source>chi-square %1 with the time shifts of shots</source>
        <translation>chi cuadrado %1 con los desplazamientos en tiempo de los disparos</translation>
    </message>
    <message>
        <source>chi-square %1</source>
        <translation>chi cuadrado %1</translation>
    </message>
    <message>
        <source>Correlation by depth</source>
        <translation>Correlación según la profundidad</translation>
    </message>
    <message>
        <source>Correlation of true and recovered</source>
        <translation>Correlación entre verdadero y recuperado</translation>
    </message>
    <message>
        <source>-%1 % to +%1 % of the section&apos;s velocity; grey: no ray</source>
        <translation>De -%1 % a +%1 % de la velocidad de la sección; gris: sin rayos</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Verdadero</translation>
    </message>
    <message>
        <source>Recovered</source>
        <translation>Recuperado</translation>
    </message>
    <message>
        <source>[%1]</source>
        <translation>[%1]</translation>
    </message>
    <message>
        <source>Depth of %1, 16 to 84 %</source>
        <translation>Profundidad de %1, del 16 al 84 %</translation>
    </message>
    <message>
        <source>Pale: uncertain, ± %1 to %2 % and no ray</source>
        <translation>Pálido: incierto, de ± %1 a %2 %, y sin rayos</translation>
    </message>
    <message>
        <source>picks have changed since the certainty was found out</source>
        <translation>los picados han cambiado desde que se determinó la certeza</translation>
    </message>
    <message>
        <source>certainty of other sections than this one: %1 % of its cells with rays lie beyond two deviations</source>
        <translation>certeza de secciones distintas de esta: el %1 % de sus celdas con rayos queda fuera de dos desviaciones</translation>
    </message>
    <message>
        <source>±: half of the range from 16 to 84 % of %1 members</source>
        <translation>±: mitad del intervalo del 16 al 84 % de %1 miembros</translation>
    </message>
    <message>
        <source>certainty of %1 members</source>
        <translation>certeza de %1 miembros</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 excluidos</translation>
    </message>
    <message>
        <source>Geophone at [%1]</source>
        <translation>Geófono en [%1]</translation>
    </message>
    <message>
        <source>Computed minus measured [pick errors]</source>
        <translation>Calculado menos medido [errores de los picados]</translation>
    </message>
    <message>
        <source>Shot %1, geophone %2 at %3, offset %4: measured %5 ms, computed %6 ms, residual %7 ms, error %8 ms (%9 errors)</source>
        <translation>Disparo %1, geófono %2 en %3, distancia al disparo %4: medido %5 ms, calculado %6 ms, residuo %7 ms, error %8 ms (%9 errores)</translation>
    </message>
    <message>
        <source>; suspect</source>
        <translation>; sospechoso</translation>
    </message>
    <message>
        <source>Geophone at [%1]; hatched: no pick, with a dot: suspect</source>
        <translation>Geófono en [%1]; rayado: sin picado; con punto: sospechoso</translation>
    </message>
    <message>
        <source>Shot, along the line</source>
        <translation>Disparo, a lo largo de la línea</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picados</translation>
    </message>
    <message>
        <source>Suspect</source>
        <translation>Sospechosos</translation>
    </message>
    <message>
        <source>Running median</source>
        <translation>Mediana móvil</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Una desviación estándar</translation>
    </message>
    <message>
        <source>Stands out</source>
        <translation>Anómalo</translation>
    </message>
    <message>
        <source>Median and one standard deviation</source>
        <translation>Mediana y una desviación estándar</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2 beside the line)</source>
        <translation>%1 (a %2 de la línea)</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Sondeos</translation>
    </message>
    <message>
        <source>Known depths</source>
        <translation>Profundidades conocidas</translation>
    </message>
    <message>
        <source>Fixed bodies</source>
        <translation>Cuerpos fijos</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Velocidad [%1]</translation>
    </message>
    <message>
        <source>Vp/Vs</source>
        <translation>Vp/Vs</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>Coeficiente de Poisson</translation>
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
        <translation>Las profundidades según P y S difieren</translation>
    </message>
    <message>
        <source>No ground: Vp/Vs below 1.41</source>
        <translation>Terreno imposible: Vp/Vs menor que 1,41</translation>
    </message>
    <message>
        <source>Bars: one standard deviation, of the picks</source>
        <translation>Barras: una desviación estándar, por los errores de los picados</translation>
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
        <translation>Densidad</translation>
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
        <translation>Densidad a partir de Vp por la relación de Gardner</translation>
    </message>
    <message>
        <source>Density %1 kg/m3</source>
        <translation>Densidad %1 kg/m3</translation>
    </message>
    <message>
        <source>Layer %1, %2</source>
        <translation>Capa %1, %2</translation>
    </message>
    <message>
        <source>Layer %1, %2 ± %3</source>
        <translation>Capa %1, %2 ± %3</translation>
    </message>
    <message>
        <source>Dashed: not carried by picks there</source>
        <translation>Línea discontinua: sin picados que la respalden</translation>
    </message>
    <message>
        <source>Error of the picks (68 of 100)</source>
        <translation>Error por los picados (68 de 100)</translation>
    </message>
    <message>
        <source>Depth [%1]</source>
        <translation>Profundidad [%1]</translation>
    </message>
    <message>
        <source>Depths are below the surface</source>
        <translation>Profundidades bajo la superficie</translation>
    </message>
    <message>
        <source>dashed: not carried by picks there</source>
        <translation>línea discontinua: sin picados que la respalden</translation>
    </message>
    <message>
        <source>hollow marks: layer 3</source>
        <translation>símbolos huecos: capa 3</translation>
    </message>
    <message>
        <source>shaded: 68 of 100 results of moved picks</source>
        <translation>sombreado: 68 de cada 100 resultados con picados desplazados</translation>
    </message>
    <message>
        <source>dashed: times through the layers</source>
        <translation>línea discontinua: tiempos a través de las capas</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean, growing with depth</source>
        <translation>Capa 1, %1 de media, creciente con la profundidad</translation>
    </message>
    <message>
        <source>Layer 1, %1 in the mean</source>
        <translation>Capa 1, %1 de media</translation>
    </message>
    <message>
        <source>Vertical gradient [1/s]</source>
        <translation>Gradiente vertical [1/s]</translation>
    </message>
    <message>
        <source>Uncertainty [%]</source>
        <translation>Incertidumbre [%]</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distancia %1</translation>
    </message>
    <message>
        <source>no section here</source>
        <translation>aquí no hay sección</translation>
    </message>
    <message>
        <source>surface at %1</source>
        <translation>superficie a %1</translation>
    </message>
    <message>
        <source>shaded: 16 to 84 %</source>
        <translation>sombreado: del 16 al 84 %</translation>
    </message>
    <message>
        <source>%1 with a gain of their own</source>
        <comment>traces</comment>
        <translation>%1 con ganancia propia</translation>
    </message>
    <message>
        <source>annotations outside the section: %1</source>
        <translation>anotaciones fuera de la sección: %1</translation>
    </message>
    <message>
        <source>%1 (not reached)</source>
        <translation>%1 (no se alcanza)</translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation>Escala %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Elevación %1</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Each pair of traces to one maximum, gain %1</source>
        <translation>Cada par de trazas a un mismo máximo, ganancia %1</translation>
    </message>
    <message>
        <source>Absolute offset [%1]</source>
        <translation>Distancia absoluta al disparo [%1]</translation>
    </message>
    <message>
        <source>Reduced time [ms], t - |x|/%1 %2</source>
        <translation>Tiempo reducido [ms], t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>gain with time t^%1</source>
        <comment>exponent</comment>
        <translation>ganancia con el tiempo t^%1</translation>
    </message>
    <message>
        <source>offsets not known: not drawn by offset or reduced as asked</source>
        <translation>distancias al disparo desconocidas: no se ha dibujado según ellas ni en tiempo reducido como se pidió</translation>
    </message>
    <message>
        <source>All traces of a shot to one maximum, gain %1</source>
        <translation>Todas las trazas de un disparo a un mismo máximo, ganancia %1</translation>
    </message>
    <message>
        <source>Shot %1: %2</source>
        <comment>what is left out of it, or mended</comment>
        <translation>Disparo %1: %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Hoja %1 de %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Misfit in each iteration</source>
        <translation>Desajuste en cada iteración</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Residuos a lo largo de los rayos</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Perfil de profundidad</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P y S</translation>
    </message>
    <message>
        <source>1 cm is %1 ms</source>
        <translation>1 cm son %1 ms</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Última pasada del solucionador</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Residuos por disparo y geófono</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residuos según la distancia al disparo</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Residuos de disparos y de geófonos</translation>
    </message>
    <message>
        <source>Match line: sheet %1</source>
        <translation>Línea de unión: hoja %1</translation>
    </message>
</context>
<context>
    <name>talvesk::FitPanel</name>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Error de los picados que no indican ninguno</translation>
    </message>
    <message>
        <source>Least error [ms]</source>
        <translation>Error mínimo [ms]</translation>
    </message>
    <message>
        <source>How far off a pick is at least, one standard deviation. A small error makes the section follow every pick, and its noise; a large one lets it pass by.</source>
        <translation>Cuánto se desvía un picado como mínimo, una desviación estándar. Con un error pequeño la sección sigue cada picado, y su ruido; con uno grande puede apartarse de ellos.</translation>
    </message>
    <message>
        <source>Share of the time [%]</source>
        <translation>Parte del tiempo [%]</translation>
    </message>
    <message>
        <source>The error of a late pick is this share of its time, where that is more than the least error.</source>
        <translation>El error de un picado tardío es esta parte de su tiempo, cuando supera el error mínimo.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Velocidad mínima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this.</source>
        <translation>Ninguna celda llega a ser más lenta.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Velocidad máxima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this.</source>
        <translation>Ninguna celda llega a ser más rápida.</translation>
    </message>
    <message>
        <source>Iterations at most</source>
        <translation>Iteraciones como máximo</translation>
    </message>
    <message>
        <source>The fit ends by itself, as a rule after 5 to 15 iterations.</source>
        <translation>El ajuste termina por sí solo, por lo general tras 5 a 15 iteraciones.</translation>
    </message>
    <message>
        <source>Picks that are far off count by how far they are off, and no more by its square: some gross errors then hardly change the section.</source>
        <translation>Los picados muy desviados cuentan según su desviación, y ya no según su cuadrado: así unos pocos errores graves apenas cambian la sección.</translation>
    </message>
    <message>
        <source>Robust against gross errors of picks</source>
        <translation>Robusto frente a errores graves de los picados</translation>
    </message>
    <message>
        <source>Looks for few sharp steps of the velocity rather than for gentle slopes.</source>
        <translation>Busca pocos saltos bruscos de la velocidad en vez de pendientes suaves.</translation>
    </message>
    <message>
        <source>Blocky: sharp steps rather than slopes</source>
        <translation>Por bloques: saltos bruscos en vez de pendientes</translation>
    </message>
    <message>
        <source>Also finds by how much the record of every shot begins too early or too late, zero on the whole. The shifts are listed after the run and change nothing by themselves.</source>
        <translation>Halla también cuánto se adelanta o se retrasa el comienzo del registro de cada disparo, cero en conjunto. Los desplazamientos se enumeran tras la ejecución y no cambian nada por sí solos.</translation>
    </message>
    <message>
        <source>Find time shifts of shots</source>
        <translation>Hallar desplazamientos en tiempo de los disparos</translation>
    </message>
    <message>
        <source>Trigger error [ms]</source>
        <translation>Error del tiempo de disparo [ms]</translation>
    </message>
    <message>
        <source>How far the shots are thought to be off. Shifts that are large beside it are less welcome.</source>
        <translation>Cuánto se supone que se desvían los disparos. Los desplazamientos grandes frente a este valor son menos bienvenidos.</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>Usa un solo procesador. El resultado es el mismo hasta la última cifra; solo tarda más.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Ejecutar en un solo hilo</translation>
    </message>
    <message>
        <source>The section starts from this model, and departs from it no more than the picks ask for:</source>
        <translation>La sección parte de este modelo, y no se aparta de él más de lo que piden los picados:</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi cuadrado</translation>
    </message>
    <message>
        <source>Of the times through the model as it is, suspect picks included: 1 is a fit as good as the picks are.</source>
        <translation>De los tiempos a través del modelo tal cual, incluidos los picados sospechosos: 1 es un ajuste tan bueno como los picados.</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Qué es</translation>
    </message>
    <message>
        <source>Distance from the shot (m)</source>
        <translation>Distancia al disparo (m)</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Tiempo (ms)</translation>
    </message>
    <message>
        <source>%1 of %2 picks state an error of their own.</source>
        <translation>%1 de %2 picados indican su propio error.</translation>
    </message>
    <message>
        <source>By these errors the present section has chi-square %1, with %2 suspect picks left out.</source>
        <translation>Según estos errores la sección actual tiene chi cuadrado %1, con %2 picados sospechosos excluidos.</translation>
    </message>
    <message>
        <source>The models are being made and traced...</source>
        <translation>Se están construyendo y trazando los modelos...</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Sin respaldo de los picados</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picados</translation>
    </message>
    <message>
        <source>The section is drawn to the velocities and depths of &quot;Known ground&quot; by their errors, and fixed bodies stay as they are. How the section goes with them is told after the run; chi-square is of the picks alone.</source>
        <translation>La sección se acerca a las velocidades y profundidades de «Terreno conocido» según sus errores, y los cuerpos fijos quedan como están. Tras la inversión se indica cómo concuerda con ellos la sección; chi cuadrado es solo de los picados.</translation>
    </message>
    <message>
        <source>Hold to known ground</source>
        <translation>Condicionar al terreno conocido</translation>
    </message>
</context>
<context>
    <name>talvesk::FkView</name>
    <message>
        <source>Spectrum over wavenumber and frequency</source>
        <translation>Espectro según el número de onda y la frecuencia</translation>
    </message>
    <message>
        <source>No spectrum</source>
        <translation>Sin espectro</translation>
    </message>
    <message>
        <source>Wavenumber along the line (1/%1)</source>
        <translation>Número de onda a lo largo de la línea (1/%1)</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Frecuencia (Hz)</translation>
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
        <translation>Hoja de disparos</translation>
    </message>
    <message>
        <source>&amp;Rows:</source>
        <translation>&amp;Filas:</translation>
    </message>
    <message>
        <source>Shots one above the other</source>
        <translation>Disparos uno encima de otro</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Columnas:</translation>
    </message>
    <message>
        <source>Shots side by side</source>
        <translation>Disparos uno al lado de otro</translation>
    </message>
    <message>
        <source>&amp;First shot:</source>
        <translation>&amp;Primer disparo:</translation>
    </message>
    <message>
        <source>The shots from this one on</source>
        <translation>Los disparos a partir de este</translation>
    </message>
    <message>
        <source>&amp;Last shot:</source>
        <translation>Úl&amp;timo disparo:</translation>
    </message>
    <message>
        <source>The shots up to this one</source>
        <translation>Los disparos hasta este</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>P&amp;apel:</translation>
    </message>
    <message>
        <source>&amp;Times to:</source>
        <translation>Ti&amp;empos hasta:</translation>
    </message>
    <message>
        <source>Where the axis of time ends; automatic: where half as long again as the last pick takes is over</source>
        <translation>Dónde termina el eje de tiempos; automático: a una vez y media el tiempo del último picado</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automático</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Ganancia:</translation>
    </message>
    <message>
        <source>Swing of the largest value, in distances between traces</source>
        <translation>Amplitud del valor mayor, en distancias entre trazas</translation>
    </message>
    <message>
        <source>Mark the first breaks</source>
        <translation>Marca las primeras llegadas</translation>
    </message>
    <message>
        <source>P&amp;icks</source>
        <translation>Pica&amp;dos</translation>
    </message>
    <message>
        <source>All traces of a shot to one measure</source>
        <translation>Todas las trazas de un disparo con una misma medida</translation>
    </message>
    <message>
        <source>True &amp;amplitudes</source>
        <translation>Amplitudes &amp;reales</translation>
    </message>
    <message>
        <source>The filtered copies of the traces that have one</source>
        <translation>Las copias filtradas de las trazas que la tienen</translation>
    </message>
    <message>
        <source>Filtered c&amp;opies</source>
        <translation>Copias fi&amp;ltradas</translation>
    </message>
    <message>
        <source>Channel numbers in place of distances</source>
        <translation>Números de canal en lugar de distancias</translation>
    </message>
    <message>
        <source>C&amp;hannels below</source>
        <translation>Ca&amp;nales debajo</translation>
    </message>
    <message>
        <source>Sh&amp;eet:</source>
        <translation>&amp;Hoja:</translation>
    </message>
    <message>
        <source>The sheet that is shown; all are saved</source>
        <translation>La hoja que se muestra; se guardan todas</translation>
    </message>
    <message>
        <source>A4 landscape</source>
        <translation>A4 horizontal</translation>
    </message>
    <message>
        <source>A4 portrait</source>
        <translation>A4 vertical</translation>
    </message>
    <message>
        <source>A3 landscape</source>
        <translation>A3 horizontal</translation>
    </message>
    <message>
        <source>A3 portrait</source>
        <translation>A3 vertical</translation>
    </message>
    <message>
        <source>A2 landscape</source>
        <translation>A2 horizontal</translation>
    </message>
    <message>
        <source>A2 portrait</source>
        <translation>A2 vertical</translation>
    </message>
    <message>
        <source>&amp;Save sheets ...</source>
        <translation>Guardar hoja&amp;s ...</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>sheets</comment>
        <translation>de %1</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Vista previa de las hojas</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTable</name>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>«%1» no es un número.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1.</source>
        <translation>No se ha pegado nada: %1.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows do not fit from row %2 on, of %3.</source>
        <translation>No se ha pegado nada: %1 filas no caben a partir de la fila %2, de %3.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 columns do not fit from column &quot;%2&quot; on.</source>
        <translation>No se ha pegado nada: %1 columnas no caben a partir de la columna «%2».</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1</source>
        <translation>No se ha pegado nada: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GeometryTexts</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 without a position.</source>
        <translation>
            <numerusform>Tendido %1: el geófono %2 no tiene posición.</numerusform>
            <numerusform>Tendido %1: los geófonos %2 no tienen posición.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1: geophones %2 stand at one place.</source>
        <translation>Tendido %1: los geófonos %2 están en el mismo punto.</translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 against the direction of the string.</source>
        <translation>
            <numerusform>Tendido %1: el geófono %2 va contra el sentido del tendido.</numerusform>
            <numerusform>Tendido %1: los geófonos %2 van contra el sentido del tendido.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1: geophone(s) %2 not at the elevation that string %3 has there.</source>
        <translation>
            <numerusform>Tendido %1: el geófono %2 no está a la cota que el tendido %3 tiene allí.</numerusform>
            <numerusform>Tendido %1: los geófonos %2 no están a la cota que el tendido %3 tiene allí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a position.</source>
        <translation>
            <numerusform>El disparo %1 no tiene posición.</numerusform>
            <numerusform>Los disparos %1 no tienen posición.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string.</source>
        <translation>
            <numerusform>El disparo %1 no tiene tendido de geófonos.</numerusform>
            <numerusform>Los disparos %1 no tienen tendido de geófonos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not an S-wave pair, as others are: a survey holds one kind of wave.</source>
        <translation>
            <numerusform>El disparo %1 no es un par de onda S como los demás: un levantamiento contiene un solo tipo de onda.</numerusform>
            <numerusform>Los disparos %1 no son pares de onda S como los demás: un levantamiento contiene un solo tipo de onda.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 farther off the line than the line is long.</source>
        <translation>
            <numerusform>El disparo %1 está más lejos de la línea que la longitud de esta.</numerusform>
            <numerusform>Los disparos %1 están más lejos de la línea que la longitud de esta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 far above or below the line.</source>
        <translation>
            <numerusform>El disparo %1 está muy por encima o por debajo de la línea.</numerusform>
            <numerusform>Los disparos %1 están muy por encima o por debajo de la línea.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>String %1 has %2 geophones, shot(s) %3 %4 traces: the first %5 of both are used.</source>
        <translation>
            <numerusform>El tendido %1 tiene %2 geófonos y el disparo %3, %4 trazas: se usan los primeros %5 de ambos.</numerusform>
            <numerusform>El tendido %1 tiene %2 geófonos y los disparos %3, %4 trazas: se usan los primeros %5 de ambos.</numerusform>
        </translation>
    </message>
    <message>
        <source>String %1 has no geophones.</source>
        <translation>El tendido %1 no tiene geófonos.</translation>
    </message>
    <message>
        <source>No shot uses string %1; its positions shape the surface all the same.</source>
        <translation>Ningún disparo usa el tendido %1; aun así, sus posiciones dan forma a la superficie.</translation>
    </message>
    <message>
        <source>Shot ID &lt;b&gt;</source>
        <translation>ID del disparo &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt;&lt;br&gt;Geophone geometry ID: &lt;b&gt;</source>
        <translation>&lt;/b&gt;&lt;br&gt;ID de geometría de geófonos: &lt;b&gt;</translation>
    </message>
    <message>
        <source>&lt;/b&gt; Shot position: &lt;b&gt;</source>
        <translation>&lt;/b&gt; Posición del disparo: &lt;b&gt;</translation>
    </message>
    <message>
        <source> m&lt;/b&gt;</source>
        <translation> m&lt;/b&gt;</translation>
    </message>
    <message>
        <source>File name &lt;b&gt;</source>
        <translation>Nombre del archivo &lt;b&gt;</translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 not at the elevation of the line: type it, or interpolate elevations.</source>
        <translation>
            <numerusform>El disparo %1 no está a la cota de la línea: escríbala o interpole las cotas.</numerusform>
            <numerusform>Los disparos %1 no están a la cota de la línea: escríbalas o interpole las cotas.</numerusform>
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
        <translation>Cota (m)</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 está demasiado lejos.</translation>
    </message>
</context>
<context>
    <name>talvesk::GuidanceStrip</name>
    <message>
        <source>Guidance</source>
        <translation>Guía de pasos</translation>
    </message>
    <message>
        <source>Show the steps from recordings to a section, and how they stand</source>
        <translation>Muestra los pasos desde los registros hasta la sección y cómo están</translation>
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
        <translation>Siguiente: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::GuideWindow</name>
    <message>
        <source>User guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Páginas encontradas</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texto más pequeño</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texto más grande</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Open in browser</source>
        <translation>Abrir en el navegador</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>title of a page, number of places</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se ha encontrado nada</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>No program to show the user guide was found.</source>
        <translation>No se ha encontrado ningún programa para mostrar la guía del usuario.</translation>
    </message>
    <message>
        <source>You find it in %1</source>
        <translation>Se encuentra en %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>talvesk::HandleTrack</name>
    <message>
        <source>Handle %1</source>
        <translation>Cursor %1</translation>
    </message>
</context>
<context>
    <name>talvesk::ImagesDialog</name>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Pictures of</source>
        <translation>Imágenes de</translation>
    </message>
    <message>
        <source>Traces of the current shot</source>
        <translation>Trazas del disparo actual</translation>
    </message>
    <message>
        <source>Traces of all shots</source>
        <translation>Trazas de todos los disparos</translation>
    </message>
    <message>
        <source>A picture for every shot</source>
        <translation>Una imagen por disparo</translation>
    </message>
    <message>
        <source>Filtered traces</source>
        <translation>Trazas filtradas</translation>
    </message>
    <message>
        <source>The filtered copy of the traces, where there is one</source>
        <translation>La copia filtrada de las trazas donde la haya</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Dromocronas</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sección de velocidad</translation>
    </message>
    <message>
        <source>Palette, contours, rays and geophones as the section view shows them</source>
        <translation>Paleta, isolíneas, rayos y geófonos tal como los muestra la vista de la sección</translation>
    </message>
    <message>
        <source>Vertical gradient</source>
        <translation>Gradiente vertical</translation>
    </message>
    <message>
        <source>Laplacian</source>
        <translation>Laplaciano</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densidad de información</translation>
    </message>
    <message>
        <source>Sections as cells</source>
        <translation>Secciones por celdas</translation>
    </message>
    <message>
        <source>In bands where contours are filled</source>
        <translation>En bandas si las isolíneas están rellenas</translation>
    </message>
    <message>
        <source>Sections smooth</source>
        <translation>Secciones difuminadas</translation>
    </message>
    <message>
        <source>Blended from cell to cell, in pictures of their own</source>
        <translation>Difuminadas de celda a celda, en imágenes aparte</translation>
    </message>
    <message>
        <source>Refraction profile</source>
        <translation>Perfil de refracción</translation>
    </message>
    <message>
        <source>Format and size</source>
        <translation>Formato y tamaño</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormato:</translation>
    </message>
    <message>
        <source>PNG (pixels)</source>
        <translation>PNG (píxeles)</translation>
    </message>
    <message>
        <source>SVG (shapes)</source>
        <translation>SVG (vectorial)</translation>
    </message>
    <message>
        <source>PDF (shapes)</source>
        <translation>PDF (vectorial)</translation>
    </message>
    <message>
        <source>&amp;Unit of the size:</source>
        <translation>&amp;Unidad de medida:</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>milímetros</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Ancho:</translation>
    </message>
    <message>
        <source>Height as each picture asks for</source>
        <translation>Alto según cada imagen</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Resolución:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>Pixels per inch; also how large letters and lines are in a picture of so many pixels</source>
        <translation>Píxeles por pulgada; también determina el tamaño de letras y líneas en una imagen con un número dado de píxeles</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Examinar...</translation>
    </message>
    <message>
        <source>&amp;Names begin with:</source>
        <translation>Los &amp;nombres empiezan por:</translation>
    </message>
    <message>
        <source>Files to be wri&amp;tten:</source>
        <translation>Archivos por e&amp;scribir:</translation>
    </message>
    <message>
        <source>Folder of the pictures</source>
        <translation>Carpeta de las imágenes</translation>
    </message>
    <message>
        <source>Nothing to write is chosen.</source>
        <translation>No se ha elegido nada que escribir.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>The folder is not writable.</source>
        <translation>No se puede escribir en la carpeta.</translation>
    </message>
    <message>
        <source>A name cannot hold a slash.</source>
        <translation>Un nombre no puede contener una barra.</translation>
    </message>
    <message>
        <source>%1 (exists)</source>
        <translation>%1 (ya existe)</translation>
    </message>
    <message>
        <source>Residuals of the picks</source>
        <translation>Residuos de los picados</translation>
    </message>
    <message>
        <source>Shot by geophone, and in the section along the rays</source>
        <translation>Disparo por geófono, y en la sección a lo largo de los rayos</translation>
    </message>
    <message>
        <source>Files to be written</source>
        <translation>Archivos que se escribirán</translation>
    </message>
    <message>
        <source>Traces as in the view</source>
        <translation>Trazas como en la vista</translation>
    </message>
    <message>
        <source>By offset, in reduced time and with a gain in time, as the view of the traces is now</source>
        <translation>Según la distancia al disparo, en tiempo reducido y con ganancia con el tiempo, como está ahora la vista de las trazas</translation>
    </message>
</context>
<context>
    <name>talvesk::InversionTexts</name>
    <message>
        <source>Section, along fresh rays
</source>
        <translation>Sección, a lo largo de rayos nuevos
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
        <translation>Mayor diferencia: [ms] %1; disparo %2, receptor %3
</translation>
    </message>
    <message>
        <source>Computing time: [s] %1
</source>
        <translation>Tiempo de cálculo: [s] %1
</translation>
    </message>
    <message>
        <source>Last solver pass
</source>
        <translation>Última pasada del solucionador
</translation>
    </message>
    <message>
        <source>Elapsed time: [s] %1
</source>
        <translation>Tiempo transcurrido: [s] %1
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
        <translation>Error máximo: [ms] %1; [%] %2
</translation>
    </message>
    <message>
        <source>Chi-square: %1; of all picks %2; suspect picks %3
</source>
        <translation>Chi cuadrado: %1; de todos los picados, %2; picados sospechosos, %3
</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3 with the time shifts of shots.</source>
        <translation>Desajuste de la sección: RMS %1 ms (%2 %), chi cuadrado %3 con los desplazamientos en tiempo de los disparos.</translation>
    </message>
    <message>
        <source>Misfit of the section: RMS %1 ms (%2 %), chi-square %3.</source>
        <translation>Desajuste de la sección: RMS %1 ms (%2 %), chi cuadrado %3.</translation>
    </message>
    <message>
        <source>From coarse to fine: iteration %1 of %2 is kept, smoothing parameter %3
</source>
        <translation>De grueso a fino: se conserva la iteración %1 de %2, parámetro de suavizado %3
</translation>
    </message>
    <message>
        <source>Iterations: %1
</source>
        <translation>Iteraciones: %1
</translation>
    </message>
    <message>
        <source>Weight of the roughness: %1
</source>
        <translation>Peso de la rugosidad: %1
</translation>
    </message>
    <message>
        <source>Started from and held to: %1
</source>
        <translation>Modelo de partida y de referencia: %1
</translation>
    </message>
    <message>
        <source>Time shifts of shots: [ms] %1
</source>
        <translation>Desplazamientos en tiempo de los disparos: [ms] %1
</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>disparo %1: %2</translation>
    </message>
    <message>
        <source>Best of the picks&apos; models</source>
        <translation>El mejor modelo de los picados</translation>
    </message>
    <message>
        <source>With the time shifts of shots</source>
        <translation>Con los desplazamientos en tiempo de los disparos</translation>
    </message>
    <message>
        <source>Without suspects, with the time shifts of shots</source>
        <translation>Sin sospechosos, con los desplazamientos en tiempo de los disparos</translation>
    </message>
    <message>
        <source>Without suspects</source>
        <translation>Sin sospechosos</translation>
    </message>
    <message>
        <source>All picks as they are, </source>
        <translation>Todos los picados tal como están, </translation>
    </message>
    <message>
        <source>Known ground: %1 conditions, RMS %2 of their errors; fixed cells %3
</source>
        <translation>Terreno conocido: %1 condiciones, RMS %2 de sus errores; celdas fijas %3
</translation>
    </message>
    <message>
        <source>The section does not go with %1: off by %2 of its errors
</source>
        <translation>La sección no concuerda con %1: se desvía %2 veces su error
</translation>
    </message>
    <message>
        <source>RMS of what chi-square counts: %1 ms.</source>
        <translation>RMS de lo que cuenta chi cuadrado: %1 ms.</translation>
    </message>
</context>
<context>
    <name>talvesk::KnownGroundDialog</name>
    <message>
        <source>Known ground</source>
        <translation>Terreno conocido</translation>
    </message>
    <message>
        <source>&amp;Boreholes</source>
        <translation>&amp;Sondeos</translation>
    </message>
    <message>
        <source>A row is a layer; layers of one name are of one borehole, from the top down. Depths are counted from the surface. Without an error a velocity counts as known to 5 %.</source>
        <translation>Cada fila es una capa; las capas con el mismo nombre son de un mismo sondeo, de arriba abajo. Las profundidades se cuentan desde la superficie. Sin error, una velocidad se considera conocida al 5 %.</translation>
    </message>
    <message>
        <source>Boreholes</source>
        <translation>Sondeos</translation>
    </message>
    <message>
        <source>&amp;Depths</source>
        <translation>&amp;Profundidades</translation>
    </message>
    <message>
        <source>A row is a place where a refractor is known to lie: the velocity that is reached there, or those above and below. Without an error a depth counts as known to a tenth. Points of one refractor number belong together.</source>
        <translation>Cada fila es un punto donde se sabe que hay un refractor: la velocidad que se alcanza ahí, o las de encima y debajo. Sin error, una profundidad se considera conocida a una décima parte. Los puntos con el mismo número de refractor van juntos.</translation>
    </message>
    <message>
        <source>Depths</source>
        <translation>Profundidades</translation>
    </message>
    <message>
        <source>B&amp;odies</source>
        <translation>&amp;Cuerpos</translation>
    </message>
    <message>
        <source>A row is a corner; corners of one name go around a body of known velocity, which a fit leaves as it is.</source>
        <translation>Cada fila es un vértice; los vértices con el mismo nombre rodean un cuerpo de velocidad conocida, que el ajuste deja como está.</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Cuerpos</translation>
    </message>
    <message>
        <source>Insert a row above the current one. The last line of a table is always empty: type there to go on</source>
        <translation>Inserta una fila encima de la actual. La última línea de una tabla siempre está vacía: escriba ahí para continuar</translation>
    </message>
    <message>
        <source>&amp;Add row</source>
        <translation>&amp;Añadir fila</translation>
    </message>
    <message>
        <source>Remove the rows with selected cells</source>
        <translation>Quita las filas con celdas seleccionadas</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>&amp;Quitar filas</translation>
    </message>
    <message>
        <source>Take the last step in these tables back</source>
        <translation>Deshace el último cambio en estas tablas</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Do it again</source>
        <translation>Lo rehace</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Read a table in place of all that stands here, in metres</source>
        <translation>Lee una tabla en lugar de todo lo que hay aquí, en metros</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importar ...</translation>
    </message>
    <message>
        <source>Write all of it as one table, in metres</source>
        <translation>Lo escribe todo como una sola tabla, en metros</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exportar ...</translation>
    </message>
    <message>
        <source>Boreholes: %1, known depths: %2, bodies: %3.</source>
        <translation>Sondeos: %1, profundidades conocidas: %2, cuerpos: %3.</translation>
    </message>
    <message>
        <source>%1, row %2: %3.</source>
        <translation>%1, fila %2: %3.</translation>
    </message>
    <message>
        <source>Discard what was changed in these tables?</source>
        <translation>¿Descartar los cambios de estas tablas?</translation>
    </message>
</context>
<context>
    <name>talvesk::KnownTable</name>
    <message>
        <source>Position [m]</source>
        <translation>Posición [m]</translation>
    </message>
    <message>
        <source>Offset [m]</source>
        <translation>Distancia a la línea [m]</translation>
    </message>
    <message>
        <source>Top [m]</source>
        <translation>Techo [m]</translation>
    </message>
    <message>
        <source>Depth [m]</source>
        <translation>Profundidad [m]</translation>
    </message>
    <message>
        <source>Bottom [m]</source>
        <translation>Base [m]</translation>
    </message>
    <message>
        <source>Isovalue [m/s]</source>
        <translation>Isovalor [m/s]</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Velocidad [m/s]</translation>
    </message>
    <message>
        <source>Error [m]</source>
        <translation>Error [m]</translation>
    </message>
    <message>
        <source>Error [m/s]</source>
        <translation>Error [m/s]</translation>
    </message>
    <message>
        <source>Refractor</source>
        <translation>Refractor</translation>
    </message>
    <message>
        <source>Above [m/s]</source>
        <translation>Encima [m/s]</translation>
    </message>
    <message>
        <source>Below [m/s]</source>
        <translation>Debajo [m/s]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>«%1» no es un número.</translation>
    </message>
    <message>
        <source>Nothing was pasted: %1 rows of %2 columns do not fit from here on.</source>
        <translation>No se ha pegado nada: %1 filas de %2 columnas no caben a partir de aquí.</translation>
    </message>
    <message>
        <source>Nothing was pasted. Row %1: %2</source>
        <translation>No se ha pegado nada. Fila %1: %2</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerCurvesPlot</name>
    <message>
        <source>Shot %1, trace %2: %3, %4 ms, %5</source>
        <translation>Disparo %1, traza %2: %3, %4 ms, %5</translation>
    </message>
    <message>
        <source>no layer</source>
        <translation>ninguna capa</translation>
    </message>
    <message>
        <source>layer %1</source>
        <translation>capa %1</translation>
    </message>
    <message>
        <source>computed: %1 ms</source>
        <translation>calculado: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::LayerMethodsDialog</name>
    <message>
        <source>Compare methods</source>
        <translation>Comparar métodos</translation>
    </message>
    <message>
        <source>I&amp;nterpretations for error bands:</source>
        <translation>I&amp;nterpretaciones para las bandas de error:</translation>
    </message>
    <message>
        <source>The layers are interpreted as often again, by picks that are moved by their errors. How far the results scatter is the error of depth and velocity, and tells whether methods disagree by more than that.</source>
        <translation>Las capas se interpretan otras tantas veces, con los picados desplazados según sus errores. La dispersión de los resultados es el error de la profundidad y la velocidad, e indica si los métodos discrepan en más que eso.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>&amp;Resumen</translation>
    </message>
    <message>
        <source>Medians by method</source>
        <translation>Medianas por método</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Median velocity
[m/s]</source>
        <translation>Velocidad mediana
[m/s]</translation>
    </message>
    <message>
        <source>Median depth
[m]</source>
        <translation>Profundidad mediana
[m]</translation>
    </message>
    <message>
        <source>Geophones
with a depth</source>
        <translation>Geófonos
con profundidad</translation>
    </message>
    <message>
        <source>Of these not
carried by picks</source>
        <translation>De ellos, sin
respaldo de picados</translation>
    </message>
    <message>
        <source>How far methods agree, and their remarks</source>
        <translation>En qué medida coinciden los métodos, y sus observaciones</translation>
    </message>
    <message>
        <source>Layer &amp;2</source>
        <translation>Capa &amp;2</translation>
    </message>
    <message>
        <source>Layer 2 by method</source>
        <translation>Capa 2 por método</translation>
    </message>
    <message>
        <source>Layer &amp;3</source>
        <translation>Capa &amp;3</translation>
    </message>
    <message>
        <source>Layer 3 by method</source>
        <translation>Capa 3 por método</translation>
    </message>
    <message>
        <source>Save the picture as PNG, SVG or PDF</source>
        <translation>Guarda la imagen como PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Save p&amp;icture ...</source>
        <translation>Guardar ima&amp;gen ...</translation>
    </message>
    <message>
        <source>Save depths and velocities of all layers and methods at the geophones as CSV, in metres</source>
        <translation>Guarda como CSV las profundidades y velocidades de todas las capas y métodos en los geófonos, en metros</translation>
    </message>
    <message>
        <source>Save &amp;table ...</source>
        <translation>Guardar &amp;tabla ...</translation>
    </message>
    <message>
        <source>Copy the same table for a spreadsheet</source>
        <translation>Copia la misma tabla para una hoja de cálculo</translation>
    </message>
    <message>
        <source>&amp;Copy table</source>
        <translation>Copi&amp;ar tabla</translation>
    </message>
    <message>
        <source>Layers are being interpreted...</source>
        <translation>Se están interpretando las capas...</translation>
    </message>
    <message>
        <source>Stopped: no error bands.</source>
        <translation>Detenido: sin bandas de error.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>no pick is assigned to a refractor.</source>
        <translation>ningún picado está asignado a un refractor.</translation>
    </message>
</context>
<context>
    <name>talvesk::LeftOutText</name>
    <message>
        <source>%1 of %2 picks</source>
        <translation>%1 de %2 picados</translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) beyond the last column</source>
        <translation>
            <numerusform>%n disparo más allá de la última columna</numerusform>
            <numerusform>%n disparos más allá de la última columna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n geophone(s) beyond the last column</source>
        <translation>
            <numerusform>%n geófono más allá de la última columna</numerusform>
            <numerusform>%n geófonos más allá de la última columna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot(s) without a geophone string</source>
        <translation>
            <numerusform>%n disparo sin tendido de geófonos</numerusform>
            <numerusform>%n disparos sin tendido de geófonos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 beyond the last column</source>
        <translation>
            <numerusform>Disparo %1 más allá de la última columna</numerusform>
            <numerusform>Disparos %1 más allá de la última columna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Geophone(s) %1 of string %2 beyond the last column</source>
        <translation>
            <numerusform>Geófono %1 del tendido %2 más allá de la última columna</numerusform>
            <numerusform>Geófonos %1 del tendido %2 más allá de la última columna</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shot(s) %1 without a geophone string</source>
        <translation>
            <numerusform>Disparo %1 sin tendido de geófonos</numerusform>
            <numerusform>Disparos %1 sin tendido de geófonos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::LinePlan</name>
    <message>
        <source>Geophones of string %1</source>
        <translation>Geófonos del tendido %1</translation>
    </message>
    <message>
        <source>Other strings</source>
        <translation>Otros tendidos</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>Por revisar</translation>
    </message>
    <message>
        <source>x %1, z %2</source>
        <translation>x %1, z %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Disparo %1</translation>
    </message>
    <message>
        <source>String %1, geophone %2</source>
        <translation>Tendido %1, geófono %2</translation>
    </message>
    <message>
        <source>Plan of the line</source>
        <translation>Plano de la línea</translation>
    </message>
    <message>
        <source>Distance (%1)</source>
        <translation>Distancia (%1)</translation>
    </message>
    <message>
        <source>Elevation (%1)</source>
        <translation>Cota (%1)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geófonos</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Geófono %1</translation>
    </message>
    <message>
        <source>x %1, %2 across</source>
        <translation>x %1, %2 en transversal</translation>
    </message>
    <message>
        <source>%1 east, %2 north</source>
        <translation>%1 al este, %2 al norte</translation>
    </message>
    <message>
        <source>Across the line (%1)</source>
        <translation>Transversal a la línea (%1)</translation>
    </message>
    <message>
        <source>East of the first geophone (%1)</source>
        <translation>Al este del primer geófono (%1)</translation>
    </message>
    <message>
        <source>North of it (%1)</source>
        <translation>Al norte de él (%1)</translation>
    </message>
</context>
<context>
    <name>talvesk::LossQuestion</name>
    <message>
        <source>the grid and the results of the inversion</source>
        <translation>la malla y los resultados de la inversión</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>la malla</translation>
    </message>
    <message>
        <source>the results of the inversion; the grid stays</source>
        <translation>los resultados de la inversión; la malla se mantiene</translation>
    </message>
    <message>
        <source>the layers of the starting model</source>
        <translation>las capas del modelo inicial</translation>
    </message>
    <message>
        <source>the refraction interpretation</source>
        <translation>la interpretación por refracción</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Do you want to continue?</source>
        <translation>¿Desea continuar?</translation>
    </message>
    <message>
        <source>The survey changes. This will be removed (Undo brings it back):</source>
        <translation>El levantamiento cambia. Se quitará lo siguiente (Deshacer lo recupera):</translation>
    </message>
</context>
<context>
    <name>talvesk::MarkedIsolinesDialog</name>
    <message>
        <source>Marked isolines</source>
        <translation>Isolíneas destacadas</translation>
    </message>
    <message>
        <source>Velocities that mean something, such as 1500 m/s for the water table. Their lines stand out from the section and carry their names.</source>
        <translation>Velocidades con un significado, como 1500 m/s para el nivel freático. Sus líneas destacan en la sección y llevan su nombre.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Velocity [m/s]</source>
        <translation>Velocidad [m/s]</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <source>Mark another velocity</source>
        <translation>Destaca otra velocidad</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Remove the line that is selected</source>
        <translation>Quita la línea seleccionada</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>water table</source>
        <translation>nivel freático</translation>
    </message>
</context>
<context>
    <name>talvesk::MendDialog</name>
    <message>
        <source>Mend recording</source>
        <translation>Corregir registro</translation>
    </message>
    <message>
        <source>What was recorded is kept: everything here can be taken back at any time. Picks move with the recording.</source>
        <translation>Lo registrado se conserva: todo lo que haga aquí se puede revertir en cualquier momento. Los picados se desplazan con el registro.</translation>
    </message>
    <message>
        <source>&amp;The record was late by:</source>
        <translation>&amp;Retraso del registro:</translation>
    </message>
    <message>
        <source>Positive: the front of the record goes, and picks become earlier. Negative: the record was early. Whole samples are taken.</source>
        <translation>Positivo: se quita el principio del registro y los picados se adelantan. Negativo: el registro estaba adelantado. Se toman muestras enteras.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Its picks are set aside and come back with it</source>
        <translation>Sus picados se apartan y vuelven con él</translation>
    </message>
    <message>
        <source>&amp;Disabled: the shot has no picks and takes no part</source>
        <translation>&amp;Desactivado: el disparo no tiene picados ni participa</translation>
    </message>
    <message>
        <source>The last channel goes to the first geophone, with its pick</source>
        <translation>El último canal pasa al primer geófono, con su picado</translation>
    </message>
    <message>
        <source>&amp;Order reversed: the channels run against the geophones</source>
        <translation>&amp;Orden invertido: los canales van contra los geófonos</translation>
    </message>
    <message>
        <source>&amp;Stack with:</source>
        <translation>&amp;Apilar con:</translation>
    </message>
    <message>
        <source>Shots of the same place and geophones; the mean of their samples is shown and picked</source>
        <translation>Disparos del mismo punto y los mismos geófonos; se muestra y se pica la media de sus muestras</translation>
    </message>
    <message>
        <source>Dis&amp;able the shots that it is stacked with</source>
        <translation>Desactivar los disparos con los &amp;que se apila</translation>
    </message>
    <message>
        <source>No other shot has the same place, geophones and sample interval.</source>
        <translation>Ningún otro disparo tiene el mismo punto, los mismos geófonos y el mismo intervalo de muestreo.</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Trazas del disparo</translation>
    </message>
    <message>
        <source>Killed</source>
        <translation>Anulada</translation>
    </message>
    <message>
        <source>Polarity reversed</source>
        <translation>Polaridad invertida</translation>
    </message>
    <message>
        <source>Muted before</source>
        <translation>Silenciada antes de</translation>
    </message>
    <message>
        <source>Mend recording of shot %1</source>
        <translation>Corregir registro del disparo %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Ganancia</translation>
    </message>
</context>
<context>
    <name>talvesk::Message</name>
    <message>
        <source>The inversion failed: %1</source>
        <translation>La inversión ha fallado: %1</translation>
    </message>
    <message>
        <source>The picture cannot be made: %1</source>
        <translation>No se puede crear la imagen: %1</translation>
    </message>
    <message>
        <source>The view cannot be drawn for a picture.</source>
        <translation>No se puede dibujar la vista para una imagen.</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8 text</source>
        <translation>su nombre no es un texto UTF-8 válido</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>its text could not be put together</source>
        <translation>no se ha podido componer su texto</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>its %1 bytes are more than the limit of %2</source>
        <translation>sus %1 bytes superan el límite de %2</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is %2; choose another place.</source>
        <translation>El archivo %1 no se puede reemplazar: %2; elija otro lugar.</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>protected against writing</source>
        <translation>está protegido contra escritura</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>El archivo %1 no se puede crear: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be given its permissions: %2.</source>
        <translation>No se pueden dar sus permisos al archivo %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>El archivo %1 no se puede escribir: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: %2.</source>
        <translation>El archivo %1 no se puede reemplazar: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>nobody reads from it</source>
        <translation>nadie lee de él</translation>
    </message>
    <message>
        <source>there are more than %1 rows</source>
        <translation>hay más de %1 filas</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; is no number</source>
        <translation>línea %1: «%2» no es un número</translation>
    </message>
    <message>
        <source>the survey has no grid; create the grid or run the inversion first</source>
        <translation>el levantamiento no tiene malla; cree la malla o ejecute primero la inversión</translation>
    </message>
    <message>
        <source>no cell of the section is drawn</source>
        <translation>no se dibuja ninguna celda de la sección</translation>
    </message>
    <message>
        <source>eastward</source>
        <translation>hacia el este</translation>
    </message>
    <message>
        <source>northward</source>
        <translation>hacia el norte</translation>
    </message>
    <message>
        <source>westward</source>
        <translation>hacia el oeste</translation>
    </message>
    <message>
        <source>southward</source>
        <translation>hacia el sur</translation>
    </message>
    <message>
        <source>%1 is no reference system that is known here</source>
        <translation>%1 no es un sistema de referencia conocido aquí</translation>
    </message>
    <message>
        <source>%1 is not a projected system; easting and northing need one</source>
        <translation>%1 no es un sistema proyectado; las coordenadas este y norte requieren uno</translation>
    </message>
    <message>
        <source>%1 has no axes that are known here</source>
        <translation>%1 no tiene ejes conocidos aquí</translation>
    </message>
    <message>
        <source>%1 counts in another unit than the metre: %2; choose a system in metres</source>
        <translation>%1 usa una unidad distinta del metro: %2; elija un sistema en metros</translation>
    </message>
    <message>
        <source>%1 counts %2 and %3; choose a system with easting and northing</source>
        <translation>%1 cuenta %2 y %3; elija un sistema con coordenadas este y norte</translation>
    </message>
    <message>
        <source>%1 (%2) cannot be turned into longitude and latitude</source>
        <translation>%1 (%2) no se puede convertir en longitud y latitud</translation>
    </message>
    <message>
        <source>the Y coordinate and the Z offset of the line must be finite numbers</source>
        <translation>la coordenada Y y el desplazamiento Z de la línea deben ser números finitos</translation>
    </message>
    <message>
        <source>Cannot write %1: its text could not be put together</source>
        <translation>No se puede escribir %1: no se ha podido componer su texto</translation>
    </message>
    <message>
        <source>the coordinates of the geophones are not numbers</source>
        <translation>las coordenadas de los geófonos no son números</translation>
    </message>
    <message>
        <source>the first and the last geophone have the same coordinates</source>
        <translation>el primer y el último geófono tienen las mismas coordenadas</translation>
    </message>
    <message>
        <source>the coordinates of the geophones lie outside of EPSG:%1 (%2)</source>
        <translation>las coordenadas de los geófonos quedan fuera de EPSG:%1 (%2)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Faltan las coordenadas geográficas; los datos no se pueden exportar en formato KML</translation>
    </message>
    <message>
        <source>the section has too many cells for this format, %1</source>
        <translation>la sección tiene demasiadas celdas para este formato, %1</translation>
    </message>
    <message>
        <source>the palette has no colours</source>
        <translation>la paleta no tiene colores</translation>
    </message>
    <message>
        <source>the value range of the section is empty; its maximum must be greater than its minimum</source>
        <translation>el rango de valores de la sección está vacío; su máximo debe ser mayor que su mínimo</translation>
    </message>
    <message>
        <source>the survey has no geophones</source>
        <translation>el levantamiento no tiene geófonos</translation>
    </message>
    <message>
        <source>the raster would have %1 nodes; choose larger cells</source>
        <translation>la retícula tendría %1 nodos; elija celdas más grandes</translation>
    </message>
    <message>
        <source>Not enough memory for a picture of this size: choose a smaller size or resolution.</source>
        <translation>No hay memoria suficiente para una imagen de este tamaño: elija un tamaño o una resolución menor.</translation>
    </message>
    <message>
        <source>The PNG picture cannot be made.</source>
        <translation>No se puede crear la imagen PNG.</translation>
    </message>
    <message>
        <source>The SVG picture cannot be made.</source>
        <translation>No se puede crear la imagen SVG.</translation>
    </message>
    <message>
        <source>The PDF page cannot be made.</source>
        <translation>No se puede crear la página PDF.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn before the application object exists.</source>
        <translation>No se puede dibujar una figura antes de que exista el objeto de la aplicación.</translation>
    </message>
    <message>
        <source>A figure cannot be drawn without fonts: install a font package, for instance fonts-dejavu-core.</source>
        <translation>No se puede dibujar una figura sin fuentes tipográficas: instale un paquete de fuentes, por ejemplo fonts-dejavu-core.</translation>
    </message>
    <message>
        <source>No picture format is known for %1: let the file name end with .png, .svg or .pdf.</source>
        <translation>No se conoce ningún formato de imagen para %1: el nombre del archivo debe terminar en .png, .svg o .pdf.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm wide: choose %2 to %3 mm.</source>
        <translation>Una figura no puede tener %1 mm de ancho: elija de %2 a %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 mm high: choose %2 to %3 mm.</source>
        <translation>Una figura no puede tener %1 mm de alto: elija de %2 a %3 mm.</translation>
    </message>
    <message>
        <source>A figure cannot be %1 pixels per inch: choose %2 to %3 pixels per inch.</source>
        <translation>Una figura no puede tener %1 píxeles por pulgada: elija de %2 a %3 píxeles por pulgada.</translation>
    </message>
    <message>
        <source>A picture of %1 million pixels is too large: the limit is %2 million. Choose a smaller size or resolution.</source>
        <translation>Una imagen de %1 millones de píxeles es demasiado grande: el límite es de %2 millones. Elija un tamaño o una resolución menor.</translation>
    </message>
    <message>
        <source>A PDF file needs a page at least.</source>
        <translation>Un archivo PDF necesita al menos una página.</translation>
    </message>
    <message>
        <source>%1 cannot be drawn before the application object exists.</source>
        <translation>%1: no se puede dibujar antes de que exista el objeto de la aplicación.</translation>
    </message>
    <message>
        <source>The picture is too small for what it shows with its axes and texts: choose a larger size.</source>
        <translation>La imagen es demasiado pequeña para lo que muestra, con sus ejes y textos: elija un tamaño mayor.</translation>
    </message>
    <message>
        <source>The document has no traces to draw.</source>
        <translation>El documento no tiene trazas que dibujar.</translation>
    </message>
    <message>
        <source>The times from %1 to %2 ms cannot be drawn: choose a begin of 0 or more and an end after it.</source>
        <translation>No se pueden dibujar los tiempos de %1 a %2 ms: elija un inicio de 0 o más y un final posterior.</translation>
    </message>
    <message>
        <source>The gain of a gather must lie above 0 and not above %1.</source>
        <translation>La ganancia de las trazas de un disparo debe ser mayor que 0 y no superar %1.</translation>
    </message>
    <message>
        <source>Wiggles can be cut at more than 0 and up to 100 trace distances.</source>
        <translation>Las oscilaciones se pueden cortar a más de 0 y hasta 100 distancias entre trazas.</translation>
    </message>
    <message>
        <source>There is no shot %1 to draw: the document has %2 with traces.</source>
        <translation>No hay disparo %1 que dibujar: el documento tiene %2 con trazas.</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 disparo</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 disparos</translation>
    </message>
    <message>
        <source>The inversion has no misfit to draw.</source>
        <translation>La inversión no tiene desajuste que dibujar.</translation>
    </message>
    <message>
        <source>There are no residuals to draw.</source>
        <translation>No hay residuos que dibujar.</translation>
    </message>
    <message>
        <source>There is no refractor with a depth to draw.</source>
        <translation>No hay ningún refractor con profundidad que dibujar.</translation>
    </message>
    <message>
        <source>There is no survey to report on: load shot files or travel times first.</source>
        <translation>No hay ningún levantamiento sobre el que informar: cargue antes archivos de disparos o tiempos de recorrido.</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>El informe se ha detenido.</translation>
    </message>
    <message>
        <source>The vertical exaggeration must lie between 0.01 and 100, or be 0 to let the picture choose.</source>
        <translation>La exageración vertical debe estar entre 0,01 y 100, o ser 0 para que la elija la imagen.</translation>
    </message>
    <message>
        <source>The palette &quot;%1&quot; has no colours.</source>
        <translation>La paleta «%1» no tiene colores.</translation>
    </message>
    <message>
        <source>The section has no extent to draw.</source>
        <translation>La sección no tiene extensión que dibujar.</translation>
    </message>
    <message>
        <source>The picture is too small for the section with its axes and texts: choose a larger size.</source>
        <translation>La imagen es demasiado pequeña para la sección, con sus ejes y textos: elija un tamaño mayor.</translation>
    </message>
    <message>
        <source>There are no travel times to draw: pick first breaks, or load travel times, first.</source>
        <translation>No hay tiempos de recorrido que dibujar: pique antes primeras llegadas o cargue tiempos de recorrido.</translation>
    </message>
    <message>
        <source>The document cannot be packed: %1</source>
        <translation>No se puede empaquetar el documento: %1</translation>
    </message>
    <message>
        <source>its bytes cannot be read back</source>
        <translation>sus bytes no se pueden volver a leer</translation>
    </message>
    <message>
        <source>cell %1 has no valid velocity (slowness %2 s/m)</source>
        <translation>la celda %1 no tiene una velocidad válida (lentitud %2 s/m)</translation>
    </message>
    <message>
        <source>A grid of %1 rows and %2 columns with %3 nodes per side %4</source>
        <translation>Una malla de %1 filas y %2 columnas con %3 nodos por lado %4</translation>
    </message>
    <message>
        <source>has no cells; choose cells smaller than the array is long.</source>
        <translation>no tiene celdas; elija celdas más pequeñas que la longitud del tendido.</translation>
    </message>
    <message>
        <source>has %1 nodes; at most %2 can be numbered. Choose larger cells or a smaller depth.</source>
        <translation>tiene %1 nodos; se pueden numerar %2 como máximo. Elija celdas más grandes o una profundidad menor.</translation>
    </message>
    <message>
        <source>needs about %1 MiB, but only %2 MiB are free. Choose larger cells or a smaller depth.</source>
        <translation>necesita unos %1 MiB, pero solo hay libres %2 MiB. Elija celdas más grandes o una profundidad menor.</translation>
    </message>
    <message>
        <source>No layer is left: a layer&apos;s final depth must be greater than its initial depth, and that not negative.</source>
        <translation>No queda ninguna capa: la profundidad final de una capa debe ser mayor que la inicial, y esta no puede ser negativa.</translation>
    </message>
    <message>
        <source>The grid of the layered model could not be built.</source>
        <translation>No se ha podido construir la malla del modelo de capas.</translation>
    </message>
    <message>
        <source>the line holds %1 characters, more than the limit of %2; split the table into one file per spread</source>
        <translation>la línea contiene %1 caracteres, más que el límite de %2; divida la tabla en un archivo por tendido</translation>
    </message>
    <message>
        <source>the first line names no receiver</source>
        <translation>la primera línea no nombra ningún receptor</translation>
    </message>
    <message>
        <source>there are %1 for %2</source>
        <translation>hay %1 para %2</translation>
    </message>
    <message>
        <source>%1 without an elevation were taken to lie at 0</source>
        <translation>se ha tomado la cota 0 para %1 sin cota</translation>
    </message>
    <message>
        <source>the shot has no elevation</source>
        <translation>el disparo no tiene cota</translation>
    </message>
    <message>
        <source>line %1: only %2 for %3</source>
        <translation>línea %1: solo %2 para %3</translation>
    </message>
    <message>
        <source>the %1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>invalid stod argument</source>
        <translation>argumento de stod no válido</translation>
    </message>
    <message>
        <source>stod argument out of range</source>
        <translation>argumento de stod fuera de rango</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3</translation>
    </message>
    <message>
        <source>Cannot write %1: there are %2 labels for %3 records</source>
        <translation>No se puede escribir %1: hay %2 etiquetas para %3 registros</translation>
    </message>
    <message>
        <source>the line holds more than %1 characters</source>
        <translation>la línea contiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>line %1 has no x and z; check the separator</source>
        <translation>la línea %1 no tiene x ni z; compruebe el separador</translation>
    </message>
    <message>
        <source>%1, line %2 does not begin with a number; check the separator</source>
        <translation>%1, línea %2: no empieza por un número; compruebe el separador</translation>
    </message>
    <message>
        <source>%1 holds more than %2 values</source>
        <translation>%1 contiene más de %2 valores</translation>
    </message>
    <message>
        <source>there are only %1 shots</source>
        <translation>solo hay %1 disparos</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a layer number: 0 for none, 1, 2 or 3</source>
        <translation>«%1» no es un número de capa: 0 para ninguna, 1, 2 o 3</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, which is not how many layer numbers there are</source>
        <translation>el disparo %1 tiene %2 trazas, y no es ese el número de capas indicadas</translation>
    </message>
    <message>
        <source>%1: it holds layers of %2 shots, and there are %3</source>
        <translation>%1: contiene capas de %2 disparos, y hay %3</translation>
    </message>
    <message>
        <source>the first line is %1 where &quot;otte&quot; must stand</source>
        <translation>la primera línea es %1, donde debe estar «otte»</translation>
    </message>
    <message>
        <source>the format version is missing</source>
        <translation>falta la versión del formato</translation>
    </message>
    <message>
        <source>the format version %1 was read as &quot;1.0&quot;</source>
        <translation>la versión de formato %1 se ha leído como «1.0»</translation>
    </message>
    <message>
        <source>line 3 holds %1, not 2</source>
        <translation>la línea 3 contiene %1, no 2</translation>
    </message>
    <message>
        <source>the %1 is missing</source>
        <translation>falta: %1</translation>
    </message>
    <message>
        <source>the line of each %1 is missing</source>
        <translation>falta la línea de valores: %1</translation>
    </message>
    <message>
        <source>there are %1 but %2</source>
        <translation>hay %1 pero %2</translation>
    </message>
    <message>
        <source>the file names %1 strings for %2 and %3</source>
        <translation>el archivo indica %1 tendidos para %2 y %3</translation>
    </message>
    <message>
        <source>there are more records than the %1</source>
        <translation>hay más registros que %1</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2</source>
        <translation>el archivo termina tras %1 de %2</translation>
    </message>
    <message>
        <source>the record names string %1 of %2</source>
        <translation>el registro nombra el tendido %1 de %2</translation>
    </message>
    <message>
        <source>record %1 names trace set %2; it was taken for that of its own place</source>
        <translation>el registro %1 nombra el conjunto de trazas %2; se ha tomado el que corresponde a su propio lugar</translation>
    </message>
    <message>
        <source>the last line does not end in &quot;;&quot;: the file may be cut short</source>
        <translation>la última línea no termina en «;»: el archivo puede estar truncado</translation>
    </message>
    <message>
        <source>the records need %1 in %2, the file holds %3</source>
        <translation>los registros necesitan %1 en %2, el archivo contiene %3</translation>
    </message>
    <message>
        <source>no string claims the last %1: a record of each string must hold one time per geophone</source>
        <translation>al final quedan %1 que ningún tendido reclama: un registro de cada tendido debe contener un tiempo por geófono</translation>
    </message>
    <message>
        <source>the strings without a record do not share %1 equally; the first ones took one more</source>
        <translation>los tendidos sin registro no se reparten %1 por igual; los primeros han tomado uno más</translation>
    </message>
    <message>
        <source>record %1 holds %2 for %3</source>
        <translation>el registro %1 contiene %2 para %3</translation>
    </message>
    <message>
        <source>%1 is too large for a palette</source>
        <translation>%1 es demasiado grande para una paleta</translation>
    </message>
    <message>
        <source>%1 is no palette file: %2</source>
        <translation>%1 no es un archivo de paleta: %2</translation>
    </message>
    <message>
        <source>the byte order mark before the first line was ignored</source>
        <translation>se ha pasado por alto la marca de orden de bytes que precede a la primera línea</translation>
    </message>
    <message>
        <source>the %1 %2 is not a number</source>
        <translation>%1 %2: no es un número</translation>
    </message>
    <message>
        <source>the %1 %2 is out of range</source>
        <translation>%1 %2: fuera de rango</translation>
    </message>
    <message>
        <source>the %1 %2 is not finite</source>
        <translation>%1 %2: no es un valor finito</translation>
    </message>
    <message>
        <source>the %1 %2 is not a whole number</source>
        <translation>%1 %2: no es un número entero</translation>
    </message>
    <message>
        <source>and more of this kind</source>
        <translation>y más de este tipo</translation>
    </message>
    <message>
        <source>line %1 and what follows it was ignored</source>
        <translation>se ha pasado por alto la línea %1 y lo que la sigue</translation>
    </message>
    <message>
        <source>the file holds no shot</source>
        <translation>el archivo no contiene ningún disparo</translation>
    </message>
    <message>
        <source>Invalid phone list : %1</source>
        <translation>Lista de geófonos no válida: %1</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 para %2</translation>
    </message>
    <message>
        <source>Invalid header : %1</source>
        <translation>Encabezado no válido: %1</translation>
    </message>
    <message>
        <source>%1 must stand here</source>
        <translation>aquí debe estar %1</translation>
    </message>
    <message>
        <source>Invalid match : %1</source>
        <translation>Correspondencia no válida: %1</translation>
    </message>
    <message>
        <source>line %1: %2 is not a number and was taken as 0</source>
        <translation>línea %1: %2 no es un número y se ha tomado como 0</translation>
    </message>
    <message>
        <source>line %1: number %2 is named twice; its last value was taken</source>
        <translation>línea %1: el número %2 aparece dos veces; se ha tomado su último valor</translation>
    </message>
    <message>
        <source>number %1 is not known</source>
        <translation>no se conoce el número %1</translation>
    </message>
    <message>
        <source>%1 %2 has no %3</source>
        <translation>%1 %2 sin %3</translation>
    </message>
    <message>
        <source>Invalid times : %1</source>
        <translation>Tiempos no válidos: %1</translation>
    </message>
    <message>
        <source>%1 of shot %2 for %3</source>
        <translation>%1 del disparo %2 para %3</translation>
    </message>
    <message>
        <source>geophone distance</source>
        <translation>distancia del geófono</translation>
    </message>
    <message>
        <source>geophone elevation</source>
        <translation>cota del geófono</translation>
    </message>
    <message>
        <source>shot distance</source>
        <translation>distancia del disparo</translation>
    </message>
    <message>
        <source>shot elevation</source>
        <translation>cota del disparo</translation>
    </message>
    <message>
        <source>receiver number</source>
        <translation>número del receptor</translation>
    </message>
    <message>
        <source>receiver distance</source>
        <translation>distancia del receptor</translation>
    </message>
    <message>
        <source>receiver elevation</source>
        <translation>cota del receptor</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>distancia</translation>
    </message>
    <message>
        <source>elevation</source>
        <translation>cota</translation>
    </message>
    <message>
        <source>shot</source>
        <translation>disparo</translation>
    </message>
    <message>
        <source>receiver</source>
        <translation>receptor</translation>
    </message>
    <message>
        <source>time</source>
        <translation>tiempo</translation>
    </message>
    <message>
        <source>first-break time</source>
        <translation>tiempo de primera llegada</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>format constant 2</source>
        <translation>constante de formato 2</translation>
    </message>
    <message>
        <source>number of geophone strings</source>
        <translation>número de tendidos de geófonos</translation>
    </message>
    <message>
        <source>string of the record</source>
        <translation>tendido del registro</translation>
    </message>
    <message>
        <source>trace set of the record</source>
        <translation>conjunto de trazas del registro</translation>
    </message>
    <message>
        <source>%1 geophone</source>
        <translation>%1 geófono</translation>
    </message>
    <message>
        <source>%1 geophones</source>
        <translation>%1 geófonos</translation>
    </message>
    <message>
        <source>%1 receiver</source>
        <translation>%1 receptor</translation>
    </message>
    <message>
        <source>%1 receivers</source>
        <translation>%1 receptores</translation>
    </message>
    <message>
        <source>%1 shot</source>
        <translation>%1 disparo</translation>
    </message>
    <message>
        <source>%1 shot position</source>
        <translation>%1 posición de disparo</translation>
    </message>
    <message>
        <source>%1 shot positions</source>
        <translation>%1 posiciones de disparo</translation>
    </message>
    <message>
        <source>%1 geophone distance</source>
        <translation>%1 distancia de geófono</translation>
    </message>
    <message>
        <source>%1 geophone distances</source>
        <translation>%1 distancias de geófonos</translation>
    </message>
    <message>
        <source>%1 shot distance</source>
        <translation>%1 distancia de disparo</translation>
    </message>
    <message>
        <source>%1 shot distances</source>
        <translation>%1 distancias de disparos</translation>
    </message>
    <message>
        <source>%1 elevation</source>
        <translation>%1 cota</translation>
    </message>
    <message>
        <source>%1 elevations</source>
        <translation>%1 cotas</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 tiempo</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1 tiempos</translation>
    </message>
    <message>
        <source>%1 record</source>
        <translation>%1 registro</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 registros</translation>
    </message>
    <message>
        <source>%1 string</source>
        <translation>%1 tendido</translation>
    </message>
    <message>
        <source>%1 strings</source>
        <translation>%1 tendidos</translation>
    </message>
    <message>
        <source>%1 number</source>
        <translation>%1 número</translation>
    </message>
    <message>
        <source>%1 numbers</source>
        <translation>%1 números</translation>
    </message>
    <message>
        <source>%1 value</source>
        <translation>%1 valor</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 valores</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities and %4 draw flags</source>
        <translation>%1 filas de %2 columnas no concuerdan con %3 velocidades y %4 marcas de dibujo</translation>
    </message>
    <message>
        <source>cells with %1 nodes per side, %2 long, cannot be</source>
        <translation>son imposibles celdas con %1 nodos por lado y %2 de longitud</translation>
    </message>
    <message>
        <source>a velocity is not a positive number</source>
        <translation>una velocidad no es un número positivo</translation>
    </message>
    <message>
        <source>there is a grid, but no two geophones</source>
        <translation>hay una malla, pero no hay dos geófonos</translation>
    </message>
    <message>
        <source>the grid cannot be built</source>
        <translation>no se puede construir la malla</translation>
    </message>
    <message>
        <source>the limit of its rays lies off the line; it is left out</source>
        <translation>el límite de sus rayos queda fuera de la línea; se ha descartado</translation>
    </message>
    <message>
        <source>its information density does not fit the grid; it is left out</source>
        <translation>su densidad de información no corresponde a la malla; se ha descartado</translation>
    </message>
    <message>
        <source>what it tells of its last inversion cannot be; it is left out</source>
        <translation>lo que indica de su última inversión es imposible; se ha descartado</translation>
    </message>
    <message>
        <source>a geophone has no place</source>
        <translation>un geófono no tiene posición</translation>
    </message>
    <message>
        <source>a shot was recorded by geophone string %1 of %2</source>
        <translation>un disparo se registró con el tendido de geófonos %1 de %2</translation>
    </message>
    <message>
        <source>a shot has no place</source>
        <translation>un disparo no tiene posición</translation>
    </message>
    <message>
        <source>the grid cannot be built: %1</source>
        <translation>no se puede construir la malla: %1</translation>
    </message>
    <message>
        <source>layers belong to shot %1, but %2 shots exist</source>
        <translation>hay capas del disparo %1, pero existen %2 disparos</translation>
    </message>
    <message>
        <source>an arrival belongs to a layer that does not exist</source>
        <translation>una llegada pertenece a una capa que no existe</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>You may not read it.</source>
        <translation>No tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>It cannot be extracted: %1.</source>
        <translation>No se puede extraer: %1.</translation>
    </message>
    <message>
        <source>No temporary folder can be created in %1.</source>
        <translation>No se puede crear ninguna carpeta temporal en %1.</translation>
    </message>
    <message>
        <source>It cannot be extracted.</source>
        <translation>No se puede extraer.</translation>
    </message>
    <message>
        <source>It cannot be loaded: %1</source>
        <translation>No se puede cargar: %1</translation>
    </message>
    <message>
        <source>its title has control characters or is too long; it reads %1 now</source>
        <translation>su título contiene caracteres de control o es demasiado largo; ahora es %1</translation>
    </message>
    <message>
        <source>its RMS misfit is no number; it is left out</source>
        <translation>su desajuste RMS no es un número; se ha descartado</translation>
    </message>
    <message>
        <source>its limits of velocity cannot be; they are as in a new survey</source>
        <translation>sus límites de velocidad son imposibles; ahora son los de un levantamiento nuevo</translation>
    </message>
    <message>
        <source>a layer of its starting model cannot be; the model is left out</source>
        <translation>una capa de su modelo inicial es imposible; el modelo se ha descartado</translation>
    </message>
    <message>
        <source>a cell size that it proposes cannot be; it proposes new ones</source>
        <translation>un tamaño de celda que propone es imposible; propone otros nuevos</translation>
    </message>
    <message>
        <source>its geographic coordinates are no numbers; they are left out</source>
        <translation>sus coordenadas geográficas no son números; se han descartado</translation>
    </message>
    <message>
        <source>no section can be drawn with a vertical exaggeration of %1; it is %2 now</source>
        <translation>no se puede dibujar ninguna sección con una exageración vertical de %1; ahora es %2</translation>
    </message>
    <message>
        <source>its contours cannot be drawn so; they are put right</source>
        <translation>sus isolíneas no se pueden dibujar así; se han corregido</translation>
    </message>
    <message>
        <source>its section shows a quantity that does not exist; it is the velocity now</source>
        <translation>su sección muestra una magnitud que no existe; ahora es la velocidad</translation>
    </message>
    <message>
        <source>its geophone markers have a size that does not exist; it is normal now</source>
        <translation>sus marcas de geófonos tienen un tamaño que no existe; ahora es el normal</translation>
    </message>
    <message>
        <source>a time shift of its arrivals cannot be; it is 0 now</source>
        <translation>un desplazamiento en tiempo de sus llegadas es imposible; ahora es 0</translation>
    </message>
    <message>
        <source>its layered profile cannot be; it is left out and can be built again</source>
        <translation>su perfil de capas es imposible; se ha descartado y se puede volver a construir</translation>
    </message>
    <message>
        <source>its coverage and figures do not go with the grid and the inversion of the project</source>
        <translation>su cobertura y sus cifras no concuerdan con la malla y la inversión del proyecto</translation>
    </message>
    <message>
        <source>%1 is no name of a file</source>
        <translation>%1 no es un nombre de archivo</translation>
    </message>
    <message>
        <source>trace set %1 has %2 traces, but %3 filtered copies</source>
        <translation>el conjunto de trazas %1 tiene %2 trazas, pero %3 copias filtradas</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten and its traces are empty</source>
        <translation>disparo %1: su archivo de disparo se llama %2, que no es un simple nombre de archivo; el nombre se ha descartado y sus trazas están vacías</translation>
    </message>
    <message>
        <source>shot %1: its shot file is called %2, which is no plain file name; the name is forgotten</source>
        <translation>disparo %1: su archivo de disparo se llama %2, que no es un simple nombre de archivo; el nombre se ha descartado</translation>
    </message>
    <message>
        <source>%1 has %2 traces instead of %3</source>
        <translation>%1 tiene %2 trazas en lugar de %3</translation>
    </message>
    <message>
        <source>there are %1 trace sets, but %2 travel-time records</source>
        <translation>hay %1 conjuntos de trazas, pero %2 registros de tiempos de recorrido</translation>
    </message>
    <message>
        <source>no travel-time record belongs to trace set %1</source>
        <translation>ningún registro de tiempos de recorrido pertenece al conjunto de trazas %1</translation>
    </message>
    <message>
        <source>%1 and %2 have different numbers of traces</source>
        <translation>%1 y %2 tienen distinto número de trazas</translation>
    </message>
    <message>
        <source>wave type %1 does not exist</source>
        <translation>el tipo de onda %1 no existe</translation>
    </message>
    <message>
        <source>there are more files or filtered copies than trace sets</source>
        <translation>hay más archivos o copias filtradas que conjuntos de trazas</translation>
    </message>
    <message>
        <source>trace set %1 has a position or delay that cannot be</source>
        <translation>el conjunto de trazas %1 tiene una posición o un retardo imposible</translation>
    </message>
    <message>
        <source>trace set %1 has a sample that is no finite number</source>
        <translation>el conjunto de trazas %1 tiene una muestra que no es un número finito</translation>
    </message>
    <message>
        <source>Its parts cannot be written in %1; is the disk full?</source>
        <translation>No se pueden escribir sus partes en %1; ¿está lleno el disco?</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written.</source>
        <translation>El archivo comprimido %1 no se puede escribir.</translation>
    </message>
    <message>
        <source>It cannot be put together: %1</source>
        <translation>No se puede componer: %1</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>it unpacks to more than %1, which no project of %2 does</source>
        <translation>descomprimido ocupa más de %1, lo que no ocurre con ningún proyecto de %2</translation>
    </message>
    <message>
        <source>it unpacks to %1 or more, and the disk has room for %2</source>
        <translation>descomprimido ocupa %1 o más, y en el disco hay sitio para %2</translation>
    </message>
    <message>
        <source>%1 cannot be extracted: %2</source>
        <translation>%1 no se puede extraer: %2</translation>
    </message>
    <message>
        <source>%1 in it cannot be read: %2</source>
        <translation>no se puede leer el archivo %1 que contiene: %2</translation>
    </message>
    <message>
        <source>%1 in it is damaged: %2</source>
        <translation>el archivo %1 que contiene está dañado: %2</translation>
    </message>
    <message>
        <source>%1 in it is not as long as it says</source>
        <translation>el archivo %1 que contiene no tiene la longitud que indica</translation>
    </message>
    <message>
        <source>The file %1 cannot be added to the archive.</source>
        <translation>El archivo %1 no se puede añadir al archivo comprimido.</translation>
    </message>
    <message>
        <source>The archive %1 cannot be written: %2.</source>
        <translation>El archivo comprimido %1 no se puede escribir: %2.</translation>
    </message>
    <message>
        <source>it holds %1 files, more than %2</source>
        <translation>contiene %1 archivos, más de %2</translation>
    </message>
    <message>
        <source>%1 in it is no name of a file without a folder</source>
        <translation>el nombre %1 que contiene no es un nombre de archivo sin carpeta</translation>
    </message>
    <message>
        <source>two files in it are called %1</source>
        <translation>dos archivos que contiene se llaman %1</translation>
    </message>
    <message>
        <source>The files of the project are %1, more than the %2 that can be opened again.</source>
        <translation>Los archivos del proyecto ocupan %1, más de los %2 que se pueden volver a abrir.</translation>
    </message>
    <message>
        <source>it is no archive of a project, or damaged: %1</source>
        <translation>no es el archivo comprimido de un proyecto, o está dañado: %1</translation>
    </message>
    <message>
        <source>there is nothing in it</source>
        <translation>no contiene nada</translation>
    </message>
    <message>
        <source>it is no archive of a project: there is no %1 in it</source>
        <translation>no es el archivo comprimido de un proyecto: no contiene %1</translation>
    </message>
    <message>
        <source>its list of files is damaged</source>
        <translation>su lista de archivos está dañada</translation>
    </message>
    <message>
        <source>it cannot be closed: %1</source>
        <translation>no se puede cerrar: %1</translation>
    </message>
    <message>
        <source>its headers promise %1 traces of more data than can come from %2 bytes; the file is damaged or no shot file</source>
        <translation>sus cabeceras anuncian %1 trazas, con más datos de los que pueden salir de %2 bytes; el archivo está dañado o no es un archivo de disparo</translation>
    </message>
    <message>
        <source>trace %1</source>
        <translation>la traza %1</translation>
    </message>
    <message>
        <source>%1 traces, the first of them trace %2,</source>
        <translation>%1 trazas, la primera de ellas la traza %2</translation>
    </message>
    <message>
        <source>the %1 in the header of %2 is no finite number; what cannot be used of it was taken as 0</source>
        <translation>%1 en la cabecera de %2: no es un número finito; lo que no se puede usar se ha tomado como 0</translation>
    </message>
    <message>
        <source>it is no SEG-2 file of little-endian numbers</source>
        <translation>no es un archivo SEG-2 con números little-endian</translation>
    </message>
    <message>
        <source>its last trace has no usable sample interval</source>
        <translation>su última traza no tiene un intervalo de muestreo utilizable</translation>
    </message>
    <message>
        <source>source position</source>
        <translation>posición de la fuente</translation>
    </message>
    <message>
        <source>receiver position</source>
        <translation>posición del receptor</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>retardo</translation>
    </message>
    <message>
        <source>data format code %1: one 16-bit sample is taken of every four bytes</source>
        <translation>código de formato de datos %1: se toma una muestra de 16 bits de cada cuatro bytes</translation>
    </message>
    <message>
        <source>data format code %1 is not read; its samples are 0</source>
        <translation>el código de formato de datos %1 no se lee; sus muestras son 0</translation>
    </message>
    <message>
        <source>its traces are taken to lie as close as the 16-bit data of the SEG-Y file before it</source>
        <translation>se supone que sus trazas están tan juntas como los datos de 16 bits del archivo SEG-Y anterior</translation>
    </message>
    <message>
        <source>it says that its numbers are little-endian, but is read big-endian as a file before it; load the little-endian files first</source>
        <translation>indica que sus números son little-endian, pero se lee como big-endian, igual que un archivo anterior; cargue primero los archivos little-endian</translation>
    </message>
    <message>
        <source>its numbers seem to be in the other byte order; load a SEG-Y file of that order first</source>
        <translation>sus números parecen estar en el otro orden de bytes; cargue primero un archivo SEG-Y de ese orden</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 bytes after the traces that its headers name were not read</source>
        <translation>no se han leído %1 bytes posteriores a las trazas que indican sus cabeceras</translation>
    </message>
    <message>
        <source>data format code %1 (IBM floats) is not read; its samples are 0</source>
        <translation>el código de formato de datos %1 (coma flotante IBM) no se lee; sus muestras son 0</translation>
    </message>
    <message>
        <source>Error while loading %1</source>
        <translation>Error al cargar %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>the survey holds S-wave pairs; add more of them in the survey geometry, or start a new survey to load shot files</source>
        <translation>el levantamiento contiene pares de onda S; añada más en la geometría del levantamiento, o inicie un levantamiento nuevo para cargar archivos de disparos</translation>
    </message>
    <message>
        <source>the survey holds picks without traces; start a new survey to load shot files</source>
        <translation>el levantamiento contiene picados sin trazas; inicie un levantamiento nuevo para cargar archivos de disparos</translation>
    </message>
    <message>
        <source>the file holds no trace</source>
        <translation>el archivo no contiene ninguna traza</translation>
    </message>
    <message>
        <source>the file is cut short: %1 bytes that its headers promise are missing and were taken as zeros</source>
        <translation>el archivo está truncado: faltan %1 bytes que anuncian sus cabeceras y se han tomado como ceros</translation>
    </message>
    <message>
        <source>%1 samples that are no finite numbers were set to 0</source>
        <translation>%1 muestras que no son números finitos se han puesto a 0</translation>
    </message>
    <message>
        <source>its traces have different numbers of samples</source>
        <translation>sus trazas tienen distinto número de muestras</translation>
    </message>
    <message>
        <source>its traces have different sample intervals</source>
        <translation>sus trazas tienen distintos intervalos de muestreo</translation>
    </message>
    <message>
        <source>a sample interval is not positive, so that times mean nothing</source>
        <translation>un intervalo de muestreo no es positivo, así que los tiempos carecen de sentido</translation>
    </message>
    <message>
        <source>The shot file %1 could not be copied; its traces are saved without it.</source>
        <translation>No se ha podido copiar el archivo de disparo %1; sus trazas se guardan sin él.</translation>
    </message>
    <message>
        <source>Of the shot files %1 and %2 only the second is in the project; the traces of both are.</source>
        <translation>De los archivos de disparo %1 y %2 solo el segundo está en el proyecto; las trazas de ambos sí lo están.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>a file holds no traces</source>
        <translation>un archivo no contiene trazas</translation>
    </message>
    <message>
        <source>the DX file has %1 traces, the SX file %2</source>
        <translation>el archivo DX tiene %1 trazas; el archivo SX, %2</translation>
    </message>
    <message>
        <source>trace %1 has a sample interval of %2 in the DX file and of %3 in the SX file</source>
        <translation>la traza %1 tiene un intervalo de muestreo de %2 en el archivo DX y de %3 en el archivo SX</translation>
    </message>
    <message>
        <source>trace %1 has a delay of %2 in the DX file and of %3 in the SX file</source>
        <translation>la traza %1 tiene un retardo de %2 en el archivo DX y de %3 en el archivo SX</translation>
    </message>
    <message>
        <source>DX and SX differ in receiver positions; those of DX count</source>
        <translation>DX y SX difieren en las posiciones de los receptores; valen las de DX</translation>
    </message>
    <message>
        <source>DX and SX differ in source position; that of DX counts</source>
        <translation>DX y SX difieren en la posición de la fuente; vale la de DX</translation>
    </message>
    <message>
        <source>DX and SX differ in length; that of DX counts</source>
        <translation>DX y SX difieren en duración; vale la de DX</translation>
    </message>
    <message>
        <source>%1: DX and SX are the same file; their difference is nothing</source>
        <translation>%1: DX y SX son el mismo archivo; su diferencia es nula</translation>
    </message>
    <message>
        <source>%1 and %2 are no pair: %3</source>
        <translation>%1 y %2 no forman un par: %3</translation>
    </message>
    <message>
        <source>a geophone of string %1 has no finite position; edit the geometry first</source>
        <translation>un geófono del tendido %1 no tiene una posición finita; corrija antes la geometría</translation>
    </message>
    <message>
        <source>shot %1 has no finite position; edit the geometry first</source>
        <translation>el disparo %1 no tiene una posición finita; corrija antes la geometría</translation>
    </message>
    <message>
        <source>File %1 cannot be open.</source>
        <translation>El archivo %1 no se puede abrir.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>a record names geophone string %1 of %2</source>
        <translation>un registro nombra el tendido de geófonos %1 de %2</translation>
    </message>
    <message>
        <source>the file holds picks of %1 shots, the survey has %2; the picks were not taken</source>
        <translation>el archivo contiene picados de %1 disparos, el levantamiento tiene %2; no se han tomado los picados</translation>
    </message>
    <message>
        <source>trace set %1 is named twice or not in the survey; the picks were not taken</source>
        <translation>el conjunto de trazas %1 aparece dos veces o no está en el levantamiento; no se han tomado los picados</translation>
    </message>
    <message>
        <source>the file holds %1 times for trace set %2, which has %3 traces; the picks were not taken</source>
        <translation>el archivo contiene %1 tiempos para el conjunto de trazas %2, que tiene %3 trazas; no se han tomado los picados</translation>
    </message>
    <message>
        <source>a record of the survey has no trace set; the picks were not taken</source>
        <translation>un registro del levantamiento no tiene conjunto de trazas; no se han tomado los picados</translation>
    </message>
    <message>
        <source>the line &quot;INFO&quot; is missing</source>
        <translation>falta la línea «INFO»</translation>
    </message>
    <message>
        <source>the line begins with %1 where %2 must stand</source>
        <translation>la línea empieza por %1, donde debe estar %2</translation>
    </message>
    <message>
        <source>the line %1 is missing</source>
        <translation>falta la línea %1</translation>
    </message>
    <message>
        <source>%1 stands without a value</source>
        <translation>%1 no lleva ningún valor</translation>
    </message>
    <message>
        <source>the %1 is negative</source>
        <translation>el valor de %1 es negativo</translation>
    </message>
    <message>
        <source>the file ends before its last receiver line</source>
        <translation>el archivo termina antes de su última línea de receptor</translation>
    </message>
    <message>
        <source>the receiver line holds %1 instead of 4</source>
        <translation>la línea de receptor contiene %1 en lugar de 4</translation>
    </message>
    <message>
        <source>the receiver line holds more than 4 values</source>
        <translation>la línea de receptor contiene más de 4 valores</translation>
    </message>
    <message>
        <source>the root element is not &quot;%1&quot;</source>
        <translation>el elemento raíz no es «%1»</translation>
    </message>
    <message>
        <source>the document ends too early</source>
        <translation>el documento termina antes de tiempo</translation>
    </message>
    <message>
        <source>a &apos;%1&apos; is missing</source>
        <translation>falta «%1»</translation>
    </message>
    <message>
        <source>it declares a document type or a data section</source>
        <translation>declara un tipo de documento o una sección de datos</translation>
    </message>
    <message>
        <source>an element has too long a name</source>
        <translation>un elemento tiene un nombre demasiado largo</translation>
    </message>
    <message>
        <source>an element has no name</source>
        <translation>un elemento no tiene nombre</translation>
    </message>
    <message>
        <source>an attribute has no quotes</source>
        <translation>un atributo no tiene comillas</translation>
    </message>
    <message>
        <source>an attribute does not end</source>
        <translation>un atributo no termina</translation>
    </message>
    <message>
        <source>its elements are nested too deep</source>
        <translation>sus elementos están anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends where &quot;%2&quot; should</source>
        <translation>«%1» termina donde debería terminar «%2»</translation>
    </message>
    <message>
        <source>something follows the root element</source>
        <translation>algo sigue al elemento raíz</translation>
    </message>
    <message>
        <source>there is text in &quot;%1&quot;, which holds elements</source>
        <translation>hay texto en «%1», que contiene elementos</translation>
    </message>
    <message>
        <source>an entity does not end</source>
        <translation>una entidad no termina</translation>
    </message>
    <message>
        <source>an unknown entity</source>
        <translation>una entidad desconocida</translation>
    </message>
    <message>
        <source>a character that does not exist</source>
        <translation>un carácter que no existe</translation>
    </message>
    <message>
        <source>a byte of value 0</source>
        <translation>un byte de valor 0</translation>
    </message>
    <message>
        <source>there is an element in &quot;%1&quot;, which holds text</source>
        <translation>hay un elemento en «%1», que contiene texto</translation>
    </message>
    <message>
        <source>a text is too long</source>
        <translation>un texto es demasiado largo</translation>
    </message>
    <message>
        <source>it holds too many sequences</source>
        <translation>contiene demasiadas secuencias</translation>
    </message>
    <message>
        <source>it holds bytes that no text holds</source>
        <translation>contiene bytes que ningún texto contiene</translation>
    </message>
    <message>
        <source>it holds no XML</source>
        <translation>no contiene XML</translation>
    </message>
    <message>
        <source>it ends within an element</source>
        <translation>termina dentro de un elemento</translation>
    </message>
    <message>
        <source>it has a malformed tag</source>
        <translation>contiene una etiqueta mal formada</translation>
    </message>
    <message>
        <source>it has a document type or raw data, which no file of this kind has</source>
        <translation>contiene un tipo de documento o datos en bruto, que ningún archivo de esta clase tiene</translation>
    </message>
    <message>
        <source>it closes an element that it has not opened</source>
        <translation>cierra un elemento que no ha abierto</translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <translation>sus elementos están anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>not a finite time</source>
        <translation>no es un tiempo finito</translation>
    </message>
    <message>
        <source>%1, above an hour</source>
        <translation>%1, más de una hora</translation>
    </message>
    <message>
        <source>%1, beyond its record of %2</source>
        <translation>%1, más allá de su registro de %2</translation>
    </message>
    <message>
        <source>shot %1, trace %2 (%3)</source>
        <translation>disparo %1, traza %2 (%3)</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1; y %2 más</translation>
    </message>
    <message>
        <source>a pick that cannot be was dropped: %1</source>
        <translation>se ha descartado un picado imposible: %1</translation>
    </message>
    <message>
        <source>%1 picks that cannot be were dropped: %2</source>
        <translation>se han descartado %1 picados imposibles: %2</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>disparo %1</translation>
    </message>
    <message>
        <source>%1 has no traces to pick on</source>
        <translation>%1 no tiene trazas en las que picar</translation>
    </message>
    <message>
        <source>the machine has no memory left to pick first breaks</source>
        <translation>el equipo no tiene más memoria para picar primeras llegadas</translation>
    </message>
    <message>
        <source>%1 has no record of times to screen</source>
        <translation>%1 no tiene registro de tiempos que depurar</translation>
    </message>
    <message>
        <source>the picks of %1 are not screened: it has no geophone string</source>
        <translation>los picados de %1 no se depuran: no tiene tendido de geófonos</translation>
    </message>
    <message>
        <source>must be above 0 Hz and below %1 Hz, the highest frequency of the spectrum</source>
        <translation>debe ser mayor que 0 Hz y menor que %1 Hz, la frecuencia más alta del espectro</translation>
    </message>
    <message>
        <source>has no limit to keep to, as the spectrum has no frequency above 0 Hz: the traces are too short or their sample interval is not known</source>
        <translation>no tiene límite al que atenerse, porque el espectro no tiene ninguna frecuencia mayor que 0 Hz: las trazas son demasiado cortas o no se conoce su intervalo de muestreo</translation>
    </message>
    <message>
        <source>No filter applied. The %1 cut-off of %2 Hz %3.</source>
        <translation>No se ha aplicado ningún filtro. La frecuencia de corte del filtro %1, %2 Hz, %3.</translation>
    </message>
    <message>
        <source>there are no traces</source>
        <translation>no hay trazas</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>No se ha aplicado ningún filtro. El orden del filtro debe ser mayor que 0.</translation>
    </message>
    <message>
        <source>low-pass</source>
        <translation>paso bajo</translation>
    </message>
    <message>
        <source>high-pass</source>
        <translation>paso alto</translation>
    </message>
    <message>
        <source>sample %1 is %2, which no filter can take</source>
        <translation>la muestra %1 es %2, que ningún filtro admite</translation>
    </message>
    <message>
        <source>the result does not fit single precision; scale the samples down</source>
        <translation>el resultado no cabe en precisión simple; reduzca la escala de las muestras</translation>
    </message>
    <message>
        <source>No filter applied. Filter order %1 is above the limit of %2.</source>
        <translation>No se ha aplicado ningún filtro. El orden de filtro %1 supera el límite de %2.</translation>
    </message>
    <message>
        <source>No filter applied. The cut-off is %1 of the sample rate; it must be above 0 and below 0.5.</source>
        <translation>No se ha aplicado ningún filtro. La frecuencia de corte es %1 veces la de muestreo; debe ser mayor que 0 y menor que 0,5.</translation>
    </message>
    <message>
        <source>No filter applied. Single precision cannot hold a filter of order %1 with a cut-off of %2 of the sample rate; choose a lower order or a cut-off nearer to the middle of the range.</source>
        <translation>No se ha aplicado ningún filtro. En precisión simple no cabe un filtro de orden %1 con una frecuencia de corte de %2 veces la de muestreo; elija un orden menor o una frecuencia de corte más cercana al centro del rango.</translation>
    </message>
    <message>
        <source>No filter applied. The filter cannot be created.</source>
        <translation>No se ha aplicado ningún filtro. No se puede crear el filtro.</translation>
    </message>
    <message>
        <source>the energy of the samples does not fit single precision; scale them down</source>
        <translation>la energía de las muestras no cabe en precisión simple; reduzca su escala</translation>
    </message>
    <message>
        <source>There is no grid with cells; build the grid first.</source>
        <translation>No hay malla con celdas; construya antes la malla.</translation>
    </message>
    <message>
        <source>The velocity model cannot be used: %1</source>
        <translation>No se puede usar el modelo de velocidad: %1</translation>
    </message>
    <message>
        <source>Ray tracing of shot %1 failed: %2</source>
        <translation>El trazado de rayos del disparo %1 ha fallado: %2</translation>
    </message>
    <message>
        <source>Choose a positive cell size and no negative depth.</source>
        <translation>Elija un tamaño de celda positivo y una profundidad no negativa.</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
Please set the position of geophones
</source>
        <translation>¡Los geófonos no tienen geometría! 
Defina la posición de los geófonos
</translation>
    </message>
    <message>
        <source>A position of the survey lies more than 100 000 km away; please check the geometry.</source>
        <translation>Una posición del levantamiento está a más de 100&#xa0;000 km; compruebe la geometría.</translation>
    </message>
    <message>
        <source>A grid of cells of %1 with %2 nodes per side, %3 deep, cannot be built; choose a positive cell size, two nodes at least and no negative depth.</source>
        <translation>No se puede construir una malla de celdas de %1 con %2 nodos por lado y %3 de profundidad; elija un tamaño de celda positivo, al menos dos nodos y una profundidad no negativa.</translation>
    </message>
    <message>
        <source>The grid could not be built; see the error stream.</source>
        <translation>No se ha podido construir la malla; véase la salida de error.</translation>
    </message>
    <message>
        <source>The grid could not be built: %1</source>
        <translation>No se ha podido construir la malla: %1</translation>
    </message>
    <message>
        <source>There is no grid yet; build the grid first.</source>
        <translation>Aún no hay malla; construya antes la malla.</translation>
    </message>
    <message>
        <source>The smoothing parameter must be 1 at least.</source>
        <translation>El parámetro de suavizado debe ser 1 como mínimo.</translation>
    </message>
    <message>
        <source>The smoothed velocity model cannot be used: %1</source>
        <translation>No se puede usar el modelo de velocidad suavizado: %1</translation>
    </message>
    <message>
        <source>The grid could not be smoothed: %1</source>
        <translation>No se ha podido suavizar la malla: %1</translation>
    </message>
    <message>
        <source>The rays could not be traced: %1</source>
        <translation>No se han podido trazar los rayos: %1</translation>
    </message>
    <message>
        <source>Iterations and smoothing parameter must be 1 at least.</source>
        <translation>Las iteraciones y el parámetro de suavizado deben ser 1 como mínimo.</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers; %1 is none.</source>
        <translation>Los límites de velocidad deben ser números positivos; %1 no lo es.</translation>
    </message>
    <message>
        <source>its gradient has no colours</source>
        <translation>su degradado no tiene colores</translation>
    </message>
    <message>
        <source>a colour stop of its gradient is not a finite number</source>
        <translation>un punto de color de su degradado no es un número finito</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>su nombre es demasiado largo</translation>
    </message>
    <message>
        <source>its range of values is out of bounds</source>
        <translation>su rango de valores está fuera de los límites</translation>
    </message>
    <message>
        <source>its gradient has %1 colour stops, more than %2</source>
        <translation>su degradado tiene %1 puntos de color, más de %2</translation>
    </message>
    <message>
        <source>A section has 0 to %1 contour values.</source>
        <translation>Una sección tiene de 0 a %1 valores de isolíneas.</translation>
    </message>
    <message>
        <source>The value range of the section is empty: its maximum must be greater than its minimum.</source>
        <translation>El rango de valores de la sección está vacío: su máximo debe ser mayor que su mínimo.</translation>
    </message>
    <message>
        <source>There is no section to draw: no cell that is shown has a value for &quot;%1&quot;.</source>
        <translation>No hay sección que dibujar: ninguna celda de las mostradas tiene un valor de «%1».</translation>
    </message>
    <message>
        <source>There is no section to draw: the survey has no grid yet. Build one.</source>
        <translation>No hay sección que dibujar: el levantamiento aún no tiene malla. Construya una.</translation>
    </message>
    <message>
        <source>Vertical gradient of velocity</source>
        <translation>Gradiente vertical de velocidad</translation>
    </message>
    <message>
        <source>Laplacian of velocity</source>
        <translation>Laplaciano de la velocidad</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densidad de información</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>The layers give a velocity of %1 at a depth of %2, which is no velocity of the ground. Let the layers cover the whole depth of the grid, or make the change between them gentler.</source>
        <translation>Las capas dan una velocidad de %1 a %2 de profundidad, que no es una velocidad del terreno. Haga que las capas cubran toda la profundidad de la malla, o suavice el paso de una a otra.</translation>
    </message>
    <message>
        <source>a number is out of range or not finite</source>
        <translation>un número está fuera de rango o no es finito</translation>
    </message>
    <message>
        <source>the value of %1 is not a number it can hold</source>
        <translation>el valor de %1 no es un número posible</translation>
    </message>
    <message>
        <source>palette %1: %2</source>
        <translation>paleta %1: %2</translation>
    </message>
    <message>
        <source>there are no palettes in it</source>
        <translation>no contiene ninguna paleta</translation>
    </message>
    <message>
        <source>palette %1: %2; it is left out</source>
        <translation>paleta %1: %2; se omite</translation>
    </message>
    <message>
        <source>the name of palette %1 has control characters; they are blanks now</source>
        <translation>el nombre de la paleta %1 tiene caracteres de control; ahora son espacios</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number that it can hold</source>
        <translation>«%1» no es un número posible</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>«%1» no es ni verdadero ni falso</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>«%1» está dos veces</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>falta «%1»</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>The last steps of the inversion failed: %1</source>
        <translation>Los últimos pasos de la inversión fallaron: %1</translation>
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
        <translation>Todos los archivos (*)</translation>
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
        <translation>Curvas T-x (%1)</translation>
    </message>
    <message>
        <source>Sectioned pick table (%1)</source>
        <translation>Tabla de picados por secciones (%1)</translation>
    </message>
    <message>
        <source>Pick table (%1)</source>
        <translation>Tabla de picados (%1)</translation>
    </message>
    <message>
        <source>Talvesk projects (%1)</source>
        <translation>Proyectos de Talvesk (%1)</translation>
    </message>
    <message>
        <source>Seismic files (%1)</source>
        <translation>Archivos sísmicos (%1)</translation>
    </message>
    <message>
        <source>Travel times (%1)</source>
        <translation>Tiempos de recorrido (%1)</translation>
    </message>
    <message>
        <source>the coverage of the last inversion and its figures are not known</source>
        <translation>no se conocen la cobertura de la última inversión ni sus cifras</translation>
    </message>
    <message>
        <source>every pick counts as confirmed</source>
        <translation>todos los picados cuentan como confirmados</translation>
    </message>
    <message>
        <source>%1 and what else this version does not know, %2 in all, is too much to be kept; it will not be in the next save</source>
        <translation>%1 y lo demás que esta versión no conoce, %2 en total, es demasiado para conservarlo; no estará la próxima vez que se guarde</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of Talvesk; it stays as it is, but %2</source>
        <translation>%1 se escribió con una versión más reciente de Talvesk; se conserva tal cual, pero %2</translation>
    </message>
    <message>
        <source>%1 is of another version of Talvesk; it stays as it is, but is not used</source>
        <translation>%1 es de otra versión de Talvesk; se conserva tal cual, pero no se usa</translation>
    </message>
    <message>
        <source>%1 of a newer version of Talvesk gave way to that of this version: what it told of has changed.</source>
        <translation>%1 de una versión más reciente de Talvesk ha dejado su lugar al de esta versión: lo que describía ha cambiado.</translation>
    </message>
    <message>
        <source>it is about other picks than those of the project</source>
        <translation>se refiere a picados distintos de los del proyecto</translation>
    </message>
    <message>
        <source>its suffix is none of %1</source>
        <translation>su extensión no es ninguna de estas: %1</translation>
    </message>
    <message>
        <source>Invalid input TT file : %1 (its suffix is none of %2)</source>
        <translation>Archivo de tiempos de recorrido no válido: %1 (su extensión no es ninguna de estas: %2)</translation>
    </message>
    <message>
        <source>Open shot files</source>
        <translation>Abrir archivos de disparos</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Quitar disparo</translation>
    </message>
    <message>
        <source>Import travel times</source>
        <translation>Importar tiempos de recorrido</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Contar los tiempos desde el disparo</translation>
    </message>
    <message>
        <source>Edit picks</source>
        <translation>Modificar picados</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Confirmar picados</translation>
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
        <translation>Geometría</translation>
    </message>
    <message>
        <source>S-wave recordings</source>
        <translation>Registros de onda S</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Malla</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Definir modelo de velocidad</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Aplicar suavizado</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Ejecutar inversión tomográfica</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Refracción</translation>
    </message>
    <message>
        <source>Set title</source>
        <translation>Definir título</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolíneas</translation>
    </message>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Definir coordenadas geográficas</translation>
    </message>
    <message>
        <source>another edit is under way; try again when it is through</source>
        <translation>hay otra modificación en curso; vuelva a intentarlo cuando termine</translation>
    </message>
    <message>
        <source>the edit failed: %1</source>
        <translation>la modificación ha fallado: %1</translation>
    </message>
    <message>
        <source>no edit is under way</source>
        <translation>no hay ninguna modificación en curso</translation>
    </message>
    <message>
        <source>%1 would change what it must not; nothing was changed</source>
        <translation>«%1» cambiaría lo que no debe; no se ha cambiado nada</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Quitar picados</translation>
    </message>
    <message>
        <source>Remove pick</source>
        <translation>Quitar picado</translation>
    </message>
    <message>
        <source>Nudge pick</source>
        <translation>Desplazar un poco el picado</translation>
    </message>
    <message>
        <source>Set pick</source>
        <translation>Poner picado</translation>
    </message>
    <message>
        <source>Move pick</source>
        <translation>Mover picado</translation>
    </message>
    <message>
        <source>Draw picks</source>
        <translation>Trazar picados</translation>
    </message>
    <message>
        <source>the survey has no such shot; check the recordings again</source>
        <translation>el levantamiento no tiene ese disparo; vuelva a revisar los registros</translation>
    </message>
    <message>
        <source>shot %1: a position is missing, no number or absurdly far away</source>
        <translation>disparo %1: una posición falta, no es un número o queda absurdamente lejos</translation>
    </message>
    <message>
        <source>shot %1: its geophone string has another number of geophones than the proposal; check the recordings again</source>
        <translation>disparo %1: su tendido tiene distinto número de geófonos que la propuesta; vuelva a revisar los registros</translation>
    </message>
    <message>
        <source>there is no trace %1; check the recordings again</source>
        <translation>no hay traza %1; vuelva a revisar los registros</translation>
    </message>
    <message>
        <source>no trace of the record holds anything</source>
        <translation>ninguna traza del registro contiene nada</translation>
    </message>
    <message>
        <source>dead: the samples of %1 are all the same</source>
        <translation>sin señal: son todas iguales las muestras de %1</translation>
    </message>
    <message>
        <source>as good as dead: %1, at down to %2 % of the strength of the neighbours</source>
        <translation>casi sin señal: %1, con una intensidad de hasta solo el %2 % de la de las vecinas</translation>
    </message>
    <message>
        <source>clipped: the swings of %1 are cut off flat, up to %2 times; first breaks can be picked, amplitudes mean nothing</source>
        <translation>saturación: las oscilaciones de %1 están recortadas en plano, hasta %2 veces; las primeras llegadas se pueden picar, las amplitudes carecen de sentido</translation>
    </message>
    <message>
        <source>noisy: before the first arrival of %1 there is up to %2 times the noise of the neighbours, and it drowns the arrival</source>
        <translation>ruido: antes de la primera llegada de %1 hay hasta %2 veces el ruido de las vecinas, y tapa la llegada</translation>
    </message>
    <message>
        <source>doubled: trace %1 is trace %2 once more (correlation %3); the arrivals around say that it belongs to the latter</source>
        <translation>duplicada: la traza %1 es de nuevo la traza %2 (correlación %3); las llegadas vecinas indican que corresponde a esta última</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>traces %1</source>
        <translation>las trazas %1</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>disparos %1</translation>
    </message>
    <message>
        <source>shot position</source>
        <translation>posición del disparo</translation>
    </message>
    <message>
        <source>station numbers</source>
        <translation>números de estación</translation>
    </message>
    <message>
        <source>repeated positions</source>
        <translation>posiciones repetidas</translation>
    </message>
    <message>
        <source>reversed order</source>
        <translation>orden invertido</translation>
    </message>
    <message>
        <source>doubled trace</source>
        <translation>traza duplicada</translation>
    </message>
    <message>
        <source>moved traces</source>
        <translation>trazas cambiadas de sitio</translation>
    </message>
    <message>
        <source>geophone off the line</source>
        <translation>geófono fuera de la línea</translation>
    </message>
    <message>
        <source>trigger time</source>
        <translation>tiempo de disparo</translation>
    </message>
    <message>
        <source>dead traces</source>
        <translation>trazas muertas</translation>
    </message>
    <message>
        <source>clipped traces</source>
        <translation>trazas saturadas</translation>
    </message>
    <message>
        <source>noisy traces</source>
        <translation>trazas ruidosas</translation>
    </message>
    <message>
        <source>reversed polarity</source>
        <translation>polaridad invertida</translation>
    </message>
    <message>
        <source>mistimed trace</source>
        <translation>traza desfasada</translation>
    </message>
    <message>
        <source>sample intervals</source>
        <translation>intervalos de muestreo</translation>
    </message>
    <message>
        <source>repeated shot</source>
        <translation>disparo repetido</translation>
    </message>
    <message>
        <source>overlapping spreads</source>
        <translation>tendidos solapados</translation>
    </message>
    <message>
        <source>no elevations</source>
        <translation>sin cotas</translation>
    </message>
    <message>
        <source>move the record later by %1 ms</source>
        <translation>retrasar el registro %1 ms</translation>
    </message>
    <message>
        <source>move the record earlier by %1 ms</source>
        <translation>adelantar el registro %1 ms</translation>
    </message>
    <message>
        <source>kill %1</source>
        <translation>anular %1</translation>
    </message>
    <message>
        <source>reverse the polarity of %1</source>
        <translation>invertir la polaridad de %1</translation>
    </message>
    <message>
        <source>mute %1 before %2 ms</source>
        <translation>silenciar %1 antes de %2 ms</translation>
    </message>
    <message>
        <source>read the channels from the last to the first</source>
        <translation>leer los canales del último al primero</translation>
    </message>
    <message>
        <source>put the shot at %1</source>
        <translation>situar el disparo en %1</translation>
    </message>
    <message>
        <source>stack it with %1; the stack alone counts then</source>
        <translation>apilarlo con otros (%1); después solo cuenta el apilado</translation>
    </message>
    <message>
        <source>disable the shot</source>
        <translation>desactivar el disparo</translation>
    </message>
    <message>
        <source>exchanged: over all shots the arrivals of trace %1 belong to the place of trace %2, and the other way round</source>
        <translation>intercambiadas: en todos los disparos las llegadas de la traza %1 corresponden al lugar de la traza %2, y viceversa</translation>
    </message>
    <message>
        <source>off the line: geophone %1 is said to be at %2; from both sides its arrivals are those of %3</source>
        <translation>fuera de la línea: el geófono %1 figura en %2; desde ambos lados sus llegadas son las de %3</translation>
    </message>
    <message>
        <source>%1 geophones are said to be at %2 places only</source>
        <translation>%1 geófonos figuran en solo %2 lugares</translation>
    </message>
    <message>
        <source>the shot is said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>el disparo figura en %1; el nombre del archivo dice %2, y los tiempos mínimos del levantamiento siguen los nombres</translation>
    </message>
    <message>
        <source>the shot is said to be at an elevation of %1, and the geophones have none that could be theirs</source>
        <translation>el disparo figura a una cota de %1, y los geófonos no tienen ninguna que pueda ser la suya</translation>
    </message>
    <message>
        <source>the channels run against the geophones: the least times of %1 of %2 shots are beside the shot only when the string is read from its last geophone to its first</source>
        <translation>los canales van contra los geófonos: los tiempos mínimos de %1 de %2 disparos quedan junto al disparo solo si el tendido se lee del último geófono al primero</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the name of the file says %2, and the least times of the survey follow the names</source>
        <translation>todos los disparos figuran en %1; el nombre del archivo dice %2, y los tiempos mínimos del levantamiento siguen los nombres</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; the times of this one are least at %2</source>
        <translation>todos los disparos figuran en %1; los tiempos de este son mínimos en %2</translation>
    </message>
    <message>
        <source>all shots are said to be at %1; this one was at an end of the geophones or beyond</source>
        <translation>todos los disparos figuran en %1; este estaba en un extremo de los geófonos o más allá</translation>
    </message>
    <message>
        <source>the channels of this record run against the geophones: read from the last to the first the times are least beside the shot at %1</source>
        <translation>los canales de este registro van contra los geófonos: leídos del último al primero, los tiempos son mínimos junto al disparo, en %1</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times grow from %2 on all the way through the geophones: it was at that end of them or beyond</source>
        <translation>el disparo figura en %1, pero los tiempos crecen desde %2 a lo largo de todos los geófonos: estaba en ese extremo o más allá</translation>
    </message>
    <message>
        <source>the shot is said to be at %1, but times are least at %2, beside geophone %3, and grow on both sides of it</source>
        <translation>el disparo figura en %1, pero los tiempos son mínimos en %2, junto al geófono %3, y crecen a ambos lados de él</translation>
    </message>
    <message>
        <source>%1; or the geophones stand %2 apart and not %3, which no other shot can decide</source>
        <translation>%1; o bien los geófonos están separados %2 y no %3, lo que ningún otro disparo puede decidir</translation>
    </message>
    <message>
        <source>mistimed: trace %1 has its first arrival at %2 ms, its neighbours let expect it at %3 ms, and from there on it looks like them (correlation %4)</source>
        <translation>desfasada: la traza %1 tiene su primera llegada en %2 ms, sus vecinas la hacen esperar en %3 ms, y a partir de ahí se parece a ellas (correlación %4)</translation>
    </message>
    <message>
        <source>reversed: the first swings of %1 go against those of the neighbours, which agree with each other (correlation -%2 at least)</source>
        <translation>polaridad invertida: las primeras oscilaciones de %1 van contra las de las vecinas, que concuerdan entre sí (correlación -%2 como mínimo)</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2, with %3 times the signal to noise of this one</source>
        <translation>el disparo %1 se registró en el mismo punto, en %2, con una relación señal/ruido %3 veces la de este</translation>
    </message>
    <message>
        <source>shot %1 was recorded at the same point, at %2; its arrivals are %3 ms later</source>
        <translation>el disparo %1 se registró en el mismo punto, en %2; sus llegadas son %3 ms posteriores</translation>
    </message>
    <message>
        <source>the record is that of shot %1 once more, sample for sample</source>
        <translation>el registro es de nuevo el del disparo %1, muestra a muestra</translation>
    </message>
    <message>
        <source>the sample intervals of its traces differ, %1 to %2 ms: the times of some are wrong unless the recorder meant it</source>
        <translation>los intervalos de muestreo de sus trazas difieren, de %1 a %2 ms: los tiempos de algunas son erróneos, salvo que el sismógrafo se configurara así</translation>
    </message>
    <message>
        <source>its traces have no sample interval: they have no times</source>
        <translation>sus trazas no tienen intervalo de muestreo: no tienen tiempos</translation>
    </message>
    <message>
        <source>the sample interval is %2 ms in %1, and %3 ms in most others: right if the recorder was set so</source>
        <translation>%1: el intervalo de muestreo es de %2 ms, y de %3 ms en la mayoría de los demás; es correcto si el sismógrafo se configuró así</translation>
    </message>
    <message>
        <source>strings %1 and %2 overlap and have other elevations at %3 places, by up to %4 at %5</source>
        <translation>los tendidos %1 y %2 se solapan y sus cotas difieren en %3 lugares, hasta %4 en %5</translation>
    </message>
    <message>
        <source>no elevations: all shots and geophones are at %1; if the ground is not level, read them from a table in the survey geometry</source>
        <translation>sin cotas: todos los disparos y geófonos están a %1; si el terreno no es llano, léalas de una tabla en la geometría del levantamiento</translation>
    </message>
    <message>
        <source>the shot&apos;s position %1 counts stations: over %2 shots the least times move by %3 for each 1 in the position</source>
        <translation>la posición del disparo, %1, cuenta estaciones: en %2 disparos los tiempos mínimos se desplazan %3 por cada 1 de la posición</translation>
    </message>
    <message>
        <source>late</source>
        <translation>retrasado</translation>
    </message>
    <message>
        <source>early</source>
        <translation>adelantado</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: %3 times to the places of other shots differ by that from the times back, give or take %4 ms</source>
        <translation>el registro está %2 en %1 ms: %3 tiempos hasta los puntos de otros disparos difieren en eso de los tiempos de vuelta, con un margen de %4 ms</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: its times differ by that from those of %3 other shots at equal distances, give or take %4 ms</source>
        <translation>el registro está %2 en unos %1 ms: sus tiempos difieren en eso de los de otros %3 disparos a iguales distancias, con un margen de %4 ms</translation>
    </message>
    <message>
        <source>the record is %1 ms %2: all channels have a spike at %3 ms at once, before anything can have arrived</source>
        <translation>el registro está %2 en %1 ms: todos los canales tienen a la vez un pico en %3 ms, antes de que pudiera llegar nada</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it has %1 columns and no heading that names one for the distance and one for the elevation</source>
        <translation>tiene %1 columnas y ningún encabezado que nombre una para la distancia y otra para la cota</translation>
    </message>
    <message>
        <source>it holds no point</source>
        <translation>no contiene ningún punto</translation>
    </message>
    <message>
        <source>Unified data format (%1)</source>
        <translation>Formato de datos unificado (%1)</translation>
    </message>
    <message>
        <source>no heading names shot, geophone and time</source>
        <translation>ningún encabezado nombra disparo, geófono y tiempo</translation>
    </message>
    <message>
        <source>%1 lines above the heading were ignored</source>
        <translation>se han pasado por alto %1 líneas anteriores al encabezado</translation>
    </message>
    <message>
        <source>the columns %1 and %2 were taken for positions in metres</source>
        <translation>las columnas %1 y %2 se han tomado por posiciones en metros</translation>
    </message>
    <message>
        <source>the heading does not say whether its times are in ms or in s</source>
        <translation>el encabezado no dice si los tiempos están en ms o en s</translation>
    </message>
    <message>
        <source>no row follows the heading</source>
        <translation>ninguna fila sigue al encabezado</translation>
    </message>
    <message>
        <source>there are more than %1 geophones</source>
        <translation>hay más de %1 geófonos</translation>
    </message>
    <message>
        <source>%1 of %2 rows have no time above 0, or are not valid, and are no picks</source>
        <translation>%1 de %2 filas no tienen un tiempo mayor que 0, o no son válidas, y no son picados</translation>
    </message>
    <message>
        <source>%1 shots and %2 geophones are far too many for %3 rows</source>
        <translation>%1 disparos y %2 geófonos son muchos más de los posibles para %3 filas</translation>
    </message>
    <message>
        <source>no column tells the elevations of the shots; they were put on the line of the geophones</source>
        <translation>ninguna columna indica las cotas de los disparos; se han puesto en la línea de los geófonos</translation>
    </message>
    <message>
        <source>no heading names a column for the distance and one for the elevation</source>
        <translation>ningún encabezado nombra una columna para la distancia y otra para la cota</translation>
    </message>
    <message>
        <source>the unified data format</source>
        <translation>formato de datos unificado</translation>
    </message>
    <message>
        <source>a table with a heading</source>
        <translation>tabla con encabezado</translation>
    </message>
    <message>
        <source>a pick table of long lines</source>
        <translation>tabla de picados de líneas largas</translation>
    </message>
    <message>
        <source>%1 times are of a shot and geophone that had one already; the first of them counts</source>
        <translation>%1 tiempos son de un disparo y un geófono que ya tenían uno; cuenta el primero de ellos</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posición</translation>
    </message>
    <message>
        <source>number of positions</source>
        <translation>número de posiciones</translation>
    </message>
    <message>
        <source>number of measurements</source>
        <translation>número de mediciones</translation>
    </message>
    <message>
        <source>number of points of topography</source>
        <translation>número de puntos de topografía</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>columna %1</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is not a number</source>
        <translation>%1: %2 no es un número</translation>
    </message>
    <message>
        <source>in %1 stands %2, which is out of range</source>
        <translation>%1: %2 está fuera de rango</translation>
    </message>
    <message>
        <source>all shot files count as read by the program&apos;s rules; the traces are those that were saved</source>
        <translation>se considera que todos los archivos de disparos se leyeron según las reglas del programa; las trazas son las que se guardaron</translation>
    </message>
    <message>
        <source>what was mended in its recordings is not known; traces and picks stay as they are</source>
        <translation>no se sabe qué se corrigió en sus registros; las trazas y los picados quedan como están</translation>
    </message>
    <message>
        <source>there is a grid, but a position lies more than 100 000 km away</source>
        <translation>hay una malla, pero una posición queda a más de 100 000 km</translation>
    </message>
    <message>
        <source>mends.xml: the mends of these shots are not those of their traces, and are left out; traces and picks stay as they are: %1</source>
        <translation>mends.xml: las correcciones de estos disparos no son las de sus trazas y se omiten; las trazas y los picados quedan como están: %1</translation>
    </message>
    <message>
        <source>it is about other shot files than those of the project</source>
        <translation>se refiere a archivos de disparos distintos de los del proyecto</translation>
    </message>
    <message>
        <source>the program&apos;s rules find no trace in it</source>
        <translation>las reglas del programa no encuentran ninguna traza en él</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces of %3 shots</source>
        <translation>las reglas del programa leen %1 de sus %2 trazas de %3 disparos</translation>
    </message>
    <message>
        <source>the program&apos;s rules read %1 of its %2 traces</source>
        <translation>las reglas del programa leen %1 de sus %2 trazas</translation>
    </message>
    <message>
        <source>the program&apos;s rules make one shot of its %1</source>
        <translation>las reglas del programa hacen un solo disparo de sus %1</translation>
    </message>
    <message>
        <source>%1 of %2 traces are all zeros by the program&apos;s rules</source>
        <translation>%1 de %2 trazas son todo ceros según las reglas del programa</translation>
    </message>
    <message>
        <source>the samples of %1 of %2 traces are not those of the standard, and not for their scale alone</source>
        <translation>las muestras de %1 de %2 trazas no son las del estándar, y no solo por su escala</translation>
    </message>
    <message>
        <source>%1 of %2 traces are shorter by the program&apos;s rules</source>
        <translation>%1 de %2 trazas son más cortas según las reglas del programa</translation>
    </message>
    <message>
        <source>the sample interval is %1 ms by the program&apos;s rules, %2 ms by the standard</source>
        <translation>el intervalo de muestreo es de %1 ms según las reglas del programa y de %2 ms según el estándar</translation>
    </message>
    <message>
        <source>its records start %1 ms from the shot by the program&apos;s rules, %2 ms by the standard</source>
        <translation>sus registros empiezan a %1 ms del disparo según las reglas del programa y a %2 ms según el estándar</translation>
    </message>
    <message>
        <source>its geophones are at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>posición de sus geófonos: %1 según las reglas del programa, %2 según el estándar</translation>
    </message>
    <message>
        <source>its shot is at %1 by the program&apos;s rules, at %2 by the standard</source>
        <translation>posición de su disparo: %1 según las reglas del programa, %2 según el estándar</translation>
    </message>
    <message>
        <source>the elevations of %1 of %2 traces are others by the program&apos;s rules</source>
        <translation>las cotas de %1 de %2 trazas son otras según las reglas del programa</translation>
    </message>
    <message>
        <source>the program&apos;s rules cannot read it</source>
        <translation>las reglas del programa no lo pueden leer</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>the traces of shot %1 differ in sample interval or in the time of their first sample; they cannot be in one record</source>
        <translation>las trazas del disparo %1 difieren en el intervalo de muestreo o en el tiempo de su primera muestra; no pueden ir en un mismo registro</translation>
    </message>
    <message>
        <source>it has no sample interval</source>
        <translation>no tiene intervalo de muestreo</translation>
    </message>
    <message>
        <source>its traces have %1 samples; a file holds %2</source>
        <translation>sus trazas tienen %1 muestras; en un archivo caben %2</translation>
    </message>
    <message>
        <source>it has %1 traces; a SEG-2 file holds %2</source>
        <translation>tiene %1 trazas; en un archivo SEG-2 caben %2</translation>
    </message>
    <message>
        <source>shot %1: %2</source>
        <translation>disparo %1: %2</translation>
    </message>
    <message>
        <source>read by the program&apos;s rules, the files have no elevations, and no positions that are not whole metres; read them by the standard</source>
        <translation>leídos según las reglas del programa, los archivos no tienen cotas ni posiciones que no sean metros enteros; léalos según el estándar</translation>
    </message>
    <message>
        <source>%1 shots are disabled or have no samples and were left out</source>
        <translation>%1 disparos están desactivados o no tienen muestras y se han omitido</translation>
    </message>
    <message>
        <source>%1 traces begin at the shot; what was recorded before is not in the files</source>
        <translation>%1 trazas empiezan en el disparo; lo registrado antes no está en los archivos</translation>
    </message>
    <message>
        <source>%1 samples were rounded to the seven digits of a 32-bit float</source>
        <translation>%1 muestras se han redondeado a las siete cifras de un número de coma flotante de 32 bits</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>se ha detenido</translation>
    </message>
    <message>
        <source>shot %1 has no samples</source>
        <translation>el disparo %1 no tiene muestras</translation>
    </message>
    <message>
        <source>shot %1, trace %2: a sample is too large for a file</source>
        <translation>disparo %1, traza %2: una muestra es demasiado grande para un archivo</translation>
    </message>
    <message>
        <source>the survey has no records to be written</source>
        <translation>el levantamiento no tiene registros que escribir</translation>
    </message>
    <message>
        <source>its sample interval of %1 ms is no whole number of microseconds up to 65535, which is all that SEG-Y can hold; write SEG-2</source>
        <translation>su intervalo de muestreo de %1 ms no es un número entero de microsegundos hasta 65535, que es todo lo que admite SEG-Y; escriba SEG-2</translation>
    </message>
    <message>
        <source>it begins %1 ms after the shot, which SEG-Y cannot hold; write SEG-2</source>
        <translation>empieza %1 ms después del disparo, lo que SEG-Y no admite; escriba SEG-2</translation>
    </message>
    <message>
        <source>it is miniSEED of version 3; version 2 is read</source>
        <translation>es miniSEED versión 3; se lee la versión 2</translation>
    </message>
    <message>
        <source>it is no miniSEED file</source>
        <translation>no es un archivo miniSEED</translation>
    </message>
    <message>
        <source>its records have no blockette 1000, which tells their encoding</source>
        <translation>sus registros no tienen blockette 1000, que indica su codificación</translation>
    </message>
    <message>
        <source>its samples have the encoding %1; 1, 3, 4, 5, 10 and 11 are read</source>
        <translation>sus muestras tienen la codificación %1; se leen 1, 3, 4, 5, 10 y 11</translation>
    </message>
    <message>
        <source>none of its records has samples of a series</source>
        <translation>ninguno de sus registros tiene muestras de una serie</translation>
    </message>
    <message>
        <source>miniSEED tells neither positions nor the time of the shot: all positions are 0 and times count from the first sample; give the survey its geometry</source>
        <translation>miniSEED no indica ni posiciones ni el tiempo del disparo: todas las posiciones son 0 y los tiempos se cuentan desde la primera muestra; dé su geometría al levantamiento</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others; zeros stand in front</source>
        <translation>el registro de %1 empieza después que otros; se han puesto ceros delante</translation>
    </message>
    <message>
        <source>the record of %1 begins later than others, by longer than it lasts; that is not applied and its times do not compare</source>
        <translation>el registro de %1 empieza después que otros, con un retraso mayor que su duración; ese retraso no se aplica y sus tiempos no son comparables</translation>
    </message>
    <message>
        <source>zeros stand for gaps in the record of %1</source>
        <translation>se han puesto ceros en los huecos del registro de %1</translation>
    </message>
    <message>
        <source>records of %1 overlap; the later ones count</source>
        <translation>se solapan registros de %1; cuentan los posteriores</translation>
    </message>
    <message>
        <source>records left out after a gap that is longer than what was recorded: %1</source>
        <translation>registros omitidos tras un hueco más largo que lo registrado: %1</translation>
    </message>
    <message>
        <source>records left out whose sample rate is not that of the first of their channel: %1</source>
        <translation>registros omitidos cuya frecuencia de muestreo no es la del primero de su canal: %1</translation>
    </message>
    <message>
        <source>records left out whose encoding, such as %1, is not read: %2</source>
        <translation>registros omitidos cuya codificación, como %1, no se lee: %2</translation>
    </message>
    <message>
        <source>records left out that have no samples of a series: %1</source>
        <translation>registros omitidos que no tienen muestras de una serie: %1</translation>
    </message>
    <message>
        <source>records left out that have no blockette 1000: %1</source>
        <translation>registros omitidos que no tienen blockette 1000: %1</translation>
    </message>
    <message>
        <source>bytes left out that are of no record: %1</source>
        <translation>bytes omitidos que no son de ningún registro: %1</translation>
    </message>
    <message>
        <source>samples that headers promise and records do not hold: %1</source>
        <translation>muestras que anuncian las cabeceras y que los registros no contienen: %1</translation>
    </message>
    <message>
        <source>damaged records, which do not end at the sample that they tell: %1</source>
        <translation>registros dañados, que no terminan en la muestra que indican: %1</translation>
    </message>
    <message>
        <source>the record of %1 begins after the shot, by up to %2 ms; zeros stand in front, in whole samples</source>
        <translation>el registro empieza después del disparo, hasta %2 ms, en %1; se han puesto ceros delante, en muestras enteras</translation>
    </message>
    <message>
        <source>the header of %1 says that the record begins up to %2 ms after the shot, longer than it lasts; that delay is not applied</source>
        <translation>el registro empieza hasta %2 ms después del disparo, más de lo que dura, según la cabecera de %1; ese retardo no se aplica</translation>
    </message>
    <message>
        <source>the header of %1 tells no %2; 0 stands for it</source>
        <translation>no hay %2 en la cabecera de %1; se ha tomado como 0</translation>
    </message>
    <message>
        <source>the UNITS of its header, %1, are not known; its positions were taken as metres</source>
        <translation>las UNITS de su cabecera, %1, no se conocen; sus posiciones se han tomado como metros</translation>
    </message>
    <message>
        <source>its positions are in %1 and were converted to metres, %2 m each</source>
        <translation>sus posiciones están en %1 y se han convertido a metros, %2 m por unidad</translation>
    </message>
    <message>
        <source>its receiver positions look like longitude and latitude in degrees, not like metres; give the survey its geometry</source>
        <translation>las posiciones de sus receptores parecen longitud y latitud en grados, no metros; dé su geometría al levantamiento</translation>
    </message>
    <message>
        <source>its geophones differ in y but not in x; y was taken as the position along the line</source>
        <translation>sus geófonos difieren en y pero no en x; se ha tomado y como posición a lo largo de la línea</translation>
    </message>
    <message>
        <source>all its geophones are at x = %1; give the survey its geometry</source>
        <translation>todos sus geófonos están en x = %1; dé su geometría al levantamiento</translation>
    </message>
    <message>
        <source>its geophones differ by up to %1 in y, which is not used; positions along the line are x</source>
        <translation>sus geófonos difieren hasta %1 en y, que no se usa; las posiciones a lo largo de la línea son x</translation>
    </message>
    <message>
        <source>its channel numbers do not ascend; the traces stay in the order of the file</source>
        <translation>sus números de canal no son ascendentes; las trazas conservan el orden del archivo</translation>
    </message>
    <message>
        <source>every trace tells a source position of its own; the file was read as one shot, at the first of them</source>
        <translation>cada traza indica una posición de la fuente distinta; el archivo se ha leído como un solo disparo, en la primera de ellas</translation>
    </message>
    <message>
        <source>it is no SEG-2 file</source>
        <translation>no es un archivo SEG-2</translation>
    </message>
    <message>
        <source>it holds no trace</source>
        <translation>no contiene ninguna traza</translation>
    </message>
    <message>
        <source>the samples of its trace %1 have the data format code %2; the codes of SEG-2 are 1 to 5</source>
        <translation>las muestras de su traza %1 tienen el código de formato de datos %2; los códigos de SEG-2 son de 1 a 5</translation>
    </message>
    <message>
        <source>none of its traces has a usable SAMPLE_INTERVAL</source>
        <translation>ninguna de sus trazas tiene un SAMPLE_INTERVAL utilizable</translation>
    </message>
    <message>
        <source>nothing is read of %1 since no trace block is where the pointer leads</source>
        <translation>no hay ningún bloque de traza donde lleva el puntero de %1; no se ha leído nada de ahí</translation>
    </message>
    <message>
        <source>the header of %1 has no usable SAMPLE_INTERVAL; that of another was taken</source>
        <translation>no hay un SAMPLE_INTERVAL utilizable en la cabecera de %1; se ha tomado el de otra</translation>
    </message>
    <message>
        <source>the DESCALING_FACTOR of %1 is no usable number; those samples are as stored</source>
        <translation>DESCALING_FACTOR de %1: no es un número utilizable; esas muestras quedan como están almacenadas</translation>
    </message>
    <message>
        <source>the header of %1 has no DESCALING_FACTOR, as others have; those samples are as stored</source>
        <translation>no hay DESCALING_FACTOR, que otras tienen, en la cabecera de %1; esas muestras quedan como están almacenadas</translation>
    </message>
    <message>
        <source>the STACK of %1 is no usable number and was taken as 1</source>
        <translation>STACK de %1: no es un número utilizable y se ha tomado como 1</translation>
    </message>
    <message>
        <source>the DELAY of %1 is no finite number and was taken as 0</source>
        <translation>DELAY de %1: no es un número finito y se ha tomado como 0</translation>
    </message>
    <message>
        <source>the SKEW of %1 is up to %2 ms beyond whole samples; that part is not applied</source>
        <translation>SKEW de %1: excede hasta %2 ms de muestras enteras; esa parte no se aplica</translation>
    </message>
    <message>
        <source>%1 bytes after its traces, zeros or too few for another one, were not read</source>
        <translation>no se han leído %1 bytes posteriores a sus trazas, que son ceros o demasiado pocos para otra traza</translation>
    </message>
    <message>
        <source>the number of samples in %1 is not the %2 of the header of the file; the trace headers were believed</source>
        <translation>el número de muestras no es el de la cabecera del archivo, %2, en %1; se ha dado crédito a las cabeceras de traza</translation>
    </message>
    <message>
        <source>the header of %1 tells %2 samples, with which the traces do not fit the size of the file; %3 were taken</source>
        <translation>se indican %2 muestras, con las que las trazas no concuerdan con el tamaño del archivo, en la cabecera de %1; se han tomado %3</translation>
    </message>
    <message>
        <source>the traces, %1 among them, do not fit the size of the file with the %2 samples that its header tells; %3 were taken</source>
        <translation>las trazas (entre ellas %1) no concuerdan con el tamaño del archivo con las %2 muestras que indica su cabecera; se han tomado %3</translation>
    </message>
    <message>
        <source>the header of %1 tells a sample interval of %2 microseconds; the %3 of the header of the file were taken</source>
        <translation>se indica un intervalo de muestreo de %2 microsegundos en la cabecera de %1; se han tomado los %3 de la cabecera del archivo</translation>
    </message>
    <message>
        <source>the sample interval of %1 is not the %2 microseconds of the header of the file; the trace headers were believed</source>
        <translation>el intervalo de muestreo no es el de la cabecera del archivo, %2 microsegundos, en %1; se ha dado crédito a las cabeceras de traza</translation>
    </message>
    <message>
        <source>a scalar of %1 for the coordinates of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>el estándar no conoce el factor de escala %1 de las coordenadas de %2; se han tomado tal cual</translation>
    </message>
    <message>
        <source>a scalar of %1 for the elevations of %2 is none that the standard knows; they were taken as they stand</source>
        <translation>el estándar no conoce el factor de escala %1 de las cotas de %2; se han tomado tal cual</translation>
    </message>
    <message>
        <source>the coordinates of %1 are degrees or seconds of arc, no metres; x was taken as it stands, so load a geometry file</source>
        <translation>son grados o segundos de arco, no metros, las coordenadas de %1; x se ha tomado tal cual, así que cargue un archivo de geometría</translation>
    </message>
    <message>
        <source>its coordinates do not tell the geophones apart; they were placed by their offsets (bytes 37 to 40) from the shot</source>
        <translation>sus coordenadas no distinguen los geófonos; se han situado por sus distancias al disparo (bytes 37 a 40)</translation>
    </message>
    <message>
        <source>its headers tell no positions; shots and geophones all stand at %1, so load a geometry file</source>
        <translation>sus cabeceras no indican posiciones; todos los disparos y geófonos están en %1, así que cargue un archivo de geometría</translation>
    </message>
    <message>
        <source>its headers put the geophones of all traces at %1; load a geometry file if there was more than one</source>
        <translation>sus cabeceras sitúan los geófonos de todas las trazas en %1; cargue un archivo de geometría si había más de uno</translation>
    </message>
    <message>
        <source>shots stand up to %1 beside the line of geophones; x is taken as it stands</source>
        <translation>hay disparos hasta a %1 a un lado de la línea de geófonos; x se toma tal cual</translation>
    </message>
    <message>
        <source>its coordinates do not lie along x; distances are those along the straight line through the geophones from the first geophone of this file, which stands at x %1, y %2; geophones stand up to %3 beside it, shots up to %4</source>
        <translation>sus coordenadas no siguen x; las distancias son las medidas a lo largo de la recta que pasa por los geófonos, desde el primer geófono de este archivo, que está en x %1, y %2; los geófonos quedan hasta a %3 de ella y los disparos hasta a %4</translation>
    </message>
    <message>
        <source>the elevations or shot depths of %1 lie beyond all ground; elevations of the file were taken as 0</source>
        <translation>no pueden corresponder a ningún terreno las cotas o profundidades de disparo de %1; las cotas del archivo se han tomado como 0</translation>
    </message>
    <message>
        <source>shots lie up to %1 below the ground; their elevations are those of the shots, not of the ground above them</source>
        <translation>hay disparos hasta a %1 bajo el terreno; sus cotas son las de los disparos, no las del terreno sobre ellos</translation>
    </message>
    <message>
        <source>the shot depth of %1 is negative and was taken as 0</source>
        <translation>es negativa la profundidad de disparo de %1; se ha tomado como 0</translation>
    </message>
    <message>
        <source>its headers tell the elevations of geophones alone; shots were put at that of the geophone nearest to them</source>
        <translation>sus cabeceras solo indican las cotas de los geófonos; los disparos se han puesto a la del geófono más próximo</translation>
    </message>
    <message>
        <source>the time scalar of %1 is none that the standard knows; the delay was taken as it stands</source>
        <translation>el estándar no conoce el factor de escala de tiempos de %1; el retardo se ha tomado tal cual</translation>
    </message>
    <message>
        <source>all of its traces are marked as dead or auxiliary (bytes 29 and 30); the marks were not believed</source>
        <translation>todas sus trazas están marcadas como muertas o auxiliares (bytes 29 y 30); no se ha dado crédito a las marcas</translation>
    </message>
    <message>
        <source>zeros stand for the samples of %1, marked as dead or as dummies (bytes 29 and 30)</source>
        <translation>se han puesto ceros en lugar de muestras con la marca de traza muerta o ficticia (bytes 29 y 30), las de %1</translation>
    </message>
    <message>
        <source>the samples of %1 were left out, marked as auxiliary (bytes 29 and 30: time breaks, upholes, sweeps and the like)</source>
        <translation>se han omitido muestras con la marca de traza auxiliar (bytes 29 y 30: instante del disparo, tiempos de pozo, barridos y similares), las de %1</translation>
    </message>
    <message>
        <source>its traces are not in the order of shots, or the headers do not tell which belong together; they were taken as one shot</source>
        <translation>sus trazas no están en el orden de los disparos, o las cabeceras no indican cuáles van juntas; se han tomado como un solo disparo</translation>
    </message>
    <message>
        <source>its extended textual headers do not end in the file; it was read as if there were none</source>
        <translation>sus cabeceras textuales extendidas no terminan dentro del archivo; se ha leído como si no las hubiera</translation>
    </message>
    <message>
        <source>its lengths are in feet (bytes 3255 and 3256) and were taken to metres</source>
        <translation>sus longitudes están en pies (bytes 3255 y 3256) y se han convertido a metros</translation>
    </message>
    <message>
        <source>its headers tell no number of samples</source>
        <translation>sus cabeceras no indican el número de muestras</translation>
    </message>
    <message>
        <source>its samples have the data format code 4 (fixed point with gain), which is not read; have the recording software export another one</source>
        <translation>sus muestras tienen el código de formato de datos 4 (coma fija con ganancia), que no se lee; haga que el programa del sismógrafo exporte otro</translation>
    </message>
    <message>
        <source>its samples have the data format code %1, which the standard does not know; the file is damaged or no SEG-Y file</source>
        <translation>sus muestras tienen el código de formato de datos %1, que el estándar no conoce; el archivo está dañado o no es un archivo SEG-Y</translation>
    </message>
    <message>
        <source>the place of the first trace in its header (bytes 3521 to 3528) is not in the file and was not believed</source>
        <translation>el lugar de la primera traza que indica su cabecera (bytes 3521 a 3528) no está en el archivo y no se le ha dado crédito</translation>
    </message>
    <message>
        <source>it is too short for a SEG-Y file with a trace</source>
        <translation>es demasiado corto para un archivo SEG-Y con una traza</translation>
    </message>
    <message>
        <source>its bytes are swapped in pairs, which is not read</source>
        <translation>sus bytes están intercambiados por pares, lo que no se lee</translation>
    </message>
    <message>
        <source>field record (bytes 9 to 12)</source>
        <translation>el registro de campo (bytes 9 a 12)</translation>
    </message>
    <message>
        <source>energy source point (bytes 17 to 20)</source>
        <translation>el punto de la fuente de energía (bytes 17 a 20)</translation>
    </message>
    <message>
        <source>position of the source</source>
        <translation>la posición de la fuente</translation>
    </message>
    <message>
        <source>number of the trace in its record (bytes 13 to 16), which starts again</source>
        <translation>el número de la traza en su registro (bytes 13 a 16), que vuelve a empezar</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>it is a text file, and no record of shots in %1; open a table of picks or positions as travel times or geometry</source>
        <translation>es un archivo de texto y no un registro de disparos en %1; abra una tabla de picados o posiciones como tiempos de recorrido o geometría</translation>
    </message>
    <message>
        <source>by its content it is no file of %1</source>
        <translation>por su contenido no es un archivo %1</translation>
    </message>
    <message>
        <source>it holds %1 shots, told apart by %2</source>
        <translation>contiene %1 disparos, distinguidos por %2</translation>
    </message>
    <message>
        <source>it is too short for an SU file with a trace</source>
        <translation>es demasiado corto para un archivo SU con una traza</translation>
    </message>
    <message>
        <source>its first trace tells no number of samples</source>
        <translation>su primera traza no indica el número de muestras</translation>
    </message>
    <message>
        <source>all %1 traces</source>
        <translation>todas las %1 trazas</translation>
    </message>
    <message>
        <source>it cannot be read back: %1</source>
        <translation>no se puede volver a leer: %1</translation>
    </message>
    <message>
        <source>read back, string %1 will have another number of geophones</source>
        <translation>al volver a leerlo, el tendido %1 tendrá otro número de geófonos</translation>
    </message>
    <message>
        <source>the format has no place for the errors of the picks</source>
        <translation>el formato no tiene lugar para los errores de los picados</translation>
    </message>
    <message>
        <source>it was read as %1; the reader of its suffix cannot read line %2</source>
        <translation>se ha leído como %1; el lector de su extensión no puede leer la línea %2</translation>
    </message>
    <message>
        <source>%1; as %2, line %3: %4</source>
        <translation>%1; como %2, línea %3: %4</translation>
    </message>
    <message>
        <source>shot %1: picks left out, as the shot is disabled or their traces are killed: %2</source>
        <translation>disparo %1: picados omitidos porque el disparo está desactivado o sus trazas anuladas: %2</translation>
    </message>
    <message>
        <source>the file ends after %1 of %2 lines</source>
        <translation>el archivo termina tras %1 de %2 líneas</translation>
    </message>
    <message>
        <source>the file holds no measurement</source>
        <translation>el archivo no contiene ninguna medición</translation>
    </message>
    <message>
        <source>no columns &quot;s&quot;, &quot;g&quot; and &quot;t&quot; are named above the numbers</source>
        <translation>encima de los números no se nombran las columnas «s», «g» y «t»</translation>
    </message>
    <message>
        <source>the unit of the column %1 is none of time</source>
        <translation>la unidad de la columna %1 no es de tiempo</translation>
    </message>
    <message>
        <source>the line holds %1</source>
        <translation>la línea contiene %1</translation>
    </message>
    <message>
        <source>the %1 %2 is none of the %3 positions</source>
        <translation>el %1 %2 no es ninguna de las %3 posiciones</translation>
    </message>
    <message>
        <source>after the measurements neither the end nor a number of points of topography follows</source>
        <translation>tras las mediciones no sigue ni el final ni un número de puntos de topografía</translation>
    </message>
    <message>
        <source>the second of three coordinates was not read</source>
        <translation>no se ha leído la segunda de las tres coordenadas</translation>
    </message>
    <message>
        <source>the third coordinate is 0 everywhere; the second one was taken for the elevation</source>
        <translation>la tercera coordenada es 0 en todas partes; se ha tomado la segunda por la cota</translation>
    </message>
    <message>
        <source>the positions have elevations; the topography was not used</source>
        <translation>las posiciones tienen cotas; no se ha usado la topografía</translation>
    </message>
    <message>
        <source>%1 positions are no shot and no geophone of any time; they were left out</source>
        <translation>%1 posiciones no son disparo ni geófono de ningún tiempo; se han omitido</translation>
    </message>
    <message>
        <source>%1 times are marked as not valid and are no picks</source>
        <translation>%1 tiempos están marcados como no válidos y no son picados</translation>
    </message>
    <message>
        <source>%1 times are not above 0 and are no picks</source>
        <translation>%1 tiempos no son mayores que 0 y no son picados</translation>
    </message>
    <message>
        <source>%1 shots have no pick and are not in the file</source>
        <translation>%1 disparos no tienen picados y no están en el archivo</translation>
    </message>
    <message>
        <source>%1 geophones have no pick; the file has their positions only</source>
        <translation>%1 geófonos no tienen picados; el archivo solo tiene sus posiciones</translation>
    </message>
    <message>
        <source>%1 shots lie at the place of another one; the file does not tell their picks apart</source>
        <translation>%1 disparos están en el punto de otro; el archivo no distingue sus picados</translation>
    </message>
    <message>
        <source>a trace without a sample interval cannot be shifted in time</source>
        <translation>una traza sin intervalo de muestreo no se puede desplazar en el tiempo</translation>
    </message>
    <message>
        <source>a shift of %1 ms is longer than the record</source>
        <translation>un desplazamiento de %1 ms es más largo que el registro</translation>
    </message>
    <message>
        <source>a shot is stacked with other shots of the survey, each once</source>
        <translation>un disparo se apila con otros disparos del levantamiento, cada uno una sola vez</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with it: its traces are of another number, sample interval or kind</source>
        <translation>el disparo %1 no se puede apilar con él: sus trazas son de otro número, intervalo de muestreo o tipo</translation>
    </message>
    <message>
        <source>shot %1 has no traces to mend</source>
        <translation>el disparo %1 no tiene trazas que corregir</translation>
    </message>
    <message>
        <source>shot %1 has %2 traces, and mends of %3</source>
        <translation>el disparo %1 tiene %2 trazas, y correcciones de %3</translation>
    </message>
    <message>
        <source>a trace cannot be muted before %1 ms</source>
        <translation>una traza no se puede silenciar antes de %1 ms</translation>
    </message>
    <message>
        <source>a record cannot be shifted by %1 ms</source>
        <translation>un registro no se puede desplazar %1 ms</translation>
    </message>
    <message>
        <source>shot %1: picks that have no place any more and are set aside: %2</source>
        <translation>disparo %1: picados que ya no tienen lugar y se apartan: %2</translation>
    </message>
    <message>
        <source>shot %1: picks that were set aside and are back: %2</source>
        <translation>disparo %1: picados apartados que vuelven: %2</translation>
    </message>
    <message>
        <source>shot %1: filtered copies of traces that have changed are forgotten: %2; filter again if you need them</source>
        <translation>disparo %1: copias filtradas descartadas por haber cambiado sus trazas: %2; vuelva a filtrar si las necesita</translation>
    </message>
    <message>
        <source>shot %1: its shift is taken as %2 ms, whole samples</source>
        <translation>disparo %1: su desplazamiento se toma como %2 ms, en muestras enteras</translation>
    </message>
    <message>
        <source>shot %1 cannot be stacked with shot %2: they have other places, or geophones</source>
        <translation>el disparo %1 no se puede apilar con el disparo %2: tienen otros puntos u otros geófonos</translation>
    </message>
    <message>
        <source>traces killed: %1</source>
        <translation>trazas anuladas: %1</translation>
    </message>
    <message>
        <source>traces with their polarity reversed: %1</source>
        <translation>trazas con polaridad invertida: %1</translation>
    </message>
    <message>
        <source>traces muted before %1 ms: %2</source>
        <translation>trazas silenciadas antes de %1 ms: %2</translation>
    </message>
    <message>
        <source>disabled: it has no picks and takes no part in anything</source>
        <translation>desactivado: no tiene picados ni participa en nada</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was late</source>
        <translation>desplazado %1 ms: su registro estaba retrasado</translation>
    </message>
    <message>
        <source>shifted by %1 ms: its record was early</source>
        <translation>desplazado %1 ms: su registro estaba adelantado</translation>
    </message>
    <message>
        <source>order reversed: its channels ran against the geophones</source>
        <translation>orden invertido: sus canales iban contra los geófonos</translation>
    </message>
    <message>
        <source>stacked with shots: %1</source>
        <translation>apilado con los disparos: %1</translation>
    </message>
    <message>
        <source>Mend recordings</source>
        <translation>Corregir registros</translation>
    </message>
    <message>
        <source>Shot %1 is disabled and takes no picks; Mend recording enables it.</source>
        <translation>El disparo %1 está desactivado y no admite picados; Corregir registro lo activa.</translation>
    </message>
    <message>
        <source>Trace %1 is killed and takes no pick; Mend recording brings it back.</source>
        <translation>La traza %1 está anulada y no admite picado; Corregir registro la recupera.</translation>
    </message>
    <message>
        <source>The check failed: %1</source>
        <translation>La revisión ha fallado: %1</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick a lo largo de la línea</translation>
    </message>
    <message>
        <source>no trace has a place and a sample interval; give the line its geometry</source>
        <translation>ninguna traza tiene a la vez posición e intervalo de muestreo; indique la geometría de la línea</translation>
    </message>
    <message>
        <source>shot %1, %2: %3</source>
        <translation>disparo %1, %2: %3</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Completar a lo largo de la línea</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Aún no hay picados.</translation>
    </message>
    <message>
        <source>Only one shot has picks.</source>
        <translation>Solo un disparo tiene picados.</translation>
    </message>
    <message>
        <source>No two shots have picks within half a geophone spacing of each other&apos;s place.</source>
        <translation>No hay dos disparos con picados a menos de media separación entre geófonos del punto del otro.</translation>
    </message>
    <message>
        <source>no error of a pick is known</source>
        <translation>no se conoce el error de ningún picado</translation>
    </message>
    <message>
        <source>it tells errors of picks that cannot be</source>
        <translation>indica errores de picados imposibles</translation>
    </message>
    <message>
        <source>the error of %1 picks is not known; the file has 0 for it</source>
        <translation>no se conoce el error de %1 picados; el archivo lleva 0 en su lugar</translation>
    </message>
    <message>
        <source>Picks at sample %1, before which AutoPick cannot look: %2, on %3. Where the wave came earlier, pick by hand or use AutoPick along the line.</source>
        <translation>Picados en la muestra %1, antes de la cual AutoPick no puede buscar: %2, en %3. Donde la onda llegó antes, pique a mano o use AutoPick a lo largo de la línea.</translation>
    </message>
    <message>
        <source>the guide line has no times to follow</source>
        <translation>la línea guía no tiene tiempos que seguir</translation>
    </message>
    <message>
        <source>the reach of the guide line has to be at least 0 ms</source>
        <translation>el alcance de la línea guía debe ser de 0 ms como mínimo</translation>
    </message>
    <message>
        <source>The model to start from has not one valid velocity per cell of the grid.</source>
        <translation>El modelo inicial no tiene una velocidad válida por cada celda de la malla.</translation>
    </message>
    <message>
        <source>The fit needs one iteration at least and a positive trigger error.</source>
        <translation>El ajuste necesita al menos una iteración y un error positivo del tiempo de disparo.</translation>
    </message>
    <message>
        <source>There is no pick that a section could be fitted to.</source>
        <translation>No hay ningún picado al que se pueda ajustar una sección.</translation>
    </message>
    <message>
        <source>The pick of shot %1, receiver %2 has no positive time and error.</source>
        <translation>El picado del disparo %1, receptor %2 no tiene un tiempo y un error positivos.</translation>
    </message>
    <message>
        <source>The section fits the picks to their errors: chi-square %1.</source>
        <translation>La sección se ajusta a los picados dentro de sus errores: chi cuadrado %1.</translation>
    </message>
    <message>
        <source>target not reached: chi-square stays at %1. The errors of the picks may be stated too small, shots may be shifted in time, or cells too large.</source>
        <translation>objetivo no alcanzado: chi cuadrado se queda en %1. Quizá los errores indicados de los picados sean demasiado pequeños, haya disparos desplazados en el tiempo o las celdas sean demasiado grandes.</translation>
    </message>
    <message>
        <source>The section fits the picks better than their errors demand: chi-square %1, however smooth it is. The errors may be stated too large.</source>
        <translation>La sección se ajusta a los picados mejor de lo que exigen sus errores: chi cuadrado %1, por suave que sea. Quizá los errores indicados sean demasiado grandes.</translation>
    </message>
    <message>
        <source>target not reached: chi-square is %1 after %2 iterations.</source>
        <translation>objetivo no alcanzado: chi cuadrado es %1 tras %2 iteraciones.</translation>
    </message>
    <message>
        <source>Stopped by the user after %1 iterations: chi-square %2.</source>
        <translation>Detenida por el usuario tras %1 iteraciones: chi cuadrado %2.</translation>
    </message>
    <message>
        <source>only %1 picks are of waves along the surface; it takes %2</source>
        <translation>solo %1 picados son de ondas directas; se necesitan %2</translation>
    </message>
    <message>
        <source>only %1 picks are surely of waves along refractor %2; it takes %3</source>
        <translation>solo %1 picados son con seguridad de ondas que viajan por el refractor %2; se necesitan %3</translation>
    </message>
    <message>
        <source>waves along the surface at %1 are slower than the bounds allow</source>
        <translation>las ondas directas, a %1, son más lentas de lo que permiten los límites</translation>
    </message>
    <message>
        <source>the times of a refractor grow too little with offset for the bounds</source>
        <translation>los tiempos de un refractor crecen con la distancia al disparo menos de lo que permiten los límites</translation>
    </message>
    <message>
        <source>the picks do not settle its delay times</source>
        <translation>los picados no bastan para determinar sus tiempos de retardo</translation>
    </message>
    <message>
        <source>the times over offset show no cross-over to a faster branch</source>
        <translation>los tiempos frente a la distancia al disparo no muestran ningún punto de cruce con una rama más rápida</translation>
    </message>
    <message>
        <source>the velocity above the refractor grows by less than a tenth</source>
        <translation>la velocidad por encima del refractor aumenta menos de una décima parte</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradiente</translation>
    </message>
    <message>
        <source>Two layers</source>
        <translation>Dos capas</translation>
    </message>
    <message>
        <source>Three layers</source>
        <translation>Tres capas</translation>
    </message>
    <message>
        <source>Overburden gradient</source>
        <translation>Gradiente en el recubrimiento</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>it takes times that grow with offset, at three offsets or more</source>
        <translation>se necesitan tiempos que crezcan con la distancia al disparo, en tres distancias o más</translation>
    </message>
    <message>
        <source>Set errors of picks</source>
        <translation>Fijar errores de los picados</translation>
    </message>
    <message>
        <source>Set error of pick</source>
        <translation>Fijar error del picado</translation>
    </message>
    <message>
        <source>How sure the section is could not be found out: %1</source>
        <translation>No se ha podido determinar la certeza de la sección: %1</translation>
    </message>
    <message>
        <source>The models could not be made: %1</source>
        <translation>No se han podido construir los modelos: %1</translation>
    </message>
    <message>
        <source>Rename run</source>
        <translation>Cambiar nombre de inversión</translation>
    </message>
    <message>
        <source>Delete runs</source>
        <translation>Eliminar inversiones</translation>
    </message>
    <message>
        <source>There is no resolution test to draw.</source>
        <translation>No hay ninguna prueba de resolución que dibujar.</translation>
    </message>
    <message>
        <source>Difference of velocity</source>
        <translation>Diferencia de velocidad</translation>
    </message>
    <message>
        <source>its inversion runs but the last one are not known</source>
        <translation>no se conocen sus inversiones, salvo la última</translation>
    </message>
    <message>
        <source>how sure the section is is not known</source>
        <translation>no se conoce la certeza de la sección</translation>
    </message>
    <message>
        <source>it does not go with the section of the project, which another program may have changed</source>
        <translation>no corresponde a la sección del proyecto, que otro programa puede haber cambiado</translation>
    </message>
    <message>
        <source>%1 rows of %2 columns do not go with %3 velocities</source>
        <translation>%1 filas de %2 columnas no corresponden a %3 velocidades</translation>
    </message>
    <message>
        <source>a velocity is none that ground can have</source>
        <translation>una velocidad no es posible en el terreno</translation>
    </message>
    <message>
        <source>its grid cannot be</source>
        <translation>su malla es imposible</translation>
    </message>
    <message>
        <source>its settings or figures cannot be</source>
        <translation>sus ajustes o sus cifras son imposibles</translation>
    </message>
    <message>
        <source>its number is 0 or that of another</source>
        <translation>su número es 0 o el de otra</translation>
    </message>
    <message>
        <source>there are more than can be kept</source>
        <translation>hay más de las que se pueden conservar</translation>
    </message>
    <message>
        <source>inversion run %1 is left out: %2</source>
        <translation>la inversión %1 se ha descartado: %2</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Inversión %1</translation>
    </message>
    <message>
        <source>Certainty</source>
        <translation>Certeza</translation>
    </message>
    <message>
        <source>Use run</source>
        <translation>Usar inversión</translation>
    </message>
    <message>
        <source>Inversion runs</source>
        <translation>Inversiones realizadas</translation>
    </message>
    <message>
        <source>Take over time shifts</source>
        <translation>Adoptar desplazamientos en tiempo</translation>
    </message>
    <message>
        <source>None of the %1 members explains the picks to within their errors; how sure the section is stays unknown.</source>
        <translation>Ninguno de los %1 miembros explica los picados dentro de sus errores; la certeza de la sección sigue sin conocerse.</translation>
    </message>
    <message>
        <source>Default model</source>
        <translation>Modelo predeterminado</translation>
    </message>
    <message>
        <source>Present section</source>
        <translation>Sección actual</translation>
    </message>
    <message>
        <source>No model explains the picks to within their errors (chi-square up to %1), so that nothing can be said of how sure the section is. Their errors may be stated too small, or shots may be shifted in time.</source>
        <translation>Ningún modelo explica los picados dentro de sus errores (chi cuadrado hasta %1), de modo que nada se puede decir de la certeza de la sección. Quizá los errores indicados sean demasiado pequeños, o haya disparos desplazados en tiempo.</translation>
    </message>
    <message>
        <source>There is no reference model &quot;%1&quot;.</source>
        <translation>No hay ningún modelo de referencia «%1».</translation>
    </message>
    <message>
        <source>The picks do not support the reference model. %1</source>
        <translation>Los picados no respaldan el modelo de referencia. %1</translation>
    </message>
    <message>
        <source>The picks do not support the reference model &quot;%1&quot;.</source>
        <translation>Los picados no respaldan el modelo de referencia «%1».</translation>
    </message>
    <message>
        <source>The resolution test failed: %1</source>
        <translation>La prueba de resolución ha fallado: %1</translation>
    </message>
    <message>
        <source>The size of the pattern must be positive; %1 is not.</source>
        <translation>El tamaño del patrón debe ser positivo; %1 no lo es.</translation>
    </message>
    <message>
        <source>The pattern has %1, less than a cell of the grid, which has %2; choose a larger one.</source>
        <translation>El patrón tiene %1, menos que una celda de la malla, que tiene %2; elija uno mayor.</translation>
    </message>
    <message>
        <source>The strength of the pattern must be above 0 and below 100 %; %1 % is not.</source>
        <translation>La intensidad del patrón debe ser mayor que 0 y menor que 100 %; %1 % no lo es.</translation>
    </message>
    <message>
        <source>There are no picks to test the resolution with.</source>
        <translation>No hay picados con los que probar la resolución.</translation>
    </message>
    <message>
        <source>The section to be disturbed has velocities that cannot be computed with.</source>
        <translation>La sección que se va a perturbar tiene velocidades con las que no se puede calcular.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>«%1» no se puede usar: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be shown: %2</source>
        <translation>«%1» no se puede mostrar: %2</translation>
    </message>
    <message>
        <source>There is no such run any more.</source>
        <translation>Esa inversión ya no existe.</translation>
    </message>
    <message>
        <source>The surface or the ends of the line have changed since &quot;%1&quot;; its section can be compared with others, but is none of this line any more.</source>
        <translation>La superficie o los extremos de la línea han cambiado desde «%1»; su sección se puede comparar con otras, pero ya no es de esta línea.</translation>
    </message>
    <message>
        <source>Uncertainty of velocity</source>
        <translation>Incertidumbre de la velocidad</translation>
    </message>
    <message>
        <source>There are no picks yet: a resolution test takes their positions and errors.</source>
        <translation>Aún no hay picados: una prueba de resolución usa sus posiciones y errores.</translation>
    </message>
    <message>
        <source>how sure the section is is not known; find it out first</source>
        <translation>no se conoce la certeza de la sección; determínela antes</translation>
    </message>
    <message>
        <source>there is no section whose times could be compared with the picks; run an inversion first</source>
        <translation>no hay ninguna sección cuyos tiempos se puedan comparar con los picados; ejecute antes una inversión</translation>
    </message>
    <message>
        <source>There is nothing to draw.</source>
        <translation>No hay nada que dibujar.</translation>
    </message>
    <message>
        <source>There are no rays of this section.</source>
        <translation>No hay rayos de esta sección.</translation>
    </message>
    <message>
        <source>it does not begin with a heading of the columns kind, name, x, depth, bottom, velocity, error, ...</source>
        <translation>no empieza con un encabezado con las columnas kind, name, x, depth, bottom, velocity, error, ...</translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation>no hay ninguna columna %1</translation>
    </message>
    <message>
        <source>column %1 is in another unit than m and m/s</source>
        <translation>la columna %1 está en una unidad distinta de m y m/s</translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation>tiene demasiadas filas</translation>
    </message>
    <message>
        <source>%1 is none of borehole, depth, body</source>
        <translation>%1 no es borehole, depth ni body</translation>
    </message>
    <message>
        <source>%1 is no number for %2</source>
        <translation>%1 no es un número para %2</translation>
    </message>
    <message>
        <source>there is no row below its heading</source>
        <translation>no hay ninguna fila bajo el encabezado</translation>
    </message>
    <message>
        <source>what was known of its ground is lost</source>
        <translation>se ha perdido lo que se conocía de su terreno</translation>
    </message>
    <message>
        <source>finding out how sure the section is begins anew instead of going on</source>
        <translation>la determinación de la certeza de la sección empieza de nuevo en vez de continuar</translation>
    </message>
    <message>
        <source>it does not go with the certainty of the project</source>
        <translation>no concuerda con la certeza del proyecto</translation>
    </message>
    <message>
        <source>what it counts cannot be</source>
        <translation>sus recuentos son imposibles</translation>
    </message>
    <message>
        <source>its depth bands cannot be drawn so; there are none now</source>
        <translation>sus bandas de profundidad no se pueden dibujar así; ahora no hay ninguna</translation>
    </message>
    <message>
        <source>%1 is no position along the line</source>
        <translation>%1 no es una posición a lo largo de la línea</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>no tiene nombre</translation>
    </message>
    <message>
        <source>it has no layer</source>
        <translation>no tiene ninguna capa</translation>
    </message>
    <message>
        <source>the layer from %1 begins above the bottom of the one before, %2</source>
        <translation>la capa desde %1 empieza por encima de la base de la anterior, %2</translation>
    </message>
    <message>
        <source>%1 is no error of a depth</source>
        <translation>%1 no es un error de una profundidad</translation>
    </message>
    <message>
        <source>refractors have the numbers 1 to %1</source>
        <translation>los refractores se numeran de 1 a %1</translation>
    </message>
    <message>
        <source>the velocities above and below are the same, so nothing begins here</source>
        <translation>las velocidades de encima y debajo son iguales, así que aquí no empieza nada</translation>
    </message>
    <message>
        <source>its outline needs three corners at least</source>
        <translation>su contorno necesita al menos tres vértices</translation>
    </message>
    <message>
        <source>more is known than can be held: %1 boreholes, depths and bodies at most, with %2 layers and corners</source>
        <translation>se conoce más de lo que se puede guardar: como máximo %1 sondeos, profundidades y cuerpos, con %2 capas y vértices</translation>
    </message>
    <message>
        <source>borehole %1</source>
        <translation>sondeo %1</translation>
    </message>
    <message>
        <source>known depth %1</source>
        <translation>profundidad conocida %1</translation>
    </message>
    <message>
        <source>body %1</source>
        <translation>cuerpo %1</translation>
    </message>
    <message>
        <source>there is no %1</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>a %1 has no %2</source>
        <translation>las filas %1 no llevan %2</translation>
    </message>
    <message>
        <source>borehole %1 stands somewhere else in the rows above</source>
        <translation>el sondeo %1 está en otro lugar en las filas anteriores</translation>
    </message>
    <message>
        <source>the number of a refractor is a whole one</source>
        <translation>el número de un refractor es un entero</translation>
    </message>
    <message>
        <source>body %1 has another velocity in the rows above</source>
        <translation>el cuerpo %1 tiene otra velocidad en las filas anteriores</translation>
    </message>
    <message>
        <source>fewer than six picks of it</source>
        <translation>tiene menos de seis picados</translation>
    </message>
    <message>
        <source>picks of it from shots on one side only, which cannot tell a dip from a velocity</source>
        <translation>solo tiene picados de disparos de un lado, que no permiten distinguir un buzamiento de una velocidad</translation>
    </message>
    <message>
        <source>no shot has three picks of it on one side, with waves the other way beside them, that are faster than the first layer</source>
        <translation>ningún disparo tiene en un lado tres picados de ella, con ondas en sentido contrario junto a ellos, que sean más rápidos que la primera capa</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where it comes out deeper than the line is long.</source>
        <translation>Capa %1: sin profundidad en %2 receptores, donde resulta mayor que la longitud de la línea.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 receivers, where the ground above it comes out to cost no time.</source>
        <translation>Capa %1: sin profundidad en %2 receptores, donde el terreno por encima resulta no costar tiempo.</translation>
    </message>
    <message>
        <source>Layer %1: %2.</source>
        <translation>Capa %1: %2.</translation>
    </message>
    <message>
        <source>The first layer has no velocity, so there are no depths.</source>
        <translation>La primera capa no tiene velocidad, así que no hay profundidades.</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Layer %1, %2: nothing</source>
        <translation>Capa %1, %2: nada</translation>
    </message>
    <message>
        <source>Layer %1: methods disagree beyond the errors of the picks in depth at %2 of %3 geophones, in velocity at %4</source>
        <translation>Capa %1: los métodos discrepan más allá de los errores de los picados en la profundidad en %2 de %3 geófonos, en la velocidad en %4</translation>
    </message>
    <message>
        <source>no two shots have picks of it at five geophones between them</source>
        <translation>no hay dos disparos con picados de ella en cinco geófonos situados entre ambos</translation>
    </message>
    <message>
        <source>no second layer can be fitted</source>
        <translation>no se puede ajustar una segunda capa</translation>
    </message>
    <message>
        <source>a second layer gains %1 ms</source>
        <translation>una segunda capa mejora %1 ms</translation>
    </message>
    <message>
        <source>no third layer can be fitted</source>
        <translation>no se puede ajustar una tercera capa</translation>
    </message>
    <message>
        <source>a third layer gains %1 ms</source>
        <translation>una tercera capa mejora %1 ms</translation>
    </message>
    <message>
        <source>1 layer, misfit %1 ms</source>
        <translation>1 capa, desajuste %1 ms</translation>
    </message>
    <message>
        <source>%1 layers, misfit %2 ms</source>
        <translation>%1 capas, desajuste %2 ms</translation>
    </message>
    <message>
        <source>no layers are proposed: there are too few picks to fit any</source>
        <translation>no se proponen capas: hay muy pocos picados para ajustarlas</translation>
    </message>
    <message>
        <source>%1; without layers, by a steady gradient, %2 ms</source>
        <translation>%1; sin capas, con un gradiente uniforme, %2 ms</translation>
    </message>
    <message>
        <source>three layers fit better, but no shot at each end of the line has picks of the layer in between: two layers are proposed</source>
        <translation>tres capas se ajustan mejor, pero no hay en cada extremo de la línea un disparo con picados de la capa intermedia: se proponen dos capas</translation>
    </message>
    <message>
        <source>%1 picks fit no layer and are given to none (shot/trace): %2</source>
        <translation>%1 picados no encajan en ninguna capa y no se asignan (disparo/traza): %2</translation>
    </message>
    <message>
        <source>Known ground</source>
        <translation>Terreno conocido</translation>
    </message>
    <message>
        <source>with %1 ms less, the pick of receiver %2 would come before the shot</source>
        <translation>con %1 ms menos, el picado del receptor %2 quedaría antes del disparo</translation>
    </message>
    <message>
        <source>%1 The model that it started from was too far from the picks, chi-square %2, to hold the section to its sharp steps: they were smoothed first.</source>
        <translation>%1 El modelo de partida estaba demasiado lejos de los picados, chi cuadrado %2, para mantener la sección en sus saltos bruscos: estos se suavizaron antes.</translation>
    </message>
    <message>
        <source>%1 holds no cell of the grid: it is too small, or beyond it.</source>
        <translation>%1 no contiene ninguna celda de la malla: es demasiado pequeño o está fuera de ella.</translation>
    </message>
    <message>
        <source>%1 at %2 stands beyond the grid.</source>
        <translation>%1, en %2, está fuera de la malla.</translation>
    </message>
    <message>
        <source>%1 reaches %2 down, below the grid; what is below %3 does not count.</source>
        <translation>%1 llega a %2 de profundidad, por debajo de la malla; lo que está por debajo de %3 no cuenta.</translation>
    </message>
    <message>
        <source>%1: no cell is mostly of this layer; it counts by its share of cells, or lies within a fixed body.</source>
        <translation>%1: ninguna celda es en su mayor parte de esta capa; cuenta por su parte de las celdas, o está dentro de un cuerpo fijo.</translation>
    </message>
    <message>
        <source>%1 (%2 along the line, %3 deep) is beyond the grid, or nearer to its edge than its error or a cell.</source>
        <translation>%1 (a %2 a lo largo de la línea y %3 de profundidad) está fuera de la malla, o más cerca de su borde que su error o una celda.</translation>
    </message>
    <message>
        <source>%1, %2 at %3</source>
        <translation>%1, %2 en %3</translation>
    </message>
    <message>
        <source>%1, %2 above</source>
        <translation>%1, %2 por encima</translation>
    </message>
    <message>
        <source>%1, %2 below</source>
        <translation>%1, %2 por debajo</translation>
    </message>
    <message>
        <source>Layered interpretation</source>
        <translation>Interpretación por capas</translation>
    </message>
    <message>
        <source>Section of another project</source>
        <translation>Sección de otro proyecto</translation>
    </message>
    <message>
        <source>There is no layered interpretation to start from. Build one first.</source>
        <translation>No hay ninguna interpretación por capas de la que partir. Construya antes una.</translation>
    </message>
    <message>
        <source>Mean residual of the rays</source>
        <translation>Residuo medio de los rayos</translation>
    </message>
    <message>
        <source>Mean residual over pick error</source>
        <translation>Residuo medio entre error del picado</translation>
    </message>
    <message>
        <source>Start from layers</source>
        <translation>Partir de las capas</translation>
    </message>
    <message>
        <source>A layer has a velocity of %1, which is no velocity of the ground.</source>
        <translation>Una capa tiene una velocidad de %1, que no es propia de ningún terreno.</translation>
    </message>
    <message>
        <source>The layer that begins at %1 lies over another; order the layers by depth, without overlap.</source>
        <translation>La capa que empieza a %1 se solapa con otra; ordene las capas por profundidad, sin solapes.</translation>
    </message>
    <message>
        <source>The section fits all but one of the %1 picks to their errors: chi-square %2.</source>
        <translation>La sección se ajusta a todos los picados menos uno, de %1, dentro de sus errores: chi cuadrado %2.</translation>
    </message>
    <message>
        <source>The section fits all but %1 of the %2 picks to their errors: chi-square %3.</source>
        <translation>La sección se ajusta a todos los picados menos %1, de %2, dentro de sus errores: chi cuadrado %3.</translation>
    </message>
    <message>
        <source>target not reached: %1 of the %2 picks are off by more than five of their errors, even if the others leave a chi-square of %3. Look at them first: shots may be shifted in time, or picks lie on another wave.</source>
        <translation>objetivo no alcanzado: %1 de los %2 picados se desvían más de cinco veces su error, aunque los demás dejan un chi cuadrado de %3. Revíselos primero: quizá haya disparos desplazados en el tiempo, o picados en otra onda.</translation>
    </message>
    <message>
        <source>%1 The model that it started from fits them better than that, chi-square %2, and was smoothed as far as the errors allow. State errors %3 times as large to keep it sharp.</source>
        <translation>%1 El modelo de partida se ajusta mejor, chi cuadrado %2, y se suavizó hasta donde permiten los errores. Indique errores %3 veces como estos para conservarlo nítido.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems late by %3 ms: run again with shifts.</source>
        <translation>%1 El disparo %2 parece tener un retraso de %3 ms: vuelva a invertir con desplazamientos.</translation>
    </message>
    <message>
        <source>%1 Shot %2 seems early by %3 ms: run again with shifts.</source>
        <translation>%1 El disparo %2 parece tener un adelanto de %3 ms: vuelva a invertir con desplazamientos.</translation>
    </message>
    <message>
        <source>%1: chi-square %2, suspects %3</source>
        <translation>%1: chi cuadrado %2, sospechosos %3</translation>
    </message>
    <message>
        <source>%1 The fit from the model &quot;%2&quot; is kept, as those from others come less near to the picks: %3.</source>
        <translation>%1 Se conserva el ajuste que parte del modelo «%2», pues los que parten de otros se acercan menos a los picados: %3.</translation>
    </message>
    <message>
        <source>Layer %1 has no depth at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>La capa %1 no tiene profundidad en %2 de %3 receptores; se toma la de los vecinos.</translation>
    </message>
    <message>
        <source>Layer %1 has no velocity at %2 of %3 receivers; it is taken from their neighbours.</source>
        <translation>La capa %1 no tiene velocidad en %2 de %3 receptores; se toma la de los vecinos.</translation>
    </message>
    <message>
        <source>Layer %1 has a negative depth at %2 of %3 receivers; it begins at the surface there.</source>
        <translation>La capa %1 tiene profundidad negativa en %2 de %3 receptores; ahí empieza en la superficie.</translation>
    </message>
    <message>
        <source>There is no layered profile; build the profiles of the refraction first.</source>
        <translation>No hay perfil de capas; construya antes los perfiles de la refracción.</translation>
    </message>
    <message>
        <source>The first layer of the layered profile has no velocity. Mark direct waves as layer 1 and build the profiles again.</source>
        <translation>La primera capa del perfil de capas no tiene velocidad. Asigne las ondas directas a la capa 1 y vuelva a construir los perfiles.</translation>
    </message>
    <message>
        <source>The first refractor of the layered profile has no depth or no velocity at any receiver.</source>
        <translation>El primer refractor del perfil de capas carece de profundidad o de velocidad en todos los receptores.</translation>
    </message>
    <message>
        <source>Layer 3 has no depth or no velocity at any receiver; the ground ends with layer 2.</source>
        <translation>La capa 3 carece de profundidad o de velocidad en todos los receptores; el terreno termina con la capa 2.</translation>
    </message>
    <message>
        <source>Layer 3 begins above layer 2 at %1 of %2 receivers; layer 2 is left out there.</source>
        <translation>La capa 3 empieza por encima de la capa 2 en %1 de %2 receptores; ahí se omite la capa 2.</translation>
    </message>
    <message>
        <source>The grid ends above layer %1 in %2 of %3 columns.</source>
        <translation>La malla termina por encima de la capa %1 en %2 de %3 columnas.</translation>
    </message>
    <message>
        <source>The layered profile has no depths of layer %1.</source>
        <translation>El perfil de capas no tiene profundidades de la capa %1.</translation>
    </message>
    <message>
        <source>Layer %1, layered profile</source>
        <translation>Capa %1, perfil de capas</translation>
    </message>
    <message>
        <source>Section, steepest gradient</source>
        <translation>Sección, gradiente máximo</translation>
    </message>
    <message>
        <source>Section, %1</source>
        <translation>Sección, %1</translation>
    </message>
    <message>
        <source>The methods could not be compared: %1</source>
        <translation>No se han podido comparar los métodos: %1</translation>
    </message>
    <message>
        <source>P and S have no velocity in common to draw.</source>
        <translation>P y S no tienen ninguna velocidad en común que dibujar.</translation>
    </message>
    <message>
        <source>No method gives a depth.</source>
        <translation>Ningún método da una profundidad.</translation>
    </message>
    <message>
        <source>this is no file with the members of an ensemble</source>
        <translation>no es un archivo con los miembros de un conjunto de secciones</translation>
    </message>
    <message>
        <source>its members cannot be read: the file is damaged</source>
        <translation>no se pueden leer sus miembros: el archivo está dañado</translation>
    </message>
    <message>
        <source>its members are those of another ensemble: another survey or section, other settings or another seed</source>
        <translation>sus miembros son los de otro conjunto: otro levantamiento u otra sección, otros ajustes u otra semilla</translation>
    </message>
    <message>
        <source>its member %1 is done already, others are not; only sets of members that share none can be put together</source>
        <translation>su miembro %1 ya está terminado y otros no; solo se pueden reunir grupos que no compartan ningún miembro</translation>
    </message>
    <message>
        <source>its members cannot be those of this ensemble</source>
        <translation>sus miembros no pueden ser los de este conjunto</translation>
    </message>
    <message>
        <source>the first layer of its layered profile has one velocity</source>
        <translation>la primera capa de su perfil de capas tiene una sola velocidad</translation>
    </message>
    <message>
        <source>such a first layer cannot be</source>
        <translation>una primera capa así es imposible</translation>
    </message>
    <message>
        <source>it belongs to another layered profile</source>
        <translation>corresponde a otro perfil de capas</translation>
    </message>
    <message>
        <source>Layer %1, medians of %2 places: %3; %4</source>
        <translation>Capa %1, medianas de %2 puntos: %3; %4</translation>
    </message>
    <message>
        <source>density %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</source>
        <translation>densidad %1 kg/m3, G0 %2 MPa, E0 %3 MPa, K %4 MPa, M %5 MPa</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places the depths of its top by P and by S differ by more than %4 % (median there %5 by P, %6 by S). P waves often see the water table, which S waves do not: the same number may be different ground.</source>
        <translation>Capa %1: en %2 de %3 puntos las profundidades de su techo según P y según S difieren en más de un %4 % (mediana ahí: %5 según P, %6 según S). Las ondas P suelen ver el nivel freático y las ondas S no: el mismo número puede ser un terreno distinto.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places a velocity is not known.</source>
        <translation>Capa %1: en %2 de %3 puntos no se conoce una velocidad.</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there. Are P and S exchanged, or is S a P wave?</source>
        <translation>Capa %1: en %2 de %3 puntos S no es más lenta que P, lo que no ocurre en ningún terreno: ahí no hay coeficiente de Poisson, E0 ni K. ¿Están intercambiadas P y S, o es S una onda P?</translation>
    </message>
    <message>
        <source>Layer %1: at %2 of %3 places Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not: the velocities are of different ground, or wrong.</source>
        <translation>Capa %1: en %2 de %3 puntos Vp/Vs es menor que 1,41 y el coeficiente de Poisson negativo, lo que no ocurre en suelos ni rocas: las velocidades son de terrenos distintos o erróneas.</translation>
    </message>
    <message>
        <source>The surfaces of P and S lie up to %1 apart, at %2: they may not be the same line, or not begin at the same place.</source>
        <translation>Las superficies de P y S distan hasta %1, en %2: quizá no sean la misma línea o no empiecen en el mismo punto.</translation>
    </message>
    <message>
        <source>By their recordings the project of P is one of S waves, and that of S is not: they may be exchanged.</source>
        <translation>Según sus registros, el proyecto de P es de ondas S y el de S no: quizá estén intercambiados.</translation>
    </message>
    <message>
        <source>The recordings of both projects are of S waves.</source>
        <translation>Los registros de ambos proyectos son de ondas S.</translation>
    </message>
    <message>
        <source>The places of P and S on the map are given in different systems (EPSG:%1 and EPSG:%2) and were not compared.</source>
        <translation>Las posiciones de P y S en el mapa están en sistemas distintos (EPSG:%1 y EPSG:%2) y no se han comparado.</translation>
    </message>
    <message>
        <source>The same distances of P and S lie up to %1 apart on the map: they may not be the same line, or not begin at the same place.</source>
        <translation>Las mismas distancias de P y S distan hasta %1 en el mapa: quizá no sean la misma línea o no empiecen en el mismo punto.</translation>
    </message>
    <message>
        <source>The project of P has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>El proyecto de P no tiene perfil de capas: construya antes sus perfiles en el cuadro de diálogo de refracción.</translation>
    </message>
    <message>
        <source>The project of S has no layered profile: build its profiles in the refraction dialog first.</source>
        <translation>El proyecto de S no tiene perfil de capas: construya antes sus perfiles en el cuadro de diálogo de refracción.</translation>
    </message>
    <message>
        <source>P and S have no place in common: P was interpreted from %1, S from %2 along the line.</source>
        <translation>P y S no tienen ningún punto en común: a lo largo de la línea, P se ha interpretado de %1 y S de %2.</translation>
    </message>
    <message>
        <source>Layer %1: P and S have no place in common.</source>
        <translation>Capa %1: P y S no tienen ningún punto en común.</translation>
    </message>
    <message>
        <source>P has %1 layers and S has %2; what lies below layer %3 is known of one wave only and left out.</source>
        <translation>P tiene %1 capas y S tiene %2; lo que hay bajo la capa %3 se conoce de una sola onda y se excluye.</translation>
    </message>
    <message>
        <source>the curves of layer %1 follow the lines of shots %2 and %3, which give %4 and %5 ms for the way between these shots</source>
        <translation>las dromocronas de la capa %1 siguen las líneas de los disparos %2 y %3, que dan %4 y %5 ms para el trayecto entre estos disparos</translation>
    </message>
    <message>
        <source>the delays of the waves change so fast along the line that no boundary has them all</source>
        <translation>los retardos de las ondas cambian tan deprisa a lo largo de la línea que ningún contacto los reproduce todos</translation>
    </message>
    <message>
        <source>reciprocal</source>
        <translation>recíproco</translation>
    </message>
    <message>
        <source>delay times</source>
        <translation>tiempos de retardo</translation>
    </message>
    <message>
        <source>intercept times</source>
        <translation>tiempos de intercepción</translation>
    </message>
    <message>
        <source>plus-minus</source>
        <translation>más-menos</translation>
    </message>
    <message>
        <source>to the right of shot %1</source>
        <translation>a la derecha del disparo %1</translation>
    </message>
    <message>
        <source>to the right of shots %1</source>
        <translation>a la derecha de los disparos %1</translation>
    </message>
    <message>
        <source>to the left of shot %1</source>
        <translation>a la izquierda del disparo %1</translation>
    </message>
    <message>
        <source>to the left of shots %1</source>
        <translation>a la izquierda de los disparos %1</translation>
    </message>
    <message>
        <source>layer %1 rests on fewer than four picks (their number in brackets) %2</source>
        <translation>la capa %1 se apoya en menos de cuatro picados (su número, entre paréntesis) %2</translation>
    </message>
    <message>
        <source>1 pick fits no layer and is given to none (shot/trace): %1</source>
        <translation>1 picado no encaja en ninguna capa y no se asigna (disparo/traza): %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robusto</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>no robusto</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>por bloques</translation>
    </message>
    <message>
        <source>smooth</source>
        <translation>suave</translation>
    </message>
    <message>
        <source>shots shifted</source>
        <translation>disparos desplazados en el tiempo</translation>
    </message>
    <message>
        <source>no shot shifted</source>
        <translation>ningún disparo desplazado en el tiempo</translation>
    </message>
    <message>
        <source>%1 of the %2 cells of P lie where the section of S shows none.</source>
        <translation>%1 de las %2 celdas de P están donde la sección de S no muestra ninguna.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells S is not slower than P, which no ground is: no Poisson&apos;s ratio, E0 and K there.</source>
        <translation>En %1 de %2 celdas S no es más lenta que P, lo que no ocurre en ningún terreno: ahí no hay coeficiente de Poisson, E0 ni K.</translation>
    </message>
    <message>
        <source>In %1 of %2 cells Vp/Vs is below 1.41 and Poisson&apos;s ratio negative, which soil and rock are not.</source>
        <translation>En %1 de %2 celdas Vp/Vs es menor que 1,41 y el coeficiente de Poisson negativo, lo que no ocurre en suelos ni rocas.</translation>
    </message>
    <message>
        <source>The surfaces of the sections of P and S lie up to %1 apart, at %2; cells are matched by their depths below them.</source>
        <translation>Las superficies de las secciones de P y S distan hasta %1, en %2; las celdas se emparejan por su profundidad bajo ellas.</translation>
    </message>
    <message>
        <source>A section has no layers: all of it has the first density.</source>
        <translation>Una sección no tiene capas: toda ella recibe la primera densidad.</translation>
    </message>
    <message>
        <source>The project of P has no section.</source>
        <translation>El proyecto de P no tiene sección.</translation>
    </message>
    <message>
        <source>The project of S has no section.</source>
        <translation>El proyecto de S no tiene sección.</translation>
    </message>
    <message>
        <source>The sections of P and S have no cell in common.</source>
        <translation>Las secciones de P y S no tienen ninguna celda en común.</translation>
    </message>
    <message>
        <source>a scratch file of samples cannot be written to</source>
        <translation>no se puede escribir en un archivo temporal de muestras</translation>
    </message>
    <message>
        <source>Samples are kept in memory: %1</source>
        <translation>Las muestras se mantienen en memoria: %1</translation>
    </message>
    <message>
        <source>no folder for scratch files of samples can be written to</source>
        <translation>no se puede escribir en ninguna carpeta para archivos temporales de muestras</translation>
    </message>
    <message>
        <source>no scratch file of samples can be made in %1: %2</source>
        <translation>no se puede crear ningún archivo temporal de muestras en %1: %2</translation>
    </message>
    <message>
        <source>No report format is known for %1: let the file name end with .pdf, .odt or .html.</source>
        <translation>No se conoce ningún formato de informe para %1: el nombre del archivo debe terminar en .pdf, .odt o .html.</translation>
    </message>
    <message>
        <source>This Talvesk cannot write web pages: it was built without the chart library. Run scripts/bootstrap and build it again, or write a PDF or ODT report.</source>
        <translation>Este Talvesk no puede escribir páginas web: se compiló sin la biblioteca de gráficos. Ejecute scripts/bootstrap y vuelva a compilarlo, o escriba un informe PDF u ODT.</translation>
    </message>
    <message>
        <source>P: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>P: su perfil se ajustó a todos los picados y no recibe errores. Uno por el método recíproco sí los recibe.</translation>
    </message>
    <message>
        <source>S: its profile was fitted to all picks and gets no errors. One by the reciprocal method does.</source>
        <translation>S: su perfil se ajustó a todos los picados y no recibe errores. Uno por el método recíproco sí los recibe.</translation>
    </message>
    <message>
        <source>The velocity of layer 1 changes along the line and with depth in this profile; here it is its mean, %1, everywhere.</source>
        <translation>En este perfil, la velocidad de la capa 1 varía a lo largo de la línea y con la profundidad; aquí se toma en todas partes su media, %1.</translation>
    </message>
    <message>
        <source>the first distance must be a number, and the EPSG code a whole number</source>
        <translation>la primera distancia debe ser un número, y el código EPSG un número entero</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>No se puede escribir %1</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Filtro notch</translation>
    </message>
    <message>
        <source>Velocity filter</source>
        <translation>Filtro de velocidad</translation>
    </message>
    <message>
        <source>the line has no place on the map; its geographic coordinates are missing</source>
        <translation>la línea no tiene lugar en el mapa; faltan sus coordenadas geográficas</translation>
    </message>
    <message>
        <source>two shot files of the survey would both become %1</source>
        <translation>dos archivos de disparos del levantamiento se convertirían ambos en %1</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey; choose another folder</source>
        <translation>%1 es uno de los archivos de disparos de este levantamiento; elija otra carpeta</translation>
    </message>
    <message>
        <source>it holds several shots, whose traces may be mixed</source>
        <translation>contiene varios disparos, cuyas trazas pueden estar mezcladas</translation>
    </message>
    <message>
        <source>its traces are not those of the survey any more</source>
        <translation>sus trazas ya no son las del levantamiento</translation>
    </message>
    <message>
        <source>miniSEED has no headers for picks</source>
        <translation>miniSEED no tiene cabeceras para picados</translation>
    </message>
    <message>
        <source>the survey has no shot files</source>
        <translation>el levantamiento no tiene archivos de disparos</translation>
    </message>
    <message>
        <source>%1 was left out: %2</source>
        <translation>se ha omitido %1: %2</translation>
    </message>
    <message>
        <source>%1 has no picks</source>
        <translation>%1 no tiene picados</translation>
    </message>
    <message>
        <source>%1 shots have no shot file of their own and were left out</source>
        <translation>%1 disparos no tienen archivo de disparo propio y se han omitido</translation>
    </message>
    <message>
        <source>bytes 233 to 236 of %1 trace headers held something else before</source>
        <translation>los bytes 233 a 236 de %1 cabeceras de traza contenían antes otra cosa</translation>
    </message>
    <message>
        <source>the header of trace %1 cannot be followed</source>
        <translation>no se puede seguir la cabecera de la traza %1</translation>
    </message>
    <message>
        <source>it has %1 traces, the survey %2 of them</source>
        <translation>tiene %1 trazas, y el levantamiento %2 de ellas</translation>
    </message>
    <message>
        <source>it would grow too large</source>
        <translation>crecería demasiado</translation>
    </message>
    <message>
        <source>the header of trace %1 has no room for a pick</source>
        <translation>en la cabecera de la traza %1 no cabe un picado</translation>
    </message>
    <message>
        <source>it is SEG-Y of revision 2, whose trace headers have no bytes to spare</source>
        <translation>es SEG-Y de revisión 2, cuyas cabeceras de traza no tienen bytes libres</translation>
    </message>
    <message>
        <source>it is not known by what the filtered copies of its traces were made</source>
        <translation>no se sabe con qué se hicieron las copias filtradas de sus trazas</translation>
    </message>
    <message>
        <source>marked isolines and what was drawn on its section are lost</source>
        <translation>se pierden las isolíneas destacadas y lo dibujado en su sección</translation>
    </message>
    <message>
        <source>the line lies straight on the map between its ends</source>
        <translation>la línea va recta en el mapa entre sus extremos</translation>
    </message>
    <message>
        <source>its vertices are no course of a line</source>
        <translation>sus vértices no forman el trazado de una línea</translation>
    </message>
    <message>
        <source>it belongs to another map position</source>
        <translation>corresponde a otra posición en el mapa</translation>
    </message>
    <message>
        <source>it tells of traces that are not there, or of filters that are not known</source>
        <translation>habla de trazas que no existen, o de filtros desconocidos</translation>
    </message>
    <message>
        <source>%1 is no style file: %2</source>
        <translation>%1 no es un archivo de estilo: %2</translation>
    </message>
    <message>
        <source>a newer version of Talvesk has written it</source>
        <translation>lo ha escrito una versión más reciente de Talvesk</translation>
    </message>
    <message>
        <source>the place lies outside of %1</source>
        <translation>el lugar está fuera de %1</translation>
    </message>
    <message>
        <source>it is not known which columns hold easting and northing, or longitude and latitude</source>
        <translation>no se sabe qué columnas contienen este y norte, o longitud y latitud</translation>
    </message>
    <message>
        <source>%1 has more than %2 rows, which is no table of a line</source>
        <translation>%1 tiene más de %2 filas, y eso no es la tabla de una línea</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>su texto es demasiado largo</translation>
    </message>
    <message>
        <source>its colour is none</source>
        <translation>su color no es válido</translation>
    </message>
    <message>
        <source>a line is %1 to %2 points wide</source>
        <translation>el grosor de una línea es de %1 a %2 puntos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Arena</translation>
    </message>
    <message>
        <source>Gravel</source>
        <translation>Grava</translation>
    </message>
    <message>
        <source>Clay</source>
        <translation>Arcilla</translation>
    </message>
    <message>
        <source>Silt</source>
        <translation>Limo</translation>
    </message>
    <message>
        <source>Rock</source>
        <translation>Roca</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Agua</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>it is neither text nor line nor polygon</source>
        <translation>no es texto, línea ni polígono</translation>
    </message>
    <message>
        <source>its pattern is none</source>
        <translation>su patrón no es válido</translation>
    </message>
    <message>
        <source>it says nothing</source>
        <translation>no dice nada</translation>
    </message>
    <message>
        <source>a text stands at one point, not at %1</source>
        <translation>un texto está en un punto, no en %1</translation>
    </message>
    <message>
        <source>it has %1 points and needs %2 at least</source>
        <translation>tiene %1 puntos y necesita %2 como mínimo</translation>
    </message>
    <message>
        <source>%1, %2 is no place of a section</source>
        <translation>%1, %2 no es un lugar de una sección</translation>
    </message>
    <message>
        <source>a text is %1 to %2 points high</source>
        <translation>el tamaño de un texto es de %1 a %2 puntos</translation>
    </message>
    <message>
        <source>a section holds %1 marked isolines and %2 annotations with %3 points at most</source>
        <translation>una sección tiene como máximo %1 isolíneas destacadas y %2 anotaciones con %3 puntos</translation>
    </message>
    <message>
        <source>marked isoline %1</source>
        <translation>isolínea destacada %1</translation>
    </message>
    <message>
        <source>annotation %1</source>
        <translation>anotación %1</translation>
    </message>
    <message>
        <source>band-pass from %1 Hz, order %2, to %3 Hz, order %4</source>
        <translation>paso banda de %1 Hz, orden %2, a %3 Hz, orden %4</translation>
    </message>
    <message>
        <source>low-pass %1 Hz, order %2</source>
        <translation>paso bajo %1 Hz, orden %2</translation>
    </message>
    <message>
        <source>high-pass %1 Hz, order %2</source>
        <translation>paso alto %1 Hz, orden %2</translation>
    </message>
    <message>
        <source>%1 and more</source>
        <translation>%1 o más</translation>
    </message>
    <message>
        <source>forth along the line</source>
        <translation>hacia delante en la línea</translation>
    </message>
    <message>
        <source>back along the line</source>
        <translation>hacia atrás en la línea</translation>
    </message>
    <message>
        <source>both ways</source>
        <translation>en ambos sentidos</translation>
    </message>
    <message>
        <source>velocities of %1, %2, pass (taper %3 %)</source>
        <translation>pasan velocidades de %1, %2 (transición %3 %)</translation>
    </message>
    <message>
        <source>velocities of %1, %2, are rejected (taper %3 %)</source>
        <translation>se rechazan velocidades de %1, %2 (transición %3 %)</translation>
    </message>
    <message>
        <source>notches at %1 Hz and multiples, %2 in all, quality %3</source>
        <translation>notch en %1 Hz y múltiplos, %2 en total, calidad %3</translation>
    </message>
    <message>
        <source>two geophones at least need easting and northing</source>
        <translation>al menos dos geófonos necesitan coordenadas este y norte</translation>
    </message>
    <message>
        <source>the first and the last geophone are at one place on the map, which gives the line no direction</source>
        <translation>el primer y el último geófono están en el mismo punto del mapa, y así la línea no tiene dirección</translation>
    </message>
    <message>
        <source>a trace cannot have a gain of %1, only one from %2 to %3</source>
        <translation>una traza no puede tener una ganancia de %1, solo de %2 a %3</translation>
    </message>
    <message>
        <source>traces with a gain of %1: %2</source>
        <translation>trazas con ganancia %1: %2</translation>
    </message>
    <message>
        <source>geophone %1</source>
        <translation>geófono %1</translation>
    </message>
    <message>
        <source>geophones %1</source>
        <translation>geófonos %1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>lines %1</source>
        <translation>líneas %1</translation>
    </message>
    <message>
        <source>lines %1 and %2 more</source>
        <translation>líneas %1 y %2 más</translation>
    </message>
    <message>
        <source>Not used, for no geophone or shot of the survey is there: %1</source>
        <translation>No se usan, porque el levantamiento no tiene ese geófono o disparo: %1</translation>
    </message>
    <message>
        <source>Not used, for a row above is of the same geophone or shot: %1</source>
        <translation>No se usan, porque una fila anterior es del mismo geófono o disparo: %1</translation>
    </message>
    <message>
        <source>Without a row, placed among those that have one by the distances so far: %1</source>
        <translation>Sin fila, colocados entre los que tienen una según las distancias actuales: %1</translation>
    </message>
    <message>
        <source>Without a row, left where nothing tells how they stand to the others: %1</source>
        <translation>Sin fila, dejados donde nada indica cómo están respecto a los demás: %1</translation>
    </message>
    <message>
        <source>Without an elevation, raised to the line between the others: %1</source>
        <translation>Sin cota, elevados a la línea entre los demás: %1</translation>
    </message>
    <message>
        <source>Hardly apart from their neighbours: %1</source>
        <translation>Apenas separados de sus vecinos: %1</translation>
    </message>
    <message>
        <source>The line runs back to %1; an exchanged row or number?</source>
        <translation>La línea retrocede hasta %1; ¿hay una fila o un número intercambiado?</translation>
    </message>
    <message>
        <source>Not as far from the geophone before as expected: %1</source>
        <translation>No tan lejos del geófono anterior como se esperaba: %1</translation>
    </message>
    <message>
        <source>fewer than two geophones of the survey have a row in the table</source>
        <translation>menos de dos geófonos del levantamiento tienen una fila en la tabla</translation>
    </message>
    <message>
        <source>lengths along the ground need the elevation of every geophone; the table lacks %1</source>
        <translation>las distancias sobre el terreno necesitan la cota de cada geófono; en la tabla falta la de %1</translation>
    </message>
    <message>
        <source>its sample interval is not known</source>
        <translation>no se conoce su intervalo de muestreo</translation>
    </message>
    <message>
        <source>it has samples that are no numbers</source>
        <translation>tiene muestras que no son números</translation>
    </message>
    <message>
        <source>a notch needs a frequency, a multiple and a quality above 0</source>
        <translation>un filtro notch necesita una frecuencia, un múltiplo y una calidad mayores que 0</translation>
    </message>
    <message>
        <source>it is sampled too slowly for %1 Hz</source>
        <translation>su muestreo es demasiado lento para %1 Hz</translation>
    </message>
    <message>
        <source>it is shorter than one period of %1 Hz</source>
        <translation>dura menos que un periodo de %1 Hz</translation>
    </message>
    <message>
        <source>trace %1 has another length or sample interval than trace 1</source>
        <translation>la traza %1 tiene otra longitud u otro intervalo de muestreo que la traza 1</translation>
    </message>
    <message>
        <source>trace %1 has samples that are no numbers</source>
        <translation>la traza %1 tiene muestras que no son números</translation>
    </message>
    <message>
        <source>it has no samples, or no known sample interval</source>
        <translation>no tiene muestras, o no se conoce su intervalo de muestreo</translation>
    </message>
    <message>
        <source>its geophones are not evenly spaced: trace %1 at %2 is %3 from the one before, the usual distance is %4</source>
        <translation>sus geófonos no están a intervalos regulares: la traza %1, en %2, está a %3 de la anterior; la distancia habitual es de %4</translation>
    </message>
    <message>
        <source>it has fewer than %1 traces</source>
        <translation>tiene menos de %1 trazas</translation>
    </message>
    <message>
        <source>the positions of its geophones are not known</source>
        <translation>no se conocen las posiciones de sus geófonos</translation>
    </message>
    <message>
        <source>of %1 places along its line %2 have no trace</source>
        <translation>de %1 puntos de su línea, %2 no tienen traza</translation>
    </message>
    <message>
        <source>shot %1: of %2 places along its line %3 have no trace, or a killed one; they count as zero, beside them the filter is less sharp</source>
        <translation>disparo %1: de %2 puntos de su línea, %3 no tienen traza o la tienen anulada; cuentan como cero, y junto a ellos el filtro es menos nítido</translation>
    </message>
    <message>
        <source>the slowest velocity, %1, must be above 0 and below the fastest, %2</source>
        <translation>la velocidad mínima, %1, debe ser mayor que 0 y menor que la máxima, %2</translation>
    </message>
    <message>
        <source>the taper must be 0 or more and less than 100 percent of a limit</source>
        <translation>la transición debe ser de 0 o más y de menos del 100 por ciento de un límite</translation>
    </message>
    <message>
        <source>Surveyed positions</source>
        <translation>Posiciones topográficas</translation>
    </message>
    <message>
        <source>Marked isolines</source>
        <translation>Isolíneas destacadas</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Anotaciones</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Aplicar estilo</translation>
    </message>
    <message>
        <source>shot %1 has no trace %2</source>
        <translation>el disparo %1 no tiene la traza %2</translation>
    </message>
    <message>
        <source>no recordings yet</source>
        <translation>aún no hay registros</translation>
    </message>
    <message>
        <source>times of %1 shots, without recordings</source>
        <translation>tiempos de %1 disparos, sin registros</translation>
    </message>
    <message>
        <source>recordings that begin before their shot: %1</source>
        <translation>registros que comienzan antes de su disparo: %1</translation>
    </message>
    <message>
        <source>recordings that were read with warnings: %1</source>
        <translation>registros que se leyeron con advertencias: %1</translation>
    </message>
    <message>
        <source>shots: %1</source>
        <translation>disparos: %1</translation>
    </message>
    <message>
        <source>no geophones yet</source>
        <translation>aún no hay geófonos</translation>
    </message>
    <message>
        <source>positions are missing or cannot be</source>
        <translation>hay posiciones que faltan o que son imposibles</translation>
    </message>
    <message>
        <source>things that look wrong in the positions: %1</source>
        <translation>cosas que parecen erróneas en las posiciones: %1</translation>
    </message>
    <message>
        <source>geophones: %1, shots: %2</source>
        <translation>geófonos: %1, disparos: %2</translation>
    </message>
    <message>
        <source>no picks yet</source>
        <translation>aún no hay picados</translation>
    </message>
    <message>
        <source>shots without picks: %1</source>
        <translation>disparos sin picados: %1</translation>
    </message>
    <message>
        <source>only %1 of %2 traces have a pick</source>
        <translation>solo %1 de %2 trazas tienen un picado</translation>
    </message>
    <message>
        <source>%1 picks on %2 traces</source>
        <translation>%1 picados en %2 trazas</translation>
    </message>
    <message>
        <source>no picks to check yet</source>
        <translation>aún no hay picados que revisar</translation>
    </message>
    <message>
        <source>%1 of %2 picks that wait for confirmation are doubtful</source>
        <translation>%1 de %2 picados que esperan confirmación son dudosos</translation>
    </message>
    <message>
        <source>of %1 picks nothing is known that could speak against them</source>
        <translation>de %1 picados no se sabe nada que pueda contradecirlos</translation>
    </message>
    <message>
        <source>none of the %1 picks that wait for confirmation is doubtful</source>
        <translation>ninguno de los %1 picados que esperan confirmación es dudoso</translation>
    </message>
    <message>
        <source>no pick waits for confirmation</source>
        <translation>ningún picado espera confirmación</translation>
    </message>
    <message>
        <source>no grid yet</source>
        <translation>aún no hay malla</translation>
    </message>
    <message>
        <source>the grid has no cells</source>
        <translation>la malla no tiene celdas</translation>
    </message>
    <message>
        <source>shots and geophones beyond the grid: %1</source>
        <translation>disparos y geófonos fuera de la malla: %1</translation>
    </message>
    <message>
        <source>%1 x %2 cells</source>
        <translation>%1 x %2 celdas</translation>
    </message>
    <message>
        <source>%1, the usual starting model</source>
        <translation>%1, el modelo inicial habitual</translation>
    </message>
    <message>
        <source>%1, a starting model with layers: %2</source>
        <translation>%1, un modelo inicial con capas: %2</translation>
    </message>
    <message>
        <source>no inversion yet</source>
        <translation>aún no hay inversión</translation>
    </message>
    <message>
        <source>the section is older than the picks</source>
        <translation>la sección es anterior a los picados</translation>
    </message>
    <message>
        <source>the known ground is other than that of the section</source>
        <translation>el terreno conocido no es el de la sección</translation>
    </message>
    <message>
        <source>it was stopped before its end</source>
        <translation>se detuvo antes de terminar</translation>
    </message>
    <message>
        <source>chi-square is %1 and not near 1</source>
        <translation>chi cuadrado es %1 y no está cerca de 1</translation>
    </message>
    <message>
        <source>the section is inverted</source>
        <translation>la sección está invertida</translation>
    </message>
    <message>
        <source>RMSE %1 ms of %2 picks</source>
        <translation>RMSE %1 ms de %2 picados</translation>
    </message>
    <message>
        <source>no section yet</source>
        <translation>aún no hay sección</translation>
    </message>
    <message>
        <source>the layered profile is older than the picks</source>
        <translation>el perfil de capas es anterior a los picados</translation>
    </message>
    <message>
        <source>the certainty is older than the picks</source>
        <translation>la certeza es anterior a los picados</translation>
    </message>
    <message>
        <source>the section was smoothed after its inversion</source>
        <translation>la sección se suavizó después de su inversión</translation>
    </message>
    <message>
        <source>the section lies beyond its certainty</source>
        <translation>la sección se sale de su certeza</translation>
    </message>
    <message>
        <source>how certain the section is is not known</source>
        <translation>no se conoce la certeza de la sección</translation>
    </message>
    <message>
        <source>the section and its certainty are there</source>
        <translation>la sección y su certeza están disponibles</translation>
    </message>
    <message>
        <source>it has no section</source>
        <translation>no tiene sección</translation>
    </message>
    <message>
        <source>no cell of its section is drawn</source>
        <translation>no se dibuja ninguna celda de su sección</translation>
    </message>
    <message>
        <source>its line is nowhere on the map</source>
        <translation>su línea no tiene lugar en el mapa</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Anular trazas</translation>
    </message>
    <message>
        <source>Revive traces</source>
        <translation>Recuperar trazas</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Invertir polaridad</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Silenciar trazas</translation>
    </message>
    <message>
        <source>Mute traces no more</source>
        <translation>Dejar de silenciar trazas</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Amplificar trazas</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Atenuar trazas</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet.</source>
        <translation>La figura no cabe en esta hoja a ninguna escala: elija una hoja mayor.</translation>
    </message>
    <message>
        <source>The scale must lie between 1:%1 and 1:%2.</source>
        <translation>La escala debe estar entre 1:%1 y 1:%2.</translation>
    </message>
    <message>
        <source>choose two different recordings</source>
        <translation>elija dos registros distintos</translation>
    </message>
    <message>
        <source>Choose a scale, or type one such as 1:750.</source>
        <translation>Elija una escala o escriba una, por ejemplo 1:750.</translation>
    </message>
    <message>
        <source>The printer is set to paper of %1 x %2 mm, and the sheets are made for %3 x %4 mm: choose the same paper for both.</source>
        <translation>La impresora está configurada para papel de %1 x %2 mm y las hojas están hechas para %3 x %4 mm: elija el mismo papel para ambos.</translation>
    </message>
    <message>
        <source>The printer does not take the sheets.</source>
        <translation>La impresora no acepta las hojas.</translation>
    </message>
    <message>
        <source>Add sum of two shots</source>
        <translation>Añadir la suma de dos disparos</translation>
    </message>
    <message>
        <source>Add difference of two shots</source>
        <translation>Añadir la diferencia de dos disparos</translation>
    </message>
    <message>
        <source>Cannot make the folder %1</source>
        <translation>No se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>Cannot write %1: there is a file of that name that is no page of Talvesk; move it or choose another folder</source>
        <translation>No se puede escribir %1: hay un archivo con ese nombre que no es una página de Talvesk; muévalo o elija otra carpeta</translation>
    </message>
    <message>
        <source>There is nothing chosen to be drawn.</source>
        <translation>No se ha elegido nada que dibujar.</translation>
    </message>
    <message>
        <source>There is no section to draw.</source>
        <translation>No hay sección que dibujar.</translation>
    </message>
    <message>
        <source>A sheet has 1 to %1 rows and 1 to %2 columns of shots.</source>
        <translation>Una hoja tiene de 1 a %1 filas y de 1 a %2 columnas de disparos.</translation>
    </message>
    <message>
        <source>There is no sheet %1 to draw.</source>
        <translation>No hay hoja %1 que dibujar.</translation>
    </message>
    <message>
        <source>A centimetre must be %1 to %2 ms.</source>
        <translation>Un centímetro debe ser de %1 a %2 ms.</translation>
    </message>
    <message>
        <source>The figure fits this sheet at no scale: choose a larger sheet, or more milliseconds to a centimetre.</source>
        <translation>La figura no cabe en esta hoja a ninguna escala: elija una hoja mayor o más milisegundos por centímetro.</translation>
    </message>
    <message>
        <source>At 1:%1 the figure takes %2 x %3 mm, and the sheet has room for %4 x %5 mm: choose 1:%6 or a larger sheet, or have it split.</source>
        <translation>A 1:%1 la figura ocupa %2 x %3 mm y en la hoja caben %4 x %5 mm: elija 1:%6 o una hoja mayor, o divídala en varias.</translation>
    </message>
    <message>
        <source>its format names no fields of headers</source>
        <translation>su formato no nombra campos de cabecera</translation>
    </message>
    <message>
        <source>fields of SEG-Y revision 2 are not shown</source>
        <translation>los campos de SEG-Y revisión 2 no se muestran</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>las reglas del programa</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>el estándar de su formato</translation>
    </message>
    <message>
        <source>shot disabled</source>
        <translation>disparo desactivado</translation>
    </message>
    <message>
        <source>shifted by %1 ms</source>
        <translation>desplazado %1 ms</translation>
    </message>
    <message>
        <source>order reversed</source>
        <translation>orden invertido</translation>
    </message>
    <message>
        <source>stacked</source>
        <translation>apilado</translation>
    </message>
    <message>
        <source>killed</source>
        <translation>anulada</translation>
    </message>
    <message>
        <source>polarity reversed</source>
        <translation>polaridad invertida</translation>
    </message>
    <message>
        <source>muted before %1 ms</source>
        <translation>silenciada antes de %1 ms</translation>
    </message>
    <message>
        <source>gain %1</source>
        <translation>ganancia %1</translation>
    </message>
    <message>
        <source>filtered</source>
        <translation>filtrada</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Shot x</source>
        <translation>x del disparo</translation>
    </message>
    <message>
        <source>Shot elevation</source>
        <translation>Cota del disparo</translation>
    </message>
    <message>
        <source>Geophone x</source>
        <translation>x del geófono</translation>
    </message>
    <message>
        <source>Geophone elevation</source>
        <translation>Cota del geófono</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Distancia al disparo</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Picado</translation>
    </message>
    <message>
        <source>Pick error</source>
        <translation>Error del picado</translation>
    </message>
    <message>
        <source>Sample interval</source>
        <translation>Intervalo de muestreo</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Record length</source>
        <translation>Duración del registro</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retardo</translation>
    </message>
    <message>
        <source>Samples cut off</source>
        <translation>Muestras descartadas</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Correcciones</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Shot x in file</source>
        <translation>x del disparo en el archivo</translation>
    </message>
    <message>
        <source>Shot elevation in file</source>
        <translation>Cota del disparo en el archivo</translation>
    </message>
    <message>
        <source>Geophone x in file</source>
        <translation>x del geófono en el archivo</translation>
    </message>
    <message>
        <source>Geophone elevation in file</source>
        <translation>Cota del geófono en el archivo</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Leído según</translation>
    </message>
    <message>
        <source>it has no shot file</source>
        <translation>no tiene archivo de disparo</translation>
    </message>
    <message>
        <source>it is made of two shot files</source>
        <translation>está hecho de dos archivos de disparo</translation>
    </message>
    <message>
        <source>its file has %1 traces, the shot %2</source>
        <translation>su archivo tiene %1 trazas; el disparo, %2</translation>
    </message>
    <message>
        <source>no geophones of shot %1 and shot %2 that can be compared are at one place</source>
        <translation>ningún geófono comparable del disparo %1 y del disparo %2 está en un mismo lugar</translation>
    </message>
    <message>
        <source>no difference and no sum: the samples are %1 ms and %2 ms apart</source>
        <translation>sin diferencia ni suma: las muestras están a %1 ms y a %2 ms unas de otras</translation>
    </message>
    <message>
        <source>no difference and no sum: the records begin %1 samples apart, which is no whole number</source>
        <translation>sin diferencia ni suma: los registros empiezan con %1 muestras de separación, que no es un número entero</translation>
    </message>
    <message>
        <source>%1 traces at the same places</source>
        <translation>trazas en los mismos lugares: %1</translation>
    </message>
    <message>
        <source>without a partner: %1 traces of shot %2, %3 of shot %4</source>
        <translation>sin pareja: trazas del disparo %2: %1; del disparo %4: %3</translation>
    </message>
    <message>
        <source>the second is %1 times as strong</source>
        <translation>la intensidad del segundo es %1 veces la del primero</translation>
    </message>
    <message>
        <source>it is shown times %1</source>
        <translation>se muestra multiplicado por %1</translation>
    </message>
    <message>
        <source>its record begins %1 ms later</source>
        <translation>su registro empieza %1 ms más tarde</translation>
    </message>
    <message>
        <source>its record begins %1 ms earlier</source>
        <translation>su registro empieza %1 ms antes</translation>
    </message>
    <message>
        <source>difference and sum begin with %1 samples of zero</source>
        <translation>muestras de valor cero al principio de la diferencia y la suma: %1</translation>
    </message>
    <message>
        <source>difference and sum end %1 samples before the first</source>
        <translation>la diferencia y la suma terminan %1 muestras antes que el primero</translation>
    </message>
    <message>
        <source>sum of shots %1 and %2</source>
        <translation>suma de los disparos %1 y %2</translation>
    </message>
    <message>
        <source>difference of shots %1 and %2</source>
        <translation>diferencia de los disparos %1 y %2</translation>
    </message>
    <message>
        <source>At 1:%1 the figure is too large even for many sheets: choose 1:%2, or a scale between them.</source>
        <translation>A 1:%1 la figura es demasiado grande incluso para muchas hojas: elija 1:%2 o una escala intermedia.</translation>
    </message>
    <message>
        <source>put the %1 geophones of its string at %2 to %3</source>
        <translation>situar los %1 geófonos de su tendido de %2 a %3</translation>
    </message>
    <message>
        <source>%1; over %2 shots the least times move by one channel as the shot moves by %3, so geophone 1 is at %4 and the last one at %5</source>
        <translation>%1; en %2 disparos los tiempos mínimos se desplazan un canal cuando el disparo se desplaza %3, así que el geófono 1 está en %4 y el último en %5</translation>
    </message>
    <message>
        <source>no geophone stands between %1 and %2: the ground there is seen from neither side unless shots reach over it</source>
        <translation>no hay ningún geófono entre %1 y %2: el terreno de ahí no se ve desde ningún lado, salvo que haya disparos que lo rebasen</translation>
    </message>
    <message>
        <source>the positions of the geophones are no metres: over %1 shots the least times move by 1 as the shot moves by %2; geophones %3 apart from %4 on have them beside the shots</source>
        <translation>las posiciones de los geófonos no son metros: en %1 disparos los tiempos mínimos se desplazan 1 cuando el disparo se desplaza %2; con geófonos cada %3 a partir de %4 quedan junto a los disparos</translation>
    </message>
    <message>
        <source>the record is about %1 ms %2: the geophones nearest to the shot, %3 away, would put the blow between %4 and %5 ms, whatever the ground</source>
        <translation>el registro está %2 en unos %1 ms: los geófonos más próximos al disparo, a %3, situarían el golpe entre %4 y %5 ms, sea cual sea el terreno</translation>
    </message>
    <message>
        <source>The layers make no velocity model. Order them by depth, without overlap, each more than %1 thick.</source>
        <translation>Las capas no forman un modelo de velocidad. Ordénelas por profundidad, sin solapes y con más de %1 de espesor cada una.</translation>
    </message>
    <message>
        <source>%1 velocities and depths of the layers are left out: outside %2 to %3, or deeper than the line is long</source>
        <translation>se han descartado %1 velocidades y profundidades de las capas: quedan fuera del rango de %2 a %3 o son mayores que la longitud de la línea</translation>
    </message>
    <message>
        <source>velocities of %1 cell cannot be; they are held within %2 and %3</source>
        <translation>las velocidades de %1 celda son imposibles; se mantienen entre %2 y %3</translation>
    </message>
    <message>
        <source>velocities of %1 cells cannot be; they are held within %2 and %3</source>
        <translation>las velocidades de %1 celdas son imposibles; se mantienen entre %2 y %3</translation>
    </message>
    <message>
        <source>by its headers the geophones stand along %1; their scalar or unit is likely wrong, so check them or load a geometry file</source>
        <translation>según sus cabeceras los geófonos se extienden a lo largo de %1; es probable que su factor de escala o su unidad sean erróneos, así que compruébelos o cargue un archivo de geometría</translation>
    </message>
    <message>
        <source>%1 fields that there is no room for, among them %2</source>
        <translation>%1 campos para los que no hay sitio, entre ellos %2</translation>
    </message>
    <message>
        <source>%1 is no velocity of ground (%2 to %3)</source>
        <translation>%1 no es una velocidad del terreno (de %2 a %3)</translation>
    </message>
    <message>
        <source>%1 is no depth below the surface (0 to %2)</source>
        <translation>%1 no es una profundidad bajo la superficie (de 0 a %2)</translation>
    </message>
    <message>
        <source>a layer from %1 to %2 has its bottom not below its top</source>
        <translation>una capa de %1 a %2 no tiene la base por debajo del techo</translation>
    </message>
    <message>
        <source>an error of %1 must not be negative, and less than its velocity, %2</source>
        <translation>un error de %1 no debe ser negativo, y ha de ser menor que su velocidad, %2</translation>
    </message>
    <message>
        <source>Farther from the line than half the spacing of %1: %2</source>
        <translation>A más de la mitad de la separación de %1 de la línea: %2</translation>
    </message>
    <message>
        <source>Vp %1, Vs %2, Vp/Vs %3, Poisson&apos;s ratio %4</source>
        <translation>Vp %1, Vs %2, Vp/Vs %3, coeficiente de Poisson %4</translation>
    </message>
    <message>
        <source>Gardner&apos;s rule was found for rocks faster than %1; at %2 of %3 places Vp is less, and the density a guess.</source>
        <translation>La relación de Gardner se halló para rocas de más de %1; en %2 de %3 puntos Vp es menor, y la densidad, una conjetura.</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off from shot %3 at %4 on</source>
        <translation>el perfil solo se ajusta a sus picados en %1 ms, y las ondas de la propuesta en %2 ms: se desvía a partir del disparo %3, en %4</translation>
    </message>
    <message>
        <source>the profile fits its picks to %1 ms only, the waves of the proposal to %2 ms: it is off most at shot %3 at %4</source>
        <translation>el perfil solo se ajusta a sus picados en %1 ms, y las ondas de la propuesta en %2 ms: donde más se desvía es en el disparo %3, en %4</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 receivers, where the velocity comes out outside %3 to %4.</source>
        <translation>Capa %1: sin velocidad ni profundidad en %2 receptores, donde la velocidad resulta fuera del rango de %3 a %4.</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3, no depth</source>
        <translation>Capa %1, %2: %3, sin profundidad</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 at a depth of %4 (medians); depths at %5 of %6 geophones, %7 of them not carried by picks there</source>
        <translation>Capa %1, %2: %3 a una profundidad de %4 (medianas); profundidades en %5 de %6 geófonos, %7 de ellas sin picados que las respalden allí</translation>
    </message>
    <message>
        <source>Layer %1: depths are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Capa %1: las profundidades difieren más en %2, de %3 (%4) a %5 (%6)</translation>
    </message>
    <message>
        <source>Layer %1: velocities are farthest apart at %2, from %3 (%4) to %5 (%6)</source>
        <translation>Capa %1: las velocidades difieren más en %2, de %3 (%4) a %5 (%6)</translation>
    </message>
    <message>
        <source>no layers: a velocity that grows steadily with depth, from %1 with a gradient of %2 1/s, has a misfit of %3 ms</source>
        <translation>sin capas: una velocidad que crece de forma uniforme con la profundidad, desde %1 con un gradiente de %2 1/s, tiene un desajuste de %3 ms</translation>
    </message>
    <message>
        <source>The velocity limits must be positive numbers, the least below the greatest; %1 and %2 are not.</source>
        <translation>Los límites de velocidad deben ser números positivos, el mínimo menor que el máximo; %1 y %2 no lo son.</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, de %2 a %3</translation>
    </message>
    <message>
        <source>velocities of %1 and %2 do not increase with depth</source>
        <translation>las velocidades de %1 y %2 no aumentan con la profundidad</translation>
    </message>
    <message>
        <source>%1 at the surface, %2 where the deepest ray turns, %3 down</source>
        <translation>%1 en la superficie, %2 en el punto de retorno del rayo más profundo, a %3 de profundidad</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down, %4 from %5 down</source>
        <translation>%1, %2 a partir de %3 de profundidad, %4 a partir de %5 de profundidad</translation>
    </message>
    <message>
        <source>%1 with a gradient of %2 1/s, %3 from %4 down</source>
        <translation>%1 con un gradiente de %2 1/s, %3 a partir de %4 de profundidad</translation>
    </message>
    <message>
        <source>%1, %2 from %3 down</source>
        <translation>%1, %2 a partir de %3 de profundidad</translation>
    </message>
    <message>
        <source>Layer %1 is known from %2 to %3; its depth and velocity stay as they are there to the ends of the grid.</source>
        <translation>La capa %1 se conoce de %2 a %3; desde ahí, su profundidad y su velocidad se mantienen hasta los extremos de la malla.</translation>
    </message>
    <message>
        <source>the records of shot %1 and shot %2 begin too far apart in time to be laid over each other; look at the delays in their headers</source>
        <translation>los registros del disparo %1 y del disparo %2 empiezan demasiado separados en el tiempo para superponerlos; revise los retardos de sus cabeceras</translation>
    </message>
    <message>
        <source>the shots are at one place</source>
        <translation>los disparos están en un mismo lugar</translation>
    </message>
    <message>
        <source>the shots are %1 apart</source>
        <translation>los disparos están a %1 uno de otro</translation>
    </message>
    <message>
        <source>the shots are %1 apart: difference and sum are not of one place</source>
        <translation>los disparos están a %1 uno de otro: la diferencia y la suma no son de un mismo lugar</translation>
    </message>
    <message>
        <source>left out: %1 pairs with a trace that is killed, or has no samples or no interval</source>
        <translation>excluidos: pares con una traza anulada, sin muestras o sin intervalo: %1</translation>
    </message>
    <message>
        <source>left out: %1 pairs whose records begin too far apart in time</source>
        <translation>excluidos: pares cuyos registros empiezan demasiado separados en el tiempo: %1</translation>
    </message>
    <message>
        <source>%1 fields or more that there is no room for, among them %2</source>
        <translation>%1 campos o más para los que no hay sitio, entre ellos %2</translation>
    </message>
    <message>
        <source>%1 traces go together by their numbers, for all are at one place</source>
        <translation>%1 trazas se unen según sus números, pues todas están en un mismo lugar</translation>
    </message>
    <message>
        <source>where a shot was is not known</source>
        <translation>no se sabe dónde estaba un disparo</translation>
    </message>
</context>
<context>
    <name>talvesk::Messages</name>
    <message>
        <source>The document has been modified</source>
        <translation>El documento se ha modificado</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>¿Desea guardar los cambios?</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Recover survey</source>
        <translation>Recuperar levantamiento</translation>
    </message>
    <message>
        <source>Talvesk was not closed properly.</source>
        <translation>Talvesk no se cerró correctamente.</translation>
    </message>
    <message>
        <source>Ask again later</source>
        <translation>Preguntar más tarde</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Eliminar la copia</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitPlot</name>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Desajuste después de cada iteración externa</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Iteración externa</translation>
    </message>
    <message>
        <source>RMSE (ms)</source>
        <translation>RMSE (ms)</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Last solver pass</source>
        <translation>Última pasada del solucionador</translation>
    </message>
</context>
<context>
    <name>talvesk::MisfitTable</name>
    <message numerus="yes">
        <source>%n pick(s); picks later than computed by %1 ms in the mean; chi2 %2</source>
        <translation>
            <numerusform>%n picado; posterior en %1 ms al tiempo calculado, de media; chi2 %2</numerusform>
            <numerusform>%n picados; posteriores en %1 ms a los tiempos calculados, de media; chi2 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Misfit (ms)</source>
        <translation>Desajuste (ms)</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Capa %1</translation>
    </message>
    <message>
        <source>RMS of picks less computed times, per shot and layer</source>
        <translation>RMS de los picados menos los tiempos calculados, por disparo y capa</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Disparo %1</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Todos los disparos</translation>
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
        <translation>Quita de la copia filtrada el zumbido de la red eléctrica. Las llegadas no se desplazan.</translation>
    </message>
    <message>
        <source>&amp;Power line (Hz):</source>
        <translation>&amp;Red eléctrica (Hz):</translation>
    </message>
    <message>
        <source>50 Hz in most of the world, 60 Hz in North America; some railways have 16.7 Hz</source>
        <translation>50 Hz en la mayor parte del mundo, 60 Hz en Norteamérica; algunos ferrocarriles usan 16,7 Hz</translation>
    </message>
    <message>
        <source>&amp;Multiples:</source>
        <translation>&amp;Múltiplos:</translation>
    </message>
    <message>
        <source>So many multiples are taken out, the frequency itself among them, as far as the record has them</source>
        <translation>Cuántos múltiplos se quitan, incluida la propia frecuencia, hasta donde llegue el registro</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Calidad:</translation>
    </message>
    <message>
        <source>The frequency over the width of every notch at 3 dB: larger ones take less of the signal, and less of hum that wanders</source>
        <translation>La frecuencia dividida por el ancho de cada muesca a 3 dB: una calidad mayor quita menos señal, y menos zumbido si este varía</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Aplicar filtro a:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>Ori&amp;ginales</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>&amp;Filtrados</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>El filtro se aplica a todos los disparos.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>El filtro se aplica al disparo %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::PaletteDialog</name>
    <message>
        <source>Palette Settings</source>
        <translation>Configuración de la paleta</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Palette that colours the section</source>
        <translation>Paleta que colorea la sección</translation>
    </message>
    <message>
        <source>Load palettes from files</source>
        <translation>Carga paletas de archivos</translation>
    </message>
    <message>
        <source>Save this palette to a file</source>
        <translation>Guarda esta paleta en un archivo</translation>
    </message>
    <message>
        <source>Create New Palette</source>
        <translation>Crear paleta nueva</translation>
    </message>
    <message>
        <source>Add a palette from black to white and select it</source>
        <translation>Añade una paleta de negro a blanco y la selecciona</translation>
    </message>
    <message>
        <source>Edit Palette</source>
        <translation>Editar paleta</translation>
    </message>
    <message>
        <source>Edit the colours; of a built-in palette, those of a copy</source>
        <translation>Modifica los colores; si la paleta es predefinida, los de una copia</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <translation>Cambiar nombre de la paleta</translation>
    </message>
    <message>
        <source>Give the palette another name; built-in ones keep theirs</source>
        <translation>Da otro nombre a la paleta; las predefinidas conservan el suyo</translation>
    </message>
    <message>
        <source>Delete Palette</source>
        <translation>Eliminar paleta</translation>
    </message>
    <message>
        <source>Remove the palette; built-in ones stay</source>
        <translation>Quita la paleta; las predefinidas permanecen</translation>
    </message>
    <message>
        <source>Number of colours</source>
        <translation>Número de colores</translation>
    </message>
    <message>
        <source>Into how many colours the gradient is cut</source>
        <translation>En cuántos colores se divide el degradado</translation>
    </message>
    <message>
        <source>Range from Data</source>
        <translation>Rango de los datos</translation>
    </message>
    <message>
        <source>Lock the range</source>
        <translation>Bloquear el rango</translation>
    </message>
    <message>
        <source>Keep minimum and maximum when another palette is chosen or another line is shown</source>
        <translation>Conserva mínimo y máximo al elegir otra paleta o mostrar otra línea</translation>
    </message>
    <message>
        <source>Talvesk Palette (*.xml)</source>
        <translation>Paleta de Talvesk (*.xml)</translation>
    </message>
    <message>
        <source>MIN: %1, MAX: %2</source>
        <translation>MÍN: %1, MÁX: %2</translation>
    </message>
    <message>
        <source>New palette</source>
        <translation>Paleta nueva</translation>
    </message>
    <message>
        <source>%1 - copy</source>
        <translation>%1 - copia</translation>
    </message>
    <message>
        <source>Save new palette as : </source>
        <translation>Guardar la nueva paleta como: </translation>
    </message>
    <message>
        <source>There is a palette of this name already.</source>
        <translation>Ya existe una paleta con este nombre.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Este nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>Save Palette</source>
        <translation>Guardar paleta</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>¿Reemplazar el archivo?</translation>
    </message>
    <message>
        <source>Error while saving palette.</source>
        <translation>Error al guardar la paleta.</translation>
    </message>
    <message>
        <source>Open Palette</source>
        <translation>Abrir paleta</translation>
    </message>
    <message>
        <source>Error while loading palette.</source>
        <translation>Error al cargar la paleta.</translation>
    </message>
    <message>
        <source>Take minimum and maximum from the velocities of the section</source>
        <translation>Toma mínimo y máximo de las velocidades de la sección</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>&amp;Figure:</source>
        <translation>&amp;Figura:</translation>
    </message>
    <message>
        <source>What is printed. What there is nothing of yet is grey, with the reason.</source>
        <translation>Qué se imprime. Aquello de lo que aún no hay nada está en gris, con el motivo.</translation>
    </message>
    <message>
        <source>&amp;At:</source>
        <translation>&amp;En:</translation>
    </message>
    <message>
        <source>Place along the line of the depth profile</source>
        <translation>Lugar del perfil de profundidad a lo largo de la línea</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>Stands in the block below the figure</source>
        <translation>Figura en el cajetín, debajo de la figura</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>E&amp;scala:</translation>
    </message>
    <message>
        <source>How many times longer the line is than on paper: choose, or type any scale.</source>
        <translation>Cuántas veces la línea es más larga que sobre el papel: elija o escriba cualquier escala.</translation>
    </message>
    <message>
        <source>&amp;Vertical exaggeration:</source>
        <translation>Exageración &amp;vertical:</translation>
    </message>
    <message>
        <source>How many times larger heights are drawn than lengths along the line</source>
        <translation>Cuántas veces mayores se dibujan las alturas que las longitudes a lo largo de la línea</translation>
    </message>
    <message>
        <source>As shown</source>
        <translation>Como se muestra</translation>
    </message>
    <message>
        <source>T&amp;imes:</source>
        <translation>T&amp;iempos:</translation>
    </message>
    <message>
        <source>Milliseconds to a centimetre of paper</source>
        <translation>Milisegundos por centímetro de papel</translation>
    </message>
    <message>
        <source>As the sheet has room</source>
        <translation>Según quepa en la hoja</translation>
    </message>
    <message>
        <source> ms/cm</source>
        <translation> ms/cm</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>&amp;Orientación:</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Neighbouring sheets have 10 mm in common, with match lines where they are joined</source>
        <translation>Las hojas vecinas tienen 10 mm en común, con líneas de unión por las que se juntan</translation>
    </message>
    <message>
        <source>Sp&amp;lit over several sheets</source>
        <translation>&amp;Dividir en varias hojas</translation>
    </message>
    <message>
        <source>Whether the figure has room, and what else would fit</source>
        <translation>Si la figura cabe, y qué más cabría</translation>
    </message>
    <message>
        <source>Preview of the sheets</source>
        <translation>Vista previa de las hojas</translation>
    </message>
    <message>
        <source>Smaller preview</source>
        <translation>Vista previa más pequeña</translation>
    </message>
    <message>
        <source>Smaller preview (Ctrl+-)</source>
        <translation>Vista previa más pequeña (Ctrl+-)</translation>
    </message>
    <message>
        <source>Larger preview</source>
        <translation>Vista previa más grande</translation>
    </message>
    <message>
        <source>Larger preview (Ctrl++)</source>
        <translation>Vista previa más grande (Ctrl++)</translation>
    </message>
    <message>
        <source>All sheets in view</source>
        <translation>Todas las hojas a la vista</translation>
    </message>
    <message>
        <source>&amp;Whole sheets</source>
        <translation>&amp;Hojas enteras</translation>
    </message>
    <message>
        <source>Choose a printer and print the sheets on it, at their real size</source>
        <translation>Elija una impresora e imprima en ella las hojas, a su tamaño real</translation>
    </message>
    <message>
        <source>P&amp;rint ...</source>
        <translation>Imp&amp;rimir ...</translation>
    </message>
    <message>
        <source>Save the sheets as they would be printed</source>
        <translation>Guarda las hojas como se imprimirían</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>&amp;Guardar como PDF ...</translation>
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
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>No printer is installed. A PDF can be printed elsewhere.</source>
        <translation>No hay ninguna impresora instalada. Un PDF se puede imprimir en otro lugar.</translation>
    </message>
    <message>
        <source>There is nothing to print yet.</source>
        <translation>Aún no hay nada que imprimir.</translation>
    </message>
    <message>
        <source>The figure does not fit the sheet at this scale.</source>
        <translation>La figura no cabe en la hoja a esta escala.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n hoja</numerusform>
            <numerusform>%n hojas</numerusform>
        </translation>
    </message>
    <message>
        <source>At %1 the figure takes %2.</source>
        <translation>A %1 la figura ocupa %2.</translation>
    </message>
    <message>
        <source>The figure takes %1.</source>
        <translation>La figura ocupa %1.</translation>
    </message>
    <message>
        <source>At %1 the figure takes %2, and the sheet has room for %3.</source>
        <translation>A %1 la figura ocupa %2 y en la hoja caben %3.</translation>
    </message>
    <message>
        <source>With more milliseconds to a centimetre it is less high.</source>
        <translation>Con más milisegundos por centímetro es menos alta.</translation>
    </message>
    <message>
        <source>Choose a larger sheet.</source>
        <translation>Elija una hoja mayor.</translation>
    </message>
    <message>
        <source>What would fit:</source>
        <translation>Lo que cabría:</translation>
    </message>
    <message>
        <source>This is the first usual scale from %1 on at which it fits one sheet.</source>
        <translation>Es la primera escala habitual a partir de %1 a la que cabe en una hoja.</translation>
    </message>
</context>
<context>
    <name>talvesk::PrintPreview</name>
    <message>
        <source>Drawing the sheets ...</source>
        <translation>Dibujando las hojas ...</translation>
    </message>
</context>
<context>
    <name>talvesk::ProfileTable</name>
    <message>
        <source>picks</source>
        <translation>picados</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>phantom</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>hueco</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>prolongación</translation>
    </message>
    <message>
        <source>Picks of the shots at both ends of the line carry it.</source>
        <translation>Lo respaldan picados de los disparos de ambos extremos de la línea.</translation>
    </message>
    <message>
        <source>Shifted arrivals of other shots carry it.</source>
        <translation>Lo respaldan llegadas trasladadas de otros disparos.</translation>
    </message>
    <message>
        <source>It lies across more than two spacings without arrivals.</source>
        <translation>Cubre más de dos separaciones entre geófonos sin llegadas.</translation>
    </message>
    <message>
        <source>It continues what lies beside it, beyond the last arrivals.</source>
        <translation>Prolonga lo que hay al lado, más allá de las últimas llegadas.</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>Depth %1 (m)</source>
        <translation>Profundidad %1 (m)</translation>
    </message>
    <message>
        <source>V %1 (m/s)</source>
        <translation>V %1 (m/s)</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Profundidad %1 por</translation>
    </message>
    <message>
        <source>Fitted to all picks, some of which come from here or go here.</source>
        <translation>Ajustado a todos los picados, algunos de los cuales parten de aquí o llegan aquí.</translation>
    </message>
    <message>
        <source>No pick of the layer comes from here or goes here: it lies between what others tell.</source>
        <translation>Ningún picado de la capa parte de aquí ni llega aquí: el valor se sitúa entre lo que indican otros.</translation>
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
        <translation>Disparos:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Trazas:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Muestras por traza:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Intervalo de muestreo:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Retardo del registro:</translation>
    </message>
    <message>
        <source>Shot at:</source>
        <translation>Disparo en:</translation>
    </message>
    <message>
        <source>Geophones at:</source>
        <translation>Geófonos en:</translation>
    </message>
    <message>
        <source>Shot in view:</source>
        <translation>Disparo a la vista:</translation>
    </message>
    <message>
        <source>No trace</source>
        <translation>Ninguna traza</translation>
    </message>
    <message>
        <source>No warnings</source>
        <translation>Sin advertencias</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>no leído</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Nothing was read.</source>
        <translation>No se ha leído nada.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReadingsDialog</name>
    <message>
        <source>The standard reads more</source>
        <translation>El estándar lee más</translation>
    </message>
    <message>
        <source>The program&apos;s rules cannot carry all that these files hold. Read by the standard of their format they give more:</source>
        <translation>Las reglas del programa no pueden recoger todo lo que contienen estos archivos. Leídos según el estándar de su formato dan más:</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>What gets lost by the program&apos;s rules</source>
        <translation>Lo que se pierde con las reglas del programa</translation>
    </message>
    <message>
        <source>By the program&apos;s rules</source>
        <translation>Según las reglas del programa</translation>
    </message>
    <message>
        <source>By the standard</source>
        <translation>Según el estándar</translation>
    </message>
    <message>
        <source>Use the &amp;standard for these files</source>
        <translation>Usar el &amp;estándar para estos archivos</translation>
    </message>
    <message>
        <source>&amp;Keep the program&apos;s rules</source>
        <translation>&amp;Mantener las reglas del programa</translation>
    </message>
    <message>
        <source>Files and what each reading finds in them</source>
        <translation>Archivos y lo que cada lectura encuentra en ellos</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityDialog</name>
    <message>
        <source>Reciprocity</source>
        <translation>Reciprocidad</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Tiempos en ambos sentidos</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>Posición [m]</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Pares</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Retraso [ms]</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Corrección</translation>
    </message>
    <message>
        <source>Differences of times there and back, shot by shot</source>
        <translation>Diferencias entre los tiempos de ida y los de vuelta, disparo a disparo</translation>
    </message>
    <message>
        <source>The pick of the first shot at the place of the second comes into view in the window; a click on a line or a cell does the same</source>
        <translation>Muestra en la ventana el picado del primer disparo en el punto del segundo; un clic en una fila o una celda hace lo mismo</translation>
    </message>
    <message>
        <source>Show pick &amp;there</source>
        <translation>Mostrar picado de &amp;ida</translation>
    </message>
    <message>
        <source>The pick of the second shot at the place of the first comes into view; so does a click on the second shot of a line, or on the cell across the diagonal</source>
        <translation>Muestra el picado del segundo disparo en el punto del primero; un clic en el segundo disparo de una fila o en la celda simétrica respecto a la diagonal hace lo mismo</translation>
    </message>
    <message>
        <source>Show pick &amp;back</source>
        <translation>Mostrar picado de &amp;vuelta</translation>
    </message>
    <message>
        <source>Shifts the record of the chosen shot, with its picks, by the time that mends it; Undo takes it back</source>
        <translation>Desplaza el registro del disparo elegido, con sus picados, el tiempo que lo corrige; Deshacer lo revierte</translation>
    </message>
    <message>
        <source>&amp;Mend</source>
        <translation>&amp;Corregir</translation>
    </message>
    <message>
        <source>Saves all pairs as a table (.csv)</source>
        <translation>Guarda todos los pares como tabla (.csv)</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Guardar tabla...</translation>
    </message>
    <message>
        <source>Pairs of shots: %1, RMS of their differences: %2 ms. A wave takes as long on the way back: what differs is a pick, or a clock.</source>
        <translation>Pares de disparos: %1, RMS de sus diferencias: %2 ms. Una onda tarda lo mismo a la vuelta: si los tiempos difieren, falla un picado o un reloj.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Disparo %1: %2.</translation>
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
        <translation>ninguna: no hay registro que desplazar</translation>
    </message>
    <message>
        <source>Pick the traces of more shots. Where they have picks, see whether geophones and shots stand where they stood.</source>
        <translation>Pique las trazas de más disparos. Donde tengan picados, compruebe si los geófonos y los disparos figuran donde estaban.</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityMatrix</name>
    <message>
        <source>Row to column, longer than back by [ms]</source>
        <translation>Ida (de fila a columna) menos vuelta [ms]</translation>
    </message>
    <message>
        <source>Shot %1 to shot %2</source>
        <translation>Del disparo %1 al disparo %2</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Disparo %1</translation>
    </message>
    <message>
        <source>%1: no picks along both ways</source>
        <translation>%1: sin picados en ambos sentidos</translation>
    </message>
    <message>
        <source>%1: %2 ms, back %3 ms, difference %4 ms</source>
        <translation>%1: %2 ms, vuelta %3 ms, diferencia %4 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::ReciprocityModel</name>
    <message>
        <source>Shows trace %1 of shot %2</source>
        <translation>Muestra la traza %1 del disparo %2</translation>
    </message>
    <message>
        <source>–</source>
        <comment>not known</comment>
        <translation>–</translation>
    </message>
    <message>
        <source>The difference in standard deviations, where both picks have an error</source>
        <translation>La diferencia en desviaciones estándar, si ambos picados tienen error</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>At [m]</source>
        <translation>Posición [m]</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Ida [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Vuelta [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Diferencia [ms]</translation>
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
        <translation>Detalles del registro</translation>
    </message>
    <message>
        <source>&amp;Shot:</source>
        <translation>&amp;Disparo:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Traces:</source>
        <translation>Trazas:</translation>
    </message>
    <message>
        <source>Samples per trace:</source>
        <translation>Muestras por traza:</translation>
    </message>
    <message>
        <source>Sample interval:</source>
        <translation>Intervalo de muestreo:</translation>
    </message>
    <message>
        <source>Record length:</source>
        <translation>Duración del registro:</translation>
    </message>
    <message>
        <source>Recording delay:</source>
        <translation>Retardo del registro:</translation>
    </message>
    <message>
        <source>Samples dropped before the shot:</source>
        <translation>Muestras descartadas antes del disparo:</translation>
    </message>
    <message>
        <source>Traces of the shot</source>
        <translation>Trazas del disparo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Geophone x (m)</source>
        <translation>Geófono x (m)</translation>
    </message>
    <message>
        <source>Geophone z (m)</source>
        <translation>Geófono z (m)</translation>
    </message>
    <message>
        <source>Shot x (m)</source>
        <translation>Disparo x (m)</translation>
    </message>
    <message>
        <source>Shot z (m)</source>
        <translation>Disparo z (m)</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Interval (ms)</source>
        <translation>Intervalo (ms)</translation>
    </message>
    <message>
        <source>Delay (ms)</source>
        <translation>Retardo (ms)</translation>
    </message>
    <message>
        <source>&amp;Warnings of the reader:</source>
        <translation>Ad&amp;vertencias del lector:</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>shot number, file name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Read by:</source>
        <translation>Leído según:</translation>
    </message>
    <message>
        <source>Mends:</source>
        <translation>Correcciones:</translation>
    </message>
    <message>
        <source>the program&apos;s rules</source>
        <translation>las reglas del programa</translation>
    </message>
    <message>
        <source>the standard of its format</source>
        <translation>el estándar de su formato</translation>
    </message>
    <message>
        <source>the standard of its format; record %1 of the file, %2</source>
        <translation>el estándar de su formato; registro %1 del archivo, %2</translation>
    </message>
    <message>
        <source>Pick (ms)</source>
        <translation>Picado (ms)</translation>
    </message>
    <message>
        <source>Error (ms)</source>
        <translation>Error (ms)</translation>
    </message>
    <message>
        <source>Samples are kept:</source>
        <translation>Ubicación de las muestras:</translation>
    </message>
    <message>
        <source>in memory and on the disk</source>
        <translation>en memoria y en disco</translation>
    </message>
    <message>
        <source>on the disk</source>
        <translation>en disco</translation>
    </message>
    <message>
        <source>in memory</source>
        <translation>en memoria</translation>
    </message>
    <message>
        <source>in memory, for %1</source>
        <translation>en memoria, porque %1</translation>
    </message>
    <message>
        <source>Filtered copy by:</source>
        <translation>Copia filtrada con:</translation>
    </message>
</context>
<context>
    <name>talvesk::RecoveryCopy</name>
    <message>
        <source>Nothing can be written in %1</source>
        <translation>No se puede escribir en %1</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProcessingDialog</name>
    <message>
        <source>Refraction processing</source>
        <translation>Procesamiento de refracción</translation>
    </message>
    <message>
        <source>T-x curves</source>
        <translation>Curvas T-x</translation>
    </message>
    <message>
        <source>Select layer:</source>
        <translation>Seleccionar capa:</translation>
    </message>
    <message>
        <source>0 none</source>
        <translation>0 ninguna</translation>
    </message>
    <message>
        <source>1 direct wave</source>
        <translation>1 onda directa</translation>
    </message>
    <message>
        <source>2 first refractor</source>
        <translation>2 primer refractor</translation>
    </message>
    <message>
        <source>3 second refractor</source>
        <translation>3 segundo refractor</translation>
    </message>
    <message>
        <source>Show layer:</source>
        <translation>Mostrar capa:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
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
        <translation>Editable</translation>
    </message>
    <message>
        <source>Let clicks and drags mark picks</source>
        <translation>Los clics y arrastres asignan picados</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Propose layers</source>
        <translation>Proponer capas</translation>
    </message>
    <message>
        <source>Find the break points of all branches</source>
        <translation>Busca los puntos de quiebre de todas las ramas</translation>
    </message>
    <message>
        <source>Clear marks</source>
        <translation>Borrar asignaciones</translation>
    </message>
    <message>
        <source>Shot:</source>
        <translation>Disparo:</translation>
    </message>
    <message>
        <source>Takes part</source>
        <translation>Participa</translation>
    </message>
    <message>
        <source>Whether the chosen shot takes part in the interpretation</source>
        <translation>Si el disparo elegido participa en la interpretación</translation>
    </message>
    <message>
        <source>Phantoming</source>
        <translation>Phantoming</translation>
    </message>
    <message>
        <source>Auto phantoming</source>
        <translation>Phantoming automático</translation>
    </message>
    <message>
        <source>Complete the curves of the end shots by the arrivals of the other shots</source>
        <translation>Completa las dromocronas de los disparos extremos con las llegadas de los demás disparos</translation>
    </message>
    <message>
        <source>Time shifts</source>
        <translation>Traslaciones de tiempo</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Receptores</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picados</translation>
    </message>
    <message>
        <source>Shift (ms)</source>
        <translation>Traslación (ms)</translation>
    </message>
    <message>
        <source>tV/tG</source>
        <translation>tV/tG</translation>
    </message>
    <message>
        <source>Refractor:</source>
        <translation>Refractor:</translation>
    </message>
    <message>
        <source>Velocity/Profile</source>
        <translation>Velocidad/Perfil</translation>
    </message>
    <message>
        <source>Build profiles</source>
        <translation>Construir perfiles</translation>
    </message>
    <message>
        <source>Curves, tV and tG, velocities and depths from the marks</source>
        <translation>Dromocronas, tV y tG, velocidades y profundidades a partir de las asignaciones</translation>
    </message>
    <message>
        <source>X (m)</source>
        <translation>X (m)</translation>
    </message>
    <message>
        <source>time (ms)</source>
        <translation>tiempo (ms)</translation>
    </message>
    <message>
        <source>There are no picks to assign to layers: pick first breaks, or import travel times.</source>
        <translation>No hay picados que asignar a capas: pique primeras llegadas o importe tiempos de recorrido.</translation>
    </message>
    <message>
        <source>Phantom travel times</source>
        <translation>Tiempos de recorrido fantasma</translation>
    </message>
    <message>
        <source>No curves yet.

Assign picks to layer 2 for a shot at either end of the line, then press &quot;Auto phantoming&quot; or &quot;Build profiles&quot;.</source>
        <translation>Aún no hay dromocronas.

Asigne a la capa 2 picados de un disparo en cada extremo de la línea y pulse «Phantoming automático» o «Construir perfiles».</translation>
    </message>
    <message>
        <source>tV, velocity analysis</source>
        <translation>tV, análisis de velocidad</translation>
    </message>
    <message>
        <source>tG, time depth</source>
        <translation>tG, profundidad en tiempo</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Velocity (m/s)</source>
        <translation>Velocidad (m/s)</translation>
    </message>
    <message>
        <source>Refraction Profile</source>
        <translation>Perfil de refracción</translation>
    </message>
    <message>
        <source>Z (m)</source>
        <translation>Z (m)</translation>
    </message>
    <message>
        <source>Nothing is built yet: assign picks to layers and press &quot;Build profiles&quot;.</source>
        <translation>Aún no se ha construido nada: asigne picados a las capas y pulse «Construir perfiles».</translation>
    </message>
    <message>
        <source>There is no depth to show. Layer 1 needs a branch with two picks, and each refractor has to be faster than the layer above.</source>
        <translation>No hay ninguna profundidad que mostrar. La capa 1 necesita una rama con dos picados, y cada refractor debe ser más rápido que la capa superior.</translation>
    </message>
    <message>
        <source>All shots</source>
        <translation>Todos los disparos</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1: en %2</translation>
    </message>
    <message numerus="yes">
        <source>take %n pick(s) out</source>
        <translation>
            <numerusform>quitar %n picado</numerusform>
            <numerusform>quitar %n picados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>mark %n pick(s)</source>
        <translation>
            <numerusform>asignar %n picado</numerusform>
            <numerusform>asignar %n picados</numerusform>
        </translation>
    </message>
    <message>
        <source>The marks have changed since the profiles were built.</source>
        <translation>Las asignaciones han cambiado desde que se construyeron los perfiles.</translation>
    </message>
    <message>
        <source>Click a pick, or drag around several, to assign them. Keys 1, 2, 3 and 0: layer</source>
        <translation>Haga clic en un picado, o arrastre alrededor de varios, para asignarlos. Teclas 1, 2, 3 y 0: capa</translation>
    </message>
    <message>
        <source>right of shot %1</source>
        <translation>a la derecha del disparo %1</translation>
    </message>
    <message>
        <source>left of shot %1</source>
        <translation>a la izquierda del disparo %1</translation>
    </message>
    <message>
        <source>no velocity</source>
        <translation>sin velocidad</translation>
    </message>
    <message>
        <source>Layer %1, %2: %3 (%4 picks)</source>
        <translation>Capa %1, %2: %3 (%4 picados)</translation>
    </message>
    <message>
        <source>Replace the marks by a proposal?</source>
        <translation>¿Sustituir las asignaciones por una propuesta?</translation>
    </message>
    <message>
        <source>All picks are assigned anew from the break points of the branches. Undo brings the marks back.</source>
        <translation>Todos los picados se reasignan a partir de los puntos de quiebre de las ramas. Deshacer recupera las asignaciones.</translation>
    </message>
    <message>
        <source>No branch of the curves has picks enough to tell layers apart.</source>
        <translation>Ninguna rama de las dromocronas tiene suficientes picados para distinguir capas.</translation>
    </message>
    <message>
        <source>propose layers</source>
        <translation>proponer capas</translation>
    </message>
    <message>
        <source>clear marks</source>
        <translation>borrar asignaciones</translation>
    </message>
    <message>
        <source>let shot %1 take part</source>
        <translation>hacer participar el disparo %1</translation>
    </message>
    <message>
        <source>leave shot %1 out</source>
        <translation>excluir el disparo %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>No profile could be built.</source>
        <translation>No se ha podido construir ningún perfil.</translation>
    </message>
    <message>
        <source>first (layer 2)</source>
        <translation>primero (capa 2)</translation>
    </message>
    <message>
        <source>second (layer 3)</source>
        <translation>segundo (capa 3)</translation>
    </message>
    <message>
        <source>Layer %1 from shot %2</source>
        <translation>Capa %1 desde el disparo %2</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>hacia la derecha</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>hacia la izquierda</translation>
    </message>
    <message>
        <source>other XY</source>
        <translation>otros XY</translation>
    </message>
    <message>
        <source>XY = %1</source>
        <translation>XY = %1</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Capa %1</translation>
    </message>
    <message>
        <source>Close without keeping the changes?</source>
        <translation>¿Cerrar sin conservar los cambios?</translation>
    </message>
    <message>
        <source>XY, half distance (m):</source>
        <translation>XY, mitad de la distancia (m):</translation>
    </message>
    <message>
        <source>The forward curve is read at the distance XY after the receiver, the reverse curve at XY before it: the two points lie 2 XY apart.</source>
        <translation>La dromocrona directa se lee a la distancia XY después del receptor y la inversa a la distancia XY antes: los dos puntos distan 2 XY.</translation>
    </message>
    <message>
        <source>The picks have changed since the profiles were built.</source>
        <translation>Los picados han cambiado desde que se construyeron los perfiles.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known. Build the profiles again to be told why.</source>
        <translation>Algunas velocidades o profundidades no se conocen. Vuelva a construir los perfiles para saber por qué.</translation>
    </message>
    <message>
        <source>Propose over the whole survey</source>
        <translation>Proponer para todo el levantamiento</translation>
    </message>
    <message>
        <source>Fit ground of one, two and three layers, and ground whose velocity grows steadily, to all picks together, and propose what fits best</source>
        <translation>Ajusta a todos los picados a la vez terrenos de una, dos y tres capas, y otro cuya velocidad crece de forma uniforme, y propone lo que mejor se ajusta</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Tiempos calculados</translation>
    </message>
    <message>
        <source>Draw the arrivals through the profiles as they were built, as black lines: for every pick the wave of its layer</source>
        <translation>Dibuja como líneas negras las llegadas a través de los perfiles tal como se construyeron: para cada picado, la onda de su capa</translation>
    </message>
    <message>
        <source>RMS misfit (ms)</source>
        <translation>Desajuste RMS (ms)</translation>
    </message>
    <message>
        <source>; misfit of the shot %1</source>
        <translation>; desajuste del disparo: %1</translation>
    </message>
    <message>
        <source>No layers are proposed.</source>
        <translation>No se propone ninguna capa.</translation>
    </message>
    <message numerus="yes">
        <source>No layers are proposed. Mark %n layers all the same?</source>
        <translation>
            <numerusform>No se propone ninguna capa. ¿Asignar los picados a %n capa de todos modos?</numerusform>
            <numerusform>No se propone ninguna capa. ¿Asignar los picados a %n capas de todos modos?</numerusform>
        </translation>
    </message>
    <message>
        <source>propose layers over the whole survey</source>
        <translation>proponer capas para todo el levantamiento</translation>
    </message>
    <message>
        <source>Proposal over the whole survey: %1</source>
        <translation>Propuesta para todo el levantamiento: %1</translation>
    </message>
    <message>
        <source>The marks are no longer those of this proposal.</source>
        <translation>Las asignaciones ya no son las de esta propuesta.</translation>
    </message>
    <message>
        <source>Computing times...</source>
        <translation>Calculando tiempos...</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 con %2</translation>
    </message>
    <message>
        <source>%1: the picks do not tell</source>
        <translation>%1: los picados no lo determinan</translation>
    </message>
    <message>
        <source>smoothest tV</source>
        <translation>tV más suave</translation>
    </message>
    <message>
        <source>most even velocity</source>
        <translation>velocidad más uniforme</translation>
    </message>
    <message>
        <source>%1: tV rough by %2 ms, velocity uneven by %3 %</source>
        <translation>%1: rugosidad de tV %2 ms, irregularidad de la velocidad %3 %</translation>
    </message>
    <message>
        <source>Depths and velocities</source>
        <translation>Profundidades y velocidades</translation>
    </message>
    <message>
        <source>Compare &amp;methods ...</source>
        <translation>Comparar &amp;métodos ...</translation>
    </message>
    <message>
        <source>Layers from the marks by other methods beside the reciprocal one: delay times, intercept times and plus-minus</source>
        <translation>Capas a partir de las asignaciones por otros métodos además del recíproco: tiempos de retardo, tiempos de intercepción y más-menos</translation>
    </message>
    <message>
        <source>There is no profile yet.</source>
        <translation>Aún no hay perfil.</translation>
    </message>
    <message>
        <source>Picks or marks have changed: build the profiles again.</source>
        <translation>Los picados o las asignaciones han cambiado: vuelva a construir los perfiles.</translation>
    </message>
    <message>
        <source>Profile:</source>
        <translation>Perfil:</translation>
    </message>
    <message>
        <source>How &quot;Build profiles&quot; finds velocities and depths: from the curves of the end shots, or so that computed times fit the picks of all shots</source>
        <translation>Cómo halla «Construir perfiles» las velocidades y profundidades: a partir de las dromocronas de los disparos extremos, o de modo que los tiempos calculados se ajusten a los picados de todos los disparos</translation>
    </message>
    <message>
        <source>Reciprocal method</source>
        <translation>Método recíproco</translation>
    </message>
    <message>
        <source>Fitted to all picks</source>
        <translation>Ajustado a todos los picados</translation>
    </message>
    <message>
        <source>No profile can be fitted to all picks.</source>
        <translation>No se puede ajustar ningún perfil a todos los picados.</translation>
    </message>
    <message>
        <source>Direct waves and waves along refractors do not explain picks that are marked so. Look at the marks, or choose &quot;Reciprocal method&quot;.</source>
        <translation>Ni las ondas directas ni las que viajan a lo largo de refractores explican los picados así asignados. Revise las asignaciones o elija «Método recíproco».</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Ningún disparo participante tiene picados de la capa 2.</translation>
    </message>
    <message>
        <source>The profile that is shown is by the reciprocal method.</source>
        <translation>El perfil mostrado se obtuvo por el método recíproco.</translation>
    </message>
    <message>
        <source>The profile that is shown is fitted to all picks.</source>
        <translation>El perfil mostrado está ajustado a todos los picados.</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no tV and tG.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Un perfil ajustado a todos los picados no tiene tV ni tG.

Para tenerlos, elija «Método recíproco» y pulse «Construir perfiles».</translation>
    </message>
    <message>
        <source>A profile that is fitted to all picks has no phantom arrivals.

Choose &quot;Reciprocal method&quot; and press &quot;Build profiles&quot; to have them.</source>
        <translation>Un perfil ajustado a todos los picados no tiene llegadas fantasma.

Para tenerlas, elija «Método recíproco» y pulse «Construir perfiles».</translation>
    </message>
    <message>
        <source>&quot;Build profiles&quot; fits the profile to all picks; beside it the reciprocal method can be chosen.</source>
        <translation>«Construir perfiles» ajusta el perfil a todos los picados; al lado puede elegirse el método recíproco.</translation>
    </message>
    <message>
        <source>Layer 1 at the surface, growing with depth</source>
        <translation>Capa 1 en superficie, creciente con la profundidad</translation>
    </message>
    <message>
        <source>What errors of the picks make of a profile is found for the reciprocal method only.</source>
        <translation>El efecto de los errores de los picados en un perfil solo se calcula para el método recíproco.</translation>
    </message>
    <message>
        <source>Velocities and depths are fitted to all picks. %1</source>
        <translation>Las velocidades y profundidades están ajustadas a todos los picados. %1</translation>
    </message>
    <message>
        <source>Misfit: %1.</source>
        <translation>Desajuste: %1.</translation>
    </message>
    <message>
        <source>Some velocities or depths are not known: no ground has those that fit there.</source>
        <translation>Algunas velocidades o profundidades no se conocen: las que se ajustarían ahí no se dan en ningún terreno.</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionProfilePlot</name>
    <message>
        <source>Geophones</source>
        <translation>Geófonos</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
</context>
<context>
    <name>talvesk::RefractionTexts</name>
    <message>
        <source>Unable to find nearest shot for first refractor</source>
        <translation>No se encuentra el disparo más cercano para el primer refractor</translation>
    </message>
    <message>
        <source>Velocity is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>La velocidad es menor que cero en al menos un receptor. El perfil puede no ser preciso. Compruebe los datos de entrada </translation>
    </message>
    <message>
        <source>Strong lateral velocity variations. The profile may not be accurate.</source>
        <translation>Fuertes variaciones laterales de velocidad. El perfil puede no ser preciso.</translation>
    </message>
    <message>
        <source>The Tg function is less then zero at least one receiver. The profile may not be accurate. Please check input data </source>
        <translation>La función Tg es menor que cero en al menos un receptor. El perfil puede no ser preciso. Compruebe los datos de entrada </translation>
    </message>
    <message>
        <source>Layer %1: no shot at each end of the line has picks of it, so it has no profile.</source>
        <translation>Capa %1: no hay en cada extremo de la línea un disparo con picados de ella, así que no tiene perfil.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the start of the line has fewer than two usable picks of it, so there is no forward curve.</source>
        <translation>Capa %1: el disparo del inicio de la línea tiene menos de dos picados utilizables de ella, así que no hay dromocrona directa.</translation>
    </message>
    <message>
        <source>Layer %1: the shot at the end of the line has fewer than two usable picks of it, so there is no reverse curve.</source>
        <translation>Capa %1: el disparo del final de la línea tiene menos de dos picados utilizables de ella, así que no hay dromocrona inversa.</translation>
    </message>
    <message>
        <source>Layer %1: forward and reverse curve have fewer than two receivers in common.</source>
        <translation>Capa %1: las dromocronas directa e inversa tienen menos de dos receptores en común.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it is not faster than the layer above.</source>
        <translation>Capa %1: sin profundidad en %2 de %3 receptores, donde no es más rápida que la capa superior.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, which lie beyond the profile of the layer above.</source>
        <translation>Capa %1: sin profundidad en %2 de %3 receptores, que quedan más allá del perfil de la capa superior.</translation>
    </message>
    <message>
        <source>No shot that takes part has picks of layer 2.</source>
        <translation>Ningún disparo participante tiene picados de la capa 2.</translation>
    </message>
    <message>
        <source>At each end of the line, or beyond, there must be a shot with picks of layer 2. Such shots reach from %1 to %2, but the geophones from %3 to %4.</source>
        <translation>En cada extremo de la línea, o más allá, debe haber un disparo con picados de la capa 2. Tales disparos van de %1 a %2, pero los geófonos de %3 a %4.</translation>
    </message>
    <message>
        <source>Layer %1: no shot that takes part has two picks of it on one side, so it has no velocity and the layers below have no depth.</source>
        <translation>Capa %1: ningún disparo participante tiene dos picados de ella a un mismo lado, así que no tiene velocidad y las capas inferiores no tienen profundidad.</translation>
    </message>
    <message>
        <source>Layer %1: its velocity comes out outside %2 to %3, so it has none and the layers below have no depth.</source>
        <translation>Capa %1: la velocidad calculada queda fuera del rango de %2 a %3, así que la capa no tiene velocidad y las capas inferiores no tienen profundidad.</translation>
    </message>
    <message>
        <source>Layer %1: no velocity and no depth at %2 of %3 receivers, where the velocity comes out outside %4 to %5.</source>
        <translation>Capa %1: sin velocidad ni profundidad en %2 de %3 receptores, donde la velocidad calculada queda fuera del rango de %4 a %5.</translation>
    </message>
    <message>
        <source>Layer %1: no depth at %2 of %3 receivers, where it comes out deeper than the line is long.</source>
        <translation>Capa %1: sin profundidad en %2 de %3 receptores, donde la profundidad calculada supera la longitud de la línea.</translation>
    </message>
    <message>
        <source>Layer 1 has %1 in the mean, and %2 to %3 at the surface.</source>
        <translation>La capa 1 tiene %1 de media, y de %2 a %3 en superficie.</translation>
    </message>
    <message>
        <source>It grows by %1 % of that per %2, down to %3.</source>
        <translation>Esta última crece un %1 % por %2, hasta %3 de profundidad.</translation>
    </message>
</context>
<context>
    <name>talvesk::Report</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Table %1. %2</source>
        <translation>Tabla %1. %2</translation>
    </message>
    <message>
        <source>Figure %1. %2</source>
        <translation>Figura %1. %2</translation>
    </message>
    <message>
        <source>Seismic refraction survey</source>
        <translation>Levantamiento de sísmica de refracción</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>Position [%1]</source>
        <translation>Posición [%1]</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Trazas</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picados</translation>
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
        <translation>Máximo [ms]</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Linear weighted</source>
        <translation>Ponderado lineal</translation>
    </message>
    <message>
        <source>Gaussian weighted</source>
        <translation>Ponderado gaussiano</translation>
    </message>
    <message>
        <source>Ray based</source>
        <translation>Basado en rayos</translation>
    </message>
    <message>
        <source>Uniform weighted</source>
        <translation>Ponderado uniforme</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Celdas</translation>
    </message>
    <message>
        <source>%1 rows by %2 columns</source>
        <translation>%1 filas por %2 columnas</translation>
    </message>
    <message>
        <source>Side of a cell</source>
        <translation>Lado de una celda</translation>
    </message>
    <message>
        <source>Depth below the surface</source>
        <translation>Profundidad bajo la superficie</translation>
    </message>
    <message>
        <source>Nodes per cell side</source>
        <translation>Nodos por lado de celda</translation>
    </message>
    <message>
        <source>Nodes altogether</source>
        <translation>Nodos en total</translation>
    </message>
    <message>
        <source>The grid under the line</source>
        <translation>La malla bajo la línea</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Top [%1]</source>
        <translation>Techo [%1]</translation>
    </message>
    <message>
        <source>Bottom [%1]</source>
        <translation>Base [%1]</translation>
    </message>
    <message>
        <source>Velocity at top [%1]</source>
        <translation>Velocidad en el techo [%1]</translation>
    </message>
    <message>
        <source>Velocity at bottom [%1]</source>
        <translation>Velocidad en la base [%1]</translation>
    </message>
    <message>
        <source>The layers of the starting model, depths below the surface</source>
        <translation>Las capas del modelo inicial, profundidades bajo la superficie</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, stopped by the user</source>
        <translation>%1, detenida por el usuario</translation>
    </message>
    <message>
        <source>External iterations</source>
        <translation>Iteraciones externas</translation>
    </message>
    <message>
        <source>Solver iterations on the rays of each</source>
        <translation>Iteraciones del solucionador con los rayos de cada una</translation>
    </message>
    <message>
        <source>Velocity limits</source>
        <translation>Límites de velocidad</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>Smoothing radius</source>
        <translation>Radio de suavizado</translation>
    </message>
    <message>
        <source>1 cell</source>
        <translation>1 celda</translation>
    </message>
    <message>
        <source>%1 cells</source>
        <translation>%1 celdas</translation>
    </message>
    <message>
        <source>Height over width of the smoothing window</source>
        <translation>Relación alto/ancho de la ventana de suavizado</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Tiempo transcurrido</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Parameters of the inversion</source>
        <translation>Parámetros de la inversión</translation>
    </message>
    <message>
        <source>External iteration</source>
        <translation>Iteración externa</translation>
    </message>
    <message>
        <source>Misfit after every external iteration</source>
        <translation>Desajuste después de cada iteración externa</translation>
    </message>
    <message>
        <source>Travel times</source>
        <translation>Tiempos de recorrido</translation>
    </message>
    <message>
        <source>No first breaks have been picked.</source>
        <translation>No se han picado primeras llegadas.</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks against distance</source>
        <translation>Dromocronas: primeras llegadas picadas en función de la distancia</translation>
    </message>
    <message>
        <source>Travel-time curves: picked first breaks (symbols) and times computed through the section (lines) against distance</source>
        <translation>Dromocronas: primeras llegadas picadas (símbolos) y tiempos calculados a través de la sección (líneas) en función de la distancia</translation>
    </message>
    <message>
        <source>Picks of every shot</source>
        <translation>Picados de cada disparo</translation>
    </message>
    <message>
        <source>Picks of every shot and their misfit, computed minus measured</source>
        <translation>Picados de cada disparo y su desajuste, calculado menos medido</translation>
    </message>
    <message>
        <source>Grid and inversion</source>
        <translation>Malla e inversión</translation>
    </message>
    <message>
        <source>No grid has been built and nothing has been inverted.</source>
        <translation>No se ha construido ninguna malla ni se ha invertido nada.</translation>
    </message>
    <message>
        <source>The parameters of the inversion are not known.</source>
        <translation>No se conocen los parámetros de la inversión.</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sección de velocidad</translation>
    </message>
    <message>
        <source>Misfit</source>
        <translation>Desajuste</translation>
    </message>
    <message>
        <source>Picks used</source>
        <translation>Picados utilizados</translation>
    </message>
    <message>
        <source>RMS misfit</source>
        <translation>Desajuste RMS</translation>
    </message>
    <message>
        <source>%1 ms, %2 %</source>
        <translation>%1 ms, %2 %</translation>
    </message>
    <message>
        <source>Residuals of the picks against the distance from their shot</source>
        <translation>Residuos de los picados en función de la distancia a su disparo</translation>
    </message>
    <message>
        <source>Elevation [%1]</source>
        <translation>Cota [%1]</translation>
    </message>
    <message>
        <source>Depth %1 [%2]</source>
        <translation>Profundidad %1 [%2]</translation>
    </message>
    <message>
        <source>Velocity %1 [%2]</source>
        <translation>Velocidad %1 [%2]</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Interpretación por refracción</translation>
    </message>
    <message>
        <source>Velocity of the first layer</source>
        <translation>Velocidad de la primera capa</translation>
    </message>
    <message>
        <source>Velocity of refractor %1</source>
        <translation>Velocidad del refractor %1</translation>
    </message>
    <message>
        <source>Distance XY of refractor %1</source>
        <translation>Distancia XY del refractor %1</translation>
    </message>
    <message>
        <source>Layers and refractors</source>
        <translation>Capas y refractores</translation>
    </message>
    <message>
        <source>Section of the layers</source>
        <translation>Sección de las capas</translation>
    </message>
    <message>
        <source>Depths below the surface and velocities of the refractors</source>
        <translation>Profundidades bajo la superficie y velocidades de los refractores</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>The refractors were interpreted by the generalised reciprocal method. First breaks were assigned to layers, and the arrivals of each refractor from both ends of the line were completed by shifted arrivals of the other shots. The velocity-analysis function gives the velocity of the refractor, the time-depth function its depth beneath each geophone.</source>
        <translation>Los refractores se interpretaron con el método recíproco generalizado. Las primeras llegadas se asignaron a capas, y las llegadas de cada refractor desde ambos extremos de la línea se completaron con llegadas trasladadas de los demás disparos. La función de análisis de velocidad da la velocidad del refractor, y la función tiempo-profundidad, su profundidad bajo cada geófono.</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>Ondas</translation>
    </message>
    <message>
        <source>S waves</source>
        <translation>Ondas S</translation>
    </message>
    <message>
        <source>P waves</source>
        <translation>Ondas P</translation>
    </message>
    <message>
        <source>Geophones from, to</source>
        <translation>Geófonos de, a</translation>
    </message>
    <message>
        <source>Length of the line</source>
        <translation>Longitud de la línea</translation>
    </message>
    <message>
        <source>Elevation of the geophones</source>
        <translation>Cota de los geófonos</translation>
    </message>
    <message>
        <source>Shots from, to</source>
        <translation>Disparos de, a</translation>
    </message>
    <message>
        <source>Geophone strings</source>
        <translation>Tendidos de geófonos</translation>
    </message>
    <message>
        <source>Geophone positions</source>
        <translation>Posiciones de geófonos</translation>
    </message>
    <message>
        <source>Number of shots</source>
        <translation>Número de disparos</translation>
    </message>
    <message>
        <source>The line</source>
        <translation>La línea</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Tend.</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geófonos</translation>
    </message>
    <message>
        <source>From [%1]</source>
        <translation>De [%1]</translation>
    </message>
    <message>
        <source>To [%1]</source>
        <translation>A [%1]</translation>
    </message>
    <message>
        <source>Spacing [%1]</source>
        <translation>Separación [%1]</translation>
    </message>
    <message>
        <source>Strings of geophones</source>
        <translation>Tendidos de geófonos</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Interval [ms]</source>
        <translation>Intervalo [ms]</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Length [ms]</source>
        <translation>Duración [ms]</translation>
    </message>
    <message>
        <source>Shots and their recordings</source>
        <translation>Los disparos y sus registros</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Emplazamiento</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Survey</source>
        <translation>Levantamiento</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>End of the line</source>
        <translation>Extremo de la línea</translation>
    </message>
    <message>
        <source>Easting [m]</source>
        <translation>Este [m]</translation>
    </message>
    <message>
        <source>Northing [m]</source>
        <translation>Norte [m]</translation>
    </message>
    <message>
        <source>Longitude [°]</source>
        <translation>Longitud [°]</translation>
    </message>
    <message>
        <source>Latitude [°]</source>
        <translation>Latitud [°]</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Primer geófono</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Último geófono</translation>
    </message>
    <message>
        <source>The coordinate reference system of the line is not set.</source>
        <translation>No se ha indicado el sistema de referencia de coordenadas de la línea.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1.</source>
        <translation>Sistema de referencia de coordenadas: EPSG:%1.</translation>
    </message>
    <message>
        <source>Coordinate reference system: EPSG:%1, %2.</source>
        <translation>Sistema de referencia de coordenadas: EPSG:%1, %2.</translation>
    </message>
    <message>
        <source>Ends of the line; longitude and latitude on WGS 84</source>
        <translation>Extremos de la línea; longitud y latitud en WGS 84</translation>
    </message>
    <message>
        <source>Ends of the line</source>
        <translation>Extremos de la línea</translation>
    </message>
    <message>
        <source>Information density: how completely rays cross the surroundings of each cell</source>
        <translation>Densidad de información: hasta qué punto los rayos cruzan los alrededores de cada celda</translation>
    </message>
    <message>
        <source>Velocity section with rays</source>
        <translation>Sección de velocidad con rayos</translation>
    </message>
    <message>
        <source>Largest relative late error</source>
        <translation>Mayor retraso relativo</translation>
    </message>
    <message>
        <source>%1 % (%2 ms)</source>
        <translation>%1 % (%2 ms)</translation>
    </message>
    <message>
        <source>Computing time</source>
        <translation>Tiempo de cálculo</translation>
    </message>
    <message>
        <source>Mean of computed minus measured</source>
        <translation>Media de calculado menos medido</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Largest difference</source>
        <translation>Mayor diferencia</translation>
    </message>
    <message>
        <source>%1 ms, shot %2, receiver %3</source>
        <translation>%1 ms, disparo %2, receptor %3</translation>
    </message>
    <message>
        <source>Misfit of the section, along fresh rays</source>
        <translation>Desajuste de la sección, a lo largo de rayos nuevos</translation>
    </message>
    <message>
        <source>The section was smoothed after the inversion; its misfit is that of the smoothed one.</source>
        <translation>La sección se suavizó después de la inversión; el desajuste es el de la sección suavizada.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion: the section was fitted to others than those that its misfit is told of here.</source>
        <translation>Los picados han cambiado desde la inversión: la sección se ajustó a otros picados que aquellos a los que se refiere el desajuste indicado aquí.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Last solver pass of the inversion</source>
        <translation>Última pasada del solucionador de la inversión</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Sección, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Última pasada del solucionador, RMS [ms]</translation>
    </message>
    <message>
        <source>The misfit of the section is that of fresh rays through the section that an iteration has left; 0 is the starting model. The last solver pass of an iteration goes along its old rays, before the last correction of the velocities and before they are smoothed, and its misfit is usually smaller.</source>
        <translation>El desajuste de la sección es el de rayos nuevos a través de la sección que ha dejado una iteración; 0 es el modelo inicial. La última pasada del solucionador de una iteración sigue los rayos antiguos de esta, antes de la última corrección de las velocidades y antes de suavizarlas, y su desajuste suele ser menor.</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every external iteration (blue), 0 being the starting model, and of the last solver pass of each (grey)</source>
        <translation>Desajuste RMS de la sección después de cada iteración externa (azul), siendo 0 el modelo inicial, y de la última pasada del solucionador de cada una (gris)</translation>
    </message>
    <message>
        <source>The picks have changed since this profile was built: it is that of the earlier picks.</source>
        <translation>Los picados han cambiado desde que se construyó este perfil: es el de los picados anteriores.</translation>
    </message>
    <message>
        <source>No velocity is given where the times lead to one outside %1 to %2. No depth is given there, below a layer whose velocity or depth is not known or which is faster, and where it came out deeper than the line is long.</source>
        <translation>No se da velocidad donde los tiempos llevarían a una fuera del rango de %1 a %2. No se da profundidad en esos puntos, ni por debajo de una capa cuya velocidad o profundidad no se conoce o que es más rápida, ni donde la profundidad calculada supera la longitud de la línea.</translation>
    </message>
    <message>
        <source>First breaks are the times at which the first seismic energy of a shot reaches each geophone. They were picked on the recorded traces.</source>
        <translation>Las primeras llegadas son los tiempos en que la primera energía sísmica de un disparo alcanza cada geófono. Se picaron en las trazas registradas.</translation>
    </message>
    <message>
        <source>They were inverted by travel-time tomography. The ground beneath the line is divided into square cells of constant velocity, which follow the surface. From each shot the fastest paths to all geophones are searched for in the network of nodes on the sides of the cells; they are the rays. The differences between measured and computed times are distributed along the rays and correct the slowness of the cells that they cross, several times over on the same rays, within the limits of velocity. The corrected section is smoothed, and new rays are traced through it: that is one external iteration.</source>
        <translation>Se invirtieron mediante tomografía de tiempos de recorrido. El terreno bajo la línea se divide en celdas cuadradas de velocidad constante que siguen la superficie. Desde cada disparo se buscan los caminos más rápidos hasta todos los geófonos en la red de nodos situados en los lados de las celdas: son los rayos. Las diferencias entre tiempos medidos y calculados se reparten a lo largo de los rayos y corrigen la lentitud de las celdas que atraviesan, varias veces sobre los mismos rayos y dentro de los límites de velocidad. La sección corregida se suaviza y se trazan en ella nuevos rayos: eso es una iteración externa.</translation>
    </message>
    <message>
        <source>The misfit is the difference between computed and measured times. The computed times are those along fresh rays through the section as it is drawn. RMS is the root mean square of the misfit, in milliseconds or relative to the measured times in percent. The information density tells how completely rays cross the surroundings of a cell; where it is low, velocities are poorly supported by the data, and below the lowest rays the section is not drawn. Velocities that decrease with depth and thin layers may remain hidden from first arrivals.</source>
        <translation>El desajuste es la diferencia entre los tiempos calculados y los medidos. Los tiempos calculados son los que resultan a lo largo de rayos nuevos a través de la sección tal como está dibujada. RMS es la media cuadrática del desajuste, en milisegundos o en porcentaje de los tiempos medidos. La densidad de información dice hasta qué punto los rayos cruzan los alrededores de una celda; donde es baja, los datos apoyan poco las velocidades, y por debajo de los rayos más profundos la sección no se dibuja. Las velocidades que disminuyen con la profundidad y las capas delgadas pueden quedar ocultas a las primeras llegadas.</translation>
    </message>
    <message>
        <source>Picks have changed since the inversion.</source>
        <translation>Los picados han cambiado desde la inversión.</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>Shots: %1; geophones: %2; picks: %3 of %4</source>
        <translation>Disparos: %1; geófonos: %2; picados: %3 de %4</translation>
    </message>
    <message>
        <source>No result of an inversion is known: the grid has the velocities that it was left with.</source>
        <translation>No consta ningún resultado de una inversión: la malla tiene las velocidades con las que quedó.</translation>
    </message>
    <message>
        <source>Velocities of the grid</source>
        <translation>Velocidades de la malla</translation>
    </message>
    <message>
        <source>Mend</source>
        <translation>Corrección</translation>
    </message>
    <message>
        <source>Mends</source>
        <translation>Correcciones</translation>
    </message>
    <message>
        <source>The recordings of these shots are put right as listed. All figures and times of this report are of the mended recordings.</source>
        <translation>Los registros de estos disparos se han corregido como se indica. Todas las figuras y los tiempos de este informe son de los registros corregidos.</translation>
    </message>
    <message>
        <source>Mends of recordings</source>
        <translation>Correcciones de los registros</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buenos</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>Dudosos</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>Median error [ms]</source>
        <translation>Mediana del error [ms]</translation>
    </message>
    <message>
        <source>Largest error [ms]</source>
        <translation>Error máximo [ms]</translation>
    </message>
    <message>
        <source>Errors of the picks of every shot</source>
        <translation>Errores de los picados de cada disparo</translation>
    </message>
    <message>
        <source>The error of a pick is one standard deviation. A pick is good up to %1 ms and doubtful beyond.</source>
        <translation>El error de un picado es una desviación estándar. Un picado es bueno hasta %1 ms y dudoso a partir de ahí.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Ajuste a los errores de los picados</translation>
    </message>
    <message>
        <source>Errors of picks that state none</source>
        <translation>Error de los picados que no indican ninguno</translation>
    </message>
    <message>
        <source>%1 ms, or %2 % of the time where that is more</source>
        <translation>%1 ms, o el %2 % del tiempo si es mayor</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi cuadrado</translation>
    </message>
    <message>
        <source>%1; of all picks %2</source>
        <translation>%1; de todos los picados, %2</translation>
    </message>
    <message>
        <source>Target reached</source>
        <translation>Objetivo alcanzado</translation>
    </message>
    <message>
        <source>Suspect picks, left out of chi-square</source>
        <translation>Picados sospechosos, excluidos de chi cuadrado</translation>
    </message>
    <message>
        <source>Iterations to this section</source>
        <translation>Iteraciones hasta esta sección</translation>
    </message>
    <message>
        <source>Few sharp steps rather than gentle slopes</source>
        <translation>Pocos saltos bruscos en lugar de variaciones suaves</translation>
    </message>
    <message>
        <source>Time shifts of shots fitted, too</source>
        <translation>Ajuste también de desplazamientos en tiempo de los disparos</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Pares</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Retraso [ms]</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>Reciprocity of every shot</source>
        <translation>Reciprocidad de cada disparo</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Ida [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Vuelta [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Diferencia [ms]</translation>
    </message>
    <message>
        <source>The pairs of shots that differ most</source>
        <translation>Los pares de disparos que más difieren</translation>
    </message>
    <message>
        <source>Pairs of shots</source>
        <translation>Pares de disparos</translation>
    </message>
    <message>
        <source>Reciprocity</source>
        <translation>Reciprocidad</translation>
    </message>
    <message>
        <source>A wave takes as long from one shot to the place of another as back. Pairs of shots with picks along both ways: %1; RMS of their differences: %2 ms.</source>
        <translation>Una onda tarda lo mismo de un disparo al punto de otro que a la vuelta. Pares de disparos con picados en ambos sentidos: %1; RMS de sus diferencias: %2 ms.</translation>
    </message>
    <message>
        <source>Shot %1: %2.</source>
        <translation>Disparo %1: %2.</translation>
    </message>
    <message>
        <source>gradient read from the picks</source>
        <translation>gradiente leído de los picados</translation>
    </message>
    <message>
        <source>two layers read from the picks</source>
        <translation>dos capas leídas de los picados</translation>
    </message>
    <message>
        <source>three layers read from the picks</source>
        <translation>tres capas leídas de los picados</translation>
    </message>
    <message>
        <source>gradient over a refractor, read from the picks</source>
        <translation>gradiente sobre un refractor, leído de los picados</translation>
    </message>
    <message>
        <source>default model</source>
        <translation>modelo predeterminado</translation>
    </message>
    <message>
        <source>velocities that the grid had</source>
        <translation>velocidades que tenía la malla</translation>
    </message>
    <message>
        <source>Started from and held to</source>
        <translation>Modelo de partida y de referencia</translation>
    </message>
    <message>
        <source>%1, shrinking to a fifth</source>
        <translation>%1, que se reduce a la quinta parte</translation>
    </message>
    <message>
        <source>%1, the best of %2 from coarse to fine</source>
        <translation>%1, la mejor de %2, de grueso a fino</translation>
    </message>
    <message>
        <source>Uncertainty: half of the range from 16 to 84 % of %1 sections that explain the picks as well, in percent</source>
        <translation>Incertidumbre: mitad del intervalo del 16 al 84 % de %1 secciones que explican igual de bien los picados, en porcentaje</translation>
    </message>
    <message>
        <source>%1; of all picks %2; suspect picks %3</source>
        <translation>%1; de todos los picados, %2; picados sospechosos, %3</translation>
    </message>
    <message>
        <source>%1; with the time shifts of shots</source>
        <translation>%1; con los desplazamientos en tiempo de los disparos</translation>
    </message>
    <message>
        <source>Misfit after every iteration, 0 being the starting model</source>
        <translation>Desajuste tras cada iteración; 0 es el modelo inicial</translation>
    </message>
    <message>
        <source>RMS misfit of the section after every iteration, 0 being the starting model</source>
        <translation>Desajuste RMS de la sección tras cada iteración; 0 es el modelo inicial</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Recíproco</translation>
    </message>
    <message>
        <source>Delay times</source>
        <translation>Tiempos de retardo</translation>
    </message>
    <message>
        <source>Intercept times</source>
        <translation>Tiempos de intercepción</translation>
    </message>
    <message>
        <source>Plus-minus</source>
        <translation>Más-menos</translation>
    </message>
    <message>
        <source>both</source>
        <translation>ambas</translation>
    </message>
    <message>
        <source>depth</source>
        <translation>profundidad</translation>
    </message>
    <message>
        <source>velocity</source>
        <translation>velocidad</translation>
    </message>
    <message>
        <source>%1: depth [%2]</source>
        <translation>%1: profundidad [%2]</translation>
    </message>
    <message>
        <source>%1: velocity [%2]</source>
        <translation>%1: velocidad [%2]</translation>
    </message>
    <message>
        <source>Disagree in</source>
        <translation>Discrepan en</translation>
    </message>
    <message>
        <source>Layers by method</source>
        <translation>Capas por método</translation>
    </message>
    <message>
        <source>Depths are below the surface. A value in parentheses is not carried by picks there, but by shifted arrivals of other shots, across a gap or by a continuation.</source>
        <translation>Las profundidades son bajo la superficie. Un valor entre paréntesis no se apoya en picados de ese punto, sino en llegadas desplazadas de otros disparos, salvando un hueco o por prolongación.</translation>
    </message>
    <message>
        <source>Errors are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations. Methods disagree where two of them differ by more than three times what their difference scatters by.</source>
        <translation>Los errores son la mitad del ancho dentro del cual caen 68 de cada 100 resultados al desplazar los picados según sus errores, con %1 de estas interpretaciones. Los métodos discrepan donde dos de ellos difieren en más de tres veces la dispersión de su diferencia.</translation>
    </message>
    <message>
        <source>Layer %1 by method</source>
        <translation>Capa %1 por método</translation>
    </message>
    <message>
        <source>Residuals of the picks, shot by geophone</source>
        <translation>Residuos de los picados, disparo por geófono</translation>
    </message>
    <message>
        <source>Layer %1 [ms]</source>
        <translation>Capa %1 [ms]</translation>
    </message>
    <message>
        <source>No misfit of the layers is told: they have no depth, or were built from other picks or marks than those of now.</source>
        <translation>No se indica el desajuste de las capas: no tienen profundidad, o se construyeron con otros picados u otras asignaciones que los actuales.</translation>
    </message>
    <message>
        <source>Times computed through the layers differ from the picks by %1 ms (RMS of %2 picks; mean of picks less computed times %3 ms; chi-square %4).</source>
        <translation>Los tiempos calculados a través de las capas difieren de los picados en %1 ms (RMS de %2 picados; media de los picados menos los tiempos calculados, %3 ms; chi cuadrado %4).</translation>
    </message>
    <message>
        <source>RMS misfit of the layers, by shot (number of picks)</source>
        <translation>Desajuste RMS de las capas, por disparo (número de picados)</translation>
    </message>
    <message>
        <source>Depth of refractors by method</source>
        <translation>Profundidad de los refractores por método</translation>
    </message>
    <message>
        <source>picks</source>
        <translation>picados</translation>
    </message>
    <message>
        <source>phantom</source>
        <translation>phantom</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>hueco</translation>
    </message>
    <message>
        <source>continuation</source>
        <translation>prolongación</translation>
    </message>
    <message>
        <source>Depth %1 by</source>
        <translation>Profundidad %1 por</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, is not carried by picks of the shots at both ends there: but by shifted arrivals of other shots (phantom), across more than two spacings without arrivals (gap), or by a continuation beyond the last ones.</source>
        <translation>Un valor entre paréntesis, o una línea discontinua, no se apoya ahí en picados de los disparos de ambos extremos: procede de llegadas trasladadas de otros disparos (phantom), cubre más de dos separaciones entre geófonos sin llegadas (hueco) o prolonga la línea más allá de las últimas (prolongación).</translation>
    </message>
    <message>
        <source>Errors, and the bands round the lines, are half the width within which 68 of 100 results lie when picks are moved by their errors, by %1 such interpretations.</source>
        <translation>Los errores, y las bandas en torno a las líneas, son la mitad del ancho dentro del cual caen 68 de cada 100 resultados al desplazar los picados según sus errores, con %1 de estas interpretaciones.</translation>
    </message>
    <message>
        <source>Median velocity of refractor %1</source>
        <translation>Velocidad mediana del refractor %1</translation>
    </message>
    <message>
        <source>Mean velocity of the first layer</source>
        <translation>Velocidad media de la primera capa</translation>
    </message>
    <message>
        <source>Velocity of the first layer at the surface</source>
        <translation>Velocidad de la primera capa en superficie</translation>
    </message>
    <message>
        <source>Growth of its velocity with depth</source>
        <translation>Aumento de su velocidad con la profundidad</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per metre, down to %2</source>
        <translation>%1 % de la de superficie por metro, hasta %2 de profundidad</translation>
    </message>
    <message>
        <source>%1 % of that at the surface per foot, down to %2</source>
        <translation>%1 % de la de superficie por pie, hasta %2 de profundidad</translation>
    </message>
    <message>
        <source>A value in parentheses, and a dashed line, stands where no pick of the refractor comes from or goes to: it lies between what others tell (gap). Errors are not told of a profile that is fitted to all picks.</source>
        <translation>Un valor entre paréntesis, o una línea discontinua, señala dónde ningún picado del refractor parte ni llega: se sitúa entre lo que indican otros (hueco). No se dan errores de un perfil ajustado a todos los picados.</translation>
    </message>
    <message>
        <source>First breaks were assigned to layers, and velocities and depths of the refractors were fitted to all of them at once: so that the direct and refracted times computed through the layers, which may change along the line, are those of the picks.</source>
        <translation>Las primeras llegadas se asignaron a capas, y las velocidades y profundidades de los refractores se ajustaron a todas ellas a la vez, de modo que los tiempos directos y refractados calculados a través de las capas, que pueden variar a lo largo de la línea, sean los de los picados.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>These shots have filtered copies beside their recordings, made as listed, one filter after the other.</source>
        <translation>Estos disparos tienen copias filtradas además de sus registros, hechas como se indica, un filtro tras otro.</translation>
    </message>
    <message>
        <source>Filters of the recordings</source>
        <translation>Filtros de los registros</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>length, unit</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Points on the map</source>
        <translation>Puntos en el mapa</translation>
    </message>
    <message>
        <source>Corners of more than 1°</source>
        <translation>Quiebros de más de 1°</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Longitud a lo largo de la línea</translation>
    </message>
    <message>
        <source>Length on the map</source>
        <translation>Longitud en el mapa</translation>
    </message>
    <message>
        <source>Straight from end to end</source>
        <translation>En línea recta de extremo a extremo</translation>
    </message>
    <message>
        <source>Farthest from that straight line, to the right</source>
        <translation>Mayor distancia a esa recta, a la derecha</translation>
    </message>
    <message>
        <source>The same to the left</source>
        <translation>Lo mismo, a la izquierda</translation>
    </message>
    <message>
        <source>Course of the line between its ends</source>
        <translation>Trazado de la línea entre sus extremos</translation>
    </message>
</context>
<context>
    <name>talvesk::ReportDialog</name>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Title page</source>
        <translation>Portada</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Client:</source>
        <translation>&amp;Cliente:</translation>
    </message>
    <message>
        <source>&amp;Site:</source>
        <translation>&amp;Emplazamiento:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>&amp;Autor:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>As it is to be read</source>
        <translation>Tal como debe leerse</translation>
    </message>
    <message>
        <source>&amp;Notes:</source>
        <translation>&amp;Notas:</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Partes</translation>
    </message>
    <message>
        <source>Survey: line, geophones, shots, files</source>
        <translation>Levantamiento: línea, geófonos, disparos, archivos</translation>
    </message>
    <message>
        <source>Position on the globe</source>
        <translation>Posición geográfica</translation>
    </message>
    <message>
        <source>Travel times and the misfit of every shot</source>
        <translation>Tiempos de recorrido y desajuste de cada disparo</translation>
    </message>
    <message>
        <source>Grid and parameters of the inversion</source>
        <translation>Malla y parámetros de la inversión</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sección de velocidad</translation>
    </message>
    <message>
        <source>Rays over the section</source>
        <translation>Rayos sobre la sección</translation>
    </message>
    <message>
        <source>Information density</source>
        <translation>Densidad de información</translation>
    </message>
    <message>
        <source>Misfit and its history</source>
        <translation>Desajuste y su evolución</translation>
    </message>
    <message>
        <source>Refraction interpretation</source>
        <translation>Interpretación por refracción</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Pa&amp;pel:</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Puts the report together and shows its pages</source>
        <translation>Compone el informe y muestra sus páginas</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Páginas del informe</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::ResidualsDialog</name>
    <message>
        <source>Residuals</source>
        <translation>Residuos</translation>
    </message>
    <message>
        <source>Residuals &amp;in:</source>
        <translation>Residuos &amp;en:</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Milisegundos</translation>
    </message>
    <message>
        <source>Errors of the picks</source>
        <translation>Errores de los picados</translation>
    </message>
    <message>
        <source>Whose dots have a colour of their own in the picture over the offset</source>
        <translation>Disparo cuyos puntos tienen color propio en la imagen según la distancia</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Mapa</translation>
    </message>
    <message>
        <source>Residuals, shot by geophone</source>
        <translation>Residuos, disparo por geófono</translation>
    </message>
    <message>
        <source>Over the &amp;offset</source>
        <translation>Según la &amp;distancia</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residuos según la distancia al disparo</translation>
    </message>
    <message>
        <source>Shots and &amp;geophones</source>
        <translation>Disparos y geó&amp;fonos</translation>
    </message>
    <message>
        <source>Residuals per shot</source>
        <translation>Residuos por disparo</translation>
    </message>
    <message>
        <source>Residuals per geophone</source>
        <translation>Residuos por geófono</translation>
    </message>
    <message>
        <source>&amp;Along the rays</source>
        <translation>A &amp;lo largo de los rayos</translation>
    </message>
    <message>
        <source>Every cell has the mean residual of the rays through it, by their lengths in it; suspect picks are left out.</source>
        <translation>Cada celda tiene el residuo medio de los rayos que la atraviesan, ponderado por su longitud en ella; los picados sospechosos se excluyen.</translation>
    </message>
    <message>
        <source>Shows the trace of the current pick in the window, as a click on it or Return does</source>
        <translation>Muestra en la ventana la traza del picado actual, como un clic en él o Intro</translation>
    </message>
    <message>
        <source>Show &amp;trace</source>
        <translation>Mostrar &amp;traza</translation>
    </message>
    <message>
        <source>Puts the picture in view on the clipboard</source>
        <translation>Copia en el portapapeles la imagen visible</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>&amp;Copiar imagen</translation>
    </message>
    <message>
        <source>Save &amp;picture...</source>
        <translation>Guardar &amp;imagen...</translation>
    </message>
    <message>
        <source>All picks with their residuals, for spreadsheets</source>
        <translation>Todos los picados con sus residuos, para hojas de cálculo</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Guardar tabla...</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Disparo %1</translation>
    </message>
    <message>
        <source>Geophone at %1</source>
        <translation>Geófono en %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Aún no hay sección cuyos tiempos se puedan revisar.</translation>
    </message>
    <message>
        <source>Section of &quot;%1&quot;: %2.</source>
        <translation>Sección de «%1»: %2.</translation>
    </message>
    <message>
        <source>Picks: %1, suspect: %2.</source>
        <translation>Picados: %1, sospechosos: %2.</translation>
    </message>
    <message>
        <source>The section was smoothed afterwards.</source>
        <translation>La sección se suavizó después.</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found are counted.</source>
        <translation>Se tienen en cuenta los desplazamientos en tiempo de los disparos que ha hallado el ajuste.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>Los picados han cambiado desde que se obtuvo la sección: se ajustó a otros.</translation>
    </message>
    <message>
        <source>Offset [m]</source>
        <translation>Distancia al disparo [m]</translation>
    </message>
    <message>
        <source>Median [pick errors]</source>
        <translation>Mediana [errores de los picados]</translation>
    </message>
    <message>
        <source>Median [ms]</source>
        <translation>Mediana [ms]</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>Geophone at [m]</source>
        <translation>Geófono en [m]</translation>
    </message>
    <message>
        <source>Click a pick, or walk to it with the arrow keys.</source>
        <translation>Haga clic en un picado, o llegue a él con las teclas de flecha.</translation>
    </message>
    <message>
        <source>Shot %1, geophone at %2: no pick with a computed time</source>
        <translation>Disparo %1, geófono en %2: ningún picado con tiempo calculado</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1: picks %2, median %3, two of three from %4 to %5</source>
        <translation>%1: picados %2, mediana %3, dos de cada tres de %4 a %5</translation>
    </message>
    <message>
        <source>; stands out</source>
        <translation>; anómalo</translation>
    </message>
    <message>
        <source>The picture cannot be made.</source>
        <translation>No se puede crear la imagen.</translation>
    </message>
    <message>
        <source>Colo&amp;ur shot:</source>
        <translation>&amp;Resaltar disparo:</translation>
    </message>
</context>
<context>
    <name>talvesk::ResolutionDialog</name>
    <message>
        <source>Resolution Test</source>
        <translation>Prueba de resolución</translation>
    </message>
    <message>
        <source>Would the survey see it? A pattern is laid over the section, the times of all picks are computed through it with noise of their errors, and a section is fitted to them. Where what comes back correlates with what was put in, ground of that size is resolved.</source>
        <translation>¿Lo vería el levantamiento? Se superpone un patrón a la sección, se calculan a través de él los tiempos de todos los picados con ruido según sus errores, y se les ajusta una sección. Donde lo recuperado se correlaciona con lo introducido, se resuelve terreno de ese tamaño.</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Patrón:</translation>
    </message>
    <message>
        <source>What the section is disturbed by</source>
        <translation>Con qué se perturba la sección</translation>
    </message>
    <message>
        <source>Si&amp;ze [m]:</source>
        <translation>Ta&amp;maño [m]:</translation>
    </message>
    <message>
        <source>Side of a square, or thickness of a layer</source>
        <translation>Lado de un cuadrado, o espesor de una capa</translation>
    </message>
    <message>
        <source>Se&amp;veral sizes</source>
        <translation>&amp;Varios tamaños</translation>
    </message>
    <message>
        <source>Try sizes from the distance between positions up to the largest that fits the grid, and tell the smallest that is resolved at each depth</source>
        <translation>Prueba tamaños desde la distancia entre posiciones hasta el mayor que cabe en la malla, e indica el menor que se resuelve a cada profundidad</translation>
    </message>
    <message>
        <source>St&amp;rength [%]:</source>
        <translation>Inte&amp;nsidad [%]:</translation>
    </message>
    <message>
        <source>How much faster and slower the pattern is than the section</source>
        <translation>Cuánto más rápido y más lento que la sección es el patrón</translation>
    </message>
    <message>
        <source>&amp;Over:</source>
        <translation>&amp;Sobre:</translation>
    </message>
    <message>
        <source>What the pattern is laid over</source>
        <translation>A qué se superpone el patrón</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>S&amp;hown size:</source>
        <translation>Tamaño m&amp;ostrado:</translation>
    </message>
    <message>
        <source>Of which of the tests the pictures are</source>
        <translation>De cuál de las pruebas son las imágenes</translation>
    </message>
    <message>
        <source>Save P&amp;icture ...</source>
        <translation>Guardar ima&amp;gen ...</translation>
    </message>
    <message>
        <source>Save Ta&amp;ble ...</source>
        <translation>Guardar ta&amp;bla ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Tablero de ajedrez</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Picos aislados</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>the section</source>
        <translation>la sección</translation>
    </message>
    <message>
        <source>its mean at each depth</source>
        <translation>su media a cada profundidad</translation>
    </message>
    <message>
        <source>Start shows here what was put in, what came back and how they agree.</source>
        <translation>Iniciar muestra aquí lo introducido, lo recuperado y cómo concuerdan.</translation>
    </message>
    <message>
        <source>The test is under way.</source>
        <translation>La prueba está en curso.</translation>
    </message>
    <message>
        <source>Times are computed through the pattern.</source>
        <translation>Se calculan los tiempos a través del patrón.</translation>
    </message>
    <message>
        <source>Size %1: iteration %2.</source>
        <translation>Tamaño %1: iteración %2.</translation>
    </message>
    <message>
        <source>Stopped before the first test was completed.</source>
        <translation>Detenida antes de completar la primera prueba.</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: %n test(s) completed.</source>
        <translation>
            <numerusform>Detenida: %n prueba completada.</numerusform>
            <numerusform>Detenida: %n pruebas completadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>No test was completed.</source>
        <translation>No se ha completado ninguna prueba.</translation>
    </message>
    <message>
        <source>The resolution test could not be completed.</source>
        <translation>No se ha podido completar la prueba de resolución.</translation>
    </message>
    <message>
        <source>at %1 none</source>
        <translation>a %1, ninguno</translation>
    </message>
    <message>
        <source>at %1 depth %2</source>
        <translation>a %1 de profundidad, %2</translation>
    </message>
    <message>
        <source>Smallest size that is resolved (correlation from %1 on): %2.</source>
        <translation>Menor tamaño que se resuelve (correlación a partir de %1): %2.</translation>
    </message>
</context>
<context>
    <name>talvesk::RunTexts</name>
    <message>
        <source>Fitted to errors</source>
        <translation>Ajuste a errores</translation>
    </message>
    <message>
        <source>Smoothed</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>%1 rows and %2 columns of %3</source>
        <translation>%1 filas y %2 columnas de %3</translation>
    </message>
    <message>
        <source>velocities from %1 to %2</source>
        <translation>velocidades de %1 a %2</translation>
    </message>
    <message>
        <source>robust</source>
        <translation>robusto</translation>
    </message>
    <message>
        <source>blocky</source>
        <translation>por bloques</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>picados sospechosos: %1</translation>
    </message>
    <message>
        <source>%1 solver iterations</source>
        <translation>%1 iteraciones del solucionador</translation>
    </message>
    <message>
        <source>smoothing parameter %1</source>
        <translation>parámetro de suavizado %1</translation>
    </message>
    <message>
        <source>symmetric</source>
        <translation>simétrico</translation>
    </message>
    <message>
        <source>stopped by the user</source>
        <translation>detenida por el usuario</translation>
    </message>
    <message>
        <source>picks have changed since</source>
        <translation>los picados han cambiado desde entonces</translation>
    </message>
    <message>
        <source>the surface or the ends of the line have changed since</source>
        <translation>la superficie o los extremos de la línea han cambiado desde entonces</translation>
    </message>
    <message>
        <source>positions have changed since</source>
        <translation>las posiciones han cambiado desde entonces</translation>
    </message>
    <message>
        <source>%1 ms or %2 %</source>
        <translation>%1 ms o %2 %</translation>
    </message>
    <message>
        <source>errors of %1</source>
        <translation>errores de %1</translation>
    </message>
    <message>
        <source>from &quot;%1&quot;</source>
        <translation>desde «%1»</translation>
    </message>
    <message>
        <source>not robust</source>
        <translation>no robusto</translation>
    </message>
    <message>
        <source>with shot statics, trigger error %1 ms</source>
        <translation>con estáticas de disparo, error del tiempo de disparo %1 ms</translation>
    </message>
    <message>
        <source>held to known ground</source>
        <translation>condicionado al terreno conocido</translation>
    </message>
    <message>
        <source>from coarse to fine</source>
        <translation>de grueso a fino</translation>
    </message>
</context>
<context>
    <name>talvesk::RunsDialog</name>
    <message>
        <source>Inversion runs</source>
        <translation>Inversiones realizadas</translation>
    </message>
    <message>
        <source>Every inversion is kept here, at most 50 of them. The run in use is the section that the window shows; exports and reports are of it.</source>
        <translation>Aquí se conservan todas las inversiones, 50 como máximo. La inversión en uso es la sección que muestra la ventana; de ella son las exportaciones y los informes.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Inversión</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi cuadrado</translation>
    </message>
    <message>
        <source>RMS [ms]</source>
        <translation>RMS [ms]</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iteraciones</translation>
    </message>
    <message>
        <source>Time [s]</source>
        <translation>Tiempo [s]</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>No inversion has been run yet. Run one with Processing, Run tomography inversion.</source>
        <translation>Aún no se ha ejecutado ninguna inversión. Ejecute una con Procesamiento, Ejecutar inversión tomográfica.</translation>
    </message>
    <message>
        <source>Make the section of the selected run the one that the window shows</source>
        <translation>Hace que la ventana muestre la sección de la inversión seleccionada</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Usar</translation>
    </message>
    <message>
        <source>Show two runs side by side: the selected one beside another that is selected, else beside the one in use</source>
        <translation>Muestra dos inversiones una junto a otra: la seleccionada con otra también seleccionada o, si no la hay, con la que está en uso</translation>
    </message>
    <message>
        <source>&amp;Compare ...</source>
        <translation>C&amp;omparar ...</translation>
    </message>
    <message>
        <source>Name the selected run; runs with a name are the last to go when the list is full</source>
        <translation>Da nombre a la inversión seleccionada; las que tienen nombre son las últimas en irse cuando la lista está llena</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>Take the selected runs out of the list; Undo brings them back</source>
        <translation>Quita de la lista las inversiones seleccionadas; Deshacer las recupera</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>en uso</translation>
    </message>
    <message>
        <source>By errors of</source>
        <translation>Con errores de</translation>
    </message>
    <message>
        <source>Errors of picks that state none, by which chi-square is measured: figures by other errors do not compare.</source>
        <translation>Errores de los picados que no indican ninguno, con los que se mide chi cuadrado: los valores con otros errores no son comparables.</translation>
    </message>
    <message>
        <source>Of what chi-square counts: without suspect picks, with the time shifts of shots that a fit has found.</source>
        <translation>De lo que cuenta chi cuadrado: sin los picados sospechosos, con los desplazamientos en tiempo de los disparos que ha hallado un ajuste.</translation>
    </message>
    <message>
        <source>RMS of all [ms]</source>
        <translation>RMS de todos [ms]</translation>
    </message>
    <message>
        <source>Of all picks as they are, suspect ones among them, without time shifts.</source>
        <translation>De todos los picados tal como están, incluidos los sospechosos, sin desplazamientos en tiempo.</translation>
    </message>
    <message>
        <source>RMS of all [%]</source>
        <translation>RMS de todos [%]</translation>
    </message>
</context>
<context>
    <name>talvesk::ScreenshotDialog</name>
    <message>
        <source>Screenshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>&amp;Calidad JPEG:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>As the view</source>
        <translation>Como la vista</translation>
    </message>
    <message>
        <source>%1 times the view</source>
        <translation>%1 veces la vista</translation>
    </message>
    <message>
        <source>%1: %2 x %3 pixels</source>
        <translation>%1: %2 x %3 píxeles</translation>
    </message>
</context>
<context>
    <name>talvesk::SecondLookDialog</name>
    <message>
        <source>Second look</source>
        <translation>Segunda revisión</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Pick [ms]</source>
        <translation>Picado [ms]</translation>
    </message>
    <message>
        <source>Off by [ms]</source>
        <translation>Desvío [ms]</translation>
    </message>
    <message>
        <source>Computed minus measured: the pick is late where this is negative.</source>
        <translation>Calculado menos medido: si es negativo, el picado llega tarde.</translation>
    </message>
    <message>
        <source>In errors</source>
        <translation>En errores</translation>
    </message>
    <message>
        <source>Off by how many of its errors</source>
        <translation>A cuántos de sus errores equivale el desvío</translation>
    </message>
    <message>
        <source>Late by [ms]</source>
        <translation>Retraso [ms]</translation>
    </message>
    <message>
        <source>Positive: the record begins too late, and its picks are late.</source>
        <translation>Positivo: el registro comienza demasiado tarde, y sus picados llegan tarde.</translation>
    </message>
    <message>
        <source>&amp;Take over as time shifts of the records</source>
        <translation>&amp;Adoptar como desplazamientos en tiempo de los registros</translation>
    </message>
    <message>
        <source>There is no section yet whose times could be looked at.</source>
        <translation>Aún no hay sección cuyos tiempos se puedan revisar.</translation>
    </message>
    <message>
        <source>Picks have changed since the section was found: it was fitted to others.</source>
        <translation>Los picados han cambiado desde que se obtuvo la sección: se ajustó a otros.</translation>
    </message>
    <message>
        <source>No pick is off by more than five of its errors.</source>
        <translation>Ningún picado se desvía más de cinco de sus errores.</translation>
    </message>
    <message>
        <source>Picks off by more than five of their errors; a click shows the trace:</source>
        <translation>Picados que se desvían más de cinco de sus errores; un clic muestra la traza:</translation>
    </message>
    <message>
        <source>No velocity is at a limit, and rays cross all cells shown.</source>
        <translation>Ninguna velocidad está en un límite, y los rayos cruzan todas las celdas mostradas.</translation>
    </message>
    <message>
        <source>Shifts the records of the checked shots with their picks, as Mend recording does; of shots without a recording the picks, with their errors. One step to be undone.</source>
        <translation>Desplaza los registros de los disparos marcados con sus picados, como hace Corregir registro; en los disparos sin registro, los picados con sus errores. Se deshace en un solo paso.</translation>
    </message>
    <message>
        <source>no recording: its picks are shifted</source>
        <translation>sin registro: se desplazan sus picados</translation>
    </message>
    <message>
        <source>Errors of picks below %1 ms count as %1 ms: %2</source>
        <translation>Errores de picados por debajo de %1 ms, contados como %1 ms: %2</translation>
    </message>
    <message>
        <source>Time shifts of shots that the fit has found; a click shows the shot:</source>
        <translation>Desplazamientos en tiempo de los disparos que ha hallado el ajuste; un clic muestra el disparo:</translation>
    </message>
    <message>
        <source>Ground to look at; a click shows it in the section:</source>
        <translation>Terreno que revisar; un clic lo muestra en la sección:</translation>
    </message>
    <message>
        <source>No pick stands out: %1 are off by more than five of their errors, but none by more than %2, as the section does not fit the picks to their errors.</source>
        <translation>Ningún picado destaca: %1 se desvían más de cinco veces su error, pero ninguno más de %2, pues la sección no se ajusta a los picados dentro de sus errores.</translation>
    </message>
    <message>
        <source>Picks off by more than %2 of their errors, which stand out where %1 are off by more than five; a click shows the trace:</source>
        <translation>Picados que se desvían más de %2 veces su error y destacan donde %1 se desvían más de cinco; un clic muestra la traza:</translation>
    </message>
    <message>
        <source>Cells at the limit of %1: %2</source>
        <translation>Celdas en el límite de %1: %2</translation>
    </message>
    <message>
        <source>Cells shown that no ray crosses: %1 of %2</source>
        <translation>Celdas mostradas que no cruza ningún rayo: %1 de %2</translation>
    </message>
    <message>
        <source>%1 (%2 to %3, depth %4 to %5)</source>
        <translation>%1 (de %2 a %3, profundidad de %4 a %5)</translation>
    </message>
    <message>
        <source>seems so: run again with shifts of shots</source>
        <translation>eso parece: vuelva a invertir con desplazamientos de los disparos</translation>
    </message>
    <message>
        <source>Shots that seem to be shifted in time; a click shows the shot:</source>
        <translation>Disparos que parecen desplazados en el tiempo; un clic muestra el disparo:</translation>
    </message>
    <message>
        <source>Picks that the section cannot explain</source>
        <translation>Picados que la sección no puede explicar</translation>
    </message>
    <message>
        <source>Shots shifted in time</source>
        <translation>Disparos desplazados en el tiempo</translation>
    </message>
    <message>
        <source>Ground to look at</source>
        <translation>Terreno que revisar</translation>
    </message>
</context>
<context>
    <name>talvesk::SectionView</name>
    <message>
        <source>Vertical exaggeration:</source>
        <translation>Exageración vertical:</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Exageración vertical</translation>
    </message>
    <message>
        <source>Turn in 3-D</source>
        <translation>Girar en 3D</translation>
    </message>
    <message>
        <source>Dragging turns the section instead of moving it</source>
        <translation>Al arrastrar, la sección gira en vez de desplazarse</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Restablecer vista</translation>
    </message>
    <message>
        <source>Bring the whole section back into view (Home)</source>
        <translation>Vuelve a mostrar toda la sección (Inicio)</translation>
    </message>
    <message>
        <source>Velocity section</source>
        <translation>Sección de velocidad</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distancia %1</translation>
    </message>
    <message>
        <source>Horizontal %1</source>
        <translation>Horizontal %1</translation>
    </message>
    <message>
        <source>Vertical %1</source>
        <translation>Vertical %1</translation>
    </message>
    <message>
        <source>Slope %1°</source>
        <translation>Pendiente %1°</translation>
    </message>
    <message>
        <source>Click the next point; Esc ends</source>
        <translation>Haga clic en el punto siguiente; Esc termina</translation>
    </message>
    <message>
        <source>Double click or Enter ends it, Backspace takes a point back</source>
        <translation>Doble clic o Intro termina, Retroceso quita un punto</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medir</translation>
    </message>
    <message>
        <source>Drag between two points: distance, horizontal, vertical and slope; Esc ends</source>
        <translation>Arrastre entre dos puntos: distancia, horizontal, vertical y pendiente; Esc termina</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dibujar</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Click where a text is to stand on the section</source>
        <translation>Haga clic donde deba ir un texto en la sección</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Click the points of a line on the section</source>
        <translation>Haga clic en los puntos de una línea en la sección</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Click the corners of an area of the section</source>
        <translation>Haga clic en los vértices de un área de la sección</translation>
    </message>
    <message>
        <source>How much larger heights are drawn than distances</source>
        <translation>Cuántas veces mayores se dibujan las alturas que las distancias</translation>
    </message>
    <message>
        <source>Click texts, lines and areas of ground into the section, or move them; Esc ends</source>
        <translation>Dibuje con clics textos, líneas y áreas de terreno en la sección, o muévalos; Esc termina</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Drag what has been drawn, or one of its corners</source>
        <translation>Arrastre lo dibujado, o uno de sus vértices</translation>
    </message>
</context>
<context>
    <name>talvesk::SelectCSVDelimiterDialog</name>
    <message>
        <source>Select CSV Separator</source>
        <translation>Seleccionar separador CSV</translation>
    </message>
    <message>
        <source>CSV Separator</source>
        <translation>Separador CSV</translation>
    </message>
    <message>
        <source>What stands between two numbers of a line</source>
        <translation>Lo que separa dos números de una línea</translation>
    </message>
    <message>
        <source>(blank space)</source>
        <translation>(espacio en blanco)</translation>
    </message>
</context>
<context>
    <name>talvesk::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>Len&amp;gth unit:</source>
        <translation>&amp;Unidad de longitud:</translation>
    </message>
    <message>
        <source>What lengths and velocities are shown and asked for in. Files stay in metres.</source>
        <translation>En qué se muestran y se piden longitudes y velocidades. Los archivos siguen en metros.</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>metros</translation>
    </message>
    <message>
        <source>feet (0.3048 m)</source>
        <translation>pies (0,3048 m)</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Trazas</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Rellenar oscilaciones</translation>
    </message>
    <message>
        <source>Fills the positive half of every wiggle.</source>
        <translation>Rellena la mitad positiva de cada oscilación.</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Dos colores</translation>
    </message>
    <message>
        <source>Fills the two halves of every wiggle in two colours.</source>
        <translation>Rellena las dos mitades de cada oscilación con dos colores.</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>Cortar en la traza vecina</translation>
    </message>
    <message>
        <source>Ends every wiggle where the next trace begins. Otherwise strong wiggles run over their neighbours.</source>
        <translation>Termina cada oscilación donde empieza la traza siguiente. Si no, las oscilaciones fuertes tapan las vecinas.</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Mostrar trazas filtradas</translation>
    </message>
    <message>
        <source>Shows the filtered copy of the traces where there is one. AutoPick then picks on it.</source>
        <translation>Muestra la copia filtrada de las trazas donde la haya. AutoPick pica entonces sobre ella.</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Opens shots at the part of the record that holds the first breaks.</source>
        <translation>Abre los disparos en la parte del registro que contiene las primeras llegadas.</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Mostrar todas las trazas</translation>
    </message>
    <message>
        <source>Zoom in on first breaks</source>
        <translation>Ampliar primeras llegadas</translation>
    </message>
    <message>
        <source>Opens shots with all traces in view, however narrow. AutoPick, Filter, AGC and Apply Hushel then work on all shots.</source>
        <translation>Abre los disparos con todas las trazas a la vista, por estrechas que sean. AutoPick, Filtro, AGC y Aplicar Hushel actúan entonces sobre todos los disparos.</translation>
    </message>
    <message>
        <source>Horizontal scalarbar</source>
        <translation>Barra de color horizontal</translation>
    </message>
    <message>
        <source>Puts the scalarbar of saved pictures above the section, not beside it.</source>
        <translation>Pone la barra de color de las imágenes guardadas encima de la sección, no al lado.</translation>
    </message>
    <message>
        <source>&amp;Memory for undo:</source>
        <translation>&amp;Memoria para deshacer:</translation>
    </message>
    <message>
        <source>When the steps that can be undone need more, the oldest go.</source>
        <translation>Si los cambios que se pueden deshacer necesitan más, se descartan los más antiguos.</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>&amp;Keep samples on disk:</source>
        <translation>Muestras en &amp;disco:</translation>
    </message>
    <message>
        <source>Of surveys that are larger than memory. What is open stays where it is until it is opened again.</source>
        <translation>Para levantamientos mayores que la memoria. Lo que está abierto se queda donde está hasta que se vuelve a abrir.</translation>
    </message>
    <message>
        <source>When they fill a quarter of the memory</source>
        <translation>Si llenan un cuarto de la memoria</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotFileDialog</name>
    <message>
        <source>the program&apos;s rules</source>
        <translation>las reglas del programa</translation>
    </message>
    <message>
        <source>the standard</source>
        <translation>el estándar</translation>
    </message>
    <message>
        <source>The program&apos;s rules read shot files as this program always has. The standard reads what their content says, whatever their suffix: other sample formats and byte orders, scaled coordinates, delays, files of several shots.</source>
        <translation>Las reglas del programa leen los archivos de disparos como siempre lo ha hecho este programa. El estándar lee lo que dice su contenido, sea cual sea su extensión: otros formatos de muestra y órdenes de bytes, coordenadas con factor de escala, retardos, archivos de varios disparos.</translation>
    </message>
    <message>
        <source>&amp;Read shot files by:</source>
        <translation>&amp;Leer los archivos de disparos según:</translation>
    </message>
</context>
<context>
    <name>talvesk::ShotTable</name>
    <message>
        <source>String</source>
        <translation>Tendido</translation>
    </message>
    <message>
        <source>x (m)</source>
        <translation>x (m)</translation>
    </message>
    <message>
        <source>Elevation (m)</source>
        <translation>Cota (m)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>DX file</source>
        <translation>Archivo DX</translation>
    </message>
    <message>
        <source>SX file</source>
        <translation>Archivo SX</translation>
    </message>
    <message>
        <source>%1 is too far away.</source>
        <translation>%1 está demasiado lejos.</translation>
    </message>
    <message>
        <source>There is no string %1.</source>
        <translation>No hay ningún tendido %1.</translation>
    </message>
</context>
<context>
    <name>talvesk::SpectrumPlot</name>
    <message>
        <source>Amplitude spectrum</source>
        <translation>Espectro de amplitud</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensidad</translation>
    </message>
</context>
<context>
    <name>talvesk::SpreadsheetView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Empty cells</source>
        <translation>&amp;Vaciar celdas</translation>
    </message>
    <message>
        <source>Fill &amp;down</source>
        <translation>Rellenar hacia a&amp;bajo</translation>
    </message>
    <message>
        <source>&amp;Insert a row above</source>
        <translation>&amp;Insertar una fila encima</translation>
    </message>
    <message>
        <source>&amp;Remove rows</source>
        <translation>&amp;Quitar filas</translation>
    </message>
</context>
<context>
    <name>talvesk::StartLayersDialog</name>
    <message>
        <source>Start from layers</source>
        <translation>Partir de las capas</translation>
    </message>
    <message>
        <source>Gives every cell of the grid the velocity of the layer of the profile that its middle lies in.</source>
        <translation>Da a cada celda de la malla la velocidad de la capa del perfil en que queda su centro.</translation>
    </message>
    <message>
        <source>&amp;Sharp layers</source>
        <translation>Capas con contactos &amp;netos</translation>
    </message>
    <message>
        <source>Spreads the jump from layer to layer evenly, half of it above the refractor and half below</source>
        <translation>Reparte por igual el salto de una capa a otra, la mitad por encima del refractor y la mitad por debajo</translation>
    </message>
    <message>
        <source>&amp;Graded over a thickness of</source>
        <translation>Contactos &amp;graduales en un espesor de</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Espesor de un salto gradual</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Los resultados de la última inversión se quitarán (Deshacer los recupera).</translation>
    </message>
</context>
<context>
    <name>talvesk::StepTexts</name>
    <message>
        <source>Recordings</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometría</translation>
    </message>
    <message>
        <source>Picks</source>
        <translation>Picados</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Revisión</translation>
    </message>
    <message>
        <source>Grid and start</source>
        <translation>Malla e inicio</translation>
    </message>
    <message>
        <source>Inversion</source>
        <translation>Inversión</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>doubtful</source>
        <translation>dudoso</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>desactualizado</translation>
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
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Deteniendo ...</translation>
    </message>
    <message>
        <source>Stopping: %1</source>
        <comment>work</comment>
        <translation>Deteniendo: %1</translation>
    </message>
</context>
<context>
    <name>talvesk::SurveyedPointsTable</name>
    <message>
        <source>Shot %1</source>
        <translation>Disparo %1</translation>
    </message>
    <message>
        <source>Geophone %1</source>
        <translation>Geófono %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>row of a table</comment>
        <translation>ninguna</translation>
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
        <translation>Fila</translation>
    </message>
    <message>
        <source>Across
(m)</source>
        <translation>Transv.
(m)</translation>
    </message>
    <message>
        <source>x before
(m)</source>
        <translation>x antes
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
        <translation>cambio
(m)</translation>
    </message>
    <message>
        <source>z before
(m)</source>
        <translation>z antes
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
        <translation>Posiciones topográficas</translation>
    </message>
    <message>
        <source>&amp;Other table ...</source>
        <translation>Otra ta&amp;bla ...</translation>
    </message>
    <message>
        <source>First rows of the table</source>
        <translation>Primeras filas de la tabla</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Columnas de la tabla</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>Separad&amp;or</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>&amp;Coordinates</source>
        <translation>Coor&amp;denadas</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Column of names</source>
        <translation>Columna de los nombres</translation>
    </message>
    <message>
        <source>Eas&amp;ting</source>
        <translation>&amp;Este</translation>
    </message>
    <message>
        <source>Column of eastings or longitudes</source>
        <translation>Columna de coordenadas este o longitudes</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>Ti&amp;po</translation>
    </message>
    <message>
        <source>Column of kinds</source>
        <translation>Columna de los tipos</translation>
    </message>
    <message>
        <source>No&amp;rthing</source>
        <translation>No&amp;rte</translation>
    </message>
    <message>
        <source>Column of northings or latitudes</source>
        <translation>Columna de coordenadas norte o latitudes</translation>
    </message>
    <message>
        <source>Ele&amp;vation</source>
        <translation>&amp;Cota</translation>
    </message>
    <message>
        <source>Column of elevations</source>
        <translation>Columna de las cotas</translation>
    </message>
    <message>
        <source>EPS&amp;G code</source>
        <translation>Códi&amp;go EPSG</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>Código EPSG</translation>
    </message>
    <message>
        <source>The code of the reference system of easting and northing, for example 32632 for UTM zone 32 N. Without it the line gets no place on the map. Longitude and latitude are projected into it, without a code into their UTM zone.</source>
        <translation>El código del sistema de referencia de las coordenadas este y norte, por ejemplo 32632 para la zona UTM 32 N. Sin él la línea no recibe lugar en el mapa. La longitud y la latitud se proyectan a él; sin código, a su zona UTM.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Línea</translation>
    </message>
    <message>
        <source>Shape of the line</source>
        <translation>Forma de la línea</translation>
    </message>
    <message>
        <source>Lengt&amp;h</source>
        <translation>Dis&amp;tancias</translation>
    </message>
    <message>
        <source>Length along the line</source>
        <translation>Distancias a lo largo de la línea</translation>
    </message>
    <message>
        <source>Names &amp;are</source>
        <translation>&amp;Qué son los nombres</translation>
    </message>
    <message>
        <source>What names are</source>
        <translation>Qué son los nombres</translation>
    </message>
    <message>
        <source>First &amp;distance</source>
        <translation>Pr&amp;imera distancia</translation>
    </message>
    <message>
        <source>Distance of the first geophone</source>
        <translation>Distancia del primer geófono</translation>
    </message>
    <message>
        <source>Distance of the first geophone that was surveyed (m). Empty: as it is now.</source>
        <translation>Distancia del primer geófono con coordenadas medidas (m). Vacío: como está ahora.</translation>
    </message>
    <message>
        <source>Count from the other &amp;end</source>
        <translation>Contar desde el otro e&amp;xtremo</translation>
    </message>
    <message>
        <source>&amp;Positions</source>
        <translation>Po&amp;siciones</translation>
    </message>
    <message>
        <source>Positions before and after</source>
        <translation>Posiciones antes y después</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Mapa</translation>
    </message>
    <message>
        <source>Geophones and shots from above</source>
        <translation>Geófonos y disparos vistos desde arriba</translation>
    </message>
    <message>
        <source>O&amp;ffsets</source>
        <translation>Des&amp;víos</translation>
    </message>
    <message>
        <source>Offsets across the line</source>
        <translation>Desvíos transversales a la línea</translation>
    </message>
    <message>
        <source>To be looked at</source>
        <translation>Por revisar</translation>
    </message>
    <message>
        <source>as in the table</source>
        <translation>como en la tabla</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>tabulador</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>punto y coma</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>coma</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>espacio</translation>
    </message>
    <message>
        <source>Easting, northing</source>
        <translation>Este, norte</translation>
    </message>
    <message>
        <source>Longitude, latitude</source>
        <translation>Longitud, latitud</translation>
    </message>
    <message>
        <source>Straight, fitted to the geophones</source>
        <translation>Recta, ajustada a los geófonos</translation>
    </message>
    <message>
        <source>Straight, from the first geophone to the last one</source>
        <translation>Recta, del primer geófono al último</translation>
    </message>
    <message>
        <source>Bent, from geophone to geophone</source>
        <translation>Quebrada, de geófono a geófono</translation>
    </message>
    <message>
        <source>Horizontal, as on the map</source>
        <translation>Horizontales, como en el mapa</translation>
    </message>
    <message>
        <source>Along the ground, on slopes</source>
        <translation>Sobre el terreno, por las pendientes</translation>
    </message>
    <message>
        <source>numbers of geophones and shots, from 1</source>
        <translation>números de geófonos y disparos, desde 1</translation>
    </message>
    <message>
        <source>without a meaning: rows are in order</source>
        <translation>sin significado: las filas están en orden</translation>
    </message>
    <message>
        <source>distances along the line as it is now</source>
        <translation>distancias a lo largo de la línea como está ahora</translation>
    </message>
    <message>
        <source>none</source>
        <comment>column of a table</comment>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>columna %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>column, name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Longi&amp;tude</source>
        <translation>Longit&amp;ud</translation>
    </message>
    <message>
        <source>Latit&amp;ude</source>
        <translation>L&amp;atitud</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of the table have no position and are not used.</source>
        <translation>
            <numerusform>%n fila de la tabla no tiene posición y no se usa.</numerusform>
            <numerusform>%n filas de la tabla no tienen posición y no se usan.</numerusform>
        </translation>
    </message>
    <message>
        <source>With a row: %1 of %2 geophones, %3 of %4 shots. Geophones stand %5 across the line (RMS), at most %6 (%7); their spacing is %8.</source>
        <translation>Con fila: %1 de %2 geófonos, %3 de %4 disparos. Los geófonos se desvían %5 de la línea (RMS), como máximo %6 (%7); su separación es de %8.</translation>
    </message>
    <message>
        <source>No reference system</source>
        <translation>Sin sistema de referencia</translation>
    </message>
    <message>
        <source>EPSG:%1, %2</source>
        <translation>EPSG:%1, %2</translation>
    </message>
    <message>
        <source>%1: the zone of the first place</source>
        <translation>%1: la zona del primer lugar</translation>
    </message>
    <message>
        <source>Without an EPSG code the place of the line on the map stays as it is now, where it may not fit any more.</source>
        <translation>Sin un código EPSG, el lugar de la línea en el mapa queda como está ahora, y puede que ya no sea el correcto.</translation>
    </message>
    <message>
        <source>Without an EPSG code the line gets no place on the map.</source>
        <translation>Sin un código EPSG la línea no recibe lugar en el mapa.</translation>
    </message>
    <message>
        <source>On OK the line lies on the map from the first geophone to the last one, on the line that is shown.</source>
        <translation>Al aceptar, la línea va en el mapa del primer geófono al último, por la línea que se muestra.</translation>
    </message>
    <message numerus="yes">
        <source>On OK the line lies on the map along %n point(s), and KML follows it. Reports and the dialog of geographic coordinates give its two ends.</source>
        <translation>
            <numerusform>Al aceptar, la línea va en el mapa por %n punto, y KML la sigue. Los informes y el diálogo de coordenadas geográficas dan sus dos extremos.</numerusform>
            <numerusform>Al aceptar, la línea va en el mapa por %n puntos, y KML la sigue. Los informes y el diálogo de coordenadas geográficas dan sus dos extremos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::TableTexts</name>
    <message>
        <source>The first line, &quot;%1&quot;, was taken for a heading and skipped.</source>
        <translation>La primera línea, «%1», se ha tomado por un encabezado y se ha omitido.</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot;</source>
        <translation>línea %1: «%2»</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) of %1 that are no number were taken as 0.</source>
        <translation>
            <numerusform>%n campo de %1 que no es un número se ha tomado como 0.</numerusform>
            <numerusform>%n campos de %1 que no son números se han tomado como 0.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::Talvesk_MainWindows</name>
    <message>
        <source>Traces</source>
        <translation>Trazas</translation>
    </message>
    <message>
        <source>&lt;h2&gt;No survey yet&lt;/h2&gt;&lt;p&gt;Open shot files with Ctrl+O, or drop them here.&lt;/p&gt;&lt;p&gt;Picks without traces come in with File &amp;gt; Import TravelTimes.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Aún no hay levantamiento&lt;/h2&gt;&lt;p&gt;Abra archivos de disparos con Ctrl+O o suéltelos aquí.&lt;/p&gt;&lt;p&gt;Los picados sin trazas se cargan con Archivo &amp;gt; Importar tiempos de recorrido.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Traces and picks of the current shot</source>
        <translation>Trazas y picados del disparo actual</translation>
    </message>
    <message>
        <source>Traces and picks, second view</source>
        <translation>Trazas y picados, segunda vista</translation>
    </message>
    <message>
        <source>Travel times of the current shot</source>
        <translation>Tiempos de recorrido del disparo actual</translation>
    </message>
    <message>
        <source>Draw the picks of the other shots faintly over the traces</source>
        <translation>Dibuja tenues sobre las trazas los picados de los demás disparos</translation>
    </message>
    <message>
        <source>Show All Picks</source>
        <translation>Mostrar todos los picados</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one</source>
        <translation>Muestra la copia filtrada de las trazas donde la haya</translation>
    </message>
    <message>
        <source>Show Filtered Traces</source>
        <translation>Mostrar trazas filtradas</translation>
    </message>
    <message>
        <source>Hide the picks and the travel-time preview</source>
        <translation>Oculta los picados y la vista previa de los tiempos de recorrido</translation>
    </message>
    <message>
        <source>Show Only Traces</source>
        <translation>Mostrar solo trazas</translation>
    </message>
    <message>
        <source>Draw the times that the last inversion computed</source>
        <translation>Dibuja los tiempos calculados por la última inversión</translation>
    </message>
    <message>
        <source>Show computed Travel Times</source>
        <translation>Mostrar tiempos calculados</translation>
    </message>
    <message>
        <source>Travel time curves</source>
        <translation>Dromocronas</translation>
    </message>
    <message>
        <source>Travel time curves of all shots</source>
        <translation>Dromocronas de todos los disparos</translation>
    </message>
    <message>
        <source>Tomographic profile</source>
        <translation>Perfil tomográfico</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>&amp;KML</source>
        <translation>&amp;KML</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Show Velocity Gradient</source>
        <translation>Mostrar gradiente de velocidad</translation>
    </message>
    <message>
        <source>Show Geophones</source>
        <translation>Mostrar geófonos</translation>
    </message>
    <message>
        <source>&amp;Traces</source>
        <translation>&amp;Trazas</translation>
    </message>
    <message>
        <source>Picks of the selected traces</source>
        <translation>Picados de las trazas seleccionadas</translation>
    </message>
    <message>
        <source>Mouse tool</source>
        <translation>Herramienta del ratón</translation>
    </message>
    <message>
        <source>Snap picks to</source>
        <translation>Ajustar picados a</translation>
    </message>
    <message>
        <source>Wiggles</source>
        <translation>Oscilaciones</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Proyecto</translation>
    </message>
    <message>
        <source>P&amp;rocessing</source>
        <translation>P&amp;rocesamiento</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Nuevo...</translation>
    </message>
    <message>
        <source>Import TravelTimes...</source>
        <translation>Importar tiempos de recorrido...</translation>
    </message>
    <message>
        <source>Load traveltimes</source>
        <translation>Carga tiempos de recorrido</translation>
    </message>
    <message>
        <source>Apply smoothing</source>
        <translation>Aplicar suavizado</translation>
    </message>
    <message>
        <source>Smooth the velocities of the section once more</source>
        <translation>Suaviza una vez más las velocidades de la sección</translation>
    </message>
    <message>
        <source>Run tomography inversion</source>
        <translation>Ejecutar inversión tomográfica</translation>
    </message>
    <message>
        <source>Invert the picks into a velocity section</source>
        <translation>Invierte los picados en una sección de velocidad</translation>
    </message>
    <message>
        <source>Grid view</source>
        <translation>Vista de celdas</translation>
    </message>
    <message>
        <source>Draw the section cell by cell</source>
        <translation>Dibuja la sección celda por celda</translation>
    </message>
    <message>
        <source>Smooth view</source>
        <translation>Vista difuminada</translation>
    </message>
    <message>
        <source>Draw the section with velocities blended between cells</source>
        <translation>Dibuja la sección con velocidades difuminadas entre celdas</translation>
    </message>
    <message>
        <source>Export tomographic data ...</source>
        <translation>Exportar datos tomográficos ...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Show the next seismic file</source>
        <translation>Muestra el archivo sísmico siguiente</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Show the previous file</source>
        <translation>Muestra el archivo anterior</translation>
    </message>
    <message>
        <source>Define model velocity</source>
        <translation>Definir modelo de velocidad</translation>
    </message>
    <message>
        <source>Set the layers and velocities that the inversion starts from</source>
        <translation>Define las capas y velocidades de las que parte la inversión</translation>
    </message>
    <message>
        <source>Load Project...</source>
        <translation>Abrir proyecto...</translation>
    </message>
    <message>
        <source>Open a project with its shots, picks and section</source>
        <translation>Abre un proyecto con sus disparos, picados y sección</translation>
    </message>
    <message>
        <source>Save Project As...</source>
        <translation>Guardar proyecto como...</translation>
    </message>
    <message>
        <source>Save the project in a file of another name</source>
        <translation>Guarda el proyecto en un archivo con otro nombre</translation>
    </message>
    <message>
        <source>Images ...</source>
        <translation>Imágenes ...</translation>
    </message>
    <message>
        <source>Save pictures of the section, the curves and the traces</source>
        <translation>Guarda imágenes de la sección, las dromocronas y las trazas</translation>
    </message>
    <message>
        <source>AutoPick</source>
        <translation>AutoPick</translation>
    </message>
    <message>
        <source>Pick the first breaks of the current shot, or of all shots when all traces are shown</source>
        <translation>Pica las primeras llegadas del disparo actual, o de todos los disparos si se muestran todas las trazas</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version, libraries and licence of Talvesk</source>
        <translation>Versión, bibliotecas y licencia de Talvesk</translation>
    </message>
    <message>
        <source>Geometry ...</source>
        <translation>Geometría ...</translation>
    </message>
    <message>
        <source>Set the positions of geophones and shots</source>
        <translation>Define las posiciones de geófonos y disparos</translation>
    </message>
    <message>
        <source>Grid ...</source>
        <translation>Malla ...</translation>
    </message>
    <message>
        <source>Lay the grid of the tomography under the line</source>
        <translation>Coloca bajo la línea la malla de la tomografía</translation>
    </message>
    <message>
        <source>PDF ...</source>
        <translation>PDF ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as PDF</source>
        <translation>Escribe un informe del levantamiento en PDF</translation>
    </message>
    <message>
        <source>Palette Options...</source>
        <translation>Opciones de paleta...</translation>
    </message>
    <message>
        <source>Choose the colours of the section</source>
        <translation>Elige los colores de la sección</translation>
    </message>
    <message>
        <source>ODT...</source>
        <translation>ODT...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a text document</source>
        <translation>Escribe un informe del levantamiento como documento de texto</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Close Talvesk</source>
        <translation>Cierra Talvesk</translation>
    </message>
    <message>
        <source>On line help</source>
        <translation>Ayuda en línea</translation>
    </message>
    <message>
        <source>Open the help pages on the web, or the user guide without a network</source>
        <translation>Abre las páginas de ayuda en la web, o la guía del usuario si no hay red</translation>
    </message>
    <message>
        <source>Show Rays</source>
        <translation>Mostrar rayos</translation>
    </message>
    <message>
        <source>Overlay the seismic rays to profile</source>
        <translation>Superpone los rayos sísmicos al perfil</translation>
    </message>
    <message>
        <source>Fill wiggle</source>
        <translation>Rellenar oscilaciones</translation>
    </message>
    <message>
        <source>Fill the positive half of every wiggle</source>
        <translation>Rellena la mitad positiva de cada oscilación</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Language, trace view and image options</source>
        <translation>Idioma, vista de trazas y opciones de imagen</translation>
    </message>
    <message>
        <source>Show Contour Lines</source>
        <translation>Mostrar isolíneas</translation>
    </message>
    <message>
        <source>Draw lines of equal velocity over the section</source>
        <translation>Dibuja líneas de igual velocidad sobre la sección</translation>
    </message>
    <message>
        <source>Set geographic coordinates ...</source>
        <translation>Definir coordenadas geográficas ...</translation>
    </message>
    <message>
        <source>Say where the first and the last geophone lie on the map</source>
        <translation>Indica dónde están en el mapa el primer y el último geófono</translation>
    </message>
    <message>
        <source>Reset View</source>
        <translation>Restablecer vista</translation>
    </message>
    <message>
        <source>Bring the whole section back into view</source>
        <translation>Vuelve a mostrar toda la sección</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Guarda el proyecto</translation>
    </message>
    <message>
        <source>Vertical Gradient</source>
        <translation>Gradiente vertical</translation>
    </message>
    <message>
        <source>Show how fast the velocity grows with depth</source>
        <translation>Muestra con qué rapidez crece la velocidad con la profundidad</translation>
    </message>
    <message>
        <source>Laplacian Gradient</source>
        <translation>Gradiente laplaciano</translation>
    </message>
    <message>
        <source>Show where the velocity changes most abruptly</source>
        <translation>Muestra dónde cambia la velocidad más bruscamente</translation>
    </message>
    <message>
        <source>Show Tomographic Profile</source>
        <translation>Mostrar perfil tomográfico</translation>
    </message>
    <message>
        <source>Show the velocity section</source>
        <translation>Muestra la sección de velocidad</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Open the guide that comes with Talvesk</source>
        <translation>Abre la guía que acompaña a Talvesk</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation>Filtro...</translation>
    </message>
    <message>
        <source>Filter the traces of the current shot by frequency, with spectrum and preview</source>
        <translation>Filtra en frecuencia las trazas del disparo actual, con espectro y vista previa</translation>
    </message>
    <message>
        <source>Apply Hushel</source>
        <translation>Aplicar Hushel</translation>
    </message>
    <message>
        <source>Apply Hushel - The Noise Reduction tool for seismic refraction data</source>
        <translation>Aplica Hushel: la herramienta de reducción de ruido para datos de sísmica de refracción</translation>
    </message>
    <message>
        <source>AGC</source>
        <translation>AGC</translation>
    </message>
    <message>
        <source>Even out the amplitudes of the traces (automatic gain control)</source>
        <translation>Iguala las amplitudes de las trazas (control automático de ganancia)</translation>
    </message>
    <message>
        <source>Refraction</source>
        <translation>Refracción</translation>
    </message>
    <message>
        <source>Interpret the picks layer by layer with the reciprocal method</source>
        <translation>Interpreta los picados capa por capa con el método recíproco</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Pequeños</translation>
    </message>
    <message>
        <source>Draw small geophones on the section</source>
        <translation>Dibuja geófonos pequeños en la sección</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normales</translation>
    </message>
    <message>
        <source>Draw geophones of normal size on the section</source>
        <translation>Dibuja geófonos de tamaño normal en la sección</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grandes</translation>
    </message>
    <message>
        <source>Draw large geophones on the section</source>
        <translation>Dibuja geófonos grandes en la sección</translation>
    </message>
    <message>
        <source>Show refraction</source>
        <translation>Mostrar refracción</translation>
    </message>
    <message>
        <source>Overlay the refractors of the layered interpretation</source>
        <translation>Superpone los refractores de la interpretación por capas</translation>
    </message>
    <message>
        <source>Show scalarbar</source>
        <translation>Mostrar barra de color</translation>
    </message>
    <message>
        <source>Show the colour scale beside the section</source>
        <translation>Muestra la escala de color junto a la sección</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Take a Screenshot of the tomographic profile</source>
        <translation>Toma una captura del perfil tomográfico</translation>
    </message>
    <message>
        <source>Export TravelTimes...</source>
        <translation>Exportar tiempos de recorrido...</translation>
    </message>
    <message>
        <source>Write picks and positions to a travel-time file</source>
        <translation>Escribe picados y posiciones en un archivo de tiempos de recorrido</translation>
    </message>
    <message>
        <source>Show Information Density Layer</source>
        <translation>Mostrar densidad de información</translation>
    </message>
    <message>
        <source>Show Grid Lines</source>
        <translation>Mostrar líneas de cuadrícula</translation>
    </message>
    <message>
        <source>Draw distance and depth lines over the section</source>
        <translation>Dibuja líneas de distancia y profundidad sobre la sección</translation>
    </message>
    <message>
        <source>Set title ...</source>
        <translation>Definir título ...</translation>
    </message>
    <message>
        <source>Set prject title</source>
        <translation>Define el título del proyecto</translation>
    </message>
    <message>
        <source>Show title ...</source>
        <translation>Mostrar título ...</translation>
    </message>
    <message>
        <source>Write the project title over the section</source>
        <translation>Escribe el título del proyecto sobre la sección</translation>
    </message>
    <message>
        <source>Tomography to text file ...</source>
        <translation>Tomografía a archivo de texto ...</translation>
    </message>
    <message>
        <source>Export tomography as a XYZVelocity gridded text file</source>
        <translation>Exporta la tomografía como archivo de texto en malla XYZVelocidad</translation>
    </message>
    <message>
        <source>Tomographic profile ...</source>
        <translation>Perfil tomográfico ...</translation>
    </message>
    <message>
        <source>Export the section to KML, standing on the globe</source>
        <translation>Exporta la sección a KML, de pie sobre el globo</translation>
    </message>
    <message>
        <source>Seismic line ...</source>
        <translation>Línea sísmica ...</translation>
    </message>
    <message>
        <source>Export seismic line to KML</source>
        <translation>Exporta la línea sísmica a KML</translation>
    </message>
    <message>
        <source>Open shot files...</source>
        <translation>Abrir archivos de disparos...</translation>
    </message>
    <message>
        <source>Add shot files (SEG-2, SEG-Y, SU) to the survey</source>
        <translation>Añade archivos de disparos (SEG-2, SEG-Y, SU) al levantamiento</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Take back the last edit of the picks</source>
        <translation>Deshace el último cambio de los picados</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Do again the edit that was taken back</source>
        <translation>Rehace el cambio que se deshizo</translation>
    </message>
    <message>
        <source>Open shots at the part of the record that holds the first breaks</source>
        <translation>Abre los disparos en la parte del registro que contiene las primeras llegadas</translation>
    </message>
    <message>
        <source>Cut at the neighbour</source>
        <translation>Cortar en la traza vecina</translation>
    </message>
    <message>
        <source>End every wiggle where the next trace begins</source>
        <translation>Termina cada oscilación donde empieza la traza siguiente</translation>
    </message>
    <message>
        <source>Two colours</source>
        <translation>Dos colores</translation>
    </message>
    <message>
        <source>Fill the two halves of every wiggle in two colours</source>
        <translation>Rellena las dos mitades de cada oscilación con dos colores</translation>
    </message>
    <message>
        <source>Show filtered traces</source>
        <translation>Mostrar trazas filtradas</translation>
    </message>
    <message>
        <source>Show the filtered copy of the traces where there is one; AutoPick then picks on it</source>
        <translation>Muestra la copia filtrada de las trazas donde la haya; AutoPick pica entonces sobre ella</translation>
    </message>
    <message>
        <source>Show all traces</source>
        <translation>Mostrar todas las trazas</translation>
    </message>
    <message>
        <source>Open shots with all traces in view; AutoPick, Filter, AGC and Hushel then work on all shots</source>
        <translation>Abre los disparos con todas las trazas a la vista; AutoPick, Filtro, AGC y Hushel actúan entonces sobre todos los disparos</translation>
    </message>
    <message>
        <source>At true distance</source>
        <translation>A distancia real</translation>
    </message>
    <message>
        <source>Place the traces at their distance along the line, not one beside the other</source>
        <translation>Coloca las trazas a su distancia a lo largo de la línea, no una junto a otra</translation>
    </message>
    <message>
        <source>True amplitudes</source>
        <translation>Amplitudes reales</translation>
    </message>
    <message>
        <source>Keep the amplitudes of a shot in proportion; otherwise every trace is as wide as the others</source>
        <translation>Mantiene la proporción entre las amplitudes de un disparo; si no, cada traza es tan ancha como las demás</translation>
    </message>
    <message>
        <source>Air wave</source>
        <translation>Onda aérea</translation>
    </message>
    <message>
        <source>Draw the line of the sound that travels through the air</source>
        <translation>Dibuja la línea del sonido que viaja por el aire</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupa</translation>
    </message>
    <message>
        <source>Enlarge what is around the cursor (key M)</source>
        <translation>Amplía lo que rodea el cursor (tecla M)</translation>
    </message>
    <message>
        <source>Larger wiggles</source>
        <translation>Oscilaciones más grandes</translation>
    </message>
    <message>
        <source>Raise the gain (key ])</source>
        <translation>Aumenta la ganancia (tecla ])</translation>
    </message>
    <message>
        <source>Smaller wiggles</source>
        <translation>Oscilaciones más pequeñas</translation>
    </message>
    <message>
        <source>Lower the gain (key [)</source>
        <translation>Reduce la ganancia (tecla [)</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Picado</translation>
    </message>
    <message>
        <source>Click sets a pick, dragging moves it or draws a run of picks, right click removes it</source>
        <translation>Un clic pone un picado, arrastrar lo mueve o traza una serie de picados, el clic derecho lo quita</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Drag a rectangle to zoom to it</source>
        <translation>Arrastre un rectángulo para ampliarlo</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Arrastre la imagen</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Drag a line to read its apparent velocity (key R)</source>
        <translation>Arrastre una línea para leer su velocidad aparente (tecla R)</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Drag over traces to confirm or remove their picks together</source>
        <translation>Arrastre sobre las trazas para confirmar o quitar juntos sus picados</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Picks stay where they are set</source>
        <translation>Los picados quedan donde se ponen</translation>
    </message>
    <message>
        <source>Onset</source>
        <translation>Inicio de la señal</translation>
    </message>
    <message>
        <source>Draw picks to where the noise ends</source>
        <translation>Lleva los picados adonde termina el ruido</translation>
    </message>
    <message>
        <source>Zero crossing</source>
        <translation>Cruce por cero</translation>
    </message>
    <message>
        <source>Draw picks to the nearest change of sign</source>
        <translation>Lleva los picados al cambio de signo más cercano</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Pico</translation>
    </message>
    <message>
        <source>Draw picks to the strongest peak or trough nearby</source>
        <translation>Lleva los picados al pico o valle más fuerte de los alrededores</translation>
    </message>
    <message>
        <source>Confirm picks</source>
        <translation>Confirmar picados</translation>
    </message>
    <message>
        <source>Make the automatic picks of the selected traces your own (key C)</source>
        <translation>Hace suyos los picados automáticos de las trazas seleccionadas (tecla C)</translation>
    </message>
    <message>
        <source>Remove picks</source>
        <translation>Quitar picados</translation>
    </message>
    <message>
        <source>Remove the picks of the selected traces (key Delete)</source>
        <translation>Quita los picados de las trazas seleccionadas (tecla Supr)</translation>
    </message>
    <message>
        <source>Remove unconfirmed picks</source>
        <translation>Quitar picados sin confirmar</translation>
    </message>
    <message>
        <source>Remove the automatic picks of the selected traces that were not confirmed</source>
        <translation>Quita los picados automáticos sin confirmar de las trazas seleccionadas</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Show all traces and all times (key F)</source>
        <translation>Muestra todas las trazas y todos los tiempos (tecla F)</translation>
    </message>
    <message>
        <source>Previous view</source>
        <translation>Vista anterior</translation>
    </message>
    <message>
        <source>Go back to the view before the last zoom (key Backspace)</source>
        <translation>Vuelve a la vista anterior al último zoom (tecla Retroceso)</translation>
    </message>
    <message>
        <source>Next view</source>
        <translation>Vista siguiente</translation>
    </message>
    <message>
        <source>Go forward again after going back (keys Shift+Backspace)</source>
        <translation>Avanza de nuevo después de retroceder (teclas Mayús+Retroceso)</translation>
    </message>
    <message>
        <source>Recording details...</source>
        <translation>Detalles del registro...</translation>
    </message>
    <message>
        <source>What the shot files hold: samples, interval, delay, positions, warnings</source>
        <translation>Qué contienen los archivos de disparos: muestras, intervalo, retardo, posiciones, advertencias</translation>
    </message>
    <message>
        <source>Shot in view</source>
        <translation>Disparo a la vista</translation>
    </message>
    <message>
        <source>The shot in view</source>
        <translation>El disparo a la vista</translation>
    </message>
    <message>
        <source>Open Seismic Trace</source>
        <translation>Abrir trazas sísmicas</translation>
    </message>
    <message>
        <source>Loading shot files ...</source>
        <translation>Cargando archivos de disparos ...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Error occured</source>
        <translation>Se ha producido un error</translation>
    </message>
    <message>
        <source>Unsupported file format.</source>
        <translation>Formato de archivo no compatible.</translation>
    </message>
    <message>
        <source>Error while loading one or more traces.</source>
        <translation>Error al cargar una o más trazas.</translation>
    </message>
    <message numerus="yes">
        <source>%n shot file(s) loaded.</source>
        <translation>
            <numerusform>%n archivo de disparo cargado.</numerusform>
            <numerusform>%n archivos de disparos cargados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Travel times of %n shot(s) imported.</source>
        <translation>
            <numerusform>Tiempos de recorrido de %n disparo importados.</numerusform>
            <numerusform>Tiempos de recorrido de %n disparos importados.</numerusform>
        </translation>
    </message>
    <message>
        <source>First breaks found on %1 of %2 traces.</source>
        <translation>Primeras llegadas encontradas en %1 de %2 trazas.</translation>
    </message>
    <message>
        <source>Filtered copies made of %1 of %2 traces.</source>
        <translation>Copias filtradas hechas de %1 de %2 trazas.</translation>
    </message>
    <message numerus="yes">
        <source>%n with warnings, see Traces &gt; Recording details.</source>
        <translation>
            <numerusform>%n con advertencias, véase Trazas &gt; Detalles del registro.</numerusform>
            <numerusform>%n con advertencias, véase Trazas &gt; Detalles del registro.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording delay</source>
        <translation>Retardo del registro</translation>
    </message>
    <message>
        <source>The records start before the shot, by up to %1 ms.</source>
        <translation>Los registros empiezan antes del disparo, hasta %1 ms.</translation>
    </message>
    <message>
        <source>Do you want to count times from the shot? What was recorded before it is then dropped.</source>
        <translation>¿Desea contar los tiempos desde el disparo? En ese caso se descarta lo registrado antes.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) end before the shot and stay as recorded.</source>
        <translation>
            <numerusform>%n traza termina antes del disparo y queda como se registró.</numerusform>
            <numerusform>%n trazas terminan antes del disparo y quedan como se registraron.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import TravelTimes</source>
        <translation>Importar tiempos de recorrido</translation>
    </message>
    <message>
        <source>Error while loading %1.</source>
        <translation>Error al cargar %1.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>%1 was loaded with warnings.</source>
        <translation>%1 se ha cargado con advertencias.</translation>
    </message>
    <message>
        <source>Save TravelTimeExchange</source>
        <translation>Guardar tiempos de recorrido</translation>
    </message>
    <message>
        <source>The travel times have not been saved.</source>
        <translation>No se han guardado los tiempos de recorrido.</translation>
    </message>
    <message>
        <source>Travel times saved in %1</source>
        <translation>Tiempos de recorrido guardados en %1</translation>
    </message>
    <message>
        <source>The user guide is not where it was installed.</source>
        <translation>La guía del usuario no está donde se instaló.</translation>
    </message>
    <message>
        <source>Install Talvesk again to get it back.</source>
        <translation>Vuelva a instalar Talvesk para recuperarla.</translation>
    </message>
    <message>
        <source>Picking first breaks ...</source>
        <translation>Picando primeras llegadas ...</translation>
    </message>
    <message>
        <source>Not every shot could be picked.</source>
        <translation>No se han podido picar todos los disparos.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n traza queda como estaba.</numerusform>
            <numerusform>%n trazas quedan como estaban.</numerusform>
        </translation>
    </message>
    <message>
        <source>Applying AGC ...</source>
        <translation>Aplicando AGC ...</translation>
    </message>
    <message>
        <source>Applying Hushel ...</source>
        <translation>Aplicando Hushel ...</translation>
    </message>
    <message>
        <source>Project title</source>
        <translation>Título del proyecto</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <comment>shot number, file, place</comment>
        <translation>%1: %2 en %3</translation>
    </message>
    <message>
        <source>%1: at %2</source>
        <comment>shot number, place</comment>
        <translation>%1: en %2</translation>
    </message>
    <message>
        <source>Trace %1</source>
        <translation>Traza %1</translation>
    </message>
    <message>
        <source>Offset %1</source>
        <translation>Distancia al disparo %1</translation>
    </message>
    <message>
        <source>Time %1 ms</source>
        <translation>Tiempo %1 ms</translation>
    </message>
    <message>
        <source>Pick %1 ms (automatic)</source>
        <translation>Picado %1 ms (automático)</translation>
    </message>
    <message>
        <source>Pick %1 ms</source>
        <translation>Picado %1 ms</translation>
    </message>
    <message>
        <source>Amplitude %1</source>
        <translation>Amplitud %1</translation>
    </message>
    <message>
        <source>Talvesk 2022.0</source>
        <translation>Talvesk 2022.0</translation>
    </message>
    <message>
        <source>Zoom in on first breaks</source>
        <translation>Ampliar primeras llegadas</translation>
    </message>
    <message>
        <source>Save travel-time curves</source>
        <translation>Guardar dromocronas</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf);;All Files (*)</source>
        <translation>Imágenes (*.png *.svg *.pdf);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The picture has not been saved.</source>
        <translation>No se ha guardado la imagen.</translation>
    </message>
    <message>
        <source>Picture saved in %1</source>
        <translation>Imagen guardada en %1</translation>
    </message>
    <message>
        <source>Colour the section by how well rays cover it</source>
        <translation>Colorea la sección según lo bien que la cubren los rayos</translation>
    </message>
    <message>
        <source>No section yet</source>
        <translation>Aún no hay sección</translation>
    </message>
    <message>
        <source>Load shot files or travel times with the File menu first.</source>
        <translation>Cargue primero archivos de disparos o tiempos de recorrido con el menú Archivo.</translation>
    </message>
    <message>
        <source>Build a grid with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt;, then invert the picks with &lt;b&gt;Processing &amp;gt; Run tomography inversion&lt;/b&gt;.</source>
        <translation>Construya una malla con &lt;b&gt;Proyecto &amp;gt; Malla ...&lt;/b&gt; y luego invierta los picados con &lt;b&gt;Procesamiento &amp;gt; Ejecutar inversión tomográfica&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>The grid has no cells</source>
        <translation>La malla no tiene celdas</translation>
    </message>
    <message>
        <source>Build another one with &lt;b&gt;Project &amp;gt; Grid ...&lt;/b&gt; and give it a depth greater than the cell size.</source>
        <translation>Construya otra con &lt;b&gt;Proyecto &amp;gt; Malla ...&lt;/b&gt; y dele una profundidad mayor que el tamaño de celda.</translation>
    </message>
    <message>
        <source>Nothing to draw</source>
        <translation>Nada que dibujar</translation>
    </message>
    <message>
        <source>No cell of the grid has a value to show.</source>
        <translation>Ninguna celda de la malla tiene un valor que mostrar.</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distancia %1</translation>
    </message>
    <message>
        <source>Elevation %1</source>
        <translation>Cota %1</translation>
    </message>
    <message>
        <source>Depth %1</source>
        <translation>Profundidad %1</translation>
    </message>
    <message>
        <source>Velocity %1</source>
        <translation>Velocidad %1</translation>
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
        <translation>Densidad de información %1</translation>
    </message>
    <message>
        <source>Export the section as a gridded text file, heights counted from the highest ground</source>
        <translation>Exporta la sección como archivo de texto en malla, con alturas contadas desde el punto más alto del terreno</translation>
    </message>
    <message>
        <source>Section as VTK grid ...</source>
        <translation>Sección como malla VTK ...</translation>
    </message>
    <message>
        <source>Export velocity, gradient and information density of the cells as a VTK unstructured grid</source>
        <translation>Exporta velocidad, gradiente y densidad de información de las celdas como malla no estructurada VTK</translation>
    </message>
    <message>
        <source>Section as Surfer grid ...</source>
        <translation>Sección como malla Surfer ...</translation>
    </message>
    <message>
        <source>Export the velocities on a regular raster as a Surfer ASCII grid</source>
        <translation>Exporta las velocidades en una retícula regular como malla ASCII de Surfer</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Guardado en %1</translation>
    </message>
    <message>
        <source>The data have not been exported.</source>
        <translation>No se han exportado los datos.</translation>
    </message>
    <message>
        <source>Export Gridded Data</source>
        <translation>Exportar datos en malla</translation>
    </message>
    <message>
        <source>Save gridded tomographic velocity in a text file (*.txt);;All Files (*)</source>
        <translation>Velocidad tomográfica en malla en un archivo de texto (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export VTK Grid</source>
        <translation>Exportar malla VTK</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;All Files (*)</source>
        <translation>Malla no estructurada VTK (*.vtu);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export Surfer Grid</source>
        <translation>Exportar malla Surfer</translation>
    </message>
    <message>
        <source>Surfer ASCII grid (*.grd);;All Files (*)</source>
        <translation>Malla ASCII de Surfer (*.grd);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Geographical coordinates are missing, data cannot be exported in KML format</source>
        <translation>Faltan las coordenadas geográficas; los datos no se pueden exportar en formato KML</translation>
    </message>
    <message>
        <source>Export Tomography to KML</source>
        <translation>Exportar tomografía a KML</translation>
    </message>
    <message>
        <source>KML (*.kml);;All Files (*)</source>
        <translation>KML (*.kml);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export Seismic Line to KML</source>
        <translation>Exportar línea sísmica a KML</translation>
    </message>
    <message>
        <source>The geometry of the survey has changed.</source>
        <translation>La geometría del levantamiento ha cambiado.</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
Do you want to run refraction processing anyway? </source>
        <translation>Conjunto de picados incompleto. 
 
¿Desea ejecutar de todos modos el procesamiento de refracción? </translation>
    </message>
    <message>
        <source>Empty filename to be saved</source>
        <translation>El nombre del archivo que se va a guardar está vacío</translation>
    </message>
    <message>
        <source>%1 already exists.</source>
        <translation>%1 ya existe.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Something went wrong while saving project </source>
        <translation>Algo ha fallado al guardar el proyecto </translation>
    </message>
    <message>
        <source>WARNING: the project has NOT been saved.</source>
        <translation>ADVERTENCIA: el proyecto NO se ha guardado.</translation>
    </message>
    <message>
        <source>Project saved in %1</source>
        <translation>Proyecto guardado en %1</translation>
    </message>
    <message>
        <source>The project has been saved.</source>
        <translation>El proyecto se ha guardado.</translation>
    </message>
    <message>
        <source>Error while loading traces: Invalid file format.</source>
        <translation>Error al cargar las trazas: formato de archivo no válido.</translation>
    </message>
    <message>
        <source>%1 is not a valid project.</source>
        <translation>%1 no es un proyecto válido.</translation>
    </message>
    <message>
        <source>There is no file %1</source>
        <translation>No existe el archivo %1</translation>
    </message>
    <message>
        <source>Project %1 loaded.</source>
        <translation>Proyecto %1 cargado.</translation>
    </message>
    <message>
        <source>Load Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Vaciar lista</translation>
    </message>
    <message>
        <source>No recovery copy can be saved; save the project yourself. %1</source>
        <translation>No se puede guardar una copia de recuperación; guarde usted el proyecto. %1</translation>
    </message>
    <message>
        <source>A survey that was not saved yet is there as it was at %1. Do you want to open it?</source>
        <translation>Hay un levantamiento aún sin guardar, tal como estaba el %1. ¿Desea abrirlo?</translation>
    </message>
    <message>
        <source>The project %1 is there as it was at %2. Do you want to open it?</source>
        <translation>El proyecto %1 está disponible tal como estaba el %2. ¿Desea abrirlo?</translation>
    </message>
    <message>
        <source>Geophones do not have geometry! 
</source>
        <translation>¡Los geófonos no tienen geometría! 
</translation>
    </message>
    <message>
        <source>Please set the position of geophones
</source>
        <translation>Defina la posición de los geófonos
</translation>
    </message>
    <message>
        <source>Grid of %1 rows and %2 columns built.</source>
        <translation>Malla de %1 filas y %2 columnas construida.</translation>
    </message>
    <message>
        <source>The grid could not be built.</source>
        <translation>No se ha podido construir la malla.</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layers.</source>
        <translation>La malla tiene las velocidades de las capas.</translation>
    </message>
    <message>
        <source>The grid could not be smoothed.</source>
        <translation>No se ha podido suavizar la malla.</translation>
    </message>
    <message>
        <source>The velocities of the grid are smoothed.</source>
        <translation>Las velocidades de la malla se han suavizado.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Advertencia:</translation>
    </message>
    <message>
        <source>Uncomplete set of picks. 
 
</source>
        <translation>Conjunto de picados incompleto. 
 
</translation>
    </message>
    <message>
        <source>Do you want to run tomography inversion anyway? </source>
        <translation>¿Desea ejecutar de todos modos la inversión tomográfica? </translation>
    </message>
    <message>
        <source>An inversion is under way; the survey cannot be edited.</source>
        <translation>Hay una inversión en curso; el levantamiento no se puede modificar.</translation>
    </message>
    <message>
        <source>Tomography inversion</source>
        <translation>Inversión tomográfica</translation>
    </message>
    <message>
        <source>The inversion is still running.</source>
        <translation>La inversión sigue en curso.</translation>
    </message>
    <message>
        <source>Do you want to stop it when the iteration under way is completed, and close then?</source>
        <translation>¿Desea detenerla cuando termine la iteración en curso y cerrar después?</translation>
    </message>
    <message>
        <source>The inversion could not be completed.</source>
        <translation>No se ha podido completar la inversión.</translation>
    </message>
    <message numerus="yes">
        <source>%n external iteration(s) completed.</source>
        <translation>
            <numerusform>%n iteración externa completada.</numerusform>
            <numerusform>%n iteraciones externas completadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Inversion results</source>
        <translation>Resultados de la inversión</translation>
    </message>
    <message>
        <source>The survey is recovered; it is not saved yet.</source>
        <translation>El levantamiento se ha recuperado; todavía no está guardado.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) exist already.</source>
        <translation>
            <numerusform>%n archivo ya existe.</numerusform>
            <numerusform>%n archivos ya existen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Do you want to replace them?</source>
        <translation>¿Desea reemplazarlos?</translation>
    </message>
    <message>
        <source>Writing pictures ...</source>
        <translation>Escribiendo imágenes ...</translation>
    </message>
    <message>
        <source>%1 of %2 pictures have been saved.</source>
        <translation>Se han guardado %1 de %2 imágenes.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) saved.</source>
        <translation>
            <numerusform>%n imagen guardada.</numerusform>
            <numerusform>%n imágenes guardadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save screenshot</source>
        <translation>Guardar captura</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;JPEG picture (*.jpg *.jpeg)</source>
        <translation>Imagen PNG (*.png);;Imagen JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>Save PDF report</source>
        <translation>Guardar informe PDF</translation>
    </message>
    <message>
        <source>PDF report (*.pdf)</source>
        <translation>Informe PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save ODT report</source>
        <translation>Guardar informe ODT</translation>
    </message>
    <message>
        <source>OpenDocument text (*.odt)</source>
        <translation>Texto OpenDocument (*.odt)</translation>
    </message>
    <message>
        <source>Writing the report ...</source>
        <translation>Escribiendo el informe ...</translation>
    </message>
    <message>
        <source>Stopped; nothing has been saved.</source>
        <translation>Detenido; no se ha guardado nada.</translation>
    </message>
    <message>
        <source>The file has not been saved.</source>
        <translation>No se ha guardado el archivo.</translation>
    </message>
    <message>
        <source>Survey tool bar</source>
        <translation>Barra de herramientas Levantamiento</translation>
    </message>
    <message>
        <source>Traces tool bar</source>
        <translation>Barra de herramientas Trazas</translation>
    </message>
    <message>
        <source>Set them with Project &gt; Set geographic coordinates ...</source>
        <translation>Indíquelas con Proyecto &gt; Definir coordenadas geográficas ...</translation>
    </message>
    <message>
        <source>Writing %1 ...</source>
        <translation>Escribiendo %1 ...</translation>
    </message>
    <message>
        <source>Start a new survey: asks for shot files, which then take the place of this one</source>
        <translation>Inicia un levantamiento nuevo: pide archivos de disparos, que ocupan entonces el lugar del actual</translation>
    </message>
    <message>
        <source>No shot file was loaded.</source>
        <translation>No se ha cargado ningún archivo de disparos.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Seismic refraction surveys: from field records to velocity sections.&lt;/p&gt;&lt;p&gt;Talvesk is free software under the MIT licence, without any warranty.&lt;/p&gt;&lt;p&gt;It is built with these libraries, Qt being version %1:&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Talvesk 2022.0&lt;/h2&gt;&lt;p&gt;Levantamientos de sísmica de refracción: de los registros de campo a las secciones de velocidad.&lt;/p&gt;&lt;p&gt;Talvesk es software libre con licencia MIT, sin garantía alguna.&lt;/p&gt;&lt;p&gt;Está construido con estas bibliotecas, con Qt en la versión %1:&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 is a folder or names no file. Give the project a name.</source>
        <translation>%1 es una carpeta o no designa ningún archivo. Dé un nombre al proyecto.</translation>
    </message>
    <message>
        <source>%1 is in use elsewhere.</source>
        <translation>%1 está en uso en otro lugar.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 on %3 (process %4).</source>
        <translation>%2 está usando %1 en %3 (proceso %4).</translation>
    </message>
    <message>
        <source>Project in use</source>
        <translation>Proyecto en uso</translation>
    </message>
    <message>
        <source>If nobody uses it any more, delete the lock %1</source>
        <translation>Si ya nadie lo usa, elimine el bloqueo %1</translation>
    </message>
    <message>
        <source>Do you want to replace it all the same?</source>
        <translation>¿Desea reemplazarlo de todos modos?</translation>
    </message>
    <message>
        <source>%1 has been changed by somebody else since it was opened or saved here.</source>
        <translation>Otra persona ha modificado %1 desde que se abrió o se guardó aquí.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What was changed there is lost then.</source>
        <translation>¿Desea reemplazarlo? En ese caso se pierden esos cambios.</translation>
    </message>
    <message>
        <source>The file is as it was before.</source>
        <translation>El archivo está como estaba.</translation>
    </message>
    <message>
        <source>Do you want to open it all the same?</source>
        <translation>¿Desea abrirlo de todos modos?</translation>
    </message>
    <message>
        <source>Some values of the project cannot be. They were put right or left out.</source>
        <translation>Algunos valores del proyecto son imposibles. Se han corregido o descartado.</translation>
    </message>
    <message>
        <source>Left out of the inversion:</source>
        <translation>Excluidos de la inversión:</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Excluidos: %1.</translation>
    </message>
    <message>
        <source>The grid has these cells already.</source>
        <translation>La malla ya tiene estas celdas.</translation>
    </message>
    <message>
        <source>Do you want to build it anew, with the default velocities?</source>
        <translation>¿Quiere construirla de nuevo, con las velocidades predeterminadas?</translation>
    </message>
    <message>
        <source>Smoothing, and tracing rays anew ...</source>
        <translation>Suavizando, y trazando los rayos de nuevo ...</translation>
    </message>
    <message>
        <source>Picks have changed since.</source>
        <translation>Los picados han cambiado desde entonces.</translation>
    </message>
    <message>
        <source>The survey was not changed.</source>
        <translation>El levantamiento no se ha modificado.</translation>
    </message>
    <message>
        <source>Undo &quot;%1&quot;</source>
        <translation>Deshacer «%1»</translation>
    </message>
    <message>
        <source>Redo &quot;%1&quot;</source>
        <translation>Rehacer «%1»</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>Remove shot</source>
        <translation>Quitar disparo</translation>
    </message>
    <message>
        <source>Shot %1 is removed; Undo brings it back.</source>
        <translation>Se ha quitado el disparo %1; Deshacer lo recupera.</translation>
    </message>
    <message>
        <source>The oldest steps can no longer be undone: they needed more than %1 MB.</source>
        <translation>Los cambios más antiguos ya no se pueden deshacer: necesitaban más de %1 MB.</translation>
    </message>
    <message>
        <source>Export recordings...</source>
        <translation>Exportar registros...</translation>
    </message>
    <message>
        <source>Write the traces of all shots, with the positions of the survey, as SEG-Y or SEG-2 files</source>
        <translation>Escribe las trazas de todos los disparos, con las posiciones del levantamiento, como archivos SEG-Y o SEG-2</translation>
    </message>
    <message>
        <source>Count times from the shot</source>
        <translation>Contar los tiempos desde el disparo</translation>
    </message>
    <message>
        <source>Drop what was recorded before the shot; picks move with their traces</source>
        <translation>Descarta lo registrado antes del disparo; los picados se desplazan con sus trazas</translation>
    </message>
    <message>
        <source>Mend recording...</source>
        <translation>Corregir registro...</translation>
    </message>
    <message>
        <source>Put right the time, the order or single traces of the shot in view; what was recorded is kept</source>
        <translation>Corrige el tiempo, el orden o trazas sueltas del disparo a la vista; lo registrado se conserva</translation>
    </message>
    <message>
        <source>Take back all mends</source>
        <translation>Revertir todas las correcciones</translation>
    </message>
    <message>
        <source>Show all recordings as they were recorded, with their picks</source>
        <translation>Muestra todos los registros tal como se registraron, con sus picados</translation>
    </message>
    <message>
        <source>%1 of them are of disabled shots or killed and left unpicked.</source>
        <translation>%1 de ellas son de disparos desactivados o están anuladas y quedan sin picar.</translation>
    </message>
    <message>
        <source>SEG-Y, a file for each shot</source>
        <translation>SEG-Y, un archivo por disparo</translation>
    </message>
    <message>
        <source>SEG-Y, all shots in one file</source>
        <translation>SEG-Y, todos los disparos en un archivo</translation>
    </message>
    <message>
        <source>SEG-2, a file for each shot</source>
        <translation>SEG-2, un archivo por disparo</translation>
    </message>
    <message>
        <source>Export recordings</source>
        <translation>Exportar registros</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>Folder for the recordings</source>
        <translation>Carpeta de los registros</translation>
    </message>
    <message>
        <source>%1 is one of the shot files of this survey.</source>
        <translation>%1 es uno de los archivos de disparos de este levantamiento.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Writing recordings ...</source>
        <translation>Escribiendo registros ...</translation>
    </message>
    <message>
        <source>The export to %1 was stopped; some files are missing.</source>
        <translation>La exportación a %1 se ha detenido; faltan algunos archivos.</translation>
    </message>
    <message>
        <source>The recordings have not been exported.</source>
        <translation>No se han exportado los registros.</translation>
    </message>
    <message>
        <source>Recordings saved in %1</source>
        <translation>Registros guardados en %1</translation>
    </message>
    <message>
        <source>The recordings have been saved.</source>
        <translation>Se han guardado los registros.</translation>
    </message>
    <message numerus="yes">
        <source>The times of %n trace(s) count from the shot now.</source>
        <translation>
            <numerusform>Los tiempos de %n traza se cuentan ahora desde el disparo.</numerusform>
            <numerusform>Los tiempos de %n trazas se cuentan ahora desde el disparo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pick(s) lay before it and are removed.</source>
        <translation>
            <numerusform>%n picado estaba antes y se ha quitado.</numerusform>
            <numerusform>%n picados estaban antes y se han quitado.</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording of shot %1 has not been mended.</source>
        <translation>No se ha corregido el registro del disparo %1.</translation>
    </message>
    <message>
        <source>The mends have not been taken back.</source>
        <translation>No se han revertido las correcciones.</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <comment>shot</comment>
        <translation>%1 (desactivado)</translation>
    </message>
    <message>
        <source>%1 (mended)</source>
        <comment>shot</comment>
        <translation>%1 (corregido)</translation>
    </message>
    <message>
        <source>disabled or killed</source>
        <translation>disparo desactivado o traza anulada</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>milisegundos</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>%1 does not say in which unit its times are.</source>
        <translation>%1 no indica en qué unidad están sus tiempos.</translation>
    </message>
    <message>
        <source>%1 does not hold all of the survey.</source>
        <translation>%1 no contiene todo el levantamiento.</translation>
    </message>
    <message>
        <source>AutoPick along the line</source>
        <translation>AutoPick a lo largo de la línea</translation>
    </message>
    <message>
        <source>Pick all traces of a shot together, and follow the picks that you made; picks that are not sure are left out</source>
        <translation>Pica juntas todas las trazas de un disparo y sigue los picados hechos por usted; los picados poco seguros se omiten</translation>
    </message>
    <message>
        <source>Check recordings...</source>
        <translation>Revisar registros...</translation>
    </message>
    <message>
        <source>List what is doubtful about positions, triggers and traces, with a mend for each that you take or leave</source>
        <translation>Enumera lo dudoso de las posiciones, los tiempos de disparo y las trazas, con una corrección para cada caso que usted acepta o no</translation>
    </message>
    <message>
        <source>Proposals carried out: %1 of %2.</source>
        <translation>Propuestas aplicadas: %1 de %2.</translation>
    </message>
    <message>
        <source>Some proposals have not been carried out.</source>
        <translation>Algunas propuestas no se han aplicado.</translation>
    </message>
    <message>
        <source>Of %1 traces %2 have a pick that is sure to %3 ms and %4 a doubtful one; %5 picks that you made stay.</source>
        <translation>Trazas: %1; con un picado seguro (±%3 ms): %2; con uno dudoso: %4. Picados hechos por usted que se conservan: %5.</translation>
    </message>
    <message>
        <source>Guides in the traces</source>
        <translation>Guías en las trazas</translation>
    </message>
    <message>
        <source>Computed times</source>
        <translation>Tiempos calculados</translation>
    </message>
    <message>
        <source>Draw the times through the section over the traces</source>
        <translation>Dibuja sobre las trazas los tiempos calculados a través de la sección</translation>
    </message>
    <message>
        <source>Curve of the nearest shot</source>
        <translation>Dromocrona del disparo más cercano</translation>
    </message>
    <message>
        <source>Draw the picks of the nearest other shot on the same geophones, dashed</source>
        <translation>Dibuja con línea discontinua los picados del disparo más cercano en los mismos geófonos</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Tiempos recíprocos</translation>
    </message>
    <message>
        <source>Mark when other shots recorded the same ways in the other direction: the picks should pass there</source>
        <translation>Marca los tiempos de otros disparos que registraron los mismos caminos en sentido contrario: los picados deberían pasar por ahí</translation>
    </message>
    <message>
        <source>Guide line</source>
        <translation>Línea guía</translation>
    </message>
    <message>
        <source>Drag along the first breaks: the picker fills the traces near that line (key G)</source>
        <translation>Arrastre a lo largo de las primeras llegadas: se pican las trazas cerca de esa línea (tecla G)</translation>
    </message>
    <message>
        <source>Fill along the line</source>
        <translation>Completar a lo largo de la línea</translation>
    </message>
    <message>
        <source>Pick the rest of the current shot through the picks that you set or confirmed</source>
        <translation>Pica el resto del disparo actual pasando por los picados que usted puso o confirmó</translation>
    </message>
    <message>
        <source>Error 0.5 ms</source>
        <translation>Error 0,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 0.5 ms, and so may those that you set next (key 1)</source>
        <translation>Da un error de 0,5 ms a los picados de las trazas seleccionadas y a los que ponga después (tecla 1)</translation>
    </message>
    <message>
        <source>Error 1 ms</source>
        <translation>Error 1 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 1 ms, and so may those that you set next (key 2)</source>
        <translation>Da un error de 1 ms a los picados de las trazas seleccionadas y a los que ponga después (tecla 2)</translation>
    </message>
    <message>
        <source>Error 2.5 ms</source>
        <translation>Error 2,5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 2.5 ms, and so may those that you set next (key 3)</source>
        <translation>Da un error de 2,5 ms a los picados de las trazas seleccionadas y a los que ponga después (tecla 3)</translation>
    </message>
    <message>
        <source>Error 5 ms</source>
        <translation>Error 5 ms</translation>
    </message>
    <message>
        <source>The picks of the selected traces may be off by 5 ms, and so may those that you set next (key 4)</source>
        <translation>Da un error de 5 ms a los picados de las trazas seleccionadas y a los que ponga después (tecla 4)</translation>
    </message>
    <message>
        <source>Error unknown</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>Nothing is told of how far the picks of the selected traces may be off, nor those that you set next (key 0)</source>
        <translation>Deja sin error los picados de las trazas seleccionadas y los que ponga después (tecla 0)</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Barras de error</translation>
    </message>
    <message>
        <source>Show how far picks may be off, in the traces and in the travel-time curves; bars of doubtful picks are dashed</source>
        <translation>Muestra el error de los picados en las trazas y en las dromocronas; las barras de los picados dudosos son discontinuas</translation>
    </message>
    <message>
        <source>Next doubtful pick</source>
        <translation>Picado dudoso siguiente</translation>
    </message>
    <message>
        <source>Go to the next pick of all shots that is doubtful by its error, the section or the reciprocal time, worst first</source>
        <translation>Va al siguiente picado de todos los disparos que es dudoso por su error, la sección o el tiempo recíproco, empezando por el peor</translation>
    </message>
    <message>
        <source>Previous doubtful pick</source>
        <translation>Picado dudoso anterior</translation>
    </message>
    <message>
        <source>Go back to the doubtful pick before, a worse one</source>
        <translation>Vuelve al picado dudoso anterior, que es peor</translation>
    </message>
    <message>
        <source>Reciprocity...</source>
        <translation>Reciprocidad...</translation>
    </message>
    <message>
        <source>Compare the picks of all shots there and back, and find the shots that are late</source>
        <translation>Compara los picados de todos los disparos en ambos sentidos y encuentra los disparos retrasados</translation>
    </message>
    <message>
        <source>Set or confirm some picks of this shot first, or draw a line with the tool Guide line.</source>
        <translation>Ponga o confirme antes algunos picados de este disparo, o trace una línea con la herramienta Línea guía.</translation>
    </message>
    <message>
        <source>Shot %1 has not been filled.</source>
        <translation>No se ha completado el disparo %1.</translation>
    </message>
    <message>
        <source>Shot %1: %2 traces filled, %3 sure to %4 ms and %5 doubtful; %6 are without a pick, %7 picks that you made stay.</source>
        <translation>Disparo %1: trazas completadas: %2; con un picado seguro (±%4 ms): %3; con uno dudoso: %5; sin picado: %6. Picados hechos por usted que se conservan: %7.</translation>
    </message>
    <message>
        <source>The record of shot %1 is mended; Undo takes it back.</source>
        <translation>El registro del disparo %1 se ha corregido; Deshacer lo revierte.</translation>
    </message>
    <message>
        <source>The recording has not been mended.</source>
        <translation>No se ha corregido el registro.</translation>
    </message>
    <message>
        <source>Save Reciprocal Times</source>
        <translation>Guardar tiempos recíprocos</translation>
    </message>
    <message>
        <source>Table (*.csv);;All Files (*)</source>
        <translation>Tabla (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Doubtful pick %1 of %2, shot %3, trace %4: %5</source>
        <translation>Picado dudoso %1 de %2, disparo %3, traza %4: %5</translation>
    </message>
    <message>
        <source>after the last one, the worst again</source>
        <translation>tras el último, de nuevo el peor</translation>
    </message>
    <message>
        <source>before the worst, the last</source>
        <translation>antes del peor, el último</translation>
    </message>
    <message>
        <source>error %1 ms</source>
        <translation>error %1 ms</translation>
    </message>
    <message>
        <source>computed %1 ms later</source>
        <translation>calculado %1 ms más tarde</translation>
    </message>
    <message>
        <source>computed %1 ms earlier</source>
        <translation>calculado %1 ms antes</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms later</source>
        <translation>tiempo recíproco %1 ms más tarde</translation>
    </message>
    <message>
        <source>reciprocal time %1 ms earlier</source>
        <translation>tiempo recíproco %1 ms antes</translation>
    </message>
    <message>
        <source>There are no picks yet.</source>
        <translation>Aún no hay picados.</translation>
    </message>
    <message>
        <source>No pick waits for confirmation.</source>
        <translation>Ningún picado espera confirmación.</translation>
    </message>
    <message>
        <source>None of the %1 picks that wait for confirmation is doubtful.</source>
        <translation>Ninguno de los %1 picados que esperan confirmación es dudoso.</translation>
    </message>
    <message>
        <source>Nothing is known of %1 of them: no error, no computed time, no reciprocal one.</source>
        <translation>De %1 de ellos no se sabe nada: ni error, ni tiempo calculado, ni tiempo recíproco.</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Error %1 ms</translation>
    </message>
    <message>
        <source>Second look ...</source>
        <translation>Segunda revisión ...</translation>
    </message>
    <message>
        <source>List the picks that the section cannot explain, time shifts of shots, velocities at their limits and ground without rays</source>
        <translation>Enumera los picados que la sección no puede explicar, los desplazamientos en tiempo de los disparos, las velocidades en sus límites y el terreno sin rayos</translation>
    </message>
    <message>
        <source>Inversion runs ...</source>
        <translation>Inversiones realizadas ...</translation>
    </message>
    <message>
        <source>List the inversions that have been run, compare them, and use one of them as the section</source>
        <translation>Enumera las inversiones ejecutadas, las compara y usa una de ellas como sección</translation>
    </message>
    <message>
        <source>Certainty ...</source>
        <translation>Certeza ...</translation>
    </message>
    <message>
        <source>Find out how sure the section is, by many sections that explain the picks as well</source>
        <translation>Determina la certeza de la sección mediante muchas secciones que explican igual de bien los picados</translation>
    </message>
    <message>
        <source>Show Certainty Layer</source>
        <translation>Mostrar certeza</translation>
    </message>
    <message>
        <source>Colour the section by how far its velocities may be off</source>
        <translation>Colorea la sección según cuánto pueden desviarse sus velocidades</translation>
    </message>
    <message>
        <source>Certainty: %1 members, %2 left out. The section shown lies beyond two deviations in %3 % of the cells with rays.</source>
        <translation>Certeza: %1 miembros, %2 excluidos. La sección mostrada queda fuera de dos desviaciones en el %3 % de las celdas con rayos.</translation>
    </message>
    <message>
        <source>The list of inversion runs is full; &quot;%1&quot; has gone.</source>
        <translation>La lista de inversiones está llena; se ha quitado «%1».</translation>
    </message>
    <message>
        <source>Tracing the rays of the run anew ...</source>
        <translation>Trazando de nuevo los rayos de la inversión ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used.</source>
        <translation>«%1» no se puede usar.</translation>
    </message>
    <message>
        <source>The section is that of &quot;%1&quot;.</source>
        <translation>La sección es la de «%1».</translation>
    </message>
    <message numerus="yes">
        <source>%n inversion run(s) deleted.</source>
        <translation>
            <numerusform>%n inversión eliminada.</numerusform>
            <numerusform>%n inversiones eliminadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Save picture of both runs</source>
        <translation>Guardar imagen de ambas inversiones</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)</source>
        <translation>Imagen PNG (*.png);;Imagen SVG (*.svg);;Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Time shifts taken over: %1 of %2. Invert again to see what they change.</source>
        <translation>Desplazamientos en tiempo adoptados: %1 de %2. Invierta de nuevo para ver qué cambian.</translation>
    </message>
    <message>
        <source>Some time shifts have not been taken over.</source>
        <translation>Algunos desplazamientos en tiempo no se han adoptado.</translation>
    </message>
    <message>
        <source>Uncertainty %1 %</source>
        <translation>Incertidumbre %1 %</translation>
    </message>
    <message>
        <source>Residuals...</source>
        <translation>Residuos...</translation>
    </message>
    <message>
        <source>Look at what the section leaves of every pick: shot by geophone, over the offset, per shot and geophone, and along the rays</source>
        <translation>Muestra lo que la sección deja de cada picado: disparo por geófono, según la distancia, por disparo y geófono, y a lo largo de los rayos</translation>
    </message>
    <message>
        <source>Known ground ...</source>
        <translation>Terreno conocido ...</translation>
    </message>
    <message>
        <source>Boreholes, known depths and bodies of known velocity, to be drawn and to hold a fit to</source>
        <translation>Sondeos, profundidades conocidas y cuerpos de velocidad conocida, para dibujarlos y condicionar un ajuste</translation>
    </message>
    <message>
        <source>Show known ground</source>
        <translation>Mostrar terreno conocido</translation>
    </message>
    <message>
        <source>Draw boreholes, known depths and bodies over the section</source>
        <translation>Dibuja sondeos, profundidades conocidas y cuerpos sobre la sección</translation>
    </message>
    <message>
        <source>Resolution test ...</source>
        <translation>Prueba de resolución ...</translation>
    </message>
    <message>
        <source>Find out how small ground may be that this survey still sees, by patterns laid over the section</source>
        <translation>Determina lo pequeño que puede ser el terreno que este levantamiento aún ve, con patrones superpuestos a la sección</translation>
    </message>
    <message>
        <source>Fade Uncertain Ground</source>
        <translation>Atenuar terreno incierto</translation>
    </message>
    <message>
        <source>Let the colours of the velocity section pale where it is not sure</source>
        <translation>Hace palidecer los colores de la sección de velocidad donde no es segura</translation>
    </message>
    <message>
        <source>Depth Bands ...</source>
        <translation>Bandas de profundidad ...</translation>
    </message>
    <message>
        <source>Draw between which depths velocities of your choice are reached, 16 to 84 %</source>
        <translation>Dibuja entre qué profundidades se alcanzan las velocidades que usted elija, del 16 al 84 %</translation>
    </message>
    <message>
        <source>Certainty as table ...</source>
        <translation>Certeza como tabla ...</translation>
    </message>
    <message>
        <source>Export median, 16 and 84 % velocity and spread of every cell as a table (.csv)</source>
        <translation>Exporta como tabla (.csv) la velocidad mediana, la del 16 y 84 % y la dispersión de cada celda</translation>
    </message>
    <message>
        <source>Export Certainty Table</source>
        <translation>Exportar tabla de certeza</translation>
    </message>
    <message>
        <source>Table of the certainty (*.csv);;All Files (*)</source>
        <translation>Tabla de la certeza (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Stopped before anything was found; the section is as it was.</source>
        <translation>Detenida antes de hallar nada; la sección está como estaba.</translation>
    </message>
    <message>
        <source>The section is not held to known ground.</source>
        <translation>La sección no está condicionada al terreno conocido.</translation>
    </message>
    <message>
        <source>The section is held to this.</source>
        <translation>La sección está condicionada a este terreno.</translation>
    </message>
    <message>
        <source>The section is held to known ground that was another: run the fit again.</source>
        <translation>La sección está condicionada a un terreno conocido distinto: ejecute de nuevo el ajuste.</translation>
    </message>
    <message>
        <source>Import known ground</source>
        <translation>Importar terreno conocido</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv *.txt);;All files (*)</source>
        <translation>Tablas de terreno conocido (*.csv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>No se ha importado nada.</translation>
    </message>
    <message>
        <source>Export known ground</source>
        <translation>Exportar terreno conocido</translation>
    </message>
    <message>
        <source>Tables of known ground (*.csv)</source>
        <translation>Tablas de terreno conocido (*.csv)</translation>
    </message>
    <message>
        <source>Save picture of residuals</source>
        <translation>Guardar imagen de los residuos</translation>
    </message>
    <message>
        <source>Save table of residuals</source>
        <translation>Guardar tabla de los residuos</translation>
    </message>
    <message>
        <source>Save picture of the resolution test</source>
        <translation>Guardar imagen de la prueba de resolución</translation>
    </message>
    <message>
        <source>Save table of the resolution test</source>
        <translation>Guardar tabla de la prueba de resolución</translation>
    </message>
    <message>
        <source>Table of resolution by depth (*.csv)</source>
        <translation>Tabla de resolución por profundidad (*.csv)</translation>
    </message>
    <message>
        <source>How sure the section before was is known no more; Undo brings back both.</source>
        <translation>La certeza de la sección anterior ya no se conoce; Deshacer recupera ambas.</translation>
    </message>
    <message>
        <source>suspect picks: %1</source>
        <translation>picados sospechosos: %1</translation>
    </message>
    <message>
        <source>time shifts of shots: %1</source>
        <translation>desplazamientos en tiempo de los disparos: %1</translation>
    </message>
    <message>
        <source>cells at a limit of the velocity: %1</source>
        <translation>celdas en un límite de velocidad: %1</translation>
    </message>
    <message>
        <source>cells shown that no ray crosses: %1</source>
        <translation>celdas mostradas que no cruza ningún rayo: %1</translation>
    </message>
    <message>
        <source>Second look (%1)</source>
        <comment>kinds of things to look at</comment>
        <translation>Segunda revisión (%1)</translation>
    </message>
    <message>
        <source>Shots without a recording, whose picks were shifted: %1.</source>
        <translation>Disparos sin registro cuyos picados se han desplazado: %1.</translation>
    </message>
    <message>
        <source>Depth Bands</source>
        <translation>Bandas de profundidad</translation>
    </message>
    <message>
        <source>Up to %1 &amp;velocities in %2; the depths at which the middle 68 % of the members reach them are drawn as a band. None takes the bands away.</source>
        <translation>Hasta %1 &amp;velocidades en %2; las profundidades a las que las alcanza el 68 % central de los miembros se dibujan como banda. Sin ninguna se quitan las bandas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of velocities.</source>
        <translation>«%1» no es una lista de velocidades.</translation>
    </message>
    <message>
        <source>Give up to %1 numbers above 0 with semicolons between them: 800; 1500</source>
        <translation>Escriba hasta %1 números mayores que 0 separados por punto y coma: 800; 1500</translation>
    </message>
    <message>
        <source>Start from layers ...</source>
        <translation>Partir de las capas ...</translation>
    </message>
    <message>
        <source>Give the cells of the grid the velocities of the layered profile, for an inversion to start from</source>
        <translation>Da a las celdas de la malla las velocidades del perfil de capas, como modelo inicial de una inversión</translation>
    </message>
    <message>
        <source>Compare layers with the section ...</source>
        <translation>Comparar capas con la sección ...</translation>
    </message>
    <message>
        <source>Read the depth of a refractor from the section and see how far it is from that of the layered profile</source>
        <translation>Lee en la sección la profundidad de un refractor y muestra cuánto difiere de la del perfil de capas</translation>
    </message>
    <message>
        <source>The grid has the velocities of the layered profile.</source>
        <translation>La malla tiene las velocidades del perfil de capas.</translation>
    </message>
    <message>
        <source>Save picture of layers and section</source>
        <translation>Guardar imagen de las capas y la sección</translation>
    </message>
    <message>
        <source>Save table of layers and section</source>
        <translation>Guardar tabla de las capas y la sección</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabla (*.csv)</translation>
    </message>
    <message>
        <source>P and S together ...</source>
        <translation>P y S juntas ...</translation>
    </message>
    <message>
        <source>Put the layers of this survey and those of a project of the other wave together: Vp/Vs, Poisson&apos;s ratio and moduli along the line</source>
        <translation>Reúne las capas de este levantamiento y las de un proyecto de la otra onda: Vp/Vs, coeficiente de Poisson y módulos a lo largo de la línea</translation>
    </message>
    <message>
        <source>There are no times through the layers: build the profiles anew.</source>
        <translation>No hay tiempos a través de las capas: vuelva a construir los perfiles.</translation>
    </message>
    <message>
        <source>Project of the other wave</source>
        <translation>Proyecto de la otra onda</translation>
    </message>
    <message>
        <source>This is the project that is open.</source>
        <translation>Es el proyecto que está abierto.</translation>
    </message>
    <message>
        <source>Choose the project of the other wave, P or S, along the same line.</source>
        <translation>Elija el proyecto de la otra onda, P o S, a lo largo de la misma línea.</translation>
    </message>
    <message>
        <source>%1 has no layered profile.</source>
        <translation>%1 no tiene perfil de capas.</translation>
    </message>
    <message>
        <source>Open it, build its profiles in the refraction dialog, and save it.</source>
        <translation>Ábralo, construya sus perfiles en el cuadro de diálogo de refracción y guárdelo.</translation>
    </message>
    <message>
        <source>this survey</source>
        <translation>este levantamiento</translation>
    </message>
    <message>
        <source>Save picture of P and S</source>
        <translation>Guardar imagen de P y S</translation>
    </message>
    <message>
        <source>Save table of P and S</source>
        <translation>Guardar tabla de P y S</translation>
    </message>
    <message>
        <source>Save picture of layers by method</source>
        <translation>Guardar imagen de las capas por método</translation>
    </message>
    <message>
        <source>Save table of layers by method</source>
        <translation>Guardar tabla de las capas por método</translation>
    </message>
    <message>
        <source>Web page ...</source>
        <translation>Página web ...</translation>
    </message>
    <message>
        <source>Write a report of the survey as a page for any browser, with figures to work with</source>
        <translation>Escribe un informe del levantamiento como página para cualquier navegador, con figuras interactivas</translation>
    </message>
    <message>
        <source>Save web page</source>
        <translation>Guardar página web</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Página web (*.html)</translation>
    </message>
    <message>
        <source>Mends of the selected traces</source>
        <translation>Correcciones de las trazas seleccionadas</translation>
    </message>
    <message>
        <source>Marked isolines ...</source>
        <translation>Isolíneas destacadas ...</translation>
    </message>
    <message>
        <source>Name velocities, such as 1500 m/s for the water table, whose lines stand out from the section</source>
        <translation>Da nombre a velocidades, como 1500 m/s para el nivel freático, cuyas líneas destacan en la sección</translation>
    </message>
    <message>
        <source>Annotations ...</source>
        <translation>Anotaciones ...</translation>
    </message>
    <message>
        <source>Texts, lines and areas of ground drawn on the section</source>
        <translation>Textos, líneas y áreas de terreno dibujados en la sección</translation>
    </message>
    <message>
        <source>Depth profile ...</source>
        <translation>Perfil de profundidad ...</translation>
    </message>
    <message>
        <source>Velocity, its gradient and how sure it is against depth, below the mouse</source>
        <translation>Velocidad, su gradiente y su certeza en función de la profundidad, bajo el ratón</translation>
    </message>
    <message>
        <source>Fence of several lines ...</source>
        <translation>Panel de varias líneas ...</translation>
    </message>
    <message>
        <source>Sections of this and other projects at their places on the map, in one view</source>
        <translation>Secciones de este y otros proyectos en su lugar del mapa, en una sola vista</translation>
    </message>
    <message>
        <source>Save style ...</source>
        <translation>Guardar estilo ...</translation>
    </message>
    <message>
        <source>Save palette, range, contours, exaggeration, switches and marked isolines for other surveys</source>
        <translation>Guarda paleta, rango, isolíneas, exageración, opciones de vista e isolíneas destacadas para otros levantamientos</translation>
    </message>
    <message>
        <source>Apply style ...</source>
        <translation>Aplicar estilo ...</translation>
    </message>
    <message>
        <source>Let this section look as the one whose style was saved</source>
        <translation>Da a esta sección el aspecto de aquella cuyo estilo se guardó</translation>
    </message>
    <message>
        <source>Show annotations</source>
        <translation>Mostrar anotaciones</translation>
    </message>
    <message>
        <source>Draw marked isolines, texts, lines and areas of ground over the section</source>
        <translation>Dibuja isolíneas destacadas, textos, líneas y áreas de terreno sobre la sección</translation>
    </message>
    <message>
        <source>Surveyed positions ...</source>
        <translation>Posiciones topográficas ...</translation>
    </message>
    <message>
        <source>Make distances along the line and its place on the map of a table of coordinates</source>
        <translation>Calcula de una tabla de coordenadas las distancias a lo largo de la línea y su lugar en el mapa</translation>
    </message>
    <message>
        <source>Find command...</source>
        <translation>Buscar comando...</translation>
    </message>
    <message>
        <source>Find any command by its words and give it</source>
        <translation>Busca cualquier comando por sus palabras y lo ejecuta</translation>
    </message>
    <message>
        <source>Shot files with picks ...</source>
        <translation>Archivos de disparos con picados ...</translation>
    </message>
    <message>
        <source>Copy the shot files into another folder, with the picks in their trace headers</source>
        <translation>Copia los archivos de disparos a otra carpeta, con los picados en las cabeceras de traza</translation>
    </message>
    <message>
        <source>Drawing as DXF ...</source>
        <translation>Dibujo como DXF ...</translation>
    </message>
    <message>
        <source>Section as curtain on the map ...</source>
        <translation>Sección como cortina en el mapa ...</translation>
    </message>
    <message>
        <source>Export the cells with their velocities where they lie on the map, as a VTK grid or a table</source>
        <translation>Exporta las celdas con sus velocidades donde están en el mapa, como malla VTK o como tabla</translation>
    </message>
    <message>
        <source>Line and isolines as GeoPackage ...</source>
        <translation>Línea e isolíneas como GeoPackage ...</translation>
    </message>
    <message>
        <source>Export line, geophones, shots, isolines, refractors and depths of isovalues as layers for maps</source>
        <translation>Exporta línea, geófonos, disparos, isolíneas, refractores y profundidades de isovalores como capas para mapas</translation>
    </message>
    <message>
        <source>Kill traces</source>
        <translation>Anular trazas</translation>
    </message>
    <message>
        <source>The selected traces count for nothing and have no pick, or do again (key K); what was recorded is kept</source>
        <translation>Las trazas seleccionadas no cuentan ni tienen picado, o vuelven a contar (tecla K); lo registrado se conserva</translation>
    </message>
    <message>
        <source>Reverse polarity</source>
        <translation>Invertir polaridad</translation>
    </message>
    <message>
        <source>The samples of the selected traces change their sign (key P)</source>
        <translation>Cambia el signo de las muestras de las trazas seleccionadas (tecla P)</translation>
    </message>
    <message>
        <source>Mute traces before...</source>
        <translation>Silenciar trazas antes de...</translation>
    </message>
    <message>
        <source>The samples of the selected traces before a time become zero (key U mutes before the mouse, Shift+U no more)</source>
        <translation>Pone a cero las muestras de las trazas seleccionadas anteriores a un tiempo (la tecla U silencia antes del ratón, Mayús+U deja de silenciar)</translation>
    </message>
    <message>
        <source>Amplify traces</source>
        <translation>Amplificar trazas</translation>
    </message>
    <message>
        <source>The samples of the selected traces become larger, 1.5 or 2 times in turn (key })</source>
        <translation>Aumenta las muestras de las trazas seleccionadas, 1,5 o 2 veces alternativamente (tecla })</translation>
    </message>
    <message>
        <source>Attenuate traces</source>
        <translation>Atenuar trazas</translation>
    </message>
    <message>
        <source>The samples of the selected traces become smaller (key {)</source>
        <translation>Reduce las muestras de las trazas seleccionadas (tecla {)</translation>
    </message>
    <message>
        <source>Notch...</source>
        <translation>Filtro notch...</translation>
    </message>
    <message>
        <source>Take the hum of power lines, 50 or 60 Hz and multiples, out of the filtered copy</source>
        <translation>Quita de la copia filtrada el zumbido de la red eléctrica, 50 o 60 Hz y múltiplos</translation>
    </message>
    <message>
        <source>Velocity filter...</source>
        <translation>Filtro de velocidad...</translation>
    </message>
    <message>
        <source>Keep or take out waves by their apparent velocity, in the filtered copy</source>
        <translation>Conserva o quita ondas según su velocidad aparente, en la copia filtrada</translation>
    </message>
    <message>
        <source>Annotations wait for the inversion to end.</source>
        <translation>Las anotaciones esperan a que termine la inversión.</translation>
    </message>
    <message>
        <source>It cannot work now.</source>
        <translation>No está disponible ahora.</translation>
    </message>
    <message>
        <source>Save depth profile</source>
        <translation>Guardar perfil de profundidad</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg *.pdf)</source>
        <translation>Imágenes (*.png *.svg *.pdf)</translation>
    </message>
    <message>
        <source>Picks have changed since the layered profile was built.</source>
        <translation>Los picados han cambiado desde que se construyó el perfil de capas.</translation>
    </message>
    <message>
        <source>The line has no place on the map.</source>
        <translation>La línea no tiene lugar en el mapa.</translation>
    </message>
    <message>
        <source>Set it with Project &gt; Set geographic coordinates ...</source>
        <translation>Indíquelo con Proyecto &gt; Definir coordenadas geográficas ...</translation>
    </message>
    <message>
        <source>Export DXF Drawing</source>
        <translation>Exportar dibujo DXF</translation>
    </message>
    <message>
        <source>DXF drawing (*.dxf);;All Files (*)</source>
        <translation>Dibujo DXF (*.dxf);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export GeoPackage</source>
        <translation>Exportar GeoPackage</translation>
    </message>
    <message>
        <source>GeoPackage (*.gpkg);;All Files (*)</source>
        <translation>GeoPackage (*.gpkg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export Curtain</source>
        <translation>Exportar cortina</translation>
    </message>
    <message>
        <source>VTK unstructured grid (*.vtu);;Table of cells (*.csv);;All Files (*)</source>
        <translation>Malla no estructurada VTK (*.vtu);;Tabla de celdas (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>This survey</source>
        <translation>Este levantamiento</translation>
    </message>
    <message>
        <source>Add projects to the fence</source>
        <translation>Añadir proyectos al panel</translation>
    </message>
    <message>
        <source>Talvesk projects (*.tvsk);;All Files (*)</source>
        <translation>Proyectos de Talvesk (*.tvsk);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save picture of the fence</source>
        <translation>Guardar imagen del panel</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Imágenes (*.png)</translation>
    </message>
    <message>
        <source>Applying notches ...</source>
        <translation>Aplicando el filtro notch ...</translation>
    </message>
    <message>
        <source>Applying the velocity filter ...</source>
        <translation>Aplicando el filtro de velocidad ...</translation>
    </message>
    <message>
        <source>Folder for the shot files with picks</source>
        <translation>Carpeta para los archivos de disparos con picados</translation>
    </message>
    <message>
        <source>In SEG-2 files a pick is FIRST_BREAK in seconds; in SEG-Y and SU files it is whole microseconds in bytes 233 to 236 of the trace header. Both count from the shot.</source>
        <translation>En archivos SEG-2 un picado es FIRST_BREAK en segundos; en archivos SEG-Y y SU son microsegundos enteros en los bytes 233 a 236 de la cabecera de traza. Ambos cuentan desde el disparo.</translation>
    </message>
    <message>
        <source>Shot files with picks</source>
        <translation>Archivos de disparos con picados</translation>
    </message>
    <message>
        <source>Save style</source>
        <translation>Guardar estilo</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle)</source>
        <translation>Estilos de Talvesk (*.tvstyle)</translation>
    </message>
    <message>
        <source>Apply style</source>
        <translation>Aplicar estilo</translation>
    </message>
    <message>
        <source>Talvesk styles (*.tvstyle);;All files (*)</source>
        <translation>Estilos de Talvesk (*.tvstyle);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The section looks as before.</source>
        <translation>La sección se ve como antes.</translation>
    </message>
    <message>
        <source>Style of %1</source>
        <translation>Estilo de %1</translation>
    </message>
    <message>
        <source>Geophones and shots stand where they were surveyed.</source>
        <translation>Los geófonos y disparos están donde indican las posiciones topográficas.</translation>
    </message>
    <message>
        <source>Open surveyed positions</source>
        <translation>Abrir posiciones topográficas</translation>
    </message>
    <message>
        <source>Tables of coordinates (*.csv *.tsv *.txt *.dat *.xyz *.asc);;All files (*)</source>
        <translation>Tablas de coordenadas (*.csv *.tsv *.txt *.dat *.xyz *.asc);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The positions cannot be read.</source>
        <translation>No se pueden leer las posiciones.</translation>
    </message>
    <message>
        <source>Mute traces</source>
        <translation>Silenciar trazas</translation>
    </message>
    <message>
        <source>The selected traces are zero before (ms); 0: from nowhere</source>
        <translation>Las trazas seleccionadas son cero antes de (ms); 0: desde ningún tiempo</translation>
    </message>
    <message>
        <source>Offset and reduced time</source>
        <translation>Distancia al disparo y tiempo reducido</translation>
    </message>
    <message>
        <source>Print ...</source>
        <translation>Imprimir ...</translation>
    </message>
    <message>
        <source>Preview a figure on paper at a chosen scale, print it or save it as PDF</source>
        <translation>Muestra una figura en papel a una escala elegida, la imprime o la guarda como PDF</translation>
    </message>
    <message>
        <source>AutoPick all shots along the line</source>
        <translation>AutoPick de todos los disparos a lo largo de la línea</translation>
    </message>
    <message>
        <source>Pick the traces of all shots together, whichever are in view; picks that you made stay</source>
        <translation>Pica juntas las trazas de todos los disparos, sea cual sea el que está a la vista; los picados hechos por usted se quedan</translation>
    </message>
    <message>
        <source>Campaign page ...</source>
        <translation>Página de campaña ...</translation>
    </message>
    <message>
        <source>Write a web page of each of several projects, and one on all of them</source>
        <translation>Escribe una página web de cada uno de varios proyectos y una de todos</translation>
    </message>
    <message>
        <source>By offset</source>
        <translation>Por distancia al disparo</translation>
    </message>
    <message>
        <source>Order and space the traces by their offset, geophone minus shot: those before the shot at its left (key X)</source>
        <translation>Ordena y separa las trazas según su distancia, geófono menos disparo: las anteriores al disparo, a su izquierda (tecla X)</translation>
    </message>
    <message>
        <source>By absolute offset</source>
        <translation>Por distancia absoluta al disparo</translation>
    </message>
    <message>
        <source>Order and space the traces by their distance from the shot, either side over the other (key Shift+X)</source>
        <translation>Ordena y separa las trazas según su distancia al disparo, un lado sobre el otro (teclas Mayús+X)</translation>
    </message>
    <message>
        <source>Reduced time</source>
        <translation>Tiempo reducido</translation>
    </message>
    <message>
        <source>Draw every trace earlier by its offset over a velocity, that of the ruler or the one asked for last; picks stay true times (key V)</source>
        <translation>Dibuja cada traza antes, según su distancia dividida por una velocidad, la de la regla o la última que se indicó; los picados siguen siendo tiempos reales (tecla V)</translation>
    </message>
    <message>
        <source>Velocity of reduced time...</source>
        <translation>Velocidad del tiempo reducido...</translation>
    </message>
    <message>
        <source>Choose the velocity that waves have to be drawn flat (key Shift+V)</source>
        <translation>Elige la velocidad de las ondas que se dibujan planas (teclas Mayús+V)</translation>
    </message>
    <message>
        <source>Gain with time</source>
        <translation>Ganancia con el tiempo</translation>
    </message>
    <message>
        <source>Draw late waves larger, by a power of their time; samples, picks and files stay as they are (key T)</source>
        <translation>Dibuja mayores las ondas tardías, según una potencia de su tiempo; muestras, picados y archivos quedan como están (tecla T)</translation>
    </message>
    <message>
        <source>Exponent of gain with time...</source>
        <translation>Exponente de la ganancia con el tiempo...</translation>
    </message>
    <message>
        <source>Choose the power of time that wiggles are drawn with (key Shift+T)</source>
        <translation>Elige la potencia del tiempo con que se dibujan las oscilaciones (teclas Mayús+T)</translation>
    </message>
    <message>
        <source>Trace headers...</source>
        <translation>Cabeceras de las trazas...</translation>
    </message>
    <message>
        <source>All that is known of every trace as a table, with what the headers of the shot files say</source>
        <translation>Todo lo que se sabe de cada traza, como tabla, con lo que dicen las cabeceras de los archivos de disparos</translation>
    </message>
    <message>
        <source>Overlay two shots...</source>
        <translation>Superponer dos disparos...</translation>
    </message>
    <message>
        <source>Lay the traces of two shots over each other, and see their difference and their sum: blows of opposite sense, or a shot that was repeated</source>
        <translation>Superpone las trazas de dos disparos y muestra su diferencia y su suma: golpes de sentido opuesto o un disparo repetido</translation>
    </message>
    <message>
        <source>Sheet of shots ...</source>
        <translation>Hoja de disparos ...</translation>
    </message>
    <message>
        <source>Several shots side by side on one sheet, with one axis of time, as PDF, SVG or PNG</source>
        <translation>Varios disparos uno al lado de otro en una hoja, con un mismo eje de tiempos, como PDF, SVG o PNG</translation>
    </message>
    <message>
        <source>The shot has not been added to the survey.</source>
        <translation>El disparo no se ha añadido al levantamiento.</translation>
    </message>
    <message>
        <source>Shot %1 is added; Undo takes it away.</source>
        <translation>Se ha añadido el disparo %1; Deshacer lo quita.</translation>
    </message>
    <message>
        <source>Save Shot File</source>
        <translation>Guardar archivo de disparo</translation>
    </message>
    <message>
        <source>SEG-2 (*.sg2);;SEG-Y (*.sgy)</source>
        <translation>SEG-2 (*.sg2);;SEG-Y (*.sgy)</translation>
    </message>
    <message>
        <source>Save Picture of Two Shots</source>
        <translation>Guardar imagen de dos disparos</translation>
    </message>
    <message>
        <source>Add projects to the campaign page</source>
        <translation>Añadir proyectos a la página de campaña</translation>
    </message>
    <message>
        <source>Save campaign page</source>
        <translation>Guardar página de campaña</translation>
    </message>
    <message>
        <source>Campaign page</source>
        <translation>Página de campaña</translation>
    </message>
    <message>
        <source>%1: project %2 of %3</source>
        <comment>file, number, count</comment>
        <translation>%1: proyecto %2 de %3</translation>
    </message>
    <message>
        <source>Saved in %1, without the changes of this survey that are not saved</source>
        <translation>Guardado en %1, sin los cambios de este levantamiento que no se han guardado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file, why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Some values of the projects cannot be. They were put right or left out.</source>
        <translation>Algunos valores de los proyectos son imposibles. Se han corregido o descartado.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. The campaign page names them.</source>
        <translation>Proyectos con fallos: %1. La página de campaña los nombra.</translation>
    </message>
    <message>
        <source>Save Sheets of Shots</source>
        <translation>Guardar hojas de disparos</translation>
    </message>
    <message>
        <source>PDF, all sheets in one file (*.pdf);;SVG picture (*.svg);;PNG picture (*.png)</source>
        <translation>PDF, todas las hojas en un archivo (*.pdf);;Imagen SVG (*.svg);;Imagen PNG (*.png)</translation>
    </message>
    <message numerus="yes">
        <source>The sheets have not all been saved; %n file(s) are complete.</source>
        <translation>
            <numerusform>No se han guardado todas las hojas; %n archivo está completo.</numerusform>
            <numerusform>No se han guardado todas las hojas; %n archivos están completos.</numerusform>
        </translation>
    </message>
    <message>
        <source>there are no picks yet</source>
        <translation>aún no hay picados</translation>
    </message>
    <message>
        <source>Layered profile</source>
        <translation>Perfil de capas</translation>
    </message>
    <message>
        <source>there is no layered profile yet</source>
        <translation>aún no hay perfil de capas</translation>
    </message>
    <message>
        <source>Traces of shot %1</source>
        <translation>Trazas del disparo %1</translation>
    </message>
    <message>
        <source>no shot with traces is in view</source>
        <translation>no hay a la vista ningún disparo con trazas</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Desajuste de cada iteración</translation>
    </message>
    <message>
        <source>there is no inversion yet</source>
        <translation>aún no hay inversión</translation>
    </message>
    <message>
        <source>Residuals by shot and geophone</source>
        <translation>Residuos por disparo y geófono</translation>
    </message>
    <message>
        <source>Residuals over the offset</source>
        <translation>Residuos según la distancia al disparo</translation>
    </message>
    <message>
        <source>Residuals of shots and of geophones</source>
        <translation>Residuos de disparos y de geófonos</translation>
    </message>
    <message>
        <source>Residuals along the rays</source>
        <translation>Residuos a lo largo de los rayos</translation>
    </message>
    <message>
        <source>Depth profile</source>
        <translation>Perfil de profundidad</translation>
    </message>
    <message>
        <source>there is no section yet</source>
        <translation>aún no hay sección</translation>
    </message>
    <message>
        <source>P and S</source>
        <translation>P y S</translation>
    </message>
    <message>
        <source>its own dialog prints it</source>
        <translation>se imprime desde su propio cuadro de diálogo</translation>
    </message>
    <message>
        <source>Nothing has been printed.</source>
        <translation>No se ha imprimido nada.</translation>
    </message>
    <message>
        <source>Sent to %1.</source>
        <translation>Enviado a %1.</translation>
    </message>
    <message>
        <source>Save sheets as PDF</source>
        <translation>Guardar hojas como PDF</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Shots whose files name no fields: %1. %2</source>
        <translation>Disparos cuyos archivos no nombran campos: %1. %2</translation>
    </message>
    <message>
        <source>Save Trace Headers</source>
        <translation>Guardar cabeceras de las trazas</translation>
    </message>
    <message>
        <source>Velocity V of t - |x|/V (%1):</source>
        <translation>Velocidad V de t - |x|/V (%1):</translation>
    </message>
    <message>
        <source>Exponent n of t^n, 0 for none:</source>
        <translation>Exponente n de t^n, 0 para ninguna:</translation>
    </message>
    <message>
        <source>Reduced %1 ms</source>
        <translation>Reducido %1 ms</translation>
    </message>
    <message>
        <source>Section as it is shown</source>
        <translation>Sección como se muestra</translation>
    </message>
    <message>
        <source>Export surface, isolines, refractors, geophones, shots and annotations as a drawing for CAD</source>
        <translation>Exporta superficie, isolíneas, refractores, geófonos, disparos y anotaciones como dibujo para CAD</translation>
    </message>
    <message>
        <source>Stopped; the campaign page has not been saved, pages of %1 of its %2 projects have.</source>
        <translation>Detenido; no se ha guardado la página de campaña, pero sí las de %1 de sus %2 proyectos.</translation>
    </message>
    <message>
        <source>The printer failed after %1 of %2 sheets.</source>
        <translation>La impresora ha fallado tras %1 de %2 hojas.</translation>
    </message>
    <message>
        <source>Projects that failed: %1. There is no campaign page that names them.</source>
        <translation>Proyectos con fallos: %1. No hay página de campaña que los nombre.</translation>
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
        <translation>Tiempo (ms)</translation>
    </message>
    <message>
        <source>Offset (%1)</source>
        <translation>Distancia al disparo (%1)</translation>
    </message>
    <message>
        <source>|x| (%1)</source>
        <comment>absolute offset</comment>
        <translation>|x| (%1)</translation>
    </message>
    <message>
        <source>Reduced time (ms), t - |x|/%1 %2</source>
        <translation>Tiempo reducido (ms), t - |x|/%1 %2</translation>
    </message>
    <message>
        <source>%1, gain t^%2</source>
        <comment>time axis, exponent</comment>
        <translation>%1, ganancia t^%2</translation>
    </message>
</context>
<context>
    <name>talvesk::TraceHeadersDialog</name>
    <message>
        <source>Trace headers</source>
        <translation>Cabeceras de las trazas</translation>
    </message>
    <message>
        <source>Headers of all traces</source>
        <translation>Cabeceras de todas las trazas</translation>
    </message>
    <message>
        <source>A click on a heading sorts by it; the current row is shown among the traces</source>
        <translation>Un clic en un encabezado ordena según él; la fila actual se muestra entre las trazas</translation>
    </message>
    <message>
        <source>Reads the shot files again and adds a column for every field that their headers name: instrument, time of recording, gain, stack, notes</source>
        <translation>Lee de nuevo los archivos de disparos y añade una columna por cada campo que nombran sus cabeceras: instrumento, hora del registro, ganancia, apilado, notas</translation>
    </message>
    <message>
        <source>All &amp;fields of the shot files</source>
        <translation>&amp;Todos los campos de los archivos de disparos</translation>
    </message>
    <message>
        <source>The selected rows, or all of them, with a heading, as spreadsheets paste them (Ctrl+C)</source>
        <translation>Las filas seleccionadas, o todas, con encabezado, como las pegan las hojas de cálculo (Ctrl+C)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>All rows in the order of shots and traces, lengths in metres, with decimal points</source>
        <translation>Todas las filas en el orden de disparos y trazas, longitudes en metros, con puntos decimales</translation>
    </message>
    <message>
        <source>&amp;Save table...</source>
        <translation>&amp;Guardar tabla...</translation>
    </message>
    <message>
        <source>Traces: %1</source>
        <translation>Trazas: %1</translation>
    </message>
    <message>
        <source>Rows copied: %1</source>
        <translation>Filas copiadas: %1</translation>
    </message>
    <message>
        <source>Not in the table: %1</source>
        <translation>No están en la tabla: %1</translation>
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
        <translation>Otros disparos</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calculados</translation>
    </message>
    <message>
        <source>Air %1</source>
        <translation>Aire %1</translation>
    </message>
    <message>
        <source>No other shot of the string is picked</source>
        <translation>Ningún otro disparo del tendido está picado</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <comment>number, place</comment>
        <translation>Disparo %1 en %2</translation>
    </message>
    <message>
        <source>No computed times</source>
        <translation>Sin tiempos calculados</translation>
    </message>
    <message>
        <source>Reciprocal times</source>
        <translation>Tiempos recíprocos</translation>
    </message>
    <message>
        <source>No reciprocal times</source>
        <translation>Sin tiempos recíprocos</translation>
    </message>
</context>
<context>
    <name>talvesk::TravelTimePlot</name>
    <message>
        <source>Travel-time curves</source>
        <translation>Dromocronas</translation>
    </message>
    <message>
        <source>No travel times yet.

Pick first breaks in the traces, by hand or with AutoPick, or import travel times.</source>
        <translation>Aún no hay tiempos de recorrido.

Pique primeras llegadas en las trazas, a mano o con AutoPick, o importe tiempos de recorrido.</translation>
    </message>
    <message>
        <source>Distance [%1]</source>
        <translation>Distancia [%1]</translation>
    </message>
    <message>
        <source>Time [ms]</source>
        <translation>Tiempo [ms]</translation>
    </message>
    <message>
        <source>&amp;Measured</source>
        <translation>&amp;Medidos</translation>
    </message>
    <message>
        <source>&amp;Computed</source>
        <translation>&amp;Calculados</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Ver &amp;todo</translation>
    </message>
    <message>
        <source>Show all curves</source>
        <translation>Muestra todas las dromocronas</translation>
    </message>
    <message>
        <source>Export &amp;picture...</source>
        <translation>&amp;Exportar imagen...</translation>
    </message>
    <message>
        <source>Save the curves as PNG, SVG or PDF</source>
        <translation>Guarda las dromocronas como PNG, SVG o PDF</translation>
    </message>
    <message>
        <source>Shot %1 at %2</source>
        <translation>Disparo %1 en %2</translation>
    </message>
    <message>
        <source>Shot %1 has no travel times yet</source>
        <translation>El disparo %1 aún no tiene tiempos de recorrido</translation>
    </message>
    <message>
        <source>Click a curve to choose its shot</source>
        <translation>Haga clic en una dromocrona para elegir su disparo</translation>
    </message>
    <message>
        <source>Shot %1, trace %2: %3 ms</source>
        <translation>Disparo %1, traza %2: %3 ms</translation>
    </message>
    <message>
        <source>Computed: %1 ms</source>
        <translation>Calculado: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Remove pick</source>
        <translation>&amp;Quitar picado</translation>
    </message>
    <message>
        <source>Zoom &amp;back</source>
        <translation>Vista &amp;anterior</translation>
    </message>
    <message>
        <source>Zoom for&amp;ward</source>
        <translation>Vista &amp;siguiente</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Error: %1 ms</source>
        <translation>Error: %1 ms</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>Ca&amp;pas</translation>
    </message>
    <message>
        <source>Times computed through the layers of the refraction interpretation</source>
        <translation>Tiempos calculados a través de las capas de la interpretación por refracción</translation>
    </message>
    <message>
        <source>There are no layers of these picks: build the profiles of the refraction interpretation (anew).</source>
        <translation>No hay capas de estos picados: construya (de nuevo) los perfiles de la interpretación por refracción.</translation>
    </message>
    <message>
        <source>Layers: %1 ms</source>
        <translation>Capas: %1 ms</translation>
    </message>
</context>
<context>
    <name>talvesk::VelocityFilterDialog</name>
    <message>
        <source>Velocity filter</source>
        <translation>Filtro de velocidad</translation>
    </message>
    <message>
        <source>Keeps or takes out waves by their apparent velocity along the line, in the filtered copy. Drag the sides of the wedge, or type velocities.</source>
        <translation>Conserva o quita ondas según su velocidad aparente a lo largo de la línea, en la copia filtrada. Arrastre los lados de la cuña o escriba velocidades.</translation>
    </message>
    <message>
        <source>&amp;Slowest (m/s):</source>
        <translation>Míni&amp;ma (m/s):</translation>
    </message>
    <message>
        <source>Least apparent velocity of the wedge; the full line in the picture</source>
        <translation>Velocidad aparente mínima de la cuña; la línea continua de la imagen</translation>
    </message>
    <message>
        <source>&amp;Fastest (m/s):</source>
        <translation>Má&amp;xima (m/s):</translation>
    </message>
    <message>
        <source>Greatest apparent velocity of the wedge, 0 for no limit; the dashed line in the picture</source>
        <translation>Velocidad aparente máxima de la cuña, 0 para no limitarla; la línea discontinua de la imagen</translation>
    </message>
    <message>
        <source>&amp;Waves:</source>
        <translation>&amp;Ondas:</translation>
    </message>
    <message>
        <source>Forth is towards greater distances along the line</source>
        <translation>Hacia delante es hacia distancias mayores a lo largo de la línea</translation>
    </message>
    <message>
        <source>Both ways</source>
        <translation>En ambos sentidos</translation>
    </message>
    <message>
        <source>Forth along the line</source>
        <translation>Hacia delante en la línea</translation>
    </message>
    <message>
        <source>Back along the line</source>
        <translation>Hacia atrás en la línea</translation>
    </message>
    <message>
        <source>Wedge:</source>
        <translation>Cuña:</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>Pa&amp;sa</translation>
    </message>
    <message>
        <source>Is re&amp;jected</source>
        <translation>Se rec&amp;haza</translation>
    </message>
    <message>
        <source>&amp;Taper (%):</source>
        <translation>&amp;Transición (%):</translation>
    </message>
    <message>
        <source>How far beside the wedge the filter sets in, in percent of its slowness there</source>
        <translation>A qué distancia de la cuña empieza a actuar el filtro, en porcentaje de la lentitud en ese lado</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Aplicar filtro a:</translation>
    </message>
    <message>
        <source>O&amp;riginal</source>
        <translation>Ori&amp;ginales</translation>
    </message>
    <message>
        <source>Fi&amp;ltered</source>
        <translation>&amp;Filtrados</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Mostrar:</translation>
    </message>
    <message>
        <source>&amp;Before</source>
        <translation>&amp;Antes</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>&amp;Después</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>El filtro se aplica a todos los disparos.</translation>
    </message>
    <message>
        <source>The filter goes to shot %1.</source>
        <translation>El filtro se aplica al disparo %1.</translation>
    </message>
    <message>
        <source>Shot %1 cannot be filtered: %2</source>
        <translation>No se puede filtrar el disparo %1: %2</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>No se ha aplicado ningún filtro.</translation>
    </message>
</context>
<context>
    <name>talvesk::WebPage</name>
    <message>
        <source>Contents</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>About the report</source>
        <translation>Acerca del informe</translation>
    </message>
    <message>
        <source>Skip to the content</source>
        <translation>Saltar al contenido</translation>
    </message>
    <message>
        <source>%1: velocity</source>
        <translation>%1: velocidad</translation>
    </message>
    <message>
        <source>Faster than %1 by</source>
        <translation>Más rápida que %1 en</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>What the section shows</source>
        <translation>Qué muestra la sección</translation>
    </message>
    <message>
        <source>Point at the section to read it, click for the profile below a point, drag to move it. Keys: arrows move a cross, Enter shows the profile below it, + and - zoom, 0 shows all.</source>
        <translation>Apunte a la sección para leer sus valores, haga clic para ver el perfil bajo un punto, arrastre para moverla. Teclas: las flechas mueven una cruz, Intro muestra el perfil bajo ella, + y - amplían y reducen, 0 muestra todo.</translation>
    </message>
    <message>
        <source>Colours show</source>
        <translation>Los colores muestran</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Colours from</source>
        <translation>Colores desde</translation>
    </message>
    <message>
        <source>Colours to</source>
        <translation>Colores hasta</translation>
    </message>
    <message>
        <source>Contour lines</source>
        <translation>Isolíneas</translation>
    </message>
    <message>
        <source>Vertical exaggeration</source>
        <translation>Exageración vertical</translation>
    </message>
    <message>
        <source>as it fits</source>
        <translation>ajustada a la vista</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rayos</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Coverage limit</source>
        <translation>Límite de cobertura</translation>
    </message>
    <message>
        <source>Geophones</source>
        <translation>Geófonos</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Disparos</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Distance %1</source>
        <translation>Distancia %1</translation>
    </message>
    <message>
        <source>elevation %1</source>
        <translation>cota %1</translation>
    </message>
    <message>
        <source>depth %1</source>
        <translation>profundidad %1</translation>
    </message>
    <message>
        <source>Vertical profile</source>
        <translation>Perfil vertical</translation>
    </message>
    <message>
        <source>Vertical profile at %1</source>
        <translation>Perfil vertical en %1</translation>
    </message>
    <message>
        <source>Depth from [%1]</source>
        <translation>Profundidad desde [%1]</translation>
    </message>
    <message>
        <source>Depth to [%1]</source>
        <translation>Profundidad hasta [%1]</translation>
    </message>
    <message>
        <source>Depth below ground [%1]</source>
        <translation>Profundidad bajo el terreno [%1]</translation>
    </message>
    <message>
        <source>Velocity [%1]</source>
        <translation>Velocidad [%1]</translation>
    </message>
    <message>
        <source>The section has %1 cells, too many to be explored in a page: it stands here as a picture.</source>
        <translation>La sección tiene %1 celdas, demasiadas para explorarla en una página: aquí figura como imagen.</translation>
    </message>
    <message>
        <source>Travel-time curves</source>
        <translation>Dromocronas</translation>
    </message>
    <message>
        <source>What the curves show</source>
        <translation>Qué muestran las dromocronas</translation>
    </message>
    <message>
        <source>Point at a pick to read it, click it for its recording and its ray in the section. Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Apunte a un picado para leer sus valores, haga clic en él para ver su registro y su rayo en la sección. Teclas: izquierda y derecha van de picado en picado, arriba y abajo de disparo en disparo, + y - amplían y reducen, 0 muestra todo.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medidos</translation>
    </message>
    <message>
        <source>Error bars</source>
        <translation>Barras de error</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>Calculados</translation>
    </message>
    <message>
        <source>Shot %1</source>
        <translation>Disparo %1</translation>
    </message>
    <message>
        <source>geophone %1 at %2</source>
        <translation>geófono %1 en %2</translation>
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
        <translation>calculado %1 ms</translation>
    </message>
    <message>
        <source>misfit %1 ms</source>
        <translation>desajuste %1 ms</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>Geophone</source>
        <translation>Geófono</translation>
    </message>
    <message>
        <source>Measured [ms]</source>
        <translation>Medido [ms]</translation>
    </message>
    <message>
        <source>Error [ms]</source>
        <translation>Error [ms]</translation>
    </message>
    <message>
        <source>Computed [ms]</source>
        <translation>Calculado [ms]</translation>
    </message>
    <message>
        <source>Misfit [ms]</source>
        <translation>Desajuste [ms]</translation>
    </message>
    <message>
        <source>Recording of the shot</source>
        <translation>Registro del disparo</translation>
    </message>
    <message>
        <source>There is no recording of this shot.</source>
        <translation>No hay registro de este disparo.</translation>
    </message>
    <message>
        <source>The recording of this shot is left out: those of the shots before it are as much as a page holds.</source>
        <translation>El registro de este disparo se ha omitido: los de los disparos anteriores ya ocupan todo lo que cabe en una página.</translation>
    </message>
    <message>
        <source>Misfit of every shot</source>
        <translation>Desajuste de cada disparo</translation>
    </message>
    <message>
        <source>Misfit of every geophone</source>
        <translation>Desajuste de cada geófono</translation>
    </message>
    <message>
        <source>Misfit of every iteration</source>
        <translation>Desajuste de cada iteración</translation>
    </message>
    <message>
        <source>Computed minus measured [ms]</source>
        <translation>Calculado menos medido [ms]</translation>
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
        <translation>Picados</translation>
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
        <translation>picados: %1</translation>
    </message>
    <message>
        <source>Iteration</source>
        <translation>Iteración</translation>
    </message>
    <message>
        <source>Iteration %1</source>
        <translation>Iteración %1</translation>
    </message>
    <message>
        <source>Section, RMS [ms]</source>
        <translation>Sección, RMS [ms]</translation>
    </message>
    <message>
        <source>Last solver pass, RMS [ms]</source>
        <translation>Última pasada del solucionador, RMS [ms]</translation>
    </message>
    <message>
        <source>Times there and back</source>
        <translation>Tiempos en ambos sentidos</translation>
    </message>
    <message>
        <source>There [ms]</source>
        <translation>Ida [ms]</translation>
    </message>
    <message>
        <source>Back [ms]</source>
        <translation>Vuelta [ms]</translation>
    </message>
    <message>
        <source>Difference [ms]</source>
        <translation>Diferencia [ms]</translation>
    </message>
    <message>
        <source>Shots %1 and %2</source>
        <translation>Disparos %1 y %2</translation>
    </message>
    <message>
        <source>there %1 ms</source>
        <translation>ida %1 ms</translation>
    </message>
    <message>
        <source>back %1 ms</source>
        <translation>vuelta %1 ms</translation>
    </message>
    <message>
        <source>difference %1 ms</source>
        <translation>diferencia %1 ms</translation>
    </message>
    <message>
        <source>The numbers of this figure</source>
        <translation>Valores de esta figura</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Modo oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Modo claro</translation>
    </message>
    <message>
        <source>Picks as CSV</source>
        <translation>Picados como CSV</translation>
    </message>
    <message>
        <source>Section as CSV</source>
        <translation>Sección como CSV</translation>
    </message>
    <message>
        <source>Map of the line</source>
        <translation>Mapa de la línea</translation>
    </message>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Primer geófono</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Último geófono</translation>
    </message>
    <message>
        <source>Open the place in a map service</source>
        <translation>Abrir el lugar en un servicio de mapas</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Anotaciones</translation>
    </message>
    <message>
        <source>Keys: left and right go from pick to pick, up and down from shot to shot, + and - zoom, 0 shows all.</source>
        <translation>Teclas: izquierda y derecha van de picado en picado, arriba y abajo de disparo en disparo, + y - amplían y reducen, 0 muestra todo.</translation>
    </message>
    <message>
        <source>Point at a mark to read it. Keys: left and right go from mark to mark, + and - zoom, 0 shows all.</source>
        <translation>Apunte a una marca para leerla. Teclas: izquierda y derecha van de marca en marca, + y - amplían y reducen, 0 muestra todo.</translation>
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
        <translation>Rugosidad de tV</translation>
    </message>
    <message>
        <source>RMS (ms)</source>
        <translation>RMS (ms)</translation>
    </message>
    <message>
        <source>Unevenness of velocity</source>
        <translation>Irregularidad de la velocidad</translation>
    </message>
    <message>
        <source>RMS (%)</source>
        <translation>RMS (%)</translation>
    </message>
    <message>
        <source>Roughness of tV against XY</source>
        <translation>Rugosidad de tV en función de XY</translation>
    </message>
    <message>
        <source>Unevenness of velocity against XY</source>
        <translation>Irregularidad de la velocidad en función de XY</translation>
    </message>
    <message>
        <source>Click to choose it</source>
        <translation>Clic para elegirla</translation>
    </message>
    <message>
        <source>No XY can be judged: forward and reverse curve have too few geophones in common.</source>
        <translation>No se puede valorar ninguna XY: las dromocronas directa e inversa tienen muy pocos geófonos en común.</translation>
    </message>
    <message>
        <source>Nothing is built yet.</source>
        <translation>Aún no se ha construido nada.</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>elegida</translation>
    </message>
    <message>
        <source>proposed</source>
        <translation>propuesta</translation>
    </message>
</context>
<context>
    <name>talvesk::contourlines_dialog</name>
    <message>
        <source>Contour Lines - Settings</source>
        <translation>Isolíneas - Configuración</translation>
    </message>
    <message>
        <source>Contour values</source>
        <translation>Valores de las isolíneas</translation>
    </message>
    <message>
        <source>Equally spaced contour values</source>
        <translation>Valores equidistantes</translation>
    </message>
    <message>
        <source>Values that divide the range into equal parts</source>
        <translation>Valores que dividen el rango en partes iguales</translation>
    </message>
    <message>
        <source># Values</source>
        <translation>N.º de valores</translation>
    </message>
    <message>
        <source>How many values divide the range</source>
        <translation>Cuántos valores dividen el rango</translation>
    </message>
    <message>
        <source>Customized Contour Values</source>
        <translation>Valores personalizados</translation>
    </message>
    <message>
        <source>The values of the list</source>
        <translation>Los valores de la lista</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Add One More Value</source>
        <translation>Añadir un valor</translation>
    </message>
    <message>
        <source>Add an empty line to the list</source>
        <translation>Añade una línea vacía a la lista</translation>
    </message>
    <message>
        <source>Load Isovalues</source>
        <translation>Cargar isovalores</translation>
    </message>
    <message>
        <source>Replace the list by the values of a file</source>
        <translation>Sustituye la lista por los valores de un archivo</translation>
    </message>
    <message>
        <source>Save Isovalues</source>
        <translation>Guardar isovalores</translation>
    </message>
    <message>
        <source>Write the list to a file</source>
        <translation>Escribe la lista en un archivo</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Quitar todos</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Vacía la lista</translation>
    </message>
    <message>
        <source>Where contours are shown</source>
        <translation>Dónde se muestran las isolíneas</translation>
    </message>
    <message>
        <source>Show Contours (on top of  Tomographic Profile)</source>
        <translation>Mostrar isolíneas (sobre el perfil tomográfico)</translation>
    </message>
    <message>
        <source>Lines over the velocities</source>
        <translation>Líneas sobre las velocidades</translation>
    </message>
    <message>
        <source>Show Filled Contours</source>
        <translation>Mostrar isolíneas rellenas</translation>
    </message>
    <message>
        <source>Velocities in bands from one value to the next</source>
        <translation>Velocidades en bandas, de un valor al siguiente</translation>
    </message>
    <message>
        <source>Show Contours (on Vertical Gradient of Velocity)</source>
        <translation>Mostrar isolíneas (sobre el gradiente vertical de velocidad)</translation>
    </message>
    <message>
        <source>Lines over the vertical gradient; not together with filled contours</source>
        <translation>Líneas sobre el gradiente vertical; no junto con isolíneas rellenas</translation>
    </message>
    <message>
        <source>Show Contours (on Laplacian Gradient of Velocity)</source>
        <translation>Mostrar isolíneas (sobre el laplaciano de la velocidad)</translation>
    </message>
    <message>
        <source>Lines over the Laplacian; not together with filled contours</source>
        <translation>Líneas sobre el laplaciano; no junto con isolíneas rellenas</translation>
    </message>
    <message>
        <source>Lines and labels</source>
        <translation>Líneas y etiquetas</translation>
    </message>
    <message>
        <source>Show label every N contour lines</source>
        <translation>Etiqueta cada N isolíneas</translation>
    </message>
    <message>
        <source>1 labels every line, 2 every second one</source>
        <translation>1 etiqueta todas las líneas, 2 una de cada dos</translation>
    </message>
    <message>
        <source>No labels</source>
        <translation>Sin etiquetas</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>Tamaño de etiqueta</translation>
    </message>
    <message>
        <source>Size of the labels in points</source>
        <translation>Tamaño de las etiquetas en puntos</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Contours colour:</source>
        <translation>Color de las isolíneas:</translation>
    </message>
    <message>
        <source>Choose the colour of the lines</source>
        <translation>Elige el color de las líneas</translation>
    </message>
    <message>
        <source>Contours colour</source>
        <translation>Color de las isolíneas</translation>
    </message>
    <message>
        <source>Isolines (*.csv)</source>
        <translation>Isolíneas (*.csv)</translation>
    </message>
    <message>
        <source>The section shows values from %1 to %2 %3</source>
        <translation>La sección muestra valores de %1 a %2 %3</translation>
    </message>
    <message>
        <source>Value : </source>
        <translation>Valor: </translation>
    </message>
    <message>
        <source>Remove this value</source>
        <translation>Quita este valor</translation>
    </message>
    <message numerus="yes">
        <source>%n value(s) of the list are no numbers from %1 to %2.</source>
        <translation>
            <numerusform>%n valor de la lista no es un número de %1 a %2.</numerusform>
            <numerusform>%n valores de la lista no son números de %1 a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>¿Reemplazar el archivo?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Cannot save file </source>
        <translation>No se puede guardar el archivo </translation>
    </message>
    <message>
        <source>Cannot open file </source>
        <translation>No se puede abrir el archivo </translation>
    </message>
    <message>
        <source>Invalid value at line </source>
        <translation>Valor no válido en la línea </translation>
    </message>
    <message>
        <source>Or wrong CVS separator.</source>
        <translation>O separador CSV incorrecto.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Some loaded isovalues were out of range. Ignored.</source>
        <translation>Algunos isovalores cargados estaban fuera del rango. Se han ignorado.</translation>
    </message>
    <message>
        <source>Select background color</source>
        <translation>Seleccionar color de las isolíneas</translation>
    </message>
    <message>
        <source>Round Values</source>
        <translation>Valores redondos</translation>
    </message>
    <message>
        <source>Replace the list by round values over the range</source>
        <translation>Sustituir la lista por valores redondos a lo largo del rango</translation>
    </message>
    <message>
        <source>None of these is checked: no contours will be drawn.</source>
        <translation>Ninguna casilla está marcada: no se dibujará ninguna isolínea.</translation>
    </message>
    <message>
        <source>What the section shows has no contours. Those of the velocity lie between %1 and %2 %3</source>
        <translation>Lo que muestra la sección no tiene isolíneas. Las de la velocidad están entre %1 y %2 %3</translation>
    </message>
    <message>
        <source>; the file has them in %1</source>
        <translation>; el archivo los tiene en %1</translation>
    </message>
</context>
<context>
    <name>talvesk::doFilteringDialog</name>
    <message>
        <source>Trace Filtering</source>
        <translation>Filtrado de trazas</translation>
    </message>
    <message>
        <source>High Pass Filter</source>
        <translation>Filtro paso alto</translation>
    </message>
    <message>
        <source>Use &amp;high pass</source>
        <translation>Usar paso &amp;alto</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>Frecuencia (Hz)</translation>
    </message>
    <message>
        <source>High pass frequency in hertz</source>
        <translation>Frecuencia del paso alto en hercios</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>High pass order</source>
        <translation>Orden del paso alto</translation>
    </message>
    <message>
        <source>Low Pass Filter</source>
        <translation>Filtro paso bajo</translation>
    </message>
    <message>
        <source>Use &amp;low pass</source>
        <translation>Usar paso &amp;bajo</translation>
    </message>
    <message>
        <source>Low pass frequency in hertz</source>
        <translation>Frecuencia del paso bajo en hercios</translation>
    </message>
    <message>
        <source>Low pass order</source>
        <translation>Orden del paso bajo</translation>
    </message>
    <message>
        <source>Apply filter to:</source>
        <translation>Aplicar filtro a:</translation>
    </message>
    <message>
        <source>Filter the samples as they were recorded</source>
        <translation>Filtra las muestras tal como se registraron</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Originales</translation>
    </message>
    <message>
        <source>Filter what the filters and AGC before made of them</source>
        <translation>Filtra el resultado de los filtros y el AGC anteriores</translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation>Filtrados</translation>
    </message>
    <message>
        <source>&amp;Apply filter</source>
        <translation>A&amp;plicar filtro</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Mostrar:</translation>
    </message>
    <message>
        <source>What the filter is applied to</source>
        <translation>Aquello a lo que se aplica el filtro</translation>
    </message>
    <message>
        <source>Original data</source>
        <translation>Datos originales</translation>
    </message>
    <message>
        <source>What comes out of the filter</source>
        <translation>El resultado del filtro</translation>
    </message>
    <message>
        <source>Filtered data</source>
        <translation>Datos filtrados</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>Disparo %1 de %2</translation>
    </message>
    <message>
        <source>The filter goes to all shots.</source>
        <translation>El filtro se aplica a todos los disparos.</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Precaución</translation>
    </message>
    <message>
        <source>No filter applied. Filter order must be greater then 0.</source>
        <translation>No se ha aplicado ningún filtro. El orden del filtro debe ser mayor que 0.</translation>
    </message>
    <message>
        <source>No filter applied.</source>
        <translation>No se ha aplicado ningún filtro.</translation>
    </message>
    <message numerus="yes">
        <source>%n trace(s) stay as they were.</source>
        <translation>
            <numerusform>%n traza queda como estaba.</numerusform>
            <numerusform>%n trazas quedan como estaban.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>talvesk::draw1DVelocityProfile</name>
    <message>
        <source>Velocity against depth</source>
        <translation>Velocidad en función de la profundidad</translation>
    </message>
    <message>
        <source>Velocity (%1)</source>
        <translation>Velocidad (%1)</translation>
    </message>
    <message>
        <source>Depth below the ground (%1)</source>
        <translation>Profundidad bajo el terreno (%1)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Velocity that the grid gets</source>
        <translation>Velocidad que recibe la malla</translation>
    </message>
</context>
<context>
    <name>talvesk::editTravelTimesWidget</name>
    <message>
        <source>Seismic traces</source>
        <translation>Trazas sísmicas</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms</source>
        <translation>Traza %1, picada en %2 ms</translation>
    </message>
    <message>
        <source>Trace %1, not picked</source>
        <translation>Traza %1, sin picar</translation>
    </message>
    <message>
        <source>No samples, only picks</source>
        <translation>Sin muestras, solo picados</translation>
    </message>
    <message>
        <source>Open shot files with Ctrl+O or drop them here</source>
        <translation>Abra archivos de disparos con Ctrl+O o suéltelos aquí</translation>
    </message>
    <message>
        <source>No shot is shown</source>
        <translation>No se muestra ningún disparo</translation>
    </message>
    <message>
        <source>This shot has no traces</source>
        <translation>Este disparo no tiene trazas</translation>
    </message>
    <message>
        <source>Trace %1, picked at %2 ms, error %3 ms</source>
        <translation>Traza %1, picada en %2 ms, error %3 ms</translation>
    </message>
    <message>
        <source>Error %1 ms</source>
        <translation>Error %1 ms</translation>
    </message>
    <message>
        <source>Traces %1: C confirms, Del removes, K kills, P reverses, U mutes, Esc leaves</source>
        <translation>Trazas %1: C confirma, Supr quita, K anula, P invierte, U silencia, Esc deselecciona</translation>
    </message>
    <message>
        <source>Times are not reduced: offsets are not known</source>
        <translation>Los tiempos no se reducen: no se conocen las distancias al disparo</translation>
    </message>
    <message>
        <source>Not by offset: offsets are not known, or all the same</source>
        <translation>No por distancia al disparo: no se conocen las distancias, o son todas iguales</translation>
    </message>
</context>
<context>
    <name>talvesk::gridDialog</name>
    <message>
        <source>Grid Settings</source>
        <translation>Configuración de la malla</translation>
    </message>
    <message>
        <source>Array length (m)</source>
        <translation>Longitud del tendido (m)</translation>
    </message>
    <message>
        <source>Max. depth (m)</source>
        <translation>Profundidad máx. (m)</translation>
    </message>
    <message>
        <source>A deeper grid costs time and memory. Rays rarely reach deeper than a quarter to a third of the distance between the outermost shots.</source>
        <translation>Una malla más profunda cuesta tiempo y memoria. Los rayos rara vez llegan más abajo de entre un cuarto y un tercio de la distancia entre los disparos extremos.</translation>
    </message>
    <message>
        <source>Cell size (m)</source>
        <translation>Tamaño de celda (m)</translation>
    </message>
    <message>
        <source>Smaller cells draw finer detail and fit the times closer, but rays cover each cell less, and time and memory grow with the inverse square. A quarter of the geophone spacing is a good start.</source>
        <translation>Las celdas más pequeñas dibujan detalles más finos y se ajustan mejor a los tiempos, pero los rayos cubren menos cada celda, y el tiempo y la memoria crecen con el inverso del cuadrado. Un cuarto de la separación entre geófonos es un buen comienzo.</translation>
    </message>
    <message>
        <source>N° of nodes per cell side</source>
        <translation>N.º de nodos por lado de celda</translation>
    </message>
    <message>
        <source>More nodes let rays leave a cell at more angles, so computed times get more accurate; time and memory grow with the number. Beyond 15 little is gained.</source>
        <translation>Con más nodos los rayos pueden salir de una celda con más ángulos, y los tiempos calculados son más precisos; el tiempo y la memoria crecen con el número. Más allá de 15 se gana poco.</translation>
    </message>
    <message>
        <source>The grid will have</source>
        <translation>La malla tendrá</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Celdas</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
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
        <translation>La malla no tiene filas: elija una profundidad mayor o celdas más pequeñas.</translation>
    </message>
    <message numerus="yes">
        <source>%n position(s) at the end of the line lie beyond the last column and take no part in an inversion. Another cell size may reach them.</source>
        <translation>
            <numerusform>%n posición al final de la línea queda más allá de la última columna y no participa en la inversión. Otro tamaño de celda puede alcanzarla.</numerusform>
            <numerusform>%n posiciones al final de la línea quedan más allá de la última columna y no participan en la inversión. Otro tamaño de celda puede alcanzarlas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Invalid parameter</source>
        <translation>Parámetro no válido</translation>
    </message>
    <message>
        <source>The max depth parameter set to 0.0 is not valid for tomography</source>
        <translation>La profundidad máxima de 0,0 no es válida para la tomografía</translation>
    </message>
    <message>
        <source>Memory warning</source>
        <translation>Aviso de memoria</translation>
    </message>
    <message>
        <source>A large number of nodes may require a lot of memory</source>
        <translation>Un número elevado de nodos puede requerir mucha memoria</translation>
    </message>
    <message>
        <source>Such small cells make an inversion very slow, and it stops only between iterations. A quarter of the geophone spacing is %1.</source>
        <translation>Celdas tan pequeñas hacen muy lenta la inversión, que solo se detiene entre iteraciones. Un cuarto de la separación entre geófonos es %1.</translation>
    </message>
    <message>
        <source>A quarter of the smallest geophone spacing, %1 at least. Off: the cell size of the grid that there is, the smallest without one.</source>
        <translation>Un cuarto de la menor separación entre geófonos, %1 como mínimo. Sin marcar: el tamaño de celda de la malla existente, o el menor si no hay malla.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Proponer</translation>
    </message>
    <message>
        <source>Cell sizes that lose none:</source>
        <translation>Tamaños de celda sin pérdidas:</translation>
    </message>
    <message>
        <source>Lost to an inversion: %1.</source>
        <translation>Se pierden para la inversión: %1.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Los resultados de la última inversión se quitarán (Deshacer los recupera).</translation>
    </message>
</context>
<context>
    <name>talvesk::progressDialog</name>
    <message>
        <source>Steps</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>Saving project</source>
        <translation>Guardando proyecto</translation>
    </message>
    <message>
        <source>Loading project</source>
        <translation>Cargando proyecto</translation>
    </message>
    <message>
        <source>SAVED XML</source>
        <translation>XML GUARDADO</translation>
    </message>
    <message>
        <source>Saving grid...</source>
        <translation>Guardando malla...</translation>
    </message>
    <message>
        <source>SAVED GRID</source>
        <translation>MALLA GUARDADA</translation>
    </message>
    <message>
        <source>Saving traces...</source>
        <translation>Guardando trazas...</translation>
    </message>
    <message>
        <source>SAVED TRACES</source>
        <translation>TRAZAS GUARDADAS</translation>
    </message>
    <message>
        <source>Saving palettes...</source>
        <translation>Guardando paletas...</translation>
    </message>
    <message>
        <source>SAVED PALETTES</source>
        <translation>PALETAS GUARDADAS</translation>
    </message>
    <message>
        <source>Compressing...</source>
        <translation>Comprimiendo...</translation>
    </message>
    <message>
        <source>COMPRESSED</source>
        <translation>COMPRIMIDO</translation>
    </message>
    <message>
        <source>Removing temporary files...</source>
        <translation>Eliminando archivos temporales...</translation>
    </message>
    <message>
        <source>COMPLETED</source>
        <translation>COMPLETADO</translation>
    </message>
    <message>
        <source>Extracted</source>
        <translation>Extraído</translation>
    </message>
    <message>
        <source>Loading XML</source>
        <translation>Cargando XML</translation>
    </message>
    <message>
        <source>Loaded XML</source>
        <translation>XML cargado</translation>
    </message>
    <message>
        <source>Loading grid...</source>
        <translation>Cargando malla...</translation>
    </message>
    <message>
        <source>Loaded GRID</source>
        <translation>MALLA cargada</translation>
    </message>
    <message>
        <source>Loading traces...</source>
        <translation>Cargando trazas...</translation>
    </message>
    <message>
        <source>Loaded TRACES</source>
        <translation>TRAZAS cargadas</translation>
    </message>
    <message>
        <source>Loading palettes...</source>
        <translation>Cargando paletas...</translation>
    </message>
    <message>
        <source>Loaded PALETTES</source>
        <translation>PALETAS cargadas</translation>
    </message>
    <message>
        <source>Tracing rays...</source>
        <translation>Trazando rayos...</translation>
    </message>
</context>
<context>
    <name>talvesk::progressTomographyDialog</name>
    <message>
        <source>Tomography inversion</source>
        <translation>Inversión tomográfica</translation>
    </message>
    <message>
        <source>Ends the inversion after the external iteration under way and keeps what it has reached</source>
        <translation>Termina la inversión tras la iteración externa en curso y conserva lo que haya alcanzado</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Completed iteration %1</source>
        <translation>Iteración %1 completada</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>Transcurrido: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>aún no se conoce</translation>
    </message>
    <message>
        <source>Remaining: %1</source>
        <translation>Restante: %1</translation>
    </message>
    <message>
        <source>Stops when the iteration under way is completed.</source>
        <translation>Se detiene cuando termine la iteración en curso.</translation>
    </message>
    <message>
        <source>The models to start from are being traced.</source>
        <translation>Se están trazando los modelos de partida.</translation>
    </message>
    <message>
        <source>Ends by itself, after %1 iterations at the latest.</source>
        <translation>Termina por sí solo, como muy tarde tras %1 iteraciones.</translation>
    </message>
    <message>
        <source>Iteration %1: chi-square %2, RMS %3 ms (%4 %)</source>
        <translation>Iteración %1: chi cuadrado %2, RMS %3 ms (%4 %)</translation>
    </message>
    <message>
        <source>Stops, with the best section so far.</source>
        <translation>Se detiene, con la mejor sección hasta ahora.</translation>
    </message>
    <message>
        <source>Another fit, from: %1</source>
        <translation>Otro ajuste, a partir de: %1</translation>
    </message>
    <message>
        <source>Iterations and misfits</source>
        <translation>Iteraciones y desajustes</translation>
    </message>
</context>
<context>
    <name>talvesk::runTomography_Dialog</name>
    <message>
        <source>Run tomography inversion</source>
        <translation>Ejecutar inversión tomográfica</translation>
    </message>
    <message>
        <source>Number of external iterations (default =5)</source>
        <translation>Número de iteraciones externas (predeterminado =5)</translation>
    </message>
    <message>
        <source>Number of solver iterations (default =20)</source>
        <translation>Número de iteraciones del solucionador (predeterminado =20)</translation>
    </message>
    <message>
        <source>How far the velocities are corrected along the same rays before these are traced anew. More fit the times closer but may overfit noise; fewer keep the model smoother.</source>
        <translation>Hasta dónde se corrigen las velocidades a lo largo de los mismos rayos antes de volver a trazarlos. Con más iteraciones se ajustan mejor los tiempos, pero también puede ajustarse el ruido; con menos, el modelo queda más suave.</translation>
    </message>
    <message>
        <source>Smoothing parameter (default =5) </source>
        <translation>Parámetro de suavizado (predeterminado =5) </translation>
    </message>
    <message>
        <source>How many cells to each side are averaged after every external iteration. Larger gives a smoother section that hides small bodies; smaller shows detail and artefacts along rays.</source>
        <translation>Cuántas celdas a cada lado se promedian después de cada iteración externa. Un valor mayor da una sección más suave que oculta los cuerpos pequeños; uno menor muestra detalles y artefactos a lo largo de los rayos.</translation>
    </message>
    <message>
        <source>Minimum velocity [m/s]</source>
        <translation>Velocidad mínima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get slower than this. Set it to the slowest ground that you expect.</source>
        <translation>Ninguna celda llega a ser más lenta que esto. Indique el terreno más lento que espere.</translation>
    </message>
    <message>
        <source>Maximum velocity [m/s]</source>
        <translation>Velocidad máxima [m/s]</translation>
    </message>
    <message>
        <source>Cells never get faster than this. Set it to the fastest rock that you expect.</source>
        <translation>Ninguna celda llega a ser más rápida que esto. Indique la roca más rápida que espere.</translation>
    </message>
    <message>
        <source>Type of smoothing:</source>
        <translation>Tipo de suavizado:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>El uniforme promedia todas las celdas por igual; el lineal y el gaussiano dan más peso a las celdas cercanas y mantienen más nítidos los contrastes; el basado en rayos rellena primero las celdas que ningún rayo atravesó a partir de las que sí fueron atravesadas.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Suavizado con ponderación uniforme</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Suavizado con ponderación lineal</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Suavizado con ponderación gaussiana</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Suavizado basado en rayos</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Sin marcar, el suavizado alcanza en vertical 0,7 veces lo que en horizontal, lo que conviene a un terreno estratificado. Marcado, alcanza lo mismo, lo que conviene a cuerpos aislados y contactos empinados.</translation>
    </message>
    <message>
        <source>Symmetric smoothing</source>
        <translation>Suavizado simétrico</translation>
    </message>
    <message>
        <source>Uses one processor only. The result is the same to the last digit; it just takes longer.</source>
        <translation>Usa un solo procesador. El resultado es el mismo hasta la última cifra; solo tarda más.</translation>
    </message>
    <message>
        <source>Run in single thread mode</source>
        <translation>Ejecutar en un solo hilo</translation>
    </message>
    <message>
        <source>The minimum is above the maximum: every cell that changes will end at the maximum.</source>
        <translation>El mínimo supera el máximo: toda celda que cambie acabará en el máximo.</translation>
    </message>
    <message>
        <source>Starts from the default model.</source>
        <translation>Parte del modelo predeterminado.</translation>
    </message>
    <message>
        <source>Starts from the layered model.</source>
        <translation>Parte del modelo de capas.</translation>
    </message>
    <message>
        <source>Starts from the result of the last inversion.</source>
        <translation>Parte del resultado de la última inversión.</translation>
    </message>
    <message>
        <source>Starts from the smoothed result of the last inversion.</source>
        <translation>Parte del resultado suavizado de la última inversión.</translation>
    </message>
    <message>
        <source>Starts from the present velocities of the grid.</source>
        <translation>Parte de las velocidades actuales de la malla.</translation>
    </message>
    <message>
        <source>Each external iteration traces the rays anew through the model so far. More of them bend the rays closer to the truth and lower the misfit; the time grows with the number. When the misfit curve has levelled off, more change little. The 5 of the label is enough for a first look; the box itself starts at 10.</source>
        <translation>Cada iteración externa vuelve a trazar los rayos a través del modelo obtenido hasta entonces. Con más iteraciones los rayos se curvan de forma más fiel a la realidad y el desajuste disminuye; el tiempo crece con el número. Cuando la curva del desajuste se ha aplanado, más iteraciones cambian poco. El 5 de la etiqueta basta para una primera impresión; el campo empieza en 10.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Solver passes correct the velocities along traced rays and smooth them, as often as is said here. A fit to the picks&apos; errors chooses its own smoothing, ends by itself, and comes as close to the picks as their errors are and no closer.</source>
        <translation>Las pasadas del solucionador corrigen las velocidades a lo largo de los rayos trazados y las suavizan, tantas veces como se indica aquí. Un ajuste a los errores de los picados elige su propio suavizado, termina por sí solo y se acerca a los picados tanto como lo permiten sus errores, y no más.</translation>
    </message>
    <message>
        <source>Solver passes and smoothing</source>
        <translation>Pasadas del solucionador y suavizado</translation>
    </message>
    <message>
        <source>Fit to the picks&apos; errors</source>
        <translation>Ajuste a los errores de los picados</translation>
    </message>
    <message>
        <source>Lets the smoothing parameter shrink to a fifth over the external iterations, and keeps the iteration whose section fits the picks best along fresh rays, which need not be the last one.</source>
        <translation>Reduce el parámetro de suavizado a la quinta parte a lo largo de las iteraciones externas, y conserva la iteración cuya sección se ajusta mejor a los picados a lo largo de rayos nuevos, que no tiene por qué ser la última.</translation>
    </message>
    <message>
        <source>From coarse to fine, keeping the best iteration</source>
        <translation>De grueso a fino, conservando la mejor iteración</translation>
    </message>
    <message>
        <source>Sets the velocity limits and the smoothing parameter as the picks and the distance between geophones suggest them.</source>
        <translation>Fija los límites de velocidad y el parámetro de suavizado que sugieren los picados y la distancia entre geófonos.</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>Proponer</translation>
    </message>
    <message>
        <source>Rays are expected down to %1; the grid reaches %2.</source>
        <translation>Se esperan rayos hasta %1 de profundidad; la malla llega a %2.</translation>
    </message>
    <message>
        <source>The minimum velocity must be below the maximum.</source>
        <translation>La velocidad mínima debe ser menor que la máxima.</translation>
    </message>
</context>
<context>
    <name>talvesk::select_speed_Dialog</name>
    <message>
        <source>Define model velocity</source>
        <translation>Definir modelo de velocidad</translation>
    </message>
    <message>
        <source>Depths below the ground (m), velocities (m/s)</source>
        <translation>Profundidades bajo el terreno (m), velocidades (m/s)</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Splits the last layer at its middle</source>
        <translation>Divide la última capa por la mitad</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Removes the layers that are checked or selected</source>
        <translation>Quita las capas marcadas o seleccionadas</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>The layers make no velocity model.</source>
        <translation>Las capas no forman un modelo de velocidad.</translation>
    </message>
    <message>
        <source>Do you want to put them into the grid all the same?</source>
        <translation>¿Desea ponerlas de todos modos en la malla?</translation>
    </message>
    <message>
        <source>You have not changed the layers.</source>
        <translation>No ha modificado las capas.</translation>
    </message>
    <message>
        <source>The results of the last inversion will be removed (Undo brings them back).</source>
        <translation>Los resultados de la última inversión se quitarán (Deshacer los recupera).</translation>
    </message>
    <message>
        <source>In the &amp;grid:</source>
        <translation>En la &amp;malla:</translation>
    </message>
    <message>
        <source>How layers become velocities of cells. A spline rounds jumps off and swings beside great ones; sharp layers keep them; graded layers spread every jump evenly over a thickness.</source>
        <translation>Cómo pasan las capas a velocidades de las celdas. Un spline redondea los saltos y oscila junto a los grandes; los contactos netos los conservan; los graduales reparten cada salto por igual en un espesor.</translation>
    </message>
    <message>
        <source>Spline through the layers</source>
        <translation>Spline a través de las capas</translation>
    </message>
    <message>
        <source>Sharp layers</source>
        <translation>Capas con contactos netos</translation>
    </message>
    <message>
        <source>Graded layers</source>
        <translation>Capas con contactos graduales</translation>
    </message>
    <message>
        <source>Thickness of a graded jump</source>
        <translation>Espesor de un salto gradual</translation>
    </message>
    <message>
        <source>Thickness over which a jump between two layers is spread</source>
        <translation>Espesor en que se reparte el salto entre dos capas</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Puts the layers into the grid as they are, without a spline</source>
        <translation>Pone las capas en la malla tal como son, sin spline</translation>
    </message>
    <message>
        <source>Use &amp;sharp layers</source>
        <translation>&amp;Usar contactos netos</translation>
    </message>
    <message>
        <source>Do you want sharp layers instead? They need no spline.</source>
        <translation>¿Desea en su lugar capas con contactos netos? No necesitan spline.</translation>
    </message>
</context>
<context>
    <name>talvesk::setGeographyDialog</name>
    <message>
        <source>Set geographic coordinates</source>
        <translation>Definir coordenadas geográficas</translation>
    </message>
    <message>
        <source>Easting (m)</source>
        <translation>Este (m)</translation>
    </message>
    <message>
        <source>Northing (m)</source>
        <translation>Norte (m)</translation>
    </message>
    <message>
        <source>Latitude, longitude (WGS84)</source>
        <translation>Latitud, longitud (WGS84)</translation>
    </message>
    <message>
        <source>First geophone</source>
        <translation>Primer geófono</translation>
    </message>
    <message>
        <source>Easting of the first geophone in metres</source>
        <translation>Coordenada este del primer geófono en metros</translation>
    </message>
    <message>
        <source>Northing of the first geophone in metres</source>
        <translation>Coordenada norte del primer geófono en metros</translation>
    </message>
    <message>
        <source>Last geophone</source>
        <translation>Último geófono</translation>
    </message>
    <message>
        <source>Easting of the last geophone in metres</source>
        <translation>Coordenada este del último geófono en metros</translation>
    </message>
    <message>
        <source>Northing of the last geophone in metres</source>
        <translation>Coordenada norte del último geófono en metros</translation>
    </message>
    <message>
        <source>EPSG code</source>
        <translation>Código EPSG</translation>
    </message>
    <message>
        <source>EPSG code of the reference system</source>
        <translation>Código EPSG del sistema de referencia</translation>
    </message>
    <message>
        <source>First geophone (at %1)</source>
        <translation>Primer geófono (en %1)</translation>
    </message>
    <message>
        <source>Last geophone (at %1)</source>
        <translation>Último geófono (en %1)</translation>
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
        <translation>No existe ningún sistema de referencia con este código EPSG.</translation>
    </message>
    <message>
        <source>This system is not projected: it has no easting and northing.</source>
        <translation>Este sistema no es proyectado: no tiene coordenadas este y norte.</translation>
    </message>
    <message>
        <source>This system does not count in metres. Choose one that does.</source>
        <translation>Este sistema no está en metros. Elija uno que lo esté.</translation>
    </message>
    <message>
        <source>This system counts westward or southward. Choose one with easting and northing.</source>
        <translation>Este sistema cuenta hacia el oeste o el sur. Elija uno con coordenadas este y norte.</translation>
    </message>
    <message>
        <source>This system cannot be turned into longitude and latitude.</source>
        <translation>Este sistema no se puede convertir en longitud y latitud.</translation>
    </message>
    <message>
        <source>Enter easting and northing of both geophones, in metres.</source>
        <translation>Introduzca las coordenadas este y norte de ambos geófonos, en metros.</translation>
    </message>
    <message>
        <source>Enter the EPSG code of the reference system, for example 32632 for UTM zone 32 N.</source>
        <translation>Introduzca el código EPSG del sistema de referencia, por ejemplo 32632 para UTM zona 32 N.</translation>
    </message>
    <message>
        <source>The first and the last geophone have the same coordinates.</source>
        <translation>El primer y el último geófono tienen las mismas coordenadas.</translation>
    </message>
    <message>
        <source>These coordinates lie outside of the reference system.</source>
        <translation>Estas coordenadas quedan fuera del sistema de referencia.</translation>
    </message>
    <message>
        <source>On the map the two geophones are %1 apart</source>
        <translation>En el mapa los dos geófonos distan %1</translation>
    </message>
    <message>
        <source>%1, along the line %2.</source>
        <comment>distance on the map, distance along the line</comment>
        <translation>%1; a lo largo de la línea, %2.</translation>
    </message>
    <message>
        <source>Check the coordinates.</source>
        <translation>Compruebe las coordenadas.</translation>
    </message>
</context>
<context>
    <name>talvesk::setVelocityWidget</name>
    <message>
        <source>Marks the layer for Remove</source>
        <translation>Marca la capa para Quitar</translation>
    </message>
    <message>
        <source>Initial depth   </source>
        <translation>Profundidad inicial   </translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s top below the ground (m)</source>
        <translation>Profundidad del techo de la capa bajo el terreno (m)</translation>
    </message>
    <message>
        <source>    Velocity</source>
        <translation>    Velocidad</translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s top (m/s)</source>
        <translation>Velocidad en el techo de la capa (m/s)</translation>
    </message>
    <message>
        <source>Final depth</source>
        <translation>Profundidad final</translation>
    </message>
    <message>
        <source>Depth of the layer&apos;s bottom below the ground (m)</source>
        <translation>Profundidad de la base de la capa bajo el terreno (m)</translation>
    </message>
    <message>
        <source>    Velocity  </source>
        <translation>    Velocidad  </translation>
    </message>
    <message>
        <source>Velocity at the layer&apos;s bottom (m/s)</source>
        <translation>Velocidad en la base de la capa (m/s)</translation>
    </message>
</context>
<context>
    <name>talvesk::smoothingDialog</name>
    <message>
        <source>Apply smoothing</source>
        <translation>Aplicar suavizado</translation>
    </message>
    <message>
        <source>&amp;Type of smoothing:</source>
        <translation>&amp;Tipo de suavizado:</translation>
    </message>
    <message>
        <source>Uniform averages all cells alike; linear and Gaussian give near cells more weight and keep contrasts sharper; ray based first fills the cells that no ray crossed from those that rays did.</source>
        <translation>El uniforme promedia todas las celdas por igual; el lineal y el gaussiano dan más peso a las celdas cercanas y mantienen más nítidos los contrastes; el basado en rayos rellena primero las celdas que ningún rayo atravesó a partir de las que sí fueron atravesadas.</translation>
    </message>
    <message>
        <source>Uniform weighted smoothing</source>
        <translation>Suavizado con ponderación uniforme</translation>
    </message>
    <message>
        <source>Linear weighted smoothing</source>
        <translation>Suavizado con ponderación lineal</translation>
    </message>
    <message>
        <source>Gaussian weighted smoothing</source>
        <translation>Suavizado con ponderación gaussiana</translation>
    </message>
    <message>
        <source>Ray based smoothing</source>
        <translation>Suavizado basado en rayos</translation>
    </message>
    <message>
        <source>Smoothing &amp;parameter:</source>
        <translation>&amp;Parámetro de suavizado:</translation>
    </message>
    <message>
        <source>How many cells to each side are averaged. Larger gives a smoother section that hides small bodies.</source>
        <translation>Cuántas celdas a cada lado se promedian. Un valor mayor da una sección más suave que oculta los cuerpos pequeños.</translation>
    </message>
    <message>
        <source>Unchecked, the smoothing reaches 0.7 times as far up and down as sideways, which suits layered ground. Checked, it reaches equally far, which suits bodies and steep contacts.</source>
        <translation>Sin marcar, el suavizado alcanza en vertical 0,7 veces lo que en horizontal, lo que conviene a un terreno estratificado. Marcado, alcanza lo mismo, lo que conviene a cuerpos aislados y contactos empinados.</translation>
    </message>
    <message>
        <source>&amp;Symmetric smoothing</source>
        <translation>&amp;Suavizado simétrico</translation>
    </message>
    <message>
        <source>Smooths the velocities of the present grid. Rays and misfit of a result are traced anew through the smoothed section.</source>
        <translation>Suaviza las velocidades de la malla actual. Los rayos y el desajuste de un resultado se recalculan a través de la sección suavizada.</translation>
    </message>
</context>
</TS>
