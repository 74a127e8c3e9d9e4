#include "project/ImportModel.h"

#include "model/mdTRNMain.h"
#include "modelfiles/ModelWriter.h"
#include "project/CsvRows.h"
#include "project/ProjectChecks.h"
#include "project/Shown.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

// The model's own numbering of attributes, and the alternatives that are in use.
struct Model {
  const WizardData& Data;
  std::vector<int> Alternatives;
  int Attributes = 0;
};

bool HasScore(const WizardData& data, int alternative, int attribute) {
  return !std::holds_alternative<std::monostate>(data.RawScores.RawScores(alternative, attribute)) ||
         data.Scores.Scores(alternative, attribute) != 0.0;
}

Model ReadAttributes(const WizardData& data) {
  const Model model{data, {}, std::clamp(data.NumAtts(), 0, kMaxAtts)};
  if (model.Attributes != data.NumAtts()) {
    throw ModelFault("the model says that it has " + std::to_string(data.NumAtts()) + " attributes");
  }
  if (model.Attributes == 0) throw ModelFault("the model has no attributes");
  return model;
}

Model Read(const WizardData& data) {
  Model model = ReadAttributes(data);
  for (int a = 0; a < kMaxAlternatives; ++a) {
    bool used = !WithoutBlanks(data.AlternativeList.Unused1[a]).empty();
    for (int i = 0; i < model.Attributes; ++i) used = used || HasScore(data, a, i);
    if (used) model.Alternatives.push_back(a);
  }
  if (model.Alternatives.empty()) throw ModelFault("the model has no alternatives, which would be the units");
  return model;
}

String NameOfAttribute(const Model& model, int i) { return OnOneLine(model.Data.AttName(i)); }

Role RoleOf(const Model& model, int i) {
  if (model.Data.IsBenefit(i)) return Role::Output;
  return model.Data.IsCost(i) ? Role::Input : Role::Unused;
}

double CurveNumber(const Variant& value, const String& place) {
  try {
    return ToDouble(value);
  } catch (const RuntimeError&) {
    throw ModelFault("curve of " + place + ": a point is no number");
  }
}

std::vector<ValuePoint> CurveOf(const Model& model, int i, const String& place) {
  const AttValueData& values = model.Data.AttValueData;
  const int count = values.ValuePointCount[i];
  if (count < 0 || count > kMaxCurvePoints) {
    throw ModelFault("curve of " + place + ": it says that it has " + std::to_string(count) + " points");
  }
  std::vector<ValuePoint> curve;
  curve.reserve(kMaxCurvePoints);
  for (int k = 0; k < count; ++k) {
    curve.push_back({CurveNumber(values.ValuePointX(i, k), place), CurveNumber(values.ValuePointY(i, k), place)});
  }
  return curve;
}

DataColumn ColumnOf(const Model& model, int i) {
  const WizardData& data = model.Data;
  DataColumn column;
  column.Name = NameOfAttribute(model, i);
  column.Role = RoleOf(model, i);
  column.Description = data.AttDescription(i);
  column.Worst = data.AttValueData.WorstScore[i];
  column.Best = data.AttValueData.BestScore[i];
  column.Curve = CurveOf(model, i, NameInMessages("attribute", i, ShownName(column.Name)));
  for (const int a : model.Alternatives) {
    const bool there = HasScore(data, a, i);
    column.Values.push_back(there ? std::optional<double>(data.Scores.Scores(a, i)) : std::nullopt);
  }
  return column;
}

// The name of the attribute with the stored id; empty where that is none of the group's. A group of one needs no id.
String StoredReference(const Model& model, const Project& project, const Variant& stored, Role role) {
  const std::vector<std::size_t> group = ColumnsIn(project, role);
  if (group.size() == 1) return project.Columns[group[0]].Name;
  double id = -1.0;
  try {
    if (!std::holds_alternative<std::monostate>(stored)) id = ToDouble(stored);
  } catch (const RuntimeError&) {
    return {};
  }
  for (int i = 0; i < model.Attributes; ++i) {
    if (static_cast<double>(i) == id && RoleOf(model, i) == role) return NameOfAttribute(model, i);
  }
  return {};
}

std::optional<SessionCross> StoredCross(const Variant& stored, std::vector<String>& notes) {
  SessionCross cross;
  try {
    cross.Ratio = ToDouble(stored);
  } catch (const RuntimeError&) {
    cross.Ratio.reset();
  }
  if (!cross.Ratio || !std::isfinite(*cross.Ratio) || *cross.Ratio <= 0.0) {
    notes.emplace_back("the ratio of the two references is no number above 0 and counts as not judged");
    return std::nullopt;
  }
  cross.Judged = !std::holds_alternative<Integer>(stored);
  return cross;
}

SessionAttribute StoredJudgment(const Model& model, const DataColumn& column, int i) {
  const SavedJudgments& saved = model.Data.SavedJudgments;
  SessionAttribute attribute;
  attribute.Name = column.Name;
  attribute.Low = saved.SavedWeightsL[i];
  attribute.Ratio = saved.SavedWeights[i];
  attribute.High = saved.SavedWeightsH[i];
  attribute.Snapshot = ColumnScale{*column.Worst, *column.Best, column.Curve};
  return attribute;
}

void TakeJudgments(const Model& model, const String& points, ImportedModel& imported) {
  const SavedJudgments& saved = model.Data.SavedJudgments;
  Project& project = imported.Project;
  JudgmentSession session;
  session.Approach = saved.RJType;
  session.Basis = saved.RJType == kDirectType ? JudgmentBasis::Range : JudgmentBasis::Scale;
  session.BenefitReference = StoredReference(model, project, saved.SavedBRefAttID, Role::Output);
  session.CostReference = StoredReference(model, project, saved.SavedCRefAttID, Role::Input);
  for (int i = 0; i < model.Attributes; ++i) {
    const DataColumn& column = project.Columns[static_cast<std::size_t>(i)];
    if (column.Role != Role::Unused) session.Attributes.push_back(StoredJudgment(model, column, i));
  }
  session.Points = points;
  project.Sessions.push_back(std::move(session));
  try {
    CheckSession(project, 0);
  } catch (const ModelFault& fault) {
    project.Sessions.clear();
    imported.Notes.push_back(String("the stored judgments are left out: ") + fault.what());
    return;
  }
  JudgmentSession& stored = project.Sessions.back();
  const bool bothGroups = !stored.BenefitReference.empty() && !stored.CostReference.empty();
  if (bothGroups) stored.Cross = StoredCross(saved.SavedRefAttWR, imported.Notes);
}

ImportedModel Import(const Model& model, const String& points) {
  const WizardData& data = model.Data;
  ImportedModel imported;
  for (const int a : model.Alternatives) {
    imported.Project.Units.push_back(OnOneLine(data.AlternativeList.Unused1[a]));
  }
  for (int i = 0; i < model.Attributes; ++i) imported.Project.Columns.push_back(ColumnOf(model, i));
  if (data.HasStoredJudgments()) TakeJudgments(model, points, imported);
  CheckRecords(imported.Project);
  return imported;
}

}  // namespace

ImportedModel ImportModel(const WizardData& data, const String& points) { return Import(Read(data), points); }

ImportedModel ImportScalesAndJudgments(const WizardData& data, const String& points) {
  return Import(ReadAttributes(data), points);
}

}  // namespace Tarnwise
