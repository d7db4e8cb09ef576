// SPDX-License-Identifier: GPL-3.0-or-later
// The web face: forwards what the user does (keys, clicks and taps, paste) to
// the calculator compiled from the desktop's C++ and draws what it reports.
// Nothing here works out a figure: every number on the page is the core's.
'use strict';

// The WebAssembly module's settings, read by its loader (zelflightab.js).
var Module = {
  onRuntimeInitialized: () => { start(); },
  locateFile: (name) => name,
};

const $ = (id) => document.getElementById(id);
const app = $('app');
let calc = null; // the Calculator, once the WebAssembly is in
let state = null; // what it reported last

// Key codes of the calculator's key-up event, as the window sends them.
const KEY = { Backspace: 8, Enter: 13, Escape: 27, F1: 112 };

// ---------------------------------------------------------------- storage
// The settings file and the kept rate pages live in IndexedDB, mirrored in
// memory so that the calculator's reads never wait. A change of the settings
// is made at once in this tab's copy and again, under a Web Lock, on the
// stored file as it then is, so that two tabs writing at once lose nothing.
const files = new Map();
const LOCK = 'zelflightab-settings';
const channel = 'BroadcastChannel' in self ? new BroadcastChannel('zelflightab-files') : null;
let database = null;

function request(r) {
  return new Promise((resolve, reject) => {
    r.onsuccess = () => resolve(r.result);
    r.onerror = () => reject(r.error);
  });
}

function store(mode) {
  return database.transaction('files', mode).objectStore('files');
}

async function openFiles() {
  const open = indexedDB.open('zelflightab', 1);
  open.onupgradeneeded = () => open.result.createObjectStore('files');
  database = await request(open);
  const names = await request(store('readonly').getAllKeys());
  for (const name of names) {
    files.set(name, await request(store('readonly').get(name)));
  }
  if (channel) {
    // Another tab wrote a file: this tab reads it afresh.
    channel.onmessage = async (event) => {
      const bytes = await request(store('readonly').get(event.data));
      if (bytes === undefined) files.delete(event.data);
      else files.set(event.data, bytes);
    };
  }
}

function saveFailed(error) {
  showBox({ icon: 'critical', title: 'zelFLIGHTAB',
    text: `The settings could not be saved in this browser's storage:\n\n${error}` });
}

async function putFile(path, bytes) {
  if (bytes === null) await request(store('readwrite').delete(path));
  else await request(store('readwrite').put(bytes, path));
  if (channel) channel.postMessage(path);
}

// ------------------------------------------------------- the page's sound
let audio = null;

function bell() {
  // A short tone, and a flash of the display for those who have sound off.
  try {
    audio = audio || new AudioContext();
    const tone = audio.createOscillator();
    const level = audio.createGain();
    tone.frequency.value = 880;
    level.gain.setValueAtTime(0.15, audio.currentTime);
    level.gain.exponentialRampToValueAtTime(0.001, audio.currentTime + 0.15);
    tone.connect(level).connect(audio.destination);
    tone.start();
    tone.stop(audio.currentTime + 0.15);
  } catch (error) {
    // no sound here: the flash remains
  }
  const display = $('display');
  display.classList.add('flash');
  setTimeout(() => display.classList.remove('flash'), 120);
  app.dataset.bells = String(Number(app.dataset.bells || 0) + 1);
}

// ---------------------------------------------------------------- dialogs
// The page's own modal dialogs, one at a time in the order they were made.
const boxes = [];
let boxOpen = null;

function showBox(box) {
  boxes.push(box);
  if (!boxOpen) nextBox();
}

