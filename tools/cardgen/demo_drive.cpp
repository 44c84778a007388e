#include "cardgen/demo_drive.h"

#include <algorithm>
#include <cmath>

namespace tarvik::cardgen {

namespace {

struct Point {
    double lat, lng;
};

// From Gwanghwamun down Sejong-daero past City Hall to Seoul Station, then
// along Toegye-ro to Myeongdong and back north along Namdaemun-ro.
const Point kRoute[] = {
    {37.575930, 126.976820}, {37.571650, 126.976940}, {37.568210, 126.977380}, {37.566300, 126.977900},
    {37.563330, 126.975440}, {37.560420, 126.975170}, {37.556410, 126.972350}, {37.557650, 126.976420},
    {37.559150, 126.980780}, {37.560630, 126.984860}, {37.563560, 126.982830}, {37.566190, 126.981470},
    {37.569440, 126.980130}, {37.572520, 126.978900}, {37.575930, 126.976820},
};
constexpr int kPoints = sizeof kRoute / sizeof kRoute[0];
constexpr double kPi = 3.14159265358979323846;

double metres(const Point& a, const Point& b) {
    const double dy = (b.lat - a.lat) * 111320.0;
    const double dx = (b.lng - a.lng) * 111320.0 * std::cos(a.lat * kPi / 180.0);
    return std::hypot(dx, dy);
}

// One minute of driving, repeated: pull away, cruise (over a bump), brake
// hard, wait at the lights, then a slow stretch.
constexpr double kPeriod = 60.0;

double speedMs(double t) {
    const double u = std::fmod(t, kPeriod);
    if (u < 15) return u * 1.0;                  // 0 -> 54 km/h
    if (u < 30) return 15.0;                     // cruise
    if (u < 33) return 15.0 - (u - 30) * 5.0;    // hard braking, ~0.5 g
    if (u < 40) return 0.0;                      // stopped
    if (u < 50) return (u - 40) * 1.0;           // 0 -> 36 km/h
    return 10.0 - (u - 50) * 1.0;                // gentle stop
}

double accelMs2(double t) {
    const double u = std::fmod(t, kPeriod);
    if (u < 15) return 1.0;
    if (u < 30) return 0.0;
    if (u < 33) return -5.0;
    if (u < 40) return 0.0;
    if (u < 50) return 1.0;
    return -1.0;
}

// Distance covered after t seconds (closed form of the speed profile).
double distance(double t) {
    auto within = [](double u) {
        double d = 0;
        d += std::min(u, 15.0) * std::min(u, 15.0) * 0.5;
        if (u > 15) d += (std::min(u, 30.0) - 15) * 15.0;
        if (u > 30) {
            const double s = std::min(u, 33.0) - 30;
            d += 15.0 * s - 2.5 * s * s;
        }
        if (u > 40) d += (std::min(u, 50.0) - 40) * (std::min(u, 50.0) - 40) * 0.5;
        if (u > 50) {
            const double s = std::min(u, 60.0) - 50;
            d += 10.0 * s - 0.5 * s * s;
        }
        return d;
    };
    const double laps = std::floor(t / kPeriod);
    return laps * within(kPeriod) + within(t - laps * kPeriod);
}

Point along(double d) {
    double total = 0;
    for (int i = 0; i + 1 < kPoints; ++i) total += metres(kRoute[i], kRoute[i + 1]);
    d = std::fmod(d, total);
    for (int i = 0; i + 1 < kPoints; ++i) {
        const double seg = metres(kRoute[i], kRoute[i + 1]);
        if (d <= seg) {
            const double f = seg > 0 ? d / seg : 0;
            return {kRoute[i].lat + (kRoute[i + 1].lat - kRoute[i].lat) * f,
                    kRoute[i].lng + (kRoute[i + 1].lng - kRoute[i].lng) * f};
        }
        d -= seg;
    }
    return kRoute[kPoints - 1];
}

}  // namespace

DriveG driveG(double t) {
    DriveG g;
    g.x = static_cast<int>(std::lround(accelMs2(t) / 9.81 * 128.0 + 3.0 * std::sin(t * 7.1)));
    g.y = static_cast<int>(std::lround(10.0 * std::sin(t * 0.35) + 2.0 * std::sin(t * 13.3)));
    double z = 128.0 + 2.0 * std::sin(t * 17.9);
    const double u = std::fmod(t, kPeriod);
    if (u >= 22.0 && u < 22.2) z += 70.0;  // the bump: a jolt up ...
    if (u >= 22.2 && u < 22.4) z -= 50.0;  // ... and the rebound
    g.z = static_cast<int>(std::lround(z));
    return g;
}

DriveFix driveFix(double t) {
    DriveFix f;
    // The tunnel: seven seconds of every two minutes without a fix.
    const double u = std::fmod(t, 120.0);
    f.valid = !(u >= 44.0 && u < 51.0);
    if (!f.valid) return f;
    const Point p = along(distance(t));
    f.lat = p.lat;
    f.lng = p.lng;
    f.kmh = speedMs(t) * 3.6;
    return f;
}

std::vector<TelemetrySecond> driveSeconds(int offsetSeconds, int seconds, int readingsPerSecond,
                                          DriveG (*quantize)(DriveG)) {
    std::vector<TelemetrySecond> out;
    for (int s = 0; s < seconds; ++s) {
        TelemetrySecond sec;
        sec.second = offsetSeconds + s;
        for (int r = 0; r < readingsPerSecond; ++r) {
            DriveG g = driveG(sec.second + static_cast<double>(r) / readingsPerSecond);
            sec.readings.push_back(quantize ? quantize(g) : g);
        }
        sec.fix = driveFix(sec.second + 1.0);
        // Speeds are whole km/h on every layout.
        sec.fix.kmh = std::round(sec.fix.kmh);
        out.push_back(sec);
    }
    return out;
}

}  // namespace tarvik::cardgen
