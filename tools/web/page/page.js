// The page's half of the game. The other half asks for these things by the names of src/platform/web/page.h.
"use strict";

(() => {
  const $ = (id) => document.getElementById(id);
  const canvas = $("canvas");
  const kHome = "/home/web_user/.local/share/quenvale";
  const kSettings = "/home/web_user/.config/quenvale";
  const kGame = "/game";
  const state = { sizes: new Map(), fetching: new Map(), wanted: new Set(), twin: "", timer: 0, pending: false, mayKeep: false,
                  writing: null, again: false, dirty: false, failed: false, store: null, sound: null, gain: null, volume: 1,
                  source: null, ready: false };

  const notice = (text) => { $("notice").textContent = text; };

  // The canvas ------------------------------------------------------------------------------------------------------

  const resize = () => {
    const box = canvas.getBoundingClientRect();
    const ratio = window.devicePixelRatio || 1;
    const width = Math.round(box.width * ratio);
    const height = Math.round(box.height * ratio);
    if (width > 0 && height > 0 && (width !== canvas.width || height !== canvas.height)) {
      canvas.width = width;
      canvas.height = height;
      if (state.ready) Module._quenvale_resized();
    }
  };

  let context = null;
  const put = (heap, pixels, pitch, left, top, width, height) => {
    context = context || canvas.getContext("2d", { alpha: false });
    const image = context.createImageData(width, height);
    const to = new Uint32Array(image.data.buffer);
    const words = HEAPU32;  // looked up once: the script's own is another one after the memory has grown
    for (let y = 0, at = 0; y < height; ++y) {
      let from = (pixels + (top + y) * pitch + left * 4) >> 2;
      for (let x = 0; x < width; ++x, ++at, ++from) {
        const bgr = words[from];
        to[at] = 0xff000000 | ((bgr & 0xff) << 16) | (bgr & 0xff00) | ((bgr >> 16) & 0xff);
      }
    }
    context.putImageData(image, left, top);
  };

  // A telephone turns the picture on its side along with it, where it can.
  const fillScreen = async () => {
    await document.documentElement.requestFullscreen();
    if (screen.orientation && screen.orientation.lock) await screen.orientation.lock("landscape").catch(() => {});
  };
  const toggleFullScreen = () => {
    if (document.fullscreenElement) document.exitFullscreen();
    else fillScreen().catch(() => notice("The browser keeps its window."));
  };

  // Sound: the device opens with the first sound after the first press, and closes when nothing sounds any more. ---------

  const setVolume = (percent) => {
    state.volume = percent / 100;
    if (state.gain) state.gain.gain.value = state.volume;
  };

  const play = async (path) => {
    if (state.volume === 0) return;
    try {
      if (!state.sound) {
        state.sound = new AudioContext();
        state.gain = state.sound.createGain();
        state.gain.connect(state.sound.destination);
        setVolume(state.volume * 100);
      }
      if (state.sound.state === "suspended") await state.sound.resume();
      const answer = await fetch(path.slice(kGame.length + 1));
      const samples = await state.sound.decodeAudioData(await answer.arrayBuffer());
      if (state.source) state.source.stop();
      const source = state.source = state.sound.createBufferSource();
      source.buffer = samples;
      source.connect(state.gain);
      source.onended = () => { if (state.source === source) { state.source = null; state.sound.suspend(); } };
      source.start();
    } catch (error) { console.warn("quenvale:", path, error.message); }
  };

  // The narrator's voice is the browser's. False: it has none.
  const say = (line, interrupt, rate) => {
    if (!window.speechSynthesis) return false;
    if (interrupt) speechSynthesis.cancel();
    speechSynthesis.speak(Object.assign(new SpeechSynthesisUtterance(line), { lang: "en", rate: 2 ** (rate / 100) }));
    return true;
  };

  // Files -------------------------------------------------------------------------------------------------------------

  const folderOf = (path) => path.slice(0, path.lastIndexOf("/"));
  const write = (path, bytes) => { Module.FS.mkdirTree(folderOf(path)); Module.FS.writeFile(path, bytes); };

  // Everything that comes within a moment is told at once.
  let arrived = 0;
  const tellArrivals = () => { arrived = 0; Module._quenvale_files_came(); };
  const arrive = (name, bytes) => {
    write(kGame + "/" + name, bytes);
    if (state.wanted.delete(name)) arrived = arrived || setTimeout(tellArrivals, 20);
  };

  const bring = (name) => {
    if (!state.fetching.has(name)) {
      state.fetching.set(name, fetch(name)
        .then((answer) => { if (!answer.ok) throw new Error(answer.status); return answer.arrayBuffer(); })
        .then((bytes) => arrive(name, new Uint8Array(bytes)))
        .catch((error) => { state.sizes.delete(name); console.warn("quenvale:", name, error.message); }));
    }
    return state.fetching.get(name);
  };

  // The game wants a file. True: it is on its way.
  const fetchFile = (path) => {
    const name = path.slice(kGame.length + 1);
    if (!state.sizes.has(name)) return false;
    state.wanted.add(name);
    bring(name);
    return true;
  };

  // What is likely to be shown next comes one file after another while the player looks at something else. A large window
  // wants the picture of twice the size as well, as src/platform/pictures.cpp says; who saves data is asked for nothing.
  const kMostEnlarged = 1.25;
  const fetchAhead = async (names) => {
    if (navigator.connection && navigator.connection.saveData) return;
    for (const name of names) {
      await bring(name);
      const double = name.replace("images/", "images/2x/").replace(".bmp", ".png");
      const isLarge = Math.min(canvas.width / 800, canvas.height / 600) > kMostEnlarged;
      if (isLarge && state.sizes.has(double)) await bring(double);
    }
  };

  // The archive: what the game has written lies in IndexedDB too, and goes there in one piece or not at all. -------------------

  const filesIn = function* (folder) {
    if (!Module.FS.analyzePath(folder).exists) return;
    for (const name of Module.FS.readdir(folder).filter((name) => name !== "." && name !== "..")) {
      const path = folder + "/" + name;
      if (Module.FS.isDir(Module.FS.stat(path).mode)) yield* filesIn(path);
      else yield path;
    }
  };

  const answer = (request) => new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });

  const openStore = () => {
    const request = indexedDB.open("quenvale", 1);
    request.onupgradeneeded = () => request.result.createObjectStore("files");
    return answer(request);
  };

  const readStore = async () => {
    state.store = await openStore();
    const files = state.store.transaction("files").objectStore("files");
    const [paths, contents] = await Promise.all([answer(files.getAllKeys()), answer(files.getAll())]);
    paths.forEach((path, at) => write(path, contents[at]));
  };

  // Done when the browser says that it is on the disk.
  const writeStore = async () => {
    state.store = state.store || await openStore();
    const transaction = state.store.transaction("files", "readwrite", { durability: "strict" });
    const done = new Promise((resolve, reject) => {
      transaction.oncomplete = resolve;
      transaction.onabort = () => reject(transaction.error || new Error("the browser broke off"));
    });
    try {
      const files = transaction.objectStore("files");
      files.clear();
      for (const folder of [kHome, kSettings]) for (const path of filesIn(folder)) files.put(Module.FS.readFile(path), path);
    } catch (error) {
      done.catch(() => {});
      transaction.abort();
      throw error;
    }
    await done;
  };

  // What the game is told, by page_loop.cpp's table.
  const kKept = 0, kFull = 1, kRefused = 2, kNotHere = 3;
  const storeAll = async () => {
    if (!state.mayKeep) return kNotHere;
    try {
      await writeStore();
      return kKept;
    } catch (error) {
      state.store = null;  // it may have been closed: the next time it is opened again
      notice("The browser's archive is full or closed: " + error.message + ". The game is not kept.");
      return error.name === "QuotaExceededError" ? kFull : kRefused;
    }
  };

  // What was written goes to the browser's store, after the step in which a file and its checksum are written. A press
  // on "close" before the answer is asked about.
  const keepAll = async () => {
    await new Promise((resolve) => setTimeout(resolve));
    let reason = kKept;
    while (state.again) {
      state.again = false;
      reason = await storeAll();
    }
    state.writing = null;
    state.dirty = state.mayKeep && reason !== kKept;
    if (reason === kKept && state.failed) notice("");
    state.failed = state.dirty;
    Module._quenvale_kept(reason);
    return reason;
  };
  const keep = () => {
    state.again = true;
    state.dirty = state.mayKeep;
    state.writing = state.writing || keepAll();
    return state.writing;
  };
  window.addEventListener("beforeunload", (event) => { if (state.dirty) event.preventDefault(); });

  // The twin ------------------------------------------------------------------------------------------------------------

  const does = (what, id, text) =>
    Module.ccall("quenvale_do", null, ["string", "number", "string"], [what, id, text || ""]);

  const element = (name, text, properties) => Object.assign(document.createElement(name), { textContent: text }, properties);

  // The page's own elements say what they are.
  const worded = (thing) =>
    thing.said.replace(/(, not chosen|, chosen)?(, press for the next one)?(, (button|menu item|can be chosen|edit))?$/, "");

  const makeThing = (thing) => {
    if (thing.id === undefined) return element("span", thing.said + " ");
    if (thing.kind === "field") {
      const label = element("label", worded(thing) + " ");
      const field = element("input", "", { value: thing.value, disabled: !thing.enabled });
      field.addEventListener("change", () => does("type", thing.id, field.value));
      label.append(field);
      return label;
    }
    const button = element("button", worded(thing), { type: "button", disabled: !thing.enabled });
    if (thing.kind === "option") button.setAttribute("aria-pressed", String(thing.chosen));
    button.addEventListener("click", () => does("press", thing.id));
    return button;
  };

  const makeTable = (rows) => {
    const table = element("table", "");
    if (rows[0].title) table.append(element("caption", rows[0].title));
    for (const row of rows) {
      const line = element("tr", "");
      row.things.forEach((thing, at) => {
        const cell = element(at === 0 && thing.id === undefined ? "th" : "td", "");
        if (cell.tagName === "TH") cell.scope = "row";
        cell.append(makeThing(thing));
        line.append(cell);
      });
      table.append(line);
    }
    return table;
  };

  const makeScreen = (screen) => {
    const part = element("section", "");
    part.append(element("h2", screen.title || "Quenvale"));
    part.setAttribute("aria-label", screen.title || "Quenvale");
    part.inert = !screen.usable;
    for (let i = 0; i < screen.rows.length; ++i) {
      if (screen.rows[i].number) {
        let end = i;
        while (end < screen.rows.length && screen.rows[end].number) ++end;
        part.append(makeTable(screen.rows.slice(i, end)));
        i = end - 1;
      } else {
        const line = element("p", "");
        screen.rows[i].things.forEach((thing) => line.append(makeThing(thing)));
        part.append(line);
      }
    }
    if (screen.goesOn) {
      const button = element("button", "Go on", { type: "button" });
      button.addEventListener("click", () => does("go on", 0, screen.name));
      part.append(button);
    }
    return part;
  };

  // The focus stays where it was: on the thing at the same place of the reading order.
  const tell = (json) => {
    const twin = $("twin");
    const things = () => [...twin.querySelectorAll("button, input")];
    const at = things().indexOf(document.activeElement);
    const screens = JSON.parse(json);
    state.field = screens.flatMap((screen) => screen.rows.flatMap((row) => row.things))
      .find((thing) => thing.kind === "field" && thing.focused);
    const front = screens.find((screen) => screen.usable) || screens[0];
    twin.replaceChildren(...screens.map(makeScreen));
    if (at >= 0) (things()[at] || things()[0] || canvas).focus();
    const said = front ? front.rows.filter((row) => row.things.every((thing) => thing.id === undefined))
      .map((row) => row.things.map((thing) => thing.said).join(" ")).join(". ") : "";
    if (said !== $("said").textContent) $("said").textContent = said;
  };

  // A gamepad is asked about while one is there; browsers tell of none by themselves. ----------------------------------------

  // By the standard mapping, to the keys of page_loop.cpp: cross, A, B, shoulders, Start, Y.
  const kPad = [[12, 0], [13, 1], [14, 2], [15, 3], [0, 4], [1, 5], [4, 6], [5, 7], [9, 8], [3, 9]];
  const kStick = [[1, -1, 0], [1, 1, 1], [0, -1, 2], [0, 1, 3]];
  let held = new Set();
  const lookAtPads = () => {
    const pads = navigator.getGamepads().filter((pad) => pad && pad.mapping === "standard");
    const now = new Set();
    for (const pad of pads) {
      for (const [button, key] of kPad) if (pad.buttons[button] && pad.buttons[button].pressed) now.add(key);
      for (const [axis, way, key] of kStick) if (pad.axes[axis] * way > (held.has(key) ? 0.35 : 0.6)) now.add(key);
    }
    for (const key of now) if (!held.has(key)) does("key", key);
    held = now;
    if (pads.length > 0) requestAnimationFrame(lookAtPads);
  };

  // The archive enters and leaves as files, byte for byte those of the desktop's game. ---------------------------------------

  const take = () => {
    const files = [...filesIn(kHome)];
    if (files.length === 0) { notice("The archive is empty. Nothing has been kept yet."); return; }
    for (const path of files) {
      const link = element("a", "", { download: path.split("/").pop(),
        href: URL.createObjectURL(new Blob([Module.FS.readFile(path)], { type: "application/octet-stream" })) });
      link.click();
      setTimeout(() => URL.revokeObjectURL(link.href), 1000);
    }
  };

  const kArchive = /^(Save[1-5]|names|Top|Continue)(\.sum|\.chronicle)?$/;
  // A browser may have numbered a second copy, or told the world that it is a text.
  const nameOf = (file) => file.name.replace(/ ?\(\d+\)|\.txt$/g, "");
  const takeIn = async (files) => {
    const ours = [...files].filter((file) => kArchive.test(nameOf(file)));
    const others = [...files].filter((file) => !ours.includes(file)).map((file) => file.name);
    for (const file of ours) {
      const folder = file.name.startsWith("Top") ? "Data" : "Save";
      write(kHome + "/" + folder + "/" + nameOf(file), new Uint8Array(await file.arrayBuffer()));
    }
    const isKept = ours.length === 0 || await keep() === kKept;
    const names = ours.map(nameOf).join(", ");
    if (ours.length > 0 && isKept) notice(names + (ours.length > 1 ? " are" : " is") + " in the archive.");
    if (ours.length > 0 && !state.mayKeep) notice(names + ": to be played with now, but this tab keeps nothing.");
    if (others.length > 0) notice("None of the archive's files: " + others.join(", ") + ".");
  };

  // The half of the page that the game calls. ----------------------------------------------------------------------------------

  const page = {
    width: () => canvas.width,
    height: () => canvas.height,
    put, toggleFullScreen, play, setVolume, say, tell, keep,
    silence: () => { if (window.speechSynthesis) speechSynthesis.cancel(); },
    enterFullScreen: () => {
      const mayAsk = !navigator.userActivation || navigator.userActivation.isActive;
      if (mayAsk && !document.fullscreenElement) fillScreen().catch(() => {});
    },
    leaveFullScreen: () => { if (document.fullscreenElement) document.exitFullscreen(); },
    open: (file, chapter) => window.open(file + (chapter ? "#" + chapter : ""), "_blank", "noopener"),
    fetch: fetchFile,
    wakeIn: (milliseconds) => {
      if (state.pending && milliseconds > 0) return;
      clearTimeout(state.timer);
      state.pending = milliseconds === 0;
      state.timer = setTimeout(() => { state.pending = false; Module._quenvale_step(); }, milliseconds);
    },
    typing: (typing) => {
      if (!window.matchMedia("(pointer: coarse)").matches) return;
      const keyboard = $("keyboard");
      keyboard.hidden = !typing;
      keyboard.value = typing && state.field ? state.field.value : "";
      if (typing) keyboard.focus(); else canvas.focus();
    },
    ended: () => {
      keep();
      canvas.hidden = true;
      $("loading").hidden = false;
      $("progress").hidden = true;
      $("loading-text").textContent = "The President has left. Reload the page to be sworn in again.";
    },
  };

  // The start: program, first files and archive at once, then the game. ----------------------------------------------------------

  // An answer that moves the bar as it comes in.
  const counted = async (answer, loaded, total) => {
    const came = await answer;
    if (!came.ok) throw new Error(came.url + ": " + came.status);
    const count = new TransformStream({
      transform: (bytes, to) => {
        loaded.size += bytes.length;
        $("progress").value = loaded.size / total;
        to.enqueue(bytes);
      },
    });
    return new Response(came.body.pipeThrough(count), { headers: { "Content-Type": "application/wasm" } });
  };

  const unpack = (bytes, index) => {
    let at = 0;
    for (const [path, size] of index) { write(path, bytes.subarray(at, at + size)); at += size; }
  };

  const openArchive = () => new Promise((resolve) => {
    Module.FS.mkdirTree(kHome);
    const alone = (lock) => {
      state.mayKeep = lock !== null;
      readStore().then(() => {
        if (!state.mayKeep) notice("Another tab has the archive: this one plays, but nothing it saves is kept.");
      }).catch(() => {
        state.mayKeep = false;
        notice("This window keeps no archive (a private one?): play on, nothing will be saved.");
      }).then(resolve);
    };
    if (!navigator.locks) { alone({}); return; }
    navigator.locks.request("quenvale archive", { ifAvailable: true }, (lock) => {
      alone(lock);
      return lock === null ? null : new Promise(() => {});  // for as long as the tab lives
    }).catch(() => alone(null));
  });

  const begin = async () => {
    const [listing, program, files] = ["site.json", "quenvale.wasm", "first.bin"].map((name) => fetch(name));
    const runtime = new Promise((resolve) => { Module.onRuntimeInitialized = resolve; });
    const site = await (await listing).json();
    site.files.forEach(([name, size]) => state.sizes.set(name, size));
    const loaded = { size: 0 };
    const total = site.first.reduce((sum, [, size]) => sum + size, site.program);
    const first = counted(files, loaded, total).then((answer) => answer.arrayBuffer());
    await new Promise((resolve, reject) => {
      Module.instantiateWasm = (imports, done) => {
        WebAssembly.instantiateStreaming(counted(program, loaded, total), imports)
          .then((made) => done(made.instance, made.module)).catch(reject);
        return {};
      };
      runtime.then(resolve);
      document.body.append(element("script", "", { src: "quenvale.js" }));
    });
    unpack(new Uint8Array(await first), site.first);
    await openArchive();
    resize();
    Module.callMain();
    state.ready = true;
    $("loading").hidden = true;
    canvas.focus();
    performance.mark("title");
    unpack(new Uint8Array(await (await fetch("late.bin")).arrayBuffer()), site.late);
    performance.mark("complete");
    if ("serviceWorker" in navigator && location.protocol.startsWith("http")) navigator.serviceWorker.register("sw.js").catch(() => {});
    await fetchAhead(site.ahead);
  };

  window.Module = { page, canvas, print: console.log, printErr: console.warn };
  new ResizeObserver(resize).observe(canvas);
  $("full").addEventListener("click", toggleFullScreen);
  $("export").addEventListener("click", take);
  $("import").addEventListener("change", (event) => takeIn(event.target.files));
  $("keyboard").addEventListener("input", (event) => { if (state.field) does("type", state.field.id, event.target.value); });
  $("keyboard").addEventListener("keydown", (event) => { if (event.key === "Enter") does("key", 4); });
  window.addEventListener("gamepadconnected", () => requestAnimationFrame(lookAtPads));
  canvas.addEventListener("pointerdown", () => canvas.focus());
  begin().catch((error) => {
    $("loading-text").textContent = "The President could not be woken: " + error.message + ". Reload the page to try again.";
    $("progress").hidden = true;
  });
})();
