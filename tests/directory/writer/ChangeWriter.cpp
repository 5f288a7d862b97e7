// Makes users "w0", "w1", ... in the directory file named first, as many as the second argument says, and
// prints each name when its call has returned.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include "backend/directory/SqliteDirectory.h"
#include "backend/errors/Error.h"

int main(int count, char** arguments) {
  using namespace mindloft;
  if (count != 4) return 2;
  try {
    auto directory = SqliteDirectory::Open(arguments[1]);
    SessionId session = directory->Login("admin", arguments[3]);
    for (int i = 0; i < std::atoi(arguments[2]); ++i) {
      UserRecord user;
      user.name = "w" + std::to_string(i);
      directory->CreateUser(session, user, "");
      std::printf("%s\n", user.name.c_str());
      std::fflush(stdout);
      // Another console that writes gets its turn.
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return 0;
  } catch (const Error& error) {
    std::fprintf(stderr, "error %d: %s\n", static_cast<int>(error.Number()), error.what());
    return 1;
  }
}
