// A file server on libopenobex, to hold the library's packets against an implementation of the protocol that knows
// nothing of it. It keeps its files in memory and knows the standard operations alone.
#pragma once

#include <openobex/obex.h>

#include <map>
#include <set>
#include <string>

#include "simulator/control.h"

namespace tandekor::test
{

class OpenObexServer
{
public:
    OpenObexServer();
    ~OpenObexServer();
    OpenObexServer(const OpenObexServer&) = delete;
    OpenObexServer& operator=(const OpenObexServer&) = delete;

    // Empty for a packet that cannot be read.
    simulator::Bytes Answer(simulator::Bytes packet);

    std::map<std::string, simulator::Bytes> files;  // by path, as in "a/b/f"
    std::set<std::string> folders = {""};           // with a slash at the end

private:
    static void OnEvent(obex_t* self, obex_object_t* object, int mode, int event, int command, int response);
    void OnRequest(obex_object_t* object, int command);
    void SetPath(obex_object_t* object, const std::string& name);
    void Get(obex_object_t* object, const std::string& path);
    void FeedBody(obex_object_t* object);
    void AddNumber(obex_object_t* object, uint8_t header, uint32_t number);
    static void Refuse(obex_object_t* object, uint8_t response);

    obex_t* obex;
    simulator::Bytes answer;
    std::string folder;
    const simulator::Bytes* outgoing = nullptr;  // the body that is still to be fed
};

}  // namespace tandekor::test
