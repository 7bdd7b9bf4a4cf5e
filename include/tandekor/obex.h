/* The phone's own file server (IrDA OBEX), on the port that otherwise takes AT commands. */
#ifndef TANDEKOR_OBEX_H
#define TANDEKOR_OBEX_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /*
     * Takes the port from OBEX back to AT commands by the escape sequence "+++", with a pause of a second on each
     * side. Gives 1 whether the phone answers or not: whether the port has changed shows at the next AT command.
     * piFirstByte: out, the first byte that the phone sent, 187 if it sent none.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_2_AT(ResourceContext hResourceContext, uint16_t* piFirstByte);

#ifdef __cplusplus
}
#endif

#endif
