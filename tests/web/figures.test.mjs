// Every switch does what it says, and what is read is what the data has.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { after, before, test } from 'node:test';
import { launch, live, onScreen, open, traces } from './browser.mjs';

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

/** The cell that a test looks at: drawn, near the middle, and its centre. */
function middleCell({ section }) {
  const column = Math.floor(section.columns / 2);
  const cell = column + section.columns;
  const corner = (line, at) => section.z[line * (section.columns + 1) + at] / 100;
  const z = (corner(1, column) + corner(1, column + 1) + corner(2, column) + corner(2, column + 1)) / 4;
  return { cell, x: (section.x[column] + section.x[column + 1]) / 2, z };
}

function firstPick(shot) {
  return shot.measured.findIndex((time, i) => time !== null && shot.computed[i] !== null && shot.errors[i] !== null);
}

test('the section tells what lies under the pointer', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const place = await live(page, 'section');
  const { cell, x, z } = middleCell(data);
  for (const { key, name, values, places } of data.section.quantities) {
    await place.locator('select').first().selectOption(key);
    await page.waitForTimeout(150);
    await page.mouse.move(...(await onScreen(place.locator('.chart').first(), x, z)));
    const text = await place.locator('.readout').first().textContent();
    const read = Number(text.split(`${name} `)[1]?.split(' ')[0]);
    assert.equal(read, Number(values[cell].toFixed(places)), `${name}: ${text}`);
    assert.match(text, /^Distance 2\d\.\d\d m, elevation \d+\.\d\d m, depth 1\.\d\d m, Velocity/);
    assert.equal(await place.locator('.tip').first().textContent(), text);
  }
  assert.deepEqual(trouble, []);
  await close();
});

test('the section has a switch for all that lies over it', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const place = await live(page, 'section');
  const chart = place.locator('.chart').first();
  const isThere = {
    'Coverage limit': (all) => all.some((t) => t.dash === 'dash'),
    Geophones: (all) => all.some((t) => t.symbol === 'triangle-down'),
    Shots: (all) => all.some((t) => t.symbol === 'star'),
    Layers: (all) => all.some((t) => t.color === '#c2185b'),
  };
  for (const [name, there] of Object.entries(isThere)) {
    const box = place.getByLabel(name, { exact: true });
    assert.ok(there(await traces(chart)), `${name} at first`);
    await box.uncheck();
    assert.ok(!there(await traces(chart)), `${name} off`);
    await box.check();
    assert.ok(there(await traces(chart)), `${name} on again`);
  }
  const picture = () => chart.evaluate((element) => element.layout.images[0].source.length);
  const seen = new Set();
  for (const rays of ['all', 'none', '2']) {
    await place.getByLabel('Rays', { exact: true }).selectOption(rays);
    await page.waitForTimeout(250);
    seen.add(await picture());
  }
  assert.equal(seen.size, 3, 'rays change the picture');
  assert.equal(data.rays.length, data.shots.length);
  assert.deepEqual(trouble, []);
  await close();
});

test('range, palette, contours and exaggeration are those asked for', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const place = await live(page, 'section');
  const chart = place.locator('.chart').first();
  const bar = async () => (await traces(chart)).find((t) => t.scale);
  const first = await bar();
  assert.deepEqual(first.range, data.section.quantities[0].range);
  await place.getByLabel('Colours from').fill('600');
  await place.getByLabel('Colours to').fill('1500');
  await place.getByLabel('Colours to').press('Enter');
  assert.deepEqual((await bar()).range, [600, 1500]);
  await place.getByLabel('Colours to').fill('10');
  await place.getByLabel('Colours to').press('Enter');
  assert.deepEqual((await bar()).range, [600, 1500], 'an empty range is not taken');
  assert.equal(await place.getByLabel('Colours to').inputValue(), '1500');
  await place.getByLabel('Palette').selectOption({ index: 1 });
  assert.notDeepEqual((await bar()).scale, first.scale);
  const contours = async () => (await traces(chart)).filter((t) => t.color === '#222').length;
  assert.equal(await contours(), 0);
  await place.getByLabel('Contour lines').fill('5');
  await place.getByLabel('Contour lines').press('Enter');
  assert.equal(await contours(), 1);
  const said = await chart.evaluate(({ data: [...all] }) => all.find(({ mode }) => mode === 'text').text);
  const levels = ['750', '900', '1050', '1200', '1350'];
  assert.ok(said.length >= 5 && said.every((text) => levels.includes(text)), `${said} of ${levels}`);
  for (const factor of [2, 5]) {
    await place.getByLabel('Vertical exaggeration').selectOption(String(factor));
    await page.waitForTimeout(200);
    const [x, y] = await chart.evaluate(({ _fullLayout: { xaxis, yaxis } }) => [
      xaxis._length / (xaxis.range[1] - xaxis.range[0]),
      yaxis._length / (yaxis.range[1] - yaxis.range[0]),
    ]);
    assert.ok(Math.abs(y / x - factor) < 0.02 * factor, `${y / x} for ${factor}`);
  }
  assert.deepEqual(trouble, []);
  await close();
});

