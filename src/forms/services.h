// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

class Clipboard;
class Clock;
class Drives;
class FileDialogs;
class FileSystem;
class Fonts;
class HtmlHelp;
class JetEngine;
class MailSender;
class MessageBoxes;
class Modal;
class Printers;
class ProcessList;
class RegistryStore;
class SecretStore;
class Shell;

/// The world outside a window. References only: app/ owns the real ones, tests the scripted ones.
struct Services
{
    MessageBoxes& messages;
    FileDialogs& fileDialogs;
    Modal& modal;
    Clock& clock;
    Shell& shell;
    Clipboard& clipboard;
    Drives& drives;
    FileSystem& files;
    ProcessList& processes;
    Fonts& fonts;
    HtmlHelp& help;
    RegistryStore& registry;
    JetEngine& jet;
    MailSender& mail;
    SecretStore& secrets;
    Printers& printers;
};

} // namespace lumen
