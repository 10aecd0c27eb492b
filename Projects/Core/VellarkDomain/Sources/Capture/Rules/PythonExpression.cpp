#include <VellarkDomain/Capture/Rules/PythonExpression.hpp>

namespace vellark::PythonText {

Regex expression(std::string_view pattern) {
    return Regex(pattern);
}

}  // namespace vellark::PythonText