function nextBox() {
  boxOpen = boxes.shift() || null;
  const dialog = $('dialog');
  if (!boxOpen) {
    if (dialog.open) dialog.close();
    return;
  }
  const box = boxOpen;
  app.dataset.boxes = String(Number(app.dataset.boxes || 0) + 1);
  dialog.dataset.icon = box.icon || '';
  dialog.setAttribute('role', box.kind === 'message' || box.kind === undefined ? 'alertdialog' : 'dialog');
  $('dialog-title').textContent = box.title;
  $('dialog-text').textContent = box.text.replace(/\r/g, '\n');
  const input = $('dialog-input');
  const area = $('dialog-area');
  input.hidden = box.kind !== 'input';
  input.value = '';
  area.hidden = box.kind !== 'settings';
  area.value = box.kind === 'settings' ? box.value : '';
  const two = box.kind === 'question' || box.kind === 'input' || box.kind === 'settings';
  $('dialog-yes').textContent = box.kind === 'question' ? 'Yes' : box.kind === 'settings' ? 'Save' : 'OK';
  $('dialog-no').textContent = box.kind === 'question' ? 'No' : 'Cancel';
  $('dialog-no').hidden = !two;
  if (!dialog.open) dialog.showModal();
  (box.kind === 'input' ? input : box.kind === 'settings' ? area : $('dialog-yes')).focus();
}

function closeBox(yes) {
  const box = boxOpen;
  if (!box) return;
  const text = box.kind === 'input' && yes ? $('dialog-input').value : null;
  const value = $('dialog-area').value;
  nextBox();
  if (box.done) box.done(yes, text, value);
  render();
}

function setUpDialog() {
  const dialog = $('dialog');
  $('dialog-yes').addEventListener('click', () => closeBox(true));
  $('dialog-no').addEventListener('click', () => closeBox(false));
  dialog.addEventListener('cancel', (event) => {
    event.preventDefault(); // Escape answers, as in the window
    closeBox(false);
  });
  // The key that answers a box does nothing more: not on the page, not as a
  // second answer, not when it is let go.
  dialog.addEventListener('keydown', (event) => {
    event.stopPropagation();
    if (event.key === 'Enter' && !event.repeat && event.target.tagName !== 'TEXTAREA') {
      event.preventDefault();
      if (event.target.id === 'dialog-no') closeBox(false);
      else closeBox(true);
    } else if (event.key === 'Escape') {
      event.preventDefault();
      closeBox(false);
    } else if (event.key === 'Tab') {
      // The focus stays inside the box.
      const inside = [...dialog.querySelectorAll('input, textarea, button')].filter((e) => !e.hidden);
      const at = inside.indexOf(document.activeElement);
      const next = (at + (event.shiftKey ? inside.length - 1 : 1)) % inside.length;
      event.preventDefault();
      inside[next].focus();
    }
  });
  dialog.addEventListener('keyup', (event) => event.stopPropagation());
}

// ------------------------------------------------- what the core calls on
Module.zelUi = {
  beep: bell,
  message(icon, title, text) {
    showBox({ kind: 'message', icon, title, text });
  },
  ask(id, input, title, text) {
    showBox({ kind: input ? 'input' : 'question', title, text,
      done: (yes, typed) => calc.answer(id, yes, typed) });
  },
  busy(on) {
    app.setAttribute('aria-busy', on ? 'true' : 'false');
  },
  quit() {
    window.close(); // an installed app's window closes; a tab stays
  },
  readFile(path) {
    return files.has(path) ? files.get(path) : null;
  },
  writeFile(path, bytes) {
    const copy = Uint8Array.from(bytes);
    files.set(path, copy);
    putFile(path, copy).catch(saveFailed);
    return true;
  },
  removeFile(path) {
    files.delete(path);
    putFile(path, null).catch(saveFailed);
  },
  updateFile(id, path, bytes) {
    files.set(path, Uint8Array.from(bytes));
    navigator.locks.request(LOCK, async () => {
      const stored = await request(store('readonly').get(path));
      const changed = calc.applyChange(id, stored === undefined ? null : stored);
      if (changed !== null) {
        await putFile(path, changed);
        files.set(path, changed);
      }
    }).catch(saveFailed);
    return true;
  },
};

