#pragma once

#include "authoring/local_text.h"

#include <string>
#include <vector>

namespace tarnel {

/// What a comment can say of the moment at which it stands.
enum class ClaimKind {
    distance, ///< "at 9.5 NM", "bei 9,5 NM", "DME 9.5:" in front: NM, as a DME reads them
    radial,   ///< "on radial 215", "auf QDR 215", "Radial 215," in front: degrees
    bearing,  ///< "on QDM 035", "auf QDM 035": degrees
    time,     ///< "1:05", "after one minute", "nach 30 s": seconds
    heading,  ///< "heading 225", "HDG 225", "Steuerkurs 225": degrees, now or as the next one
};

struct Claim {
    ClaimKind kind = ClaimKind::distance;
    double value = 0;
    std::string words; ///< that say it
};

/// The claims in a comment of either language. Times behind "for" or "für" are what is meant to
/// come, and no claim.
[[nodiscard]] std::vector<Claim> claimsIn(const std::string& comment);

/// The sums in a comment that do not add up, such as "270 - 3 x 7 = 248". A result is right as far
/// as its digits go; one of three digits is a direction and may differ by full turns.
[[nodiscard]] std::vector<std::string> wrongSums(const std::string& comment);

/// The numbers in a comment in ascending order, with a decimal comma as with a point.
[[nodiscard]] std::vector<double> numbersIn(const std::string& comment);

} // namespace tarnel
