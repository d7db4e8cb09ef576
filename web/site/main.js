// SPDX-License-Identifier: GPL-3.0-or-later
// The web face: forwards what the user does (keys, taps, paste) to the
// calculator compiled from the desktop's C++ and draws the view it gives.
// Nothing here works out a figure or decides a rule: every number, flag and
// text on the page is the calculator's.
import createCalculator from './zelflightab.js';
import { openBox, boxOpen, setUpDialogs } from './dialogs.js';
import { setUpKeys } from './keys.js';
import { setUpPalette } from './palette.js';
import { bell } from './sound.js';
import { openFiles, storageHost, fileText, saveText } from './storage.js';
import { build, render } from './view.js';
import { renderLoading } from './loading.js';

const $ = (id) => document.getElementById(id);
let calc = null; // the Calculator, once the WebAssembly is in
let drawn = null; // the view drawn last
let keyboardUser = false;

// The browser's history follows the faces: a page is a step forward, so
// that Back returns to the menu as the Menu button does, and Back on the
// menu leaves, as on any site.
function followFaces(before, now) {
  if (before && before.face === 'menu' && now.face === 'page' && !(history.state && history.state.page)) {
    history.pushState({ page: true }, '');
  } else if (before && before.face === 'page' && now.face === 'menu' && history.state && history.state.page) {
    history.back();
  }
}

// What the Weight & Balance page asks of the page itself: a field's text
// kept as it is typed (the page is not drawn again meanwhile), a file
// picked to import, a profile downloaded, the sheet printed.
const loadingFace = {
  edit: (id, text) => calc.editField(id, text),
  pick: () => $('profile-file').click(),
  exported: () => calc.exportProfile(),
  download(name, text) {
    const link = document.createElement('a');
    link.href = URL.createObjectURL(new Blob([text], { type: 'application/json' }));
    link.download = name;
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 1000);
  },
  print: () => window.print(),
};

function draw() {
  if (!calc) return;
  const view = calc.view();
  view.decimal = calc.decimalSymbol();
  render(view, drawn, keyboardUser);
  renderLoading(view.face === 'page' ? view.loading : null, act, loadingFace);
  followFaces(drawn, view);
  drawn = view;
}

/// What a screen reader hears of a result: the rows the page worked out, or
/// the display's number. Typing is not announced, keystroke by keystroke.
function announce(before, now) {
  if (now.loading) {
    // The sheet: what the loading now comes to.
    const text = now.loading.verdict && (!before.loading || before.loading.verdict !== now.loading.verdict ||
      JSON.stringify(before.loading.lines) !== JSON.stringify(now.loading.lines))
      ? `${now.loading.verdict} ${now.loading.lines.filter((l) => l.total).map((l) => `${l.name} ${l.weight.text}, CG ${l.arm.text}`).join('; ')}`
      : '';
    if (text) $('announce').textContent = text;
    return;
  }
  const changed = now.rows.filter((row, i) => row.exists && row.value !== before.rows[i].value);
  const text = changed.length > 0
    ? changed.map((row) => `${row.name} ${row.value || 'empty'}`).join(', ')
    : now.display !== before.display ? now.display : '';
  if (text) $('announce').textContent = text;
}

/**
 * Runs a call of the calculator as the user's action, then draws the page;
 * gives back what the call returned. `typing`: the action types a figure.
 */
function act(call, { typing = false } = {}) {
  if (!calc || boxOpen()) return undefined; // a box is modal
  const before = drawn;
  const result = call(calc);
  draw();
  if (before && !typing && drawn.face === 'page') announce(before, drawn);
  return result;
}

// What the calculator asks of the page; the storage joins it once read.
const ui = {
  beep: bell,
  open(request) {
    openBox({ ...request, done: (yes, text) => {
      calc.answer(request.id, yes, text);
      draw();
    } });
  },
  busy(on) {
    $('app').setAttribute('aria-busy', on ? 'true' : 'false');
  },
  quit() {
    window.close(); // an installed app's window closes; a tab stays
  },
};

function copy(text) {
  navigator.clipboard.writeText(text).catch(() => bell());
}

