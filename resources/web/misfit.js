// How the section explains the picks, and how picks go with each other there and back.

function hoverLook(colors) {
  return {
    hovermode: 'closest',
    hoverlabel: { bgcolor: colors.paper, bordercolor: colors.text, font: { color: colors.text } },
  };
}

/** However many lines it takes. */
const legendAbove = { orientation: 'h', x: 0, y: 1.02, yanchor: 'bottom' };

/** A chart of numbers with the same numbers as a table; keys go from mark to mark of `marks`. */
function chartWithTable(place, name, describe, headings, rows, marks) {
  const box = make('div', { class: 'numbers-chart' }, [make('p', { class: 'chart-title', text: name })]);
  const chart = new Chart(box, name, describe, 260);
  const readout = make('p', { class: 'readout', 'aria-live': 'polite', text: words.marksHelp });
  let at = -1;
  const step = (by) => () => {
    at = Math.min(Math.max(at + by, 0), marks.length - 1);
    const { x, y, text } = marks[at];
    readout.textContent = text.join(', ');
    chart.showTip(x, y, text.join(', '));
  };
  chart.listenToKeys(name, words.marksHelp, { ArrowLeft: step(-1), ArrowRight: step(1) });
  chart.element.addEventListener('blur', () => chart.hideTip());
  box.append(readout, numbersTable(words.numbers, () => headings, rows).element);
  place.append(box);
  chart.draw();
  return chart;
}

/** \param at what the groups are told apart by: its title, places and how it is said */
function residualChart(place, name, groups, at) {
  const text = (group) => [
    say(at.said, number(group.at, at.places)),
    say(words.rmsMs, number(group.rms, 3)),
    say(words.meanMs, signed(group.mean, 3)),
    say(words.picks, group.picks),
  ];
  const describe = (colors) => ({
    traces: [
      {
        type: 'bar',
        x: groups.map((group) => group.at),
        y: groups.map((group) => group.rms),
        marker: { color: '#4c8dc9' },
        name: chartText(words.rms),
        hovertext: groups.map((group) => text(group).join('<br>')),
        hoverinfo: 'text',
      },
      {
        type: 'scatter',
        mode: 'markers',
        x: groups.map((group) => group.at),
        y: groups.map((group) => group.mean),
        marker: { color: '#d1570a', size: 7, symbol: 'diamond' },
        name: chartText(words.mean),
        hovertext: groups.map((group) => text(group).join('<br>')),
        hoverinfo: 'text',
      },
    ],
    layout: {
      ...hoverLook(colors),
      showlegend: true,
      legend: legendAbove,
      xaxis: axisLook(colors, at.title, {}),
      yaxis: axisLook(colors, words.residualMs, { zeroline: true, zerolinecolor: colors.text }),
    },
  });
  const headings = [at.title, words.rms, words.mean, words.picksColumn];
  const rows = () => groups.map((group) => [
    number(group.at, at.places), number(group.rms, 3), signed(group.mean, 3), String(group.picks),
  ]);
  const marks = groups.map((group) => ({ x: group.at, y: group.rms, text: text(group) }));
  chartWithTable(place, name, describe, headings, rows, marks);
}

function showResiduals(place, misfit) {
  const shots = { title: words.shotColumn, places: 0, said: words.shot };
  const geophones = { title: words.distance, places: 2, said: words.atDistance };
  residualChart(place, words.misfitPerShot, misfit.perShot, shots);
  residualChart(place, words.misfitPerGeophone, misfit.perGeophone, geophones);
}

function showHistory(place, misfit) {
  const sections = misfit.section;
  const passes = misfit.passes;
  const count = Math.max(sections.length, passes.length + 1);
  const text = (value, iteration) => [say(words.iteration, iteration), say(words.rmsMs, number(value, 3))];
  const curve = (values, first, name, color) => ({
    type: 'scatter',
    mode: 'lines+markers',
    x: values.map((_, i) => i + first),
    y: values,
    name: chartText(name),
    line: { color },
    hovertext: values.map((value, i) => text(value, i + first).join('<br>')),
    hoverinfo: 'text',
  });
  const describe = (colors) => ({
    traces: [
      curve(sections, 0, words.ofSection, '#2171d6'),
      ...(passes.length ? [curve(passes, 1, words.ofPass, '#888888')] : []),
    ],
    layout: {
      ...hoverLook(colors),
      showlegend: passes.length > 0,
      legend: legendAbove,
      xaxis: axisLook(colors, words.iterations, { dtick: count > 12 ? undefined : 1 }),
      yaxis: axisLook(colors, words.rms, { rangemode: 'tozero' }),
    },
  });
  const headings = [words.iterations, words.ofSection, ...(passes.length ? [words.ofPass] : [])];
  const rows = () => Array.from({ length: count }, (_, i) => [
    String(i), number(sections[i], 3), ...(passes.length ? [number(passes[i - 1], 3)] : []),
  ]);
  const marks = sections.map((value, i) => ({ x: i, y: value, text: text(value, i) }))
    .filter(({ y }) => y !== null);
  chartWithTable(place, words.misfitPerIteration, describe, headings, rows, marks);
}

function showReciprocity(place, pairs) {
  const last = pairs.reduce((most, pair) => Math.max(most, pair[2], pair[3]), 1) * 1.05;
  const text = ([a, b, there, back]) => [
    say(words.shotPair, a, b),
    say(words.thereMs, number(there, 2)),
    say(words.backMs, number(back, 2)),
    say(words.differenceMs, signed(there - back, 2)),
  ];
  const describe = (colors) => ({
    traces: [
      { type: 'scatter', mode: 'lines', x: [0, last], y: [0, last], line: { color: colors.text, width: 1 }, hoverinfo: 'skip' },
      {
        type: 'scatter',
        mode: 'markers',
        x: pairs.map((pair) => pair[2]),
        y: pairs.map((pair) => pair[3]),
        marker: { color: '#d1570a', size: 7 },
        hovertext: pairs.map((pair) => text(pair).join('<br>')),
        hoverinfo: 'text',
      },
    ],
    layout: {
      ...hoverLook(colors),
      xaxis: axisLook(colors, words.there, { range: [0, last] }),
      yaxis: axisLook(colors, words.back, { range: [0, last] }),
    },
  });
  const headings = [words.shotColumn, words.shotColumn, words.there, words.back, words.difference];
  const rows = () => pairs.map(([a, b, there, back]) => [
    String(a), String(b), number(there, 2), number(back, 2), signed(there - back, 2),
  ]);
  const marks = pairs.map((pair) => ({ x: pair[2], y: pair[3], text: text(pair) }));
  chartWithTable(place, words.reciprocity, describe, headings, rows, marks);
}
