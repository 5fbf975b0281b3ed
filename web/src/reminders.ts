// Reminders that reach the phone while the app is out of sight: with the user's permission the
// service worker shows each as a system notification, whose touch opens the app on today's day.
// In sight, the server's own box "Напоминание" shows it.

let reminderOnScreen = false;

/** Asks for the permission on a gesture that concerns reminders: the medicine switch, or the
 *  "ОК" that closes a reminder's box. */
export function askForNotifications(target: string): void {
  const concerned = target === 'menu:54' || (target === 'message:ok' && reminderOnScreen);
  if (target === 'message:ok') reminderOnScreen = false;
  if (concerned && 'Notification' in window && Notification.permission === 'default') {
    void Notification.requestPermission();
  }
}

export async function notifyReminder(caption: string, text: string): Promise<void> {
  reminderOnScreen = true;
  if (document.visibilityState === 'visible') return;
  if (!('Notification' in window) || Notification.permission !== 'granted') return;
  const registration = await navigator.serviceWorker?.ready;
  await registration?.showNotification(caption, {
    body: text,
    tag: `reminder-${Date.now()}`,
    data: { url: '/?shortcut=NEWNOTE' },
  });
}
