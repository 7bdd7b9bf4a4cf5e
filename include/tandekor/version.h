/* The version of this library. The build takes its own number from here. */
#ifndef TANDEKOR_VERSION_H
#define TANDEKOR_VERSION_H

#define TANDEKOR_VERSION_MAJOR 2
#define TANDEKOR_VERSION_MINOR 4
#define TANDEKOR_VERSION_PATCH 15
#define TANDEKOR_VERSION_TEXT "2.4.15"

#endif
