// What all charts share: looks by the theme, size, zoom, the pointer, pictures beneath their lines.

const charts = [];
const paper = { text: '#000', grid: '#bbb', paper: '#fff', accent: '#0b5cad', width: 640 };
let printing = false;

function themeColors() {
  if (printing) return paper;
  const style = getComputedStyle(document.documentElement);
  const get = (name) => style.getPropertyValue(name).trim();
  return { text: get('--text'), grid: get('--grid'), paper: get('--paper'), accent: get('--accent') };
}

function axisLook(colors, title, more = {}) {
  return {
    title: { text: chartText(title), standoff: 8 },
    color: colors.text,
    gridcolor: colors.grid,
    linecolor: colors.text,
    showline: true,
    mirror: true,
    ticks: 'outside',
    zeroline: false,
    automargin: true,
    ...more,
  };
}

/**
 * A chart in a place of its own. `describe` returns its traces and layout for the colours of the
 * theme; it is asked again whenever something has changed.
 */
class Chart {
  constructor(place, name, describe, height = 360) {
    this.describe = describe;
    this.height = height;
    this.view = {};
    this.element = make('div', { class: 'chart', role: 'img', 'aria-label': name });
    this.tip = make('div', { class: 'tip', hidden: true });
    this.frame = make('div', { class: 'frame' }, [this.element, this.tip]);
    place.append(this.frame);
    charts.push(this);
  }

  draw() {
    const colors = themeColors();
    const { traces, layout } = this.describe(colors);
    if (this.picture) {
      // The library would lay its grid over the picture.
      this.grid = [layout.xaxis, layout.yaxis].map((axis) => axis.showgrid !== false);
      layout.xaxis.showgrid = false;
      layout.yaxis.showgrid = false;
    }
    const look = {
      paper_bgcolor: 'rgba(0,0,0,0)',
      plot_bgcolor: 'rgba(0,0,0,0)',
      font: { color: colors.text, family: 'sans-serif', size: 12 },
      margin: { l: 60, r: 16, t: 12, b: 48 },
      separators: number(1.5, 1).includes(',') ? ',.' : '.,',
      height: this.height,
      width: colors.width,
      dragmode: 'pan',
      showlegend: false,
      hovermode: false,
      images: this.images,
      uirevision: 'same',
      ...layout,
    };
    if (this.view.x) look.xaxis.range = this.view.x;
    if (this.view.y) look.yaxis.range = this.view.y;
    const config = { displayModeBar: false, responsive: true, doubleClick: false };
    const first = !this.drawn;
    this.drawn = Plotly.react(this.element, traces, look, config);
    if (first) {
      this.zoomByWheel();
      this.element.on('plotly_relayout', () => this.moved());
      this.element.on('plotly_relayouting', () => this.hideTip());
    }
    if (this.picture) this.drawn = this.drawn.then(() => this.paintPicture());
    return this.drawn;
  }

  moved() {
    if (this.painting) return;
    const { xaxis, yaxis } = this.area();
    this.view = { x: xaxis.range.slice(), y: yaxis.range.slice() };
    clearTimeout(this.waiting);
    if (this.picture) this.waiting = setTimeout(() => this.paintPicture(), 60);
  }

  /** Where the axes are, as the library has laid them out. */
  area() {
    return this.element._fullLayout;
  }

  /** Pixels within the chart of a place, and the other way round. */
  pixelsOf(x, y) {
    const { xaxis, yaxis } = this.area();
    return [xaxis._offset + xaxis.d2p(x), yaxis._offset + yaxis.d2p(y)];
  }

  placeOf(event) {
    const { xaxis, yaxis } = this.area();
    const box = this.element.getBoundingClientRect();
    const left = event.clientX - box.left - xaxis._offset;
    const top = event.clientY - box.top - yaxis._offset;
    const inside = left >= 0 && top >= 0 && left <= xaxis._length && top <= yaxis._length;
    return inside ? { x: xaxis.p2d(left), y: yaxis.p2d(top) } : null;
  }

  /** Calls back for the place under the pointer, null outside, and for clicks that are no drags. */
  follow(hovered, clicked) {
    let down = null;
    const { element } = this;
    element.addEventListener('pointermove', (event) => {
      if (event.buttons === 0) hovered(this.placeOf(event));
    });
    element.addEventListener('pointerleave', () => hovered(null));
    element.addEventListener('pointerdown', (event) => {
      down = event;
    }, true);
    window.addEventListener('pointerup', (event) => {
      const still = down && Math.hypot(event.clientX - down.clientX, event.clientY - down.clientY) < 4;
      const at = still && this.placeOf(down);
      down = null;
      if (at) clicked(at);
    }, true);
  }

  showTip(x, y, text) {
    const [left, top] = this.pixelsOf(x, y);
    this.tip.textContent = text;
    this.tip.hidden = false;
    const room = this.frame.clientWidth - this.tip.offsetWidth - 8;
    this.tip.style.left = `${Math.max(Math.min(left + 12, room), 0)}px`;
    this.tip.style.top = `${Math.max(top - this.tip.offsetHeight - 10, 0)}px`;
  }

  hideTip() {
    this.tip.hidden = true;
  }

