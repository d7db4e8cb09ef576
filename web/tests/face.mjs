// SPDX-License-Identifier: GPL-3.0-or-later
// The web face as the tests read it: rows, display and boxes in the console's
// words, so that a page can be compared with its golden script.

/// Counts, in the page, the bells rung and the boxes opened: the tests
/// listen to the browser's own sound and dialog calls, so that the app
/// carries nothing for them.
function listen() {
  if (window.zelCounts) return;
  window.zelCounts = { bells: 0, boxes: 0 };
  const tone = AudioContext.prototype.createOscillator;
  AudioContext.prototype.createOscillator = function createOscillator() {
    window.zelCounts.bells += 1;
    return tone.call(this);
  };
  const show = HTMLDialogElement.prototype.showModal;
  HTMLDialogElement.prototype.showModal = function showModal() {
    window.zelCounts.boxes += 1;
    return show.call(this);
  };
}

/// Waits until the app takes a tap (after a reload too).
export async function ready(page) {
  await page.waitForFunction(() => performance.getEntriesByName('zelflightab-ready').length > 0);
}

/// Opens the app and waits until it takes a tap.
export async function open(page, path = '/') {
  await page.addInitScript(listen);
  await page.goto(path);
  await ready(page);
}

/// How many bells have rung, and boxes opened, since the page was loaded.
export async function counts(page) {
  return page.evaluate(() => window.zelCounts);
}

/// The open box's text as the console prints it: its paragraphs, an empty
/// line between them.
export async function boxText(page) {
  return page.evaluate(() => [...document.querySelectorAll('#dialog-text .paragraph')]
    .map((p) => p.textContent).join('\n\n'));
}

/// A text as the console quotes it.
export function quoted(text) {
  return `"${text.replace(/\\/g, '\\\\').replace(/"/g, '\\"').replace(/\r\n?|\n/g, '\\n')}"`;
}

/// `row N "unit" "caption" size input|given|normal`, as the console shows it.
export async function rowLine(page, row) {
  const cell = await page.evaluate((n) => {
    const button = document.querySelector(`#rows .row:nth-child(${n})`);
    const value = button.querySelector('.value');
    return {
      unit: button.querySelector('.unit').textContent,
      caption: value.title || value.textContent,
      compact: value.classList.contains('compact'),
      state: button.classList.contains('input') ? 'input' : button.classList.contains('given') ? 'given' : 'normal',
    };
  }, row);
  return `row ${row} ${quoted(cell.unit)} ${quoted(cell.caption)} ${cell.compact ? 9 : 12} ${cell.state}`;
}

/// `display "text" size`.
export async function displayLine(page) {
  const display = await page.evaluate(() => {
    const d = document.getElementById('display');
    return { text: d.title || d.textContent, compact: d.classList.contains('compact') };
  });
  return `display ${quoted(display.text)} ${display.compact ? 10 : 18}`;
}

/// Waits until no download is under way, and the page has drawn what it brought.
export async function settled(page) {
  await page.waitForFunction(() => document.getElementById('app').getAttribute('aria-busy') !== 'true');
  await page.evaluate(() => new Promise((resolve) => requestAnimationFrame(() => resolve())));
}

/// Answers the boxes that are open: a message with OK, a question or an input
/// box with the next of `answers` ("yes", "no", "cancel", "text MXN"), by taps
/// or by keys. The messages, as the console prints them.
export async function answerBoxes(page, answers, by) {
  const messages = [];
  await settled(page);
  for (;;) {
    const box = await page.evaluate(() => {
      const dialog = document.getElementById('dialog');
      if (!dialog.open) return null;
      return {
        icon: dialog.dataset.icon,
        title: document.getElementById('dialog-title').textContent,
        text: [...document.querySelectorAll('#dialog-text .paragraph')].map((p) => p.textContent).join('\n\n'),
        input: !document.getElementById('dialog-input').hidden,
        question: !document.getElementById('dialog-no').hidden,
      };
    });
    if (!box) return messages;
    let yes = true;
    if (box.question) {
      const answer = answers.shift() || 'cancel';
      yes = answer === 'yes' || answer.startsWith('text ');
      if (box.input && yes) await page.fill('#dialog-input', answer.slice(5));
    } else {
      messages.push(`message ${box.icon || 'information'} ${quoted(box.title)} ${quoted(box.text)}`);
    }
    if (by === 'taps') await page.tap(yes ? '#dialog-yes' : '#dialog-no');
    else await page.keyboard.press(yes ? 'Enter' : 'Escape');
    await settled(page);
  }
}

/// Replaces the stored settings file, as another tab would.
export async function storeSettings(page, text) {
  await page.evaluate((ini) => new Promise((resolve, reject) => {
    const request = indexedDB.open('zelflightab', 1);
    request.onerror = () => reject(request.error);
    request.onsuccess = () => {
      const put = request.result.transaction('files', 'readwrite').objectStore('files')
        .put(new TextEncoder().encode(ini), 'zelFLIGHTAB/Tech/zelFLIGHTAB.ini');
      put.onsuccess = () => resolve();
      put.onerror = () => reject(put.error);
    };
  }), text);
}
