// What the page gives away as files: numbers with decimal points, in every language.

/** A file of lines that a browser saves. */
function download(name, lines) {
  const blob = new Blob([`${lines.join('\r\n')}\r\n`], { type: 'text/csv;charset=utf-8' });
  const url = URL.createObjectURL(blob);
  const link = make('a', { href: url, download: name });
  document.body.append(link);
  link.click();
  link.remove();
  setTimeout(() => URL.revokeObjectURL(url), 1000);
}

function cell(value) {
  return value === null || value === undefined || Number.isNaN(value) ? '' : String(value);
}

/** To the places that the data has. */
function tidy(value) {
  return Number.isFinite(value) ? Math.round(value * 1e6) / 1e6 : value;
}

/** metres: what one of the unit shown is; none where that is the metre */
function inMetres(value, metres) {
  return metres && Number.isFinite(value) ? Math.round(value * metres * 1e3) / 1e3 : value;
}

function picksCsv(shots, metres) {
  const lines = ['shot,shot_x_m,geophone,geophone_x_m,time_ms,error_ms,computed_ms,misfit_ms'];
  shots.forEach((shot, i) => {
    shot.measured.forEach((time, at) => {
      if (time === null) return;
      const computed = shot.computed[at];
      const misfit = computed === null ? null : tidy(computed - time);
      const places = [shot.x, shot.receivers[at]].map((x) => inMetres(x, metres));
      const values = [i + 1, places[0], at + 1, places[1], time, shot.errors[at], computed, misfit];
      lines.push(values.map(cell).join(','));
    });
  });
  return lines;
}

/** The drawn cells by their centres. */
function sectionCsv(section, metres) {
  const mesh = new Mesh(section);
  const { quantities } = section;
  const unit = (q) => q.unit.replace(/^ft/, 'm').replace('/', '_per_').replace('%', 'percent');
  const name = (q) => q.key.replace(/-/g, '_') + (q.unit ? `_${unit(q)}` : '');
  const inside = (q, value) => (q.unit.startsWith('ft') ? inMetres(value, metres) : value);
  const lines = [['x_m', 'elevation_m', 'depth_m', ...quantities.map(name)].join(',')];
  for (let at = 0; at < quantities[0].values.length; at += 1) {
    if (quantities[0].values[at] === null) continue;
    const column = at % mesh.columns;
    const middle = { column, part: 0.5 };
    const row = Math.floor(at / mesh.columns);
    const x = (mesh.x[column] + mesh.x[column + 1]) / 2;
    const z = (mesh.lineAt(row, middle) + mesh.lineAt(row + 1, middle)) / 2;
    const places = [x, z, mesh.groundAt(x) - z].map((value) => inMetres(value, metres));
    const values = places.map((value) => Math.round(value * 1000) / 1000);
    lines.push([...values, ...quantities.map((q) => inside(q, q.values[at]))].map(cell).join(','));
  }
  return lines;
}
