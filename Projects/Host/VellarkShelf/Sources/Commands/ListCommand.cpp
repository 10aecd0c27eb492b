#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Data/DigestCache.hpp>
#include <VellarkShelf/Shelf/ShelfLine.hpp>
#include <VellarkShelf/Terminal/ShelfTable.hpp>

#include <algorithm>
#include <array>
#include <deque>
#include <future>
#include <utility>
#include <vector>

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

// The lines of the documents that are asked for, made one after the other while the library is looked through.
class Listing {
public:
    // The digests are read while the library is.
    Listing(const Commands::Context& context, const Commands::ListOptions& options, std::optional<DocumentKind> kind)
        : options_(options),
          kind_(kind),
          reading_(std::async(std::launch::async, [&context] { return DigestCache::read(context.directory); })),
          lines_(Commands::now()) {}

    void add(const DocumentRecord& document) {
        if (!belongsTo(document, options_.project)) return;
        ShelfLine line = lines_.line(document, digestOf(document));
        if (kind_ && line.kind != kind_) return;
        order_.push_back({momentKey(document.updatedAt), shown_.size()});
        shown_.push_back(std::move(line));
    }

    void clear() {
        order_.clear();
        shown_.clear();
    }

    // The latest first; documents of one moment keep the library's order.
    [[nodiscard]] ShelfTable::Lines latestFirst() {
        std::sort(order_.begin(), order_.end(), [](const Place& left, const Place& right) {
            return left.moment != right.moment ? left.moment > right.moment : left.index < right.index;
        });
        ShelfTable::Lines lines;
        for (const Place& place : order_) {
            if (lines.size() == options_.limit.value_or(order_.size())) break;
            lines.push_back(&shown_[place.index]);
        }
        return lines;
    }

    // Keeps the digests that were made, so that they need not be made again.
    void save() {
        if (digests_) (void)digests_->save();
    }

private:
    struct Place {
        MomentKey moment;
        std::size_t index = 0;
    };

    std::optional<DocumentDigest> digestOf(const DocumentRecord& document) {
        const DocumentRevision* latest = document.latestRevision();
        if (latest == nullptr) return std::nullopt;
        if (!digests_) digests_ = reading_.get();
        auto digest = digests_->find(latest->id);
        if (!digest) {
            digest = madeDigest(document);
            digests_->add(*digest);
        }
        return digest;
    }

    const Commands::ListOptions& options_;
    std::optional<DocumentKind> kind_;
    std::future<DigestCache> reading_;
    std::optional<DigestCache> digests_;
    ShelfLines lines_;
    std::deque<ShelfLine> shown_;  // grows without moving what is there
    std::vector<Place> order_;
};

// Shows every document of the library to the listing. False, and told, when there is a library that cannot be read.
bool lookThrough(const Commands::Context& context, Listing& listing) {
    const auto add = [&listing](const DocumentRecord& document) { listing.add(document); };
    if (LibraryFile::visit(context.directory.library(), add)) return true;
    listing.clear();
    const auto library = Commands::readLibrary(context);
    if (!library) return false;
    std::for_each(library->documents.begin(), library->documents.end(), add);
    return true;
}

}  // namespace

int Commands::list(const Context& context, const ListOptions& options) {
    std::optional<DocumentKind> kind;
    if (options.kind) {
        kind = fromRawValue<DocumentKind>(*options.kind);
        if (!kind) return problem("there is no kind " + *options.kind);
    }
    Listing listing(context, options, kind);
    if (!lookThrough(context, listing)) return failed;
    const ShelfTable::Lines shown = listing.latestFirst();
    listing.save();
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
