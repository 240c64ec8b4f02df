#pragma once

namespace Texts {

/// Who reads a text that names what to do: the window's owner (its menus and
/// dialogs) or teskal-flash's (its commands and options).
enum class Audience { window, commandLine };

}  // namespace Texts
