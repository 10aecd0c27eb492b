#include <VellarkDomain/Capture/Rules/CapturePreviewHelper.hpp>

#include <gtest/gtest.h>

#include <string>

namespace vellark {
namespace {

std::string figure(const std::string& source, const std::string& attributes = "") {
    return "<figure><img src=\"" + source + "\"" + attributes + "><figcaption>x</figcaption></figure>";
}

std::string link(const std::string& source) {
    return "<a href=\"" + source + "\">x</a>";
}

std::string page(const std::string& body) {
    return "<!DOCTYPE html>\n<html><head><title>t</title></head><body>" + body + "</body></html>";
}

const std::string three = figure("a.png") + figure("b.jpg") + figure("sub/c.WEBP");

struct Row {
    const char* name;
    std::string html;
    std::string path = "/p/preview.html";
};

TEST(CapturePreviewHelper, recognisesGalleries) {
    const Row rows[] = {
        {"three captioned figures", page(three)},
        {"long suffix in capitals", page(three), "preview.XHTML"},
        {"linked pictures", page("<a href=a.png><img src=b.png></a><a href=c.png><img src=d.png></a><a href=e.png>"
                                 "<img src=f.png></a>")},
        {"video with sources", page(three + "<video src=m.mp4></video><video><source src=n.mov></video>")},
        {"self-closing tags", page(three + "<br/><p/><div/>")},
        {"query and escapes", page(figure("a.png?v=1") + figure("%62.png#x") + figure("한.png"))},
        {"word in the file's name", page(three), "/p/my_gallery-2.html"},
        {"plural", page(three), "/p/previews.htm"},
        {"contact sheet as one word", page(three + "<h1>ContactSheet</h1>"), "/p/x.html"},
        {"contact sheet in the title", "<title>Contact\u3000\nsheet</title>" + three, "/p/x.html"},
        {"Korean heading", page("<h1>시안 모음</h1>" + three), "/p/x.html"},
        {"Korean caption", page(three + "<figure><figcaption>미리보기</figcaption></figure>"), "/p/x.html"},
        {"Korean file name", page(three), "/p/모아보기.html"},
        {"text in head and style", page(three + "<style>" + std::string(700, 'x') + "</style>")},
        {"600 visible scalars", page(three + "<h1>" + std::string(594, 'x') + "</h1>")},
        {"160 scalars of prose", page(three + "<div>" + std::string(160, 'x') + "</div>")},
        {"98 scalars in a paragraph", page(three + "<p>" + std::string(98, 'x') + "</p>")},
    };
    for (const Row& row : rows) {
        EXPECT_TRUE(CaptureRules::previewHelperHTML(row.html, row.path)) << row.name;
    }
}

TEST(CapturePreviewHelper, refusesWhatIsUnclear) {
    const Row rows[] = {
        {"no HTML", page(three), "/p/preview.md"},
        {"no suffix", page(three), "/p/preview"},
        {"no telling name", page(three), "/p/report.html"},
        {"part of a word", page(three), "/p/galleryish.html"},
        {"name only in prose", page(three + "<p>gallery</p>"), "/p/x.html"},
        {"U+0000", page(three) + std::string(1, '\0')},
        {"two figures", page(figure("a.png") + figure("b.png"))},
        {"one file three times", page(figure("a.png") + figure("./a.png?v=1") + figure("%61.png"))},
        {"figures without captions", page("<figure><img src=a.png></figure><figure><img src=b.png></figure><figure>"
                                          "<img src=c.png></figure>")},
        {"pictures without links", page("<img src=a.png><img src=b.png><img src=c.png>")},
        {"links without pictures", page(link("a.png") + link("b.png") + link("c.png"))},
        {"script", page(three + "<script></script>")},
        {"form", page(three + "<form></form>")},
        {"unsafe self-closing tag", page(three + "<input/>")},
        {"handler", page(three + "<div OnClick=x></div>")},
        {"handler without value", page(three + "<div onx></div>")},
        {"srcset", page(three + figure("d.png", " srcset"))},
        {"contenteditable", page(three + "<p contenteditable></p>")},
        {"source outside video", page(three + "<source src=n.mov>")},
        {"source for a medium", page(three + "<video><source src=n.mov media=print></video>")},
        {"remote picture", page(three + figure("https://e.com/d.png"))},
        {"remote without scheme", page(three + figure("//e.com/d.png"))},
        {"unreadable host", page(three + figure("//[/d.png"))},
        {"data", page(three + figure("data:image/png;base64,AA"))},
        {"parent folder", page(three + figure("x/../d.png"))},
        {"escaped parent folder", page(three + figure("%2e%2e/d.png"))},
        {"absolute", page(three + figure("/d.png"))},
        {"escaped absolute", page(three + figure("%2Fd.png"))},
        {"backslash", page(three + figure("x\\d.png"))},
        {"other suffix", page(three + link("d.html"))},
        {"no suffix in the path", page(three + figure("d?e.png"))},
        {"empty reference", page(three + figure(""))},
        {"reference without value", page(three + "<img src>")},
        {"last of two references", page(three + "<img src=d.png src=>")},
        {"anchor", page(three + "<a name=x></a>")},
        {"open element", page(three + "<div>")},
        {"crossed elements", page(three + "<b><i></b></i>")},
        {"end of a void element", page(three + "<br></br>")},
        {"end tag at the front", "</p>" + page(three)},
        {"unknown section", page(three) + "<![x["},
        {"601 visible scalars", page(three + "<h1>" + std::string(595, 'x') + "</h1>")},
        {"161 scalars of prose", page(three + "<div>" + std::string(161, 'x') + "</div>")},
        {"prose in two pieces", page(three + "<i>" + std::string(80, 'x') + "</i><b>" + std::string(80, 'x') + "</b>")},
        {"99 scalars in a paragraph", page(three + "<p>" + std::string(99, 'x') + "</p>")},
    };
    for (const Row& row : rows) {
        EXPECT_FALSE(CaptureRules::previewHelperHTML(row.html, row.path)) << row.name;
    }
}

TEST(CapturePreviewHelper, looksAtSmallPagesOnly) {
    const std::string start = page(three) + "<!--";
    const auto padded = [&](std::size_t size, const std::string& filler) {
        std::string html = start;
        while (html.size() + 3 < size) {
            html += filler;
        }
        html.resize(size - 3);
        return html + "-->";
    };
    EXPECT_TRUE(CaptureRules::previewHelperHTML(padded(CaptureRules::maximumPreviewHelperBytes, "x"), "gallery.html"));
    EXPECT_FALSE(
        CaptureRules::previewHelperHTML(padded(CaptureRules::maximumPreviewHelperBytes + 1, "x"), "gallery.html"));
    // Each of these bytes counts as U+FFFD, which takes three.
    EXPECT_TRUE(CaptureRules::previewHelperHTML(padded(170'000, "\xFF"), "gallery.html"));
    EXPECT_FALSE(CaptureRules::previewHelperHTML(padded(200'000, "\xFF"), "gallery.html"));
}

}  // namespace
}  // namespace vellark
