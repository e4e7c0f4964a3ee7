// Included before every source: makes the C library check calls, unless the compiler's flags already decide that. Needs
// an optimised build.
#if !defined(_FORTIFY_SOURCE) && defined(__OPTIMIZE__)
#define _FORTIFY_SOURCE 2
#endif
