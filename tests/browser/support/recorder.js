// Records everything that an inert page never does.

// Addresses may hold whole pictures.
const longest = 300;

const isOfThePage = (request, page) => request.isNavigationRequest() && request.frame() === page.mainFrame();

// A page that has told nobody anything: what it did is in `events`, as lines such as "request https://...".
export async function recordEvents(page, url) {
  const events = [];
  const note = (kind) => (what) => events.push(`${kind} ${what.slice(0, longest)}`);

  page.on('console', (message) => note('console')(`${message.type()}: ${message.text()}`));
  page.on('pageerror', (error) => note('error')(error.message));
  page.on('error', (error) => note('crash')(error.message));
  page.on('dialog', (dialog) => {
    note('dialog')(`${dialog.type()}: ${dialog.message()}`);
    return dialog.dismiss();
  });
  page.on('popup', (popup) => note('popup')(popup.url()));
  page.on('workercreated', (worker) => note('worker')(worker.url()));
  page.on('frameattached', () => note('frame')('attached'));
  page.on('framenavigated', (frame) => {
    if (frame.url().split('#')[0] !== url) note('navigation')(frame.url());
  });
  page.on('request', (request) => {
    if (!isOfThePage(request, page) || request.url().split('#')[0] !== url) note('request')(request.url());
  });
  page.on('response', (response) => {
    if (!isOfThePage(response.request(), page)) note('response')(response.url());
  });

  await page.exposeFunction('noteViolation', note('violation'));
  await page.evaluateOnNewDocument(() => {
    document.addEventListener('securitypolicyviolation', (event) => {
      window.noteViolation(`${event.effectiveDirective} ${event.blockedURI}`);
    });
  });

  // What the browser's own panel of issues lists, such as a blocked request, quirks mode or a field without a name.
  const session = await page.createCDPSession();
  session.on('Audits.issueAdded', ({ issue }) => note('issue')(issue.code));
  await session.send('Audits.enable');
  return events;
}
