// The standard controls that make up the viewer, by name. A front end draws them; the viewer fills them.
#pragma once

#include "control/Menus.h"
#include "widgets/Control.h"
#include "widgets/ItemList.h"
#include "widgets/ListView.h"
#include "widgets/Menu.h"
#include "widgets/Ranges.h"
#include "widgets/TabStrip.h"
#include "widgets/TreeView.h"

namespace quorvel {

// Nesting, outermost first: `fraProcessLog` slides under the visible area of the control and holds the tab strip, the
// options frame and the list frame; HScroll, VScroll and fraCorner lie on the control itself. Each place is relative to
// its container.
struct ProcessLogControls {
  widgets::Frame fraProcessLog{"fraProcessLog"};
  widgets::TabStrip sstProcessLog{"sstProcessLog"};

  // In fraProcessLog: the options panel, and what lies on it in the order of the tab key.
  widgets::Frame fraOption{"fraOption"};
  widgets::Label lblState{"lblState"};
  widgets::ComboBox cboState{"cboState"};
  widgets::Label lblDate{"lblDate"};
  widgets::DateTimePicker dtpDate{"dtpDate"};
  widgets::DateTimePicker dtpHour{"dtpHour"};
  widgets::Label lblDuring{"lblDuring"};
  widgets::TextBox txtDuring{"txtDuring"};
  widgets::UpDown updDuring{"updDuring"};
  widgets::ComboBox cboDuringUnit{"cboDuringUnit"};
  widgets::Label lblPeriodEnd{"lblPeriodEnd"};
  widgets::CheckBox chkCommunicationsFilter{"chkCommunicationsFilter"};
  widgets::CheckBox chkGroupByDay{"chkGroupByDay"};
  widgets::CheckBox chkAlarmFilter{"chkAlarmFilter"};
  widgets::Label lblGroupBy{"lblGroupBy"};
  widgets::ListBox lstGroupBy{"lstGroupBy"};
  widgets::UpDown updGroupBy{"updGroupBy"};
  widgets::Button cmdRefresh{"cmdRefresh"};

  // In fraProcessLog: the list frame with the two panes, the grip between them, and the bar shown while it is dragged.
  // The caption of fraList is drawn along its top edge.
  widgets::Frame fraList{"fraList"};
  widgets::TreeView tvMotherList{"tvMotherList"};
  widgets::ListView lvMotherList{"lvMotherList"};
  widgets::Grip imgSplitter{"imgSplitter"};
  widgets::Grip picSplitter{"picSplitter"};

  // Popups over the list and over the tree.
  widgets::Menu mnu_Popup{"mnu_Popup", "&Popup Task", ListMenuEntries()};
  widgets::Menu mnu_PopupTV{"mnu_PopupTV", "PopupTV", TreeMenuEntries()};

  // Brings the children of a node that was opened into sight.
  widgets::Timer Timer_ScrollDown_TV{"Timer_ScrollDown_TV"};

  // On the control.
  widgets::ScrollBar HScroll{"HScroll"};
  widgets::ScrollBar VScroll{"VScroll"};
  widgets::Grip fraCorner{"fraCorner"};
};

}  // namespace quorvel
