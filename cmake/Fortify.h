// Included before every source: has the C library check calls, unless the compiler's flags have decided that. It needs
// an optimised build.
#if !defined(_FORTIFY_SOURCE) && defined(__OPTIMIZE__)
#define _FORTIFY_SOURCE 2
#endif
