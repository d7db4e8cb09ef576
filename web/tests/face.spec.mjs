// SPDX-License-Identifier: GPL-3.0-or-later
// The web face as a user meets it: dialogs, layout and touch targets, keys and
// the clipboard, the stored rates and their download, two tabs, offline, its
// Content-Security-Policy, and axe on every page in both palettes.
import { test, expect } from '@playwright/test';
import { readFileSync, mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { open, ready, counts, boxText, rowLine, answerBoxes } from './face.mjs';
import { serve } from '../serve.mjs';

// axe-core, put into the page once: the app never leaves its one document.
const axeSource = readFileSync(join(import.meta.dirname, '../node_modules/axe-core/axe.min.js'), 'utf8');

const ECB = 'https://www.ecb.europa.eu/stats/eurofxref/eurofxref-daily.xml';
const rates = readFileSync(join(import.meta.dirname, 'rates.xml'), 'utf8');

async function openPage(page, number) {
  await page.locator(`.page-button[data-page="${number}"]`).click();
  await expect(page.locator('#page-face')).toBeVisible();
}

/// The stored settings file, as the next tab would read it.
async function storedSettings(page) {
  return page.evaluate(() => new Promise((resolve, reject) => {
    const request = indexedDB.open('zelflightab', 1);
    request.onerror = () => reject(request.error);
    request.onsuccess = () => {
      const get = request.result.transaction('files').objectStore('files').get('zelFLIGHTAB/Tech/zelFLIGHTAB.ini');
      get.onsuccess = () => resolve(new TextDecoder().decode(get.result));
    };
  }));
}

test.describe('dialogs', () => {
  test('Enter on a dialog answers it and opens no second one', async ({ page }) => {
    await open(page);
    await openPage(page, 24);
    await page.locator('#app').focus();
    await page.keyboard.type('02170055 09L 5/5/3');
    await page.keyboard.press('Enter');
    const dialog = page.getByRole('alertdialog');
    await expect(dialog).toBeVisible();
    await expect(dialog).toContainText('Report ends after 5/5/3: coverage missing');
    await expect(page.locator('#dialog-yes')).toBeFocused(); // the focus is in the box
    await page.keyboard.press('Tab');
    await expect(page.locator('#dialog-yes')).toBeFocused(); // and stays there
    await page.keyboard.press('Enter');
    await expect(dialog).toBeHidden();
    await page.waitForTimeout(300);
    expect((await counts(page)).boxes).toBe(1);
    await expect(page.locator('#dialog')).not.toHaveAttribute('open', '');
    // Escape closes a box and does not clear the report behind it.
    await page.keyboard.press('Enter');
    await expect(dialog).toBeVisible();
    await page.keyboard.press('Escape');
    await expect(dialog).toBeHidden();
    await expect(page.locator('#report-entry')).toHaveValue('02170055 09L 5/5/3');
  });
});

test.describe('layout', () => {
  test('fits the screen, with targets of at least 44 pixels (48 on a touch screen)', async ({ page }, info) => {
    const least = info.project.use.hasTouch ? 48 : 44;
    await open(page);
    for (const face of ['menu', 'page', 'report']) {
      if (face === 'page') await openPage(page, 16);
      if (face === 'report') {
        await page.locator('#menu-button').click();
        await openPage(page, 24);
      }
      const layout = await page.evaluate((least) => ({
        scroll: document.documentElement.scrollWidth - document.documentElement.clientWidth,
        small: [...document.querySelectorAll('button, input')]
          .filter((e) => e.offsetParent !== null && getComputedStyle(e).visibility !== 'hidden')
          .map((e) => ({ name: e.getAttribute('aria-label') || e.textContent, r: e.getBoundingClientRect() }))
          .filter(({ r }) => r.width < least || r.height < least)
          .map(({ name, r }) => `${name} ${r.width}×${r.height}`),
      }), least);
      expect(layout.scroll, `horizontal scrolling on the ${face}`).toBe(0);
      expect(layout.small, `small targets on the ${face}`).toEqual([]);
    }
  });

  test('a number too long for its cell is drawn in exponent form, whole in its title', async ({ page }) => {
    await open(page);
    await openPage(page, 1);
    await page.locator('#app').focus();
    await page.keyboard.type('123456789012345');
    await page.keyboard.press('Control+3'); // metric tons into milligrams
    const milligrams = page.locator('#rows .row:nth-child(8) .value');
    await expect(milligrams).toHaveAttribute('title', '123,456,789,012,345,000,000,000.00');
    expect(await milligrams.textContent()).toMatch(/^1[.,]\d*E\+23$/);
    const fits = await milligrams.evaluate((e) => e.scrollWidth <= e.clientWidth);
    expect(fits).toBe(true);
  });

  test('README screenshots', async ({ page }, info) => {
    const folder = process.env.ZEL_SCREENSHOTS;
    test.skip(!folder, 'ZEL_SCREENSHOTS names no folder');
    test.skip(!['phone', 'tablet'].includes(info.project.name), 'README shows a phone and a tablet');
    mkdirSync(folder, { recursive: true });
    await open(page);
    await page.screenshot({ path: join(folder, `web_${info.project.name}_menu.png`) });
    await openPage(page, 16);
    // A course, TAS and wind, then a new course typed: the heading follows it.
    for (const [value, row] of [['90', 3], ['100', 2], ['360', 5], ['30', 6], ['120', 3]]) {
      await page.locator('#app').focus();
      await page.keyboard.type(value);
      await page.keyboard.press(`Control+${row}`);
    }
    await page.screenshot({ path: join(folder, `web_${info.project.name}_wind.png`) });
  });

  test('positions pasted as pilots write them fill the navigation pages', async ({ page }, info) => {
    const folder = process.env.ZEL_SCREENSHOTS;
    const shoot = (name) => folder && ['phone', 'tablet'].includes(info.project.name)
      ? page.screenshot({ path: join(folder, `web_${info.project.name}_${name}.png`) }) : null;
    await open(page);
    const paste = (text) => page.evaluate((t) => {
      const data = new DataTransfer();
      data.setData('text/plain', t);
      document.getElementById('app').dispatchEvent(new ClipboardEvent('paste', { clipboardData: data, bubbles: true }));
    }, text);
    await openPage(page, 30);
    await paste("N40°36' W073°48'");
    await paste("N51°36' W000°30'");
    await expect(page.locator('#value-5')).toHaveText('2,997.71');
    // Degrees and minutes in the row, the decimal degrees in the tooltip and for a screen reader.
    await expect(page.locator('#value-1')).toHaveText('N 40°36.00′');
    expect(await page.locator('.row').first().getAttribute('title')).toBe('40.6°');
    await expect(page.locator('#note-2')).toHaveText(/-73\.8°/);
    await shoot('great_circle');
    await page.locator('#menu-button').click();
    await openPage(page, 29);
    await paste("N51°28.65' W000°27.68'");
    await page.locator('#app').focus();
    await page.keyboard.type('270');
    await page.keyboard.press('Control+7');
    await expect(page.locator('#value-8')).not.toHaveText('');
    await shoot('variation');
    await paste('N91');
    await expect(page.locator('#dialog-title')).toHaveText('Variation');
  });
});

test.describe('keys', () => {
  test('F-keys, Escape, Alt+M and the clipboard work as in the window', async ({ page, context }) => {
    await context.grantPermissions(['clipboard-read', 'clipboard-write']);
    await open(page);
    await page.keyboard.press('F1');
    await expect(page.locator('#title')).toHaveText('Weight');
    await page.keyboard.type('75');
    await page.keyboard.press('Control+2');
    await expect(page.locator('#rows .row:nth-child(1) .value')).toHaveText('34.01');
    await page.keyboard.type('12.5');
    await page.keyboard.press('Control+c');
    expect(await page.evaluate(() => navigator.clipboard.readText())).toBe('12.5');
    await page.keyboard.press('Control+Shift+C');
    expect(await page.evaluate(() => navigator.clipboard.readText())).toContain('pound - lbs\t75');
    await page.evaluate(() => navigator.clipboard.writeText('74.83 kg'));
    await page.keyboard.press('Control+v');
    await expect(page.locator('#display')).toHaveText('74.83');
    await page.keyboard.press('Escape');
    await expect(page.locator('#display')).toHaveText('0.');
    await page.keyboard.press('Alt+m');
    await expect(page.locator('#menu-face')).toBeVisible();
    await expect(page.locator('.page-button[data-page="1"]')).toBeFocused();
    await page.keyboard.press('ArrowRight');
    await page.keyboard.press('Enter');
    await expect(page.locator('#title')).toHaveText('Fluid');
  });
});

test.describe('rates', () => {
  test('the shipped rates are there on first start, and "i" tells their date', async ({ page }) => {
    await open(page);
    await openPage(page, 18);
    await answerBoxes(page, ['no'], 'keys'); // the offer to download
    await page.locator('[data-mem="2"]').click();
    await expect(page.locator('#dialog-text')).toContainText('28 Jun 2024');
  });

  test('a refused download says so once, and the stored rates and their date stay', async ({ page }) => {
    // A page learns no more of a refusal for want of a CORS header than of a
    // host out of reach: fetch fails with the same TypeError.
    await page.route(ECB, (route) => route.abort('connectionrefused'));
    await open(page);
    await openPage(page, 18);
    await answerBoxes(page, ['no'], 'keys');
    await page.locator('#app').focus();
    await page.keyboard.type('100');
    await page.keyboard.press('Control+3');
    const before = await rowLine(page, 7);
    await page.locator('[data-mem="0"]').click(); // Rates
    const messages = await answerBoxes(page, ['yes'], 'keys');
    expect(messages).toHaveLength(1);
    expect(messages.join('\n')).toContain('does not let other sites read it. The stored rates are kept.');
    await page.locator('#app').focus();
    await page.keyboard.type('100');
    await page.keyboard.press('Control+3');
    expect(await rowLine(page, 7)).toBe(before); // 100 € in dollars, as before
    await page.locator('[data-mem="2"]').click();
    await expect(page.locator('#dialog-text')).toContainText('28 Jun 2024');
  });

  test('a storage that refuses to write says so, and what was stored stays', async ({ page }) => {
    await open(page);
    const before = await storedSettings(page);
    // The browser's storage refuses every write from now on (a full disk).
    await page.evaluate(() => {
      IDBObjectStore.prototype.put = () => { throw new DOMException('The disk is full', 'QuotaExceededError'); };
    });
    await openPage(page, 18);
    await answerBoxes(page, ['no'], 'keys'); // the offer to download
    await page.locator('[data-mem="1"]').click(); // Set
    const messages = await answerBoxes(page, ['text Mexican Peso', 'text MXN', 'no'], 'keys');
    expect(messages.join('\n')).toContain('Cannot save the settings file:\\n\\nzelFLIGHTAB/Tech/zelFLIGHTAB.ini');
    expect(await storedSettings(page)).toBe(before);
    // This tab reads the file as it is stored: no own currency.
    await page.locator('#menu-button').click();
    await openPage(page, 18);
    await answerBoxes(page, ['no'], 'keys');
    await expect(page.locator('#rows .row:nth-child(8) .unit')).toHaveText('');
  });

  test('two tabs writing the settings at once lose nothing', async ({ context }) => {
    await context.route(ECB, (route) => route.fulfill({
      body: rates, contentType: 'application/xml', headers: { 'Access-Control-Allow-Origin': '*' } }));
    const naming = await context.newPage();
    const downloading = await context.newPage();
    await open(naming);
    await open(downloading);
    await openPage(naming, 18);
    await answerBoxes(naming, ['no'], 'keys');
    await naming.locator('[data-mem="1"]').click(); // Set: the own currency's name
    await naming.fill('#dialog-input', 'Mexican Peso');
    await openPage(downloading, 18); // offers the download
    await expect(downloading.locator('#dialog-yes')).toHaveText('Yes');
    // Both answer at once: one writes the name, the other the new rates.
    await Promise.all([naming.keyboard.press('Enter'), downloading.keyboard.press('Enter')]);
    await expect(downloading.locator('#dialog')).not.toHaveAttribute('open', '');
    await naming.keyboard.press('Escape'); // no code: "Invalid Currency"
    await answerBoxes(naming, [], 'keys');
    await expect.poll(async () => storedSettings(naming)).toContain('myCurrName=Mexican Peso');
    await expect.poll(async () => storedSettings(naming)).toContain('USD=1.1234');
    expect(await storedSettings(naming)).not.toContain('Date=45471');
    // A third tab reads what both wrote.
    const third = await context.newPage();
    await open(third);
    await openPage(third, 18);
    await third.locator('[data-mem="2"]').click();
    await expect(third.locator('#dialog-text')).toContainText('European Central Bank');
    await expect(third.locator('#dialog-text')).not.toContainText('28 Jun 2024');
  });
});

test.describe('offline', () => {
  test('after the first visit the app opens and calculates with the server stopped', async ({ browser }) => {
    const server = await serve(process.env.ZEL_SITE || join(import.meta.dirname, '../../build/wasm/site'), 8124);
    const context = await browser.newContext();
    const page = await context.newPage();
    await open(page, 'http://127.0.0.1:8124/');
    await page.evaluate(() => navigator.serviceWorker.ready);
    await page.reload(); // now under the service worker
    await ready(page);
    await new Promise((resolve) => server.close(resolve));
    server.closeAllConnections();
    await open(page, 'http://127.0.0.1:8124/');
    await openPage(page, 7);
    await page.locator('#app').focus();
    await page.keyboard.type('100');
    await page.keyboard.press('Control+1');
    await expect(page.locator('#rows .row:nth-child(2) .value')).toHaveText('212.00');
    await context.close();
  });
});

test.describe('policy', () => {
  test('runs under its Content-Security-Policy with no violation, and is installable', async ({ page, request }) => {
    const violations = [];
    page.on('console', (m) => {
      if (/Content Security Policy|Refused to/.test(m.text())) violations.push(m.text());
    });
    const response = await page.goto('/');
    expect(response.headers()['content-security-policy']).toContain("script-src 'self' 'wasm-unsafe-eval'");
    await ready(page);
    await openPage(page, 16);
    expect(violations).toEqual([]);
    const manifest = await (await request.get('manifest.webmanifest')).json();
    expect(manifest.display).toBe('standalone');
    expect([manifest.theme_color, manifest.color_scheme_dark.theme_color]).toEqual(['#00457d', '#10161c']);
    for (const icon of manifest.icons.filter((i) => i.type === 'image/png')) {
      expect((await request.get(icon.src)).status()).toBe(200);
    }
    expect(await page.evaluate(() => navigator.serviceWorker.ready.then((r) => r.active !== null))).toBe(true);
  });
});

test.describe('axe', () => {
  for (const palette of ['day', 'night']) {
    test(`no violation on the menu and on every page, ${palette} palette`, async ({ page }) => {
      test.setTimeout(180000);
      await page.addInitScript((p) => localStorage.setItem('zelflightab.palette', p), palette);
      await open(page);
      await page.evaluate(axeSource);
      const check = async (where) => {
        const result = await page.evaluate(() => window.axe.run(document, { resultTypes: ['violations'] }));
        expect(result.violations.map((v) => `${where}: ${v.id} ${v.nodes.map((n) => n.target).join(' ')}`)).toEqual([]);
      };
      await check('menu');
      const count = await page.locator('.page-button').count();
      for (let number = 1; number <= count; ++number) {
        await openPage(page, number);
        await answerBoxes(page, ['no'], 'keys');
        await check(`page ${number}`);
        await page.locator('#menu-button').click();
      }
    });
  }
});
