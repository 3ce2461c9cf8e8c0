// By keyboard and screen reader, in light and dark, narrow and on paper.

import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { axePath, launch, live, open } from './browser.mjs';

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

const figures = ['section', 'times', 'residuals', 'history', 'reciprocity', 'map'];

/** Serious and critical findings of axe-core, one line each. The driver sets the policy aside for it. */
async function findings(page) {
  await page.addScriptTag({ path: axePath });
  const { violations } = await page.evaluate(() => window.axe.run());
  return violations
    .filter(({ impact }) => impact === 'serious' || impact === 'critical')
    .map(({ id, nodes }) => `${id}: ${nodes.slice(0, 3).map((node) => node.html.slice(0, 120)).join(' | ')}`);
}

const looks = [
  ['light', { colorScheme: 'light' }],
  ['dark', { colorScheme: 'dark' }],
  ['narrow', { colorScheme: 'light', viewport: { width: 380, height: 760 } }],
];
for (const [name, options] of looks) {
  test(`${name}: axe-core finds nothing serious, and nothing is wider than the page`, async () => {
    const { page, close } = await open(browser, 'plain', { ...options, bypassCSP: true });
    for (const figure of figures) await live(page, figure);
    await page.locator('.live[data-figure=times] .chart').first().focus();
    await page.keyboard.press('ArrowRight');
    assert.deepEqual(await findings(page), []);
    const [wide, room] = await page.evaluate(() => [document.documentElement.scrollWidth, window.innerWidth]);
    assert.ok(wide <= room, `${wide} of ${room}`);
    await close();
  });
}

test('the curves and the section are read by keys alone', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  await page.keyboard.press('Tab');
  assert.equal(await page.evaluate(() => document.activeElement.className), 'skip');
  const times = await live(page, 'times');
  const chart = times.locator('.chart').first();
  for (let i = 0; i < 60; i += 1) {
    if (await chart.evaluate((element) => element === document.activeElement)) break;
    await page.keyboard.press('Tab');
  }
  await page.keyboard.press('ArrowRight');
  await page.keyboard.press('ArrowUp');
  const readout = times.locator('.readout').first();
  const first = data.shots[0].measured.findIndex((time) => time !== null);
  assert.match(await readout.textContent(), new RegExp(`^Shot 2, geophone ${first + 1} at `));
  await page.keyboard.press('ArrowRight');
  assert.match(await readout.textContent(), new RegExp(`^Shot 2, geophone ${first + 2} at `));
  assert.ok(await times.locator('.gather').isVisible());

  const section = await live(page, 'section');
  await section.locator('.chart').first().focus();
  await page.keyboard.press('ArrowDown');
  const before = await section.locator('.readout').first().textContent();
  await page.keyboard.press('ArrowDown');
  const deeper = await section.locator('.readout').first().textContent();
  const depth = (text) => Number(/depth (\d+\.\d+) m/.exec(text)[1]);
  assert.ok(depth(deeper) > depth(before) + 0.5);
  const range = () => section.locator('.chart').first().evaluate((e) => e._fullLayout.xaxis.range.slice());
  const whole = await range();
  await page.keyboard.press('+');
  await page.waitForTimeout(100);
  const near = await range();
  assert.ok(near[1] - near[0] < 0.8 * (whole[1] - whole[0]));
  await page.keyboard.press('0');
  await page.waitForTimeout(100);
  assert.deepEqual(await range(), whole);
  await page.keyboard.press('Enter');
  assert.ok(await section.locator('.profile').isVisible());
  assert.deepEqual(trouble, []);
  await close();
});

