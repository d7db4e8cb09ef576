// SPDX-License-Identifier: GPL-3.0-or-later
// The bell: a short tone, and a flash of the display for those who have the
// sound off.

let audio = null;

export function bell() {
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
  } catch {
    // no sound here: the flash remains
  }
  const display = document.getElementById('display');
  display.classList.add('flash');
  setTimeout(() => display.classList.remove('flash'), 120);
}
