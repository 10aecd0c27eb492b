#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vellark {

/// Where the whole of a clipped text stands in an agent's record file.
struct ConversationTextLocation {
    std::string agent;                   ///< the agent's key
    std::string path;                    ///< of the record file
    std::int64_t offset = 0;             ///< of the record in the file, in bytes
    std::int64_t part = 0;               ///< index of the text part inside the record
    std::optional<std::string> session;  ///< thread of the record, when several threads share the file

    bool operator==(const ConversationTextLocation&) const = default;
};

template <class Fields>
void describe(Fields& fields, ConversationTextLocation& location) {
    fields.required("agent", location.agent);
    fields.required("path", location.path);
    fields.required("offset", location.offset);
    fields.required("part", location.part);
    fields.optional("session", location.session);
}

}  // namespace vellark
