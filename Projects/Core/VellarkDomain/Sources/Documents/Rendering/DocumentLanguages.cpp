#include <VellarkDomain/Documents/Rendering/DocumentLanguages.hpp>

#include <algorithm>
#include <array>

namespace vellark::DocumentLanguages {

namespace {

struct Alias {
    std::string_view extension;
    std::string_view language;
};

// In ascending order. A language whose extension is its own name needs no row; some have one, so that the table shows
// every extension that code colouring was asked for by name.
constexpr auto aliases = std::to_array<Alias>({
    {"asm", "x86asm"},
    {"bash", "bash"},
    {"bat", "dos"},
    {"cc", "cpp"},
    {"cjs", "javascript"},
    {"clj", "clojure"},
    {"cljc", "clojure"},
    {"cljs", "clojure"},
    {"cmd", "dos"},
    {"conf", "ini"},
    {"cs", "csharp"},
    {"cxx", "cpp"},
    {"erl", "erlang"},
    {"ex", "elixir"},
    {"exs", "elixir"},
    {"f", "fortran"},
    {"f90", "fortran"},
    {"f95", "fortran"},
    {"fs", "fsharp"},
    {"fsx", "fsharp"},
    {"h", "c"},
    {"hpp", "cpp"},
    {"hrl", "erlang"},
    {"hs", "haskell"},
    {"ino", "arduino"},
    {"jl", "julia"},
    {"js", "javascript"},
    {"jsonc", "json"},
    {"jsx", "javascript"},
    {"kt", "kotlin"},
    {"kts", "kotlin"},
    {"lhs", "haskell"},
    {"lisp", "lisp"},
    {"mdx", "mdx"},
    {"mjs", "javascript"},
    {"ml", "ocaml"},
    {"mli", "ocaml"},
    {"nix", "nix"},
    {"pas", "pascal"},
    {"pde", "processing"},
    {"pl", "perl"},
    {"pm", "perl"},
    {"pp", "pascal"},
    {"properties", "properties"},
    {"proto", "protobuf"},
    {"ps1", "powershell"},
    {"psm1", "powershell"},
    {"py", "python"},
    {"pyw", "python"},
    {"r", "r"},
    {"rb", "ruby"},
    {"rs", "rust"},
    {"s", "x86asm"},
    {"sc", "scala"},
    {"scm", "scheme"},
    {"sh", "bash"},
    {"sql", "sql"},
    {"svelte", "xml"},
    {"svg", "xml"},
    {"tex", "latex"},
    {"tf", "hcl"},
    {"toml", "ini"},
    {"ts", "typescript"},
    {"tsx", "typescript"},
    {"vb", "vbnet"},
    {"vbs", "vbscript"},
    {"vue", "xml"},
    {"xml", "xml"},
    {"yml", "yaml"},
    {"zsh", "bash"},
});

static_assert(std::ranges::is_sorted(aliases, {}, &Alias::extension));

}  // namespace

std::string_view language(std::string_view extension) {
    const auto found = std::ranges::lower_bound(aliases, extension, {}, &Alias::extension);
    return found != aliases.end() && found->extension == extension ? found->language : extension;
}

}  // namespace vellark::DocumentLanguages
