// Short sounds, by libcanberra where the machine has it.
#include "platform/Sound.h"

#include <canberra.h>
#include <dlfcn.h>

#include <atomic>
#include <string>
#include <thread>

namespace {

constexpr const char* LibraryName = "libcanberra.so.0";
constexpr const char* ProgramName = "Planovarium Homework System";
constexpr uint32_t SoundNumber = 1;

std::atomic<bool> isHeard = false;

void Ended(ca_context* /*context*/, uint32_t /*number*/, int /*error*/, void* /*unused*/) {
    isHeard = false;
}

// The library's procedures; null where it is not there.
struct Library {
    decltype(&ca_context_create) create = nullptr;
    decltype(&ca_context_play_full) play = nullptr;
    decltype(&ca_proplist_create) createList = nullptr;
    decltype(&ca_proplist_sets) setInList = nullptr;
    decltype(&ca_proplist_destroy) destroyList = nullptr;
};

template <class Procedure>
void Find(void* library, const char* name, Procedure& procedure) {
    procedure = reinterpret_cast<Procedure>(::dlsym(library, name));
}

Library LoadLibrary() {
    Library found;
    void* library = ::dlopen(LibraryName, RTLD_NOW);
    if (library != nullptr) {
        Find(library, "ca_context_create", found.create);
        Find(library, "ca_context_play_full", found.play);
        Find(library, "ca_proplist_create", found.createList);
        Find(library, "ca_proplist_sets", found.setInList);
        Find(library, "ca_proplist_destroy", found.destroyList);
    }
    return found;
}

bool IsWhole(const Library& library) {
    return library.create != nullptr && library.play != nullptr && library.createList != nullptr &&
           library.setInList != nullptr && library.destroyList != nullptr;
}

// Gives whether the sound has begun. The connection to the sound service stays open until the process ends.
bool Begin(const std::string& file) {
    static const Library library = LoadLibrary();
    static ca_context* context = nullptr;
    if (!IsWhole(library) || (context == nullptr && library.create(&context) != CA_SUCCESS)) {
        return false;
    }
    ca_proplist* list = nullptr;
    if (library.createList(&list) != CA_SUCCESS) {
        return false;
    }
    library.setInList(list, CA_PROP_MEDIA_FILENAME, file.c_str());
    library.setInList(list, CA_PROP_APPLICATION_NAME, ProgramName);
    const bool begun = library.play(context, SoundNumber, list, &Ended, nullptr) == CA_SUCCESS;
    library.destroyList(list);
    return begun;
}

} // namespace

// The library connects to the sound service before it returns, which may take long where the service is ill;
// so it is asked on a thread of its own.
void PlaySound(const std::filesystem::path& file) {
    if (isHeard.exchange(true)) {
        return;
    }
    std::thread([path = file.string()] {
        if (!Begin(path)) {
            isHeard = false;
        }
    }).detach();
}
