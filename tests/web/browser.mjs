// A page in Debian's Chromium, and what went wrong in it.

import { createRequire } from 'node:module';
import { pathToFileURL } from 'node:url';

const require = createRequire(`${process.env.WEB_PACKAGES}/`);
export const { chromium } = require('playwright-core');
export const axePath = require.resolve('axe-core/axe.min.js');

const quiet = [
  '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync',
];

export function launch() {
  return chromium.launch({ executablePath: process.env.CHROMIUM, args: quiet });
}

export function pageOf(name) {
  return pathToFileURL(`${process.env.WEB_PAGES}/${name}.html`).href;
}

/** Opens a page; `trouble` holds its errors, warnings of its policy and all that it asked for. */
export async function open(browser, name, options = {}) {
  const context = await browser.newContext({ viewport: { width: 1300, height: 900 }, ...options });
  const page = await context.newPage();
  const trouble = [];
  const file = pageOf(name);
  page.on('console', (message) => {
    if (message.type() === 'error' || message.type() === 'warning') trouble.push(message.text());
  });
  page.on('pageerror', (error) => trouble.push(error.message));
  page.on('dialog', (dialog) => {
    trouble.push(`dialog: ${dialog.message()}`);
    dialog.dismiss();
  });
  page.on('request', (request) => {
    const url = request.url();
    if (url !== file && !/^(data|blob):/.test(url)) trouble.push(`request: ${url}`);
  });
  await page.goto(file);
  const data = await page.evaluate(() => JSON.parse(document.getElementById('data')?.textContent ?? 'null'));
  return { page, trouble, data, close: () => context.close() };
}

/** Brings a live figure into view and waits until it is drawn. */
export async function live(page, name) {
  const place = page.locator(`.live[data-figure="${name}"]`);
  await place.scrollIntoViewIfNeeded();
  await place.locator('.chart .main-svg, svg.map').first().waitFor();
  await page.waitForTimeout(150);
  return place;
}

/** Where a place of a chart is on the screen. */
export async function onScreen(chart, x, y) {
  return chart.evaluate((element, [placeX, placeY]) => {
    const { xaxis, yaxis } = element._fullLayout;
    const box = element.getBoundingClientRect();
    return [
      box.left + xaxis._offset + xaxis.d2p(placeX),
      box.top + yaxis._offset + yaxis.d2p(placeY),
    ];
  }, [x, y]);
}

/** The largest of what the chart shows of each kind of trace: its traces by a test on them. */
export function traces(chart) {
  return chart.evaluate((element) => element.data.map((trace) => ({
    mode: trace.mode,
    type: trace.type,
    points: trace.x ? trace.x.length : 0,
    symbol: trace.marker && trace.marker.symbol,
    dash: trace.line && trace.line.dash,
    color: trace.line && trace.line.color,
    bars: Boolean(trace.error_y && trace.error_y.array),
    scale: trace.marker && trace.marker.colorscale,
    range: trace.marker && [trace.marker.cmin, trace.marker.cmax],
  })));
}
