// A control of a form: what it is, where it stands, what it shows and what it answers to.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "forms/colour.h"
#include "forms/font.h"
#include "forms/item_list.h"
#include "forms/picture.h"
#include "foundation/calendar.h"

namespace forms {

enum class Kind {
  Label,
  Image,
  PictureBox,
  Shape,
  Line,
  Timer,
  CommandButton,
  TextBox,
  ListBox,
  ComboBox,
  DatePicker,
  TimePicker,
  HScrollBar,
  VScrollBar
};

// In twips, from the corner of the container.
struct Place {
  float left = 0, top = 0, width = 0, height = 0;
  friend bool operator==(const Place&, const Place&) = default;
};

struct LineEnds {
  float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  friend bool operator==(const LineEnds&, const LineEnds&) = default;
};

struct ScrollRange {
  int value = 0, minimum = 0, maximum = 0;
  int smallChange = 1, largeChange = 1;  // by its arrows, by its track
  friend bool operator==(const ScrollRange&, const ScrollRange&) = default;
};

// How the host paints a control.
enum class Look {
  Plain,
  Card,     // a soft shadow below
  Tile,     // an item of a picture menu: picture above, room for a caption, lit when hot or pressed
  Primary,  // of a form's buttons, the one that it is there for
  OnEarth,  // a button on a dark ground
  Flat,     // a button without an edge
};

enum class Key { Up, Down, Left, Right, Home, End, Enter, Escape, Other };

// A key that was pressed; whoever has dealt with it says so, and nobody else sees it.
struct KeyPress {
  Key key = Key::Other;
  bool handled = false;
};

// Where the mouse is, in twips from the control's corner. Handlers that need only the place take a
// Point.
struct MousePoint : Point {
  bool shift = false;  // with Shift, Ctrl or Alt held down
};

struct Control;

// What a form writes down for a control; the rest starts as it stands here.
struct Properties {
  Control* container = nullptr;  // a picture box of the same form; null for the form itself
  Place place;
  LineEnds ends;        // a Line's, in place of `place`
  std::string caption;  // UTF-8, "&" before a button's key; of a text box, what stands in it
  foundation::DateTime moment = 0;  // of a date picker a midnight, of a time picker a time of day
  std::string refusal;  // of a picker: why it did not take what was typed; empty if it did
  ScrollRange scroll;
  Font font;
  std::string tag;
  std::string toolTip;
  std::string spokenName;  // for assistive programs, where no caption of its own tells
  std::string spokenText;  // and what a picture of dots shows, in words
  std::string whenEmpty;   // shown by a text box or list that is empty
  std::string trailing;    // a remark at the right end of a text box
  std::string emphasis;    // what entries of a list begin with is shown bold
  Colour foreColour;
  Colour backColour = kTransparent;
  Colour borderColour = kTransparent;
  float borderWidth = 1;   // logical pixels
  float cornerRadius = 0;  // twips
  Alignment alignment = Alignment::Left;
  bool wordWrap = false;
  bool visible = true;
  bool enabled = true;
  bool tabStop = false;  // reached by the Tab key, pressed by Enter
  int tabIndex = 0;      // controls are reached from the lowest up
  bool sorted = false;   // a list
  bool handCursor = false;
  bool grabCursor = false;  // what lies under it is being moved
  bool dragHandle = false;  // moves the form where only the screen can move windows
  bool hot = false;         // under the mouse, as far as the form says so
  bool pressed = false;
  bool faded = false;  // shows what is out of date
  Look look = Look::Plain;
  PicturePtr picture;
  int interval = 0;  // a Timer's, in milliseconds; 0 is off

  friend bool operator==(const Properties&, const Properties&) = default;
};

struct Control : Properties {
  Kind kind = Kind::Label;
  std::string name;
  int index = -1;                   // in its control array; -1 outside one
  std::unique_ptr<ItemList> items;  // of a list box or combo box

  // Handlers; what a form leaves empty does nothing.
  std::function<void()> onClick;  // of a list: another entry was selected
  std::function<void()> onDoubleClick;
  std::function<void()> onChange;  // of its text, moment, refusal or scroll value
  std::function<void(KeyPress&)> onKeyDown;
  std::function<void(MousePoint)> onMouseDown;  // of the left button
  std::function<void(MousePoint)> onMouseUp;
  std::function<void(MousePoint)> onMouseMove;
  std::function<void(int)> onMouseWheel;  // steps, up above 0
  std::function<void(int)> onHover;       // of a list: the place under the mouse, -1 for none
  std::function<void()> onTimer;
};

// Members that not every kind has. NoSuchMember for the kinds that lack them: a Timer has no
// place, a Line has ends instead, and none of Shape, Line, Image and Timer has a font.
Place& PlaceOf(Control& control);
Font& FontOf(Control& control);

// What the user or the program sets raises the same events: a text or scroll value that
// differs from the present one onChange, the selection of another entry onClick. InvalidCall where
// there is no such entry.
void SetText(Control& textBox, std::string_view text);
void SetScroll(Control& scrollBar, int value);  // brought into the bar's range
void Select(Control& list, int index);

// The user's choice from a list: onClick, also for the entry that is selected already.
void Choose(Control& list, int index);

}  // namespace forms
