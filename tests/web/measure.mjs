// What the page costs: node measure.mjs SITE
//
// Serves the site as a host would (brotli, everything revalidated), with the wire of a household in between: 20 Mbit/s and
// 40 ms there and back. Prints a table of docs/performance.md; the figures are medians.
import {createServer} from "node:http";
import {existsSync, readFileSync} from "node:fs";
import {extname, join} from "node:path";
import {brotliCompressSync, constants} from "node:zlib";
import {Page, launch, sleep} from "./browser.mjs";

const [site] = process.argv.slice(2);
const kTypes = {".html": "text/html", ".js": "text/javascript", ".wasm": "application/wasm", ".json": "application/json",
  ".css": "text/css", ".png": "image/png", ".bmp": "image/png", ".bin": "application/octet-stream", ".wav": "audio/wav"};
const kSqueezed = new Set([".html", ".js", ".wasm", ".json", ".css", ".bin", ".wav"]);
const kRuns = 7;
const kClicks = 40;

const median = (values) => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];

const files = new Map();
const read = (path) => {
  if (!files.has(path)) {
    const bytes = readFileSync(path);
    const squeezed = kSqueezed.has(extname(path)) ? brotliCompressSync(bytes, {params: {[constants.BROTLI_PARAM_QUALITY]: 11}}) : null;
    files.set(path, {bytes: squeezed || bytes, isSqueezed: squeezed !== null});
  }
  return files.get(path);
};
for (const name of ["quenvale.wasm", "quenvale.js", "first.bin", "late.bin", "site.json", "page.js"]) read(join(site, name));

const server = createServer((request, reply) => {
  const name = new URL(request.url, "http://host").pathname;
  const path = join(site, name === "/" ? "index.html" : decodeURIComponent(name));
  if (!existsSync(path)) { reply.writeHead(404).end(); return; }
  const file = read(path);
  reply.writeHead(200, {"Content-Type": kTypes[extname(path)] || "application/octet-stream", "Content-Length": file.bytes.length,
    "Cache-Control": "no-cache", ...(file.isSqueezed ? {"Content-Encoding": "br"} : {})});
  reply.end(file.bytes);
});
await new Promise((resolve) => server.listen(0, "127.0.0.1", resolve));
const address = `http://127.0.0.1:${server.address().port}/`;

// A new browser each time: nothing is in a cache.
const startOnce = async (wire) => {
  const browser = await launch();
  try {
    const page = await Page.prepare(browser, {width: 800, height: 640});
    const session = await page.tab.createCDPSession();
    await session.send("Network.enable");
    if (wire) await session.send("Network.emulateNetworkConditions", {offline: false, latency: 40, downloadThroughput: 20e6 / 8, uploadThroughput: 5e6 / 8});
    await page.load(address);
    return await page.tab.evaluate(() => {
      const shown = performance.getEntriesByName("title")[0].startTime;
      const files = [...performance.getEntriesByType("navigation"), ...performance.getEntriesByType("resource")];
      return {shown, bytes: files.filter((file) => file.startTime < shown).reduce((sum, file) => sum + file.transferSize, 0)};
    });
  } finally { await browser.close(); }
};

// From the press until the answer's pixels are put to the canvas, and the length of the step that paints them.
const clicks = async (width, height, ratio) => {
  const browser = await launch();
  try {
    const page = await Page.open(browser, address, {width, height, ratio});
    await page.click(400, 300);
    await page.press("Start Game");
    await page.fill("Ada");
    await page.press("OK");
    await page.waitFor("Next month");
    await page.tab.waitForNetworkIdle({idleTime: 1000, timeout: 60000});
    await page.tab.evaluate(() => {
      window.answers = [];
      let pressed = 0;
      document.getElementById("canvas").addEventListener("mousedown", (event) => { pressed = event.timeStamp; }, {capture: true});
      document.getElementById("canvas").addEventListener("mouseup", (event) => { pressed = event.timeStamp; }, {capture: true});
      const put = CanvasRenderingContext2D.prototype.putImageData;
      CanvasRenderingContext2D.prototype.putImageData = function (...what) {
        put.apply(this, what);
        if (pressed > 0) window.answers.push(performance.now() - pressed);
        pressed = 0;
      };
    });
    // The taxes' sheet: open it once, then raise and lower a rate.
    await page.key("2");
    await sleep(500);
    await page.tab.evaluate(() => { window.answers = []; });
    for (let i = 0; i < kClicks; ++i) {
      await page.click(i % 2 === 0 ? 232 : 158, 148);
      await sleep(30);
    }
    return await page.tab.evaluate(() => window.answers);
  } finally { await browser.close(); }
};

const kilobytes = (bytes) => `${Math.round(bytes / 1000).toLocaleString("en")} kB`;
const row = (...cells) => console.log(`| ${cells.join(" | ")} |`);
row("measure", "figure", "wanted");
row("---", "---", "---");
for (const name of ["quenvale.wasm", "quenvale.js", "first.bin", "late.bin"]) {
  row(`${name}, over the wire (brotli)`, kilobytes(read(join(site, name)).bytes.length), "");
}
const far = [];
const near = [];
for (let i = 0; i < kRuns; ++i) {
  far.push(await startOnce(true));
  near.push(await startOnce(false));
}
row("everything before the title, over the wire", kilobytes(median(far.map((run) => run.bytes))), "2,000 kB");
row("title on the screen, 20 Mbit/s and 40 ms", `${Math.round(median(far.map((run) => run.shown)))} ms`, "1,500 ms");
row("title on the screen, loopback", `${Math.round(median(near.map((run) => run.shown)))} ms`, "");
for (const [width, height, ratio] of [[1280, 800, 1], [1280, 800, 2], [2560, 1440, 1]]) {
  const taken = await clicks(width, height, ratio);
  row(`click to picture, ${width} x ${height}${ratio > 1 ? ` at ${ratio} pixels` : ""}, median of ${taken.length}`,
    `${median(taken).toFixed(1)} ms, slowest ${Math.max(...taken).toFixed(1)} ms`, "20 ms");
}
server.close();
