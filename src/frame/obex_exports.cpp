// The exported OBEX functions.
#include "frame/forward.h"
#include "obex/obex_channel.h"
#include "tandekor/obex.h"

using tandekor::Forward;
using tandekor::Obex;
using tandekor::ObexChannel;

uint8_t TANDEKOR_OBEX_2_AT(ResourceContext hResourceContext, uint16_t* piFirstByte)
{
    return Forward(Obex(hResourceContext), &ObexChannel::Switch_2_AT, piFirstByte);
}
