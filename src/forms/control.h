// A control of a form: what it is, where it stands, what it shows and what it answers to.
#pragma once

#include <functional>
#include <string>

#include "forms/colour.h"
#include "forms/font.h"
#include "forms/picture.h"

namespace forms {

enum class Kind { Label, Image, PictureBox, Shape, Line, Timer, ComboBox };

// In twips, from the corner of the container.
struct Place {
  float left = 0, top = 0, width = 0, height = 0;
  friend bool operator==(const Place&, const Place&) = default;
};

struct LineEnds {
  float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  friend bool operator==(const LineEnds&, const LineEnds&) = default;
};

// How the host paints a control.
enum class Look {
  Plain,
  Card,  // a soft shadow below
  Tile,  // an item of a picture menu: picture above, room for a caption, lit when hot or pressed
};

struct Control;

// What a form writes down for a control; the rest starts as it stands here.
struct Properties {
  Control* container = nullptr;  // a picture box of the same form; null for the form itself
  Place place;
  LineEnds ends;        // a Line's, in place of `place`
  std::string caption;  // UTF-8
  Font font;
  std::string tag;
  std::string toolTip;
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
  bool handCursor = false;
  bool hot = false;  // under the mouse, as far as the form says so
  bool pressed = false;
  Look look = Look::Plain;
  PicturePtr picture;
  int interval = 0;  // a Timer's, in milliseconds; 0 is off

  friend bool operator==(const Properties&, const Properties&) = default;
};

struct Control : Properties {
  Kind kind;
  std::string name;
  int index = -1;  // in its control array; -1 outside one

  // Handlers; what a form leaves empty does nothing.
  std::function<void()> onClick;
  std::function<void()> onMouseDown;
  std::function<void()> onMouseUp;
  std::function<void()> onMouseMove;
  std::function<void()> onTimer;
};

// Members that not every kind has. NoSuchMember for the kinds that lack them: a Timer has no
// place, a Line has ends instead, and none of Shape, Line, Image and Timer has a font.
Place& PlaceOf(Control& control);
Font& FontOf(Control& control);

}  // namespace forms
