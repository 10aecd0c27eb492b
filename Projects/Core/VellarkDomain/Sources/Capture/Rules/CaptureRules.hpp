#pragma once

// All rules of what is captured: pure functions, which read neither a disk nor a clock.

#include <VellarkDomain/Capture/HTML/HTMLResources.hpp>             // htmlResourceReferences
#include <VellarkDomain/Capture/Rules/CaptureAgentFolders.hpp>      // the agents' own files
#include <VellarkDomain/Capture/Rules/CaptureArtifactRules.hpp>     // artifactType, excludedArtifact
#include <VellarkDomain/Capture/Rules/CaptureCredentialNames.hpp>   // sshKeyName, credentialName
#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>        // eventSeconds
#include <VellarkDomain/Capture/Rules/CaptureHeadings.hpp>          // HeadingScanner, codeMapEntryCount
#include <VellarkDomain/Capture/Rules/CaptureInternalArtifact.hpp>  // internalArtifact
#include <VellarkDomain/Capture/Rules/CapturePolicyRules.hpp>       // what the user's choices let in
#include <VellarkDomain/Capture/Rules/CapturePreviewHelper.hpp>     // previewHelperHTML
#include <VellarkDomain/Capture/Rules/CaptureStructuralText.hpp>    // structuralText
#include <VellarkDomain/Capture/Rules/CaptureTemporaryScope.hpp>    // temporary folders
#include <VellarkDomain/Capture/Rules/CaptureTitle.hpp>             // contentTitle
