// What texts of files may not do, and that a page needs nothing and loads nothing.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { after, before, test } from 'node:test';
import { launch, live, open } from './browser.mjs';

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

const figures = ['section', 'times', 'residuals', 'history', 'reciprocity', 'map'];

for (const name of ['bare', 'plain', 'hostile', 'german']) {
  test(`${name}: every figure draws without an error or a request`, async () => {
    const { page, trouble, close } = await open(browser, name);
    for (const figure of figures) {
      const place = page.locator(`.live[data-figure="${figure}"]:not([hidden])`);
      if ((await place.count()) > 0) await live(page, figure);
    }
    assert.deepEqual(trouble, []);
    await close();
  });
}

test('hostile texts are shown as they are and never run', async () => {
  const { page, trouble, close } = await open(browser, 'hostile');
  for (const figure of ['section', 'times', 'map']) await live(page, figure);
  const shown = await page.locator('h1').textContent();
  assert.match(shown, /^<script>alert\(1\)<\/script><\/script><script>window\.attacked = 1/);
  await page.locator('.live[data-figure=times] .chart').first().focus();
  await page.keyboard.press('ArrowRight');
  const section = await live(page, 'section');
  const names = await section.locator('select option').allTextContents();
  assert.ok(names.some((each) => each.includes('<a href=\'javascript:alert(1)\'>')), names.join());
  assert.ok(names.some((each) => each.includes('onerror')), names.join());
  await section.locator('select').first().selectOption({ index: 3 });
  await page.waitForTimeout(200);
  assert.equal(await page.evaluate(() => window.attacked), undefined);
  assert.equal(await page.locator('img[src="x"], a[href^="javascript"]').count(), 0);
  assert.equal(await page.locator('script').count(), 3);
  assert.deepEqual(trouble, []);
  await close();
});

test('the policy stops what gets into a page all the same', async () => {
  const { page, trouble, close } = await open(browser, 'plain');
  await page.evaluate(() => {
    const script = document.createElement('script');
    script.textContent = 'window.attacked = 1';
    document.body.append(script);
    const image = document.createElement('img');
    image.src = 'http://127.0.0.1:9/x.png';
    document.body.append(image);
  });
  await page.waitForTimeout(200);
  assert.equal(await page.evaluate(() => window.attacked), undefined);
  assert.ok(trouble.some((text) => text.includes('script')), 'the script is refused');
  assert.ok(trouble.some((text) => text.includes('127.0.0.1')), 'the picture is refused');
  await close();
});

test('nothing in the file itself points outside but the link to a map', () => {
  const text = readFileSync(`${process.env.WEB_PAGES}/plain.html`, 'utf8');
  const own = text.replace(/<script>\/\*\*[\s\S]*?<\/script>/, '');  // without the library
  assert.ok(own.length < text.length - 1000000);
  const urls = own.replace(/base64,[A-Za-z0-9+/=]*/g, '').match(/https?:\/\/[^\s"'`)]+/g) || [];
  const outside = urls.filter((url) => !url.startsWith('http://www.w3.org/2000/svg'));
  assert.ok(outside.every((url) => url.startsWith('https://www.openstreetmap.org/')), outside.slice(0, 5).join(' '));
  assert.doesNotMatch(own, /<(script|img|link|iframe|object)[^>]+src="(?!data:)/);
});

test('without scripts the still figures are there', async () => {
  const { page, close } = await open(browser, 'plain', { javaScriptEnabled: false });
  assert.ok((await page.locator('figure img.still:visible').count()) >= 6);
  await close();
});
