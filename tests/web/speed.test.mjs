// A survey of 50 shots by 96 traces, drawn in software. Processor time is measured, for other work
// on the machine makes clocks tell nothing.

import assert from 'node:assert/strict';
import { readFileSync, readdirSync } from 'node:fs';
import { after, before, test } from 'node:test';
import { launch, live, open, pageOf } from './browser.mjs';

const tickMs = 10; // of /proc on Linux
const longestOpening = 2000;
const longestFrame = 1000 / 30;

let browser;
before(async () => {
  browser = await launch();
});
after(() => browser.close());

/** Milliseconds of processor that the browser has used so far, by all of its processes. */
function browserTime() {
  const processes = new Map();
  for (const pid of readdirSync('/proc').filter((name) => /^\d+$/.test(name))) {
    try {
      const fields = readFileSync(`/proc/${pid}/stat`, 'latin1').split(') ').pop().split(' ');
      processes.set(Number(pid), { parent: Number(fields[1]), ticks: Number(fields[11]) + Number(fields[12]) });
    } catch {
      // it has ended meanwhile
    }
  }
  const isOurs = (pid) => pid === process.pid || (processes.has(pid) && isOurs(processes.get(pid).parent));
  let ticks = 0;
  for (const [pid, each] of processes) if (pid !== process.pid && isOurs(pid)) ticks += each.ticks;
  return ticks * tickMs;
}

test('it opens at once', async () => {
  const context = await browser.newContext({ viewport: { width: 1300, height: 900 } });
  const page = await context.newPage();
  const tools = await context.newCDPSession(page);
  await tools.send('Performance.enable');
  await page.goto(pageOf('large'));
  await page.evaluate(() => new Promise((done) => {
    requestAnimationFrame(() => requestAnimationFrame(done));
  }));
  const { metrics } = await tools.send('Performance.getMetrics');
  const used = 1000 * metrics.find(({ name }) => name === 'ProcessTime').value;
  console.log(`opened in ${used.toFixed(0)} ms of processor`);
  assert.ok(used < longestOpening, `${used} ms`);
  await context.close();
});

/** Processor time of a frame while the pointer drags a chart. */
async function frameWhilePanning(page, name) {
  const place = await live(page, name);
  const chart = place.locator('.chart').first();
  await chart.evaluate((element) => element.scrollIntoView({ block: 'center' }));
  await page.waitForTimeout(1500);
  const box = await chart.boundingBox();
  const middle = [box.x + box.width / 2, box.y + box.height / 2];
  await page.mouse.move(...middle);
  await page.mouse.down();
  await page.mouse.move(middle[0] + 10, middle[1]);
  await page.evaluate(() => {
    window.frameCount = 0;
    const count = () => {
      window.frameCount += 1;
      if (window.frameCount < 5000) requestAnimationFrame(count);
    };
    requestAnimationFrame(count);
  });
  const before = browserTime();
  const began = performance.now();
  for (let i = 1; i <= 60; i += 1) await page.mouse.move(middle[0] + 2 * i, middle[1] + i / 3);
  const used = browserTime() - before;
  const frames = await page.evaluate(() => window.frameCount);
  await page.mouse.up();
  const seconds = (performance.now() - began) / 1000;
  console.log(`${name}: ${(used / frames).toFixed(1)} ms of processor a frame, ${(frames / seconds).toFixed(0)} frames a second by the clock`);
  return used / frames;
}

for (const name of ['section', 'times']) {
  test(`${name} pans with 30 frames a second`, async () => {
    const { page, trouble, close } = await open(browser, 'large');
    const used = await frameWhilePanning(page, name);
    assert.ok(used < longestFrame, `${used} ms a frame`);
    assert.deepEqual(trouble, []);
    await close();
  });
}
