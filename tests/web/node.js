// Stands before every test program: the compiler takes an engine that can fetch for a browser, and this is node.
delete globalThis.fetch;
