#include <VellarkDomain/Documents/Library/LibraryMutationError.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <array>
#include <string_view>

namespace vellark {

namespace {

// In the order of the cases.
constexpr std::array<std::string_view, caseTable<LibraryMutationError>.size()> descriptionKeys = {
    "이 환경에서는 문서함 변경을 지원하지 않습니다.",
    "문서가 수정되었습니다. 최신 버전을 다시 열고 변경 내용을 확인해 주세요.",
    "문서 또는 폴더를 찾을 수 없습니다. 문서함을 새로고침해 주세요.",
    "문서 내용이나 폴더 이름을 확인해 주세요.",
    "문서함 데이터를 읽을 수 없습니다. 원본 데이터를 확인해 주세요.",
    "이 버전의 임시 사본은 정리되었습니다.",
    "원본 파일을 찾을 수 없습니다. 이동하거나 삭제했는지 확인해 주세요.",
    "원본이 변경되어 수집 당시 버전을 표시할 수 없습니다.",
};

}  // namespace

std::string errorDescription(LibraryMutationError error) {
    return L10n::text(descriptionKeys[static_cast<std::size_t>(error)]);
}

}  // namespace vellark
