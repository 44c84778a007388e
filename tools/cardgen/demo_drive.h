#pragma once
// A believable drive through central Seoul for the demo card and the tests:
// real street coordinates, speed that rises and falls, a hard braking, a bump
// in the road and a stretch in a tunnel without a GPS fix. Deterministic, so
// a clip's telemetry can be compared against what it was written from.

#include <vector>

namespace tarvik::cardgen {

// G in 1/128 g (x: along the car, y: across, z: up; 128 is 1 g).
struct DriveG {
    int x = 0, y = 0, z = 128;
};

struct DriveFix {
    bool valid = false;  // false in the tunnel: the receiver reports status "V"
    double lat = 0, lng = 0;
    double kmh = 0;
};

// t: seconds since the start of the drive. The drive loops after its route.
DriveG driveG(double t);
DriveFix driveFix(double t);

// One second of telemetry as a camera would hold it before writing.
struct TelemetrySecond {
    int second = 0;                // since the start of the drive
    std::vector<DriveG> readings;  // the camera's own rate
    DriveFix fix;                  // the position record closing the second
};

// `seconds` seconds of the drive from `offsetSeconds` on, `readingsPerSecond`
// G readings a second, each passed through `quantize` (what the layout can hold).
std::vector<TelemetrySecond> driveSeconds(int offsetSeconds, int seconds, int readingsPerSecond,
                                          DriveG (*quantize)(DriveG) = nullptr);

}  // namespace tarvik::cardgen
