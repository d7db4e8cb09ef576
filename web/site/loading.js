// SPDX-License-Identifier: GPL-3.0-or-later
// The Weight & Balance page below the calculator: the aircraft and its
// profiles, the loading sheet (each cell the user gives is a button that
// takes the typed number), the limits, the envelope chart drawn as inline
// SVG from the data units the calculator gives, the helpers, and the profile
// editor. The file picker, the download and print are the page's own.

const $ = (id) => document.getElementById(id);
const SVG = 'http://www.w3.org/2000/svg';
let shown = '';

/** An element with properties and children. */
function el(tag, props = {}, ...children) {
  const e = document.createElement(tag);
  for (const [name, value] of Object.entries(props)) {
    if (name === 'on') for (const [type, f] of Object.entries(value)) e.addEventListener(type, f);
    else if (name in e && !name.startsWith('aria')) e[name] = value;
    else e.setAttribute(name, value);
  }
  e.append(...children.filter((c) => c !== null && c !== undefined));
  return e;
}

function svg(tag, attributes = {}, text = '') {
  const e = document.createElementNS(SVG, tag);
  for (const [name, value] of Object.entries(attributes)) e.setAttribute(name, value);
  if (text) e.textContent = text;
  return e;
}

/** A cell the user gives: a button that takes the typed number. */
function cell(c, act, className = 'cell') {
  return el('button', { type: 'button', className: `${className}${c.input ? ' input' : ''}`,
    id: `entry-${c.entry}`, 'aria-label': c.text ? `${c.name}: ${c.text}` : c.name,
    title: `${c.name}: type a number and tap`,
    on: { click: () => act((calc) => calc.clickRow(c.entry)) } }, c.text);
}

/** The envelope chart: weight up, CG across, in the calculator's data units. */
function chart(c) {
  const width = 320;
  const height = 230;
  const left = 44;
  const right = 8;
  const top = 16;
  const bottom = 34;
  const x = (arm) => left + (arm - c.cg.low) / (c.cg.high - c.cg.low) * (width - left - right);
  const y = (weight) => height - bottom - (weight - c.weight.low) / (c.weight.high - c.weight.low) * (height - top - bottom);
  const path = (points) => points.map(([arm, weight]) => `${x(arm).toFixed(1)},${y(weight).toFixed(1)}`).join(' ');
  const s = svg('svg', { viewBox: `0 0 ${width} ${height}`, 'aria-hidden': 'true', class: 'chart-svg' });
  for (const tick of c.cg.ticks) {
    s.append(svg('line', { x1: x(tick.value), x2: x(tick.value), y1: top, y2: height - bottom, class: 'grid' }),
      svg('text', { x: x(tick.value), y: height - bottom + 12, 'text-anchor': 'middle' }, tick.label));
  }
  for (const tick of c.weight.ticks) {
    s.append(svg('line', { x1: left, x2: width - right, y1: y(tick.value), y2: y(tick.value), class: 'grid' }),
      svg('text', { x: left - 4, y: y(tick.value) + 3, 'text-anchor': 'end' }, tick.label));
  }
  s.append(svg('text', { x: (left + width - right) / 2, y: height - 4, 'text-anchor': 'middle' }, c.cg.title),
    svg('text', { x: 2, y: 10 }, c.weight.title));
  c.envelopes.forEach((e, i) => {
    s.append(svg('polygon', { points: path(e.points), class: i === 0 ? 'envelope' : 'envelope other' }));
    const [arm, weight] = e.points.reduce((a, b) => (b[1] > a[1] || (b[1] === a[1] && b[0] > a[0]) ? b : a));
    s.append(svg('text', { x: x(arm) - 2, y: y(weight) + 11 + i * 11, 'text-anchor': 'end', class: 'envelope-name' }, e.name));
  });
  for (const line of c.lines) {
    s.append(svg('polyline', { points: path(line.points), class: line.inside ? 'burn inside' : 'burn outside' }));
  }
  for (const mark of c.marks) {
    const [arm, weight] = mark.at;
    s.append(svg('circle', { cx: x(arm), cy: y(weight), r: 4, class: mark.inside ? 'mark inside' : 'mark outside' }),
      svg('text', { x: x(arm) + 6, y: y(weight) + 4, class: mark.inside ? 'inside' : 'outside' }, mark.name[0]));
  }
  return el('figure', { className: 'chart', id: 'chart', tabIndex: 0, role: 'img', 'aria-label': c.description }, s);
}

