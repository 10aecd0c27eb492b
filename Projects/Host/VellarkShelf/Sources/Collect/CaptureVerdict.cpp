#include <VellarkShelf/Collect/CaptureVerdict.hpp>

namespace vellark {

std::string_view explanation(CaptureVerdict verdict) {
    switch (verdict) {
        case CaptureVerdict::captured:
            return "goes onto the shelf";
        case CaptureVerdict::missing:
            return "there is no such file";
        case CaptureVerdict::notAFile:
            return "it is a folder, a pipe or a device";
        case CaptureVerdict::unreadable:
            return "the system refuses to read it";
        case CaptureVerdict::tooLarge:
            return "it is larger than a gigabyte";
        case CaptureVerdict::excludedPath:
            return "keys, passwords, binaries, temporary files and agents' own data are never taken";
        case CaptureVerdict::linkOutside:
            return "a symbolic link leads out of the project";
        case CaptureVerdict::hiddenFolder:
            return "it lies in a hidden folder that is not for documents";
        case CaptureVerdict::projectNotSelected:
            return "its project is not among those that the settings select";
        case CaptureVerdict::projectExcluded:
            return "the settings leave its project out";
        case CaptureVerdict::typeNotChosen:
            return "the settings do not take files of this type, or not of this age";
        case CaptureVerdict::subagent:
            return "the settings do not take what subagents make";
        case CaptureVerdict::responsesNotChosen:
            return "the settings do not take assistants' answers";
        case CaptureVerdict::previewHelper:
            return "the page only lays out pictures for a look";
        case CaptureVerdict::internalNote:
            return "an agent wrote it for itself";
        case CaptureVerdict::removedByUser:
            return "the user removed this document from the shelf";
        case CaptureVerdict::notStored:
            return "the disk refused its copy";
    }
    return "";
}

}  // namespace vellark
