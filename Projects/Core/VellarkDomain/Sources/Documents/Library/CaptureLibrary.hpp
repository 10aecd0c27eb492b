#pragma once

#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>

#include <cstdint>
#include <vector>

namespace vellark {

/// The whole library, as one file holds it.
struct CaptureLibrary {
    /// The format that this program writes into new libraries.
    static constexpr std::int64_t currentVersion = 1;

    std::int64_t version = currentVersion;
    std::vector<DocumentRecord> documents;

    bool operator==(const CaptureLibrary&) const = default;
};

template <class Fields>
void describe(Fields& fields, CaptureLibrary& library) {
    fields.required("version", library.version);
    fields.required("documents", library.documents);
}

}  // namespace vellark
