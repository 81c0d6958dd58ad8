#pragma once

#include "look/look.h"

/// The colours of the plots of a student's progress.
namespace tarnel::progress_look {

inline constexpr QColor curve = look::rgb(0x00809C);
inline constexpr QColor quietCurve = look::rgb(0x5F8CA6);
inline constexpr QColor allExercises = look::rgb(0x98A2AC);
inline constexpr QColor askedBar = look::rgb(0xDCE3E8);

} // namespace tarnel::progress_look
