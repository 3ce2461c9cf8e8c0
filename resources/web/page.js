// Puts the page together: what is live takes the place of its still figure.

const figures = {};

function showSection(place) {
  if (data.section.cells) {
    place.append(make('p', { class: 'note', text: say(words.tooManyCells, data.section.cells) }));
    return false;
  }
  figures.section = new SectionFigure(place, data.section, data.rays);
  figures.section.redraw();
  if (figures.pick) figures.section.showPick(figures.pick);
  return true;
}

function showTimes(place) {
  const chosen = (pick) => {
    figures.pick = pick;
    figures.section?.showPick(pick);
    figures.gather.show(pick);
  };
  figures.times = new TimesFigure(place, data.shots, chosen);
  figures.gather = new GatherFigure(place, data.shots, data.gathers, figures.times.stepKeys());
  figures.times.chart.draw();
  return true;
}

const builders = {
  section: { has: () => data.section?.columns || data.section?.cells, build: showSection },
  times: { has: () => data.shots?.length > 0, build: showTimes },
  residuals: { has: () => data.misfit?.perShot?.length > 0, build: (place) => showResiduals(place, data.misfit) },
  history: { has: () => data.misfit?.section?.length > 1, build: (place) => showHistory(place, data.misfit) },
  reciprocity: { has: () => data.reciprocity?.length > 0, build: (place) => showReciprocity(place, data.reciprocity) },
  map: { has: () => data.map?.ends, build: (place) => showMap(place, data.map) },
};

/** Shows the still figure again where the live one cannot be made. */
function build(place) {
  if (place.dataset.built) return;
  place.dataset.built = 'yes';
  const figure = place.closest('figure');
  figure?.classList.add('is-live');
  try {
    if (builders[place.dataset.figure].build(place) === false) figure?.classList.remove('is-live');
  } catch (error) {
    place.replaceChildren();
    place.hidden = true;
    figure?.classList.remove('is-live');
    console.error(error);
  }
}

/** A figure is built when it comes near: long pages open at once. */
function startFigures() {
  const places = [...document.querySelectorAll('.live')].filter((place) => builders[place.dataset.figure].has());
  const nearby = new IntersectionObserver((entries) => {
    for (const entry of entries) {
      if (!entry.isIntersecting) continue;
      nearby.unobserve(entry.target);
      build(entry.target);
    }
  }, { rootMargin: '400px' });
  for (const place of places) {
    place.hidden = false;
    place.closest('figure')?.classList.add('is-live');
    nearby.observe(place);
  }
}

function addTools() {
  const tools = make('div', { class: 'tools', role: 'group', 'aria-label': words.tools });
  tools.append(themeButton(words.dark, words.light, redrawCharts));
  if (data.shots?.some((shot) => shot.measured.some((time) => time !== null))) {
    tools.append(button(words.picksCsv, () => download('picks.csv', picksCsv(data.shots, data.metres))));
  }
  if (data.section?.columns) {
    tools.append(button(words.sectionCsv, () => download('section.csv', sectionCsv(data.section, data.metres))));
  }
  document.getElementById('contents').append(tools);
}

/** On paper what has no still figure is drawn in the width of a sheet, black on white. */
function printFigures(begins) {
  printing = begins;
  for (const place of document.querySelectorAll('.live.printed:not([hidden])')) if (begins) build(place);
  redrawCharts((chart) => chart.element.closest('.printed'));
}

window.addEventListener('beforeprint', () => printFigures(true));
window.addEventListener('afterprint', () => printFigures(false));

addTools();
startFigures();
