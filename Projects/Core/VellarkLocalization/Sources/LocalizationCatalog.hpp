#pragma once

#include <map>
#include <string>
#include <vector>

namespace vellark {

/// The texts of one language, as its file `<code>.json` holds them; all four keys are required there.
///
///     {
///       "language": "en",
///       "messages": {"파일 {0}개 수정": "Edited {0} files"},
///       "plurals": {"파일 {0}개 수정": {"one": "Edited {0} file", "other": "Edited {0} files"}},
///       "externalKeys": ["파일 {0}개 수정"]
///     }
///
/// The key of a text is its Korean source sentence. "{0}", "{1}" stand for arguments.
struct LocalizationCatalog {
    template <class Value>
    using Dictionary = std::map<std::string, Value, std::less<>>;

    std::string language;
    Dictionary<std::string> messages;             ///< from key to translation
    Dictionary<Dictionary<std::string>> plurals;  ///< from key, to the raw value of a plural category, to translation
    std::vector<std::string> externalKeys;        ///< keys whose finished texts may stand in stored data

    bool operator==(const LocalizationCatalog&) const = default;
};

template <class Fields>
void describe(Fields& fields, LocalizationCatalog& catalog) {
    fields.required("language", catalog.language);
    fields.required("messages", catalog.messages);
    fields.required("plurals", catalog.plurals);
    fields.required("externalKeys", catalog.externalKeys);
}

}  // namespace vellark
