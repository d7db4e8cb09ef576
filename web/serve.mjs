// SPDX-License-Identifier: GPL-3.0-or-later
// Serves the site folder on 127.0.0.1, as any static server would, with the
// page's Content-Security-Policy also sent as a header: node serve.mjs SITE [PORT]
import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import { extname, join, normalize } from 'node:path';
import { pathToFileURL } from 'node:url';

const types = {
  '.html': 'text/html; charset=utf-8', '.js': 'text/javascript; charset=utf-8',
  '.css': 'text/css; charset=utf-8', '.wasm': 'application/wasm', '.svg': 'image/svg+xml',
  '.png': 'image/png', '.webmanifest': 'application/manifest+json', '.xml': 'application/xml',
};
export const policy = "default-src 'self'; script-src 'self' 'wasm-unsafe-eval'; style-src 'self'; " +
  "img-src 'self'; connect-src 'self' https:; worker-src 'self'; manifest-src 'self'; " +
  "object-src 'none'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";

/// Serves `site` on 127.0.0.1:`port`; resolves to the server once it listens.
export function serve(site, port) {
  const root = normalize(site);
  const server = createServer(async (request, response) => {
    const path = decodeURIComponent(new URL(request.url, 'http://x').pathname);
    const file = join(root, normalize(path.endsWith('/') ? `${path}index.html` : path));
    if (!file.startsWith(root)) {
      response.writeHead(403).end();
      return;
    }
    try {
      const body = await readFile(file);
      response.writeHead(200, {
        'Content-Type': types[extname(file)] || 'application/octet-stream',
        'Content-Security-Policy': policy,
        'Cache-Control': 'no-cache',
      });
      response.end(body);
    } catch {
      response.writeHead(404, { 'Content-Type': 'text/plain' }).end('Not found');
    }
  });
  return new Promise((resolve, reject) => {
    server.once('error', reject);
    server.listen(port, '127.0.0.1', () => resolve(server));
  });
}

if (process.argv[1] && import.meta.url === pathToFileURL(process.argv[1]).href) {
  const port = Number(process.argv[3] || 8080);
  try {
    await serve(process.argv[2], port);
  } catch (error) {
    console.error(`error: cannot serve on 127.0.0.1:${port}: ${error.code || error.message}` +
      (error.code === 'EADDRINUSE' ? ` (another port: PORT=${port + 1} scripts/web)` : ''));
    process.exit(1);
  }
  console.log(`zelFLIGHTAB on http://127.0.0.1:${port}/`);
}
