// SPDX-License-Identifier: GPL-3.0-or-later
// The web face as a phone app: Back, the report field with a keyboard that
// composes words, the h:mm hint, what a screen reader is told, icons that
// need no emoji font, and touch targets for a gloved finger.
import { test, expect } from '@playwright/test';
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { open, answerBoxes, boxText } from './face.mjs';

const shots = process.env.ZEL_SCREENSHOTS;

async function openPage(page, number) {
  await page.locator(`.page-button[data-page="${number}"]`).click();
  await expect(page.locator('#page-face')).toBeVisible();
}

async function tapKeys(page, keys) {
  for (const key of keys) await page.locator(`#keypad [data-key="${key === '.' ? 'decimal' : key}"]`).click();
}

test.describe('phone', () => {
  test('Back returns to the menu, answers an open box first, and leaves from the menu', async ({ page }) => {
    await page.goto('about:blank');
    await open(page);
    await openPage(page, 1);
    await tapKeys(page, '75');
    await page.locator('#rows .row:nth-child(2)').click();
    await page.goBack();
    await expect(page.locator('#menu-face')).toBeVisible();
    await openPage(page, 1); // the page as it was left is opened afresh
    await page.locator('#menu-button').click();
    await openPage(page, 18); // offers a download
    await expect(page.locator('#dialog')).toHaveAttribute('open', '');
    await page.goBack();
    await expect(page.locator('#dialog')).not.toHaveAttribute('open', '');
    await expect(page.locator('#menu-face')).toBeVisible();
    await page.goBack(); // on the menu: leaves, as any site does
    await expect(page).toHaveURL('about:blank');
  });

  test('the report field takes a report from a keyboard that composes words', async ({ page, browserName }) => {
    test.skip(browserName !== 'chromium', 'composition through the DevTools protocol');
    await open(page);
    await openPage(page, 24);
    const field = page.locator('#report-entry');
    await field.click();
    // As Gboard composes: the word grows under composition, then is committed.
    const cdp = await page.context().newCDPSession(page);
    for (const word of ['R', 'R2', 'R24', 'R24L', 'R24L/2901']) {
      await cdp.send('Input.imeSetComposition', { text: word, selectionStart: word.length, selectionEnd: word.length });
    }
    if (shots) {
      mkdirSync(shots, { recursive: true });
      await page.screenshot({ path: join(shots, 'web_phone_report_composing.png') });
    }
    await cdp.send('Input.insertText', { text: 'R24L/290140' });
    await expect(field).toHaveValue('R24L/290140');
    await page.keyboard.press('Enter');
    await expect(page.locator('#rows .row:nth-child(1) .value')).toHaveText('24L');
    await expect(page.locator('#rows .row:nth-child(8) .value')).toHaveText('Good');
    // Text put in at once (autocorrect, a dictation) is taken whole too.
    await field.fill('');
    await page.keyboard.insertText('02170055 09L 5/5/3 100/100/50 NR/NR/12 WET/WET/SLUSH');
    await page.locator('#report-enter').click();
    await expect(page.locator('#rows .row:nth-child(1) .value')).toHaveText('09L');
    await expect(page.locator('#rows .row:nth-child(5) .value')).toHaveText('3 Medium');
  });

  test('an h:mm row says how it is typed, and why 1.60 is refused', async ({ page }) => {
    await open(page);
    await openPage(page, 11);
    const hint = page.locator('#hint');
    await expect(hint).toBeHidden();
    await page.locator('#rows .row:nth-child(7)').click();
    await expect(hint).toHaveText('1.30 = 1:30');
    await expect(page.locator('#rows .row:nth-child(7)')).toHaveAttribute('title', /1\.30 = 1:30/);
    if (shots) await page.screenshot({ path: join(shots, 'web_phone_hmm_hint.png') });
    await tapKeys(page, '1.60');
    await page.locator('#rows .row:nth-child(7)').click();
    await expect(hint).toHaveText('1.60 refused: minutes under 60');
  });

  test('a place is typed in its field on the screen keyboard, and a time with a colon', async ({ page }) => {
    await open(page);
    await openPage(page, 30);
    const field = page.getByRole('textbox', { name: 'Coordinates' });
    await expect(field).toBeVisible();
    await expect(field).toHaveAttribute('type', 'text'); // the screen's own keyboard, letters and all
    // JFK's and Heathrow's reference points, as the FAA and the UK AIP write them.
    await field.tap();
    await page.keyboard.type('40°38\'23.74"N 073°46\'43.29"W');
    await page.keyboard.press('Enter');
    await expect(field).toHaveValue('');
    await field.tap();
    await page.keyboard.type('512839N0002741W');
    await page.getByRole('button', { name: 'Enter the place' }).tap();
    await expect(page.locator('#rows .row:nth-child(1) .value')).toHaveText('N 40°38.40′');
    await expect(page.locator('#rows .row:nth-child(4) .value')).toHaveText('W 000°27.68′');
    await expect(page.locator('#rows .row:nth-child(5) .value')).toHaveText('2,999.09');
    if (shots) {
      mkdirSync(shots, { recursive: true });
      await page.screenshot({ path: join(shots, 'web_phone_great_circle_typed.png') });
    }
    // A paste into the field is the field's; what cannot be read is said, and stays to correct.
    await field.tap();
    await page.keyboard.type('51 28');
    await page.keyboard.press('Enter');
    await expect(page.locator('#dialog')).toHaveAttribute('open', '');
    expect(await boxText(page)).toContain('It can be read more than one way');
    await page.locator('#dialog-yes').click();
    await expect(field).toHaveValue('51 28');
    // Antipodes: the page says there is no single course.
    await page.locator('#clear').tap();
    await page.locator('#clear').tap();
    await field.fill('40, 10');
    await field.press('Enter');
    await field.fill('-40, -170');
    await field.press('Enter');
    await expect(page.locator('#note')).toHaveText(
      'Antipodal: no single shortest way; initial course 360 or 180 is as short');
    // Track Time has no place field; 1:30 is typed with the colon.
    await page.locator('#menu-button').tap();
    await openPage(page, 15);
    await expect(field).toBeHidden();
    await tapKeys(page, '100');
    await page.locator('#rows .row:nth-child(2)').tap();
    await page.locator('#app').focus();
    await page.keyboard.type('1:30');
    await expect(page.locator('#display')).toHaveText('1:30');
    await page.locator('#rows .row:nth-child(3)').tap();
    await expect(page.locator('#rows .row:nth-child(4) .value')).toHaveText('66.67');
  });

  test('a screen reader hears the input row, the given rows and results, not keystrokes', async ({ page }) => {
    await open(page);
    await openPage(page, 20); // Descent
    for (const [keys, row] of [['8000', 1], ['500', 5], ['120', 3]]) {
      await tapKeys(page, keys);
      await page.locator(`#rows .row:nth-child(${row})`).click();
    }
    await expect(page.locator('#rows .row:nth-child(3)')).toHaveAttribute('aria-current', 'true');
    await expect(page.locator('#rows .row[aria-current]')).toHaveCount(1);
    await expect(page.getByRole('button', { name: 'Vertical Speed - ft/min' })).toHaveAccessibleDescription(/given/);
    await expect(page.locator('#announce')).toContainText('Distance 32.00');
    await tapKeys(page, '25');
    await expect(page.locator('#announce')).toContainText('Distance 32.00'); // typing is not announced
    await expect(page.locator('#display')).not.toHaveAttribute('aria-live', /./);
    // The calculator's keys and the number keys have names of their own.
    for (const name of ['Add', 'Subtract', 'Result', 'Plus', 'Minus', 'Equals']) {
      await expect(page.getByRole('button', { name, exact: true })).toHaveCount(1);
    }
  });

  test('the boxes draw their icons from the site, not from an emoji font', async ({ page }) => {
    await open(page);
    await openPage(page, 1);
    await tapKeys(page, '7');
    await page.locator('[data-op="4"]').click();
    await tapKeys(page, '0');
    await page.locator('#equals').click(); // division by zero
    await expect(page.locator('#dialog')).toHaveAttribute('data-icon', 'critical');
    const icon = await page.evaluate(() => {
      const style = getComputedStyle(document.querySelector('#dialog h2'), '::before');
      return { content: style.content, mask: style.maskImage || style.webkitMaskImage };
    });
    expect(icon.content).toBe('""');
    expect(icon.mask).toContain('message-critical.svg');
    await answerBoxes(page, [], 'taps');
  });

  test('on a touch screen rows and keys are 48 px tall and 8 px apart; the Night button says its state', async ({ page }, info) => {
    test.skip(!info.project.use.hasTouch, 'a touch screen');
    await open(page);
    await openPage(page, 16);
    const boxes = await page.evaluate(() => ({
      rows: [...document.querySelectorAll('#rows .row')].map((e) => e.getBoundingClientRect()),
      keys: [...document.querySelectorAll('#keypad button, .keys .key:not([hidden])')]
        .map((e) => e.getBoundingClientRect()),
    }));
    for (const r of [...boxes.rows, ...boxes.keys]) expect(r.height).toBeGreaterThanOrEqual(48);
    for (let i = 1; i < boxes.rows.length; ++i) {
      expect(boxes.rows[i].top - boxes.rows[i - 1].bottom).toBeGreaterThanOrEqual(8);
    }
    const night = page.locator('#palette');
    const before = await night.getAttribute('aria-pressed');
    await night.click();
    await expect(night).toHaveAttribute('aria-pressed', before === 'true' ? 'false' : 'true');
    await expect(night).toHaveText(before === 'true' ? 'Night: off' : 'Night: on');
    if (info.project.name === 'tablet') {
      // The tablet's page fills the screen's height.
      const bottom = await page.evaluate(() => document.getElementById('keypad').getBoundingClientRect().bottom);
      expect(bottom).toBeGreaterThan(page.viewportSize().height - 40);
    }
  });
});
