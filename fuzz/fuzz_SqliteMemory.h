#pragma once
// SQLite's memory in the fuzz targets. SQLite is not built with the sanitizers, but every block it
// takes went through the sanitizer's allocator, which records a call stack per block: a third of
// a save's time when the inputs save a file with dozens of tables. Here its small blocks come
// from size-class lists instead; the sanitizer still sees every access of ours to them: each
// block is poisoned outside its usable bytes and while it is free, and a freed block waits in a
// queue before it is reused, so that a read of freed SQLite memory (a column's text after its
// statement moved on) is still reported.

// Installs the allocator; call once, before SQLite is first used (LLVMFuzzerInitialize).
void fuzz_UseOwnSqliteMemory();
