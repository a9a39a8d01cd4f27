#pragma once

namespace veld {

/// Lets screen readers have a text that can only be read as what it is: the main window's page as a document, a text of
/// a form as writing. The toolkit itself would call both fields to type in.
void TellTextsToRead();

}  // namespace veld
