// SPDX-License-Identifier: GPL-3.0-or-later
// The page's own modal boxes, one at a time in the order they were opened:
// the calculator's requests (messages, questions, input boxes), and the
// page's own (the keys' help, the settings file). A <dialog> opened with
// showModal() holds the focus; Enter answers Yes or OK, Escape No or Cancel,
// and a key that answers a box does nothing more on the page.

const $ = (id) => document.getElementById(id);
const boxes = [];
let shown = null;

/** Whether a box is open: the page takes no other action meanwhile. */
export function boxOpen() {
  return shown !== null;
}

/**
 * Opens a box: { kind: 'message' | 'question' | 'input' | 'settings', icon,
 * title, paragraphs, value, done(yes, text, value) }.
 */
export function openBox(box) {
  boxes.push(box);
  if (!shown) next();
}

function next() {
  shown = boxes.shift() || null;
  const dialog = $('dialog');
  if (!shown) {
    if (dialog.open) dialog.close();
    return;
  }
  const box = shown;
  dialog.dataset.icon = box.icon || '';
  dialog.setAttribute('role', box.kind === 'message' ? 'alertdialog' : 'dialog');
  $('dialog-title').textContent = box.title;
  const text = $('dialog-text');
  text.replaceChildren(...box.paragraphs.map((paragraph) => {
    const p = document.createElement('span');
    p.className = 'paragraph';
    p.textContent = paragraph;
    return p;
  }));
  const input = $('dialog-input');
  const area = $('dialog-area');
  input.hidden = box.kind !== 'input';
  input.value = '';
  area.hidden = box.kind !== 'settings';
  area.value = box.kind === 'settings' ? box.value : '';
  const two = box.kind !== 'message';
  $('dialog-yes').textContent = box.kind === 'question' ? 'Yes' : box.kind === 'settings' ? 'Save' : 'OK';
  $('dialog-no').textContent = box.kind === 'question' ? 'No' : 'Cancel';
  $('dialog-no').hidden = !two;
  if (!dialog.open) dialog.showModal();
  (box.kind === 'input' ? input : box.kind === 'settings' ? area : $('dialog-yes')).focus();
}

function close(yes) {
  const box = shown;
  if (!box) return;
  const text = box.kind === 'input' && yes ? $('dialog-input').value : null;
  const value = $('dialog-area').value;
  next();
  if (box.done) box.done(yes, text, value);
}

/** Sets up the box's keys and buttons. */
export function setUpDialogs() {
  const dialog = $('dialog');
  $('dialog-yes').addEventListener('click', () => close(true));
  $('dialog-no').addEventListener('click', () => close(false));
  dialog.addEventListener('cancel', (event) => {
    event.preventDefault(); // Escape answers, as in the window
    close(false);
  });
  // The key that answers a box does nothing more: not on the page, not as a
  // second answer, not when it is let go.
  dialog.addEventListener('keydown', (event) => {
    event.stopPropagation();
    if (event.key === 'Enter' && !event.repeat && event.target.tagName !== 'TEXTAREA') {
      event.preventDefault();
      close(event.target.id !== 'dialog-no');
    } else if (event.key === 'Escape') {
      event.preventDefault();
      close(false);
    } else if (event.key === 'Tab') {
      // The focus stays inside the box.
      const inside = [...dialog.querySelectorAll('input, textarea, button')].filter((e) => !e.hidden);
      const at = inside.indexOf(document.activeElement);
      const step = event.shiftKey ? inside.length - 1 : 1;
      event.preventDefault();
      inside[(at + step) % inside.length].focus();
    }
  });
  dialog.addEventListener('keyup', (event) => event.stopPropagation());
}
