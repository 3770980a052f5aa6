// SPDX-License-Identifier: Apache-2.0
// What the sanitizers are told where a filter runs: print servers give filters an environment
// without the options of the tests. Part of sanitized builds only.

// libcups gives a PPD's cache back in part, and keeps no frame pointers to unwind by.
extern "C" const char *__asan_default_options() {
  return "fast_unwind_on_malloc=0:malloc_context_size=6";
}

extern "C" const char *__lsan_default_suppressions() {
  return "leak:_ppdCacheCreateWithPPD\n";
}
