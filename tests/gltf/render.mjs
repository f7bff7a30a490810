// Shows a .glb with three.js in Debian's headless Chromium and saves a screenshot.
//
//   node render.mjs MODEL.glb OUT.png [--colour R,G,B] [--copies N] [--size WxH]
//
// Prints what the picture holds: the share of pixels the model covers, its main colours and
// the number of separate pieces. With --colour (0-255), fails unless the model covers between
// 5% and 95% of the picture and a fifth of its pixels have that colour's hue; with --copies,
// fails unless the picture shows that many separate pieces. The page is served from this
// machine (127.0.0.1) and loads nothing from elsewhere.
import fs from 'node:fs';
import http from 'node:http';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const here = path.dirname(fileURLToPath(import.meta.url));
const args = process.argv.slice(2);
const option = (name) => {
  const i = args.indexOf(name);
  return i >= 0 ? args.splice(i, 2)[1] : undefined;
};
const colour = option('--colour')?.split(',').map(Number);
const copiesText = option('--copies');
const copies = copiesText === undefined ? undefined : Number(copiesText);
const [width, height] = (option('--size') ?? '800x600').split('x').map(Number);
const [model, output] = args;
if (!model || !output) {
  console.error('usage: node render.mjs MODEL.glb OUT.png [--colour R,G,B] [--copies N] [--size WxH]');
  process.exit(2);
}

const page = `<!doctype html>
<html><head><style>html,body{margin:0;background:#fff;overflow:hidden}</style>
<script type="importmap">{"imports":{"three":"/three/build/three.module.js","three/addons/":"/three/examples/jsm/"}}</script>
</head><body><script type="module">
import * as THREE from 'three';
import { GLTFLoader } from 'three/addons/loaders/GLTFLoader.js';
const renderer = new THREE.WebGLRenderer({ antialias: true, preserveDrawingBuffer: true });
renderer.setSize(${width}, ${height});
renderer.setClearColor(0xffffff);
document.body.appendChild(renderer.domElement);
const scene = new THREE.Scene();
scene.add(new THREE.HemisphereLight(0xffffff, 0x808080, 2.0));
const sun = new THREE.DirectionalLight(0xffffff, 1.5);
sun.position.set(1, 2, 3);
scene.add(sun);
try {
  const gltf = await new GLTFLoader().loadAsync('/model.glb');
  scene.add(gltf.scene);
  const box = new THREE.Box3().setFromObject(gltf.scene);
  const size = box.getSize(new THREE.Vector3()).length() || 1;
  const centre = box.getCenter(new THREE.Vector3());
  const camera = new THREE.PerspectiveCamera(35, ${width} / ${height}, size / 100, size * 100);
  camera.position.copy(centre).add(new THREE.Vector3(0.6, 0.5, 1.0).normalize().multiplyScalar(size * 0.95));
  camera.lookAt(centre);
  renderer.render(scene, camera);
  window.rendered = { ok: true };
} catch (error) {
  window.rendered = { ok: false, error: String(error) };
}
</script></body></html>`;

function serve() {
  const files = {
    '/': ['text/html', () => page],
    '/model.glb': ['model/gltf-binary', () => fs.readFileSync(model)],
  };
  const server = http.createServer((request, response) => {
    const url = decodeURIComponent(new URL(request.url, 'http://localhost').pathname);
    let file = files[url];
    if (!file && url.startsWith('/three/')) {
      const local = path.join(here, 'node_modules', path.normalize(url).replace(/^(\.\.[/\\])+/, ''));
      if (local.startsWith(path.join(here, 'node_modules', 'three')) && fs.existsSync(local))
        file = ['text/javascript', () => fs.readFileSync(local)];
    }
    if (!file) {
      response.writeHead(404).end();
      return;
    }
    response.writeHead(200, { 'Content-Type': file[0] }).end(file[1]());
  });
  return new Promise((resolve) => server.listen(0, '127.0.0.1', () => resolve(server)));
}

