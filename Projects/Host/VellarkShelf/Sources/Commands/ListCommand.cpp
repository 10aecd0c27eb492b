#include <VellarkFoundation/Concurrency/ParallelLoop.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Data/DigestCache.hpp>
#include <VellarkShelf/Shelf/ShelfLine.hpp>
#include <VellarkShelf/Terminal/ShelfTable.hpp>

#include <algorithm>
#include <array>
#include <future>
#include <utility>

namespace vellark {

namespace {

// The digest that collecting left, or one made now from what is at hand.
DocumentDigest madeDigest(const DocumentRecord& document) {
    return DocumentDigests::make(document, Commands::readContent(document, DocumentDigests::readingLimit));
}

bool belongsTo(const DocumentRecord& document, const std::optional<std::string>& project) {
    return !project || document.project == *project || document.projectRoot == *project;
}

// A moment's text in a form that is compared without a look at the record: its first 24 bytes, which hold all of it.
using MomentKey = std::array<std::uint64_t, 3>;

MomentKey momentKey(std::string_view moment) {
    std::array<unsigned char, 24> bytes{};
    std::copy_n(moment.begin(), std::min(moment.size(), bytes.size()), bytes.begin());
    MomentKey key{};
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        key[place / 8] = key[place / 8] << 8 | bytes[place];
    }
    return key;
}

// A document that is to be shown, in the library's order: so that its memory is walked from one end to the other.
struct Entry {
    MomentKey moment;
    const DocumentRecord* document = nullptr;
    std::size_t place = 0;  // of its line
};

// Documents of one moment keep the library's order.
bool isLater(const Entry& left, const Entry& right) {
    return left.moment != right.moment ? left.moment > right.moment : left.place < right.place;
}

std::vector<Entry> chosenEntries(const CaptureLibrary& library, const Commands::ListOptions& options) {
    std::vector<Entry> entries;
    entries.reserve(library.documents.size());
    for (const DocumentRecord& document : library.documents) {
        if (!belongsTo(document, options.project)) continue;
        entries.push_back({momentKey(document.updatedAt), &document, entries.size()});
    }
    if (options.limit && !options.kind && *options.limit < entries.size()) {
        const auto end = entries.begin() + static_cast<std::ptrdiff_t>(*options.limit);
        std::nth_element(entries.begin(), end, entries.end(), isLater);
        entries.erase(end, entries.end());
        for (std::size_t place = 0; place < entries.size(); ++place) {
            entries[place].place = place;
        }
    }
    return entries;
}

// A line, and its document's digest if that was not known.
struct MadeLine {
    ShelfLine line;
    std::optional<DocumentDigest> digest;
};

MadeLine madeLine(ShelfLines& lines, const DocumentRecord& document, const DigestCache& digests) {
    MadeLine result;
    const DocumentRevision* latest = document.latestRevision();
    const DocumentDigest* digest = latest != nullptr ? digests.find(latest->id) : nullptr;
    if (digest == nullptr && latest != nullptr) digest = &result.digest.emplace(madeDigest(document));
    result.line = lines.line(document, digest);
    return result;
}

// The lines of the entries, made on all cores.
std::vector<MadeLine> madeLines(const std::vector<Entry>& entries, const DigestCache& digests) {
    constexpr std::size_t chunkSize = 2'048;
    const Date now = Commands::now();
    std::vector<MadeLine> made(entries.size());
    ParallelLoop::run((entries.size() + chunkSize - 1) / chunkSize, [&](std::size_t chunk) {
        ShelfLines lines(now);
        const std::size_t end = std::min(entries.size(), (chunk + 1) * chunkSize);
        for (std::size_t place = chunk * chunkSize; place < end; ++place) {
            made[place] = madeLine(lines, *entries[place].document, digests);
        }
    });
    return made;
}

// The process ends behind the list, and so its library and digests are never freed: for a hundred thousand documents
// that would take longer than to print them. They are read at the same time.
struct Shelf {
    std::optional<CaptureLibrary> library;
    DigestCache digests;

    static Shelf& read(const Commands::Context& context) {
        auto digests = std::async(std::launch::async, [&context] { return DigestCache::read(context.directory); });
        auto library = Commands::readLibrary(context);
        static Shelf& shelf = *new Shelf{std::move(library), digests.get()};
        return shelf;
    }
};

}  // namespace

int Commands::list(const Context& context, const ListOptions& options) {
    std::optional<DocumentKind> kind;
    if (options.kind) {
        kind = fromRawValue<DocumentKind>(*options.kind);
        if (!kind) return problem("there is no kind " + *options.kind);
    }
    auto& [library, digests] = Shelf::read(context);
    if (!library) return failed;
    std::vector<Entry> entries = chosenEntries(*library, options);
    auto made = madeLines(entries, digests);
    std::sort(entries.begin(), entries.end(), isLater);
    ShelfTable::Lines shown;
    for (const Entry& entry : entries) {
        MadeLine& one = made[entry.place];
        if (one.digest) digests.add(*std::move(one.digest));
        const bool isWanted = (!kind || one.line.kind == kind) && shown.size() < options.limit.value_or(entries.size());
        if (isWanted) shown.push_back(&one.line);
    }
    (void)digests.save();  // what was made now need not be made again
    TerminalOutput output(context.environment);
    if (!context.json) {
        ShelfTable::write(output, shown);
        return finish(output);
    }
    std::vector<ShelfLine> lines;
    for (const ShelfLine* line : shown) {
        lines.push_back(*line);
    }
    return writeJSON(output, lines);
}

}  // namespace vellark