function stations(view, id, label, chosen, choose, act) {
  const select = el('select', { id, 'aria-label': label, on: { change: () => act((calc) => choose(calc, select.selectedIndex)) } },
    el('option', {}, '-'), ...view.stations.map((name) => el('option', {}, name)));
  select.selectedIndex = chosen;
  return el('label', { className: 'field' }, el('span', {}, label), select);
}

function sheet(view, act, face) {
  const parts = [];
  const aircraft = el('select', { id: 'aircraft', 'aria-label': 'Aircraft',
    on: { change: () => act((calc) => calc.chooseAircraft(aircraft.selectedIndex)) } },
  ...view.profiles.map((p) => el('option', {}, p.shipped ? `${p.name} (as it ships)` : p.name)));
  aircraft.selectedIndex = view.chosen;
  const tool = (id, caption, does, disabled = false) => el('button', { type: 'button', id, className: 'small', disabled, on: { click: does } }, caption);
  parts.push(el('div', { className: 'aircraft' }, el('label', { className: 'field' }, el('span', {}, 'Aircraft'), aircraft)),
    el('div', { className: 'profile-tools', role: 'group', 'aria-label': 'Profile' },
      tool('profile-new', 'New', () => act((c) => c.newProfile())),
      tool('profile-duplicate', 'Duplicate', () => act((c) => c.duplicateProfile())),
      tool('profile-edit', 'Edit', () => act((c) => c.editProfile())),
      tool('profile-rename', 'Rename', () => act((c) => c.renameProfile()), !view.canRename),
      tool('profile-delete', 'Delete', () => act((c) => c.deleteProfile()), !view.canDelete),
      tool('profile-import', 'Import', face.pick),
      tool('profile-export', 'Export', () => face.download(view.exportName, face.exported())),
      tool('profile-print', 'Print', face.print, view.sheet === '')));
  const saved = el('select', { id: 'saved-loading', 'aria-label': 'Saved loadings' },
    ...view.savedLoadings.map((name) => el('option', {}, name)));
  const none = view.savedLoadings.length === 0;
  parts.push(el('div', { className: 'saved-loadings', role: 'group', 'aria-label': 'Loadings' },
    el('label', { className: 'field' }, el('span', {}, 'Saved loadings'), saved),
    tool('loading-save', 'Save', () => act((c) => c.saveLoading())),
    tool('loading-recall', 'Recall', () => act((c) => c.recallLoading(saved.selectedIndex)), none),
    tool('loading-delete', 'Delete', () => act((c) => c.deleteLoading(saved.selectedIndex)), none)));
  if (view.missing) parts.push(el('p', { className: 'missing' }, view.missing));
  // The verdict above the sheet, where it stays in sight while the sheet scrolls.
  if (view.verdict) {
    parts.push(el('p', { className: `verdict ${view.withinLimits ? 'holds' : 'fails'}` }, view.verdict));
  }

  const head = el('thead', {},
    el('tr', {}, ...['Station', 'Weight', 'Arm', 'Moment'].map((h) => el('th', { scope: 'col' }, h))),
    el('tr', { className: 'units' }, el('td'), ...[view.weightUnit, view.armUnit, view.momentUnit].map((u) => el('th', { scope: 'col' }, u))));
  const body = el('tbody');
  for (const line of view.lines) {
    const name = el('th', { scope: 'row' }, line.name);
    if (line.volume.entry > 0) name.append(el('span', { className: 'quantity' }, cell(line.volume, act), ` ${view.fuelUnit}`));
    const value = (c) => el('td', {}, c.entry > 0 ? cell(c, act) : c.text);
    body.append(el('tr', { className: `${line.total ? 'total' : ''}${line.flagged ? ' flagged' : ''}` },
      name, value(line.weight), value(line.arm), el('td', {}, line.moment)));
    if (line.mac || line.note) {
      body.append(el('tr', { className: `more${line.flagged ? ' flagged' : ''}` }, el('td', { colSpan: 4 }, line.note || line.mac)));
    }
  }
  parts.push(el('div', { className: 'sheet-frame' }, el('table', { className: 'sheet', 'aria-label': 'Loading sheet' }, head, body)));
  if (view.limits.length > 0) {
    parts.push(el('ul', { className: 'limits' }, ...view.limits.map((l) =>
      el('li', { className: l.holds ? 'holds' : 'fails' }, `${l.holds ? '✓' : '✗'} ${l.text}`))));
  }
  if (view.chart) parts.push(chart(view.chart));
  if (view.stations.length > 0) {
    parts.push(el('h2', {}, 'Helpers'),
      el('div', { className: 'field' }, el('span', {}, `Target CG - ${view.armUnit}`), cell(view.target, act)),
      stations(view, 'shift-from', 'Move weight from', view.shiftFrom, (c, from) => c.chooseShift(from, view.shiftTo), act),
      stations(view, 'shift-to', 'to', view.shiftTo, (c, to) => c.chooseShift(view.shiftFrom, to), act));
    if (view.shift) parts.push(el('p', { className: 'answer' }, view.shift));
    parts.push(stations(view, 'ballast', 'Ballast at', view.ballastAt, (c, at) => c.chooseBallast(at), act));
    if (view.ballast) parts.push(el('p', { className: 'answer' }, view.ballast));
  }
  if (view.source) parts.push(el('p', { className: 'source' }, view.source));
  return parts;
}