test('the wheel with Ctrl zooms around the pointer, and without scrolls the page', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const chart = (await live(page, 'section')).locator('.chart').first();
  const { x, z } = middleCell(data);
  const range = () => chart.evaluate((e) => e._fullLayout.xaxis.range.slice());
  const [a, b] = await range();
  await page.mouse.move(...(await onScreen(chart, x, z)));
  await page.keyboard.down('Control');
  await page.mouse.wheel(0, -100);
  await page.keyboard.up('Control');
  await page.waitForTimeout(150);
  const near = await range();
  assert.ok(near[1] - near[0] < 0.8 * (b - a));
  const part = (from, to) => (x - from) / (to - from);
  assert.ok(Math.abs(part(...near) - part(a, b)) < 0.01, 'what is pointed at stays');
  const top = () => page.evaluate(() => window.scrollY);
  const before = await top();
  await page.mouse.wheel(0, 100);
  await page.waitForTimeout(300);
  assert.deepEqual(await range(), near);
  assert.notEqual(await top(), before);
  assert.deepEqual(trouble, []);
  await close();
});

test('a click shows the profile below it', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const place = await live(page, 'section');
  const { x, z } = middleCell(data);
  await page.mouse.click(...(await onScreen(place.locator('.chart').first(), x, z)));
  const profile = place.locator('.profile');
  await profile.locator('.main-svg').first().waitFor();
  assert.match(await profile.locator('.chart-title').textContent(), /^Vertical profile at 2\d\.\d\d m$/);
  await profile.locator('summary').click();
  await profile.locator('tbody tr').first().waitFor();
  const rows = await profile.locator('tbody tr').evaluateAll((all) => all.map((row) => [...row.cells].map((c) => c.textContent)));
  const column = Math.floor(data.section.columns / 2);
  const drawn = data.section.quantities[0].values.filter((v, i) => i % data.section.columns === column && v !== null);
  assert.deepEqual(rows.map((row) => row[2]), drawn.map((v) => v.toFixed(0)));
  assert.deepEqual(trouble, []);
  await close();
});

test('a pick tells its figures, and a click shows its recording and its ray', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const place = await live(page, 'times');
  const chart = place.locator('.chart').first();
  const shot = data.shots[2];
  const i = firstPick(shot);
  await place.getByRole('button', { name: 'None' }).click();
  await place.getByLabel('Shot 3', { exact: true }).check();
  await page.waitForTimeout(150);
  const at = await onScreen(chart, shot.receivers[i], shot.measured[i]);
  await page.mouse.move(...at);
  const misfit = shot.computed[i] - shot.measured[i];
  const sign = misfit > 0 ? '+' : '';
  const said = `Shot 3, geophone ${i + 1} at ${shot.receivers[i].toFixed(2)} m, ${shot.measured[i].toFixed(2)} ± `
    + `${shot.errors[i].toFixed(2)} ms, computed ${shot.computed[i].toFixed(2)} ms, misfit ${sign}${misfit.toFixed(2)} ms`;
  assert.equal(await place.locator('.tip').first().textContent(), said);
  await page.mouse.click(...at);
  const gather = place.locator('.gather');
  await gather.locator('image').first().waitFor();
  assert.match(await gather.locator('.chart-title').textContent(), /shot3\.sg2.*Shot 3 of 7/);
  const section = await live(page, 'section');
  const red = (await traces(section.locator('.chart').first())).find((t) => t.color === '#e60000');
  assert.equal(red?.points, data.rays[2][i].length / 2);
  assert.deepEqual(trouble, []);
  await close();
});

/** How many pixels of the picture beneath a chart have each colour. */
function painted(chart, colors) {
  return chart.evaluate(async (element, wanted) => {
    const image = new Image();
    image.src = element.layout.images[0].source;
    await image.decode();
    const canvas = document.createElement('canvas');
    canvas.width = image.width;
    canvas.height = image.height;
    const context = canvas.getContext('2d');
    context.drawImage(image, 0, 0);
    const { data } = context.getImageData(0, 0, canvas.width, canvas.height);
    const counts = new Map();
    for (let i = 0; i < data.length; i += 4) {
      if (data[i + 3] !== 255) continue;
      const key = `#${[data[i], data[i + 1], data[i + 2]].map((c) => c.toString(16).padStart(2, '0')).join('')}`;
      counts.set(key, (counts.get(key) || 0) + 1);
    }
    return wanted.map((color) => counts.get(color) || 0);
  }, colors);
}

