// Service worker: keeps the app's static files so it starts without the network.
// Static files come from the cache first; /api/ always goes to the network, and so do the
// user's documents under /doc/, which are never kept: the lock decides who sees them.
// Each build has a cache of its own, filled when its worker installs; the worker of a new
// build drops the caches of the old ones once it takes over.

// Filled in by the web build (web/tools/scripts.mjs): a digest of the built files and their paths.
declare const BUILD: { readonly version: string; readonly assets: readonly string[] };

const worker = self as unknown as ServiceWorkerGlobalScope;
const CACHE = `ladaneya-${BUILD.version}`;

worker.addEventListener('install', (event) => {
  event.waitUntil(precache().then(() => worker.skipWaiting()));
});

worker.addEventListener('activate', (event) => {
  event.waitUntil(dropOldCaches().then(() => worker.clients.claim()));
});

worker.addEventListener('fetch', (event) => {
  const { request } = event;
  const url = new URL(request.url);
  const isStatic =
    request.method === 'GET' &&
    url.origin === worker.location.origin &&
    !url.pathname.startsWith('/api/') &&
    !url.pathname.startsWith('/doc/');
  if (isStatic) event.respondWith(cacheFirst(request));
});

// A reminder's notification opens the app, in a window it already has if there is one.
worker.addEventListener('notificationclick', (event) => {
  event.notification.close();
  const url = new URL(String(event.notification.data?.url ?? '/'), worker.location.origin).href;
  event.waitUntil(
    worker.clients.matchAll({ type: 'window' }).then((windows) => {
      const open = windows.find((w) => new URL(w.url).origin === worker.location.origin);
      return open ? open.navigate(url).then((w) => w?.focus()) : worker.clients.openWindow(url);
    }),
  );
});

async function precache(): Promise<void> {
  const cache = await caches.open(CACHE);
  // One file failing to load must not keep the others out of the cache. The files are fetched
  // past the browser's HTTP cache, which may still hold an older build's.
  await Promise.allSettled(
    BUILD.assets.map((path) => cache.add(new Request(path, { cache: 'reload' }))),
  );
}

async function dropOldCaches(): Promise<void> {
  const names = await caches.keys();
  await Promise.all(names.filter((name) => name !== CACHE).map((name) => caches.delete(name)));
}

async function cacheFirst(request: Request): Promise<Response> {
  const cache = await caches.open(CACHE);
  // The start page opened with a query (a home-screen shortcut) is still the start page.
  const cached = await cache.match(request, { ignoreSearch: request.mode === 'navigate' });
  if (cached) return cached;
  const response = await fetch(request);
  if (response.ok) await cache.put(request, response.clone());
  return response;
}
