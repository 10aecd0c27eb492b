#include "Capture/Differential.hpp"
#include <VellarkDomain/Capture/HTML/HTMLResources.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace vellark {
namespace {

using PythonHTMLTitle::Event;
using PythonHTMLTitle::EventKind;

constexpr std::array<std::string_view, 4> manyRawTextElements = {"script", "template", "noscript", "textarea"};

// Writes the events of a page down, each text behind its length, so that no character can be mistaken for another.
class EventLog {
public:
    void startTag(std::string_view name, std::span<const PythonHTMLTitle::Attribute> attributes) {
        tag('S', name, attributes);
    }
    void selfClosingTag(std::string_view name, std::span<const PythonHTMLTitle::Attribute> attributes) {
        tag('X', name, attributes);
    }
    void endTag(std::string_view name) { add('E', name); }
    void data(std::string_view value) { add('D', value); }

    std::string text;

private:
    void add(char kind, std::string_view value) {
        text += kind + std::to_string(value.size()) + ":";
        text += value;
    }
    void tag(char kind, std::string_view name, std::span<const PythonHTMLTitle::Attribute> attributes) {
        add(kind, name);
        for (const auto& attribute : attributes) {
            add('a', attribute.name);
            if (attribute.value) add('v', *attribute.value);
        }
    }
};

std::string eventsOf(std::string_view page, bool manyRawTexts) {
    EventLog log;
    auto parser = manyRawTexts ? PythonHTMLTitle::Parser(page, manyRawTextElements) : PythonHTMLTitle::Parser(page);
    return parser.run(log) ? log.text : log.text + "failed";
}

// A case is a page behind "0" or "1", which tells the set of raw-text elements. A Python whose parser closes comments
// at
// "--!>" follows newer rules and is no model.
constexpr std::string_view model = R"(
from html.parser import HTMLParser
class Log(HTMLParser):
    def __init__(self): super().__init__(convert_charrefs=True); self.parts = []
    def add(self, kind, value): value = value.encode(); self.parts.append(b'%s%d:%s' % (kind, len(value), value))
    def tag(self, kind, name, attributes):
        self.add(kind, name)
        for key, value in attributes:
            self.add(b'a', key)
            if value is not None: self.add(b'v', value)
    def handle_starttag(self, name, attributes): self.tag(b'S', name, attributes)
    def handle_startendtag(self, name, attributes): self.tag(b'X', name, attributes)
    def handle_endtag(self, name): self.add(b'E', name)
    def handle_data(self, text): self.add(b'D', text)
def answer(case):
    log = Log()
    if case[:1] == b'1': log.CDATA_CONTENT_ELEMENTS = ('script', 'template', 'noscript', 'textarea')
    try:
        log.feed(case[1:].decode())
        log.close()
    except AssertionError:
        log.parts.append(b'failed')
    return b''.join(log.parts)
if answer(b'0<!--a--!>b') != b'D9:<!--a--!>D1:b': sys.exit(77)
)";

void expectSameEvents(const std::vector<std::string>& cases) {
    testing::expectSameAsPython(model, cases,
                                [](std::string_view page) { return eventsOf(page.substr(1), page[0] == '1'); });
}

std::vector<std::string> corpus() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(VELLARK_TEST_DATA "/HTML")) {
        paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> pages;
    for (const auto& path : paths) {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        pages.push_back(text.str());
    }
    return pages;
}

// Whatever a construct of the language begins or ends with, and what Python's expressions treat in a way of their own.
constexpr std::string_view tokens[] = {"<",
                                       ">",
                                       "/",
                                       "=",
                                       "\"",
                                       "'",
                                       " ",
                                       "\n",
                                       "a",
                                       "B",
                                       "&",
                                       "<a",
                                       "<p ",
                                       "</",
                                       "</p>",
                                       "<!",
                                       "<!--",
                                       "-->",
                                       "--",
                                       "<?",
                                       "<![",
                                       "<![CDATA[",
                                       "]]>",
                                       "]>",
                                       "<![if ",
                                       "<!DOCTYPE",
                                       "&lt",
                                       "&#6",
                                       ";",
                                       " x='",
                                       " y=\"",
                                       " z=",
                                       "\v",
                                       "<script>",
                                       "</script>",
                                       "</\u017Fcript >",
                                       "</scr\u0131pt>",
                                       "</SCR\u0130PT>",
                                       "<style>",
                                       "</STYLE\n>",
                                       "<Template>",
                                       "</template>",
                                       "\u00A0",
                                       "é=",
                                       "한",
                                       "==",
                                       "/>",
                                       "-",
                                       "]",
                                       std::string_view("\0", 1),
                                       std::string_view("<b\"\0", 4),
                                       "\x1C",
                                       "<br/>",
                                       "</ q",
                                       "\u3000>"};