test('no line of a grid runs over picks, traces or cells', async () => {
  const { page, close } = await open(browser, 'plain');
  const times = await live(page, 'times');
  await times.locator('.chart').first().focus();
  await page.keyboard.press('ArrowRight');
  await times.locator('.gather image').first().waitFor();
  const section = await live(page, 'section');
  for (const chart of [times.locator('.chart').first(), times.locator('.gather .chart'), section.locator('.chart').first()]) {
    assert.equal(await chart.locator('.gridlayer path').count(), 0);
  }
  const grid = await page.evaluate(() => getComputedStyle(document.documentElement).getPropertyValue('--grid').trim());
  assert.ok((await painted(times.locator('.chart').first(), [grid]))[0] > 500, 'beneath them it is there');
  await close();
});

test('curves are switched by shot and by kind', async () => {
  const { page, trouble, close } = await open(browser, 'plain');
  const place = await live(page, 'times');
  const chart = place.locator('.chart').first();
  const count = async () => {
    await page.waitForTimeout(250);
    return painted(chart, ['#1f77b4', '#d1570a', '#2a8f2a']); // shots 1 to 3
  };
  const all = await count();
  assert.ok(all.every((pixels) => pixels > 50), all.join());
  await place.getByLabel('Shot 2', { exact: true }).uncheck();
  const without = await count();
  assert.equal(without[1], 0);
  assert.ok(without[0] > 50 && without[2] > 50);
  await place.getByRole('button', { name: 'All', exact: true }).click();
  let last = await count();
  assert.deepEqual(last, all);
  for (const name of ['Error bars', 'Computed', 'Measured']) {
    await place.getByLabel(name, { exact: true }).uncheck();
    const now = await count();
    assert.notDeepEqual(now, last, name);
    last = now;
  }
  assert.deepEqual(last, [0, 0, 0]);
  assert.deepEqual(trouble, []);
  await close();
});

test('misfit, history and reciprocity show the numbers of the data', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const tableOf = async (place, index) => {
    await place.locator('summary').nth(index).click();
    await place.locator('details').nth(index).locator('tbody tr').first().waitFor();
    return place.locator('details').nth(index).locator('tbody tr').evaluateAll(
      (all) => all.map((row) => [...row.cells].map((c) => Number(c.textContent))),
    );
  };
  const residuals = await live(page, 'residuals');
  const { perShot, perGeophone, section } = data.misfit;
  const numbers = (groups) => groups.map((g) => [g.at, g.rms, g.mean, g.picks]);
  assert.deepEqual(await tableOf(residuals, 0), numbers(perShot));
  assert.deepEqual(await tableOf(residuals, 1), numbers(perGeophone));
  const history = await live(page, 'history');
  assert.deepEqual((await tableOf(history, 0)).map((row) => row[1]), section);
  const reciprocity = await live(page, 'reciprocity');
  const pairs = await tableOf(reciprocity, 0);
  assert.deepEqual(pairs.map((row) => row.slice(0, 2)), data.reciprocity.map((pair) => pair.slice(0, 2)));
  assert.deepEqual(trouble, []);
  await close();
});

test('the map has the ends of the line and a plain link', async () => {
  const { page, data, close } = await open(browser, 'plain');
  const place = await live(page, 'map');
  const link = place.getByRole('link');
  assert.match(await link.getAttribute('href'), new RegExp(`mlat=${data.map.latitude}&mlon=${data.map.longitude}#`));
  assert.equal(await link.getAttribute('rel'), 'noopener noreferrer');
  await close();
});

test('picks and section are saved with all their numbers', async () => {
  const { page, data, trouble, close } = await open(browser, 'german');
  const saved = async (name) => {
    const [download] = await Promise.all([
      page.waitForEvent('download'),
      page.getByRole('button', { name }).click(),
    ]);
    return readFileSync(await download.path(), 'utf8').trim().split('\r\n').map((line) => line.split(','));
  };
  const picks = await saved('Picks as CSV');
  const times = data.shots.flatMap((shot) => shot.measured.filter((time) => time !== null));
  assert.deepEqual(picks.slice(1).map((row) => Number(row[4])), times);
  const cells = await saved('Section as CSV');
  const velocities = data.section.quantities[0].values.filter((value) => value !== null);
  assert.deepEqual(cells.slice(1).map((row) => Number(row[3])), velocities);
  assert.deepEqual(trouble, []);
  await close();
});

test('a German page writes its numbers with commas', async () => {
  const { page, data, close } = await open(browser, 'german');
  assert.equal(await page.locator('html').getAttribute('lang'), 'de');
  const place = await live(page, 'section');
  const { x, z } = middleCell(data);
  await page.mouse.move(...(await onScreen(place.locator('.chart').first(), x, z)));
  assert.match(await place.locator('.readout').first().textContent(), /Distance 2\d,\d\d m/);
  assert.match(await page.locator('td.number').nth(1).textContent(), /\d,\d\d/);
  await close();
});
