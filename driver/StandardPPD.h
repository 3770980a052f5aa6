// SPDX-License-Identifier: Apache-2.0
// The printer's PPD as the standard filters are to see it.
#pragma once

#include <memory>
#include <string>

#include "driver/TemporaryFile.h"

namespace orvek::driver {

/// A PPD's text without the lines that name filters. Because of those, standard filters would leave
/// page accounting to the driver and write other feature code than without it.
std::string withoutFilterLines(const std::string &ppd);

/// As long as it lives the environment's PPD names a copy without filter lines.
class StandardPPD {
 public:
  StandardPPD(const StandardPPD &) = delete;
  StandardPPD &operator=(const StandardPPD &) = delete;
  ~StandardPPD();

  /// `ppdFile` may be empty, or name no filters: the environment stays as it is then. Fails where
  /// the PPD can't be read or the copy can't be written.
  static Result<std::unique_ptr<StandardPPD>> of(const std::string &ppdFile);

 private:
  StandardPPD(std::string original, std::unique_ptr<NamedFile> copy);
  std::string m_original;
  std::unique_ptr<NamedFile> m_copy;
};

}  // namespace orvek::driver
