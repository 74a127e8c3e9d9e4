#include "ordering/RankTags.h"

#include "runtime/Numbers.h"
#include "runtime/Text.h"

namespace Tarnwise {

int RankOfTag(const Control& row) { return static_cast<int>(Val(row.Tag())); }

void SetRank(PictureBox& row, Label& label, int rank) {
  row.Tag = std::to_string(rank);
  label.Tag = row.Tag;
  label.Caption = row.Tag();
}

int AttOfTag(const Control& button) {
  const String& tag = button.Tag();
  if (tag.empty()) throw RuntimeError(13);
  return CheckedInteger(static_cast<int>(Val(tag.substr(1))));
}

char LetterOf(const Control& control) { return control.Tag().empty() ? '\0' : control.Tag()[0]; }

}  // namespace Tarnwise
