#pragma once

#include <string>
#include <vector>

/// The forms of the lines the flashing job and its loader may log: fixed texts and
/// fixed prefixes followed by a value of a known shape. A line of any other form
/// is a message the system does not define.
namespace reliability {

/// True when `line` has one of the defined forms.
bool isDefinedLogLine(const std::string& line);

/// True when the job's last line explains its non-zero `code` (the failure line of
/// the job or, for a failed write or verification, of the loader).
bool explainsFailure(const std::vector<std::string>& lines, unsigned code);

}  // namespace reliability
