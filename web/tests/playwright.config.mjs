// SPDX-License-Identifier: GPL-3.0-or-later
// The browser tests: Debian's chromium, headless, at phone and tablet sizes.
import { defineConfig } from '@playwright/test';

const chromium = {
  browserName: 'chromium',
  launchOptions: {
    executablePath: process.env.ZEL_CHROMIUM || '/usr/bin/chromium',
    // This machine's network is closed: Chromium's own connections stay off.
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
      '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  },
  locale: 'en-US',
};

export default defineConfig({
  testDir: '.',
  testMatch: '*.spec.mjs',
  timeout: 60000,
  workers: 2,
  reporter: [['list']],
  outputDir: process.env.ZEL_TEST_OUTPUT || '/tmp/zelflightab-playwright',
  use: { ...chromium, baseURL: 'http://127.0.0.1:8123/' },
  webServer: {
    command: `node ../serve.mjs ${process.env.ZEL_SITE || '../../build/wasm/site'} 8123`,
    url: 'http://127.0.0.1:8123/',
    reuseExistingServer: false,
  },
  projects: [
    { name: 'phone', use: { viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true, deviceScaleFactor: 2 } },
    { name: 'tablet', use: { viewport: { width: 820, height: 1180 }, hasTouch: true, isMobile: true, deviceScaleFactor: 2 },
      grepInvert: /axe|tabs|policy|offline|rates/ },
    { name: 'tablet-landscape', use: { viewport: { width: 1024, height: 768 }, hasTouch: true }, grep: /layout/ },
    { name: 'desktop', use: { viewport: { width: 1280, height: 800 } }, grep: /layout|dialog|keys/ },
  ],
});
