#pragma once

namespace huebase {

// Mouse buttons and modifier keys as the graph editing rules see them.
enum class MouseButton { Left, Right, Middle };

// Modifier keys held with a mouse button, as a bit set.
enum ShiftState : int { NoShift = 0, ShiftKey = 1, CtrlKey = 2, AltKey = 4 };

// The pointer a node button shows after a press.
enum class TabPointer { Unchanged, Arrow, SizeWestEast };

} // namespace huebase
