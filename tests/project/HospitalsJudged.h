// The twelve hospitals of the samples, judged twice: directly (session 0) and by trade-offs (session 1).
#pragma once

#include "project/ProjectFile.h"

namespace Tarnwise {

inline const char* const kHospitalsJudged = R"({
  "tarnwise": 1,
  "name": "Hospitals",
  "source": {"file": "hospitals.csv", "sha256": "6f2c1b7e", "imported": "2024-05-17T09:30:00Z", "delimiter": ",", "decimal": "."},
  "units": ["A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L"],
  "columns": [
    {"name": "Doctors", "role": "input", "unit": "posts", "worst": 55, "best": 19,
     "curve": [[15, 0], [24, 0.18], [33, 0.37], [42, 0.57], [51, 0.78], [60, 1]],
     "values": [20, 19, 25, 27, 22, 55, 33, 31, 30, 50, 53, 38]},
    {"name": "Nurses", "role": "input", "worst": 306, "best": 131, "curve": [[120, 0], [320, 1]],
     "values": [151, 131, 160, 168, 158, 255, 235, 206, 244, 268, 306, 284]},
    {"name": "Outpatients", "role": "output", "worst": 94, "best": 260,
     "curve": [[90, 0], [126, 0.25], [162, 0.48], [198, 0.68], [234, 0.85], [270, 1]],
     "values": [100, 150, 160, 180, 94, 230, 220, 152, 190, 250, 260, 250]},
    {"name": "Inpatients", "role": "output", "worst": 50, "best": 147,
     "curve": [[40, 0], [67.5, 0.29], [95, 0.55], [122.5, 0.79], [150, 1]],
     "values": [90, 50, 55, 72, 66, 90, 88, 80, 100, 100, 147, 120]},
    {"name": "Beds", "role": "unused", "values": [210, null, 180, 90, 91, 92, 93, 94, 95, 96, 97, 98]}
  ],
  "sessions": [
    {"made": "2024-05-18T10:00:00Z", "by": "Dr. Müller", "note": "First try", "approach": "DEA_DIRECT", "basis": "range",
     "benefitReference": "Outpatients", "costReference": "Nurses", "cross": {"ratio": 1.15},
     "attributes": [
       {"name": "Doctors", "low": 3, "ratio": 3.545, "high": 4.09},
       {"name": "Inpatients", "low": 2, "ratio": 2.25, "high": 2.5}]},
    {"approach": "DEA_TRADEOFFS", "basis": "scale",
     "benefitReference": "Outpatients", "costReference": "Nurses", "cross": {"ratio": 1.0983},
     "attributes": [
       {"name": "Doctors", "low": 1.3857, "ratio": 1.7406, "high": 2.0955},
       {"name": "Inpatients", "low": 1.2015, "ratio": 1.2015, "high": 1.2015}]}
  ]
}
)";

inline Project HospitalsJudged() { return ProjectFromText(kHospitalsJudged); }

}  // namespace Tarnwise
