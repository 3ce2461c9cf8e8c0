// The recording of a shot with its picks.

const missingSample = -128;
const fullSwing = 127;
const swingInSpacings = 2;
const cutInSpacings = 0.7;

/** The traces of a gather: times, and swings in units of the lower axis. */
function tracesOf(gather) {
  const bytes = Uint8Array.from(atob(gather.samples), (c) => c.charCodeAt(0));
  const samples = new Int8Array(bytes.buffer);
  const step = (gather.to - gather.from) / gather.parts;
  const cut = cutInSpacings * gather.spacing;
  const times = Array.from({ length: gather.parts }, (_, i) => gather.from + (i + 0.5) * step);
  return gather.x.map((x, i) => {
    const own = samples.subarray(i * gather.parts, (i + 1) * gather.parts);
    const known = times.map((_, at) => at).filter((at) => own[at] !== missingSample);
    return {
      x,
      times: known.map((at) => times[at]),
      swings: known.map((at) => {
        const swing = (own[at] / fullSwing) * swingInSpacings * gather.spacing;
        return Math.min(Math.max(swing, -cut), cut);
      }),
    };
  });
}

class GatherFigure {
  /** \param keys that go from pick to pick */
  constructor(place, shots, gathers, keys) {
    this.shots = shots;
    this.gathers = gathers;
    this.box = make('div', { class: 'gather', hidden: true });
    this.title = make('p', { class: 'chart-title', 'aria-live': 'polite' });
    const close = button(words.close, () => {
      this.box.hidden = true;
    });
    this.box.append(make('div', { class: 'row' }, [this.title, close]));
    this.chart = new Chart(this.box, words.gather, (colors) => this.describe(colors), 420);
    this.chart.setPicture((context, toX, toY) => {
      paintTraces(context, this.traces, themeColors().text, toX, toY);
    });
    this.chart.listenToKeys(words.gather, words.gatherHelp, keys);
    this.caption = make('p', { class: 'readout' });
    this.buttons = this.chart.zoomButtons();
    this.box.append(this.buttons, this.caption);
    place.append(this.box);
  }

  show(pick) {
    const gather = this.gathers[pick.shot];
    this.pick = pick;
    this.box.hidden = false;
    const there = gather && typeof gather === 'object';
    this.chart.frame.hidden = !there;
    this.buttons.hidden = !there;
    this.title.textContent = there ? gather.title : say(words.shot, pick.shot + 1);
    const none = gather ? words.gatherLeftOut : words.noGather;
    this.caption.textContent = there ? gather.caption : none;
    if (!there) return;
    if (this.gather !== gather) {
      this.gather = gather;
      this.traces = tracesOf(gather);
      this.chart.view = {};
    }
    this.chart.draw();
  }

  describe(colors) {
    const { gather, pick } = this;
    const shot = this.shots[pick.shot];
    const times = (key) => gather.channels.map((channel) => shot[key][channel] ?? null);
    const errors = times('errors').map((error) => error || 0);
    const pad = gather.spacing;
    const low = gather.x.reduce((a, b) => Math.min(a, b)) - pad;
    const high = gather.x.reduce((a, b) => Math.max(a, b)) + pad;
    const traces = [
      this.marks(times('measured'), { color: '#e60000', size: 16, symbol: 'line-ew', line: { color: '#e60000', width: 2 } }, errors),
      this.marks(times('computed'), { color: '#2171d6', size: 5 }),
    ];
    const at = gather.channels.indexOf(pick.receiver);
    if (at >= 0) {
      traces.push({
        type: 'scatter',
        mode: 'markers',
        x: [gather.x[at]],
        y: [shot.measured[pick.receiver]],
        marker: { symbol: 'circle-open', size: 16, color: '#e60000', line: { width: 2 } },
      });
    }
    const title = gather.byChannel ? words.channel : words.distance;
    return {
      traces,
      layout: {
        xaxis: axisLook(colors, title, { range: [low, high] }),
        yaxis: axisLook(colors, words.time, { range: [gather.to, gather.from] }),
      },
    };
  }

  marks(y, marker, errors) {
    const trace = { type: 'scatter', mode: 'markers', x: this.gather.x, y, marker };
    if (errors?.some((error) => error > 0)) {
      trace.error_y = { type: 'data', array: errors, thickness: 1, width: 3, color: '#e60000' };
    }
    return trace;
  }
}