// --------------------------------------------------------------- building
const rowButtons = [];

function icon(element, name) {
  element.style.setProperty('--icon', `url("icons/${name}.svg")`);
}

function build() {
  const pages = $('pages');
  for (const page of calc.pages()) {
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'page-button';
    button.dataset.page = page.number;
    const picture = document.createElement('span');
    picture.className = 'icon';
    picture.setAttribute('aria-hidden', 'true');
    icon(picture, page.icon);
    const name = document.createElement('span');
    name.textContent = page.name;
    button.append(picture, name);
    if (page.key) {
      const key = document.createElement('span');
      key.className = 'key-name';
      key.textContent = page.key;
      key.setAttribute('aria-hidden', 'true');
      button.append(key);
    }
    if (page.functionKey) button.setAttribute('aria-keyshortcuts', `F${page.functionKey}`);
    button.addEventListener('click', () => act(() => calc.openPage(page.number)));
    pages.append(button);
  }
  const rows = $('rows');
  for (let row = 1; row <= 8; ++row) {
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'row';
    button.setAttribute('aria-keyshortcuts', `Control+${row}`);
    const value = document.createElement('span');
    value.className = 'value';
    value.id = `value-${row}`;
    const unit = document.createElement('span');
    unit.className = 'unit';
    button.setAttribute('aria-describedby', value.id);
    button.append(value, unit);
    button.addEventListener('click', () => act(() => calc.clickRow(row)));
    rows.append(button);
    rowButtons.push({ button, value, unit });
  }
  const keypad = $('keypad');
  for (const key of ['7', '8', '9', 'back', '4', '5', '6', '-', '1', '2', '3', '+', '0', 'decimal', '=', 'enter']) {
    const button = document.createElement('button');
    button.type = 'button';
    button.dataset.key = key;
    if (key === 'back') {
      button.textContent = '⌫';
      button.setAttribute('aria-label', 'Backspace');
      button.addEventListener('click', () => act(() => calc.keyPress(KEY.Backspace)));
    } else if (key === 'enter') {
      button.textContent = '↵';
      button.setAttribute('aria-label', 'Enter');
      button.addEventListener('click', () => act(() => calc.keyUp(KEY.Enter)));
    } else if (key === '=') {
      button.textContent = '=';
      button.setAttribute('aria-label', 'Equals');
      button.addEventListener('click', () => act(() => calc.pressOperator(0)));
    } else if (key === 'decimal') {
      button.setAttribute('aria-label', 'Decimal symbol');
      button.addEventListener('click', () => act(() => calc.keyPress(decimalSymbol().codePointAt(0))));
    } else {
      button.textContent = key === '-' ? '−' : key;
      if (key === '-') button.setAttribute('aria-label', 'Minus');
      if (key === '+') button.setAttribute('aria-label', 'Plus');
      button.addEventListener('click', () => act(() => calc.keyPress(key.codePointAt(0))));
    }
    keypad.append(button);
  }
  $('equals').addEventListener('click', () => act(() => calc.pressOperator(0)));
  // Decodes the report, and shows its next runway.
  $('report-enter').addEventListener('click', () => act(() => calc.keyUp(KEY.Enter)));
  for (const key of document.querySelectorAll('[data-op]')) {
    key.addEventListener('click', () => act(() => calc.pressOperator(Number(key.dataset.op))));
  }
  for (const key of document.querySelectorAll('[data-mem]')) {
    key.addEventListener('click', () => act(() => calc.pressMemory(Number(key.dataset.mem))));
  }
  $('digits').addEventListener('click', () => act(() => calc.pressDigits()));
  $('clear').addEventListener('click', () => act(() => calc.clear()));
  $('menu-button').addEventListener('click', () => act(() => calc.backToMenu()));
  $('palette').addEventListener('click', () => choosePalette(!night()));
  $('settings').addEventListener('click', editSettings);
  $('about').addEventListener('click', showKeys);
  const entry = $('report-entry');
  entry.addEventListener('input', (event) => {
    // A report typed with the screen's keyboard goes to the calculator as
    // keys; the display shows it.
    const typed = entry.value;
    entry.value = '';
    if (event.inputType === 'insertFromPaste') return act(() => calc.paste(typed));
    act(() => {
      for (const c of typed) calc.keyPress(c.codePointAt(0));
    });
  });
}

