#ifndef KAVRIX_UTIL_EXPORT_H_
#define KAVRIX_UTIL_EXPORT_H_

/// @file
/// The macro of what the library exports.

/// @def KAVRIX_EXPORT
/// Marks what a shared build of the library exports; it hides everything else. A static build, whose targets
/// define KAVRIX_STATIC, marks nothing, so that a client's own shared library does not export it either.
#if defined(__GNUC__) && !defined(KAVRIX_STATIC)
#define KAVRIX_EXPORT __attribute__((visibility("default")))
#else
#define KAVRIX_EXPORT
#endif

#endif  // KAVRIX_UTIL_EXPORT_H_
