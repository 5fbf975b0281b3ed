// Browser test of the photo book, at phone and tablet size: a diary of two days with photos, the
// book of kind 2 chosen from the menu's covers, its pages arriving as thumbnails, one opened
// large, the picture page's photos rearranged in another layout, a page added from a photo and
// deleted again, then the book saved and its PDF downloaded. Screenshots of each step.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import * as e2e from './harness.mjs';

const NAME = 'Фотокнига Анны';

/** Today with a weight and a photo, and yesterday with a photo alone. */
async function recordPhotoDays(page) {
  await page.tap('[data-id="menu:8"]');
  await page.tap('.ring-page .diary-add');
  await page.waitForSelector('.day-editor');
  const weight = page.locator(`${e2e.dayField('ne-weight.png')} input`);
  await weight.fill('61,2');
  await weight.blur();
  await e2e.settled(page);
  for (const day of ['today', 'yesterday']) {
    const photo = await e2e.drawnJpeg(page, 640, 480);
    await page.setInputFiles('.day-photo-input:not(:first-child) input', photo);
    await page.waitForSelector('.day-photo-picture[src^="data:image/jpeg"]');
    if (day === 'today') {
      await page.tap('.day-editor-header button:nth-child(1)');
      await page.waitForSelector('.day-photo-picture:not([src^="data:"])');
    }
  }
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.diary .day-cell');
  await e2e.toMenu(page);
}

/** The menu's covers, then the book of kind 2 until all its pages are drawn. */
async function openBook(page, outDir, device) {
  await page.tap('[data-id="menu:23"]');
  await page.waitForSelector('[data-id="book:kind:5"]');
  await e2e.snap(page, outDir, `book-kinds-${device}`);
  await page.tap('[data-id="book:kind:2"]');
  await page.waitForSelector('.book button[data-id="book:save"]:not([disabled])');
}

/** Waits until every thumbnail on the page has its picture. */
async function thumbnailsLoaded(page) {
  await page.waitForFunction(() =>
    [...document.querySelectorAll('.book-thumb-picture')].every(
      (img) => img.complete && img.naturalWidth > 0,
    ),
  );
}

/** The first picture page: its two photos swapped and laid out as layout 21. */
async function rearrange(page, outDir, device) {
  const before = await page.getAttribute('.book-page:has(.book-edit) img', 'src');
  await page.tap('.book-edit >> nth=0');
  await page.waitForSelector('.book-editor .book-photo-tick[aria-checked="true"]');
  const first = await page.getAttribute('.book-photo-picture >> nth=0', 'src');
  await page.tap('.book-photo button[data-id="book:earlier:1"]');
  await page.waitForFunction(
    (f) => document.querySelectorAll('.book-photo-picture')[1]?.getAttribute('src') === f,
    first,
  );
  await page.tap('.book-layout[data-id="book:layout:21"]');
  await page.waitForSelector('.book-layout[data-id="book:layout:21"][aria-checked="true"]');
  await page.fill('.book-label', 'Первые снимки');
  await page.locator('.book-label').blur();
  await e2e.settled(page);
  await e2e.snap(page, outDir, `book-edit-${device}`);
  await page.tap('.book-editor button[data-id="book:edit-ok"]');
  await page.waitForFunction((b) => {
    const img = document.querySelector('.book-page:has(.book-edit) img');
    return img && img.getAttribute('src') !== b && document.querySelector('.book-save, .book');
  }, before);
  await page.waitForSelector('.book button[data-id="book:save"]:not([disabled])');
}

async function checkPhone(browser, base, outDir) {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base);
  await e2e.createPregnancy(page, { name: NAME, daysAgo: 90 });
  await recordPhotoDays(page);
  await openBook(page, outDir, 'phone');
  await thumbnailsLoaded(page);
  const pages = await page.locator('.book-page').count();
  await e2e.snap(page, outDir, 'book-pages-phone', true);

  await page.tap('.book-thumb >> nth=1');
  await page.waitForFunction(() => {
    const img = document.querySelector('.book-large-picture');
    return img?.complete && img.naturalWidth > 0;
  });
  await e2e.snap(page, outDir, 'book-large-phone');
  await page.tap('.book-large button[data-id="book:large-close"]');
  await page.waitForSelector('.book-large', { state: 'detached' });

  await rearrange(page, outDir, 'phone');
  await thumbnailsLoaded(page);

  // A page added from a photo comes last; deleted, it goes again.
  await page.setInputFiles(
    '.book-body .day-photo-input input',
    await e2e.drawnJpeg(page, 640, 480),
  );
  await page.waitForFunction(
    (n) => document.querySelectorAll('.book-page').length === n + 1,
    pages,
  );
  await page.waitForSelector('.book button[data-id="book:save"]:not([disabled])');
  await page.tap('.book-page:last-child .book-delete');
  await page.waitForFunction((n) => document.querySelectorAll('.book-page').length === n, pages);

  await page.tap('.book button[data-id="book:save"]');
  await page.waitForSelector('.report[data-state="done"]');
  await e2e.snap(page, outDir, 'book-saved-phone');
  const [download] = await Promise.all([
    page.waitForEvent('download'),
    page.tap('.report a[download]'),
  ]);
  const pdf = path.join(outDir, 'book-phone.pdf');
  await download.saveAs(pdf);
  const text = fs.readFileSync(pdf, 'latin1');
  assert.ok(text.startsWith('%PDF-'));
  assert.equal(text.match(/\/Type\s*\/Page\b/g)?.length, pages, 'a PDF page a book page');
  await e2e.closeClean({ context, errors });
}

async function checkTablet(browser, base, outDir) {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base, {
    device: e2e.TABLET,
  });
  await e2e.openCard(page, NAME);
  await openBook(page, outDir, 'tablet');
  await thumbnailsLoaded(page);
  await e2e.snap(page, outDir, 'book-pages-tablet');
  await rearrange(page, outDir, 'tablet');
  await page.tap('.book button[data-id="book:close"]');
  await page.waitForSelector('.book', { state: 'detached' });
  await e2e.closeClean({ context, errors });
}

await e2e.runBrowserTest('book', async ({ browser, base, outDir }) => {
  await checkPhone(browser, base, outDir);
  await checkTablet(browser, base, outDir);
});
