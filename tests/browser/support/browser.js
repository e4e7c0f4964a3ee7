// Starts the browser that the tests use.
import { accessSync, constants } from 'node:fs';
import { delimiter, join } from 'node:path';
import puppeteer from 'puppeteer-core';

const names = ['chromium', 'chromium-browser', 'google-chrome'];

function isExecutable(path) {
  try {
    accessSync(path, constants.X_OK);
    return true;
  } catch {
    return false;
  }
}

// The path of a browser, or undefined where there is none.
export function findBrowser() {
  const chosen = process.env.PUPPETEER_EXECUTABLE_PATH;
  const candidates = (process.env.PATH ?? '')
    .split(delimiter)
    .flatMap((folder) => names.map((name) => join(folder, name)));
  return [chosen, ...candidates].find((path) => path && isExecutable(path));
}

export function launchBrowser(more = []) {
  // Chromium refuses to run as root in its sandbox.
  const sandbox = process.getuid?.() === 0 ? ['--no-sandbox'] : [];
  return puppeteer.launch({
    executablePath: findBrowser(),
    headless: true,
    pipe: true,
    args: [...sandbox, '--disable-dev-shm-usage', '--force-color-profile=srgb', '--lang=en', ...more],
  });
}
