// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the whole app on the first visit, so that it opens and calculates with
// no network: every file is answered from the cache, the network only asked
// for what the cache does not hold (a rates file the user set as the source).
const CACHE = 'zelflightab-@VERSION@';
const FILES = [
  './',
  '@FILES@',
];

self.addEventListener('install', (event) => {
  event.waitUntil(caches.open(CACHE).then((cache) => cache.addAll(FILES)).then(() => self.skipWaiting()));
});

self.addEventListener('activate', (event) => {
  // An older version's files go once this one is in charge.
  event.waitUntil(
    caches.keys()
      .then((names) => Promise.all(names.filter((n) => n.startsWith('zelflightab-') && n !== CACHE)
        .map((n) => caches.delete(n))))
      .then(() => self.clients.claim()));
});

self.addEventListener('fetch', (event) => {
  const url = new URL(event.request.url);
  if (event.request.method !== 'GET' || url.origin !== self.location.origin) {
    return; // downloads from other sites go their own way
  }
  event.respondWith(caches.open(CACHE).then((cache) =>
    cache.match(event.request, { ignoreSearch: true }).then((hit) => hit || fetch(event.request))));
});