function showKeys() {
  // The calculator's keys, but those a browser keeps for itself (its zoom,
  // its private window).
  const lines = drawn.help.filter((line) => !['zoomIn', 'night'].includes(line.needs))
    .map((line) => `${line.keys}: ${line.does}${line.keys.startsWith('Ctrl+1')
      ? ' (in an installed app; a tab gives them to the browser)' : ''}`);
  openBox({ kind: 'message', title: 'Keys', paragraphs: [lines.join('\n'), ...calc.licenceNotes()] });
}

function editSettings() {
  // The settings file as text, as on the desktop: the download source among
  // them (a copy of the rates served beside this site works).
  const path = calc.settingsFile();
  openBox({ kind: 'settings', title: 'Settings file', value: fileText(path),
    paragraphs: ['The program reads and writes one key at a time and keeps the rest.', calc.ratesNote()],
    done: async (yes, typed, value) => {
      if (yes && !(await saveText(path, value))) {
        openBox({ kind: 'message', icon: 'critical', title: 'zelFLIGHTAB',
          paragraphs: ['The settings file could not be saved; it is left as it was.'] });
      }
    } });
}

function setUpReportField() {
  // The field holds the report as the user writes it, by keys, a screen's
  // keyboard that composes words, or autocorrect; the calculator takes its
  // whole text at each change, and decodes it on Enter.
  const entry = $('report-entry');
  entry.addEventListener('input', () => act((c) => c.writeReport(entry.value), { typing: true }));
  entry.addEventListener('paste', (event) => {
    // A paste replaces the report, as the page takes one pasted.
    event.preventDefault();
    const text = event.clipboardData ? event.clipboardData.getData('text/plain') : '';
    act((c) => c.paste(text));
    entry.value = drawn.display;
  });
}

function setUpPlaceField() {
  // A coordinate as pilots write it, typed on the screen's own keyboard or
  // pasted: Enter hands it to the page as a paste, and an empty field is
  // ready for the next place once the page took it.
  const form = $('place-form');
  const entry = $('place-entry');
  form.addEventListener('submit', (event) => {
    event.preventDefault();
    const text = entry.value;
    if (text.trim() === '') return;
    if (act((c) => c.paste(text))) entry.value = ''; // a refusal leaves the text to correct
  });
}

function setUpBack() {
  window.addEventListener('popstate', () => {
    if (!drawn || drawn.face !== 'page') return;
    // An open box is answered first: No or Cancel, as Escape answers it; a
    // message is closed.
    for (let open = 0; boxOpen() && open < 16; ++open) {
      $($('dialog-no').hidden ? 'dialog-yes' : 'dialog-no').click();
    }
    act((c) => c.goBack());
  });
}

async function start(filesRead) {
  setUpPalette();
  setUpDialogs();
  let kept = true;
  const [module] = await Promise.all([
    createCalculator({ zelUi: ui, locateFile: (name) => name }),
    filesRead.catch(() => { kept = false; }),
  ]);
  Object.assign(ui, storageHost(() => calc, draw));
  calc = new module.Calculator('');
  build(calc.view(), act);
  setUpKeys(act, {
    calculator: () => calc,
    copy,
    about: showKeys,
    report: () => drawn !== null && drawn.report,
    keyboardUser: (yes) => { keyboardUser = yes; },
  });
  setUpReportField();
  setUpPlaceField();
  setUpBack();
  $('profile-file').addEventListener('change', async (event) => {
    const [file] = event.target.files;
    event.target.value = '';
    if (file) {
      const text = await file.text();
      act((c) => c.importProfile(text));
    }
  });
  $('settings').addEventListener('click', editSettings);
  $('about').addEventListener('click', showKeys);
  window.addEventListener('resize', draw);
  calc.start();
  draw();
  calc.activate();
  draw();
  if (!kept) {
    // Storage refused (a private window may): the calculator works, and says
    // that nothing will be kept.
    openBox({ kind: 'message', icon: 'exclamation', title: 'zelFLIGHTAB',
      paragraphs: ['This browser keeps no storage for this site: the settings will not be kept.'] });
  }
  performance.mark('zelflightab-ready'); // the menu takes a tap from here on
  if ('serviceWorker' in navigator) navigator.serviceWorker.register('sw.js');
}

// The stored files are read while the WebAssembly loads.
start(openFiles());
