// The address books, as full as they can be, beside the same bytes read, sorted and searched by hand.
#pragma once

namespace quillane::bench {

void MeasureAddressBook(int times);

}  // namespace quillane::bench
