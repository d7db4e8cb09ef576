// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard and the clipboard: every key goes to the calculator, which
// acts on it and says what is the page's own to do (copy, paste, move the
// focus, press what has it). A key's release goes on only when its press
// reached the page too: the key that closes a box is pressed in the box.

const $ = (id) => document.getElementById(id);
const pressed = new Set();

function chord(event) {
  const focused = document.activeElement;
  return {
    key: event.key,
    ctrlKey: event.ctrlKey,
    metaKey: event.metaKey,
    altKey: event.altKey,
    shiftKey: event.shiftKey,
    repeat: event.repeat,
    focused: focused !== null && focused !== document.body && focused !== $('app') &&
      $('app').contains(focused),
  };
}

function moveOnMenu(step) {
  const buttons = [...document.querySelectorAll('.page-button')];
  const columns = buttons.filter((b) => b.offsetTop === buttons[0].offsetTop).length;
  const at = buttons.indexOf(document.activeElement);
  const by = { focusLeft: -1, focusRight: 1, focusUp: -columns, focusDown: columns }[step];
  const next = at < 0 ? 0 : (at + by + buttons.length) % buttons.length;
  buttons[next].focus();
}

/**
 * Listens to the page's keys. `act(call)` runs a call of the calculator as
 * the user's action and gives back what it returned; `face` does what the
 * calculator leaves to the page: { copy(text), about(), calculator() }.
 */
export function setUpKeys(act, face) {
  const perform = (action) => {
    const calc = face.calculator();
    switch (action) {
    case 'copyDisplay': return face.copy(calc.displayNumber());
    case 'copyPage': return face.copy(calc.pageText());
    case 'about': return face.about();
    case 'focusLeft':
    case 'focusRight':
    case 'focusUp':
    case 'focusDown': return moveOnMenu(action);
    case 'pressFocused': return document.activeElement.click();
    default: return undefined; // paste comes as the browser's paste event; zoom is the browser's
    }
  };
  document.addEventListener('keydown', (event) => {
    face.keyboardUser(true);
    const key = event.key;
    const named = key.length > 1;
    const control = event.ctrlKey || event.metaKey;
    const entry = $('report-entry');
    if (event.target === entry) {
      // The field edits its text itself; Enter decodes what it holds.
      if (key === 'Enter' && !control && !event.altKey && !event.shiftKey) {
        event.preventDefault();
        if (!event.repeat) act((calc) => calc.enterReport(entry.value));
        return;
      }
      const theFieldsOwn = !control && !event.altKey && key !== 'Escape' && !/^F([1-9]|1[0-2])$/.test(key);
      if (theFieldsOwn) return;
    }
    if (event.target === $('place-entry')) {
      // The coordinate field edits its text itself; Enter submits it.
      const theFieldsOwn = !control && !event.altKey && key !== 'Escape' && !/^F([1-9]|1[0-2])$/.test(key);
      if (theFieldsOwn || (control && /^[vVcCxXaAzZ]$/.test(key))) return;
    }
    if (event.target.matches && event.target.matches('#loading input, #loading select')) {
      // A field of the Weight & Balance page takes its own keys.
      const theFieldsOwn = !control && !event.altKey && key !== 'Escape' && !/^F([1-9]|1[0-2])$/.test(key);
      if (theFieldsOwn) return;
    }
    const shape = chord(event);
    if (key === ' ' && shape.focused && !face.report()) return; // the browser presses it
    if (control && /^[cC]$/.test(key) && !event.shiftKey && window.getSelection().toString() !== '') {
      return; // the browser copies what is selected
    }
    if (control && /^[vV]$/.test(key)) return; // comes as the paste event
    const onRelease = ['Enter', 'Escape'].includes(key) || /^F([1-9]|1[0-2])$/.test(key);
    if (onRelease && !event.repeat) pressed.add(key); // acts when let go, as in the window
    // Figures, the decimal symbol and Backspace type: not announced.
    const typing = !control && !event.altKey && (/^[0-9.,]$/.test(key) || key === 'Backspace');
    const action = act((calc) => calc.keyDown(shape), { typing });
    if (action === undefined) return; // a box is open
    // What the calculator takes is not the browser's too (F5 reloads, Alt+Left
    // goes back, arrows scroll); Tab, the browser's zoom and the rest are.
    const plain = !control && !event.altKey;
    const taken = plain ? !named || onRelease || key === 'Backspace' || action !== 'none'
      : ['copyDisplay', 'copyPage'].includes(action) || (control && /^[1-8]$/.test(key)) ||
        (event.altKey && /^(m|M|ArrowLeft)$/.test(key));
    if (taken && key !== 'Tab') event.preventDefault();
    perform(action);
  });
  document.addEventListener('keyup', (event) => {
    if (!pressed.delete(event.key)) return;
    perform(act((calc) => calc.keyUp(chord(event))));
  });
  document.addEventListener('paste', (event) => {
    const target = event.target instanceof Element ? event.target : null;
    if (target === $('report-entry') || target === $('place-entry') ||
        (target && target.closest('#loading'))) return;
    event.preventDefault();
    const text = event.clipboardData ? event.clipboardData.getData('text/plain') : '';
    act((calc) => calc.paste(text));
  });
  document.addEventListener('pointerdown', () => face.keyboardUser(false));
}
