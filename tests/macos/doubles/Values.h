// SPDX-License-Identifier: MIT
// Errors as tests make them.
#pragma once

#import <Foundation/Foundation.h>

namespace fadeloom::doubles {

NSError* errorSaying(NSString* words);

}  // namespace fadeloom::doubles
