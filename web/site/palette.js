// SPDX-License-Identifier: GPL-3.0-or-later
// The day and night palettes: the system's light or dark setting is followed
// until the user chooses with the Night button; the choice is kept.

const KEY = 'zelflightab.palette';
const button = () => document.getElementById('palette');

function night() {
  return document.documentElement.dataset.palette === 'night';
}

function apply(dark) {
  document.documentElement.dataset.palette = dark ? 'night' : 'day';
  button().setAttribute('aria-pressed', dark ? 'true' : 'false');
  button().textContent = dark ? 'Night: on' : 'Night: off';
  document.querySelector('meta[name="theme-color"]').content = dark ? '#10161c' : '#00457d';
}

function choose(dark) {
  localStorage.setItem(KEY, dark ? 'night' : 'day');
  apply(dark);
}

export function setUpPalette() {
  const dark = matchMedia('(prefers-color-scheme: dark)');
  const chosen = () => localStorage.getItem(KEY);
  apply(chosen() ? chosen() === 'night' : dark.matches);
  dark.addEventListener('change', () => {
    if (!chosen()) apply(dark.matches);
  });
  button().addEventListener('click', () => choose(!night()));
}
