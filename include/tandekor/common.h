/* What every header of the library shares: the handle, the export mark, and the rules that hold for every function. */
#ifndef TANDEKOR_COMMON_H
#define TANDEKOR_COMMON_H

#include <stdint.h>

/*
 * Rules that hold for every function of the library
 *
 * Handles.     A ResourceContext comes from one of the connect functions and is the first argument of every function
 *              that works on a phone. An unknown handle gives the result 0: nothing is logged, no argument is written,
 *              nothing goes to the phone (but for TANDEKOR_DisconnectServer and TANDEKOR_SetCallback, which say so).
 * Results.     A uint8_t result is non-zero for success and 0 for failure, unless a function says more. There is no
 *              error code beside it: the cause of a failure stands in the text log or in the arguments that a function
 *              names for it. A failed exchange of an AT or OBEX function is not logged.
 * Pointers.    Out-arguments are required and are not tested for null, unless a function says that null is allowed.
 *              Buffers belong to the caller and must have the size that the function states. Give out-arguments a
 *              value before the call: several of them are shown in the log before they are written, and one that a
 *              failed call did not reach keeps its value.
 * Threads.     Nothing is locked. Every call runs on the caller's thread and blocks until it is done; the caller sees
 *              to it that calls into the library do not overlap.
 * Log.         Texts go to the host library's text log, which TANDEKOR_Start_LOG opens; three refusals that depend on
 *              the phone model go to standard output, where their functions say so. A text is cut to 12291
 *              characters, whatever a caller's own text adds to it.
 * Memory.      Connecting allocates the objects of a connection; no other call allocates.
 * Widths.      Integers have the width of their type. A flag (prefix b) is 0 or 1 unless a function says more.
 */

#if defined(_WIN32) && defined(TANDEKOR_BUILDING)
#define TANDEKOR_API __declspec(dllexport)
#elif defined(_WIN32) && !defined(TANDEKOR_STATIC)
#define TANDEKOR_API __declspec(dllimport)
#elif defined(__GNUC__)
#define TANDEKOR_API __attribute__((visibility("default")))
#else
#define TANDEKOR_API
#endif

#ifdef __cplusplus
extern "C"
{
#endif

    /* The host library's handle of one connected phone; 0 means no connection. */
    typedef uint32_t ResourceContext;

#ifdef __cplusplus
}
#endif

#endif
