// SPDX-License-Identifier: GPL-3.0-or-later
// The web face beyond Chromium: the engine of iPads (WebKit, as WebKitGTK's
// MiniBrowser driven by WebKitWebDriver) and Firefox (driven by WebDriver
// BiDi through puppeteer-core). Each runs the same walk a new user takes: the
// menu, a conversion by taps, the Wind page, a runway report, and a reload
// with the server gone after the first visit.
//   node engines.mjs [SITE]   (WebKitGTK needs a display: run it under xvfb-run)
import { spawn } from 'node:child_process';
import { join } from 'node:path';
import { setTimeout as sleep } from 'node:timers/promises';
import puppeteer from 'puppeteer-core';
import { Builder, By } from 'selenium-webdriver';
import { serve } from '../serve.mjs';

const site = process.argv[2] || process.env.ZEL_SITE || join(import.meta.dirname, '../../build/wasm/site');
const MiniBrowser = '/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser';

/// What a walk needs of a browser, whichever protocol drives it.
async function webkit() {
  const port = 4455;
  const driver = spawn('WebKitWebDriver', [`--port=${port}`], { stdio: 'ignore' });
  await sleep(500);
  const session = await new Builder()
    .usingServer(`http://127.0.0.1:${port}`)
    .withCapabilities({
      browserName: 'MiniBrowser',
      'webkitgtk:browserOptions': { binary: MiniBrowser, args: ['--automation'] },
    })
    .build();
  return {
    name: 'WebKitGTK',
    goto: (url) => session.get(url),
    reload: () => session.navigate().refresh(),
    evaluate: (script) => session.executeScript(`return (${script})()`),
    evaluateAsync: (script) => session.executeAsyncScript(
      `const done = arguments[arguments.length - 1]; (${script})().then(done, (e) => done(String(e)));`),
    click: async (selector) => (await session.findElement(By.css(selector))).click(),
    type: async (selector, text) => (await session.findElement(By.css(selector))).sendKeys(text),
    close: async () => {
      await session.quit();
      driver.kill();
    },
  };
}

async function firefox() {
  const browser = await puppeteer.launch({
    browser: 'firefox',
    executablePath: '/usr/bin/firefox-esr',
    headless: true,
    extraPrefsFirefox: { 'network.proxy.type': 0 },
  });
  const page = await browser.newPage();
  return {
    name: 'Firefox',
    goto: (url) => page.goto(url),
    reload: () => page.reload(),
    evaluate: (script) => page.evaluate(`(${script})()`),
    evaluateAsync: (script) => page.evaluate(`(${script})()`),
    click: (selector) => page.click(selector),
    type: (selector, text) => page.type(selector, text),
    close: () => browser.close(),
  };
}

async function until(b, what, condition, seconds = 20) {
  for (let waited = 0; waited < seconds * 10; ++waited) {
    if (await b.evaluate(condition)) return;
    await sleep(100);
  }
  throw new Error(`${b.name}: no ${what} within ${seconds} s`);
}

const ready = (b) => until(b, 'menu that takes a tap',
  `() => performance.getEntriesByName('zelflightab-ready').length > 0`);
const valueOf = (b, row) => b.evaluate(
  `() => document.querySelector('#rows .row:nth-child(${row}) .value').textContent`);

function expect(b, what, got, wanted) {
  if (got !== wanted) throw new Error(`${b.name}: ${what} is ${JSON.stringify(got)}, not ${JSON.stringify(wanted)}`);
  console.log(`${b.name}: ${what} ${JSON.stringify(got)}`);
}

async function tap(b, keys, row) {
  for (const key of keys) await b.click(`#keypad [data-key="${key}"]`);
  await b.click(`#rows .row:nth-child(${row})`);
}

async function openPage(b, number) {
  if (await b.evaluate(`() => !document.getElementById('page-face').hidden`)) await b.click('#menu-button');
  await b.click(`.page-button[data-page="${number}"]`);
}

async function walk(b, port) {
  const url = `http://127.0.0.1:${port}/`;
  await b.goto(url);
  await ready(b);
  expect(b, 'the menu', await b.evaluate(`() => document.querySelectorAll('.page-button').length`), 30);

  await openPage(b, 1); // 75 lbs, by taps
  await tap(b, '75', 2);
  expect(b, '75 lbs in kg', await valueOf(b, 1), '34.01');

  await openPage(b, 16); // heading 090, TAS 100, wind 360/20
  await tap(b, '90', 1);
  await tap(b, '100', 2);
  await tap(b, '360', 5);
  await tap(b, '20', 6);
  expect(b, 'the course', await valueOf(b, 3), '101');
  expect(b, 'the ground speed', await valueOf(b, 4), '101.98');
  expect(b, 'the drift', await valueOf(b, 7), 'R 11.31');

  await openPage(b, 24); // a METAR runway group
  await b.type('#report-entry', 'R24L/290140');
  await b.click('#report-enter');
  expect(b, 'the runway', await valueOf(b, 1), '24L');
  expect(b, 'the braking action', await valueOf(b, 8), 'Good');

  // After the first visit the app opens with no server.
  await b.evaluateAsync(`() => navigator.serviceWorker.ready.then(() => true)`);
  await b.reload();
  await ready(b);
  return url;
}

async function offline(b, url) {
  await b.goto(url);
  await ready(b);
  await openPage(b, 7);
  await tap(b, '100', 1);
  expect(b, 'offline, 100 °C in °F', await valueOf(b, 2), '212.00');
}

let failed = false;
for (const [start, port] of [[webkit, 8141], [firefox, 8142]]) {
  const server = await serve(site, port);
  let browser = null;
  try {
    browser = await start();
    const url = await walk(browser, port);
    await new Promise((resolve) => server.close(resolve));
    server.closeAllConnections();
    await offline(browser, url);
  } catch (error) {
    failed = true;
    console.error(`FAILED: ${error.message}`);
  } finally {
    server.close();
    if (browser) await browser.close();
  }
}
process.exit(failed ? 1 : 0);