// What the picture holds, from its RGBA pixels: covered share, main colours, separate pieces.
function analyse(pixels) {
  const covered = new Uint8Array(width * height);
  let count = 0;
  const hues = new Map();
  for (let i = 0; i < width * height; i++) {
    const [r, g, b] = [pixels[4 * i], pixels[4 * i + 1], pixels[4 * i + 2]];
    if (r > 245 && g > 245 && b > 245) continue;
    covered[i] = 1;
    count++;
    const key = [r, g, b].map((c) => Math.round(c / 32) * 32).join(',');
    hues.set(key, (hues.get(key) ?? 0) + 1);
  }
  // Pieces: 4-connected regions of covered pixels larger than 0.1% of the picture.
  const seen = new Uint8Array(width * height);
  let pieces = 0;
  for (let start = 0; start < covered.length; start++) {
    if (!covered[start] || seen[start]) continue;
    let size = 0;
    const stack = [start];
    seen[start] = 1;
    while (stack.length) {
      const p = stack.pop();
      size++;
      const x = p % width, y = (p - x) / width;
      for (const [nx, ny] of [[x + 1, y], [x - 1, y], [x, y + 1], [x, y - 1]]) {
        const n = ny * width + nx;
        if (nx >= 0 && ny >= 0 && nx < width && ny < height && covered[n] && !seen[n]) {
          seen[n] = 1;
          stack.push(n);
        }
      }
    }
    if (size > covered.length / 1000) pieces++;
  }
  const main = [...hues.entries()].sort((a, b) => b[1] - a[1]).slice(0, 5)
    .map(([key, n]) => ({ rgb: key.split(',').map(Number), share: n / Math.max(count, 1) }));
  return { coverage: count / covered.length, pieces, main, covered: count, pixels };
}

function hue([r, g, b]) {
  const max = Math.max(r, g, b), min = Math.min(r, g, b);
  if (max - min < 1e-9) return null;
  const d = max - min;
  const h = max === r ? ((g - b) / d) % 6 : max === g ? (b - r) / d + 2 : (r - g) / d + 4;
  return (h * 60 + 360) % 360;
}

// The share of covered pixels whose hue lies within 20 degrees of `rgb`'s and that are not grey.
function shareOfHue(pixels, rgb) {
  const target = hue(rgb);
  let match = 0, count = 0;
  for (let i = 0; i < width * height; i++) {
    const p = [pixels[4 * i], pixels[4 * i + 1], pixels[4 * i + 2]];
    if (p.every((c) => c > 245)) continue;
    count++;
    const h = hue(p);
    const saturated = Math.max(...p) - Math.min(...p) > 24;
    if (h !== null && saturated && Math.min(Math.abs(h - target), 360 - Math.abs(h - target)) < 20) match++;
  }
  return match / Math.max(count, 1);
}

const server = await serve();
const browser = await chromium.launch({
  executablePath: process.env.HRM_CHROMIUM ?? '/usr/bin/chromium',
  args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync',
    '--use-angle=swiftshader', '--enable-unsafe-swiftshader'], // Playwright gives it a new empty profile
});
let failed = false;
try {
  const tab = await browser.newPage({ viewport: { width, height } });
  await tab.goto(`http://127.0.0.1:${server.address().port}/`);
  await tab.waitForFunction(() => window.rendered, null, { timeout: 120000 });
  const rendered = await tab.evaluate(() => window.rendered);
  if (!rendered.ok) throw new Error(`the page could not show the model: ${rendered.error}`);
  await tab.screenshot({ path: output });
  const pixels = await tab.evaluate(() => {
    const canvas = document.querySelector('canvas');
    const gl = canvas.getContext('webgl2');
    const data = new Uint8Array(canvas.width * canvas.height * 4);
    gl.readPixels(0, 0, canvas.width, canvas.height, gl.RGBA, gl.UNSIGNED_BYTE, data);
    return Array.from(data);
  });
  const picture = analyse(pixels);
  console.log(`${path.basename(model)}: covers ${(100 * picture.coverage).toFixed(1)}% in ${picture.pieces} piece(s); ` +
    `main colours ${picture.main.map((m) => `rgb(${m.rgb}) ${(100 * m.share).toFixed(0)}%`).join(', ')}`);
  if (colour) {
    const share = shareOfHue(pixels, colour);
    console.log(`  ${(100 * share).toFixed(0)}% of the model's pixels have the hue of rgb(${colour})`);
    if (picture.coverage < 0.05 || picture.coverage > 0.95 || share < 0.2) failed = true;
  }
  if (copies !== undefined && picture.pieces !== copies) failed = true;
} finally {
  await browser.close();
  server.close();
}
console.log(failed ? '0 passed, 1 failed' : '1 passed, 0 failed');
process.exit(failed ? 1 : 0);
