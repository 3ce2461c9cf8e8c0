// The section: what lies where, under the pointer, along a ray, below a point.

const noRays = 'none';
const allRays = 'all';

/** Where the name of something drawn goes: into an area, else at its middle point. */
function labelPlace(kind, { x, y }) {
  const middle = Math.floor(x.length / 2);
  if (kind !== 'area') return { x: [x[middle]], y: [y[middle]] };
  const centre = (values) => (Math.min(...values) + Math.max(...values)) / 2;
  return { x: [centre(x)], y: [centre(y)] };
}

class SectionFigure {
  constructor(place, section, rays) {
    this.section = section;
    this.mesh = new Mesh(section);
    this.rays = (rays || []).map((shot) => shot.map(rayPoints));
    this.parts = { coverage: true, geophones: true, shots: true, layers: true, drawn: true, contours: true };
    this.shownRays = this.rays.length > 0 ? allRays : noRays;
    this.levels = section.contours;
    this.contourCount = section.contours.length;
    this.exaggeration = section.exaggeration;
    this.chart = new Chart(place, words.section, (colors) => this.describe(colors), 380);
    this.choose(section.quantities[0].key);
    place.prepend(this.controls());
    this.addReadout(place);
    this.profile = new ProfileFigure(place, this);
    this.chart.setPicture((context, toX, toY) => this.paint(context, toX, toY));
    this.chart.follow((at) => this.point(at), (at) => this.profile.show(at.x));
    this.chart.listenToKeys(words.section, words.sectionHelp, {
      ArrowLeft: () => this.moveCursor(-1, 0),
      ArrowRight: () => this.moveCursor(1, 0),
      ArrowUp: () => this.moveCursor(0, 1),
      ArrowDown: () => this.moveCursor(0, -1),
      Enter: () => this.cursor && this.profile.show(this.cursor.x),
    });
  }

  get quantity() {
    return this.section.quantities.find((each) => each.key === this.key);
  }

  choose(key) {
    this.key = key;
    const { quantity } = this;
    this.range = (quantity.range || [0, 1]).slice();
    this.palette = quantity.palette || this.section.palettes[this.paletteIndex || 0];
    if (this.contourCount > 0 && key !== 'velocity') this.setContours(this.contourCount);
    else if (key === 'velocity') this.levels = this.section.contours;
  }

  setContours(count) {
    const [from, to] = this.range;
    this.contourCount = count;
    this.levels = Array.from({ length: count }, (_, i) => from + ((i + 1) * (to - from)) / (count + 1));
  }

  controls() {
    const { section } = this;
    const redraw = () => this.redraw();
    const quantity = choice(words.colorBy, section.quantities.map((q) => [q.key, q.name]), (key) => {
      this.choose(key);
      this.syncRange();
      redraw();
    });
    const palette = choice(words.palette, section.palettes.map((p, i) => [i, p.name]), (index) => {
      this.paletteIndex = Number(index);
      this.palette = section.palettes[index];
      redraw();
    });
    const box = make('div', { class: 'controls', role: 'group', 'aria-label': words.sectionControls });
    box.append(quantity, palette, ...this.rangeFields(), this.contourField(), this.exaggerationField());
    if (this.rays.some((shot) => shot.length > 0)) box.append(this.rayField());
    for (const part of ['coverage', 'geophones', 'shots', 'layers', 'drawn']) {
      if (section[part].length === 0) continue;
      box.append(checkBox(words[part], true, (on) => {
        this.parts[part] = on;
        redraw();
      }));
    }
    box.append(this.chart.zoomButtons());
    return box;
  }

  rangeFields() {
    this.rangeInputs = [0, 1].map((end) => make('input', {
      type: 'number',
      step: 'any',
      onchange: (event) => this.setRange(end, event.target.valueAsNumber),
    }));
    this.syncRange();
    return [
      labelled(words.rangeFrom, this.rangeInputs[0]),
      labelled(words.rangeTo, this.rangeInputs[1]),
    ];
  }

  syncRange() {
    this.rangeInputs?.forEach((input, end) => {
      input.value = String(this.range[end]);
    });
  }

  /** An end that leaves no range is not taken. */
  setRange(end, value) {
    const range = this.range.slice();
    range[end] = value;
    if (range[1] > range[0] && Number.isFinite(value)) {
      this.range = range;
      if (this.contourCount > 0) this.setContours(this.contourCount);
    }
    this.syncRange();
    this.redraw();
  }

