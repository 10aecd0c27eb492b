#pragma once

#include <string>

namespace vellark {

/// Why a file could not be read into records.
struct DecodingError {
    enum class Reason {
        notJSON,      ///< the text is no JSON; `byteOffset` says where it stops being any
        missing,      ///< a required key is absent or null
        wrongType,    ///< a value of another JSON type
        outOfRange,   ///< a number that is not whole, or too large for its field
        unknownText,  ///< a text that names no case, or has not the form that its field asks for
    };

    Reason reason = Reason::notJSON;
    std::string path;            ///< of the value, as in "documents[3].revisions[0].storageKind"; "" for the root
    std::size_t byteOffset = 0;  ///< for `notJSON`

    bool operator==(const DecodingError&) const = default;
};

/// A value that no file can hold, such as a number that is not finite.
struct EncodingError {
    std::string path;

    bool operator==(const EncodingError&) const = default;
};

}  // namespace vellark
