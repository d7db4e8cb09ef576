// SPDX-License-Identifier: GPL-3.0-or-later
// The Weight & Balance page in the browser: a profile from the file picker,
// a loading entered by taps, the chart's points inside, the profile exported
// as a download, the sheet printed on one page, bad files refused, axe.
import { test, expect } from '@playwright/test';
import { readFileSync, mkdirSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { open, boxText } from './face.mjs';

const shots = process.env.ZEL_SCREENSHOTS;
const data = join(import.meta.dirname, '../../tests/data/aircraft');
const axeSource = readFileSync(join(import.meta.dirname, '../node_modules/axe-core/axe.min.js'), 'utf8');

async function tapKeys(page, keys) {
  for (const key of keys) await page.locator(`#keypad [data-key="${key === '.' ? 'decimal' : key}"]`).tap();
}

async function importProfile(page, file) {
  const chooser = page.waitForEvent('filechooser');
  await page.locator('#profile-import').tap();
  await (await chooser).setFiles(join(data, file));
}

async function openWeightAndBalance(page) {
  await open(page);
  await page.locator('.page-button[data-page="28"]').click();
  await expect(page.locator('#loading')).toBeVisible();
}

test.describe('weight and balance', () => {
  test('a profile from the file picker, a loading by taps, the points inside, print', async ({ page, browserName }) => {
    await openWeightAndBalance(page);
    await importProfile(page, 'skyhawk.json');
    await expect(page.locator('#aircraft option:checked')).toHaveText('D-EZEL');
    await tapKeys(page, '340');
    await page.locator('#entry-3').tap(); // front seats
    await tapKeys(page, '40');
    await page.locator('#entry-7').tap(); // fuel, in US gallons
    await tapKeys(page, '10');
    await page.locator('#entry-9').tap(); // the burn
    await expect(page.locator('#entry-3')).toHaveText('340.00');
    await expect(page.locator('#entry-8')).toHaveText('240.00');
    await expect(page.locator('.verdict')).toHaveText('Within limits: Normal category. Utility: outside.');
    const chart = page.locator('#chart');
    await expect(chart).toHaveAttribute('aria-label', /Takeoff 2,243.00 lb at 40.33 in, inside/);
    await expect(chart.locator('circle.mark.inside')).toHaveCount(3);
    await expect(chart.locator('polyline.burn.inside')).toHaveCount(2);
    // Nothing runs sideways on a phone.
    expect(await page.evaluate(() => document.documentElement.scrollWidth)).toBeLessThanOrEqual(
      await page.evaluate(() => window.innerWidth));
    if (shots) {
      mkdirSync(shots, { recursive: true });
      await chart.scrollIntoViewIfNeeded();
      await page.screenshot({ path: join(shots, `web_${test.info().project.name}_weight_balance.png`), fullPage: true });
    }
    // The export is a download of the profile as a file.
    const download = page.waitForEvent('download');
    await page.locator('#profile-export').tap();
    const file = await download;
    expect(file.suggestedFilename()).toBe('D-EZEL.json');
    expect(readFileSync(await file.path(), 'utf8')).toContain('"format": "zelflightab-aircraft/2"');
    // Print: the sheet and its chart, dated, with the aircraft's name, on one page.
    await page.evaluate(() => { window.print = () => { window.zelPrinted = true; }; });
    await page.locator('#profile-print').tap();
    expect(await page.evaluate(() => window.zelPrinted)).toBe(true);
    await page.emulateMedia({ media: 'print' });
    await expect(page.locator('.print-heading')).toBeVisible();
    await expect(page.locator('.print-heading')).toHaveText(/^D-EZEL, loading sheet of \d{4}-\d\d-\d\d$/);
    await expect(page.locator('.pad')).toBeHidden();
    await expect(page.locator('#chart')).toBeVisible();
    if (browserName === 'chromium') {
      const printed = await page.pdf({ format: 'A4' });
      if (shots) writeFileSync(join(shots, `web_${test.info().project.name}_loading_sheet.pdf`), printed);
      const pdf = printed.toString('latin1');
      expect(pdf.match(/\/Type\s*\/Page[^s]/g)).toHaveLength(1);
    }
    await page.emulateMedia({ media: 'screen' });
    await page.evaluate(axeSource);
    const result = await page.evaluate(() => window.axe.run(document, { resultTypes: ['violations'] }));
    expect(result.violations.map((v) => `${v.id} ${v.nodes.map((n) => n.target).join(' ')}`)).toEqual([]);
  });

  test('a metric sheet with seven-figure moments shows every digit, without running sideways', async ({ page }) => {
    await openWeightAndBalance(page); // the shipped profile in kg and mm
    for (let entry = 1; entry <= 12; ++entry) {
      const cell = page.locator(`#entry-${entry}`);
      if (await cell.count() === 0) continue;
      await tapKeys(page, '550');
      await cell.tap();
    }
    await expect(page.locator('.sheet tr.total').first()).toBeVisible();
    expect(await page.evaluate(() => document.documentElement.scrollWidth)).toBeLessThanOrEqual(
      await page.evaluate(() => window.innerWidth));
    // Each figure stands on one line, and the whole sheet in its frame.
    const broken = await page.locator('.sheet').evaluate((sheet) => {
      const walker = document.createTreeWalker(sheet, NodeFilter.SHOW_TEXT);
      const found = [];
      for (let node = walker.nextNode(); node; node = walker.nextNode()) {
        if (!/\d/.test(node.textContent)) continue;
        const range = document.createRange();
        range.selectNodeContents(node);
        if (new Set([...range.getClientRects()].map((r) => Math.round(r.top))).size > 1) found.push(node.textContent);
      }
      return found;
    });
    expect(broken).toEqual([]);
    const frame = page.locator('.sheet-frame');
    expect(await frame.evaluate((f) => f.scrollWidth)).toBeLessThanOrEqual(await frame.evaluate((f) => f.clientWidth));
  });

  test('the loading and the aircraft stay after a reload, and a loading is kept by name', async ({ page }) => {
    await openWeightAndBalance(page);
    await importProfile(page, 'skyhawk.json');
    await expect(page.locator('#aircraft option:checked')).toHaveText('D-EZEL');
    await tapKeys(page, '340');
    await page.locator('#entry-3').tap();
    await expect(page.locator('#entry-3')).toHaveText('340.00');
    await page.locator('#loading-save').tap();
    await expect(page.locator('#dialog')).toHaveAttribute('open', '');
    await page.locator('#dialog-input').fill('Solo');
    await page.locator('#dialog-yes').tap();
    await expect(page.locator('#saved-loading option')).toHaveText(['Solo']);
    await tapKeys(page, '170');
    await page.locator('#entry-4').tap();
    await expect(page.locator('#entry-4')).toHaveText('170.00');
    await page.reload();
    await page.locator('.page-button[data-page="28"]').click();
    await expect(page.locator('#aircraft option:checked')).toHaveText('D-EZEL');
    await expect(page.locator('#entry-3')).toHaveText('340.00');
    await expect(page.locator('#entry-4')).toHaveText('170.00');
    await page.locator('#loading-recall').tap();
    await expect(page.locator('#entry-4')).toHaveText('');
    await expect(page.locator('#entry-3')).toHaveText('340.00');
  });

  test('a file that is no profile is refused with its reason; the kept ones stay', async ({ page }) => {
    await openWeightAndBalance(page);
    await importProfile(page, 'skyhawk.json');
    await expect(page.locator('#aircraft option:checked')).toHaveText('D-EZEL');
    const before = await page.locator('#aircraft option').allTextContents();
    for (const [file, reason] of [
      ['not-json.json', "line 4: syntax error while parsing object - unexpected string literal; expected '}'"],
      ['version-3.json', 'it is version 3 of the format; this program reads versions 1 and 2'],
      ['crossing.json', 'envelope 1 (Test): its edges cross'],
    ]) {
      await importProfile(page, file);
      await expect(page.locator('#dialog')).toHaveAttribute('open', '');
      expect(await boxText(page)).toBe(`Not an aircraft profile: ${reason}`);
      await page.locator('#dialog-yes').tap();
      await expect(page.locator('#aircraft option')).toHaveText(before);
    }
  });

  test('the editor keeps what was typed until it makes a profile, by keys', async ({ page }) => {
    await openWeightAndBalance(page);
    await page.locator('#profile-edit').click();
    const arm = page.locator('[id="field-station.2.arm"]');
    await arm.fill('');
    await arm.pressSequentially('five');
    await page.getByRole('button', { name: 'Save' }).click();
    expect(await boxText(page)).toBe('The profile cannot be saved: station 2 (Seats middle): its arm "five" is not a number');
    await page.keyboard.press('Enter'); // closes the message
    await expect(arm).toHaveValue('five'); // still as typed
    await arm.fill('533.4');
    await page.locator('#field-name').fill('D-EAQL');
    await page.getByRole('button', { name: 'Save' }).click();
    await expect(page.locator('#aircraft option:checked')).toHaveText('D-EAQL');
  });
});