function editor(form, act, edit) {
  const field = (f) => {
    const id = `field-${f.id}`;
    const control = f.choices.length > 0
      ? el('select', { id, on: { change: () => act((c) => c.editField(f.id, control.value)) } },
        ...f.choices.map((choice) => el('option', { selected: choice === f.text }, choice)))
      : el('input', { id, value: f.text, autocomplete: 'off', inputMode: 'text',
        on: { input: () => edit(f.id, control.value) } });
    return el('label', { className: 'field' }, el('span', {}, f.label), control);
  };
  const button = (b) => el('button', { type: 'button', className: 'small',
    on: { click: () => act((c) => c.pressFormButton(b.kind, b.group, b.item)) } }, b.caption);
  const parts = [el('h2', {}, form.title)];
  for (const section of form.sections) {
    const set = el('fieldset', {}, section.title ? el('legend', {}, section.title) : null);
    for (const f of section.fields) set.append(field(f));
    for (const row of section.rows) {
      set.append(el('div', { className: section.columns.length > 2 ? 'card' : 'pair' },
        ...row.fields.map(field), row.remove ? button(row.remove) : null));
    }
    if (section.buttons.length > 0) set.append(el('p', { className: 'form-buttons' }, ...section.buttons.map(button)));
    parts.push(set);
  }
  parts.push(el('p', { className: 'form-buttons' }, ...form.buttons.map(button)));
  return parts;
}

/**
 * Draws the page's loading part (nothing on other pages); it is built again
 * only when what it shows changed, and the focus stays where it was.
 * `face`: { edit(id, text), pick(), download(name, text), exported(), print() }.
 */
export function renderLoading(view, act, face) {
  const root = $('loading');
  root.hidden = !view;
  if (!view) {
    shown = '';
    return;
  }
  const key = JSON.stringify(view);
  if (key === shown) return;
  shown = key;
  const focused = root.contains(document.activeElement) ? document.activeElement.id : '';
  root.replaceChildren(el('p', { className: 'print-heading' }, view.heading),
    ...(view.editor ? editor(view.editor, act, face.edit) : sheet(view, act, face)));
  if (focused && document.getElementById(focused)) document.getElementById(focused).focus();
}
