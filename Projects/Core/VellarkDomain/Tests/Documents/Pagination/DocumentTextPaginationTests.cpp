#include "Documents/Pagination/PlainPagination.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkDomain/Documents/Pagination/DocumentTextPagination.hpp>
#include <VellarkDomain/Documents/Pagination/MarkdownContext.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace vellark {

void PrintTo(const DocumentContentFormat& format, std::ostream* stream) {
    const auto* code = std::get_if<DocumentContentFormat::Code>(&format.value);
    *stream << (format.isMarkdown() ? "markdown" : format.isHTML() ? "html" : "code " + code->language.value_or("-"));
}

void PrintTo(const DocumentTextPagination::Page& page, std::ostream* stream) {
    *stream << page.bytes.begin << "..<" << page.bytes.end << " prefix "
            << ::testing::PrintToString(page.prefix.substr(0, 80)) << " suffix "
            << ::testing::PrintToString(page.suffix.substr(0, 80)) << " ";
    PrintTo(page.format, stream);
}

namespace {

using Pagination = DocumentTextPagination;
using ByteRange = Pagination::ByteRange;

const auto markdown = DocumentContentFormat::markdown();
const auto plaintext = DocumentContentFormat::code("plaintext");

std::string repeated(std::string_view piece, std::size_t count) {
    std::string text;
    for (; count > 0; --count)
        text += piece;
    return text;
}

// Reads a text in blocks of the sizes that `next` gives.
template <class NextSize>
Pagination::Read blocks(std::string_view text, NextSize next) {
    return [text, next]() mutable -> Result<std::string_view, std::error_code> {
        const std::string_view block = text.substr(0, next());
        text.remove_prefix(block.size());
        return block;
    };
}

std::vector<Pagination::Page> pagesOf(std::string_view text, const DocumentContentFormat& format = markdown) {
    const auto pagination = Pagination::make(text, format);
    EXPECT_TRUE(pagination.has_value());
    return pagination ? pagination->pages : std::vector<Pagination::Page>();
}

std::vector<ByteRange> rangesOf(std::string_view text) {
    std::vector<ByteRange> ranges;
    for (const auto& page : pagesOf(text))
        ranges.push_back(page.bytes);
    return ranges;
}

TEST(DocumentTextPagination, endsPagesAtLinesAndBytes) {
    const std::string long1(1'000, 'x');
    struct Row {
        const char* name;
        std::string text;
        std::vector<ByteRange> ranges;
    };
    const Row rows[] = {
        {"nothing", "", {}},
        {"one byte", "a", {{0, 1}}},
        {"512 lines", repeated("a\n", 512), {{0, 1'024}}},
        {"513 lines", repeated("a\n", 513), {{0, 1'024}, {1'024, 1'026}}},
        {"512 lines and a piece", repeated("a\n", 512) + "b", {{0, 1'024}, {1'024, 1'025}}},
        {"512 lines with CR LF", repeated("\r\n", 513), {{0, 1'024}, {1'024, 1'026}}},
        {"exactly the bytes", std::string(32'768, 'x'), {{0, 32'768}}},
        {"one byte more", std::string(32'769, 'x'), {{0, 32'768}, {32'768, 32'769}}},
        {"a long line", std::string(40'000, 'x'), {{0, 32'768}, {32'768, 40'000}}},
        {"the last line end in time", long1 + "\n" + std::string(32'000, 'y'), {{0, 1'001}, {1'001, 33'001}}},
        {"the line end just in time", std::string(32'767, 'x') + "\nab", {{0, 32'768}, {32'768, 32'770}}},
        {"the line end a byte late", std::string(32'768, 'x') + "\nab", {{0, 32'768}, {32'768, 32'771}}},
        {"CR LF kept together", std::string(32'767, 'x') + "\r\nab", {{0, 32'769}, {32'769, 32'771}}},
        {"CR LF at the very end", std::string(32'767, 'x') + "\r\n", {{0, 32'769}}},
        {"a CR alone is cut behind", std::string(32'767, 'x') + "\rab", {{0, 32'768}, {32'768, 32'770}}},
        {"the 512th line end beyond the bytes",
         repeated("a\n", 511) + std::string(32'000, 'x') + "\nb\n",
         {{0, 1'022}, {1'022, 33'025}}},
        {"a scalar of two bytes across the cut", std::string(32'767, 'x') + "é", {{0, 32'767}, {32'767, 32'769}}},
        {"a scalar of three", std::string(32'766, 'x') + "한", {{0, 32'766}, {32'766, 32'769}}},
        {"a scalar of four", std::string(32'765, 'x') + "😀", {{0, 32'765}, {32'765, 32'769}}},
        {"a scalar that ends at the cut", std::string(32'765, 'x') + "한글", {{0, 32'768}, {32'768, 32'771}}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(rangesOf(row.text), row.ranges) << row.name;
    }
}

TEST(DocumentTextPagination, showsTornLinesOfMarkdownAsTheyStand) {
    const std::string text = std::string(40'000, 'x') + "\n" + repeated("y\n", 512);
    const auto pages = pagesOf(text);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0].format, plaintext);
    EXPECT_EQ(pages[1].format, plaintext);
    EXPECT_EQ(pages[2].format, markdown);
    for (const auto& page : pagesOf(text, DocumentContentFormat::html())) {
        EXPECT_EQ(page.format, DocumentContentFormat::html());
    }
    // The pair is behind the cut, so nothing is torn.
    EXPECT_EQ(pagesOf(std::string(32'767, 'x') + "\r\nab")[0].format, markdown);
}

struct Context {
    std::string prefix;
    std::string suffix;
    bool operator==(const Context&) const = default;
};

void PrintTo(const Context& context, std::ostream* stream) {
    *stream << ::testing::PrintToString(context.prefix) << " and " << ::testing::PrintToString(context.suffix);
}

// The first page has 512 lines; `head` fills its last ones.
std::vector<Context> contextsAround(const std::string& head, const std::string& tail,
                                    const DocumentContentFormat& format = markdown) {
    const auto lines = static_cast<std::size_t>(std::ranges::count(head, '\n'));
    std::vector<Context> contexts;
    for (const auto& page : pagesOf(repeated("p\n", 512 - lines) + head + tail, format))
        contexts.push_back({page.prefix, page.suffix});
    return contexts;
}

TEST(DocumentTextPagination, carriesFencesAndTablesAcrossCuts) {
    const std::string wide(4'096, 'w');
    struct Row {
        const char* name;
        std::string head;
        std::string tail;
        Context first;
        Context second;
    };
    const Row rows[] = {
        {"an open fence", "```swift\nlet a\n", "let b\n```\n", {"", "\n```\n"}, {"```swift\n", ""}},
        {"as it stood", "  ~~~~ c |x\n", "a\n", {"", "\n~~~~\n"}, {"  ~~~~ c |x\n", "\n~~~~\n"}},
        {"with CR LF", "```c\r\n", "a\r\n```\r\n", {"", "\n```\n"}, {"```c\r\n", ""}},
        {"a closed fence", "```\na\n```\n", "b\n", {}, {}},
        {"closed by a longer run and blanks", "```\na\n   ````` \t\r\n", "b\n", {}, {}},
        {"closed before a separator of lines", "```\n```\u2028\u0085\n", "b\n", {}, {}},
        {"not by a shorter run", "````\n```\n", "b\n", {"", "\n````\n"}, {"````\n", "\n````\n"}},
        {"not by another marker", "```\n~~~\n", "b\n", {"", "\n```\n"}, {"```\n", "\n```\n"}},
        {"not with text behind", "```\n``` x\n", "b\n", {"", "\n```\n"}, {"```\n", "\n```\n"}},
        {"not from the fourth blank on", "```\n    ```\n", "b\n", {"", "\n```\n"}, {"```\n", "\n```\n"}},
        {"not behind a tab", "```\n\t```\n", "b\n", {"", "\n```\n"}, {"```\n", "\n```\n"}},
        {"no fence: four blanks", "    ```\n", "b\n", {}, {}},
        {"no fence: a tab", "\t```\n", "b\n", {}, {}},
        {"no fence: two markers", "``\n", "b\n", {}, {}},
        {"no fence: a backtick behind", "```a`b\n", "b\n", {}, {}},
        {"a backtick behind tildes", "~~~a`b\n", "b\n", {"", "\n~~~\n"}, {"~~~a`b\n", "\n~~~\n"}},
        {"an opening of 4096 bytes",
         "~~~" + wide.substr(3) + "\n",
         "b\n",
         {"", "\n~~~\n"},
         {"~~~" + wide.substr(3) + "\n", "\n~~~\n"}},
        {"no fence: 4097 bytes", "~~~" + wide.substr(2) + "\n", "b\n", {}, {}},

        {"between rows", "|a|b|\n|---|:---:|\n|1|2|\n", "|3|4|\n", {}, {"|a|b|\n|---|:---:|\n", ""}},
        {"between rows with CR LF", "a|b\r\n---|---\r\n", "3|4\r\n", {}, {"a|b\r\n---|---\r\n", ""}},
        {"between header and separator", "a|b\n", "---|---\n1|2\n", {}, {"a|b\n", ""}},
        {"a header without bars", "a\n", "---|---\n1|2\n", {}, {}},
        {"the table has ended", "a|b\n---|---\n\n", "3|4\n", {}, {}},
        {"a page that does not go on", "a|b\n---|---\n", "3\n", {}, {}},
        {"a fence ends the table", "a|b\n---|---\n```\n```\n", "3|4\n", {}, {}},
        {"bars inside a fence", "```\na|b\n---|---\n```\n", "3|4\n", {}, {}},
        {"two dashes", "a|b\n--|--\n", "3|4\n", {}, {}},
        {"a separator below a table begins the next",
         "a|b\n---|---\nc|d\n---|:---\n",
         "3|4\n",
         {},
         {"c|d\n---|:---\n", ""}},
        {"a header of 4096 bytes", wide.substr(1) + "|\n---|---\n", "3|4\n", {}, {wide.substr(1) + "|\n---|---\n", ""}},
        {"a header of 4097 bytes", wide + "|\n---|---\n", "3|4\n", {}, {}},
        {"a longer one clears the table", "a|b\n---|---\n" + wide + "|\n---|---\n", "3|4\n", {}, {}},
        {"a cut header of 4095 bytes", wide.substr(2) + "|\n", "---|---\n", {}, {wide.substr(2) + "|\n", ""}},
        {"a cut header of 4096 bytes", wide.substr(1) + "|\n", "---|---\n", {}, {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(contextsAround(row.head, row.tail), (std::vector{row.first, row.second})) << row.name;
        EXPECT_EQ(contextsAround(row.head, row.tail, plaintext), (std::vector<Context>(2))) << row.name;
    }
}

TEST(DocumentTextPagination, knowsSeparatorsOfTables) {
    const char* separators[] = {"---",       "|---|",   "| --- | :---: |",   "---|---\r", " \t|---|\u2029",
                                "|::---::|", "||---||", "|\u3000---\u200B|", "-----|---"};
    for (const char* line : separators) {
        EXPECT_TRUE(MarkdownContext::isSeparator(line)) << line;
        EXPECT_TRUE(testing::PlainPagination::isSeparator(line)) << line;
    }
    const char* others[] = {"",      "|",     "||",    "--",          "|--|", "|---| |", "|---|--|", "---x",
                            "- - -", "|:-:|", "| : |", "|---\u0301|", "—-—",  "|\v---|", "|---|:|",  "|-:--|"};
    for (const char* line : others) {
        EXPECT_FALSE(MarkdownContext::isSeparator(line)) << line;
        EXPECT_FALSE(testing::PlainPagination::isSeparator(line)) << line;
    }
}

TEST(DocumentTextPagination, carriesFencesOverTornLines) {
    const std::string text = "```\n" + std::string(70'000, 'x') + "\n```\nend\n";
    const auto pages = pagesOf(text);
    ASSERT_EQ(pages.size(), 4U);
    for (std::size_t index = 1; index < 4; ++index) {
        EXPECT_EQ(pages[index].prefix, "```\n");
        EXPECT_EQ(pages[index].format, markdown);
    }
    EXPECT_EQ(pages[3].suffix, "");
}

// Lines that mean something to the context, and lines and ends that do not.
std::string generated(testing::RandomNumbers& random, std::size_t atLeast) {
    static const std::vector<std::string> pieces = {
        "```",    "````",      "~~~", "~~~~~",    "``",    "`",      "|",
        "a|b",    "|---|---|", "---", ":--:|---", " ",     "    ",   "\t",
        "\r",     "한글",      "é",   "😀",        "# h",   "- item", "plain text that goes on for a while",
        "\u2028", "-",         ":",   "x",        "swift", ""};
    static const std::vector<std::string> wholeLines = {"```\n", "```c\n",    "```\r\n", "~~~\n",
                                                        "a|b\n", "---|---\n", "|a|\r\n", "|---|\r\n",
                                                        "1|2\n", "1|2\n",     "\n",      "p\n"};
    std::string text;
    while (text.size() < atLeast) {
        const std::size_t choice = random.below(200);
        if (choice < 100) {
            text += random.oneOf(wholeLines);
        } else if (choice < 199) {
            for (std::size_t length = random.below(6); length > 0; --length)
                text += random.oneOf(pieces);
            text += random.below(4) == 0 ? "\r\n" : "\n";
        } else if (random.below(3) == 0) {
            static const std::vector<std::string> fillers = {"x", "한", "a|", "é", "`"};
            text += repeated(random.oneOf(fillers), random.below(35'000));
        } else {
            text += "|" + std::string(4'090 + random.below(8), 'w') + "|\n|---|---|\n";
        }
    }
    return text;
}

TEST(DocumentTextPagination, agreesWithThePlainForm) {
    testing::RandomNumbers random(11);
    for (int round = 0; round < 150; ++round) {
        const std::string text = generated(random, random.below(60'000));
        const auto expected = testing::PlainPagination(markdown).pages(text);
        ASSERT_EQ(pagesOf(text), expected) << "round " << round;

        const auto read = blocks(text, [&] { return 1 + random.below(round % 3 == 0 ? 100 : 32'768); });
        const auto streamed = Pagination::make(markdown, read);
        ASSERT_TRUE(streamed.has_value());
        ASSERT_EQ(streamed->pages, expected) << "round " << round;
    }
}

TEST(DocumentTextPagination, givesTheSourceBackPageByPage) {
    testing::RandomNumbers random(12);
    const std::string text = generated(random, 200'000);
    const auto pagination = Pagination::make(text, markdown);
    ASSERT_TRUE(pagination.has_value());
    const auto count = static_cast<std::ptrdiff_t>(pagination->pages.size());
    std::string joined;
    for (std::ptrdiff_t index = 0; index < count; ++index) {
        const auto page = pagination->page(index, text);
        ASSERT_TRUE(page.has_value());
        ASSERT_EQ(pagination->page(index, std::as_bytes(std::span(text))), page);
        const auto& range = pagination->pages[static_cast<std::size_t>(index)];
        EXPECT_EQ(page->index, static_cast<std::size_t>(index));
        EXPECT_EQ(page->count, pagination->pages.size());
        EXPECT_EQ(page->text, range.prefix + page->sourceText + range.suffix);
        EXPECT_EQ(page->format, range.format);
        joined += page->sourceText;
    }
    EXPECT_EQ(joined, text);
    for (const std::ptrdiff_t index : {std::ptrdiff_t{-1}, count, PTRDIFF_MIN, PTRDIFF_MAX}) {
        EXPECT_EQ(pagination->page(index, text).error(), Pagination::PageError(LibraryMutationError::notFound));
    }
}

TEST(DocumentTextPagination, refusesAPageOfAnotherSource) {
    const auto pagination = Pagination::make(std::string(40'000, 'x'), plaintext);
    ASSERT_TRUE(pagination.has_value());
    const Pagination::PageError unreadable(DocumentTextError::fileReadInapplicableStringEncoding);
    EXPECT_EQ(pagination->page(1, std::string(39'999, 'x')).error(), unreadable);
    EXPECT_EQ(pagination->page(1, std::string(32'768, 'x') + "\x80" + std::string(8'000, 'x')).error(), unreadable);
    EXPECT_TRUE(pagination->page(0, std::string(32'768, 'x') + "\x80").has_value()) << "looks at other bytes";
}

TEST(DocumentTextPagination, refusesWhatIsNoText) {
    const std::string_view damages[] = {"\x80",         "\xC0\xAF",         "\xE0\x80\x80",
                                        "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF",
                                        "\xE1\x80",     "\xF0\x9F\x98",     std::string_view("\0", 1)};
    for (const std::size_t before : {0, 1, 3'000, 32'766, 32'767, 32'768, 40'000}) {
        for (const std::size_t behind : {0, 1, 40'000}) {
            for (const std::string_view damage : damages) {
                const std::string text = std::string(before, 'a') + std::string(damage) + std::string(behind, 'b');
                const auto expected = DocumentTextError::fileReadInapplicableStringEncoding;
                const auto whole = Pagination::make(text, plaintext);
                ASSERT_FALSE(whole.has_value());
                EXPECT_EQ(whole.error(), expected);
                const auto streamed = Pagination::make(plaintext, blocks(text, [] { return 1'000; }));
                ASSERT_FALSE(streamed.has_value());
                EXPECT_EQ(streamed.error(), Pagination::ReadError(expected));
            }
        }
    }
    EXPECT_FALSE(Pagination::make(std::string(40'000, '\x80'), plaintext).has_value()) << "no place to cut";
}

TEST(DocumentTextPagination, stopsWhenAsked) {
    std::stop_source source;
    std::size_t reads = 0;
    const Pagination::Read read = [&]() -> Result<std::string_view, std::error_code> {
        static const std::string block(32'768, 'x');
        if (++reads == 5) source.request_stop();
        return block;  // without an end
    };
    const auto result = Pagination::make(plaintext, read, source.get_token());
    ASSERT_FALSE(result.has_value());
    EXPECT_EQ(result.error(), Pagination::ReadError(DocumentTextError::cancelled));
    EXPECT_EQ(reads, 5U);
    EXPECT_EQ(Pagination::make("", plaintext, source.get_token()).error(), DocumentTextError::cancelled);
}

TEST(DocumentTextPagination, passesErrorsOfTheReaderOn) {
    std::size_t calls = 0;
    const auto broken = std::make_error_code(std::errc::io_error);
    const Pagination::Read failing = [&]() -> Result<std::string_view, std::error_code> {
        if (++calls == 3) return failure(broken);
        return std::string_view("abc");
    };
    EXPECT_EQ(Pagination::make(markdown, failing).error(), Pagination::ReadError(broken));

    const std::string tooLarge(32'769, 'x');
    EXPECT_EQ(Pagination::make(markdown, blocks(tooLarge, [] { return 32'769; })).error(),
              Pagination::ReadError(DocumentTextError::fileReadTooLarge));

    calls = 0;
    const Pagination::Read ending = [&]() -> Result<std::string_view, std::error_code> {
        return ++calls == 1 ? std::string_view("abc") : std::string_view();
    };
    EXPECT_EQ(Pagination::make(markdown, ending)->pages.size(), 1U);
    EXPECT_EQ(calls, 2U) << "not called behind the end";
}

}  // namespace
}  // namespace vellark
