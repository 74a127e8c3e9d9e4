// The controls that forms are made of: plain records of properties and events. A toolkit mirrors them on a screen and
// turns what a person does into their events; nothing here draws anything.
//
// Lengths are in the scale of the container: twips, or units of 15 twips where the container's Scale is Pixels.
#pragma once

#include "view/Property.h"

#include <tarnwise/Scalars.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Tarnwise {

constexpr Colour kBlack = 0;
constexpr Colour kWhite = 0xFFFFFF;

// Mouse pointers.
constexpr int kDefaultPointer = 0;
constexpr int kHourglass = 11;
constexpr int kNoDrop = 12;

struct Form;

enum class Kind {
  Form,
  Label,
  CommandButton,
  TextBox,
  ListBox,
  OptionButton,
  CheckBox,
  Frame,
  VScrollBar,
  Timer,
  Image,
  Shape,
  Line,
  PictureBox,
  TabStrip,
  Toolbar,
  ImageCombo,
  ComboBox,
  Grid,
};

enum class ScaleMode { Twips, Pixels };
enum class Align { Left, Right, Centre };
enum class DragState { Enter = 0, Leave = 1, Over = 2 };
enum class Announce { Never, Caption, Lit };  // what a screen reader is told: each new caption, or one that lights up
enum class DragBy { Targets, Units };  // what the keyboard does with a source: walk the targets, or move it by units

constexpr Single kTwipsPerPixel = 15.0F;

// System colours that the forms name.
constexpr Colour kWindowBackground = 0x80000005;
constexpr Colour kWindowText = 0x80000008;
constexpr Colour kHighlightText = 0x8000000E;
constexpr Colour kButtonFace = 0x8000000F;
constexpr Colour kButtonText = 0x80000012;

