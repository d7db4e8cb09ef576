// SPDX-License-Identifier: GPL-3.0-or-later
// What the web face costs a pilot's tablet: the bytes the site sends (gzip -9
// and plain), and the time from navigation start to the first menu that takes
// a tap, in headless Chromium from 127.0.0.1 with a cold cache, beside a
// yardstick: a static page with the same icon buttons and no script. Medians
// of alternating loads.   node bench/web.mjs [SITE] [LOADS]
import { chromium } from '../web/node_modules/playwright-core/index.mjs';
import { readFileSync, readdirSync, mkdtempSync, writeFileSync, cpSync } from 'node:fs';
import { gzipSync } from 'node:zlib';
import { join, extname } from 'node:path';
import { tmpdir } from 'node:os';
import { serve } from '../web/serve.mjs';

const site = process.argv[2] || join(import.meta.dirname, '../build/wasm/site');
const loads = Math.max(15, Number(process.argv[3] || 15));

// The bytes.
let plain = 0;
let packed = 0;
const kinds = {};
for (const name of readdirSync(site)) {
  if (!['.html', '.js', '.css', '.wasm'].includes(extname(name)) || name === 'sw.js') continue;
  const bytes = readFileSync(join(site, name));
  const gz = gzipSync(bytes, { level: 9 }).length;
  plain += bytes.length;
  packed += gz;
  kinds[name] = [bytes.length, gz];
}
const kb = (n) => `${(n / 1024).toFixed(1)} KB`;
console.log('What the site sends (html, js, css, wasm; the service worker and icons apart):');
for (const [name, [p, g]] of Object.entries(kinds)) console.log(`  ${name.padEnd(16)} ${kb(p).padStart(9)}  gzip -9 ${kb(g).padStart(8)}`);
console.log(`  ${'total'.padEnd(16)} ${kb(plain).padStart(9)}  gzip -9 ${kb(packed).padStart(8)}`);

// The yardstick: the menu's buttons, each with its icon, as plain HTML.
const yard = mkdtempSync(join(tmpdir(), 'zel-yardstick-'));
cpSync(join(site, 'icons'), join(yard, 'icons'), { recursive: true });
const icons = readdirSync(join(site, 'icons')).filter((n) => n !== 'app.svg');
writeFileSync(join(yard, 'index.html'), `<!doctype html><html lang="en"><head><meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1"><title>yardstick</title>
<style>div{display:grid;grid-template-columns:repeat(3,1fr);gap:8px}button{min-height:72px}img{width:24px;height:24px}</style>
</head><body><div>${icons.map((n) => `<button type="button"><img src="icons/${n}" alt="">${n}</button>`).join('')}</div></body></html>`);

const app = await serve(site, 8131);
const stick = await serve(yard, 8132);
const browser = await chromium.launch({
  executablePath: process.env.ZEL_CHROMIUM || '/usr/bin/chromium',
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});

async function load(url, ready) {
  const context = await browser.newContext({ serviceWorkers: 'block' }); // a cold cache each time
  const page = await context.newPage();
  await page.goto(url, { waitUntil: 'load' });
  const ms = await page.evaluate(ready);
  await context.close();
  return ms;
}

const appReady = async () => {
  while (!performance.getEntriesByName('zelflightab-ready').length) await new Promise((r) => setTimeout(r, 5));
  return performance.getEntriesByName('zelflightab-ready')[0].startTime;
};
// A page without script takes a tap once its document is parsed and drawn.
const stickReady = () => performance.getEntriesByType('navigation')[0].domContentLoadedEventEnd;

const appTimes = [];
const stickTimes = [];
await load('http://127.0.0.1:8131/', appReady); // the server and Chromium warmed, not the page's cache
for (let i = 0; i < loads; ++i) {
  appTimes.push(await load('http://127.0.0.1:8131/', appReady));
  stickTimes.push(await load('http://127.0.0.1:8132/', stickReady));
}
await browser.close();
app.close();
stick.close();

const median = (list) => [...list].sort((a, b) => a - b)[Math.floor(list.length / 2)];
const a = median(appTimes);
const s = median(stickTimes);
console.log(`\nNavigation start to the first menu that takes a tap (median of ${loads} alternating cold loads):`);
console.log(`  zelFLIGHTAB        ${a.toFixed(1)} ms`);
console.log(`  yardstick          ${s.toFixed(1)} ms   (${icons.length} icon buttons, no script)`);
console.log(`  ratio              ${(a / s).toFixed(2)} ×`);
