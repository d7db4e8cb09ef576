// SPDX-License-Identifier: GPL-3.0-or-later
// What the web face costs a pilot's tablet: the bytes the site sends (gzip -9
// and plain), and the time from navigation start to the first menu that takes
// a tap, in headless Chromium from 127.0.0.1 with a cold cache, beside a
// yardstick: a static page with the same buttons, icons, style sheet and
// fonts and no script, served by the same server. The loads are paired, the
// app then the yardstick, and the ratio of each pair counts: the machine's
// moments of load fall on both of a pair alike.
//   node bench/web.mjs [SITE] [PAIRS]
import { chromium } from '../web/node_modules/playwright-core/index.mjs';
import { readFileSync, readdirSync, mkdtempSync, writeFileSync, cpSync } from 'node:fs';
import { gzipSync } from 'node:zlib';
import { join, extname } from 'node:path';
import { tmpdir } from 'node:os';
import { serve } from '../web/serve.mjs';

const site = process.argv[2] || join(import.meta.dirname, '../build/wasm/site');
const loads = Math.max(15, Number(process.argv[3] || 15)); // pairs

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

// The yardstick: the menu's buttons, each with its icon, drawn by the site's
// own style sheet, as plain HTML beside the site (one server, one origin).
const both = mkdtempSync(join(tmpdir(), 'zel-bench-'));
cpSync(site, both, { recursive: true });
const icons = readdirSync(join(site, 'icons')).filter((n) => n !== 'app.svg');
writeFileSync(join(both, 'yardstick.html'), `<!doctype html><html lang="en"><head><meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1"><title>yardstick</title>
<link rel="stylesheet" href="style.css"></head><body><main id="app"><nav id="menu-face"><div class="pages">
${icons.map((n) => `<button type="button" class="page-button"><span class="icon" aria-hidden="true"
style="--icon:url('icons/${n}')"></span><span>${n.slice(0, -4)}</span></button>`).join('\n')}
</div></nav></main></body></html>`);

const server = await serve(both, 8131);
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
const ratios = [];
const appUrl = 'http://127.0.0.1:8131/';
const stickUrl = 'http://127.0.0.1:8131/yardstick.html';
await load(appUrl, appReady); // the server and Chromium warmed, not the page's cache
await load(stickUrl, stickReady);
for (let i = 0; i < loads; ++i) {
  const a = await load(appUrl, appReady);
  const b = await load(stickUrl, stickReady);
  appTimes.push(a);
  stickTimes.push(b);
  ratios.push(a / b);
}
await browser.close();
server.close();

const sorted = (list) => [...list].sort((x, y) => x - y);
const median = (list) => sorted(list)[Math.floor(list.length / 2)];
const quartiles = (list) => [sorted(list)[Math.floor(list.length / 4)], sorted(list)[Math.floor(list.length * 3 / 4)]];
const [low, high] = quartiles(ratios);
console.log(`\nNavigation start to the first menu that takes a tap (${loads} pairs of cold loads, app then yardstick):`);
console.log(`  zelFLIGHTAB        ${median(appTimes).toFixed(1)} ms (median)`);
console.log(`  yardstick          ${median(stickTimes).toFixed(1)} ms (median; ${icons.length} icon buttons, the site's style, no script)`);
console.log(`  ratio              ${median(ratios).toFixed(2)} × (median of the pairs; middle half ${low.toFixed(2)} – ${high.toFixed(2)})`);
