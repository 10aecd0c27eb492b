#include <VellarkDomain/Documents/Pagination/DocumentTextPagination.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>

#include <limits>

namespace vellark {

namespace {

struct ListedPage {
    std::int64_t page = 0;
    std::int64_t begin = 0;
    std::int64_t end = 0;
};

template <class Fields>
void describe(Fields& fields, ListedPage& listed) {
    fields.required("page", listed.page);
    fields.required("begin", listed.begin);
    fields.required("end", listed.end);
}

struct ShownPage {
    std::int64_t page = 0;
    std::int64_t count = 0;
    std::string sourceText;
    std::string text;
};

template <class Fields>
void describe(Fields& fields, ShownPage& shown) {
    fields.required("page", shown.page);
    fields.required("count", shown.count);
    fields.required("sourceText", shown.sourceText);
    fields.required("text", shown.text);
}

int listPages(const Commands::Context& context, const DocumentTextPagination& pagination) {
    std::vector<ListedPage> listed;
    for (const auto& page : pagination.pages) {
        listed.push_back({.page = static_cast<std::int64_t>(listed.size() + 1),
                          .begin = static_cast<std::int64_t>(page.bytes.begin),
                          .end = static_cast<std::int64_t>(page.bytes.end)});
    }
    TerminalOutput output(context.environment);
    if (context.json) return Commands::writeJSON(output, listed);
    for (const ListedPage& page : listed) {
        output.line(std::to_string(page.page) + "\t" + std::to_string(page.begin) + "\t" + std::to_string(page.end));
    }
    return Commands::finish(output);
}

int showPage(const Commands::Context& context, const DocumentTextPage& page) {
    TerminalOutput output(context.environment);
    if (context.json) {
        return Commands::writeJSON(output, ShownPage{.page = static_cast<std::int64_t>(page.index + 1),
                                                     .count = static_cast<std::int64_t>(page.count),
                                                     .sourceText = page.sourceText,
                                                     .text = page.text});
    }
    if (!output.isTerminal()) {
        output.write(page.sourceText);
        return Commands::finish(output);
    }
    std::string_view rest = page.sourceText;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        output.line(DisplayWidth::harmless(rest.substr(0, end)));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return Commands::finish(output);
}

}  // namespace

int Commands::pages(const Context& context, const PagesOptions& options) {
    const auto library = readLibrary(context);
    if (!library) return failed;
    const DocumentRecord* document = findDocument(*library, options.id);
    if (document == nullptr) return failed;
    if (!document->supportsTextContent()) return problem("the document is no text");
    const auto content = readContent(*document, std::numeric_limits<std::uint32_t>::max());
    if (!content) return problem("the document's content is gone");
    const auto format = DocumentContentFormat::resolve(*document, document->latestRevision());
    const auto pagination = DocumentTextPagination::make(*content, format);
    if (!pagination) return problem("the document is not UTF-8 text");
    if (!options.page) return listPages(context, *pagination);
    const auto page = pagination->page(static_cast<std::ptrdiff_t>(*options.page - 1), *content);
    if (!page) return problem("there are " + std::to_string(pagination->pages.size()) + " pages");
    return showPage(context, *page);
}

}  // namespace vellark
