#pragma once

// The controls as the logic of a dialog declares and uses them. A dialog declares its controls as members, in tab
// order, so that the declarations read as its table of controls: name, container, caption, initial state.
//
//     Frame fraTime{Form, "fraTime", 1520};
//     TextBox txtHour{fraTime, "txtHour", {.Text = "00", .MaxLength = 2}};

#include "frame/controls/button.h"
#include "frame/controls/check_box.h"
#include "frame/controls/combo_box.h"
#include "frame/controls/control_array.h"
#include "frame/controls/frame.h"
#include "frame/controls/grid.h"
#include "frame/controls/label.h"
#include "frame/controls/list_box.h"
#include "frame/controls/option_button.h"
#include "frame/controls/status_bar.h"
#include "frame/controls/text_box.h"
#include "frame/controls/timer.h"
#include "frame/controls/up_down.h"
