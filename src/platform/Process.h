// What the program needs of the operating system: its own number, other processes, the environment, special
// folders, word that it has to end, and what the standard library lacks for writing files safely.
#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

// The variables of the environment in which the smart drive's launcher names its folders.
inline constexpr const char* HostFolderVariable = "U3_HOST_EXEC_PATH"; // scratch, on the computer's own disk
inline constexpr const char* DriveFolderVariable = "U3_DEVICE_PATH";
inline constexpr const char* DocumentFolderVariable = "U3_DEVICE_DOCUMENT_PATH";
inline constexpr const char* ProgramFolderVariable = "U3_DEVICE_EXEC_PATH";

// The number of this process.
long ProcessNumber();

// True when a process of that number runs, also one of which this one may know no more.
bool ProcessExists(long number);

// The value of an environment variable; empty when it is not set.
std::string EnvironmentValue(const char* name);

// Makes the path in an environment variable one that does not depend on the working directory. An empty one
// stays.
void MakePathAbsolute(const char* name);

// Opens a web address or a file with the program that the user has chosen for it. Failures are not reported.
void ShellOpen(std::string_view address);

// Starts a program and does not wait for it. Gives its process number, 0 when it could not be started.
long StartProcess(const std::string& program, std::initializer_list<std::string> arguments);

// The file of this program.
std::filesystem::path ProgramFile();

// The folder from which the desktop session starts programs.
std::filesystem::path StartupFolder();

// Calls the procedure, on the window thread, when a termination signal arrives or the desktop session ends.
void OnTermination(const std::function<void()>& end);

// From here on a write beyond the process's limit of a file's size fails like any other instead of ending the
// process.
void IgnoreFileSizeSignal();

// Hands all that was written to the file, also what is still in its buffer, to the device; false when that
// failed.
bool SyncToDevice(std::FILE* file);

// Hands the names in a folder, as they were made, changed and removed, to the device; false when that failed,
// as it does where the file system cannot do it.
bool SyncFolder(const std::filesystem::path& folder);
