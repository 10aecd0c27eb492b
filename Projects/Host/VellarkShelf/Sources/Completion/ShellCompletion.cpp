#include <VellarkShelf/Completion/ShellCompletion.hpp>

namespace vellark::ShellCompletion {

namespace {

using Commands = std::vector<Command>;

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

std::string names(const Commands& commands) {
    std::vector<std::string> words;
    for (const Command& command : commands) {
        words.push_back(command.name);
    }
    return joined(words);
}

// Descriptions hold neither quotes nor brackets, so none is escaped.
std::string bash(const Commands& commands) {
    std::string text =
        "_vellark() {\n"
        "    local word=${COMP_WORDS[COMP_CWORD]} command= index\n"
        "    for ((index = 1; index < COMP_CWORD; index++)); do\n"
        "        case ${COMP_WORDS[index]} in -*) ;; *) command=${COMP_WORDS[index]}; break ;; esac\n"
        "    done\n"
        "    case $command in\n";
    for (const Command& command : commands) {
        text += "        " + command.name + ") COMPREPLY=($(compgen -W \"" + joined(command.options) +
                (command.values.empty() ? "" : " " + joined(command.values)) + "\" -- \"$word\")) ;;\n";
    }
    text += "        *) COMPREPLY=($(compgen -W \"" + names(commands) +
            " --data --help\" -- \"$word\")) ;;\n"
            "    esac\n"
            "    [ ${#COMPREPLY[@]} -gt 0 ] || COMPREPLY=($(compgen -f -- \"$word\"))\n"
            "}\n"
            "complete -o filenames -F _vellark vellark\n";
    return text;
}

std::string zsh(const Commands& commands) {
    std::string text =
        "#compdef vellark\n"
        "_vellark() {\n"
        "    local -a commands\n"
        "    commands=(\n";
    for (const Command& command : commands) {
        text += "        '" + command.name + ":" + command.description + "'\n";
    }
    text +=
        "    )\n"
        "    if ((CURRENT == 2)); then _describe command commands; return; fi\n"
        "    case $words[2] in\n";
    for (const Command& command : commands) {
        text += "        " + command.name + ") compadd -- " + joined(command.options) +
                (command.values.empty() ? "; _files" : " " + joined(command.values)) + " ;;\n";
    }
    text +=
        "    esac\n"
        "}\n"
        "compdef _vellark vellark\n";
    return text;
}

std::string fish(const Commands& commands) {
    std::string text;
    for (const Command& command : commands) {
        text += "complete -c vellark -n __fish_use_subcommand -f -a " + command.name + " -d '" + command.description +
                "'\n";
        const std::string condition = " -n '__fish_seen_subcommand_from " + command.name + "'";
        for (const std::string& option : command.options) {
            if (option.starts_with("--")) text += "complete -c vellark" + condition + " -l " + option.substr(2) + "\n";
        }
        if (!command.values.empty()) {
            text += "complete -c vellark" + condition + " -f -a '" + joined(command.values) + "'\n";
        }
    }
    return text;
}

}  // namespace

std::optional<std::string> script(std::string_view shell, const std::vector<Command>& commands) {
    if (shell == "bash") return bash(commands);
    if (shell == "zsh") return zsh(commands);
    if (shell == "fish") return fish(commands);
    return std::nullopt;
}

}  // namespace vellark::ShellCompletion
