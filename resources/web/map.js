// The line on the map, in its own coordinates.

const svgSpace = 'http://www.w3.org/2000/svg';

function shape(name, attributes, text) {
  const element = document.createElementNS(svgSpace, name);
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value);
  if (text !== undefined) element.textContent = text;
  return element;
}

/** A round length of about a third of what there is room for. */
function roundLength(most) {
  const power = 10 ** Math.floor(Math.log10(most / 3));
  return [5, 2, 1].map((factor) => factor * power).find((length) => length <= most / 2);
}

function extentOf(values) {
  const least = values.reduce((a, b) => Math.min(a, b));
  const most = values.reduce((a, b) => Math.max(a, b));
  return { middle: (least + most) / 2, size: most - least };
}

function showMap(place, map) {
  const [east0, north0, east1, north1] = map.ends;
  const course = map.course ?? [[east0, north0], [east1, north1]];
  const [east, north] = [0, 1].map((axis) => extentOf(course.map((point) => point[axis])));
  const size = Math.max(east.size, north.size);
  const scale = 260 / size;
  const x = (value) => 200 + (value - east.middle) * scale;
  const y = (value) => 190 - (value - north.middle) * scale;
  const svg = shape('svg', { viewBox: '0 0 400 380', class: 'map', role: 'img', 'aria-label': words.mapText });
  svg.append(
    shape('polyline', { points: course.map(([e, n]) => `${x(e)},${y(n)}`).join(' '), class: 'line' }),
    shape('circle', { cx: x(east0), cy: y(north0), r: 6, class: 'first' }),
    shape('circle', { cx: x(east1), cy: y(north1), r: 6, class: 'last' }),
    shape('path', { d: 'M 375 20 l 8 22 l -8 -6 l -8 6 z', class: 'north' }),
    shape('text', { x: 375, y: 58, 'text-anchor': 'middle' }, words.north),
    ...scaleBar(map, size, scale),
    ...endName(x(east0), y(north0), words.firstGeophone),
    ...endName(x(east1), y(north1), words.lastGeophone),
  );
  place.append(svg);
  if (map.latitude === undefined) return;
  const { latitude, longitude } = map;
  const href = `https://www.openstreetmap.org/?mlat=${latitude}&mlon=${longitude}#map=17/${latitude}/${longitude}`;
  const link = make('a', { href, rel: 'noopener noreferrer', target: '_blank', text: words.openMap });
  place.append(make('p', {}, [link]));
}

function scaleBar(map, size, scale) {
  const metres = map.metres ?? 1;
  const length = roundLength(size / metres);
  const text = `${number(length, length < 1 ? 2 : 0)} ${map.metres ? 'ft' : 'm'}`;
  return [
    shape('line', { x1: 20, y1: 362, x2: 20 + length * metres * scale, y2: 362, class: 'scale' }),
    shape('text', { x: 20, y: 354 }, text),
  ];
}

/** Above the upper end and below the lower one, so that the line does not run through it. */
function endName(x, y, text) {
  const left = x > 200;
  const above = y <= 190;
  return [shape('text', {
    x: x + (left ? 8 : -8), y: y + (above ? -14 : 24), 'text-anchor': left ? 'end' : 'start',
  }, text)];
}
