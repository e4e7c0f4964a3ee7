// What the library exports: on Windows through declspec, elsewhere through visibility.
#pragma once

/// \def VIF_ANALYSIS_API
/// Marks what VendorInfoFileAnalysis exports.

#if defined(_WIN32) && defined(VENDORINFOFILE_ANALYSIS_STATIC)
#define VIF_ANALYSIS_API
#elif defined(_WIN32) && defined(VENDORINFOFILE_ANALYSIS_BUILDING)
#define VIF_ANALYSIS_API __declspec(dllexport)
#elif defined(_WIN32)
#define VIF_ANALYSIS_API __declspec(dllimport)
#else
#define VIF_ANALYSIS_API __attribute__((visibility("default")))
#endif