// What every control has. Controls belong to their form for as long as it lives and never move in memory.
struct Control {
  Control(Form& form, Control* parent, Kind kind, String name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  void ZOrder();  // to the front of its container
  bool TakesDrags() const { return DragOver || DragDrop; }
  String FullName() const;  // with "(index)" in an array

  Form& Owner;
  Control* const Parent;  // null for a form
  const Kind Type;
  const String Name;
  int Index = -1;  // -1: not in a control array

  Property<Single> Left{*this, 0.0F};
  Property<Single> Top{*this, 0.0F};
  Property<Single> Width{*this, 0.0F};
  Property<Single> Height{*this, 0.0F};
  Property<bool> Visible{*this, true};
  Property<bool> Enabled{*this, true};
  Property<String> Tag{*this, {}};
  Property<String> ToolTipText{*this, {}};
  Property<int> MousePointer{*this, 0};
  Property<int> Order{*this, 0};               // the larger one stands in front
  Property<String> AccessibleName{*this, {}};  // for a screen reader, where the caption does not say it
  ScaleMode Scale = ScaleMode::Twips;          // of what it contains
  int TabIndex = -1;                           // place in the tab order; -1: not in it

  bool DragAutomatic = false;  // a press and a move drag it
  DragBy KeyboardDrag = DragBy::Targets;
  Property<String> DragIcon{*this, {}};  // path of a picture for the pointer while it is dragged

  bool Changed = false;  // on the list of what the screen does not show yet

  std::function<void(Control& source, Single x, Single y, DragState state)> DragOver;
  std::function<void(Control& source, Single x, Single y)> DragDrop;
  // Whether a drop of the source here would be taken, for the pointer to say; empty: where there is a DragDrop.
  std::function<bool(const Control& source)> AcceptsDrop;
  std::function<void()> Click;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
};

struct Label : Control {
  Label(Form& form, Control* parent, String name);
  Property<String> Caption{*this, {}};
  Property<Colour> ForeColor{*this, kButtonText};
  Property<Colour> BackColor{*this, kButtonFace};
  Property<Align> Alignment{*this, Align::Left};
  Property<bool> Bold{*this, false};
  Property<int> Points{*this, 9};  // size of the type
  Property<bool> WordWrap{*this, false};
  Announce Announces = Announce::Never;
  String Told;  // what a screen reader has heard of it last
};

struct CommandButton : Control {
  CommandButton(Form& form, Control* parent, String name);
  Property<String> Caption{*this, {}};
  Property<Colour> BackColor{*this, kButtonFace};
  bool Default = false;  // drawn as the one to go on with
};

struct KeyEvent {
  int Code = 0;   // key down and up: the virtual key; key press: the character. 0 drops it
  int Shift = 0;  // 1 Shift, 2 Ctrl, 4 Alt
};

struct TextBox : Control {
  TextBox(Form& form, Control* parent, String name);
  void SetText(const String& text);     // the caret goes to the start; Change is raised when the text differs
  void SetSelText(const String& text);  // replaces the selection, the caret stands behind what came
  Property<String> Text{*this, {}};
  Property<int> SelStart{*this, 0};  // in characters
  Property<int> SelLength{*this, 0};
  std::function<void()> Change;
  std::function<void(KeyEvent&)> KeyDown;
  std::function<void(KeyEvent&)> KeyPress;
  std::function<void(KeyEvent&)> KeyUp;
};

struct ListBox : Control {
  ListBox(Form& form, Control* parent, String name);
  Property<std::vector<String>> List{*this, {}};
  Property<int> ListIndex{*this, -1};
};

struct OptionButton : Control {
  OptionButton(Form& form, Control* parent, String name);
  void SetOn();  // and the others of its container off
  Property<String> Caption{*this, {}};
  Property<bool> Value{*this, false};
};

struct CheckBox : Control {
  CheckBox(Form& form, Control* parent, String name);
  Property<String> Caption{*this, {}};
  Property<int> Value{*this, 0};  // 0 or 1
};

struct Frame : Control {
  Frame(Form& form, Control* parent, String name);
  Property<String> Caption{*this, {}};
};

struct VScrollBar : Control {
  VScrollBar(Form& form, Control* parent, String name);
  void SetValue(int value);  // brought into Min to Max; Change is raised when it differs
  Property<int> Min{*this, 0};
  Property<int> Max{*this, 32767};
  Property<int> Value{*this, 0};
  Property<int> SmallChange{*this, 120};
  Property<int> LargeChange{*this, 1200};
  std::function<void()> Change;
  std::function<void()> Scroll;  // while the thumb is dragged
};

struct Timer : Control {
  Timer(Form& form, Control* parent, String name);
  Property<int> Interval{*this, 0};  // milliseconds; 0: stopped
  std::function<void()> Tick;        // the event is named Timer
};

// Images are drawn by the toolkit from a small vocabulary of names (view/Pictures.h); "" shows nothing.
struct Image : Control {
  Image(Form& form, Control* parent, String name);
  Property<String> Picture{*this, {}};
};

struct Shape : Control {
  Shape(Form& form, Control* parent, String name);
  Property<Colour> FillColor{*this, 0x808080};
  Property<Colour> BorderColor{*this, 0};
  Property<bool> Round{*this, true};
};

struct Line : Control {
  Line(Form& form, Control* parent, String name);
  Property<Single> X1{*this, 0.0F};
  Property<Single> Y1{*this, 0.0F};
  Property<Single> X2{*this, 0.0F};
  Property<Single> Y2{*this, 0.0F};
  Property<Colour> BorderColor{*this, 0};
};

// What was drawn on a picture box, in its own scale.
struct Drawn {
  enum class What { Polygon, Line, Box } Shape = What::Line;
  std::vector<Single> Points;  // x, y, x, y, ...; whole numbers for a polygon, two corners for a box
  Colour Ink = 0;              // fill of a polygon, colour of lines and boxes
  int LineWidth = 1;
  friend bool operator==(const Drawn&, const Drawn&) = default;
};

struct PictureBox : Control {
  PictureBox(Form& form, Control* parent, String name);
  void Cls();  // clears the drawing
  void Draw(Drawn shape);
  Property<Colour> BackColor{*this, kButtonFace};
  Property<bool> Bordered{*this, false};
  Property<String> Picture{*this, {}};
  std::vector<Drawn> Drawing;
};

struct TabStrip : Control {
  TabStrip(Form& form, Control* parent, String name);
  struct Tab {
    String Caption;
    String Key;
  };
  std::vector<Tab> Tabs;
  Property<int> SelectedItem{*this, 1};  // from 1
};

struct Toolbar : Control {
  Toolbar(Form& form, Control* parent, String name);
  struct Button {
    String Key;
    String ToolTip;
    String Picture;
    bool Enabled = true;
  };
  void EnableButton(int index, bool enabled);  // from 1; error 9 where there is none
  const Button* Find(const String& key) const;
  std::vector<Button> Buttons;
  Property<int> Current{*this, 1};  // the button that Space and Return press, from 1
  std::function<void(const String& key)> ButtonClick;
};

struct ImageCombo : Control {
  ImageCombo(Form& form, Control* parent, String name);
  struct Item {
    String Key;
    String Text;
    String Picture;
    String SelectedPicture;
  };
  void Clear();
  void Add(Item item);
  void SetItemText(int index, const String& text);  // from 1; error 9 where there is none
  std::vector<Item> Items;
  Property<int> SelectedItem{*this, 0};  // from 1; 0: none
};

struct ComboBox : Control {
  ComboBox(Form& form, Control* parent, String name);
  Property<std::vector<String>> List{*this, {}};
  Property<int> ListIndex{*this, -1};
};

struct Grid : Control {
  Grid(Form& form, Control* parent, String name);
  void Shape(int rows, int cols);                      // empties all cells
  void SetCell(int row, int col, const String& text);  // error 9 outside
  void SetColWidth(int col, int width);
  std::vector<std::vector<String>> TextMatrix;
  std::vector<int> ColWidth;  // twips
  int Rows() const { return static_cast<int>(TextMatrix.size()); }
  int Cols() const { return static_cast<int>(ColWidth.size()); }
};

}  // namespace Tarnwise
