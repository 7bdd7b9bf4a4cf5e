// The message store, by TS 27.005 in PDU form. The phone's own commands ^SMGL and ^SMGR leave the state unchanged; the
// standard ones make an unread message a read one.
#include <cstdlib>

#include "simulator/at.h"

namespace simulator
{

namespace
{

constexpr char unread = '0';
constexpr char read = '1';
constexpr char unsent = '2';
constexpr char sent = '3';
constexpr char allStates[] = "4";

std::string NoMessage() { return Refused(invalidMessageIndex, "+CMS"); }

// The fields after the place. The length counts octets without the service centre's address, whose length comes first.
std::string HeadOf(const SimulatedMessage& message)
{
    const size_t octets = message.pdu.size() / 2;
    const size_t centre = std::stoul(message.pdu.substr(0, 2), nullptr, 16);
    return std::string(1, message.stat) + ",," + std::to_string(octets - 1 - centre);
}

void MarkAsRead(const AtCommand& command, SimulatedMessage& message)
{
    if (command.name.starts_with('+') && message.stat == unread)
        message.stat = read;
}

SimulatedMessage* FindMessage(const std::string& place)
{
    auto& messages = ThePhone().messages;
    const auto message = messages.find(static_cast<uint32_t>(std::strtoul(place.c_str(), nullptr, 10)));
    return message == messages.end() ? nullptr : &message->second;
}

}  // namespace

std::map<uint32_t, SimulatedMessage> FreshMessages()
{
    return {
        {1, {unread, "0791947122720000040C9194713254769800007030510100004009CCB4BB0CA297E774"}},
        {12, {unsent, "0011000C919471325476980000AA04CCB4BB0C"}},
    };
}

std::string ListMessages(const AtCommand& command)
{
    if (!command.Sets())
        return Refused(operationNotAllowed);
    std::string lines;
    for (auto& [place, message] : ThePhone().messages)
    {
        if (command.value != allStates && command.value != std::string(1, message.stat))
            continue;
        lines += (lines.empty() ? "" : "\r\n") + command.name + ": " + std::to_string(place) + ',' + HeadOf(message)
                 + "\r\n" + message.pdu;
        MarkAsRead(command, message);
    }
    return lines.empty() ? Done() : Answer(lines);
}

std::string ReadMessage(const AtCommand& command)
{
    SimulatedMessage* message = FindMessage(command.value);
    if (!command.Sets() || message == nullptr)
        return NoMessage();
    std::string answer = Answer(command.name + ": " + HeadOf(*message) + "\r\n" + message->pdu);
    MarkAsRead(command, *message);
    return answer;
}

// Sends from the store, to another number if one is given.
std::string SendMessage(const AtCommand& command)
{
    SimulatedMessage* message = FindMessage(FieldsOf(command.value)[0]);
    if (!command.Sets() || message == nullptr)
        return NoMessage();
    if (message->stat == unsent)
        message->stat = sent;
    return Answer("+CMSS: 0");
}

}  // namespace simulator
