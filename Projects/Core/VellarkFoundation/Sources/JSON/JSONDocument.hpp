#pragma once

#include <VellarkFoundation/Result.hpp>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

class JSONValue;

enum class JSONKind : std::uint8_t { null, boolean, number, string, array, object };

/// Where a text stopped being JSON.
struct JSONError {
    std::size_t byteOffset = 0;

    bool operator==(const JSONError&) const = default;
};

/// A member of an object that the reader keeps. With `members`, an object under the key keeps just those of its own;
/// without, and for a value that is no object, the value is kept whole.
struct JSONSelection {
    std::string_view key;
    std::span<const JSONSelection> members = {};
};

/// One place in a parsed document. A view, valid as long as the document and the text that it was parsed from.
class JSONNode {
public:
    class Elements;
    class Members;

    [[nodiscard]] JSONKind kind() const { return token_->kind; }

    // Each gives nothing when the value is of another kind.
    [[nodiscard]] std::optional<bool> boolean() const;
    [[nodiscard]] std::optional<std::string_view> string() const;
    [[nodiscard]] std::optional<std::string_view> numberLiteral() const;

    /// Number of elements or members; 0 for any other kind.
    [[nodiscard]] std::size_t count() const;

    /// The elements of an array in their order; none for any other kind.
    [[nodiscard]] Elements elements() const;

    /// The members of an object as they stand in the text, equal keys included; none for any other kind.
    [[nodiscard]] Members members() const;

    /// A copy that stands by itself; of members with equal keys the last counts.
    [[nodiscard]] JSONValue value() const;

private:
    friend class JSONCursor;
    friend class JSONDocument;
    friend class JSONDocumentBuilder;

    struct Token {
        union {
            const char* text = nullptr;  // of strings, numbers and keys
            std::uint64_t count;         // of elements or members; 0 or 1 for truth values
        };
        std::uint32_t size = 0;  // bytes of the text; for containers: tokens up to the next value
        JSONKind kind = JSONKind::null;
    };

    explicit JSONNode(const Token* token) : token_(token) {}

    [[nodiscard]] bool isContainer() const { return kind() == JSONKind::array || kind() == JSONKind::object; }
    [[nodiscard]] const Token* next() const { return token_ + (isContainer() ? token_->size : 1); }
    [[nodiscard]] std::string_view text() const { return {token_->text, token_->size}; }

    const Token* token_;
};

class JSONNode::Elements {
public:
    class Iterator {
    public:
        explicit Iterator(const Token* token) : token_(token) {}
        JSONNode operator*() const { return JSONNode(token_); }
        Iterator& operator++() {
            token_ = JSONNode(token_).next();
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        const Token* token_;
    };

    Elements(const Token* first, const Token* last) : first_(first), last_(last) {}
    [[nodiscard]] Iterator begin() const { return Iterator(first_); }
    [[nodiscard]] Iterator end() const { return Iterator(last_); }

private:
    const Token* first_;
    const Token* last_;
};

class JSONNode::Members {
public:
    struct Member {
        std::string_view key;
        JSONNode value;
    };

    class Iterator {
    public:
        explicit Iterator(const Token* key) : key_(key) {}
        Member operator*() const { return {JSONNode(key_).text(), JSONNode(key_ + 1)}; }
        Iterator& operator++() {
            key_ = JSONNode(key_ + 1).next();
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        const Token* key_;
    };

    Members(const Token* first, const Token* last) : first_(first), last_(last) {}
    [[nodiscard]] Iterator begin() const { return Iterator(first_); }
    [[nodiscard]] Iterator end() const { return Iterator(last_); }

private:
    const Token* first_;
    const Token* last_;
};

/// A JSON text, checked whole and laid out flat: 16 bytes for each value and key, with texts left in the source unless
/// they hold escapes.
///
///     JSONDocument::parse(R"({"a": 1, "a": 2})")       both members stand; readers let the last count
///     JSONDocument::parse("\xEF\xBB\xBF{}")            one byte order mark is passed over
///     JSONDocument::parse("1")                         an error, unless `fragments` is set
///     JSONDocument::parse("{} {}"), ("[1,]"), ("[NaN]") errors, as are comments, raw control characters in strings,
///                                                      ill-formed UTF-8 and escapes of half a surrogate pair
///
/// Numbers keep their digits; one with a fraction or an exponent that no finite double is near to is an error. Time and
/// memory are linear in the text, which may have up to 4 GiB.
class JSONDocument {
public:
    /// Containers that may be open at once. Values are walked recursively, so this also bounds the stack.
    static constexpr std::size_t maximumDepth = 512;

    struct Options {
        /// Also accept a string, number, truth value or null at the top. Otherwise there must be an object or an array.
        bool fragments = false;

        /// When not empty: the members that a top-level object keeps. All others are checked like the rest, then
        /// dropped, so that a text of megabytes costs little memory when few of its members matter.
        std::span<const JSONSelection> keep = {};
    };

    /// The text must outlive the document.
    [[nodiscard]] static Result<JSONDocument, JSONError> parse(std::string_view text, const Options& options);
    [[nodiscard]] static Result<JSONDocument, JSONError> parse(std::string_view text) { return parse(text, Options()); }

    [[nodiscard]] JSONNode root() const { return JSONNode(tokens_.data()); }

private:
    friend class JSONDocumentBuilder;

    std::vector<JSONNode::Token> tokens_;
    std::deque<std::string> decoded_;  // texts that held escapes, at addresses that stay
};

}  // namespace vellark
