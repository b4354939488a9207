// Plays offline the second time: what a game begins with is kept when the page was seen once, everything else when it was
// fetched, by the version of the site.
"use strict";
const kVersion = "@VERSION@";
const kCore = ["./", "page.js", "style.css", "icon.png", "site.json", "quenvale.js", "quenvale.wasm", "first.bin", "late.bin"];
const keepTheBeginning = async () => {
  const cache = await caches.open(kVersion);
  // Asked for anew: a half of the last version would not go with a half of this one.
  await cache.addAll(kCore.map((name) => new Request(name, { cache: "no-cache" })));
  const site = await (await cache.match("site.json")).json();
  await cache.addAll(site.ahead);
};
self.addEventListener("install", (event) => { self.skipWaiting(); event.waitUntil(keepTheBeginning()); });
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
