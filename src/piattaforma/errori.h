#pragma once

#include <stdexcept>
#include <string>

namespace qf17 {

// An error the program cannot go on from inside the current command: an index beyond its table
// in a node file, a number beyond 16 bits, a strict integer that is not one. It travels up to the
// command boundary, which reports it and leaves the user's data as it was before the command.
class ErroreFatale : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Start-up found the installation unusable: the message has already been shown to the user
// through the platform, and the program must end.
class FineProgramma : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace qf17
