// Where the parts of the viewer lie. Everything in twips; front ends draw it at any scale.
#pragma once

#include "control/ProcessLogControls.h"

namespace quorvel {

// Places everything for a control of this size. Below the least size that the content needs, scroll bars appear and the
// content keeps its least size.
void LayOutControl(ProcessLogControls& controls, widgets::Twips width, widgets::Twips height);

// Places tree, list and splitter in fraList for this tree width; one below the least is corrected in place. Where there
// is no room beside the tree, the list lies below it; where no tree is shown, the list takes all.
void LayOutPanes(ProcessLogControls& controls, float& treeWidth);

// The splitter drag: the bar appears over the grip; follows the pointer, which is `x` from the grip's left edge, within
// the bounds that leave room for either pane of a control of this width; goes. The last gives the tree width asked for.
void BeginSplitterDrag(ProcessLogControls& controls);
void MoveSplitterBar(ProcessLogControls& controls, widgets::Twips x, widgets::Twips controlWidth);
float EndSplitterDrag(ProcessLogControls& controls);

}  // namespace quorvel
