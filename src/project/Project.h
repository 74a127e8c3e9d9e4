// An analyst's project: units, columns of their data, sessions of judgments, and what was asked for last. Plain
// records; the file they stand in is ProjectFile.h, what has to hold among them ProjectChecks.h. Sessions name columns,
// and copy the scales that were judged on, so that a later change of a column does not reinterpret them.
#pragma once

#include <tarnwise/Scalars.h>

#include <optional>
#include <vector>

namespace Tarnwise {

// A key that this program does not know, with its value as JSON on one line. It is kept, and written back.
struct OtherKey {
  String Name;
  String Value;
  friend bool operator==(const OtherKey&, const OtherKey&) = default;
};
using OtherKeys = std::vector<OtherKey>;

enum class Role { Input, Output, Unused };

struct ValuePoint {
  double Score = 0.0;
  double Value = 0.0;
  friend bool operator==(const ValuePoint&, const ValuePoint&) = default;
};

// The performance range and the value curve over the scores: 2 to 11 points of ascending score, or none for the
// straight line that rises with the score from 0 to 1 over the range. A value says how much benefit, or how much cost,
// there is.
struct ColumnScale {
  double Worst = 0.0;
  double Best = 0.0;
  std::vector<ValuePoint> Curve;
  friend bool operator==(const ColumnScale&, const ColumnScale&) = default;
};

struct DataColumn {
  String Name;
  enum Role Role = Role::Unused;
  String Unit;  // of measure
  String Description;
  std::optional<double> Worst;  // in a used column both are there
  std::optional<double> Best;
  std::vector<ValuePoint> Curve;
  std::vector<std::optional<double>> Values;  // one a unit; nothing is missing
  // An unused column's values as they came where they are something else than numbers, one a unit. JSON.
  String ValuesAsTheyCame;
  OtherKeys Others;
  friend bool operator==(const DataColumn&, const DataColumn&) = default;
};

// One attribute's judgment, or its scale at the time. Bounds are ratios to the reference; 0 is no bound.
struct SessionAttribute {
  String Name;
  std::optional<double> Low;
  std::optional<double> Ratio;
  std::optional<double> High;
  bool Judged = true;
  std::optional<ColumnScale> Snapshot;
  OtherKeys Others;
  friend bool operator==(const SessionAttribute&, const SessionAttribute&) = default;
};

// Of the two references, cost to benefit.
struct SessionCross {
  std::optional<double> Ratio;
  bool Judged = true;
  OtherKeys Others;
  friend bool operator==(const SessionCross&, const SessionCross&) = default;
};

// What one unit of an attribute is in a session's ratios: the step from worst to best, the whole curve, or a raw unit.
enum class JudgmentBasis { Range, Scale, Unit };

struct JudgmentSession {
  String Made;
  String By;
  String Note;
  String Approach;  // "DEA_DIRECT", "DEA_TRADEOFFS"
  JudgmentBasis Basis = JudgmentBasis::Range;
  String BenefitReference;  // an output's name; may be empty where there are fewer than two
  String CostReference;     // an input's
  std::optional<SessionCross> Cross;
  std::vector<SessionAttribute> Attributes;
  String Points;  // the wizard's arrays as they came, JSON; or empty
  OtherKeys Others;
  friend bool operator==(const JudgmentSession&, const JudgmentSession&) = default;
};

// Where the data came from.
struct ProjectSource {
  String File;
  String Sha256;
  String Imported;
  String Delimiter;
  String Decimal;
  String Encoding;
  OtherKeys Others;
  friend bool operator==(const ProjectSource&, const ProjectSource&) = default;
};

enum class ScoreForm { Ratio, Value };
enum class ScoreReturns { Crs, Vrs, Nirs, Ndrs };
enum class ScoreOrientation { In, Out };

// What was asked for last. What is not there is at its default.
struct ProjectUse {
  std::optional<std::size_t> Session;
  bool NoSession = false;  // without judgments; else, without an index, the last session
  std::optional<ScoreForm> Form;
  std::optional<ScoreReturns> Returns;
  std::optional<ScoreOrientation> Orientation;
  std::optional<std::int64_t> Seed;
  OtherKeys Others;
  friend bool operator==(const ProjectUse&, const ProjectUse&) = default;
};

struct Project {
  String Name;
  std::optional<ProjectSource> Source;
  std::vector<String> Units;
  std::vector<DataColumn> Columns;
  std::vector<JudgmentSession> Sessions;
  std::optional<ProjectUse> Use;
  OtherKeys Others;
  friend bool operator==(const Project&, const Project&) = default;
};

// How the file and the command line call them.
const char* NameOf(Role role);
const char* NameOf(JudgmentBasis basis);
const char* NameOf(ScoreForm form);
const char* NameOf(ScoreReturns returns);
const char* NameOf(ScoreOrientation orientation);
std::optional<Role> RoleNamed(const String& name);
std::optional<JudgmentBasis> BasisNamed(const String& name);
std::optional<ScoreForm> FormNamed(const String& name);
std::optional<ScoreReturns> ReturnsNamed(const String& name);
std::optional<ScoreOrientation> OrientationNamed(const String& name);

// Null where there is none of that name.
const DataColumn* FindColumn(const Project& project, const String& name);
const SessionAttribute* FindAttribute(const JudgmentSession& session, const String& name);

// The columns of that role, by their places in the project's list.
std::vector<std::size_t> ColumnsIn(const Project& project, Role role);

// The name of the session's reference for inputs or for outputs.
const String& ReferenceIn(const JudgmentSession& session, Role role);

// Whether the session bounds the attribute's ratio: listed, not a reference, not marked as not judged, and at least one
// bound that is not 0.
bool IsJudged(const JudgmentSession& session, const String& name);

// The scale of a used column: the copy that the session holds, if there is a session and it holds one, or its own.
ColumnScale ScaleOf(const DataColumn& column, const JudgmentSession* session);

// The session that is solved with when nobody says otherwise: the one of Use, or the last; nothing for none.
std::optional<std::size_t> SessionInUse(const Project& project);

}  // namespace Tarnwise
