// Colours of values.

/** Components 0 to 255 of a gradient at t, 0 to 1. */
function gradientAt(stops, t) {
  let after = stops.findIndex((stop) => stop[0] >= t);
  if (after < 0) after = stops.length - 1;
  const b = stops[after];
  const a = stops[Math.max(after - 1, 0)];
  const f = b[0] > a[0] ? Math.min(Math.max((t - a[0]) / (b[0] - a[0]), 0), 1) : 1;
  return [1, 2, 3].map((i) => Math.round(255 * (a[i] + f * (b[i] - a[i]))));
}

/** The colours of equal classes over a range, each that of the gradient at its centre. */
function colorClasses(palette) {
  const count = palette.colors;
  return Array.from({ length: count }, (_, i) => {
    const [r, g, b] = gradientAt(palette.stops, (i + 0.5) / count);
    return `rgb(${r},${g},${b})`;
  });
}

/** The class of a value; values beyond the range take that at the end. */
function classOf(value, range, count) {
  const at = Math.floor(((value - range[0]) / (range[1] - range[0])) * count);
  return Math.min(Math.max(at, 0), count - 1);
}

/** The classes as steps of a colour bar. */
function colorScale(classes) {
  return classes.flatMap((color, i) => [
    [i / classes.length, color],
    [(i + 1) / classes.length, color],
  ]);
}

/** Colours that shots are told apart by, light and dark grounds alike. */
const shotColors = [
  '#1f77b4', '#d1570a', '#2a8f2a', '#d62728', '#8a5cc2', '#8c564b',
  '#d648a8', '#6f7f80', '#8f8f10', '#0f98a8',
];

function shotColor(shot) {
  return shotColors[shot % shotColors.length];
}
