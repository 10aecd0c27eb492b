#pragma once

#include <VellarkDomain/Settings/LenientField.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>

namespace vellark {

/// What an icon slot of a document's tile shows.
enum class DocumentIconSlotContent { document, ai, tool, hidden };

template <>
inline constexpr auto caseTable<DocumentIconSlotContent> = std::to_array<CaseName<DocumentIconSlotContent>>({
    {DocumentIconSlotContent::document, "document"},
    {DocumentIconSlotContent::ai, "ai"},
    {DocumentIconSlotContent::tool, "tool"},
    {DocumentIconSlotContent::hidden, "hidden"},
});

enum class DocumentIconSlot { main, trailing, leading };

template <>
inline constexpr auto caseTable<DocumentIconSlot> = std::to_array<CaseName<DocumentIconSlot>>({
    {DocumentIconSlot::main, "main"},
    {DocumentIconSlot::trailing, "trailing"},
    {DocumentIconSlot::leading, "leading"},
});

/// The arrangement of a tile's three icon slots.
struct DocumentIconSlots {
    DocumentIconSlotContent main = DocumentIconSlotContent::document;
    DocumentIconSlotContent trailing = DocumentIconSlotContent::ai;
    DocumentIconSlotContent leading = DocumentIconSlotContent::tool;

    [[nodiscard]] DocumentIconSlotContent& operator[](DocumentIconSlot slot) {
        switch (slot) {
            case DocumentIconSlot::main:
                return main;
            case DocumentIconSlot::trailing:
                return trailing;
            case DocumentIconSlot::leading:
                break;
        }
        return leading;
    }
    [[nodiscard]] DocumentIconSlotContent operator[](DocumentIconSlot slot) const {
        return DocumentIconSlots(*this)[slot];
    }

    /// Shows the content in the slot. The first slot that showed it before gets what this one showed, so that no two
    /// show the same; only `hidden` may stand in several.
    void choose(DocumentIconSlotContent content, DocumentIconSlot slot) {
        const DocumentIconSlotContent replaced = (*this)[slot];
        if (content != DocumentIconSlotContent::hidden) {
            for (const DocumentIconSlot other : allCases<DocumentIconSlot>()) {
                if ((*this)[other] != content) continue;
                (*this)[other] = replaced;
                break;
            }
        }
        (*this)[slot] = content;
    }

    bool operator==(const DocumentIconSlots&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentIconSlots& slots) {
    lenientCase(fields, "main", slots.main, DocumentIconSlotContent::document);
    lenientCase(fields, "trailing", slots.trailing, DocumentIconSlotContent::ai);
    lenientCase(fields, "leading", slots.leading, DocumentIconSlotContent::tool);
}

}  // namespace vellark
