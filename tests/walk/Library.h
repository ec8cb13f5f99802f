// The real library, heard and looked at in the words of the model.
#pragma once

#include "walk/Model.h"

#include <map>
#include <string>

namespace vantorel::walk {

/// A new process with these files; every callback slot empty.
void switchOn(const Model &like);
/// As Model::say.
void hear(const std::string &line);
/// Of a result that must be freed.
void hearResult(char *text);
/// A refusal of the device is heard too.
void hearRefusal(char *message);

/// Fills a slot with the first or the second of its functions.
void fillSlot(std::size_t slot, int which);

/// If it is there; as the host may do.
void removeFile(const std::string &path);
/// The file that the device reads a room from.
std::string roomFile(const std::string &name);

/// How what was heard since the last call, the state, the files' names or the time differ from the model's; empty
/// when they do not.
std::string difference(Model &model);
/// How the texts in the files differ.
std::string contentDifference(const Model &model);

}  // namespace vantorel::walk
