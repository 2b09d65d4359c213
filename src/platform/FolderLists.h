// The three lists of a path dialog: drives, the folders of one folder, its files.
#pragma once

#include <string>

#include "platform/Controls.h"

namespace quillmetra {

class DriveList : public ListBox {
public:
    DriveList(const Parent& parent, std::string name) : ListBox(parent, std::move(name)) {}

    // Lists the drives anew.
    void Renew();
    const std::string& Drive() const { return Row(Selected()); }
    // Selects the drive that a path begins with, without an event.
    void SetDrive(const std::string& path);
};

// The open folder in row 0, the way up in row 1 where there is one, then the folders in it.
class DirList : public ListBox {
public:
    DirList(const Parent& parent, std::string name) : ListBox(parent, std::move(name)) {}

    const std::string& Path() const { return path_; }
    // Opens a folder and fires Change; throws and stays where it is when the folder cannot be opened.
    void SetPath(const std::string& path);
    // The path of the row that is selected; the open folder's when none is.
    std::string Highlighted() const;
    // Opens it when it is another one; a folder that cannot be opened is left alone.
    void OpenHighlighted();

    Handler Change;

private:
    bool HasWayUp() const;

    std::string path_;
};

class FileList : public ListBox {
public:
    FileList(const Parent& parent, std::string name) : ListBox(parent, std::move(name)) {}

    // Patterns parted by ";".
    void SetPattern(const std::string& pattern);
    void SetPath(const std::string& path);

private:
    void Renew();

    std::string path_;
    std::string pattern_ = "*";
};

}  // namespace quillmetra
