// The service worker, and the page's part in a new build's arrival: when the worker of a new
// build takes over a page that an older one served, the page reloads once, so that it runs the
// new build's scripts and style rather than the old ones.

export function registerWorker(): void {
  if (!('serviceWorker' in navigator)) return;
  const container = navigator.serviceWorker;
  const update = container.controller !== null; // the first worker of a browser is no update
  container.addEventListener('controllerchange', () => {
    if (update) window.location.reload();
  });
  void container.register('/sw.js');
}
