#pragma once

#include "platform/files/DurableFile.h"
#include "platform/qt/printing/KeptPages.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>

namespace ballhaven::platform {

/// The name of a file for a job of a title, without an ending: what no system takes in a name becomes "_".
[[nodiscard]] QString FileNameOf(const std::string& title);

/// What stands for a printer on a machine without one: each job becomes a PDF file in a folder, whole or not at all,
/// and is shown. A folder that takes no file is not ready.
class PdfFile final : public KeptPages {
  public:
    /// `showFile` is given the path of the saved file.
    PdfFile(const std::string& jobTitle, std::string folderPath, std::function<void(const std::string& path)> showFile);

  protected:
    void GetReady() override;
    void Send() override;

  private:
    const std::string name;
    const std::string folder;
    const std::function<void(const std::string& path)> show;
    std::unique_ptr<NewFile> file;  ///< while the job lasts
};

}  // namespace ballhaven::platform