function decimalSymbol() {
  return Module.zelHost.symbols(undefined)[0];
}

// -------------------------------------------------------------- rendering
function act(handler) {
  if (!calc || boxOpen || calc.busy()) return; // a box is modal; a download takes no action
  handler();
  render();
}

// The window's digit rule: a number too long for its cell is drawn smaller,
// then in exponent form with fewer digits; its whole text is in the title.
// What is not shown is not measured: a measure lays the page out at once.
function fit(cell, caption, shortForm, shown) {
  cell.textContent = caption;
  cell.title = '';
  if (!shown || !caption || cell.scrollWidth <= cell.clientWidth) return;
  cell.title = caption;
  if (!shortForm) return;
  for (let digits = 15; digits >= 1; --digits) {
    const short = shortForm(digits);
    if (!short) return;
    cell.textContent = short;
    if (cell.scrollWidth <= cell.clientWidth) return;
  }
}

function render() {
  if (!calc) return;
  const previous = state;
  state = calc.state();
  const page = state.face === 'page';
  $('menu-face').hidden = page;
  $('page-face').hidden = !page;
  $('menu-button').hidden = !page;
  $('title').textContent = page ? state.title : 'zelFLIGHTAB';
  icon($('title-icon'), state.icon);
  document.title = page ? `${state.title} – zelFLIGHTAB` : 'zelFLIGHTAB';

  const display = $('display');
  display.classList.toggle('compact', state.displayCompact);
  display.classList.toggle('report', state.report);
  fit(display, state.display, state.report ? null : (d) => calc.displayShort(d), page);
  if (state.report) {
    display.title = state.display;
    display.scrollLeft = display.scrollWidth; // the end of the report, where typing goes on
  }
  $('report-entry').hidden = !state.report;
  $('keypad').hidden = state.report;
  $('report-enter').hidden = !state.report;
  $('digits').textContent = state.digits;
  $('digits').setAttribute('aria-label', `Digits ${state.digits}`);
  for (const key of document.querySelectorAll('.keys .key:not(#clear):not(#report-enter)')) key.hidden = !state.panels;
  for (const key of document.querySelectorAll('[data-mem]')) {
    const memory = state.memory[Number(key.dataset.mem)];
    key.textContent = memory.caption;
    key.classList.toggle('lit', memory.lit);
  }
  for (const key of document.querySelectorAll('[data-op]')) {
    const op = Number(key.dataset.op);
    key.classList.toggle('lit', op === 4 ? state.operators[4] || state.operators[5] : state.operators[op]);
  }
  const decimal = document.querySelector('[data-key="decimal"]');
  if (decimal) decimal.textContent = decimalSymbol();

  state.rows.forEach((cell, i) => {
    const { button, value, unit } = rowButtons[i];
    const row = i + 1;
    const exists = cell.unit !== '';
    button.classList.toggle('empty', !exists);
    button.disabled = !exists;
    button.setAttribute('aria-hidden', exists ? 'false' : 'true');
    button.setAttribute('aria-label', exists ? cell.unit : `Row ${row}`);
    button.classList.toggle('input', cell.input);
    button.classList.toggle('given', cell.given);
    unit.textContent = cell.unit;
    value.classList.toggle('compact', cell.compact);
    value.classList.remove('wrap');
    fit(value, cell.caption, (d) => calc.rowShort(row, d), page && exists);
    if (page && state.report && value.scrollWidth > value.clientWidth) value.classList.add('wrap');
    button.title = exists ? `${cell.unit} (Ctrl+${row})` : '';
  });

  if (previous && previous.face !== state.face) {
    // A keyboard user keeps a place to start from: on the menu, the page's
    // own button; on a page, the page itself.
    const back = document.querySelector(`.page-button[data-page="${previous.page}"]`);
    if (!page && back && keyboardUser) back.focus();
    else app.focus();
  }
}

