// A small project with one of everything, as its file holds it.
#pragma once

#include "project/ProjectFile.h"

namespace Tarnwise {

inline const char* const kHospitals = R"({
  "tarnwise": 1,
  "name": "Hospitals",
  "source": {"file": "hospitals.csv", "sha256": "ab12", "imported": "2024-05-17T09:30:00Z", "delimiter": ";", "decimal": ",", "encoding": "UTF-8"},
  "units": [
    "Hospital A",
    "Hospital B",
    "Hospital C"
  ],
  "columns": [
    {"name": "Doctors", "role": "input", "unit": "posts", "worst": 60, "best": 15, "curve": [[15, 0], [37.5, 0.46], [60, 1]], "values": [20, 19.25, null]},
    {"name": "Nurses", "role": "input", "worst": 320, "best": 120, "values": [151, 131, 160]},
    {"name": "Outpatients", "role": "output", "description": "In hundreds", "worst": 80, "best": 280, "values": [100, 150, 160]},
    {"name": "Inpatients", "role": "output", "worst": 40, "best": 150, "values": [90, 50, 55]},
    {"name": "Beds", "role": "unused", "values": [210, null, -3.17]}
  ],
  "sessions": [
    {
      "made": "2024-05-18",
      "by": "Dr. Müller",
      "note": "First try",
      "approach": "DEA_DIRECT",
      "basis": "range",
      "benefitReference": "Outpatients",
      "costReference": "Nurses",
      "cross": {"ratio": 1.15, "judged": true},
      "attributes": [
        {"name": "Doctors", "low": 3, "ratio": 3.545, "high": 4.09, "judged": true, "worst": 60, "best": 15, "curve": [[15, 0], [60, 1]]},
        {"name": "Nurses", "judged": true, "worst": 320, "best": 120},
        {"name": "Inpatients", "low": 2, "high": 0, "judged": true}
      ],
      "points": {"AX":[1.5,0],"AY":[0,2.25]}
    },
    {
      "basis": "scale",
      "benefitReference": "Inpatients",
      "costReference": "Doctors",
      "attributes": []
    }
  ],
  "use": {"session": 0, "form": "ratio", "returns": "crs", "orientation": "in", "seed": 1}
}
)";

inline Project Hospitals() { return ProjectFromText(kHospitals); }

}  // namespace Tarnwise
