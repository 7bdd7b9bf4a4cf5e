/* What every header of the library shares: the handle, the export mark, and the rules that hold for every function. */
#ifndef TANDEKOR_COMMON_H
#define TANDEKOR_COMMON_H

#include <stdint.h>

#include "tandekor/version.h"

/*
 * Rules that hold for every function of the library
 *
 * Handles.     A ResourceContext comes from one of the connect functions and is the first argument of every function
 *              that works on a phone. An unknown handle returns 0: nothing is logged, no argument is written, nothing
 *              goes to the phone (except for TANDEKOR_DisconnectServer and TANDEKOR_SetCallback, which say so).
 * Results.     A uint8_t result is non-zero for success and 0 for failure, unless a function says more. There is no
 *              error code beside it: the cause of a failure stands in the text log or in the arguments that a function
 *              names for it. A failed exchange of an AT or OBEX function is not logged.
 * Pointers.    Out-arguments are required and are not tested for null, unless a function says that null is allowed.
 *              Buffers belong to the caller and must have the size that the function states. Give out-arguments a
 *              value before the call: several of them are shown in the log before they are written, and one that a
 *              failed call did not reach keeps its value.
 * Threads.     Nothing is locked. Every call runs on the caller's thread and blocks until it is done; the caller sees
 *              to it that calls into the library do not overlap. No function needs more than 32 KB of stack.
 * Log.         Texts go to the host library's text log, which TANDEKOR_Start_LOG opens; three refusals that depend on
 *              the phone model go to standard output, where their functions say so. A text is cut to 12291
 *              characters, whatever a caller's own text adds to it.
 * Memory.      Connecting allocates the objects of a connection; no other function of the library allocates. (The C
 *              library may, once, when its calendar or standard output is used for the first time.)
 * Widths.      Integers have the width of their type. A flag (prefix b) is 0 or 1 unless a function says more.
 *
 * How arguments are described
 *
 *   [in]       the caller's value, read only
 *   [out]      written by the call
 *   [in,out]   read, and then written
 *   , or null  a null pointer is allowed
 *   name[N]    a buffer of N elements of its type (bytes for void); N is a number, a constant, or another argument
 *
 * A line in a header's first comment holds for all of its functions, one in the comment of a section for that section.
 * A pointer without [N] points to one value, a const char* to a text with a NUL.
 */

#if defined(_WIN32) && !defined(TANDEKOR_STATIC)
#define TANDEKOR_API __declspec(dllimport)
#elif defined(__GNUC__)
#define TANDEKOR_API __attribute__((visibility("default")))
#else
#define TANDEKOR_API
#endif

/* The calling convention of every function and of the callbacks, whatever the default of the caller's compiler is. */
#if defined(_WIN32)
#define TANDEKOR_CALL __cdecl
#else
#define TANDEKOR_CALL
#endif

#ifdef __cplusplus
extern "C"
{
#endif

    /* The host library's handle of one connected phone; 0 means no connection. */
    typedef uint32_t ResourceContext;

    /* Kind of an access to an I2C register or to a file of the memory card. */
    enum TandekorAccess
    {
        TANDEKOR_ACCESS_READ = 0,
        TANDEKOR_ACCESS_WRITE = 1
    };

    /* Mode in which a phone is or starts. */
    enum TandekorPhoneMode
    {
        TANDEKOR_MODE_ONLINE = 0,
        TANDEKOR_MODE_FTM = 1,
        TANDEKOR_MODE_UNCHANGED = 255 /* TANDEKOR_BootBox_SwitchMobileOn only: whatever mode it comes up in */
    };

    /*
     * Phone models as TANDEKOR_Phone_Model reports them. Model 3 is called DRAVOK and the models 52 to 55 KOLT in
     * the log. 12, 14, 22, 32, 33, 61, 63, 64 and 65 belong to the scheme too, but no phone reports them.
     */
    enum TandekorPhoneModel
    {
        TANDEKOR_MODEL_UNKNOWN = 0,
        TANDEKOR_MODEL_1 = 1, /* chip family 3 */
        TANDEKOR_MODEL_2 = 2, /* chip family 2 */
        TANDEKOR_MODEL_DRAVOK = 3,
        TANDEKOR_MODEL_13 = 13, /* chip family 1: 13, 15, 23, 24, 25 */
        TANDEKOR_MODEL_15 = 15,
        TANDEKOR_MODEL_23 = 23,
        TANDEKOR_MODEL_24 = 24,
        TANDEKOR_MODEL_25 = 25,
        TANDEKOR_MODEL_34 = 34, /* chip family 2: 3, 34, 35, 36, 40, 52 to 55 */
        TANDEKOR_MODEL_35 = 35,
        TANDEKOR_MODEL_36 = 36,
        TANDEKOR_MODEL_40 = 40,
        TANDEKOR_MODEL_KOLT_52 = 52,
        TANDEKOR_MODEL_KOLT_53 = 53,
        TANDEKOR_MODEL_KOLT_54 = 54,
        TANDEKOR_MODEL_KOLT_55 = 55,
        TANDEKOR_MODEL_62 = 62, /* chip family 3 */
        TANDEKOR_MODEL_71 = 71, /* chip family 4: 71 to 78 */
        TANDEKOR_MODEL_72 = 72,
        TANDEKOR_MODEL_73 = 73,
        TANDEKOR_MODEL_74 = 74,
        TANDEKOR_MODEL_75 = 75,
        TANDEKOR_MODEL_76 = 76,
        TANDEKOR_MODEL_77 = 77,
        TANDEKOR_MODEL_78 = 78
    };

#ifdef __cplusplus
}
#endif

#endif