// -------------------------------------------------------------- the keys
const pressed = new Set();
let keyboardUser = false;

function onKeyDown(event) {
  if (!calc || boxOpen) return;
  keyboardUser = true;
  const ctrl = event.ctrlKey || event.metaKey;
  const inEntry = event.target === $('report-entry');
  if (ctrl && !event.altKey && !event.shiftKey && /^[1-8]$/.test(event.key)) {
    event.preventDefault();
    if (!event.repeat) act(() => calc.clickRow(Number(event.key)));
    return;
  }
  if (event.altKey && !ctrl && (event.key === 'm' || event.key === 'M' || event.key === 'ArrowLeft')) {
    event.preventDefault();
    act(() => calc.backToMenu());
    return;
  }
  if (ctrl && (event.key === 'c' || event.key === 'C')) {
    if (window.getSelection().toString() !== '' && !event.shiftKey) return; // the browser copies what is selected
    event.preventDefault();
    copy(event.shiftKey ? calc.pageText() : calc.displayNumber());
    return;
  }
  if (ctrl || event.altKey) return; // the browser's own shortcuts, paste among them
  const page = state.face === 'page';
  if (!page && ['ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown'].includes(event.key)) {
    event.preventDefault();
    moveOnMenu(event.key);
    return;
  }
  const key = event.key;
  if (key === 'Enter' || key === 'Escape' || /^F([1-9]|1[0-2])$/.test(key)) {
    event.preventDefault(); // acts when let go, as in the window
    if (!event.repeat) pressed.add(key);
    return;
  }
  if (inEntry && key !== 'Backspace') return; // the screen keyboard's text comes as input
  if (key === 'Backspace') {
    event.preventDefault();
    act(() => calc.keyPress(KEY.Backspace));
    return;
  }
  if (key === ' ' && !(page && state.report) && document.activeElement !== app &&
      document.activeElement !== document.body) {
    return; // presses the focused control
  }
  if ([...key].length === 1) {
    event.preventDefault();
    act(() => calc.keyPress(key.codePointAt(0)));
  }
}

function onKeyUp(event) {
  if (!calc || !pressed.delete(event.key)) return; // its press went to a box
  if (boxOpen) return;
  const focused = document.activeElement;
  if (event.key === 'Enter' && state.face === 'menu' && focused && focused.classList.contains('page-button')) {
    focused.click();
    return;
  }
  if (event.key === 'F1' && event.shiftKey) {
    showKeys();
    return;
  }
  const code = event.key === 'Enter' ? KEY.Enter : event.key === 'Escape' ? KEY.Escape
    : KEY.F1 + Number(event.key.slice(1)) - 1;
  act(() => calc.keyUp(code));
}

function moveOnMenu(key) {
  const buttons = [...document.querySelectorAll('.page-button')];
  const columns = buttons.filter((b) => b.offsetTop === buttons[0].offsetTop).length;
  const at = buttons.indexOf(document.activeElement);
  const step = { ArrowLeft: -1, ArrowRight: 1, ArrowUp: -columns, ArrowDown: columns }[key];
  const next = at < 0 ? 0 : (at + step + buttons.length) % buttons.length;
  buttons[next].focus();
}

function copy(text) {
  navigator.clipboard.writeText(text).catch(() => bell());
}

function onPaste(event) {
  if (!calc || boxOpen || event.target === $('report-entry')) return;
  event.preventDefault();
  const text = event.clipboardData ? event.clipboardData.getData('text/plain') : '';
  act(() => calc.paste(text));
}

// ---------------------------------------------------- palette and settings
function night() {
  return document.documentElement.dataset.palette === 'night';
}

