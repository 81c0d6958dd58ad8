#include "exercises/panel_widgets.h"

namespace tarnel {

namespace {

/// HSI and standard VOR position, orientation.
const PanelWidgets frame1{.frame = "Frame1",
                          .next = "Command1",
                          .solution = "Command2",
                          .fly = {},
                          .cancel = "Command3",
                          .random = "Check1",
                          .mistakes = "Mistakes1",
                          .statistic = "Label1",
                          .statisticBox = {},
                          .task = {},
                          .notice = "StudyNotice1",
                          .known = {},
                          .rule = {},
                          .flyCode = 0,
                          .rows = {{"Text1", "Text11", {}, "Combo1", {}},
                                   {"Text2", "Text12", {}, "Combo2", {}},
                                   {"Text3", "Text13", {}, "Combo3", {}}}};

/// HSI and DG holding, DME arc.
const PanelWidgets frame2{
    .frame = "Frame2",
    .next = "Command28",
    .solution = "Command27",
    .fly = "Command26",
    .cancel = "Command4",
    .random = "Check2",
    .mistakes = "Mistakes2",
    .statistic = "Label7",
    .statisticBox = "Frame6",
    .task = "Label2",
    .notice = "StudyNotice2",
    .known = {},
    .rule = {},
    .flyCode = 2,
    .rows = {
        {"Label3", "Label8", {"Option11", "Option12", "Option13"}, {}, {}},
        {"Label6", "Label9", {"Option1", "Option2", "Option3", "Option4", "Option5"}, {}, {}},
        {"Label4", "Label10", {"Option6", "Option7", "Option8", "Option9", "Option10"}, {}, {}},
        {"Label5", "Label11", {"Option14", "Option15", "Option16"}, {}, {}}}};

/// ADF position.
const PanelWidgets frame11{
    .frame = "Frame11",
    .next = "Command6",
    .solution = "Command7",
    .fly = {},
    .cancel = "Command5",
    .random = "Check3",
    .mistakes = "Mistakes11",
    .statistic = "Label12",
    .statisticBox = "Frame12",
    .task = {},
    .notice = "StudyNotice11",
    .known = {},
    .rule = {},
    .flyCode = 0,
    .rows = {{"Label20", "Label14", {"Option22", "Option21", "Option20", "Option23"}, {}, {}},
             {"Label17", "Label22", {"Option28", "Option34", "Option33"}, {}, {}},
             {"Label19", "Label16", {"Option32", "Option31", "Option30", "Option29"}, {}, {}},
             {"Label18", "Label13", {"Option19", "Option17", "Option18"}, {}, {}},
             {"Label21", "Label15", {"Option27", "Option26", "Option25", "Option24"}, {}, {}}}};

/// QDM and QDR intercept.
const PanelWidgets frame20{
    .frame = "Frame20",
    .next = "Command9",
    .solution = "Command10",
    .fly = "Command15",
    .cancel = "Command8",
    .random = "Check4",
    .mistakes = "Mistakes20",
    .statistic = "Label23",
    .statisticBox = "Frame21",
    .task = "Label32",
    .notice = "StudyNotice20",
    .known = {},
    .rule = {},
    .flyCode = 3,
    .rows = {{"Label31", "Label27", {"Option50", "Option49", "Option48", "Option46"}, {}, {}},
             {"Label28", "Label25", {"Option40", "Option39", "Option38"}, {}, {}},
             {"Label30", "Label26", {"Option45", "Option44", "Option43"}, {}, {}},
             {"Label29", "Label24", {"Option37", "Option36"}, {}, {}}}};

/// Wind.
const PanelWidgets frame29{
    .frame = "Frame29",
    .next = "Command12",
    .solution = "Command11",
    .fly = "Command14",
    .cancel = "Command13",
    .random = "Check5",
    .mistakes = "Mistakes29",
    .statistic = "Label42",
    .statisticBox = "Frame37",
    .task = "Label33",
    .notice = "StudyNotice29",
    .known = "WindKnown",
    .rule = "WindRule",
    .flyCode = 4,
    .rows = {{"Label38",
              "Label34",
              {"Option47", "Option42", "Option35"},
              {},
              {{"Text4", "Label43", Text::unitKnots}}},
             {"Label41",
              "Label36",
              {"Option54", "Option55", "Option56"},
              {},
              {{"Text5", "Label44", Text::unitKnots}}},
             {"Label39",
              "Label35",
              {"Option52", "Option53", "Option41"},
              {},
              {{"Text6", "Label45", Text::unitDegreeSign}}},
             {"Label40",
              "Label37",
              {"Option58"},
              {},
              {{"Text7", "Label46", Text::unitMinutes}, {"Text8", "Label47", Text::unitSeconds}}}}};

} // namespace

const std::array<PanelWidgets, panelCount>& panelWidgets() {
    static const std::array<PanelWidgets, panelCount> panels = {frame1, frame2, frame11, frame20,
                                                                frame29};
    return panels;
}

} // namespace tarnel
