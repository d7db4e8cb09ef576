// SPDX-License-Identifier: GPL-3.0-or-later
// Every page calculates in the browser as on the desktop: each golden console
// script is played on the web face, once by taps and once by keys, and every
// row, display, title, message and bell it shows is what the script expects.
import { test, expect } from '@playwright/test';
import { readFileSync, readdirSync, existsSync } from 'node:fs';
import { join } from 'node:path';
import { open, ready, counts, rowLine, displayLine, answerBoxes, storeSettings } from './face.mjs';

const golden = process.env.ZEL_GOLDEN || join(import.meta.dirname, '../../tests/console');

// What a script needs that a browser does not have: other regional symbols
// by hand, the window's activation, the desktop's transfer errors.
function playable(name, script, expected) {
  if (name === 'download_refused') return "expects the desktop's own error for a host that is not found";
  if (/^#run:/m.test(script)) return 'runs the command line, not the console';
  if (/^#args:.*--symbols/m.test(script)) return 'sets regional symbols by hand';
  if (/^activate/m.test(script)) return 'activates the window';
  if (/^(aircraft|profile|field|form|shift|ballast) /m.test(script) || /--aircraft/.test(script)) {
    return 'works the Weight & Balance page, which has a browser test of its own';
  }
  if (!/^exit 0$/m.test(expected)) return 'stops at a line the console cannot read';
  return null;
}

const scripts = readdirSync(golden).filter((f) => f.endsWith('.script')).map((f) => f.slice(0, -7)).sort();

// The lines of the expected output that the face can show, in order.
function expectedLines(text) {
  return text.split('\n').filter((l) => /^(display|row \d|message|beep)/.test(l))
    .map((l) => l.replace(/\\r/g, '\\n'));
}

/// Plays one script; `by` is 'taps' or 'keys'. Returns what the face showed.
async function play(page, lines, by) {
  const seen = [];
  const answers = [];
  const settle = async () => {
    seen.push(...await answerBoxes(page, answers, by));
  };
  for (const line of lines) {
    if (line.startsWith('#') || line.trim() === '') continue;
    const space = line.indexOf(' ');
    const command = space < 0 ? line : line.slice(0, space);
    const argument = space < 0 ? '' : line.slice(space + 1);
    if (command === 'answer') {
      answers.push(argument);
      continue;
    }
    if (command === 'tags') continue; // the values' inner text: not on the face
    if (command === 'show') {
      if (argument === '' || argument === 'display') seen.push(await displayLine(page));
      if (argument === '' || argument === 'rows') {
        for (let row = 1; row <= 8; ++row) seen.push(await rowLine(page, row));
      }
      if (argument.startsWith('row ')) seen.push(await rowLine(page, Number(argument.slice(4))));
      continue;
    }
    await perform(page, command, argument, by);
    await settle();
  }
  const { bells } = await counts(page);
  return { seen, bells };
}

async function perform(page, command, argument, by) {
  const taps = by === 'taps';
  const press = (selector) => (taps ? page.tap(selector) : page.click(selector));
  switch (command) {
  case 'page': {
    if (await page.locator('#page-face').isVisible()) {
      if (taps) await page.tap('#menu-button');
      else await page.keyboard.press('Alt+M');
    }
    const button = page.locator(`.page-button[data-page="${argument}"]`);
    const key = await button.getAttribute('aria-keyshortcuts');
    if (taps) await button.tap();
    else if (key) await page.keyboard.press(key);
    else {
      await button.focus();
      await page.keyboard.press('Enter');
    }
    return;
  }
  case 'row':
    // A row the page does not have is not drawn: only its key reaches it.
    if (taps && await page.locator(`#rows .row:nth-child(${argument})`).isVisible()) {
      await page.tap(`#rows .row:nth-child(${argument})`);
    }
    else await page.keyboard.press(`Control+${argument}`);
    return;
  case 'type':
    if (taps && await page.locator('#keypad').isVisible()) {
      for (const c of argument) {
        const key = c === ',' || c === '.' ? 'decimal' : c;
        const button = page.locator(`#keypad [data-key="${key}"]`);
        if (await button.count()) await button.tap();
        else await page.keyboard.type(c); // letters: the screen keyboard's
      }
    } else if (taps) {
      await page.tap('#report-entry');
      await page.keyboard.type(argument);
    } else {
      await page.locator('#app').focus();
      await page.keyboard.type(argument);
    }
    return;
  case 'paste': {
    const text = argument.replace(/\\n/g, '\n').replace(/\\r/g, '\r');
    if (taps) {
      await page.evaluate((t) => {
        const data = new DataTransfer();
        data.setData('text/plain', t);
        document.dispatchEvent(new ClipboardEvent('paste', { clipboardData: data, bubbles: true }));
      }, text);
    } else {
      await page.evaluate((t) => navigator.clipboard.writeText(t), text);
      await page.locator('#app').focus();
      await page.keyboard.press('Control+V');
    }
    return;
  }
  case 'keyup': {
    const key = argument === 'enter' ? 'Enter' : argument === 'escape' ? 'Escape' : argument.toUpperCase();
    if (taps && key === 'Enter' && await page.locator('#keypad').isVisible()) {
      await page.tap('#keypad [data-key="enter"]');
    } else if (taps && key === 'Enter') {
      await page.tap('#report-enter');
    } else {
      await page.locator('#app').focus();
      await page.keyboard.press(key);
    }
    return;
  }
  case 'key': // the console's one key by name: Backspace, on the keypad too
    if (taps && await page.locator('#keypad').isVisible()) await page.tap('#keypad [data-key="back"]');
    else {
      await page.locator('#app').focus();
      await page.keyboard.press('Backspace');
    }
    return;
  case 'mem': return press(`[data-mem="${argument}"]`);
  case 'op': return press(argument === '0' ? '#equals' : `[data-op="${argument}"]`);
  case 'digits': return press('#digits');
  case 'clear': return press('#clear');
  default: throw new Error(`the face has no way to ${command}`);
  }
}

// At other sizes than the phone's, one script a page: the figures do not
// depend on the size, the taps and the layout do.
const firstOfPage = new Map();
for (const name of scripts) {
  const script = readFileSync(join(golden, `${name}.script`), 'utf8');
  const number = (script.match(/^page (\d+)/m) || [])[1];
  if (number && !firstOfPage.has(number) && playable(name, script, readFileSync(join(golden, `${name}.expected`), 'utf8')) === null) {
    firstOfPage.set(number, name);
  }
}
const oneOfPage = new Set(firstOfPage.values());

for (const name of scripts) {
  const script = readFileSync(join(golden, `${name}.script`), 'utf8');
  const expected = readFileSync(join(golden, `${name}.expected`), 'utf8');
  const why = playable(name, script, expected);
  const locale = (script.match(/^#args:.*--locale (\w+)/m) || [])[1] || 'en_US';
  for (const by of ['taps', 'keys']) {
    test(`${name} by ${by}`, async ({ browser }, info) => {
      test.skip(why !== null, why || '');
      test.skip(by === 'taps' && !info.project.use.hasTouch, 'no touch screen');
      test.skip(info.project.name !== 'phone' && !oneOfPage.has(name), "played at the phone's size");
      const context = await browser.newContext({ ...info.project.use, locale: locale.replace('_', '-') });
      await context.grantPermissions(['clipboard-read', 'clipboard-write']);
      const page = await context.newPage();
      await open(page);
      const ini = join(golden, `${name}.ini`);
      if (existsSync(ini)) {
        // The script's own settings file, stored before the app reads it.
        await storeSettings(page, readFileSync(ini, 'utf8'));
        await page.reload();
        await ready(page);
      }
      const { seen, bells } = await play(page, script.split('\n'), by);
      const lines = expectedLines(expected);
      expect(seen).toEqual(lines.filter((l) => l !== 'beep'));
      expect(bells).toBe(lines.filter((l) => l === 'beep').length);
      await context.close();
    });
  }
}
