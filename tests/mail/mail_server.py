#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""A mail server on the loopback address that can be told to misbehave.

Prints its port, then each delivered letter as a line of JSON, read by the library's own parser.
"""
import argparse
import asyncio
import email
import email.policy
import email.utils
import json
import logging
import ssl
import warnings

from aiosmtpd.smtp import SMTP, AuthResult

options = argparse.ArgumentParser()
options.add_argument("--tls", help="certificate and key, encrypted from the first byte")
options.add_argument("--starttls", help="certificate and key, offered")
options.add_argument("--password", help="the only one for user 'kim'")
options.add_argument("--refuse", default="", help="greeting, mail, data, end or a recipient")
options.add_argument("--silent", default="", help="greeting, mail, end or quit")
options.add_argument("--hang-up", default="", help="greeting, mail or end")
wanted = options.parse_args()

# A login without encryption is offered on purpose.
warnings.simplefilter("ignore")
logging.disable(logging.WARNING)


def say(line):
    print(line, flush=True)


def named(addresses):
    return [[a.display_name, a.addr_spec] for a in addresses]


def read_letter(envelope, session, transport):
    raw = envelope.content
    letter = email.message_from_bytes(raw, policy=email.policy.default)
    return {
        "mailFrom": envelope.mail_from,
        "recipients": envelope.rcpt_tos,
        "from": named(letter["From"].addresses),
        "to": named(letter["To"].addresses),
        "replyTo": named(letter["Reply-To"].addresses),
        "subject": str(letter["Subject"]),
        "date": letter["Date"].datetime.isoformat(),
        "id": str(letter["Message-ID"]),
        "charset": letter.get_content_charset(),
        "body": letter.get_content(),
        "headers": sorted(letter.keys()),
        "defects": [str(defect) for defect in letter.defects],
        "longest": max(len(line) for line in raw.split(b"\r\n")),
        "encrypted": transport.get_extra_info("ssl_object") is not None,
        "user": session.auth_data or "",
    }


class Handler:
    async def misbehave(self, server, step):
        if wanted.silent == step:
            await asyncio.get_event_loop().create_future()
        if wanted.hang_up == step:
            server.transport.abort()
            return "421 gone"
        return "550 no " + step if wanted.refuse == step else None

    async def handle_MAIL(self, server, session, envelope, address, mail_options):
        envelope.mail_from = address
        return await self.misbehave(server, "mail") or "250 OK"

    async def handle_RCPT(self, server, session, envelope, address, rcpt_options):
        refusal = await self.misbehave(server, address)
        if refusal:
            return refusal
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        refusal = await self.misbehave(server, "end")
        if not refusal:
            say(json.dumps(read_letter(envelope, session, server.transport)))
        return refusal or "250 OK"

    async def handle_QUIT(self, server, session, envelope):
        await self.misbehave(server, "quit")
        return "221 bye"


class Server(SMTP):
    async def smtp_DATA(self, arg):
        if wanted.refuse == "data":
            await self.push("554 no data")
        else:
            await super().smtp_DATA(arg)


def authenticate(server, session, envelope, mechanism, data):
    right = data.login == b"kim" and data.password == (wanted.password or "").encode()
    return AuthResult(success=right, handled=False, auth_data="kim" if right else None)


def context(pair):
    made = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    made.load_cert_chain(*pair.split(":"))
    return made


class Rude(asyncio.Protocol):
    """Ends the talk, or says nothing, before it began."""

    def connection_made(self, transport):
        if wanted.refuse == "greeting":
            transport.write(b"554 no greeting\r\n")
        if wanted.silent != "greeting":
            transport.close()


def protocol():
    if "greeting" in (wanted.refuse, wanted.silent, wanted.hang_up):
        return Rude()
    return Server(
        Handler(),
        hostname="localhost",
        tls_context=context(wanted.starttls) if wanted.starttls else None,
        require_starttls=bool(wanted.starttls),
        auth_required=bool(wanted.password),
        auth_require_tls=False,
        authenticator=authenticate,
        enable_SMTPUTF8=True,
    )


async def main():
    loop = asyncio.get_running_loop()
    encryption = context(wanted.tls) if wanted.tls else None
    server = await loop.create_server(protocol, "127.0.0.1", 0, ssl=encryption)
    say(server.sockets[0].getsockname()[1])
    await server.serve_forever()


asyncio.run(main())
