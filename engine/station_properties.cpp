#include "engine/station_properties.h"

namespace tarnel {

StationSlots::StationSlots(PropertyBag& bag)
    : stationSlots{
          StationProperties(bag, {"c_VOR1name", "c_VOR1Freq", "c_VOR1EN", "c_DME1EN",
                                  "c_NAV1Radial", "c_NAV1DME", "c_NAV1DMEGS", "VOR1", "111.11"}),
          StationProperties(bag, {"c_VOR2name", "c_VOR2Freq", "c_VOR2EN", "c_DME2EN",
                                  "c_NAV2Radial", "c_NAV2DME", "c_NAV2DMEGS", "VOR2", "222.22"}),
          StationProperties(bag, {"c_NDB1name", "c_NDB1Freq", "c_NDB1EN", "", "c_NAV3Radial", "",
                                  "c_NAV3DMEGS", "NDB1", "111"}),
          StationProperties(bag, {"c_NDB2name", "c_NDB2Freq", "c_NDB2EN", "", "c_NAV4Radial", "",
                                  "c_NAV4DMEGS", "NDB2", "222"}),
          StationProperties(bag, {"c_LOCname", "c_LOC1Freq", "c_LOC1EN", "c_DME5EN", "c_NAV5Radial",
                                  "c_NAV5DME", "c_NAV5DMEGS", "LOC1", "333.33"})} {}

} // namespace tarnel
