// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the calculator's view: the menu's buttons, the calculator's keys and
// the eight rows are built once, then updated from each view the calculator
// gives. Every figure, flag and text on the page is the calculator's.

const $ = (id) => document.getElementById(id);
const rows = [];

/** A key pressed with no modifier, as the calculator reads a key. */
export function plainKey(key) {
  return { key, ctrlKey: false, metaKey: false, altKey: false, shiftKey: false, repeat: false, focused: false };
}

function icon(element, name) {
  element.style.setProperty('--icon', `url("icons/${name}.svg")`);
}

/**
 * Builds the page's controls once, from the first view; `act(call)` runs a
 * call of the calculator as the user's action and draws the page again.
 */
export function build(view, act) {
  // The menu's groups, each under its heading, in the order a pilot works.
  const menu = $('pages');
  for (const group of view.groups) {
    const heading = document.createElement('h2');
    heading.className = 'group';
    heading.textContent = group.heading;
    const pages = document.createElement('div');
    pages.className = 'pages';
    pages.setAttribute('role', 'group');
    pages.setAttribute('aria-label', group.heading);
    menu.append(heading, pages);
    for (const number of group.pages) pages.append(pageButton(view.pages[number - 1], act));
  }
  buildPage(view, act);
}

function pageButton(page, act) {
  {
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
    if (page.key) button.setAttribute('aria-keyshortcuts', page.key);
    button.addEventListener('click', () => act((calc) => calc.openPage(page.number)));
    return button;
  }
}

function buildPage(view, act) {
  const list = $('rows');
  view.rows.forEach((row, i) => {
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'row';
    button.setAttribute('aria-keyshortcuts', row.key.replace('Ctrl', 'Control'));
    const value = document.createElement('span');
    value.className = 'value';
    value.id = `value-${i + 1}`;
    const unit = document.createElement('span');
    unit.className = 'unit';
    // What a screen reader says besides the unit: the value, "given", and
    // how a value is typed where that is not plain.
    const note = document.createElement('span');
    note.className = 'visually-hidden';
    note.id = `note-${i + 1}`;
    button.setAttribute('aria-describedby', `${value.id} ${note.id}`);
    button.append(value, unit, note);
    button.addEventListener('click', () => act((calc) => calc.clickRow(i + 1)));
    list.append(button);
    rows.push({ button, value, unit, note });
  });
  const keypad = $('keypad');
  const keys = ['7', '8', '9', 'back', '4', '5', '6', '-', '1', '2', '3', '+', '0', 'decimal', '=', 'enter'];
  const named = { back: ['⌫', 'Backspace'], enter: ['↵', 'Enter'], '=': ['=', 'Equals'],
    '-': ['−', 'Minus'], '+': ['+', 'Plus'], decimal: ['', 'Decimal symbol'] };
  for (const key of keys) {
    const button = document.createElement('button');
    button.type = 'button';
    button.dataset.key = key;
    const [face, name] = named[key] || [key, null];
    button.textContent = face;
    if (name) button.setAttribute('aria-label', name);
    // Figures, the decimal symbol and Backspace type: the page does not
    // announce each of them; a result it does.
    const typing = /^[0-9]$|^decimal$|^back$/.test(key);
    button.addEventListener('click', () => act((calc) => {
      if (key === 'back') calc.keyDown(plainKey('Backspace'));
      else if (key === 'enter') calc.keyUp(plainKey('Enter'));
      else if (key === '=') calc.pressOperator(0);
      else calc.type((key === 'decimal' ? calc.decimalSymbol() : key).codePointAt(0));
    }, { typing }));
    keypad.append(button);
  }
  $('equals').addEventListener('click', () => act((calc) => calc.pressOperator(0)));
  // Decodes the report, and shows its next runway.
  $('report-enter').addEventListener('click',
    () => act((calc) => calc.enterReport($('report-entry').value)));
  for (const key of document.querySelectorAll('[data-op]')) {
    key.addEventListener('click', () => act((calc) => calc.pressOperator(Number(key.dataset.op))));
  }
  for (const key of document.querySelectorAll('[data-mem]')) {
    key.addEventListener('click', () => act((calc) => calc.pressMemory(Number(key.dataset.mem))));
  }
  $('digits').addEventListener('click', () => act((calc) => calc.pressDigits()));
  $('clear').addEventListener('click', () => act((calc) => calc.clear()));
  $('menu-button').addEventListener('click', () => act((calc) => calc.goBack()));
}

