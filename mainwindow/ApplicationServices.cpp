#include "mainwindow/ApplicationServices.h"

namespace mindloft {

ApplicationServices& GetApplicationServices() {
  static ApplicationServices services;
  return services;
}

}  // namespace mindloft
