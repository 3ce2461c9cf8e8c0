// Pictures of what has too many parts for lines of a chart: cells, rays, traces.

/** The cells in the colours of their classes. */
function paintCells(context, mesh, values, classes, range, toX, toY) {
  const paths = classes.map(() => new Path2D());
  const width = mesh.columns + 1;
  const x = mesh.x.map(toX);
  for (let cell = 0; cell < values.length; cell += 1) {
    const value = values[cell];
    if (value === null) continue;
    const column = cell % mesh.columns;
    const first = Math.floor(cell / mesh.columns) * width + column;
    const path = paths[classOf(value, range, classes.length)];
    path.moveTo(x[column], toY(mesh.z[first]));
    path.lineTo(x[column + 1], toY(mesh.z[first + 1]));
    path.lineTo(x[column + 1], toY(mesh.z[first + width + 1]));
    path.lineTo(x[column], toY(mesh.z[first + width]));
    path.closePath();
  }
  context.lineWidth = 0.7; // closes the seams between cells of one colour
  paths.forEach((path, i) => {
    context.fillStyle = classes[i];
    context.strokeStyle = classes[i];
    context.fill(path);
    context.stroke(path);
  });
}

function paintLine(context, points, toX, toY) {
  points.x.forEach((x, i) => {
    if (i === 0) context.moveTo(toX(x), toY(points.z[i]));
    else context.lineTo(toX(x), toY(points.z[i]));
  });
}

/** The more rays there are the lighter, so that they do not hide the section. */
function paintRays(context, rays, toX, toY) {
  context.strokeStyle = '#000';
  context.globalAlpha = Math.min(Math.max(60 / Math.max(rays.length, 1), 0.12), 0.7);
  context.lineWidth = 0.8;
  context.beginPath();
  for (const ray of rays) paintLine(context, ray, toX, toY);
  context.stroke();
  context.globalAlpha = 1;
}

/** The traces of a recording as wiggles, their positive side filled. */
function paintTraces(context, traces, color, toX, toY) {
  context.strokeStyle = color;
  context.fillStyle = color;
  context.lineWidth = 0.7;
  for (const trace of traces) {
    const line = new Path2D();
    const fill = new Path2D();
    const x = trace.swings.map((swing) => toX(trace.x + swing));
    const middle = toX(trace.x);
    let open = false;
    trace.times.forEach((time, i) => {
      const y = toY(time);
      if (Number.isNaN(x[i])) {
        if (open) fill.lineTo(middle, y);
        open = false;
        return;
      }
      if (open) line.lineTo(x[i], y);
      else {
        line.moveTo(x[i], y);
        fill.moveTo(middle, y);
      }
      fill.lineTo(Math.max(x[i], middle), y);
      open = true;
    });
    if (open) fill.lineTo(middle, toY(trace.times[trace.times.length - 1]));
    context.globalAlpha = 0.75;
    context.fill(fill);
    context.globalAlpha = 1;
    context.stroke(line);
  }
}

/** A line from receiver to receiver along the line, broken where there is no time. */
function paintCurve(context, receivers, times, color, toX, toY) {
  const order = receivers.map((_, at) => at).filter((at) => receivers[at] !== null);
  order.sort((a, b) => receivers[a] - receivers[b]);
  context.strokeStyle = color;
  context.lineWidth = 1.2;
  context.beginPath();
  let open = false;
  for (const at of order) {
    if (times[at] === null) open = false;
    else if (open) context.lineTo(toX(receivers[at]), toY(times[at]));
    else {
      context.moveTo(toX(receivers[at]), toY(times[at]));
      open = true;
    }
  }
  context.stroke();
}

function paintDots(context, receivers, times, color, toX, toY) {
  context.fillStyle = color;
  context.beginPath();
  times.forEach((time, at) => {
    if (time === null || receivers[at] === null) return;
    const x = toX(receivers[at]);
    const y = toY(time);
    context.moveTo(x + 2.5, y);
    context.arc(x, y, 2.5, 0, 2 * Math.PI);
  });
  context.fill();
}

/** One standard deviation up and down, with caps. */
function paintBars(context, receivers, times, errors, color, toX, toY) {
  context.strokeStyle = color;
  context.lineWidth = 1;
  context.beginPath();
  times.forEach((time, at) => {
    if (time === null || receivers[at] === null || errors[at] === null) return;
    const x = toX(receivers[at]);
    const ends = [toY(time - errors[at]), toY(time + errors[at])];
    context.moveTo(x, ends[0]);
    context.lineTo(x, ends[1]);
    for (const y of ends) {
      context.moveTo(x - 2.5, y);
      context.lineTo(x + 2.5, y);
    }
  });
  context.stroke();
}