  contourField() {
    const input = make('input', {
      type: 'number',
      min: 0,
      max: 50,
      step: 1,
      value: this.contourCount,
      onchange: () => {
        const count = Math.min(Math.max(Math.round(input.valueAsNumber) || 0, 0), 50);
        input.value = count;
        this.setContours(count);
        this.redraw();
      },
    });
    return labelled(words.contours, input);
  }

  exaggerationField() {
    const factors = [1, 2, 3, 5, 10];
    const given = this.exaggeration;
    if (given > 0 && !factors.includes(given)) factors.push(given);
    const names = factors.map((factor) => [factor, number(factor, factor % 1 ? 2 : 0)]);
    const field = choice(words.exaggeration, [[0, words.fit], ...names], (value) => {
      this.exaggeration = Number(value);
      this.chart.whole();
    });
    field.querySelector('select').value = String(given);
    return field;
  }

  rayField() {
    const ofShots = this.rays.map((_, shot) => [shot, say(words.shot, shot + 1)]);
    const choices = [[noRays, words.none], [allRays, words.all], ...ofShots];
    const field = choice(words.rays, choices, (value) => {
      this.shownRays = value;
      this.redraw();
    });
    field.querySelector('select').value = this.shownRays;
    return field;
  }

  addReadout(place) {
    const lines = { class: 'readout', 'aria-live': 'polite' };
    this.readout = make('p', { ...lines, text: words.sectionHelp });
    place.append(this.readout);
  }

  redraw() {
    return this.chart.draw();
  }

  raysShown() {
    if (this.shownRays === noRays) return [];
    const shots = this.shownRays === allRays ? this.rays : [this.rays[Number(this.shownRays)]];
    return shots.flat().filter((ray) => ray.x.length > 1);
  }

  paint(context, toX, toY) {
    const classes = colorClasses(this.palette);
    paintCells(context, this.mesh, this.quantity.values, classes, this.range, toX, toY);
    paintRays(context, this.raysShown(), toX, toY);
  }

  describe(colors) {
    const { section, parts } = this;
    const line = (points, look, extra = {}) => ({
      type: 'scatter', mode: 'lines', ...points, line: look, ...extra,
    });
    const flat = (list) => {
      const { x, z } = unzip(list);
      return { x, y: z };
    };
    const traces = [line(flat(section.surface), { color: colors.text, width: 1 }), this.colorBar()];
    if (this.levels.length > 0) {
      const contours = this.mesh.contours(this.quantity.values, this.levels);
      traces.push(line({ x: contours.x, y: contours.z }, { color: '#222', width: 0.8 }));
      traces.push(this.contourNumbers(contours));
    }
    if (parts.coverage) traces.push(line(flat(section.coverage), { color: '#444', dash: 'dash', width: 1 }));
    if (parts.layers) traces.push(...this.layerTraces(line, flat));
    if (parts.drawn) traces.push(...this.drawnTraces(line, flat));
    const markers = (points, symbol, size) => ({
      type: 'scatter',
      mode: 'markers',
      ...flat(points),
      marker: { symbol, size, color: colors.paper, line: { color: colors.text, width: 1 } },
    });
    if (parts.geophones) traces.push(markers(section.geophones, 'triangle-down', 7));
    if (parts.shots) traces.push(markers(section.shots, 'star', 10));
    traces.push(...this.pickRay(line), ...this.crosshair());
    return { traces, layout: this.layout(colors) };
  }

  /** Beside each other where lines of several levels lie close. */
  contourNumbers(contours) {
    const { mesh, levels } = this;
    const length = mesh.x[mesh.columns] - mesh.x[0];
    const step = Math.abs(levels[1] - levels[0]) || this.range[1] - this.range[0];
    const places = Math.max(this.quantity.places, Math.ceil(-Math.log10(step)));
    const chosen = { x: [], y: [], text: [] };
    levels.forEach((level, i) => {
      for (const part of [0.3, 0.7]) {
        const target = mesh.x[0] + length * (part + 0.045 * ((i % 5) - 2));
        const at = contours.nearest(level, target, length / 12);
        if (!at) continue;
        chosen.x.push(at.x);
        chosen.y.push(at.z);
        chosen.text.push(number(level, places));
      }
    });
    return {
      type: 'scatter',
      mode: 'text',
      ...chosen,
      textfont: { size: 11, color: '#000', shadow: '0 0 2px #fff, 0 0 2px #fff, 0 0 3px #fff, 0 0 4px #fff' },
    };
  }

