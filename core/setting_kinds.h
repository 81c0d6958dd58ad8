#pragma once

/// How a recorded setting of the panel is coupled. `withLock`: a replay restores it only behind the
/// lock of the instruments; without that the present one is written over the sample's.
namespace tarnel::setting {

struct Course { ///< degrees on a position's dial, recorded from north
    static constexpr bool withLock = true;
};
struct Kind { ///< of a position's instrument
    static constexpr bool withLock = true;
};
struct Receiver { ///< that drives a position
    static constexpr bool withLock = true;
};
struct AdfCard { ///< fixed or slaved
    static constexpr bool withLock = true;
};
struct Frequency { ///< place in a receiver's list
    static constexpr bool withLock = true;
};
struct Heading { ///< that the autopilot holds, degrees
    static constexpr bool withLock = false;
};
struct Demand { ///< speed or height of the autopilot, knots or feet
    static constexpr bool withLock = false;
};
struct Bug { ///< the heading bug, degrees
    static constexpr bool withLock = false;
};

} // namespace tarnel::setting
