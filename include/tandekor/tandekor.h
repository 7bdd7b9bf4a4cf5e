/* All functions of the library. The rules that hold for every function stand in common.h. */
#ifndef TANDEKOR_TANDEKOR_H
#define TANDEKOR_TANDEKOR_H

#include "tandekor/at.h"
#include "tandekor/ftm.h"
#include "tandekor/library.h"
#include "tandekor/obex.h"
#include "tandekor/procedures.h"

#endif
