#pragma once

#include <VellarkFoundation/JSON/CompactJSONWriter.hpp>
#include <VellarkFoundation/JSON/JSONDocument.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

// Every value of a file replaced by every other JSON type, one at a time.

namespace vellark::testing {

/// Writes a document again with one value, counted from the root on, replaced.
class ValueReplacement {
public:
    ValueReplacement(JSONNode root, std::size_t number, JSONKind kind, std::string_view literal)
        : number_(number), kind_(kind), literal_(literal) {
        write(root, "");
    }

    /// Whether there is such a value.
    [[nodiscard]] bool isInside() const { return count_ > number_; }

    /// Whether the value was of another type before.
    [[nodiscard]] bool isWrong() const { return isWrong_; }

    [[nodiscard]] const std::string& text() const { return text_; }

    /// Where the value stands, as errors of decoding say it.
    [[nodiscard]] const std::string& path() const { return path_; }

private:
    static std::string quoted(std::string_view text) {
        CompactJSONWriter writer;
        writer.string(text);
        return writer.takeText();
    }

    void write(JSONNode node, const std::string& path) {
        if (count_++ == number_) {
            path_ = path;
            isWrong_ = node.kind() != kind_;
            text_ += literal_;
            return;
        }
        switch (node.kind()) {
            case JSONKind::null:
                text_ += "null";
                break;
            case JSONKind::boolean:
                text_ += *node.boolean() ? "true" : "false";
                break;
            case JSONKind::number:
                text_ += *node.numberLiteral();
                break;
            case JSONKind::string:
                text_ += quoted(*node.string());
                break;
            case JSONKind::array:
                writeElements(node, path);
                break;
            case JSONKind::object:
                writeMembers(node, path);
                break;
        }
    }

    void writeElements(JSONNode array, const std::string& path) {
        std::size_t index = 0;
        text_ += '[';
        for (const JSONNode element : array.elements()) {
            if (index != 0) text_ += ',';
            write(element, path + "[" + std::to_string(index) + "]");
            ++index;
        }
        text_ += ']';
    }

    void writeMembers(JSONNode object, const std::string& path) {
        bool isFirst = true;
        text_ += '{';
        for (const auto& [key, value] : object.members()) {
            if (!isFirst) text_ += ',';
            isFirst = false;
            text_ += quoted(key) + ':';
            write(value, path + (path.empty() ? "" : ".") + std::string(key));
        }
        text_ += '}';
    }

    std::size_t number_;
    JSONKind kind_;
    std::string_view literal_;
    std::string text_;
    std::string path_;
    std::size_t count_ = 0;
    bool isWrong_ = false;
};

/// A value of another type, anywhere in the text, fails with its place, save where `isTolerated(path)` says that the
/// record is read without it. The text must read as a record, and should hold a value under every key.
template <class Record, class Tolerance>
void expectWrongTypesToFail(std::string_view text, Tolerance isTolerated) {
    const auto document = JSONDocument::parse(text);
    ASSERT_TRUE(document && readRecord<Record>(text)) << text;
    constexpr std::pair<JSONKind, std::string_view> replacements[] = {
        {JSONKind::boolean, "true"}, {JSONKind::number, "7"},  {JSONKind::string, "\"?\""},
        {JSONKind::array, "[]"},     {JSONKind::object, "{}"},
    };
    for (const auto& [kind, literal] : replacements) {
        for (std::size_t number = 1;; ++number) {
            const ValueReplacement replaced(document->root(), number, kind, literal);
            if (!replaced.isInside()) break;
            if (!replaced.isWrong()) continue;
            const auto read = readRecord<Record>(std::string_view(replaced.text()));
            EXPECT_EQ(read.has_value(), isTolerated(replaced.path())) << replaced.path() << ": " << literal;
            if (read) continue;
            EXPECT_EQ(read.error().reason, DecodingError::Reason::wrongType) << replaced.path() << ": " << literal;
            EXPECT_EQ(read.error().path, replaced.path()) << literal;
        }
    }
}

template <class Record>
void expectWrongTypesToFail(std::string_view text) {
    expectWrongTypesToFail<Record>(text, [](std::string_view) { return false; });
}

}  // namespace vellark::testing
