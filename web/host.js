// SPDX-License-Identifier: GPL-3.0-or-later
// The machine as JavaScript gives it to the calculator, in the browser and
// under node alike: regional symbols, HTTP, today's date.
Module.zelHost = {
  // The decimal and grouping symbols of a locale ("en_US", "de_DE"), or of
  // the browser's own when none is named.
  symbols(locale) {
    const tag = locale === undefined ? undefined : locale.replace('_', '-');
    const parts = new Intl.NumberFormat(tag).formatToParts(1234567.5);
    const part = (type, otherwise) => (parts.find((p) => p.type === type) || { value: otherwise }).value;
    return [part('decimal', '.'), part('group', ',')];
  },

  // Where a user sets the number symbols: in a browser its language; on the
  // machine (the console under node) the desktop's region settings.
  howToChange() {
    return typeof window === 'undefined'
      ? 'You can modify your settings in the region settings of your desktop (Region & Language - Formats).'
      : "You can modify your settings by putting a language that writes numbers as you want first in your browser's language settings.";
  },

  knownLocale(name) {
    try {
      return Intl.NumberFormat.supportedLocalesOf([name.replace('_', '-')]).length === 1;
    } catch (error) {
      return false; // not a locale's name at all
    }
  },

  online() {
    return typeof navigator === 'undefined' || navigator.onLine !== false;
  },

  today() {
    const now = new Date();
    return [now.getFullYear(), now.getMonth() + 1, now.getDate()];
  },

  // A GET of at most 1 MiB within 15 seconds; the outcome goes back to the
  // calculator as transferEnded. The error numbers are those a desktop
  // transfer reports: 4 time-out, 99 network, 299 content.
  get(id, url) {
    const limit = 1 << 20;
    const seconds = 15;
    const abort = new AbortController();
    let late = false;
    const timer = setTimeout(() => {
      late = true;
      abort.abort();
    }, seconds * 1000);
    const end = (ok, error, text, body) => {
      clearTimeout(timer);
      Module.transferEnded(id, ok, error, text, body || new Uint8Array(0));
    };
    const read = async () => {
      const response = await fetch(url, { signal: abort.signal, cache: 'no-store' });
      if (!response.ok) {
        return end(false, 299, `The server replied ${response.status} ${response.statusText}`.trim());
      }
      const reader = response.body.getReader();
      const chunks = [];
      let size = 0;
      for (;;) {
        const { done, value } = await reader.read();
        if (done) break;
        size += value.length;
        if (size > limit) {
          abort.abort();
          return end(false, 299, 'The reply is larger than 1 MiB');
        }
        chunks.push(value);
      }
      if (size === 0) return end(false, 299, 'The server sent an empty reply');
      const body = new Uint8Array(size);
      let at = 0;
      for (const chunk of chunks) {
        body.set(chunk, at);
        at += chunk.length;
      }
      return end(true, 0, '', body);
    };
    read().catch(() => {
      if (late) {
        end(false, 4, `No complete reply within ${seconds} seconds`);
      } else {
        // A browser tells a page no more than this: the host may be out of
        // reach, or it does not let pages of other sites read its replies
        // (no CORS header), as the European Central Bank's rates do not.
        end(false, 99, 'The rates could not be read from this address: it cannot be reached, ' +
          'or it does not let other sites read it. The stored rates are kept.');
      }
    });
  },
};
