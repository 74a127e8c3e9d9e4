#include "view/Rows.h"

namespace Tarnwise {

namespace {

template <class Records>
Rows CountedFrom(int first, const Records& records, int chosen) {
  return {first, static_cast<int>(records.size()), chosen};
}

}  // namespace

bool IsList(const Control& control) {
  return control.Type == Kind::ListBox || control.Type == Kind::ComboBox || control.Type == Kind::ImageCombo ||
         control.Type == Kind::TabStrip;
}

Rows RowsOf(const Control& list) {
  switch (list.Type) {
    case Kind::ListBox: {
      const auto& box = static_cast<const ListBox&>(list);
      return CountedFrom(0, box.List(), box.ListIndex);
    }
    case Kind::ComboBox: {
      const auto& box = static_cast<const ComboBox&>(list);
      return CountedFrom(0, box.List(), box.ListIndex);
    }
    case Kind::ImageCombo: {
      const auto& box = static_cast<const ImageCombo&>(list);
      return CountedFrom(1, box.Items, box.SelectedItem);
    }
    case Kind::TabStrip: {
      const auto& strip = static_cast<const TabStrip&>(list);
      return CountedFrom(1, strip.Tabs, strip.SelectedItem);
    }
    default: return {};
  }
}

String RowText(const Control& list, int row) {
  const auto at = static_cast<std::size_t>(row - RowsOf(list).First);
  switch (list.Type) {
    case Kind::ListBox: return static_cast<const ListBox&>(list).List()[at];
    case Kind::ComboBox: return static_cast<const ComboBox&>(list).List()[at];
    case Kind::ImageCombo: return static_cast<const ImageCombo&>(list).Items[at].Text;
    case Kind::TabStrip: return static_cast<const TabStrip&>(list).Tabs[at].Caption;
    default: return {};
  }
}

std::vector<String> RowTexts(const Control& list) {
  std::vector<String> texts;
  const Rows rows = RowsOf(list);
  for (int row = rows.First; row <= rows.Last(); ++row) texts.push_back(RowText(list, row));
  return texts;
}

}  // namespace Tarnwise
