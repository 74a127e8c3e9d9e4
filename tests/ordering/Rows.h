// The rank rows of a group as one text.
#pragma once

#include "forms/IniImpOrderForm.h"
#include "runtime/Text.h"

#include <algorithm>

namespace Tarnwise {

namespace RowText {

inline bool IsRound(const Drawn& box, const PictureBox& row, const Label& label) {
  const std::vector<Single> wanted = {label.Left - 10.0F, label.Top - 10.0F,
                                      label.Left + label.Width + row.Width + 5.0F, label.Top + row.Height + 5.0F};
  return box.Shape == Drawn::What::Box && box.Points == wanted && box.Ink == 16711680U;
}

// The attributes whose buttons stand within the row, from top to bottom.
inline String Attributes(const ControlArray<CommandButton>& buttons, const PictureBox& row) {
  std::vector<const CommandButton*> there;
  buttons.Each([&](const CommandButton& button) {
    const bool within = button.Top >= row.Top && button.Top < row.Top + row.Height;
    if (button.Visible && within) there.push_back(&button);
  });
  std::ranges::sort(there, {}, [](const CommandButton* button) { return button->Top(); });
  String text;
  Single place = row.Top + 60.0F;
  for (const CommandButton* const button : there) {
    text += (text.empty() ? "" : " ") + button->Tag().substr(1);
    if (button->Top() != place) text += ":" + NumberText(button->Top());
    place += button->Height;
  }
  return "[" + text + "]";
}

// What there is to say of the row besides its place.
inline String Oddities(const PictureBox& row, const Label& label) {
  String text;
  if (row.Tag() != std::to_string(row.Index + 1)) text += "#" + std::to_string(row.Index);
  if (label.Caption() != row.Tag()) text += " reads " + label.Caption();
  if (label.Tag() != row.Tag()) text += " is labelled as " + label.Tag();
  if (label.Top() != row.Top()) text += " with its label at " + NumberText(label.Top());
  if (label.Visible() != row.Visible()) text += row.Visible ? " without a label" : " hidden";
  if (!row.Drawing.empty()) text += " with a drawing";
  return text;
}

inline String Of(const ControlArray<PictureBox>& rows, const ControlArray<Label>& labels,
                 const ControlArray<CommandButton>& buttons, const PictureBox& content) {
  std::vector<const PictureBox*> shown;
  rows.Each([&](const PictureBox& row) {
    if (row.Visible || labels[row.Index].Visible) shown.push_back(&row);
  });
  std::ranges::sort(shown, {}, [](const PictureBox* row) { return std::stoi(row->Tag()); });
  String text;
  for (const PictureBox* const row : shown) {
    const Label& label = labels[row->Index];
    const bool selected = content.Drawing.size() == 1 && IsRound(content.Drawing[0], *row, label);
    text += (text.empty() ? "" : " | ") + String(selected ? "*" : "") + row->Tag() + Oddities(*row, label) + "@" +
            NumberText(row->Top()) + "+" + NumberText(row->Height()) + " " + Attributes(buttons, *row);
  }
  return text;
}

}  // namespace RowText

// "*1@120+910 [0 2] | 2#3@1130+515 [1]": from the first rank on its rank, top and height (twips), and the ids of the
// attributes on it from top to bottom. * stands in front of the selected row, with the box round it; #3 tells that the
// row is not the element of its rank, but 3. An attribute stands 60 below the row's top, each other one a button lower;
// where not, its top follows: "2:480".
inline String Rows(const RankControls& c) { return RowText::Of(c.picOrder, c.lblOrderID, c.cmdAttB, c.picOrderCon); }
inline String Rows(const OrderDisplay& d) { return RowText::Of(d.picO, d.lblOID, d.cmdAttButtons, d.picOP); }

}  // namespace Tarnwise
