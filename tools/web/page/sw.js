// Plays offline the second time: everything that was fetched once is kept, by the version of the site.
"use strict";
const kVersion = "@VERSION@";
self.addEventListener("install", () => self.skipWaiting());
self.addEventListener("activate", (event) => event.waitUntil(
  caches.keys().then((names) => Promise.all(names.filter((name) => name !== kVersion).map((name) => caches.delete(name))))
    .then(() => self.clients.claim())));
self.addEventListener("fetch", (event) => {
  if (event.request.method !== "GET" || !event.request.url.startsWith(self.registration.scope)) return;
  event.respondWith(caches.open(kVersion).then(async (cache) => {
    const kept = await cache.match(event.request, { ignoreSearch: true });
    if (kept) return kept;
    const answer = await fetch(event.request);
    if (answer.ok) cache.put(event.request, answer.clone());
    return answer;
  }));
});
