// What the library exports: on Windows through declspec, elsewhere through visibility.
#pragma once

#if defined(_WIN32) && defined(VENDORINFOFILE_STATIC)
#define VIF_API
#elif defined(_WIN32) && defined(VENDORINFOFILE_BUILDING)
#define VIF_API __declspec(dllexport)
#elif defined(_WIN32)
#define VIF_API __declspec(dllimport)
#else
#define VIF_API __attribute__((visibility("default")))
#endif