  /** \param factor below 1 shows less, larger \param at what stays where it is; none: the middle */
  zoom(factor, at) {
    const { xaxis, yaxis } = this.area();
    const around = ([a, b], still = (a + b) / 2) => [still + (a - still) * factor, still + (b - still) * factor];
    return this.show(around(xaxis.range, at?.x), around(yaxis.range, at?.y));
  }

  /** The wheel with Ctrl, which is what two fingers on a touchpad are to a browser. */
  zoomByWheel() {
    this.element.addEventListener('wheel', (event) => {
      const at = event.ctrlKey && this.placeOf(event);
      if (!at) return;
      event.preventDefault();
      this.zoom(Math.exp(Math.min(Math.max(event.deltaY, -100), 100) / 300), at);
    }, { passive: false });
  }

  pan(right, up) {
    const { xaxis, yaxis } = this.area();
    const by = ([a, b], part) => [a + part * (b - a), b + part * (b - a)];
    return this.show(by(xaxis.range, right), by(yaxis.range, up));
  }

  show(x, y) {
    return Plotly.relayout(this.element, { 'xaxis.range': x, 'yaxis.range': y });
  }

  whole() {
    this.view = {};
    return this.draw();
  }

  /**
   * Makes the chart one that keys reach. \param keys by the names of keys, besides those that zoom
   */
  listenToKeys(name, help, keys) {
    const { element } = this;
    element.tabIndex = 0;
    element.setAttribute('role', 'application');
    element.setAttribute('aria-label', `${name}. ${help}`);
    const all = {
      '+': () => this.zoom(1 / 1.5),
      '-': () => this.zoom(1.5),
      0: () => this.whole(),
      ...keys,
    };
    element.addEventListener('keydown', (event) => {
      if (event.ctrlKey || event.altKey || event.metaKey || !Object.hasOwn(all, event.key)) return;
      all[event.key]();
      event.preventDefault();
    });
  }

  zoomButtons() {
    return make('span', { class: 'buttons' }, [
      button('+', () => this.zoom(1 / 1.5), { 'aria-label': words.zoomIn, title: words.zoomIn }),
      button('\u2212', () => this.zoom(1.5), { 'aria-label': words.zoomOut, title: words.zoomOut }),
      button(words.whole, () => this.whole()),
    ]);
  }

  /**
   * Lays a painted picture beneath the lines. `paint` gets a context whose units are pixels of the
   * screen, and functions from places to them. It is painted somewhat larger than the view and
   * follows it at once; when the view rests it is painted anew.
   */
  setPicture(paint) {
    this.picture = paint;
  }

  paintPicture() {
    const { xaxis, yaxis } = this.area();
    const margin = 0.4;
    const wide = ([a, b]) => [a - margin * (b - a), b + margin * (b - a)];
    const x = wide(xaxis.range);
    const y = wide(yaxis.range);
    const ratio = Math.min(window.devicePixelRatio || 1, 2);
    const width = Math.max(Math.round(xaxis._length * (1 + 2 * margin)), 1);
    const height = Math.max(Math.round(yaxis._length * (1 + 2 * margin)), 1);
    const canvas = make('canvas', { width: width * ratio, height: height * ratio });
    const context = canvas.getContext('2d');
    context.scale(ratio, ratio);
    const toX = (value) => ((value - x[0]) / (x[1] - x[0])) * width;
    const toY = (value) => ((y[1] - value) / (y[1] - y[0])) * height;
    this.paintGrid(context, width, height, x, y, toX, toY);
    this.picture(context, toX, toY);
    return this.layPicture(canvas, x, y);
  }

  /** Beneath all else in the picture, as far as it goes beyond the view. */
  paintGrid(context, width, height, x, y, toX, toY) {
    const { xaxis, yaxis } = this.area();
    const places = ({ tick0, dtick }, [a, b]) => {
      const first = Math.ceil((Math.min(a, b) - tick0) / dtick);
      const count = Math.floor((Math.max(a, b) - tick0) / dtick) - first + 1;
      return Array.from({ length: Math.min(Math.max(count, 0), 500) }, (_, i) => tick0 + (first + i) * dtick);
    };
    const crisp = (pixel) => Math.round(pixel) + 0.5;
    context.strokeStyle = themeColors().grid;
    context.lineWidth = 1;
    context.beginPath();
    for (const at of this.grid[0] ? places(xaxis, x) : []) {
      context.moveTo(crisp(toX(at)), 0);
      context.lineTo(crisp(toX(at)), height);
    }
    for (const at of this.grid[1] ? places(yaxis, y) : []) {
      context.moveTo(0, crisp(toY(at)));
      context.lineTo(width, crisp(toY(at)));
    }
    context.stroke();
  }

  layPicture(canvas, x, y) {
    const image = {
      source: canvas.toDataURL('image/png'),
      xref: 'x',
      yref: 'y',
      x: x[0],
      y: y[1],
      sizex: x[1] - x[0],
      sizey: Math.abs(y[1] - y[0]),
      sizing: 'stretch',
      layer: 'below',
    };
    this.images = [image];
    this.painting = true;
    return Plotly.relayout(this.element, { images: this.images }).then(() => {
      this.painting = false;
    });
  }
}

/** \param which of them */
function redrawCharts(which = () => true) {
  for (const chart of charts) if (chart.drawn && which(chart)) chart.draw();
}
