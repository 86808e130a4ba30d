# Builds the application Rechnungsbuch for Windows as one file, and shows that it needs nothing beside it.
# Usage: build_one_file; take_one_file_screenshots FOLDER

build_one_file()
{
    cmake --preset windows-release -B build/one-file -DBUILD_SHARED_LIBS=OFF -DVEK_BUILD_TESTS=OFF &&
        cmake --build build/one-file --target Rechnungsbuch
}

# Its window at two resolutions. The file is started from a folder where nothing else is.
take_one_file_screenshots()
{
    rm -rf build/one-file/alone && mkdir -p build/one-file/alone "$1" &&
        cp build/one-file/bin/Rechnungsbuch.exe build/one-file/alone &&
        bash examples/Rechnungsbuch/Dialogs/take-screenshots.sh wine build/one-file/alone/Rechnungsbuch.exe "$1"
}
