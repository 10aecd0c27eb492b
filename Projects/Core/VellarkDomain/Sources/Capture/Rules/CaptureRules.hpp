#pragma once

/// The decisions about one file or event: whether it belongs on the shelf, and as what. All are functions of what they
/// are given; none reads a file or a clock.

#include <VellarkDomain/Capture/HTML/HTMLResources.hpp>
#include <VellarkDomain/Capture/Rules/CaptureArtifactRules.hpp>
#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>
#include <VellarkDomain/Capture/Rules/CaptureHeadings.hpp>
#include <VellarkDomain/Capture/Rules/CaptureInternalArtifact.hpp>
#include <VellarkDomain/Capture/Rules/CapturePolicyRules.hpp>
#include <VellarkDomain/Capture/Rules/CapturePreviewHelper.hpp>
#include <VellarkDomain/Capture/Rules/CaptureStructuralText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTemporaryScope.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTitle.hpp>
