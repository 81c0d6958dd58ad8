#include "window/chart/chart_frame.h"

#include "look/look.h"

namespace tarnel {

ChartFrame::ChartFrame(double paperSide, double paperTwips, double devicePixelRatio,
                       ChartMedium paintedFor)
    : PaperFrame(paperSide, paperTwips, devicePixelRatio),
      medium(paintedFor),
      paper(toQt(sheet())),
      nameFont(look::font(look::captionType * textScale, QFont::Bold)),
      frequencyFont(look::font(look::unitType * textScale)),
      lineFont(look::font(look::unitType * textScale, QFont::Bold)),
      vectorFont(look::font(look::scaleType * textScale, QFont::Bold)),
      smallFont(look::font(look::scaleType * textScale)) {}

} // namespace tarnel
