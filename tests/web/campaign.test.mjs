// The page of a campaign: its links, its table by keys, its looks, and hostile names.

import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { axePath, launch, open } from './browser.mjs';

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

const names = (page) => page.locator('#campaign tbody th').allTextContents();

test('a link leads to the page of its line, whatever the line is called', async () => {
  const { page, trouble, close } = await open(browser, 'campaign/index');
  const links = page.locator('#campaign tbody th a');
  assert.equal(await links.count(), 3);
  for (const href of await links.evaluateAll((all) => all.map((link) => link.href))) {
    assert.match(href, /\/pages\/campaign\/[^/?#]+\.html$/);
  }
  const hostile = page.locator('#campaign').getByRole('link', { name: '../<b onclick="x">50% & #1?', exact: true });
  await hostile.click();
  await page.waitForLoadState();
  assert.equal(await page.locator('h1').textContent(), 'Test line');
  assert.deepEqual(trouble.filter((each) => !each.startsWith('request: file:')), []);
  await close();
});

test('keys sort the table, and lines that failed stay at its end', async () => {
  const { page, trouble, close } = await open(browser, 'campaign/index');
  const at = (row) => page.locator(`#campaign tbody tr:nth-child(${row})`);
  const before = await names(page);
  assert.equal(before.length, 4);
  const button = page.getByRole('button', { name: 'RMS misfit [ms]' });
  await button.focus();
  await page.keyboard.press('Enter');
  const heading = page.locator('#campaign th', { has: button });
  assert.equal(await heading.getAttribute('aria-sort'), 'ascending');
  const column = await heading.evaluate((cell) => cell.cellIndex);
  const values = async () => (await page.locator('#campaign tbody tr').evaluateAll(
    (rows, index) => rows.map((row) => row.cells[index]?.dataset.value), column,
  )).filter((value) => value !== undefined).map(Number);
  const up = await values();
  assert.ok(up.length === 2 && up[0] < up[1], up.join());
  assert.match(await at(4).textContent(), /Failed: line\.tvsk is not a valid project/);
  await page.keyboard.press('Space');
  assert.equal(await heading.getAttribute('aria-sort'), 'descending');
  assert.deepEqual(await values(), [...up].reverse());
  assert.match(await at(4).textContent(), /Failed:/);
  await page.getByRole('button', { name: 'No.' }).press('Enter');
  assert.deepEqual(await names(page), before);
  assert.deepEqual(trouble, []);
  await close();
});

test('the map leads to the row of a line', async () => {
  const { page, close } = await open(browser, 'campaign/index');
  await page.locator('.campaign-map a').first().focus();
  await page.keyboard.press('Enter');
  assert.equal(new URL(page.url()).hash, '#line-1');
  await close();
});

const looks = [
  ['light', { colorScheme: 'light' }],
  ['dark', { colorScheme: 'dark' }],
  ['narrow', { colorScheme: 'light', viewport: { width: 390, height: 760 } }],
];
for (const [name, options] of looks) {
  test(`${name}: axe-core finds nothing serious, and nothing is wider than the page`, async () => {
    const { page, trouble, close } = await open(browser, 'campaign/index', { ...options, bypassCSP: true });
    await page.addScriptTag({ path: axePath });
    const { violations } = await page.evaluate(() => window.axe.run());
    const serious = violations.filter(({ impact }) => impact === 'serious' || impact === 'critical');
    assert.deepEqual(serious.map(({ id, nodes }) => `${id}: ${nodes[0].html.slice(0, 150)}`), []);
    const [wide, room] = await page.evaluate(() => [document.documentElement.scrollWidth, window.innerWidth]);
    assert.ok(wide <= room, `${wide} of ${room}`);
    assert.deepEqual(trouble, []);
    await close();
  });
}

test('a button switches between light and dark', async () => {
  const { page, close } = await open(browser, 'campaign/index', { colorScheme: 'light' });
  const ground = () => page.evaluate(() => getComputedStyle(document.body).backgroundColor);
  const light = await ground();
  await page.getByRole('button', { name: 'Dark' }).click();
  assert.notEqual(await ground(), light);
  await page.getByRole('button', { name: 'Light' }).click();
  assert.equal(await ground(), light);
  await close();
});