TEST(PythonHTMLParser, agreesWithPythonOnShortTexts) {
    std::vector<std::string> cases;
    testing::appendAllSequences(cases, tokens, 2);
    constexpr std::string_view few[] = {"<a", " ", "=", "\"", "'", ">", "/", "x", "<"};
    testing::appendAllSequences(cases, few, 5);
    testing::Generator generator(4);
    for (int count = 0; count < 60'000; ++count) {
        cases.push_back(generator.join(tokens, 3 + generator.below(12)));
    }
    for (std::string& text : cases) {
        text.insert(0, generator.chance(2) ? "1" : "0");
    }
    expectSameEvents(cases);
}

TEST(PythonHTMLParser, agreesWithPythonOnMutatedPages) {
    const std::vector<std::string> pages = corpus();
    ASSERT_GE(pages.size(), 12U);
    testing::Generator generator(5);
    std::vector<std::string> cases;
    for (const std::string& page : pages) {
        cases.push_back("0" + page);
        cases.push_back("1" + page);
    }
    for (int count = 0; count < 3'000; ++count) {
        std::string page = generator.pick(pages);
        for (std::size_t changes = 1 + generator.below(8); changes > 0 && !page.empty(); --changes) {
            std::size_t at = generator.below(page.size());
            while (at > 0 && (static_cast<unsigned char>(page[at]) & 0xC0) == 0x80) {
                --at;
            }
            if (generator.chance(4)) {
                page.resize(at);
            } else if (generator.chance(3) && static_cast<unsigned char>(page[at]) < 0x80) {
                page.erase(at, 1);
            } else {
                page.insert(at, generator.pick(tokens));
            }
        }
        cases.push_back("0" + page);
    }
    expectSameEvents(cases);
}

TEST(PythonHTMLParser, stopsAtUnknownSections) {
    PythonHTMLTitle::Parser parser("a<b><![x[c]]><i>");
    EventLog log;
    EXPECT_FALSE(parser.run(log));
    EXPECT_EQ(log.text, "D1:aS1:b");
    EXPECT_EQ(parser.next(), nullptr);
}

TEST(PythonHTMLParser, readsIllFormedTextAsReplacements) {
    EXPECT_EQ(eventsOf("<p a=\xFF>\xE2\x82&amp;", false), "S1:pa1:av3:\uFFFDD4:\uFFFD&");
}

TEST(PythonHTMLParser, lowersLettersOneByOne) {
    EXPECT_EQ(eventsOf("<A\u03A3 \u212A\u0130=1>", false), "S3:a\u03C3a4:ki\u0307v1:1");
}

// Every event tells where it stands; the places follow one another.
TEST(PythonHTMLParser, tellsSources) {
    for (const std::string& page : corpus()) {
        PythonHTMLTitle::Parser parser(page);
        const char* last = parser.text().data();
        while (const Event* event = parser.next()) {
            EXPECT_GE(event->source.data(), last);
            last = event->source.data() + event->source.size();
        }
        EXPECT_LE(last, parser.text().data() + parser.text().size());
    }
}

TEST(PythonHTMLTitle, isTheFirstTitle) {
    struct Row {
        const char* html;
        const char* title;
    };
    const Row rows[] = {
        {"", ""},
        {"<title>A &amp; B</title><title>C</title>", "A & B"},
        {"<TITLE a=1>A<b> B</b></TITLE >", "A B"},
        {"<title> </title><title>C</title>", " "},
        {"<title>A<p>B", "AB"},
        {"<title/>A<title>B</title>", "B"},
        {"</title>A<title>B</title>", "B"},
        {"<title>A<title>B</title>C</title>", "AB"},
        {"<!--<title>A</title>--><script><title>B</title></script><title>C</title>", "C"},
        {"<title>A<![x[B</title>", "A"},
        {"<title>a<1</title>", "a<1"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(PythonHTMLTitle::titleText(row.html), row.title) << row.html;
    }
}

TEST(HTMLResources, areListedInOrder) {
    using References = std::vector<CaptureRules::HTMLResourceReference>;
    const References expected = {
        {"a.css", "link"},  {"a.js", "script"}, {"b.png", "img"},    {"b.png", "img"},   {"p.jpg", "video"},
        {"v.mp4", "video"}, {"f&g", "iframe"},  {"o.swf", "object"}, {"t.vtt", "track"},
    };
    EXPECT_EQ(CaptureRules::htmlResourceReferences(
                  "<link href=' a.css\n'><script src=a.js><img src=x></script><IMG SRC=b.png><img src='b.png'/>"
                  "<video poster=p.jpg src=v.mp4><iframe src='f&amp;g'><object data=o.swf src=no><img src=' '><img src>"
                  "<a href=no><template><img src=no></template><noscript><img src=no></noscript>"
                  "<textarea><img src=no></textarea><track src=t.vtt><![x[<img src=no>"),
              expected);
}

}  // namespace
}  // namespace vellark
