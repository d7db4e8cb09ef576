// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file and the kept rate pages in the browser's storage
// (IndexedDB), mirrored in memory so that the calculator's reads never wait.
// A write is made at once in this tab's copy; its outcome goes back to the
// calculator when IndexedDB has stored it, or could not. A change of the
// settings is made again, under a Web Lock, on the stored file as it then is,
// so that two tabs writing at once lose nothing; one that cannot be stored
// leaves the stored file as it was, and this tab's copy is read back from it.

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

/** Reads every stored file into memory; rejects when the browser keeps no storage. */
export async function openFiles() {
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

async function put(path, bytes) {
  if (bytes === null) await request(store('readwrite').delete(path));
  else await request(store('readwrite').put(bytes, path));
  if (channel) channel.postMessage(path);
}

/** This tab's copy of a file back as it is stored, after a write that failed. */
async function readBack(path) {
  try {
    const bytes = await request(store('readonly').get(path));
    if (bytes === undefined) files.delete(path);
    else files.set(path, bytes);
  } catch {
    files.delete(path);
  }
}

/** The names of the files directly in a folder, in name order. */
function namesIn(folder) {
  const prefix = `${folder}/`;
  return [...files.keys()]
    .filter((path) => path.startsWith(prefix) && !path.slice(prefix.length).includes('/'))
    .map((path) => path.slice(prefix.length))
    .sort();
}

/**
 * The storage the calculator reads and writes. `calculator()` gives the
 * calculator once it is there; `changed()` draws the page again after an
 * outcome came back (a failure opens a box).
 */
export function storageHost(calculator, changed) {
  const settle = (id, path, ok) => {
    (ok ? Promise.resolve() : readBack(path)).then(() => {
      calculator().stored(id, ok);
      changed();
    });
  };
  if (database === null) {
    // No storage at all (a private window may refuse it): the calculator
    // works in memory, and the user has been told that nothing is kept.
    return {
      readFile: (path) => (files.has(path) ? files.get(path) : null),
      writeFile(id, path, bytes) {
        files.set(path, Uint8Array.from(bytes));
        queueMicrotask(() => settle(id, path, true));
      },
      removeFile: (path) => files.delete(path),
      listFiles: (folder) => namesIn(folder),
      updateFile(id, path, bytes) {
        files.set(path, Uint8Array.from(bytes));
        queueMicrotask(() => settle(id, path, true));
      },
    };
  }
  return {
    readFile: (path) => (files.has(path) ? files.get(path) : null),
    listFiles: (folder) => namesIn(folder),
    writeFile(id, path, bytes) {
      const copy = Uint8Array.from(bytes);
      files.set(path, copy);
      put(path, copy).then(() => settle(id, path, true), () => settle(id, path, false));
    },
    removeFile(path) {
      files.delete(path);
      put(path, null).catch(() => readBack(path));
    },
    updateFile(id, path, bytes) {
      files.set(path, Uint8Array.from(bytes));
      navigator.locks.request(LOCK, async () => {
        const stored = await request(store('readonly').get(path));
        const bytesNow = calculator().applyChange(id, stored === undefined ? null : stored);
        if (bytesNow !== null) {
          await put(path, bytesNow);
          files.set(path, bytesNow);
        }
      }).then(() => settle(id, path, true), () => settle(id, path, false));
    },
  };
}

/** A stored file as text, as this tab has it. */
export function fileText(path) {
  return new TextDecoder().decode(files.get(path) || new Uint8Array(0));
}

/** Replaces a file with the text the user wrote; resolves to whether it was stored. */
export async function saveText(path, text) {
  const bytes = new TextEncoder().encode(text);
  files.set(path, bytes);
  if (database === null) return true;
  try {
    await navigator.locks.request(LOCK, () => put(path, bytes));
    return true;
  } catch {
    await readBack(path);
    return false;
  }
}
