#pragma once

namespace talvex {

// Shows a text as a notification of the desktop, and gives the status to end the program with. Ends
// the program itself where the session's bus doesn't answer within some seconds.
int showNotification(const char* text);

}  // namespace talvex