  layerTraces(line, flat) {
    const looks = ['solid', 'dash', 'dot'];
    return this.section.layers.flatMap((layer, i) => layer.pieces.map((piece) => line(
      flat(piece),
      { color: '#c2185b', width: 2.5, dash: looks[i % looks.length] },
    )));
  }

  /** What the user has drawn: areas below lines below their names. */
  drawnTraces(line, flat) {
    const { drawn } = this.section;
    const areas = drawn.filter(({ kind }) => kind === 'area').map(({ color, width, points }) => line(
      flat([...points, points[0], points[1]]),
      { color, width },
      { fill: 'toself', fillcolor: 'rgba(255, 255, 255, 0.5)', hoverinfo: 'skip' },
    ));
    const lines = drawn.filter(({ kind }) => kind === 'line').flatMap(({ color, width, points }) => [
      line(flat(points), { color: '#fff', width: width + 2 }),
      line(flat(points), { color, width }),
    ]);
    const names = drawn.filter(({ name }) => name).map(({ kind, name, color, points }) => ({
      type: 'scatter',
      mode: 'text',
      ...labelPlace(kind, flat(points)),
      text: [`<b>${chartText(name)}</b>`],
      textfont: { color, size: 13, shadow: '0 0 3px #fff, 0 0 3px #fff, 0 0 3px #fff' },
    }));
    return [...areas, ...lines, ...names];
  }

  pickRay(line) {
    const ray = this.pick && this.rays[this.pick.shot]?.[this.pick.receiver];
    return ray ? [line({ x: ray.x, y: ray.z }, { color: '#e60000', width: 2.5 })] : [];
  }

  crosshair() {
    if (!this.cursor) return [];
    const marker = {
      symbol: 'cross', size: 14, color: '#fff', line: { color: '#000', width: 1.5 },
    };
    return [{ type: 'scatter', mode: 'markers', x: [this.cursor.x], y: [this.cursor.z], marker }];
  }

  colorBar() {
    const { quantity, range } = this;
    const title = quantity.unit ? `${quantity.name} [${quantity.unit}]` : quantity.name;
    return {
      type: 'scatter',
      mode: 'markers',
      x: [null],
      y: [null],
      marker: {
        color: [range[0]],
        cmin: range[0],
        cmax: range[1],
        colorscale: colorScale(colorClasses(this.palette)),
        showscale: true,
        colorbar: { title: { text: chartText(title), side: 'right' }, thickness: 14, outlinewidth: 1 },
      },
    };
  }

  /** What the whole section needs, with some room. */
  extent() {
    const { section, mesh } = this;
    const xs = [...mesh.x, ...unzip(section.geophones).x, ...unzip(section.shots).x];
    const zs = [...mesh.z, ...unzip(section.geophones).z, ...unzip(section.shots).z];
    const wide = (values, part) => {
      const low = values.reduce((a, b) => Math.min(a, b));
      const high = values.reduce((a, b) => Math.max(a, b));
      return [low - part * (high - low), high + part * (high - low)];
    };
    return { x: wide(xs, 0.02), z: wide(zs, 0.05) };
  }

  layout(colors) {
    const { x, z } = this.extent();
    const layout = {
      xaxis: axisLook(colors, words.distance, { range: x, showgrid: false }),
      yaxis: axisLook(colors, words.elevation, { range: z, showgrid: false }),
      margin: { l: 60, r: 10, t: 12, b: 48 },
    };
    if (this.exaggeration > 0) {
      const wide = Math.max(this.chart.element.clientWidth - 170, 200);
      const high = (wide * (z[1] - z[0]) * this.exaggeration) / (x[1] - x[0]);
      this.chart.height = Math.min(Math.max(high + 70, 200), 700);
      layout.height = this.chart.height;
      Object.assign(layout.yaxis, { scaleanchor: 'x', scaleratio: this.exaggeration, constrain: 'domain' });
    }
    return layout;
  }

