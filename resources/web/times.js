// Travel-time curves: what was measured and what the section gives, shot by shot.

class TimesFigure {
  /** \param chosen called with a pick that a user has chosen */
  constructor(place, shots, chosen) {
    this.shots = shots;
    this.shown = new Set(shots.map((_, i) => i));
    this.chosen = chosen;
    this.parts = { measured: true, errors: true, computed: true };
    this.chart = new Chart(place, words.times, (colors) => this.describe(colors), 420);
    place.prepend(this.controls());
    this.readout = make('p', { class: 'readout', 'aria-live': 'polite', text: words.timesHelp });
    place.append(this.readout, this.table());
    this.chart.setPicture((context, toX, toY) => this.paint(context, toX, toY));
    this.chart.follow((at) => this.point(at), (at) => this.click(at));
    this.chart.listenToKeys(words.times, words.timesHelp, this.stepKeys());
  }

  controls() {
    const box = make('div', { class: 'controls', role: 'group', 'aria-label': words.timesControls });
    const any = (key) => this.shots.some((shot) => shot[key].some((value) => value !== null));
    for (const part of ['measured', 'errors', 'computed']) {
      if (!any(part)) continue;
      box.append(checkBox(words[part], true, (on) => {
        this.parts[part] = on;
        this.chart.draw();
      }));
    }
    box.append(this.chart.zoomButtons(), this.shotSwitches());
    return box;
  }

  shotSwitches() {
    const boxes = this.shots.map((_, i) => checkBox(String(i + 1), true, (on) => {
      if (on) this.shown.add(i);
      else this.shown.delete(i);
      this.chart.draw();
    }));
    boxes.forEach((box, i) => {
      box.querySelector('input').setAttribute('aria-label', say(words.shot, i + 1));
      box.style.setProperty('--mark', shotColor(i));
    });
    const all = (on) => {
      this.shown = new Set(on ? this.shots.map((_, i) => i) : []);
      for (const box of boxes) box.querySelector('input').checked = on;
      this.chart.draw();
    };
    return make('fieldset', { class: 'shots' }, [
      make('legend', { text: words.shots }),
      button(words.all, () => all(true)),
      button(words.none, () => all(false)),
      ...boxes,
    ]);
  }

  table() {
    const headings = [words.shotColumn, words.geophoneColumn, words.distance, words.measuredColumn,
      words.errorColumn, words.computedColumn, words.misfitColumn];
    const rows = () => [...this.shown].sort((a, b) => a - b).flatMap((shot) => this.rowsOf(shot));
    return numbersTable(words.numbers, () => headings, rows).element;
  }

  rowsOf(index) {
    const shot = this.shots[index];
    return shot.measured.flatMap((time, i) => (time === null ? [] : [[
      String(index + 1), String(i + 1), number(shot.receivers[i], 2), number(time, 2),
      number(shot.errors[i], 2), number(shot.computed[i], 2), signed(this.misfit(index, i), 2),
    ]]));
  }

  /** Computed minus measured, milliseconds. */
  misfit(shot, receiver) {
    const { measured, computed } = this.shots[shot];
    if (measured[receiver] === null || computed[receiver] === null) return NaN;
    return computed[receiver] - measured[receiver];
  }

  describe(colors) {
    const traces = [];
    let latest = 1;
    const places = [];
    for (const shot of this.shots) {
      places.push(shot.x, ...shot.receivers);
      for (const time of [...shot.measured, ...shot.computed]) latest = Math.max(latest, time || 0);
    }
    traces.push({
      type: 'scatter',
      mode: 'markers',
      x: this.shots.filter((_, i) => this.shown.has(i)).map((shot) => shot.x),
      y: this.shots.filter((_, i) => this.shown.has(i)).map(() => 0),
      marker: { symbol: 'star', size: 10, color: [...this.shown].sort((a, b) => a - b).map(shotColor) },
    });
    if (this.pick) traces.push(this.marked(colors));
    const known = places.filter(Number.isFinite);
    const low = known.reduce((a, b) => Math.min(a, b), Infinity);
    const high = known.reduce((a, b) => Math.max(a, b), -Infinity);
    const room = 0.02 * (high - low || 1);
    return {
      traces,
      layout: {
        xaxis: axisLook(colors, words.distance, { range: [low - room, high + room] }),
        yaxis: axisLook(colors, words.time, { range: [-0.02 * latest, 1.05 * latest] }),
      },
    };
  }

