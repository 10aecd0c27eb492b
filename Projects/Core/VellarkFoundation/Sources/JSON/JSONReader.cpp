#include <VellarkFoundation/JSON/JSONReader.hpp>

namespace vellark {

namespace {

JSONValue arrayValue(const JSONNode& node) {
    JSONArray array;
    array.reserve(node.count());
    for (const JSONNode element : node.elements()) {
        array.push_back(element.value());
    }
    return array;
}

JSONValue objectValue(const JSONNode& node) {
    std::vector<JSONMember> members;
    members.reserve(node.count());
    for (const auto& [key, value] : node.members()) {
        members.push_back({std::string(key), value.value()});
    }
    return JSONObject::fromMembers(std::move(members));
}

}  // namespace

JSONValue JSONNode::value() const {
    switch (kind()) {
        case JSONKind::null:
            return nullptr;
        case JSONKind::boolean:
            return *boolean();
        case JSONKind::number:
            return JSONNumber{std::string(text())};
        case JSONKind::string:
            return text();
        case JSONKind::array:
            return arrayValue(*this);
        case JSONKind::object:
            return objectValue(*this);
    }
    return nullptr;
}

Result<JSONValue, JSONError> JSONReader::read(std::string_view text, const Options& options) {
    const auto document = JSONDocument::parse(text, options);
    if (!document) return failure(document.error());
    return document->root().value();
}

}  // namespace vellark
