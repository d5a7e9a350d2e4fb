// A control of a form: its kind, position, content and event handlers.
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
  Primary,  // a form's main button
  OnEarth,  // a button on a dark background
  OnSky,    // a button on a picture
  Flat,     // a button without a border
};

enum class Key { Up, Down, Left, Right, Home, End, Enter, Escape, Other };

// A pressed key. A handler that deals with it sets `handled`; it then goes no further.
struct KeyPress {
  Key key = Key::Other;
  bool handled = false;
};

// The mouse position in twips from the control's corner. Handlers that need only the position take
// a Point.
struct MousePoint : Point {
  bool shift = false;  // with Shift, Ctrl or Alt held down
};

struct Control;

// What a form declares for a control; omitted properties have these defaults.
struct Properties {
  Control* container = nullptr;  // a picture box of the same form; null for the form itself
  Place place;
  LineEnds ends;                    // a Line's, instead of `place`
  std::string caption;              // UTF-8, "&" before a button's key; a text box's text
  foundation::DateTime moment = 0;  // a date picker's midnight or a time picker's time of day
  std::string refusal;              // why a picker rejected typed text; empty if it did not
  ScrollRange scroll;
  Font font;
  std::string tag;
  std::string toolTip;
  std::string spokenName;  // for assistive programs, instead of the caption
  std::string spokenText;  // for assistive programs, the text of a raster image
  std::string whenEmpty;   // shown by an empty text box or list
  std::string trailing;    // a note at the right end of a text box
  std::string emphasis;    // shown bold at the start of list entries
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
  int tabIndex = 0;      // Tab order, lowest first
  bool sorted = false;   // a list
  bool handCursor = false;
  bool grabCursor = false;  // while its content is dragged
  bool dragHandle = false;  // moves the form if only the display server can move windows
  bool hot = false;         // set by the form while the mouse is over it
  bool pressed = false;
  bool faded = false;  // dimmed, because its content is out of date
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

  // Handlers; empty ones do nothing.
  std::function<void()> onClick;  // of a list: another entry was selected
  std::function<void()> onDoubleClick;
  std::function<void()> onChange;  // of its text, moment, refusal or scroll value
  std::function<void(KeyPress&)> onKeyDown;
  std::function<void(MousePoint)> onMouseDown;  // of the left button
  std::function<void(MousePoint)> onMouseUp;
  std::function<void(MousePoint)> onMouseMove;
  std::function<void(int)> onMouseWheel;  // steps, up above 0
  std::function<void(int)> onHover;       // of a list: the index under the mouse, or -1
  std::function<void()> onTimer;
};

// Members that some kinds lack; NoSuchMember for those. A Timer has no place, a Line has ends
// instead, and a Shape, Line, Image or Timer has no font.
Place& PlaceOf(Control& control);
Font& FontOf(Control& control);

// Raise the same events as the user's actions: onChange if the text or scroll value changes,
// onClick if another entry is selected. InvalidCall if there is no such entry.
void SetText(Control& textBox, std::string_view text);
void SetScroll(Control& scrollBar, int value);  // clamped to the bar's range
void Select(Control& list, int index);

// The user's choice from a list: raises onClick even if the entry is already selected.
void Choose(Control& list, int index);

}  // namespace forms
