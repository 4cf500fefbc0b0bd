#pragma once

#include "output/print_page.h"

namespace kestrum {

/// The head of every printed page: title, logo and company, then the lines for customer and order.
/// It also fills the table of columns.
void Print_Page_Head(Print_Page& page);

/// The line that ends a block.
void Print_Block_Rule(Print_Page& page);

/// The logo under the last line, for the head with the company in the middle.
void Print_Logo_Foot(Print_Page& page);

/// Whether the company stands in the middle, so that the logo goes to the foot.
[[nodiscard]] bool Has_Logo_At_Foot(Print_Page& page);

} // namespace kestrum
