#pragma once

#include "platform/qt/printing/KeptPages.h"

#include <string>

namespace ballhaven::platform {

/// A printer of the system, reached through its spooler. One that the system has stopped is not ready.
class Spooler final : public KeptPages {
  public:
    Spooler(const std::string& jobTitle, const QString& printerName);

  protected:
    void GetReady() override;
    void Send() override;
};

}  // namespace ballhaven::platform