  /** Painted and not drawn by the library: thousands of picks must follow the pointer. */
  paint(context, toX, toY) {
    const { parts } = this;
    this.shots.forEach((shot, i) => {
      if (!this.shown.has(i)) return;
      const color = shotColor(i);
      if (parts.computed) paintCurve(context, shot.receivers, shot.computed, color, toX, toY);
      if (!parts.measured) return;
      if (parts.errors) paintBars(context, shot.receivers, shot.measured, shot.errors, color, toX, toY);
      paintDots(context, shot.receivers, shot.measured, color, toX, toY);
    });
  }

  marked(colors) {
    const { shot, receiver } = this.pick;
    return {
      type: 'scatter',
      mode: 'markers',
      x: [this.shots[shot].receivers[receiver]],
      y: [this.shots[shot].measured[receiver]],
      marker: { symbol: 'circle-open', size: 14, color: colors.text, line: { width: 2 } },
    };
  }

  /** The pick within some pixels of a place; none further off. */
  nearest(at) {
    let best = null;
    let least = 24;
    const [left, top] = this.chart.pixelsOf(at.x, at.y);
    for (const shot of this.shown) {
      const { receivers, measured } = this.shots[shot];
      for (let i = 0; i < measured.length; i += 1) {
        if (measured[i] === null || receivers[i] === null) continue;
        const [x, y] = this.chart.pixelsOf(receivers[i], measured[i]);
        const distance = Math.hypot(x - left, y - top);
        if (distance < least) {
          least = distance;
          best = { shot, receiver: i };
        }
      }
    }
    return best;
  }

  textOf({ shot, receiver }) {
    const { measured, errors, computed, receivers } = this.shots[shot];
    const time = number(measured[receiver], 2);
    const error = errors[receiver];
    const parts = [
      say(words.shot, shot + 1),
      say(words.geophone, receiver + 1, number(receivers[receiver], 2)),
      error === null ? say(words.ms, time) : say(words.msWithError, time, number(error, 2)),
    ];
    if (computed[receiver] !== null) {
      parts.push(say(words.computedMs, number(computed[receiver], 2)));
      parts.push(say(words.misfitMs, signed(this.misfit(shot, receiver), 2)));
    }
    return parts.join(', ');
  }

  point(at) {
    const pick = at && this.nearest(at);
    if (!pick) {
      this.chart.hideTip();
      return;
    }
    const { receivers, measured } = this.shots[pick.shot];
    const text = this.textOf(pick);
    this.readout.textContent = text;
    this.chart.showTip(receivers[pick.receiver], measured[pick.receiver], text);
  }

  click(at) {
    const pick = this.nearest(at);
    if (pick) this.choose(pick);
  }

  choose(pick) {
    this.pick = pick;
    this.readout.textContent = this.textOf(pick);
    this.chart.draw();
    this.chosen(pick);
  }

  stepKeys() {
    return {
      ArrowLeft: () => this.step(0, -1),
      ArrowRight: () => this.step(0, 1),
      ArrowUp: () => this.step(1, 0),
      ArrowDown: () => this.step(-1, 0),
    };
  }

  /** To the next pick of the shot, or to the next shot that is shown. */
  step(shots, receivers) {
    const order = [...this.shown].sort((a, b) => a - b);
    if (order.length === 0) return;
    let shot = this.pick ? this.pick.shot : order[0];
    let at = this.pick ? this.pick.receiver : -1;
    if (shots !== 0 && this.pick) {
      shot = order[Math.min(Math.max(order.indexOf(shot) + shots, 0), order.length - 1)];
      at -= 1;
    }
    const { measured } = this.shots[shot];
    const by = receivers || 1;
    at += by;
    while (at >= 0 && at < measured.length && measured[at] === null) at += by;
    if (measured[at] !== undefined && measured[at] !== null) this.choose({ shot, receiver: at });
  }
}