  /** What is known of a place. */
  reading(x, z) {
    const cell = this.mesh.cellAt(x, z);
    const depth = this.mesh.groundAt(x) - z;
    return { x, z, depth, cell, value: (key) => {
      const quantity = this.section.quantities.find((each) => each.key === key);
      return cell < 0 ? null : quantity.values[cell];
    } };
  }

  readingText(x, z) {
    const reading = this.reading(x, z);
    const parts = [
      say(words.atDistance, number(x, 2)),
      say(words.atElevation, number(z, 2)),
    ];
    if (Number.isFinite(reading.depth)) parts.push(say(words.atDepth, number(reading.depth, 2)));
    const shown = new Set(['velocity', this.key]);
    for (const quantity of this.section.quantities) {
      if (!shown.has(quantity.key)) continue;
      const value = reading.value(quantity.key);
      if (value === null) continue;
      const unit = quantity.unit ? ` ${quantity.unit}` : '';
      parts.push(`${quantity.name} ${number(value, quantity.places)}${unit}`);
    }
    return parts.join(', ');
  }

  point(at) {
    if (!at) {
      this.chart.hideTip();
      return;
    }
    const text = this.readingText(at.x, at.y);
    this.readout.textContent = text;
    this.chart.showTip(at.x, at.y, text);
  }

  showPick(pick) {
    this.pick = pick;
    if (this.chart.drawn) this.redraw();
  }

  /** By one cell. */
  moveCursor(right, up) {
    const { mesh } = this;
    const width = mesh.x[1] - mesh.x[0];
    const height = (mesh.corner(0, 0) - mesh.corner(mesh.rows, 0)) / mesh.rows;
    if (this.cursor) {
      this.cursor.x += right * width;
      this.cursor.z += up * height;
    } else {
      const x = (mesh.x[0] + mesh.x[mesh.columns]) / 2 + width / 2;
      this.cursor = { x, z: mesh.groundAt(x) - height / 2 };
    }
    this.readout.textContent = this.readingText(this.cursor.x, this.cursor.z);
    this.redraw();
  }
}

/** Velocities below a point of the line. */
class ProfileFigure {
  constructor(place, figure) {
    this.figure = figure;
    this.box = make('div', { class: 'profile', hidden: true });
    this.title = make('p', { class: 'chart-title', 'aria-live': 'polite' });
    const close = button(words.close, () => {
      this.box.hidden = true;
    });
    this.box.append(make('div', { class: 'row' }, [this.title, close]));
    this.chart = new Chart(this.box, words.profile, (colors) => this.describe(colors), 300);
    const headings = () => [words.depthFrom, words.depthTo, ...this.curves().map(([q]) => `${q.name} [${q.unit}]`)];
    this.table = numbersTable(words.numbers, headings, () => this.rows());
    this.box.append(this.table.element);
    place.append(this.box);
  }

  /** The section's velocities and those of other inversions. */
  curves() {
    const quantities = this.figure.section.quantities.filter((q) => /^(m|ft)\/s$/.test(q.unit));
    return quantities.map((q) => [q, this.figure.mesh.profile(this.x, q.values)]);
  }

  show(x) {
    if (!this.figure.mesh.columnAt(x)) return;
    this.x = x;
    this.box.hidden = false;
    this.title.textContent = say(words.profileAt, number(x, 2));
    this.chart.whole();
    this.table.refresh();
  }

  rows() {
    const curves = this.curves();
    return curves[0][1].map((step, i) => [
      number(step.top, 2),
      number(step.bottom, 2),
      ...curves.map(([q, steps]) => number(steps[i]?.value, q.places)),
    ]);
  }

  describe(colors) {
    const traces = this.curves().map(([q, steps], i) => ({
      type: 'scatter',
      mode: 'lines',
      name: chartText(q.name),
      x: steps.flatMap((step) => [step.value, step.value]),
      y: steps.flatMap((step) => [step.top, step.bottom]),
      line: { color: shotColor(i), width: 2 },
    }));
    const deepest = traces[0].y.reduce((a, b) => Math.max(a, b), 1);
    const fastest = traces.flatMap((trace) => trace.x).reduce((a, b) => Math.max(a, b), 1);
    return {
      traces,
      layout: {
        showlegend: traces.length > 1,
        xaxis: axisLook(colors, words.velocity, { range: [0, fastest * 1.05] }),
        yaxis: axisLook(colors, words.depth, { range: [deepest * 1.02, 0] }),
      },
    };
  }
}