test('recordings and charts of misfit are read by keys alone', async () => {
  const { page, data, trouble, close } = await open(browser, 'plain');
  const times = await live(page, 'times');
  await times.locator('.chart').first().focus();
  await page.keyboard.press('ArrowRight');
  await times.locator('.gather .chart').focus();
  await page.keyboard.press('ArrowUp');
  await page.keyboard.press('ArrowRight');
  const { measured } = data.shots[1];
  const pickFrom = (from) => measured.findIndex((time, i) => i >= from && time !== null);
  const reachedPick = pickFrom(pickFrom(data.shots[0].measured.findIndex((time) => time !== null)) + 1);
  const said = await times.locator('.readout').first().textContent();
  assert.match(said, new RegExp(`^Shot 2, geophone ${reachedPick + 1} at `));

  const { perShot, section } = data.misfit;
  const reached = {
    residuals: `Shot 2, RMS ${perShot[1].rms.toFixed(3)} ms, `,
    history: `Iteration 1, RMS ${section[1].toFixed(3)} ms`,
    reciprocity: `Shots ${data.reciprocity[1][0]} and ${data.reciprocity[1][1]}, there `,
  };
  for (const [name, text] of Object.entries(reached)) {
    const place = await live(page, name);
    await place.locator('.chart').first().focus();
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('ArrowRight');
    for (const part of ['.readout', '.tip']) {
      const read = await place.locator(part).first().textContent();
      assert.ok(read.startsWith(text), `${name}: ${read}`);
    }
  }
  assert.deepEqual(trouble, []);
  await close();
});

test('headings go down one by one, and every picture and table has a name', async () => {
  const { page, close } = await open(browser, 'plain');
  const levels = await page.locator('h1, h2, h3').evaluateAll((all) => all.map((h) => Number(h.tagName[1])));
  assert.equal(levels.filter((level) => level === 1).length, 1);
  levels.forEach((level, i) => assert.ok(i === 0 || level <= levels[i - 1] + 1));
  const names = await page.locator('img').evaluateAll((all) => all.map((image) => image.alt));
  assert.ok(names.length >= 6 && names.every((alt) => /^Figure \d+\. /.test(alt)), names.join());
  assert.equal(await page.locator('main, nav').count(), 2);
  await close();
});

test('the switch turns dark and light, and charts go with it', async () => {
  const { page, close } = await open(browser, 'plain', { colorScheme: 'light' });
  const section = await live(page, 'section');
  const colors = () => section.locator('.chart').first().evaluate((element) => [
    getComputedStyle(document.body).backgroundColor, element.layout.font.color,
  ]);
  const light = await colors();
  await page.getByRole('button', { name: 'Dark' }).click();
  const dark = await colors();
  assert.notEqual(dark[0], light[0]);
  assert.notEqual(dark[1], light[1]);
  await page.getByRole('button', { name: 'Light' }).click();
  assert.deepEqual(await colors(), light);
  await close();
});

test('on paper the still figures stand in for the live ones that have one', async () => {
  const { page, close } = await open(browser, 'plain', { colorScheme: 'dark' });
  for (const figure of figures) await live(page, figure);
  await page.emulateMedia({ media: 'print' });
  const onPaper = await page.locator('.live:visible').evaluateAll((all) => all.map((e) => e.dataset.figure));
  assert.deepEqual(onPaper.sort(), ['map', 'reciprocity', 'residuals']);
  const pictures = await page.locator('img.still').count();
  assert.equal(await page.locator('img.still:visible').count(), pictures);
  const paper = await page.evaluate(() => getComputedStyle(document.body).backgroundColor);
  assert.equal(paper, 'rgb(255, 255, 255)');
  await close();
});

test('what has no still figure is drawn for paper, seen before or not', async () => {
  const { page, trouble, close } = await open(browser, 'plain', { colorScheme: 'dark' });
  await page.evaluate(() => window.dispatchEvent(new Event('beforeprint')));
  await page.emulateMedia({ media: 'print' });
  const charts = page.locator('.live.printed .chart:visible');
  await charts.nth(2).locator('.main-svg').first().waitFor();
  assert.equal(await charts.count(), 3);
  const looks = await charts.evaluateAll((all) => all.map(({ layout }) => [layout.width, layout.font.color]));
  assert.deepEqual(looks, Array(3).fill([640, '#000']));
  assert.ok(await page.locator('svg.map').isVisible());
  await page.evaluate(() => window.dispatchEvent(new Event('afterprint')));
  assert.notEqual(await charts.first().evaluate(({ layout }) => layout.font.color), '#000');
  assert.deepEqual(trouble, []);
  await close();
});