// A number too long for its cell is drawn smaller, then in the shortest of
// its exponent forms that fits; its whole text is in the title. What is not
// shown is not measured: a measure lays the page out at once.
function fit(cell, text, shortForms, shown) {
  cell.textContent = text;
  cell.title = '';
  if (!shown || !text || cell.scrollWidth <= cell.clientWidth) return;
  cell.title = text;
  for (const form of shortForms) {
    cell.textContent = form;
    if (cell.scrollWidth <= cell.clientWidth) return;
  }
}

/** Draws a view; `previous` is the view drawn before it, if any. */
export function render(view, previous, keyboardUser) {
  const page = view.face === 'page';
  $('menu-face').hidden = page;
  $('page-face').hidden = !page;
  $('menu-button').hidden = !page;
  $('title').textContent = view.title;
  icon($('title-icon'), view.icon);
  document.title = page ? `${view.title} – zelFLIGHTAB` : 'zelFLIGHTAB';
  $('app').setAttribute('aria-busy', view.busy ? 'true' : 'false');

  // On a report page the report is written in its field, which shows and
  // edits the whole of it; the display is for numbers.
  const display = $('display');
  display.hidden = view.report;
  display.classList.toggle('compact', view.displayEmphasis < 18);
  fit(display, view.display, view.displayShortForms, page && !view.report);
  const entry = $('report-entry');
  entry.hidden = !view.report;
  if (view.report && document.activeElement !== entry) entry.value = view.display;
  $('hint').hidden = view.hint === '';
  $('hint').textContent = view.hint;
  $('place-form').hidden = !view.places;
  $('note').hidden = view.note === '';
  $('note').textContent = view.note;
  $('keypad').hidden = view.report;
  $('report-enter').hidden = !view.report;
  const decimal = document.querySelector('[data-key="decimal"]');
  if (decimal) decimal.textContent = view.decimal;
  $('digits').textContent = view.digits;
  $('digits').setAttribute('aria-label', `Digits ${view.digits}`);
  for (const key of document.querySelectorAll('.keys .key:not(#clear):not(#report-enter)')) {
    key.hidden = !view.panels;
  }
  for (const key of document.querySelectorAll('[data-mem]')) {
    const memory = view.memory[Number(key.dataset.mem)];
    key.textContent = memory.caption;
    key.classList.toggle('lit', memory.lit);
  }
  for (const key of document.querySelectorAll('[data-op]')) {
    key.classList.toggle('lit', view.operators[Number(key.dataset.op)].lit);
  }

  $('rows').hidden = !!view.loading;
  view.rows.forEach((row, i) => {
    const { button, value, unit, note } = rows[i];
    button.classList.toggle('empty', !row.exists);
    button.disabled = !row.exists;
    button.setAttribute('aria-hidden', row.exists ? 'false' : 'true');
    button.setAttribute('aria-label', row.exists ? row.unit : `Row ${i + 1}`);
    button.classList.toggle('input', row.input);
    button.classList.toggle('given', row.given);
    if (row.input) button.setAttribute('aria-current', 'true');
    else button.removeAttribute('aria-current');
    // A coordinate is also said in degrees and minutes.
    note.textContent = [row.detail, row.given ? 'given' : '', row.hint].filter((t) => t).join(', ');
    unit.textContent = row.unit;
    value.classList.toggle('compact', row.emphasis < 12);
    value.classList.remove('wrap');
    fit(value, row.value, row.shortForms, page && row.exists);
    if (page && view.report && value.scrollWidth > value.clientWidth) value.classList.add('wrap');
    button.title = !row.exists ? ''
      : row.detail ? row.detail
        : `${row.unit} (${row.key})${row.hint ? `: ${row.hint}` : ''}`;
  });

  if (previous && previous.face !== view.face) {
    // A keyboard user keeps a place to start from: on the menu, the page's
    // own button; on a page, the page itself.
    const back = document.querySelector(`.page-button[data-page="${previous.page}"]`);
    if (!page && back && keyboardUser) back.focus();
    else $('app').focus();
  }
}