function applyPalette(dark) {
  document.documentElement.dataset.palette = dark ? 'night' : 'day';
  $('palette').setAttribute('aria-pressed', dark ? 'true' : 'false');
  document.querySelector('meta[name="theme-color"]').content = dark ? '#10161c' : '#00457d';
}

function choosePalette(dark) {
  localStorage.setItem('zelflightab.palette', dark ? 'night' : 'day');
  applyPalette(dark);
}

function setUpPalette() {
  // The palette the user chose is kept; until then the system's is followed.
  const dark = matchMedia('(prefers-color-scheme: dark)');
  const chosen = () => localStorage.getItem('zelflightab.palette');
  applyPalette(chosen() ? chosen() === 'night' : dark.matches);
  dark.addEventListener('change', () => {
    if (!chosen()) applyPalette(dark.matches);
  });
}

const SETTINGS = 'zelFLIGHTAB/Tech/zelFLIGHTAB.ini';

function editSettings() {
  // The settings file as text, as on the desktop: the download source among
  // them (a copy of the rates served beside this site works).
  const bytes = files.get(SETTINGS) || new Uint8Array(0);
  showBox({ kind: 'settings', title: 'Settings file', value: new TextDecoder().decode(bytes),
    text: `The program reads and writes one key at a time and keeps the rest.\n${calc.ratesNote()}`,
    done: (yes, typed, value) => {
      if (!yes) return;
      const changed = new TextEncoder().encode(value);
      files.set(SETTINGS, changed);
      navigator.locks.request(LOCK, () => putFile(SETTINGS, changed)).catch(saveFailed);
    } });
}

function showKeys() {
  showBox({ kind: 'message', title: 'Keys', text: [
    'F1 – F12: open Weight … Fuel Uplift, Snowtam, Wind Comp',
    'Arrows, Tab, Shift+Tab: move the focus',
    'Enter: opens the focused page; the result of a calculation; decodes a report',
    'Space: presses the focused key or row',
    'Digits , . + - * x / Backspace: type the number and work it out',
    'Ctrl+1 … Ctrl+8: click row 1 … 8 (in an installed app; a tab gives them to the browser)',
    'Alt+M, Alt+Left: back to the menu',
    'Escape: clears',
    'Ctrl+C, Ctrl+Shift+C: copy the display, copy the page',
    'Ctrl+V: paste a number or a report',
  ].join('\n') });
}

// ------------------------------------------------------------------ start
async function start() {
  setUpPalette();
  setUpDialog();
  try {
    await filesRead;
  } catch (error) {
    // Storage refused (a private window may): the calculator works, and says
    // that nothing will be kept.
    database = null;
    Module.zelUi.writeFile = (path, bytes) => (files.set(path, Uint8Array.from(bytes)), true);
    Module.zelUi.removeFile = (path) => files.delete(path);
    Module.zelUi.updateFile = (id, path, bytes) => (files.set(path, Uint8Array.from(bytes)), true);
    showBox({ kind: 'message', icon: 'exclamation', title: 'zelFLIGHTAB',
      text: 'This browser keeps no storage for this site: the settings will not be kept.' });
  }
  calc = new Module.Calculator('');
  build();
  document.addEventListener('keydown', onKeyDown);
  document.addEventListener('keyup', onKeyUp);
  document.addEventListener('paste', onPaste);
  document.addEventListener('pointerdown', () => { keyboardUser = false; });
  window.addEventListener('resize', render);
  calc.load();
  render();
  calc.activate();
  render();
  app.setAttribute('aria-busy', 'false');
  app.dataset.ready = 'true';
  performance.mark('zelflightab-ready'); // the menu takes a tap from here on
  if ('serviceWorker' in navigator) navigator.serviceWorker.register('sw.js');
}

// The stored files are read while the WebAssembly loads (zelflightab.js,
// the next script of the page, finds Module set up here).
const filesRead = openFiles();
