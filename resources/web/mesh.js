// The cells of the section: columns with upright sides, rows that follow the surface.

class Mesh {
  constructor(section) {
    this.rows = section.rows;
    this.columns = section.columns;
    this.x = section.x;
    this.z = section.z.map((hundredths) => hundredths / 100);
    this.surface = section.surface;
  }

  corner(line, column) {
    return this.z[line * (this.columns + 1) + column];
  }

  /** The column at x and how far into it x lies; none beyond the ends. */
  columnAt(x) {
    const { x: sides, columns } = this;
    if (!(x >= sides[0] && x <= sides[columns])) return null;
    let low = 0;
    let high = columns;
    while (high - low > 1) {
      const middle = (low + high) >> 1;
      if (sides[middle] <= x) low = middle;
      else high = middle;
    }
    return { column: low, part: (x - sides[low]) / (sides[low + 1] - sides[low]) };
  }

  /** Elevation of a line of cells within a column. */
  lineAt(line, { column, part }) {
    const a = this.corner(line, column);
    return a + part * (this.corner(line, column + 1) - a);
  }

  /** Index of the cell at a place, -1 beside all cells. */
  cellAt(x, z) {
    const at = this.columnAt(x);
    if (!at) return -1;
    for (let row = 0; row < this.rows; row += 1) {
      if (z <= this.lineAt(row, at) && z >= this.lineAt(row + 1, at)) {
        return row * this.columns + at.column;
      }
    }
    return -1;
  }

  /** Elevation of the ground. */
  groundAt(x) {
    const { surface } = this;
    for (let i = 2; i < surface.length; i += 2) {
      if (x > surface[i] || x < surface[i - 2]) continue;
      const part = (x - surface[i - 2]) / (surface[i] - surface[i - 2]);
      return surface[i - 1] + part * (surface[i + 1] - surface[i - 1]);
    }
    return NaN;
  }

  /** The cells below a place that have a value: depths below ground, and the value between them. */
  profile(x, values) {
    const at = this.columnAt(x);
    if (!at) return [];
    const ground = this.lineAt(0, at);
    const steps = [];
    for (let row = 0; row < this.rows; row += 1) {
      const value = values[row * this.columns + at.column];
      if (value === null) continue;
      const top = ground - this.lineAt(row, at);
      steps.push({ top, bottom: ground - this.lineAt(row + 1, at), value });
    }
    return steps;
  }

  /** Mean of the cells that meet in each corner; NaN where there is none. */
  cornerMeans(values) {
    const { rows, columns } = this;
    const width = columns + 1;
    const sums = new Float64Array((rows + 1) * width);
    const counts = new Uint8Array(sums.length);
    values.forEach((value, cell) => {
      if (value === null) return;
      const first = Math.floor(cell / columns) * width + (cell % columns);
      for (const at of [first, first + 1, first + width, first + width + 1]) {
        sums[at] += value;
        counts[at] += 1;
      }
    });
    return sums.map((sum, i) => (counts[i] ? sum / counts[i] : NaN));
  }

  /** Iso-lines through the cells that have a value, as x and z with gaps. */
  contours(values, levels) {
    const lines = { x: [], z: [], levels: [] };
    /** Where a level crosses a distance, or as near to it as `within`; null for no such place. */
    lines.nearest = (level, x, within) => {
      let best = null;
      let least = within;
      lines.levels.forEach((each, i) => {
        const away = Math.abs(lines.x[3 * i] - x);
        if (each !== level || away >= least) return;
        least = away;
        best = { x: lines.x[3 * i], z: lines.z[3 * i] };
      });
      return best;
    };
    const means = this.cornerMeans(values);
    for (let cell = 0; cell < values.length; cell += 1) {
      if (values[cell] !== null) this.addContoursOf(cell, means, levels, lines);
    }
    return lines;
  }

  addContoursOf(cell, means, levels, lines) {
    const width = this.columns + 1;
    const column = cell % this.columns;
    const first = Math.floor(cell / this.columns) * width + column;
    const around = [first, first + 1, first + width + 1, first + width];
    const x = [this.x[column], this.x[column + 1], this.x[column + 1], this.x[column]];
    for (const level of levels) {
      const crossings = [];
      for (let side = 0; side < 4; side += 1) {
        const next = (side + 1) % 4;
        const a = means[around[side]];
        const b = means[around[next]];
        if (a < level === b < level) continue;
        const part = (level - a) / (b - a);
        crossings.push([
          x[side] + part * (x[next] - x[side]),
          this.z[around[side]] + part * (this.z[around[next]] - this.z[around[side]]),
        ]);
      }
      for (let i = 0; i + 1 < crossings.length; i += 2) {
        lines.x.push(crossings[i][0], crossings[i + 1][0], null);
        lines.z.push(crossings[i][1], crossings[i + 1][1], null);
        lines.levels.push(level);
      }
    }
  }
}

/** x and z of a list that has them one after the other. */
function unzip(points) {
  return {
    x: points.filter((_, i) => i % 2 === 0),
    z: points.filter((_, i) => i % 2 === 1),
  };
}

/** A ray from its steps in hundredths of the unit shown. */
function rayPoints(steps) {
  const ray = { x: [], z: [] };
  let x = 0;
  let z = 0;
  for (let i = 0; i + 1 < steps.length; i += 2) {
    x += steps[i];
    z += steps[i + 1];
    ray.x.push(x / 100);
    ray.z.push(z / 100);
  }
  return ray;
}
