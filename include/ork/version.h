/* The version of the headers. A change of the first number breaks callers, of the second adds
 * to the interface, of the third changes neither. The package files carry the same number. */
#ifndef ORK_VERSION_H
#define ORK_VERSION_H

#define ORK_VERSION_MAJOR 0
#define ORK_VERSION_MINOR 1
#define ORK_VERSION_PATCH 0
#define ORK_VERSION_STRING "0.1.0"

#ifdef __cplusplus
extern "C" {
#endif

/* The version of the libraries that the program runs with: 10000 major + 100 minor + patch, and in
 * words. */
int ork_version(void);
const char* ork_version_string(void);

#ifdef __cplusplus
}
#endif

#endif
