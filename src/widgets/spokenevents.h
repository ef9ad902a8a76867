#pragma once

namespace Spoken {

/// From now on screen readers hear only of what happens in sight.
///
/// A change of printer changes hundreds of widgets on pages that don't show. A reader that asks
/// back for each of them is busy for seconds, and drops the row that was picked with the rest. What
/// has changed out of sight is told once, when it comes into sight.
void tellOfWhatShows();

} // namespace Spoken
